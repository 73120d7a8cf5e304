// The keyboard while designing: key modes, Tab, Esc, and the keys handed on
// to OnKeyDown / OnKeyUp.
#include <QKeyEvent>

#include "FormDesigner.h"

TCustomFormDesigner::TKeyMode TCustomFormDesigner::keyMode(Qt::KeyboardModifiers shift) const
{
    const bool ctrl = shift & Qt::ControlModifier;
    const bool sh = shift & Qt::ShiftModifier;
    if (!ctrl && !sh)
        return kmSelect;
    if (ctrl && !sh)
        return m_snapToGridKey ? kmMoveGrid : kmMovePixel;
    if (ctrl && sh)
        return kmMoveGrid;
    return kmSize;
}

namespace {
bool isArrow(int key)
{
    return key == Qt::Key_Left || key == Qt::Key_Right || key == Qt::Key_Up || key == Qt::Key_Down;
}

bool isTab(int key)
{
    return key == Qt::Key_Tab || key == Qt::Key_Backtab;
}
} // namespace

void TCustomFormDesigner::handleKeyDown(TDesignMessage &msg)
{
    QWidget *current = currentControl();

    // A protected control with the focus keeps its keys.
    if (m_protectMode == pmLockKeyboard && msg.hwnd) {
        QWidget *owner = FindWinControl(msg.hwnd);
        if (owner && ControlIndex(owner) >= 0 && IsProtected(owner) && msg.hwnd->hasFocus())
            return;
    }

    const TKeyMode mode = keyMode(msg.shift);
    if ((mode == kmSelect && !m_keySelect) || (mode != kmSelect && !m_keyMove))
        return;

    if (isTab(msg.key)) {
        const bool back = msg.key == Qt::Key_Backtab || (msg.shift & Qt::ShiftModifier);
        QWidget *next = FindNextControl(!back);
        if (next && IsDesignable(next)) {
            ClearControls();
            AddControl(next);
            msg.message = 0;
        }
        return;
    }
    if (msg.key == Qt::Key_Escape) {
        if (m_mouseAction != maNone) {
            LeaveMouseAction();
        } else if (current) {
            // One level up: the container of the current control.
            QWidget *parent = current->parentWidget();
            while (parent && parent != m_attached && !IsDesignable(parent))
                parent = parent->parentWidget();
            ClearControls();
            if (parent && parent != m_attached)
                AddControl(parent);
        }
        msg.message = 0;
        return;
    }
    if (isArrow(msg.key)) {
        const bool designable = current && IsDesignable(current);
        keyboardMoveSize(msg.key, mode);
        if (designable)
            msg.message = 0;
        return;
    }
    if (OnKeyDown) {
        int key = msg.key;
        OnKeyDown(this, key, msg.shift);
        msg.key = key;
        if (key == 0)
            msg.message = 0;
    }
}

void TCustomFormDesigner::handleKeyUp(TDesignMessage &msg)
{
    if (isTab(msg.key) || isArrow(msg.key)) {
        msg.message = 0;
        return;
    }
    const TKeyMode mode = keyMode(msg.shift);
    if ((mode == kmSelect && !m_keySelect) || (mode != kmSelect && !m_keyMove))
        return;
    if (OnKeyUp) {
        int key = msg.key;
        OnKeyUp(this, key, msg.shift);
        msg.key = key;
        if (key == 0)
            msg.message = 0;
    }
}
