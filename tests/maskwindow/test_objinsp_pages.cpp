// What each editor of each page stores in its control, and the pages whose
// editors do more: the main grid, fonts and colours, the lookup's pick-list
// flag, pictures and new pages.
#include <QtTest>

#include "Components.h"
#include "ControlClasses.h"
#include "Containers.h"
#include "Control.h"
#include "Edits.h"
#include "FormDesigner.h"
#include "Graphics.h"
#include "Grids.h"
#include "Maske.h"
#include "ObjectInspector.h"
#include "TestSupport.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScrollArea>
#include <QSpinBox>
#include <QStackedWidget>
#include <QToolButton>

#include "helper_objinsp.h"

using namespace ObjInspTest;

namespace {

QWidget *addControl(InspFixture &f, const QString &className)
{
    QWidget *w = ControlClasses::create(className);
    Components::setOwner(w, f.mask->document());
    AutoName(w, f.mask->document());
    w->setParent(f.mask->document());
    TControl::from(w)->setBounds(10, 10, 200, 120);
    w->show();
    f.mask->FormDesigner2()->Update();
    return w;
}

// Works an editor as the user does: "#2" picks the third item, "click"
// clicks, "a|b" types lines into a memo, anything else is typed.
void work(QWidget *editor, const QString &input)
{
    if (auto *combo = qobject_cast<QComboBox *>(editor))
        choose(combo, input.mid(1).toInt());
    else if (auto *button = qobject_cast<QAbstractButton *>(editor))
        clickCheck(button);
    else if (auto *memo = qobject_cast<QPlainTextEdit *>(editor)) {
        memo->selectAll();
        const QStringList lines = input.split(QLatin1Char('|'));
        for (int i = 0; i < lines.size(); ++i) {
            if (i > 0)
                QTest::keyClick(memo, Qt::Key_Return);
            QTest::keyClicks(memo, lines.at(i));
        }
    } else
        retype(editor, input);
}

QString shown(QWidget *editor)
{
    if (auto *combo = qobject_cast<QComboBox *>(editor))
        return QString::number(combo->currentIndex());
    if (auto *button = qobject_cast<QAbstractButton *>(editor))
        return button->isChecked() ? QStringLiteral("on") : QStringLiteral("off");
    if (auto *memo = qobject_cast<QPlainTextEdit *>(editor))
        return memo->toPlainText();
    if (auto *spin = qobject_cast<QSpinBox *>(editor))
        return QString::number(spin->value());
    return qobject_cast<QLineEdit *>(editor)->text();
}

} // namespace

class TestObjInspPages : public QObject
{
    Q_OBJECT

private slots:
    void editorStoresItsProperty_data();
    void editorStoresItsProperty();
    void dbGridPageAndTheMainBrowser();
    void shapeColours();
    void lookupPickListFlag();
    void imagePage();
    void pagerPageAndNewPages();
};

void TestObjInspPages::editorStoresItsProperty_data()
{
    QTest::addColumn<QString>("className");
    QTest::addColumn<QString>("editor");
    QTest::addColumn<QString>("input");
    QTest::addColumn<QString>("property");
    QTest::addColumn<QString>("stored");
    const auto row = [](const char *cls, const char *editor, const char *input, const char *property,
                        const char *stored) {
        QTest::addRow("%s %s", editor, property) << QString::fromUtf8(cls) << QString::fromUtf8(editor)
                                                 << QString::fromUtf8(input) << QString::fromUtf8(property)
                                                 << QString::fromUtf8(stored);
    };
    // One row of each way a page stores a value, not every row: field names
    // are taken trimmed, captions as typed; a flag may write several
    // properties, or the negation ("Pflicht" clears TabStop); a list index
    // is the enumerator; a memo gives one item per line.
    row("TLabel", "LabelCaption", " Kunde: ", "Caption", " Kunde: ");
    row("TLabel", "LabelWordWrap", "click", "WordWrap", "True");
    row("TLabel", "LabelWordWrap", "click", "AutoSize", "False");
    row("TDBLabel", "DBLabelField", " KDNR ", "DataField", "KDNR");
    row("TDBLabel", "DBLabelField", " KDNR ", "Caption", "KDNR");
    row("TcxTextEdit", "EditFieldTyp", "#1", "Tag", "1");
    row("TcxTextEdit", "EditFieldSize", "12", "MaxLength", "12");
    row("TcxTextEdit", "EditPflichtfeld", "click", "TabStop", "False");
    row("TcxTextEdit", "EditCharcase", "#2", "CharCase", "ecLowerCase");
    row("TcxComboBox", "ComboPullDownFile", " orte ", "Hint", " orte ");
    row("TcxMemo", "MemoFieldname", " NOTIZ ", "Lines", "NOTIZ");
    row("TcxMemo", "MemoPlaintext", "click", "Tag", "1");
    row("TDBGrid", "DBGridAlign", "#2", "Align", "alBottom");
    row("TcxDBPopupEdit", "LUPicklist", "click", "PopupSizeable", "True");
    row("TAdvOfficePager", "RGOfficePagerTabP_1", "click", "TabPosition", "tpBottom");
    row("TDBRadioGroup", "MemoRG", "Herr|Frau", "Items", "Herr\nFrau");
    row("TDBRadioGroup", "SpinEditRB", "2", "Columns", "2");
    row("TPanel", "Panel_Bevelouter", "#3", "BevelOuter", "bvSpace");
    row("TcxDBTreeList", "DBTreeList_Drag", "click", "DragDrop", "True");
}

