// The glass above the design control: it paints what the engine is doing
// (frames, rubber band, alignment lines, multi-selection marks) and lets
// every mouse event through to the controls below.
#include <QEvent>
#include <QPaintEvent>
#include <QPainter>

#include "Components.h"
#include "DesignerWidgets.h"
#include "DragSession.h"
#include "FormDesigner.h"

namespace {
const QColor kFrameColor(128, 128, 128);

// The extent along one edge that matching controls cover.
struct Span
{
    bool hit = false;
    int from = 0;
    int to = 0;

    void add(int a, int b)
    {
        from = hit ? std::min(from, a) : a;
        to = hit ? std::max(to, b) : b;
        hit = true;
    }
};

// A frame covers the outer pixels of its rectangle only; so does its repaint.
void updateOutline(QWidget *w, const QRect &r)
{
    constexpr int band = 3;
    if (r.width() <= 2 * band || r.height() <= 2 * band) {
        w->update(r.adjusted(-1, -1, 1, 1));
        return;
    }
    w->update(QRect(r.left() - 1, r.top() - 1, r.width() + 2, band + 1));
    w->update(QRect(r.left() - 1, r.bottom() - band + 1, r.width() + 2, band + 1));
    w->update(QRect(r.left() - 1, r.top() + band, band + 1, r.height() - 2 * band));
    w->update(QRect(r.right() - band + 1, r.top() + band, band + 1, r.height() - 2 * band));
}
} // namespace

TDesignStill::TDesignStill(QWidget *designControl)
    : QWidget(designControl)
{
    setObjectName(QStringLiteral("_designStill"));
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setAttribute(Qt::WA_OpaquePaintEvent);
    setAttribute(Qt::WA_NoSystemBackground);
    setFocusPolicy(Qt::NoFocus);
    hide();
}

void TDesignStill::paintEvent(QPaintEvent *event)
{
    QPainter p(this);
    const qreal ratio = m_picture.devicePixelRatio();
    for (const QRect &r : event->region())
        p.drawPixmap(QRectF(r), m_picture, QRectF(QPointF(r.topLeft()) * ratio, QSizeF(r.size()) * ratio));
}

TDesignOverlay::TDesignOverlay(const TCustomFormDesigner &designer, const TDragSession &session,
                               QWidget *designControl)
    : QWidget(designControl), m_designer(designer), m_session(session)
{
    m_stillWidget = new TDesignStill(designControl);
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setAttribute(Qt::WA_NoSystemBackground);
    setFocusPolicy(Qt::NoFocus);
    setGeometry(designControl->rect());
    designControl->installEventFilter(this);
    connect(&session, &TDragSession::changed, this, &TDesignOverlay::refresh);
    raise();
    show();
}

TDesignOverlay::~TDesignOverlay()
{
    delete m_stillWidget.data();
}

bool TDesignOverlay::onTopBut(const QWidget *newcomer) const
{
    const QWidget *parent = parentWidget();
    const QObjectList &siblings = parent ? parent->children() : QObjectList();
    for (auto it = siblings.crbegin(); it != siblings.crend(); ++it) {
        if (*it == this)
            return true;
        if (*it != newcomer && (*it)->isWidgetType() && !static_cast<QWidget *>(*it)->isWindow())
            return false;
    }
    return false;
}

void TDesignOverlay::keepOnTop()
{
    // Raising repaints the whole glass even where nothing moves.
    QWidget *parent = parentWidget();
    const QObjectList &siblings = parent ? parent->children() : QObjectList();
    for (auto it = siblings.crbegin(); it != siblings.crend(); ++it) {
        if (*it == this)
            return;
        if ((*it)->isWidgetType() && !static_cast<QWidget *>(*it)->isWindow())
            break;
    }
    raise();
}

bool TDesignOverlay::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == parentWidget()) {
        switch (event->type()) {
        case QEvent::Resize:
            dropStill();
            setGeometry(parentWidget()->rect());
            break;
        case QEvent::Move:
            // Scrolled: the picture no longer shows what lies below.
            dropStill();
            break;
        case QEvent::ChildAdded: {
            // New controls go on top; the overlay stays above them. Putting
            // the newcomer under the overlay gives the same order without
            // repainting the whole glass, as raising it would.
            QObject *child = static_cast<QChildEvent *>(event)->child();
            if (child == this)
                break;
            auto *w = child->isWidgetType() ? static_cast<QWidget *>(child) : nullptr;
            if (w && !w->isWindow() && onTopBut(w))
                w->stackUnder(this);
            else
                keepOnTop();
            break;
        }
        default:
            break;
        }
    }
    return QWidget::eventFilter(watched, event);
}

