// The object inspector's pages of graphics, grids, lookups, pictures and
// containers: what the user's input there does to the control and the mask.
#include <QtTest>

#include "Components.h"
#include "Containers.h"
#include "Edits.h"
#include "FormDesigner.h"
#include "Graphics.h"
#include "Grids.h"
#include "Maske.h"
#include "MyBtn.h"
#include "ObjectInspector.h"
#include "TestSupport.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QSpinBox>
#include <QStackedWidget>
#include <QToolButton>
#include <QTreeWidget>

#include "helper_objinsp.h"

using namespace ObjInspTest;

class TestObjInspPages : public QObject
{
    Q_OBJECT

private slots:
    void bevelAndShapePages();
    void dbGridPageAndTheMainBrowser();
    void lookupPickListFlag();
    void imagePage();
    void pagerPageAndNewPages();
    void radioGroupPanelTreeListAndStringGrid();
};

void TestObjInspPages::bevelAndShapePages()
{
    InspFixture f;
    auto *bevel = f.add<TBevel>();
    auto *shape = f.add<TShape>(nullptr, QRect(10, 60, 80, 80));
    f.select({bevel});
    choose(f.editor<QComboBox>(QStringLiteral("BevelShape")), 4);
    QCOMPARE(bevel->Shape(), bsLeftLine);

    f.select({shape});
    choose(f.editor<QComboBox>(QStringLiteral("Shapestyle")), 5);
    QCOMPARE(shape->Shape(), stCircle);
    f.dialogs.colorAnswers << std::optional<TColor>(Colors::clYellow) << std::optional<TColor>(Colors::clNavy)
                           << std::nullopt;
    QTest::mouseClick(f.editor<QPushButton>(QStringLiteral("ShapeBrushColor")), Qt::LeftButton);
    QTest::mouseClick(f.editor<QPushButton>(QStringLiteral("ShapePenColor")), Qt::LeftButton);
    QTest::mouseClick(f.editor<QPushButton>(QStringLiteral("ShapePenColor")), Qt::LeftButton); // cancelled
    QCOMPARE(shape->BrushColor(), Colors::clYellow);
    QCOMPARE(shape->PenColor(), Colors::clNavy);
    QCOMPARE(f.dialogs.unexpected, 0);
}

void TestObjInspPages::dbGridPageAndTheMainBrowser()
{
    InspFixture f;
    auto *main = f.add<TDBGrid>(nullptr, QRect(10, 10, 300, 100));
    auto *detail = f.add<TDBGrid>(nullptr, QRect(10, 120, 300, 100));
    QCOMPARE(main->objectName(), QStringLiteral("DBGrid1"));
    auto *panel = f.editor<QWidget>(QStringLiteral("MoreBrowserPanel"));
    auto *primary = f.editor<QLabel>(QStringLiteral("PrimaryBrowserLabel"));

    f.select({main});
    QVERIFY(!panel->isVisibleTo(&f.insp));
    QVERIFY(primary->isVisibleTo(&f.insp));
    f.select({detail});
    QVERIFY(panel->isVisibleTo(&f.insp));
    QVERIFY(!primary->isVisibleTo(&f.insp));

    retype(f.editor<QLineEdit>(QStringLiteral("DBGrid_Field")), QStringLiteral("KDNR"));
    choose(f.editor<QComboBox>(QStringLiteral("DBGridAlign")), 2);
    choose(f.editor<QComboBox>(QStringLiteral("DBGrid_Scrollbars")), 3);
    clickCheck(f.editor<QCheckBox>(QStringLiteral("DBGridReadOnly")));
    clickCheck(f.editor<QCheckBox>(QStringLiteral("DBGrid_StructCheckBox")));
    QCOMPARE(detail->Hint(), QStringLiteral("KDNR"));
    QCOMPARE(detail->Align(), alBottom);
    QCOMPARE(detail->Tag(), 3);
    QVERIFY(detail->ReadOnly());
    QVERIFY(!detail->TabStop());

    // The fonts keep their colour; the dialog sets face, size and style.
    QFont courier(QStringLiteral("Courier"), 11);
    courier.setBold(true);
    f.dialogs.fontAnswers << courier << QFont(QStringLiteral("Arial"), 9);
    QTest::mouseClick(f.editor<QPushButton>(QStringLiteral("DBGrid_Font")), Qt::LeftButton);
    QTest::mouseClick(f.editor<QPushButton>(QStringLiteral("DBGrid_Headerfont")), Qt::LeftButton);
    QCOMPARE(detail->Font().Name, QStringLiteral("Courier"));
    QCOMPARE(detail->Font().Size, 11);
    QVERIFY(detail->Font().Style & fsBold);
    QCOMPARE(detail->TitleFont().Name, QStringLiteral("Arial"));
    QCOMPARE(detail->TitleFont().Size, 9);
    QCOMPARE(detail->Font().Name, QStringLiteral("Courier"));
}

