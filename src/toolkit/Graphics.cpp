#include "Graphics.h"

#include <QFileInfo>
#include <QImageReader>
#include <QPainter>
#include <QPainterPath>

#include "CommonProps.h"

using PropBuilder::prop;

namespace {
QColor shadowColor(const QWidget *w)
{
    return Colors::clBtnShadow.toQColor(w->palette());
}

QColor highlightColor(const QWidget *w)
{
    return Colors::clBtnHighlight.toQColor(w->palette());
}
} // namespace

// ---- TBevel ----

TBevel::TBevel(QWidget *parent) : TControlT<QWidget>(parent)
{
    setTransparent(true);
    resize(50, 50);
    attachToParent();
}

const TClassInfo &TBevel::staticClassInfo()
{
    namespace P = CommonProps;
    static const TClassInfo info{
        QStringLiteral("TBevel"),
        {
            P::Left(), P::Top(), P::Width(), P::Height(), P::Align(),
            prop("Shape", &TBevel::Shape, &TBevel::setShape, enumNames<TBevelShape>(), QVariant(int(bsBox))),
            prop("Style", &TBevel::Style, &TBevel::setStyle, enumNames<TBevelStyle>(), QVariant(int(bsLowered))),
            P::Tag(), P::Hint(), P::ShowHint(), P::HelpKeyword(), P::Visible(),
        },
        [] { return new TBevel; }};
    return info;
}

void TBevel::setShape(TBevelShape shape)
{
    noteChange();
    m_shape = shape;
    update();
}

void TBevel::setStyle(TBevelStyle style)
{
    noteChange();
    m_style = style;
    update();
}

void TBevel::paintEvent(QPaintEvent *)
{
    QPainter p(this);
    // Lowered: dark edge top/left, light edge bottom/right; raised the other way.
    const QColor c1 = m_style == bsLowered ? shadowColor(this) : highlightColor(this);
    const QColor c2 = m_style == bsLowered ? highlightColor(this) : shadowColor(this);
    const int w = width(), h = height();
    auto line = [&p](const QColor &c, int x1, int y1, int x2, int y2) {
        p.setPen(c);
        p.drawLine(x1, y1, x2, y2);
    };
    switch (m_shape) {
    case bsBox:
        line(c1, 0, 0, w - 1, 0);
        line(c1, 0, 0, 0, h - 1);
        line(c2, 0, h - 1, w - 1, h - 1);
        line(c2, w - 1, 0, w - 1, h - 1);
        break;
    case bsFrame:
        // Two offset rectangles give the etched frame.
        p.setPen(c1);
        p.drawRect(0, 0, w - 2, h - 2);
        p.setPen(c2);
        p.drawRect(1, 1, w - 2, h - 2);
        break;
    case bsTopLine:
        line(c1, 0, 0, w - 1, 0);
        line(c2, 0, 1, w - 1, 1);
        break;
    case bsBottomLine:
        line(c1, 0, h - 2, w - 1, h - 2);
        line(c2, 0, h - 1, w - 1, h - 1);
        break;
    case bsLeftLine:
        line(c1, 0, 0, 0, h - 1);
        line(c2, 1, 0, 1, h - 1);
        break;
    case bsRightLine:
        line(c1, w - 2, 0, w - 2, h - 1);
        line(c2, w - 1, 0, w - 1, h - 1);
        break;
    case bsSpacer:
        if (isDesigning()) {
            p.setPen(QPen(palette().color(QPalette::WindowText), 1, Qt::DotLine));
            p.drawRect(rect().adjusted(0, 0, -1, -1));
        }
        break;
    }
}

// ---- TShape ----

TShape::TShape(QWidget *parent) : TControlT<QWidget>(parent)
{
    setTransparent(true);
    resize(65, 65);
    attachToParent();
}

const TClassInfo &TShape::staticClassInfo()
{
    namespace P = CommonProps;
    static const TClassInfo info{
        QStringLiteral("TShape"),
        {
            P::Left(), P::Top(), P::Width(), P::Height(), P::Align(),
            prop("Brush.Color", &TShape::BrushColor, &TShape::setBrushColor, {},
                 QVariant::fromValue(Colors::clWhite)),
            prop("Pen.Color", &TShape::PenColor, &TShape::setPenColor, {}, QVariant::fromValue(Colors::clBlack)),
            prop("Pen.Width", &TShape::PenWidth, &TShape::setPenWidth, {}, QVariant(1)),
            prop("Shape", &TShape::Shape, &TShape::setShape, enumNames<TShapeType>(), QVariant(int(stRectangle))),
            P::Tag(), P::Hint(), P::ShowHint(), P::HelpKeyword(), P::Visible(),
        },
        [] { return new TShape; }};
    return info;
}

void TShape::setShape(TShapeType shape)
{
    noteChange();
    m_shape = shape;
    update();
}

void TShape::setBrushColor(TColor color)
{
    noteChange();
    m_brushColor = color;
    update();
}

void TShape::setPenColor(TColor color)
{
    noteChange();
    m_penColor = color;
    update();
}

void TShape::setPenWidth(int width)
{
    noteChange();
    m_penWidth = std::clamp(width, 0, 100);
    update();
}

