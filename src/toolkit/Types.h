#pragma once

#include <QMetaEnum>
#include <QMetaType>
#include <QObject>
#include <QStringList>
#include <QString>

#include "Colors.h"
#include "ValueEncodings.h"

// Enumerations of the control properties. Mask files store their ordinals,
// so the order of every enumerator is fixed. They live in a namespace only
// so that Qt's meta-object system knows their names (text streams and the
// object inspector show them); everyone uses them unqualified.
namespace TEnums {
Q_NAMESPACE
enum TAlign { alNone, alTop, alBottom, alLeft, alRight, alClient, alCustom };
Q_ENUM_NS(TAlign)
enum TAlignment { taLeftJustify, taRightJustify, taCenter };
Q_ENUM_NS(TAlignment)
enum TTextLayout { tlTop, tlCenter, tlBottom };
Q_ENUM_NS(TTextLayout)
enum TBevelShape { bsBox, bsFrame, bsTopLine, bsBottomLine, bsLeftLine, bsRightLine, bsSpacer };
Q_ENUM_NS(TBevelShape)
enum TBevelStyle { bsLowered, bsRaised };
Q_ENUM_NS(TBevelStyle)
enum TShapeType { stRectangle, stSquare, stRoundRect, stRoundSquare, stEllipse, stCircle };
Q_ENUM_NS(TShapeType)
enum TPanelBevel { bvNone, bvLowered, bvRaised, bvSpace };
Q_ENUM_NS(TPanelBevel)
enum TBorderStyle { bsNone, bsSingle };
Q_ENUM_NS(TBorderStyle)
enum TScrollStyle { ssNone, ssHorizontal, ssVertical, ssBoth };
Q_ENUM_NS(TScrollStyle)
enum TEditCharCase { ecNormal, ecUpperCase, ecLowerCase };
Q_ENUM_NS(TEditCharCase)
enum TButtonLayout { blGlyphLeft, blGlyphRight, blGlyphTop, blGlyphBottom };
Q_ENUM_NS(TButtonLayout)
enum TTabPosition { tpTop, tpBottom, tpLeft, tpRight };
Q_ENUM_NS(TTabPosition)
} // namespace TEnums
using namespace TEnums;

// The enumerator names of one of the enumerations above, in ordinal order.
template <class E>
const QStringList &enumNames()
{
    static const QStringList names = [] {
        const QMetaEnum meta = QMetaEnum::fromType<E>();
        QStringList list;
        for (int i = 0; i < meta.keyCount(); ++i)
            list << QString::fromLatin1(meta.key(i));
        return list;
    }();
    return names;
}

// A font as controls publish it: face, size in points, colour and styles.
struct TFont
{
    QString Name = QStringLiteral("Tahoma");
    int Size = 8;
    TColor Color = Colors::clWindowText;
    TFontStyles Style;

    bool operator==(const TFont &o) const
    {
        return Name == o.Name && Size == o.Size && Color == o.Color && Style == o.Style;
    }
    bool operator!=(const TFont &o) const { return !(*this == o); }
};
Q_DECLARE_METATYPE(TFont)

// Component states that change how a control behaves.
enum TComponentStateFlag {
    csLoading = 0x1,   // properties are being read; no automatic sizing
    csDesigning = 0x2, // the control sits on a form that is being designed
};
