#pragma once

#include "SqlEngine.h"

// The embedded engine: one SQLite file. Auto-increment columns are numbered by
// triggers from a counter table, so a table can have several and the counter
// survives a conversion; text keys compare with the built-in NOCASE collation.
class TSqliteEngine : public TSqlEngine
{
public:
    using TSqlEngine::TSqlEngine;

    // The table that holds the auto-increment counters.
    static QString counterTable() { return QStringLiteral("%AutoInc%"); }

    QString engineName() const override { return QStringLiteral("SQLite"); }
    QStringList reservedWords(QString *errorMessage) override;
    bool tableExists(const QString &table) override;
    bool dropTable(const QString &table, QString *errorMessage) override;
    bool renameTable(const QString &from, const QString &to, QString *errorMessage) override;
    bool createTable(const QString &table, const TDataDictionary &dictionary, QString *errorMessage) override;
    QVector<TColumnInfo> columns(const QString &table, QString *errorMessage) override;
    QString columnType(const TFieldDef &field) const override;
    qint64 autoIncValue(const QString &table, const QString &column) override;
    bool setAutoIncValue(const QString &table, const QString &column, qint64 value, QString *errorMessage) override;
    QString convertExpression(const TColumnInfo &from, const TFieldDef &to, bool isKey, QString *validity) override;
    bool copyRows(const QString &from, const QString &to, const TCopyPlan &plan,
                  const std::function<void(qint64)> &progress, QString *errorMessage) override;
    bool beginTransaction(QString *errorMessage) override;

private:
    bool ensureCounterTable(QString *errorMessage);
    // The name under which the row id can be reached: user columns may hide some.
    static QString rowIdName(const QStringList &columnNames);
    QString constraints(const TFieldDef &field) const;
    bool createTriggers(const QString &table, const TDataDictionary &dictionary, QString *errorMessage);
};
