#include "SqliteEngine.h"

#include <QCoreApplication>
#include <QRegularExpression>
#include <QSqlError>
#include <QSqlQuery>
#include <limits>
#include <sqlite3.h>

namespace {
QString q(const QString &name)
{
    return TSqlEngine::quoteIdentifier(name);
}

QString lit(const QString &text)
{
    return TSqlEngine::quoteLiteral(text);
}

// Texts that convert to numbers, as far as a plain expression can tell.
QString isIntegerText(const QString &s)
{
    return QStringLiteral("(length(%1) BETWEEN 1 AND 19 AND ltrim(%1, '+-') <> '' AND ltrim(%1, '+-') NOT GLOB "
                          "'*[^0-9]*' AND length(%1) - length(ltrim(%1, '+-')) <= 1)")
        .arg(s);
}

QString isNumberText(const QString &s)
{
    return QStringLiteral("(%1 GLOB '*[0-9]*' AND %1 NOT GLOB '*[^0-9.eE+-]*')").arg(s);
}

const char *const kTrueWords = "'1', 'true', 't', 'ja', 'j', 'yes', 'y'";
const char *const kFalseWords = "'0', 'false', 'f', 'nein', 'n', 'no'";

struct IntRange
{
    qint64 lo;
    qint64 hi;
};

IntRange rangeOf(TFieldType type)
{
    switch (type) {
    case TFieldType::nxtByte:
        return {0, 255};
    case TFieldType::nxtInt64:
        return {std::numeric_limits<qint64>::min(), std::numeric_limits<qint64>::max()};
    default:
        return {std::numeric_limits<qint32>::min(), std::numeric_limits<qint32>::max()};
    }
}
// A text that fits as it is: a longer bounded text or an unbounded one.
bool widens(const TColumnInfo &from, const TFieldDef &to)
{
    static const QRegularExpression bounded(QStringLiteral("^VARCHAR\\((\\d+)\\)$"),
                                            QRegularExpression::CaseInsensitiveOption);
    const QRegularExpressionMatch m = bounded.match(from.Type);
    if (to.Type == TFieldType::nxtNullString || to.Type == TFieldType::nxtBlobMemo)
        return from.Family == TValueFamily::Text;
    return to.Type == TFieldType::nxtShortString && m.hasMatch() && m.captured(1).toInt() <= to.Units;
}
} // namespace

QStringList TSqliteEngine::reservedWords(QString *)
{
    // SQLite's own list, from the library that runs the database.
    QStringList words;
    const int count = sqlite3_keyword_count();
    for (int i = 0; i < count; ++i) {
        const char *name = nullptr;
        int length = 0;
        if (sqlite3_keyword_name(i, &name, &length) == SQLITE_OK)
            words << QString::fromLatin1(name, length).toUpper();
    }
    return words;
}

bool TSqliteEngine::tableExists(const QString &table)
{
    // SQLite table names ignore case.
    return scalar(QStringLiteral("SELECT 1 FROM sqlite_master WHERE type = 'table' AND name = ? COLLATE NOCASE"),
                  {table})
        .isValid();
}

bool TSqliteEngine::ensureCounterTable(QString *errorMessage)
{
    return exec(QStringLiteral("CREATE TABLE IF NOT EXISTS ") + q(counterTable())
                    + QStringLiteral(" (\"Tabelle\" TEXT NOT NULL COLLATE NOCASE, \"Feld\" TEXT NOT NULL COLLATE "
                                     "NOCASE, \"Wert\" INTEGER NOT NULL, PRIMARY KEY (\"Tabelle\", \"Feld\"))"),
                errorMessage);
}

bool TSqliteEngine::dropTable(const QString &table, QString *errorMessage)
{
    return exec(QStringLiteral("DROP TABLE ") + q(table), errorMessage) && ensureCounterTable(errorMessage)
        && exec(QStringLiteral("DELETE FROM ") + q(counterTable()) + QStringLiteral(" WHERE \"Tabelle\" = ?"),
                errorMessage, {table});
}

bool TSqliteEngine::renameTable(const QString &from, const QString &to, QString *errorMessage)
{
    // Trigger names are unique in the whole file, and the renamed table is
    // only read from now on: its triggers go, the new table makes its own.
    QSqlQuery query(m_db);
    query.prepare(QStringLiteral("SELECT name FROM sqlite_master WHERE type = 'trigger' AND tbl_name = ? COLLATE NOCASE"));
    query.addBindValue(from);
    QStringList triggers;
    if (query.exec())
        while (query.next())
            triggers << query.value(0).toString();
    for (const QString &trigger : triggers)
        if (!exec(QStringLiteral("DROP TRIGGER ") + q(trigger), errorMessage))
            return false;
    return exec(QStringLiteral("ALTER TABLE ") + q(from) + QStringLiteral(" RENAME TO ") + q(to), errorMessage);
}

