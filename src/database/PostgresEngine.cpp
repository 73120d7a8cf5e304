#include "PostgresEngine.h"

#include <QCryptographicHash>
#include <QRegularExpression>
#include <QSqlError>
#include <QSqlQuery>
#include <limits>

namespace {
QString q(const QString &name)
{
    return TSqlEngine::quoteIdentifier(name);
}

QString lit(const QString &text)
{
    return TSqlEngine::quoteLiteral(text);
}

constexpr int kMaxIdentifierBytes = 63;

// The check of text values goes through a cast that may fail; the function
// turns the failure into false so that the row can be reported instead.
const char *const kCastableFunction = R"SQL(
CREATE OR REPLACE FUNCTION pg_temp.ferolith_castable(value text, target text) RETURNS boolean
LANGUAGE plpgsql AS $f$
BEGIN
  IF value IS NULL THEN RETURN true; END IF;
  EXECUTE format('SELECT %L::%s', value, target);
  RETURN true;
EXCEPTION WHEN others THEN
  RETURN false;
END
$f$)SQL";

// One function for every record revision column; the column name is the argument.
const char *const kRecRevFunction = R"SQL(
CREATE OR REPLACE FUNCTION ferolith_recrev() RETURNS trigger
LANGUAGE plpgsql AS $f$
BEGIN
  IF TG_OP = 'UPDATE' THEN
    NEW := jsonb_populate_record(NEW, jsonb_build_object(TG_ARGV[0],
             coalesce((to_jsonb(OLD) ->> TG_ARGV[0])::bigint, 0) + 1));
  ELSIF (to_jsonb(NEW) ->> TG_ARGV[0]) IS NULL THEN
    NEW := jsonb_populate_record(NEW, jsonb_build_object(TG_ARGV[0], 0));
  END IF;
  RETURN NEW;
END
$f$)SQL";

QString castable(const QString &value, const char *type)
{
    return QStringLiteral("pg_temp.ferolith_castable((%1)::text, '%2')").arg(value, QLatin1String(type));
}
} // namespace

QString TPostgresEngine::primaryIndexName(const QString &table, const QString &indexName)
{
    const QString name = table + indexName;
    if (name.toUtf8().size() <= kMaxIdentifierBytes)
        return name;
    const QString hash = QString::fromLatin1(
        QCryptographicHash::hash(table.toUtf8(), QCryptographicHash::Sha1).toHex().left(8));
    const QString tail = QLatin1Char('~') + hash + indexName;
    QString head = table;
    while (!head.isEmpty() && (head + tail).toUtf8().size() > kMaxIdentifierBytes)
        head.chop(1);
    return head + tail;
}

QStringList TPostgresEngine::reservedWords(QString *errorMessage)
{
    QStringList words;
    QSqlQuery query(m_db);
    // R: reserved; T: reserved, but allowed as a function or type name.
    if (!query.exec(QStringLiteral("SELECT upper(word) FROM pg_get_keywords() WHERE catcode IN ('R', 'T')"))) {
        if (errorMessage)
            *errorMessage = query.lastError().text().trimmed();
        return words;
    }
    while (query.next())
        words << query.value(0).toString();
    return words;
}

bool TPostgresEngine::tableExists(const QString &table)
{
    return scalar(QStringLiteral("SELECT 1 FROM pg_catalog.pg_tables WHERE schemaname = current_schema() "
                                 "AND tablename = ?"),
                  {table})
        .isValid();
}

bool TPostgresEngine::dropTable(const QString &table, QString *errorMessage)
{
    return exec(QStringLiteral("DROP TABLE ") + q(table), errorMessage);
}

bool TPostgresEngine::renameTable(const QString &from, const QString &to, QString *errorMessage)
{
    if (!exec(QStringLiteral("ALTER TABLE ") + q(from) + QStringLiteral(" RENAME TO ") + q(to), errorMessage))
        return false;
    // The primary index's name follows the table, so the name is free for a
    // new table of the old name.
    const QVariant constraint = scalar(QStringLiteral("SELECT conname FROM pg_constraint WHERE conrelid = "
                                                      "to_regclass(?) AND contype = 'p'"),
                                       {q(to)}, errorMessage);
    if (!constraint.isValid())
        return true;
    const QString wanted = primaryIndexName(to, QStringLiteral("$Primary"));
    if (constraint.toString() == wanted)
        return true;
    return exec(QStringLiteral("ALTER TABLE ") + q(to) + QStringLiteral(" RENAME CONSTRAINT ")
                    + q(constraint.toString()) + QStringLiteral(" TO ") + q(wanted),
                errorMessage);
}

