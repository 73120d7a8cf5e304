#include "RuleDialog.h"

#include "Colors.h"
#include "MyBtn.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLineEdit>
#include <QPainter>
#include <QPixmap>
#include <QPushButton>
#include <QVBoxLayout>

namespace {

QIcon swatch(TColor color)
{
    QPixmap pm(14, 14);
    pm.fill(Qt::transparent);
    QPainter p(&pm);
    p.setPen(Qt::black);
    p.setBrush(color.toQColor());
    p.drawRect(0, 0, 13, 13);
    return QIcon(pm);
}

} // namespace

void ColorCombo::fill(QComboBox *combo)
{
    combo->clear();
    combo->setIconSize(QSize(14, 14));
    for (const QString &ident : ColorIdents())
        combo->addItem(swatch(StringToColor(ident).value_or(Colors::clNone)), ident);
    combo->setCurrentIndex(-1);
}

void ColorCombo::select(QComboBox *combo, const QString &name)
{
    const std::optional<TColor> color = StringToColor(name.trimmed());
    if (!color) {
        combo->setCurrentIndex(-1);
        return;
    }
    const QString text = ColorToString(*color);
    int index = combo->findText(text);
    if (index < 0) {
        combo->addItem(swatch(*color), text);
        index = combo->count() - 1;
    }
    combo->setCurrentIndex(index);
}

QString ColorCombo::selected(const QComboBox *combo)
{
    if (combo->currentIndex() < 0)
        return QString();
    const std::optional<TColor> color = StringToColor(combo->currentText());
    return color ? ColorToString(*color) : QString();
}

TfrmRule::TfrmRule(QWidget *parent)
    : QDialog(parent)
{
    setObjectName(QStringLiteral("frmRule"));
    setWindowTitle(tr("Regel definieren"));

    auto *layout = new QVBoxLayout(this);
    auto *form = new QFormLayout;
    form->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    m_regel = new QLineEdit;
    m_regel->setObjectName(QStringLiteral("Regel"));
    m_regel->setMinimumWidth(220);
    form->addRow(tr("Regel:"), m_regel);
    m_feld = new QLineEdit;
    m_feld->setObjectName(QStringLiteral("Feld"));
    form->addRow(tr("Feld:"), m_feld);
    m_farbe = new QComboBox;
    m_farbe->setObjectName(QStringLiteral("Farbe"));
    ColorCombo::fill(m_farbe);
    form->addRow(tr("Farbe:"), m_farbe);
    m_zeile = new QCheckBox(tr("auf Datensatz anwenden"));
    m_zeile->setObjectName(QStringLiteral("Zeile"));
    form->addRow(QString(), m_zeile);
    layout->addLayout(form);

    auto *buttons = new QDialogButtonBox;
    QPushButton *ok = buttons->addButton(QStringLiteral("OK"), QDialogButtonBox::AcceptRole);
    ok->setObjectName(QStringLiteral("OKBtn"));
    ok->setDefault(true);
    QPushButton *cancel = buttons->addButton(tr("Abbruch"), QDialogButtonBox::RejectRole);
    cancel->setObjectName(QStringLiteral("CancelBtn"));
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    layout->addWidget(buttons);
}

void TfrmRule::setFromButton(const TMaskBtn *button)
{
    m_regel->setText(button->RegelAusdruck());
    m_feld->setText(button->RegelFeld());
    ColorCombo::select(m_farbe, button->RegelFarbe());
    m_zeile->setChecked(button->RegelZeile());
}

void TfrmRule::writeToButton(TMaskBtn *button) const
{
    button->setRegelAusdruck(m_regel->text());
    button->setRegelFeld(m_feld->text());
    button->setRegelFarbe(ColorCombo::selected(m_farbe));
    button->setRegelZeile(m_zeile->isChecked());
}
