// The table generator: the rows a mask gives, and on both engines the
// checks before any change, the dictionary and what each engine makes of
// it, keeping or dropping old data, rows that do not convert, hostile
// names, and a conversion killed midway.
#include <QApplication>
#include <QProcess>
#include <QSqlQuery>
#include <QTest>
#include <QThread>
#include <QWidget>

#include "Containers.h"
#include "Edits.h"
#include "FieldTypes.h"
#include "Label.h"
#include "MaskFields.h"
#include "MyBtn.h"
#include "TableDescription.h"
#include "TestSupport.h"
#include "helper_db.h"

namespace {
DbFixture *g_fixture = nullptr;

struct Run
{
    TConnectionSettings settings;
    TDbConnection connection;
    ScriptedDialogs dialogs;
    QList<QPair<int, int>> rowErrors;
    int nameMissing = 0;
    int converted = 0;
    QList<QPair<qint64, qint64>> progress;

    explicit Run(const TConnectionSettings &s) : settings(s) {}

    bool create(const QString &table, const QVector<TFieldRow> &rows, TTableGenerator **out = nullptr)
    {
        m_generator = std::make_unique<TTableGenerator>(connection, settings);
        m_generator->TableName = table;
        m_generator->Rows = rows;
        m_generator->OnRowError = [this](int row, int column) { rowErrors << qMakePair(row, column); };
        m_generator->OnTableNameMissing = [this] { ++nameMissing; };
        m_generator->OnConverted = [this] { ++converted; };
        m_generator->OnProgress = [this](qint64 pos, qint64 max) { progress << qMakePair(pos, max); };
        if (out)
            *out = m_generator.get();
        return m_generator->CreateDB();
    }
    const TDataDictionary &dictionary() const { return m_generator->Dictionary(); }
    TSqlEngine *engine()
    {
        if (!connection.Connected())
            connection.Connect(settings);
        return connection.engine();
    }
    qint64 count(const QString &table) { return engine()->recordCount(table); }

private:
    std::unique_ptr<TTableGenerator> m_generator;
};

void engines()
{
    QTest::addColumn<QString>("engine");
    QTest::newRow("sqlite") << QStringLiteral("sqlite");
    QTest::newRow("postgres") << QStringLiteral("postgres");
}

QString columnType(TSqlEngine *engine, const QString &table, const QString &column)
{
    for (const TColumnInfo &c : engine->columns(table, nullptr))
        if (c.Name == column)
            return c.Type;
    return QString();
}

// The first table of the conversion tests: a key, a code kept as text, a counter.
QVector<TFieldRow> firstVersion()
{
    return {fieldRow(QStringLiteral("Name"), QStringLiteral("A"), QStringLiteral("20"), true),
            fieldRow(QStringLiteral("Code"), QStringLiteral("A"), QStringLiteral("10"))};
}

QVector<TFieldRow> secondVersion()
{
    return {fieldRow(QStringLiteral("Name"), QStringLiteral("A"), QStringLiteral("40"), true),
            fieldRow(QStringLiteral("Code"), QStringLiteral("I"), QString(), true), // a key whose type changes
            fieldRow(QStringLiteral("Neu"), QStringLiteral("D"))};
}

// The child process of the killed conversion: converts, and after the first
// part of the copy says so and waits to be killed.
int convertChild(const QStringList &args)
{
    TConnectionSettings s;
    s.DBLocal = args.at(0) == QLatin1String("sqlite");
    s.DBPfad = args.at(1);
    s.DBServerName = args.at(2);
    s.DBAlias = args.at(3);
    ScriptedDialogs dialogs;
    dialogs.messageAnswers = {mrYes, mrOk, mrYes};
    TDbConnection connection;
    TTableGenerator generator(connection, s);
    generator.TableName = QStringLiteral("Killed");
    generator.Rows = secondVersion();
    generator.OnProgress = [](qint64 position, qint64) {
        if (position == 0)
            return;
        fputs("copying\n", stdout);
        fflush(stdout);
        QThread::sleep(120);
    };
    generator.CreateDB();
    return 3; // never reached when killed
}
} // namespace

