// The pictograms of the control palette.
#include "PaletteIcons.h"

#include "IconPainting.h"

#include <QPainterPath>
#include <QPolygonF>

using namespace IconPainting;

namespace {

void drawArrow(QPainter &p)
{
    const QPolygonF arrow{{7, 3}, {7, 19}, {10.8, 15.4}, {13.6, 21.5}, {16.4, 20.3}, {13.6, 14.2}, {18.6, 14.2}};
    p.setPen(QPen(Qt::black, 1.2, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    p.setBrush(Qt::white);
    p.drawPolygon(arrow);
}

void drawLabel(QPainter &p)
{
    text(p, QRectF(0, 0, 24, 24), QStringLiteral("A"), 20, true, QColor(0x1c, 0x1c, 0x1c));
}

void drawEdit(QPainter &p)
{
    sunkenField(p, QRectF(1.5, 6.5, 21, 11));
    text(p, QRectF(3, 6, 12, 12), QStringLiteral("ab"), 9, false, kOutline, Qt::AlignLeft | Qt::AlignVCenter);
    p.setPen(QPen(Qt::black, 1));
    p.drawLine(QPointF(15.5, 8.5), QPointF(15.5, 15.5));
}

void comboButton(QPainter &p, const QRectF &field)
{
    const QRectF button(field.right() - 6.5, field.top() + 1, 6, field.height() - 2);
    p.setPen(Qt::NoPen);
    p.setBrush(kFace);
    p.drawRect(button);
    const QPointF c = button.center();
    p.setBrush(Qt::black);
    p.drawPolygon(QPolygonF{{c.x() - 2.2, c.y() - 1}, {c.x() + 2.2, c.y() - 1}, {c.x(), c.y() + 1.6}});
}

void drawCombo(QPainter &p)
{
    const QRectF field(1.5, 6.5, 21, 11);
    sunkenField(p, field);
    comboButton(p, field);
    p.setPen(QPen(kLine, 2));
    p.drawLine(QPointF(4, 12), QPointF(12, 12));
}

void drawMemo(QPainter &p)
{
    sunkenField(p, QRectF(2.5, 2.5, 19, 19));
    p.setPen(QPen(kLine, 1));
    const qreal ends[] = {15, 13, 15, 10, 14};
    for (int i = 0; i < 5; ++i)
        p.drawLine(QPointF(5, 6.5 + i * 3), QPointF(ends[i], 6.5 + i * 3));
    p.setPen(Qt::NoPen);
    p.setBrush(kFace);
    p.drawRect(QRectF(17, 3, 4, 18));
    p.setBrush(QColor(0xa0, 0xa0, 0xa0));
    p.drawRect(QRectF(17.5, 6, 3, 6));
}

void drawCheckbox(QPainter &p)
{
    sunkenField(p, QRectF(4.5, 4.5, 15, 15));
    QPainterPath check;
    check.moveTo(7.5, 12);
    check.lineTo(10.5, 15.5);
    check.lineTo(16.5, 8);
    p.setPen(QPen(kGreen, 2.4, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    p.setBrush(Qt::NoBrush);
    p.drawPath(check);
}

void grid(QPainter &p, bool fixedColumn)
{
    const QRectF r(1.5, 3.5, 21, 17);
    outlineRect(p, r, kField);
    p.setPen(Qt::NoPen);
    p.setBrush(fixedColumn ? kFace : kAccent);
    p.drawRect(QRectF(2, 4, 20, 4));
    if (fixedColumn)
        p.drawRect(QRectF(2, 4, 5, 16));
    p.setPen(QPen(fixedColumn ? kLine : QColor(0xb8, 0xb8, 0xb8), 1));
    for (qreal x : {7.5, 14.5})
        p.drawLine(QPointF(x, 4), QPointF(x, 20));
    for (qreal y : {8.5, 12.5, 16.5})
        p.drawLine(QPointF(2, y), QPointF(22, y));
}

void drawDBGrid(QPainter &p)
{
    grid(p, false);
    p.setPen(Qt::NoPen);
    p.setBrush(Qt::black);
    p.drawPolygon(QPolygonF{{3.5, 9.8}, {3.5, 11.4}, {5.2, 10.6}});
}

void drawButton(QPainter &p)
{
    const QRectF r(1.5, 5.5, 21, 13);
    QLinearGradient g(r.topLeft(), r.bottomLeft());
    g.setColorAt(0, QColor(0xfa, 0xfa, 0xfa));
    g.setColorAt(1, QColor(0xd2, 0xd2, 0xd2));
    p.setPen(QPen(kOutline, 1));
    p.setBrush(g);
    p.drawRoundedRect(r, 2.5, 2.5);
    text(p, r, QStringLiteral("OK"), 8, true);
}

void drawBevel(QPainter &p)
{
    p.setBrush(Qt::NoBrush);
    p.setPen(QPen(QColor(0x68, 0x68, 0x68), 1));
    p.drawRect(QRectF(2.5, 4.5, 18, 15));
    p.setPen(QPen(Qt::white, 1));
    p.drawRect(QRectF(3.5, 5.5, 18, 15));
}

void drawPreview(QPainter &p)
{
    page(p, QRectF(2.5, 1.5, 13, 17), true);
    p.setPen(QPen(kOutline, 1.3));
    p.setBrush(QColor(0xa8, 0xc8, 0xec, 0xc0));
    p.drawEllipse(QPointF(14.5, 14), 4.5, 4.5);
    p.setPen(QPen(QColor(0x5a, 0x3a, 0x1a), 2.8, Qt::SolidLine, Qt::RoundCap));
    p.drawLine(QPointF(17.8, 17.4), QPointF(21.5, 21.2));
}

void cylinder(QPainter &p, const QRectF &r)
{
    const qreal e = 3;
    QPainterPath body;
    body.moveTo(r.left(), r.top() + e / 2);
    body.lineTo(r.left(), r.bottom() - e / 2);
    body.arcTo(QRectF(r.left(), r.bottom() - e, r.width(), e), 180, 180);
    body.lineTo(r.right(), r.top() + e / 2);
    body.closeSubpath();
    p.setPen(QPen(QColor(0x1e, 0x4a, 0x80), 1));
    p.setBrush(kAccentLight);
    p.drawPath(body);
    p.setBrush(QColor(0xd6, 0xe6, 0xf7));
    p.drawEllipse(QRectF(r.left(), r.top(), r.width(), e));
}

void drawDBLabel(QPainter &p)
{
    text(p, QRectF(0, 0, 15, 22), QStringLiteral("A"), 17, true, QColor(0x1c, 0x1c, 0x1c));
    cylinder(p, QRectF(13.5, 10.5, 8, 11));
}

void drawShape(QPainter &p)
{
    p.setPen(QPen(QColor(0x80, 0x20, 0x20), 1));
    p.setBrush(QColor(0xe0, 0x60, 0x55));
    p.drawEllipse(QRectF(2.5, 2.5, 12, 12));
    p.setPen(QPen(QColor(0x1e, 0x4a, 0x80), 1));
    p.setBrush(QColor(0x55, 0x88, 0xd0, 0xd8));
    p.drawRect(QRectF(9.5, 9.5, 12, 12));
}

void drawLookup(QPainter &p)
{
    const QRectF field(1.5, 2.5, 21, 8);
    sunkenField(p, field);
    comboButton(p, field);
    outlineRect(p, QRectF(1.5, 11.5, 15, 10), kField, QColor(0x7a, 0x7a, 0x7a));
    p.setPen(Qt::NoPen);
    p.setBrush(kAccent);
    p.drawRect(QRectF(2, 15, 14, 3));
    p.setPen(QPen(kLine, 1));
    p.drawLine(QPointF(4, 13.5), QPointF(12, 13.5));
    p.drawLine(QPointF(4, 19.5), QPointF(10, 19.5));
    p.setPen(QPen(Qt::white, 1));
    p.drawLine(QPointF(4, 16.5), QPointF(13, 16.5));
}

void drawImage(QPainter &p)
{
    const QRectF r(1.5, 3.5, 21, 17);
    outlineRect(p, r, QColor(0xc4, 0xde, 0xf6));
    p.setPen(Qt::NoPen);
    p.setBrush(kYellow);
    p.drawEllipse(QPointF(16.5, 8.5), 2.2, 2.2);
    p.setBrush(QColor(0x3c, 0x96, 0x3c));
    p.drawPolygon(QPolygonF{{2, 20}, {8.5, 11}, {12.5, 16}, {15.5, 13}, {22, 20}});
    p.setBrush(Qt::NoBrush);
    p.setPen(QPen(kOutline, 1));
    p.drawRect(r);
}

void drawPageControl(QPainter &p)
{
    p.setPen(QPen(kOutline, 1));
    p.setBrush(QColor(0xc8, 0xc8, 0xc8));
    p.drawRect(QRectF(10.5, 4.5, 7, 4));
    p.setBrush(kFace);
    QPainterPath front;
    front.moveTo(1.5, 20.5);
    front.lineTo(1.5, 3.5);
    front.lineTo(10.5, 3.5);
    front.lineTo(10.5, 8.5);
    front.lineTo(22.5, 8.5);
    front.lineTo(22.5, 20.5);
    front.closeSubpath();
    p.drawPath(front);
    p.setPen(QPen(kLine, 1));
    p.drawLine(QPointF(4, 12.5), QPointF(12, 12.5));
    p.drawLine(QPointF(4, 16.5), QPointF(9, 16.5));
    sunkenField(p, QRectF(13.5, 11.5, 7, 3));
}

void drawPanel(QPainter &p)
{
    const QRectF r(2.5, 4.5, 19, 15);
    outlineRect(p, r, kFace, QColor(0x70, 0x70, 0x70));
    p.setPen(QPen(Qt::white, 1));
    p.drawLine(QPointF(3.5, 5.5), QPointF(20.5, 5.5));
    p.drawLine(QPointF(3.5, 5.5), QPointF(3.5, 18.5));
    p.setPen(QPen(QColor(0xa0, 0xa0, 0xa0), 1));
    p.drawLine(QPointF(4, 18.5), QPointF(20.5, 18.5));
    p.drawLine(QPointF(20.5, 6), QPointF(20.5, 18.5));
}

void drawRadioButton(QPainter &p)
{
    p.setPen(QPen(QColor(0x6a, 0x6a, 0x6a), 1));
    p.setBrush(kField);
    p.drawEllipse(QPointF(12, 12), 7.5, 7.5);
    p.setPen(Qt::NoPen);
    p.setBrush(kAccent);
    p.drawEllipse(QPointF(12, 12), 3.5, 3.5);
}

void drawTreeList(QPainter &p)
{
    outlineRect(p, QRectF(1.5, 1.5, 21, 21), kField, QColor(0x7a, 0x7a, 0x7a));
    p.setPen(QPen(kLine, 1, Qt::DotLine));
    p.drawLine(QPointF(6.5, 8), QPointF(6.5, 17.5));
    p.drawLine(QPointF(6.5, 11.5), QPointF(10, 11.5));
    p.drawLine(QPointF(6.5, 17.5), QPointF(10, 17.5));
    auto node = [&p](qreal x, qreal y, bool open) {
        p.setPen(QPen(QColor(0x70, 0x70, 0x70), 1));
        p.setBrush(kField);
        p.drawRect(QRectF(x - 2.5, y - 2.5, 5, 5));
        p.setPen(QPen(Qt::black, 1));
        p.drawLine(QPointF(x - 1.5, y), QPointF(x + 1.5, y));
        if (!open)
            p.drawLine(QPointF(x, y - 1.5), QPointF(x, y + 1.5));
    };
    node(6.5, 5.5, true);
    p.setPen(Qt::NoPen);
    p.setBrush(kAccent);
    p.drawRect(QRectF(10, 4.5, 10, 2.5));
    p.setBrush(QColor(0x8a, 0x8a, 0x8a));
    p.drawRect(QRectF(11, 10.5, 8, 2.5));
    p.drawRect(QRectF(11, 16.5, 9, 2.5));
    node(6.5, 17.5, false);
}

void drawStringGrid(QPainter &p)
{
    grid(p, true);
    p.setPen(QPen(kOutline, 1));
    p.drawLine(QPointF(9, 10.5), QPointF(13, 10.5));
    p.drawLine(QPointF(16, 14.5), QPointF(20, 14.5));
}

} // namespace

namespace PaletteIcons {

QIcon controlIcon(TPaletteCode code)
{
    switch (code) {
    case TPaletteCode::None: return makeIcon(drawArrow);
    case TPaletteCode::Label: return makeIcon(drawLabel);
    case TPaletteCode::Edit: return makeIcon(drawEdit);
    case TPaletteCode::Combo: return makeIcon(drawCombo);
    case TPaletteCode::Memo: return makeIcon(drawMemo);
    case TPaletteCode::CheckBox: return makeIcon(drawCheckbox);
    case TPaletteCode::Grid: return makeIcon(drawDBGrid);
    case TPaletteCode::Button: return makeIcon(drawButton);
    case TPaletteCode::Bevel: return makeIcon(drawBevel);
    case TPaletteCode::Preview: return makeIcon(drawPreview);
    case TPaletteCode::DBLabel: return makeIcon(drawDBLabel);
    case TPaletteCode::Shape: return makeIcon(drawShape);
    case TPaletteCode::Lookup: return makeIcon(drawLookup);
    case TPaletteCode::Image: return makeIcon(drawImage);
    case TPaletteCode::PageControl: return makeIcon(drawPageControl);
    case TPaletteCode::Panel: return makeIcon(drawPanel);
    case TPaletteCode::RadioGroup: return makeIcon(drawRadioButton);
    case TPaletteCode::TreeList: return makeIcon(drawTreeList);
    case TPaletteCode::StringGrid: return makeIcon(drawStringGrid);
    }
    return QIcon();
}

} // namespace PaletteIcons
