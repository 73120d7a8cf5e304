// The Help menu.
#include "MainForm.h"

#include "AboutBox.h"

#include <memory>

void TMainForm::HelpAboutItemClick()
{
    // Made for each showing and gone afterwards, as it holds nothing worth keeping.
    std::unique_ptr<TAboutBox> box(new TAboutBox(m_versionText, this));
    UserDialogs::instance().execDialog(box.get());
}
