#include "TableGenerator.h"

#include "DbConnection.h"
#include "SqlEngine.h"
#include "SqliteEngine.h"
#include "UserDialogs.h"
#include "WaitCursor.h"

#include <QCoreApplication>
#include <QDir>
#include <QCursor>
#include <QGuiApplication>

namespace {
QString withSeparator(const QString &folder)
{
    if (folder.isEmpty() || folder.endsWith(QLatin1Char('/')) || folder.endsWith(QLatin1Char('\\')))
        return folder;
    return folder + QDir::separator();
}
} // namespace

TTableGenerator::TTableGenerator(TDbConnection &connection, const TConnectionSettings &settings)
    : m_connection(connection), m_settings(settings)
{
}

void TTableGenerator::message(const QString &text, int type)
{
    UserDialogs::instance().messageDlg(Parent, text, TMsgDlgType(type), mbOK);
}

void TTableGenerator::rowError(int row, int column, const QString &text)
{
    message(QCoreApplication::translate("TTableGenerator", "Fehler in Zeile: %1\n\r%2").arg(QString::number(row), text),
            mtError);
    if (OnRowError)
        OnRowError(row, column);
}

bool TTableGenerator::checkRows(const QStringList &reservedWords)
{
    for (int i = 0; i < Rows.size(); ++i) {
        const TFieldRow &r = Rows.at(i);
        const int row = i + 1;
        const QString code = r.TypeCode.trimmed();
        bool sized = false;
        r.Size.trimmed().toInt(&sized);
        if (code == QLatin1String("A") && !sized) {
            rowError(row, 3,
                     QCoreApplication::translate(
                         "TTableGenerator", "Im Zeichnen Feldtyp fehlt die Feldgröße. Funktion wird abgebrochen."));
            return false;
        }
        if (code.isEmpty()) {
            rowError(row, 2,
                     QCoreApplication::translate("TTableGenerator",
                                                 "Der Datenbank Feldtyp fehlt. Funktion wird abgebrochen."));
            return false;
        }
        if (r.FieldName.isEmpty()) {
            rowError(row, 1,
                     QCoreApplication::translate("TTableGenerator",
                                                 "Der Datenbank Feldname fehlt. Funktion wird abgebrochen."));
            return false;
        }
        if (reservedWords.contains(r.FieldName.trimmed().toUpper())) {
            rowError(row, 1,
                     QStringLiteral("Der Feldname \"") + r.FieldName
                         + QStringLiteral("\" ist ein Reservierter SQL Befehl, bitte geben Sie ein anderen Feldname "
                                          "ein. Funktion wird abgebrochen."));
            return false;
        }
    }
    return true;
}

void TTableGenerator::buildDictionary()
{
    m_dictionary = TDataDictionary();
    for (const TFieldRow &r : Rows) {
        const int index = FieldTypes::codeIndex(r.TypeCode.trimmed());
        if (index < 0)
            continue; // an unknown code makes no field
        const TFieldDef field = FieldTypes::fieldFor(index, r.FieldName, r.Size.trimmed().toInt(), r.Description);
        m_dictionary.Fields << field;
        if (r.Key == indexMark() && !m_dictionary.KeyFields.contains(field.Name, Qt::CaseInsensitive)) {
            m_dictionary.KeyFields << field.Name;
            if (field.isText())
                m_dictionary.CaseInsensitiveKeys << field.Name;
        }
    }
    for (const TFieldDef &field : FieldTypes::internalFields())
        if (!m_dictionary.hasField(field.Name))
            m_dictionary.Fields << field;
    const QString id = QStringLiteral("QXID");
    if (!m_dictionary.KeyFields.contains(id, Qt::CaseInsensitive)) {
        m_dictionary.KeyFields << m_dictionary.Fields.at(m_dictionary.fieldIndex(id)).Name;
        if (m_dictionary.Fields.at(m_dictionary.fieldIndex(id)).isText())
            m_dictionary.CaseInsensitiveKeys << id;
    }
}

bool TTableGenerator::fail(TSqlEngine &engine, const QString &text)
{
    engine.rollback();
    message(QCoreApplication::translate("TTableGenerator", "FEHLER\n\r%1\n\rDie Tabelle %2 bleibt unverändert.")
                .arg(text, TableName),
            mtError);
    return false;
}

