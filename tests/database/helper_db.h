#pragma once

// Shared by the database tests: one throwaway PostgreSQL server per test
// program, an SQLite folder, and the connection settings for either engine.
#include <QSqlQuery>
#include <QTemporaryDir>
#include <QTest>
#include <memory>

#include "ConnectionSettings.h"
#include "DbConnection.h"
#include "PgTestServer.h"
#include "SqlEngine.h"
#include "TableGenerator.h"
#include "TestSupport.h"

class DbFixture
{
public:
    // Starts the server and makes the test database; fails the test when
    // the server cannot be started (no test is skipped).
    bool start()
    {
        QString error;
        if (!m_server.start(&error) || !m_server.createDatabase(database(), &error)) {
            qWarning("PostgreSQL test server: %s", qPrintable(error));
            return false;
        }
        return m_sqliteDir.isValid();
    }

    static QString database() { return QStringLiteral("ferolith_test"); }
    PgTestServer &server() { return m_server; }
    QString sqliteFolder() const { return m_sqliteDir.path() + QStringLiteral("/db/"); }

    TConnectionSettings settings(const QString &engine) const
    {
        TConnectionSettings s;
        if (engine == QLatin1String("sqlite")) {
            s.DBLocal = true;
            s.DBPfad = sqliteFolder();
        } else {
            s.DBLocal = false;
            s.ServerProtokol = 0;
            s.DBServerName = QStringLiteral("127.0.0.1:%1").arg(m_server.port());
            s.DBAlias = database();
            // Description files go to a folder of their own in server mode too.
            s.DBPfad = m_sqliteDir.path() + QStringLiteral("/pgdesc/");
        }
        return s;
    }

private:
    PgTestServer m_server;
    QTemporaryDir m_sqliteDir;
};

inline TFieldRow fieldRow(const QString &name, const QString &code, const QString &size = QString(),
                          bool key = false, const QString &description = QString())
{
    return TFieldRow{name, code, size, key ? TTableGenerator::indexMark() : QString(), description};
}

// Runs a statement and fails the test on error.
inline void execOk(TSqlEngine *engine, const QString &sql)
{
    QString error;
    QVERIFY2(engine->exec(sql, &error), qPrintable(sql + QLatin1String(": ") + error));
}

// Generates a table as the table explorer does (OK to its success message)
// and fills it with the statements given.
inline void createTable(const TConnectionSettings &settings, ScriptedDialogs &dialogs, const QString &name,
                        const QVector<TFieldRow> &rows, const QStringList &fill = {})
{
    TDbConnection connection;
    TTableGenerator generator(connection, settings);
    generator.TableName = name;
    generator.Rows = rows;
    dialogs.messageAnswers << mrOk;
    QVERIFY(generator.CreateDB());
    for (const QString &sql : fill)
        execOk(connection.engine(), sql);
}

inline QVariant scalarOf(TSqlEngine *engine, const QString &sql)
{
    QSqlQuery query(engine->database());
    if (!query.exec(sql) || !query.next())
        return QVariant();
    return query.value(0);
}
