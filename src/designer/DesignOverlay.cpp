// The glass above the design control: it paints what the engine is doing
// (frames, rubber band, alignment lines, multi-selection marks) and lets
// every mouse event through to the controls below.
#include <QEvent>
#include <QPainter>

#include "Components.h"
#include "DesignerWidgets.h"
#include "DragSession.h"
#include "FormDesigner.h"

namespace {
const QColor kFrameColor(128, 128, 128);

// Inside the rectangle, so a frame covers exactly the pixels of the control.
void drawFrame(QPainter &p, const QRect &r)
{
    p.drawRect(QRectF(r).adjusted(1, 1, -1, -1));
}

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
} // namespace

TDesignOverlay::TDesignOverlay(const TCustomFormDesigner &designer, const TDragSession &session,
                               QWidget *designControl)
    : QWidget(designControl), m_designer(designer), m_session(session)
{
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setAttribute(Qt::WA_NoSystemBackground);
    setFocusPolicy(Qt::NoFocus);
    setGeometry(designControl->rect());
    designControl->installEventFilter(this);
    connect(&session, &TDragSession::changed, this, qOverload<>(&QWidget::update));
    raise();
    show();
}

bool TDesignOverlay::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == parentWidget()) {
        switch (event->type()) {
        case QEvent::Resize:
            setGeometry(parentWidget()->rect());
            break;
        case QEvent::ChildAdded:
            // New controls go on top; the overlay stays above them.
            if (static_cast<QChildEvent *>(event)->child() != this)
                raise();
            break;
        default:
            break;
        }
    }
    return QWidget::eventFilter(watched, event);
}

void TDesignOverlay::paintEvent(QPaintEvent *)
{
    QPainter p(this);
    paintMultiSelection(p);
    paintDragFrames(p);
    paintAlignmentLines(p);
}

void TDesignOverlay::paintMultiSelection(QPainter &p)
{
    // One selected control has handle windows of its own; more get marks.
    const TCustomFormDesigner &d = m_designer;
    if (d.ControlCount() <= 1)
        return;
    const QWidget *surface = parentWidget();
    for (QWidget *c : d.selection()) {
        if (!c->parentWidget() || !c->isVisible())
            continue;
        const QRect bounds(designOrigin(surface, c->parentWidget()) + c->pos(), c->size());
        const QPixmap mark = d.grabBitmap(d.IsLocked(c) ? gtLocked : gtMulti);
        for (int pos = gpLeftTop; pos <= gpRightBottom; ++pos)
            p.drawPixmap(TGrabHandles::handleRect(d.GrabMode(), d.GrabSize(), bounds, TGrabPosition(pos)), mark);
    }
}

void TDesignOverlay::paintDragFrames(QPainter &p)
{
    const TDragSession &s = m_session;
    if (s.action() == maSelecting) {
        if (s.selectRect().isEmpty())
            return;
        QPen pen(kFrameColor, 1, Qt::DotLine);
        p.setPen(pen);
        p.setBrush(Qt::NoBrush);
        p.drawRect(s.selectRect().adjusted(0, 0, -1, -1));
        return;
    }
    QPen pen(kFrameColor, 2);
    pen.setJoinStyle(Qt::MiterJoin);
    p.setPen(pen);
    p.setBrush(Qt::NoBrush);
    if (s.action() == maPlacing && s.started()) {
        drawFrame(p, s.placeRect());
        return;
    }
    // With DirectMove the controls themselves show where they go.
    if (s.action() != maDragging || !s.started() || m_designer.DirectMove())
        return;
    for (const TDragSession::Frame &f : s.frames())
        if (f.control && f.control->parentWidget())
            drawFrame(p, f.rect.translated(designOrigin(parentWidget(), f.control->parentWidget())));
}

void TDesignOverlay::paintAlignmentLines(QPainter &p)
{
    const TCustomFormDesigner &d = m_designer;
    const TDragSession &s = m_session;
    if (s.action() != maDragging || !s.started() || !d.AlignmentLines())
        return;
    const QWidget *control = s.frames().isEmpty() ? nullptr : s.frames().first().control.data();
    const QWidget *parent = control ? control->parentWidget() : nullptr;
    if (!parent)
        return;

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
        p.fillRect(line.translated(toOverlay), colors[i].toQColor());
    }
}
