// Designing a mask from the main window as a user does: palette clicks,
// clicks on the mask, the inspector following, the position and font tool
// bars, delete and the keys.
#include <QLineEdit>
#include <QClipboard>
#include <QMimeData>
#include <QPushButton>
#include <QSpinBox>
#include <QStackedWidget>
#include <QTemporaryDir>
#include <QtTest>

#include "AppPaths.h"
#include "Components.h"
#include "Containers.h"
#include "DesignerWidgets.h"
#include "FormDesigner.h"
#include "Edits.h"
#include "Graphics.h"
#include "Label.h"
#include "ObjectInspector.h"
#include "EditStyle.h"
#include "TestSupport.h"
#include <QComboBox>
#include "helper_shell.h"

using namespace ShellTest;

namespace {
TGrabHandle *handleAt(QWidget *parent, TGrabPosition position)
{
    for (TGrabHandle *h : parent->findChildren<TGrabHandle *>(Qt::FindDirectChildrenOnly))
        if (h->Position() == position)
            return h;
    return nullptr;
}
} // namespace

class TestDesigning : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void paletteClicksPlaceNamedControls();
    void toolBarsFollowTheSelection();
    void styleAndSettingsOpenFromTheMenus();
    void pastedEditsShareTheMaskStyle();

private:
    QTemporaryDir m_dir;
};

namespace {
// A palette button, then a click on the mask at pos.
void placeWith(TMainForm *form, const char *paletteButton, QWidget *target, QPoint pos)
{
    clickTool(form, paletteButton);
    QTest::mouseClick(target, Qt::LeftButton, {}, pos);
}
} // namespace

void TestDesigning::initTestCase()
{
    AppPaths::setSettingsFileOverride(m_dir.filePath(QStringLiteral("ferolith.ini")));
}

void TestDesigning::paletteClicksPlaceNamedControls()
{
    auto form = showMainForm();
    clickTool(form.get(), "FileNewItem");
    TMaske *mask = form->activeMask();
    QVERIFY(mask);
    QWidget *surface = mask->document();

    for (int i = 0; i < 3; ++i)
        placeWith(form.get(), "dxBarBtnLabel", surface, QPoint(16, 16 + 24 * i));
    QVERIFY(Components::findComponent(mask->document(), QStringLiteral("Label3")));
    // The font the label gets, and its file keeps, is the one the font box shows.
    QCOMPARE(TControl::from(mask->FormDesigner2()->currentControl())->Font().Name,
             form->findChild<QComboBox *>(QStringLiteral("dxBarFontNameCombo1"))->currentText());
    QObject *label2 = Components::findComponent(mask->document(), QStringLiteral("Label2"));
    QVERIFY(label2);
    // The arrow is down again and the inspector shows the new label.
    QVERIFY(action(form.get(), "dxBarBtnDefault")->isChecked());
    QCOMPARE(form->ObjInsp()->currentPageCaption(), QStringLiteral("TLabel"));
    QCOMPARE(form->ObjInsp()->currentControl()->objectName(), QStringLiteral("Label3"));

    // Delete the second one from the keyboard; the next label takes its name.
    QTest::mouseClick(static_cast<QWidget *>(label2), Qt::LeftButton, {}, QPoint(2, 2));
    QTest::keyClick(surface, Qt::Key_Delete);
    QVERIFY(!Components::findComponent(mask->document(), QStringLiteral("Label2")));
    placeWith(form.get(), "dxBarBtnLabel", surface, QPoint(200, 16));
    QCOMPARE(mask->FormDesigner2()->currentControl()->objectName(), QStringLiteral("Label2"));

    // A page control brings two pages.
    placeWith(form.get(), "dxBarBtnPageControl", surface, QPoint(260, 120));
    auto *pager = qobject_cast<TAdvOfficePager *>(mask->FormDesigner2()->currentControl());
    QVERIFY(pager);
    QCOMPARE(pager->PageCount(), 2);
    QVERIFY(mask->Modified());

    // A tool armed while another mask is active places on the mask clicked.
    clickTool(form.get(), "FileNewItem");
    TMaske *other = form->activeMask();
    clickTool(form.get(), "dxBarBtnLabel");
    QTest::mouseClick(surface, Qt::LeftButton, {}, QPoint(400, 300));
    QWidget *placed = mask->FormDesigner2()->currentControl();
    QVERIFY(qobject_cast<TLabel *>(placed));
    QCOMPARE(placed->pos(), QPoint(400, 300));
    QCOMPARE(form->activeMask(), mask);
    QVERIFY(action(form.get(), "dxBarBtnDefault")->isChecked());
    QVERIFY(!other->FormDesigner2()->Locked());
}

