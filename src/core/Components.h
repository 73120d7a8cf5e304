#pragma once

#include <QList>
#include <QObject>
#include <QString>

// Ownership of components, apart from the widget tree: a mask window owns
// every control placed on it, wherever in its tree of containers the control
// sits, and keeps them in creation order. The object name is the component name.
namespace Components {

// Makes owner the owner of component (removing it from a former owner); the
// component is appended to the owner's list. nullptr as owner only detaches.
void setOwner(QObject *component, QObject *owner);
QObject *owner(const QObject *component);

// The components of owner in creation order.
QList<QObject *> components(const QObject *owner);
int componentCount(const QObject *owner);
int componentIndex(const QObject *component);

// The owned component with this name; names match without regard to case.
QObject *findComponent(const QObject *owner, const QString &name);

} // namespace Components

// The naming rule for new, loaded and pasted components: class name without
// its first letter followed by the first number from 1 that no component of
// owner bears. A component that already has a name no other component of owner
// bears keeps it. Returns true when a name was given; false for a null
// component, a kept name, or when 32768 tries found no free name.
bool AutoName(QObject *component, const QObject *owner);
