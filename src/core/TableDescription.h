#pragma once

#include <QString>
#include <QStringList>

// The table description file "<table>.ini" in the database folder: what the
// table generator writes for a mask's table and the mask loader reads back.
struct TTableSettings
{
    QString CadPath; // ends with a separator when set
    QString Index;
    QString Dateizaehler;
    QString Fokus;
    QString Felder;       // joinFields() of the fields filled from the counter
    QStringList AutoFill; // entry() texts, one per field
    QStringList Default;  // entry() texts, one per field
};

namespace TableDescription {

// One auto-fill or default value as the lists hold it and the file's key
// line reads: "field=value". The field ends at the first "=".
QString entry(const QString &field, const QString &value);
QString entryField(const QString &entry);
QString entryValue(const QString &entry);

// "Felder": the field names joined by commas, as "Kundennummer,Auftrag".
QString joinFields(const QStringList &fields);
// Blanks around names and empty names are dropped.
QStringList splitFields(const QString &felder);

// The file of a table in a database folder (the folder ends with a separator).
// An existing file spelled ".Ini" (as older folders have it) is preferred.
QString fileName(const QString &databaseFolder, const QString &table);

// A missing or unreadable file gives empty settings, and so does a table name
// that would lead out of the folder ("../x", a path, a link to elsewhere).
TTableSettings read(const QString &databaseFolder, const QString &table);

// Writes section "Datenbank" with the five values, then "Default" and
// "AutoFill" with one key per entry. Returns false with a German message when
// the file cannot be written.
bool write(const QString &databaseFolder, const QString &table, const TTableSettings &settings,
           QString *errorMessage = nullptr);

} // namespace TableDescription
