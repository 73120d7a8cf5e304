// The shared edit style and how an edit control draws it.
#include "EditStyle.h"

#include <QEvent>
#include <QLinearGradient>
#include <QMouseEvent>
#include <QPainter>

#include "Control.h"

TcxEditStyleController::TcxEditStyleController(QObject *parent) : QObject(parent)
{
}

void TcxEditStyleController::changed()
{
    emit styleChanged();
}

void TcxEditStyleController::setBorderColor(TColor color)
{
    m_borderColor = color;
    changed();
}

void TcxEditStyleController::setBorderStyle(TcxEditBorderStyle style)
{
    m_borderStyle = style;
    changed();
}

void TcxEditStyleController::setButtonStyle(TcxEditButtonStyle style)
{
    m_buttonStyle = style;
    changed();
}

void TcxEditStyleController::setButtonTransparency(TcxEditButtonTransparence transparency)
{
    m_buttonTransparency = transparency;
    changed();
}

void TcxEditStyleController::setEdges(int edges)
{
    m_edges = edges & kAllEdges;
    changed();
}

void TcxEditStyleController::setHotTrack(bool hotTrack)
{
    m_hotTrack = hotTrack;
    changed();
}

void TcxEditStyleController::setShadow(bool shadow)
{
    m_shadow = shadow;
    changed();
}

void TcxEditStyleController::setGradient(bool gradient)
{
    m_gradient = gradient;
    changed();
}

// --- Edit style ------------------------------------------------------------

namespace {
// The widest border, the ring of the widget's own frame painted over.
constexpr int kStyleFrame = 2;
constexpr int kStyleShadow = 2;
} // namespace

// Lies over the whole control, above its inner widgets (line edit of a combo
// box, viewport of a memo), so the border it draws replaces the widget's own
// frame. The mouse passes through to the control.
class TEditStyleOverlay : public QWidget
{
public:
    TEditStyleOverlay(QWidget *control, bool borders) : QWidget(control), m_control(control), m_borders(borders)
    {
        setAttribute(Qt::WA_TransparentForMouseEvents);
        setAttribute(Qt::WA_NoSystemBackground);
        setFocusPolicy(Qt::NoFocus);
        setGeometry(control->rect());
        control->installEventFilter(this);
        raise();
        show();
    }

    void setController(TcxEditStyleController *controller)
    {
        if (m_controller)
            disconnect(m_controller, nullptr, this, nullptr);
        m_controller = controller;
        if (controller) {
            connect(controller, &TcxEditStyleController::styleChanged, this, [this] { restyle(); });
            connect(controller, &QObject::destroyed, this, [this] { setController(nullptr); });
        }
        setVisible(controller != nullptr);
        restyle();
    }

protected:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (watched != m_control)
            return false;
        switch (event->type()) {
        case QEvent::Resize:
            setGeometry(m_control->rect());
            applyBackground(); // the gradient spans the height
            break;
        case QEvent::PaletteChange:
            // A new Color arrives as a plain brush; the gradient is laid over it again.
            if (!m_settingPalette)
                applyBackground();
            break;
        case QEvent::ChildPolished:
            if (static_cast<QChildEvent *>(event)->child() != this)
                raise();
            break;
        case QEvent::Enter:
        case QEvent::Leave: {
            const TControl *control = TControl::from(m_control);
            const bool hovered = event->type() == QEvent::Enter && !(control && control->isDesigning());
            if (hovered != m_hovered) {
                m_hovered = hovered;
                update();
            }
            break;
        }
        default:
            break;
        }
        return false;
    }

    void paintEvent(QPaintEvent *) override
    {
        if (!m_controller)
            return;
        QPainter p(this);
        const QPalette pal = m_control->palette();
        QRect frame = rect();
        if (m_controller->Shadow()) {
            frame.adjust(0, 0, -kStyleShadow, -kStyleShadow);
            paintShadow(p);
        }
        const bool hot = m_hovered && m_controller->HotTrack();
        if (!m_borders) {
            if (hot)
                line(p, frame, kAllEdges, 0, pal.color(QPalette::Highlight), pal.color(QPalette::Highlight));
            return;
        }
        // The widget's own frame goes; the text area keeps its place.
        const QRegion ring = QRegion(frame).subtracted(
            QRegion(frame.adjusted(kStyleFrame, kStyleFrame, -kStyleFrame, -kStyleFrame)));
        p.setClipRegion(ring);
        p.fillRect(frame, pal.brush(QPalette::Base));
        p.setClipping(false);
        paintBorder(p, frame, pal, hot);
    }

