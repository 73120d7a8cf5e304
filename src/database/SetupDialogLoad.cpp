#include "SetupDialog.h"

#include "AppPaths.h"
#include "IniFile.h"
#include "RegistryStore.h"
#include "UserDialogs.h"
#include "ValueEncodings.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QLineEdit>
#include <QRadioButton>
#include <QSpinBox>

namespace {
const QString kSection = QStringLiteral("Configuration");

// The sizes are stored as digit texts; the spin box keeps its value for
// anything that is no number and clamps the rest to its range.
void setSizeText(QSpinBox *spin, const QString &text)
{
    if (const std::optional<qint32> value = StringToInt(text.trimmed()))
        spin->setValue(*value);
}
} // namespace

void TfrmSetup::loadSettings()
{
    QString error;
    if (!loadFromRegistry(&error)) {
        // The window stays usable with what was read so far; the settings
        // file is left for another session rather than mixed with a half-read registry.
        UserDialogs::instance().messageDlg(
            this,
            QStringLiteral("Die Einstellungen konnten nicht aus der Registrierung gelesen werden: ") + error,
            mtError, mbOK);
        return;
    }
    loadFromIni(TMemIniFile(AppPaths::settingsFile()));
    updateServerControls();
}

bool TfrmSetup::loadFromRegistry(QString *errorMessage)
{
    const RegistryStore registry;
    // Without an installation the installer has left nothing to read.
    if (!registry.valueExists(QStringLiteral("Installdir")))
        return true;
    m_installDir = registry.readString(QStringLiteral("Installdir"));
    m_DBPfad->setText(registry.readString(QStringLiteral("DBPfad")));
    const std::optional<qint32> protocol = registry.readInteger(QStringLiteral("NXProtocol"), errorMessage);
    if (!protocol)
        return false;
    setServerProtokolIndex(*protocol);
    const std::optional<bool> server = registry.readBool(QStringLiteral("NXConnection"), errorMessage);
    if (!server)
        return false;
    m_DBServer->setChecked(*server);
    m_DBServerName->setCurrentText(registry.readString(QStringLiteral("NXServer")));
    m_DBAlias->setCurrentText(registry.readString(QStringLiteral("NXAlias")));
    m_Userlogin->setText(registry.readString(QStringLiteral("LoginName")));
    m_Userpass->setText(registry.readString(QStringLiteral("LoginPass")));
    return true;
}

void TfrmSetup::loadFromIni(const TMemIniFile &ini)
{
    QString path = ini.readString(kSection, QStringLiteral("DatenbankPfad"),
                                  AppPaths::baseFolder() + QStringLiteral("DB") + QDir::separator());
    if (!path.isEmpty() && !path.endsWith(QDir::separator()))
        path += QDir::separator();
#ifdef Q_OS_WIN
    // Windows paths ignore case; the program has always shown them in capitals.
    path = path.toUpper();
#endif
    m_DBPfad->setText(path);

    m_Userlogin->setText(ini.readString(kSection, QStringLiteral("Userlogin"), m_Userlogin->text()));
    m_Userpass->setText(ini.readString(kSection, QStringLiteral("Userpasswort"), m_Userpass->text()));
    const bool local = ini.readBool(kSection, QStringLiteral("DBConnect"), m_DBLocal->isChecked());
    // Checking one of the pair unchecks the other (an exclusive pair cannot
    // be unchecked directly).
    (local ? m_DBLocal : m_DBServer)->setChecked(true);
    setServerProtokolIndex(ini.readInteger(kSection, QStringLiteral("Server_Protocol"), ServerProtokolIndex()));
    // The newer keys come last and so win over "Userlogin" and "Userpasswort".
    m_Userlogin->setText(ini.readString(kSection, QStringLiteral("LoginName"), m_Userlogin->text()));
    m_Userpass->setText(ini.readString(kSection, QStringLiteral("LoginPass"), m_Userpass->text()));
    m_DBServerName->setCurrentText(ini.readString(kSection, QStringLiteral("DBServer"), m_DBServerName->currentText()));
    m_DBAlias->setCurrentText(ini.readString(kSection, QStringLiteral("DBSAlias"), m_DBAlias->currentText()));

    m_chbShowHint->setChecked(ini.readBool(kSection, QStringLiteral("ShowHint"), true));
    m_chbSnapToGrid->setChecked(ini.readBool(kSection, QStringLiteral("SnapToGrid"), true));
    // "DisplayGrip" and "GrapSize" are misspelt, but existing settings files use them.
    m_chbDisplayGrid->setChecked(ini.readBool(kSection, QStringLiteral("DisplayGrip"), true));
    setSizeText(m_udnGrabSize, ini.readString(kSection, QStringLiteral("GrapSize"), QStringLiteral("5")));
    setSizeText(m_udnGridStep, ini.readString(kSection, QStringLiteral("GridStep"), QStringLiteral("8")));

    for (int i = 0; i < swCount; ++i) {
        const SwatchDef &def = s_swatches[i];
        setSwatchColor(Swatch(i), ini.readColor(kSection, QLatin1String(def.iniKey), def.initial));
    }
}
