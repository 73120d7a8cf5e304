#pragma once

#include <QList>
#include <QMainWindow>
#include <QMdiArea>
#include <QMenu>
#include <QTabBar>
#include <QPointer>
#include <QStringList>

#include <functional>

#include "EditStyle.h"
#include "MaskHost.h"
#include "MaskLoader.h"
#include "Types.h"
#include "UserDialogs.h"

class QAction;
class QActionGroup;
class QComboBox;
class QFontComboBox;
class QLabel;
class QMdiSubWindow;
class QMenuBar;
class QSpinBox;
class QToolBar;
class QToolButton;
class TMaske;
class TFormDesigner;
class TfrmSetup;
class TFormAlignment;
class TObjInsp;
class TMemoDlg;
class TcxEditStyleController;

// The main window: menus, tool bars, the tab strip and the MDI area holding
// the mask windows.
class TMainForm : public QMainWindow, public TMaskHost
{
    Q_OBJECT
public:
    // The tool bars, by their place in Bars.
    enum BarIndex {
        MainMenuBar = 0,
        FileMenuBar = 1,
        EditMenuBar = 2,
        FontBar = 3,
        ElementsBar = 4,
        StatusBar = 5,
        ModifyMenuBar = 6,
        BarCount = 7
    };

    // arguments: the command line without the program name and without --ini.
    explicit TMainForm(const QStringList &arguments = QStringList(), QWidget *parent = nullptr);
    ~TMainForm() override;

    TFileDialog OpenDialog;
    TFileDialog SaveDialog1;

    QToolBar *bar(int index) const;
    QMdiArea *mdiArea() const { return m_mdiArea; }
    QTabBar *tabSet() const { return m_tabSet; }
    QMenu *windowMenu() const { return m_windowMenu; }
    // The entries of the window list, one per mask window in creation order.
    QList<QAction *> windowListActions() const { return m_windowListActions; }
    QString versionText() const { return m_versionText; }

    // The active mask window, or nullptr.
    TMaske *activeMask() const;
    // The mask windows, the top one first.
    QList<TMaske *> MDIChildren() const;

    QString BaseFolder() const;

    // Opens a new, empty mask window for the file name; it becomes the active one.
    TMaske *OpenMaskWindow(const QString &fileName);
    // Selects the entry "WIDTHxHEIGHT" of the resolution list (added when
    // the list lacks it) and adapts the mask to it.
    void selectResolution(TMaske *mask, const QString &text);
    // The folder that holds the table settings files; ends with a separator.
    QString DatabasePath() const;

    // The main window's own engine, which carries the settings between masks.
    TFormDesigner *FormDesigner1() const { return m_formDesigner1; }
    TfrmSetup *frmSetup() const { return m_frmSetup; }
    TFormAlignment *FormAlignment() const { return m_formAlignment; }
    TObjInsp *ObjInsp() const { return m_objInsp; }
    TMemoDlg *MemoDlg() const { return m_memoDlg; }
    QMenu *PopupMenu1() const { return m_popupMenu1; }
    TcxEditStyleController *currentStyleController() const { return m_currentStyleController; }

    // TMaskHost: what the mask windows ask of the main window.
    int ArmedTool() const override { return m_armedTool; }
    void placementDone(TMaske *mask) override;
    void placementRefused(TMaske *mask) override;
    void WriteFontStates(QWidget *control) override;
    bool lastFont(TFont &font) const override;
    void FormDesigner1SelectControl(TMaske *mask, QWidget *control) override;
    void setPositionFields(int top, int height, int left, int width) override;
    void applyDesignerSettings(TCustomFormDesigner *designer) override;
    void maskActivated(TMaske *mask, TcxEditStyleController *styleController) override;
    void UpdateComponents() override;
    void showObjectInspector() override;
    void maskClosed(TMaske *mask) override;
    void PasteItemClick() override;
    void CopyItemClick() override;
    void CutItemClick() override;
    void Lschen1Click() override;

    void ToolButtonsClick(QAction *button);
    void ReadStates();
    void UpdateBtn();
    void dxBarLockClick(bool fromLockButton);
    void PopItemsClick(int tag);
    void SettingsItemClick();
    void StyleItemClick();
    // MainFormDatabase.cpp: the table explorer and the mask settings wizard.
    void CreateTableItemClick();
    void dxBarButton7Click();
    // Loads a mask file into a new mask window (nullptr only without a file name).
    TMaske *LoadMask(const QString &fileName);
    bool SaveMask(const QString &fileName);

