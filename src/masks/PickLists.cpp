#include "PickLists.h"

#include "IniFileAccess.h"

#include <QCoreApplication>

namespace PickLists {

bool holds(const QString &item)
{
    if (item.contains(QLatin1Char('\n')) || item.contains(QLatin1Char('\r')))
        return false;
    QStringView name;
    if (IniFileAccess::sectionHeader(item, &name))
        return false;
    // The reader takes a line with a key before "=" as that key, unless it
    // is a comment.
    const QStringView t = IniFileAccess::trimmed(item);
    const qsizetype eq = item.indexOf(QLatin1Char('='));
    return eq < 0 || t.startsWith(QLatin1Char(';')) || IniFileAccess::trimmed(QStringView(item).left(eq)).isEmpty();
}

QString refusal(const QStringList &items)
{
    for (const QString &item : items) {
        if (!holds(item))
            return QCoreApplication::translate(
                       "PickLists",
                       "Der Eintrag „%1“ kann nicht in die Auswahlliste übernommen werden: Ein Eintrag "
                       "darf kein „=“ enthalten und nicht in eckigen Klammern stehen.")
                .arg(IniFileAccess::singleLine(item));
    }
    return QString();
}

QString header(const QString &name)
{
    QString oneLine = IniFileAccess::singleLine(name);
    // A "]" inside would end the name early.
    oneLine.replace(QLatin1Char(']'), QLatin1Char(' '));
    return QLatin1Char('[') + oneLine + QLatin1Char(']');
}

} // namespace PickLists
