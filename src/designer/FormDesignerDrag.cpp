// Moving and sizing controls with the mouse, the rubber band, and placing new
// controls. While the button is held a drag lives in m_dragRects and shows on
// the overlay (or, with DirectMove, on the controls themselves); the controls
// take their bounds and the change is reported once, on the button up.
#include <QApplication>
#include <QLabel>
#include <QScreen>
#include <QToolTip>
#include <algorithm>
#include <cstdlib>

#include "Components.h"
#include "Control.h"
#include "ControlClasses.h"
#include "DesignerWidgets.h"
#include "FormDesigner.h"

namespace {
// Nearest multiple of step, ties to the even multiple (4 → 0, 12 → 16 with 8),
// the way the grid has always rounded.
int roundToGrid(int v, int step)
{
    if (step <= 1)
        return v;
    int q = v / step;
    int r = v % step;
    if (r < 0) {
        r += step;
        --q;
    }
    if (2 * r > step || (2 * r == step && (q & 1)))
        ++q;
    return q * step;
}

// lo wins over hi, so an empty range pins the value to its start.
int clampTo(int v, int lo, int hi)
{
    return std::max(lo, std::min(v, hi));
}

bool movesLeft(TGrabPosition h)
{
    return h == gpLeftTop || h == gpLeftMiddle || h == gpLeftBottom;
}

bool movesRight(TGrabPosition h)
{
    return h == gpRightTop || h == gpRightMiddle || h == gpRightBottom;
}

bool movesTop(TGrabPosition h)
{
    return h == gpLeftTop || h == gpMiddleTop || h == gpRightTop;
}

bool movesBottom(TGrabPosition h)
{
    return h == gpLeftBottom || h == gpMiddleBottom || h == gpRightBottom;
}

// From one corner to the other, whichever way the mouse went.
QRect spanned(const QPoint &a, const QPoint &b)
{
    return QRect(QPoint(std::min(a.x(), b.x()), std::min(a.y(), b.y())),
                 QSize(std::abs(b.x() - a.x()), std::abs(b.y() - a.y())));
}

bool pastDragDistance(const QPoint &from, const QPoint &to)
{
    return (to - from).manhattanLength() >= QApplication::startDragDistance();
}
} // namespace

// ---- coordinates and limits ----

QPoint TCustomFormDesigner::designOrigin(const QWidget *widget) const
{
    if (!m_attached || !widget || widget == m_attached)
        return QPoint();
    if (m_attached->isAncestorOf(widget))
        return widget->mapTo(m_attached, QPoint(0, 0));
    return m_attached->mapFromGlobal(widget->mapToGlobal(QPoint(0, 0)));
}

QPoint TCustomFormDesigner::messageDesignPos(const TDesignMessage &msg) const
{
    // The pressed widget keeps the mouse while the button is held, even when
    // it moves along (DirectMove) or the cursor leaves it.
    if (msg.hwnd && isInDesignControl(msg.hwnd))
        return msg.hwnd->mapTo(m_attached, msg.pos);
    return m_attached->mapFromGlobal(msg.pt);
}

QRect TCustomFormDesigner::snapRect(const QRect &r) const
{
    const int left = roundToGrid(r.x(), m_gridStep);
    const int top = roundToGrid(r.y(), m_gridStep);
    const int right = roundToGrid(r.x() + r.width(), m_gridStep);
    const int bottom = roundToGrid(r.y() + r.height(), m_gridStep);
    return QRect(left, top, right - left, bottom - top);
}

QPoint TCustomFormDesigner::snapPoint(const QPoint &p) const
{
    return QPoint(roundToGrid(p.x(), m_gridStep), roundToGrid(p.y(), m_gridStep));
}

QRect TCustomFormDesigner::limitRect(QWidget *control) const
{
    QWidget *parent = control ? control->parentWidget() : nullptr;
    QRect limit = parent ? parent->rect() : QRect();
    if (OnMoveLimit)
        OnMoveLimit(const_cast<TCustomFormDesigner *>(this), control, limit);
    return limit;
}

void TCustomFormDesigner::sizeLimits(QWidget *control, QPoint &minSize, QPoint &maxSize) const
{
    minSize = QPoint(0, 0);
    maxSize = QPoint(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX);
    if (OnSizeLimit)
        OnSizeLimit(const_cast<TCustomFormDesigner *>(this), control, minSize, maxSize);
}

QRect TCustomFormDesigner::applyLimits(QWidget *control, const QRect &r, bool sizing) const
{
    // The keyboard sizes with the right and bottom edges.
    return limitedRect(control, r, control->geometry(), sizing ? gpRightBottom : gpNone, true);
}

