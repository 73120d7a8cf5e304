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

#include <QComboBox>
#include "helper_masks.h"

using namespace MaskTest;

class TestLoading : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyKindTakesItsKeys();
    void missingKeysTakeTheirDefaults();
    void parentsResolveByName();
    void tabOrdersAndTheSortSection();
    void headerAndTableSettings();
    void oddFilesNeverBreakTheLoad();
};

void TestLoading::everyKindTakesItsKeys()
{
    Fixture home;
    const QString file = home.path(QStringLiteral("alle.dbm"));
    writeMask(file, QStringLiteral(R"([Datenbank]
Tabelle=Kunden
Titel=Kundenstamm
Typ=2
[DatenBank]
Pixel=32
Height=768
Width=1024
[Style]
BorderStyle=3
ButtonStyle=2
ButtonTrans=1
Color=clRed
Shadow=1
Hottrack=1
EdgeLeft=1
EdgeRight=0
EdgeTop=1
EdgeBottom=0
[PageControl_1]
Parent=Maske
Style=2
Alignment=0
Left=300
Top=10
Height=200
Width=320
TabPos=1
FColor=clNavy
FName=Tahoma
FontSize=9
FStyle=B
[Page_1]
Parent=AdvOfficePager1
Pageindex=0
Name=Allgemein
[Page_2]
Parent=AdvOfficePager1
Pageindex=1
Name=Preise
[Panel_1]
Parent=Maske
Name=Kopf
Left=8
Top=220
Height=40
Width=280
BWidth=2
PColor=clYellow
BInner=1
BOuter=2
BStyle=1
Ctl3D=0
FName=Arial
FSize=12
FColor=clMaroon
FStyle=I
Alignment=0
[Label_1]
Parent=Maske
Name=  Kundennummer:
Left=8
Top=12
Height=16
Width=90
FColor=clBlue
FName=Arial
FontSize=9
FStyle=ub
WordWrap=0
Layout=1
Alignment=0
[DBLabel_1]
Parent=AdvOfficePage2
Name=PREIS
DB=Artikel
Desc=Preis netto
Typ=3
Laenge=12
Left=4
Top=4
Height=18
Width=70
WordWrap=1
Alignment=2
BrowserEdit=1
[Field_1]
Parent=Maske
Name=KUNDENNR
Desc=Kundennummer
MaskEdit=000000
Left=104
Top=10
Laenge=6
Typ=1
Height=21
Width=80
Color=$00c0ffff
Pflicht=1
ReadOnly=1
TabOrder=0
FName=Tahoma
FSize=8
FColor=clGreen
FStyle=S
CharCase=1
[CField_1]
Parent=Maske
Name=ANREDE
Desc=Anrede
Left=104
Top=40
Laenge=10
Typ=0
Height=21
Width=100
Color=clWindow
TabOrder=1
PullDown=Anreden
Pflicht=0
Readonly=0
[LField_1]
Parent=Maske
Name=KUNDE
DataBase=Kunden
Desc=Kunde
Picklist=1
Left=104
Top=70
Laenge=8
Typ=1
Height=21
Width=120
TabOrder=2
Readonly=1
CharCase=2
MaskEdit=9999
[Memo_1]
Parent=AdvOfficePage1
Name=BEMERKUNG
Desc=Bemerkung
Left=4
Top=4
Height=80
Width=200
Pflicht=1
Plaintext=1
Scrollbars=2
[CheckBox_1]
Parent=Panel1
Name=Aktiv
Desc=Kunde aktiv
DataField=AKTIV
Left=4
Top=4
Height=17
Width=80
Funktion=Pruefe
Checked=1
True=J
False=N
Alignment=1
[Bevel_1]
Parent=Maske
Left=4
Top=4
Height=100
Width=290
Typ=1
[Image_1]
Parent=Maske
Filename=logo.png
Left=640
Top=8
Height=60
Width=60
[Shape_1]
Parent=Maske
Left=640
Top=80
Height=30
Width=30
Typ=4
FColor=clLime
FPColor=clPurple
[Button_1]
Parent=Maske
Name=Suchen
Left=200
Top=10
Height=25
Width=75
TabOrder=3
PrgRun=notepad.exe
FName=Arial
FSize=10
Action=6
FColor=clRed
FStyle=B
Ext=txt
ZMaske=Auftraege.dbm
ZFeld=KUNDENNR
ZFeldEx=NAME
ZIndex=KNR
RuleField=STATUS
RuleExpression=STATUS='X'
RuleColor=clBlue
RuleArea=1
Ext_Section=Prog
Margin=4
RunAs=1
[Browser]
Parent=Maske
Left=8
Top=300
Height=150
Width=400
FName=Courier New
FSize=9
FColor=clBlack
FStyle=
HFName=Arial
HFSize=8
HFColor=clNavy
HFStyle=B
Treelist=1
ReadOnly=1
Ausrichtung=0
[DBBrowser_1]
Parent=Maske
Left=420
Top=300
Height=150
Width=200
Scrollbars=1
Scrolbars=2
DataBase=POSITIONEN
[DBTreeList_1]
Name=whatever
Parent=Maske
Index=Tabelle
DBIndex=ID
Keyfield=SCHLUESSEL
ParentField=VATER
Felder=A;B
DB=MASTER
Alignment=0
DragDrop=1
Left=640
Top=120
Height=100
Width=150
[StringGrid_1]
Parent=Maske
Name=x
Left=640
Top=230
Height=60
Width=150
Alignment=0
Felder=X;Y
[DBRadioGroup_1]
Parent=Maske
DataField=ZAHLART
Laenge=3
Caption=Zahlungsart
Desc=Zahlart
Left=8
Top=460
Height=60
Width=200
FontSize=14
FSize=11
Pflicht=1
Items=Rechnung,"Lastschrift SEPA",Vorkasse
Columns=3
[View]
Parent=Maske
Left=800
Top=8
Height=120
Width=130
Hint=Vorschau
[Tab]
Parent=Maske
Left=800
Top=128
Height=20
Width=130
FSize=7
)"));
    TMaskDocument *mask = home.load(file);
    QCOMPARE(mask->Tabelle(), QStringLiteral("Kunden"));
    QCOMPARE(mask->Titel(), QStringLiteral("Kundenstamm"));
    QCOMPARE(mask->Typ(), 2);
    QCOMPARE(mask->ScreenWidth(), 1024);
    QCOMPARE(mask->ScreenHeight(), 768);

    const TcxEditStyleController *style = mask->cxStyleController();
    QCOMPARE(style->BorderStyle(), ebsFlat);
    QCOMPARE(style->ButtonStyle(), btsFlat);
    QCOMPARE(style->ButtonTransparency(), ebtInactive);
    QCOMPARE(style->BorderColor(), Colors::clRed);
    QVERIFY(style->Shadow() && style->HotTrack());
    QCOMPARE(style->Edges(), bLeft | bTop);

    // The kinds are made in their fixed order, containers first.
    QCOMPARE(controlClasses(mask).mid(0, 5), QStringList({"TAdvOfficePager", "TAdvOfficePage", "TAdvOfficePage",
                                                          "TPanel", "TLabel"}));
    auto *pager = component<TAdvOfficePager>(mask, "AdvOfficePager1");
    QVERIFY(pager);
    QCOMPARE(mask->OfficePagerStyle(), 2);
    QCOMPARE(pager->geometry(), QRect(300, 10, 320, 200));
    QCOMPARE(pager->TabPosition(), tpBottom);
    QCOMPARE(pager->PageCount(), 2);
    QCOMPARE(pager->Pages(1)->Caption(), QStringLiteral("Preise"));
    // Only the active page shows.
    QCOMPARE(pager->ActivePageIndex(), 0);
    QVERIFY(pager->Pages(0)->isVisibleTo(pager));
    QVERIFY(!pager->Pages(1)->isVisibleTo(pager));
    QCOMPARE(pager->Font().Style, TFontStyles(fsBold));

    auto *panel = component<TPanel>(mask, "Panel1");
    QCOMPARE(panel->Caption(), QStringLiteral("Kopf"));
    QCOMPARE(panel->BevelWidth(), 2);
    QCOMPARE(panel->Color(), Colors::clYellow);
    QCOMPARE(panel->BevelInner(), bvLowered);
    QCOMPARE(panel->BevelOuter(), bvRaised);
    QCOMPARE(panel->BorderStyle(), bsSingle);
    QVERIFY(!panel->Ctl3D());
    QCOMPARE(panel->Font().Size, 12);

    auto *label = component<TLabel>(mask, "Label1");
    QCOMPARE(label->Caption(), QStringLiteral("  Kundennummer:"));
    QCOMPARE(label->geometry(), QRect(8, 12, 90, 16)); // no automatic sizing
    QCOMPARE(label->Font().Style, TFontStyles(fsBold) | fsUnderline);
    QCOMPARE(label->Font().Color, Colors::clBlue);
    QCOMPARE(label->Layout(), tlCenter);
    QCOMPARE(label->Alignment(), taLeftJustify);
    QVERIFY(!label->WordWrap());

    auto *dbLabel = component<TDBLabel>(mask, "DBLabel1");
    QCOMPARE(dbLabel->parentWidget(), pager->Pages(1));
    QCOMPARE(dbLabel->DataField(), QStringLiteral("PREIS"));
    QCOMPARE(dbLabel->DataSource(), QStringLiteral("Artikel"));
    QCOMPARE(dbLabel->HelpKeyword(), QStringLiteral("Preis netto"));
    QCOMPARE(dbLabel->Tag(), 3);
    QCOMPARE(dbLabel->Hint(), QStringLiteral("12"));
    QVERIFY(dbLabel->BrowserEdit());

    auto *edit = component<TcxTextEdit>(mask, "cxTextEdit1");
    QCOMPARE(edit->Text(), QStringLiteral("KUNDENNR"));
    QCOMPARE(edit->HelpKeyword(), QStringLiteral("Kundennummer"));
    QCOMPARE(edit->Hint(), QStringLiteral("000000"));
    QCOMPARE(edit->MaxLength(), 6);
    QCOMPARE(edit->Tag(), 1);
    QCOMPARE(edit->Color(), TColor(0x00c0ffff));
    QVERIFY(edit->TabStop()); // "Pflicht"
    QVERIFY(edit->ReadOnly());
    QCOMPARE(edit->CharCase(), ecUpperCase);
    QCOMPARE(edit->Font().Style, TFontStyles(fsStrikeOut));
    QCOMPARE(edit->StyleController(), mask->cxStyleController());

    auto *combo = component<TcxComboBox>(mask, "cxComboBox1");
    QCOMPARE(combo->Hint(), QStringLiteral("Anreden"));
    QVERIFY(!combo->ReadOnly());
    QCOMPARE(combo->MaxLength(), 10);

    auto *lookup = component<TcxDBPopupEdit>(mask, "cxDBPopupEdit1");
    QCOMPARE(lookup->DataField(), QStringLiteral("KUNDE"));
    QCOMPARE(lookup->EditMask(), QStringLiteral("Kunden"));
    QVERIFY(lookup->PopupSizeable());
    QVERIFY(lookup->ReadOnly());
    QCOMPARE(lookup->CharCase(), ecLowerCase);
    QCOMPARE(lookup->Hint(), QStringLiteral("9999"));

    auto *memo = component<TcxMemo>(mask, "cxMemo1");
    QCOMPARE(memo->parentWidget(), pager->Pages(0));
    QCOMPARE(memo->Text(), QStringLiteral("BEMERKUNG"));
    QCOMPARE(memo->Tag(), 1);
    QCOMPARE(memo->ScrollBars(), ssVertical);
    QCOMPARE(memo->Color(), Colors::clWindow);

    auto *check = component<TcxDBCheckBox>(mask, "cxDBCheckBox1");
    QCOMPARE(check->parentWidget(), panel);
    QCOMPARE(check->DataField(), QStringLiteral("AKTIV"));
    QCOMPARE(check->Hint(), QStringLiteral("Pruefe"));
    QVERIFY(check->Checked());
    QCOMPARE(check->ValueChecked(), QStringLiteral("J"));
    QCOMPARE(check->ValueUnchecked(), QStringLiteral("N"));
    QCOMPARE(check->Alignment(), taRightJustify);

    QCOMPARE(component<TBevel>(mask, "Bevel1")->Shape(), bsFrame);
    QCOMPARE(component<TImageAspect>(mask, "ImageAspect1")->FileName(), QStringLiteral("logo.png"));
    auto *shape = component<TShape>(mask, "Shape1");
    QCOMPARE(shape->Shape(), stEllipse);
    QCOMPARE(shape->BrushColor(), Colors::clLime);
    QCOMPARE(shape->PenColor(), Colors::clPurple);

    auto *button = component<TMaskBtn>(mask, "MaskBtn1");
    QCOMPARE(button->Caption(), QStringLiteral("Suchen"));
    QCOMPARE(button->Tag(), 6);
    QCOMPARE(button->Hint(), QStringLiteral("notepad.exe"));
    QCOMPARE(button->NormalTextColor(), Colors::clRed);
    QCOMPARE(button->ProgExt(), QStringLiteral("txt"));
    QCOMPARE(button->ZuweisMaske(), QStringLiteral("Auftraege.dbm"));
    QCOMPARE(button->ZuweisFeld(), QStringLiteral("KUNDENNR"));
    QCOMPARE(button->ZuweisFeldEx(), QStringLiteral("NAME"));
    QCOMPARE(button->IndexFeld(), QStringLiteral("KNR"));
    QCOMPARE(button->RegelFeld(), QStringLiteral("STATUS"));
    QCOMPARE(button->RegelAusdruck(), QStringLiteral("STATUS='X'"));
    QCOMPARE(button->RegelFarbe(), QStringLiteral("clBlue"));
    QVERIFY(button->RegelZeile());
    QCOMPARE(button->SectionExt(), QStringLiteral("Prog"));
    QCOMPARE(button->Margin(), 4);
    QVERIFY(button->RunAs());

    // The main grid is made first, so it is "DBGrid1".
    auto *mainGrid = component<TDBGrid>(mask, "DBGrid1");
    QCOMPARE(mainGrid->Columns(), QStringList{QStringLiteral("Spaltentitel=120")});
    QCOMPARE(mainGrid->Font().Name, QStringLiteral("Courier New"));
    QCOMPARE(mainGrid->TitleFont().Color, Colors::clNavy);
    QCOMPARE(mainGrid->TitleFont().Style, TFontStyles(fsBold));
    QVERIFY(mainGrid->TabStop()); // the structure browser flag
    QVERIFY(mainGrid->ReadOnly());
    QCOMPARE(mainGrid->Tag(), 3); // no scroll bar key: both
    auto *grid = component<TDBGrid>(mask, "DBGrid2");
    QCOMPARE(grid->Tag(), 2); // the misspelled key wins
    QCOMPARE(grid->Hint(), QStringLiteral("POSITIONEN"));

    auto *tree = component<TcxDBTreeList>(mask, "cxDBTreeList1");
    QCOMPARE(tree->StateIndexField(), QStringLiteral("Tabelle"));
    QCOMPARE(tree->KeyField(), QStringLiteral("SCHLUESSEL"));
    QCOMPARE(tree->ParentField(), QStringLiteral("VATER"));
    QCOMPARE(tree->Hint(), QStringLiteral("A;B"));
    QCOMPARE(tree->HelpKeyword(), QStringLiteral("MASTER"));
    QVERIFY(tree->DragDrop());
    QCOMPARE(component<TStringGrid>(mask, "StringGrid1")->Hint(), QStringLiteral("X;Y"));

    auto *radio = component<TDBRadioGroup>(mask, "DBRadioGroup1");
    QCOMPARE(radio->DataField(), QStringLiteral("ZAHLART"));
    QCOMPARE(radio->Tag(), 3);
    QCOMPARE(radio->Caption(), QStringLiteral("Zahlungsart"));
    QCOMPARE(radio->Font().Size, 11); // read from "FSize", not the written "FontSize"
    QCOMPARE(radio->Items(), QStringList({"Rechnung", "Lastschrift SEPA", "Vorkasse"}));
    QCOMPARE(radio->Columns(), 3);
    QVERIFY(radio->TabStop());

    auto *view = component<TImage>(mask, "View");
    QVERIFY(view);
    QCOMPARE(view->Hint(), QStringLiteral("Vorschau"));
    auto *tabs = component<TTabSet>(mask, "Tab");
    QCOMPARE(tabs->Tabs(), QStringList({".DWG", ".DXF", ".JPG", ".TGA"}));
    QCOMPARE(tabs->Font().Size, 7);
}

void TestLoading::missingKeysTakeTheirDefaults()
{
    Fixture home;
    const QString file = home.path(QStringLiteral("leer.dbm"));
    writeMask(file, QStringLiteral("[Label_1]\n[Field_1]\n[CField_1]\n[LField_1]\n[Memo_1]\n[CheckBox_1]\n"
                                   "[Panel_1]\n[PageControl_1]\n[Button_1]\n[DBBrowser_1]\n[DBTreeList_1]\n"
                                   "[DBRadioGroup_1]\n[DBLabel_1]\n"));
    TMaskDocument *mask = home.load(file);
    QCOMPARE(mask->Titel(), QStringLiteral("Maske"));
    QCOMPARE(mask->cxStyleController()->BorderStyle(), ebs3D);
    QCOMPARE(mask->cxStyleController()->Edges(), kAllEdges);

    auto *label = component<TLabel>(mask, "Label1");
    QCOMPARE(label->Caption(), QStringLiteral("ERROR"));
    QCOMPARE(label->geometry(), QRect(0, 0, 40, 20));
    QCOMPARE(label->Font().Name, QStringLiteral("Arial"));
    QCOMPARE(label->Font().Size, 10);
    QCOMPARE(label->Font().Color, TColor(0));
    QVERIFY(label->WordWrap());
    QCOMPARE(label->Alignment(), taRightJustify);
    QCOMPARE(component<TDBLabel>(mask, "DBLabel1")->Hint(), QStringLiteral("1"));

    auto *edit = component<TcxTextEdit>(mask, "cxTextEdit1");
    QCOMPARE(edit->Text(), QStringLiteral("ERROR"));
    QCOMPARE(edit->Color(), Colors::clWindow);
    QVERIFY(!edit->ReadOnly());
    QVERIFY(!edit->TabStop());
    // Unlike every other kind, a combo box without the key is read-only.
    QVERIFY(component<TcxComboBox>(mask, "cxComboBox1")->ReadOnly());
    QVERIFY(!component<TcxDBPopupEdit>(mask, "cxDBPopupEdit1")->ReadOnly());
    QCOMPARE(component<TcxDBPopupEdit>(mask, "cxDBPopupEdit1")->EditMask(), QStringLiteral("ERROR"));
    auto *check = component<TcxDBCheckBox>(mask, "cxDBCheckBox1");
    QCOMPARE(check->ValueChecked(), QStringLiteral("Ja"));
    QCOMPARE(check->ValueUnchecked(), QStringLiteral("Nein"));

    auto *panel = component<TPanel>(mask, "Panel1");
    QCOMPARE(panel->BevelWidth(), 1);
    QVERIFY(panel->Ctl3D());
    QCOMPARE(panel->Align(), alTop); // the align mode defaults to 1
    auto *pager = component<TAdvOfficePager>(mask, "AdvOfficePager1");
    QCOMPARE(mask->OfficePagerStyle(), 6);
    QCOMPARE(pager->Align(), alTop);
    QCOMPARE(pager->Font().Name, QStringLiteral("Tahoma"));

    auto *button = component<TMaskBtn>(mask, "MaskBtn1");
    QCOMPARE(button->RegelFarbe(), QStringLiteral("clRed"));
    QCOMPARE(button->Margin(), -1);
    QCOMPARE(component<TDBGrid>(mask, "DBGrid1")->Tag(), 3);
    auto *tree = component<TcxDBTreeList>(mask, "cxDBTreeList1");
    QCOMPARE(tree->KeyField(), QStringLiteral("QXID"));
    QCOMPARE(tree->ParentField(), QStringLiteral("QXParent"));
    auto *radio = component<TDBRadioGroup>(mask, "DBRadioGroup1");
    QCOMPARE(radio->Tag(), 10);
    QCOMPARE(radio->Columns(), 1);

    // No View section: neither preview nor tab strip.
    QVERIFY(!Components::findComponent(mask, QStringLiteral("View")));
    QVERIFY(!Components::findComponent(mask, QStringLiteral("Tab")));
}

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
    const QString gaps = home.path(QStringLiteral("gaps.dbm"));
    writeMask(gaps, QStringLiteral("[Label_2]\nName=zwei\n[Label_1000]\nName=tausend\n[Field_1001]\nName=X\n"));
    TMaskDocument *mask = home.load(gaps);
    QCOMPARE(controlClasses(mask), QStringList({"TLabel", "TLabel"}));

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

    // Binary garbage and a missing file give masks with every default.
    const QString garbage = home.path(QStringLiteral("garbage.dbm"));
    QByteArray bytes;
    for (int i = 0; i < 200000; ++i)
        bytes.append(char((i * 7919) % 256));
    bytes.append("\n[Label_1]\nName=\0\x01\xff\n", 20);
    QVERIFY(writeFileBytes(garbage, bytes));
    mask = home.load(garbage);
    QVERIFY(mask);
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
