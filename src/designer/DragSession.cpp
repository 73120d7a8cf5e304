// A mouse action while the button is held. The frames live here until the
// button comes up; with DirectMove the controls themselves go along.
#include "DragSession.h"

#include <QApplication>
#include <QLabel>
#include <QScreen>
#include <QToolTip>
#include <algorithm>
#include <cstdlib>

#include "Control.h"
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

QPoint designOrigin(const QWidget *designControl, const QWidget *widget)
{
    if (!designControl || !widget || widget == designControl)
        return QPoint();
    if (designControl->isAncestorOf(widget))
        return widget->mapTo(designControl, QPoint(0, 0));
    return designControl->mapFromGlobal(widget->mapToGlobal(QPoint(0, 0)));
}

void setControlBounds(QWidget *control, const QRect &r)
{
    if (TControl *c = TControl::from(control))
        c->setBounds(r.x(), r.y(), r.width(), r.height());
    else
        control->setGeometry(r);
}

TDragSession::TDragSession(TCustomFormDesigner &designer) : m_designer(designer) {}

TDragSession::~TDragSession()
{
    delete m_hint.data();
}

void TDragSession::setDesignControl(QWidget *designControl)
{
    m_designControl = designControl;
}

// ---- snapping and limits ----

QRect TDragSession::snapRect(const QRect &r) const
{
    const int step = m_designer.GridStep();
    const int left = roundToGrid(r.x(), step);
    const int top = roundToGrid(r.y(), step);
    const int right = roundToGrid(r.x() + r.width(), step);
    const int bottom = roundToGrid(r.y() + r.height(), step);
    return QRect(left, top, right - left, bottom - top);
}

QPoint TDragSession::snapPoint(const QPoint &p) const
{
    const int step = m_designer.GridStep();
    return QPoint(roundToGrid(p.x(), step), roundToGrid(p.y(), step));
}

QRect TDragSession::limitRect(QWidget *control) const
{
    QWidget *parent = control ? control->parentWidget() : nullptr;
    QRect limit = parent ? parent->rect() : QRect();
    if (m_designer.OnMoveLimit)
        m_designer.OnMoveLimit(&m_designer, control, limit);
    return limit;
}

QRect TDragSession::limitedRect(QWidget *control, const QRect &r, const QRect &old, TGrabPosition handle,
                                bool keepInside) const
{
    QPoint minSize(0, 0), maxSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX);
    if (m_designer.OnSizeLimit)
        m_designer.OnSizeLimit(&m_designer, control, minSize, maxSize);
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

// ---- starting ----

void TDragSession::startDrag(QWidget *control, TGrabPosition handle, const QPoint &designPos)
{
    if (!m_designControl || !control || !control->parentWidget())
        return;
    if (m_action != maNone)
        m_designer.LeaveMouseAction();
    m_action = maDragging;
    m_handle = handle;
    m_clickPos = m_cursorPos = designPos;
    m_frames = {{control, control->geometry(), control->geometry()}};
    if (handle == gpNone) {
        // The rest of the selection on the same parent travels along; locked
        // controls stay where they are.
        for (QWidget *c : m_designer.selection()) {
            if (c == control || c->parentWidget() != control->parentWidget() || !m_designer.IsDesignable(c)
                || m_designer.IsLocked(c))
                continue;
            m_frames.append({c, c->geometry(), c->geometry()});
        }
    }
    // Sizing starts at once; a move waits for the drag distance, so that a
    // click stays a click. The hint shows from the press on.
    m_started = handle != gpNone;
    if (m_designer.ShowMoveSizeHint())
        showHintText(dragHintText(), m_designControl->mapToGlobal(designPos));
}

void TDragSession::startSelecting(const QPoint &designPos)
{
    if (!m_designControl)
        return;
    if (m_action != maNone)
        m_designer.LeaveMouseAction();
    m_action = maSelecting;
    m_clickPos = m_cursorPos = designPos;
    m_selectRect = QRect(designPos, QSize(0, 0));
    m_started = false;
    // The band selects within one container: the surface's children from the
    // surface, a container's children when started (with Ctrl) on a
    // container, otherwise the siblings of the control under the click.
    QWidget *hit = m_designer.ControlAtPos(designPos);
    if (!hit || hit == m_designControl) {
        m_container = m_designControl;
    } else {
        const TControl *c = TControl::from(hit);
        m_container = c && c->classInfo().acceptsControls ? hit : hit->parentWidget();
    }
}

void TDragSession::startPlacing(QWidget *parent, const QPoint &designPos)
{
    if (!m_designControl)
        return;
    if (m_action != maNone)
        m_designer.LeaveMouseAction();
    m_action = maPlacing;
    m_container = parent ? parent : m_designControl.data();
    m_clickPos = m_cursorPos = designPos;
    m_placeRect = QRect(designPos, QSize(0, 0));
    m_started = false;
}

// ---- while the button is held ----

