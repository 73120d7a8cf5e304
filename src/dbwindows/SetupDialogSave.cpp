#include "SetupDialog.h"

#include "AppPaths.h"
#include "ConnectionSettings.h"
#include "FormDesigner.h"
#include "IniFile.h"
#include "IniFileAccess.h"
#include "UserDialogs.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFileInfo>
#include <QLineEdit>
#include <QRadioButton>
#include <QSpinBox>

namespace {
const QString kSection = QStringLiteral("Configuration");
} // namespace

void TfrmSetup::okClicked()
{
    // Typed text counts even when the spin box has not taken it over yet.
    m_udnGridStep->interpretText();
    m_udnGrabSize->interpretText();
    QString error;
    if (!writeSettings(&error)) {
        UserDialogs::instance().messageDlg(this, error, mtError, mbOK);
        return;
    }
    accept();
}

void TfrmSetup::storeToIni(TMemIniFile &ini) const
{
    ConnectionSettings().writeIni(ini);
    ini.writeBool(kSection, QStringLiteral("ShowHint"), m_chbShowHint->isChecked());
    ini.writeBool(kSection, QStringLiteral("SnapToGrid"), m_chbSnapToGrid->isChecked());
    ini.writeBool(kSection, QStringLiteral("DisplayGrip"), m_chbDisplayGrid->isChecked());
    ini.writeString(kSection, QStringLiteral("GrapSize"), m_edtGrabSize->text());
    ini.writeString(kSection, QStringLiteral("GridStep"), m_edtGridStep->text());
    for (int i = 0; i < swCount; ++i)
        ini.writeString(kSection, QLatin1String(s_swatches[i].iniKey), ColorToString(swatchColor(Swatch(i))));
}

bool TfrmSetup::writeSettings(QString *errorMessage) const
{
    const QString fileName = AppPaths::settingsFile();
    TMemIniFile ini;
    // The rest of the file belongs to others: a file that exists but cannot
    // be read is not replaced by our section alone.
    if (QFileInfo::exists(fileName) && !ini.load(fileName, errorMessage))
        return false;
    ini.setFileName(fileName);
    storeToIni(ini);
    // The file holds the database password in plain text, so a new one is
    // made readable by its owner only before anything is written to it.
    return IniFileAccess::writeWhole(fileName, ini.toBytes(), errorMessage, true);
}

void TfrmSetup::applyTo(TFormDesigner *designer) const
{
    if (!designer)
        return;
    designer->setDisplayGrid(m_chbDisplayGrid->isChecked());
    designer->setSnapToGrid(m_chbSnapToGrid->isChecked());
    designer->setGridStep(m_udnGridStep->value());
    for (int i = 0; i < swCount; ++i)
        s_swatches[i].set(*designer, swatchColor(Swatch(i)));
    designer->setGrabSize(m_udnGrabSize->value());
    designer->setShowMoveSizeHint(m_chbShowHint->isChecked());
}

void TfrmSetup::done(int result)
{
    // Whatever way the window closes, the designer follows what it shows;
    // Cancel only means nothing is written.
    if (mainDesigner)
        applyTo(mainDesigner());
    QDialog::done(result);
}
