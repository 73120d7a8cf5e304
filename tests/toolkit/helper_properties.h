#pragma once

// Shared by the tests of the control classes: every published property
// written through its descriptor and read back.
#include <QColor>
#include <QHash>
#include <QImage>
#include <QStringList>
#include <QVariant>

#include "PropInfo.h"

#include <functional>

class QWidget;

QString describe(const TPropInfo &p, const QVariant &v);
// A value of the property's type that differs from the current one.
QVariant otherValue(const TPropInfo &p, const QVariant &current, int salt);
// Writes a new value to every published property (but those in skip), reads
// them all back and checks every ordinal of every enumeration; reports a
// mismatch as a test failure. Returns the values written.
QHash<QString, QVariant> writeEveryProperty(QWidget *w, const QStringList &skip = {});
// A control of the class as the second of two of its kind on parent, so
// that its TabOrder can change.
QWidget *createSecond(const TClassInfo &info, QWidget *parent);

// Pixels of a rendered control that match, for checking what paint draws.
int countPixels(const QImage &image, const std::function<bool(QColor)> &match);
bool isReddish(QColor c);
