#include "SetupDialog.h"

#include "FormDesigner.h"
#include "UserDialogs.h"

#include <QFrame>
#include <QPalette>
#include <QToolButton>

const TfrmSetup::SwatchDef TfrmSetup::s_swatches[swCount] = {
    {"GridColor", "GridColor", Colors::clBlack, &TCustomFormDesigner::GridColor,
     &TCustomFormDesigner::setGridColor},
    {"DesignerColor", "DesignerColor", Colors::clBtnFace, &TCustomFormDesigner::DesignerColor,
     &TCustomFormDesigner::setDesignerColor},
    {"MFill", "MFillColor", Colors::clGray, &TCustomFormDesigner::MultiGrabFill,
     &TCustomFormDesigner::setMultiGrabFill},
    {"MBorder", "MBorderColor", Colors::clGray, &TCustomFormDesigner::MultiGrabBorder,
     &TCustomFormDesigner::setMultiGrabBorder},
    {"LFill", "LFillColor", Colors::clGray, &TCustomFormDesigner::LockedGrabFill,
     &TCustomFormDesigner::setLockedGrabFill},
    {"LBorder", "LBorderColor", Colors::clBlack, &TCustomFormDesigner::LockedGrabBorder,
     &TCustomFormDesigner::setLockedGrabBorder},
    {"NFill", "NFillColor", Colors::clBlack, &TCustomFormDesigner::NormalGrabFill,
     &TCustomFormDesigner::setNormalGrabFill},
    {"NBorder", "NBorderColor", Colors::clBlack, &TCustomFormDesigner::NormalGrabBorder,
     &TCustomFormDesigner::setNormalGrabBorder},
};

QFrame *TfrmSetup::createSwatch(Swatch swatch)
{
    auto *panel = new QFrame;
    panel->setObjectName(QLatin1String("pnl") + QLatin1String(s_swatches[swatch].name));
    panel->setFrameStyle(QFrame::Panel | QFrame::Sunken);
    panel->setLineWidth(1);
    panel->setFixedSize(48, 20);
    panel->setAutoFillBackground(true);
    m_swatches[swatch] = panel;
    setSwatchColor(swatch, s_swatches[swatch].initial);
    return panel;
}

QToolButton *TfrmSetup::createSwatchButton(Swatch swatch)
{
    auto *button = new QToolButton;
    button->setObjectName(QLatin1String("btn") + QLatin1String(s_swatches[swatch].name));
    button->setText(QStringLiteral("..."));
    button->setToolTip(QStringLiteral("Farbe wählen"));
    button->setFocusPolicy(Qt::StrongFocus);
    connect(button, &QToolButton::clicked, this, [this, swatch] { chooseColor(swatch); });
    return button;
}

TColor TfrmSetup::swatchColor(Swatch swatch) const
{
    return m_swatchColors[swatch];
}

void TfrmSetup::setSwatchColor(Swatch swatch, TColor color)
{
    QFrame *panel = m_swatches[swatch];
    m_swatchColors[swatch] = color;
    QPalette palette = panel->palette();
    palette.setColor(QPalette::Window, color.toQColor());
    panel->setPalette(palette);
    panel->setToolTip(ColorToString(color));
}

void TfrmSetup::chooseColor(Swatch swatch)
{
    TFormDesigner *designer = activeDesigner ? activeDesigner() : nullptr;
    if (!designer) {
        // The dialog starts from the open mask's colour; without a mask there is none.
        UserDialogs::instance().messageDlg(this, QStringLiteral("Es ist keine Maske geöffnet."), mtInformation,
                                           mbOK);
        return;
    }
    const TColor preset = (designer->*s_swatches[swatch].get)();
    if (const std::optional<TColor> chosen = UserDialogs::instance().colorDialog(this, preset))
        setSwatchColor(swatch, *chosen);
}
