#include "IconPainting.h"

#include <QApplication>
#include <QFont>
#include <QFontDatabase>
#include <QHash>
#include <QIconEngine>
#include <QPainterPath>
#include <QPixmap>
#include <QStyle>
#include <QStyleOption>

namespace IconPainting {

namespace {

// Draws the pictogram when a size is first asked for, instead of rendering
// every size of every icon at start-up; most icons are only ever shown at
// one size, many (menu entries) not before their menu opens.
class PaintedIconEngine : public QIconEngine
{
public:
    explicit PaintedIconEngine(std::function<void(QPainter &)> draw)
        : m_draw(std::move(draw))
    {
    }

    void paint(QPainter *painter, const QRect &rect, QIcon::Mode mode, QIcon::State state) override
    {
        const qreal scale = painter->device() ? painter->device()->devicePixelRatioF() : 1.0;
        painter->drawPixmap(rect, scaledPixmap(rect.size(), mode, state, scale));
    }

    QSize actualSize(const QSize &size, QIcon::Mode, QIcon::State) override
    {
        const int side = qMin(size.width(), size.height());
        return QSize(side, side);
    }

    QPixmap pixmap(const QSize &size, QIcon::Mode mode, QIcon::State state) override
    {
        return scaledPixmap(size, mode, state, 1.0);
    }

    QPixmap scaledPixmap(const QSize &size, QIcon::Mode mode, QIcon::State, qreal scale) override
    {
        const int side = qMax(1, qRound(qMin(size.width(), size.height()) * scale));
        const quint64 key = (quint64(side) << 24) | (quint64(qRound(scale * 100)) << 8) | quint64(mode);
        auto cached = m_cache.constFind(key);
        if (cached != m_cache.cend())
            return *cached;
        QPixmap pixmap(side, side);
        pixmap.fill(Qt::transparent);
        {
            QPainter p(&pixmap);
            p.setRenderHint(QPainter::Antialiasing);
            p.setRenderHint(QPainter::TextAntialiasing);
            p.scale(side / 24.0, side / 24.0);
            m_draw(p);
        }
        if (mode != QIcon::Normal && qApp) {
            QStyleOption option;
            option.palette = QApplication::palette();
            pixmap = QApplication::style()->generatedIconPixmap(mode, pixmap, &option);
        }
        pixmap.setDevicePixelRatio(scale);
        m_cache.insert(key, pixmap);
        return pixmap;
    }

    QList<QSize> availableSizes(QIcon::Mode, QIcon::State) override
    {
        return {QSize(16, 16), QSize(20, 20), QSize(24, 24), QSize(32, 32), QSize(48, 48)};
    }

    QIconEngine *clone() const override { return new PaintedIconEngine(*this); }
    QString key() const override { return QStringLiteral("ferolith-painted"); }

private:
    std::function<void(QPainter &)> m_draw;
    QHash<quint64, QPixmap> m_cache;
};

} // namespace

QIcon makeIcon(const std::function<void(QPainter &)> &draw)
{
    return QIcon(new PaintedIconEngine(draw));
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