private:
    // A 1-px line at the given inset on each edge set.
    static void line(QPainter &p, const QRect &frame, int edges, int inset, const QColor &topLeft,
                     const QColor &bottomRight)
    {
        const QRect r = frame.adjusted(inset, inset, -inset, -inset);
        if (r.width() <= 0 || r.height() <= 0)
            return;
        if (edges & bTop)
            p.fillRect(QRect(r.left(), r.top(), r.width(), 1), topLeft);
        if (edges & bLeft)
            p.fillRect(QRect(r.left(), r.top(), 1, r.height()), topLeft);
        if (edges & bBottom)
            p.fillRect(QRect(r.left(), r.bottom(), r.width(), 1), bottomRight);
        if (edges & bRight)
            p.fillRect(QRect(r.right(), r.top(), 1, r.height()), bottomRight);
    }

    void paintBorder(QPainter &p, const QRect &frame, const QPalette &pal, bool hot) const
    {
        const int edges = m_controller->Edges();
        const TColor borderColor = m_controller->BorderColor();
        auto colorOr = [&](const QColor &fallback) {
            return borderColor.isDefault() || borderColor.isNone() ? fallback : borderColor.toQColor(pal);
        };
        const QColor highlight = pal.color(QPalette::Highlight);
        switch (m_controller->BorderStyle()) {
        case ebsNone:
            if (hot)
                line(p, frame, edges, 0, highlight, highlight);
            break;
        case ebsSingle: {
            const QColor c = hot ? highlight : colorOr(pal.color(QPalette::Dark));
            line(p, frame, edges, 0, c, c);
            break;
        }
        case ebsThick: {
            const QColor c = hot ? highlight : colorOr(pal.color(QPalette::Dark));
            line(p, frame, edges, 0, c, c);
            line(p, frame, edges, 1, c, c);
            break;
        }
        case ebsFlat: {
            const QColor c = hot ? highlight : pal.color(QPalette::Dark);
            line(p, frame, edges, 0, c, c);
            break;
        }
        case ebs3D:
            if (hot) {
                line(p, frame, edges, 0, highlight, highlight);
                line(p, frame, edges, 1, highlight, highlight);
            } else {
                // Sunken: dark above and left, light below and right.
                line(p, frame, edges, 0, pal.color(QPalette::Dark), pal.color(QPalette::Light));
                line(p, frame, edges, 1, pal.color(QPalette::Shadow), pal.color(QPalette::Midlight));
            }
            break;
        case ebsUltraFlat:
        case ebsOffice11: {
            const QColor c = hot ? highlight : colorOr(QColor(0x7f, 0x9d, 0xb9));
            line(p, frame, edges, 0, c, c);
            break;
        }
        }
    }

    // Along the right and bottom, offset by its width, on the parent's background.
    void paintShadow(QPainter &p) const
    {
        const QWidget *parent = m_control->parentWidget();
        const QColor back = (parent ? parent->palette() : m_control->palette()).color(QPalette::Window);
        const int w = width();
        const int h = height();
        const int s = kStyleShadow;
        p.fillRect(QRect(w - s, 0, s, s), back);
        p.fillRect(QRect(0, h - s, s, s), back);
        const QColor shade = back.darker(170);
        p.fillRect(QRect(w - s, s, s, h - s), shade);
        p.fillRect(QRect(s, h - s, w - 2 * s, s), shade);
    }

    void restyle()
    {
        applyBackground();
        update();
        m_control->update();
    }

    // The text area's background: the control's colour, shaded downwards with Gradient.
    void applyBackground()
    {
        if (!m_borders)
            return;
        QPalette pal = m_control->palette();
        const QBrush current = pal.brush(QPalette::Base);
        if (current.style() == Qt::SolidPattern)
            m_base = current.color();
        QBrush wanted(m_base);
        if (m_controller && m_controller->Gradient()) {
            QLinearGradient gradient(0, 0, 0, qMax(1, m_control->height()));
            gradient.setColorAt(0, m_base);
            gradient.setColorAt(1, m_base.darker(125));
            wanted = QBrush(gradient);
        }
        if (current == wanted)
            return;
        pal.setBrush(QPalette::Base, wanted);
        m_settingPalette = true;
        m_control->setPalette(pal);
        m_settingPalette = false;
    }

    QWidget *m_control;
    bool m_borders;
    QPointer<TcxEditStyleController> m_controller;
    QColor m_base = Qt::white;
    bool m_hovered = false;
    bool m_settingPalette = false;
};

void TEditStyled::setStyleController(TcxEditStyleController *controller)
{
    m_styleController = controller;
    auto *overlay = static_cast<TEditStyleOverlay *>(m_styleOverlay.data());
    if (!controller) {
        // Back to the control's own look.
        if (overlay) {
            overlay->setController(nullptr);
            delete overlay;
        }
        m_styledSelf->update();
        return;
    }
    if (!overlay) {
        overlay = new TEditStyleOverlay(m_styledSelf, m_styledBorders);
        m_styleOverlay = overlay;
    }
    overlay->setController(controller);
}
