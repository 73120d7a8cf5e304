#pragma once

#include <QDialog>
#include <QList>
#include <QPair>
#include <QString>

class QListWidget;
class QPushButton;
class QToolButton;

// Lets the user put the controls of one parent into tab order: the list shows
// them in the current order; the arrow buttons and drag and drop move the
// selected entry.
class TfrmTabOrder : public QDialog
{
    Q_OBJECT
public:
    explicit TfrmTabOrder(QWidget *parent = nullptr);
    ~TfrmTabOrder() override;

    // The text shown for each control, in the current tab order.
    void setEntries(const QList<QPair<QString, QWidget *>> &entries);
    QList<QWidget *> controlsInOrder() const;

private:
    void moveSelected(int delta);
    void updateButtons();

    QList<QWidget *> m_controls; // as handed in; the items keep their index
    QListWidget *m_list;
    QToolButton *m_up;
    QToolButton *m_down;
    QPushButton *m_ok;
};
