#pragma once

#include <QDialog>
#include <QPointer>

#include "Edits.h"

class QPlainTextEdit;

// "PullDownliste editieren": edits the item list of a combo box on a mask,
// one item per line. Made once at start-up; the caller hands over the combo
// box before each use. Without a combo box the text travels through the
// memo's hint (tool tip) instead.
class TMemoDlg : public QDialog
{
    Q_OBJECT
public:
    explicit TMemoDlg(QWidget *parent = nullptr);

    void setComboBox(TcxComboBox *combo);
    TcxComboBox *comboBox() const { return m_combo; }

    void setMemoHint(const QString &text);
    QString memoHint() const;

    void accept() override;

protected:
    void showEvent(QShowEvent *event) override;

private:
    QStringList lines() const;

    QPlainTextEdit *m_memo;
    QPointer<TcxComboBox> m_combo;
};