void TestDesigning::toolBarsFollowTheSelection()
{
    auto form = showMainForm();
    clickTool(form.get(), "FileNewItem");
    TMaske *mask = form->activeMask();
    QWidget *surface = mask->document();
    TFormDesigner *designer = mask->FormDesigner2();

    // With a bevel the font tools are off; with a button they are on.
    placeWith(form.get(), "dxBarBtnBevel", surface, QPoint(300, 20));
    QWidget *bevel = designer->currentControl();
    auto *fontName = form->findChild<QWidget *>(QStringLiteral("dxBarFontNameCombo1"));
    QVERIFY(!fontName->isEnabled());
    placeWith(form.get(), "dxBarBtnButton", surface, QPoint(16, 20));
    QWidget *first = designer->currentControl();
    QVERIFY(fontName->isEnabled());
    auto *left = form->findChild<QSpinBox *>(QStringLiteral("dxBarSpinLeft"));
    QCOMPARE(left->value(), 16);

    // "Breite:" with five controls selected gives all five that width.
    QList<QWidget *> five{first};
    for (int i = 0; i < 4; ++i) {
        placeWith(form.get(), "dxBarBtnButton", surface, QPoint(16, 60 + 30 * i));
        five << designer->currentControl();
    }
    placeWith(form.get(), "dxBarBtnBevel", surface, QPoint(400, 300));
    designer->ClearControls();
    for (QWidget *w : five)
        QTest::mouseClick(w, Qt::LeftButton, Qt::ShiftModifier, QPoint(2, 2));
    QCOMPARE(designer->ControlCount(), 5);
    auto *width = form->findChild<QSpinBox *>(QStringLiteral("dxBarSpinWidth"));
    QVERIFY(width->isEnabled());
    width->selectAll();
    QTest::keyClicks(width, QStringLiteral("140"));
    for (QWidget *w : five)
        QCOMPARE(w->width(), 140);

    // The tab order field changes only the current control.
    auto *tabOrder = form->findChild<QSpinBox *>(QStringLiteral("dxBarSpinTabOrder"));
    QWidget *current = designer->currentControl();
    tabOrder->selectAll();
    QTest::keyClicks(tabOrder, QStringLiteral("0"));
    QCOMPARE(TControl::from(current)->TabOrder(), 0);

    // The context menu moves a control within its own layer: a bevel to the
    // front stays beneath the buttons, a button to the back above the grid,
    // a button to the front beneath its handles.
    auto *popup = form->findChild<QMenu *>(QStringLiteral("PopupMenu1"));
    const auto menuOn = [&](QWidget *w, const char *item) {
        QTest::mouseClick(w, Qt::RightButton, {}, QPoint(3, 3));
        QCoreApplication::processEvents();
        QVERIFY(popup->isVisible());
        clickMenuItem(popup, action(form.get(), item));
    };
    const auto below = [surface](QObject *lower, QObject *upper) {
        return surface->children().indexOf(lower) < surface->children().indexOf(upper);
    };
    menuOn(bevel, "dxBarButton2");
    QVERIFY(below(bevel, first));
    menuOn(first, "dxBarButton3");
    QVERIFY(below(surface->findChild<QWidget *>(QStringLiteral("_designUnderlay")), first));
    menuOn(first, "dxBarButton2");
    QVERIFY(below(five.last(), first));
    QVERIFY(below(first, surface->findChild<TGrabHandle *>()));

    // An inspector edit that refits a label: the handles and the position
    // fields follow; after a visit to another mask they show this one again.
    placeWith(form.get(), "dxBarBtnLabel", surface, QPoint(16, 300));
    QWidget *label = designer->currentControl();
    auto *caption = form->ObjInsp()->findChild<QLineEdit *>(QStringLiteral("LabelCaption"));
    caption->selectAll();
    QTest::keyClicks(caption, QStringLiteral("Eine deutlich laengere Beschriftung"));
    QVERIFY(label->width() > 150);
    QCOMPARE(width->value(), label->width());
    QCOMPARE(handleAt(surface, gpRightBottom)->Rect(),
             TGrabHandles::handleRect(designer->GrabMode(), designer->GrabSize(), label->geometry(), gpRightBottom));
    clickTool(form.get(), "FileNewItem");
    placeWith(form.get(), "dxBarBtnButton", form->activeMask()->document(), QPoint(200, 200));
    form->mdiArea()->setActiveSubWindow(mask);
    QCOMPARE(left->value(), label->x());
    QCOMPARE(width->value(), label->width());
    QCOMPARE(form->ObjInsp()->currentControl(), label);
}

