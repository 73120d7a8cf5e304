#include "CheckDialog.h"

#include "Components.h"
#include "Edits.h"
#include "Maske.h"
#include "RuleDialog.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QPushButton>
#include <QVBoxLayout>

TCheckDlg::TCheckDlg(TMaske *mask, QWidget *parent)
    : QDialog(parent)
{
    setObjectName(QStringLiteral("CheckDlg"));
    setWindowTitle(QStringLiteral("Checkbox Option"));

    auto *layout = new QVBoxLayout(this);
    auto *form = new QFormLayout;
    form->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    m_feld = new QComboBox;
    m_feld->setObjectName(QStringLiteral("Feld"));
    m_feld->setMinimumWidth(180);
    form->addRow(tr("Feldname:"), m_feld);
    m_an = new QComboBox;
    m_an->setObjectName(QStringLiteral("An"));
    ColorCombo::fill(m_an);
    form->addRow(tr("Checkbox aktiv:"), m_an);
    m_aus = new QComboBox;
    m_aus->setObjectName(QStringLiteral("Aus"));
    ColorCombo::fill(m_aus);
    form->addRow(tr("Checkbox deaktiv:"), m_aus);
    layout->addLayout(form);

    auto *buttons = new QDialogButtonBox;
    QPushButton *ok = buttons->addButton(QStringLiteral("&OK"), QDialogButtonBox::AcceptRole);
    ok->setObjectName(QStringLiteral("OKBtn"));
    ok->setDefault(true);
    QPushButton *cancel = buttons->addButton(tr("&Abbrechen"), QDialogButtonBox::RejectRole);
    cancel->setObjectName(QStringLiteral("CancelBtn"));
    connect(ok, &QPushButton::clicked, this, &TCheckDlg::OKBtnClick);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    layout->addWidget(buttons);

    fillFields(mask);
}

void TCheckDlg::fillFields(TMaske *mask)
{
    if (!mask)
        return;
    for (QObject *c : Components::components(mask->document())) {
        // Exact classes: a lookup field is a text edit by descent, yet no field to colour by.
        const QLatin1String cls(c->metaObject()->className());
        if (cls == QLatin1String("TcxTextEdit"))
            m_feld->addItem(static_cast<TcxTextEdit *>(c)->Text());
        else if (cls == QLatin1String("TcxComboBox"))
            m_feld->addItem(static_cast<TcxComboBox *>(c)->Text());
        else if (cls == QLatin1String("TcxMemo"))
            m_feld->addItem(static_cast<TcxMemo *>(c)->Text().trimmed());
        else if (cls == QLatin1String("TcxDBCheckBox"))
            m_feld->addItem(static_cast<TcxDBCheckBox *>(c)->DataField());
    }
    m_feld->setCurrentIndex(-1);
}

void TCheckDlg::setHint(const QString &hint)
{
    m_hint = hint;
    if (hint.isEmpty())
        return;
    const int percent = hint.indexOf(QLatin1Char('%'));
    const QString field = percent < 0 ? hint : hint.left(percent);
    m_feld->setCurrentIndex(m_feld->findText(field, Qt::MatchExactly | Qt::MatchCaseSensitive));

    QString rest = hint;
    const int on = rest.indexOf(QStringLiteral("%ON"));
    rest = on < 0 ? QString() : rest.mid(on + 3);
    const int next = rest.indexOf(QLatin1Char('%'));
    ColorCombo::select(m_an, next < 0 ? rest : rest.left(next));
    const int off = rest.indexOf(QStringLiteral("%OFF"));
    rest = off < 0 ? QString() : rest.mid(off + 4);
    ColorCombo::select(m_aus, rest.left(30));
}

void TCheckDlg::OKBtnClick()
{
    QString field = m_feld->currentIndex() >= 0 ? m_feld->currentText() : QString();
    const int colon = field.indexOf(QLatin1Char(':'));
    if (colon >= 0)
        field = field.mid(colon + 1);
    field = field.left(20);
    m_hint = field + QStringLiteral("%ON") + ColorCombo::selected(m_an) + QStringLiteral("%OFF") +
             ColorCombo::selected(m_aus);
    accept();
}
