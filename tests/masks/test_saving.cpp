// Saving masks: the sections and their keys in the runtime's order, the
// numbering and visiting rules, pick-list blocks and the tab order section.
#include <QtTest>

#include "Edits.h"
#include "Graphics.h"
#include "Grids.h"
#include "Label.h"
#include "MyBtn.h"
#include "helper_masks.h"

using namespace MaskTest;

namespace {
// A label of a class of its own: not one the mask file knows.
class TFancyLabel : public TLabel
{
    Q_OBJECT
public:
    using TLabel::TLabel;
};

QStringList sectionNames(const QString &text)
{
    QStringList out;
    for (const QString &line : text.split(QLatin1Char('\n')))
        if (line.startsWith(QLatin1Char('[')))
            out << line.mid(1, line.size() - 2);
    return out;
}
} // namespace

class TestSaving : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void visitingOrderAndNumbering();
    void pickListsAndSortLines();
};

void TestSaving::visitingOrderAndNumbering()
{
    Fixture home;
    TMaskDocument *mask = home.newDocument();

    auto *first = make<TDBGrid>(mask);
    auto *label = make<TLabel>(mask);
    auto *fancy = new TFancyLabel(mask);
    Components::setOwner(fancy, mask);
    AutoName(fancy, mask);
    fancy->setCaption(QStringLiteral("Nicht gespeichert"));
    make<TDBGrid>(mask);
    auto *label2 = make<TLabel>(mask);
    label->setCaption(QStringLiteral("Erste"));
    label2->setCaption(QStringLiteral("Zweite"));
    label2->setFont(TFont{QStringLiteral("Arial"), 9, Colors::clRed,
                          TFontStyles(fsStrikeOut) | fsItalic | fsBold});

    QString text = savedText(mask);
    // The grid named "DBGrid1" is the main grid and does not count.
    QCOMPARE(first->objectName(), QStringLiteral("DBGrid1"));
    QCOMPARE(sectionNames(text), QStringList({"Datenbank", "Style", "Browser", "Label_1", "DBBrowser_1", "Label_2"}));
    QVERIFY(!text.contains(QLatin1String("Nicht gespeichert")));
    QVERIFY(sectionLines(text, "Label_2").contains("Name=Zweite"));
    QVERIFY(sectionLines(text, "Label_2").contains("FStyle=BIS"));
    QVERIFY(sectionLines(text, "Label_2").contains("FColor=clRed"));

    // Without "DBGrid1" every grid is numbered.
    delete first;
    text = savedText(mask);
    QCOMPARE(sectionNames(text), QStringList({"Datenbank", "Style", "Label_1", "DBBrowser_1", "Label_2"}));
}

void TestSaving::pickListsAndSortLines()
{
    Fixture home;
    TMaskDocument *mask = home.newDocument();

    auto *panelA = make<TPanel>(mask);
    auto *panelB = make<TPanel>(mask);
    auto *c1 = make<TcxComboBox>(mask, panelA);
    auto *c2 = make<TcxComboBox>(mask, panelB);
    auto *c3 = make<TcxComboBox>(mask, panelB);
    auto *c4 = make<TcxComboBox>(mask, panelB);
    c1->setHint(QStringLiteral("Anreden"));
    c1->setItems({QStringLiteral("Herr"), QStringLiteral("Frau")});
    c2->setHint(QStringLiteral("Anreden"));
    c2->setItems({QStringLiteral("Firma")});
    c3->setHint(QStringLiteral("Leer")); // no items: no block
    c4->setHint(QStringLiteral("Länder"));
    c4->setItems({QStringLiteral("Deutschland"), QStringLiteral("Österreich")});
    auto *c5 = make<TcxComboBox>(mask, panelA);
    c5->setHint(QStringLiteral("ANREDEN")); // the same block
    c5->setItems({QStringLiteral("Dr.")});

    const QString text = savedText(mask);
    // The blocks stand before the header, each name once, the first one's items.
    QVERIFY2(text.startsWith(QStringLiteral("[Anreden]\nHerr\nFrau\n\n[Länder]\nDeutschland\nÖsterreich\n\n"
                                            "[Datenbank]\n")),
             qPrintable(text.left(120)));
    QVERIFY(!text.contains(QLatin1String("[Leer]")));
    QCOMPARE(text.count(QLatin1String("[Anreden]")), 1);
    // c1 is first on panel A, c2 first on panel B: both have tab order 0,
    // and the later one keeps the line (so does c5 against c3).
    QCOMPARE(sectionLines(text, "Sort"), QStringList({"0=1-CFeld2", "1=1-CFeld5", "2=1-CFeld4"}));

    // The file is Windows-1252 with CR LF.
    const QByteArray bytes = MaskWriter::MaskFileBytes(*mask);
    QVERIFY(bytes.contains("\xd6sterreich\r\n"));
    QVERIFY(!bytes.contains("\n\n"));
}

QTEST_MAIN(TestSaving)
#include "test_saving.moc"
