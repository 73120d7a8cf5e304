// The File menu: new, open, close, save and exit.
#include "MainForm.h"

#include "FileNames.h"
#include "FormDesigner.h"
#include "MaskLoader.h"
#include "MaskWriter.h"
#include "Maske.h"
#include "RunSession.h"

#include <QFileInfo>
#include <QPointer>

void TMainForm::FileNewItemClick()
{
    OpenMaskWindow(QStringLiteral("Unbenannt.dbm"));
}

void TMainForm::FileOpenItemClick()
{
    // The engine stays out of the dialog's way; the mask gets it back when
    // the dialog is gone.
    QPointer<TMaske> previous = activeMask();
    const bool wasActive = previous && previous->FormDesigner2()->Active();
    if (previous)
        previous->FormDesigner2()->setActive(false);
    const bool chosen = OpenDialog.execute(this);
    if (previous)
        previous->FormDesigner2()->setActive(wasActive);
    if (!chosen)
        return;
    const QStringList files = OpenDialog.files.isEmpty() ? QStringList{OpenDialog.fileName} : OpenDialog.files;
    for (const QString &file : files)
        LoadMask(file);
}

TMaske *TMainForm::LoadMask(const QString &fileName)
{
    if (fileName.isEmpty())
        return nullptr;
    // Never refused: a file that cannot be read gives an empty mask, as the
    // runtime would show it.
    TMaske *mask = OpenMaskWindow(fileName);
    // No handles while the controls are made.
    mask->FormDesigner2()->setActive(false);
    MaskLoader::LoadMask(*mask->document(), fileName, DatabasePath(), nullptr, [this, mask](TMaskDocument &document) {
        selectResolution(mask, QStringLiteral("%1x%2").arg(document.ScreenWidth()).arg(document.ScreenHeight()));
    });
    mask->documentLoaded();
    UpdateComponents();
    mask->setModified(false);
    mask->FormDesigner2()->setActive(true);
    showWhole(mask);
    return mask;
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
    // A mask in run mode stays without its designer.
    const bool wasActive = mask->FormDesigner2()->Active();
    mask->FormDesigner2()->setActive(false);
    const bool chosen = SaveDialog1.execute(this);
    mask->FormDesigner2()->setActive(wasActive);
    if (!chosen)
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
    mask->scrollToOrigin(); // the user sees the mask as it is stored
    QString error;
    bool saved = false;
    // In run mode the controls show record data: the design is what is saved.
    const auto save = [&] { saved = MaskWriter::SaveMask(*mask->document(), fileName, &error); };
    if (TRunSession *session = TRunSession::of(mask->document()))
        session->withDesign(save);
    else
        save();
    if (!saved) {
        UserDialogs::instance().messageDlg(this, error, mtError, mbOK);
        return false;
    }
    mask->setModified(false);
    return true;
}

void TMainForm::FileExitItemClick()
{
    close();
}
