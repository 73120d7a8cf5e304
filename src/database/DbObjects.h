#pragma once

#include <QSqlDatabase>
#include <QString>
#include <QVector>
#include <memory>

class TSqlEngine;

// The connection objects of the table explorer, each a small object with an
// Active switch over Qt's database connections, so that connecting reads as
// it always has: deactivate, tie, set paths and aliases, activate.
class TnxComponent
{
public:
    virtual ~TnxComponent() = default;
    bool Active() const { return m_active; }
    // Activating may fail; LastError() then says why (German or the engine's text).
    bool setActive(bool active);
    QString LastError() const { return m_lastError; }

protected:
    virtual bool doOpen(QString *errorMessage) = 0;
    virtual void doClose() {}

private:
    bool m_active = false;
    QString m_lastError;
};

// A transport to a server; ServerName says where the server listens.
class TnxTransport : public TnxComponent
{
public:
    QString ServerName() const { return m_serverName; }
    void setServerName(const QString &name) { m_serverName = name; }
    // 0 TCP/IP; 1 and 2 reach the server's local socket.
    virtual int Protocol() const = 0;

protected:
    bool doOpen(QString *) override { return true; }

private:
    QString m_serverName;
};

class TnxWinsock : public TnxTransport
{
public:
    int Protocol() const override { return 0; }
};

class TnxNamedPipe : public TnxTransport
{
public:
    int Protocol() const override { return 1; }
};

class TnxSharedMemory : public TnxTransport
{
public:
    int Protocol() const override { return 2; }
};

class TnxServerEngine : public TnxComponent
{
public:
    virtual bool IsLocal() const = 0;
};

// The embedded engine: SQLite files in a folder.
class TnxLocalServer : public TnxServerEngine
{
public:
    bool IsLocal() const override { return true; }
    QString TempStorePath() const { return m_tempStorePath; }
    void setTempStorePath(const QString &path) { m_tempStorePath = path; }

protected:
    bool doOpen(QString *) override { return true; }

private:
    QString m_tempStorePath;
};

// A database server reached through one transport.
class TnxRemoteServer : public TnxServerEngine
{
public:
    bool IsLocal() const override { return false; }
    TnxTransport *Transport() const { return m_transport; }
    void setTransport(TnxTransport *transport) { m_transport = transport; }

protected:
    bool doOpen(QString *errorMessage) override;

private:
    TnxTransport *m_transport = nullptr;
};

class TnxDatabase;

class TnxSession : public TnxComponent
{
public:
    TnxServerEngine *ServerEngine() const { return m_engine; }
    void setServerEngine(TnxServerEngine *engine) { m_engine = engine; }

protected:
    bool doOpen(QString *errorMessage) override;
    void doClose() override;

private:
    friend class TnxDatabase;
    TnxServerEngine *m_engine = nullptr;
    QVector<TnxDatabase *> m_databases;
};

// One database: the folder of the embedded engine (AliasPath) or a database
// on the server (AliasName). Activating it activates its session.
class TnxDatabase : public TnxComponent
{
public:
    TnxDatabase();
    ~TnxDatabase() override;

    // The one file of the embedded database inside the database folder.
    static QString fileName() { return QStringLiteral("ferolith.sqlite"); }

    TnxSession *Session() const { return m_session; }
    void setSession(TnxSession *session);
    QString AliasPath() const { return m_aliasPath; }
    void setAliasPath(const QString &path) { m_aliasPath = path; }
    QString AliasName() const { return m_aliasName; }
    void setAliasName(const QString &name) { m_aliasName = name; }

    // While active: the Qt connection and the engine behind it.
    QSqlDatabase connection() const { return m_db; }
    TSqlEngine *engine() const { return m_engine.get(); }

protected:
    bool doOpen(QString *errorMessage) override;
    void doClose() override;

private:
    bool openLocal(QString *errorMessage);
    bool openRemote(TnxTransport *transport, QString *errorMessage);

    TnxSession *m_session = nullptr;
    QString m_aliasPath;
    QString m_aliasName;
    QString m_connectionName;
    QSqlDatabase m_db;
    std::unique_ptr<TSqlEngine> m_engine;
};

// A table of a database; active while it exists in the active database.
class TnxTable : public TnxComponent
{
public:
    TnxDatabase *Database() const { return m_database; }
    void setDatabase(TnxDatabase *database) { m_database = database; }
    QString TableName() const { return m_tableName; }
    void setTableName(const QString &name) { m_tableName = name; }

protected:
    bool doOpen(QString *errorMessage) override;

private:
    TnxDatabase *m_database = nullptr;
    QString m_tableName;
};

// Where a server name points: "host", "host:port", "[v6]:port" for TCP/IP,
// "folder" or "folder:port" for the local socket (empty: the client
// library's default folder).
struct TServerAddress
{
    QString Host;
    int Port = 5432;
};
TServerAddress ParseServerName(int protocol, const QString &serverName);
// Opens a Qt connection to a database on a server; the caller removes it.
bool OpenServerConnection(QSqlDatabase &db, int protocol, const QString &serverName, const QString &database,
                          QString *errorMessage);