QString TPostgresEngine::columnType(const TFieldDef &field) const
{
    // Spelled as the server names them back, so equal types compare equal.
    switch (field.Type) {
    case TFieldType::nxtShortString:
        return QStringLiteral("character varying(%1)").arg(field.Units);
    case TFieldType::nxtNullString:
    case TFieldType::nxtBlobMemo:
        return QStringLiteral("text");
    case TFieldType::nxtInt32:
    case TFieldType::nxtAutoInc:
    case TFieldType::nxtRecRev:
        return QStringLiteral("integer");
    case TFieldType::nxtInt64:
        return QStringLiteral("bigint");
    case TFieldType::nxtByte:
        return QStringLiteral("smallint");
    case TFieldType::nxtDouble:
        return QStringLiteral("double precision");
    case TFieldType::nxtCurrency:
        return QStringLiteral("numeric(19,4)");
    case TFieldType::nxtDate:
        return QStringLiteral("date");
    case TFieldType::nxtTime:
        return QStringLiteral("time without time zone");
    case TFieldType::nxtDateTime:
        return QStringLiteral("timestamp without time zone");
    case TFieldType::nxtBoolean:
        return QStringLiteral("boolean");
    }
    return QStringLiteral("text");
}

bool TPostgresEngine::createTable(const QString &table, const TDataDictionary &dictionary, QString *errorMessage)
{
    const bool haveCollation =
        scalar(QStringLiteral("SELECT 1 FROM pg_collation WHERE collname = ? AND collnamespace = "
                              "current_schema()::regnamespace"),
               {collationName()})
            .isValid();
    if (!dictionary.CaseInsensitiveKeys.isEmpty() && !haveCollation
        && !exec(QStringLiteral("CREATE COLLATION IF NOT EXISTS ") + q(collationName())
                     + QStringLiteral(" (provider = icu, locale = 'de-DE-u-ks-level2', deterministic = false)"),
                 errorMessage))
        return false;
    bool recRev = false;
    QStringList defs;
    for (const TFieldDef &field : dictionary.Fields) {
        QString def = q(field.Name) + QLatin1Char(' ') + columnType(field);
        if (dictionary.CaseInsensitiveKeys.contains(field.Name, Qt::CaseInsensitive))
            def += QStringLiteral(" COLLATE ") + q(collationName());
        if (field.Type == TFieldType::nxtAutoInc)
            def += QStringLiteral(" GENERATED BY DEFAULT AS IDENTITY");
        if (field.Type == TFieldType::nxtByte)
            def += QStringLiteral(" CHECK (%1 BETWEEN 0 AND 255)").arg(q(field.Name));
        recRev = recRev || field.Type == TFieldType::nxtRecRev;
        defs << def;
    }
    if (!dictionary.KeyFields.isEmpty()) {
        QStringList keys;
        for (const QString &key : dictionary.KeyFields)
            keys << q(key);
        defs << QStringLiteral("CONSTRAINT ") + q(primaryIndexName(table, dictionary.IndexName))
                    + QStringLiteral(" PRIMARY KEY (") + keys.join(QStringLiteral(", ")) + QLatin1Char(')');
    }
    if (!exec(QStringLiteral("CREATE TABLE ") + q(table) + QStringLiteral(" (\n  ")
                  + defs.join(QStringLiteral(",\n  ")) + QStringLiteral("\n)"),
              errorMessage))
        return false;
    if (recRev && !exec(QString::fromLatin1(kRecRevFunction), errorMessage))
        return false;
    for (const TFieldDef &field : dictionary.Fields) {
        if (!field.Description.isEmpty()
            && !exec(QStringLiteral("COMMENT ON COLUMN ") + q(table) + QLatin1Char('.') + q(field.Name)
                         + QStringLiteral(" IS ") + lit(field.Description),
                     errorMessage))
            return false;
        if (field.Type == TFieldType::nxtRecRev
            && !exec(QStringLiteral("CREATE TRIGGER ") + q(field.Name + QStringLiteral("$RecRev"))
                         + QStringLiteral(" BEFORE INSERT OR UPDATE ON ") + q(table)
                         + QStringLiteral(" FOR EACH ROW EXECUTE FUNCTION ferolith_recrev(") + lit(field.Name)
                         + QLatin1Char(')'),
                     errorMessage))
            return false;
    }
    return true;
}

