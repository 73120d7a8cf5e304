#pragma once

// Shared by the table explorer and wizard tests: the sample mask, finding
// controls, and working menus and grid cells as a user does.
#include <QApplication>
#include <QContextMenuEvent>
#include <QMenu>
#include <QTableWidget>
#include <QTest>

#include "GuiSteps.h"
#include "MaskDocument.h"
#include "MaskLoader.h"

namespace DbWindowsTest {

inline QString kundenMask()
{
    return QStringLiteral(FEROLITH_SOURCE_DIR "/examples/masks/Kunden.dbm");
}

// Loads a mask file with its table settings from databaseFolder.
inline void loadMask(TMaskDocument &mask, const QString &file, const QString &databaseFolder)
{
    QVERIFY(MaskLoader::LoadMask(mask, file, databaseFolder));
}

using GuiSteps::child;
using GuiSteps::showAndWait;

// The context menu event a right click makes (QTest's clicks make none).
inline void rightClick(QWidget *w, const QPoint &pos)
{
    QContextMenuEvent event(QContextMenuEvent::Mouse, pos, w->mapToGlobal(pos));
    QApplication::sendEvent(w, &event);
}

// Clicks the item of a shown pop-up menu whose text starts with text.
inline void chooseMenuItem(QMenu *menu, const QString &text)
{
    QVERIFY(QTest::qWaitForWindowExposed(menu));
    for (QAction *item : menu->actions()) {
        if (item->isVisible() && item->text().startsWith(text)) {
            QTest::mouseClick(menu, Qt::LeftButton, {}, menu->actionGeometry(item).center());
            return;
        }
    }
    QFAIL(qPrintable(QStringLiteral("no menu item ") + text));
}

inline QPoint cellCenter(QTableWidget *grid, int row, int column)
{
    return grid->visualRect(grid->model()->index(row, column)).center();
}

// Types into a grid cell (rows and columns from 0) and confirms with Enter.
inline void typeIntoCell(QTableWidget *grid, int row, int column, const QString &text)
{
    QTest::mouseClick(grid->viewport(), Qt::LeftButton, {}, cellCenter(grid, row, column));
    if (QApplication::focusWidget() == grid) // the cell was current already: no editor yet
        QTest::keyClick(grid, Qt::Key_F2);
    QWidget *editor = QApplication::focusWidget();
    QVERIFY(editor && grid->isAncestorOf(editor));
    QTest::keyClick(editor, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(editor, Qt::Key_Backspace);
    QTest::keyClicks(editor, text);
    QTest::keyClick(editor, Qt::Key_Return);
    QCoreApplication::processEvents(); // the view takes the text in a queued call
}

} // namespace DbWindowsTest
