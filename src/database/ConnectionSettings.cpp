#include "ConnectionSettings.h"

#include "AppPaths.h"
#include "IniFile.h"
#include "RegistryStore.h"

#include <QDir>

namespace {
const QString kSection = QStringLiteral("Configuration");

// The window offers three transports; other stored numbers select none or the last.
int boundedProtocol(int index)
{
    return qBound(-1, index, 2);
}
} // namespace

TConnectionSettings TConnectionSettings::load(const QString &settingsFile, bool *registryOk,
                                              QString *registryError)
{
    TConnectionSettings settings;
    const bool ok = settings.readRegistry(registryError);
    if (registryOk)
        *registryOk = ok;
    if (ok)
        settings.readIni(TMemIniFile(settingsFile));
    return settings;
}

bool TConnectionSettings::readRegistry(QString *errorMessage)
{
    const RegistryStore registry;
    // Without an installation the installer has left nothing to read.
    if (!registry.valueExists(QStringLiteral("Installdir")))
        return true;
    InstallDir = registry.readString(QStringLiteral("Installdir"));
    DBPfad = registry.readString(QStringLiteral("DBPfad"));
    const std::optional<qint32> protocol = registry.readInteger(QStringLiteral("NXProtocol"), errorMessage);
    if (!protocol)
        return false;
    ServerProtokol = boundedProtocol(*protocol);
    const std::optional<bool> server = registry.readBool(QStringLiteral("NXConnection"), errorMessage);
    if (!server)
        return false;
    // Only the server flag is stored; the settings file settles the pair.
    if (*server)
        DBLocal = false;
    DBServerName = registry.readString(QStringLiteral("NXServer"));
    DBAlias = registry.readString(QStringLiteral("NXAlias"));
    Userlogin = registry.readString(QStringLiteral("LoginName"));
    Userpass = registry.readString(QStringLiteral("LoginPass"));
    return true;
}

void TConnectionSettings::readIni(const TMemIniFile &ini)
{
    QString path = ini.readString(kSection, QStringLiteral("DatenbankPfad"),
                                  AppPaths::baseFolder() + QStringLiteral("DB") + QDir::separator());
    if (!path.isEmpty() && !path.endsWith(QDir::separator()))
        path += QDir::separator();
#ifdef Q_OS_WIN
    // Windows paths ignore case; the program has always shown them in capitals.
    path = path.toUpper();
#endif
    DBPfad = path;
    Userlogin = ini.readString(kSection, QStringLiteral("Userlogin"), Userlogin);
    Userpass = ini.readString(kSection, QStringLiteral("Userpasswort"), Userpass);
    DBLocal = ini.readBool(kSection, QStringLiteral("DBConnect"), DBLocal);
    ServerProtokol = boundedProtocol(ini.readInteger(kSection, QStringLiteral("Server_Protocol"), ServerProtokol));
    // The newer keys come last and so win over "Userlogin" and "Userpasswort".
    Userlogin = ini.readString(kSection, QStringLiteral("LoginName"), Userlogin);
    Userpass = ini.readString(kSection, QStringLiteral("LoginPass"), Userpass);
    DBServerName = ini.readString(kSection, QStringLiteral("DBServer"), DBServerName);
    DBAlias = ini.readString(kSection, QStringLiteral("DBSAlias"), DBAlias);
    const QString hosts = ini.readString(kSection, QStringLiteral("ScanHosts"), QString());
    ScanHosts.clear();
    for (const QString &host : hosts.split(QLatin1Char(','), Qt::SkipEmptyParts))
        if (!host.trimmed().isEmpty())
            ScanHosts << host.trimmed();
}

void TConnectionSettings::writeIni(TMemIniFile &ini) const
{
    ini.writeString(kSection, QStringLiteral("DatenbankPfad"), DBPfad);
    ini.writeString(kSection, QStringLiteral("Userlogin"), Userlogin);
    ini.writeString(kSection, QStringLiteral("Userpasswort"), Userpass);
    ini.writeBool(kSection, QStringLiteral("DBConnect"), DBLocal);
    ini.writeInteger(kSection, QStringLiteral("Server_Protocol"), ServerProtokol);
    // Both generations of the login keys, so that older program versions
    // reading "Userlogin"/"Userpasswort" see the same account.
    ini.writeString(kSection, QStringLiteral("LoginName"), Userlogin);
    ini.writeString(kSection, QStringLiteral("LoginPass"), Userpass);
    ini.writeString(kSection, QStringLiteral("DBServer"), DBServerName);
    ini.writeString(kSection, QStringLiteral("DBSAlias"), DBAlias);
}
