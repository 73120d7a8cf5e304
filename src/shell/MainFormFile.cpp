// The File menu: new, open, close, save and exit.
#include "MainForm.h"

#include "FileNames.h"
#include "IniFile.h"
#include "Maske.h"

#include <QFile>
#include <QFileInfo>
#include <QGuiApplication>
#include <QScreen>

void TMainForm::FileNewItemClick()
{
    OpenMaskWindow(QStringLiteral("Unbenannt.dbm"));
}

void TMainForm::FileOpenItemClick()
{
    if (!OpenDialog.execute(this))
        return;
    const QStringList files = OpenDialog.files.isEmpty() ? QStringList{OpenDialog.fileName} : OpenDialog.files;
    for (const QString &file : files)
        LoadMask(file);
}

void TMainForm::LoadMask(const QString &fileName)
{
    OpenMaskWindow(fileName);
}

void TMainForm::FileCloseItemClick()
{
    if (TMaske *mask = activeMask())
        mask->close();
}

void TMainForm::FileSaveItemClick()
{
    TMaske *mask = activeMask();
    if (!mask)
        return;
    // Only the English placeholder name counts as "never saved"; a new mask
    // is called "Unbenannt.dbm" and is saved under that name where it stands.
    if (mask->Path().isEmpty() || mask->windowTitle() == QLatin1String("Untitled.dbm"))
        FileSaveAsItemClick();
    else
        SaveMask(mask->Path());
}

void TMainForm::FileSaveAsItemClick()
{
    TMaske *mask = activeMask();
    if (!mask)
        return;
    SaveDialog1.fileName = mask->windowTitle();
    if (!SaveDialog1.execute(this))
        return;
    const QString fileName = SaveDialog1.fileName;
    mask->setWindowTitle(QFileInfo(fileName).fileName());
    mask->setPath(fileName);
    SaveDialog1.initialDir = FileNames::extractFilePath(fileName);
    SaveMask(fileName);
}

bool TMainForm::SaveMask(const QString &fileName)
{
    TMaske *mask = activeMask();
    if (!mask)
        return false;

    // The previous state of the file stays behind as the backup; an older
    // backup makes way for it.
    if (QFile::exists(fileName)) {
        const QString backup = FileNames::changeFileExt(fileName, QStringLiteral(".dbm_bak"));
        QFile::remove(backup);
        QFile::rename(fileName, backup);
    }

    TMemIniFile ini;
    ini.writeString(QStringLiteral("Datenbank"), QStringLiteral("Tabelle"), mask->Tabelle());
    ini.writeString(QStringLiteral("Datenbank"), QStringLiteral("Titel"), mask->Titel());
    ini.writeInteger(QStringLiteral("Datenbank"), QStringLiteral("Typ"), mask->Typ());

    const QScreen *screen = QGuiApplication::primaryScreen();
    ini.writeInteger(QStringLiteral("DatenBank"), QStringLiteral("Pixel"), screen ? screen->depth() : 32);
    ini.writeInteger(QStringLiteral("DatenBank"), QStringLiteral("Height"), mask->DesignHeight());
    ini.writeInteger(QStringLiteral("DatenBank"), QStringLiteral("Width"), mask->DesignWidth());

    const QString style = QStringLiteral("Style");
    ini.writeInteger(style, QStringLiteral("BorderStyle"), 4);
    ini.writeInteger(style, QStringLiteral("ButtonStyle"), 0);
    ini.writeBool(style, QStringLiteral("ButtonTrans"), false);
    ini.writeInteger(style, QStringLiteral("Color"), 0);
    ini.writeBool(style, QStringLiteral("Shadow"), false);
    ini.writeBool(style, QStringLiteral("Hottrack"), false);
    ini.writeBool(style, QStringLiteral("EdgeLeft"), true);
    ini.writeBool(style, QStringLiteral("EdgeRight"), true);
    ini.writeBool(style, QStringLiteral("EdgeTop"), true);
    ini.writeBool(style, QStringLiteral("EdgeBottom"), true);

    QString error;
    if (!ini.save(fileName, &error)) {
        UserDialogs::instance().messageDlg(
            this, QStringLiteral("Die Maske „%1“ konnte nicht gespeichert werden.\n%2").arg(fileName, error), mtError,
            mbOK);
        return false;
    }
    mask->setModified(false);
    return true;
}

void TMainForm::FileExitItemClick()
{
    close();
}