QVector<TColumnInfo> TPostgresEngine::columns(const QString &table, QString *errorMessage)
{
    QVector<TColumnInfo> result;
    QSqlQuery query(m_db);
    query.prepare(QStringLiteral("SELECT attname, format_type(atttypid, atttypmod) FROM pg_attribute "
                                 "WHERE attrelid = to_regclass(?) AND attnum > 0 AND NOT attisdropped ORDER BY attnum"));
    query.addBindValue(q(table));
    if (!query.exec()) {
        if (errorMessage)
            *errorMessage = query.lastError().text().trimmed();
        return result;
    }
    while (query.next()) {
        TColumnInfo column;
        column.Name = query.value(0).toString();
        column.Type = query.value(1).toString();
        const QString &t = column.Type;
        if (t.startsWith(QLatin1String("character")) || t == QLatin1String("text"))
            column.Family = TValueFamily::Text;
        else if (t == QLatin1String("integer") || t == QLatin1String("bigint") || t == QLatin1String("smallint"))
            column.Family = TValueFamily::Integer;
        else if (t == QLatin1String("double precision") || t == QLatin1String("real"))
            column.Family = TValueFamily::Real;
        else if (t.startsWith(QLatin1String("numeric")))
            column.Family = TValueFamily::Decimal;
        else if (t == QLatin1String("date"))
            column.Family = TValueFamily::Date;
        else if (t.startsWith(QLatin1String("timestamp")))
            column.Family = TValueFamily::Timestamp;
        else if (t.startsWith(QLatin1String("time")))
            column.Family = TValueFamily::Time;
        else if (t == QLatin1String("boolean"))
            column.Family = TValueFamily::Boolean;
        result << column;
    }
    return result;
}

QString TPostgresEngine::sequenceOf(const QString &table, const QString &column)
{
    // The column name is taken literally, the table name as an identifier.
    return scalar(QStringLiteral("SELECT pg_get_serial_sequence(?, ?)"), {q(table), column}).toString();
}

qint64 TPostgresEngine::autoIncValue(const QString &table, const QString &column)
{
    const QString sequence = sequenceOf(table, column);
    if (sequence.isEmpty())
        return 0;
    QSqlQuery query(m_db);
    if (!query.exec(QStringLiteral("SELECT last_value, is_called FROM ") + sequence) || !query.next())
        return 0;
    const qint64 last = query.value(0).toLongLong();
    return query.value(1).toBool() ? last : last - 1;
}

bool TPostgresEngine::setAutoIncValue(const QString &table, const QString &column, qint64 value,
                                      QString *errorMessage)
{
    const QString sequence = sequenceOf(table, column);
    if (sequence.isEmpty())
        return true;
    if (value >= 1)
        return exec(QStringLiteral("SELECT setval(?::regclass, ?, true)"), errorMessage, {sequence, value});
    return exec(QStringLiteral("SELECT setval(?::regclass, 1, false)"), errorMessage, {sequence});
}

bool TPostgresEngine::prepareConversion(QString *errorMessage)
{
    return exec(QString::fromLatin1(kCastableFunction), errorMessage);
}

