// The text form: "object Name: TClass", "Prop = Value" lines, nested
// objects, "end"; two spaces of indentation per level. Strings keep to
// printable ASCII in quotes and write every other character as #code, so the
// text is plain ASCII apart from names, and a line break never sits in a string.
#include "StreamTree.h"

#include <QCoreApplication>

namespace StreamTree {

namespace {

bool isIdentStart(uchar c)
{
    return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') || c == '_' || c >= 0x80;
}

bool isIdentChar(uchar c)
{
    return isIdentStart(c) || (c >= '0' && c <= '9');
}

bool isBlank(uchar c)
{
    return c == ' ' || c == '\t' || c == '\r' || c == '\n';
}

// What the parser reads back as one identifier (dotted: "Font.Name").
bool isIdentifier(const QString &text, bool dotted)
{
    if (text.isEmpty())
        return false;
    bool partStart = true;
    for (QChar ch : text) {
        const ushort c = ch.unicode();
        if (dotted && c == '.' && !partStart) {
            partStart = true;
            continue;
        }
        const bool ok = c < 0x80 ? (partStart ? isIdentStart(uchar(c)) : isIdentChar(uchar(c)))
                                 : ch.isLetterOrNumber();
        if (!ok)
            return false;
        partStart = false;
    }
    return !partStart;
}

QByteArray quoted(const QString &text)
{
    if (text.isEmpty())
        return QByteArrayLiteral("''");
    QByteArray out;
    bool open = false;
    for (qsizetype i = 0; i < text.size(); ++i) {
        uint code = text.at(i).unicode();
        if (QChar::isHighSurrogate(code) && i + 1 < text.size() && text.at(i + 1).isLowSurrogate()) {
            code = QChar::surrogateToUcs4(text.at(i), text.at(i + 1));
            ++i;
        }
        if (code >= 32 && code <= 126) {
            if (!open) {
                out += '\'';
                open = true;
            }
            if (code == '\'')
                out += '\'';
            out += char(code);
        } else {
            if (open) {
                out += '\'';
                open = false;
            }
            out += '#';
            out += QByteArray::number(code);
        }
    }
    if (open)
        out += '\'';
    return out;
}

QByteArray nameToken(const QString &name, bool dotted)
{
    return isIdentifier(name, dotted) ? name.toUtf8() : quoted(name);
}

void writeValue(QByteArray &out, const Value &v, int indent)
{
    switch (v.kind) {
    case Value::Kind::Int:
        out += QByteArray::number(v.number);
        break;
    case Value::Kind::Bool:
        out += v.number ? "True" : "False";
        break;
    case Value::Kind::String:
        out += quoted(v.text);
        break;
    case Value::Kind::Ident:
        out += nameToken(v.text, false);
        break;
    case Value::Kind::Set: {
        out += '[';
        for (qsizetype i = 0; i < v.names.size(); ++i) {
            if (i)
                out += ", ";
            out += nameToken(v.names.at(i), false);
        }
        out += ']';
        break;
    }
    case Value::Kind::List:
        out += '(';
        for (const Value &item : v.items) {
            out += '\n';
            out += QByteArray(2 * (indent + 1), ' ');
            writeValue(out, item, indent + 1);
        }
        out += ')';
        break;
    }
}

void writeProperties(QByteArray &out, const QList<Property> &properties, int indent)
{
    for (const Property &p : properties) {
        out += QByteArray(2 * indent, ' ');
        out += nameToken(p.name, true);
        out += " = ";
        writeValue(out, p.value, indent);
        out += '\n';
    }
}

void writeNode(QByteArray &out, const Node &n, int indent)
{
    out += QByteArray(2 * indent, ' ');
    out += "object ";
    if (!n.name.isEmpty()) {
        out += nameToken(n.name, false);
        out += ": ";
    }
    out += nameToken(n.className, false);
    out += '\n';
    writeProperties(out, n.properties, indent + 1);
    for (const Node &child : n.children)
        writeNode(out, child, indent + 1);
    out += QByteArray(2 * indent, ' ');
    out += "end\n";
}

class TextReader
{
public:
    TextReader(const QByteArray &data, qsizetype pos) : m_data(data), m_pos(pos) {}

    ParseResult parseObject(Node &out)
    {
        ParseResult r;
        skipBlanks();
        if (!keyword("object")) {
            r.error = QCoreApplication::translate("Streaming", "Kein Komponentenstrom: „object“ fehlt");
            return r;
        }
        r.ok = node(out, 0);
        r.end = m_pos;
        if (!r.ok)
            r.error = errorText();
        return r;
    }