class TestTableGen : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void initTestCase()
    {
        QVERIFY(g_fixture->start());
    }

    // Which controls are data fields, where each keeps its name, type, size
    // and description, and the key mark.
    void rowsFromTheDesignSurface()
    {
        QWidget surface;
        auto *edit = new TcxTextEdit(&surface);
        edit->setText(QStringLiteral("Name"));
        edit->setMaxLength(40);
        edit->setHelpKeyword(QStringLiteral("Der Name"));
        auto *panel = new TPanel(&surface);
        auto *number = new TcxTextEdit(panel); // nested in a container
        number->setText(QStringLiteral("Nummer"));
        number->setTag(1);
        number->setMaxLength(8); // only text fields keep a size
        auto *lookup = new TcxDBPopupEdit(&surface);
        lookup->setDataField(QStringLiteral("Kunde"));
        lookup->setText(QStringLiteral("Anzeige"));
        lookup->setTag(7);
        auto *combo = new TcxComboBox(&surface);
        combo->setText(QStringLiteral("Anrede"));
        combo->setMaxLength(10);
        auto *memo = new TcxMemo(&surface);
        memo->setText(QStringLiteral(" Notiz \n"));
        memo->setTag(1); // the plain-text flag, not a type
        auto *check = new TcxDBCheckBox(&surface);
        check->setCaption(QStringLiteral("Aktiv?"));
        check->setDataField(QStringLiteral("Aktiv"));
        auto *unbound = new TcxDBCheckBox(&surface);
        unbound->setCaption(QStringLiteral("nur Anzeige"));
        auto *label = new TDBLabel(&surface);
        label->setDataField(QStringLiteral("NAME")); // the same field again
        auto *group = new TDBRadioGroup(&surface);
        group->setDataField(QStringLiteral("Status"));
        group->setTag(3);
        auto *odd = new TcxTextEdit(&surface);
        odd->setText(QStringLiteral("Seltsam"));
        odd->setTag(42);
        odd->setMaxLength(5);
        new TLabel(&surface); // no data field
        new TMaskBtn(&surface);

        const QVector<TFieldRow> rows = MaskFields::FieldRows(&surface, QStringLiteral("nummer"));
        QStringList got;
        for (const TFieldRow &r : rows)
            got << QStringList{r.FieldName, r.TypeCode, r.Size, r.Key, r.Description}.join(QLatin1Char('|'));
        QCOMPARE(got,
                 (QStringList{
                     "Name|A|40||Der Name", "Nummer|I|| INDEX|", "Kunde|+|||", "Anrede|A|10||", "Notiz|M|||",
                     "Aktiv|L|||", "Status|A|3||",
                     "Seltsam||5||", // an unknown type: the user picks one in the window
                 }));
    }

    void checksBeforeAnyChange_data() { engines(); }
    void checksBeforeAnyChange()
    {
        QFETCH(QString, engine);
        Run run(g_fixture->settings(engine));
        QVERIFY(!run.create(QString(), {fieldRow(QStringLiteral("A1"), QStringLiteral("I"))}));
        QCOMPARE(run.dialogs.messages.size(), 1);
        QCOMPARE(run.dialogs.messages.at(0).text,
                 QStringLiteral("Achtung Tabellenname Fehlt\n\rBitte geben Sie ein Tabellenname ein."));
        QCOMPARE(run.nameMissing, 1);

        struct Case
        {
            QVector<TFieldRow> rows;
            int row, column;
            QString text;
        };
        const QString reservedHere = engine == QLatin1String("sqlite") ? QStringLiteral("vacuum")
                                                                       : QStringLiteral("symmetric");
        const QList<Case> cases = {
            {{fieldRow(QStringLiteral("Ok"), QStringLiteral("I")), fieldRow(QStringLiteral("T"), QStringLiteral("A"))},
             2, 3, QStringLiteral("Im Zeichnen Feldtyp fehlt die Feldgröße. Funktion wird abgebrochen.")},
            {{fieldRow(QStringLiteral("T"), QString())}, 1, 2,
             QStringLiteral("Der Datenbank Feldtyp fehlt. Funktion wird abgebrochen.")},
            {{fieldRow(QString(), QStringLiteral("I"))}, 1, 1,
             QStringLiteral("Der Datenbank Feldname fehlt. Funktion wird abgebrochen.")},
            {{fieldRow(QStringLiteral("Ok"), QStringLiteral("I")), fieldRow(QStringLiteral("select"), QStringLiteral("I"))},
             2, 1,
             QStringLiteral("Der Feldname \"select\" ist ein Reservierter SQL Befehl, bitte geben Sie ein anderen "
                            "Feldname ein. Funktion wird abgebrochen.")},
            {{fieldRow(reservedHere, QStringLiteral("I"))}, 1, 1,
             QStringLiteral("Der Feldname \"%1\" ist ein Reservierter SQL Befehl, bitte geben Sie ein anderen "
                            "Feldname ein. Funktion wird abgebrochen.")
                 .arg(reservedHere)},
        };
        for (const Case &c : cases) {
            Run r(g_fixture->settings(engine));
            QVERIFY(!r.create(QStringLiteral("Checked"), c.rows));
            QCOMPARE(r.dialogs.messages.size(), 1);
            QCOMPARE(r.dialogs.messages.at(0).text, QStringLiteral("Fehler in Zeile: %1\n\r").arg(c.row) + c.text);
            QCOMPARE(r.rowErrors, (QList<QPair<int, int>>{{c.row, c.column}}));
            QVERIFY(!r.engine()->tableExists(QStringLiteral("Checked")));
        }
        // The other engine's reserved word is a plain name here.
        const QString otherWord = engine == QLatin1String("sqlite") ? QStringLiteral("symmetric") : QStringLiteral("vacuum");
        Run other(g_fixture->settings(engine));
        QVERIFY(other.create(QStringLiteral("Checked"), {fieldRow(otherWord, QStringLiteral("I"))}));
    }

    void dictionaryAndColumns_data() { engines(); }
    void dictionaryAndColumns()
    {
        QFETCH(QString, engine);
        Run run(g_fixture->settings(engine));
        TTableGenerator *generator = nullptr;
        run.create(QStringLiteral("Typen"), {}, &generator); // empty: makes a table with the internal fields only
        generator->Description = TTableSettings{QStringLiteral("/cad/"), QStringLiteral("Name"), QStringLiteral("Z1"),
                                                QStringLiteral("Name"), QStringLiteral("Name,Text255"),
                                                {QStringLiteral("Ort=Berlin")}, {QStringLiteral("Land=DE")}};
        generator->Rows = {
            fieldRow(QStringLiteral("Name"), QStringLiteral("A"), QStringLiteral("254"), true, QStringLiteral("Der Name")),
            fieldRow(QStringLiteral("Text255"), QStringLiteral("A"), QStringLiteral("255")),
            fieldRow(QStringLiteral("Gross"), QStringLiteral("I64")),
            fieldRow(QStringLiteral("Unbekannt"), QStringLiteral("X")),
            fieldRow(QStringLiteral("QXID"), QStringLiteral("I")),
            fieldRow(QStringLiteral("Klein"), QStringLiteral("S")),
            fieldRow(QStringLiteral("Preis"), QStringLiteral("$")),
        };
        run.dialogs.messages.clear();
        QVERIFY(generator->CreateDB());
        QCOMPARE(run.dialogs.messages.last().text, QStringLiteral("Datenbank Typen wurde erfolgreich erstellt"));

        const TDataDictionary &d = run.dictionary();
        QStringList names;
        for (const TFieldDef &f : d.Fields)
            names << f.Name;
        QCOMPARE(names, (QStringList{"Name", "Text255", "Gross", "QXID", "Klein", "Preis", "QXLock", "QXMisc",
                                     "QXState", "QXParent"}));
        const TFieldDef &name = d.Fields.at(0), &text255 = d.Fields.at(1), &qxid = d.Fields.at(3);
        QCOMPARE(name.Type, TFieldType::nxtShortString);
        QCOMPARE(name.Units, 254);
        QCOMPARE(text255.Type, TFieldType::nxtNullString);
        QCOMPARE(text255.Units, 256);
        QCOMPARE(d.Fields.at(2).Type, TFieldType::nxtInt64);
        QCOMPARE(qxid.Type, TFieldType::nxtInt32); // the user's definition stays
        QCOMPARE(qxid.Decimals, 10);
        QCOMPARE(d.Fields.last().Description, QStringLiteral("Quorbex Internes Feld"));
        QCOMPARE(d.KeyFields, (QStringList{"Name", "QXID"}));
        QCOMPARE(d.CaseInsensitiveKeys, QStringList{"Name"});

        TSqlEngine *e = run.engine();
        const QString t = QStringLiteral("\"Typen\"");
        QString error;
        QVERIFY(e->exec(QStringLiteral("INSERT INTO %1 (\"Name\", \"QXID\", \"Klein\", \"Preis\") VALUES (?, 1, 255, ?)").arg(t),
                        &error, {QString(254, QLatin1Char('x')), QStringLiteral("12.3456")}));
        QVERIFY(!e->exec(QStringLiteral("INSERT INTO %1 (\"Name\", \"QXID\") VALUES (?, 2)").arg(t), &error,
                         {QString(255, QLatin1Char('x'))}));
        QVERIFY(!e->exec(QStringLiteral("INSERT INTO %1 (\"Name\", \"QXID\", \"Klein\") VALUES ('b', 3, 256)").arg(t), &error));
        // Text keys ignore case, the rest of the key does not.
        execOk(e, QStringLiteral("INSERT INTO %1 (\"Name\", \"QXID\") VALUES ('Müller', 5)").arg(t));
        QVERIFY(!e->exec(QStringLiteral("INSERT INTO %1 (\"Name\", \"QXID\") VALUES ('MÜLLER', 5)").arg(t), &error)
                || engine == QLatin1String("sqlite")); // SQLite folds ASCII letters only
        QVERIFY(!e->exec(QStringLiteral("INSERT INTO %1 (\"Name\", \"QXID\") VALUES ('mÜller', 5)").arg(t), &error));
        execOk(e, QStringLiteral("INSERT INTO %1 (\"Name\", \"QXID\") VALUES ('Müller', 6)").arg(t));
        QCOMPARE(scalarOf(e, QStringLiteral("SELECT \"Preis\" FROM %1 WHERE \"QXID\" = 1").arg(t)).toString(),
                 QStringLiteral("12.3456"));

        const TTableSettings back = TableDescription::read(run.settings.DBPfad, QStringLiteral("Typen"));
        QCOMPARE(back.CadPath, QStringLiteral("/cad/"));
        QCOMPARE(back.Felder, QStringLiteral("Name,Text255"));
        QCOMPARE(back.AutoFill, QStringList{"Ort=Berlin"});
        QCOMPARE(back.Default, QStringList{"Land=DE"});
    }

    void autoIncAndRevision_data() { engines(); }
    void autoIncAndRevision()
    {
        QFETCH(QString, engine);
        Run run(g_fixture->settings(engine));
        QVERIFY(run.create(QStringLiteral("Zaehler"), {fieldRow(QStringLiteral("Nr"), QStringLiteral("+")),
                                                        fieldRow(QStringLiteral("Rev"), QStringLiteral("R")),
                                                        fieldRow(QStringLiteral("Text"), QStringLiteral("A"), QStringLiteral("5"))}));
        TSqlEngine *e = run.engine();
        execOk(e, QStringLiteral("INSERT INTO \"Zaehler\" (\"Text\") VALUES ('a')"));
        execOk(e, QStringLiteral("INSERT INTO \"Zaehler\" (\"Text\") VALUES ('b')"));
        QSqlQuery q(e->database());
        QVERIFY(q.exec(QStringLiteral("SELECT \"Nr\", \"QXID\", \"Rev\" FROM \"Zaehler\" ORDER BY \"Text\"")));
        QVERIFY(q.next());
        QCOMPARE(q.value(0).toInt(), 1);
        QCOMPARE(q.value(1).toInt(), 1);
        QVERIFY(q.next());
        QCOMPARE(q.value(0).toInt(), 2);
        QCOMPARE(q.value(1).toInt(), 2);
        execOk(e, QStringLiteral("UPDATE \"Zaehler\" SET \"Text\" = 'c' WHERE \"Text\" = 'a'"));
        execOk(e, QStringLiteral("UPDATE \"Zaehler\" SET \"Text\" = 'd' WHERE \"Text\" = 'c'"));
        QCOMPARE(scalarOf(e, QStringLiteral("SELECT \"Rev\" - (SELECT \"Rev\" FROM \"Zaehler\" WHERE \"Text\" = 'b') "
                                            "FROM \"Zaehler\" WHERE \"Text\" = 'd'"))
                     .toInt(),
                 2);
    }

    void keepOrDropData_data() { engines(); }
    void keepOrDropData()
    {
        QFETCH(QString, engine);
        {
            Run run(g_fixture->settings(engine));
            QVERIFY(run.create(QStringLiteral("Alt"), firstVersion()));
            for (const char *code : {"1", "2", "3"})
                execOk(run.engine(), QStringLiteral("INSERT INTO \"Alt\" (\"Name\", \"Code\") VALUES ('n%1', '%1')")
                                         .arg(QLatin1String(code)));
            execOk(run.engine(), QStringLiteral("DELETE FROM \"Alt\" WHERE \"QXID\" = 3"));
        }
        {
            // Yes: the data moves over, the counter goes on where it stood.
            Run run(g_fixture->settings(engine));
            run.dialogs.messageAnswers = {mrYes};
            QVERIFY(run.create(QStringLiteral("Alt"), secondVersion()));
            QCOMPARE(run.dialogs.messages.at(0).text,
                     QStringLiteral("Tabelle Alt enthält bereits Daten, sollen die Daten Übernommen werden?"));
            QCOMPARE(run.dialogs.messages.last().text, QStringLiteral("Daten wurden erfolgreich konvertiert."));
            QCOMPARE(run.converted, 1);
            QCOMPARE(run.progress.first(), qMakePair(qint64(0), qint64(2)));
            QCOMPARE(run.progress.last(), qMakePair(qint64(2), qint64(2)));
            TSqlEngine *e = run.engine();
            QVERIFY(!e->tableExists(TTableGenerator::tempTableName()));
            QCOMPARE(scalarOf(e, QStringLiteral("SELECT sum(\"Code\") FROM \"Alt\"")).toInt(), 3);
            QVERIFY(columnType(e, QStringLiteral("Alt"), QStringLiteral("Neu")).contains(QLatin1String("date"),
                                                                                       Qt::CaseInsensitive));
            execOk(e, QStringLiteral("INSERT INTO \"Alt\" (\"Name\", \"Code\") VALUES ('neu', 99)"));
            QCOMPARE(scalarOf(e, QStringLiteral("SELECT \"QXID\" FROM \"Alt\" WHERE \"Name\" = 'neu'")).toInt(), 4);
        }
        {
            // No: the old data is gone, without a further question.
            Run run(g_fixture->settings(engine));
            run.dialogs.messageAnswers = {mrNo};
            QVERIFY(run.create(QStringLiteral("Alt"), firstVersion()));
            QCOMPARE(run.dialogs.messages.size(), 2);
            QCOMPARE(run.count(QStringLiteral("Alt")), 0);
            QCOMPARE(run.converted, 0);
        }
    }

    void rowsThatDoNotConvert_data() { engines(); }
    void rowsThatDoNotConvert()
    {
        QFETCH(QString, engine);
        {
            Run run(g_fixture->settings(engine));
            QVERIFY(run.create(QStringLiteral("Fehler"), firstVersion()));
            for (const char *code : {"12", "abc", "7"})
                execOk(run.engine(), QStringLiteral("INSERT INTO \"Fehler\" (\"Name\", \"Code\") VALUES ('n%1', '%1')")
                                         .arg(QLatin1String(code)));
        }
        {
            // No to the rows that do not convert: nothing changes.
            Run run(g_fixture->settings(engine));
            run.dialogs.messageAnswers = {mrYes, mrOk, mrNo};
            QVERIFY(!run.create(QStringLiteral("Fehler"), secondVersion()));
            const QString question = run.dialogs.messages.at(2).text;
            QVERIFY2(question.startsWith(QLatin1String("FEHLER")), qPrintable(question));
            QVERIFY2(question.contains(QLatin1String("Name=nabc, Code=abc, QXID=2")), qPrintable(question));
            QVERIFY(!question.contains(QLatin1String("n12")));
            TSqlEngine *e = run.engine();
            QCOMPARE(run.count(QStringLiteral("Fehler")), 3);
            QVERIFY(!e->tableExists(TTableGenerator::tempTableName()));
            QVERIFY(columnType(e, QStringLiteral("Fehler"), QStringLiteral("Neu")).isEmpty());
        }
        {
            // Yes: the others move over.
            Run run(g_fixture->settings(engine));
            run.dialogs.messageAnswers = {mrYes, mrOk, mrYes};
            QVERIFY(run.create(QStringLiteral("Fehler"), secondVersion()));
            QCOMPARE(run.count(QStringLiteral("Fehler")), 2);
            QCOMPARE(scalarOf(run.engine(), QStringLiteral("SELECT sum(\"Code\") FROM \"Fehler\"")).toInt(), 19);
        }
    }

    void hostileNames_data() { engines(); }
    void hostileNames()
    {
        QFETCH(QString, engine);
        const QString hostile = QStringLiteral("x\"; DROP TABLE \"Opfer\";--");
        Run run(g_fixture->settings(engine));
        QVERIFY(run.create(QStringLiteral("Opfer"), {fieldRow(QStringLiteral("A"), QStringLiteral("I"))}));
        const QVector<TFieldRow> rows = {fieldRow(hostile, QStringLiteral("A"), QStringLiteral("10"), true),
                                         fieldRow(QStringLiteral("%1?'"), QStringLiteral("I"))};
        QVERIFY(run.create(QStringLiteral("Feind'\"%1"), rows));
        execOk(run.engine(), QStringLiteral("INSERT INTO ") + TSqlEngine::quoteIdentifier(QStringLiteral("Feind'\"%1"))
                                 + QStringLiteral(" (") + TSqlEngine::quoteIdentifier(hostile)
                                 + QStringLiteral(") VALUES ('v')"));
        // Kept through a conversion as well.
        run.dialogs.messageAnswers = {mrYes};
        QVERIFY(run.create(QStringLiteral("Feind'\"%1"), rows));
        TSqlEngine *e = run.engine();
        QVERIFY(e->tableExists(QStringLiteral("Opfer")));
        QCOMPARE(columnType(e, QStringLiteral("Feind'\"%1"), hostile).isEmpty(), false);
        QCOMPARE(run.count(QStringLiteral("Feind'\"%1")), 1);
    }

    void killedConversion_data() { engines(); }
    void killedConversion()
    {
        QFETCH(QString, engine);
        const TConnectionSettings s = g_fixture->settings(engine);
        const int rows = 60000;
        {
            Run run(s);
            QVERIFY(run.create(QStringLiteral("Killed"), firstVersion()));
            execOk(run.engine(),
                   engine == QLatin1String("sqlite")
                       ? QStringLiteral("WITH RECURSIVE c(x) AS (SELECT 1 UNION ALL SELECT x + 1 FROM c WHERE x < %1) "
                                        "INSERT INTO \"Killed\" (\"Name\", \"Code\") SELECT 'n' || x, x FROM c")
                             .arg(rows)
                       : QStringLiteral("INSERT INTO \"Killed\" (\"Name\", \"Code\") SELECT 'n' || g, g::text "
                                        "FROM generate_series(1, %1) g")
                             .arg(rows));
        }
        QProcess child;
        child.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        child.start(QCoreApplication::applicationFilePath(),
                    {QStringLiteral("--convert-child"), engine, s.DBPfad, s.DBServerName, s.DBAlias});
        QVERIFY(child.waitForStarted());
        QByteArray said;
        while (!said.contains("copying") && child.state() == QProcess::Running && child.waitForReadyRead(60000))
            said += child.readAllStandardOutput();
        QVERIFY2(said.contains("copying"), said.constData());
        child.kill();
        QVERIFY(child.waitForFinished());

        Run after(s);
        TSqlEngine *e = after.engine();
        QVERIFY(e);
        QCOMPARE(after.count(QStringLiteral("Killed")), qint64(rows));
        QVERIFY(!e->tableExists(TTableGenerator::tempTableName()));
        QVERIFY(columnType(e, QStringLiteral("Killed"), QStringLiteral("Neu")).isEmpty());
        QCOMPARE(scalarOf(e, QStringLiteral("SELECT max(\"QXID\") FROM \"Killed\"")).toInt(), rows);
    }
};

int main(int argc, char *argv[])
{
    QApplication app(argc, argv);
    const QStringList args = QCoreApplication::arguments();
    if (args.size() == 6 && args.at(1) == QLatin1String("--convert-child"))
        return convertChild(args.mid(2));
    DbFixture fixture;
    g_fixture = &fixture;
    TestTableGen test;
    return QTest::qExec(&test, argc, argv);
}

#include "test_tablegen.moc"
