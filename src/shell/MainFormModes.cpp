// Edit mode, run mode and the screen resolutions a mask is designed for.
#include "MainForm.h"

#include "FormDesigner.h"
#include "Maske.h"
#include "ObjectInspector.h"
#include "SetupDialog.h"

#include <QComboBox>
#include <QScrollArea>
#include <QScrollBar>
#include <QGuiApplication>
#include <QScreen>
#include <QSignalBlocker>
#include <QToolBar>

namespace {
// The entries of the resolution list: what the mask is designed for and how
// big its window gets. Heights leave 127 pixels of the screen to the main
// window, widths add 15 for the frame; "1152x869" keeps its text although
// its numbers follow a screen 864 pixels high.
struct Resolution
{
    int designHeight;
    int designWidth;
    int windowHeight;
    int windowWidth;
};
const Resolution kResolutions[] = {
    {473, 800, 473, 815},    {641, 1024, 641, 1039},   {737, 1152, 737, 1167},  {897, 1280, 897, 1295},
    {1073, 1600, 1073, 1615}, {953, 1920, 953, 1935}, {1073, 1920, 1073, 1935},
};
// The bars that belong to designing; the others stay in run mode.
const int kDesignBars[] = {TMainForm::EditMenuBar, TMainForm::FontBar, TMainForm::ElementsBar,
                           TMainForm::ModifyMenuBar};
} // namespace

void TMainForm::createModeCommands()
{
    connect(EditModeItem, &QAction::triggered, this, &TMainForm::EditMode1Click);
    connect(RunModeItem, &QAction::triggered, this, &TMainForm::RunMode1Click);
    connect(dxBarNormal, &QAction::triggered, this, &TMainForm::dxBarNormalClick);
    // A resolution the user picks is a change of the mask.
    connect(MaskResList, qOverload<int>(&QComboBox::currentIndexChanged), this, [this] {
        dxBar1024x768Click();
        if (TMaske *mask = activeMask())
            mask->setModified(true);
    });
}

void TMainForm::EditMode1Click()
{
    if (TMaske *mask = activeMask())
        mask->FormDesigner2()->setActive(true);
    showObjectInspector();
    for (int i : kDesignBars)
        bar(i)->setVisible(true);
}

void TMainForm::RunMode1Click()
{
    if (TMaske *mask = activeMask())
        mask->FormDesigner2()->setActive(false);
    m_objInsp->hide();
    for (int i : kDesignBars)
        bar(i)->setVisible(false);
}

void TMainForm::dxBar1024x768Click()
{
    TMaske *mask = activeMask();
    if (!mask)
        return;
    mask->setScrollRanges(width(), height() - 127);
    const int index = MaskResList->currentIndex();
    if (index < 0 || index >= int(std::size(kResolutions)))
        return;
    const Resolution &r = kResolutions[index];
    mask->setDesignHeight(r.designHeight);
    mask->setDesignWidth(r.designWidth);
    mask->resize(r.windowWidth, r.windowHeight);
    // The mask file keeps the entry as its text reads.
    const QStringList parts = MaskResList->currentText().split(QLatin1Char('x'));
    if (parts.size() == 2) {
        mask->setScreenWidth(parts.at(0).toInt());
        mask->setScreenHeight(parts.at(1).toInt());
    }
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
    {
        const QSignalBlocker block(MaskResList);
        MaskResList->setCurrentIndex(MaskResList->findText(text));
    }
    dxBar1024x768Click();
}

QString TMainForm::DatabasePath() const
{
    return m_frmSetup->DatenbankPfad();
}

QComboBox *TMainForm::resolutionList() const
{
    return MaskResList;
}
