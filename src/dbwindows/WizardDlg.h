#pragma once

#include <QDialog>
#include <QPointer>
#include <QStringList>

class QComboBox;
class QLabel;
class QLineEdit;
class QListWidget;
class QMenu;
class QPushButton;
class QStackedWidget;
class QToolButton;
class QVBoxLayout;
class TFieldListBox;
class TMaskDocument;

// The mask settings wizard "Maskeneinstellungen": the table settings of one
// mask on five pages. Everything stays in the wizard until OK writes it
// back into the mask; "Abbruch" changes nothing.
class TWizard : public QDialog
{
    Q_OBJECT
public:
    explicit TWizard(TMaskDocument *mask, QWidget *parent = nullptr);
    ~TWizard() override;

    // The database folder shown when the mask has none of its own yet.
    void setDefaultPfad(const QString &folder) { m_defaultPfad = folder; }

    // The value macros of both value combos, in their order.
    static QStringList macros();

    void FormShow();
    void SetButtons();
    void BackBtnClick();
    void NextBtnClick();
    void OKBtnClick();
    void PfadExit();
    void CADPathExit();

    // Page 3: the selected fields, or all, across and back.
    void IncludeBtnClick();
    void IncAllBtnClick();
    void ExcludeBtnClick();
    void ExAllBtnClick();

    // Pages 4 and 5.
    void AutoFillFeldChange();
    void AutofillWertChange();
    void AutoFillClick();
    void DefaultFeldChange();
    void DefaultwertChange();
    void DefaultClick();
    void EintragLoeschenClick(QListWidget *list);

protected:
    void showEvent(QShowEvent *event) override;

private:
    // WizardDlg.cpp: the pages.
    QWidget *newPage(const QString &name, const QString &title, QVBoxLayout **layout);
    QWidget *createPage1();
    QWidget *createPage2();
    QWidget *createPage3();
    QWidget *createPage4();
    QWidget *createPage5();
    QWidget *createValuePage(const QString &name, const QString &title, const QString &prompt,
                             const QString &listTitle, QListWidget **list, QComboBox **field, QComboBox **value);
    QLineEdit *folderEdit(const QString &name, QLayout *row, void (TWizard::*exit)());
    QComboBox *fieldCombo(const QString &name, bool editable);
    void collectFields();

    // WizardDlgLists.cpp: moving fields and the value lists.
    void moveFields(TFieldListBox *from, TFieldListBox *to, bool all);
    void moveNamed(TFieldListBox *from, TFieldListBox *to, const QStringList &names);
    void updateFelder();
    static void fieldChange(QListWidget *list, QComboBox *field, QComboBox *value);
    static void valueChange(QListWidget *list, QComboBox *field, QComboBox *value);
    static void entryClick(QListWidget *list, QComboBox *field, QComboBox *value);
    static int entryRow(const QListWidget *list, const QString &field);
    void wireValueList(QListWidget *list);

    QPointer<TMaskDocument> m_mask;
    QString m_defaultPfad;
    QStringList m_fields; // the mask's data fields, in component order

    QStackedWidget *PageBook = nullptr;
    QLabel *m_pageTitle = nullptr;
    QLabel *m_pageNumber = nullptr;
    QLineEdit *Pfad = nullptr;
    QLineEdit *Name = nullptr;
    QLineEdit *Titel = nullptr;
    QComboBox *IndexFeld = nullptr;
    QLineEdit *CADPath = nullptr;
    QLineEdit *Zaehler = nullptr;
    QComboBox *Focus = nullptr;
    TFieldListBox *SrcList = nullptr;
    TFieldListBox *DstList = nullptr;
    QLineEdit *Felder = nullptr;
    QListWidget *AutoFill = nullptr;
    QComboBox *AutoFillFeld = nullptr;
    QComboBox *AutofillWert = nullptr;
    QListWidget *Default = nullptr;
    QComboBox *DefaultFeld = nullptr;
    QComboBox *Defaultwert = nullptr;
    QPushButton *BackBtn = nullptr;
    QPushButton *NextBtn = nullptr;
    QPushButton *OKBtn = nullptr;
    QPushButton *AbbruchBtn = nullptr;
};
