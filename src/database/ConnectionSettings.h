#pragma once

#include <QString>
#include <QStringList>

class TMemIniFile;

// The connection values of the settings: where the database is and how it is
// reached. Read from the family's registry key and the settings file without
// any window (the batch tool uses it as the settings window does); the
// settings window hands out the same struct from its controls.
struct TConnectionSettings
{
    bool DBLocal = true;      // embedded database (true) or server
    QString DBPfad;           // folder of the embedded database, ends with a separator when set
    int ServerProtokol = 0;   // 0 TCP/IP, 1 named pipe, 2 shared memory (-1: none chosen)
    QString DBServerName;     // "host", "host:port", "[v6]:port"; for sockets "folder" or "folder:port"
    QString DBAlias;          // database name on the server
    QString Userlogin;
    QString Userpass;
    int ScanTimeOut = 1500;   // milliseconds
    // Further hosts (and socket folders) the server scan asks, from the
    // settings file's "ScanHosts" (comma separated).
    QStringList ScanHosts;
    // The installation folder from the registry (empty without installation).
    QString InstallDir;

    // The whole load: registry first, then the settings file overriding it.
    // A registry that has an installation but lacks a number or flag stops
    // the load after the registry step; registryError then says why.
    static TConnectionSettings load(const QString &settingsFile, bool *registryOk = nullptr,
                                    QString *registryError = nullptr);

    // The registry step: only with "Installdir" present are values read.
    bool readRegistry(QString *errorMessage = nullptr);
    // The settings file step; every key missing there keeps the current value,
    // except the path, whose default is the program folder's "DB" folder.
    void readIni(const TMemIniFile &ini);
    // Writes the connection keys in their order (the designer keys follow them).
    void writeIni(TMemIniFile &ini) const;
};
