#include "CommaText.h"

namespace CommaText {

QString join(const QStringList &items)
{
    QString out;
    for (int i = 0; i < items.size(); ++i) {
        if (i)
            out += QLatin1Char(',');
        const QString &item = items.at(i);
        bool quote = item.isEmpty();
        for (QChar ch : item)
            if (ch.unicode() <= ' ' || ch == QLatin1Char(',') || ch == QLatin1Char('"'))
                quote = true;
        if (!quote) {
            out += item;
            continue;
        }
        out += QLatin1Char('"');
        for (QChar ch : item) {
            if (ch == QLatin1Char('"'))
                out += QLatin1Char('"');
            out += ch;
        }
        out += QLatin1Char('"');
    }
    return out;
}

QStringList split(const QString &text)
{
    QStringList items;
    const qsizetype n = text.size();
    qsizetype i = 0;
    const auto isBlank = [](QChar ch) { return ch.unicode() <= ' '; };
    while (i < n && isBlank(text.at(i)))
        ++i;
    while (i < n) {
        QString item;
        if (text.at(i) == QLatin1Char('"')) {
            ++i;
            while (i < n) {
                if (text.at(i) == QLatin1Char('"')) {
                    if (i + 1 < n && text.at(i + 1) == QLatin1Char('"')) {
                        item += QLatin1Char('"');
                        i += 2;
                        continue;
                    }
                    ++i;
                    break;
                }
                item += text.at(i++);
            }
        } else {
            while (i < n && text.at(i) != QLatin1Char(',') && !isBlank(text.at(i)))
                item += text.at(i++);
        }
        items.append(item);
        while (i < n && isBlank(text.at(i)))
            ++i;
        if (i < n && text.at(i) == QLatin1Char(',')) {
            ++i;
            while (i < n && isBlank(text.at(i)))
                ++i;
            if (i == n)
                items.append(QString()); // a trailing comma ends with an empty item
        }
    }
    return items;
}

} // namespace CommaText
