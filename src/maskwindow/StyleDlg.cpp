#include "StyleDlg.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QMouseEvent>
#include <QPushButton>
#include <QVBoxLayout>

#include "EditStyle.h"
#include "RuleDialog.h"
#include "UserDialogs.h"

namespace {

QComboBox *listCombo(const QString &name, const QStringList &items)
{
    auto *combo = new QComboBox;
    combo->setObjectName(name);
    combo->addItems(items);
    return combo;
}

QCheckBox *checkBox(const QString &name, const QString &caption)
{
    auto *box = new QCheckBox(caption);
    box->setObjectName(name);
    return box;
}

void addRow(QFormLayout *form, const QString &label, QWidget *field, QWidget *buddy)
{
    auto *l = new QLabel(label);
    l->setBuddy(buddy);
    form->addRow(l, field);
}

} // namespace

TChangeStyle::TChangeStyle(QWidget *parent) : QDialog(parent)
{
    setObjectName(QStringLiteral("ChangeStyle"));
    setWindowTitle(tr("Stile ändern"));

    m_borderColor = new QComboBox;
    m_borderColor->setObjectName(QStringLiteral("edBorderColor"));
    ColorCombo::fill(m_borderColor);
    m_borderColor->installEventFilter(this);
    m_borderColorButton = new QPushButton(QStringLiteral("..."));
    m_borderColorButton->setObjectName(QStringLiteral("btnBorderColor"));
    m_borderColorButton->setFixedWidth(28);
    m_borderColorButton->setAutoDefault(false);
    m_borderStyle = listCombo(QStringLiteral("edBorderStyle"),
                              {QStringLiteral("ebsNone"), QStringLiteral("ebsSingle"), QStringLiteral("ebsThick"),
                               QStringLiteral("ebsFlat"), QStringLiteral("ebs3D"), QStringLiteral("ebsUltraFlat"),
                               QStringLiteral("ebsOffice11")});
    m_buttonStyle = listCombo(QStringLiteral("edButtonViewStyle"),
                              {QStringLiteral("btsDefault"), QStringLiteral("bts3D"), QStringLiteral("btsFlat"),
                               QStringLiteral("btsSimple"), QStringLiteral("btsHotFlat"),
                               QStringLiteral("btsUltraFlat"), QStringLiteral("btsOffice11")});
    m_buttonTransparency = listCombo(QStringLiteral("ButtonTransparence"),
                                     {QStringLiteral("ebtNone"), QStringLiteral("ebtInactive"),
                                      QStringLiteral("ebtAlways"), QStringLiteral("ebtHideInactive"),
                                      QStringLiteral("ebtHideUnselected")});
    m_left = checkBox(QStringLiteral("cbLeft"), tr("Links"));
    m_top = checkBox(QStringLiteral("cbTop"), tr("Oben"));
    m_right = checkBox(QStringLiteral("cbRight"), tr("Rechts"));
    m_bottom = checkBox(QStringLiteral("cbBottom"), tr("Unten"));
    m_hotTrack = checkBox(QStringLiteral("cbHotTrack"), QStringLiteral("HotTrack"));
    m_shadow = checkBox(QStringLiteral("cbShadow"), tr("Schatten"));
    m_gradient = checkBox(QStringLiteral("cbGradient"), tr("Verlauf"));

    auto *border = new QGroupBox(tr("Rand"));
    auto *borderForm = new QFormLayout(border);
    auto *colorRow = new QHBoxLayout;
    colorRow->setSpacing(2);
    colorRow->addWidget(m_borderColor, 1);
    colorRow->addWidget(m_borderColorButton);
    auto *colorField = new QWidget;
    colorField->setLayout(colorRow);
    colorRow->setContentsMargins(0, 0, 0, 0);
    addRow(borderForm, tr("&Farbe"), colorField, m_borderColor);
    addRow(borderForm, tr("St&ile"), m_borderStyle, m_borderStyle);

    auto *buttons = new QGroupBox(tr("Schalter"));
    auto *buttonForm = new QFormLayout(buttons);
    addRow(buttonForm, tr("S&tile"), m_buttonStyle, m_buttonStyle);
    addRow(buttonForm, tr("Transparen&z"), m_buttonTransparency, m_buttonTransparency);

    auto *edges = new QGroupBox(tr("Kanten"));
    auto *edgeGrid = new QGridLayout(edges);
    edgeGrid->addWidget(m_left, 0, 0);
    edgeGrid->addWidget(m_top, 0, 1);
    edgeGrid->addWidget(m_right, 1, 0);
    edgeGrid->addWidget(m_bottom, 1, 1);

    auto *other = new QGroupBox(tr("Andere"));
    auto *otherBox = new QVBoxLayout(other);
    otherBox->addWidget(m_hotTrack);
    otherBox->addWidget(m_shadow);
    otherBox->addWidget(m_gradient);

    auto *ok = new QPushButton(QStringLiteral("&OK"));
    ok->setObjectName(QStringLiteral("btnOK"));
    ok->setDefault(true);
    auto *cancel = new QPushButton(tr("&Abbrechen"));
    cancel->setObjectName(QStringLiteral("btnCancel"));
    auto *buttonRow = new QHBoxLayout;
    buttonRow->addStretch();
    buttonRow->addWidget(ok);
    buttonRow->addWidget(cancel);

    auto *grid = new QGridLayout;
    grid->addWidget(border, 0, 0);
    grid->addWidget(buttons, 0, 1);
    grid->addWidget(edges, 1, 0);
    grid->addWidget(other, 1, 1);
    auto *layout = new QVBoxLayout(this);
    layout->addLayout(grid);
    layout->addLayout(buttonRow);

    // Each change shows on the mask at once.
    auto apply = [this](auto &&change) {
        if (!m_reading && m_controller)
            change(m_controller.data());
    };
    connect(m_borderColor, &QComboBox::currentIndexChanged, this, [this, apply](int index) {
        if (index < 0)
            return;
        if (const std::optional<TColor> color = StringToColor(m_borderColor->itemText(index)))
            apply([&](TcxEditStyleController *c) { c->setBorderColor(*color); });
    });
    connect(m_borderStyle, &QComboBox::currentIndexChanged, this, [apply](int index) {
        if (index >= 0)
            apply([&](TcxEditStyleController *c) { c->setBorderStyle(TcxEditBorderStyle(index)); });
    });
    connect(m_buttonStyle, &QComboBox::currentIndexChanged, this, [apply](int index) {
        if (index >= 0)
            apply([&](TcxEditStyleController *c) { c->setButtonStyle(TcxEditButtonStyle(index)); });
    });
    connect(m_buttonTransparency, &QComboBox::currentIndexChanged, this, [apply](int index) {
        if (index >= 0)
            apply([&](TcxEditStyleController *c) {
                c->setButtonTransparency(TcxEditButtonTransparence(index));
            });
    });
    connect(m_left, &QCheckBox::toggled, this, [this](bool on) { edgeToggled(bLeft, on); });
    connect(m_top, &QCheckBox::toggled, this, [this](bool on) { edgeToggled(bTop, on); });
    connect(m_right, &QCheckBox::toggled, this, [this](bool on) { edgeToggled(bRight, on); });
    connect(m_bottom, &QCheckBox::toggled, this, [this](bool on) { edgeToggled(bBottom, on); });
    connect(m_hotTrack, &QCheckBox::toggled, this,
            [apply](bool on) { apply([&](TcxEditStyleController *c) { c->setHotTrack(on); }); });
    connect(m_shadow, &QCheckBox::toggled, this,
            [apply](bool on) { apply([&](TcxEditStyleController *c) { c->setShadow(on); }); });
    connect(m_gradient, &QCheckBox::toggled, this,
            [apply](bool on) { apply([&](TcxEditStyleController *c) { c->setGradient(on); }); });
    connect(m_borderColorButton, &QPushButton::clicked, this, &TChangeStyle::chooseColor);
    // Both only close: the changes are already made.
    connect(ok, &QPushButton::clicked, this, &QDialog::accept);
    connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
}

