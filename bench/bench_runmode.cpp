// Run mode on a big table: 100,000 records in SQLite. How long it takes to
// open the mask's table, to show the next record (through the navigator, with
// the grid following) and to fill one screen of the grid after a jump,
// against the engine's own time (a plain QSqlQuery) to fetch the same rows.
// Target: each step well under a frame (16 ms), and within a small multiple
// of the plain fetch; the grid reads only the rows on the screen.
#include <QApplication>
#include <QElapsedTimer>
#include <QRandomGenerator>
#include <QScrollBar>
#include <QSqlQuery>
#include <QTemporaryDir>
#include <QVBoxLayout>
#include <cstdio>

#include "Components.h"
#include "ConnectionSettings.h"
#include "DbConnection.h"
#include "Edits.h"
#include "Grids.h"
#include "MaskDocument.h"
#include "RunSession.h"
#include "SqlEngine.h"
#include "TableGenerator.h"
#include "UserDialogs.h"
#include "bench_tables.h"

using namespace BenchTables;

namespace {

int kRecords = 100000; // a first argument sets another count
const int kSteps = 2000;
const int kJumps = 200;

bool makeTable(const TConnectionSettings &settings)
{
    TDbConnection connection;
    TTableGenerator generator(connection, settings);
    generator.TableName = QStringLiteral("Kunde");
    generator.Rows = {row("Nummer", "A", "10", true), row("Name", "A", "30"), row("Ort", "A", "20"),
                      row("Betrag", "$")};
    if (!generator.CreateDB())
        return false;
    QString error;
    const bool ok = connection.engine()->exec(
        QStringLiteral("WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < %1) "
                       "INSERT INTO \"Kunde\" (\"Nummer\", \"Name\", \"Ort\", \"Betrag\") "
                       "SELECT printf('K%06d', i), 'Kunde ' || i, 'Ort ' || (i % 97), i * 1.5 FROM n")
            .arg(kRecords),
        &error);
    if (!ok)
        fprintf(stderr, "fill: %s\n", qPrintable(error));
    return ok;
}

TcxTextEdit *addEdit(TMaskDocument *mask, const QString &field, int top)
{
    auto *edit = new TcxTextEdit(mask);
    Components::setOwner(edit, mask);
    edit->setText(field);
    edit->setGeometry(10, top, 150, 21);
    return edit;
}

double ms(qint64 ns)
{
    return double(ns) / 1e6;
}

} // namespace

