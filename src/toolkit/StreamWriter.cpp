// Widgets -> stream tree: the published properties that differ from their
// defaults, and the child controls.
#include "StreamTree.h"

#include "Containers.h"
#include "Control.h"

namespace StreamTree {

namespace {

Value colorValue(TColor color)
{
    const QString ident = ColorToIdent(color);
    return ident.isEmpty() ? Value::fromInt(color.value()) : Value::fromIdent(ident);
}

QStringList setNames(int bits, const QStringList &names)
{
    QStringList on;
    for (int i = 0; i < names.size() && i < 32; ++i)
        if (bits & (1u << i))
            on << names.at(i);
    return on;
}

void addProperty(QList<Property> &out, const TPropInfo &info, const QVariant &v)
{
    switch (info.type) {
    case TPropType::Integer:
        out.append({info.name, Value::fromInt(v.toInt())});
        break;
    case TPropType::Boolean:
        out.append({info.name, Value::fromBool(v.toBool())});
        break;
    case TPropType::String:
        out.append({info.name, Value::fromString(v.toString())});
        break;
    case TPropType::Color:
        out.append({info.name, colorValue(v.value<TColor>())});
        break;
    case TPropType::Enum: {
        const int i = v.toInt();
        out.append({info.name, i >= 0 && i < info.enumNames.size() ? Value::fromIdent(info.enumNames.at(i))
                                                                     : Value::fromInt(i)});
        break;
    }
    case TPropType::Set:
        out.append({info.name, Value::fromSet(setNames(v.toInt(), info.enumNames))});
        break;
    case TPropType::Font: {
        // A font goes as its four parts, each a property of its own.
        const TFont f = v.value<TFont>();
        const QString prefix = info.name + QLatin1Char('.');
        out.append({prefix + QLatin1String("Name"), Value::fromString(f.Name)});
        out.append({prefix + QLatin1String("Size"), Value::fromInt(f.Size)});
        out.append({prefix + QLatin1String("Color"), colorValue(f.Color)});
        out.append({prefix + QLatin1String("Style"),
                    Value::fromSet(setNames(int(f.Style), fontStyleNames()))});
        break;
    }
    case TPropType::Strings: {
        QList<Value> items;
        for (const QString &s : v.toStringList())
            items << Value::fromString(s);
        out.append({info.name + QLatin1String(".Strings"), Value::fromList(items)});
        break;
    }
    }
}

// The controls among the direct children; a pager's pages in page order, so
// that reading them back one after another rebuilds that order.
QList<QWidget *> childControls(QWidget *widget)
{
    QList<QWidget *> out;
    if (auto *pager = qobject_cast<TAdvOfficePager *>(widget)) {
        for (int i = 0; i < pager->PageCount(); ++i)
            if (pager->Pages(i)->parentWidget() == pager)
                out << pager->Pages(i);
    }
    for (QObject *child : widget->children()) {
        if (!TControl::from(child))
            continue;
        auto *w = qobject_cast<QWidget *>(child);
        if (w && !out.contains(w))
            out << w;
    }
    return out;
}

} // namespace

const QStringList &fontStyleNames()
{
    static const QStringList names = {QStringLiteral("fsBold"), QStringLiteral("fsItalic"),
                                      QStringLiteral("fsUnderline"), QStringLiteral("fsStrikeOut")};
    return names;
}

QList<Property> propertiesOf(QWidget *widget)
{
    QList<Property> out;
    const TControl *control = TControl::from(widget);
    if (!control)
        return out;
    for (const TPropInfo &info : control->classInfo().properties) {
        if (info.isDefault(widget))
            continue;
        addProperty(out, info, info.read(widget));
    }
    return out;
}

Node nodeFromWidget(QWidget *widget)
{
    Node n;
    if (!widget)
        return n;
    const TControl *control = TControl::from(widget);
    n.className = control ? control->classInfo().className : QString::fromLatin1(widget->metaObject()->className());
    n.name = widget->objectName();
    n.properties = propertiesOf(widget);
    for (QWidget *child : childControls(widget))
        n.children << nodeFromWidget(child);
    return n;
}

} // namespace StreamTree
