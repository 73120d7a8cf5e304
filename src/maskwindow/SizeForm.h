#pragma once

#include <QDialog>

class QButtonGroup;
class QGroupBox;
class QLineEdit;
class TCustomFormDesigner;

// "Größe anpassen": how the selected controls of a mask are sized, per
// direction unchanged, to the smallest or largest of them, or to a typed
// value. The item index of each group is the engine's TSizeMode.
class TSizeForm : public QDialog
{
    Q_OBJECT
public:
    explicit TSizeForm(QWidget *parent = nullptr);

    int HorizontalIndex() const;
    int VerticalIndex() const;
    QString widthText() const;
    QString heightText() const;

    // Closing with OK first checks the typed values; a refused close leaves
    // the dialog open with the values as typed.
    void accept() override;

protected:
    void showEvent(QShowEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    QGroupBox *makeGroup(const QString &name, const QString &title, const QStringList &items,
                         QButtonGroup *group, QLineEdit *edit);
    // The typed value of a direction whose fourth item is chosen; false (after
    // telling the user) when it is no number or not positive.
    bool checkValue(QLineEdit *edit, const QString &invalid, const QString &notPositive);

    QButtonGroup *m_horizontal;
    QButtonGroup *m_vertical;
    QLineEdit *m_sizeWidth;
    QLineEdit *m_sizeHeight;
};

// The context menu's "Größe anpassen": asks with TSizeForm and sizes the
// selected controls when confirmed; nothing when no control is selected.
void runSizeDialog(QWidget *parent, TCustomFormDesigner *designer);
