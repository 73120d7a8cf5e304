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
    QString Felder;
    QStringList AutoFill; // "name=value" entries
    QStringList Default;  // "name=value" entries
};

namespace TableDescription {

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
