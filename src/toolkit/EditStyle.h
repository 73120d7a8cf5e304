#pragma once

#include <QObject>
#include <QPointer>
#include <QWidget>

#include "Colors.h"

// Enumerations of the shared edit style; their ordinals are stored in masks.
enum TcxEditBorderStyle { ebsNone, ebsSingle, ebsThick, ebsFlat, ebs3D, ebsUltraFlat, ebsOffice11 };
enum TcxEditButtonStyle { btsDefault, bts3D, btsFlat, btsSimple, btsHotFlat, btsUltraFlat, btsOffice11 };
enum TcxEditButtonTransparence { ebtNone, ebtInactive, ebtAlways, ebtHideInactive, ebtHideUnselected };
// Edge bits of the border.
enum TcxBorderEdge { bLeft = 1, bTop = 2, bRight = 4, bBottom = 8 };
constexpr int kAllEdges = bLeft | bTop | bRight | bBottom;

// The look shared by all edit controls of one mask (text edits, combo boxes,
// memos, check boxes, lookup edits): border, buttons, edges and effects.
// Controls that use it repaint whenever it changes.
class TcxEditStyleController : public QObject
{
    Q_OBJECT
public:
    explicit TcxEditStyleController(QObject *parent = nullptr);

    TColor BorderColor() const { return m_borderColor; }
    void setBorderColor(TColor color);
    TcxEditBorderStyle BorderStyle() const { return m_borderStyle; }
    void setBorderStyle(TcxEditBorderStyle style);
    TcxEditButtonStyle ButtonStyle() const { return m_buttonStyle; }
    void setButtonStyle(TcxEditButtonStyle style);
    TcxEditButtonTransparence ButtonTransparency() const { return m_buttonTransparency; }
    void setButtonTransparency(TcxEditButtonTransparence transparency);
    int Edges() const { return m_edges; }
    void setEdges(int edges);
    bool HotTrack() const { return m_hotTrack; }
    void setHotTrack(bool hotTrack);
    bool Shadow() const { return m_shadow; }
    void setShadow(bool shadow);
    bool Gradient() const { return m_gradient; }
    void setGradient(bool gradient);

signals:
    void styleChanged();

private:
    void changed();

    TColor m_borderColor = Colors::clDefault;
    TcxEditBorderStyle m_borderStyle = ebs3D;
    TcxEditButtonStyle m_buttonStyle = btsDefault;
    TcxEditButtonTransparence m_buttonTransparency = ebtNone;
    int m_edges = kAllEdges;
    bool m_hotTrack = false;
    bool m_shadow = false;
    bool m_gradient = false;
};

// The shared look of a mask's edit controls: a control given a style
// controller draws border, shadow, gradient and hot tracking as the controller
// says and repaints when it changes; without one it keeps its own look.
// Check boxes take only HotTrack and Shadow.
class TEditStyled
{
public:
    TcxEditStyleController *StyleController() const { return m_styleController; }
    void setStyleController(TcxEditStyleController *controller);

protected:
    TEditStyled(QWidget *self, bool borders) : m_styledSelf(self), m_styledBorders(borders) {}
    ~TEditStyled() = default;

private:
    QWidget *m_styledSelf;
    bool m_styledBorders;
    QPointer<TcxEditStyleController> m_styleController;
    QPointer<QWidget> m_styleOverlay; // draws the style over the control
};
