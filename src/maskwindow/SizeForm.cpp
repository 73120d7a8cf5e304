#include "SizeForm.h"

#include <QButtonGroup>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>
#include <memory>

#include "FormDesigner.h"
#include "UserDialogs.h"

namespace {

constexpr int kValueItem = 3; // "Breite:" / "Höhe:": the typed value counts

} // namespace

TSizeForm::TSizeForm(QWidget *parent)
    : QDialog(parent)
    , m_horizontal(new QButtonGroup(this))
    , m_vertical(new QButtonGroup(this))
    , m_sizeWidth(new QLineEdit)
    , m_sizeHeight(new QLineEdit)
{
    setObjectName(QStringLiteral("SizeForm"));
    setWindowTitle(tr("Größe anpassen"));
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);

    m_sizeWidth->setObjectName(QStringLiteral("SizeWidth"));
    m_sizeHeight->setObjectName(QStringLiteral("SizeHeight"));
    QGroupBox *horizontal
        = makeGroup(QStringLiteral("HorizontalSize"), tr(" Breite "),
                    {tr("Keine Änderung"), tr("aufs kleinste anpassen"), tr("aufs größste anpassen"), tr("Breite:")},
                    m_horizontal, m_sizeWidth);
    QGroupBox *vertical
        = makeGroup(QStringLiteral("VerticalSize"), tr(" Höhe "),
                    {tr("Keine Änderung"), tr("aufs kleinste anpassen"), tr("aufs größste anpassen"), tr("Höhe:")},
                    m_vertical, m_sizeHeight);

    auto *ok = new QPushButton(QStringLiteral("&OK"), this);
    ok->setObjectName(QStringLiteral("OKBtn"));
    ok->setDefault(true);
    auto *cancel = new QPushButton(tr("&Abbrechen"), this);
    cancel->setObjectName(QStringLiteral("CancelBtn"));
    connect(ok, &QPushButton::clicked, this, &TSizeForm::accept);
    connect(cancel, &QPushButton::clicked, this, &TSizeForm::reject);

    auto *groups = new QHBoxLayout;
    groups->addWidget(horizontal);
    groups->addWidget(vertical);
    auto *buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(ok);
    buttons->addWidget(cancel);
    auto *layout = new QVBoxLayout(this);
    layout->addLayout(groups);
    layout->addLayout(buttons);
    layout->setSizeConstraint(QLayout::SetFixedSize);
}

QGroupBox *TSizeForm::makeGroup(const QString &name, const QString &title, const QStringList &items,
                                QButtonGroup *group, QLineEdit *edit)
{
    auto *box = new QGroupBox(title, this);
    box->setObjectName(name);
    auto *grid = new QGridLayout(box);
    for (int i = 0; i < items.size(); ++i) {
        auto *radio = new QRadioButton(items.at(i), box);
        radio->setObjectName(name + QString::number(i));
        group->addButton(radio, i);
        grid->addWidget(radio, i, 0, 1, i == kValueItem ? 1 : 2);
    }
    edit->setParent(box);
    edit->setMaxLength(9);
    edit->setFixedWidth(edit->fontMetrics().horizontalAdvance(QStringLiteral("00000000")) + 12);
    edit->installEventFilter(this);
    grid->addWidget(edit, kValueItem, 1, Qt::AlignLeft);
    grid->setColumnStretch(1, 1);
    return box;
}

int TSizeForm::HorizontalIndex() const
{
    return m_horizontal->checkedId();
}

int TSizeForm::VerticalIndex() const
{
    return m_vertical->checkedId();
}

QString TSizeForm::widthText() const
{
    return m_sizeWidth->text();
}

QString TSizeForm::heightText() const
{
    return m_sizeHeight->text();
}

void TSizeForm::showEvent(QShowEvent *event)
{
    // Every use starts afresh: the dialog is kept between uses.
    m_horizontal->button(0)->setChecked(true);
    m_vertical->button(0)->setChecked(true);
    m_sizeWidth->setText(QStringLiteral("0"));
    m_sizeHeight->setText(QStringLiteral("0"));
    QDialog::showEvent(event);
}

bool TSizeForm::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::KeyPress && (watched == m_sizeWidth || watched == m_sizeHeight)) {
        auto *key = static_cast<QKeyEvent *>(event);
        if (key->key() == Qt::Key_Backspace)
            return false;
        // Only keys that type a character are judged: cursor keys, Tab,
        // Enter and Escape keep working.
        const QString text = key->text();
        if (text.isEmpty() || !text.at(0).isPrint())
            return false;
        return !(text.size() == 1 && text.at(0) >= QLatin1Char('0') && text.at(0) <= QLatin1Char('9'));
    }
    return QDialog::eventFilter(watched, event);
}

bool TSizeForm::checkValue(QLineEdit *edit, const QString &invalid, const QString &notPositive)
{
    bool isNumber = false;
    const int value = edit->text().toInt(&isNumber);
    if (!isNumber) {
        UserDialogs::instance().messageDlg(this, invalid, mtInformation, mbOK);
        return false;
    }
    if (value < 1) {
        UserDialogs::instance().messageDlg(this, notPositive, mtInformation, mbOK);
        return false;
    }
    return true;
}

void TSizeForm::accept()
{
    bool canClose = true;
    if (HorizontalIndex() == kValueItem)
        canClose = checkValue(m_sizeWidth, QStringLiteral("Invalid width entry.  Please re-enter."),
                              QStringLiteral("Width must be greater than 0"));
    const bool widthRefused = !canClose;
    // One complaint at a time: the height is only looked at once the width passed.
    if (canClose && VerticalIndex() == kValueItem) {
        canClose = checkValue(m_sizeHeight, QStringLiteral("Invalid height entry.  Please re-enter."),
                              QStringLiteral("Height must be greater than 0"));
        if (!canClose)
            m_sizeHeight->setFocus(Qt::OtherFocusReason);
    }
    if (widthRefused)
        m_sizeWidth->setFocus(Qt::OtherFocusReason);
    if (canClose)
        QDialog::accept();
}

void runSizeDialog(QWidget *parent, TCustomFormDesigner *designer)
{
    if (!designer || designer->ControlCount() == 0)
        return;
    const auto dialog = std::make_unique<TSizeForm>(parent);
    if (UserDialogs::instance().execDialog(dialog.get()) != QDialog::Accepted)
        return;
    // An emptied edit stands for 0; the engine ignores values of the other choices.
    QString width = dialog->widthText();
    QString height = dialog->heightText();
    if (width.isEmpty())
        width = QStringLiteral("0");
    if (height.isEmpty())
        height = QStringLiteral("0");
    designer->SizeControls(TSizeMode(dialog->HorizontalIndex()), width.toInt(),
                           TSizeMode(dialog->VerticalIndex()), height.toInt());
}
