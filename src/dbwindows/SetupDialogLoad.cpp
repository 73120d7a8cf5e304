#include "SetupDialog.h"

#include "AppPaths.h"
#include "ConnectionSettings.h"
#include "IniFile.h"
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
    TConnectionSettings connection = ConnectionSettings();
    QString error;
    const bool registryOk = connection.readRegistry(&error);
    m_installDir = connection.InstallDir;
    setConnectionSettings(connection);
    if (!registryOk) {
        // The window stays usable with what was read so far; the settings
        // file is left for another session rather than mixed with a half-read registry.
        UserDialogs::instance().messageDlg(
            this, tr("Die Einstellungen konnten nicht aus der Registrierung gelesen werden: ") + error, mtError, mbOK);
        return;
    }
    const TMemIniFile ini(AppPaths::settingsFile());
    connection.readIni(ini);
    setConnectionSettings(connection);
    loadFromIni(ini);
    updateServerControls();
}

TConnectionSettings TfrmSetup::ConnectionSettings() const
{
    TConnectionSettings s;
    s.DBLocal = m_DBLocal->isChecked();
    s.DBPfad = m_DBPfad->text();
    s.ServerProtokol = ServerProtokolIndex();
    s.DBServerName = m_DBServerName->currentText();
    s.DBAlias = m_DBAlias->currentText();
    s.Userlogin = m_Userlogin->text();
    s.Userpass = m_Userpass->text();
    s.ScanTimeOut = m_ScanTimeOut->value();
    s.ScanHosts = m_scanHosts;
    s.InstallDir = m_installDir;
    return s;
}

void TfrmSetup::setConnectionSettings(const TConnectionSettings &s)
{
    // Checking one of the pair unchecks the other (an exclusive pair cannot
    // be unchecked directly).
    (s.DBLocal ? m_DBLocal : m_DBServer)->setChecked(true);
    m_DBPfad->setText(s.DBPfad);
    setServerProtokolIndex(s.ServerProtokol);
    m_DBServerName->setCurrentText(s.DBServerName);
    m_DBAlias->setCurrentText(s.DBAlias);
    m_Userlogin->setText(s.Userlogin);
    m_Userpass->setText(s.Userpass);
    m_ScanTimeOut->setValue(s.ScanTimeOut);
    m_scanHosts = s.ScanHosts;
}

void TfrmSetup::loadFromIni(const TMemIniFile &ini)
{
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
