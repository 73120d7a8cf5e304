// The main window's handling of mask windows: tab strip, window list, Window
// and Help menus, menu enabling, the command line and the tool bars; edit
// mode and run mode, and the resolution list that sizes the active mask.
#include <QAbstractItemView>
#include <QComboBox>
#include <QGuiApplication>
#include <QLabel>
#include <QPointer>
#include <QTemporaryDir>
#include <QtTest>

#include "AppPaths.h"
#include "Control.h"
#include "ControlKinds.h"
#include "Edits.h"
#include "FormDesigner.h"
#include "Graphics.h"
#include "Localiser.h"
#include "ObjectInspector.h"
#include "TestSupport.h"
#include "helper_shell.h"

using namespace ShellTest;

class TestMainForm : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanup();

    void tabsAndWindowListFollowTheMaskWindows();
    void minimiseAllAndArrangeIcons();
    void commandsNeedAnOpenMask();
    void onlyTheFirstCommandLineArgumentIsOpened();
    void paletteButtonsAreExclusive();
    void mainMenuBarHidesTheMenu();
    void exitAsksEveryChangedMaskFirst();
    void windowsAndQuestionsSpeakTheChosenLanguage();
    void runModeAndBack();
    void framedFieldsTakeTheClickInBothModes();
    void resolutionListSizesTheMask();

private:
    QTemporaryDir m_dir;
};

void TestMainForm::initTestCase()
{
    QVERIFY(m_dir.isValid());
    AppPaths::setSettingsFileOverride(m_dir.filePath(QStringLiteral("ferolith.ini")));
}

void TestMainForm::cleanup()
{
    flushDeletes();
}

void TestMainForm::tabsAndWindowListFollowTheMaskWindows()
{
    auto form = showMainForm();
    QTabBar *tabs = form->tabSet();
    QCOMPARE(tabs->count(), 0);

    for (int i = 0; i < 3; ++i)
        clickTool(form.get(), "FileNewItem");
    QList<QMdiSubWindow *> windows = subWindows(form.get());
    QCOMPARE(windows.size(), 3);
    const QStringList three(3, QStringLiteral("Unbenannt.dbm"));
    QCOMPARE(tabTexts(tabs), three);
    QCOMPARE(actionTexts(form->windowListActions()), three);
    // The newest window is the active one and its tab is current.
    QCOMPARE(form->mdiArea()->activeSubWindow(), windows.at(2));
    QCOMPARE(tabs->currentIndex(), 2);

    form->mdiArea()->setActiveSubWindow(windows.at(1));
    QCOMPARE(tabs->currentIndex(), 1);

    QTest::mouseClick(tabs, Qt::LeftButton, {}, tabs->tabRect(0).center());
    QCOMPARE(form->mdiArea()->activeSubWindow(), windows.at(0));
    QCOMPARE(tabs->currentIndex(), 0);

    // A new caption shows in the tab and in the window list.
    windows.at(0)->setWindowTitle(QStringLiteral("Kunden.dbm"));
    QCOMPARE(tabs->tabText(0), QStringLiteral("Kunden.dbm"));
    QCOMPARE(withoutSize(form->windowListActions().at(0)->text()), QStringLiteral("Kunden.dbm"));

    // The Window menu lists the windows at its end and checks the active one.
    QMenu *menu = form->windowMenu();
    openMenu(form.get(), menu);
    QList<QAction *> entries = form->windowListActions();
    QCOMPARE(menu->actions().mid(menu->actions().size() - 3), entries);
    QVERIFY(entries.at(0)->isChecked());
    QVERIFY(!entries.at(1)->isChecked());
    clickMenuItem(menu, entries.at(2));
    QVERIFY(!menu->isVisible());
    QCOMPARE(form->mdiArea()->activeSubWindow(), windows.at(2));
    QCOMPARE(tabs->currentIndex(), 2);

    // A minimised window chosen from the list comes back.
    windows.at(1)->showMinimized();
    QVERIFY(windows.at(1)->isMinimized());
    QTest::mouseClick(tabs, Qt::LeftButton, {}, tabs->tabRect(0).center());
    openMenu(form.get(), menu);
    entries = form->windowListActions();
    clickMenuItem(menu, entries.at(1));
    QCOMPARE(form->mdiArea()->activeSubWindow(), windows.at(1));
    QVERIFY(!windows.at(1)->isMinimized());
    QCOMPARE(tabs->currentIndex(), 1);

    // File/Close closes the active window; tab and entry go with it at once.
    QTest::mouseClick(tabs, Qt::LeftButton, {}, tabs->tabRect(0).center());
    QPointer<QMdiSubWindow> first = windows.at(0);
    clickTool(form.get(), "FileCloseItem");
    QCOMPARE(tabs->count(), 2);
    QCOMPARE(form->windowListActions().size(), 2);
    QVERIFY(!tabTexts(tabs).contains(QStringLiteral("Kunden.dbm")));
    flushDeletes();
    QVERIFY(first.isNull());

    // Closing a window that is not the active one is followed as well.
    windows = subWindows(form.get());
    QCOMPARE(windows.size(), 2);
    QTest::mouseClick(tabs, Qt::LeftButton, {}, tabs->tabRect(0).center());
    QCOMPARE(form->mdiArea()->activeSubWindow(), windows.at(0));
    windows.at(1)->close();
    QCOMPARE(tabs->count(), 1);
    QCOMPARE(form->windowListActions().size(), 1);
    flushDeletes();
    QCOMPARE(subWindows(form.get()).size(), 1);

    // The remaining tab still belongs to the remaining window.
    QTest::mouseClick(tabs, Qt::LeftButton, {}, tabs->tabRect(0).center());
    QCOMPARE(form->mdiArea()->activeSubWindow(), windows.at(0));
}

