// The commands over the active mask's table: the table explorer and the
// mask settings wizard.
#include "MainForm.h"

#include "Dbexpl.h"
#include "Maske.h"
#include "SetupDialog.h"
#include "WizardDlg.h"

void TMainForm::CreateTableItemClick()
{
    TMaske *mask = activeMask();
    if (!mask)
        return;
    TDbexpl dbexpl(this);
    dbexpl.connectionSettings = [this] { return m_frmSetup->ConnectionSettings(); };
    dbexpl.FillFromMask(mask->document());
    UserDialogs::instance().execDialog(&dbexpl);
}

void TMainForm::dxBarButton7Click()
{
    TMaske *mask = activeMask();
    if (!mask)
        return;
    TMaskDocument *document = mask->document();
    const QString titel = document->Titel();
    const QString tabelle = document->Tabelle();
    TWizard wizard(document, this);
    wizard.setDefaultPfad(DatabasePath());
    if (UserDialogs::instance().execDialog(&wizard) != QDialog::Accepted)
        return;
    // Title and table are part of the mask file: the mask must be saved.
    if (document->Titel() != titel || document->Tabelle() != tabelle)
        mask->setModified(true);
    if (document->Titel() != titel)
        mask->setWindowTitle(document->Titel());
}