QString TSqliteEngine::columnType(const TFieldDef &field) const
{
    switch (field.Type) {
    case TFieldType::nxtShortString:
        return QStringLiteral("VARCHAR(%1)").arg(field.Units);
    case TFieldType::nxtNullString:
    case TFieldType::nxtBlobMemo:
        return QStringLiteral("TEXT");
    case TFieldType::nxtInt32:
    case TFieldType::nxtAutoInc:
    case TFieldType::nxtRecRev:
        return QStringLiteral("INTEGER");
    case TFieldType::nxtInt64:
        return QStringLiteral("BIGINT");
    case TFieldType::nxtByte:
        return QStringLiteral("TINYINT");
    case TFieldType::nxtDouble:
        return QStringLiteral("DOUBLE");
    case TFieldType::nxtCurrency:
        // SQLite has no exact decimal: the amount is kept as its decimal text
        // (the type name gives the column text affinity).
        return QStringLiteral("DECIMAL_TEXT(19,4)");
    case TFieldType::nxtDate:
        return QStringLiteral("DATE");
    case TFieldType::nxtTime:
        return QStringLiteral("TIME");
    case TFieldType::nxtDateTime:
        return QStringLiteral("TIMESTAMP");
    case TFieldType::nxtBoolean:
        return QStringLiteral("BOOLEAN");
    }
    return QStringLiteral("TEXT");
}

QString TSqliteEngine::constraints(const TFieldDef &field) const
{
    // SQLite stores what it is given; the checks keep each column to what its
    // type means, so that any tool writing to the file keeps to it as well.
    const QString c = q(field.Name);
    QString check;
    switch (field.Type) {
    case TFieldType::nxtShortString:
        check = QStringLiteral("length(%1) <= %2").arg(c, QString::number(field.Units));
        break;
    case TFieldType::nxtInt32:
    case TFieldType::nxtAutoInc:
    case TFieldType::nxtRecRev:
    case TFieldType::nxtByte:
    case TFieldType::nxtInt64: {
        const IntRange r = rangeOf(field.Type);
        check = QStringLiteral("typeof(%1) = 'integer' AND %1 BETWEEN %2 AND %3")
                    .arg(c, QString::number(r.lo), QString::number(r.hi));
        break;
    }
    case TFieldType::nxtDouble:
        check = QStringLiteral("typeof(%1) IN ('real', 'integer')").arg(c);
        break;
    case TFieldType::nxtCurrency:
        check = isNumberText(c);
        break;
    case TFieldType::nxtBoolean:
        check = QStringLiteral("%1 IN (0, 1)").arg(c);
        break;
    default:
        return QString();
    }
    return QStringLiteral(" CHECK (%1 IS NULL OR (%2))").arg(c, check);
}

QString TSqliteEngine::rowIdName(const QStringList &columnNames)
{
    for (const char *name : {"rowid", "_rowid_", "oid"}) {
        if (!columnNames.contains(QLatin1String(name), Qt::CaseInsensitive))
            return QLatin1String(name);
    }
    return QString();
}

bool TSqliteEngine::createTable(const QString &table, const TDataDictionary &dictionary, QString *errorMessage)
{
    QStringList names;
    for (const TFieldDef &field : dictionary.Fields)
        names << field.Name;
    if (rowIdName(names).isEmpty()) {
        if (errorMessage)
            *errorMessage = QCoreApplication::translate(
                "TSqliteEngine", "Die Felder „rowid“, „_rowid_“ und „oid“ schließen einander in SQLite aus.");
        return false;
    }
    QStringList defs;
    for (const TFieldDef &field : dictionary.Fields) {
        QString def = q(field.Name) + QLatin1Char(' ') + columnType(field) + constraints(field);
        if (!field.Description.isEmpty()) {
            // The description stays in the stored table definition, where
            // every SQLite tool shows it.
            QString desc = field.Description;
            desc.replace(QLatin1String("*/"), QLatin1String("* /"));
            def += QStringLiteral(" /* ") + desc + QStringLiteral(" */");
        }
        defs << def;
    }
    if (!dictionary.KeyFields.isEmpty()) {
        QStringList keys;
        for (const QString &key : dictionary.KeyFields) {
            QString k = q(key);
            if (dictionary.CaseInsensitiveKeys.contains(key, Qt::CaseInsensitive))
                k += QStringLiteral(" COLLATE NOCASE");
            keys << k;
        }
        defs << QStringLiteral("CONSTRAINT ") + q(dictionary.IndexName) + QStringLiteral(" PRIMARY KEY (")
                    + keys.join(QStringLiteral(", ")) + QLatin1Char(')');
    }
    const QString sql = QStringLiteral("CREATE TABLE ") + q(table) + QStringLiteral(" (\n  ")
        + defs.join(QStringLiteral(",\n  ")) + QStringLiteral("\n)");
    return exec(sql, errorMessage) && createTriggers(table, dictionary, errorMessage);
}

