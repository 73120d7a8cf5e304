// Input of the design control: Qt events become message records that
// OnMessage may change or swallow; then the buttons and keys are handled.
#include "DesignerInput.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QToolTip>
#include <QWheelEvent>

#include "Control.h"
#include "DesignerWidgets.h"
#include "DragSession.h"
#include "FormDesigner.h"

using namespace DesignMessages;

namespace {

// The inputs of the active engines that use the hook, in activation order.
QList<TDesignerInput *> &hookedInputs()
{
    static QList<TDesignerInput *> list;
    return list;
}

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
        const QList<TDesignerInput *> inputs = hookedInputs();
        for (TDesignerInput *input : inputs)
            if (input->isInDesignControl(w) && input->process(w, event))
                return true;
        return false;
    }
};

bool isArrow(int key)
{
    return key == Qt::Key_Left || key == Qt::Key_Right || key == Qt::Key_Up || key == Qt::Key_Down;
}

bool isTab(int key)
{
    return key == Qt::Key_Tab || key == Qt::Key_Backtab;
}

// Hands a key to OnKeyDown or OnKeyUp; the handler's key goes back into the
// message, and no key swallows it.
template <typename Handler>
void passKey(QObject *sender, const Handler &handler, TDesignMessage &msg)
{
    if (!handler)
        return;
    int key = msg.key;
    handler(sender, key, msg.shift);
    msg.key = key;
    if (key == 0)
        msg.message = 0;
}

// The text a key types, for a key that a handler rewrote.
QString keyText(int key, Qt::KeyboardModifiers shift)
{
    if (key < Qt::Key_Space || key > Qt::Key_ydiaeresis || (shift & (Qt::ControlModifier | Qt::MetaModifier)))
        return QString();
    const QChar ch(key);
    return shift & Qt::ShiftModifier ? QString(ch) : QString(ch.toLower());
}

} // namespace

TDesignerInput::TDesignerInput(TCustomFormDesigner &designer, Host &host, TDragSession &session)
    : m_designer(designer), m_host(host), m_session(session)
{
}

TDesignerInput::~TDesignerInput()
{
    detach();
}

// ---- attaching and watching ----

void TDesignerInput::attach(QWidget *designControl)
{
    m_designControl = designControl;
    if (m_designer.MessageProcessor() == mpHook) {
        hookedInputs().append(this);
        if (!TDesignerHook::instance()) {
            TDesignerHook::instance() = new TDesignerHook;
            qApp->installEventFilter(TDesignerHook::instance());
        }
    }
    watch(designControl);
}

void TDesignerInput::detach()
{
    hookedInputs().removeAll(this);
    if (hookedInputs().isEmpty()) {
        delete TDesignerHook::instance();
        TDesignerHook::instance() = nullptr;
    }
    for (const QPointer<QWidget> &w : std::as_const(m_watched))
        if (w)
            unwatch(w);
    m_watched.clear();
    for (const QPointer<QWidget> &w : std::as_const(m_tracked))
        if (w)
            w->setMouseTracking(false);
    m_tracked.clear();
    m_watchedSet.clear();
    m_excluded.clear();
    m_menuControl = nullptr;
    m_designControl = nullptr;
}

void TDesignerInput::exclude(QWidget *widget)
{
    m_excluded.append(widget);
}

bool TDesignerInput::isExcluded(const QObject *object) const
{
    for (const QPointer<QWidget> &w : m_excluded)
        if (w == object)
            return true;
    return false;
}

void TDesignerInput::watch(QWidget *widget)
{
    if (!widget || isExcluded(widget))
        return;
    if (m_designer.MessageProcessor() == mpEvent && !m_watchedSet.contains(widget)) {
        widget->installEventFilter(this);
        m_watched.append(widget);
        m_watchedSet.insert(widget);
        // A later widget may get the same address; it must be watched anew.
        connect(widget, &QObject::destroyed, &m_watchContext,
                [this](QObject *gone) { m_watchedSet.remove(static_cast<QWidget *>(gone)); });
    }
    if (!widget->hasMouseTracking()) {
        widget->setMouseTracking(true);
        m_tracked.append(widget);
    }
    if (TControl *c = TControl::from(widget); c && widget != m_designControl)
        c->setDesigning(true);
    for (QObject *child : widget->children())
        if (child->isWidgetType())
            watch(static_cast<QWidget *>(child));
}

void TDesignerInput::unwatch(QWidget *widget)
{
    widget->removeEventFilter(this);
    disconnect(widget, &QObject::destroyed, &m_watchContext, nullptr);
    if (TControl *c = TControl::from(widget); c && widget != m_designControl)
        c->setDesigning(false);
}

