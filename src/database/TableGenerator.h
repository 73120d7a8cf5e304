#pragma once

#include <QHash>
#include <QString>
#include <QVector>
#include <functional>
#include <optional>

#include "ConnectionSettings.h"
#include "FieldTypes.h"
#include "TableDescription.h"

class QWidget;
class TDbConnection;
class TSqlEngine;

// One row of the table window's grid.
struct TFieldRow
{
    QString FieldName;   // column 1 "Feldname"
    QString TypeCode;    // column 2, one of the 13 codes
    QString Size;        // column 3 "Größe"
    QString Key;         // column 4 "Schlüssel": " INDEX" marks a key field
    QString Description; // column 5 "Feldbeschreibung"
};

// The "CreateDB" command without its window: checks the rows, connects,
// writes the table description file, keeps or drops existing data, creates
// the table and converts the old data. Messages and questions go through
// UserDialogs. Creating and converting run in one transaction: whatever
// fails, or if the process dies, the old table stays as it was.
class TTableGenerator
{
public:
    TTableGenerator(TDbConnection &connection, const TConnectionSettings &settings);

    // The text that marks a key field in the grid's key column.
    static QString indexMark() { return QStringLiteral(" INDEX"); }
    // The name the old table has while its data is copied.
    static QString tempTableName() { return QStringLiteral("%Table%"); }

    QVector<TFieldRow> Rows; // grid rows 1 to last
    QString TableName;
    // The active mask's table settings; without one no description file is written.
    std::optional<TTableSettings> Description;
    QWidget *Parent = nullptr;

    // The window's part: focus the table name; select the grid cell of a
    // failing row (row from 1, column 1..5).
    std::function<void()> OnTableNameMissing;
    std::function<void(int row, int column)> OnRowError;
    // The gauge: rows copied so far out of the old table's rows.
    std::function<void(qint64 position, qint64 maximum)> OnProgress;
    // After a successful conversion (the window closes itself).
    std::function<void()> OnConverted;

    // Runs the whole command; true when the table was created (and its data
    // converted, when asked).
    bool CreateDB();

    // The dictionary the last run created the table from.
    const TDataDictionary &Dictionary() const { return m_dictionary; }

private:
    bool checkRows(const QStringList &reservedWords);
    void rowError(int row, int column, const QString &text);
    void buildDictionary();
    bool convert(TSqlEngine &engine, const QHash<QString, qint64> &autoInc);
    bool fail(TSqlEngine &engine, const QString &text);
    void message(const QString &text, int type);

    TDbConnection &m_connection;
    TConnectionSettings m_settings;
    TDataDictionary m_dictionary;
};
