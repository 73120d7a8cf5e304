#include "ServerScan.h"

#include "ConnectionSettings.h"
#include "DbObjects.h"
#include "UserDialogs.h"
#include "WaitCursor.h"

#include <QComboBox>
#include <QDir>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QFileInfo>
#include <QCursor>
#include <QGuiApplication>
#include <QHostAddress>
#include <QLocalSocket>
#include <QSet>
#include <QSqlDatabase>
#include <QSqlError>
#include <QSqlQuery>
#include <QTcpSocket>
#include <QTimer>
#include <memory>

namespace {

// The SSL request of the PostgreSQL protocol: only a PostgreSQL server
// answers it, with one byte, 'S' or 'N'.
const char kSslRequest[8] = {0, 0, 0, 8, 0x04, char(0xD2), 0x16, 0x2F};

struct Probe
{
    QString name; // the entry for the list
    std::unique_ptr<QIODevice> device;
    bool answered = false;
    bool done = false;
};

bool answersProtocol(QIODevice *device)
{
    char reply = 0;
    return device->read(&reply, 1) == 1 && (reply == 'S' || reply == 'N');
}

QString tcpEntry(const QString &host, int port)
{
    return host.contains(QLatin1Char(':')) ? QStringLiteral("[%1]:%2").arg(host).arg(port)
                                           : QStringLiteral("%1:%2").arg(host).arg(port);
}

QStringList socketFolders(const QStringList &extraHosts)
{
    QStringList folders = {QStringLiteral("/run/postgresql"), QStringLiteral("/var/run/postgresql"),
                           QStringLiteral("/tmp")};
    for (const QString &entry : extraHosts)
        if (QDir::isAbsolutePath(entry))
            folders << entry;
    return folders;
}

// Runs every probe at once until each has answered or failed, or the time is up.
void runProbes(std::vector<Probe> &probes, int timeoutMs)
{
    QEventLoop loop;
    auto finishedAll = [&] {
        for (const Probe &p : probes)
            if (!p.done)
                return false;
        return true;
    };
    auto finish = [&](Probe &p, bool answered) {
        if (p.done)
            return;
        p.done = true;
        p.answered = answered;
        if (finishedAll())
            loop.quit();
    };
    for (Probe &p : probes) {
        QIODevice *device = p.device.get();
        Probe *probe = &p;
        QObject::connect(device, &QIODevice::readyRead, &loop,
                         [=, &finish] { finish(*probe, answersProtocol(device)); });
        if (auto *tcp = qobject_cast<QTcpSocket *>(device)) {
            QObject::connect(tcp, &QTcpSocket::connected, &loop, [=] { tcp->write(kSslRequest, 8); });
            QObject::connect(tcp, &QTcpSocket::errorOccurred, &loop, [=, &finish] { finish(*probe, false); });
        } else if (auto *local = qobject_cast<QLocalSocket *>(device)) {
            QObject::connect(local, &QLocalSocket::connected, &loop, [=] { local->write(kSslRequest, 8); });
            QObject::connect(local, &QLocalSocket::errorOccurred, &loop, [=, &finish] { finish(*probe, false); });
        }
    }
    if (probes.empty())
        return;
    QTimer::singleShot(qMax(0, timeoutMs), &loop, &QEventLoop::quit);
    for (Probe &p : probes) {
        if (auto *tcp = qobject_cast<QTcpSocket *>(p.device.get())) {
            const QStringList parts = p.name.startsWith(QLatin1Char('['))
                ? QStringList{p.name.mid(1, p.name.lastIndexOf(QLatin1Char(']')) - 1),
                              p.name.mid(p.name.lastIndexOf(QLatin1Char(':')) + 1)}
                : QStringList{p.name.left(p.name.lastIndexOf(QLatin1Char(':'))),
                              p.name.mid(p.name.lastIndexOf(QLatin1Char(':')) + 1)};
            tcp->connectToHost(parts.at(0), quint16(parts.at(1).toUInt()));
        } else if (auto *local = qobject_cast<QLocalSocket *>(p.device.get())) {
            const TServerAddress address = ParseServerName(1, p.name);
            local->connectToServer(QDir(address.Host).filePath(QStringLiteral(".s.PGSQL.%1").arg(address.Port)));
        }
    }
    if (!finishedAll())
        loop.exec(QEventLoop::ExcludeUserInputEvents);
    for (Probe &p : probes) {
        // Nothing is left waiting for an answer that comes too late.
        p.device->disconnect();
        if (auto *tcp = qobject_cast<QTcpSocket *>(p.device.get()))
            tcp->abort();
        else if (auto *local = qobject_cast<QLocalSocket *>(p.device.get()))
            local->abort();
    }
}

} // namespace

