#pragma once

#include <QObject>
#include <QString>
#include <QStringList>
#include <QVariant>
#include <QVector>
#include <functional>
#include <optional>
#include <type_traits>

#include "Types.h"

class QWidget;

// The kinds of value a published property holds.
enum class TPropType {
    Integer,  // int
    Boolean,  // bool
    String,   // QString
    Color,    // TColor
    Enum,     // int ordinal; TPropInfo::enumNames names each value
    Set,      // int bit set; TPropInfo::enumNames names each bit
    Font,     // TFont
    Strings,  // QStringList
};

// One published property: its name, type and access. Component streaming,
// undo snapshots and the object inspector all work from these descriptors.
struct TPropInfo
{
    QString name;
    TPropType type = TPropType::Integer;
    QStringList enumNames;
    std::function<QVariant(const QObject *)> get;
    std::function<void(QObject *, const QVariant &)> set;
    QVariant defaultValue; // invalid: always stored

    QVariant read(const QObject *object) const { return get(object); }
    void write(QObject *object, const QVariant &value) const { set(object, value); }
    bool isDefault(const QObject *object) const;
};

// The published face of one control class.
struct TClassInfo
{
    QString className;                  // "TLabel"
    QVector<TPropInfo> properties;      // in publishing order
    std::function<QWidget *()> create;  // a new, unnamed, parentless instance
    bool windowed = false;              // has a window of its own: can be a parent, takes focus
    bool acceptsControls = false;       // the designer may place controls into it
    bool setCaptionFromName = false;    // a caption equal to the old name follows a rename

    const TPropInfo *property(const QString &name) const; // case-insensitive
};

// Text form of property values (object inspector, text streams):
// integers decimal, booleans "True"/"False", colours as colour text, enums by
// identifier, sets as "[fsBold,fsItalic]", fonts as "Name,Size,Color,Style",
// string lists one item per line.
QString propertyValueToText(const TPropInfo &info, const QVariant &value);
std::optional<QVariant> propertyValueFromText(const TPropInfo &info, const QString &text);

namespace PropBuilder {

template <class T>
constexpr TPropType typeOf()
{
    if constexpr (std::is_same_v<T, bool>)
        return TPropType::Boolean;
    else if constexpr (std::is_same_v<T, QString>)
        return TPropType::String;
    else if constexpr (std::is_same_v<T, TColor>)
        return TPropType::Color;
    else if constexpr (std::is_same_v<T, TFont>)
        return TPropType::Font;
    else if constexpr (std::is_same_v<T, QStringList>)
        return TPropType::Strings;
    else if constexpr (std::is_enum_v<T>)
        return TPropType::Enum;
    else {
        static_assert(std::is_integral_v<T>, "unsupported property type");
        return TPropType::Integer;
    }
}

template <class T>
QVariant toVariant(const T &v)
{
    if constexpr (std::is_enum_v<T>)
        return QVariant(int(v));
    else
        return QVariant::fromValue(v);
}

template <class T>
T fromVariant(const QVariant &v)
{
    if constexpr (std::is_enum_v<T>)
        return T(v.toInt());
    else
        return v.value<T>();
}

// A property read and written through a getter and a setter of class C.
template <class C, class G, class S>
TPropInfo prop(const QString &name, G (C::*getter)() const, void (C::*setter)(S),
               const QStringList &enumNames = {}, const QVariant &defaultValue = {})
{
    using T = std::decay_t<G>;
    static_assert(std::is_same_v<T, std::decay_t<S>>, "getter and setter types differ");
    TPropInfo info;
    info.name = name;
    info.type = typeOf<T>();
    info.enumNames = enumNames;
    info.defaultValue = defaultValue;
    info.get = [getter](const QObject *o) -> QVariant {
        const C *c = dynamic_cast<const C *>(o);
        return c ? toVariant<T>((c->*getter)()) : QVariant();
    };
    info.set = [setter](QObject *o, const QVariant &v) {
        if (C *c = dynamic_cast<C *>(o))
            (c->*setter)(fromVariant<T>(v));
    };
    return info;
}

// A bit-set property kept as an int; bitNames name the bits from bit 0 up.
template <class C>
TPropInfo setProp(const QString &name, int (C::*getter)() const, void (C::*setter)(int),
                  const QStringList &bitNames)
{
    TPropInfo info;
    info.name = name;
    info.type = TPropType::Set;
    info.enumNames = bitNames;
    info.get = [getter](const QObject *o) -> QVariant {
        const C *c = dynamic_cast<const C *>(o);
        return c ? QVariant((c->*getter)()) : QVariant();
    };
    info.set = [setter](QObject *o, const QVariant &v) {
        if (C *c = dynamic_cast<C *>(o))
            (c->*setter)(v.toInt());
    };
    return info;
}

} // namespace PropBuilder
