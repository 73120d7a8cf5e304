#include "MaskTable.h"

#include "Components.h"
#include "Containers.h"
#include "DbConnection.h"
#include "Edits.h"
#include "MyBtn.h"

#include <QCoreApplication>
#include <QLocale>
#include <QSqlError>
#include <QSqlQuery>
#include <QSqlRecord>

namespace {
QString q(const QString &name)
{
    return TSqlEngine::quoteIdentifier(name);
}

const QLocale &german()
{
    static const QLocale locale = [] {
        QLocale l(QLocale::German, QLocale::Germany);
        l.setNumberOptions(QLocale::OmitGroupSeparator);
        return l;
    }();
    return locale;
}

QString idColumn()
{
    return QStringLiteral("QXID");
}

// The field of one control and whether the control makes it required.
bool fieldOfControl(const QObject *object, QString *name, QString *description, bool *required)
{
    const TControl *control = TControl::from(object);
    if (!control)
        return false;
    *required = false;
    if (const auto *lookup = qobject_cast<const TcxDBPopupEdit *>(object))
        *name = lookup->DataField();
    else if (const auto *edit = qobject_cast<const TcxTextEdit *>(object)) {
        *name = edit->Text();
        *required = control->TabStop();
    } else if (const auto *combo = qobject_cast<const TcxComboBox *>(object)) {
        *name = combo->Text();
        *required = control->TabStop();
    } else if (const auto *memo = qobject_cast<const TcxMemo *>(object)) {
        *name = memo->Text();
        *required = control->TabStop();
    } else if (const auto *check = qobject_cast<const TcxDBCheckBox *>(object))
        *name = check->DataField();
    else if (const auto *label = qobject_cast<const TDBLabel *>(object))
        *name = label->DataField();
    else if (const auto *group = qobject_cast<const TDBRadioGroup *>(object)) {
        *name = group->DataField();
        *required = control->TabStop();
    } else
        return false;
    *name = name->trimmed();
    *description = control->HelpKeyword().trimmed();
    return !name->isEmpty();
}

bool isEmptyValue(const QVariant &value)
{
    return value.isNull() || !value.isValid() || (value.typeId() == QMetaType::QString && value.toString().isEmpty());
}
} // namespace

TMaskTable::TMaskTable() = default;
TMaskTable::~TMaskTable() = default;

QVector<TRunField> TMaskTable::FieldsOf(const QWidget *surface)
{
    QVector<TRunField> fields;
    QHash<QString, int> seen;
    for (QObject *component : Components::components(const_cast<QWidget *>(surface))) {
        QString name;
        QString description;
        bool required = false;
        if (!fieldOfControl(component, &name, &description, &required))
            continue;
        const QString key = name.toLower();
        if (seen.contains(key)) {
            TRunField &f = fields[seen.value(key)];
            f.Required = f.Required || required;
            if (f.Description == f.Name && !description.isEmpty())
                f.Description = description;
            continue;
        }
        seen.insert(key, int(fields.size()));
        fields.append(TRunField{name, QString(), description.isEmpty() ? name : description, required});
    }
    return fields;
}