void TChangeStyle::setStyleController(TcxEditStyleController *controller)
{
    m_controller = controller;
    if (isVisible())
        readController();
}

void TChangeStyle::showEvent(QShowEvent *event)
{
    readController();
    QDialog::showEvent(event);
}

bool TChangeStyle::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_borderColor && event->type() == QEvent::MouseButtonDblClick) {
        m_borderColor->hidePopup();
        chooseColor();
        return true;
    }
    return QDialog::eventFilter(watched, event);
}

void TChangeStyle::readController()
{
    if (!m_controller)
        return;
    m_reading = true;
    const TcxEditStyleController *c = m_controller;
    selectColor(c->BorderColor());
    m_borderStyle->setCurrentIndex(int(c->BorderStyle()));
    m_buttonStyle->setCurrentIndex(int(c->ButtonStyle()));
    m_buttonTransparency->setCurrentIndex(int(c->ButtonTransparency()));
    const int edges = c->Edges();
    m_left->setChecked(edges & bLeft);
    m_top->setChecked(edges & bTop);
    m_right->setChecked(edges & bRight);
    m_bottom->setChecked(edges & bBottom);
    m_hotTrack->setChecked(c->HotTrack());
    m_shadow->setChecked(c->Shadow());
    m_gradient->setChecked(c->Gradient());
    m_reading = false;
}

void TChangeStyle::selectColor(TColor color)
{
    // A colour without a name gets an entry of its own.
    ColorCombo::select(m_borderColor, ColorToString(color));
}

void TChangeStyle::chooseColor()
{
    const TColor current = m_controller ? m_controller->BorderColor() : Colors::clDefault;
    const std::optional<TColor> chosen = UserDialogs::instance().colorDialog(this, current);
    if (!chosen)
        return;
    selectColor(*chosen);
    // Choosing the entry already shown emits no change; the colour is set anyway.
    if (m_controller && m_controller->BorderColor() != *chosen)
        m_controller->setBorderColor(*chosen);
}

void TChangeStyle::edgeToggled(int bit, bool on)
{
    if (m_reading || !m_controller)
        return;
    const int edges = m_controller->Edges();
    m_controller->setEdges(on ? edges | bit : edges & ~bit);
}
