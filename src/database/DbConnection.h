#pragma once

#include "DbObjects.h"

class QWidget;
struct TConnectionSettings;

// The database objects of the table explorer and its connect step. Each
// connect starts from everything inactive, so a change between local and
// server mode takes effect at the next connect.
class TDbConnection
{
public:
    TDbConnection();
    ~TDbConnection();
    TDbConnection(const TDbConnection &) = delete;
    TDbConnection &operator=(const TDbConnection &) = delete;

    // The connect step. On failure shows the connection error box (parent
    // for the box) unless told to stay quiet, leaves the session inactive
    // and returns false.
    bool Connect(const TConnectionSettings &settings, QWidget *parent = nullptr, bool reportFailure = true);

    // The text of the error box for a server name.
    static QString ConnectionErrorText(const QString &serverName);

    bool Connected() const { return nxDatabase.Active(); }
    // The engine of nxDatabase while connected, else nullptr.
    TSqlEngine *engine() const { return nxDatabase.engine(); }
    // Why the last connect failed (the engine's own text).
    QString LastError() const { return m_lastError; }

    TnxSession nxSession;
    TnxDatabase nxDatabase;
    TnxDatabase nxDatabase2;
    TnxLocalServer nxLocalServer;
    TnxRemoteServer nxRemoteServer;
    TnxWinsock nxWinsock;
    TnxNamedPipe nxNamedPipe;
    TnxSharedMemory nxSharedMemory;
    TnxTable Table1;
    TnxTable Table2;

private:
    QString m_lastError;
};