void TDesignerInput::refresh()
{
    m_watched.removeIf([](const QPointer<QWidget> &w) { return w.isNull(); });
    m_tracked.removeIf([](const QPointer<QWidget> &w) { return w.isNull(); });
    watch(m_designControl);
}

bool TDesignerInput::isInDesignControl(const QWidget *widget) const
{
    return m_designControl && widget && (widget == m_designControl || m_designControl->isAncestorOf(widget));
}

bool TDesignerInput::eventFilter(QObject *watched, QEvent *event)
{
    if (m_designer.MessageProcessor() != mpEvent || !watched->isWidgetType())
        return false;
    return process(static_cast<QWidget *>(watched), event);
}

// ---- events to message records ----

bool TDesignerInput::buildMessage(QWidget *target, QEvent *event, TDesignMessage &msg) const
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
        if (target != m_designControl)
            return false;
        msg.message = event->type() == QEvent::Move ? WM_MOVE : WM_SIZE;
        return true;
    default:
        return false;
    }
}

bool TDesignerInput::isRepeat(QEvent *event, const TDesignMessage &msg)
{
    // Qt hands an ignored mouse or key event on to the parent widget; that
    // is the same input and is handled once.
    const bool input = msg.message >= WM_MOUSEMOVE || msg.message == WM_KEYDOWN || msg.message == WM_KEYUP;
    if (!input)
        return false;
    if (int(event->type()) == m_lastEventType && quint64(msg.time) == m_lastEventTime && msg.pt == m_lastEventGlobal
        && msg.key == m_lastEventKey && msg.time != 0)
        return true;
    m_lastEventType = int(event->type());
    m_lastEventTime = quint64(msg.time);
    m_lastEventGlobal = msg.pt;
    m_lastEventKey = msg.key;
    return false;
}

bool TDesignerInput::process(QWidget *target, QEvent *event)
{
    if (!m_designer.Active() || !m_designControl || isExcluded(target))
        return false;
    if (m_deliveringKey && (event->type() == QEvent::KeyPress || event->type() == QEvent::KeyRelease))
        return false;
    switch (event->type()) {
    case QEvent::ChildAdded:
    case QEvent::ChildPolished: {
        // Controls that arrive while designing are designed too.
        QObject *child = static_cast<QChildEvent *>(event)->child();
        if (child->isWidgetType() && !isExcluded(child))
            watch(static_cast<QWidget *>(child));
        // The engine's glass stays above them.
        if (target == m_designControl)
            for (const QPointer<QWidget> &w : std::as_const(m_excluded))
                if (auto *overlay = qobject_cast<TDesignOverlay *>(w.data()))
                    overlay->keepOnTop();
        return false;
    }
    case QEvent::ContextMenu:
        // Controls keep their own context menus to themselves while designed.
        return !m_designer.IsProtected(m_designer.FindWinControl(target));
    case QEvent::Move:
    case QEvent::Resize:
        // Whatever moved or sized a selected control (an inspector edit that
        // refits a label, a font, a command), its handles and marks follow.
        if (target != m_designControl && m_session.action() == maNone && m_designer.ControlIndex(target) >= 0)
            m_designer.UpdateGrabs();
        break;
    default:
        break;
    }

    TDesignMessage msg;
    if (!buildMessage(target, event, msg) || isRepeat(event, msg))
        return false;

    if (m_designer.OnMessage) {
        m_designer.OnMessage(&m_designer, msg);
        if (msg.message == 0)
            return true;
    }
    m_designer.Lock();
    const bool swallowed = dispatch(msg);
    m_designer.Unlock();
    // A key the handler rewrote goes on to the control in its new form.
    if (!swallowed && (msg.message == WM_KEYDOWN || msg.message == WM_KEYUP)) {
        auto *ke = static_cast<QKeyEvent *>(event);
        if (msg.key != ke->key()) {
            QKeyEvent rewritten(ke->type(), msg.key, msg.shift, keyText(msg.key, msg.shift), ke->isAutoRepeat(),
                                ke->count());
            m_deliveringKey = true;
            QCoreApplication::sendEvent(target, &rewritten);
            m_deliveringKey = false;
            return true;
        }
    }
    return swallowed || msg.message == 0;
}

// ---- the mouse ----

QPoint TDesignerInput::designPos(const TDesignMessage &msg) const
{
    return msg.hwnd->mapTo(m_designControl, msg.pos);
}

QPoint TDesignerInput::trackedPos(const TDesignMessage &msg) const
{
    // The pressed widget keeps the mouse while the button is held, even when
    // it moves along (DirectMove) or the cursor leaves it.
    if (msg.hwnd && isInDesignControl(msg.hwnd))
        return designPos(msg);
    return m_designControl->mapFromGlobal(msg.pt);
}

