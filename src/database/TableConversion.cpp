// Step 9 of the table generator: the old table's rows into the new table,
// inside the transaction that renamed the old table and created the new one.
#include "TableGenerator.h"

#include "DbConnection.h"
#include "PostgresEngine.h"
#include "SqlEngine.h"
#include "UserDialogs.h"
#include "WaitCursor.h"

#include <QCoreApplication>
#include <QCursor>
#include <QGuiApplication>
#include <QSqlError>
#include <QSqlQuery>

namespace {
// Rows named in the question; the rest are counted.
constexpr int kListedRows = 20;

QString q(const QString &name)
{
    return TSqlEngine::quoteIdentifier(name);
}
} // namespace

bool TTableGenerator::convert(TSqlEngine &engine, const QHash<QString, qint64> &autoInc)
{
    QString error;
    const QString source = tempTableName();
    if (auto *pg = dynamic_cast<TPostgresEngine *>(&engine))
        pg->setConversionTarget(TableName);
    if (!engine.prepareConversion(&error))
        return fail(engine, error);
    const QVector<TColumnInfo> columns = engine.columns(source, &error);
    if (columns.isEmpty())
        return fail(engine, error);

    // Each field that the old table has too, converted to its new type.
    TCopyPlan plan;
    QStringList validity;
    QStringList keyNames;
    for (const TFieldDef &field : m_dictionary.Fields) {
        const auto column = std::find_if(columns.begin(), columns.end(), [&](const TColumnInfo &c) {
            return c.Name.compare(field.Name, Qt::CaseInsensitive) == 0;
        });
        if (column == columns.end())
            continue;
        QString valid;
        const bool isKey = m_dictionary.KeyFields.contains(field.Name, Qt::CaseInsensitive);
        plan.Columns << q(field.Name);
        plan.Expressions << engine.convertExpression(*column, field, isKey, &valid);
        if (!valid.isEmpty())
            validity << valid;
        if (isKey) {
            plan.KeyColumns << q(column->Name);
            keyNames << column->Name;
        }
    }
    plan.Validity = validity.join(QStringLiteral(" AND "));
    if (plan.KeyColumns.isEmpty())
        for (const TColumnInfo &c : columns) {
            plan.KeyColumns << q(c.Name); // no key: the whole row names it
            keyNames << c.Name;
        }

    // Rows that would not convert: the user decides.
    if (!plan.Validity.isEmpty()) {
        QSqlQuery failing(engine.database());
        failing.setForwardOnly(true);
        if (!failing.exec(QStringLiteral("SELECT ") + plan.KeyColumns.join(QStringLiteral(", ")) + QStringLiteral(" FROM ")
                          + q(source) + QStringLiteral(" WHERE (") + plan.Validity + QStringLiteral(") IS NOT TRUE")))
            return fail(engine, failing.lastError().text().trimmed());
        QStringList lines;
        int count = 0;
        while (failing.next()) {
            if (++count > kListedRows)
                continue;
            QStringList values;
            for (int i = 0; i < plan.KeyColumns.size(); ++i)
                values << keyNames.at(i) + QLatin1Char('=') + failing.value(i).toString();
            lines << values.join(QStringLiteral(", "));
        }
        if (count > 0) {
            if (count > kListedRows)
                lines << QCoreApplication::translate("TTableGenerator", "… und %1 weitere").arg(count - kListedRows);
            const QString text = QCoreApplication::translate(
                                     "TTableGenerator",
                                     "FEHLER\n\rDiese Datensätze passen nicht in die neuen Feldtypen und können "
                                     "nicht übernommen werden:\n\r%1\n\rSollen die übrigen Daten ohne sie "
                                     "übernommen werden? Bei Nein bleibt die Tabelle unverändert.")
                                     .arg(lines.join(QStringLiteral("\n\r")));
            if (UserDialogs::instance().messageDlg(Parent, text, mtWarning, mbYes | mbNo) != mrYes) {
                engine.rollback();
                return false;
            }
        }
    }

    // The copy, in parts, with the gauge.
    const qint64 total = engine.recordCount(source, &error);
    if (total < 0)
        return fail(engine, error);
    plan.SourceRows = total;
    if (OnProgress)
        OnProgress(0, total);
    bool copied = false;
    {
        TWaitCursor wait;
        copied = engine.copyRows(source, TableName, plan,
                                 [&](qint64 done) {
                                     if (OnProgress)
                                         OnProgress(done, total);
                                     QCoreApplication::processEvents();
                                 },
                                 &error);
    }
    if (!copied)
        return fail(engine,
                    QCoreApplication::translate("TTableGenerator", "Die Daten konnten nicht übernommen werden: ")
                        + error);

    // The counters go on where the old table's stood, and never below a
    // number the table already holds.
    for (const TFieldDef &field : m_dictionary.Fields) {
        if (field.Type != TFieldType::nxtAutoInc)
            continue;
        QSqlQuery max(engine.database());
        if (!max.exec(QStringLiteral("SELECT max(") + q(field.Name) + QStringLiteral(") FROM ") + q(TableName))
            || !max.next())
            return fail(engine, max.lastError().text().trimmed());
        const qint64 value = qMax(autoInc.value(field.Name.toLower()), max.value(0).toLongLong());
        if (!engine.setAutoIncValue(TableName, field.Name, value, &error))
            return fail(engine, error);
    }
    if (!engine.dropTable(source, &error) || !engine.commit(&error))
        return fail(engine, error);
    return true;
}
