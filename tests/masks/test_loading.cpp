// Loading mask files: every kind with its keys and defaults, the parent and
// tab order rules, and files that are odd or broken.
#include <QtTest>
#include <sys/stat.h>

#include "Containers.h"
#include "EditStyle.h"
#include "Edits.h"
#include "Graphics.h"
#include "Grids.h"
#include "MaskLoader.h"
#include "MyBtn.h"

#include "helper_masks.h"

using namespace MaskTest;

class TestLoading : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void parentsResolveByName();
    void tabOrdersAndTheSortSection();
    void headerAndTableSettings();
    void oddFilesNeverBreakTheLoad();
};

void TestLoading::parentsResolveByName()
{
    Fixture home;
    const QString file = home.path(QStringLiteral("eltern.dbm"));
    writeMask(file, QStringLiteral("[Panel_1]\nParent=Panel1\nLeft=0\nTop=0\nWidth=200\nHeight=200\n"
                                   "[Panel_2]\nParent=panel1\nLeft=10\nTop=10\nWidth=50\nHeight=50\n"
                                   "[Panel_3]\nParent=Panel4\n"
                                   "[Label_1]\nParent=Bevel1\n"
                                   "[Label_2]\nParent=Panel2\n"
                                   "[Label_3]\nParent=Label2\n"
                                   "[Bevel_1]\nParent=Maske\n"));
    TMaskDocument *mask = home.load(file);
    QWidget *surface = mask;
    // A control naming itself, a control made later, a bevel or a label
    // cannot hold it: it lands on the mask.
    QCOMPARE(component<TPanel>(mask, "Panel1")->parentWidget(), surface);
    QCOMPARE(component<TPanel>(mask, "Panel2")->parentWidget(), component<TPanel>(mask, "Panel1"));
    QCOMPARE(component<TPanel>(mask, "Panel3")->parentWidget(), surface);
    QCOMPARE(component<TLabel>(mask, "Label1")->parentWidget(), surface);
    QCOMPARE(component<TLabel>(mask, "Label2")->parentWidget(), component<TPanel>(mask, "Panel2"));
    QCOMPARE(component<TLabel>(mask, "Label3")->parentWidget(), surface);

    // Saved back, each names the parent it has now.
    const QString text = savedText(mask);
    QVERIFY(sectionLines(text, "Panel_1").contains("Parent=Maske"));
    QVERIFY(sectionLines(text, "Panel_2").contains("Parent=Panel1"));
    QVERIFY(sectionLines(text, "Label_1").contains("Parent=Maske"));
    QVERIFY(sectionLines(text, "Label_2").contains("Parent=Panel2"));

    // Sections out of numbering order: names follow the numbers, and a save
    // and a second load keep every control on the panel it was on.
    const QString swapped = home.path(QStringLiteral("vertauscht.dbm"));
    writeMask(swapped, QStringLiteral("[Panel_7]\nLeft=300\nTop=0\nWidth=200\nHeight=200\n"
                                      "[Panel_3]\nLeft=0\nTop=0\nWidth=200\nHeight=200\n"
                                      "[Label_1]\nParent=Panel1\nName=Ort\n"
                                      "[Field_1]\nParent=Panel1\nDataField=ORT\n"));
    const auto placesIn = [](const TMaskDocument *m) {
        QStringList out;
        for (QObject *o : Components::components(m))
            if (auto *w = qobject_cast<QWidget *>(o))
                out << w->objectName() + QLatin1Char('@') + w->parentWidget()->objectName()
                           + QLatin1Char('@') + QString::number(w->parentWidget()->x());
        return out;
    };
    TMaskDocument *first = home.load(swapped);
    QCOMPARE(component<TPanel>(mask, "Panel1")->parentWidget(), surface);
    QCOMPARE(component<TLabel>(first, "Label1")->parentWidget()->x(), 0);
    const QString resaved = home.path(QStringLiteral("wieder.dbm"));
    QVERIFY(MaskWriter::SaveMask(*first, resaved));
    TMaskDocument *second = home.load(resaved);
    QCOMPARE(placesIn(second), placesIn(first));
    QVERIFY(MaskWriter::SaveMask(*second, resaved));
    QCOMPARE(placesIn(home.load(resaved)), placesIn(first));
}

