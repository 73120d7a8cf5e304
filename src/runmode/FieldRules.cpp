#include "FieldRules.h"

#include <QDate>
#include <QLocale>
#include <QRegularExpression>

namespace {
bool toNumber(const QString &text, double *value)
{
    bool ok = false;
    *value = QLocale(QLocale::German, QLocale::Germany).toDouble(text, &ok);
    if (!ok)
        *value = QLocale::c().toDouble(text, &ok);
    return ok;
}

QDate toDate(const QString &text)
{
    for (const char *format : {"dd.MM.yyyy", "d.M.yyyy", "yyyy-MM-dd"}) {
        const QDate d = QDate::fromString(text, QLatin1String(format));
        if (d.isValid())
            return d;
    }
    return QDate();
}

// The mask part of "mask;literals;blank": a ";" escaped with "\" belongs to the mask.
QStringList maskParts(const QString &editMask)
{
    QStringList parts{QString()};
    for (int i = 0; i < editMask.size(); ++i) {
        const QChar c = editMask.at(i);
        if (c == QLatin1Char('\\') && i + 1 < editMask.size()) {
            parts.last() += c;
            parts.last() += editMask.at(++i);
        } else if (c == QLatin1Char(';') && parts.size() < 3) {
            parts << QString();
        } else {
            parts.last() += c;
        }
    }
    return parts;
}

// The literal characters of a mask as the field shows them.
QString literalsOf(const QString &mask)
{
    QString literals;
    for (int i = 0; i < mask.size(); ++i) {
        QChar c = mask.at(i);
        if (c == QLatin1Char('\\') && i + 1 < mask.size())
            c = mask.at(++i);
        else if (QStringLiteral("LlAaCc09#!<>").contains(c))
            continue;
        else if (c == QLatin1Char('/'))
            c = QLatin1Char('.');
        else if (c == QLatin1Char('_'))
            c = QLatin1Char(' ');
        if (!literals.contains(c))
            literals += c;
    }
    return literals;
}
} // namespace

namespace FieldRules {

bool ruleMatches(const QString &expression, const QString &fieldText)
{
    QString rule = expression.trimmed();
    if (rule.isEmpty())
        return false;
    QString op = QStringLiteral("=");
    for (const char *candidate : {"<>", "!=", ">=", "<=", "=", ">", "<"}) {
        if (rule.startsWith(QLatin1String(candidate))) {
            op = QLatin1String(candidate);
            rule = rule.mid(op.size()).trimmed();
            break;
        }
    }
    if (op == QLatin1String("!="))
        op = QStringLiteral("<>");
    if (rule.size() >= 2 && (rule.front() == QLatin1Char('\'') || rule.front() == QLatin1Char('"'))
        && rule.back() == rule.front())
        rule = rule.mid(1, rule.size() - 2);
    const QString value = fieldText.trimmed();

    int order = 0;
    double a = 0;
    double b = 0;
    const QDate da = toDate(value);
    const QDate db = toDate(rule);
    if (!value.isEmpty() && !rule.isEmpty() && toNumber(value, &a) && toNumber(rule, &b))
        order = a < b ? -1 : (a > b ? 1 : 0);
    else if (da.isValid() && db.isValid())
        order = da < db ? -1 : (da > db ? 1 : 0);
    else if ((op == QLatin1String("=") || op == QLatin1String("<>"))
             && (rule.contains(QLatin1Char('*')) || rule.contains(QLatin1Char('?')))) {
        const QRegularExpression pattern(QRegularExpression::wildcardToRegularExpression(rule),
                                         QRegularExpression::CaseInsensitiveOption);
        return pattern.match(value).hasMatch() == (op == QLatin1String("="));
    } else
        order = QString::compare(value, rule, Qt::CaseInsensitive);

    if (op == QLatin1String("="))
        return order == 0;
    if (op == QLatin1String("<>"))
        return order != 0;
    if (value.isEmpty())
        return false; // an empty field is neither more nor less than a value
    if (op == QLatin1String(">"))
        return order > 0;
    if (op == QLatin1String(">="))
        return order >= 0;
    if (op == QLatin1String("<"))
        return order < 0;
    return order <= 0;
}

QString inputMask(const QString &editMask)
{
    const QStringList parts = maskParts(editMask);
    const QString mask = parts.value(0);
    if (mask.isEmpty())
        return QString();
    QString result;
    for (int i = 0; i < mask.size(); ++i) {
        const QChar c = mask.at(i);
        switch (c.unicode()) {
        case '0': result += QLatin1Char('9'); break; // a digit, required
        case '9': result += QLatin1Char('0'); break; // a digit, optional
        case '#': result += QLatin1Char('#'); break;
        case 'L': result += QLatin1Char('A'); break; // a letter, required
        case 'l': result += QLatin1Char('a'); break;
        case 'A': result += QLatin1Char('N'); break; // a letter or digit, required
        case 'a': result += QLatin1Char('n'); break;
        case 'C': result += QLatin1Char('X'); break; // any character, required
        case 'c': result += QLatin1Char('x'); break;
        case '>':
        case '<':
            if (c == QLatin1Char('<') && mask.mid(i, 2) == QLatin1String("<>")) {
                result += QLatin1Char('!');
                ++i;
            } else
                result += c;
            break;
        case '!': break; // leading blanks are dropped anyway
        case '/': result += QLatin1Char('.'); break; // the German date separator
        case '_': result += QLatin1Char(' '); break;
        case '\\':
            if (i + 1 < mask.size())
                result += QLatin1Char('\\') + mask.at(++i);
            break;
        default:
            // A literal; the letters the line edit would read as placeholders are escaped.
            if (QStringLiteral("AaNnXx90Dd#HhBb<>!\\{}[]").contains(c))
                result += QLatin1Char('\\');
            result += c;
        }
    }
    const QString blank = parts.value(2);
    return result + QLatin1Char(';') + (blank.isEmpty() ? QStringLiteral("_") : blank.left(1));
}

bool keepsLiterals(const QString &editMask)
{
    return maskParts(editMask).value(1).trimmed() != QLatin1String("0");
}

QString maskedValue(const QString &editMask, const QString &text)
{
    // The field leaves out blanks, so the literals are found by what they are.
    const QString literals = literalsOf(maskParts(editMask).value(0)) + QLatin1Char(' ');
    QString bare;
    for (const QChar c : text)
        if (!literals.contains(c))
            bare += c;
    if (bare.isEmpty())
        return QString();
    return keepsLiterals(editMask) ? text.trimmed() : bare;
}

} // namespace FieldRules