void TDragSession::dragTo(QPoint designPos, Qt::KeyboardModifiers shift)
{
    QWidget *control = m_frames.isEmpty() ? nullptr : m_frames.first().control.data();
    QWidget *parent = control ? control->parentWidget() : nullptr;
    if (!parent) {
        m_designer.LeaveMouseAction();
        return;
    }
    m_cursorPos = designPos;
    if (!m_started) {
        if (!pastDragDistance(m_clickPos, designPos))
            return;
        m_started = true;
    }
    const bool keepInside = m_designer.MoveLimitMode() == lmControls;
    if (!keepInside) {
        // lmCursor: the cursor is held over the limit rectangle; the control
        // itself may hang out of it.
        const QRect limit = limitRect(control).translated(designOrigin(m_designControl, parent));
        designPos = QPoint(clampTo(designPos.x(), limit.left(), limit.right()),
                           clampTo(designPos.y(), limit.top(), limit.bottom()));
    }
    int dx = designPos.x() - m_clickPos.x();
    int dy = designPos.y() - m_clickPos.y();
    const bool snap = m_designer.SnapToGrid() && !(shift & Qt::AltModifier); // Alt suspends the grid
    const QRect start = m_frames.first().origin;

    if (m_handle == gpNone) {
        if (m_designer.EnableAxisDrag() && (shift & Qt::ControlModifier) && dx != 0 && dy != 0) {
            if (std::abs(dy) > std::abs(dx))
                dx = 0;
            else
                dy = 0;
        }
        if (snap) {
            dx = roundToGrid(dx, m_designer.GridStep());
            dy = roundToGrid(dy, m_designer.GridStep());
        }
        QRect r = start.translated(dx, dy);
        if (snap)
            r = snapRect(r);
        if (keepInside)
            r = limitedRect(control, r, start, gpNone, true);
        // Everyone else travels as far as the grabbed control did.
        const QPoint travel = r.topLeft() - start.topLeft();
        for (Frame &f : m_frames)
            f.rect = f.origin.translated(travel);
        m_frames.first().rect = r;
    } else {
        int left = start.x(), top = start.y();
        int right = left + start.width(), bottom = top + start.height();
        if (movesLeft(m_handle))
            left += dx;
        if (movesRight(m_handle))
            right += dx;
        if (movesTop(m_handle))
            top += dy;
        if (movesBottom(m_handle))
            bottom += dy;
        QRect r(left, top, right - left, bottom - top); // may be turned over until limited
        if (snap)
            r = snapRect(r);
        m_frames.first().rect = limitedRect(control, r, start, m_handle, keepInside);
    }

    if (m_designer.DirectMove()) {
        for (const Frame &f : std::as_const(m_frames))
            if (f.control)
                setControlBounds(f.control, f.rect);
        m_designer.UpdateGrabs();
    }
    emit changed();
}

void TDragSession::moveTo(const QPoint &designPos, Qt::KeyboardModifiers shift, const QPoint &globalPos,
                          bool showHint)
{
    const bool hint = showHint && m_designer.ShowMoveSizeHint();
    switch (m_action) {
    case maDragging: {
        dragTo(designPos, shift);
        if (hint && m_action == maDragging)
            showHintText(dragHintText(), globalPos);
        break;
    }
    case maSelecting:
        m_cursorPos = designPos;
        m_selectRect = spanned(m_clickPos, designPos);
        emit changed();
        if (hint)
            showHintText(QString::asprintf("%d, %d", designPos.x(), designPos.y()), globalPos);
        break;
    case maPlacing: {
        m_cursorPos = designPos;
        if (!m_started && pastDragDistance(m_clickPos, designPos))
            m_started = true;
        if (m_started) {
            const QRect r = spanned(m_clickPos, designPos);
            m_placeRect = m_designer.SnapToGrid() && !(shift & Qt::AltModifier) ? snapRect(r) : r;
            emit changed();
        }
        if (hint)
            showHintText(QString::asprintf("%d, %d", designPos.x(), designPos.y()), globalPos);
        break;
    }
    case maNone:
        break;
    }
}

// ---- ending without applying ----

void TDragSession::reset()
{
    m_action = maNone;
    m_started = false;
    m_handle = gpNone;
    m_frames.clear();
    m_selectRect = QRect();
    m_placeRect = QRect();
    m_container = nullptr;
    hideHint();
    // Qt's implicit grab ends with the button; an explicit one is let go here.
    if (QWidget *grabber = QWidget::mouseGrabber();
        grabber && m_designControl && (grabber == m_designControl || m_designControl->isAncestorOf(grabber)))
        grabber->releaseMouse();
    emit changed();
}

void TDragSession::cancel()
{
    if (m_action != maDragging || !m_designer.DirectMove() || !m_started) {
        reset();
        return;
    }
    // The controls went along with the mouse: they go back.
    const QList<Frame> frames = m_frames;
    reset();
    for (const Frame &f : frames)
        if (f.control && f.control->geometry() != f.origin)
            setControlBounds(f.control, f.origin);
    m_designer.UpdateGrabs();
}

// ---- the move/size hint ----

QString TDragSession::dragHintText() const
{
    const QRect r = dragRect();
    return m_handle == gpNone ? QString::asprintf("%d, %d", r.x(), r.y())
                              : QString::asprintf("%d x %d", r.width(), r.height());
}

void TDragSession::showHintText(const QString &text, const QPoint &globalPos)
{
    if (!m_hint) {
        // A window of its own, like a tooltip; the session deletes it.
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

void TDragSession::hideHint()
{
    if (m_hint)
        m_hint->hide();
}
