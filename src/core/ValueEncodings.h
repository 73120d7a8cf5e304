#pragma once

#include <QFlags>
#include <QString>
#include <QtGlobal>
#include <optional>

class QFont;

// Integer text as the file formats write it: decimal with an optional sign;
// "$" or "0x" hex is accepted too, up to 32 bits (wrapping into the sign, so
// "$ff00000f" reads back as the negative value it was written from).
std::optional<qint32> StringToInt(const QString &text);
qint32 StringToIntDef(const QString &text, qint32 defaultValue);

// Booleans are written "1" and "0"; any non-zero integer reads as true, and
// anything that is no integer gives the default.
QString BoolToString(bool value);
bool StringToBool(const QString &text, bool defaultValue);

enum TFontStyle : quint8 {
    fsBold = 0x1,
    fsItalic = 0x2,
    fsUnderline = 0x4,
    fsStrikeOut = 0x8,
};
Q_DECLARE_FLAGS(TFontStyles, TFontStyle)
Q_DECLARE_OPERATORS_FOR_FLAGS(TFontStyles)

// "B", "I", "U", "S" in that order; reading takes the letters in any case and order.
QString FontStylesToString(TFontStyles styles);
TFontStyles StringToFontStyles(const QString &text);

TFontStyles fontStylesOf(const QFont &font);
void applyFontStyles(QFont &font, TFontStyles styles);
