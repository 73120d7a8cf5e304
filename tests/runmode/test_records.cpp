// The record layer of run mode on both engines: a new record with its
// counter number and macros, required fields, types, saving, two
// connections changing one record, deleting, and the counter under load.
#include <QSet>
#include <QTest>
#include <QtConcurrent>

#include "Components.h"
#include "Edits.h"
#include "MaskDocument.h"
#include "FieldRules.h"
#include "MaskTable.h"
#include "TestSupport.h"
#include "helper_db.h"

namespace {
DbFixture *g_fixture = nullptr;

TcxTextEdit *addEdit(TMaskDocument *mask, const QString &field, bool required = false, const QString &desc = {})
{
    auto *edit = new TcxTextEdit(mask);
    Components::setOwner(edit, mask);
    edit->setText(field);
    edit->setTabStop(required);
    edit->setHelpKeyword(desc);
    return edit;
}
} // namespace

class TestRecords : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void initTestCase()
    {
        g_fixture = new DbFixture;
        QVERIFY(g_fixture->start());
    }
    void cleanupTestCase() { delete g_fixture; }
    void newSaveChangeDelete_data();
    void newSaveChangeDelete();
    void counterNeverGivesANumberTwice();
    void rulesAndEditMasks();
};

void TestRecords::newSaveChangeDelete_data()
{
    QTest::addColumn<QString>("engine");
    QTest::newRow("sqlite") << QStringLiteral("sqlite");
    QTest::newRow("postgres") << QStringLiteral("postgres");
}

void TestRecords::newSaveChangeDelete()
{
    QFETCH(QString, engine);
    const TConnectionSettings settings = g_fixture->settings(engine);
    {
        ScriptedDialogs dialogs;
        createTable(settings, dialogs, QStringLiteral("Kunden"),
                    {fieldRow(QStringLiteral("Nummer"), QStringLiteral("A"), QStringLiteral("10"), true),
                     fieldRow(QStringLiteral("Name"), QStringLiteral("A"), QStringLiteral("20")),
                     fieldRow(QStringLiteral("Datum"), QStringLiteral("D")),
                     fieldRow(QStringLiteral("Betrag"), QStringLiteral("$")),
                     fieldRow(QStringLiteral("Bearbeiter"), QStringLiteral("A"), QStringLiteral("30"))});
    }
    QVERIFY(QDir().mkpath(settings.DBPfad));
    QVERIFY(writeFileBytes(settings.DBPfad + QStringLiteral("KUNDEN.NUM"), "0041\r\n"));

    TMaskDocument mask;
    addEdit(&mask, QStringLiteral("Nummer"));
    addEdit(&mask, QStringLiteral("Name"), true, QStringLiteral("Kundenname"));
    addEdit(&mask, QStringLiteral("Datum"));
    addEdit(&mask, QStringLiteral("Betrag"));
    addEdit(&mask, QStringLiteral("Bearbeiter"));
    TTableSettings ts;
    ts.Index = QStringLiteral("Nummer");
    ts.Dateizaehler = QStringLiteral("KUNDEN.NUM");
    ts.Felder = QStringLiteral("Nummer");
    ts.AutoFill = {QStringLiteral("Datum=%DATE"), QStringLiteral("Bearbeiter=%USER/%JJ")};
    ts.Default = {QStringLiteral("Betrag=12,5")};

    TMaskTable table;
    table.Macros.UserName = QStringLiteral("anna");
    table.Macros.Today = QDate(2024, 3, 7);
    QString why;
    QVERIFY2(table.open(settings, QStringLiteral("Kunden"), ts, TMaskTable::FieldsOf(&mask), &why), qPrintable(why));
    QCOMPARE(table.count(), 0);

    TRecord record;
    QVERIFY(table.newRecord(record, &why));
    QCOMPARE(table.text(record, QStringLiteral("nummer")), QStringLiteral("0042"));
    QCOMPARE(table.text(record, QStringLiteral("Datum")), QStringLiteral("07.03.2024"));
    QCOMPARE(table.text(record, QStringLiteral("Bearbeiter")), QStringLiteral("anna/24"));
    QCOMPARE(table.text(record, QStringLiteral("Betrag")), QStringLiteral("12,50"));
    QCOMPARE(readFileBytes(settings.DBPfad + QStringLiteral("KUNDEN.NUM")).trimmed(), QByteArray("0042"));

    // Types and lengths are checked with the field's description.
    QVERIFY(!table.setText(record, QStringLiteral("Datum"), QStringLiteral("31.02.2024"), &why));
    QVERIFY(why.contains(QStringLiteral("„Datum“")));
    QVERIFY(!table.setText(record, QStringLiteral("Name"), QString(21, QLatin1Char('x')), &why));
    QVERIFY(why.contains(QStringLiteral("20 Zeichen")));

    QVERIFY(table.setText(record, QStringLiteral("Name"), QStringLiteral("Müller"), &why));
    QVERIFY(table.setText(record, QStringLiteral("Betrag"), QString(), &why));
    QCOMPARE(table.insert(record, &why), TMaskTable::TSaveResult::Saved);
    QVERIFY(record.Id > 0);
    QCOMPARE(table.count(), 1);
    // An emptied field with a default gets it back on saving.
    QCOMPARE(table.text(record, QStringLiteral("Betrag")), QStringLiteral("12,50"));

    // A second program reads and changes the same record first.
    TMaskTable other;
    QVERIFY(other.open(settings, QStringLiteral("Kunden"), ts, TMaskTable::FieldsOf(&mask), &why));
    TRecord mine, theirs;
    QVERIFY(table.fetch(0, mine));
    QVERIFY(other.fetch(0, theirs));
    TRecord theirsChanged = theirs;
    QVERIFY(other.setText(theirsChanged, QStringLiteral("Name"), QStringLiteral("Meier"), &why));
    QCOMPARE(other.update(theirs, theirsChanged, &why), TMaskTable::TSaveResult::Saved);
    TRecord mineChanged = mine;
    QVERIFY(table.setText(mineChanged, QStringLiteral("Name"), QStringLiteral("Schulz"), &why));
    QCOMPARE(table.update(mine, mineChanged, &why), TMaskTable::TSaveResult::Conflict);
    QVERIFY(why.contains(QStringLiteral("anderen Benutzer geändert")));
    QVERIFY(table.fetch(0, mine));
    QCOMPARE(table.text(mine, QStringLiteral("Name")), QStringLiteral("Meier"));
    // Read again, the change goes through.
    mineChanged = mine;
    QVERIFY(table.setText(mineChanged, QStringLiteral("Name"), QStringLiteral("Schulz"), &why));
    QCOMPARE(table.update(mine, mineChanged, &why), TMaskTable::TSaveResult::Saved);

    // A second record sorts by the index field; the search finds it.
    TRecord second;
    QVERIFY(table.newRecord(second, &why));
    QVERIFY(table.setText(second, QStringLiteral("Nummer"), QStringLiteral("0001"), &why));
    QVERIFY(table.setText(second, QStringLiteral("Name"), QStringLiteral("Adam"), &why));
    QCOMPARE(table.insert(second, &why), TMaskTable::TSaveResult::Saved);
    QCOMPARE(table.rowOf(second.Id), 0);
    QCOMPARE(table.find(QStringLiteral("0042")), 1);

    // Deleted by the other program: a change is refused, not written back.
    QVERIFY(other.remove(mine.Id, &why));
    QCOMPARE(table.update(mine, mineChanged, &why), TMaskTable::TSaveResult::Conflict);
    QVERIFY(table.refresh());
    QCOMPARE(table.count(), 1);
}

