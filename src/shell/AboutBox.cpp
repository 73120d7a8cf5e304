#include "AboutBox.h"

#include "PaletteIcons.h"

#include <QFrame>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

TAboutBox::TAboutBox(const QString &versionText, QWidget *parent)
    : QDialog(parent)
{
    setObjectName(QStringLiteral("AboutBox"));
    setWindowTitle(tr("Programminfo"));
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);

    auto *panel = new QFrame(this);
    panel->setObjectName(QStringLiteral("Panel1"));
    panel->setFrameShape(QFrame::StyledPanel);
    panel->setFrameShadow(QFrame::Sunken);
    panel->setAutoFillBackground(true);
    panel->setMinimumWidth(300);

    ProgramIcon = new QLabel(panel);
    ProgramIcon->setObjectName(QStringLiteral("ProgramIcon"));
    ProgramIcon->setPixmap(PaletteIcons::applicationIcon().pixmap(48, 48));
    ProgramIcon->setAlignment(Qt::AlignTop);

    ProductName = new QLabel(QStringLiteral("Ferolith"), panel);
    ProductName->setObjectName(QStringLiteral("ProductName"));
    QFont big = font();
    big.setPointSizeF(font().pointSizeF() * 2.2);
    big.setBold(true);
    ProductName->setFont(big);

    Copyright = new QLabel(tr("für Quorbex 18.x"), panel);
    Copyright->setObjectName(QStringLiteral("Copyright"));

    Version = new QLabel(versionText, panel);
    Version->setObjectName(QStringLiteral("Version"));
    Version->setTextInteractionFlags(Qt::TextSelectableByMouse);

    auto *grid = new QGridLayout(panel);
    grid->setContentsMargins(16, 16, 24, 16);
    grid->setHorizontalSpacing(16);
    grid->addWidget(ProgramIcon, 0, 0, 3, 1);
    grid->addWidget(ProductName, 0, 1);
    grid->addWidget(Copyright, 1, 1);
    grid->addWidget(Version, 2, 1);
    grid->setRowMinimumHeight(3, 8);

    OKButton = new QPushButton(QStringLiteral("&OK"), this);
    OKButton->setObjectName(QStringLiteral("OKButton"));
    OKButton->setDefault(true);
    connect(OKButton, &QPushButton::clicked, this, &QDialog::accept);

    auto *buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(OKButton);
    buttons->addStretch();

    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(8, 8, 8, 8);
    layout->addWidget(panel);
    layout->addLayout(buttons);
    layout->setSizeConstraint(QLayout::SetFixedSize);
}

TAboutBox::~TAboutBox() = default;