bool TMaskTable::open(const TConnectionSettings &settings, const QString &table, const TTableSettings &tableSettings,
                      const QVector<TRunField> &fields, QString *why)
{
    m_engine = nullptr;
    m_table = table.trimmed();
    m_settings = tableSettings;
    m_fields = fields;
    if (m_table.isEmpty()) {
        *why = QCoreApplication::translate("TMaskTable", "Die Maske hat keine Tabelle (Maskenoptionen).");
        return false;
    }
    m_connection = std::make_unique<TDbConnection>();
    // Run mode without a database is the preview; the status bar says why.
    if (!m_connection->Connect(settings, nullptr, /*reportFailure*/ false) || !m_connection->engine()) {
        *why = QCoreApplication::translate("TMaskTable", "Keine Verbindung zur Datenbank: %1")
                   .arg(m_connection->LastError());
        return false;
    }
    TSqlEngine *engine = m_connection->engine();
    if (!engine->tableExists(m_table)) {
        *why = QCoreApplication::translate("TMaskTable", "Die Tabelle „%1“ ist noch nicht erzeugt.").arg(m_table);
        return false;
    }
    QString error;
    m_columns = engine->columns(m_table, &error);
    m_columnNames.clear();
    for (const TColumnInfo &c : std::as_const(m_columns))
        m_columnNames.insert(c.Name.toLower(), c.Name);
    if (!m_columnNames.contains(idColumn().toLower())) {
        *why = QCoreApplication::translate("TMaskTable", "Die Tabelle „%1“ hat kein Feld „QXID“; bitte neu erzeugen.")
                   .arg(m_table);
        return false;
    }
    for (TRunField &f : m_fields) {
        f.Column = columnOf(f.Name);
        for (const TColumnInfo &c : std::as_const(m_columns)) {
            if (c.Name != f.Column)
                continue;
            f.Family = c.Family;
            const int open = c.Type.indexOf(QLatin1Char('('));
            if (f.Family == TValueFamily::Text && open > 0)
                f.MaxLength = c.Type.mid(open + 1).section(QLatin1Char(')'), 0, 0).toInt();
        }
    }
    m_indexColumn = columnOf(m_settings.Index.trimmed());
    m_locator.clear();
    if (engine->engineName() == QLatin1String("PostgreSQL"))
        m_locator = QStringLiteral("ctid::text");
    else if (engine->engineName() == QLatin1String("SQLite"))
        for (const char *name : {"rowid", "_rowid_", "oid"})
            if (m_locator.isEmpty() && columnOf(QLatin1String(name)).isEmpty())
                m_locator = QLatin1String(name);
    Macros.CounterFolder = settings.DBPfad;
    m_engine = engine;
    return refresh(why);
}

QString TMaskTable::columnOf(const QString &name) const
{
    return m_columnNames.value(name.trimmed().toLower());
}

const TRunField *TMaskTable::field(const QString &name) const
{
    for (const TRunField &f : m_fields)
        if (f.Name.compare(name.trimmed(), Qt::CaseInsensitive) == 0)
            return &f;
    return nullptr;
}

QString TMaskTable::selectList() const
{
    QStringList names;
    for (const TColumnInfo &c : m_columns)
        names << q(c.Name);
    return names.join(QStringLiteral(", "));
}

TRecord TMaskTable::recordFrom(const QSqlQuery &query) const
{
    TRecord record;
    for (int i = 0; i < m_columns.size(); ++i)
        record.Values.insert(m_columns.at(i).Name, query.value(i));
    record.Id = record.Values.value(columnOf(idColumn())).toLongLong();
    return record;
}

bool TMaskTable::refresh(QString *errorMessage)
{
    if (!m_engine)
        return false;
    QString order = q(columnOf(idColumn()));
    if (!m_indexColumn.isEmpty() && m_indexColumn != columnOf(idColumn()))
        order = q(m_indexColumn) + QStringLiteral(", ") + order;
    QSqlQuery query(m_engine->database());
    query.setForwardOnly(true);
    QString select = q(columnOf(idColumn()));
    if (!m_locator.isEmpty())
        select += QStringLiteral(", ") + m_locator;
    if (!query.exec(QStringLiteral("SELECT %1 FROM %2 ORDER BY %3").arg(select, q(m_table), order))) {
        if (errorMessage)
            *errorMessage = query.lastError().text().trimmed();
        return false;
    }
    m_ids.clear();
    m_locators.clear();
    while (query.next()) {
        m_ids.append(query.value(0).toLongLong());
        if (!m_locator.isEmpty())
            m_locators.append(query.value(1));
    }
    return true;
}

int TMaskTable::rowOf(qint64 id) const
{
    return int(m_ids.indexOf(id));
}

bool TMaskTable::readRecord(qint64 id, TRecord &record, bool lock, QString *errorMessage)
{
    const auto read = [&](const QString &where, const QVariant &key, bool *found) {
        QSqlQuery query(m_engine->database());
        QString sql = QStringLiteral("SELECT %1 FROM %2 WHERE %3").arg(selectList(), q(m_table), where);
        if (lock && m_engine->engineName() != QLatin1String("SQLite"))
            sql += QStringLiteral(" FOR UPDATE");
        query.prepare(sql);
        query.addBindValue(key);
        if (!query.exec()) {
            if (errorMessage)
                *errorMessage = query.lastError().text().trimmed();
            return false;
        }
        *found = query.next();
        record = *found ? recordFrom(query) : TRecord();
        return true;
    };
    // By the locator first; a row that is no longer there or another record
    // sends the look-up to QXID.
    bool found = false;
    const int row = rowOf(id);
    if (row >= 0 && row < m_locators.size()) {
        const bool tid = m_locator.startsWith(QLatin1String("ctid"));
        if (!read(tid ? QStringLiteral("ctid = ?::tid") : m_locator + QStringLiteral(" = ?"), m_locators.at(row), &found))
            return false;
        if (found && record.Id == id)
            return true;
    }
    return read(q(columnOf(idColumn())) + QStringLiteral(" = ?"), id, &found);
}