QRect TCustomFormDesigner::limitedRect(QWidget *control, const QRect &r, const QRect &old, TGrabPosition handle,
                                       bool keepInside) const
{
    QPoint minSize, maxSize;
    sizeLimits(control, minSize, maxSize);
    const int minW = std::max(0, minSize.x()), minH = std::max(0, minSize.y());
    const int maxW = std::max(minW, maxSize.x()), maxH = std::max(minH, maxSize.y());

    if (handle == gpNone) {
        // A move: the size stays within its limits and the rectangle inside
        // the limit; one larger than the limit keeps its size at its start.
        const int w = clampTo(r.width(), minW, maxW), h = clampTo(r.height(), minH, maxH);
        int left = r.x(), top = r.y();
        if (keepInside) {
            const QRect limit = limitRect(control);
            left = w > limit.width() ? limit.x() : clampTo(left, limit.x(), limit.x() + limit.width() - w);
            top = h > limit.height() ? limit.y() : clampTo(top, limit.y(), limit.y() + limit.height() - h);
        }
        return QRect(left, top, w, h);
    }

    int left = r.x(), top = r.y(), right = r.x() + r.width(), bottom = r.y() + r.height();
    if (keepInside) {
        // A grabbed edge stops at the limit, or where it already was when it
        // started outside, so sizing never pulls the far side in.
        const QRect limit = limitRect(control);
        if (movesLeft(handle))
            left = std::max(left, std::min(limit.x(), old.x()));
        if (movesRight(handle))
            right = std::min(right, std::max(limit.x() + limit.width(), old.x() + old.width()));
        if (movesTop(handle))
            top = std::max(top, std::min(limit.y(), old.y()));
        if (movesBottom(handle))
            bottom = std::min(bottom, std::max(limit.y() + limit.height(), old.y() + old.height()));
    }
    // Never below the minimum (0: no negative sizes, no flipping over); the
    // grabbed edge gives way.
    const int w = clampTo(right - left, minW, maxW);
    if (w != right - left) {
        if (movesLeft(handle))
            left = right - w;
        else
            right = left + w;
    }
    const int h = clampTo(bottom - top, minH, maxH);
    if (h != bottom - top) {
        if (movesTop(handle))
            top = bottom - h;
        else
            bottom = top + h;
    }
    return QRect(left, top, right - left, bottom - top);
}

void TCustomFormDesigner::setControlBounds(QWidget *control, const QRect &r)
{
    if (TControl *c = TControl::from(control))
        c->setBounds(r.x(), r.y(), r.width(), r.height());
    else
        control->setGeometry(r);
}

// ---- starting ----

void TCustomFormDesigner::startDrag(QWidget *control, TGrabPosition handle, const QPoint &designPos)
{
    if (!m_attached || !control || !control->parentWidget())
        return;
    if (m_mouseAction != maNone)
        LeaveMouseAction();
    m_mouseAction = maDragging;
    m_dragHandle = handle;
    m_clickPos = m_cursorPos = m_dragPoint = designPos;
    m_controlRect = m_dragRect = control->geometry();
    m_dragControls = {control};
    m_dragOrigins = {m_controlRect};
    if (handle == gpNone) {
        // The rest of the selection on the same parent travels along; locked
        // controls stay where they are.
        for (const QPointer<QWidget> &c : std::as_const(m_controls)) {
            if (!c || c == control || c->parentWidget() != control->parentWidget() || !IsDesignable(c)
                || IsLocked(c))
                continue;
            m_dragControls << c;
            m_dragOrigins << c->geometry();
        }
    }
    m_dragRects = m_dragOrigins;
    // Sizing starts at once; a move waits for the drag distance, so that a
    // click stays a click.
    m_dragStarted = handle != gpNone;
}

void TCustomFormDesigner::startSelecting(const QPoint &designPos)
{
    if (!m_attached)
        return;
    if (m_mouseAction != maNone)
        LeaveMouseAction();
    m_mouseAction = maSelecting;
    m_clickPos = m_cursorPos = designPos;
    m_selectRect = QRect(designPos, QSize(0, 0));
    m_dragStarted = false;
    // The band selects within one container: the surface's children from the
    // surface, a container's children when started (with Ctrl) on a
    // container, otherwise the siblings of the control under the click.
    QWidget *hit = ControlAtPos(designPos);
    if (!hit || hit == m_attached) {
        m_selectParent = m_attached;
    } else {
        const TControl *c = TControl::from(hit);
        m_selectParent = c && c->classInfo().acceptsControls ? hit : hit->parentWidget();
    }
}