QString TPostgresEngine::convertExpression(const TColumnInfo &from, const TFieldDef &to, bool isKey,
                                           QString *validity)
{
    const QString v = q(from.Name);
    const TValueFamily f = from.Family;
    const bool numeric = f == TValueFamily::Integer || f == TValueFamily::Real || f == TValueFamily::Decimal;
    const bool textual = f == TValueFamily::Text || f == TValueFamily::Other;
    const QString type = columnType(to);
    QString valid;
    QString expr;
    static const QRegularExpression bounded(QStringLiteral("^character varying\\((\\d+)\\)$"));
    const QRegularExpressionMatch m = bounded.match(from.Type);
    // A text that fits as it is: a longer bounded text or an unbounded one.
    const bool widens = (to.Type == TFieldType::nxtShortString && m.hasMatch() && m.captured(1).toInt() <= to.Units)
        || ((to.Type == TFieldType::nxtNullString || to.Type == TFieldType::nxtBlobMemo) && f == TValueFamily::Text);
    if (from.Type == type || widens) {
        expr = v;
    } else {
        switch (to.Type) {
        case TFieldType::nxtShortString:
            valid = QStringLiteral("char_length((%1)::text) <= %2").arg(v, QString::number(to.Units));
            expr = QStringLiteral("(%1)::text").arg(v);
            break;
        case TFieldType::nxtNullString:
        case TFieldType::nxtBlobMemo:
            expr = QStringLiteral("(%1)::text").arg(v);
            break;
        case TFieldType::nxtInt32:
        case TFieldType::nxtInt64:
        case TFieldType::nxtByte:
        case TFieldType::nxtAutoInc:
        case TFieldType::nxtRecRev: {
            qint64 lo = std::numeric_limits<qint32>::min(), hi = std::numeric_limits<qint32>::max();
            if (to.Type == TFieldType::nxtInt64) {
                lo = std::numeric_limits<qint64>::min();
                hi = std::numeric_limits<qint64>::max();
            } else if (to.Type == TFieldType::nxtByte) {
                lo = 0;
                hi = 255;
            }
            const QString range = QStringLiteral(" BETWEEN %1 AND %2").arg(QString::number(lo), QString::number(hi));
            if (f == TValueFamily::Boolean) {
                expr = QStringLiteral("(%1)::integer").arg(v);
            } else if (numeric) {
                valid = QStringLiteral("round((%1)::numeric)%2").arg(v, range);
                expr = QStringLiteral("CAST(round((%1)::numeric) AS %2)").arg(v, type);
            } else if (textual) {
                valid = QStringLiteral("CASE WHEN %1 THEN round(trim((%2)::text)::numeric)%3 ELSE false END")
                            .arg(castable(v, "numeric"), v, range);
                expr = QStringLiteral("CAST(round(trim((%1)::text)::numeric) AS %2)").arg(v, type);
            } else {
                valid = QStringLiteral("false");
                expr = QStringLiteral("NULL");
            }
            break;
        }
        case TFieldType::nxtDouble:
        case TFieldType::nxtCurrency:
            if (numeric) {
                if (to.Type == TFieldType::nxtCurrency)
                    valid = QStringLiteral("abs((%1)::numeric) < 1e15").arg(v);
                expr = QStringLiteral("(%1)::%2").arg(v, type);
            } else if (f == TValueFamily::Boolean && to.Type == TFieldType::nxtDouble) {
                expr = QStringLiteral("(%1)::integer::double precision").arg(v);
            } else if (textual) {
                valid = to.Type == TFieldType::nxtCurrency
                    ? QStringLiteral("CASE WHEN %1 THEN abs(trim((%2)::text)::numeric) < 1e15 ELSE false END")
                          .arg(castable(v, "numeric"), v)
                    : castable(v, "double precision");
                expr = QStringLiteral("trim((%1)::text)::%2").arg(v, type);
            } else {
                valid = QStringLiteral("false");
                expr = QStringLiteral("NULL");
            }
            break;
        case TFieldType::nxtDate:
        case TFieldType::nxtTime:
        case TFieldType::nxtDateTime: {
            const bool fromDate = f == TValueFamily::Date;
            const bool fromTime = f == TValueFamily::Time;
            const bool fits = f == TValueFamily::Timestamp || (fromDate && to.Type != TFieldType::nxtTime)
                || (fromTime && to.Type == TFieldType::nxtTime);
            if (fits) {
                expr = QStringLiteral("(%1)::%2").arg(v, type);
            } else if (textual) {
                valid = castable(v, to.Type == TFieldType::nxtDate   ? "date"
                                        : to.Type == TFieldType::nxtTime ? "time"
                                                                         : "timestamp");
                expr = QStringLiteral("(%1)::text::%2").arg(v, type);
            } else {
                valid = QStringLiteral("false");
                expr = QStringLiteral("NULL");
            }
            break;
        }
        case TFieldType::nxtBoolean: {
            if (numeric) {
                expr = QStringLiteral("((%1) <> 0)").arg(v);
            } else if (textual) {
                const QString word = QStringLiteral("lower(trim((%1)::text))").arg(v);
                valid = QStringLiteral("(%1 IN ('ja', 'j', 'nein') OR %2)").arg(word, castable(v, "boolean"));
                expr = QStringLiteral("CASE WHEN %1 IN ('ja', 'j') THEN true WHEN %1 = 'nein' THEN false "
                                      "ELSE (%2)::text::boolean END")
                           .arg(word, v);
            } else {
                valid = QStringLiteral("false");
                expr = QStringLiteral("NULL");
            }
            break;
        }
        }
    }
    QStringList conditions;
    if (!valid.isEmpty())
        conditions << QStringLiteral("((%1) IS NULL OR (%2))").arg(v, valid);
    if (to.Type == TFieldType::nxtAutoInc) {
        // A missing number is drawn, as an insert without the column would.
        const QString sequence = m_target.isEmpty() ? QString() : sequenceOf(m_target, to.Name);
        if (!sequence.isEmpty())
            expr = QStringLiteral("COALESCE(%1, nextval(%2::regclass))").arg(expr, lit(sequence));
    } else if (isKey) {
        // Key columns cannot be empty on this engine. The source value is
        // tested, not the converted one: the cast may only run on valid rows.
        conditions << QStringLiteral("(%1) IS NOT NULL").arg(v);
    }
    *validity = conditions.join(QStringLiteral(" AND "));
    return expr;
}