void TestMainForm::minimiseAllAndArrangeIcons()
{
    auto form = showMainForm();
    for (int i = 0; i < 3; ++i)
        clickTool(form.get(), "FileNewItem");
    const QList<QMdiSubWindow *> windows = subWindows(form.get());
    QCOMPARE(windows.size(), 3);

    // "Übereinander": full width, one above the other.
    action(form.get(), "WindowTileItem")->trigger();
    const QRect area = form->mdiArea()->viewport()->rect();
    for (int i = 0; i < 3; ++i) {
        QCOMPARE(windows.at(i)->geometry().width(), area.width());
        QCOMPARE(windows.at(i)->geometry().top(), i == 0 ? 0 : windows.at(i - 1)->geometry().bottom() + 1);
    }
    QCOMPARE(windows.at(2)->geometry().bottom(), area.bottom());

    action(form.get(), "WindowMinimizeItem")->trigger();
    for (QMdiSubWindow *w : windows)
        QVERIFY(w->isMinimized());

    action(form.get(), "WindowArrangeItem")->trigger();
    const int bottom = form->mdiArea()->viewport()->height();
    QList<QRect> icons;
    for (QMdiSubWindow *w : windows) {
        QVERIFY(w->isMinimized());
        QCOMPARE(w->geometry().bottom() + 1, bottom);
        icons << w->geometry();
    }
    // In a row from the left edge, side by side without overlap.
    QCOMPARE(icons.at(0).left(), 0);
    QCOMPARE(icons.at(1).left(), icons.at(0).right() + 1);
    QCOMPARE(icons.at(2).left(), icons.at(1).right() + 1);
}

