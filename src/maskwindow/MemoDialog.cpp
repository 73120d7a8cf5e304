#include "MemoDialog.h"

#include <QHBoxLayout>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include "Edits.h"
#include "PickLists.h"
#include "UserDialogs.h"

TMemoDlg::TMemoDlg(QWidget *parent)
    : QDialog(parent)
    , m_memo(new QPlainTextEdit(this))
{
    setObjectName(QStringLiteral("MemoDlg"));
    setWindowTitle(tr("PullDownliste editieren"));
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);

    m_memo->setObjectName(QStringLiteral("Memo1"));
    m_memo->setLineWrapMode(QPlainTextEdit::NoWrap);
    m_memo->setTabChangesFocus(true);

    auto *ok = new QPushButton(QStringLiteral("&OK"), this);
    ok->setObjectName(QStringLiteral("OKBtn"));
    ok->setDefault(false); // Enter starts a new line in the memo
    ok->setAutoDefault(false);
    auto *cancel = new QPushButton(tr("&Abbrechen"), this);
    cancel->setObjectName(QStringLiteral("CancelBtn"));
    cancel->setAutoDefault(false);
    connect(ok, &QPushButton::clicked, this, &TMemoDlg::accept);
    connect(cancel, &QPushButton::clicked, this, &TMemoDlg::reject);

    auto *buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(ok);
    buttons->addWidget(cancel);
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(m_memo);
    layout->addLayout(buttons);
    resize(320, 280);
}

void TMemoDlg::setComboBox(TcxComboBox *combo)
{
    m_combo = combo;
}

void TMemoDlg::setMemoHint(const QString &text)
{
    m_memo->setToolTip(text);
}

QString TMemoDlg::memoHint() const
{
    return m_memo->toolTip();
}

void TMemoDlg::showEvent(QShowEvent *event)
{
    if (m_combo)
        m_memo->setPlainText(m_combo->Items().join(QLatin1Char('\n')));
    else
        m_memo->setPlainText(memoHint());
    m_memo->setFocus(Qt::OtherFocusReason);
    QDialog::showEvent(event);
}

// One item per line; a line break after the last line opens no empty item.
QStringList TMemoDlg::lines() const
{
    QString text = m_memo->toPlainText();
    if (text.endsWith(QLatin1Char('\n')))
        text.chop(1);
    return text.isEmpty() ? QStringList() : text.split(QLatin1Char('\n'));
}

void TMemoDlg::accept()
{
    // Refused here, where the user can still mend the line.
    const QString refusal = PickLists::refusal(lines());
    if (!refusal.isEmpty()) {
        UserDialogs::instance().messageDlg(this, refusal, mtError, mbOK);
        return;
    }
    if (m_combo)
        m_combo->setItems(lines());
    else
        setMemoHint(m_memo->toPlainText());
    QDialog::accept();
}