void TCustomFormDesigner::startPlacing(QWidget *parent, const QPoint &designPos)
{
    if (!m_attached || m_placeClass.isEmpty())
        return;
    if (m_mouseAction != maNone)
        LeaveMouseAction();
    m_mouseAction = maPlacing;
    m_placeParent = parent ? parent : m_attached.data();
    m_clickPos = m_cursorPos = designPos;
    m_placeRect = QRect(designPos, QSize(0, 0));
    m_dragStarted = false;
}

// ---- while the button is held ----

void TCustomFormDesigner::dragTo(QPoint designPos, Qt::KeyboardModifiers shift)
{
    QWidget *control = m_dragControls.value(0);
    QWidget *parent = control ? control->parentWidget() : nullptr;
    if (!parent) {
        LeaveMouseAction();
        return;
    }
    m_cursorPos = designPos;
    if (!m_dragStarted) {
        if (!pastDragDistance(m_dragPoint, designPos))
            return;
        m_dragStarted = true;
    }
    const bool keepInside = m_moveLimitMode == lmControls;
    if (!keepInside) {
        // lmCursor: the cursor is held over the limit rectangle; the control
        // itself may hang out of it.
        const QRect limit = limitRect(control).translated(designOrigin(parent));
        designPos = QPoint(clampTo(designPos.x(), limit.left(), limit.right()),
                           clampTo(designPos.y(), limit.top(), limit.bottom()));
    }
    int dx = designPos.x() - m_dragPoint.x();
    int dy = designPos.y() - m_dragPoint.y();
    const bool snap = m_snapToGrid && !(shift & Qt::AltModifier); // Alt suspends the grid

    if (m_dragHandle == gpNone) {
        if (m_enableAxisDrag && (shift & Qt::ControlModifier) && dx != 0 && dy != 0) {
            if (std::abs(dy) > std::abs(dx))
                dx = 0;
            else
                dy = 0;
        }
        if (snap) {
            dx = roundToGrid(dx, m_gridStep);
            dy = roundToGrid(dy, m_gridStep);
        }
        QRect r = m_controlRect.translated(dx, dy);
        if (snap)
            r = snapRect(r);
        if (keepInside)
            r = limitedRect(control, r, m_controlRect, gpNone, true);
        m_dragRect = r;
        m_dragRects[0] = r;
        // Everyone else travels as far as the current control did.
        const QPoint travel = r.topLeft() - m_controlRect.topLeft();
        for (int i = 1; i < m_dragRects.size(); ++i)
            m_dragRects[i] = m_dragOrigins.at(i).translated(travel);
    } else {
        int left = m_controlRect.x(), top = m_controlRect.y();
        int right = left + m_controlRect.width(), bottom = top + m_controlRect.height();
        if (movesLeft(m_dragHandle))
            left += dx;
        if (movesRight(m_dragHandle))
            right += dx;
        if (movesTop(m_dragHandle))
            top += dy;
        if (movesBottom(m_dragHandle))
            bottom += dy;
        QRect r(left, top, right - left, bottom - top); // may be turned over until limited
        if (snap)
            r = snapRect(r);
        r = limitedRect(control, r, m_controlRect, m_dragHandle, keepInside);
        m_dragRect = r;
        m_dragRects[0] = r;
    }

    if (m_directMove) {
        for (int i = 0; i < m_dragControls.size(); ++i)
            if (QWidget *c = m_dragControls.at(i))
                setControlBounds(c, m_dragRects.at(i));
        UpdateGrabs();
    }
    if (m_overlay)
        m_overlay->update();
}

void TCustomFormDesigner::mouseMoveAction(TDesignMessage &msg)
{
    if (!m_attached) {
        resetMouseAction();
        return;
    }
    const QPoint pos = messageDesignPos(msg);
    const bool snap = m_snapToGrid && !(msg.shift & Qt::AltModifier);
    switch (m_mouseAction) {
    case maDragging:
        dragTo(pos, msg.shift);
        if (m_mouseAction == maDragging && m_dragStarted && m_showMoveSizeHint)
            updateHint(m_dragHandle == gpNone ? QString::asprintf("%d, %d", m_dragRect.x(), m_dragRect.y())
                                              : QString::asprintf("%d x %d", m_dragRect.width(), m_dragRect.height()),
                       msg.pt);
        break;
    case maSelecting:
        m_cursorPos = pos;
        m_selectRect = spanned(m_clickPos, pos);
        if (m_overlay)
            m_overlay->update();
        if (m_showMoveSizeHint)
            updateHint(QString::asprintf("%d, %d", pos.x(), pos.y()), msg.pt);
        break;
    case maPlacing:
        m_cursorPos = pos;
        if (!m_dragStarted && pastDragDistance(m_clickPos, pos))
            m_dragStarted = true;
        if (m_dragStarted) {
            const QRect r = spanned(m_clickPos, pos);
            m_placeRect = snap ? snapRect(r) : r;
            if (m_overlay)
                m_overlay->update();
        }
        if (m_showMoveSizeHint)
            updateHint(QString::asprintf("%d, %d", pos.x(), pos.y()), msg.pt);
        break;
    case maNone:
        break;
    }
}

