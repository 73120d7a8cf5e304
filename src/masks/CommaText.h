#pragma once

#include <QString>
#include <QStringList>

// A list as one line of text, as mask files keep the values of a radio
// group: items separated by commas; an item that is empty or holds a blank,
// a comma or a double quote stands in double quotes, its quotes doubled.
namespace CommaText {

QString join(const QStringList &items);
// Reads what join writes; blanks outside quotes also separate items.
QStringList split(const QString &text);

} // namespace CommaText