void TestLoading::tabOrdersAndTheSortSection()
{
    Fixture home;
    const QString file = home.path(QStringLiteral("tab.dbm"));
    // Read in kind order (fields before buttons), applied as a whole: each
    // control ends where its key says, whatever order they were read in.
    writeMask(file, QStringLiteral("[Field_1]\nTabOrder=3\n[Field_2]\nTabOrder=1\n[Memo_1]\nTabOrder=2\n"
                                   "[Button_1]\nTabOrder=0\n[Button_2]\nTabOrder=4\n"
                                   "[Sort]\n0=3-Button2\n4=3-Button1\n1=0-Feld2\n7=3-Button9\nx=ERROR\n"));
    TMaskDocument *mask = home.load(file);
    // Only the button stem can match a loaded control: MaskBtn1 moves to 4,
    // MaskBtn2 to 0; the fields keep their own TabOrder keys.
    const QList<QWidget *> order = ControlLayout::tabList(mask);
    QStringList names;
    for (QWidget *w : order)
        names << w->objectName();
    QCOMPARE(names, QStringList({"MaskBtn2", "cxTextEdit2", "cxMemo1", "cxTextEdit1", "MaskBtn1"}));
}

void TestLoading::headerAndTableSettings()
{
    Fixture home;
    // The table generator writes ".ini"; the header may be spelled any way.
    writeMask(home.databaseFolder() + QStringLiteral("Artikel.ini"),
              QStringLiteral("[Datenbank]\nCadPath=/daten/cad\nIndex=ARTNR\nDateizaehler=7\nFokus=NAME\n"
                             "Felder=ARTNR;NAME\n[AutoFill]\nDATUM=%DATE%\n[Default]\nMENGE=1\nEINHEIT=Stk\n"));
    const QString file = home.path(QStringLiteral("artikel.dbm"));
    writeMask(file, QStringLiteral("[DATENBANK]\nTabelle=Artikel.dat\nTitel=Artikelstamm\n"
                                   "[datenbank]\nHeight=600\nWidth=800\nPixel=16\n"));
    TMaskDocument *mask = home.load(file);
    QCOMPARE(mask->Tabelle(), QStringLiteral("Artikel"));
    QCOMPARE(mask->Titel(), QStringLiteral("Artikelstamm"));
    QCOMPARE(mask->Pixel(), 16);
    const TTableSettings &t = mask->TableSettings();
    QCOMPARE(t.CadPath, QStringLiteral("/daten/cad") + QDir::separator());
    QCOMPARE(t.Index, QStringLiteral("ARTNR"));
    QCOMPARE(t.Dateizaehler, QStringLiteral("7"));
    QCOMPARE(t.Fokus, QStringLiteral("NAME"));
    QCOMPARE(t.Felder, QStringLiteral("ARTNR;NAME"));
    QCOMPARE(t.AutoFill, QStringList{QStringLiteral("DATUM=%DATE%")});
    QCOMPARE(t.Default, QStringList({"MENGE=1", "EINHEIT=Stk"}));

    // The older spelling of the extension is found too.
    QVERIFY(QFile::rename(home.databaseFolder() + QStringLiteral("Artikel.ini"),
                          home.databaseFolder() + QStringLiteral("Artikel.Ini")));
    QCOMPARE(home.load(file)->TableSettings().Index, QStringLiteral("ARTNR"));
    // Any resolution is kept as the file has it.
    writeMask(file, QStringLiteral("[DatenBank]\nHeight=700\nWidth=1000\n"));
    TMaskDocument *odd = home.load(file);
    QVERIFY(sectionLines(savedText(odd), "Datenbank").contains("Height=700"));
    QVERIFY(odd->TableSettings().Index.isEmpty());

    // The table settings come from the database folder only: not from a way
    // up, an absolute path or a link that leads elsewhere.
    writeMask(home.path(QStringLiteral("geheim.ini")), QStringLiteral("[Datenbank]\nIndex=PASSWORT\n"));
    QVERIFY(QFile::link(home.path(QStringLiteral("geheim.ini")), home.databaseFolder() + QStringLiteral("Link.ini")));
    for (const QString &table : {QStringLiteral("../geheim"), home.path(QStringLiteral("geheim")),
                                 QStringLiteral("..\\geheim"), QStringLiteral("Link")}) {
        writeMask(file, QStringLiteral("[Datenbank]\nTabelle=%1\n").arg(table));
        QVERIFY2(home.load(file)->TableSettings().Index.isEmpty(), qPrintable(table));
    }
}