void TestRecords::counterNeverGivesANumberTwice()
{
    QTemporaryDir dir;
    const QString file = dir.filePath(QStringLiteral("sub/ZAEHLER.NUM"));
    QList<int> runs(4);
    const QList<QStringList> drawn = QtConcurrent::blockingMapped(runs, [&file](int) {
        QStringList numbers;
        for (int i = 0; i < 25; ++i) {
            QString n, error;
            if (TValueMacros::nextNumber(file, &n, &error))
                numbers << n;
        }
        return numbers;
    });
    QSet<QString> all;
    for (const QStringList &numbers : drawn)
        for (const QString &n : numbers)
            all.insert(n);
    QCOMPARE(all.size(), 100);
    QVERIFY(all.contains(QStringLiteral("100")));
    // "%?NUM" asks first; No leaves the value empty and draws nothing.
    TValueMacros macros;
    macros.CounterFolder = dir.path() + QStringLiteral("/sub/");
    QStringList asked;
    macros.AskForNumber = [&asked](const QString &f) { asked << f; return false; };
    QString value, error;
    QVERIFY(macros.expand(QStringLiteral("R-%?NUM\"ZAEHLER.NUM\""), &value, &error));
    QCOMPARE(value, QStringLiteral("R-"));
    QCOMPARE(asked, QStringList{file});
    QVERIFY(macros.expand(QStringLiteral("R-%NUM\"ZAEHLER.NUM\""), &value, &error));
    QCOMPARE(value, QStringLiteral("R-101"));
}

void TestRecords::rulesAndEditMasks()
{
    using FieldRules::ruleMatches;
    // Numbers compare as numbers, dates as dates, text without case; wildcards.
    QVERIFY(ruleMatches(QStringLiteral(">9"), QStringLiteral("10,5")));
    QVERIFY(!ruleMatches(QStringLiteral(">9"), QStringLiteral("")));
    QVERIFY(ruleMatches(QStringLiteral("<01.02.2024"), QStringLiteral("31.01.2024")));
    QVERIFY(ruleMatches(QStringLiteral("<>offen"), QStringLiteral("Erledigt")));
    QVERIFY(!ruleMatches(QStringLiteral("M*er"), QStringLiteral("Müllers")));
    QVERIFY(ruleMatches(QStringLiteral("M*er"), QStringLiteral("Maier")));
    QVERIFY(ruleMatches(QStringLiteral("="), QString()));
    QVERIFY(!ruleMatches(QString(), QString()));
    // Required and optional digits swap places; the value drops literals when told to.
    QCOMPARE(FieldRules::inputMask(QStringLiteral("!99/99/0000;1;_")), QStringLiteral("00.00.9999;_"));
    QCOMPARE(FieldRules::maskedValue(QStringLiteral("!99/99/0000;1;_"), QStringLiteral("  .  .    ")), QString());
    QCOMPARE(FieldRules::maskedValue(QStringLiteral("!99/99/0000;1;_"), QStringLiteral("..")), QString());
    QCOMPARE(FieldRules::maskedValue(QStringLiteral("000-00;0;_"), QStringLiteral("123-45")), QStringLiteral("12345"));
}

QTEST_MAIN(TestRecords)
#include "test_records.moc"
