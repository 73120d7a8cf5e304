#pragma once

#include <QDialog>
#include <QPointer>

class QComboBox;
class TMaske;

// "Checkbox Option": which field a check box colours and the colours for its
// two states. The option text comes in and goes out through Hint():
// field name, "%ON", colour when checked, "%OFF", colour when unchecked.
class TCheckDlg : public QDialog
{
    Q_OBJECT
public:
    // The field list offers the fields of the mask's edits, combo boxes,
    // memos and check boxes.
    explicit TCheckDlg(TMaske *mask, QWidget *parent = nullptr);

    QString Hint() const { return m_hint; }
    // Shows the option text in the editors.
    void setHint(const QString &hint);

    QComboBox *Feld() const { return m_feld; }
    QComboBox *An() const { return m_an; }
    QComboBox *Aus() const { return m_aus; }

private:
    void fillFields(TMaske *mask);
    void OKBtnClick();

    QString m_hint;
    QComboBox *m_feld;
    QComboBox *m_an;
    QComboBox *m_aus;
};