bool TMaskTable::fetch(int row, TRecord &record, QString *errorMessage)
{
    if (!m_engine || row < 0 || row >= count())
        return false;
    QVector<TRecord> records;
    if (!fetchRows(row, 1, records, errorMessage) || records.isEmpty() || records.first().Values.isEmpty())
        return false;
    record = records.first();
    return true;
}

bool TMaskTable::fetchRows(int first, int rows, QVector<TRecord> &records, QString *errorMessage)
{
    records.clear();
    if (!m_engine)
        return false;
    first = qMax(0, first);
    const int last = qMin(count(), first + rows);
    if (last <= first)
        return true;
    QHash<qint64, TRecord> byId;
    const auto read = [&](const QString &where, const QString &mark, const QVariantList &keys) {
        QStringList marks;
        for (int i = 0; i < keys.size(); ++i)
            marks << mark;
        QSqlQuery query(m_engine->database());
        query.setForwardOnly(true);
        query.prepare(QStringLiteral("SELECT %1 FROM %2 WHERE %3 IN (%4)")
                          .arg(selectList(), q(m_table), where, marks.join(QLatin1Char(','))));
        for (const QVariant &key : keys)
            query.addBindValue(key);
        if (!query.exec()) {
            if (errorMessage)
                *errorMessage = query.lastError().text().trimmed();
            return false;
        }
        while (query.next()) {
            TRecord r = recordFrom(query);
            byId.insert(r.Id, r);
        }
        return true;
    };
    if (m_locators.size() == m_ids.size() && !m_locator.isEmpty()) {
        QVariantList locators;
        for (int i = first; i < last; ++i)
            locators << m_locators.at(i);
        const bool tid = m_locator.startsWith(QLatin1String("ctid"));
        if (!read(tid ? QStringLiteral("ctid") : m_locator, tid ? QStringLiteral("?::tid") : QStringLiteral("?"), locators))
            return false;
    }
    // Rows moved since the list was read (changed on the server) are looked up by number.
    QVariantList missing;
    for (int i = first; i < last; ++i)
        if (!byId.contains(m_ids.at(i)))
            missing << m_ids.at(i);
    if (!missing.isEmpty() && !read(q(columnOf(idColumn())), QStringLiteral("?"), missing))
        return false;
    // In the list's order; a record deleted meanwhile is shown empty.
    for (int i = first; i < last; ++i) {
        TRecord r = byId.value(m_ids.at(i));
        r.Id = m_ids.at(i);
        records.append(r);
    }
    return true;
}

int TMaskTable::find(const QString &text, QString *errorMessage)
{
    if (!m_engine || m_indexColumn.isEmpty())
        return -1;
    const TRunField *f = nullptr;
    for (const TRunField &candidate : m_fields)
        if (candidate.Column == m_indexColumn)
            f = &candidate;
    QVariant value = text;
    QString condition = QStringLiteral("lower(CAST(%1 AS TEXT)) >= lower(?)").arg(q(m_indexColumn));
    if (f && f->Family != TValueFamily::Text && f->Family != TValueFamily::Other) {
        if (!toValue(*f, text, &value, errorMessage))
            return -1;
        condition = q(m_indexColumn) + QStringLiteral(" >= ?");
    }
    QSqlQuery query(m_engine->database());
    query.prepare(QStringLiteral("SELECT %1 FROM %2 WHERE %3 ORDER BY %4, %1 LIMIT 1")
                      .arg(q(columnOf(idColumn())), q(m_table), condition, q(m_indexColumn)));
    query.addBindValue(value);
    if (!query.exec()) {
        if (errorMessage)
            *errorMessage = query.lastError().text().trimmed();
        return -1;
    }
    return query.next() ? rowOf(query.value(0).toLongLong()) : -1;
}