void TestObjInspPages::lookupPickListFlag()
{
    InspFixture f;
    auto *lookup = f.add<TcxDBPopupEdit>();
    f.select({lookup});
    auto *typ = f.editor<QComboBox>(QStringLiteral("LUFieldTyp"));
    auto *size = f.editor<QSpinBox>(QStringLiteral("LUFieldSize"));
    QVERIFY(!typ->isEnabled());
    QVERIFY(!size->isEnabled());

    retype(f.editor<QLineEdit>(QStringLiteral("LUName")), QStringLiteral(" KUNDE "));
    retype(f.editor<QLineEdit>(QStringLiteral("LUDatabase")), QStringLiteral("KUNDEN"));
    QCOMPARE(lookup->DataField(), QStringLiteral("KUNDE"));
    QCOMPARE(lookup->EditMask(), QStringLiteral("KUNDEN"));
    QCOMPARE(lookup->Tag(), -1);

    clickCheck(f.editor<QCheckBox>(QStringLiteral("LUPicklist")));
    QVERIFY(typ->isEnabled());
    QVERIFY(size->isEnabled());
    choose(typ, 2);
    retype(size, QStringLiteral("8"));
    QVERIFY(lookup->PopupSizeable());
    QCOMPARE(lookup->Tag(), 2);
    QCOMPARE(lookup->MaxLength(), 8);

    clickCheck(f.editor<QCheckBox>(QStringLiteral("LUPicklist")));
    QVERIFY(!lookup->PopupSizeable());
    QCOMPARE(lookup->Tag(), -1);
    QVERIFY(!typ->isEnabled());

    choose(f.editor<QComboBox>(QStringLiteral("LUCharCase")), 1);
    clickCheck(f.editor<QCheckBox>(QStringLiteral("LUReadonly")));
    retype(f.editor<QLineEdit>(QStringLiteral("LUNameCaption")), QStringLiteral("Kunde"));
    QCOMPARE(lookup->CharCase(), ecUpperCase);
    QVERIFY(lookup->ReadOnly());
    QCOMPARE(lookup->HelpKeyword(), QStringLiteral("Kunde"));
    QCOMPARE(lookup->Tag(), -1);
}

void TestObjInspPages::imagePage()
{
    InspFixture f;
    auto *image = f.add<TImageAspect>(nullptr, QRect(10, 10, 100, 100));
    f.select({image});
    f.dialogs.fileAnswers << QStringList{QStringLiteral("/bilder/logo.png")};
    QTest::mouseClick(f.editor<QToolButton>(QStringLiteral("ImageFileBtn")), Qt::LeftButton);
    QCOMPARE(f.editor<QLineEdit>(QStringLiteral("ImageFileEdit"))->text(), QStringLiteral("/bilder/logo.png"));
    QCOMPARE(image->FileName(), QStringLiteral("/bilder/logo.png"));
    clickCheck(f.editor<QCheckBox>(QStringLiteral("ImageStrechCheckBox")));
    QVERIFY(image->AutoSize());
    QVERIFY(f.mask->Modified());
}

