#include "ValueEncodings.h"

#include <QFont>

std::optional<qint32> StringToInt(const QString &text)
{
    const QString s = text.trimmed();
    int pos = 0;
    bool negative = false;
    if (pos < s.size() && (s[pos] == QLatin1Char('-') || s[pos] == QLatin1Char('+'))) {
        negative = s[pos] == QLatin1Char('-');
        ++pos;
    }
    int base = 10;
    if (pos < s.size() && s[pos] == QLatin1Char('$')) {
        base = 16;
        ++pos;
    } else if (pos + 1 < s.size() && s[pos] == QLatin1Char('0')
               && (s[pos + 1] == QLatin1Char('x') || s[pos + 1] == QLatin1Char('X'))) {
        base = 16;
        pos += 2;
    }
    if (pos >= s.size())
        return std::nullopt;

    // Decimal is limited to the signed range, hex to 32 bits.
    const quint64 limit = base == 16 ? 0xffffffffull : (negative ? 0x80000000ull : 0x7fffffffull);
    quint64 value = 0;
    for (; pos < s.size(); ++pos) {
        const ushort c = s[pos].unicode();
        int d = -1;
        if (c >= '0' && c <= '9')
            d = c - '0';
        else if (c >= 'a' && c <= 'f')
            d = c - 'a' + 10;
        else if (c >= 'A' && c <= 'F')
            d = c - 'A' + 10;
        if (d < 0 || d >= base)
            return std::nullopt;
        value = value * quint64(base) + quint64(d);
        if (value > limit)
            return std::nullopt;
    }
    const quint32 bits = quint32(value);
    const qint32 result = qint32(bits);
    return negative ? qint32(0u - bits) : result;
}

qint32 StringToIntDef(const QString &text, qint32 defaultValue)
{
    return StringToInt(text).value_or(defaultValue);
}

QString BoolToString(bool value)
{
    return value ? QStringLiteral("1") : QStringLiteral("0");
}

bool StringToBool(const QString &text, bool defaultValue)
{
    if (const auto number = StringToInt(text))
        return *number != 0;
    return defaultValue;
}

QString FontStylesToString(TFontStyles styles)
{
    QString s;
    if (styles & fsBold)
        s += QLatin1Char('B');
    if (styles & fsItalic)
        s += QLatin1Char('I');
    if (styles & fsUnderline)
        s += QLatin1Char('U');
    if (styles & fsStrikeOut)
        s += QLatin1Char('S');
    return s;
}

TFontStyles StringToFontStyles(const QString &text)
{
    const QString upper = text.toUpper();
    TFontStyles styles;
    if (upper.contains(QLatin1Char('B')))
        styles |= fsBold;
    if (upper.contains(QLatin1Char('I')))
        styles |= fsItalic;
    if (upper.contains(QLatin1Char('U')))
        styles |= fsUnderline;
    if (upper.contains(QLatin1Char('S')))
        styles |= fsStrikeOut;
    return styles;
}

TFontStyles fontStylesOf(const QFont &font)
{
    TFontStyles styles;
    if (font.bold())
        styles |= fsBold;
    if (font.italic())
        styles |= fsItalic;
    if (font.underline())
        styles |= fsUnderline;
    if (font.strikeOut())
        styles |= fsStrikeOut;
    return styles;
}

void applyFontStyles(QFont &font, TFontStyles styles)
{
    font.setBold(styles.testFlag(fsBold));
    font.setItalic(styles.testFlag(fsItalic));
    font.setUnderline(styles.testFlag(fsUnderline));
    font.setStrikeOut(styles.testFlag(fsStrikeOut));
}
