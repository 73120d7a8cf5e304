#include "TableDescription.h"

#include "IniFile.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

namespace {
const QString kDatenbank = QStringLiteral("Datenbank");
const QString kDefault = QStringLiteral("Default");
const QString kAutoFill = QStringLiteral("AutoFill");

void writeEntries(TMemIniFile &ini, const QString &section, const QStringList &entries)
{
    for (const QString &entry : entries)
        ini.writeString(section, TableDescription::entryField(entry), TableDescription::entryValue(entry));
}
// A table name names a file in the database folder and nothing else: no
// folder parts, no way up, no absolute path.
bool plainName(const QString &table)
{
    return !table.isEmpty() && table != QLatin1String(".") && table != QLatin1String("..")
           && !table.contains(QLatin1Char('/')) && !table.contains(QLatin1Char('\\'))
           && !table.contains(QLatin1Char(':')) && !table.contains(QChar(0));
}

// The file lies in the folder itself, also after following links.
bool insideFolder(const QString &databaseFolder, const QString &file)
{
    const QString folder = QFileInfo(databaseFolder.isEmpty() ? QStringLiteral(".") : databaseFolder)
                               .canonicalFilePath();
    const QString real = QFileInfo(file).canonicalFilePath();
    return !folder.isEmpty() && !real.isEmpty() && QFileInfo(real).absolutePath() == folder;
}

} // namespace

namespace TableDescription {

QString entry(const QString &field, const QString &value)
{
    return field.trimmed() + QLatin1Char('=') + value;
}

QString entryField(const QString &entry)
{
    const int eq = int(entry.indexOf(QLatin1Char('=')));
    return (eq < 0 ? entry : entry.left(eq)).trimmed();
}

QString entryValue(const QString &entry)
{
    const int eq = int(entry.indexOf(QLatin1Char('=')));
    return eq < 0 ? QString() : entry.mid(eq + 1);
}

QString joinFields(const QStringList &fields)
{
    QStringList names;
    for (const QString &field : fields)
        if (!field.trimmed().isEmpty())
            names << field.trimmed();
    return names.join(QLatin1Char(','));
}

QStringList splitFields(const QString &felder)
{
    QStringList names;
    for (const QString &field : felder.split(QLatin1Char(',')))
        if (!field.trimmed().isEmpty())
            names << field.trimmed();
    return names;
}

QString fileName(const QString &databaseFolder, const QString &table)
{
    const QString older = databaseFolder + table + QStringLiteral(".Ini");
    if (QFileInfo::exists(older))
        return older;
    return databaseFolder + table + QStringLiteral(".ini");
}

TTableSettings read(const QString &databaseFolder, const QString &table)
{
    TTableSettings settings;
    if (!plainName(table))
        return settings;
    const QString file = fileName(databaseFolder, table);
    TMemIniFile ini;
    if (!QFileInfo(file).isFile() || !insideFolder(databaseFolder, file) || !ini.load(file))
        return settings;
    settings.CadPath = ini.readString(kDatenbank, QStringLiteral("CadPath"), QString());
    if (!settings.CadPath.isEmpty() && !settings.CadPath.endsWith(QLatin1Char('/'))
        && !settings.CadPath.endsWith(QLatin1Char('\\')))
        settings.CadPath += QDir::separator();
    settings.Index = ini.readString(kDatenbank, QStringLiteral("Index"), QString());
    settings.Dateizaehler = ini.readString(kDatenbank, QStringLiteral("Dateizaehler"), QString());
    settings.Fokus = ini.readString(kDatenbank, QStringLiteral("Fokus"), QString());
    settings.Felder = ini.readString(kDatenbank, QStringLiteral("Felder"), QString());
    settings.AutoFill = ini.readSectionValues(kAutoFill);
    settings.Default = ini.readSectionValues(kDefault);
    return settings;
}

bool write(const QString &databaseFolder, const QString &table, const TTableSettings &settings,
           QString *errorMessage)
{
    if (!plainName(table)) {
        if (errorMessage)
            *errorMessage
                = QCoreApplication::translate("TableDescription", "Der Tabellenname „%1“ ist kein gültiger Dateiname.")
                      .arg(table);
        return false;
    }
    // Written anew: entries removed from the mask must not linger in the file.
    TMemIniFile ini;
    ini.writeString(kDatenbank, QStringLiteral("CadPath"), settings.CadPath);
    ini.writeString(kDatenbank, QStringLiteral("Dateizaehler"), settings.Dateizaehler);
    ini.writeString(kDatenbank, QStringLiteral("Felder"), settings.Felder);
    ini.writeString(kDatenbank, QStringLiteral("Fokus"), settings.Fokus);
    ini.writeString(kDatenbank, QStringLiteral("Index"), settings.Index);
    writeEntries(ini, kDefault, settings.Default);
    writeEntries(ini, kAutoFill, settings.AutoFill);
    // In server mode nothing else has made the folder yet.
    QDir().mkpath(databaseFolder);
    return ini.save(fileName(databaseFolder, table), errorMessage);
}

} // namespace TableDescription