void TShape::paintEvent(QPaintEvent *)
{
    QPainter p(this);
    p.setRenderHint(QPainter::Antialiasing, m_shape >= stRoundRect);
    QPen pen(m_penColor.toQColor(palette()), m_penWidth);
    pen.setJoinStyle(Qt::MiterJoin);
    p.setPen(m_penWidth > 0 ? pen : QPen(Qt::NoPen));
    p.setBrush(m_brushColor.toQColor(palette()));

    // Square kinds use the largest square centred in the control.
    QRectF r(0, 0, width(), height());
    if (m_shape == stSquare || m_shape == stRoundSquare || m_shape == stCircle) {
        const qreal side = std::min(r.width(), r.height());
        r = QRectF(r.center().x() - side / 2, r.center().y() - side / 2, side, side);
    }
    const qreal inset = m_penWidth / 2.0;
    r.adjust(inset, inset, -inset - (m_penWidth % 2 ? 1 : 0), -inset - (m_penWidth % 2 ? 1 : 0));
    switch (m_shape) {
    case stRectangle:
    case stSquare:
        p.drawRect(r);
        break;
    case stRoundRect:
    case stRoundSquare: {
        const qreal radius = std::min(r.width(), r.height()) / 4;
        p.drawRoundedRect(r, radius, radius);
        break;
    }
    case stEllipse:
    case stCircle:
        p.drawEllipse(r);
        break;
    }
}

// ---- pictures ----

namespace {
constexpr qint64 kMaxPictureFileSize = qint64(64) << 20;
}

TPictureControl::TPictureControl(QWidget *parent) : TControlT<QWidget>(parent)
{
    setTransparent(true);
}

void TPictureControl::setFileName(const QString &fileName)
{
    noteChange();
    m_fileName = fileName;
    m_image = QImage();
    // Only a regular file of sane size is read: a pipe, a terminal or a
    // device named in a mask file would block loading for good.
    const QFileInfo info(fileName);
    if (!fileName.isEmpty() && info.isFile() && info.size() <= kMaxPictureFileSize) {
        QImageReader reader(fileName);
        reader.setAutoTransform(true);
        // Refuse pictures that would need more than 256 MB decoded.
        const QSize size = reader.size();
        if (!size.isValid() || qint64(size.width()) * size.height() <= 64ll * 1024 * 1024)
            m_image = reader.read();
    }
    update();
}

void TPictureControl::setStretch(bool stretch)
{
    noteChange();
    m_stretch = stretch;
    update();
}

void TPictureControl::paintEvent(QPaintEvent *)
{
    QPainter p(this);
    if (!m_image.isNull()) {
        QRect target(QPoint(0, 0), m_image.size());
        const bool tooBig = m_image.width() > width() || m_image.height() > height();
        if (keepAspect()) {
            // Scaled into the control without distortion, centred.
            if (m_stretch || tooBig)
                target.setSize(m_image.size().scaled(size(), Qt::KeepAspectRatio));
            target.moveCenter(rect().center());
        } else if (m_stretch) {
            target = rect();
        }
        p.setRenderHint(QPainter::SmoothPixmapTransform);
        p.drawImage(target, m_image);
        return;
    }
    if (!isDesigning())
        return;
    // No picture: show the area and a small landscape symbol in its corner,
    // clear of a note such as "Kein Bild vorhanden" placed beneath it.
    p.setPen(QPen(palette().color(QPalette::Dark), 1, Qt::DashLine));
    p.drawRect(rect().adjusted(0, 0, -1, -1));
    const int s = std::min({width(), height(), 32}) - 8;
    if (s < 8)
        return;
    const QRect icon(4, 4, s, s * 3 / 4);
    p.setRenderHint(QPainter::Antialiasing);
    p.setPen(QPen(palette().color(QPalette::Dark), 1));
    p.setBrush(Qt::NoBrush);
    p.drawRect(icon);
    QPainterPath hills;
    hills.moveTo(icon.left(), icon.bottom());
    hills.lineTo(icon.left() + icon.width() / 3, icon.top() + icon.height() / 2);
    hills.lineTo(icon.left() + icon.width() / 2, icon.top() + icon.height() * 2 / 3);
    hills.lineTo(icon.left() + icon.width() * 3 / 4, icon.top() + icon.height() / 3);
    hills.lineTo(icon.right(), icon.bottom());
    p.drawPath(hills);
}

TImage::TImage(QWidget *parent) : TPictureControl(parent)
{
    resize(105, 105);
    attachToParent();
}

const TClassInfo &TImage::staticClassInfo()
{
    namespace P = CommonProps;
    static const TClassInfo info{
        QStringLiteral("TImage"),
        {
            P::Left(), P::Top(), P::Width(), P::Height(), P::Align(),
            prop("FileName", &TPictureControl::FileName, &TPictureControl::setFileName, {}, QVariant(QString())),
            prop("Stretch", &TPictureControl::Stretch, &TPictureControl::setStretch, {}, QVariant(false)),
            P::Tag(), P::Hint(), P::ShowHint(), P::HelpKeyword(), P::Visible(),
        },
        [] { return new TImage; }};
    return info;
}

TImageAspect::TImageAspect(QWidget *parent) : TPictureControl(parent)
{
    resize(105, 105);
    attachToParent();
}

const TClassInfo &TImageAspect::staticClassInfo()
{
    namespace P = CommonProps;
    static const TClassInfo info{
        QStringLiteral("TImageAspect"),
        {
            P::Left(), P::Top(), P::Width(), P::Height(), P::Align(),
            prop("AutoSize", &TImageAspect::AutoSize, &TImageAspect::setAutoSize, {}, QVariant(false)),
            prop("FileName", &TPictureControl::FileName, &TPictureControl::setFileName, {}, QVariant(QString())),
            P::Tag(), P::Hint(), P::ShowHint(), P::HelpKeyword(), P::Visible(),
        },
        [] { return new TImageAspect; }};
    return info;
}