QStringList TMaskTable::lookupValues(const QString &table, const QString &field, QString *errorMessage)
{
    const QString name = table.trimmed();
    auto fail = [&](const QString &why) {
        if (errorMessage)
            *errorMessage
                = QCoreApplication::translate("TMaskTable", "Die Auswahltabelle „%1“ kann nicht gelesen werden: %2")
                      .arg(name, why);
        return QStringList();
    };
    if (!m_engine || name.isEmpty())
        return fail(QCoreApplication::translate("TMaskTable", "Keine Verbindung."));
    if (!m_engine->tableExists(name))
        return fail(QCoreApplication::translate("TMaskTable", "Die Tabelle ist noch nicht erzeugt."));
    QString error;
    const QVector<TColumnInfo> columns = m_engine->columns(name, &error);
    const auto columnNamed = [&](const QString &wanted) {
        for (const TColumnInfo &c : columns)
            if (!wanted.isEmpty() && c.Name.compare(wanted.trimmed(), Qt::CaseInsensitive) == 0)
                return c.Name;
        return QString();
    };
    QString column = columnNamed(TableDescription::read(Macros.CounterFolder, name).Index);
    if (column.isEmpty())
        column = columnNamed(field);
    for (const TColumnInfo &c : columns)
        if (column.isEmpty() && !c.Name.startsWith(QLatin1String("QX"), Qt::CaseInsensitive))
            column = c.Name;
    if (column.isEmpty())
        return fail(error.isEmpty() ? QCoreApplication::translate("TMaskTable", "Sie hat keine Datenfelder.") : error);
    TRunField plain;
    plain.Name = column;
    for (const TColumnInfo &c : columns)
        if (c.Name == column)
            plain.Family = c.Family;
    QSqlQuery query(m_engine->database());
    query.setForwardOnly(true);
    if (!query.exec(QStringLiteral("SELECT DISTINCT %1 FROM %2 WHERE %1 IS NOT NULL ORDER BY %1").arg(q(column), q(name))))
        return fail(query.lastError().text().trimmed());
    QStringList values;
    while (query.next())
        values << toText(plain, query.value(0));
    return values;
}

