#include "DbConnection.h"

#include "AppPaths.h"
#include "ConnectionSettings.h"
#include "UserDialogs.h"

#include <QCoreApplication>
#include <QDir>

TDbConnection::TDbConnection()
{
    nxDatabase.setSession(&nxSession);
    nxDatabase2.setSession(&nxSession);
    nxRemoteServer.setTransport(&nxWinsock);
    Table1.setDatabase(&nxDatabase);
    Table2.setDatabase(&nxDatabase2);
}

TDbConnection::~TDbConnection()
{
    nxSession.setActive(false);
}

QString TDbConnection::ConnectionErrorText(const QString &serverName)
{
    return QCoreApplication::translate("TDbConnection",
                                       "Fehler: Konnte keine Verbindung zum Datenbankserver herstellen.\n\rServer: %1")
        .arg(serverName);
}

bool TDbConnection::Connect(const TConnectionSettings &settings, QWidget *parent, bool reportFailure)
{
    nxWinsock.setActive(false);
    nxNamedPipe.setActive(false);
    nxLocalServer.setActive(false);
    nxRemoteServer.setActive(false);
    nxDatabase.setActive(false);
    nxSession.setActive(false);

    if (settings.DBLocal) {
        nxSession.setServerEngine(&nxLocalServer);
        nxDatabase.setAliasPath(settings.DBPfad);
        // The second handle takes the folder as its alias name.
        nxDatabase2.setAliasName(settings.DBPfad);
        nxLocalServer.setTempStorePath(AppPaths::baseFolder() + QStringLiteral("DB"));
    } else {
        nxSession.setServerEngine(&nxRemoteServer);
        TnxTransport *transport = nullptr;
        switch (settings.ServerProtokol) {
        case 0:
            transport = &nxWinsock;
            break;
        case 1:
            transport = &nxNamedPipe;
            break;
        case 2:
            transport = &nxSharedMemory;
            break;
        default:
            break; // the engine keeps the transport it has
        }
        if (transport) {
            nxRemoteServer.setTransport(transport);
            transport->setServerName(settings.DBServerName);
        }
        nxDatabase.setAliasName(settings.DBAlias);
        nxDatabase2.setAliasName(settings.DBAlias);
    }

    if (nxDatabase.setActive(true) && nxDatabase.engine()) {
        m_lastError.clear();
        return true;
    }
    m_lastError = nxDatabase.LastError();
    if (reportFailure)
        UserDialogs::instance().messageDlg(parent, ConnectionErrorText(settings.DBServerName), mtError, mbOK);
    nxSession.setActive(false);
    return false;
}