bool TDesignerInput::dispatch(TDesignMessage &msg)
{
    const bool isMouse = msg.message >= WM_MOUSEMOVE && msg.message <= WM_MBUTTONDBLCLK;
    const bool acting = m_session.action() != maNone;
    // A protected control works as at run time.
    if (isMouse && !acting && !qobject_cast<TGrabHandle *>(msg.hwnd)) {
        QWidget *owner = m_designer.FindWinControl(msg.hwnd);
        if (owner && m_designer.IsProtected(owner)) {
            if (msg.message == WM_RBUTTONDOWN)
                m_menuControl = nullptr;
            return false;
        }
    }
    switch (msg.message) {
    case WM_MOVE:
    case WM_SIZE:
        m_designer.UpdateGrabs();
        return false;
    case WM_LBUTTONDOWN:
        leftButtonDown(msg);
        return true;
    case WM_LBUTTONUP:
        if (acting)
            m_host.finishMouseAction(trackedPos(msg), msg.shift, msg.pt);
        return true;
    case WM_MOUSEMOVE:
        if (acting) {
            m_session.moveTo(trackedPos(msg), msg.shift, msg.pt);
        } else if (m_designer.ShowComponentHint()) {
            // Name and class of the control under the mouse, without touching its own hint.
            QWidget *under = m_designer.FindWinControl(msg.hwnd);
            if (under)
                QToolTip::showText(msg.pt, m_designer.GetComponentHint(under), msg.hwnd);
            else
                QToolTip::hideText();
        }
        return msg.hwnd != m_designControl || m_session.action() != maNone;
    case WM_LBUTTONDBLCLK:
        doubleClick(msg, true);
        return true;
    case WM_RBUTTONDBLCLK:
    case WM_MBUTTONDBLCLK:
        doubleClick(msg, false);
        return true;
    case WM_RBUTTONDOWN:
        rightButtonDown(msg);
        return true;
    case WM_RBUTTONUP:
        rightButtonUp(msg);
        return true;
    case WM_KEYDOWN:
        keyDown(msg);
        return msg.message == 0;
    case WM_KEYUP:
        keyUp(msg);
        return msg.message == 0;
    case WM_MOUSEWHEEL: {
        // The window may scroll; the handles follow afterwards.
        TCustomFormDesigner *designer = &m_designer;
        QMetaObject::invokeMethod(designer, [designer] { designer->UpdateGrabs(); }, Qt::QueuedConnection);
        return false;
    }
    default:
        return false;
    }
}

void TDesignerInput::leftButtonDown(TDesignMessage &msg)
{
    QWidget *dc = m_designControl;
    const QPoint pos = designPos(msg);
    if (dc->focusPolicy() != Qt::NoFocus)
        dc->setFocus(Qt::MouseFocusReason);

    // A press on a handle of the current control starts sizing.
    if (auto *handle = qobject_cast<TGrabHandle *>(msg.hwnd)) {
        QWidget *current = m_designer.currentControl();
        if (current && handle->HandleEnabled() && !m_designer.IsLocked(current))
            m_session.startDrag(current, handle->Position(), pos);
        return;
    }

    if (!m_host.armedClass().isEmpty()) {
        // Placing goes into the deepest container under the cursor.
        QWidget *container = m_designer.ControlAtPos(pos);
        while (container && container != dc) {
            const TControl *c = TControl::from(container);
            if (c && c->classInfo().acceptsControls)
                break;
            container = container->parentWidget();
        }
        m_session.startPlacing(container ? container : dc, pos);
        return;
    }

    QWidget *hit = m_designer.ControlAtPos(pos);
    const bool ctrl = msg.shift & Qt::ControlModifier;
    const bool shift = msg.shift & Qt::ShiftModifier;
    const bool multi = m_designer.MultiSelect();
    m_lastClickPos = pos;
    m_lastClickControl = hit;

    if (hit == dc || !hit || (ctrl && multi)) {
        m_session.startSelecting(pos);
        return;
    }
    if (!m_host.acceptsSelection(hit))
        return;
    if (shift && multi) {
        if (m_designer.ControlIndex(hit) >= 0)
            m_designer.DeleteControl(hit);
        else
            m_designer.AddControl(hit);
        return;
    }
    if (m_designer.ControlIndex(hit) < 0) {
        m_designer.ClearControls();
        m_designer.AddControl(hit);
    } else {
        m_host.makeCurrent(hit);
    }
    if (m_designer.ControlIndex(hit) >= 0 && !m_designer.IsLocked(hit))
        m_session.startDrag(hit, gpNone, pos);
}

