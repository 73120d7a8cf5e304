#pragma once

#include <QString>
#include <QTemporaryDir>
#include <memory>

// A throwaway PostgreSQL cluster for tests and benchmarks: initdb into a
// temporary folder, listening on 127.0.0.1 at a free port and on a socket in
// that folder, trust authentication for the role "postgres". When running as
// root the server runs as the system user "postgres". Stopped and removed on
// destruction. Sets PGUSER so that the client library logs in as that role.
class PgTestServer
{
public:
    PgTestServer();
    ~PgTestServer();
    PgTestServer(const PgTestServer &) = delete;
    PgTestServer &operator=(const PgTestServer &) = delete;

    bool start(QString *errorMessage);
    void stop();
    bool running() const { return m_running; }

    int port() const { return m_port; }
    QString socketFolder() const;
    // Creates a database; false with the reason.
    bool createDatabase(const QString &name, QString *errorMessage);

    // The newest installed server's programs, empty when none is installed.
    static QString binFolder();

private:
    bool run(const QString &program, const QStringList &arguments, QString *errorMessage, int timeoutMs = 120000);

    std::unique_ptr<QTemporaryDir> m_dir;
    int m_port = 0;
    bool m_running = false;
    bool m_asPostgresUser = false;
};