    // Property lines only; a faulty line is reported and reading goes on
    // with the next line.
    ParseResult parseProperties(QList<Property> &out)
    {
        ParseResult r;
        QStringList errors;
        for (;;) {
            skipBlanks();
            if (atEnd())
                break;
            Property p;
            if (property(p, 0)) {
                out << std::move(p);
                continue;
            }
            errors << errorText();
            m_error.clear();
            while (!atEnd() && m_data.at(m_pos) != '\n')
                ++m_pos;
        }
        r.ok = errors.isEmpty();
        r.error = errors.join(QLatin1Char('\n'));
        r.end = m_pos;
        return r;
    }

private:
    bool atEnd() const { return m_pos >= m_data.size(); }
    uchar peek(qsizetype ahead = 0) const
    {
        return m_pos + ahead < m_data.size() ? uchar(m_data.at(m_pos + ahead)) : 0;
    }

    void skipBlanks()
    {
        while (!atEnd() && isBlank(peek()))
            ++m_pos;
    }

    // The digits at the reading position, decimal or hexadecimal; fails with
    // tooBig as soon as the value passes limit and with missing without a digit.
    bool number(bool hex, quint64 limit, const QString &tooBig, const QString &missing, quint64 &n)
    {
        n = 0;
        int digits = 0;
        for (;;) {
            const uchar c = peek();
            int d = -1;
            if (c >= '0' && c <= '9')
                d = c - '0';
            else if (hex && c >= 'a' && c <= 'f')
                d = c - 'a' + 10;
            else if (hex && c >= 'A' && c <= 'F')
                d = c - 'A' + 10;
            if (d < 0)
                break;
            n = n * (hex ? 16 : 10) + quint64(d);
            ++digits;
            ++m_pos;
            if (n > limit)
                return fail(tooBig);
        }
        return digits > 0 || fail(missing);
    }

    bool fail(const QString &message)
    {
        if (m_error.isEmpty()) {
            m_error = message;
            m_errorPos = m_pos;
        }
        return false;
    }

    QString errorText() const
    {
        const qsizetype upTo = std::min(m_errorPos, m_data.size());
        const qsizetype line = QByteArrayView(m_data.constData(), upTo).count('\n') + 1;
        return QCoreApplication::translate("Streaming", "Zeile %1: %2").arg(line).arg(m_error);
    }

    // The identifier at the read position, not consumed.
    QByteArray peekWord() const
    {
        qsizetype end = m_pos;
        if (end < m_data.size() && isIdentStart(uchar(m_data.at(end))))
            while (end < m_data.size() && isIdentChar(uchar(m_data.at(end))))
                ++end;
        return m_data.mid(m_pos, end - m_pos);
    }

    bool keyword(const char *word)
    {
        const QByteArray w = peekWord();
        if (w.compare(word, Qt::CaseInsensitive) != 0)
            return false;
        m_pos += w.size();
        return true;
    }

    // An identifier (with dots where allowed) or a quoted name.
    bool nameToken(QString &out, bool dotted)
    {
        if (peek() == '\'' || peek() == '#')
            return string(out);
        QByteArray word = peekWord();
        if (word.isEmpty())
            return fail(QCoreApplication::translate("Streaming", "Bezeichner erwartet"));
        m_pos += word.size();
        while (dotted && peek() == '.' && isIdentStart(peek(1))) {
            ++m_pos;
            const QByteArray part = peekWord();
            m_pos += part.size();
            word += '.' + part;
        }
        out = QString::fromUtf8(word);
        return true;
    }

    bool stringPart(QString &out)
    {
        if (peek() == '\'') {
            ++m_pos;
            QByteArray run;
            for (;;) {
                if (atEnd())
                    return fail(QCoreApplication::translate("Streaming", "Zeichenkette nicht abgeschlossen"));
                const uchar c = peek();
                if (c == '\r' || c == '\n')
                    return fail(QCoreApplication::translate("Streaming", "Zeilenumbruch in einer Zeichenkette"));
                ++m_pos;
                if (c == '\'') {
                    if (peek() != '\'')
                        break;
                    ++m_pos;
                }
                run += char(c);
            }
            out += QString::fromUtf8(run);
            return true;
        }
        // #code: decimal, or $hex
        ++m_pos;
        const bool hex = peek() == '$';
        if (hex)
            ++m_pos;
        quint64 code = 0;
        if (!number(hex, 0x10FFFF, QCoreApplication::translate("Streaming", "ungültiger Zeichencode"),
                    QCoreApplication::translate("Streaming", "Zeichencode erwartet"), code))
            return false;
        if (code > 0xFFFF) {
            out += QChar(QChar::highSurrogate(char32_t(code)));
            out += QChar(QChar::lowSurrogate(char32_t(code)));
        } else {
            out += QChar(char16_t(code));
        }
        return true;
    }

