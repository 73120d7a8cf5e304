// Input of the design control: Qt events become message records that
// OnMessage may change or swallow; then the engine handles them.
#include <QApplication>
#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QMenu>
#include <QMouseEvent>
#include <QToolTip>
#include <QWheelEvent>

#include "Control.h"
#include "DesignerWidgets.h"
#include "FormDesigner.h"

using namespace DesignMessages;

namespace {
const QEvent::Type kPopupMenuEvent = QEvent::Type(QEvent::User + FD_POPUPMENU);
const QEvent::Type kLeaveMouseActionEvent = QEvent::Type(QEvent::User + FD_LEAVEMOUSEACTION);
} // namespace

// One application-wide filter shared by the engines that use the hook.
class TDesignerHook : public QObject
{
public:
    static TDesignerHook *&instance()
    {
        static TDesignerHook *hook = nullptr;
        return hook;
    }

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (!watched->isWidgetType())
            return false;
        auto *w = static_cast<QWidget *>(watched);
        const QList<TCustomFormDesigner *> engines = TCustomFormDesigner::activeDesigners();
        for (TCustomFormDesigner *d : engines)
            if (d->MessageProcessor() == mpHook && d->isInDesignControl(w) && d->processEvent(w, event))
                return true;
        return false;
    }
};

void TCustomFormDesigner::installHook()
{
    if (m_messageProcessor != mpHook || TDesignerHook::instance())
        return;
    TDesignerHook::instance() = new TDesignerHook;
    qApp->installEventFilter(TDesignerHook::instance());
}

void TCustomFormDesigner::removeHook()
{
    for (TCustomFormDesigner *d : activeDesigners())
        if (d->m_messageProcessor == mpHook)
            return;
    delete TDesignerHook::instance();
    TDesignerHook::instance() = nullptr;
}

bool TCustomFormDesigner::eventFilter(QObject *watched, QEvent *event)
{
    if (m_messageProcessor != mpEvent || !watched->isWidgetType())
        return false;
    return processEvent(static_cast<QWidget *>(watched), event);
}

void TCustomFormDesigner::customEvent(QEvent *event)
{
    if (event->type() == kPopupMenuEvent)
        showPopupMenu();
    else if (event->type() == kLeaveMouseActionEvent)
        LeaveMouseAction();
}

bool TCustomFormDesigner::buildMessage(QWidget *target, QEvent *event, TDesignMessage &msg) const
{
    msg.hwnd = target;
    switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseMove: {
        auto *me = static_cast<QMouseEvent *>(event);
        const bool left = me->button() == Qt::LeftButton, right = me->button() == Qt::RightButton;
        const bool middle = me->button() == Qt::MiddleButton;
        switch (event->type()) {
        case QEvent::MouseButtonPress:
            msg.message = left ? WM_LBUTTONDOWN : right ? WM_RBUTTONDOWN : middle ? WM_MBUTTONDOWN : 0;
            break;
        case QEvent::MouseButtonRelease:
            msg.message = left ? WM_LBUTTONUP : right ? WM_RBUTTONUP : middle ? WM_MBUTTONUP : 0;
            break;
        case QEvent::MouseButtonDblClick:
            msg.message = left ? WM_LBUTTONDBLCLK : right ? WM_RBUTTONDBLCLK : middle ? WM_MBUTTONDBLCLK : 0;
            break;
        default:
            msg.message = WM_MOUSEMOVE;
            break;
        }
        if (!msg.message)
            return false;
        msg.buttons = me->buttons();
        msg.shift = me->modifiers();
        msg.pos = me->position().toPoint();
        msg.pt = me->globalPosition().toPoint();
        msg.time = qint64(me->timestamp());
        return true;
    }
    case QEvent::KeyPress:
    case QEvent::KeyRelease: {
        auto *ke = static_cast<QKeyEvent *>(event);
        msg.message = event->type() == QEvent::KeyPress ? WM_KEYDOWN : WM_KEYUP;
        msg.key = ke->key();
        msg.shift = ke->modifiers();
        msg.time = qint64(ke->timestamp());
        return true;
    }
    case QEvent::Wheel: {
        auto *we = static_cast<QWheelEvent *>(event);
        msg.message = WM_MOUSEWHEEL;
        msg.buttons = we->buttons();
        msg.shift = we->modifiers();
        msg.pos = we->position().toPoint();
        msg.pt = we->globalPosition().toPoint();
        msg.time = qint64(we->timestamp());
        return true;
    }
    case QEvent::Move:
    case QEvent::Resize:
        if (target != m_attached)
            return false;
        msg.message = event->type() == QEvent::Move ? WM_MOVE : WM_SIZE;
        return true;
    default:
        return false;
    }
}