void TDesignerInput::doubleClick(TDesignMessage &msg, bool raiseEvent)
{
    const QPoint pos = designPos(msg);
    QWidget *hit = m_designer.ControlAtPos(pos);
    if (!hit || hit == m_designControl || !m_designer.IsDesignable(hit) || m_designer.IsProtected(hit))
        return;
    if (pos != m_lastClickPos || hit != m_lastClickControl)
        return;
    if (raiseEvent && m_designer.OnControlDblClick)
        m_designer.OnControlDblClick(&m_designer, hit);
}

void TDesignerInput::rightButtonDown(TDesignMessage &msg)
{
    if (m_designControl->focusPolicy() != Qt::NoFocus)
        m_designControl->setFocus(Qt::MouseFocusReason);
    QWidget *hit = m_designer.ControlAtPos(designPos(msg));
    if (hit && hit != m_designControl) {
        if (m_designer.IsProtected(hit)) {
            m_menuControl = nullptr;
            return;
        }
        m_menuControl = hit;
        if (m_designer.ControlIndex(hit) < 0) {
            m_designer.ClearControls();
            m_designer.AddControl(hit);
        }
        return;
    }
    m_menuControl = msg.hwnd == m_designControl ? m_designControl.data() : nullptr;
}

void TDesignerInput::rightButtonUp(TDesignMessage &msg)
{
    if (!m_menuControl)
        return;
    bool handled = false;
    if (m_designer.OnContextPopup)
        m_designer.OnContextPopup(&m_designer, handled);
    if (handled || !m_designer.PopupMenu())
        return;
    QWidget *hit = m_designer.ControlAtPos(designPos(msg));
    if (hit == m_menuControl || m_menuControl == m_designControl)
        QCoreApplication::postEvent(&m_designer, new QEvent(designEventType(FD_POPUPMENU)));
}

// ---- the keyboard ----

TDesignerInput::KeyMode TDesignerInput::keyMode(Qt::KeyboardModifiers shift) const
{
    const bool ctrl = shift & Qt::ControlModifier;
    const bool sh = shift & Qt::ShiftModifier;
    if (!ctrl && !sh)
        return kmSelect;
    if (ctrl && !sh)
        return m_designer.SnapToGridKey() ? kmMoveGrid : kmMovePixel;
    if (ctrl && sh)
        return kmMoveGrid;
    return kmSize;
}

bool TDesignerInput::keyModeAllowed(KeyMode mode) const
{
    return mode == kmSelect ? m_designer.KeySelect() : m_designer.KeyMove();
}

void TDesignerInput::keyDown(TDesignMessage &msg)
{
    QWidget *current = m_designer.currentControl();

    // A protected control with the focus keeps its keys.
    if (m_designer.ProtectMode() == pmLockKeyboard && msg.hwnd) {
        QWidget *owner = m_designer.FindWinControl(msg.hwnd);
        if (owner && m_designer.ControlIndex(owner) >= 0 && m_designer.IsProtected(owner) && msg.hwnd->hasFocus())
            return;
    }

    const KeyMode mode = keyMode(msg.shift);
    if (!keyModeAllowed(mode))
        return;

    if (isTab(msg.key)) {
        const bool back = msg.key == Qt::Key_Backtab || (msg.shift & Qt::ShiftModifier);
        QWidget *next = m_designer.FindNextControl(!back);
        if (next && m_designer.IsDesignable(next)) {
            m_designer.ClearControls();
            m_designer.AddControl(next);
            msg.message = 0;
        }
        return;
    }
    if (msg.key == Qt::Key_Escape) {
        if (m_session.action() != maNone) {
            m_designer.LeaveMouseAction();
        } else if (current) {
            // One level up: the container of the current control.
            QWidget *parent = current->parentWidget();
            while (parent && parent != m_designControl && !m_designer.IsDesignable(parent))
                parent = parent->parentWidget();
            m_designer.ClearControls();
            if (parent && parent != m_designControl)
                m_designer.AddControl(parent);
        }
        msg.message = 0;
        return;
    }
    if (isArrow(msg.key)) {
        const bool designable = current && m_designer.IsDesignable(current);
        m_host.moveSizeByKey(msg.key, mode);
        if (designable)
            msg.message = 0;
        return;
    }
    passKey(&m_designer, m_designer.OnKeyDown, msg);
}

void TDesignerInput::keyUp(TDesignMessage &msg)
{
    if (isTab(msg.key) || isArrow(msg.key)) {
        msg.message = 0;
        return;
    }
    if (!keyModeAllowed(keyMode(msg.shift)))
        return;
    passKey(&m_designer, m_designer.OnKeyUp, msg);
}
