#include "SqlEngine.h"

#include "PostgresEngine.h"
#include "SqliteEngine.h"

#include <QSqlDriver>
#include <QSqlError>
#include <QSqlQuery>

TSqlEngine::~TSqlEngine() = default;

std::unique_ptr<TSqlEngine> TSqlEngine::create(const QSqlDatabase &db)
{
    if (db.driverName() == QLatin1String("QSQLITE"))
        return std::make_unique<TSqliteEngine>(db);
    if (db.driverName() == QLatin1String("QPSQL"))
        return std::make_unique<TPostgresEngine>(db);
    return nullptr;
}

QString TSqlEngine::quoteIdentifier(const QString &name)
{
    // Both engines follow the standard: double quotes, an inner one doubled.
    // Nothing in a name can end the quoting, so no name runs as SQL.
    QString quoted = name;
    quoted.replace(QLatin1Char('"'), QLatin1String("\"\""));
    return QLatin1Char('"') + quoted + QLatin1Char('"');
}

QString TSqlEngine::quoteLiteral(const QString &text)
{
    QString quoted = text;
    quoted.replace(QLatin1Char('\''), QLatin1String("''"));
    return QLatin1Char('\'') + quoted + QLatin1Char('\'');
}

namespace {
// Runs sql on query, binding the values in order when there are any.
bool runQuery(QSqlQuery &query, const QString &sql, const QVariantList &values)
{
    if (values.isEmpty())
        return query.exec(sql);
    if (!query.prepare(sql))
        return false;
    for (const QVariant &value : values)
        query.addBindValue(value);
    return query.exec();
}
} // namespace

bool TSqlEngine::exec(const QString &sql, QString *errorMessage, const QVariantList &values)
{
    QSqlQuery query(m_db);
    const bool ok = runQuery(query, sql, values);
    if (!ok && errorMessage)
        *errorMessage = query.lastError().text().trimmed();
    return ok;
}

QVariant TSqlEngine::scalar(const QString &sql, const QVariantList &values, QString *errorMessage)
{
    QSqlQuery query(m_db);
    query.setForwardOnly(true);
    const bool ok = runQuery(query, sql, values);
    if (!ok) {
        if (errorMessage)
            *errorMessage = query.lastError().text().trimmed();
        return QVariant();
    }
    return query.next() ? query.value(0) : QVariant();
}

qint64 TSqlEngine::recordCount(const QString &table, QString *errorMessage)
{
    const QVariant count = scalar(QStringLiteral("SELECT count(*) FROM ") + quoteIdentifier(table), {}, errorMessage);
    return count.isValid() ? count.toLongLong() : -1;
}

bool TSqlEngine::hasRecords(const QString &table, QString *errorMessage)
{
    const QVariant one =
        scalar(QStringLiteral("SELECT 1 FROM ") + quoteIdentifier(table) + QStringLiteral(" LIMIT 1"), {}, errorMessage);
    return one.isValid();
}

bool TSqlEngine::prepareConversion(QString *)
{
    return true;
}

bool TSqlEngine::beginTransaction(QString *errorMessage)
{
    return exec(QStringLiteral("BEGIN"), errorMessage);
}

bool TSqlEngine::commit(QString *errorMessage)
{
    return exec(QStringLiteral("COMMIT"), errorMessage);
}

void TSqlEngine::rollback()
{
    exec(QStringLiteral("ROLLBACK"), nullptr);
}
