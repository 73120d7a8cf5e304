// The pictograms of the menu commands and the program.
#include "PaletteIcons.h"

#include "IconPainting.h"

#include <QPainterPath>
#include <QPolygonF>
#include <QtMath>

using namespace IconPainting;

namespace {

void floppy(QPainter &p, const QRectF &r)
{
    QPainterPath body;
    body.moveTo(r.left(), r.top());
    body.lineTo(r.right() - 3, r.top());
    body.lineTo(r.right(), r.top() + 3);
    body.lineTo(r.right(), r.bottom());
    body.lineTo(r.left(), r.bottom());
    body.closeSubpath();
    p.setPen(QPen(QColor(0x1e, 0x3e, 0x6a), 1));
    p.setBrush(kAccent);
    p.drawPath(body);
    p.setPen(Qt::NoPen);
    p.setBrush(Qt::white);
    p.drawRect(QRectF(r.left() + 3, r.top() + 0.5, r.width() - 7, r.height() * 0.38));
    p.setBrush(QColor(0xd4, 0xd4, 0xd4));
    const QRectF shutter(r.left() + 4, r.bottom() - r.height() * 0.38, r.width() - 8, r.height() * 0.38 - 0.5);
    p.drawRect(shutter);
    p.setBrush(QColor(0x1e, 0x3e, 0x6a));
    p.drawRect(QRectF(shutter.left() + shutter.width() * 0.6, shutter.top() + 1, 2, shutter.height() - 2));
}

void pencil(QPainter &p)
{
    p.save();
    p.translate(17, 17);
    p.rotate(45);
    p.setPen(QPen(QColor(0x60, 0x48, 0x10), 0.8));
    p.setBrush(kYellow);
    p.drawRect(QRectF(-2, -8, 4, 11));
    p.setBrush(QColor(0xf0, 0xd8, 0xb0));
    p.drawPolygon(QPolygonF{{-2, 3}, {2, 3}, {0, 7}});
    p.restore();
}

void redCross(QPainter &p, const QPointF &c, qreal half, qreal width)
{
    p.setPen(QPen(kRed, width, Qt::SolidLine, Qt::RoundCap));
    p.drawLine(c + QPointF(-half, -half), c + QPointF(half, half));
    p.drawLine(c + QPointF(half, -half), c + QPointF(-half, half));
}

void curvedArrow(QPainter &p, bool left)
{
    p.save();
    if (!left) {
        p.translate(24, 0);
        p.scale(-1, 1);
    }
    QPainterPath path;
    path.moveTo(19, 19);
    path.cubicTo(20, 11, 14, 7.5, 8, 9);
    p.setPen(QPen(kAccent, 2.6, Qt::SolidLine, Qt::RoundCap));
    p.setBrush(Qt::NoBrush);
    p.drawPath(path);
    p.setPen(Qt::NoPen);
    p.setBrush(kAccent);
    p.drawPolygon(QPolygonF{{2.5, 9.5}, {9.5, 4}, {10, 14.5}});
    p.restore();
}

void drawNew(QPainter &p)
{
    page(p, QRectF(4.5, 1.5, 15, 21));
    p.setPen(Qt::NoPen);
    p.setBrush(kYellow);
    p.drawPolygon(QPolygonF{{7, 3}, {8.2, 6}, {11.2, 6.2}, {8.8, 8}, {9.8, 11}, {7, 9.2},
                            {4.2, 11}, {5.2, 8}, {2.8, 6.2}, {5.8, 6}});
}

void drawOpen(QPainter &p)
{
    p.setPen(QPen(QColor(0x9a, 0x6c, 0x10), 1, Qt::SolidLine, Qt::SquareCap, Qt::RoundJoin));
    p.setBrush(QColor(0xe0, 0xa8, 0x30));
    p.drawPolygon(QPolygonF{{1.5, 5.5}, {8, 5.5}, {10, 7.5}, {19.5, 7.5}, {19.5, 19.5}, {1.5, 19.5}});
    p.setBrush(QColor(0xf8, 0xd8, 0x68));
    p.drawPolygon(QPolygonF{{1.5, 19.5}, {5.5, 10.5}, {23, 10.5}, {19.5, 19.5}});
}

void drawSave(QPainter &p) { floppy(p, QRectF(3.5, 3.5, 17, 17)); }

void drawSaveAs(QPainter &p)
{
    floppy(p, QRectF(1.5, 1.5, 16, 16));
    pencil(p);
}

void drawClose(QPainter &p)
{
    page(p, QRectF(2.5, 1.5, 14, 19), true);
    redCross(p, QPointF(17.5, 17.5), 3.5, 2.6);
}

void drawExit(QPainter &p)
{
    p.setPen(QPen(kOutline, 1));
    p.setBrush(QColor(0x9a, 0x6a, 0x3a));
    p.drawRect(QRectF(3.5, 2.5, 11, 19));
    p.setBrush(QColor(0xf0, 0xd0, 0x60));
    p.drawEllipse(QPointF(12, 12.5), 1, 1);
    p.setPen(QPen(kRed, 2.2, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    p.drawLine(QPointF(15, 12), QPointF(22, 12));
    p.drawLine(QPointF(19, 9), QPointF(22, 12));
    p.drawLine(QPointF(19, 15), QPointF(22, 12));
}

void drawCut(QPainter &p)
{
    p.setPen(QPen(QColor(0x70, 0x70, 0x70), 1.6, Qt::SolidLine, Qt::RoundCap));
    p.drawLine(QPointF(9, 15), QPointF(16, 2.5));
    p.drawLine(QPointF(15, 15), QPointF(8, 2.5));
    p.setPen(QPen(kRed, 1.8));
    p.setBrush(Qt::NoBrush);
    p.drawEllipse(QPointF(7.5, 18), 3, 3);
    p.drawEllipse(QPointF(16.5, 18), 3, 3);
}

void drawCopy(QPainter &p)
{
    page(p, QRectF(2.5, 1.5, 12, 15), true);
    page(p, QRectF(9.5, 7.5, 12, 15), true);
}

void drawPaste(QPainter &p)
{
    p.setPen(QPen(QColor(0x6a, 0x44, 0x18), 1));
    p.setBrush(QColor(0xb8, 0x80, 0x40));
    p.drawRoundedRect(QRectF(2.5, 3.5, 14, 18), 1.5, 1.5);
    p.setBrush(QColor(0xc8, 0xc8, 0xc8));
    p.setPen(QPen(kOutline, 1));
    p.drawRect(QRectF(6.5, 1.5, 6, 4));
    page(p, QRectF(10.5, 8.5, 11, 14), true);
}

void drawDelete(QPainter &p) { redCross(p, QPointF(12, 12), 7, 3.4); }

void drawLock(QPainter &p)
{
    p.setPen(QPen(QColor(0x70, 0x70, 0x70), 2.2));
    p.setBrush(Qt::NoBrush);
    p.drawArc(QRectF(7, 3, 10, 12), 0, 180 * 16);
    p.drawLine(QPointF(7, 9), QPointF(7, 11));
    p.drawLine(QPointF(17, 9), QPointF(17, 11));
    p.setPen(QPen(QColor(0x8a, 0x62, 0x10), 1));
    p.setBrush(kYellow);
    p.drawRoundedRect(QRectF(4.5, 10.5, 15, 11), 1.5, 1.5);
    p.setPen(Qt::NoPen);
    p.setBrush(QColor(0x50, 0x38, 0x08));
    p.drawEllipse(QPointF(12, 15), 1.6, 1.6);
    p.drawRect(QRectF(11.3, 15, 1.4, 3.5));
}

void drawInspector(QPainter &p)
{
    outlineRect(p, QRectF(2.5, 1.5, 19, 21), kField);
    p.setPen(Qt::NoPen);
    p.setBrush(kFace);
    p.drawRect(QRectF(3, 2, 8, 20));
    p.setPen(QPen(kLine, 1));
    for (qreal y : {6.5, 10.5, 14.5, 18.5})
        p.drawLine(QPointF(3, y), QPointF(21, y));
    p.drawLine(QPointF(11.5, 2), QPointF(11.5, 22));
    p.setPen(QPen(kAccent, 2));
    p.drawLine(QPointF(13, 8.5), QPointF(19, 8.5));
    p.drawLine(QPointF(13, 12.5), QPointF(17, 12.5));
}

void drawSettings(QPainter &p)
{
    p.save();
    p.translate(12, 12);
    p.setPen(QPen(kOutline, 1));
    p.setBrush(QColor(0x9a, 0xa4, 0xb0));
    QPolygonF gear;
    for (int i = 0; i < 16; ++i) {
        const qreal r = (i % 4 < 2) ? 10 : 7.5;
        const qreal a = qDegreesToRadians(i * 22.5 - 11.25);
        gear << QPointF(r * qCos(a), r * qSin(a));
    }
    p.drawPolygon(gear);
    p.setBrush(Qt::white);
    p.drawEllipse(QPointF(0, 0), 3.5, 3.5);
    p.restore();
}

void drawCascade(QPainter &p)
{
    window(p, QRectF(1.5, 1.5, 13, 10));
    window(p, QRectF(5.5, 6.5, 13, 10));
    window(p, QRectF(9.5, 11.5, 13, 10));
}

void drawTile(QPainter &p)
{
    window(p, QRectF(2.5, 2.5, 19, 9));
    window(p, QRectF(2.5, 12.5, 19, 9));
}

void drawArrange(QPainter &p)
{
    outlineRect(p, QRectF(1.5, 1.5, 21, 21), QColor(0xc0, 0xc0, 0xc0), QColor(0x80, 0x80, 0x80));
    for (qreal x : {2.5, 9.5, 16.5}) {
        p.setPen(QPen(kOutline, 1));
        p.setBrush(kAccent);
        p.drawRect(QRectF(x, 17.5, 5, 4));
    }
}

void drawMinimizeAll(QPainter &p)
{
    window(p, QRectF(4.5, 2.5, 17, 13));
    window(p, QRectF(2.5, 5.5, 15, 11));
    p.setPen(Qt::NoPen);
    p.setBrush(kOutline);
    p.drawRect(QRectF(6, 19, 12, 2.5));
}

void drawAbout(QPainter &p)
{
    p.setPen(QPen(QColor(0x1e, 0x4a, 0x80), 1));
    p.setBrush(kAccent);
    p.drawEllipse(QPointF(12, 12), 10, 10);
    text(p, QRectF(2, 2, 20, 20), QStringLiteral("i"), 15, true, Qt::white);
}

void drawApplication(QPainter &p)
{
    outlineRect(p, QRectF(1.5, 2.5, 21, 19), kFace, QColor(0x1e, 0x3e, 0x6a));
    p.setPen(Qt::NoPen);
    p.setBrush(kAccent);
    p.drawRect(QRectF(2, 3, 20, 4));
    p.setPen(QPen(QColor(0x60, 0x60, 0x60), 1.4));
    p.drawLine(QPointF(4, 10.5), QPointF(8, 10.5));
    p.drawLine(QPointF(4, 14.5), QPointF(8, 14.5));
    p.drawLine(QPointF(4, 18.5), QPointF(7, 18.5));
    sunkenField(p, QRectF(9.5, 8.5, 11, 4));
    sunkenField(p, QRectF(9.5, 12.5, 11, 4));
    sunkenField(p, QRectF(9.5, 16.5, 7, 4));
}

void drawMask(QPainter &p)
{
    outlineRect(p, QRectF(2.5, 3.5, 19, 17), kFace, QColor(0x60, 0x60, 0x60));
    p.setPen(QPen(QColor(0x60, 0x60, 0x60), 1.4));
    p.drawLine(QPointF(5, 8.5), QPointF(9, 8.5));
    p.drawLine(QPointF(5, 13.5), QPointF(9, 13.5));
    sunkenField(p, QRectF(10.5, 6.5, 9, 4));
    sunkenField(p, QRectF(10.5, 11.5, 9, 4));
    p.setPen(Qt::NoPen);
    p.setBrush(kAccent);
    p.drawRect(QRectF(14, 16.5, 5.5, 2.5));
}

void greenPlus(QPainter &p, const QPointF &c)
{
    p.setPen(Qt::NoPen);
    p.setBrush(Qt::white);
    p.drawEllipse(c, 5.5, 5.5);
    p.setPen(QPen(kGreen, 2.6, Qt::SolidLine, Qt::FlatCap));
    p.drawLine(c + QPointF(-3.5, 0), c + QPointF(3.5, 0));
    p.drawLine(c + QPointF(0, -3.5), c + QPointF(0, 3.5));
}

// A table with its title row, and a plus: a table is made.
void drawCreateTable(QPainter &p)
{
    outlineRect(p, QRectF(1.5, 2.5, 19, 16), kField);
    p.setPen(Qt::NoPen);
    p.setBrush(kAccent);
    p.drawRect(QRectF(2, 3, 18, 4));
    p.setPen(QPen(kLine, 1));
    for (qreal y : {10.5, 14.5})
        p.drawLine(QPointF(2, y), QPointF(20, y));
    p.drawLine(QPointF(8.5, 7), QPointF(8.5, 18));
    greenPlus(p, QPointF(17.5, 17.5));
}

// The mask with a small gear: its settings.
void drawMaskOptions(QPainter &p)
{
    drawMask(p);
    p.save();
    p.translate(17.5, 17.5);
    p.setPen(QPen(kOutline, 0.8));
    p.setBrush(kYellow);
    QPolygonF gear;
    for (int i = 0; i < 16; ++i) {
        const qreal r = (i % 4 < 2) ? 6 : 4.5;
        const qreal a = qDegreesToRadians(i * 22.5 - 11.25);
        gear << QPointF(r * qCos(a), r * qSin(a));
    }
    p.drawPolygon(gear);
    p.setBrush(Qt::white);
    p.drawEllipse(QPointF(0, 0), 2, 2);
    p.restore();
}

} // namespace

namespace PaletteIcons {

QIcon commandIcon(Command command)
{
    switch (command) {
    case Command::New: return makeIcon(drawNew);
    case Command::Open: return makeIcon(drawOpen);
    case Command::Save: return makeIcon(drawSave);
    case Command::SaveAs: return makeIcon(drawSaveAs);
    case Command::Close: return makeIcon(drawClose);
    case Command::Exit: return makeIcon(drawExit);
    case Command::Cut: return makeIcon(drawCut);
    case Command::Copy: return makeIcon(drawCopy);
    case Command::Paste: return makeIcon(drawPaste);
    case Command::Delete: return makeIcon(drawDelete);
    case Command::Lock: return makeIcon(drawLock);
    case Command::Undo: return makeIcon([](QPainter &p) { curvedArrow(p, true); });
    case Command::Redo: return makeIcon([](QPainter &p) { curvedArrow(p, false); });
    case Command::Inspector: return makeIcon(drawInspector);
    case Command::Settings: return makeIcon(drawSettings);
    case Command::Cascade: return makeIcon(drawCascade);
    case Command::Tile: return makeIcon(drawTile);
    case Command::Arrange: return makeIcon(drawArrange);
    case Command::MinimizeAll: return makeIcon(drawMinimizeAll);
    case Command::About: return makeIcon(drawAbout);
    case Command::CreateTable: return makeIcon(drawCreateTable);
    case Command::MaskOptions: return makeIcon(drawMaskOptions);
    }
    return QIcon();
}

QIcon applicationIcon()
{
    return makeIcon(drawApplication);
}

QIcon maskIcon()
{
    return makeIcon(drawMask);
}

} // namespace PaletteIcons
