#pragma once

#include <QRegularExpression>

// Shared steps for the main window tests: showing the window and working its
// tool buttons, tabs and menus the way a user does.

#include <QAction>
#include <QCoreApplication>
#include <QEvent>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenu>
#include <QMenuBar>
#include <QStringList>
#include <QTabBar>
#include <QTest>
#include <QToolBar>
#include <QToolButton>
#include <memory>

#include "MainForm.h"
#include "Maske.h"

namespace ShellTest {

// A shown main window, ready for input.
inline std::unique_ptr<TMainForm> showMainForm(const QStringList &arguments = QStringList())
{
    auto form = std::make_unique<TMainForm>(arguments);
    form->resize(1280, 800);
    form->show();
    form->activateWindow();
    if (!QTest::qWaitForWindowExposed(form.get()))
        qWarning("main window was not exposed");
    return form;
}

inline QAction *action(TMainForm *form, const char *name)
{
    return form->findChild<QAction *>(QLatin1String(name));
}

// The tool button showing a command, in whichever bar holds it.
inline QToolButton *toolButton(TMainForm *form, const char *actionName)
{
    QAction *item = action(form, actionName);
    if (!item)
        return nullptr;
    for (int i = 0; i < TMainForm::BarCount; ++i) {
        if (QToolBar *bar = form->bar(i)) {
            if (auto *button = qobject_cast<QToolButton *>(bar->widgetForAction(item)))
                return button;
        }
    }
    return nullptr;
}

inline void clickTool(TMainForm *form, const char *actionName)
{
    QToolButton *button = toolButton(form, actionName);
    QVERIFY2(button, actionName);
    QVERIFY2(button->isEnabled(), actionName);
    QTest::mouseClick(button, Qt::LeftButton);
}

// A mask window's caption starts with its size ("624 x 421   Kunden.dbm");
// the tests compare the part after it.
inline QString withoutSize(const QString &caption)
{
    static const QRegularExpression sizePrefix(QStringLiteral("^-?\\d+ x -?\\d+   "));
    return QString(caption).remove(sizePrefix);
}

inline QStringList tabTexts(const QTabBar *tabs)
{
    QStringList texts;
    for (int i = 0; i < tabs->count(); ++i)
        texts << withoutSize(tabs->tabText(i));
    return texts;
}

inline QStringList actionTexts(const QList<QAction *> &actions)
{
    QStringList texts;
    for (const QAction *a : actions)
        texts << withoutSize(a->text());
    return texts;
}

inline QList<QMdiSubWindow *> subWindows(TMainForm *form)
{
    return form->mdiArea()->subWindowList(QMdiArea::CreationOrder);
}

// Opens a menu of the menu bar with a mouse click on its title.
inline void openMenu(TMainForm *form, QMenu *menu)
{
    auto *menuBar = form->findChild<QMenuBar *>(QStringLiteral("MainMenu"));
    QVERIFY(menuBar);
    QTest::mouseClick(menuBar, Qt::LeftButton, {}, menuBar->actionGeometry(menu->menuAction()).center());
    QVERIFY(QTest::qWaitForWindowExposed(menu));
}

inline void clickMenuItem(QMenu *menu, QAction *item)
{
    QTest::mouseClick(menu, Qt::LeftButton, {}, menu->actionGeometry(item).center());
}

// Runs the deletions that closed windows left for the event loop.
inline void flushDeletes()
{
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

} // namespace ShellTest