void TestMainForm::commandsNeedAnOpenMask()
{
    auto form = showMainForm();
    const char *const maskCommands[]
        = {"FileCloseItem",     "FileSaveItem",       "FileSaveAsItem",  "WindowCascadeItem", "WindowTileItem",
           "WindowArrangeItem", "WindowMinimizeItem", "CreateTableItem", "dxBarButton7",      "RunModeItem"};
    auto expectEnabled = [&](bool enabled) {
        for (const char *name : maskCommands) {
            QAction *item = action(form.get(), name);
            QVERIFY2(item, name);
            QVERIFY2(item->isEnabled() == enabled, name);
        }
        QVERIFY(toolButton(form.get(), "FileCloseItem")->isEnabled() == enabled);
        QVERIFY(toolButton(form.get(), "FileSaveItem")->isEnabled() == enabled);
        QVERIFY(action(form.get(), "FileNewItem")->isEnabled());
        QVERIFY(action(form.get(), "FileOpenItem")->isEnabled());
    };
    expectEnabled(false);

    // Ctrl+N works although the menu sits in a tool bar.
    QVERIFY(QTest::qWaitForWindowActive(form.get()));
    QTest::keyClick(form.get(), Qt::Key_N, Qt::ControlModifier);
    QCOMPARE(subWindows(form.get()).size(), 1);
    expectEnabled(true);
    // A maximised mask is still the one the commands work on.
    subWindows(form.get()).first()->showMaximized();
    expectEnabled(true);
    subWindows(form.get()).first()->showNormal();

    clickTool(form.get(), "FileCloseItem");
    expectEnabled(false);
    QCOMPARE(form->tabSet()->count(), 0);

    // Close with no mask open does nothing.
    action(form.get(), "FileCloseItem")->trigger();
    QCOMPARE(subWindows(form.get()).size(), 0);
}

void TestMainForm::onlyTheFirstCommandLineArgumentIsOpened()
{
    const QString first = m_dir.filePath(QStringLiteral("Kunden.dbm"));
    const QString second = m_dir.filePath(QStringLiteral("Artikel.dbm"));
    QVERIFY(writeFileBytes(first, "[Datenbank]\r\nTitel=Kundenstamm\r\n"));
    QVERIFY(writeFileBytes(second, "[Datenbank]\r\nTitel=Artikelstamm\r\n"));
    TMainForm form(QStringList{first, second});
    QCOMPARE(form.mdiArea()->subWindowList().size(), 0);
    form.show();
    QVERIFY(QTest::qWaitForWindowExposed(&form));

    const QList<QMdiSubWindow *> windows = form.mdiArea()->subWindowList();
    QCOMPARE(windows.size(), 1);
    auto *mask = qobject_cast<TMaske *>(windows.at(0));
    QVERIFY(mask);
    QCOMPARE(mask->Path(), first);
    QCOMPARE(tabTexts(form.tabSet()), QStringList{QStringLiteral("Kundenstamm")});
    // The status bar shows where the active mask lives.
    auto *status = form.findChild<QLabel *>(QStringLiteral("StatusPath"));
    QVERIFY(status);
    QCOMPARE(status->text(), first);
    QVERIFY(action(&form, "FileSaveItem")->isEnabled());

    // Showing the window again (restored after minimising) opens nothing more.
    form.hide();
    form.show();
    QCOMPARE(form.mdiArea()->subWindowList().size(), 1);
}

void TestMainForm::paletteButtonsAreExclusive()
{
    auto form = showMainForm();
    QToolBar *palette = form->bar(TMainForm::ElementsBar);
    QVERIFY(palette);
    auto button = [palette](const char *name) { return palette->findChild<QToolButton *>(QLatin1String(name)); };

    QToolButton *arrow = button("dxBarBtnDefault");
    QVERIFY(arrow);
    QVERIFY(arrow->isChecked());

    // Every kind's button, one at a time: down alone, the arrow up.
    for (const TControlKind &kind : ControlKinds::all()) {
        if (kind.code == TPaletteCode::None)
            continue;
        QToolButton *b = button(kind.paletteName);
        QVERIFY2(b && !b->icon().isNull(), kind.paletteName);
        QTest::mouseClick(b, Qt::LeftButton);
        QVERIFY2(b->isChecked(), kind.paletteName);
        QVERIFY(!arrow->isChecked());
        int down = 0;
        for (const QToolButton *other : palette->findChildren<QToolButton *>())
            down += other->isChecked() ? 1 : 0;
        QCOMPARE(down, 1);
    }

    // A button that is down stays down when clicked again; the arrow releases it.
    QToolButton *edit = button("dxBarBtnEdit");
    QTest::mouseClick(edit, Qt::LeftButton);
    QTest::mouseClick(edit, Qt::LeftButton);
    QVERIFY(edit->isChecked());
    QTest::mouseClick(arrow, Qt::LeftButton);
    QVERIFY(arrow->isChecked());
    QVERIFY(!edit->isChecked());
}