void TestLoading::oddFilesNeverBreakTheLoad()
{
    Fixture home;

    // Gaps in the numbering are harmless; above 1000 nothing is loaded.
    // Sections load by number, whatever their order or case in the file;
    // a number written with a leading zero names no section.
    const QString gaps = home.path(QStringLiteral("gaps.dbm"));
    writeMask(gaps,
              QStringLiteral("[Label_1000]\nName=tausend\n[Label_10]\nName=zehn\n[label_9]\nName=neun\n"
                             "[Label_07]\nName=null\n[Label_2]\nName=zwei\n[Field_1001]\nName=X\n"));
    TMaskDocument *mask = home.load(gaps);
    QStringList captions;
    for (QObject *c : Components::components(mask))
        if (auto *label = qobject_cast<TLabel *>(c))
            captions << label->Caption();
    QCOMPARE(captions, QStringList({"zwei", "neun", "zehn", "tausend"}));
    QCOMPARE(controlClasses(mask).size(), 4);

    // Extreme numbers are clamped, never trusted.
    const QString huge = home.path(QStringLiteral("huge.dbm"));
    writeMask(huge, QStringLiteral("[Panel_1]\nLeft=-2147483648\nTop=2147483647\nWidth=-2147483648\nHeight=99999999999\n"
                                   "BWidth=-5\nBInner=77\nFSize=-2147483648\nAlignment=0\n[DBRadioGroup_1]\nColumns=-2147483648\n"));
    mask = home.load(huge);
    auto *panel = component<TPanel>(mask, "Panel1");
    QVERIFY(panel);
    QCOMPARE(panel->Width(), 0);
    QCOMPARE(panel->BevelInner(), bvNone);
    QVERIFY(panel->Font().Size > 0);
    QCOMPARE(component<TDBRadioGroup>(mask, "DBRadioGroup1")->Columns(), 1);

    // Positions and sizes stay within what a screen can show, so no control
    // allocates for a giant size and no sum of coordinates overflows.
    QStringList items;
    for (int i = 0; i < 5000; ++i)
        items << QString::number(i);
    writeMask(huge, QStringLiteral("[CField_1]\nLeft=100000\nTop=-100000\nWidth=2000000000\nHeight=16777215\n"
                                   "[DBRadioGroup_1]\nItems=%1\n").arg(items.join(QLatin1Char(','))));
    mask = home.load(huge);
    auto *combo = component<TcxComboBox>(mask, "cxComboBox1");
    QCOMPARE(combo->geometry(), QRect(32767, -32767, 32767, 32767));
    // Every item is kept; only so many get a button.
    auto *group = component<TDBRadioGroup>(mask, "DBRadioGroup1");
    QCOMPARE(group->Items().size(), 5000);
    QVERIFY(group->buttons().size() <= 1024);

    // A picture that names a pipe or a device leaves the picture empty
    // rather than waiting for data that never comes.
    const QByteArray fifo = QFile::encodeName(home.path(QStringLiteral("pipe")));
    QCOMPARE(::mkfifo(fifo.constData(), 0600), 0);
    writeMask(huge, QStringLiteral("[Image_1]\nFileName=%1\n[Image_2]\nFileName=/dev/zero\n").arg(QFile::decodeName(fifo)));
    mask = home.load(huge);
    QCOMPARE(controlClasses(mask), QStringList({"TImageAspect", "TImageAspect"}));

    // A missing file gives a mask with every default; garbage is the fuzz target's.
    QString error;
    mask = home.load(home.path(QStringLiteral("fehlt.dbm")), &error);
    QVERIFY(!error.isEmpty());
    QVERIFY(controlClasses(mask).isEmpty());
    QCOMPARE(mask->Titel(), QStringLiteral("Maske"));

    // A long line and many sections load without trouble.
    const QString big = home.path(QStringLiteral("big.dbm"));
    QByteArray many = "[Label_1]\r\nName=" + QByteArray(1024 * 1024, 'x') + "\r\n";
    for (int i = 0; i < 1000000; ++i)
        many += "[S" + QByteArray::number(i) + "]\r\n";
    QVERIFY(writeFileBytes(big, many));
    mask = home.load(big);
    QCOMPARE(component<TLabel>(mask, "Label1")->Caption().size(), 1024 * 1024);
}

QTEST_MAIN(TestLoading)
#include "test_loading.moc"
