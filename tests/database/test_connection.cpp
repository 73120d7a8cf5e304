// Connecting (local and server, every transport), the connection error box,
// and finding servers and their databases.
#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QTcpServer>
#include <QTest>

#include "ServerScan.h"
#include "TestSupport.h"
#include "helper_db.h"

namespace {
DbFixture *g_fixture = nullptr;
const QString kErrorText = QStringLiteral("Fehler: Konnte keine Verbindung zum Datenbankserver herstellen.\n\rServer: ");
} // namespace

class TestConnection : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void initTestCase()
    {
        QVERIFY(g_fixture->start());
    }

    void localMode()
    {
        QTemporaryDir dir;
        TConnectionSettings s;
        s.DBPfad = dir.filePath(QStringLiteral("neu/tief")) + QDir::separator();
        s.DBServerName = QStringLiteral("egal");
        ScriptedDialogs dialogs;
        TDbConnection c;
        QVERIFY(c.Connect(s));
        QVERIFY(QFile::exists(dir.filePath(QStringLiteral("neu/tief/ferolith.sqlite"))));
        QCOMPARE(c.engine()->engineName(), QStringLiteral("SQLite"));
        QVERIFY(c.nxSession.Active());
        QCOMPARE(c.nxDatabase2.AliasName(), s.DBPfad);

        // A folder that cannot be made, no folder at all, a file that is no
        // database: the error box names the (empty) server field.
        QFile blocker(dir.filePath(QStringLiteral("datei")));
        QVERIFY(blocker.open(QIODevice::WriteOnly));
        blocker.close();
        QDir().mkpath(dir.filePath(QStringLiteral("kaputt")));
        QFile junk(dir.filePath(QStringLiteral("kaputt/ferolith.sqlite")));
        QVERIFY(junk.open(QIODevice::WriteOnly));
        junk.write(QByteArray(4096, 'x'));
        junk.close();
        for (const QString &path : {dir.filePath(QStringLiteral("datei/db/")), QString(),
                                    dir.filePath(QStringLiteral("kaputt/"))}) {
            s.DBPfad = path;
            s.DBServerName.clear();
            dialogs.messages.clear();
            QVERIFY(!c.Connect(s));
            QCOMPARE(dialogs.messages.size(), 1);
            QCOMPARE(dialogs.messages.at(0).text, kErrorText);
            QCOMPARE(dialogs.messages.at(0).buttons, TMsgDlgButtons(mbOK));
            QVERIFY(!c.nxSession.Active());
            QVERIFY(!c.Connected());
        }
    }

    void serverMode()
    {
        PgTestServer &server = g_fixture->server();
        ScriptedDialogs dialogs;
        TDbConnection c;
        TConnectionSettings s = g_fixture->settings(QStringLiteral("postgres"));
        const QString socket = server.socketFolder() + QStringLiteral(":%1").arg(server.port());
        // Each transport, and back to local mode and to the server again.
        const QList<QPair<int, QString>> ways = {{0, s.DBServerName}, {1, socket}, {2, socket}};
        for (const auto &way : ways) {
            s.ServerProtokol = way.first;
            s.DBServerName = way.second;
            QVERIFY2(c.Connect(s), qPrintable(c.LastError()));
            QCOMPARE(c.engine()->engineName(), QStringLiteral("PostgreSQL"));
            QCOMPARE(c.nxRemoteServer.Transport()->Protocol(), way.first);
        }
        TConnectionSettings local = g_fixture->settings(QStringLiteral("sqlite"));
        QVERIFY(c.Connect(local));
        QCOMPARE(c.engine()->engineName(), QStringLiteral("SQLite"));

        // An index outside 0 to 2 keeps the transport the engine has.
        s.ServerProtokol = 7;
        s.DBServerName = QStringLiteral("wird nicht benutzt");
        QVERIFY(c.Connect(s));
        QCOMPARE(c.nxRemoteServer.Transport(), &c.nxSharedMemory);
        QVERIFY(dialogs.messages.isEmpty());

        // Nobody listening, or no such database.
        s.ServerProtokol = 0;
        s.DBServerName = QStringLiteral("127.0.0.1:1");
        QVERIFY(!c.Connect(s));
        QCOMPARE(dialogs.messages.last().text, kErrorText + QStringLiteral("127.0.0.1:1"));
        s = g_fixture->settings(QStringLiteral("postgres"));
        s.DBAlias = QStringLiteral("gibt_es_nicht");
        QVERIFY(!c.Connect(s));
        QVERIFY(!c.nxSession.Active());
    }

    void serverNames()
    {
        QCOMPARE(ParseServerName(0, QStringLiteral("[::1]:5433")).Host, QStringLiteral("::1"));
        QCOMPARE(ParseServerName(0, QStringLiteral("[::1]:5433")).Port, 5433);
        QCOMPARE(ParseServerName(0, QStringLiteral("::1")).Host, QStringLiteral("::1"));
        QCOMPARE(ParseServerName(0, QStringLiteral("db.local")).Port, 5432);
        QCOMPARE(ParseServerName(0, QStringLiteral("db.local:6000")).Port, 6000);
        QCOMPARE(ParseServerName(1, QStringLiteral("/run/pg:5434")).Host, QStringLiteral("/run/pg"));
        QCOMPARE(ParseServerName(2, QStringLiteral("/run/pg")).Port, 5432);
        QCOMPARE(ParseServerName(1, QString()).Host, QString()); // the library's default folder
    }

    void serverScan()
    {
        PgTestServer &server = g_fixture->server();
        // Something that takes connections but speaks no PostgreSQL.
        QTcpServer silent;
        QVERIFY(silent.listen(QHostAddress::LocalHost));
        const QString testServer = QStringLiteral("127.0.0.1:%1").arg(server.port());
        const QString other = QStringLiteral("127.0.0.1:%1").arg(silent.serverPort());
        const QStringList tcp = ServerScan::GetServerNames(0, 1000, {testServer, other});
        QVERIFY2(tcp.contains(testServer), qPrintable(tcp.join(QLatin1Char(' '))));
        QVERIFY(!tcp.contains(other));

        const QString socket = server.socketFolder() + QStringLiteral(":%1").arg(server.port());
        for (int protocol : {1, 2})
            QVERIFY(ServerScan::GetServerNames(protocol, 1000, {server.socketFolder()}).contains(socket));
        QVERIFY(ServerScan::GetServerNames(3, 1000, {testServer}).isEmpty());

        // The entries are what the server field takes.
        TConnectionSettings s = g_fixture->settings(QStringLiteral("postgres"));
        s.ServerProtokol = 1;
        s.DBServerName = socket;
        ScriptedDialogs dialogs;
        TDbConnection c;
        QVERIFY(c.Connect(s));
    }

    void aliasScan()
    {
        PgTestServer &server = g_fixture->server();
        const QString testServer = QStringLiteral("127.0.0.1:%1").arg(server.port());
        const QStringList aliases = ServerScan::GetAliasNames(0, testServer);
        QVERIFY(aliases.contains(DbFixture::database()));
        QVERIFY(aliases.contains(QStringLiteral("postgres")));
        QVERIFY(!aliases.contains(QStringLiteral("template1")));
        QVERIFY(!aliases.contains(QStringLiteral("template0")));
        QString error;
        QVERIFY(ServerScan::GetAliasNames(0, QStringLiteral("127.0.0.1:1"), &error).isEmpty());
        QVERIFY(!error.isEmpty());

        // The settings window's steps on its combo boxes.
        ScriptedDialogs dialogs;
        QComboBox names, alias;
        names.setEditable(true);
        names.setEditText(testServer); // typed by hand: no scan yet
        TConnectionSettings s = g_fixture->settings(QStringLiteral("postgres"));
        QVERIFY(!ServerScan::ScanAliasClick(nullptr, &names, &alias, s));
        QCOMPARE(dialogs.messages.size(), 1);
        QCOMPARE(dialogs.messages.at(0).text,
                 QStringLiteral("Keine Datenbank Server gefunden.\n\rBitte stellen Sie sicher das der Datenbankserver "
                                "installiert und aktiv ist."));
        names.addItem(testServer);
        ServerScan::applyListStyle(&names);
        QCOMPARE(names.currentText(), testServer);
        QVERIFY(names.property("simpleStyle").toBool());
        QVERIFY(ServerScan::ScanAliasClick(nullptr, &names, &alias, s));
        QVERIFY(alias.count() >= 2);
        QCOMPARE(alias.currentIndex(), 0);
        QVERIFY(!alias.property("simpleStyle").toBool());
    }
};

int main(int argc, char *argv[])
{
    QApplication app(argc, argv);
    DbFixture fixture;
    g_fixture = &fixture;
    TestConnection test;
    return QTest::qExec(&test, argc, argv);
}

#include "test_connection.moc"