int main(int argc, char *argv[])
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    if (argc > 1 && QByteArray(argv[1]).toInt() > 1000)
        kRecords = QByteArray(argv[1]).toInt();
    TAnswerYes confirm(true);
    QTemporaryDir dir;
    TConnectionSettings settings;
    settings.DBLocal = true;
    settings.DBPfad = dir.filePath(QStringLiteral("db/"));
    if (!makeTable(settings))
        return 1;

    QWidget window;
    window.resize(800, 600);
    auto *layout = new QVBoxLayout(&window);
    auto *mask = new TMaskDocument(&window);
    layout->addWidget(mask);
    TcxTextEdit *name = nullptr;
    int top = 10;
    for (const char *field : {"Nummer", "Name", "Ort", "Betrag"}) {
        TcxTextEdit *edit = addEdit(mask, QLatin1String(field), top);
        top += 30;
        if (QLatin1String(field) == QLatin1String("Name"))
            name = edit;
    }
    auto *grid = new TDBGrid(mask);
    Components::setOwner(grid, mask);
    grid->setObjectName(QStringLiteral("DBGrid1"));
    grid->setGeometry(200, 10, 560, 500);
    grid->setColumns({QStringLiteral("Nummer=80"), QStringLiteral("Name=150"), QStringLiteral("Ort=120"),
                      QStringLiteral("Betrag=80")});
    mask->setTabelle(QStringLiteral("Kunde"));
    TTableSettings ts;
    ts.Index = QStringLiteral("Nummer");
    mask->setTableSettings(ts);
    window.show();
    QApplication::processEvents();

    auto *session = new TRunSession(mask, &window);
    QElapsedTimer timer;
    timer.start();
    if (!session->start(settings)) {
        fprintf(stderr, "run mode: %s\n", qPrintable(session->statusText()));
        return 1;
    }
    const qint64 open = timer.nsecsElapsed();
    timer.restart();
    session->table().refresh();
    const qint64 list = timer.nsecsElapsed();
    timer.restart();
    {
        QSqlQuery q(session->table().engine()->database());
        q.setForwardOnly(true);
        q.exec(QStringLiteral("SELECT \"QXID\" FROM \"Kunde\" ORDER BY \"Nummer\", \"QXID\""));
        while (q.next()) {
        }
    }
    const qint64 plainList = timer.nsecsElapsed();
    const int screenRows = grid->rowAt(grid->viewport()->height() - 1) - grid->rowAt(0) + 1;

    // Record by record, as the Next key does it.
    timer.restart();
    for (int i = 0; i < kSteps; ++i)
        session->Next();
    const qint64 next = timer.nsecsElapsed() / kSteps;
    QSqlDatabase db = session->table().engine()->database();
    // The engine's own fastest way to the same records: by row id, prepared once.
    int found = 0;
    timer.restart();
    {
        QSqlQuery q(db);
        q.prepare(QStringLiteral("SELECT * FROM \"Kunde\" WHERE rowid = ?"));
        for (int i = 0; i < kSteps; ++i) {
            q.addBindValue(i + 2);
            if (q.exec() && q.next())
                ++found;
        }
    }
    const qint64 plainNext = timer.nsecsElapsed() / kSteps;

    // Jumps through the grid: each fills a screen it has not shown yet.
    QVector<int> targets;
    for (int i = 0; i < kJumps; ++i)
        targets << int(QRandomGenerator::global()->bounded(kRecords - screenRows));
    timer.restart();
    for (int target : std::as_const(targets))
        grid->verticalScrollBar()->setValue(target);
    const qint64 screen = timer.nsecsElapsed() / kJumps;
    timer.restart();
    for (int target : std::as_const(targets)) {
        QSqlQuery q(db);
        q.setForwardOnly(true);
        q.prepare(QStringLiteral("SELECT \"Nummer\", \"Name\", \"Ort\", \"Betrag\" FROM \"Kunde\" "
                                 "WHERE rowid BETWEEN ? AND ?"));
        q.addBindValue(target + 1);
        q.addBindValue(target + screenRows);
        q.exec();
        while (q.next())
            ++found;
    }
    const qint64 plainScreen = timer.nsecsElapsed() / kJumps;
    // What a plain table view over the query would do: LIMIT and OFFSET.
    timer.restart();
    for (int target : std::as_const(targets)) {
        QSqlQuery q(db);
        q.setForwardOnly(true);
        q.exec(QStringLiteral("SELECT \"Nummer\", \"Name\", \"Ort\", \"Betrag\" FROM \"Kunde\" "
                              "ORDER BY \"Nummer\", \"QXID\" LIMIT %1 OFFSET %2")
                   .arg(screenRows)
                   .arg(target));
        while (q.next())
            ++found;
    }
    const qint64 offsetScreen = timer.nsecsElapsed() / kJumps;
    const bool filled = grid->item(targets.last(), 0) && !grid->item(targets.last(), 0)->text().isEmpty()
        && found == kSteps + 2 * kJumps * screenRows;

    // Saving a changed record (the order stays, so the list is not read again).
    const int kSaves = 50;
    timer.restart();
    for (int i = 0; i < kSaves; ++i) {
        name->setText(QStringLiteral("Geändert %1").arg(i));
        Q_EMIT name->textEdited(name->text()); // as typing does
        if (!session->Post())
            return 1;
    }
    const qint64 save = timer.nsecsElapsed() / kSaves;
    timer.restart();
    for (int i = 0; i < kSaves; ++i) {
        db.transaction();
        QSqlQuery q(db);
        q.prepare(QStringLiteral("UPDATE \"Kunde\" SET \"Name\" = ? WHERE rowid = ?"));
        q.addBindValue(QStringLiteral("Anders %1").arg(i));
        q.addBindValue(i + 10);
        q.exec();
        db.commit();
    }
    const qint64 plainSave = timer.nsecsElapsed() / kSaves;

    printf("run mode, SQLite, %d records\n", kRecords);
    printf("  open the table and show the first record  %8.1f ms\n", ms(open));
    printf("  of it the ordered list of record numbers  %8.1f ms   plain ordered query       %8.1f ms\n", ms(list),
           ms(plainList));
    printf("  next record (navigator, grid follows)     %8.3f ms   plain fetch of the record %8.3f ms  (x%.1f)\n",
           ms(next), ms(plainNext), double(next) / double(qMax<qint64>(plainNext, 1)));
    printf("  one screen of the grid (%2d rows) on a jump %8.3f ms   plain fetch of the rows   %8.3f ms  (x%.1f)\n",
           screenRows, ms(screen), ms(plainScreen), double(screen) / double(qMax<qint64>(plainScreen, 1)));
    printf("  save a changed record                     %8.3f ms   plain update and commit   %8.3f ms  (x%.1f)\n",
           ms(save), ms(plainSave), double(save) / double(qMax<qint64>(plainSave, 1)));
    printf("  the same screen through LIMIT/OFFSET (a plain query view)              %8.3f ms\n", ms(offsetScreen));
    printf("  rows checked: %s\n", filled ? "all found, the grid filled where it was shown" : "MISSING");
    delete session;
    return filled ? 0 : 1;
}