bool TCustomFormDesigner::processEvent(QWidget *target, QEvent *event)
{
    if (!m_active || !m_attached || target == m_overlay || target == m_underlay)
        return false;
    switch (event->type()) {
    case QEvent::ChildAdded:
    case QEvent::ChildPolished: {
        // Controls that arrive while designing are designed too.
        QObject *child = static_cast<QChildEvent *>(event)->child();
        if (child->isWidgetType() && child != m_overlay && child != m_underlay)
            watchWidget(static_cast<QWidget *>(child));
        if (target == m_attached && m_overlay)
            m_overlay->raise();
        return false;
    }
    case QEvent::ContextMenu:
        // Controls keep their own context menus to themselves while designed.
        return !IsProtected(FindWinControl(target));
    default:
        break;
    }

    TDesignMessage msg;
    if (!buildMessage(target, event, msg))
        return false;

    // Qt hands an ignored mouse or key event on to the parent widget; that
    // is the same input and is handled once.
    const bool input = msg.message >= WM_MOUSEMOVE || msg.message == WM_KEYDOWN || msg.message == WM_KEYUP;
    if (input) {
        if (int(event->type()) == m_lastEventType && quint64(msg.time) == m_lastEventTime
            && msg.pt == m_lastEventGlobal && msg.key == m_lastEventKey && msg.time != 0)
            return false;
        m_lastEventType = int(event->type());
        m_lastEventTime = quint64(msg.time);
        m_lastEventGlobal = msg.pt;
        m_lastEventKey = msg.key;
    }

    if (OnMessage) {
        OnMessage(this, msg);
        if (msg.message == 0)
            return true;
    }
    Lock();
    const bool swallowed = dispatchMessage(msg);
    Unlock();
    // The handler may have changed the key of a key message.
    if (!swallowed && (msg.message == WM_KEYDOWN || msg.message == WM_KEYUP)) {
        auto *ke = static_cast<QKeyEvent *>(event);
        if (msg.key != ke->key())
            return true;
    }
    return swallowed || msg.message == 0;
}

bool TCustomFormDesigner::dispatchMessage(TDesignMessage &msg)
{
    const bool isMouse = msg.message >= WM_MOUSEMOVE && msg.message <= WM_MBUTTONDBLCLK;
    // A protected control works as at run time.
    if (isMouse && m_mouseAction == maNone && !qobject_cast<TGrabHandle *>(msg.hwnd)) {
        QWidget *owner = FindWinControl(msg.hwnd);
        if (owner && IsProtected(owner)) {
            if (msg.message == WM_RBUTTONDOWN)
                m_menuControl = nullptr;
            return false;
        }
    }
    switch (msg.message) {
    case WM_MOVE:
    case WM_SIZE:
        UpdateGrabs();
        return false;
    case WM_LBUTTONDOWN:
        handleLeftButtonDown(msg);
        return true;
    case WM_LBUTTONUP:
        if (m_mouseAction != maNone)
            mouseUpAction(msg);
        return true;
    case WM_MOUSEMOVE:
        if (m_mouseAction != maNone)
            mouseMoveAction(msg);
        else if (m_showComponentHint) {
            // Name and class of the control under the mouse, without touching its own hint.
            QWidget *under = FindWinControl(msg.hwnd);
            if (under)
                QToolTip::showText(msg.pt, GetComponentHint(under), msg.hwnd);
            else
                QToolTip::hideText();
        }
        return msg.hwnd != m_attached || m_mouseAction != maNone;
    case WM_LBUTTONDBLCLK:
        handleDoubleClick(msg, true);
        return true;
    case WM_RBUTTONDBLCLK:
    case WM_MBUTTONDBLCLK:
        handleDoubleClick(msg, false);
        return true;
    case WM_RBUTTONDOWN:
        handleRightButtonDown(msg);
        return true;
    case WM_RBUTTONUP:
        handleRightButtonUp(msg);
        return true;
    case WM_MBUTTONDOWN:
    case WM_MBUTTONUP:
        return true;
    case WM_KEYDOWN:
        handleKeyDown(msg);
        return msg.message == 0;
    case WM_KEYUP:
        handleKeyUp(msg);
        return msg.message == 0;
    case WM_MOUSEWHEEL:
        // The window may scroll; the handles follow afterwards.
        QMetaObject::invokeMethod(this, [this] { UpdateGrabs(); }, Qt::QueuedConnection);
        return false;
    default:
        return false;
    }
}

