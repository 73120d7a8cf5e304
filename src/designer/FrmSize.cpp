#include "FrmSize.h"

#include <QApplication>
#include <QButtonGroup>
#include <QKeyEvent>
#include <QLineEdit>
#include <algorithm>
#include <climits>

namespace {

constexpr int kMaxDigits = 9;

bool isSizeChar(QChar c)
{
    return (c >= QLatin1Char('0') && c <= QLatin1Char('9')) || c == QLatin1Char('.');
}

bool isSizeText(const QString &text)
{
    return std::all_of(text.cbegin(), text.cend(), isSizeChar);
}

// The text the edit had before the user's last change, kept to undo pastes
// and drops that bring in other characters.
const char *const kAcceptedText = "ferolithAcceptedText";

// Reads a size as typed; more digits than an int holds give INT_MAX, and
// anything that is not a number (which the edits never let in) gives 0.
int sizeFromText(const QString &text)
{
    const QString whole = text.section(QLatin1Char('.'), 0, 0);
    if (whole.isEmpty())
        return 0;
    qint64 value = 0;
    for (QChar c : whole) {
        if (c < QLatin1Char('0') || c > QLatin1Char('9'))
            return 0;
        value = value * 10 + (c.unicode() - '0');
        if (value > INT_MAX)
            return INT_MAX;
    }
    return int(value);
}

} // namespace

TfrmSize::TfrmSize(QWidget *parent)
    : TDirectionsDialog(parent, QStringLiteral("frmSize"), QStringLiteral("Size"))
    , m_widthGroup(new QButtonGroup(this))
    , m_heightGroup(new QButtonGroup(this))
    , m_widthEdit(new QLineEdit)
    , m_heightEdit(new QLineEdit)
{
    m_widthEdit->setObjectName(QStringLiteral("edtWidth"));
    m_heightEdit->setObjectName(QStringLiteral("edtHeight"));
    addDirection(m_widthGroup, QStringLiteral("Width"), QStringLiteral("rgWidth"),
                 {QStringLiteral("&No change"), QStringLiteral("&Shrink to smallest"),
                  QStringLiteral("&Grow to largest"), QStringLiteral("Width:")},
                 m_widthEdit);
    addDirection(m_heightGroup, QStringLiteral("Height"), QStringLiteral("rgHeight"),
                 {QStringLiteral("No &change"), QStringLiteral("Shrin&k to smallest"),
                  QStringLiteral("Grow to &largest"), QStringLiteral("Heigh&t:")},
                 m_heightEdit);
    setupDirection(m_widthGroup, m_widthEdit);
    setupDirection(m_heightGroup, m_heightEdit);
}

void TfrmSize::setupDirection(QButtonGroup *group, QLineEdit *edit)
{
    edit->setMaxLength(kMaxDigits);
    // Room for the nine digits, no more: the edit sits beside its radio button.
    edit->setFixedWidth(edit->fontMetrics().horizontalAdvance(QStringLiteral("0000000000")) + 12);
    edit->setEnabled(false);
    guardEdit(edit);
    connect(group, &QButtonGroup::idToggled, edit, [edit](int id, bool checked) {
        if (id != smValue)
            return;
        edit->setEnabled(checked);
        if (checked && edit->window()->isVisible()) {
            edit->setFocus(Qt::OtherFocusReason);
            edit->selectAll();
        }
    });
}

// Keys are filtered before they reach the edit; text that arrives some other
// way (paste from the context menu, drop) is checked after the fact and taken
// back when it brings in anything but digits and full stops.
void TfrmSize::guardEdit(QLineEdit *edit)
{
    edit->installEventFilter(this);
    edit->setProperty(kAcceptedText, QString());
    connect(edit, &QLineEdit::textEdited, edit, [edit](const QString &text) {
        if (isSizeText(text)) {
            edit->setProperty(kAcceptedText, text);
            return;
        }
        const QString previous = edit->property(kAcceptedText).toString();
        const int cursor = edit->cursorPosition() - int(text.size() - previous.size());
        QApplication::beep();
        edit->setText(previous);
        edit->setCursorPosition(qBound(0, cursor, int(previous.size())));
    });
    connect(edit, &QLineEdit::textChanged, edit, [edit](const QString &text) {
        if (isSizeText(text))
            edit->setProperty(kAcceptedText, text);
    });
}

bool TfrmSize::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::KeyPress && (watched == m_widthEdit || watched == m_heightEdit)) {
        auto *key = static_cast<QKeyEvent *>(event);
        if (key->key() == Qt::Key_Backspace)
            return false;
        // Only keys that type a character are judged; cursor keys, Tab, Enter,
        // Escape and shortcuts such as Ctrl+V keep working.
        const QString text = key->text();
        if (key->modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier))
            return false;
        if (text.isEmpty() || !text.at(0).isPrint())
            return false;
        if (isSizeText(text))
            return false;
        QApplication::beep();
        return true;
    }
    return QDialog::eventFilter(watched, event);
}

TSizeMode TfrmSize::widthMode() const
{
    return TSizeMode(m_widthGroup->checkedId());
}

TSizeMode TfrmSize::heightMode() const
{
    return TSizeMode(m_heightGroup->checkedId());
}

int TfrmSize::widthValue() const
{
    return sizeFromText(m_widthEdit->text());
}

int TfrmSize::heightValue() const
{
    return sizeFromText(m_heightEdit->text());
}
