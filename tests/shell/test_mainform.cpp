// The main window's handling of mask windows: tab strip, window list, Window
// and Help menus, menu enabling, the command line and the tool bars.
#include <QFile>
#include <QLabel>
#include <QPointer>
#include <QTemporaryDir>
#include <QtTest>

#include "AppPaths.h"
#include "Localiser.h"
#include "TestSupport.h"
#include "ControlKinds.h"
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

QTEST_MAIN(TestMainForm)
#include "test_mainform.moc"
