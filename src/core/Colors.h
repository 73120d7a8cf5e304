#pragma once

#include <QColor>
#include <QMetaType>
#include <QString>
#include <QtGlobal>
#include <optional>

class QPalette;

// A colour as masks and settings store it: a 32-bit value in 00BBGGRR order.
// System colours (0xFF0000nn) are values of their own: they stay symbolic
// ("clWindow") through reading and writing and are turned into a real colour
// from the platform palette only when something is painted.
class TColor
{
public:
    constexpr TColor() = default;
    constexpr explicit TColor(qint32 value) : m_value(value) {}

    static constexpr TColor fromRgb(int r, int g, int b)
    {
        return TColor(qint32((r & 0xff) | ((g & 0xff) << 8) | ((b & 0xff) << 16)));
    }
    static TColor fromQColor(const QColor &color);

    constexpr qint32 value() const { return m_value; }
    constexpr bool isSystem() const { return (quint32(m_value) & 0xff000000u) == 0xff000000u; }
    constexpr bool isNone() const { return m_value == 0x1fffffff; }
    constexpr bool isDefault() const { return m_value == 0x20000000; }

    // The colour to paint with; system colours come from the given palette
    // (the application palette when none is given).
    QColor toQColor() const;
    QColor toQColor(const QPalette &palette) const;

    constexpr bool operator==(TColor other) const { return m_value == other.m_value; }
    constexpr bool operator!=(TColor other) const { return m_value != other.m_value; }

private:
    qint32 m_value = 0;
};
Q_DECLARE_METATYPE(TColor)

// The standard colour constants.
namespace Colors {
constexpr TColor clBlack(0x000000);
constexpr TColor clMaroon(0x000080);
constexpr TColor clGreen(0x008000);
constexpr TColor clOlive(0x008080);
constexpr TColor clNavy(0x800000);
constexpr TColor clPurple(0x800080);
constexpr TColor clTeal(0x808000);
constexpr TColor clGray(0x808080);
constexpr TColor clSilver(0xC0C0C0);
constexpr TColor clRed(0x0000FF);
constexpr TColor clLime(0x00FF00);
constexpr TColor clYellow(0x00FFFF);
constexpr TColor clBlue(0xFF0000);
constexpr TColor clFuchsia(0xFF00FF);
constexpr TColor clAqua(0xFFFF00);
constexpr TColor clWhite(0xFFFFFF);
constexpr TColor clMoneyGreen(0xC0DCC0);
constexpr TColor clSkyBlue(0xF0CAA6);
constexpr TColor clCream(0xF0FBFF);
constexpr TColor clMedGray(0xA4A0A0);
constexpr TColor clNone(0x1FFFFFFF);
constexpr TColor clDefault(0x20000000);

constexpr TColor systemColor(int index) { return TColor(qint32(0xFF000000u | quint32(index))); }
constexpr TColor clScrollBar = systemColor(0);
constexpr TColor clBackground = systemColor(1);
constexpr TColor clActiveCaption = systemColor(2);
constexpr TColor clInactiveCaption = systemColor(3);
constexpr TColor clMenu = systemColor(4);
constexpr TColor clWindow = systemColor(5);
constexpr TColor clWindowFrame = systemColor(6);
constexpr TColor clMenuText = systemColor(7);
constexpr TColor clWindowText = systemColor(8);
constexpr TColor clCaptionText = systemColor(9);
constexpr TColor clActiveBorder = systemColor(10);
constexpr TColor clInactiveBorder = systemColor(11);
constexpr TColor clAppWorkSpace = systemColor(12);
constexpr TColor clHighlight = systemColor(13);
constexpr TColor clHighlightText = systemColor(14);
constexpr TColor clBtnFace = systemColor(15);
constexpr TColor clBtnShadow = systemColor(16);
constexpr TColor clGrayText = systemColor(17);
constexpr TColor clBtnText = systemColor(18);
constexpr TColor clInactiveCaptionText = systemColor(19);
constexpr TColor clBtnHighlight = systemColor(20);
constexpr TColor cl3DDkShadow = systemColor(21);
constexpr TColor cl3DLight = systemColor(22);
constexpr TColor clInfoText = systemColor(23);
constexpr TColor clInfoBk = systemColor(24);
constexpr TColor clHotLight = systemColor(26);
constexpr TColor clGradientActiveCaption = systemColor(27);
constexpr TColor clGradientInactiveCaption = systemColor(28);
constexpr TColor clMenuHighlight = systemColor(29);
constexpr TColor clMenuBar = systemColor(30);
} // namespace Colors

// Colour text: the constant's name where the value has one, otherwise "$"
// and eight lower-case hex digits.
QString ColorToString(TColor color);
// Accepts a constant name (any case), "$" or "0x" hex, or a decimal number.
std::optional<TColor> StringToColor(const QString &text);
// The name of a colour constant, or an empty string.
QString ColorToIdent(TColor color);
// Every constant name, in the order of the standard colour list.
const QStringList &ColorIdents();
