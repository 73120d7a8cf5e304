// The batch tool's database commands as a user runs them: a table from a
// mask in the local database, kept and dropped data, the scans against a
// private server, and German messages with a non-zero exit on failure.
#include <QDir>
#include <QSqlDatabase>
#include <QSqlQuery>
#include <QTemporaryDir>
#include <QtTest>

#include "PgTestServer.h"
#include "helper_cli.h"

using namespace CliTest;

class TestCliDatabase : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        QVERIFY(m_dir.isValid());
        writeText(QStringLiteral("local.ini"),
                  QStringLiteral("[Configuration]\nDatenbankPfad=%1\nDBConnect=1\n").arg(path(QStringLiteral("db/"))));
        QDir().mkpath(path(QStringLiteral("db")));
        writeText(QStringLiteral("db/Kunden.ini"), QStringLiteral("[Datenbank]\nIndex=knr\nFokus=Name\n[Default]\nLand=DE\n"));
        writeText(QStringLiteral("kunden.dbm"),
                  QStringLiteral("[Datenbank]\nTabelle=Kunden\nTitel=Kunden\n"
                                 "[Field_1]\nName=KNR\nDesc=Kundennummer\nLaenge=6\nTyp=0\n"
                                 "[Field_2]\nName=Umsatz\nTyp=1\n"
                                 "[Memo_1]\nName=Notiz\n"
                                 "[CheckBox_1]\nName=Aktiv?\nDataField=Aktiv\n"
                                 "[DBLabel_1]\nName=KNR\nTyp=0\nLaenge=6\n"));
        writeText(QStringLiteral("ohne.dbm"), QStringLiteral("[Datenbank]\nTitel=Ohne\n[Field_1]\nName=A\n"));
    }

    void createTableInTheLocalDatabase()
    {
        Run r = run(QStringLiteral("local.ini"), {QStringLiteral("create-table"), path(QStringLiteral("kunden.dbm"))});
        QVERIFY2(r.exitCode == 0, qPrintable(r.err));
        QVERIFY(r.err.contains(QLatin1String("Datenbank Kunden wurde erfolgreich erstellt")));
        {
            QSqlDatabase db = open();
            QSqlQuery q(db);
            QVERIFY(q.exec(QStringLiteral("SELECT name, type, pk FROM pragma_table_info('Kunden') ORDER BY cid")));
            QStringList columns;
            while (q.next())
                columns << QStringLiteral("%1 %2 %3").arg(q.value(0).toString(), q.value(1).toString()).arg(q.value(2).toInt());
            QCOMPARE(columns.mid(0, 4), (QStringList{"KNR VARCHAR(6) 1", "Umsatz INTEGER 0", "Notiz TEXT 0",
                                                     "Aktiv BOOLEAN 0"}));
            QCOMPARE(columns.last(), QStringLiteral("QXID INTEGER 2"));
            QVERIFY(q.exec(QStringLiteral("INSERT INTO Kunden (KNR, Umsatz) VALUES ('K1', 5)")));
        }
        QSqlDatabase::removeDatabase(QStringLiteral("check"));
        // The data stays unless told otherwise.
        r = run(QStringLiteral("local.ini"), {QStringLiteral("create-table"), path(QStringLiteral("kunden.dbm"))});
        QCOMPARE(r.exitCode, 0);
        QVERIFY(r.err.contains(QLatin1String("Daten wurden erfolgreich konvertiert.")));
        QCOMPARE(rows(), 1);
        r = run(QStringLiteral("local.ini"),
                {QStringLiteral("create-table"), path(QStringLiteral("kunden.dbm")), QStringLiteral("--drop-data")});
        QCOMPARE(r.exitCode, 0);
        QCOMPARE(rows(), 0);
        // The description file was written anew next to the database.
        QVERIFY(readFileBytes(path(QStringLiteral("db/Kunden.ini"))).contains("Index=knr\r\n"));
    }

    void recordsGoOutAndComeInAllOrNothing()
    {
        writeText(QStringLiteral("waren.dbm"),
                  QStringLiteral("[Datenbank]\nTabelle=Waren\n"
                                 "[Field_1]\nName=Nr\nLaenge=6\nTyp=0\nPflicht=1\n"
                                 "[Field_2]\nName=Menge\nDesc=Stückzahl\nTyp=1\n"
                                 "[Field_3]\nName=Bez\nLaenge=20\nTyp=0\n"));
        writeText(QStringLiteral("db/Waren.ini"),
                  QStringLiteral("[Datenbank]\nIndex=Nr\nDateizaehler=W.NUM\nFelder=Nr\n[Default]\nBez=ohne\n"));
        Run r = run(QStringLiteral("local.ini"), {QStringLiteral("create-table"), path(QStringLiteral("waren.dbm"))});
        QVERIFY2(r.exitCode == 0, qPrintable(r.err));
        // The empty number comes from the counter, the empty name from its default.
        writeText(QStringLiteral("gut.csv"), QStringLiteral("Nr;Menge;Bez\nA1;5;\"Schraube; M4\"\n;7;\n"));
        r = run(QStringLiteral("local.ini"), {QStringLiteral("import"), path(QStringLiteral("waren.dbm")), path(QStringLiteral("gut.csv"))});
        QVERIFY2(r.exitCode == 0, qPrintable(r.err));
        // One bad row: nothing is taken, the message names row and field.
        writeText(QStringLiteral("schlecht.csv"), QStringLiteral("Nr,Menge\nB1,3\nB2,drei\n"));
        r = run(QStringLiteral("local.ini"), {QStringLiteral("import"), path(QStringLiteral("waren.dbm")), path(QStringLiteral("schlecht.csv"))});
        QCOMPARE(r.exitCode, 1);
        QVERIFY2(r.err.contains(QStringLiteral("Zeile 3: Im Feld „Stückzahl“ ist „drei“ keine ganze Zahl.")), qPrintable(r.err));
        r = run(QStringLiteral("local.ini"), {QStringLiteral("export"), path(QStringLiteral("waren.dbm"))});
        QCOMPARE(r.exitCode, 0);
        QCOMPARE(r.out, QStringLiteral("Nr;Menge;Bez\n1;7;ohne\nA1;5;\"Schraube; M4\"\n"));
    }

    void failuresSayWhatWentWrong()
    {
        Run r = run(QStringLiteral("local.ini"), {QStringLiteral("create-table"), path(QStringLiteral("ohne.dbm"))});
        QCOMPARE(r.exitCode, 1);
        QVERIFY(r.err.contains(QLatin1String("nennt keine Tabelle")));
        writeText(QStringLiteral("blocked"), QStringLiteral("a file"));
        writeText(QStringLiteral("blocked.ini"),
                  QStringLiteral("[Configuration]\nDatenbankPfad=%1\nDBConnect=1\n").arg(path(QStringLiteral("blocked/db/"))));
        r = run(QStringLiteral("blocked.ini"), {QStringLiteral("create-table"), path(QStringLiteral("kunden.dbm"))});
        QCOMPARE(r.exitCode, 1);
        QVERIFY2(r.err.contains(QLatin1String("Fehler: Konnte keine Verbindung zum Datenbankserver herstellen.\nServer: ")),
                 qPrintable(r.err));
        r = run(QStringLiteral("local.ini"), {QStringLiteral("create-table")});
        QCOMPARE(r.exitCode, 2);
    }

    void scansFindThePrivateServer()
    {
        PgTestServer server;
        QString error;
        QVERIFY2(server.start(&error), qPrintable(error));
        const QString address = QStringLiteral("127.0.0.1:%1").arg(server.port());
        writeText(QStringLiteral("server.ini"),
                  QStringLiteral("[Configuration]\nDBConnect=0\nServer_Protocol=0\nScanHosts=%1\n").arg(address));
        Run r = run(QStringLiteral("server.ini"), {QStringLiteral("servers")});
        QCOMPARE(r.exitCode, 0);
        QVERIFY(r.out.split(QLatin1Char('\n')).contains(address));
        r = run(QStringLiteral("server.ini"), {QStringLiteral("aliases"), address});
        QCOMPARE(r.exitCode, 0);
        QVERIFY(r.out.split(QLatin1Char('\n')).contains(QStringLiteral("postgres")));
        r = run(QStringLiteral("server.ini"), {QStringLiteral("aliases"), QStringLiteral("127.0.0.1:1")});
        QCOMPARE(r.exitCode, 1);
        QVERIFY(r.err.contains(QLatin1String("Keine Datenbank auf dem Server")));
    }

private:
    QString path(const QString &name) const { return m_dir.filePath(name); }
    void writeText(const QString &name, const QString &text) const { QVERIFY(writeCrlfText(path(name), text)); }
    QSqlDatabase open() const
    {
        QSqlDatabase db = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), QStringLiteral("check"));
        db.setDatabaseName(path(QStringLiteral("db/ferolith.sqlite")));
        db.open();
        return db;
    }
    int rows() const
    {
        int n = -1;
        {
            QSqlDatabase db = open();
            QSqlQuery q(db);
            if (q.exec(QStringLiteral("SELECT count(*) FROM Kunden")) && q.next())
                n = q.value(0).toInt();
        }
        QSqlDatabase::removeDatabase(QStringLiteral("check"));
        return n;
    }
    Run run(const QString &ini, const QStringList &args) const { return runTool(path(ini), args); }

    QTemporaryDir m_dir;
};

QTEST_MAIN(TestCliDatabase)
#include "test_cli_database.moc"
