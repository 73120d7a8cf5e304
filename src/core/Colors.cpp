#include "Colors.h"

#include "ValueEncodings.h"

#include <QGuiApplication>
#include <QHash>
#include <QPalette>
#include <QStringList>

namespace {

struct NamedColor
{
    const char *name;
    TColor color;
};

// The order is the one colour pickers list them in: fixed colours first, then
// the extended ones, then the system colours.
const NamedColor kNamedColors[] = {
    {"clBlack", Colors::clBlack},
    {"clMaroon", Colors::clMaroon},
    {"clGreen", Colors::clGreen},
    {"clOlive", Colors::clOlive},
    {"clNavy", Colors::clNavy},
    {"clPurple", Colors::clPurple},
    {"clTeal", Colors::clTeal},
    {"clGray", Colors::clGray},
    {"clSilver", Colors::clSilver},
    {"clRed", Colors::clRed},
    {"clLime", Colors::clLime},
    {"clYellow", Colors::clYellow},
    {"clBlue", Colors::clBlue},
    {"clFuchsia", Colors::clFuchsia},
    {"clAqua", Colors::clAqua},
    {"clWhite", Colors::clWhite},
    {"clMoneyGreen", Colors::clMoneyGreen},
    {"clSkyBlue", Colors::clSkyBlue},
    {"clCream", Colors::clCream},
    {"clMedGray", Colors::clMedGray},
    {"clActiveBorder", Colors::clActiveBorder},
    {"clActiveCaption", Colors::clActiveCaption},
    {"clAppWorkSpace", Colors::clAppWorkSpace},
    {"clBackground", Colors::clBackground},
    {"clBtnFace", Colors::clBtnFace},
    {"clBtnHighlight", Colors::clBtnHighlight},
    {"clBtnShadow", Colors::clBtnShadow},
    {"clBtnText", Colors::clBtnText},
    {"clCaptionText", Colors::clCaptionText},
    {"clDefault", Colors::clDefault},
    {"clGradientActiveCaption", Colors::clGradientActiveCaption},
    {"clGradientInactiveCaption", Colors::clGradientInactiveCaption},
    {"clGrayText", Colors::clGrayText},
    {"clHighlight", Colors::clHighlight},
    {"clHighlightText", Colors::clHighlightText},
    {"clHotLight", Colors::clHotLight},
    {"clInactiveBorder", Colors::clInactiveBorder},
    {"clInactiveCaption", Colors::clInactiveCaption},
    {"clInactiveCaptionText", Colors::clInactiveCaptionText},
    {"clInfoBk", Colors::clInfoBk},
    {"clInfoText", Colors::clInfoText},
    {"clMenu", Colors::clMenu},
    {"clMenuBar", Colors::clMenuBar},
    {"clMenuHighlight", Colors::clMenuHighlight},
    {"clMenuText", Colors::clMenuText},
    {"clNone", Colors::clNone},
    {"clScrollBar", Colors::clScrollBar},
    {"cl3DDkShadow", Colors::cl3DDkShadow},
    {"cl3DLight", Colors::cl3DLight},
    {"clWindow", Colors::clWindow},
    {"clWindowFrame", Colors::clWindowFrame},
    {"clWindowText", Colors::clWindowText},
};

struct ColorTables
{
    QHash<qint32, QString> nameByValue;
    QHash<QString, TColor> valueByLowerName;
    QStringList names;
    ColorTables()
    {
        for (const NamedColor &c : kNamedColors) {
            const QString name = QString::fromLatin1(c.name);
            nameByValue.insert(c.color.value(), name);
            valueByLowerName.insert(name.toLower(), c.color);
            names << name;
        }
    }
};

const ColorTables &tables()
{
    static const ColorTables t;
    return t;
}

// Fixed stand-ins for system colours that a Qt palette has no role for,
// taken from the classic desktop scheme.
QColor classicSystemColor(int index)
{
    switch (index) {
    case 0: return QColor(0xc8, 0xc8, 0xc8);   // scroll bar
    case 1: return QColor(0x00, 0x00, 0x00);   // desktop
    case 2: return QColor(0x99, 0xb4, 0xd1);   // active caption
    case 3: return QColor(0xbf, 0xcd, 0xdb);   // inactive caption
    case 6: return QColor(0x64, 0x64, 0x64);   // window frame
    case 9: return QColor(0x00, 0x00, 0x00);   // caption text
    case 10: return QColor(0xb4, 0xb4, 0xb4);  // active border
    case 11: return QColor(0xf4, 0xf7, 0xfc);  // inactive border
    case 12: return QColor(0xab, 0xab, 0xab);  // MDI background
    case 19: return QColor(0x43, 0x4e, 0x54);  // inactive caption text
    case 26: return QColor(0x00, 0x66, 0xcc);  // hot-track
    case 27: return QColor(0xb9, 0xd1, 0xea);
    case 28: return QColor(0xd7, 0xe4, 0xf2);
    default: return QColor(0xf0, 0xf0, 0xf0);
    }
}

} // namespace

TColor TColor::fromQColor(const QColor &color)
{
    return fromRgb(color.red(), color.green(), color.blue());
}

QColor TColor::toQColor() const
{
    if (!isSystem())
        return toQColor(QPalette());
    return toQColor(QGuiApplication::palette());
}

QColor TColor::toQColor(const QPalette &palette) const
{
    if (isNone() || isDefault())
        return QColor(Qt::transparent);
    if (isSystem()) {
        const int index = m_value & 0xff;
        switch (index) {
        case 4: return palette.color(QPalette::Window);           // menu
        case 5: return palette.color(QPalette::Base);             // window
        case 7: return palette.color(QPalette::WindowText);       // menu text
        case 8: return palette.color(QPalette::Text);             // window text
        case 13: return palette.color(QPalette::Highlight);
        case 14: return palette.color(QPalette::HighlightedText);
        case 15: return palette.color(QPalette::Button);          // button face
        case 16: return palette.color(QPalette::Dark);            // button shadow
        case 17: return palette.color(QPalette::Disabled, QPalette::Text);
        case 18: return palette.color(QPalette::ButtonText);
        case 20: return palette.color(QPalette::Light);           // button highlight
        case 21: return palette.color(QPalette::Shadow);
        case 22: return palette.color(QPalette::Midlight);
        case 23: return palette.color(QPalette::ToolTipText);
        case 24: return palette.color(QPalette::ToolTipBase);
        case 29: return palette.color(QPalette::Highlight);       // menu highlight
        case 30: return palette.color(QPalette::Window);          // menu bar
        default: return classicSystemColor(index);
        }
    }
    const quint32 v = quint32(m_value) & 0x00ffffffu;
    return QColor(int(v & 0xff), int((v >> 8) & 0xff), int((v >> 16) & 0xff));
}

QString ColorToIdent(TColor color)
{
    return tables().nameByValue.value(color.value());
}

QString ColorToString(TColor color)
{
    const QString name = ColorToIdent(color);
    if (!name.isEmpty())
        return name;
    return QStringLiteral("$%1").arg(quint32(color.value()), 8, 16, QLatin1Char('0'));
}

std::optional<TColor> StringToColor(const QString &text)
{
    const QString trimmed = text.trimmed();
    const auto &byName = tables().valueByLowerName;
    const auto it = byName.constFind(trimmed.toLower());
    if (it != byName.constEnd())
        return *it;
    if (const auto number = StringToInt(trimmed))
        return TColor(*number);
    return std::nullopt;
}

const QStringList &ColorIdents()
{
    return tables().names;
}
