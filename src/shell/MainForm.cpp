#include "MainForm.h"

#include "AppPaths.h"
#include "FileNames.h"
#include "IniFile.h"
#include "Maske.h"
#include "PaletteIcons.h"
#include "SetupDialog.h"
#include "Version.h"

#include <QCloseEvent>
#include <QDir>
#include <QFontDatabase>
#include <QFontInfo>
#include <QLabel>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QShowEvent>
#include <QToolBar>

namespace {

const QString kPrgSection = QStringLiteral("PRG");

// Tahoma is the face the masks were laid out with; where it is missing the
// platform's own dialog font is the closest match.
QFont mainFont()
{
    QFont font = QFontDatabase::families().contains(QStringLiteral("Tahoma"))
                     ? QFont(QStringLiteral("Tahoma"))
                     : QFontDatabase::systemFont(QFontDatabase::GeneralFont);
    font.setPointSize(9);
    // A generic name ("Sans Serif") would reach the mask files, where it
    // names no font; the family it stands for is what the user sees.
    font.setFamily(QFontInfo(font).family());
    return font;
}

} // namespace

TMainForm::TMainForm(const QStringList &arguments, QWidget *parent)
    : QMainWindow(parent)
    , m_arguments(arguments)
{
    setObjectName(QStringLiteral("MainForm"));
    setWindowTitle(QStringLiteral("Ferolith 18"));
    setWindowIcon(PaletteIcons::applicationIcon());
    setFont(mainFont());
    resize(1024, 720);

    createActions();
    createMenus();
    createClientArea();
    createToolBars();
    createDesignTools();
    createModeCommands();
    FormCreate();
}

TMainForm::~TMainForm()
{
    FormDestroy();
    // The MDI area, and the masks with it, are deleted after this object has
    // stopped being a TMainForm; they must not call back into it.
    if (m_tabSet)
        disconnect(m_tabSet, nullptr, this, nullptr);
    if (m_mdiArea) {
        disconnect(m_mdiArea, nullptr, this, nullptr);
        // Closed masks still waiting for deletion are no longer in the
        // window list but are children all the same.
        for (TMaske *mask : m_mdiArea->findChildren<TMaske *>()) {
            disconnect(mask, nullptr, this, nullptr);
            mask->removeEventFilter(this);
            mask->setHost(nullptr);
        }
    }
}

void TMainForm::FormCreate()
{
    OpenDialog.kind = TFileDialog::Open;
    OpenDialog.defaultExt = QStringLiteral("dbm");
    OpenDialog.filter = tr("Quorbex Maske (*.dbm)|*.dbm;|Quorbex Maske Backup |*.dbm_bak");
    OpenDialog.allowMultiSelect = true;
    OpenDialog.fileMustExist = true;

    SaveDialog1.kind = TFileDialog::Save;
    SaveDialog1.defaultExt = QStringLiteral("dcf");
    SaveDialog1.filter = tr("Maske (*.dbm)|*.dbm");
    SaveDialog1.overwritePrompt = true;

    const QString ini = AppPaths::settingsFile();
    SaveDialog1.initialDir = Profile::readString(ini, kPrgSection, QStringLiteral("LastSave"), AppPaths::baseFolder());
    OpenDialog.fileName = Profile::readString(ini, kPrgSection, QStringLiteral("LastOpen"), QString());
    OpenDialog.initialDir = FileNames::extractFilePath(OpenDialog.fileName);
    // The masks live below the installation, or below the program where
    // there is no installation.
    if (OpenDialog.initialDir.isEmpty()) {
        const QString installDir = m_frmSetup->InstallDir();
        OpenDialog.initialDir = (installDir.isEmpty() ? BaseFolder() : AppPaths::withTrailingSeparator(installDir))
                                + QStringLiteral("Masken") + QDir::separator();
    }

    m_versionText = Version::text();
    if (m_statusVersion)
        m_statusVersion->setText(m_versionText);
    UpdateMenuItems();
}

void TMainForm::FormShow()
{
    UpdateMenuItems();
    // A mask named on the command line is opened right away; only the first counts.
    if (!m_arguments.isEmpty())
        LoadMask(m_arguments.first());
}

void TMainForm::FormClose(QCloseEvent *event)
{
    // Every changed mask is asked before any closes, so that "Abbrechen" on
    // one keeps them all. The asked mask is the active one: a "Ja" saves it.
    const QList<TMaske *> masks = MDIChildren();
    for (TMaske *mask : masks) {
        if (!mask->Modified())
            continue;
        m_mdiArea->setActiveSubWindow(mask);
        if (!mask->FormCloseQuery()) {
            event->ignore();
            return;
        }
    }
    // All agreed: closing them asks no second time.
    for (TMaske *mask : masks)
        mask->setModified(false);
    m_mdiArea->closeAllSubWindows();
    if (!visibleSubWindows().isEmpty()) {
        event->ignore();
        return;
    }

    const QString ini = AppPaths::settingsFile();
    QString error;
    if (!Profile::writeString(ini, kPrgSection, QStringLiteral("LastSave"), SaveDialog1.fileName, &error)
        || !Profile::writeString(ini, kPrgSection, QStringLiteral("LastOpen"), OpenDialog.fileName, &error))
        qWarning("%s", qPrintable(error));
    event->accept();
}

void TMainForm::FormDestroy()
{
    // Nothing is hooked into the application yet, so nothing to undo.
}

void TMainForm::showEvent(QShowEvent *event)
{
    QMainWindow::showEvent(event);
    if (!m_shown && !event->spontaneous()) {
        m_shown = true;
        FormShow();
    }
}

void TMainForm::closeEvent(QCloseEvent *event)
{
    FormClose(event);
}

QString TMainForm::BaseFolder() const
{
    return AppPaths::baseFolder();
}

QToolBar *TMainForm::bar(int index) const
{
    return index >= 0 && index < Bars.size() ? Bars.at(index) : nullptr;
}
