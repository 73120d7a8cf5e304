#pragma once

#include <QByteArray>
#include <QList>
#include <QString>
#include <QStringList>
#include <QtGlobal>

class QWidget;

// The parsed form of a component stream, shared by the binary and the text
// form: bytes -> tree -> widgets and widgets -> tree -> bytes. Both forms
// hold exactly what the tree holds, so converting between them is lossless.
namespace StreamTree {

// Value tags of the binary form. Stored in files and on the clipboard:
// the numbers never change.
enum ValueTag : quint8 {
    vaNull = 0, // end of a list, of properties, of children
    vaList = 1,
    vaInt8 = 2,
    vaInt16 = 3,
    vaInt32 = 4,
    vaString = 6, // 1-byte length, Latin-1
    vaIdent = 7,
    vaFalse = 8,
    vaTrue = 9,
    vaSet = 11,
    vaLString = 12, // 4-byte length, Latin-1
    vaUtf8String = 20, // 4-byte length, UTF-8
};

// Limits against hostile input (the clipboard is anyone's).
constexpr int kMaxDepth = 64;        // objects and lists nested in one another
constexpr int kMaxItems = 1 << 20;   // entries of one list, set or property list
constexpr int kMaxObjects = 100000;  // objects in one stream

struct Value
{
    enum class Kind { Int, Bool, String, Ident, Set, List };
    Kind kind = Kind::Int;
    qint32 number = 0;   // Int; Bool as 0/1
    QString text;        // String, Ident
    QStringList names;   // Set
    QList<Value> items;  // List

    static Value fromInt(qint32 v) { Value x; x.kind = Kind::Int; x.number = v; return x; }
    static Value fromBool(bool v) { Value x; x.kind = Kind::Bool; x.number = v ? 1 : 0; return x; }
    static Value fromString(const QString &s) { Value x; x.kind = Kind::String; x.text = s; return x; }
    static Value fromIdent(const QString &s) { Value x; x.kind = Kind::Ident; x.text = s; return x; }
    static Value fromSet(const QStringList &n) { Value x; x.kind = Kind::Set; x.names = n; return x; }
    static Value fromList(const QList<Value> &i) { Value x; x.kind = Kind::List; x.items = i; return x; }

    bool operator==(const Value &o) const
    {
        return kind == o.kind && number == o.number && text == o.text && names == o.names && items == o.items;
    }
};

struct Property
{
    QString name;
    Value value;
};

struct Node
{
    QString className;
    QString name;
    QList<Property> properties;
    QList<Node> children;
};

// Where a parse stopped and why.
struct ParseResult
{
    bool ok = false;
    qsizetype end = 0; // first byte after what was read
    QString error;
};

// The set members of a font's Style, from bit 0 up.
const QStringList &fontStyleNames();

// Widgets -> tree.
Node nodeFromWidget(QWidget *widget);
QList<Property> propertiesOf(QWidget *widget);

// Binary form.
QByteArray toBinary(const Node &node); // with the signature
bool startsBinary(const QByteArray &data, qsizetype pos);
ParseResult parseBinary(const QByteArray &data, qsizetype pos, Node &out);

// Text form.
QByteArray toText(const Node &node);
QString propertiesToText(const QList<Property> &properties); // "Name = Value" lines
bool startsText(const QByteArray &data, qsizetype pos);
ParseResult parseText(const QByteArray &data, qsizetype pos, Node &out);
ParseResult parseTextProperties(const QByteArray &data, QList<Property> &out);
// Skips blanks (and a UTF-8 byte order mark) between components of a text stream.
qsizetype skipTextBlanks(const QByteArray &data, qsizetype pos);

// One component of either form at pos.
ParseResult parseAny(const QByteArray &data, qsizetype pos, Node &out);
// Every component from pos to the end of data.
ParseResult parseAll(const QByteArray &data, QList<Node> &out);

} // namespace StreamTree