// ---- the button up ----

void TCustomFormDesigner::mouseUpAction(TDesignMessage &msg)
{
    if (!m_attached) {
        resetMouseAction();
        return;
    }
    // The release point counts as a last move; where there was a move to it
    // already, what the frame shows is what the controls get.
    const QPoint pos = messageDesignPos(msg);
    switch (m_mouseAction) {
    case maDragging:
        if (pos != m_cursorPos)
            dragTo(pos, msg.shift);
        if (m_mouseAction == maDragging)
            finishDrag();
        break;
    case maSelecting:
        m_selectRect = spanned(m_clickPos, pos);
        finishSelecting(msg.shift);
        break;
    case maPlacing:
        if (pos != m_cursorPos)
            mouseMoveAction(msg);
        finishPlacing(msg.shift);
        break;
    case maNone:
        break;
    }
}

void TCustomFormDesigner::finishDrag()
{
    const bool started = m_dragStarted;
    const QList<QPointer<QWidget>> controls = m_dragControls;
    const QList<QRect> rects = m_dragRects, origins = m_dragOrigins;
    resetMouseAction();
    if (!started)
        return;
    QList<QPointer<QWidget>> changed;
    for (int i = 0; i < controls.size(); ++i) {
        QWidget *c = controls.at(i);
        if (!c)
            continue;
        if (c->geometry() != rects.at(i))
            setControlBounds(c, rects.at(i));
        if (c->geometry() != origins.at(i))
            changed << c;
    }
    UpdateGrabs();
    for (const QPointer<QWidget> &c : std::as_const(changed))
        if (c)
            DoMoveSizeControl(c);
    if (!changed.isEmpty())
        DoChange();
}

void TCustomFormDesigner::finishSelecting(Qt::KeyboardModifiers shift)
{
    QRect r = m_selectRect.normalized();
    QPointer<QWidget> parent = m_selectParent ? m_selectParent : m_attached;
    resetMouseAction();
    if (OnEndSelecting)
        OnEndSelecting(this, r);
    if (!parent)
        return;
    // Candidates in z-order, bottom first: creation order unless raised or
    // lowered since. The first one hit becomes the current control.
    const QPoint origin = designOrigin(parent);
    QList<QPointer<QWidget>> hits;
    for (QObject *o : parent->children()) {
        if (!o->isWidgetType())
            continue;
        auto *w = static_cast<QWidget *>(o);
        if (w->isHidden() || !IsDesignable(w) || IsProtected(w))
            continue;
        const QRect bounds = w->geometry().translated(origin);
        if (m_selectInBox ? r.contains(bounds) : r.intersects(bounds))
            hits << w;
    }
    // Shift or Ctrl add to the selection; otherwise the band replaces it.
    if (!(shift & (Qt::ShiftModifier | Qt::ControlModifier)))
        ClearControls();
    for (const QPointer<QWidget> &w : std::as_const(hits))
        if (w)
            AddControl(w);
}

void TCustomFormDesigner::finishPlacing(Qt::KeyboardModifiers shift)
{
    const bool snap = m_snapToGrid && !(shift & Qt::AltModifier);
    // A plain click asks for the class's default size at the click point.
    QRect r = m_dragStarted ? m_placeRect : QRect(snap ? snapPoint(m_clickPos) : m_clickPos, QSize(0, 0));
    const QString className = m_placeClass;
    QPointer<QWidget> parent = m_placeParent ? m_placeParent.data() : m_attached.data();
    resetMouseAction();
    if (OnEndPlacing)
        OnEndPlacing(this, r);
    if (!parent || !ControlClasses::find(className)) {
        m_placeClass.clear();
        return;
    }
    CreateComponentClassName(className, parent, r.translated(-designOrigin(parent)));
}

// ---- ending without applying ----

