#include "EditStyle.h"

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