bool TMaskTable::toValue(const TRunField &field, const QString &input, QVariant *value, QString *errorMessage) const
{
    const QString text = field.Family == TValueFamily::Text || field.Family == TValueFamily::Other ? input
                                                                                                   : input.trimmed();
    auto fail = [&](const QString &what) {
        if (errorMessage)
            *errorMessage = QCoreApplication::translate("TMaskTable", "Im Feld „%1“ ist „%2“ %3.")
                                .arg(field.Description, text, what);
        return false;
    };
    if (text.isEmpty()) {
        *value = QVariant();
        return true;
    }
    bool ok = false;
    switch (field.Family) {
    case TValueFamily::Integer: {
        const qint64 n = german().toLongLong(text, &ok);
        if (!ok)
            return fail(QCoreApplication::translate("TMaskTable", "keine ganze Zahl"));
        *value = n;
        return true;
    }
    case TValueFamily::Real:
    case TValueFamily::Decimal: {
        double d = german().toDouble(text, &ok);
        if (!ok)
            d = QLocale::c().toDouble(text, &ok);
        if (!ok)
            return fail(QCoreApplication::translate("TMaskTable", "keine Zahl"));
        if (field.Family == TValueFamily::Decimal)
            *value = QString::number(d, 'f', 4);
        else
            *value = d;
        return true;
    }
    case TValueFamily::Date: {
        for (const char *format : {"dd.MM.yyyy", "d.M.yyyy", "dd.MM.yy", "yyyy-MM-dd"}) {
            QDate d = QDate::fromString(text, QLatin1String(format));
            if (d.isValid()) {
                if (QLatin1String(format).endsWith(QLatin1String(".yy")) && d.year() < 1950)
                    d = d.addYears(100);
                *value = d;
                return true;
            }
        }
        return fail(QCoreApplication::translate("TMaskTable", "kein Datum (TT.MM.JJJJ)"));
    }
    case TValueFamily::Time:
        for (const char *format : {"HH:mm:ss", "H:mm:ss", "HH:mm", "H:mm"}) {
            const QTime t = QTime::fromString(text, QLatin1String(format));
            if (t.isValid()) {
                *value = t;
                return true;
            }
        }
        return fail(QCoreApplication::translate("TMaskTable", "keine Uhrzeit (HH:MM)"));
    case TValueFamily::Timestamp:
        for (const char *format : {"dd.MM.yyyy HH:mm:ss", "dd.MM.yyyy HH:mm", "dd.MM.yyyy", "yyyy-MM-ddTHH:mm:ss",
                                   "yyyy-MM-dd HH:mm:ss"}) {
            const QDateTime t = QDateTime::fromString(text, QLatin1String(format));
            if (t.isValid()) {
                *value = t;
                return true;
            }
        }
        return fail(QCoreApplication::translate("TMaskTable", "kein Zeitpunkt (TT.MM.JJJJ HH:MM)"));
    case TValueFamily::Boolean: {
        const QString t = text.toLower();
        if (QStringList{QStringLiteral("1"), QStringLiteral("ja"), QStringLiteral("j"), QStringLiteral("true"),
                        QStringLiteral("wahr"), QStringLiteral("yes")}
                .contains(t))
            *value = true;
        else if (QStringList{QStringLiteral("0"), QStringLiteral("nein"), QStringLiteral("n"), QStringLiteral("false"),
                             QStringLiteral("falsch"), QStringLiteral("no")}
                     .contains(t))
            *value = false;
        else
            return fail(QCoreApplication::translate("TMaskTable", "weder Ja noch Nein"));
        return true;
    }
    case TValueFamily::Text:
    case TValueFamily::Other:
        if (field.MaxLength > 0 && text.size() > field.MaxLength) {
            if (errorMessage)
                *errorMessage
                    = QCoreApplication::translate("TMaskTable", "Im Feld „%1“ sind höchstens %2 Zeichen erlaubt.")
                          .arg(field.Description)
                          .arg(field.MaxLength);
            return false;
        }
        *value = text;
        return true;
    }
    return false;
}

QString TMaskTable::toText(const TRunField &field, const QVariant &value) const
{
    if (value.isNull() || !value.isValid())
        return QString();
    switch (field.Family) {
    case TValueFamily::Real:
        return german().toString(value.toDouble(), 'g', 15);
    case TValueFamily::Decimal:
        return german().toString(value.toString().toDouble(), 'f', 2);
    case TValueFamily::Date: {
        const QDate d = value.typeId() == QMetaType::QDate ? value.toDate()
                                                           : QDate::fromString(value.toString().left(10), Qt::ISODate);
        return d.isValid() ? d.toString(QStringLiteral("dd.MM.yyyy")) : value.toString();
    }
    case TValueFamily::Time: {
        const QTime t = value.typeId() == QMetaType::QTime ? value.toTime() : QTime::fromString(value.toString(), Qt::ISODateWithMs);
        if (!t.isValid())
            return value.toString();
        return t.toString(t.second() ? QStringLiteral("HH:mm:ss") : QStringLiteral("HH:mm"));
    }
    case TValueFamily::Timestamp: {
        const QDateTime t = value.typeId() == QMetaType::QDateTime ? value.toDateTime()
                                                                   : QDateTime::fromString(value.toString(), Qt::ISODateWithMs);
        return t.isValid() ? t.toString(QStringLiteral("dd.MM.yyyy HH:mm:ss")) : value.toString();
    }
    case TValueFamily::Boolean:
        return value.toBool() ? QStringLiteral("Ja") : QStringLiteral("Nein");
    default:
        return value.toString();
    }
}

QString TMaskTable::text(const TRecord &record, const QString &fieldName) const
{
    const TRunField *f = field(fieldName);
    const QString column = columnOf(fieldName);
    if (column.isEmpty())
        return QString();
    if (f)
        return toText(*f, record.Values.value(column));
    TRunField plain;
    plain.Name = column;
    for (const TColumnInfo &c : m_columns)
        if (c.Name == column)
            plain.Family = c.Family;
    return toText(plain, record.Values.value(column));
}

