#pragma once

#include <QString>
#include <QStringList>

// The pick-list blocks at the top of a mask file hold a combo box's items as
// plain lines under "[name]". The file has no escaping, so an item that
// looks like a section header or a "Key=Value" line would read back as one
// and could change the mask (its title, its controls).
namespace PickLists {

// Whether the item can stand as a line of a pick-list block.
bool holds(const QString &item);

// Empty when every item can be stored; else a German message naming the
// first item that cannot.
QString refusal(const QStringList &items);

// The block's header line for a pick-list name, on one line whatever the name holds.
QString header(const QString &name);

} // namespace PickLists
