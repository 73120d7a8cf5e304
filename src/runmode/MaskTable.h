#pragma once

#include <QHash>
#include <QStringList>
#include <QVariant>
#include <QVector>
#include <functional>
#include <memory>

#include "ConnectionSettings.h"
#include "SqlEngine.h"
#include "TableDescription.h"
#include "ValueMacros.h"

class QWidget;
class TDbConnection;

// One data field of a mask as run mode needs it.
struct TRunField
{
    QString Name;        // as the mask's controls name it
    QString Column;      // as the table names it; empty when the table lacks it
    QString Description; // the control's description, else the name
    bool Required = false;
    TValueFamily Family = TValueFamily::Text;
    int MaxLength = 0;   // bounded text columns: their length
};

// One record: every column by its name in the table (values as the engine
// gives them) and the record's number QXID.
struct TRecord
{
    qint64 Id = -1; // -1: not stored yet
    QVariantMap Values;
};

// The table of a mask, opened through the database layer: records counted,
// read, inserted, changed and deleted with the mask's rules (auto-fill and
// default values, the file counter, required fields, types). No windows:
// questions go through AskForNumber of Macros.
class TMaskTable
{
public:
    enum class TSaveResult { Saved, Failed, Conflict };

    TMaskTable();
    ~TMaskTable();
    TMaskTable(const TMaskTable &) = delete;
    TMaskTable &operator=(const TMaskTable &) = delete;

    // The data fields of the mask on a surface, each once, in the order of
    // the controls.
    static QVector<TRunField> FieldsOf(const QWidget *surface);

    // Connects and opens the table. False with the German reason (no table
    // name, no connection, table not generated yet).
    bool open(const TConnectionSettings &settings, const QString &table, const TTableSettings &tableSettings,
              const QVector<TRunField> &fields, QString *why);
    bool isOpen() const { return m_engine != nullptr; }
    TSqlEngine *engine() const { return m_engine; }
    QString tableName() const { return m_table; }

    const QVector<TRunField> &fields() const { return m_fields; }
    const TRunField *field(const QString &name) const; // case ignored
    QString indexColumn() const { return m_indexColumn; }
    TValueMacros Macros;

    // The record numbers in the order of the index field; re-read by refresh().
    bool refresh(QString *errorMessage = nullptr);
    int count() const { return int(m_ids.size()); }
    qint64 idAt(int row) const { return m_ids.value(row, -1); }
    int rowOf(qint64 id) const;
    bool fetch(int row, TRecord &record, QString *errorMessage = nullptr);
    // The records of rows first .. first + count - 1 (fewer at the end).
    bool fetchRows(int first, int count, QVector<TRecord> &records, QString *errorMessage = nullptr);
    // The first row whose index field is at or after the text, -1 for none.
    int find(const QString &text, QString *errorMessage = nullptr);

    // A new record: the auto-fill and default values, the counter number in
    // the "Felder" fields. False with a message when a value cannot be made.
    bool newRecord(TRecord &record, QString *errorMessage);
    // Empty fields that have a default value get it.
    bool applyDefaults(TRecord &record, QString *errorMessage);
    // The message of a required field left empty.
    static QString requiredText(const QString &description);
    // The message for the first required field left empty, or empty.
    QString checkRequired(const TRecord &record) const;

    // The values a lookup field offers: the key values of another table of
    // the same database (its index field as its description file names it,
    // else the column named like `field`, else its first data column), sorted,
    // each once. Empty with a German message when the table cannot be read.
    QStringList lookupValues(const QString &table, const QString &field, QString *errorMessage = nullptr);

    // Text as typed into a control and the value the column stores.
    bool toValue(const TRunField &field, const QString &text, QVariant *value, QString *errorMessage) const;
    QString toText(const TRunField &field, const QVariant &value) const;
    // A value of a record as text (case ignored in the name).
    QString text(const TRecord &record, const QString &fieldName) const;
    bool setText(TRecord &record, const QString &fieldName, const QString &text, QString *errorMessage) const;

    // Checks and stores a new record; sets its Id.
    TSaveResult insert(TRecord &record, QString *errorMessage);
    // Stores the changes of a record read as `original`. Conflict: someone
    // else changed or deleted the record since it was read; nothing written.
    TSaveResult update(const TRecord &original, TRecord &changed, QString *errorMessage);
    bool remove(qint64 id, QString *errorMessage);

    // Stores the rows of a file as new records, all or none: every row gets
    // the auto-fill and default values where it leaves a field empty, the
    // type and required checks, and a counter number in the "Felder" fields
    // it leaves empty. The first bad row stops it before anything is written,
    // with a German message naming the row (rows count from 1 after the
    // header, firstRowNumber for the first). `columns` name mask fields.
    bool importRecords(const QStringList &columns, const QVector<QStringList> &rows, QString *errorMessage,
                       int firstRowNumber = 2);

private:
    QString columnOf(const QString &name) const;
    QString selectList() const;
    TRecord recordFrom(const class QSqlQuery &query) const;
    bool readRecord(qint64 id, TRecord &record, bool lock, QString *errorMessage);
    bool valuesFor(const QString &entries, TRecord &record, bool onlyEmpty, QString *errorMessage);
    bool prepareForSave(TRecord &record, QString *errorMessage);
    bool insertRow(TRecord &record, QString *errorMessage);

    std::unique_ptr<TDbConnection> m_connection;
    TSqlEngine *m_engine = nullptr;
    QString m_table;
    TTableSettings m_settings;
    QVector<TRunField> m_fields;
    QVector<TColumnInfo> m_columns;
    QHash<QString, QString> m_columnNames; // lower case -> as in the table
    QString m_indexColumn;
    QVector<qint64> m_ids;
    // Where the engine finds each row fastest (SQLite's row id, PostgreSQL's
    // tuple id), read with the list: the table has no index on QXID alone.
    // A locator that no longer leads to the record falls back to QXID.
    QString m_locator;
    QVector<QVariant> m_locators;
};
