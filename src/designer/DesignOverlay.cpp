// The glass above the design control: it paints what the engine is doing
// (frames, rubber band, alignment lines, multi-selection marks) and lets
// every mouse event through to the controls below.
#include <QEvent>
#include <QPainter>

#include "Components.h"
#include "DesignerWidgets.h"
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

TDesignOverlay::TDesignOverlay(TCustomFormDesigner *designer, QWidget *designControl)
    : QWidget(designControl), m_designer(designer)
{
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setAttribute(Qt::WA_NoSystemBackground);
    setFocusPolicy(Qt::NoFocus);
    setGeometry(designControl->rect());
    designControl->installEventFilter(this);
    // The design control may go first and take the overlay with it; the
    // engine must not hold on to it then. A QPointer would not do: the engine
    // compares against the overlay while it is half destroyed, and a
    // QPointer<TDesignOverlay> casts it to a type it no longer has.
    connect(this, &QObject::destroyed, designer, [designer, this] {
        if (designer->m_overlay == this)
            designer->m_overlay = nullptr;
    });
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
    const TCustomFormDesigner &d = *m_designer;
    if (d.ControlCount() <= 1)
        return;
    for (const QPointer<QWidget> &c : d.m_controls) {
        if (!c || !c->parentWidget() || !c->isVisible())
            continue;
        const QRect bounds(d.designOrigin(c->parentWidget()) + c->pos(), c->size());
        const TGrabType type = d.IsLocked(c) ? gtLocked : gtMulti;
        const QPixmap mark = d.grabBitmap(type);
        for (int pos = gpLeftTop; pos <= gpRightBottom; ++pos) {
            const QRect r = TGrabHandles::handleRect(d.m_grabMode, d.m_grabSize, bounds, TGrabPosition(pos));
            if (mark.isNull())
                p.fillRect(r, d.m_grabFill[type].toQColor());
            else
                p.drawPixmap(r, mark);
        }
    }
}

void TDesignOverlay::paintDragFrames(QPainter &p)
{
    const TCustomFormDesigner &d = *m_designer;
    if (d.m_mouseAction == maSelecting) {
        if (d.m_selectRect.isEmpty())
            return;
        QPen pen(kFrameColor, 1, Qt::DotLine);
        p.setPen(pen);
        p.setBrush(Qt::NoBrush);
        p.drawRect(d.m_selectRect.adjusted(0, 0, -1, -1));
        return;
    }
    QPen pen(kFrameColor, 2);
    pen.setJoinStyle(Qt::MiterJoin);
    p.setPen(pen);
    p.setBrush(Qt::NoBrush);
    if (d.m_mouseAction == maPlacing && d.m_dragStarted) {
        drawFrame(p, d.m_placeRect);
        return;
    }
    // With DirectMove the controls themselves show where they go.
    if (d.m_mouseAction != maDragging || !d.m_dragStarted || d.m_directMove)
        return;
    for (int i = 0; i < d.m_dragRects.size() && i < d.m_dragControls.size(); ++i) {
        const QWidget *c = d.m_dragControls.at(i);
        if (c && c->parentWidget())
            drawFrame(p, d.m_dragRects.at(i).translated(d.designOrigin(c->parentWidget())));
    }
}

void TDesignOverlay::paintAlignmentLines(QPainter &p)
{
    const TCustomFormDesigner &d = *m_designer;
    if (d.m_mouseAction != maDragging || !d.m_dragStarted || !d.m_alignmentLines)
        return;
    const QWidget *control = d.m_dragControls.value(0);
    const QWidget *parent = control ? control->parentWidget() : nullptr;
    if (!parent)
        return;

    // Siblings compare in their parent's coordinates; across the whole form
    // everything compares in the design control's.
    const bool entire = d.m_alignmentEntireForm;
    const bool moving = d.m_dragHandle == gpNone;
    const QPoint parentOrigin = d.designOrigin(parent);
    const QRect drag = entire ? d.m_dragRect.translated(parentOrigin) : d.m_dragRect;
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
        if (d.m_directMove && moving && d.ControlIndex(w) >= 0)
            continue;
        const QRect b = entire ? w->geometry().translated(d.designOrigin(wParent)) : w->geometry();
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
    const int width = std::max(1, d.m_alignmentLineWidth);
    for (int i = 0; i < 4; ++i) {
        if (!(d.m_alignmentLines & edges[i]) || !spans[i].hit)
            continue;
        Span span = spans[i];
        const bool vertical = i == 0 || i == 2;
        if (vertical)
            span.add(drag.y(), dragBottom);
        else
            span.add(drag.x(), dragRight);
        const QRect line = vertical ? QRect(at[i] - width / 2, span.from, width, span.to - span.from)
                                    : QRect(span.from, at[i] - width / 2, span.to - span.from, width);
        p.fillRect(line.translated(toOverlay), d.m_alignmentColor[i].toQColor());
    }
}
