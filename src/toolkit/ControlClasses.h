#pragma once

#include <QList>
#include <QString>

#include "PropInfo.h"

class QWidget;

// The control classes a mask can hold, by class name.
namespace ControlClasses {

// Every class, in the order of the kinds of control.
const QList<const TClassInfo *> &all();
// Case-insensitive; nullptr for an unknown name.
const TClassInfo *find(const QString &className);
// A new, unnamed, parentless control of that class, or nullptr.
QWidget *create(const QString &className);

} // namespace ControlClasses
