// Designing a mask from the main window as a user does: palette clicks,
// clicks on the mask, the inspector following, the position and font tool
// bars, delete and the keys.
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
#include "FormDesigner.h"
#include "Edits.h"
#include "Graphics.h"
#include "ObjectInspector.h"
#include "EditStyle.h"
#include "TestSupport.h"
#include <QComboBox>
#include "helper_shell.h"

using namespace ShellTest;

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

    // A click inside a panel places into the panel; a page control brings two pages.
    placeWith(form.get(), "dxBarPanel", surface, QPoint(16, 120));
    QWidget *panel = mask->FormDesigner2()->currentControl();
    placeWith(form.get(), "dxBarBtnEdit", panel, QPoint(8, 8));
    QCOMPARE(mask->FormDesigner2()->currentControl()->parentWidget(), panel);
    QCOMPARE(form->ObjInsp()->currentPageCaption(), QStringLiteral("TcxTextEdit"));
    placeWith(form.get(), "dxBarBtnPageControl", surface, QPoint(260, 120));
    auto *pager = qobject_cast<TAdvOfficePager *>(mask->FormDesigner2()->currentControl());
    QVERIFY(pager);
    QCOMPARE(pager->PageCount(), 2);
    QVERIFY(mask->Modified());
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
    // The inspector shows nothing for a group.
    QCOMPARE(form->ObjInsp()->currentPageCaption(), QStringLiteral("Default"));

    // The tab order field changes only the current control.
    auto *tabOrder = form->findChild<QSpinBox *>(QStringLiteral("dxBarSpinTabOrder"));
    QWidget *current = designer->currentControl();
    tabOrder->selectAll();
    QTest::keyClicks(tabOrder, QStringLiteral("0"));
    QCOMPARE(TControl::from(current)->TabOrder(), 0);
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
