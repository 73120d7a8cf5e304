// The binary form: "TPF0", then the component as class name, name,
// properties (name + tagged value) up to a 0 byte, children up to a 0 byte.
#include "StreamTree.h"

#include <QCoreApplication>
#include <cstring>

namespace StreamTree {

namespace {

const char kSignature[] = "TPF0";

// A short string holds at most 255 bytes; cut on a UTF-8 character boundary.
QByteArray shortBytes(const QString &text)
{
    QByteArray bytes = text.toUtf8();
    if (bytes.size() > 255) {
        qsizetype cut = 255;
        while (cut > 0 && (quint8(bytes.at(cut)) & 0xC0) == 0x80)
            --cut;
        bytes.truncate(cut);
    }
    return bytes;
}

bool isLatin1(const QString &text)
{
    for (QChar c : text)
        if (c.unicode() > 0xFF)
            return false;
    return true;
}

class BinaryWriter
{
public:
    QByteArray bytes;

    void node(const Node &n)
    {
        shortString(n.className);
        shortString(n.name);
        for (const Property &p : n.properties) {
            shortString(p.name);
            value(p.value);
        }
        bytes.append(char(vaNull));
        for (const Node &child : n.children)
            node(child);
        bytes.append(char(vaNull));
    }

private:
    void shortString(const QString &text)
    {
        const QByteArray b = shortBytes(text);
        bytes.append(char(quint8(b.size())));
        bytes.append(b);
    }

    void integer(quint32 v, int size)
    {
        for (int i = 0; i < size; ++i)
            bytes.append(char((v >> (8 * i)) & 0xFF));
    }

    void longString(ValueTag tag, const QByteArray &b)
    {
        bytes.append(char(tag));
        integer(quint32(b.size()), 4);
        bytes.append(b);
    }

    void value(const Value &v)
    {
        switch (v.kind) {
        case Value::Kind::Int:
            if (v.number >= -128 && v.number <= 127) {
                bytes.append(char(vaInt8));
                integer(quint32(v.number), 1);
            } else if (v.number >= -32768 && v.number <= 32767) {
                bytes.append(char(vaInt16));
                integer(quint32(v.number), 2);
            } else {
                bytes.append(char(vaInt32));
                integer(quint32(v.number), 4);
            }
            break;
        case Value::Kind::Bool:
            bytes.append(char(v.number ? vaTrue : vaFalse));
            break;
        case Value::Kind::String:
            if (isLatin1(v.text)) {
                const QByteArray b = v.text.toLatin1();
                if (b.size() <= 255) {
                    bytes.append(char(vaString));
                    bytes.append(char(quint8(b.size())));
                    bytes.append(b);
                } else {
                    longString(vaLString, b);
                }
            } else {
                longString(vaUtf8String, v.text.toUtf8());
            }
            break;
        case Value::Kind::Ident:
            bytes.append(char(vaIdent));
            shortString(v.text);
            break;
        case Value::Kind::Set:
            bytes.append(char(vaSet));
            for (const QString &name : v.names)
                if (!name.isEmpty()) // an empty one would end the set early
                    shortString(name);
            bytes.append(char(0));
            break;
        case Value::Kind::List:
            bytes.append(char(vaList));
            for (const Value &item : v.items)
                value(item);
            bytes.append(char(vaNull));
            break;
        }
    }
};

// Every read is checked against the end: the bytes may be anything.
class BinaryReader
{
public:
    BinaryReader(const QByteArray &data, qsizetype pos) : m_data(data), m_pos(pos) {}

    ParseResult parse(Node &out)
    {
        ParseResult r;
        if (!startsBinary(m_data, m_pos)) {
            r.error = QCoreApplication::translate("Streaming", "Kein Komponentenstrom: Kennung „TPF0“ fehlt");
            return r;
        }
        m_pos += 4;
        r.ok = node(out, 0);
        r.end = m_pos;
        if (!r.ok)
            r.error = QCoreApplication::translate("Streaming", "Komponentenstrom beschädigt (Byte %1): %2")
                          .arg(m_errorPos)
                          .arg(m_error);
        return r;
    }

private:
    bool fail(const QString &message)
    {
        if (m_error.isEmpty()) {
            m_error = message;
            m_errorPos = m_pos;
        }
        return false;
    }

    bool need(qsizetype n)
    {
        if (n < 0 || m_data.size() - m_pos < n)
            return fail(QCoreApplication::translate("Streaming", "Daten enden unerwartet"));
        return true;
    }

    bool byte(quint8 &out)
    {
        if (!need(1))
            return false;
        out = quint8(m_data.at(m_pos++));
        return true;
    }

    bool integer(int size, quint32 &out)
    {
        if (!need(size))
            return false;
        out = 0;
        for (int i = 0; i < size; ++i)
            out |= quint32(quint8(m_data.at(m_pos + i))) << (8 * i);
        m_pos += size;
        return true;
    }

