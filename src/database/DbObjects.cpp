#include "DbObjects.h"

#include "SqlEngine.h"

#include <QAtomicInt>
#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QRegularExpression>
#include <QSqlError>
#include <QSqlQuery>

namespace {
QString newConnectionName()
{
    static QAtomicInt counter;
    return QStringLiteral("ferolith-db-%1").arg(counter.fetchAndAddRelaxed(1));
}

void setError(QString *errorMessage, const QString &text)
{
    if (errorMessage)
        *errorMessage = text;
}
} // namespace

bool TnxComponent::setActive(bool active)
{
    if (active == m_active)
        return true;
    if (!active) {
        doClose();
        m_active = false;
        return true;
    }
    m_lastError.clear();
    if (!doOpen(&m_lastError))
        return false;
    m_active = true;
    return true;
}

bool TnxRemoteServer::doOpen(QString *errorMessage)
{
    if (!m_transport) {
        setError(errorMessage, QCoreApplication::translate("TDbObjects", "Kein Verbindungstyp gewählt."));
        return false;
    }
    return m_transport->setActive(true) || (setError(errorMessage, m_transport->LastError()), false);
}

bool TnxSession::doOpen(QString *errorMessage)
{
    if (!m_engine) {
        setError(errorMessage, QCoreApplication::translate("TDbObjects", "Die Sitzung hat keinen Datenbankserver."));
        return false;
    }
    if (!m_engine->setActive(true)) {
        setError(errorMessage, m_engine->LastError());
        return false;
    }
    return true;
}

void TnxSession::doClose()
{
    for (TnxDatabase *database : m_databases)
        database->setActive(false);
}

TnxDatabase::TnxDatabase() : m_connectionName(newConnectionName()) {}

TnxDatabase::~TnxDatabase()
{
    setActive(false);
    setSession(nullptr);
}

void TnxDatabase::setSession(TnxSession *session)
{
    if (m_session)
        m_session->m_databases.removeAll(this);
    m_session = session;
    if (m_session)
        m_session->m_databases << this;
}

bool TnxDatabase::doOpen(QString *errorMessage)
{
    if (!m_session) {
        setError(errorMessage, QCoreApplication::translate("TDbObjects", "Die Datenbank hat keine Sitzung."));
        return false;
    }
    if (!m_session->setActive(true)) {
        setError(errorMessage, m_session->LastError());
        return false;
    }
    TnxServerEngine *engine = m_session->ServerEngine();
    const bool ok = engine->IsLocal() ? openLocal(errorMessage)
                                      : openRemote(static_cast<TnxRemoteServer *>(engine)->Transport(), errorMessage);
    if (!ok) {
        doClose();
        return false;
    }
    m_engine = TSqlEngine::create(m_db);
    return true;
}

bool TnxDatabase::openLocal(QString *errorMessage)
{
    if (m_aliasPath.trimmed().isEmpty()) {
        setError(errorMessage, QCoreApplication::translate("TDbObjects", "Es ist kein Datenbankpfad eingestellt."));
        return false;
    }
    const QString folder = QDir::fromNativeSeparators(m_aliasPath);
    if (!QDir().mkpath(folder) || !QFileInfo(folder).isDir()) {
        setError(
            errorMessage,
            QCoreApplication::translate("TDbObjects", "Der Ordner „%1“ kann nicht angelegt werden.").arg(m_aliasPath));
        return false;
    }
    m_db = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), m_connectionName);
    m_db.setDatabaseName(QDir(folder).filePath(fileName()));
    m_db.setConnectOptions(QStringLiteral("QSQLITE_BUSY_TIMEOUT=5000"));
    if (!m_db.open()) {
        setError(errorMessage, m_db.lastError().text().trimmed());
        return false;
    }
    // Opening alone reads nothing; a file that is no database shows here.
    // A conversion's pages stay in memory rather than spilling mid-transaction.
    QSqlQuery probe(m_db);
    probe.exec(QStringLiteral("PRAGMA cache_size = -65536"));
    if (!probe.exec(QStringLiteral("SELECT count(*) FROM sqlite_master"))) {
        setError(errorMessage, probe.lastError().text().trimmed());
        return false;
    }
    return true;
}

bool TnxDatabase::openRemote(TnxTransport *transport, QString *errorMessage)
{
    m_db = QSqlDatabase::addDatabase(QStringLiteral("QPSQL"), m_connectionName);
    return OpenServerConnection(m_db, transport->Protocol(), transport->ServerName(), m_aliasName, errorMessage);
}

void TnxDatabase::doClose()
{
    m_engine.reset();
    if (m_db.isValid()) {
        m_db.close();
        m_db = QSqlDatabase();
        QSqlDatabase::removeDatabase(m_connectionName);
    }
}

bool TnxTable::doOpen(QString *errorMessage)
{
    if (!m_database || !m_database->Active() || !m_database->engine()) {
        setError(errorMessage, QCoreApplication::translate("TDbObjects", "Die Datenbank ist nicht geöffnet."));
        return false;
    }
    if (!m_database->engine()->tableExists(m_tableName)) {
        setError(errorMessage,
                 QCoreApplication::translate("TDbObjects", "Die Tabelle „%1“ gibt es nicht.").arg(m_tableName));
        return false;
    }
    return true;
}

TServerAddress ParseServerName(int protocol, const QString &serverName)
{
    TServerAddress address;
    const QString name = serverName.trimmed();
    if (protocol != 0) {
        // "folder:port": the port is what follows the last colon, digits only.
        static const QRegularExpression withPort(QStringLiteral("^(.*):(\\d{1,5})$"));
        const QRegularExpressionMatch m = withPort.match(name);
        address.Host = m.hasMatch() ? m.captured(1) : name;
        if (m.hasMatch())
            address.Port = m.captured(2).toInt();
        return address;
    }
    static const QRegularExpression bracketed(QStringLiteral("^\\[([^\\]]*)\\](?::(\\d{1,5}))?$"));
    const QRegularExpressionMatch b = bracketed.match(name);
    if (b.hasMatch()) {
        address.Host = b.captured(1);
        if (!b.captured(2).isEmpty())
            address.Port = b.captured(2).toInt();
    } else if (name.count(QLatin1Char(':')) == 1) {
        const int colon = int(name.indexOf(QLatin1Char(':')));
        address.Host = name.left(colon);
        bool ok = false;
        const int port = name.mid(colon + 1).toInt(&ok);
        if (ok)
            address.Port = port;
    } else {
        address.Host = name; // a name, an IPv4 address or a bare IPv6 address
    }
    if (address.Host.isEmpty())
        address.Host = QStringLiteral("localhost");
    return address;
}

bool OpenServerConnection(QSqlDatabase &db, int protocol, const QString &serverName, const QString &database,
                          QString *errorMessage)
{
    const TServerAddress address = ParseServerName(protocol, serverName);
    // User and password are the client library's business (environment,
    // password file, peer authentication on the socket).
    db.setHostName(address.Host);
    db.setPort(address.Port);
    db.setDatabaseName(database);
    // The server's notices ("already exists, skipping") are no news to the user.
    db.setConnectOptions(QStringLiteral("connect_timeout=10;options='-c client_min_messages=warning'"));
    if (!db.open()) {
        setError(errorMessage, db.lastError().text().trimmed());
        return false;
    }
    return true;
}
