#pragma once

#include <QBitArray>
#include <QPalette>
#include <QObject>
#include <QPointer>
#include <QVariant>
#include <QVector>
#include <functional>

#include "MaskTable.h"

class QAction;
#include <QToolBar>

class QWidget;
class TDBGrid;
class TcxDBPopupEdit;
class TcxTextEdit;
class TcxDBTreeList;
class TMaskBtn;
class TMaskDocument;

// Run mode of one mask: its data controls show and edit the current record
// of the mask's table, a navigator moves through the records. The design is
// never changed: what the user types is record data, and stop() (or
// withDesign()) puts every control back exactly as designed. Without a table
// or connection the mask stays a preview and statusText() says why.
class TRunSession : public QObject
{
    Q_OBJECT
public:
    TRunSession(TMaskDocument *document, QWidget *dialogParent);
    ~TRunSession() override;

    // The session of a mask surface, if run mode is on for it.
    static TRunSession *of(const TMaskDocument *document);

    // Binds the controls and opens the table; false leaves the preview
    // (the design snapshot is taken either way).
    bool start(const TConnectionSettings &settings);
    // Asks about unsaved changes (Cancel: false, run mode stays), then puts
    // the design back.
    bool stop();
    // Unsaved record changes: asks whether to save them (Yes saves, No drops
    // them); false on Cancel or when the save failed.
    bool askToSave();
    // Asks for the text to search for and goes there.
    void FindDialog();

    // The design while fn runs (saving the mask in run mode), then the record again.
    void withDesign(const std::function<void()> &fn);

    bool hasData() const { return m_table.isOpen(); }
    TMaskTable &table() { return m_table; }
    int currentRow() const { return m_row; }
    bool isEditing() const { return m_modified || m_inserting; }
    QString statusText() const;
    QToolBar *navigator() const { return m_navigator; }

    // The navigator's commands. Moving away from changes asks first.
    void First() { moveTo(0); }
    void Prior() { moveTo(m_row - 1); }
    void Next() { moveTo(m_row + 1); }
    void Last() { moveTo(m_table.count() - 1); }
    bool Insert();
    bool Post();
    bool Delete();
    void Cancel();
    // Goes to the first record whose index field is at or after the text.
    bool Find(const QString &text);
    bool moveTo(int row);

    QAction *action(const char *name) const;

Q_SIGNALS:
    void stateChanged();

private:
    struct TBinding
    {
        QPointer<QWidget> control;
        QString field;
    };
    struct TDesignValue
    {
        QPointer<QObject> component;
        QVector<QPair<QString, QVariant>> properties;
        int rows = -1; // grids: their rows
    };

    void snapshotDesign();
    void restoreDesign();
    void bindControls();
    void createNavigator();
    void showRecord();
    void showEmpty();
    bool readControls(TRecord &record, QWidget **failed);
    bool eventFilter(QObject *watched, QEvent *event) override;
    void controlEdited();
    void updateActions();
    void resetGrid();
    void fillGrid();
    void gridClicked(int row);
    void applyRules();
    void applyEditMasks();
    void showLookup(TcxDBPopupEdit *lookup);
    void fillTree();
    void selectTreeItem();
    void focusField(const QString &field);
    void message(const QString &text);

    QPointer<TMaskDocument> m_document;
    QPointer<QWidget> m_dialogParent;
    TMaskTable m_table;
    QString m_reason;
    QVector<TDesignValue> m_design;
    QVector<TBinding> m_bindings;
    QPointer<TDBGrid> m_grid;
    QVector<QPointer<TcxDBTreeList>> m_trees;
    QVector<QPair<QPointer<TMaskBtn>, QPalette>> m_ruleButtons; // with the designed palette
    QVector<QPair<QPointer<TcxTextEdit>, QString>> m_masked;    // with the edit mask
    QBitArray m_gridFilled;
    QPointer<QToolBar> m_navigator;
    TRecord m_record;   // as read (or as made new)
    int m_row = -1;
    bool m_inserting = false;
    bool m_modified = false;
    bool m_filling = false;
    bool m_bound = false;
};