bool TSqliteEngine::createTriggers(const QString &table, const TDataDictionary &dictionary, QString *errorMessage)
{
    if (!ensureCounterTable(errorMessage)
        || !exec(QStringLiteral("DELETE FROM ") + q(counterTable()) + QStringLiteral(" WHERE \"Tabelle\" = ?"),
                 errorMessage, {table}))
        return false;
    QStringList names;
    QStringList plainColumns; // those whose change counts as an update of the record
    for (const TFieldDef &field : dictionary.Fields) {
        names << field.Name;
        if (field.Type != TFieldType::nxtAutoInc && field.Type != TFieldType::nxtRecRev)
            plainColumns << q(field.Name);
    }
    const QString rowId = rowIdName(names);
    const QString t = q(table);
    for (const TFieldDef &field : dictionary.Fields) {
        const QString c = q(field.Name);
        const QString trigger = table + QLatin1Char('$') + field.Name + QLatin1Char('$');
        if (field.Type == TFieldType::nxtAutoInc) {
            const QString where = QStringLiteral(" WHERE \"Tabelle\" = %1 AND \"Feld\" = %2")
                                      .arg(lit(table), lit(field.Name));
            const QString sql =
                QStringLiteral("CREATE TRIGGER %1 AFTER INSERT ON %2 FOR EACH ROW WHEN NEW.%3 IS NULL BEGIN\n"
                               "  INSERT OR IGNORE INTO %4 VALUES (%5, %6, 0);\n"
                               "  UPDATE %4 SET \"Wert\" = \"Wert\" + 1%7;\n"
                               "  UPDATE %2 SET %3 = (SELECT \"Wert\" FROM %4%7) WHERE %8 = NEW.%8;\n"
                               "END")
                    .arg(q(trigger + QStringLiteral("AutoInc")), t, c, q(counterTable()), lit(table),
                         lit(field.Name), where, rowId);
            if (!exec(sql, errorMessage))
                return false;
        } else if (field.Type == TFieldType::nxtRecRev) {
            QString sql = QStringLiteral("CREATE TRIGGER %1 AFTER INSERT ON %2 FOR EACH ROW WHEN NEW.%3 IS NULL "
                                         "BEGIN UPDATE %2 SET %3 = 0 WHERE %4 = NEW.%4; END")
                              .arg(q(trigger + QStringLiteral("RecRevNew")), t, c, rowId);
            if (!exec(sql, errorMessage))
                return false;
            if (plainColumns.isEmpty())
                continue;
            sql = QStringLiteral("CREATE TRIGGER %1 AFTER UPDATE OF %2 ON %3 FOR EACH ROW WHEN NEW.%4 IS OLD.%4 "
                                 "BEGIN UPDATE %3 SET %4 = coalesce(OLD.%4, 0) + 1 WHERE %5 = NEW.%5; END")
                      .arg(q(trigger + QStringLiteral("RecRev")), plainColumns.join(QStringLiteral(", ")), t, c,
                           rowId);
            if (!exec(sql, errorMessage))
                return false;
        }
    }
    return true;
}