namespace ServerScan {

QStringList GetServerNames(int protocol, int timeoutMs, const QStringList &extraHosts)
{
    std::vector<Probe> probes;
    QSet<QString> seen;
    auto add = [&](const QString &name, QIODevice *device) {
        std::unique_ptr<QIODevice> owned(device);
        if (seen.contains(name))
            return;
        seen.insert(name);
        probes.push_back(Probe{name, std::move(owned)});
    };
    if (protocol == 0) {
        QStringList hosts = {QStringLiteral("127.0.0.1"), QStringLiteral("::1")};
        for (const QString &entry : extraHosts) {
            if (QDir::isAbsolutePath(entry))
                continue; // a socket folder
            const bool hasPort = entry.startsWith(QLatin1Char('[')) ? entry.contains(QStringLiteral("]:"))
                                                                    : entry.count(QLatin1Char(':')) == 1;
            if (hasPort) {
                const TServerAddress address = ParseServerName(0, entry);
                add(tcpEntry(address.Host, address.Port), new QTcpSocket);
            } else {
                hosts << ParseServerName(0, entry).Host;
            }
        }
        for (const QString &host : hosts)
            for (int port = kFirstPort; port <= kLastPort; ++port)
                add(tcpEntry(host, port), new QTcpSocket);
    } else if (protocol == 1 || protocol == 2) {
        QSet<QString> folders;
        for (const QString &folder : socketFolders(extraHosts)) {
            const QString canonical = QFileInfo(folder).canonicalFilePath();
            if (canonical.isEmpty() || folders.contains(canonical))
                continue;
            folders.insert(canonical);
            const QFileInfoList sockets = QDir(folder).entryInfoList({QStringLiteral(".s.PGSQL.*")},
                                                                      QDir::System | QDir::Hidden);
            for (const QFileInfo &socket : sockets) {
                const QString port = socket.fileName().mid(int(qstrlen(".s.PGSQL.")));
                bool ok = false;
                port.toInt(&ok);
                if (ok)
                    add(QDir::cleanPath(folder) + QLatin1Char(':') + port, new QLocalSocket);
            }
        }
    }
    runProbes(probes, timeoutMs);
    QStringList names;
    for (const Probe &p : probes)
        if (p.answered)
            names << p.name;
    return names;
}

QStringList GetAliasNames(int protocol, const QString &serverName, QString *errorMessage)
{
    static QAtomicInt counter;
    const QString connectionName = QStringLiteral("ferolith-alias-%1").arg(counter.fetchAndAddRelaxed(1));
    QStringList aliases;
    {
        QSqlDatabase db = QSqlDatabase::addDatabase(QStringLiteral("QPSQL"), connectionName);
        QString error;
        // Any database will do to ask for the list; "postgres" is there unless removed.
        bool open = OpenServerConnection(db, protocol, serverName, QStringLiteral("postgres"), &error);
        if (!open)
            open = OpenServerConnection(db, protocol, serverName, QStringLiteral("template1"), &error);
        if (open) {
            QSqlQuery query(db);
            if (query.exec(QStringLiteral("SELECT datname FROM pg_database WHERE datallowconn AND NOT datistemplate "
                                          "ORDER BY datname"))) {
                while (query.next())
                    aliases << query.value(0).toString();
            } else {
                error = query.lastError().text().trimmed();
            }
            db.close();
        }
        if (errorMessage)
            *errorMessage = aliases.isEmpty() ? error : QString();
    }
    QSqlDatabase::removeDatabase(connectionName);
    return aliases;
}

QString NoServerText()
{
    return QStringLiteral(
        "Keine Datenbank Server gefunden.\n\rBitte stellen Sie sicher das der Datenbankserver installiert und aktiv ist.");
}

void applyListStyle(QComboBox *combo)
{
    if (combo->count() > 0)
        combo->setCurrentIndex(0);
    // Fewer than two entries: a plain edit field, nothing to drop down.
    const bool simple = combo->count() < 2;
    combo->setProperty("simpleStyle", simple);
    combo->setStyleSheet(simple ? QStringLiteral("QComboBox::drop-down { width: 0px; border: none; }") : QString());
}

void ScanServerBtnClick(QComboBox *DBServerName, const TConnectionSettings &settings)
{
    {
        TWaitCursor wait;
        const QStringList names = GetServerNames(settings.ServerProtokol, settings.ScanTimeOut, settings.ScanHosts);
        DBServerName->clear();
        DBServerName->addItems(names);
        applyListStyle(DBServerName);
    }
    // The text-change rule of the settings window follows the new text.
    Q_EMIT DBServerName->currentTextChanged(DBServerName->currentText());
}

bool ScanAliasClick(QWidget *parent, const QComboBox *DBServerName, QComboBox *DBAlias,
                    const TConnectionSettings &settings)
{
    // The test is on the scanned list: a name typed by hand needs a scan first.
    if (DBServerName->count() == 0) {
        UserDialogs::instance().messageDlg(parent, NoServerText(), mtInformation, mbOK);
        return false;
    }
    TWaitCursor wait;
    QString error;
    const QStringList aliases = GetAliasNames(settings.ServerProtokol, DBServerName->currentText(), &error);
    DBAlias->clear();
    DBAlias->addItems(aliases);
    applyListStyle(DBAlias);
    return !aliases.isEmpty();
}

} // namespace ServerScan