void TestObjInspPages::pagerPageAndNewPages()
{
    InspFixture f;
    auto *pager = f.add<TAdvOfficePager>(nullptr, QRect(10, 10, 300, 200));
    TAdvOfficePage *first = f.mask->document()->NewOPage(QStringLiteral("Allgemein"));
    pager->addPage(first);
    f.insp.UpdateComponents();
    f.select({pager});
    QCOMPARE(f.editor<QComboBox>(QStringLiteral("CBOfficePagerStyle"))->currentIndex(), f.mask->document()->OfficePagerStyle());
    QVERIFY(!f.mask->Modified());

    choose(f.editor<QComboBox>(QStringLiteral("OfficePagerAlign")), 5);
    clickCheck(f.editor<QRadioButton>(QStringLiteral("RGOfficePagerTabP_1")));
    choose(f.editor<QComboBox>(QStringLiteral("CBOfficePagerStyle")), 4);
    QCOMPARE(pager->Align(), alClient);
    QCOMPARE(pager->TabPosition(), tpBottom);
    QCOMPARE(f.mask->document()->OfficePagerStyle(), 4);

    // An empty caption gives the standard one.
    QTest::mouseClick(f.editor<QPushButton>(QStringLiteral("NewPageBTN")), Qt::LeftButton);
    QCOMPARE(pager->PageCount(), 2);
    TAdvOfficePage *added = pager->Pages(1);
    QCOMPARE(added->Caption(), QStringLiteral("Neue Seite"));
    QCOMPARE(pager->ActivePage(), added);
    QCOMPARE(Components::owner(added), static_cast<QObject *>(f.mask->document()));

    auto *caption = f.editor<QLineEdit>(QStringLiteral("NewPageCaption"));
    QTest::keyClicks(caption, QStringLiteral("Details"));
    QTest::mouseClick(f.editor<QPushButton>(QStringLiteral("NewPageBTN")), Qt::LeftButton);
    QCOMPARE(pager->PageCount(), 3);
    QCOMPARE(pager->Pages(2)->Caption(), QStringLiteral("Details"));
    QCOMPARE(pager->ActivePage(), pager->Pages(2));
    QVERIFY(caption->text().isEmpty());
    // The list shows the new pages below their page control.
    QTreeWidgetItem *pagerItem = f.insp.dxBarTreeView()->topLevelItem(0);
    QCOMPARE(pagerItem->childCount(), 3);
    QCOMPARE(pagerItem->child(2)->text(0), pager->Pages(2)->objectName() + QStringLiteral(" – Details"));

    f.select({added});
    retype(f.editor<QLineEdit>(QStringLiteral("EditOfficePage")), QStringLiteral(" Lager "));
    QCOMPARE(added->Caption(), QStringLiteral(" Lager "));
}