bool TMaskTable::setText(TRecord &record, const QString &fieldName, const QString &text, QString *errorMessage) const
{
    const QString column = columnOf(fieldName);
    if (column.isEmpty())
        return true; // a field the table does not have keeps nothing
    TRunField f;
    if (const TRunField *known = field(fieldName))
        f = *known;
    else {
        f.Name = f.Description = column;
        f.Column = column;
        for (const TColumnInfo &c : m_columns)
            if (c.Name == column)
                f.Family = c.Family;
    }
    QVariant value;
    if (!toValue(f, text, &value, errorMessage))
        return false;
    record.Values.insert(column, value);
    return true;
}

bool TMaskTable::valuesFor(const QString &which, TRecord &record, bool onlyEmpty, QString *errorMessage)
{
    const QStringList &entries = which == QLatin1String("AutoFill") ? m_settings.AutoFill : m_settings.Default;
    for (const QString &entry : entries) {
        const QString name = TableDescription::entryField(entry).trimmed();
        const QString column = columnOf(name);
        if (column.isEmpty() || (onlyEmpty && !isEmptyValue(record.Values.value(column))))
            continue;
        QString expanded;
        if (!Macros.expand(TableDescription::entryValue(entry), &expanded, errorMessage)
            || !setText(record, name, expanded, errorMessage))
            return false;
    }
    return true;
}

bool TMaskTable::newRecord(TRecord &record, QString *errorMessage)
{
    record = TRecord();
    for (const TColumnInfo &c : std::as_const(m_columns))
        record.Values.insert(c.Name, QVariant());
    const QStringList counted = TableDescription::splitFields(m_settings.Felder);
    if (!m_settings.Dateizaehler.trimmed().isEmpty() && !counted.isEmpty()) {
        QString number;
        if (!TValueMacros::nextNumber(Macros.counterPath(m_settings.Dateizaehler.trimmed()), &number, errorMessage))
            return false;
        for (const QString &name : counted)
            if (!setText(record, name, number, errorMessage))
                return false;
    }
    return valuesFor(QStringLiteral("Default"), record, true, errorMessage)
        && valuesFor(QStringLiteral("AutoFill"), record, false, errorMessage);
}

bool TMaskTable::applyDefaults(TRecord &record, QString *errorMessage)
{
    return valuesFor(QStringLiteral("Default"), record, true, errorMessage);
}

QString TMaskTable::requiredText(const QString &description)
{
    return QCoreApplication::translate("TMaskTable", "Das Feld „%1“ muss ausgefüllt werden.").arg(description);
}

QString TMaskTable::checkRequired(const TRecord &record) const
{
    for (const TRunField &f : m_fields) {
        if (f.Required && isEmptyValue(record.Values.value(f.Column)))
            return requiredText(f.Description);
    }
    return QString();
}

bool TMaskTable::prepareForSave(TRecord &record, QString *errorMessage)
{
    if (!applyDefaults(record, errorMessage))
        return false;
    const QString missing = checkRequired(record);
    if (!missing.isEmpty()) {
        if (errorMessage)
            *errorMessage = missing;
        return false;
    }
    return true;
}

TMaskTable::TSaveResult TMaskTable::insert(TRecord &record, QString *errorMessage)
{
    if (!m_engine || !prepareForSave(record, errorMessage) || !insertRow(record, errorMessage))
        return TSaveResult::Failed;
    const qint64 id = record.Id;
    refresh(nullptr);
    readRecord(id, record, false, nullptr);
    record.Id = id;
    return TSaveResult::Saved;
}