void TestMainForm::mainMenuBarHidesTheMenu()
{
    auto form = showMainForm();
    auto *menuBar = form->findChild<QMenuBar *>(QStringLiteral("MainMenu"));
    QVERIFY(menuBar);
    QToolBar *mainMenu = form->bar(TMainForm::MainMenuBar);
    QVERIFY(menuBar->isVisible());

    mainMenu->toggleViewAction()->trigger();
    QVERIFY(!menuBar->isVisible());
    mainMenu->toggleViewAction()->trigger();
    QVERIFY(menuBar->isVisible());
}

void TestMainForm::exitAsksEveryChangedMaskFirst()
{
    ScriptedDialogs dialogs;
    auto form = showMainForm();
    for (int i = 0; i < 3; ++i)
        clickTool(form.get(), "FileNewItem");
    for (int i : {0, 2})
        qobject_cast<TMaske *>(subWindows(form.get()).at(i))->setModified(true);

    // "Nein" on the first, "Abbrechen" on the second: nothing closes.
    dialogs.messageAnswers << mrNo << mrAbort;
    action(form.get(), "FileExitItem")->trigger();
    flushDeletes();
    QVERIFY(form->isVisible());
    QCOMPARE(subWindows(form.get()).size(), 3);
    QCOMPARE(dialogs.messages.size(), 2);

    // Both agree: all close, each asked once.
    dialogs.messageAnswers << mrNo << mrNo;
    action(form.get(), "FileExitItem")->trigger();
    flushDeletes();
    QVERIFY(!form->isVisible());
    QVERIFY(subWindows(form.get()).isEmpty());
    QCOMPARE(dialogs.messages.size(), 4);
    QCOMPARE(dialogs.unexpected, 0);
}

void TestMainForm::windowsAndQuestionsSpeakTheChosenLanguage()
{
    ScriptedDialogs dialogs;
    const struct
    {
        const char *language, *fileMenu, *select, *question;
    } languages[] = {{"en", "&File", "Select", "Mask \"%1\" was changed!"},
                     {"de", "&Datei", "Auswahl", "Maske \"%1\" wurde verändert!"}};
    for (const auto &l : languages) {
        QVERIFY(Localiser::install(QLatin1String(l.language)));
        auto form = showMainForm();
        QCOMPARE(form->findChild<QMenu *>(QStringLiteral("FileMenu"))->title(), QLatin1String(l.fileMenu));
        QCOMPARE(action(form.get(), "dxBarBtnDefault")->text(), QLatin1String(l.select));
        clickTool(form.get(), "FileNewItem");
        form->activeMask()->setModified(true);
        dialogs.messageAnswers << mrAbort;
        QVERIFY(!form->activeMask()->FormCloseQuery());
        QVERIFY2(dialogs.messages.last().text.startsWith(QString::fromUtf8(l.question).arg(form->activeMask()->windowTitle())),
                 qPrintable(dialogs.messages.last().text));
        form->activeMask()->setModified(false);
    }
}

void TestMainForm::runModeAndBack()
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

void TestMainForm::framedFieldsTakeTheClickInBothModes()
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

void TestMainForm::resolutionListSizesTheMask()
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
        QTest::mouseClick(view->viewport(), Qt::LeftButton, {},
                          view->visualRect(view->model()->index(index, 0)).center());
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

QTEST_MAIN(TestMainForm)
#include "test_mainform.moc"
