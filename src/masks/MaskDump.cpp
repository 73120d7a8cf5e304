#include "MaskDump.h"

#include "Components.h"
#include "Control.h"
#include "EditStyle.h"
#include "MaskDocument.h"

#include <QJsonArray>

namespace {

QJsonObject fontToJson(const TFont &f)
{
    return QJsonObject{{QStringLiteral("name"), f.Name},
                       {QStringLiteral("size"), f.Size},
                       {QStringLiteral("color"), ColorToString(f.Color)},
                       {QStringLiteral("style"), FontStylesToString(f.Style)}};
}

QJsonValue propertyToJson(const TPropInfo &info, const QVariant &value)
{
    switch (info.type) {
    case TPropType::Integer:
        return value.toInt();
    case TPropType::Boolean:
        return value.toBool();
    case TPropType::String:
        return value.toString();
    case TPropType::Font:
        return fontToJson(value.value<TFont>());
    case TPropType::Strings:
        return QJsonArray::fromStringList(value.toStringList());
    case TPropType::Color:
    case TPropType::Enum:
    case TPropType::Set:
        break;
    }
    return propertyValueToText(info, value);
}

QJsonObject controlToJson(QWidget *w, const TControl *c)
{
    QJsonObject o;
    o.insert(QStringLiteral("class"), QString::fromLatin1(w->metaObject()->className()));
    o.insert(QStringLiteral("name"), w->objectName());
    o.insert(QStringLiteral("parent"), w->parentWidget() ? w->parentWidget()->objectName() : QString());
    o.insert(QStringLiteral("left"), c->Left());
    o.insert(QStringLiteral("top"), c->Top());
    o.insert(QStringLiteral("width"), c->Width());
    o.insert(QStringLiteral("height"), c->Height());
    const int tabOrder = c->TabOrder();
    o.insert(QStringLiteral("tabOrder"), tabOrder >= 0 ? QJsonValue(tabOrder) : QJsonValue());
    o.insert(QStringLiteral("caption"), c->Caption());
    o.insert(QStringLiteral("hint"), c->Hint());
    o.insert(QStringLiteral("tag"), c->Tag());
    o.insert(QStringLiteral("helpKeyword"), c->HelpKeyword());
    const TClassInfo &info = c->classInfo();
    if (info.property(QStringLiteral("Font")))
        o.insert(QStringLiteral("font"), fontToJson(c->Font()));
    QJsonObject properties;
    for (const TPropInfo &p : info.properties)
        properties.insert(p.name, propertyToJson(p, p.read(w)));
    o.insert(QStringLiteral("properties"), properties);
    return o;
}

} // namespace

namespace MaskDump {

QJsonObject MaskToJson(const TMaskDocument &document)
{
    QJsonObject root;
    root.insert(QStringLiteral("title"), document.Titel());
    root.insert(QStringLiteral("table"), document.Tabelle());
    root.insert(QStringLiteral("type"), document.Typ());
    root.insert(QStringLiteral("resolution"), QJsonObject{{QStringLiteral("pixel"), document.Pixel()},
                                                          {QStringLiteral("width"), document.ScreenWidth()},
                                                          {QStringLiteral("height"), document.ScreenHeight()}});

    const TcxEditStyleController *style = document.cxStyleController();
    root.insert(QStringLiteral("style"),
                QJsonObject{{QStringLiteral("BorderStyle"), style->BorderStyle()},
                            {QStringLiteral("ButtonStyle"), style->ButtonStyle()},
                            {QStringLiteral("ButtonTrans"), style->ButtonTransparency()},
                            {QStringLiteral("Color"), ColorToString(style->BorderColor())},
                            {QStringLiteral("Shadow"), style->Shadow()},
                            {QStringLiteral("Hottrack"), style->HotTrack()},
                            {QStringLiteral("EdgeLeft"), bool(style->Edges() & bLeft)},
                            {QStringLiteral("EdgeRight"), bool(style->Edges() & bRight)},
                            {QStringLiteral("EdgeTop"), bool(style->Edges() & bTop)},
                            {QStringLiteral("EdgeBottom"), bool(style->Edges() & bBottom)}});

    const TTableSettings &t = document.TableSettings();
    root.insert(QStringLiteral("tableSettings"),
                QJsonObject{{QStringLiteral("CadPath"), t.CadPath},
                            {QStringLiteral("Index"), t.Index},
                            {QStringLiteral("Dateizaehler"), t.Dateizaehler},
                            {QStringLiteral("Fokus"), t.Fokus},
                            {QStringLiteral("Felder"), t.Felder},
                            {QStringLiteral("AutoFill"), QJsonArray::fromStringList(t.AutoFill)},
                            {QStringLiteral("Default"), QJsonArray::fromStringList(t.Default)}});

    QJsonArray controls;
    for (QObject *component : Components::components(&document)) {
        auto *w = qobject_cast<QWidget *>(component);
        if (const TControl *c = TControl::from(component); w && c)
            controls.append(controlToJson(w, c));
    }
    root.insert(QStringLiteral("controls"), controls);
    return root;
}

} // namespace MaskDump
