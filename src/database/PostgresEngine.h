#pragma once

#include "SqlEngine.h"

// The server engine: PostgreSQL. Auto-increment columns are identity
// columns, text keys use a German ICU collation that ignores case, and the
// primary index is named after its table (index names are unique per schema).
class TPostgresEngine : public TSqlEngine
{
public:
    using TSqlEngine::TSqlEngine;

    static QString collationName() { return QStringLiteral("ferolith_de_ci"); }
    // "<table>$Primary", shortened with a hash where it would pass the
    // server's 63-byte limit.
    static QString primaryIndexName(const QString &table, const QString &indexName);

    QString engineName() const override { return QStringLiteral("PostgreSQL"); }
    QStringList reservedWords(QString *errorMessage) override;
    bool tableExists(const QString &table) override;
    bool dropTable(const QString &table, QString *errorMessage) override;
    bool renameTable(const QString &from, const QString &to, QString *errorMessage) override;
    bool createTable(const QString &table, const TDataDictionary &dictionary, QString *errorMessage) override;
    QVector<TColumnInfo> columns(const QString &table, QString *errorMessage) override;
    QString columnType(const TFieldDef &field) const override;
    qint64 autoIncValue(const QString &table, const QString &column) override;
    bool setAutoIncValue(const QString &table, const QString &column, qint64 value, QString *errorMessage) override;
    bool prepareConversion(QString *errorMessage) override;
    QString convertExpression(const TColumnInfo &from, const TFieldDef &to, bool isKey, QString *validity) override;
    bool copyRows(const QString &from, const QString &to, const TCopyPlan &plan,
                  const std::function<void(qint64)> &progress, QString *errorMessage) override;

    // The table whose identity sequences number missing values while copying.
    void setConversionTarget(const QString &table) { m_target = table; }

private:
    QString sequenceOf(const QString &table, const QString &column);

    QString m_target;
};
