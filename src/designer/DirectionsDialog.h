#pragma once

#include <QDialog>

class QButtonGroup;
class QDialogButtonBox;
class QGroupBox;
class QHBoxLayout;
class QPushButton;

// OK (the default button) and Cancel, wired to accept and reject; ok, when
// given, receives the OK button.
QDialogButtonBox *okCancelButtons(QDialog *dialog, QPushButton **ok = nullptr);

// What the align and the size dialog have in common: one group of radio
// buttons per direction, side by side, OK and Cancel below, at a fixed size.
// A button's id is its index in the group, which is the mode it stands for;
// the first is checked at the start.
class TDirectionsDialog : public QDialog
{
    Q_OBJECT
protected:
    TDirectionsDialog(QWidget *parent, const QString &name, const QString &title);

    // Adds a direction: a box named name with one button per item;
    // besideLast, if given, sits to the right of the last item.
    void addDirection(QButtonGroup *group, const QString &title, const QString &name, const QStringList &items,
                      QWidget *besideLast = nullptr);

private:
    QHBoxLayout *m_groups;
    QPushButton *m_ok = nullptr;
    QPushButton *m_cancel = nullptr;
};