    bool bytes(qsizetype n, QByteArray &out)
    {
        if (!need(n))
            return false;
        out = m_data.mid(m_pos, n);
        m_pos += n;
        return true;
    }

    bool shortString(QString &out)
    {
        quint8 len = 0;
        QByteArray b;
        if (!byte(len) || !bytes(len, b))
            return false;
        out = QString::fromUtf8(b);
        return true;
    }

    bool longBytes(QByteArray &out)
    {
        quint32 len = 0;
        if (!integer(4, len))
            return false;
        if (qint64(len) > qint64(m_data.size() - m_pos))
            return fail(QCoreApplication::translate("Streaming", "Länge %1 über das Ende hinaus").arg(len));
        return bytes(qsizetype(len), out);
    }

    bool value(Value &v, int depth)
    {
        quint8 tag = 0;
        if (!byte(tag))
            return false;
        quint32 raw = 0;
        QByteArray b;
        switch (tag) {
        case vaInt8:
            if (!integer(1, raw))
                return false;
            v = Value::fromInt(qint8(quint8(raw)));
            return true;
        case vaInt16:
            if (!integer(2, raw))
                return false;
            v = Value::fromInt(qint16(quint16(raw)));
            return true;
        case vaInt32:
            if (!integer(4, raw))
                return false;
            v = Value::fromInt(qint32(raw));
            return true;
        case vaFalse:
        case vaTrue:
            v = Value::fromBool(tag == vaTrue);
            return true;
        case vaString: {
            quint8 len = 0;
            if (!byte(len) || !bytes(len, b))
                return false;
            v = Value::fromString(QString::fromLatin1(b));
            return true;
        }
        case vaLString:
            if (!longBytes(b))
                return false;
            v = Value::fromString(QString::fromLatin1(b));
            return true;
        case vaUtf8String:
            if (!longBytes(b))
                return false;
            v = Value::fromString(QString::fromUtf8(b));
            return true;
        case vaIdent: {
            QString ident;
            if (!shortString(ident))
                return false;
            if (ident.isEmpty())
                return fail(QCoreApplication::translate("Streaming", "leerer Bezeichner"));
            v = Value::fromIdent(ident);
            return true;
        }
        case vaSet: {
            QStringList names;
            for (;;) {
                QString name;
                if (!shortString(name))
                    return false;
                if (name.isEmpty())
                    break;
                if (names.size() >= kMaxItems)
                    return fail(QCoreApplication::translate("Streaming", "zu viele Elemente"));
                names << name;
            }
            v = Value::fromSet(names);
            return true;
        }
        case vaList: {
            if (depth >= kMaxDepth)
                return fail(QCoreApplication::translate("Streaming", "zu tief verschachtelt"));
            QList<Value> items;
            for (;;) {
                if (!need(1))
                    return false;
                if (quint8(m_data.at(m_pos)) == vaNull) {
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
        default:
            --m_pos;
            return fail(QCoreApplication::translate("Streaming", "unbekannter Werttyp %1").arg(tag));
        }
    }

    bool node(Node &n, int depth)
    {
        if (depth >= kMaxDepth)
            return fail(QCoreApplication::translate("Streaming", "zu tief verschachtelt"));
        if (++m_objects > kMaxObjects)
            return fail(QCoreApplication::translate("Streaming", "zu viele Komponenten"));
        if (!shortString(n.className))
            return false;
        if (n.className.isEmpty())
            return fail(QCoreApplication::translate("Streaming", "Klassenname fehlt"));
        if (!shortString(n.name))
            return false;
        for (;;) {
            Property p;
            if (!shortString(p.name))
                return false;
            if (p.name.isEmpty())
                break;
            if (n.properties.size() >= kMaxItems)
                return fail(QCoreApplication::translate("Streaming", "zu viele Eigenschaften"));
            if (!value(p.value, depth + 1))
                return false;
            n.properties << std::move(p);
        }
        for (;;) {
            if (!need(1))
                return false;
            if (m_data.at(m_pos) == 0) {
                ++m_pos;
                break;
            }
            Node child;
            if (!node(child, depth + 1))
                return false;
            n.children << std::move(child);
        }
        return true;
    }

    const QByteArray &m_data;
    qsizetype m_pos;
    int m_objects = 0;
    QString m_error;
    qsizetype m_errorPos = 0;
};

} // namespace

QByteArray toBinary(const Node &node)
{
    BinaryWriter w;
    w.bytes.append(kSignature, 4);
    w.node(node);
    return w.bytes;
}

bool startsBinary(const QByteArray &data, qsizetype pos)
{
    return pos >= 0 && data.size() - pos >= 4 && memcmp(data.constData() + pos, kSignature, 4) == 0;
}

ParseResult parseBinary(const QByteArray &data, qsizetype pos, Node &out)
{
    out = Node();
    return BinaryReader(data, pos).parse(out);
}

} // namespace StreamTree
