#include "FieldTypes.h"

#include <QCoreApplication>

int TDataDictionary::fieldIndex(const QString &name) const
{
    for (int i = 0; i < Fields.size(); ++i)
        if (Fields.at(i).Name.compare(name, Qt::CaseInsensitive) == 0)
            return i;
    return -1;
}

namespace FieldTypes {

namespace {
struct CodeRow
{
    const char *code;
    TFieldType type;
    int units;
    int decimals;
};

// Units and decimals are the dictionary's own values; the description file
// and tools reading the dictionary see them, even where an engine ignores them.
const CodeRow kCodeTable[] = {
    {"A", TFieldType::nxtShortString, 0, 0}, // units from the size
    {"I", TFieldType::nxtInt32, 4, 10},
    {"D", TFieldType::nxtDate, 8, 0},
    {"T", TFieldType::nxtTime, 8, 0},
    {"$", TFieldType::nxtCurrency, 8, 0},
    {"N", TFieldType::nxtDouble, 1, 0},
    {"@", TFieldType::nxtDateTime, 8, 0},
    {"M", TFieldType::nxtBlobMemo, 8, 0},
    {"L", TFieldType::nxtBoolean, 1, 0},
    {"+", TFieldType::nxtAutoInc, 4, 10},
    {"S", TFieldType::nxtByte, 1, 10},
    {"R", TFieldType::nxtRecRev, 4, 10},
    {"I64", TFieldType::nxtInt64, 4, 10},
};
constexpr int kCodeCount = int(sizeof(kCodeTable) / sizeof(kCodeTable[0]));
} // namespace

const QStringList &codes()
{
    static const QStringList list = [] {
        QStringList l;
        for (const CodeRow &row : kCodeTable)
            l << QLatin1String(row.code);
        return l;
    }();
    return list;
}

int codeIndex(const QString &code)
{
    int found = -1;
    for (int i = 0; i < kCodeCount; ++i)
        if (code == QLatin1String(kCodeTable[i].code))
            found = i;
    return found;
}

TFieldDef fieldFor(int index, const QString &name, int size, const QString &description)
{
    TFieldDef field;
    field.Name = name;
    field.Description = description;
    if (index < 0 || index >= kCodeCount)
        return field;
    const CodeRow &row = kCodeTable[index];
    field.Type = row.type;
    field.Units = row.units;
    field.Decimals = row.decimals;
    if (row.type == TFieldType::nxtShortString) {
        if (size < kShortStringLimit) {
            field.Units = size;
        } else {
            // The unbounded kind counts its terminating zero.
            field.Type = TFieldType::nxtNullString;
            field.Units = size + 1;
        }
    }
    return field;
}

QVector<TFieldDef> internalFields()
{
    const QString desc = QStringLiteral("Quorbex Internes Feld");
    return {
        {QStringLiteral("QXLock"), desc, TFieldType::nxtBoolean, 1, 0, false},
        {QStringLiteral("QXMisc"), desc, TFieldType::nxtBlobMemo, 8, 0, false},
        {QStringLiteral("QXState"), desc, TFieldType::nxtShortString, 15, 0, false},
        {QStringLiteral("QXParent"), desc, TFieldType::nxtInt32, 4, 0, false},
        {QStringLiteral("QXID"), desc, TFieldType::nxtAutoInc, 4, 0, false},
    };
}

QString legend()
{
    return QCoreApplication::translate(
        "FieldTypes",
        "Legende:\r\nA = Textfeld\r\nI = Zahlenfeld\r\nI64 = Zahl 64Bit\r\nN = Dezimalfeld\r\n"
        "D = Datumsfeld\r\nT = Uhrzeitfeld\r\n@ = Datum und Zeit\r\n$ = Währungsfeld\r\n"
        "+ = Auto Zählfeld\r\nM = Memo\r\nL = Logisch (Ja/Nein)\r\nS = Byte");
}

} // namespace FieldTypes
