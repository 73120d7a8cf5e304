// Locked, protected and transparent controls: the name lists, how children
// follow their parents, and the per-component behaviour the program decides.
#include <QSet>

#include "ComponentContainer.h"
#include "Components.h"
#include "DesignerWidgets.h"
#include "FormDesigner.h"

namespace {

bool listContains(const QStringList &names, const QString &name)
{
    for (const QString &entry : names)
        if (entry.compare(name, Qt::CaseInsensitive) == 0)
            return true;
    return false;
}

// What a control stands for in names and behaviour: a container answers for
// the component it shows.
QObject *subjectOf(QWidget *control)
{
    if (auto *container = qobject_cast<TComponentContainer *>(control))
        if (container->Component())
            return container->Component();
    return control;
}

bool isDefaultKind(TEditBehaviour behaviour)
{
    return behaviour == ebDefault || behaviour == ebDefaultRuntime;
}

} // namespace

// ---- the list properties ----

void TCustomFormDesigner::setLockedControls(const QStringList &v)
{
    m_lists[ltLocked] = v;
    listsChanged();
}

void TCustomFormDesigner::setLockedInverse(bool v)
{
    m_inverse[ltLocked] = v;
    listsChanged();
}

void TCustomFormDesigner::setLockChildren(TChildrenMode v)
{
    m_children[ltLocked] = v;
    listsChanged();
}

void TCustomFormDesigner::setProtectedControls(const QStringList &v)
{
    m_lists[ltProtected] = v;
    listsChanged();
}

void TCustomFormDesigner::setProtectedInverse(bool v)
{
    m_inverse[ltProtected] = v;
    listsChanged();
}

void TCustomFormDesigner::setProtectChildren(TChildrenMode v)
{
    m_children[ltProtected] = v;
    listsChanged();
}

void TCustomFormDesigner::listsChanged()
{
    // Locked controls get other handles; protected ones none at all.
    if (!m_active)
        return;
    UpdateGrabs();
    if (m_overlay)
        m_overlay->refresh();
}

// ---- tests ----

TEditBehaviour TCustomFormDesigner::behaviourOf(QObject *component) const
{
    TEditBehaviour behaviour = ebDefault;
    if (OnEditBehaviour && component) {
        QObject *subject = component;
        if (auto *w = qobject_cast<QWidget *>(component))
            subject = subjectOf(w);
        OnEditBehaviour(const_cast<TCustomFormDesigner *>(this), subject, behaviour);
    }
    return behaviour;
}

bool TCustomFormDesigner::nameListMatch(TListType list, QWidget *control) const
{
    const QStringList &names = m_lists[list];
    if (names.isEmpty() || !IsDesignable(control))
        return false;
    const QObject *subject = subjectOf(control);
    QString name = subject->objectName();
    if (name.isEmpty())
        return false;
    if (listContains(names, name))
        return true;
    // "Owner.Name", "OwnersOwner.Owner.Name", ... as long as there are owners.
    QSet<const QObject *> seen{subject};
    for (const QObject *owner = Components::owner(subject); owner && !seen.contains(owner);
         owner = Components::owner(owner)) {
        seen.insert(owner);
        name = owner->objectName() + QLatin1Char('.') + name;
        if (listContains(names, name))
            return true;
    }
    return false;
}

bool TCustomFormDesigner::listTest(TListType list, QWidget *control) const
{
    bool found = false;
    switch (m_children[list]) {
    case cmNone:
        found = nameListMatch(list, control);
        break;
    case cmNormal:
        found = nameListMatch(list, control) || nameListMatch(list, control->parentWidget());
        break;
    case cmRecurse:
        for (QWidget *w = control; w && w != m_attached && !found; w = w->parentWidget())
            found = nameListMatch(list, w);
        break;
    }
    return found != m_inverse[list];
}

bool TCustomFormDesigner::IsLocked(QWidget *control) const
{
    if (!control)
        return false;
    // The design control never moves.
    if (m_attached && control == m_attached)
        return true;
    if (!IsDesignable(control))
        return false;
    const TEditBehaviour behaviour = behaviourOf(control);
    if (!isDefaultKind(behaviour))
        return behaviour == ebLocked || behaviour == ebLockedRuntime;
    return listTest(ltLocked, control);
}

bool TCustomFormDesigner::IsTransparent(QWidget *control) const
{
    if (!control)
        return false;
    const bool designControl = m_attached && control == m_attached;
    if (!designControl && !IsDesignable(control))
        return false;
    // Unlike locking, the program may make the design control itself solid.
    const TEditBehaviour behaviour = behaviourOf(control);
    if (!isDefaultKind(behaviour))
        return behaviour == ebTransparent || behaviour == ebTransparentRuntime;
    if (designControl)
        return true;
    return listTest(ltTransparent, control);
}

bool TCustomFormDesigner::IsProtected(QWidget *control) const
{
    if (!control || !m_attached)
        return false;
    const bool designable = IsDesignable(control);
    // With a design control of its own, the controls of the form around it
    // are protected too: they are the program's, not the user's.
    bool outside = false;
    if (!designable && m_designControl && control != m_attached && TControl::from(control)) {
        QWidget *form = ParentForm();
        outside = form && form->isAncestorOf(control) && !m_attached->isAncestorOf(control);
        if (outside && OnComponentEditable) {
            bool editable = true;
            OnComponentEditable(const_cast<TCustomFormDesigner *>(this), control, editable);
            outside = editable;
        }
    }
    if (!designable && !outside)
        return false;
    const TEditBehaviour behaviour = behaviourOf(control);
    if (!isDefaultKind(behaviour))
        return behaviour == ebProtected;
    if (m_designControl) {
        for (QWidget *w = control->parentWidget(); w; w = w->parentWidget())
            if (w == m_designControl)
                return false;
        return true;
    }
    // Designing the form itself: what counts is the control's top-level
    // ancestor, the one placed directly on the form.
    QWidget *form = ParentForm();
    QWidget *top = control;
    while (top && top->parentWidget() != form)
        top = top->parentWidget();
    if (!top || top == form)
        return true;
    return listTest(ltProtected, top);
}
