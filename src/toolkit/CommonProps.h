#pragma once

#include "PropInfo.h"

// Descriptors of the shared attributes, for the property lists of the
// control classes. Each list names what its class publishes, in order.
namespace CommonProps {
TPropInfo Left();
TPropInfo Top();
TPropInfo Width();
TPropInfo Height();
TPropInfo Align();
TPropInfo Color();
TPropInfo ParentColor();
TPropInfo Transparent();
TPropInfo Font();
TPropInfo ParentFont();
TPropInfo Tag();
TPropInfo Hint();
TPropInfo ShowHint();
TPropInfo HelpKeyword();
TPropInfo TabOrder();
TPropInfo TabStop();
TPropInfo Visible();
TPropInfo Enabled();
} // namespace CommonProps

// The identifiers of each enumeration, in ordinal order.
namespace EnumNames {
const QStringList &Align();
const QStringList &Alignment();
const QStringList &TextLayout();
const QStringList &BevelShape();
const QStringList &BevelStyle();
const QStringList &ShapeType();
const QStringList &PanelBevel();
const QStringList &BorderStyle();
const QStringList &ScrollStyle();
const QStringList &EditCharCase();
const QStringList &ButtonLayout();
const QStringList &TabPosition();
} // namespace EnumNames
