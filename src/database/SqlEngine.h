#pragma once

#include <QSqlDatabase>
#include <QString>
#include <QStringList>
#include <QVariant>
#include <QVector>
#include <functional>
#include <memory>

#include "FieldTypes.h"

// What a column holds, as far as converting its values matters.
enum class TValueFamily { Text, Integer, Real, Decimal, Date, Time, Timestamp, Boolean, Other };

struct TColumnInfo
{
    QString Name;
    QString Type;        // the engine's own type text ("VARCHAR(20)", "character varying(20)")
    TValueFamily Family = TValueFamily::Other;
};

// One row copy: the new table's columns and, per column, the expression over
// the source row that gives its value.
struct TCopyPlan
{
    QStringList Columns;       // quoted target column names
    QStringList Expressions;   // one per column
    QString Validity;          // true for a row that converts; empty: every row does
    QStringList KeyColumns;    // quoted source columns that name a row in messages
    qint64 SourceRows = -1;    // the old table's rows, when known
};

// The engine-specific half of the database layer: column types, keywords,
// table operations and value conversion. Every identifier goes through
// quoteIdentifier in every statement.
class TSqlEngine
{
public:
    explicit TSqlEngine(const QSqlDatabase &db) : m_db(db) {}
    virtual ~TSqlEngine();

    // The engine behind an open database handle; nullptr for other drivers.
    static std::unique_ptr<TSqlEngine> create(const QSqlDatabase &db);

    static QString quoteIdentifier(const QString &name);
    static QString quoteLiteral(const QString &text);

    QSqlDatabase database() const { return m_db; }
    virtual QString engineName() const = 0;

    // The engine's reserved words, upper case. Empty with an error message
    // when they cannot be read.
    virtual QStringList reservedWords(QString *errorMessage) = 0;

    virtual bool tableExists(const QString &table) = 0;
    // -1 when the table cannot be read.
    qint64 recordCount(const QString &table, QString *errorMessage = nullptr);
    bool hasRecords(const QString &table, QString *errorMessage = nullptr);
    virtual bool dropTable(const QString &table, QString *errorMessage) = 0;
    virtual bool renameTable(const QString &from, const QString &to, QString *errorMessage) = 0;
    virtual bool createTable(const QString &table, const TDataDictionary &dictionary, QString *errorMessage) = 0;
    virtual QVector<TColumnInfo> columns(const QString &table, QString *errorMessage) = 0;

    // The column type a field gets (without constraints).
    virtual QString columnType(const TFieldDef &field) const = 0;

    // The counter behind an auto-increment column: the last number given.
    virtual qint64 autoIncValue(const QString &table, const QString &column) = 0;
    virtual bool setAutoIncValue(const QString &table, const QString &column, qint64 value,
                                 QString *errorMessage) = 0;

    // The expression that turns the source column into the new field's type,
    // and (in *validity, empty when every value converts) the condition a row
    // must meet for it. isKey: the field is part of the new primary key.
    virtual QString convertExpression(const TColumnInfo &from, const TFieldDef &to, bool isKey,
                                      QString *validity) = 0;
    // What the conversion needs beforehand (helper functions); inside the transaction.
    virtual bool prepareConversion(QString *errorMessage);

    // Copies the rows of `from` that meet the plan's validity into `to`, in
    // parts, reporting the rows copied so far. Runs inside the caller's transaction.
    virtual bool copyRows(const QString &from, const QString &to, const TCopyPlan &plan,
                          const std::function<void(qint64)> &progress, QString *errorMessage) = 0;

    bool exec(const QString &sql, QString *errorMessage, const QVariantList &values = {});
    // The conversion's one transaction; it takes the write lock at once.
    virtual bool beginTransaction(QString *errorMessage);
    bool commit(QString *errorMessage);
    void rollback();

protected:
    // The first column of the first row, or an invalid value.
    QVariant scalar(const QString &sql, const QVariantList &values = {}, QString *errorMessage = nullptr);

    QSqlDatabase m_db;
};