void TestObjInspPages::editorStoresItsProperty()
{
    QFETCH(QString, className);
    QFETCH(QString, editor);
    QFETCH(QString, input);
    QFETCH(QString, property);
    QFETCH(QString, stored);
    // A row naming a property its class does not publish would do nothing.
    QTest::failOnWarning(QRegularExpression(QStringLiteral("publishes no property")));
    InspFixture f;
    QWidget *control = addControl(f, className);
    f.select({control});
    QCOMPARE(f.insp.currentPageCaption(), className);
    QWidget *w = f.editor<QWidget>(editor);
    const TPropInfo *info = TControl::from(control)->classInfo().property(property);
    QVERIFY(info);
    const QString before = propertyValueToText(*info, info->read(control));
    work(w, input);
    QCOMPARE(propertyValueToText(*info, info->read(control)), stored);
    QVERIFY(f.mask->Modified());

    // Shown again as stored once another control of the class filled the page.
    const QString entered = shown(w).trimmed();
    f.select({addControl(f, className)});
    QVERIFY(shown(w) != entered);
    f.select({control});
    QCOMPARE(shown(w).trimmed(), entered);
    // A flag clicked off again gives the value back.
    if (input == QLatin1String("click") && !editor.startsWith(QLatin1String("RG")) && editor != QLatin1String("LabelWordWrap")) {
        work(w, input);
        QCOMPARE(propertyValueToText(*info, info->read(control)), before);
    }
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
    QCOMPARE(detail->Hint(), QStringLiteral("KDNR"));

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

void TestObjInspPages::shapeColours()
{
    InspFixture f;
    auto *shape = f.add<TShape>(nullptr, QRect(10, 60, 80, 80));
    f.select({shape});
    f.dialogs.colorAnswers << std::optional<TColor>(Colors::clYellow) << std::optional<TColor>(Colors::clNavy)
                           << std::nullopt;
    QTest::mouseClick(f.editor<QPushButton>(QStringLiteral("ShapeBrushColor")), Qt::LeftButton);
    QTest::mouseClick(f.editor<QPushButton>(QStringLiteral("ShapePenColor")), Qt::LeftButton);
    QTest::mouseClick(f.editor<QPushButton>(QStringLiteral("ShapePenColor")), Qt::LeftButton); // cancelled
    QCOMPARE(shape->BrushColor(), Colors::clYellow);
    QCOMPARE(shape->PenColor(), Colors::clNavy);
    QCOMPARE(f.dialogs.unexpected, 0);
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
    retype(f.editor<QLineEdit>(QStringLiteral("LUNameCaption")), QStringLiteral("Kunde"));
    QCOMPARE(lookup->Tag(), -1);

    // The page fits its window, and the longest letter case shows whole.
    f.insp.show();
    auto *page = qobject_cast<QScrollArea *>(f.insp.Notebook1()->currentWidget());
    QVERIFY(page->widget()->width() <= page->viewport()->width());
    auto *charCase = f.editor<QComboBox>(QStringLiteral("LUCharCase"));
    QVERIFY(charCase->width() > charCase->fontMetrics().horizontalAdvance(QStringLiteral("Groß/Kleinschreibung")) + 20);
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

    // The style is the mask's, and every page control shows it; the tabs
    // take their own font.
    const QImage before = pager->tabBar()->grab().toImage();
    choose(f.editor<QComboBox>(QStringLiteral("CBOfficePagerStyle")), 4);
    QCOMPARE(f.mask->document()->OfficePagerStyle(), 4);
    QVERIFY(pager->tabBar()->grab().toImage() != before);
    f.dialogs.fontAnswers << QFont(QStringLiteral("Courier"), 14);
    QTest::mouseClick(f.editor<QPushButton>(QStringLiteral("Button4")), Qt::LeftButton);
    QCOMPARE(pager->tabBar()->font().pointSize(), 14);

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

QTEST_MAIN(TestObjInspPages)
#include "test_objinsp_pages.moc"