bool TMaskTable::insertRow(TRecord &record, QString *errorMessage)
{
    QStringList names;
    QStringList marks;
    QVariantList values;
    for (auto it = record.Values.cbegin(); it != record.Values.cend(); ++it) {
        // The numbers are the engine's to give.
        if (it.key().compare(idColumn(), Qt::CaseInsensitive) == 0 || it.value().isNull())
            continue;
        names << q(it.key());
        marks << QStringLiteral("?");
        values << it.value();
    }
    QString sql = names.isEmpty() ? QStringLiteral("INSERT INTO %1 DEFAULT VALUES").arg(q(m_table))
                                  : QStringLiteral("INSERT INTO %1 (%2) VALUES (%3)")
                                        .arg(q(m_table), names.join(QStringLiteral(", ")), marks.join(QStringLiteral(", ")));
    const bool sqlite = m_engine->engineName() == QLatin1String("SQLite");
    if (!sqlite)
        sql += QStringLiteral(" RETURNING ") + q(columnOf(idColumn()));
    QSqlQuery query(m_engine->database());
    query.prepare(sql);
    for (const QVariant &v : std::as_const(values))
        query.addBindValue(v);
    if (!query.exec()) {
        if (errorMessage)
            *errorMessage
                = QCoreApplication::translate("TMaskTable", "Der Datensatz konnte nicht gespeichert werden:\n%1")
                      .arg(query.lastError().text().trimmed());
        return false;
    }
    qint64 id = -1;
    if (sqlite) {
        // The number comes from a trigger after the insert: read it by row id.
        QSqlQuery back(m_engine->database());
        back.prepare(QStringLiteral("SELECT %1 FROM %2 WHERE rowid = ?").arg(q(columnOf(idColumn())), q(m_table)));
        back.addBindValue(query.lastInsertId());
        if (back.exec() && back.next())
            id = back.value(0).toLongLong();
    } else if (query.next())
        id = query.value(0).toLongLong();
    record.Id = id;
    return true;
}

bool TMaskTable::importRecords(const QStringList &columns, const QVector<QStringList> &rows, QString *errorMessage,
                               int firstRowNumber)
{
    auto fail = [&](const QString &why) {
        if (errorMessage)
            *errorMessage = why;
        return false;
    };
    if (!m_engine)
        return fail(QCoreApplication::translate("TMaskTable", "Die Tabelle ist nicht geöffnet."));
    for (const QString &name : columns)
        if (columnOf(name).isEmpty())
            return fail(QCoreApplication::translate("TMaskTable", "Die Spalte „%1“ gibt es in der Tabelle „%2“ nicht.")
                            .arg(name, m_table));
    const QStringList counted = m_settings.Dateizaehler.trimmed().isEmpty()
        ? QStringList()
        : TableDescription::splitFields(m_settings.Felder);

    // Every row is checked before the first is written.
    QVector<TRecord> records;
    records.reserve(rows.size());
    for (int i = 0; i < rows.size(); ++i) {
        const QString where = QCoreApplication::translate("TMaskTable", "Zeile %1: ").arg(firstRowNumber + i);
        const QStringList &cells = rows.at(i);
        if (cells.size() != columns.size())
            return fail(where
                        + QCoreApplication::translate("TMaskTable", "%1 Werte statt %2.")
                              .arg(cells.size())
                              .arg(columns.size()));
        TRecord record;
        for (const TColumnInfo &c : std::as_const(m_columns))
            record.Values.insert(c.Name, QVariant());
        QString error;
        for (int c = 0; c < columns.size(); ++c)
            if (!setText(record, columns.at(c), cells.at(c), &error))
                return fail(where + error);
        if (!valuesFor(QStringLiteral("AutoFill"), record, true, &error) || !applyDefaults(record, &error))
            return fail(where + error);
        // The counted fields get their number when the row is written.
        TRecord checked = record;
        for (const QString &name : counted)
            if (isEmptyValue(checked.Values.value(columnOf(name))))
                checked.Values.insert(columnOf(name), QStringLiteral("0"));
        const QString missing = checkRequired(checked);
        if (!missing.isEmpty())
            return fail(where + missing);
        records.append(record);
    }

    QString error;
    if (!m_engine->beginTransaction(&error))
        return fail(error);
    for (int i = 0; i < records.size(); ++i) {
        TRecord &record = records[i];
        bool numbered = false;
        QString number;
        for (const QString &name : counted) {
            if (!isEmptyValue(record.Values.value(columnOf(name))))
                continue;
            if (!numbered
                && !TValueMacros::nextNumber(Macros.counterPath(m_settings.Dateizaehler.trimmed()), &number, &error)) {
                m_engine->rollback();
                return fail(error);
            }
            numbered = true;
            if (!setText(record, name, number, &error)) {
                m_engine->rollback();
                return fail(QCoreApplication::translate("TMaskTable", "Zeile %1: ").arg(firstRowNumber + i) + error);
            }
        }
        if (!insertRow(record, &error)) {
            m_engine->rollback();
            return fail(QCoreApplication::translate("TMaskTable", "Zeile %1: ").arg(firstRowNumber + i) + error);
        }
    }
    if (!m_engine->commit(&error)) {
        m_engine->rollback();
        return fail(error);
    }
    refresh(nullptr);
    return true;
}

