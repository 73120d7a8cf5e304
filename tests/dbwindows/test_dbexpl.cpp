// The table explorer: filled from a mask, edited, and made into a table on
// SQLite and on the test PostgreSQL server.
#include <QApplication>
#include <QLineEdit>
#include <QProgressBar>
#include <QPushButton>

#include "../database/helper_db.h"
#include "Dbexpl.h"
#include "MaskFields.h"
#include "TestSupport.h"
#include "helper_dbwindows.h"

using namespace DbWindowsTest;

namespace {
DbFixture *g_fixture = nullptr;
}

class TestDbexpl : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void initTestCase() { QVERIFY(g_fixture->start()); }

    void fillEditAndCreateLocally()
    {
        ScriptedDialogs dialogs;
        const TConnectionSettings settings = g_fixture->settings(QStringLiteral("sqlite"));
        TMaskDocument mask;
        loadMask(mask, kundenMask(), settings.DBPfad);
        TDbexpl w;
        w.connectionSettings = [settings] { return settings; };
        w.FillFromMask(&mask);
        showAndWait(&w);
        auto *grid = child<QTableWidget>(&w, "Grid");
        QCOMPARE(child<QLineEdit>(&w, "TableName")->text(), QStringLiteral("Kunden"));
        QCOMPARE(w.Rows().size(), MaskFields::FieldRows(&mask, QString()).size());
        QCOMPARE(grid->item(0, 0)->text(), QStringLiteral("Kundennummer"));
        QCOMPARE(grid->item(0, 1)->text(), QStringLiteral("I"));

        // The type menu: the memo type is refused, another code is taken.
        auto chooseType = [&](int row, const QString &code) {
            rightClick(grid->viewport(), cellCenter(grid, row, 1));
            chooseMenuItem(child<QMenu>(&w, "TypeMenu"), code + QLatin1Char('\t'));
        };
        chooseType(1, QStringLiteral("M"));
        QCOMPARE(dialogs.messages.last().text, QStringLiteral("Bitte ändern Sie das Feld in der Maske ab."));
        QCOMPARE(grid->item(1, 1)->text(), QStringLiteral("A"));
        chooseType(1, QStringLiteral("I64"));
        QCOMPARE(grid->item(1, 1)->text(), QStringLiteral("I64"));

        // A row error selects the offending cell; a missing name focuses the name.
        typeIntoCell(grid, 2, 1, QString());
        QTest::mouseClick(grid->viewport(), Qt::LeftButton, {}, cellCenter(grid, 0, 4));
        QTest::mouseClick(child<QPushButton>(&w, "CreateDB"), Qt::LeftButton);
        QVERIFY(dialogs.messages.last().text.startsWith(QStringLiteral("Fehler in Zeile: 3\n\r")));
        QCOMPARE(grid->currentRow(), 2);
        QCOMPARE(grid->currentColumn(), 1);
        typeIntoCell(grid, 2, 1, QStringLiteral("A"));
        child<QLineEdit>(&w, "TableName")->clear();
        QTest::mouseClick(child<QPushButton>(&w, "CreateDB"), Qt::LeftButton);
        QCOMPARE(QApplication::focusWidget(), child<QLineEdit>(&w, "TableName"));

        // Edited cells reach the table.
        QTest::keyClicks(child<QLineEdit>(&w, "TableName"), QStringLiteral("KundenNeu"));
        typeIntoCell(grid, 0, 0, QStringLiteral("KdNr"));
        typeIntoCell(grid, 0, 3, TTableGenerator::indexMark());
        QTest::mouseClick(child<QPushButton>(&w, "CreateDB"), Qt::LeftButton);
        QCOMPARE(dialogs.messages.last().text, QStringLiteral("Datenbank KundenNeu wurde erfolgreich erstellt"));
        TSqlEngine *engine = w.connection().engine();
        QVERIFY(engine->tableExists(QStringLiteral("KundenNeu")));
        QString error;
        QStringList names;
        for (const TColumnInfo &column : engine->columns(QStringLiteral("KundenNeu"), &error))
            names << column.Name;
        QVERIFY(names.contains(QStringLiteral("KdNr")) && !names.contains(QStringLiteral("Kundennummer")));
        QVERIFY(QFile::exists(settings.DBPfad + QStringLiteral("KundenNeu.ini")));
        QVERIFY(w.isVisible()); // only a conversion closes the window
    }

    // The data question on the server: No drops the data, Yes converts it,
    // the gauge follows and the window closes.
    void dataQuestionOnTheServer()
    {
        ScriptedDialogs dialogs;
        const TConnectionSettings settings = g_fixture->settings(QStringLiteral("postgres"));
        TMaskDocument mask;
        loadMask(mask, kundenMask(), settings.DBPfad);
        TDbexpl w;
        w.connectionSettings = [settings] { return settings; };
        w.FillFromMask(&mask);
        showAndWait(&w);
        auto *create = child<QPushButton>(&w, "CreateDB");
        auto addRecord = [&] {
            execOk(w.connection().engine(),
                   QStringLiteral("INSERT INTO \"Kunden\" (\"Kundennummer\", \"Firma\") VALUES (7, 'Tolvane')"));
        };
        dialogs.messageAnswers = {mrOk};
        QTest::mouseClick(create, Qt::LeftButton);
        QCOMPARE(w.connection().engine()->engineName(), QStringLiteral("PostgreSQL"));
        addRecord();
        dialogs.messageAnswers = {mrNo, mrOk};
        QTest::mouseClick(create, Qt::LeftButton);
        QVERIFY(dialogs.messages.at(dialogs.messages.size() - 2).text.startsWith(QStringLiteral("Tabelle Kunden enthält")));
        QCOMPARE(scalarOf(w.connection().engine(), QStringLiteral("SELECT COUNT(*) FROM \"Kunden\"")).toInt(), 0);
        QVERIFY(w.isVisible());

        addRecord();
        dialogs.messageAnswers = {mrYes, mrOk, mrOk};
        QTest::mouseClick(create, Qt::LeftButton);
        QCOMPARE(dialogs.messages.last().text, QStringLiteral("Daten wurden erfolgreich konvertiert."));
        QCOMPARE(scalarOf(w.connection().engine(), QStringLiteral("SELECT \"Firma\" FROM \"Kunden\"")).toString(),
                 QStringLiteral("Tolvane"));
        auto *gauge = child<QProgressBar>(&w, "Gauge");
        QCOMPARE(gauge->value(), 1);
        QCOMPARE(gauge->maximum(), 1);
        QVERIFY(!w.isVisible());
        QCOMPARE(w.result(), int(QDialog::Accepted));
        QCOMPARE(dialogs.unexpected, 0);
    }
};

int main(int argc, char *argv[])
{
    QApplication app(argc, argv);
    DbFixture fixture;
    g_fixture = &fixture;
    TestDbexpl test;
    return QTest::qExec(&test, argc, argv);
}

#include "test_dbexpl.moc"
