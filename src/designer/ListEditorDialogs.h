#pragma once

#include <QDialog>
#include <QStringList>
#include <functional>

#include "DesignerTypes.h"

class QButtonGroup;
class QListWidget;
class QPushButton;
class QStackedWidget;

// Edits the engine's three name lists: locked, protected and transparent
// controls. One list is shown at a time, chosen by the radio group; each is
// kept sorted (case does not matter, as in control names).
class TfrmFDEditor : public QDialog
{
    Q_OBJECT
public:
    explicit TfrmFDEditor(QWidget *parent = nullptr);
    ~TfrmFDEditor() override;

    void setLists(const QStringList &locked, const QStringList &protectedNames, const QStringList &transparent);
    QStringList list(TListType type) const;
    void setCurrentList(TListType type);

    // The names of the design control's controls, offered by "Add...".
    std::function<QStringList()> availableNames;

private:
    TListType currentList() const;
    QListWidget *shownList() const;
    void addNames();
    void deleteSelected();
    void clearShown();
    void updateButtons();

    QButtonGroup *m_choice;
    QStackedWidget *m_stack;
    QListWidget *m_lists[3];
    QPushButton *m_add;
    QPushButton *m_delete;
    QPushButton *m_clear;
};

// Picks names to add to one of the lists: several at once, or all of them.
class TfrmFDAdd : public QDialog
{
    Q_OBJECT
public:
    explicit TfrmFDAdd(QWidget *parent = nullptr);

    void setNames(const QStringList &names);
    QStringList selectedNames() const;

private:
    QListWidget *m_names;
};
