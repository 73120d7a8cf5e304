#pragma once

#include <QSize>
#include <QStringList>

class TMaske;

// The screens a mask can be designed for, as the resolution list offers them.
namespace MaskResolutions {

// The entries of the list, "WIDTHxHEIGHT" each.
QStringList texts();

// Adapts a mask window to the entry at index: the scroll range fills the
// main window's area, the design and window sizes follow the entry, and the
// mask file keeps the entry as its text reads. An index outside the list
// only sets the scroll range.
void apply(TMaske *mask, int index, const QSize &mainWindowSize);
// The same for an entry by its text; a "WIDTHxHEIGHT" the list lacks is
// applied by the rule behind the list's numbers.
void apply(TMaske *mask, const QString &text, const QSize &mainWindowSize);

} // namespace MaskResolutions
