#include "AlignDialog.h"

#include <QButtonGroup>
#include <QDialogButtonBox>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

namespace {

// One radio group; the item index is the TAlignMode value.
QGroupBox *radioGroup(const QString &title, const QString &name, const QStringList &items,
                      QButtonGroup *group, QWidget *parent)
{
    auto *box = new QGroupBox(title, parent);
    box->setObjectName(name);
    auto *layout = new QVBoxLayout(box);
    for (int i = 0; i < items.size(); ++i) {
        auto *button = new QRadioButton(items.at(i), box);
        button->setObjectName(name + QString::number(i));
        group->addButton(button, i);
        layout->addWidget(button);
    }
    layout->addStretch();
    group->button(amNoChange)->setChecked(true);
    return box;
}

} // namespace

TfrmAlign::TfrmAlign(QWidget *parent)
    : QDialog(parent)
    , m_horizontal(new QButtonGroup(this))
    , m_vertical(new QButtonGroup(this))
{
    setObjectName(QStringLiteral("frmAlign"));
    setWindowTitle(QStringLiteral("Alignment"));
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);

    // "Center &in &window" underlines two letters; only Alt+I selects it.
    QGroupBox *horizontalBox = radioGroup(QStringLiteral("Horizontal"), QStringLiteral("rgHorizontal"),
                                          {QStringLiteral("&No change"), QStringLiteral("&Left sides"),
                                           QStringLiteral("&Centers"), QStringLiteral("&Right sides"),
                                           QStringLiteral("&Space equally"), QStringLiteral("Center in &window")},
                                          m_horizontal, this);
    QGroupBox *verticalBox = radioGroup(QStringLiteral("Vertical"), QStringLiteral("rgVertical"),
                                        {QStringLiteral("No chan&ge"), QStringLiteral("&Tops"),
                                         QStringLiteral("C&enters"), QStringLiteral("&Bottoms"),
                                         QStringLiteral("Space e&qually"), QStringLiteral("Center &in &window")},
                                        m_vertical, this);

    auto *buttons = new QDialogButtonBox(this);
    QPushButton *ok = buttons->addButton(QStringLiteral("OK"), QDialogButtonBox::AcceptRole);
    ok->setObjectName(QStringLiteral("btnOK"));
    ok->setDefault(true);
    QPushButton *cancel = buttons->addButton(QStringLiteral("Cancel"), QDialogButtonBox::RejectRole);
    cancel->setObjectName(QStringLiteral("btnCancel"));
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);

    auto *groups = new QHBoxLayout;
    groups->addWidget(horizontalBox);
    groups->addWidget(verticalBox);

    auto *layout = new QVBoxLayout(this);
    layout->addLayout(groups);
    layout->addWidget(buttons);
    layout->setSizeConstraint(QLayout::SetFixedSize);
}

TAlignMode TfrmAlign::horizontal() const
{
    return TAlignMode(m_horizontal->checkedId());
}

TAlignMode TfrmAlign::vertical() const
{
    return TAlignMode(m_vertical->checkedId());
}

void TfrmAlign::setHorizontal(TAlignMode mode)
{
    if (QAbstractButton *button = m_horizontal->button(mode))
        button->setChecked(true);
}

void TfrmAlign::setVertical(TAlignMode mode)
{
    if (QAbstractButton *button = m_vertical->button(mode))
        button->setChecked(true);
}