    // Edit mode, run mode and the resolution list (MainFormModes.cpp).
    void EditMode1Click();
    void RunMode1Click();
    void dxBar1024x768Click();
    void dxBarNormalClick();
    QComboBox *resolutionList() const;
    void UpdateMenuItems();

public Q_SLOTS:
    void FileNewItemClick();
    void FileOpenItemClick();
    void FileCloseItemClick();
    void FileSaveItemClick() override;
    void FileSaveAsItemClick();
    void FileExitItemClick();
    void WindowCascadeItemClick();
    void WindowTileItemClick();
    void WindowArrangeItemClick();
    void WindowMinimizeItemClick();
    void HelpAboutItemClick();
    void dxBarWindowClick(QAction *item);

protected:
    void showEvent(QShowEvent *event) override;
    void closeEvent(QCloseEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void FormCreate();
    void FormShow();
    void FormClose(QCloseEvent *event);
    void FormDestroy();

    // MainFormBars.cpp
    void createActions();
    void createMenus();
    void createToolBars();
    QToolBar *createBar(int index, const QString &name);
    void createFileBar();
    void createEditBar();
    void createFontBar();
    void createElementsBar();
    void createStatusBar();
    void createModifyBar();

    // MainFormModes.cpp
    void createModeCommands();
    void showResolution(const QString &text);

    // MainFormDesign.cpp
    void createDesignTools();
    void positionSpinChange(QSpinBox *spin);
    void tabOrderSpinChange();
    void fontToolChange();
    TFormDesigner *activeDesigner() const;
    // Runs an engine command; an engine error becomes an error message and
    // the command ends there. Returns false when the engine refused.
    bool runEngineCommand(const std::function<void()> &command);

    // MainFormWindows.cpp
    void createClientArea();
    void watchMaskWindow(TMaske *mask);
    void showWhole(TMaske *mask);
    void syncWindowLists();
    void activateWindowAt(int index);
    void updateStatusText();
    void dxBarWindowPopup();
    QList<QMdiSubWindow *> visibleSubWindows() const;

    QStringList m_arguments;
    QString m_versionText;
    bool m_shown = false;
    bool m_syncing = false;

    QList<QToolBar *> Bars;
    QPointer<QMenuBar> m_menuBar;
    QPointer<QMdiArea> m_mdiArea;
    QPointer<QTabBar> m_tabSet;
    QPointer<QLabel> m_statusPath;
    QPointer<QLabel> m_statusVersion;
    QPointer<QLabel> m_statusRecord;

    QPointer<QMenu> m_fileMenu;
    QPointer<QMenu> m_editMenu;
    QPointer<QMenu> m_optionsMenu;
    QPointer<QMenu> m_windowMenu;
    QPointer<QMenu> m_helpMenu;

    QAction *FileNewItem = nullptr;
    QAction *FileOpenItem = nullptr;
    QAction *FileCloseItem = nullptr;
    QAction *FileSaveItem = nullptr;
    QAction *FileSaveAsItem = nullptr;
    QAction *FileExitItem = nullptr;
    QAction *CutItem = nullptr;
    QAction *CopyItem = nullptr;
    QAction *PasteItem = nullptr;
    QAction *DeleteItem = nullptr;
    QAction *LockItem = nullptr;
    QAction *UndoItem = nullptr;
    QAction *RedoItem = nullptr;
    QAction *ObjectInspectorItem = nullptr;
    QAction *SettingsItem = nullptr;
    QAction *StyleItem = nullptr;
    QAction *CreateTableItem = nullptr;
    QAction *dxBarButton7 = nullptr;
    QAction *EditModeItem = nullptr;
    QAction *RunModeItem = nullptr;
    QAction *WindowCascadeItem = nullptr;
    QAction *WindowTileItem = nullptr;
    QAction *WindowArrangeItem = nullptr;
    QAction *WindowMinimizeItem = nullptr;
    QAction *HelpAboutItem = nullptr;

    QAction *dxBarWindow = nullptr; // separator that starts the window list
    QActionGroup *m_windowListGroup = nullptr;
    QList<QAction *> m_windowListActions;

    QActionGroup *m_paletteGroup = nullptr;
    // Design state: the armed palette tool, the engine held for placing,
    // the reading flag of the tool bars and the font they last wrote.
    quint8 m_armedTool = 0;
    QPointer<QAction> m_armedButton;
    QPointer<TFormDesigner> m_heldDesigner;
    bool m_readingStates = false;
    bool m_hasLastFont = false;
    TFont m_lastFont;
    TFormDesigner *m_formDesigner1 = nullptr;
    TfrmSetup *m_frmSetup = nullptr;
    TFormAlignment *m_formAlignment = nullptr;
    TObjInsp *m_objInsp = nullptr;
    TMemoDlg *m_memoDlg = nullptr;
    QPointer<QMenu> m_popupMenu1;
    QPointer<TcxEditStyleController> m_currentStyleController;

    QPointer<QFontComboBox> dxBarFontNameCombo1;
    QPointer<QComboBox> dxBarFontSize1;
    QPointer<QComboBox> dxBarColorCombo1;
    QPointer<QToolButton> dxBarButtonBold;
    QPointer<QToolButton> dxBarButtonItalic;
    QPointer<QToolButton> dxBarButtonUnderline;

    QPointer<QSpinBox> dxBarSpinLeft;
    QPointer<QSpinBox> dxBarSpinTop;
    QPointer<QSpinBox> dxBarSpinWidth;
    QPointer<QSpinBox> dxBarSpinHeight;
    QPointer<QSpinBox> dxBarSpinTabOrder;
    QPointer<QComboBox> MaskResList;
    QAction *dxBarNormal = nullptr;
};