void TDesignOverlay::refresh()
{
    // Each layer repaints where it was and where it is, when it changed.
    const auto renew = [](auto &shown, const auto &now, auto erase) {
        if (now == shown)
            return;
        for (const auto &item : std::as_const(shown))
            erase(item);
        for (const auto &item : now)
            erase(item);
        shown = now;
    };
    // Frames show only while nothing below moves (see dragFrames).
    const QList<QRect> frames = dragFrames();
    const bool framesOnly = !frames.isEmpty();
    if (framesOnly && m_still.isNull())
        takeStill();
    else if (!framesOnly && !m_still.isNull())
        dropStill();
    renew(m_marks, multiSelectionMarks(), [this](const Mark &m) { update(m.rect); });
    const auto eraseFrame = [this](const QRect &r) { updateOutline(this, r); };
    const bool band = m_session.action() == maSelecting;
    if (band != m_band) {
        // Another look: the old frames go even where new ones lie.
        renew(m_frames, QList<QRect>(), eraseFrame);
        m_band = band;
    }
    renew(m_frames, frames, eraseFrame);
    renew(m_lines, alignmentLines(), [this](const Line &l) { update(l.rect); });
}

QRect TDesignOverlay::shownRect() const
{
    // What the windows around the overlay leave visible of it.
    QRect shown = rect();
    QPoint offset;
    for (const QWidget *w = this; w && !w->isWindow(); w = w->parentWidget()) {
        offset += w->pos();
        if (const QWidget *parent = w->parentWidget())
            shown &= parent->rect().translated(-offset);
    }
    return shown;
}

void TDesignOverlay::takeStill()
{
    QWidget *below = parentWidget();
    const QRect shown = shownRect();
    if (!below || !m_stillWidget || shown.isEmpty() || !isVisible())
        return;
    m_grabbing = true;
    m_still = below->grab(shown.translated(pos()));
    m_grabbing = false;
    m_stillWidget->setPicture(m_still);
    m_stillWidget->setGeometry(shown.translated(pos()));
    m_stillWidget->stackUnder(this);
    m_stillWidget->show();
}

void TDesignOverlay::dropStill()
{
    if (m_still.isNull())
        return;
    m_still = QPixmap();
    // What changed below while the picture covered it shows again.
    if (m_stillWidget) {
        m_stillWidget->hide();
        m_stillWidget->setPicture(QPixmap());
    }
}

void TDesignOverlay::paintEvent(QPaintEvent *event)
{
    if (m_grabbing)
        return;
    QPainter p(this);
    const QRect dirty = event->rect();
    for (const Mark &m : std::as_const(m_marks)) {
        if (!m.rect.intersects(dirty))
            continue;
        p.setClipRect(m.rect);
        p.drawPixmap(m.origin, m.look);
    }
    p.setClipping(false);
    if (m_band) {
        p.setPen(QPen(kFrameColor, 1, Qt::DotLine));
        for (const QRect &r : std::as_const(m_frames))
            p.drawRect(r.adjusted(0, 0, -1, -1));
    } else {
        QPen pen(kFrameColor, 2);
        pen.setJoinStyle(Qt::MiterJoin);
        p.setPen(pen);
        // Inside the rectangle, so a frame covers exactly the pixels of the control.
        for (const QRect &r : std::as_const(m_frames))
            if (r.intersects(dirty))
                p.drawRect(QRectF(r).adjusted(1, 1, -1, -1));
    }
    for (const Line &l : std::as_const(m_lines))
        p.fillRect(l.rect, l.color);
}

QList<TDesignOverlay::Mark> TDesignOverlay::multiSelectionMarks() const
{
    // One selected control has handle windows of its own; more get marks.
    QList<Mark> marks;
    const TCustomFormDesigner &d = m_designer;
    if (d.ControlCount() <= 1)
        return marks;
    const QWidget *surface = parentWidget();
    const QPixmap looks[2] = {d.grabLook(gtMulti), d.grabLook(gtLocked)};
    for (QWidget *c : d.selection()) {
        QWidget *parent = c->parentWidget();
        if (!parent || !c->isVisible())
            continue;
        // Painted on the parent's surface: what lies outside it (and outside
        // the containers around it) does not show.
        QRect clip(designOrigin(surface, parent), parent->size());
        for (const QWidget *a = parent->parentWidget(); a && a != surface; a = a->parentWidget())
            clip &= QRect(designOrigin(surface, a), a->size());
        const QRect bounds(designOrigin(surface, parent) + c->pos(), c->size());
        const QPixmap &look = looks[d.IsLocked(c) ? 1 : 0];
        for (int pos = gpLeftTop; pos <= gpRightBottom; ++pos) {
            const QRect r = TGrabHandles::handleRect(d.GrabMode(), d.GrabSize(), bounds, TGrabPosition(pos));
            if (const QRect shown = r & clip; !shown.isEmpty())
                marks.append({shown, r.topLeft(), look});
        }
    }
    return marks;
}

