// Edit mode and run mode, and the resolution list that sizes the active mask.
#include <QAbstractItemView>
#include <QComboBox>
#include <QGuiApplication>
#include <QScreen>
#include <QtTest>

#include "AppPaths.h"
#include "Control.h"
#include "Edits.h"
#include "Graphics.h"
#include "FormDesigner.h"
#include "ObjectInspector.h"
#include "TestSupport.h"
#include "helper_shell.h"

using namespace ShellTest;

class TestModes : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanup() { flushDeletes(); }
    void runModeAndBack();
    void framedFieldsTakeTheClickInBothModes();
    void resolutionListSizesTheMask();

private:
    QTemporaryDir m_dir;
};

void TestModes::initTestCase()
{
    QVERIFY(m_dir.isValid());
    AppPaths::setSettingsFileOverride(m_dir.filePath(QStringLiteral("ferolith.ini")));
}

void TestModes::runModeAndBack()
{
    auto form = showMainForm();
    QMenu *options = form->findChild<QMenu *>(QStringLiteral("OptionsMenu"));
    QVERIFY(options);
    clickTool(form.get(), "FileNewItem");
    TMaske *mask = form->activeMask();
    QWidget *edit = mask->placeControl(TPaletteCode::Edit, mask->document(), QPoint(20, 20));
    QVERIFY(TControl::from(edit)->isDesigning());
    form->showObjectInspector();

    openMenu(form.get(), options);
    clickMenuItem(options, action(form.get(), "RunModeItem"));
    QVERIFY(!mask->FormDesigner2()->Active());
    QVERIFY(!TControl::from(edit)->isDesigning()); // the controls work as at run time
    QVERIFY(!form->ObjInsp()->isVisible());
    for (int i : {TMainForm::EditMenuBar, TMainForm::FontBar, TMainForm::ElementsBar, TMainForm::ModifyMenuBar})
        QVERIFY2(!form->bar(i)->isVisible(), qPrintable(form->bar(i)->windowTitle()));
    for (int i : {TMainForm::MainMenuBar, TMainForm::FileMenuBar, TMainForm::StatusBar})
        QVERIFY2(form->bar(i)->isVisible(), qPrintable(form->bar(i)->windowTitle()));

    openMenu(form.get(), options);
    clickMenuItem(options, action(form.get(), "EditModeItem"));
    QVERIFY(mask->FormDesigner2()->Active());
    QVERIFY(TControl::from(edit)->isDesigning());
    QVERIFY(form->ObjInsp()->isVisible());
    for (int i = 0; i < TMainForm::BarCount; ++i)
        QVERIFY2(form->bar(i)->isVisible(), qPrintable(form->bar(i)->windowTitle()));
}

void TestModes::framedFieldsTakeTheClickInBothModes()
{
    // The sample masks frame edit fields and check boxes with bevels made
    // after them; a click on such a field reaches the field, through the
    // window as the user clicks.
    auto form = showMainForm();
    const QDir dir(QStringLiteral(FEROLITH_SOURCE_DIR "/examples/masks"));
    int clicked = 0;
    for (const QString &file : dir.entryList({QStringLiteral("*.dbm")})) {
        TMaske *mask = form->LoadMask(dir.filePath(file));
        mask->setGeometry(form->mdiArea()->viewport()->rect());
        QList<QWidget *> framed;
        for (QWidget *field : mask->document()->findChildren<QWidget *>()) {
            if (!qobject_cast<TcxTextEdit *>(field) && !qobject_cast<TcxDBCheckBox *>(field))
                continue;
            for (TBevel *bevel : field->parentWidget()->findChildren<TBevel *>(Qt::FindDirectChildrenOnly))
                if (bevel->geometry().contains(field->geometry()))
                    framed << field;
        }
        clicked += int(framed.size());
        const auto clickOn = [&](QWidget *field) {
            mask->scrollBox()->ensureWidgetVisible(field);
            QTest::mouseClick(form->windowHandle(), Qt::LeftButton, {}, field->mapTo(form.get(), QPoint(4, 4)));
        };
        for (QWidget *field : framed) {
            clickOn(field);
            QVERIFY2(mask->FormDesigner2()->currentControl() == field, qPrintable(file + field->objectName()));
        }
        QMenu *options = form->findChild<QMenu *>(QStringLiteral("OptionsMenu"));
        openMenu(form.get(), options);
        clickMenuItem(options, action(form.get(), "RunModeItem"));
        for (QWidget *field : framed) {
            clickOn(field);
            QVERIFY2(field->isAncestorOf(QApplication::focusWidget()) || field->hasFocus(),
                     qPrintable(file + field->objectName()));
        }
        mask->setModified(false);
        mask->close();
        flushDeletes();
    }
    QVERIFY(clicked >= 20);
}

