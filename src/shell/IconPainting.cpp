#include "IconPainting.h"

#include <QFont>
#include <QFontDatabase>
#include <QPainterPath>
#include <QPixmap>

namespace IconPainting {

QIcon makeIcon(const std::function<void(QPainter &)> &draw)
{
    QIcon icon;
    for (int size : {16, 20, 24, 32, 48}) {
        QPixmap pixmap(size, size);
        pixmap.fill(Qt::transparent);
        QPainter p(&pixmap);
        p.setRenderHint(QPainter::Antialiasing);
        p.setRenderHint(QPainter::TextAntialiasing);
        p.scale(size / 24.0, size / 24.0);
        draw(p);
        p.end();
        icon.addPixmap(pixmap);
    }
    return icon;
}

void outlineRect(QPainter &p, const QRectF &rect, const QColor &fill, const QColor &pen)
{
    p.setPen(QPen(pen, 1));
    p.setBrush(fill);
    p.drawRect(rect);
}

void sunkenField(QPainter &p, const QRectF &rect)
{
    outlineRect(p, rect, kField, QColor(0x7a, 0x7a, 0x7a));
    p.setPen(QPen(QColor(0xd8, 0xd8, 0xd8), 1));
    p.drawLine(QPointF(rect.left() + 1, rect.bottom() - 1), QPointF(rect.right() - 1, rect.bottom() - 1));
}

void page(QPainter &p, const QRectF &r, bool lines)
{
    const qreal ear = 5;
    QPainterPath path;
    path.moveTo(r.left(), r.top());
    path.lineTo(r.right() - ear, r.top());
    path.lineTo(r.right(), r.top() + ear);
    path.lineTo(r.right(), r.bottom());
    path.lineTo(r.left(), r.bottom());
    path.closeSubpath();
    p.setPen(QPen(kOutline, 1));
    p.setBrush(kField);
    p.drawPath(path);

    QPainterPath fold;
    fold.moveTo(r.right() - ear, r.top());
    fold.lineTo(r.right() - ear, r.top() + ear);
    fold.lineTo(r.right(), r.top() + ear);
    p.setBrush(QColor(0xd0, 0xd0, 0xd0));
    p.drawPath(fold);

    if (lines) {
        p.setPen(QPen(kLine, 1));
        for (qreal y = r.top() + 8; y < r.bottom() - 2; y += 3)
            p.drawLine(QPointF(r.left() + 3, y), QPointF(r.right() - 3, y));
    }
}

void window(QPainter &p, const QRectF &r)
{
    outlineRect(p, r, kField, kOutline);
    p.setPen(Qt::NoPen);
    p.setBrush(kAccent);
    p.drawRect(QRectF(r.left() + 0.5, r.top() + 0.5, r.width() - 1, 3));
}

void text(QPainter &p, const QRectF &rect, const QString &s, int pixelSize, bool bold, const QColor &color,
          Qt::Alignment align)
{
    QFont font = QFontDatabase::systemFont(QFontDatabase::GeneralFont);
    font.setPixelSize(pixelSize);
    font.setBold(bold);
    p.setFont(font);
    p.setPen(color);
    p.drawText(rect, int(align), s);
}

} // namespace IconPainting