QVector<TColumnInfo> TSqliteEngine::columns(const QString &table, QString *errorMessage)
{
    QVector<TColumnInfo> result;
    QSqlQuery query(m_db);
    if (!query.exec(QStringLiteral("SELECT name, type FROM pragma_table_info(") + lit(table) + QLatin1Char(')'))) {
        if (errorMessage)
            *errorMessage = query.lastError().text();
        return result;
    }
    while (query.next()) {
        TColumnInfo column;
        column.Name = query.value(0).toString();
        column.Type = query.value(1).toString().trimmed();
        const QString t = column.Type.toUpper();
        // SQLite's own affinity rules, refined by the names this layer writes.
        if (t.startsWith(QLatin1String("DECIMAL_TEXT")))
            column.Family = TValueFamily::Decimal;
        else if (t == QLatin1String("DATE"))
            column.Family = TValueFamily::Date;
        else if (t == QLatin1String("TIME"))
            column.Family = TValueFamily::Time;
        else if (t == QLatin1String("TIMESTAMP") || t == QLatin1String("DATETIME"))
            column.Family = TValueFamily::Timestamp;
        else if (t == QLatin1String("BOOLEAN"))
            column.Family = TValueFamily::Boolean;
        else if (t.contains(QLatin1String("INT")))
            column.Family = TValueFamily::Integer;
        else if (t.contains(QLatin1String("CHAR")) || t.contains(QLatin1String("CLOB")) || t.contains(QLatin1String("TEXT")))
            column.Family = TValueFamily::Text;
        else if (t.contains(QLatin1String("REAL")) || t.contains(QLatin1String("FLOA")) || t.contains(QLatin1String("DOUB")))
            column.Family = TValueFamily::Real;
        result << column;
    }
    return result;
}

qint64 TSqliteEngine::autoIncValue(const QString &table, const QString &column)
{
    if (!ensureCounterTable(nullptr))
        return 0;
    return scalar(QStringLiteral("SELECT \"Wert\" FROM ") + q(counterTable())
                      + QStringLiteral(" WHERE \"Tabelle\" = ? AND \"Feld\" = ?"),
                  {table, column})
        .toLongLong();
}

bool TSqliteEngine::setAutoIncValue(const QString &table, const QString &column, qint64 value, QString *errorMessage)
{
    return ensureCounterTable(errorMessage)
        && exec(QStringLiteral("INSERT OR REPLACE INTO ") + q(counterTable()) + QStringLiteral(" VALUES (?, ?, ?)"),
                errorMessage, {table, column, value});
}

QString TSqliteEngine::convertExpression(const TColumnInfo &from, const TFieldDef &to, bool, QString *validity)
{
    const QString v = q(from.Name);
    const QString target = columnType(to);
    validity->clear();
    if (from.Type.compare(target, Qt::CaseInsensitive) == 0 || widens(from, to))
        return v;
    const QString s = QStringLiteral("trim(%1)").arg(v);
    QString valid;
    QString expr = v;
    switch (to.Type) {
    case TFieldType::nxtShortString:
        valid = QStringLiteral("length(CAST(%1 AS TEXT)) <= %2").arg(v, QString::number(to.Units));
        break;
    case TFieldType::nxtNullString:
    case TFieldType::nxtBlobMemo:
        expr = QStringLiteral("CAST(%1 AS TEXT)").arg(v);
        break;
    case TFieldType::nxtInt32:
    case TFieldType::nxtInt64:
    case TFieldType::nxtByte:
    case TFieldType::nxtAutoInc:
    case TFieldType::nxtRecRev: {
        const IntRange r = rangeOf(to.Type);
        const QString range = QStringLiteral(" BETWEEN %1 AND %2").arg(r.lo).arg(r.hi);
        valid = QStringLiteral("CASE typeof(%1) WHEN 'integer' THEN %1%2 WHEN 'real' THEN round(%1)%2 "
                               "WHEN 'text' THEN (%3 AND CAST(%4 AS INTEGER)%2) ELSE 0 END")
                    .arg(v, range, isIntegerText(s), s);
        expr = QStringLiteral("CASE typeof(%1) WHEN 'real' THEN CAST(round(%1) AS INTEGER) WHEN 'text' THEN "
                              "CAST(%2 AS INTEGER) ELSE %1 END")
                   .arg(v, s);
        break;
    }
    case TFieldType::nxtDouble:
    case TFieldType::nxtCurrency:
        if (from.Family == TValueFamily::Date || from.Family == TValueFamily::Time
            || from.Family == TValueFamily::Timestamp)
            valid = QStringLiteral("0");
        else
            valid = QStringLiteral("CASE typeof(%1) WHEN 'integer' THEN 1 WHEN 'real' THEN 1 WHEN 'text' THEN %2 "
                                   "ELSE 0 END")
                        .arg(v, isNumberText(s));
        expr = to.Type == TFieldType::nxtDouble
            ? QStringLiteral("CASE typeof(%1) WHEN 'text' THEN CAST(%2 AS REAL) ELSE %1 END").arg(v, s)
            : QStringLiteral("CASE typeof(%1) WHEN 'text' THEN %2 ELSE %1 END").arg(v, s);
        break;
    case TFieldType::nxtDate:
    case TFieldType::nxtTime:
    case TFieldType::nxtDateTime: {
        const QString fn = to.Type == TFieldType::nxtDate ? QStringLiteral("date(%1)")
            : to.Type == TFieldType::nxtTime             ? QStringLiteral("time(%1)")
                                                         : QStringLiteral("strftime('%Y-%m-%dT%H:%M:%f', %1)");
        // Numbers would read as Julian days: only texts are dates here.
        valid = QStringLiteral("typeof(%1) = 'text' AND %2 IS NOT NULL").arg(v, fn.arg(v));
        expr = fn.arg(v);
        break;
    }
    case TFieldType::nxtBoolean:
        valid = QStringLiteral("CASE typeof(%1) WHEN 'integer' THEN 1 WHEN 'real' THEN 1 WHEN 'text' THEN "
                               "lower(%2) IN (%3, %4) ELSE 0 END")
                    .arg(v, s, QLatin1String(kTrueWords), QLatin1String(kFalseWords));
        expr = QStringLiteral("CASE typeof(%1) WHEN 'text' THEN (lower(%2) IN (%3)) ELSE (%1 <> 0) END")
                   .arg(v, s, QLatin1String(kTrueWords));
        break;
    }
    if (!valid.isEmpty())
        *validity = QStringLiteral("(%1 IS NULL OR (%2))").arg(v, valid);
    return expr;
}

