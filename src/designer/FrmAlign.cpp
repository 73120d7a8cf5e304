#include "FrmAlign.h"

#include <QButtonGroup>

TfrmAlign::TfrmAlign(QWidget *parent)
    : TDirectionsDialog(parent, QStringLiteral("frmAlign"), QStringLiteral("Alignment"))
    , m_horizontal(new QButtonGroup(this))
    , m_vertical(new QButtonGroup(this))
{
    // "Center &in &window" underlines two letters; only Alt+I selects it.
    addDirection(m_horizontal, QStringLiteral("Horizontal"), QStringLiteral("rgHorizontal"),
                 {QStringLiteral("&No change"), QStringLiteral("&Left sides"), QStringLiteral("&Centers"),
                  QStringLiteral("&Right sides"), QStringLiteral("&Space equally"),
                  QStringLiteral("Center in &window")});
    addDirection(m_vertical, QStringLiteral("Vertical"), QStringLiteral("rgVertical"),
                 {QStringLiteral("No chan&ge"), QStringLiteral("&Tops"), QStringLiteral("C&enters"),
                  QStringLiteral("&Bottoms"), QStringLiteral("Space e&qually"),
                  QStringLiteral("Center &in &window")});
}

TAlignMode TfrmAlign::horizontal() const
{
    return TAlignMode(m_horizontal->checkedId());
}

TAlignMode TfrmAlign::vertical() const
{
    return TAlignMode(m_vertical->checkedId());
}