bool TTableGenerator::CreateDB()
{
    // 1. A table name.
    if (TableName.isEmpty()) {
        message(QCoreApplication::translate("TTableGenerator",
                                            "Achtung Tabellenname Fehlt\n\rBitte geben Sie ein Tabellenname ein."),
                mtWarning);
        if (OnTableNameMissing)
            OnTableNameMissing();
        return false;
    }

    // 2. The rows. The server's reserved words come from the server, so in
    // server mode the connection is made first.
    QStringList reserved;
    if (m_settings.DBLocal) {
        reserved = TSqliteEngine(QSqlDatabase()).reservedWords(nullptr);
    } else {
        if (!m_connection.Connect(m_settings, Parent))
            return false;
        QString error;
        reserved = m_connection.engine()->reservedWords(&error);
        if (reserved.isEmpty()) {
            message(
                QCoreApplication::translate(
                    "TTableGenerator", "Die reservierten Wörter des Datenbankservers konnten nicht gelesen werden:\n\r")
                    + error,
                mtError);
            return false;
        }
    }
    if (!checkRows(reserved))
        return false;

    // 3. Connect.
    if (m_settings.DBLocal && !m_connection.Connect(m_settings, Parent))
        return false;
    TSqlEngine &engine = *m_connection.engine();

    // 4. The table description file next to the database.
    if (Description) {
        QString error;
        if (!TableDescription::write(withSeparator(m_settings.DBPfad), TableName, *Description, &error))
            message(QCoreApplication::translate(
                        "TTableGenerator", "Die Beschreibungsdatei der Tabelle konnte nicht geschrieben werden:\n\r")
                        + error,
                    mtWarning);
    }

    // 5. Existing data: keep it for the conversion, or drop it.
    QString error;
    if (!engine.beginTransaction(&error)) {
        message(QStringLiteral("FEHLER\n\r") + error, mtError);
        return false;
    }
    m_connection.Table1.setTableName(TableName);
    m_connection.Table2.setTableName(tempTableName());
    bool converting = false;
    QHash<QString, qint64> autoInc;
    if (engine.tableExists(TableName)) {
        const bool hasData = engine.hasRecords(TableName, &error);
        if (!error.isEmpty())
            return fail(engine, error);
        if (hasData
            && UserDialogs::instance().messageDlg(
                   Parent,
                   QCoreApplication::translate("TTableGenerator",
                                               "Tabelle %1 enthält bereits Daten, sollen die Daten "
                                               "Übernommen werden?")
                       .arg(TableName),
                   mtConfirmation, mbYes | mbNo)
                == mrYes) {
            converting = true;
            if (engine.tableExists(tempTableName()) && !engine.dropTable(tempTableName(), &error))
                return fail(engine, error);
            for (const TColumnInfo &column : engine.columns(TableName, &error))
                if (const qint64 value = engine.autoIncValue(TableName, column.Name))
                    autoInc.insert(column.Name.toLower(), value);
            if (!engine.renameTable(TableName, tempTableName(), &error))
                return fail(engine, error);
        } else if (!engine.dropTable(TableName, &error)) {
            return fail(engine, error);
        }
    }

    // 6.-8. The dictionary and the table.
    {
        TWaitCursor wait;
        QCoreApplication::processEvents();
        buildDictionary();
        if (!engine.createTable(TableName, m_dictionary, &error))
            return fail(engine,
                        QCoreApplication::translate("TTableGenerator", "Die Tabelle konnte nicht erstellt werden: ")
                            + error);
        if (!converting && !engine.commit(&error))
            return fail(engine, error);
    }
    message(QCoreApplication::translate("TTableGenerator", "Datenbank %1 wurde erfolgreich erstellt").arg(TableName),
            mtInformation);
    if (!converting)
        return true;

    // 9. The old data into the new table.
    if (!convert(engine, autoInc))
        return false;
    message(QCoreApplication::translate("TTableGenerator", "Daten wurden erfolgreich konvertiert."), mtInformation);
    if (OnConverted)
        OnConverted();
    return true;
}
