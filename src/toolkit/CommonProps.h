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

