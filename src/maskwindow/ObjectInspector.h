#pragma once

#include <QHash>
#include <QPointer>
#include <QString>
#include <QVector>
#include <QWidget>

#include <functional>

#include "InspectorPages.h"

class QButtonGroup;
class QFormLayout;
class QFrame;
class QLabel;
class QStackedWidget;
class QToolButton;
class QTreeWidget;
class QTreeWidgetItem;
class TMaske;

// The object inspector: one tool window for the whole program. It shows one
// page of editors per control class for the control selected in the active
// mask, and writes every change straight back into that control.
class TObjInsp : public QWidget
{
    Q_OBJECT
public:
    explicit TObjInsp(QWidget *parent = nullptr);
    ~TObjInsp() override;

    // The mask window the user works in; nullptr when there is none.
    void setActiveMask(TMaske *mask);
    TMaske *activeMask() const { return m_mask; }
    // Rebuilds the component list of the tool bar from the active mask.
    void UpdateComponents();
    // Called when the designer's selection changed: shows the page for the
    // designer's current control and fills it.
    void selectControl(QWidget *control);

    QWidget *currentControl() const { return m_current; }
    bool isUpdating() const { return m_updating; }
    QStackedWidget *Notebook1();
    QString currentPageCaption() const;
    // The component list and the button that drops it down.
    QTreeWidget *dxBarTreeView() const { return m_tree; }
    QToolButton *treeButton() const { return m_treeButton; }
    // Every page caption in page order.
    static const QStringList &pageCaptions();

    // The folder below which the pick-list files live; the main window
    // hands in its base folder. Unset, the program's folder serves.
    std::function<QString()> baseFolder;
    // The file that holds the pick list of the given name.
    QString pickListFile(const QString &name) const;

    // The inspector's own palette ("Componet Menu"): one button per page.
    QWidget *componetMenu() const { return m_palette; }
    QToolButton *paletteButton(const QString &pageCaption) const { return m_paletteButtons.value(pageCaption); }
    // True while a palette button shows a page only to look at.
    bool isBrowsing() const { return m_browsing; }

protected:
    void showEvent(QShowEvent *event) override;

private:
    // ObjectInspector.cpp: frame, component list, page selection
    void ensurePages();
    void dxBarTreeViewChange(QTreeWidgetItem *item);
    void showTreePopup();
    void selectPage();
    void syncTreeToControl();
    // The component list's entries: a control and the text it is listed under.
    struct TreeEntry
    {
        QObject *object = nullptr;
        QString text;
        QObject *pager = nullptr; // a page's page control
    };
    void rebuildTree(const QList<TreeEntry> &tops, const QList<TreeEntry> &pages);
    bool extendTree(const QList<TreeEntry> &tops, const QList<TreeEntry> &pages);
    void markModified();
    QFormLayout *newPage(const QString &caption);
    static QString classNameOf(const QWidget *w);

    // InspectorPages.cpp: every page as rows
    static const QVector<InspectorPage> &pageTable();
    static const InspectorPage *pageFor(const QString &caption);

    // ObjectInspectorEngine.cpp: builds, fills and writes any page from its rows
    struct Editor
    {
        QWidget *widget = nullptr; // the editor itself
        QWidget *field = nullptr;  // what its row holds: the editor or its box
        QFormLayout *form = nullptr;
    };
    void buildPages();
    void buildRow(const InspectorPage &page, const InspectorRow &row, QFormLayout *form);
    void fillPage(const InspectorPage &page);
    void syncPage(const InspectorPage &page);
    void writePage(const QString &caption);
    void pickColor(const QString &caption, const QString &property);
    void pickFont(const QString &caption, const QString &property);
    template <class T> T *editor(const QString &name) const { return qobject_cast<T *>(m_editors.value(name).widget); }
    void showRow(const QString &name, bool shown);
    void setRowLabel(const QString &name, const QString &text);

    // ObjectInspectorPalette.cpp
    void buildPalette();
    void BarButton1Click();
    void BarButton2Click(QToolButton *Sender);
    void syncPalette();
    void endBrowsing();

    // The pages' change handlers: each writes its whole page (InspectorPages.cpp).
    void LabelCaptionChange();
    void DBLabelFieldChange();
    void EditFieldNameChange();
    void ComboFieldNameChange();
    void MemoFieldnameChange();
    void CheckFieldNameChange();
    void BtnCaptionChange();
    void BevelShapeClick();
    void DBGridAlignClick();
    void ShapestyleChange();
    void LUNameChange();
    void ImageStrechCheckBoxClick();
    void OfficePagerAlignClick();
    void EditOfficePageChange();
    void EditRGChange();
    void PanelAlignClick();
    void TreeListAlignClick();
    void StringGridAlignClick();

    // ObjectInspectorActions.cpp: editors that do more than hold a value
    void CheckColorBtnClick();
    void ComboPullDownFileButtonClick();
    void updateButtonRows();
    void BtnZuweisRuleClick();
    void BtnZuweisMaskeBeforeDialog();
    void ImageFileBtnClick();
    void NewPageBTNClick();
    QWidget *buildNewPageBox();

    QPointer<TMaske> m_mask;
    QPointer<QWidget> m_current;
    bool m_updating = false;
    bool m_pagesBuilt = false;
    QStackedWidget *m_notebook = nullptr;
    QHash<QString, int> m_pageIndex;
    QHash<QString, Editor> m_editors; // by object name, over all pages
    QToolButton *m_treeButton = nullptr;
    QFrame *m_treePopup = nullptr;
    QTreeWidget *m_tree = nullptr;
    // What the list shows, in the order it was built: placing a control
    // appends one entry instead of rebuilding a list of a thousand.
    QPointer<TMaske> m_listedMask;
    QList<TreeEntry> m_listedTops;
    QList<TreeEntry> m_listedPages;
    QHash<QObject *, QTreeWidgetItem *> m_treeItems;
    QLabel *m_header = nullptr;
    QWidget *m_palette = nullptr;
    QButtonGroup *m_paletteGroup = nullptr;
    QHash<QString, QToolButton *> m_paletteButtons;
    bool m_browsing = false;
    QPointer<QWidget> m_browsedContent;
};
