// The arrow keys: the neighbour in tab order becomes current, or the
// selection moves by a pixel or a grid step, or grows and shrinks by a pixel.
#include "DesignerWidgets.h"
#include "FormDesigner.h"

void TCustomFormDesigner::moveSizeByKey(int key, TDesignerInput::KeyMode mode)
{
    QWidget *current = currentControl();
    if (!m_attached || !current)
        return;
    const int dx = key == Qt::Key_Left ? -1 : key == Qt::Key_Right ? 1 : 0;
    const int dy = key == Qt::Key_Up ? -1 : key == Qt::Key_Down ? 1 : 0;
    if (dx == 0 && dy == 0)
        return;

    if (mode == TDesignerInput::kmSelect) {
        QWidget *next = FindNextControl(dx > 0 || dy > 0);
        if (next && next != current) {
            ClearControls();
            AddControl(next);
        }
        return;
    }

    if (mode == TDesignerInput::kmMovePixel) {
        // Fine positioning works on one container at a time and leaves locked
        // controls alone: the rest of the selection is let go first.
        QWidget *parent = current->parentWidget();
        bool dropped = false;
        for (QWidget *c : selection()) {
            if (c->parentWidget() != parent || IsLocked(c)) {
                DeleteControl(c);
                dropped = true;
            }
        }
        if (dropped)
            Update();
    }

    const int step = mode == TDesignerInput::kmMoveGrid ? m_gridStep : 1;
    bool changed = false;
    const QList<QWidget *> selected = selection();
    const QList<QPointer<QWidget>> controls(selected.cbegin(), selected.cend());
    for (const QPointer<QWidget> &c : controls) {
        // A locked control is never moved or sized, whatever the mode.
        if (!c || !IsDesignable(c) || IsLocked(c))
            continue;
        const QRect old = c->geometry();
        QRect r = old;
        if (mode == TDesignerInput::kmSize)
            r.setSize(QSize(old.width() + dx, old.height() + dy)); // may go negative: the limits catch it
        else
            r.translate(dx * step, dy * step); // exactly one step, not rounded to the grid
        // The keyboard sizes with the right and bottom edges.
        r = m_session.limitedRect(c, r, old, mode == TDesignerInput::kmSize ? gpRightBottom : gpNone, true);
        if (r == old)
            continue;
        setControlBounds(c, r);
        if (c->geometry() == old)
            continue;
        changed = true;
        if (m_overlay && ControlCount() > 1)
            m_overlay->refresh();
        UpdateGrabs();
        DoMoveSizeControl(c);
    }
    if (changed)
        DoChange();
}
