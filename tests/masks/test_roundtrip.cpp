// Load and save round trips: what Ferolith writes, it reads back and writes
// again byte for byte.
#include <QDirIterator>
#include <QtTest>

#include "Containers.h"
#include "Edits.h"
#include "Grids.h"
#include "MyBtn.h"
#include "helper_masks.h"

using namespace MaskTest;
using namespace ShellTest;

class TestRoundtrip : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { flushDeletes(); }
    void sampleMasksRoundTripByteForByte();
    void aDesignedMaskRoundTripsByteForByte();
};

void TestRoundtrip::sampleMasksRoundTripByteForByte()
{
    Fixture home;
    auto form = showMainForm();
    QDirIterator it(QStringLiteral(FEROLITH_SOURCE_DIR "/examples/masks"), {QStringLiteral("*.dbm")}, QDir::Files);
    int count = 0;
    while (it.hasNext()) {
        const QString sample = it.next();
        ++count;
        TMaske *mask = form->LoadMask(sample);
        QVERIFY(controlClasses(mask).size() > 10);
        const QString out = home.path(QFileInfo(sample).fileName());
        QVERIFY(MaskWriter::SaveMask(mask, out));
        QVERIFY2(readFileBytes(out) == readFileBytes(sample), qPrintable(sample));
        mask->close();
    }
    QVERIFY2(count >= 3, "the sample masks are missing");
}

void TestRoundtrip::aDesignedMaskRoundTripsByteForByte()
{
    Fixture home;
    auto form = showMainForm();
    form->FileNewItemClick();
    TMaske *mask = form->activeMask();
    QWidget *surface = mask->designSurface();

    // Every kind, in an order the loader does not use, some inside containers.
    QWidget *panel = mask->placeControl(17, surface, QPoint(8, 8));
    static_cast<TControl *>(TControl::from(panel))->setBounds(8, 8, 300, 120);
    TControl::from(panel)->setAlign(alNone);
    QWidget *pager = mask->placeControl(16, surface, QPoint(320, 8));
    QWidget *page = static_cast<TAdvOfficePager *>(pager)->Pages(1);
    for (int code : {2, 1, 7, 3})
        QVERIFY(mask->placeControl(code, panel, QPoint(8, 4 + code * 20)));
    for (int code : {4, 10, 5})
        QVERIFY(mask->placeControl(code, page, QPoint(8, code * 20)));
    int y = 140;
    for (int code : {12, 8, 13, 11, 6, 19, 20, 7, 2, 9}) {
        QVERIFY(mask->placeControl(code, surface, QPoint(8, y)));
        y += 40;
    }
    auto *radio = qobject_cast<TDBRadioGroup *>(mask->placeControl(18, surface, QPoint(400, 300)));
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
    QVERIFY(MaskWriter::SaveMask(mask, first));
    TMaske *loaded = form->LoadMask(first);
    const QString second = home.path(QStringLiteral("wieder.dbm"));
    QVERIFY(MaskWriter::SaveMask(loaded, second));
    const QString a = TextCodec::decodeFileText(readFileBytes(first));
    const QString b = TextCodec::decodeFileText(readFileBytes(second));
    if (qEnvironmentVariableIsSet("FEROLITH_KEEP")) {
        QFile::copy(first, QStringLiteral("/tmp/first.dbm"));
        QFile::copy(second, QStringLiteral("/tmp/second.dbm"));
    }
    QCOMPARE(b.split(QLatin1String("\r\n")), a.split(QLatin1String("\r\n")));
}

QTEST_MAIN(TestRoundtrip)
#include "test_roundtrip.moc"
