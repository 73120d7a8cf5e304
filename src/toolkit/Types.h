#pragma once

#include <QMetaType>
#include <QString>

#include "Colors.h"
#include "ValueEncodings.h"

// Enumerations of the control properties. Mask files store their ordinals,
// so the order of every enumerator is fixed.
enum TAlign { alNone, alTop, alBottom, alLeft, alRight, alClient, alCustom };
enum TAlignment { taLeftJustify, taRightJustify, taCenter };
enum TTextLayout { tlTop, tlCenter, tlBottom };
enum TBevelShape { bsBox, bsFrame, bsTopLine, bsBottomLine, bsLeftLine, bsRightLine, bsSpacer };
enum TBevelStyle { bsLowered, bsRaised };
enum TShapeType { stRectangle, stSquare, stRoundRect, stRoundSquare, stEllipse, stCircle };
enum TPanelBevel { bvNone, bvLowered, bvRaised, bvSpace };
enum TBorderStyle { bsNone, bsSingle };
enum TScrollStyle { ssNone, ssHorizontal, ssVertical, ssBoth };
enum TEditCharCase { ecNormal, ecUpperCase, ecLowerCase };
enum TButtonLayout { blGlyphLeft, blGlyphRight, blGlyphTop, blGlyphBottom };
enum TTabPosition { tpTop, tpBottom, tpLeft, tpRight };

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