bool TSqliteEngine::beginTransaction(QString *errorMessage)
{
    // The write lock from the start: no other writer slips in between the
    // check for data and the rename.
    return exec(QStringLiteral("BEGIN IMMEDIATE"), errorMessage);
}

bool TSqliteEngine::copyRows(const QString &from, const QString &to, const TCopyPlan &plan,
                             const std::function<void(qint64)> &progress, QString *errorMessage)
{
    QStringList sourceNames;
    for (const TColumnInfo &c : columns(from, errorMessage))
        sourceNames << c.Name;
    const QString rowId = rowIdName(sourceNames);
    QString sql = QStringLiteral("INSERT INTO ") + q(to) + QStringLiteral(" (") + plan.Columns.join(QStringLiteral(", "))
        + QStringLiteral(") SELECT ") + plan.Expressions.join(QStringLiteral(", ")) + QStringLiteral(" FROM ") + q(from);
    if (rowId.isEmpty()) {
        // No row id to go by: one statement for everything.
        if (!plan.Validity.isEmpty())
            sql += QStringLiteral(" WHERE ") + plan.Validity;
        QSqlQuery query(m_db);
        if (!query.exec(sql)) {
            if (errorMessage)
                *errorMessage = query.lastError().text().trimmed();
            return false;
        }
        if (progress)
            progress(query.numRowsAffected());
        return true;
    }
    sql += QStringLiteral(" WHERE %1 BETWEEN ? AND ?").arg(rowId);
    if (!plan.Validity.isEmpty())
        sql += QStringLiteral(" AND ") + plan.Validity;
    QSqlQuery bounds(m_db);
    if (!bounds.exec(QStringLiteral("SELECT min(%1), max(%1) FROM %2").arg(rowId, q(from))) || !bounds.next()) {
        if (errorMessage)
            *errorMessage = bounds.lastError().text().trimmed();
        return false;
    }
    if (bounds.value(0).isNull())
        return true;
    const qint64 first = bounds.value(0).toLongLong();
    const qint64 last = bounds.value(1).toLongLong();
    // Parts small enough for the gauge to move and the window to stay alive.
    const qint64 step = 20000;
    QSqlQuery insert(m_db);
    if (!insert.prepare(sql)) {
        if (errorMessage)
            *errorMessage = insert.lastError().text().trimmed();
        return false;
    }
    qint64 copied = 0;
    for (qint64 lo = first; lo <= last; lo += step) {
        const qint64 hi = (last - lo < step) ? last : lo + step - 1;
        insert.bindValue(0, lo);
        insert.bindValue(1, hi);
        if (!insert.exec()) {
            if (errorMessage)
                *errorMessage = insert.lastError().text().trimmed();
            return false;
        }
        copied += insert.numRowsAffected();
        if (progress)
            progress(copied);
        if (hi == last)
            break;
    }
    return true;
}
