// Edit mode, run mode and the screen resolutions a mask is designed for.
#include "MainForm.h"

#include "FormDesigner.h"
#include "MaskResolutions.h"
#include "Maske.h"
#include "ObjectInspector.h"
#include "RunSession.h"
#include "SetupDialog.h"

#include <QApplication>
#include <QComboBox>
#include <QScrollArea>
#include <QScrollBar>
#include <QGuiApplication>
#include <QScreen>
#include <QSignalBlocker>
#include <QToolBar>

namespace {
// The bars that belong to designing; the others stay in run mode.
const int kDesignBars[] = {TMainForm::EditMenuBar, TMainForm::FontBar, TMainForm::ElementsBar,
                           TMainForm::ModifyMenuBar};
} // namespace

void TMainForm::createModeCommands()
{
    connect(EditModeItem, &QAction::triggered, this, &TMainForm::EditMode1Click);
    connect(RunModeItem, &QAction::triggered, this, &TMainForm::RunMode1Click);
    connect(dxBarNormal, &QAction::triggered, this, &TMainForm::dxBarNormalClick);
    // A resolution the user picks is a change of the mask, also the one shown.
    connect(MaskResList, &QComboBox::activated, this, [this] {
        dxBar1024x768Click();
        if (TMaske *mask = activeMask())
            mask->setModified(true);
    });
}

void TMainForm::EditMode1Click()
{
    if (TMaske *mask = activeMask()) {
        // Unsaved record changes are asked about first; Cancel stays in run mode.
        if (TRunSession *session = TRunSession::of(mask->document())) {
            if (!session->stop())
                return;
            delete session;
            updateStatusText();
        }
        mask->FormDesigner2()->setActive(true);
    }
    showObjectInspector();
    for (int i : kDesignBars)
        bar(i)->setVisible(true);
    UpdateBtn();
}

void TMainForm::RunMode1Click()
{
    TMaske *mask = activeMask();
    if (mask)
        mask->FormDesigner2()->setActive(false);
    // The inspector may have held the keyboard; hidden, it hands it back to
    // the main window so that the mask's fields take clicks and keys.
    const bool inspectorActive = m_objInsp->isActiveWindow();
    m_objInsp->hide();
    if (inspectorActive || !QApplication::activeWindow())
        activateWindow();
    for (int i : kDesignBars)
        bar(i)->setVisible(false);
    if (mask && !TRunSession::of(mask->document())) {
        // The mask's controls work on the records of its table; without one
        // the mask stays a preview and the status bar says why.
        auto *session = new TRunSession(mask->document(), this);
        addToolBar(Qt::TopToolBarArea, session->navigator());
        connect(session, &TRunSession::stateChanged, this, &TMainForm::updateStatusText);
        session->start(m_frmSetup->ConnectionSettings());
        updateStatusText();
    }
    UpdateBtn();
}

void TMainForm::dxBar1024x768Click()
{
    if (TMaske *mask = activeMask())
        MaskResolutions::apply(mask, MaskResList->currentText(), size());
}

void TMainForm::dxBarNormalClick()
{
    TMaske *mask = activeMask();
    const QScreen *screen = QGuiApplication::primaryScreen();
    if (!mask || !screen)
        return;
    // The vertical bar's width lets the last column clear it.
    const int barWidth = mask->scrollBox()->verticalScrollBar()->sizeHint().width();
    mask->setScrollRanges(screen->size().width() + barWidth, screen->size().height() - 104);
}

void TMainForm::selectResolution(TMaske *mask, const QString &text)
{
    if (mask != activeMask())
        return;
    showResolution(text);
    dxBar1024x768Click();
}

void TMainForm::showResolution(const QString &text)
{
    // A size the list does not offer joins it as long as its mask is active.
    const QSignalBlocker block(MaskResList);
    const int fixed = int(MaskResolutions::texts().size());
    while (MaskResList->count() > fixed)
        MaskResList->removeItem(MaskResList->count() - 1);
    if (MaskResList->findText(text) < 0)
        MaskResList->addItem(text);
    MaskResList->setCurrentIndex(MaskResList->findText(text));
}

QString TMainForm::DatabasePath() const
{
    return m_frmSetup->DatenbankPfad();
}

QComboBox *TMainForm::resolutionList() const
{
    return MaskResList;
}
