#include "PgTestServer.h"

#include <QCollator>
#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTcpServer>

#ifdef Q_OS_UNIX
#include <pwd.h>
#include <sys/stat.h>
#include <unistd.h>
#endif

namespace {
const char *const kRole = "postgres";

int freePort()
{
    QTcpServer server;
    if (!server.listen(QHostAddress::LocalHost, 0))
        return 0;
    return server.serverPort();
}

#ifdef Q_OS_UNIX
// The folders must belong to the user the server runs as.
bool handTo(const QString &path, uid_t uid, gid_t gid)
{
    return ::chown(QFile::encodeName(path).constData(), uid, gid) == 0
        && ::chmod(QFile::encodeName(path).constData(), 0700) == 0;
}
#endif
} // namespace

PgTestServer::PgTestServer() = default;

PgTestServer::~PgTestServer()
{
    stop();
}

QString PgTestServer::binFolder()
{
    QDir root(QStringLiteral("/usr/lib/postgresql"));
    QStringList versions = root.entryList(QDir::Dirs | QDir::NoDotAndDotDot);
    QCollator collator;
    collator.setNumericMode(true);
    std::sort(versions.begin(), versions.end(), collator);
    for (auto it = versions.crbegin(); it != versions.crend(); ++it) {
        const QString bin = root.filePath(*it + QStringLiteral("/bin"));
        if (QFile::exists(bin + QStringLiteral("/initdb")))
            return bin;
    }
    return QString();
}

QString PgTestServer::socketFolder() const
{
    return m_dir ? m_dir->filePath(QStringLiteral("sock")) : QString();
}

bool PgTestServer::run(const QString &program, const QStringList &arguments, QString *errorMessage, int timeoutMs)
{
    QProcess process;
    process.setProcessChannelMode(QProcess::MergedChannels);
    if (m_asPostgresUser)
        process.start(QStringLiteral("runuser"),
                      QStringList{QStringLiteral("-u"), QLatin1String(kRole), QStringLiteral("--"), program} + arguments);
    else
        process.start(program, arguments);
    if (!process.waitForFinished(timeoutMs) || process.exitStatus() != QProcess::NormalExit
        || process.exitCode() != 0) {
        if (errorMessage)
            *errorMessage = QStringLiteral("%1 failed: %2 %3")
                                .arg(program, process.errorString(), QString::fromLocal8Bit(process.readAll()));
        return false;
    }
    return true;
}

bool PgTestServer::start(QString *errorMessage)
{
    const QString bin = binFolder();
    if (bin.isEmpty()) {
        *errorMessage = QStringLiteral("no PostgreSQL server installed under /usr/lib/postgresql");
        return false;
    }
    m_dir = std::make_unique<QTemporaryDir>(QDir::tempPath() + QStringLiteral("/ferolith-pg-XXXXXX"));
    if (!m_dir->isValid()) {
        *errorMessage = QStringLiteral("no temporary folder");
        return false;
    }
    const QString data = m_dir->filePath(QStringLiteral("data"));
    QDir().mkpath(socketFolder());
#ifdef Q_OS_UNIX
    if (::geteuid() == 0) {
        // The server refuses to run as root.
        const passwd *pw = ::getpwnam(kRole);
        if (!pw) {
            *errorMessage = QStringLiteral("running as root, but there is no system user postgres");
            return false;
        }
        m_asPostgresUser = true;
        if (!handTo(m_dir->path(), pw->pw_uid, pw->pw_gid) || !handTo(socketFolder(), pw->pw_uid, pw->pw_gid)) {
            *errorMessage = QStringLiteral("cannot hand the temporary folder to postgres");
            return false;
        }
    }
#endif
    m_port = freePort();
    if (!run(bin + QStringLiteral("/initdb"),
             {QStringLiteral("-D"), data, QStringLiteral("-U"), QLatin1String(kRole), QStringLiteral("--auth=trust"),
              QStringLiteral("-E"), QStringLiteral("UTF8"), QStringLiteral("--locale=C.UTF-8"),
              QStringLiteral("--no-sync")},
             errorMessage))
        return false;
    const QString options = QStringLiteral("-c listen_addresses=127.0.0.1 -c port=%1 -c unix_socket_directories=%2 "
                                           "-c fsync=off -c synchronous_commit=off -c full_page_writes=off "
                                           "-c max_connections=30")
                                .arg(m_port)
                                .arg(socketFolder());
    if (!run(bin + QStringLiteral("/pg_ctl"),
             {QStringLiteral("-D"), data, QStringLiteral("-l"), m_dir->filePath(QStringLiteral("server.log")),
              QStringLiteral("-o"), options, QStringLiteral("-w"), QStringLiteral("-t"), QStringLiteral("60"),
              QStringLiteral("start")},
             errorMessage)) {
        QFile log(m_dir->filePath(QStringLiteral("server.log")));
        if (log.open(QIODevice::ReadOnly))
            *errorMessage += QString::fromLocal8Bit(log.readAll());
        return false;
    }
    m_running = true;
    qputenv("PGUSER", kRole);
    qunsetenv("PGPASSWORD");
    qunsetenv("PGHOST");
    qunsetenv("PGPORT");
    return true;
}

void PgTestServer::stop()
{
    if (!m_running)
        return;
    m_running = false;
    run(binFolder() + QStringLiteral("/pg_ctl"),
        {QStringLiteral("-D"), m_dir->filePath(QStringLiteral("data")), QStringLiteral("-m"), QStringLiteral("fast"),
         QStringLiteral("-w"), QStringLiteral("stop")},
        nullptr);
}

bool PgTestServer::createDatabase(const QString &name, QString *errorMessage)
{
    QProcess process;
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.start(binFolder() + QStringLiteral("/createdb"),
                  {QStringLiteral("-h"), socketFolder(), QStringLiteral("-p"), QString::number(m_port),
                   QStringLiteral("-U"), QLatin1String(kRole), name});
    if (!process.waitForFinished(60000) || process.exitCode() != 0) {
        if (errorMessage)
            *errorMessage = QString::fromLocal8Bit(process.readAll());
        return false;
    }
    return true;
}