    // Quoted runs and #codes, adjoining or joined by '+'.
    bool string(QString &out)
    {
        out.clear();
        if (!stringPart(out))
            return false;
        for (;;) {
            if (peek() == '\'' || peek() == '#') {
                if (!stringPart(out))
                    return false;
                continue;
            }
            const qsizetype save = m_pos;
            skipBlanks();
            if (peek() == '+') {
                ++m_pos;
                skipBlanks();
                if (peek() == '\'' || peek() == '#') {
                    if (!stringPart(out))
                        return false;
                    continue;
                }
            }
            m_pos = save;
            return true;
        }
    }

    bool integer(Value &v)
    {
        bool negative = false;
        if (peek() == '-' || peek() == '+') {
            negative = peek() == '-';
            ++m_pos;
        }
        const bool hex = peek() == '$';
        if (hex)
            ++m_pos;
        quint64 n = 0;
        if (!number(hex, 0xFFFFFFFFull, QCoreApplication::translate("Streaming", "Zahl zu groß"),
                    QStringLiteral("Zahl erwartet"), n))
            return false;
        if (isIdentChar(peek()))
            return fail(QCoreApplication::translate("Streaming", "ungültige Zahl"));
        // Hex wraps into the sign as colours are written; decimal must fit.
        if (!hex && n > (negative ? 0x80000000ull : 0x7FFFFFFFull))
            return fail(QCoreApplication::translate("Streaming", "Zahl zu groß"));
        const qint64 value = negative ? -qint64(n) : qint64(n);
        v = Value::fromInt(hex ? qint32(quint32(value)) : qint32(value));
        return true;
    }

    bool value(Value &v, int depth)
    {
        const uchar c = peek();
        if (c == '\'' || c == '#') {
            QString s;
            if (!string(s))
                return false;
            v = Value::fromString(s);
            return true;
        }
        if (c == '-' || c == '+' || c == '$' || (c >= '0' && c <= '9'))
            return integer(v);
        if (c == '[') {
            ++m_pos;
            QStringList names;
            skipBlanks();
            if (peek() == ']') {
                ++m_pos;
                v = Value::fromSet(names);
                return true;
            }
            for (;;) {
                skipBlanks();
                QString name;
                if (!nameToken(name, false))
                    return false;
                if (names.size() >= kMaxItems)
                    return fail(QCoreApplication::translate("Streaming", "zu viele Elemente"));
                names << name;
                skipBlanks();
                if (peek() == ',') {
                    ++m_pos;
                    continue;
                }
                if (peek() == ']') {
                    ++m_pos;
                    break;
                }
                return fail(QCoreApplication::translate("Streaming", "„,“ oder „]“ erwartet"));
            }
            v = Value::fromSet(names);
            return true;
        }
        if (c == '(') {
            if (depth >= kMaxDepth)
                return fail(QCoreApplication::translate("Streaming", "zu tief verschachtelt"));
            ++m_pos;
            QList<Value> items;
            for (;;) {
                skipBlanks();
                if (atEnd())
                    return fail(QCoreApplication::translate("Streaming", "„)“ fehlt"));
                if (peek() == ')') {
                    ++m_pos;
                    break;
                }
                if (items.size() >= kMaxItems)
                    return fail(QCoreApplication::translate("Streaming", "zu viele Elemente"));
                Value item;
                if (!value(item, depth + 1))
                    return false;
                items << std::move(item);
            }
            v = Value::fromList(items);
            return true;
        }
        if (isIdentStart(c)) {
            const QByteArray word = peekWord();
            m_pos += word.size();
            if (word.compare("True", Qt::CaseInsensitive) == 0)
                v = Value::fromBool(true);
            else if (word.compare("False", Qt::CaseInsensitive) == 0)
                v = Value::fromBool(false);
            else
                v = Value::fromIdent(QString::fromUtf8(word));
            return true;
        }
        return fail(QCoreApplication::translate("Streaming", "Wert erwartet"));
    }

    bool property(Property &p, int depth)
    {
        if (!nameToken(p.name, true))
            return false;
        skipBlanks();
        if (peek() != '=')
            return fail(QCoreApplication::translate("Streaming", "„=“ erwartet"));
        ++m_pos;
        skipBlanks();
        return value(p.value, depth + 1);
    }

