#include "SetupDialog.h"

#include "FormDesigner.h"
#include "UserDialogs.h"

#include <QFrame>
#include <QPalette>
#include <QToolButton>

const TfrmSetup::SwatchDef TfrmSetup::s_swatches[swCount] = {
    {"GridColor", "GridColor", Colors::clBlack, [](const TCustomFormDesigner &d) { return d.GridColor(); },
     [](TCustomFormDesigner &d, TColor c) { d.setGridColor(c); }},
    {"DesignerColor", "DesignerColor", Colors::clBtnFace, [](const TCustomFormDesigner &d) { return d.DesignerColor(); },
     [](TCustomFormDesigner &d, TColor c) { d.setDesignerColor(c); }},
    {"MFill", "MFillColor", Colors::clGray, [](const TCustomFormDesigner &d) { return d.MultiGrabFill(); },
     [](TCustomFormDesigner &d, TColor c) { d.setMultiGrabFill(c); }},
    {"MBorder", "MBorderColor", Colors::clGray, [](const TCustomFormDesigner &d) { return d.MultiGrabBorder(); },
     [](TCustomFormDesigner &d, TColor c) { d.setMultiGrabBorder(c); }},
    {"LFill", "LFillColor", Colors::clGray, [](const TCustomFormDesigner &d) { return d.LockedGrabFill(); },
     [](TCustomFormDesigner &d, TColor c) { d.setLockedGrabFill(c); }},
    {"LBorder", "LBorderColor", Colors::clBlack, [](const TCustomFormDesigner &d) { return d.LockedGrabBorder(); },
     [](TCustomFormDesigner &d, TColor c) { d.setLockedGrabBorder(c); }},
    {"NFill", "NFillColor", Colors::clBlack, [](const TCustomFormDesigner &d) { return d.NormalGrabFill(); },
     [](TCustomFormDesigner &d, TColor c) { d.setNormalGrabFill(c); }},
    {"NBorder", "NBorderColor", Colors::clBlack, [](const TCustomFormDesigner &d) { return d.NormalGrabBorder(); },
     [](TCustomFormDesigner &d, TColor c) { d.setNormalGrabBorder(c); }},
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
    button->setToolTip(tr("Farbe wählen"));
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
        UserDialogs::instance().messageDlg(this, tr("Es ist keine Maske geöffnet."), mtInformation, mbOK);
        return;
    }
    const TColor preset = s_swatches[swatch].get(*designer);
    if (const std::optional<TColor> chosen = UserDialogs::instance().colorDialog(this, preset))
        setSwatchColor(swatch, *chosen);
}
