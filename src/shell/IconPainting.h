#pragma once

#include <QColor>
#include <QIcon>
#include <QPainter>
#include <QRectF>
#include <functional>

// Shared strokes for the pictograms. Everything is drawn on a 24x24 grid;
// rectangles on .5 coordinates give crisp one-pixel lines at 24 px.
namespace IconPainting {

const QColor kOutline(0x40, 0x40, 0x40);
const QColor kFace(0xe6, 0xe6, 0xe6);
const QColor kField(0xff, 0xff, 0xff);
const QColor kLine(0x9a, 0x9a, 0x9a);
const QColor kAccent(0x2f, 0x6f, 0xb5);
const QColor kAccentLight(0xa8, 0xc8, 0xec);
const QColor kRed(0xc8, 0x32, 0x2d);
const QColor kGreen(0x2a, 0x8a, 0x2a);
const QColor kYellow(0xf2, 0xc4, 0x3a);

// Renders the drawing at the usual icon sizes.
QIcon makeIcon(const std::function<void(QPainter &)> &draw);

void outlineRect(QPainter &p, const QRectF &rect, const QColor &fill, const QColor &pen = kOutline);
void sunkenField(QPainter &p, const QRectF &rect);
// A sheet of paper with a dog-ear at the top right.
void page(QPainter &p, const QRectF &rect, bool lines = false);
void window(QPainter &p, const QRectF &rect);
void text(QPainter &p, const QRectF &rect, const QString &text, int pixelSize, bool bold,
          const QColor &color = kOutline, Qt::Alignment align = Qt::AlignCenter);

} // namespace IconPainting