TMaskTable::TSaveResult TMaskTable::update(const TRecord &original, TRecord &changed, QString *errorMessage)
{
    if (!m_engine || !prepareForSave(changed, errorMessage))
        return TSaveResult::Failed;
    QString error;
    if (!m_engine->beginTransaction(&error)) {
        if (errorMessage)
            *errorMessage = error;
        return TSaveResult::Failed;
    }
    // The record as it is now, held until the change is written: if it is no
    // longer what was read, someone else changed it.
    TRecord current;
    if (!readRecord(original.Id, current, true, &error)) {
        m_engine->rollback();
        if (errorMessage)
            *errorMessage = error;
        return TSaveResult::Failed;
    }
    if (current.Id < 0 || current.Values != original.Values) {
        m_engine->rollback();
        if (errorMessage)
            *errorMessage = current.Id < 0
                ? QCoreApplication::translate("TMaskTable",
                                              "Der Datensatz wurde inzwischen von einem anderen Benutzer gelöscht.")
                : QCoreApplication::translate("TMaskTable",
                                              "Der Datensatz wurde inzwischen von einem anderen Benutzer geändert.");
        return TSaveResult::Conflict;
    }
    QStringList sets;
    QVariantList values;
    for (auto it = changed.Values.cbegin(); it != changed.Values.cend(); ++it) {
        if (it.value() == original.Values.value(it.key()) && it.value().isNull() == original.Values.value(it.key()).isNull())
            continue;
        sets << q(it.key()) + QStringLiteral(" = ?");
        values << it.value();
    }
    // The row is held: its locator still leads to it, else its number does.
    const int row = rowOf(original.Id);
    const bool byLocator = row >= 0 && row < m_locators.size();
    for (int attempt = byLocator ? 0 : 1; !sets.isEmpty() && attempt < 2; ++attempt) {
        QString where = q(columnOf(idColumn())) + QStringLiteral(" = ?");
        if (attempt == 0)
            where += QStringLiteral(" AND ")
                + (m_locator.startsWith(QLatin1String("ctid")) ? QStringLiteral("ctid = ?::tid")
                                                                : m_locator + QStringLiteral(" = ?"));
        QSqlQuery query(m_engine->database());
        query.prepare(QStringLiteral("UPDATE %1 SET %2 WHERE %3").arg(q(m_table), sets.join(QStringLiteral(", ")), where));
        for (const QVariant &v : std::as_const(values))
            query.addBindValue(v);
        query.addBindValue(original.Id);
        if (attempt == 0)
            query.addBindValue(m_locators.at(row));
        if (!query.exec()) {
            error = query.lastError().text().trimmed();
            m_engine->rollback();
            if (errorMessage)
                *errorMessage
                    = QCoreApplication::translate("TMaskTable", "Der Datensatz konnte nicht gespeichert werden:\n%1")
                          .arg(error);
            return TSaveResult::Failed;
        }
        if (query.numRowsAffected() > 0)
            break;
    }
    if (!m_engine->commit(&error)) {
        m_engine->rollback();
        if (errorMessage)
            *errorMessage = error;
        return TSaveResult::Failed;
    }
    // The list is read again only when the order may have changed.
    if (m_indexColumn.isEmpty() || changed.Values.value(m_indexColumn) != original.Values.value(m_indexColumn)
        || !m_locator.startsWith(QLatin1String("rowid")))
        refresh(nullptr);
    readRecord(original.Id, changed, false, nullptr);
    return TSaveResult::Saved;
}

bool TMaskTable::remove(qint64 id, QString *errorMessage)
{
    QString error;
    if (!m_engine
        || !m_engine->exec(QStringLiteral("DELETE FROM %1 WHERE %2 = ?").arg(q(m_table), q(columnOf(idColumn()))), &error,
                           {id})) {
        if (errorMessage)
            *errorMessage = QCoreApplication::translate("TMaskTable", "Der Datensatz konnte nicht gelöscht werden:\n%1")
                                .arg(error);
        return false;
    }
    return refresh(errorMessage);
}