    // After the "object" keyword.
    bool node(Node &n, int depth)
    {
        if (depth >= kMaxDepth)
            return fail(QCoreApplication::translate("Streaming", "zu tief verschachtelt"));
        if (++m_objects > kMaxObjects)
            return fail(QCoreApplication::translate("Streaming", "zu viele Komponenten"));
        if (!isBlank(peek()))
            return fail(QCoreApplication::translate("Streaming", "Name erwartet"));
        skipBlanks();
        QString first;
        if (!nameToken(first, false))
            return false;
        const qsizetype afterFirst = m_pos;
        skipBlanks();
        if (peek() == ':') {
            ++m_pos;
            skipBlanks();
            n.name = first;
            if (!nameToken(n.className, false))
                return false;
        } else {
            m_pos = afterFirst;
            n.className = first;
        }
        if (n.className.isEmpty())
            return fail(QCoreApplication::translate("Streaming", "Klassenname fehlt"));
        for (;;) {
            skipBlanks();
            if (atEnd())
                return fail(QCoreApplication::translate("Streaming", "„end“ fehlt"));
            // A word followed by "=" is a property, even one named like a keyword.
            const QByteArray word = peekWord();
            qsizetype look = m_pos + word.size();
            while (look < m_data.size() && isBlank(uchar(m_data.at(look))))
                ++look;
            const bool assigns = look < m_data.size() && (m_data.at(look) == '=' || m_data.at(look) == '.');
            if (!word.isEmpty() && !assigns) {
                if (word.compare("end", Qt::CaseInsensitive) == 0) {
                    m_pos += word.size();
                    return true;
                }
                if (word.compare("object", Qt::CaseInsensitive) == 0) {
                    m_pos += word.size();
                    Node child;
                    if (!node(child, depth + 1))
                        return false;
                    n.children << std::move(child);
                    continue;
                }
            }
            if (n.properties.size() >= kMaxItems)
                return fail(QCoreApplication::translate("Streaming", "zu viele Eigenschaften"));
            Property p;
            if (!property(p, depth))
                return false;
            n.properties << std::move(p);
        }
    }

    const QByteArray &m_data;
    qsizetype m_pos;
    int m_objects = 0;
    QString m_error;
    qsizetype m_errorPos = 0;
};

} // namespace

QByteArray toText(const Node &node)
{
    QByteArray out;
    writeNode(out, node, 0);
    return out;
}

QString propertiesToText(const QList<Property> &properties)
{
    QByteArray out;
    writeProperties(out, properties, 0);
    return QString::fromUtf8(out);
}

qsizetype skipTextBlanks(const QByteArray &data, qsizetype pos)
{
    if (data.mid(pos, 3) == "\xEF\xBB\xBF")
        pos += 3;
    while (pos < data.size() && isBlank(uchar(data.at(pos))))
        ++pos;
    return pos;
}

bool startsText(const QByteArray &data, qsizetype pos)
{
    pos = skipTextBlanks(data, pos);
    return data.size() - pos > 6 && data.mid(pos, 6).compare("object", Qt::CaseInsensitive) == 0
        && isBlank(uchar(data.at(pos + 6)));
}

ParseResult parseText(const QByteArray &data, qsizetype pos, Node &out)
{
    out = Node();
    return TextReader(data, skipTextBlanks(data, pos)).parseObject(out);
}

ParseResult parseTextProperties(const QByteArray &data, QList<Property> &out)
{
    out.clear();
    return TextReader(data, skipTextBlanks(data, 0)).parseProperties(out);
}

ParseResult parseAny(const QByteArray &data, qsizetype pos, Node &out)
{
    if (startsBinary(data, pos))
        return parseBinary(data, pos, out);
    if (startsText(data, pos))
        return parseText(data, pos, out);
    ParseResult r;
    r.end = pos;
    r.error = QCoreApplication::translate("Streaming", "Kein Komponentenstrom: weder „TPF0“ noch „object“ am Anfang");
    return r;
}

ParseResult parseAll(const QByteArray &data, QList<Node> &out)
{
    out.clear();
    ParseResult r;
    qsizetype pos = 0;
    for (;;) {
        // Blanks may separate text components; a binary one starts with 'T'.
        pos = skipTextBlanks(data, pos);
        if (pos >= data.size())
            break;
        Node n;
        const ParseResult one = parseAny(data, pos, n);
        if (!one.ok)
            return one;
        out << std::move(n);
        pos = one.end;
    }
    if (out.isEmpty()) {
        r.error = QCoreApplication::translate("Streaming", "Kein Komponentenstrom: keine Daten");
        return r;
    }
    r.ok = true;
    r.end = pos;
    return r;
}

} // namespace StreamTree
