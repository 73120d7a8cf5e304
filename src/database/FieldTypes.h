#pragma once

#include <QString>
#include <QStringList>
#include <QVector>

// The field types of the data dictionary. Each engine maps them to its own
// column types (SqlEngine); the names are those the table generator has
// always used for them.
enum class TFieldType {
    nxtShortString, // text of at most Units characters (below 255)
    nxtNullString,  // unbounded text
    nxtInt32,
    nxtInt64,
    nxtByte,        // 0..255
    nxtDouble,
    nxtCurrency,    // exact decimal for money
    nxtDate,
    nxtTime,
    nxtDateTime,
    nxtBlobMemo,    // long text
    nxtBoolean,
    nxtAutoInc,     // numbered on insert
    nxtRecRev,      // increased by every update
};

struct TFieldDef
{
    QString Name;
    QString Description;
    TFieldType Type = TFieldType::nxtNullString;
    int Units = 0;
    int Decimals = 0;
    bool Required = false;

    bool isText() const
    {
        return Type == TFieldType::nxtShortString || Type == TFieldType::nxtNullString;
    }
};

// What a table is made from: its fields and the one primary index.
struct TDataDictionary
{
    int Locale = 1031; // German (Germany): text keys compare the German way
    QString IndexName = QStringLiteral("$Primary");
    QVector<TFieldDef> Fields;
    QStringList KeyFields; // in key order
    // Key fields that compare without regard to case (the text keys).
    QStringList CaseInsensitiveKeys;

    // Case-insensitive, as the engines compare column names.
    int fieldIndex(const QString &name) const;
    bool hasField(const QString &name) const { return fieldIndex(name) >= 0; }
};

namespace FieldTypes {

// The codes of the grid's type column, in the order of the code table.
const QStringList &codes();
// The index of a code in the table; the last match wins, -1 for none.
int codeIndex(const QString &code);
// The field a grid row makes: the code's type, units and decimals; the size
// is used by "A" only. Only for indexes 0..12.
TFieldDef fieldFor(int codeIndex, const QString &name, int size, const QString &description);
// The internal fields appended after the user's, in their order.
QVector<TFieldDef> internalFields();
// The legend the table window shows under its grid.
QString legend();
// The text fields' largest size before they become unbounded.
constexpr int kShortStringLimit = 255;

} // namespace FieldTypes