QList<QRect> TDesignOverlay::dragFrames() const
{
    const TDragSession &s = m_session;
    if (s.action() == maSelecting)
        return s.selectRect().isEmpty() ? QList<QRect>() : QList<QRect>{s.selectRect()};
    if (s.action() == maPlacing && s.started())
        return {s.placeRect()};
    // With DirectMove the controls themselves show where they go.
    QList<QRect> frames;
    if (s.action() != maDragging || !s.started() || m_designer.DirectMove())
        return frames;
    for (const TDragSession::Frame &f : s.frames())
        if (f.control && f.control->parentWidget())
            frames.append(f.rect.translated(designOrigin(parentWidget(), f.control->parentWidget())));
    return frames;
}

QList<TDesignOverlay::Line> TDesignOverlay::alignmentLines() const
{
    QList<Line> lines;
    const TCustomFormDesigner &d = m_designer;
    const TDragSession &s = m_session;
    if (s.action() != maDragging || !s.started() || !d.AlignmentLines())
        return lines;
    const QWidget *control = s.frames().isEmpty() ? nullptr : s.frames().first().control.data();
    const QWidget *parent = control ? control->parentWidget() : nullptr;
    if (!parent)
        return lines;

    // Siblings compare in their parent's coordinates; across the whole form
    // everything compares in the design control's.
    const QWidget *surface = parentWidget();
    const bool entire = d.AlignmentEntireForm();
    const bool moving = s.handle() == gpNone;
    const QPoint parentOrigin = designOrigin(surface, parent);
    const QRect drag = entire ? s.dragRect().translated(parentOrigin) : s.dragRect();
    const QPoint toOverlay = entire ? QPoint() : parentOrigin;
    const int dragRight = drag.x() + drag.width(), dragBottom = drag.y() + drag.height();

    Span spans[4]; // left, top, right, bottom
    for (QObject *o : Components::components(d.ParentForm())) {
        auto *w = qobject_cast<QWidget *>(o);
        if (!w || !d.IsDesignable(w))
            continue;
        const QWidget *wParent = w->parentWidget();
        if (!wParent || !wParent->isVisible() || (!entire && wParent != parent))
            continue;
        // Controls that travel with the mouse would always match themselves.
        if (d.DirectMove() && moving && d.ControlIndex(w) >= 0)
            continue;
        const QRect b = entire ? w->geometry().translated(designOrigin(surface, wParent)) : w->geometry();
        const int right = b.x() + b.width(), bottom = b.y() + b.height();
        if (b.x() == drag.x())
            spans[0].add(b.y(), bottom);
        if (b.y() == drag.y())
            spans[1].add(b.x(), right);
        if (right == dragRight)
            spans[2].add(b.y(), bottom);
        if (bottom == dragBottom)
            spans[3].add(b.x(), right);
    }

    static const TLinePosition edges[4] = {lpLeft, lpTop, lpRight, lpBottom};
    const int at[4] = {drag.x(), drag.y(), dragRight, dragBottom};
    const TColor colors[4] = {d.AlignmentColorLeft(), d.AlignmentColorTop(), d.AlignmentColorRight(),
                              d.AlignmentColorBottom()};
    const int width = std::max(1, d.AlignmentLineWidth());
    for (int i = 0; i < 4; ++i) {
        if (!(d.AlignmentLines() & edges[i]) || !spans[i].hit)
            continue;
        Span span = spans[i];
        const bool vertical = i == 0 || i == 2;
        if (vertical)
            span.add(drag.y(), dragBottom);
        else
            span.add(drag.x(), dragRight);
        const QRect line = vertical ? QRect(at[i] - width / 2, span.from, width, span.to - span.from)
                                    : QRect(span.from, at[i] - width / 2, span.to - span.from, width);
        lines.append({line.translated(toOverlay), colors[i].toQColor()});
    }
    return lines;
}