void TCustomFormDesigner::handleLeftButtonDown(TDesignMessage &msg)
{
    QWidget *dc = m_attached;
    const QPoint designPos = msg.hwnd->mapTo(dc, msg.pos);
    if (dc->focusPolicy() != Qt::NoFocus)
        dc->setFocus(Qt::MouseFocusReason);

    // A press on a handle of the current control starts sizing.
    if (auto *handle = qobject_cast<TGrabHandle *>(msg.hwnd)) {
        QWidget *current = currentControl();
        if (current && handle->HandleEnabled() && !IsLocked(current))
            startDrag(current, handle->Position(), designPos);
        return;
    }

    if (!m_placeClass.isEmpty()) {
        // Placing goes into the deepest container under the cursor.
        QWidget *container = ControlAtPos(designPos);
        while (container && container != dc) {
            const TControl *c = TControl::from(container);
            if (c && c->classInfo().acceptsControls)
                break;
            container = container->parentWidget();
        }
        startPlacing(container ? container : dc, designPos);
        return;
    }

    QWidget *hit = ControlAtPos(designPos);
    const bool ctrl = msg.shift & Qt::ControlModifier;
    const bool shift = msg.shift & Qt::ShiftModifier;
    m_lastClickPos = designPos;
    m_lastClickControl = hit;

    if (hit == dc || !hit || (ctrl && m_multiSelect)) {
        startSelecting(designPos);
        return;
    }
    if (!validateSelection(hit))
        return;
    if (shift && m_multiSelect) {
        if (ControlIndex(hit) >= 0)
            DeleteControl(hit);
        else
            AddControl(hit);
        return;
    }
    if (ControlIndex(hit) < 0) {
        ClearControls();
        AddControl(hit);
    } else {
        setCurrent(hit);
    }
    if (ControlIndex(hit) >= 0 && !IsLocked(hit))
        startDrag(hit, gpNone, designPos);
}

void TCustomFormDesigner::handleDoubleClick(TDesignMessage &msg, bool raiseEvent)
{
    const QPoint designPos = msg.hwnd->mapTo(m_attached, msg.pos);
    QWidget *hit = ControlAtPos(designPos);
    if (!hit || hit == m_attached || !IsDesignable(hit) || IsProtected(hit))
        return;
    if (designPos != m_lastClickPos || hit != m_lastClickControl)
        return;
    if (raiseEvent && OnControlDblClick)
        OnControlDblClick(this, hit);
}

void TCustomFormDesigner::handleRightButtonDown(TDesignMessage &msg)
{
    const QPoint designPos = msg.hwnd->mapTo(m_attached, msg.pos);
    if (m_attached->focusPolicy() != Qt::NoFocus)
        m_attached->setFocus(Qt::MouseFocusReason);
    QWidget *hit = ControlAtPos(designPos);
    if (hit && hit != m_attached) {
        if (IsProtected(hit)) {
            m_menuControl = nullptr;
            return;
        }
        m_menuControl = hit;
        if (ControlIndex(hit) < 0) {
            ClearControls();
            AddControl(hit);
        }
        return;
    }
    m_menuControl = msg.hwnd == m_attached ? m_attached.data() : nullptr;
}

void TCustomFormDesigner::handleRightButtonUp(TDesignMessage &msg)
{
    if (!m_menuControl)
        return;
    bool handled = false;
    if (OnContextPopup)
        OnContextPopup(this, handled);
    if (handled || !m_popupMenu)
        return;
    const QPoint designPos = msg.hwnd->mapTo(m_attached, msg.pos);
    QWidget *hit = ControlAtPos(designPos);
    if (hit == m_menuControl || m_menuControl == m_attached)
        QCoreApplication::postEvent(this, new QEvent(kPopupMenuEvent));
}

void TCustomFormDesigner::showPopupMenu()
{
    if (!m_popupMenu || !m_active)
        return;
    Lock();
    QCoreApplication::processEvents();
    LeaveMouseAction();
    m_popupMenu->popup(QCursor::pos());
    Unlock();
}
