#pragma once

#include <QHash>
#include <QPointer>
#include <QString>
#include <QWidget>

#include <functional>

class QButtonGroup;
class QCheckBox;
class QComboBox;
class QFormLayout;
class QFrame;
class QGroupBox;
class QLabel;
class QLineEdit;
class QPlainTextEdit;
class QPushButton;
class QRadioButton;
class QSpinBox;
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
    QStackedWidget *Notebook1() const { return m_notebook; }
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

private:
    // ObjectInspector.cpp: frame, component list, page selection
    void dxBarTreeViewChange(QTreeWidgetItem *item);
    void showTreePopup();
    void selectPage();
    void fillPage(const QString &caption);
    void syncTreeToControl();
    void markModified();
    template <class T> T *current() const { return m_updating ? nullptr : qobject_cast<T *>(m_current.data()); }

    // Form building helpers shared by the page files.
    QFormLayout *newPage(const QString &caption);
    QLineEdit *addLine(QFormLayout *form, const QString &label, const QString &name);
    QComboBox *addCombo(QFormLayout *form, const QString &label, const QString &name, const QStringList &items);
    QSpinBox *addSpin(QFormLayout *form, const QString &label, const QString &name, int min, int max);
    QCheckBox *addCheck(QFormLayout *form, const QString &text, const QString &name);
    QPushButton *addButton(QFormLayout *form, const QString &text, const QString &name);
    void bind(QWidget *editor, void (TObjInsp::*handler)());
    static const QStringList &alignItems();
    static const QStringList &fieldTypeItems();
    static const QStringList &charCaseItems();

    // ObjectInspectorPalette.cpp
    void buildPalette();
    void BarButton1Click();
    void BarButton2Click(QToolButton *Sender);
    void syncPalette();
    void endBrowsing();

    // ObjectInspectorPagesText.cpp
    void buildLabelPages();
    void buildEditPages();
    void fillLabel(QWidget *c);
    void fillDBLabel(QWidget *c);
    void fillTextEdit(QWidget *c);
    void fillComboBox(QWidget *c);
    void fillMemo(QWidget *c);
    void fillCheckBox(QWidget *c);
    void LabelCaptionChange();
    void DBLabelFieldChange();
    void EditFieldNameChange();
    void ComboFieldNameChange();
    void MemoFieldnameChange();
    void CheckFieldNameChange();
    void CheckColorBtnClick();
    void ComboPullDownFileButtonClick();

    // ObjectInspectorPagesButton.cpp
    void buildButtonPage();
    void fillMaskBtn(QWidget *c);
    void BtnCaptionChange();
    void updateButtonRows();
    void updateRuleButtonFont();
    void BtnZuweisRuleClick();
    void BtnZuweisMaskeBeforeDialog();

    // ObjectInspectorPagesGraphics.cpp
    void buildGraphicPages();
    void fillBevel(QWidget *c);
    void fillDBGrid(QWidget *c);
    void fillShape(QWidget *c);
    void fillPopupEdit(QWidget *c);
    void fillImage(QWidget *c);
    void BevelShapeClick();
    void DBGridAlignClick();
    void DBGridFontClick(bool header);
    void ShapestyleChange();
    void ShapeColorClick(bool border);
    void LUNameChange();
    void updateLookupEnabling();
    void ImageStrechCheckBoxClick();
    void ImageFileBtnClick();

    // ObjectInspectorPagesContainers.cpp
    void buildContainerPages();
    void fillOfficePager(QWidget *c);
    void fillOfficePage(QWidget *c);
    void fillRadioGroup(QWidget *c);
    void fillPanel(QWidget *c);
    void fillTreeList(QWidget *c);
    void fillStringGrid(QWidget *c);
    void OfficePagerAlignClick();
    void NewPageBTNClick();
    void EditOfficePageChange();
    void EditRGChange();
    void PanelAlignClick();
    void TreeListAlignClick();
    void StringGridAlignClick();

    QPointer<TMaske> m_mask;
    QPointer<QWidget> m_current;
    bool m_updating = false;
    QStackedWidget *m_notebook = nullptr;
    QHash<QString, int> m_pageIndex;
    QToolButton *m_treeButton = nullptr;
    QFrame *m_treePopup = nullptr;
    QTreeWidget *m_tree = nullptr;
    QLabel *m_header = nullptr;
    QWidget *m_palette = nullptr;
    QButtonGroup *m_paletteGroup = nullptr;
    QHash<QString, QToolButton *> m_paletteButtons;
    bool m_browsing = false;
    QPointer<QWidget> m_browsedContent;

    // "TLabel"
    QLineEdit *m_labelCaption = nullptr;
    QComboBox *m_labelLayout = nullptr;
    QComboBox *m_labelAlignment = nullptr;
    QRadioButton *m_labelAutoSize = nullptr;
    QRadioButton *m_labelWordWrap = nullptr;
    // "TDBLabel"
    QLineEdit *m_dbLabelField = nullptr;
    QLineEdit *m_dbLabelTable = nullptr;
    QSpinBox *m_dbLabelSize = nullptr;
    QComboBox *m_dbLabelTyp = nullptr;
    QComboBox *m_dbLabelAlignment = nullptr;
    QCheckBox *m_dbLabelWordWrap = nullptr;
    QCheckBox *m_dbLabelBrowserEdit = nullptr;
    QLineEdit *m_dbLabelCaption = nullptr;
    // "TcxTextEdit"
    QLineEdit *m_editFieldName = nullptr;
    QSpinBox *m_editFieldSize = nullptr;
    QComboBox *m_editFieldTyp = nullptr;
    QCheckBox *m_editPflichtfeld = nullptr;
    QCheckBox *m_editReadonly = nullptr;
    QComboBox *m_editCharcase = nullptr;
    QLineEdit *m_editMask = nullptr;
    QLineEdit *m_editFieldCaption = nullptr;
    // "TcxComboBox"
    QLineEdit *m_comboFieldName = nullptr;
    QSpinBox *m_comboFieldSize = nullptr;
    QComboBox *m_comboFieldTyp = nullptr;
    QCheckBox *m_comboPflichtfeld = nullptr;
    QCheckBox *m_comboReadOnly = nullptr;
    QComboBox *m_comboCharCase = nullptr;
    QLineEdit *m_comboFieldCaption = nullptr;
    QLineEdit *m_comboPullDownFile = nullptr;
    QToolButton *m_comboPullDownFileButton = nullptr;
    // "TcxMemo"
    QLineEdit *m_memoFieldname = nullptr;
    QCheckBox *m_memoPflichtfeld = nullptr;
    QComboBox *m_memoScrollbars = nullptr;
    QLineEdit *m_memoFieldCaption = nullptr;
    QCheckBox *m_memoPlaintext = nullptr;
    // "TcxDBCheckBox"
    QLineEdit *m_checkFieldName = nullptr;
    QLineEdit *m_checkCaption = nullptr;
    QComboBox *m_checkAlign = nullptr;
    QLineEdit *m_checkFieldCaption = nullptr;
    // "TMaskBtn"
    QFormLayout *m_btnForm = nullptr;
    QLineEdit *m_btnCaption = nullptr;
    QComboBox *m_btnLayout = nullptr;
    QComboBox *m_btnAction = nullptr;
    QWidget *m_btnMaskRow = nullptr;
    QLineEdit *m_btnZuweisMaske = nullptr;
    QToolButton *m_btnZuweisMaskeBtn = nullptr;
    QLineEdit *m_btnZuweisFeld = nullptr;
    QLineEdit *m_btnZuweisFeldEx = nullptr;
    QLineEdit *m_btnIndexFeld = nullptr;
    QLineEdit *m_btnProgExt = nullptr;
    QLineEdit *m_btnSectionExt = nullptr;
    QSpinBox *m_btnMargin = nullptr;
    QCheckBox *m_btnRunAs = nullptr;
    QPushButton *m_btnZuweisRule = nullptr;
    // "TBevel"
    QComboBox *m_bevelShape = nullptr;
    // "TDBGrid"
    QComboBox *m_dbGridAlign = nullptr;
    QCheckBox *m_dbGridReadOnly = nullptr;
    QWidget *m_moreBrowserPanel = nullptr;
    QLabel *m_primaryBrowserLabel = nullptr;
    QLineEdit *m_dbGridField = nullptr;
    QComboBox *m_dbGridScrollbars = nullptr;
    QCheckBox *m_dbGridStruct = nullptr;
    // "TShape"
    QComboBox *m_shapeStyle = nullptr;
    // "TcxDBPopupEdit"
    QLineEdit *m_luName = nullptr;
    QLineEdit *m_luDatabase = nullptr;
    QComboBox *m_luCharCase = nullptr;
    QCheckBox *m_luPicklist = nullptr;
    QComboBox *m_luFieldTyp = nullptr;
    QSpinBox *m_luFieldSize = nullptr;
    QCheckBox *m_luReadonly = nullptr;
    QLineEdit *m_luNameCaption = nullptr;
    // "TImageAspect"
    QLineEdit *m_imageFileEdit = nullptr;
    QCheckBox *m_imageStretch = nullptr;
    // "TAdvOfficePager"
    QComboBox *m_officePagerAlign = nullptr;
    QGroupBox *m_officePagerTabPos = nullptr;
    QList<QRadioButton *> m_tabPosButtons;
    QComboBox *m_officePagerStyle = nullptr;
    QLineEdit *m_newPageCaption = nullptr;
    // "TAdvOfficePage"
    QLineEdit *m_editOfficePage = nullptr;
    // "TDBRadioGroup"
    QLineEdit *m_editRGDB = nullptr;
    QLineEdit *m_editRG = nullptr;
    QPlainTextEdit *m_memoRG = nullptr;
    QSpinBox *m_spinEditRB = nullptr;
    QLineEdit *m_editRBKeyword = nullptr;
    QSpinBox *m_editSizeRG = nullptr;
    QCheckBox *m_editRGPflicht = nullptr;
    // "TPanel"
    QComboBox *m_panelAlign = nullptr;
    QComboBox *m_panelBevelInner = nullptr;
    QComboBox *m_panelBevelOuter = nullptr;
    QLineEdit *m_panelCaption = nullptr;
    QComboBox *m_panelBorderStyle = nullptr;
    QCheckBox *m_panelCtl3D = nullptr;
    QSpinBox *m_panelBevelWidth = nullptr;
    // "TcxDBTreeList"
    QComboBox *m_treeListAlign = nullptr;
    QLineEdit *m_treeListDB = nullptr;
    QLineEdit *m_treeListFields = nullptr;
    QLineEdit *m_treeListKeyField = nullptr;
    QLineEdit *m_treeListKField = nullptr;
    QLineEdit *m_treeListParentField = nullptr;
    QLineEdit *m_treeListIndexField = nullptr;
    QCheckBox *m_treeListDrag = nullptr;
    // "TStringGrid"
    QComboBox *m_stringGridAlign = nullptr;
};
