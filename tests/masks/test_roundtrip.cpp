// Load and save round trips: a loaded mask is saved with every section and
// key it had, in the order the loader makes the controls; from then on it
// reads back and writes again byte for byte.
#include <QDirIterator>
#include <QtTest>

#include "Containers.h"
#include "Edits.h"
#include "Graphics.h"
#include "Grids.h"
#include "Label.h"
#include "MyBtn.h"
#include "helper_masks.h"

using namespace MaskTest;

namespace {
QString dataFile(const QString &name)
{
    return QStringLiteral(FEROLITH_SOURCE_DIR "/tests/masks/data/") + name;
}

QStringList fileLines(const QString &path)
{
    return TextCodec::decodeFileText(readFileBytes(path)).split(QLatin1String("\r\n"));
}

// Each section's lines by section name, sorted: the content of a file
// apart from the order of its sections and of their keys. Without "Sort":
// where two controls on different parents share a tab order, the one
// visited last keeps the line, and loading changes the visiting order.
QMap<QString, QStringList> sections(const QString &path)
{
    QMap<QString, QStringList> out;
    QString current;
    for (const QString &line : fileLines(path)) {
        if (line.startsWith(QLatin1Char('[')))
            current = line;
        else if (!line.isEmpty() && current != QLatin1String("[Sort]"))
            out[current] << line;
    }
    for (QStringList &lines : out)
        lines.sort();
    return out;
}
} // namespace

class TestRoundtrip : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void sampleMasksKeepEverySectionAndSettle();
    void aDesignedMaskSettlesAfterOneLoad();
    void everyKeyOfEveryKind();
};

void TestRoundtrip::sampleMasksKeepEverySectionAndSettle()
{
    Fixture home;
    QDirIterator it(QStringLiteral(FEROLITH_SOURCE_DIR "/examples/masks"), {QStringLiteral("*.dbm")}, QDir::Files);
    int count = 0;
    while (it.hasNext()) {
        const QString sample = it.next();
        ++count;
        TMaskDocument *mask = home.load(sample);
        QVERIFY(controlClasses(mask).size() > 10);
        const QString first = home.path(QStringLiteral("1-") + QFileInfo(sample).fileName());
        QVERIFY(MaskWriter::SaveMask(*mask, first));
        QVERIFY2(sections(first) == sections(sample), qPrintable(sample));
        const QString second = home.path(QStringLiteral("2-") + QFileInfo(sample).fileName());
        QVERIFY(MaskWriter::SaveMask(*home.load(first), second));
        QVERIFY2(readFileBytes(second) == readFileBytes(first), qPrintable(sample));
    }
    QVERIFY2(count >= 3, "the sample masks are missing");
}

void TestRoundtrip::aDesignedMaskSettlesAfterOneLoad()
{
    Fixture home;
    TMaskDocument *mask = home.newDocument();

    // Every kind, in an order the loader does not use, some inside containers.
    auto *panel = make<TPanel>(mask);
    panel->setBounds(8, 8, 300, 120);
    panel->setAlign(alNone);
    auto *pager = makePager(mask);
    pager->setBounds(320, 8, 300, 200);
    QWidget *page = pager->Pages(1);
    make<TcxTextEdit>(mask, panel);
    make<TLabel>(mask, panel);
    make<TMaskBtn>(mask, panel)->setCaption(QStringLiteral("MaskBtn"));
    make<TcxComboBox>(mask, panel)->setHint(QStringLiteral("Anreden"));
    make<TcxMemo>(mask, page);
    make<TDBLabel>(mask, page)->setHint(QStringLiteral("1"));
    make<TcxDBCheckBox>(mask, page);
    int y = 140;
    const QList<QWidget *> column = {make<TcxDBPopupEdit>(mask), make<TBevel>(mask), make<TImageAspect>(mask),
                                     make<TShape>(mask),         make<TDBGrid>(mask), make<TcxDBTreeList>(mask),
                                     make<TStringGrid>(mask),    make<TMaskBtn>(mask), make<TcxTextEdit>(mask),
                                     make<TDBGrid>(mask)};
    for (QWidget *w : column) {
        TControl::from(w)->setBounds(8, y, 120, 30);
        y += 40;
    }
    makePreview(mask);
    auto *radio = make<TDBRadioGroup>(mask);
    radio->setBounds(400, 300, 185, 105);
    // Radio groups read their size from another key than they write; only
    // the default size survives.
    radio->setFont(TFont{QStringLiteral("Arial"), 10, TColor(0), {}});
    radio->setItems({QStringLiteral("Ja"), QStringLiteral("Nein"), QStringLiteral("Vielleicht später")});

    auto *edit = Components::findComponent(mask, QStringLiteral("cxTextEdit2"));
    QVERIFY(edit);
    TControl::from(edit)->setTabOrder(0);
    auto *button = qobject_cast<TMaskBtn *>(Components::findComponent(mask, QStringLiteral("MaskBtn1")));
    button->setTag(3);
    button->setZuweisMaske(QStringLiteral("Auftraege.dbm"));
    mask->setTabelle(QStringLiteral("Kunden"));
    mask->setTitel(QStringLiteral("Kundenstamm"));

    const QString first = home.path(QStringLiteral("entwurf.dbm"));
    QVERIFY(MaskWriter::SaveMask(*mask, first));
    const QString second = home.path(QStringLiteral("wieder.dbm"));
    QVERIFY(MaskWriter::SaveMask(*home.load(first), second));
    QCOMPARE(sections(second), sections(first));
    const QString third = home.path(QStringLiteral("nochmal.dbm"));
    QVERIFY(MaskWriter::SaveMask(*home.load(second), third));
    QCOMPARE(fileLines(third), fileLines(second));
}

// A file with every key of every kind, set away from its default, saves as
// the expected file: each key read into its property and written back under
// the name and at the place the format gives it.
void TestRoundtrip::everyKeyOfEveryKind()
{
    // Every key of every kind with a value of its own; and every kind with
    // no keys at all, which shows the default of each.
    Fixture home;
    for (const QString &name : {QStringLiteral("leer"), QStringLiteral("alle")}) {
        TMaskDocument *read = home.load(dataFile(name + QStringLiteral(".dbm")));
        const QString out = home.path(name + QStringLiteral(".dbm"));
        QVERIFY(MaskWriter::SaveMask(*read, out));
        QCOMPARE(fileLines(out), fileLines(dataFile(name + QStringLiteral(".gespeichert.dbm"))));
    }
    TMaskDocument *mask = home.load(dataFile(QStringLiteral("alle.dbm")));

    // Where each value went is the batch tool's dump test; here what the
    // dump does not show.
    auto *pager = component<TAdvOfficePager>(mask, "AdvOfficePager1");
    QVERIFY(pager->Pages(0)->isVisibleTo(pager) && !pager->Pages(1)->isVisibleTo(pager));
    QCOMPARE(component<TcxTextEdit>(mask, "cxTextEdit1")->StyleController(), mask->cxStyleController());
}

QTEST_MAIN(TestRoundtrip)
#include "test_roundtrip.moc"
