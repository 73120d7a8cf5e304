#include "DirectionsDialog.h"

#include <QButtonGroup>
#include <QDialogButtonBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

QDialogButtonBox *okCancelButtons(QDialog *dialog, QPushButton **ok)
{
    auto *buttons = new QDialogButtonBox(dialog);
    QPushButton *okButton = buttons->addButton(QStringLiteral("OK"), QDialogButtonBox::AcceptRole);
    okButton->setObjectName(QStringLiteral("btnOK"));
    okButton->setDefault(true);
    QPushButton *cancel = buttons->addButton(QStringLiteral("Cancel"), QDialogButtonBox::RejectRole);
    cancel->setObjectName(QStringLiteral("btnCancel"));
    QObject::connect(buttons, &QDialogButtonBox::accepted, dialog, &QDialog::accept);
    QObject::connect(buttons, &QDialogButtonBox::rejected, dialog, &QDialog::reject);
    if (ok)
        *ok = okButton;
    return buttons;
}

TDirectionsDialog::TDirectionsDialog(QWidget *parent, const QString &name, const QString &title)
    : QDialog(parent), m_groups(new QHBoxLayout)
{
    setObjectName(name);
    setWindowTitle(title);
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);
    auto *layout = new QVBoxLayout(this);
    layout->addLayout(m_groups);
    QDialogButtonBox *buttons = okCancelButtons(this, &m_ok);
    m_cancel = buttons->findChild<QPushButton *>(QStringLiteral("btnCancel"));
    layout->addWidget(buttons);
    layout->setSizeConstraint(QLayout::SetFixedSize);
}

void TDirectionsDialog::addDirection(QButtonGroup *group, const QString &title, const QString &name,
                                     const QStringList &items, QWidget *besideLast)
{
    auto *box = new QGroupBox(title, this);
    box->setObjectName(name);
    auto *layout = new QGridLayout(box);
    const int last = int(items.size()) - 1;
    for (int i = 0; i <= last; ++i) {
        auto *button = new QRadioButton(items.at(i), box);
        button->setObjectName(name + QString::number(i));
        group->addButton(button, i);
        layout->addWidget(button, i, 0, 1, i == last && besideLast ? 1 : 2);
    }
    if (besideLast) {
        besideLast->setParent(box);
        layout->addWidget(besideLast, last, 1);
        layout->setColumnStretch(1, 1);
    }
    layout->setRowStretch(last + 1, 1);
    group->button(0)->setChecked(true);
    m_groups->addWidget(box);
    // Tab goes through the groups first, then to the buttons.
    setTabOrder(besideLast ? besideLast : group->button(last), m_ok);
    setTabOrder(m_ok, m_cancel);
}