void TCustomFormDesigner::resetMouseAction()
{
    m_mouseAction = maNone;
    m_dragStarted = false;
    m_dragHandle = gpNone;
    m_dragControls.clear();
    m_dragOrigins.clear();
    m_dragRects.clear();
    m_dragRect = QRect();
    m_selectRect = QRect();
    m_placeRect = QRect();
    m_placeParent = nullptr;
    m_selectParent = nullptr;
    hideHint();
    // Qt's implicit grab ends with the button; an explicit one is let go here.
    if (QWidget *grabber = QWidget::mouseGrabber(); grabber && isInDesignControl(grabber))
        grabber->releaseMouse();
    if (m_overlay)
        m_overlay->update();
}

void TCustomFormDesigner::LeaveMouseAction()
{
    if (m_mouseAction == maDragging && m_directMove && m_dragStarted) {
        // The controls went along with the mouse: they go back.
        const QList<QPointer<QWidget>> controls = m_dragControls;
        const QList<QRect> origins = m_dragOrigins;
        resetMouseAction();
        for (int i = 0; i < controls.size(); ++i)
            if (QWidget *c = controls.at(i); c && c->geometry() != origins.at(i))
                setControlBounds(c, origins.at(i));
        UpdateGrabs();
        return;
    }
    resetMouseAction();
}

// ---- the placing tool ----

void TCustomFormDesigner::PlaceComponentClassName(const QString &className)
{
    if (className.isEmpty()) {
        CancelPlacing();
        return;
    }
    const TClassInfo *info = ControlClasses::find(className);
    if (!info)
        throw EFormDesigner(QStringLiteral("Class %1 not found").arg(className));
    if (m_mouseAction == maPlacing)
        LeaveMouseAction();
    m_placeClass = info->className;
}

void TCustomFormDesigner::CancelPlacing()
{
    m_placeClass.clear();
    if (m_mouseAction == maPlacing)
        LeaveMouseAction();
}

QWidget *TCustomFormDesigner::CreateComponentClassName(const QString &className, QWidget *parent,
                                                       const QRect &bounds)
{
    QWidget *w = ControlClasses::create(className);
    if (!w)
        throw EFormDesigner(QStringLiteral("Class %1 not found").arg(className));
    QWidget *form = ParentForm();
    Components::setOwner(w, form);
    AutoName(w, form);
    if (!parent)
        parent = m_attached ? m_attached.data() : designControlOrForm();
    w->setParent(parent);
    // An empty extent keeps the class's own default for it.
    const QSize size(bounds.width() > 0 ? bounds.width() : w->width(),
                     bounds.height() > 0 ? bounds.height() : w->height());
    setControlBounds(w, QRect(bounds.topLeft(), size));
    w->show();
    m_placeClass.clear();
    if (m_active && IsDesignable(w)) {
        ClearControls();
        AddControl(w);
    }
    if (OnPlaceComponent)
        OnPlaceComponent(this, w);
    DoChange();
    return w;
}

// ---- the move/size hint ----

void TCustomFormDesigner::updateHint(const QString &text, const QPoint &globalPos)
{
    if (!m_hint) {
        // A window of its own, like a tooltip; the engine deletes it.
        m_hint = new QLabel(nullptr, Qt::ToolTip | Qt::FramelessWindowHint);
        m_hint->setAttribute(Qt::WA_TransparentForMouseEvents);
        m_hint->setAttribute(Qt::WA_ShowWithoutActivating);
        m_hint->setPalette(QToolTip::palette());
        m_hint->setFont(QToolTip::font());
        m_hint->setFrameStyle(QFrame::Box | QFrame::Plain);
        m_hint->setMargin(2);
        m_hint->setAutoFillBackground(true);
    }
    m_hint->setText(text);
    m_hint->adjustSize();
    // Below and right of the cursor, clear of its arrow; flipped to the other
    // side where the screen ends.
    QPoint at = globalPos + QPoint(12, 18);
    const QScreen *screen = QGuiApplication::screenAt(globalPos);
    if (!screen)
        screen = QGuiApplication::primaryScreen();
    if (screen) {
        const QRect area = screen->availableGeometry();
        if (at.x() + m_hint->width() > area.right())
            at.setX(globalPos.x() - m_hint->width() - 4);
        if (at.y() + m_hint->height() > area.bottom())
            at.setY(globalPos.y() - m_hint->height() - 4);
    }
    m_hint->move(at);
    if (!m_hint->isVisible())
        m_hint->show();
}

void TCustomFormDesigner::hideHint()
{
    if (m_hint)
        m_hint->hide();
}
