#pragma once

#include <QString>
#include <memory>
#include <optional>

class QSettings;

// The program's values in the system store of the user (on Windows the
// registry key HKEY_CURRENT_USER\Software\Tolvane\QuorBex, which the QuorBex
// installer fills). We only read them: the installer owns that key.
class RegistryStore
{
public:
    RegistryStore();
    ~RegistryStore();

    RegistryStore(const RegistryStore &) = delete;
    RegistryStore &operator=(const RegistryStore &) = delete;

    bool valueExists(const QString &name) const;
    // A missing value reads as empty text.
    QString readString(const QString &name) const;
    // A missing or malformed number or flag is an error: nothing sensible can
    // stand in for it. The reason (German) goes to errorMessage.
    std::optional<qint32> readInteger(const QString &name, QString *errorMessage = nullptr) const;
    std::optional<bool> readBool(const QString &name, QString *errorMessage = nullptr) const;

    // Makes every store created from now on read this INI file instead of the
    // system store; an empty path goes back to the system store.
    static void setFileForTests(const QString &path);

private:
    std::unique_ptr<QSettings> m_settings;
};
