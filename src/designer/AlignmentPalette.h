#pragma once

#include <QList>
#include <QWidget>
#include <functional>

#include "DesignerTypes.h"

class QAction;
class QMenu;
class QToolButton;

// The small floating window with one button per way of lining up the
// selected controls. Its context menu switches "stay on top" and the button
// hints and hides it.
class TfrmAlignmentPalette : public QWidget
{
    Q_OBJECT
public:
    explicit TfrmAlignmentPalette(QWidget *parent = nullptr);

    // Applies the options without reporting them through onOptionsChanged;
    // apAutoShow is only kept for the engine.
    void setOptions(TAlignmentPaletteOptions options);

    // (horizontal, vertical): one of the two is always amNoChange.
    std::function<void(TAlignMode, TAlignMode)> onAlign;
    // The user changed an option from the context menu.
    std::function<void(TAlignmentPaletteOptions)> onOptionsChanged;

protected:
    void contextMenuEvent(QContextMenuEvent *event) override;

private:
    QToolButton *addButton(const QString &name, const QString &hint, TAlignMode mode, bool vertical);
    void changeOption(TAlignmentPaletteOption option, bool on);
    void applyOptions();

    TAlignmentPaletteOptions m_options = apStayOnTop | apShowHints;
    QList<QToolButton *> m_buttons;
    QMenu *m_menu;
    QAction *m_stayOnTop;
    QAction *m_showHints;
    QAction *m_hide;
};