void TestModes::resolutionListSizesTheMask()
{
    auto form = showMainForm();
    QComboBox *list = form->resolutionList();
    const int entries = list->count();
    clickTool(form.get(), "FileNewItem");
    TMaske *mask = form->activeMask();
    QVERIFY(list->isEnabled());
    QVERIFY(!mask->Modified());

    // The first entry, chosen with the keyboard.
    list->setFocus();
    QTest::keyClick(list, Qt::Key_Home);
    QCOMPARE(list->currentText(), QStringLiteral("800x600"));
    QCOMPARE(mask->size(), QSize(815, 473));
    QVERIFY(mask->windowTitle().startsWith(QLatin1String("799 x 434")));
    QCOMPARE(mask->DesignHeight(), 473);
    QCOMPARE(mask->DesignWidth(), 800);
    QCOMPARE(mask->document()->ScreenHeight(), 600);
    QVERIFY(mask->Modified());
    // The scroll ranges follow the main window: its width, its height less 127.
    QCOMPARE(mask->scrollRanges(), QSize(form->width(), form->height() - 127));

    // "1152x869" keeps its text's numbers for the file, the table's for the window.
    QTest::keyClick(list, Qt::Key_Down);
    QTest::keyClick(list, Qt::Key_Down);
    QCOMPARE(list->currentText(), QStringLiteral("1152x869"));
    QCOMPARE(mask->size(), QSize(1167, 737));
    QCOMPARE(mask->document()->ScreenHeight(), 869);
    QCOMPARE(mask->DesignHeight(), 737);

    // "Normal": the scroll range of the screen the program runs on.
    clickTool(form.get(), "dxBarNormal");
    const QSize screen = QGuiApplication::primaryScreen()->size();
    QCOMPARE(mask->scrollRanges().height(), screen.height() - 104);
    QVERIFY(mask->scrollRanges().width() > screen.width());
    QCOMPARE(mask->size(), QSize(1167, 737)); // the window keeps its size

    // Choosing the entry shown applies it again.
    mask->resize(500, 400);
    const auto choose = [list](int index) {
        list->showPopup();
        QAbstractItemView *view = list->view();
        QTest::mouseClick(view->viewport(), Qt::LeftButton, {}, view->visualRect(view->model()->index(index, 0)).center());
    };
    choose(2);
    QCOMPARE(mask->size(), QSize(1167, 737));

    // Another mask shows its own resolution, also one the list lacks, and
    // choosing that applies it by the rule of the list.
    clickTool(form.get(), "FileNewItem");
    TMaske *second = form->activeMask();
    second->document()->setScreenWidth(1366);
    second->document()->setScreenHeight(768);
    form->mdiArea()->setActiveSubWindow(mask);
    QCOMPARE(list->currentText(), QStringLiteral("1152x869"));
    QCOMPARE(list->count(), entries);
    form->mdiArea()->setActiveSubWindow(second);
    QCOMPARE(list->currentText(), QStringLiteral("1366x768"));
    choose(list->currentIndex());
    QCOMPARE(second->size(), QSize(1381, 641));
    QCOMPARE(second->DesignWidth(), 1366);
}

QTEST_MAIN(TestModes)
#include "test_modes.moc"
