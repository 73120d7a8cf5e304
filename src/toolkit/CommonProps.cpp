#include "CommonProps.h"

#include "Control.h"

using PropBuilder::prop;

namespace CommonProps {
TPropInfo Left() { return prop("Left", &TControl::Left, &TControl::setLeft); }
TPropInfo Top() { return prop("Top", &TControl::Top, &TControl::setTop); }
TPropInfo Width() { return prop("Width", &TControl::Width, &TControl::setWidth); }
TPropInfo Height() { return prop("Height", &TControl::Height, &TControl::setHeight); }
TPropInfo Align()
{
    return prop("Align", &TControl::Align, &TControl::setAlign, enumNames<TAlign>(), QVariant(int(alNone)));
}
TPropInfo Color() { return prop("Color", &TControl::Color, &TControl::setColor); }
TPropInfo ParentColor() { return prop("ParentColor", &TControl::ParentColor, &TControl::setParentColor); }
TPropInfo Transparent()
{
    return prop("Transparent", &TControl::Transparent, &TControl::setTransparent, {}, QVariant(false));
}
TPropInfo Font() { return prop("Font", &TControl::Font, &TControl::setFont); }
TPropInfo ParentFont() { return prop("ParentFont", &TControl::ParentFont, &TControl::setParentFont); }
TPropInfo Tag() { return prop("Tag", &TControl::Tag, &TControl::setTag, {}, QVariant(0)); }
TPropInfo Hint() { return prop("Hint", &TControl::Hint, &TControl::setHint, {}, QVariant(QString())); }
TPropInfo ShowHint() { return prop("ShowHint", &TControl::ShowHint, &TControl::setShowHint, {}, QVariant(false)); }
TPropInfo HelpKeyword()
{
    return prop("HelpKeyword", &TControl::HelpKeyword, &TControl::setHelpKeyword, {}, QVariant(QString()));
}
TPropInfo TabOrder() { return prop("TabOrder", &TControl::TabOrder, &TControl::setTabOrder); }
TPropInfo TabStop() { return prop("TabStop", &TControl::TabStop, &TControl::setTabStop); }
namespace {
TPropInfo widgetFlag(const QString &name, bool (QWidget::*getter)() const, void (QWidget::*setter)(bool))
{
    TPropInfo info;
    info.name = name;
    info.type = TPropType::Boolean;
    info.defaultValue = true;
    info.get = [getter](const QObject *o) -> QVariant {
        const auto *w = qobject_cast<const QWidget *>(o);
        return w ? QVariant(bool((w->*getter)())) : QVariant();
    };
    info.set = [setter](QObject *o, const QVariant &v) {
        if (auto *w = qobject_cast<QWidget *>(o))
            (w->*setter)(v.toBool());
    };
    return info;
}
} // namespace
TPropInfo Visible()
{
    TPropInfo info;
    info.name = QStringLiteral("Visible");
    info.type = TPropType::Boolean;
    info.defaultValue = true;
    info.get = [](const QObject *o) -> QVariant {
        const TControl *c = TControl::from(o);
        return c ? QVariant(c->Visible()) : QVariant();
    };
    info.set = [](QObject *o, const QVariant &v) {
        if (auto *w = qobject_cast<QWidget *>(o))
            w->setVisible(v.toBool()); // virtual: records the control's own flag
    };
    return info;
}
TPropInfo Enabled()
{
    return widgetFlag(QStringLiteral("Enabled"), &QWidget::isEnabled, &QWidget::setEnabled);
}
} // namespace CommonProps