void TestDesigning::styleAndSettingsOpenFromTheMenus()
{
    ScriptedDialogs dialogs;
    auto form = showMainForm();
    QVERIFY(!action(form.get(), "StyleItem")->isEnabled());
    clickTool(form.get(), "FileNewItem");
    TMaske *mask = form->activeMask();
    QVERIFY(action(form.get(), "StyleItem")->isEnabled());

    // The style dialog edits the active mask's style; a change stays even on Cancel.
    dialogs.dialogAnswers << [](QDialog *dialog) {
        auto *borderStyle = dialog->findChild<QComboBox *>(QStringLiteral("edBorderStyle"));
        borderStyle->setCurrentIndex(0);
        return int(QDialog::Rejected);
    };
    action(form.get(), "StyleItem")->trigger();
    QCOMPARE(dialogs.dialogTitles, QStringList{QStringLiteral("Stile ändern")});
    QCOMPARE(mask->document()->cxStyleController()->BorderStyle(), ebsNone);

    // The settings reach the mask's designer on its next activation.
    dialogs.dialogAnswers << [](QDialog *dialog) {
        auto *step = dialog->findChild<QSpinBox *>(QStringLiteral("udnGridStep"));
        step->setValue(16);
        return int(QDialog::Rejected);
    };
    action(form.get(), "SettingsItem")->trigger();
    QCOMPARE(dialogs.dialogTitles.last(), QStringLiteral("Einstellungen"));
    mask->FormActivate();
    QCOMPARE(mask->FormDesigner2()->GridStep(), 16);

    // The wizard names the table; the table explorer takes it from the mask.
    dialogs.dialogAnswers << [](QDialog *dialog) {
        QTest::keyClicks(dialog->findChild<QLineEdit *>(QStringLiteral("Name")), QStringLiteral("Kunden"));
        QTest::mouseClick(dialog->findChild<QPushButton *>(QStringLiteral("OKBtn")), Qt::LeftButton);
        return dialog->result();
    };
    clickTool(form.get(), "dxBarButton7");
    QCOMPARE(mask->document()->Tabelle(), QStringLiteral("Kunden"));
    QVERIFY(mask->Modified());
    QString tableName;
    dialogs.dialogAnswers << [&tableName](QDialog *dialog) {
        tableName = dialog->findChild<QLineEdit *>(QStringLiteral("TableName"))->text();
        return int(QDialog::Accepted);
    };
    clickTool(form.get(), "CreateTableItem");
    QCOMPARE(dialogs.dialogTitles.mid(2),
             QStringList({QStringLiteral("Maskeneinstellungen"), QStringLiteral("Tabelle erzeugen")}));
    QCOMPARE(tableName, QStringLiteral("Kunden"));
    // With OK they reach every open mask at once.
    clickTool(form.get(), "FileNewItem");
    dialogs.dialogAnswers << [](QDialog *dialog) {
        dialog->findChild<QSpinBox *>(QStringLiteral("udnGridStep"))->setValue(24);
        QTest::mouseClick(dialog->findChild<QPushButton *>(QStringLiteral("btnOk")), Qt::LeftButton);
        return dialog->result();
    };
    action(form.get(), "SettingsItem")->trigger();
    QCOMPARE(mask->FormDesigner2()->GridStep(), 24);
    QCOMPARE(form->activeMask()->FormDesigner2()->GridStep(), 24);
}

void TestDesigning::pastedEditsShareTheMaskStyle()
{
    auto form = showMainForm();
    clickTool(form.get(), "FileNewItem");
    TMaske *mask = form->activeMask();
    QWidget *surface = mask->document();
    placeWith(form.get(), "dxBarBtnEdit", surface, QPoint(16, 16));
    QVERIFY(Components::findComponent(mask->document(), QStringLiteral("cxTextEdit1")));

    // Copy and paste with the keys; the copy looks like its original.
    QTest::keyClick(surface, Qt::Key_Insert, Qt::ControlModifier);
    QTest::keyClick(surface, Qt::Key_Insert, Qt::ShiftModifier);
    auto *copy = qobject_cast<TcxTextEdit *>(Components::findComponent(mask->document(), QStringLiteral("cxTextEdit2")));
    QVERIFY(copy);
    QCOMPARE(copy->StyleController(), mask->document()->cxStyleController());

    // An empty payload is an engine error: it ends as a message, not as a crash.
    ScriptedDialogs dialogs;
    dialogs.messageAnswers << mrOk;
    auto *mime = new QMimeData;
    mime->setData(QStringLiteral("application/x-qt-windows-mime;value=\"CF_DesignedObjects\""), QByteArray());
    QGuiApplication::clipboard()->setMimeData(mime);
    QTest::keyClick(surface, Qt::Key_Insert, Qt::ShiftModifier);
    QCOMPARE(dialogs.messages.size(), 1);
    QCOMPARE(dialogs.messages.at(0).type, mtError);
    QVERIFY(!Components::findComponent(mask->document(), QStringLiteral("cxTextEdit3")));
}

QTEST_MAIN(TestDesigning)
#include "test_designing.moc"