void TestObjInspPages::radioGroupPanelTreeListAndStringGrid()
{
    InspFixture f;
    auto *group = f.add<TDBRadioGroup>(nullptr, QRect(10, 10, 200, 120));
    auto *panel = f.add<TPanel>(nullptr, QRect(220, 10, 200, 120));
    auto *tree = f.add<TcxDBTreeList>(nullptr, QRect(10, 140, 200, 120));
    auto *grid = f.add<TStringGrid>(nullptr, QRect(220, 140, 200, 120));

    f.select({group});
    retype(f.editor<QLineEdit>(QStringLiteral("EditRGDB")), QStringLiteral("ANREDE"));
    retype(f.editor<QLineEdit>(QStringLiteral("EditRG")), QStringLiteral("Anrede"));
    auto *values = f.editor<QPlainTextEdit>(QStringLiteral("MemoRG"));
    values->selectAll();
    QTest::keyClicks(values, QStringLiteral("Herr"));
    QTest::keyClick(values, Qt::Key_Return);
    QTest::keyClicks(values, QStringLiteral("Frau"));
    retype(f.editor<QSpinBox>(QStringLiteral("SpinEditRB")), QStringLiteral("2"));
    retype(f.editor<QSpinBox>(QStringLiteral("EditSizeRG")), QStringLiteral("10"));
    retype(f.editor<QLineEdit>(QStringLiteral("EditRBKeyword")), QStringLiteral("Anrede"));
    clickCheck(f.editor<QCheckBox>(QStringLiteral("EditRGPflicht")));
    QCOMPARE(group->DataField(), QStringLiteral("ANREDE"));
    QCOMPARE(group->Caption(), QStringLiteral("Anrede"));
    QCOMPARE(group->Items(), (QStringList{QStringLiteral("Herr"), QStringLiteral("Frau")}));
    QCOMPARE(group->Columns(), 2);
    QCOMPARE(group->Tag(), 10);
    QCOMPARE(group->HelpKeyword(), QStringLiteral("Anrede"));
    QCOMPARE(group->TabStop(), false);

    f.select({panel});
    choose(f.editor<QComboBox>(QStringLiteral("PanelAlign")), 1);
    choose(f.editor<QComboBox>(QStringLiteral("Panel_Bevelinner")), 1);
    choose(f.editor<QComboBox>(QStringLiteral("Panel_Bevelouter")), 3);
    retype(f.editor<QLineEdit>(QStringLiteral("PanelCaption")), QStringLiteral("Kopf"));
    choose(f.editor<QComboBox>(QStringLiteral("Panel_BorderStyle")), 1);
    clickCheck(f.editor<QCheckBox>(QStringLiteral("Panel_Ctrl")));
    retype(f.editor<QSpinBox>(QStringLiteral("Panel_SpinEdit")), QStringLiteral("3"));
    QCOMPARE(panel->Align(), alTop);
    QCOMPARE(panel->BevelInner(), bvLowered);
    QCOMPARE(panel->BevelOuter(), bvSpace);
    QCOMPARE(panel->Caption(), QStringLiteral("Kopf"));
    QCOMPARE(panel->BorderStyle(), bsSingle);
    QCOMPARE(panel->Ctl3D(), false);
    QCOMPARE(panel->BevelWidth(), 3);

    f.select({tree});
    QCOMPARE(f.editor<QLineEdit>(QStringLiteral("EditTreelistKeyField"))->text(), QStringLiteral("QXID"));
    choose(f.editor<QComboBox>(QStringLiteral("TreeListAlign")), 3);
    retype(f.editor<QLineEdit>(QStringLiteral("EditTreelistDB")), QStringLiteral("STATUS"));
    retype(f.editor<QLineEdit>(QStringLiteral("EditTreelistFields")), QStringLiteral("NAME;ORT"));
    retype(f.editor<QLineEdit>(QStringLiteral("EditTreelistKeyField")), QStringLiteral("ID"));
    retype(f.editor<QLineEdit>(QStringLiteral("EditTreelistKField")), QStringLiteral("KDNR"));
    retype(f.editor<QLineEdit>(QStringLiteral("EditTreelistParentField")), QStringLiteral("PARENT"));
    retype(f.editor<QLineEdit>(QStringLiteral("EditTreelistIndexField")), QStringLiteral("BILD"));
    clickCheck(f.editor<QCheckBox>(QStringLiteral("DBTreeList_Drag")));
    QCOMPARE(tree->Align(), alLeft);
    QCOMPARE(tree->StateIndexField(), QStringLiteral("STATUS"));
    QCOMPARE(tree->Hint(), QStringLiteral("NAME;ORT"));
    QCOMPARE(tree->KeyField(), QStringLiteral("ID"));
    QCOMPARE(tree->HelpKeyword(), QStringLiteral("KDNR"));
    QCOMPARE(tree->ParentField(), QStringLiteral("PARENT"));
    QCOMPARE(tree->ImageIndexField(), QStringLiteral("BILD"));
    QVERIFY(tree->DragDrop());

    f.select({grid});
    choose(f.editor<QComboBox>(QStringLiteral("StringGridAlign")), 4);
    QCOMPARE(grid->Align(), alRight);
}

QTEST_MAIN(TestObjInspPages)
#include "test_objinsp_pages.moc"