bool TPostgresEngine::copyRows(const QString &from, const QString &to, const TCopyPlan &plan,
                               const std::function<void(qint64)> &progress, QString *errorMessage)
{
    const QString head = QStringLiteral("INSERT INTO ") + q(to) + QStringLiteral(" (") + plan.Columns.join(QStringLiteral(", "))
        + QStringLiteral(") SELECT ") + plan.Expressions.join(QStringLiteral(", ")) + QStringLiteral(" FROM ") + q(from)
        + QStringLiteral(" WHERE ");
    const QString validity = plan.Validity.isEmpty() ? QString() : QStringLiteral(" AND (") + plan.Validity + QLatin1Char(')');
    QSqlQuery size(m_db);
    if (!size.exec(QStringLiteral("SELECT pg_relation_size(to_regclass(%1)) / current_setting('block_size')::bigint")
                       .arg(lit(q(from))))
        || !size.next()) {
        if (errorMessage)
            *errorMessage = size.lastError().text().trimmed();
        return false;
    }
    const qint64 pages = size.value(0).toLongLong();
    const qint64 rows = plan.SourceRows >= 0 ? plan.SourceRows : recordCount(from);
    // Parts by page ranges of the physical rows, about 20000 rows each: the
    // server scans just those pages, and the gauge moves in between.
    const qint64 perPart = rows > 0 ? qMax<qint64>(1, pages * 20000 / rows) : pages + 1;
    qint64 copied = 0;
    for (qint64 page = 0;; page += perPart) {
        QString range = QStringLiteral("ctid >= '(%1,0)'::tid").arg(page);
        const bool last = page + perPart >= pages;
        if (!last)
            range += QStringLiteral(" AND ctid < '(%1,0)'::tid").arg(page + perPart);
        QSqlQuery insert(m_db);
        if (!insert.exec(head + range + validity)) {
            if (errorMessage)
                *errorMessage = insert.lastError().text().trimmed();
            return false;
        }
        copied += insert.numRowsAffected();
        if (progress)
            progress(copied);
        if (last)
            break;
    }
    return true;
}
