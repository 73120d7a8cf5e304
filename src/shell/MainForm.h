#pragma once

#include <QList>
#include <QMainWindow>
#include <QMdiArea>
#include <QMenu>
#include <QTabBar>
#include <QPointer>
#include <QStringList>

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

// The main window: menus, tool bars, the tab strip and the MDI area holding
// the mask windows.
class TMainForm : public QMainWindow
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

    TMaske *OpenMaskWindow(const QString &fileName);
    void LoadMask(const QString &fileName);
    bool SaveMask(const QString &fileName);
    void UpdateMenuItems();

public Q_SLOTS:
    void FileNewItemClick();
    void FileOpenItemClick();
    void FileCloseItemClick();
    void FileSaveItemClick();
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

    // MainFormWindows.cpp
    void createClientArea();
    void watchMaskWindow(TMaske *mask);
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
};
