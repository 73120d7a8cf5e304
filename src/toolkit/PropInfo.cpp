#include "PropInfo.h"

#include "ValueEncodings.h"

const TPropInfo *TClassInfo::property(const QString &name) const
{
    for (const TPropInfo &p : properties)
        if (p.name.compare(name, Qt::CaseInsensitive) == 0)
            return &p;
    return nullptr;
}

bool TPropInfo::isDefault(const QObject *object) const
{
    return defaultValue.isValid() && read(object) == defaultValue;
}

namespace {
const QStringList kFontStyleNames = {QStringLiteral("fsBold"), QStringLiteral("fsItalic"),
                                     QStringLiteral("fsUnderline"), QStringLiteral("fsStrikeOut")};

QString setToText(int bits, const QStringList &names)
{
    QStringList on;
    for (int i = 0; i < names.size(); ++i)
        if (bits & (1 << i))
            on << names.at(i);
    return QLatin1Char('[') + on.join(QLatin1Char(',')) + QLatin1Char(']');
}

std::optional<int> setFromText(const QString &text, const QStringList &names)
{
    QString t = text.trimmed();
    if (t.startsWith(QLatin1Char('[')) && t.endsWith(QLatin1Char(']')))
        t = t.mid(1, t.size() - 2);
    int bits = 0;
    for (const QString &part : t.split(QLatin1Char(','), Qt::SkipEmptyParts)) {
        const int i = int(names.indexOf(part.trimmed()));
        if (i < 0)
            return std::nullopt;
        bits |= 1 << i;
    }
    return bits;
}
} // namespace

QString propertyValueToText(const TPropInfo &info, const QVariant &value)
{
    switch (info.type) {
    case TPropType::Integer:
        return QString::number(value.toInt());
    case TPropType::Boolean:
        return value.toBool() ? QStringLiteral("True") : QStringLiteral("False");
    case TPropType::String:
        return value.toString();
    case TPropType::Color:
        return ColorToString(value.value<TColor>());
    case TPropType::Enum: {
        const int i = value.toInt();
        return i >= 0 && i < info.enumNames.size() ? info.enumNames.at(i) : QString::number(i);
    }
    case TPropType::Set:
        return setToText(value.toInt(), info.enumNames);
    case TPropType::Font: {
        const TFont f = value.value<TFont>();
        return QStringLiteral("%1,%2,%3,%4")
            .arg(f.Name)
            .arg(f.Size)
            .arg(ColorToString(f.Color), setToText(int(f.Style), kFontStyleNames));
    }
    case TPropType::Strings:
        return value.toStringList().join(QLatin1Char('\n'));
    }
    return QString();
}

std::optional<QVariant> propertyValueFromText(const TPropInfo &info, const QString &text)
{
    switch (info.type) {
    case TPropType::Integer:
        if (const auto v = StringToInt(text))
            return QVariant(*v);
        return std::nullopt;
    case TPropType::Boolean: {
        const QString t = text.trimmed();
        if (t.compare(QLatin1String("True"), Qt::CaseInsensitive) == 0)
            return QVariant(true);
        if (t.compare(QLatin1String("False"), Qt::CaseInsensitive) == 0)
            return QVariant(false);
        if (const auto v = StringToInt(t))
            return QVariant(*v != 0);
        return std::nullopt;
    }
    case TPropType::String:
        return QVariant(text);
    case TPropType::Color:
        if (const auto c = StringToColor(text))
            return QVariant::fromValue(*c);
        return std::nullopt;
    case TPropType::Enum: {
        const QString t = text.trimmed();
        for (int i = 0; i < info.enumNames.size(); ++i)
            if (info.enumNames.at(i).compare(t, Qt::CaseInsensitive) == 0)
                return QVariant(i);
        if (const auto v = StringToInt(t); v && *v >= 0 && *v < qMax(1, int(info.enumNames.size())))
            return QVariant(*v);
        return std::nullopt;
    }
    case TPropType::Set:
        if (const auto bits = setFromText(text, info.enumNames))
            return QVariant(*bits);
        return std::nullopt;
    case TPropType::Font: {
        // The name may itself hold commas; the last three fields are fixed.
        const QStringList parts = text.split(QLatin1Char(','));
        if (parts.size() < 4)
            return std::nullopt;
        const int styleStart = int(parts.size()) - 1;
        // The style set may contain commas too: find its opening bracket.
        int bracket = styleStart;
        while (bracket > 0 && !parts.at(bracket).trimmed().startsWith(QLatin1Char('[')))
            --bracket;
        if (bracket < 3)
            return std::nullopt;
        TFont f;
        f.Name = parts.mid(0, bracket - 2).join(QLatin1Char(','));
        const auto size = StringToInt(parts.at(bracket - 2));
        const auto color = StringToColor(parts.at(bracket - 1));
        const auto style = setFromText(parts.mid(bracket).join(QLatin1Char(',')), kFontStyleNames);
        if (!size || !color || !style)
            return std::nullopt;
        f.Size = *size;
        f.Color = *color;
        f.Style = TFontStyles::fromInt(*style);
        return QVariant::fromValue(f);
    }
    case TPropType::Strings:
        return QVariant(text.isEmpty() ? QStringList() : text.split(QLatin1Char('\n')));
    }
    return std::nullopt;
}
