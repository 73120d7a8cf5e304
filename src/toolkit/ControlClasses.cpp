#include "ControlClasses.h"

#include <QHash>

#include "Containers.h"
#include "Edits.h"
#include "Graphics.h"
#include "Grids.h"
#include "MyBtn.h"

namespace ControlClasses {

const QList<const TClassInfo *> &all()
{
    // Listed here rather than registered by each file: a static library drops
    // object files nothing refers to, and with them self-registration.
    static const QList<const TClassInfo *> classes = {
        &TAdvOfficePager::staticClassInfo(), &TAdvOfficePage::staticClassInfo(), &TPanel::staticClassInfo(),
        &TLabel::staticClassInfo(),          &TDBLabel::staticClassInfo(),       &TcxTextEdit::staticClassInfo(),
        &TcxComboBox::staticClassInfo(),     &TcxDBPopupEdit::staticClassInfo(), &TcxMemo::staticClassInfo(),
        &TcxDBCheckBox::staticClassInfo(),   &TBevel::staticClassInfo(),         &TImageAspect::staticClassInfo(),
        &TShape::staticClassInfo(),          &TMaskBtn::staticClassInfo(),       &TDBGrid::staticClassInfo(),
        &TcxDBTreeList::staticClassInfo(),   &TStringGrid::staticClassInfo(),    &TDBRadioGroup::staticClassInfo(),
        &TImage::staticClassInfo(),          &TTabSet::staticClassInfo(),
    };
    return classes;
}

const TClassInfo *find(const QString &className)
{
    static const QHash<QString, const TClassInfo *> byName = [] {
        QHash<QString, const TClassInfo *> h;
        for (const TClassInfo *c : all())
            h.insert(c->className.toLower(), c);
        return h;
    }();
    return byName.value(className.toLower());
}

QWidget *create(const QString &className)
{
    const TClassInfo *info = find(className);
    return info ? info->create() : nullptr;
}

} // namespace ControlClasses
