// The commands and the menu bar.
#include "MainForm.h"

#include "PaletteIcons.h"

#include <QAction>
#include <QActionGroup>
#include <QMenu>
#include <QMenuBar>

namespace {

QAction *makeAction(QObject *parent, const char *name, const QString &text, const QIcon &icon = QIcon(),
                    const QKeySequence &shortcut = QKeySequence())
{
    auto *action = new QAction(icon, text, parent);
    action->setObjectName(QLatin1String(name));
    if (!shortcut.isEmpty())
        action->setShortcut(shortcut);
    // The tool buttons show the caption without the mnemonic as their tip.
    action->setToolTip(QString(text).remove(QLatin1Char('&')).remove(QStringLiteral("...")));
    return action;
}

} // namespace

void TMainForm::createActions()
{
    using PaletteIcons::Command;
    using PaletteIcons::commandIcon;

    FileNewItem
        = makeAction(this, "FileNewItem", tr("&Neu"), commandIcon(Command::New), QKeySequence(Qt::CTRL | Qt::Key_N));
    FileOpenItem = makeAction(this, "FileOpenItem", tr("&Öffnen..."), commandIcon(Command::Open),
                              QKeySequence(Qt::CTRL | Qt::Key_O));
    FileCloseItem = makeAction(this, "FileCloseItem", tr("&Schliessen"), commandIcon(Command::Close));
    FileSaveItem = makeAction(this, "FileSaveItem", tr("&Speichern"), commandIcon(Command::Save),
                              QKeySequence(Qt::CTRL | Qt::Key_S));
    FileSaveAsItem = makeAction(this, "FileSaveAsItem", tr("Speichern &als..."), commandIcon(Command::SaveAs));
    FileExitItem = makeAction(this, "FileExitItem", tr("&Beenden"), commandIcon(Command::Exit));
    connect(FileNewItem, &QAction::triggered, this, &TMainForm::FileNewItemClick);
    connect(FileOpenItem, &QAction::triggered, this, &TMainForm::FileOpenItemClick);
    connect(FileCloseItem, &QAction::triggered, this, &TMainForm::FileCloseItemClick);
    connect(FileSaveItem, &QAction::triggered, this, &TMainForm::FileSaveItemClick);
    connect(FileSaveAsItem, &QAction::triggered, this, &TMainForm::FileSaveAsItemClick);
    connect(FileExitItem, &QAction::triggered, this, &TMainForm::FileExitItemClick);

    // The edit commands act on the selected controls; they wait for the designer.
    CutItem = makeAction(this, "CutItem", tr("Ausschneiden"), commandIcon(Command::Cut));
    CopyItem = makeAction(this, "CopyItem", tr("&Kopieren"), commandIcon(Command::Copy));
    PasteItem = makeAction(this, "PasteItem", tr("&Einfügen"), commandIcon(Command::Paste));
    DeleteItem = makeAction(this, "DeleteItem", tr("&Löschen"), commandIcon(Command::Delete));
    LockItem = makeAction(this, "LockItem", tr("Sperren"), commandIcon(Command::Lock));
    UndoItem = makeAction(this, "UndoItem", tr("Rückgängig"), commandIcon(Command::Undo));
    RedoItem = makeAction(this, "RedoItem", tr("Wiederholen"), commandIcon(Command::Redo));
    // Undo and Redo are there and deliberately do nothing: the history is
    // recorded, but loading a snapshot back is not offered.
    for (QAction *item : {CutItem, CopyItem, PasteItem, DeleteItem, LockItem})
        item->setEnabled(false);

    ObjectInspectorItem
        = makeAction(this, "ObjectInspectorItem", tr("&Objekt Inspektor"), commandIcon(Command::Inspector));
    SettingsItem = makeAction(this, "SettingsItem", tr("&Einstellungen..."), commandIcon(Command::Settings));
    StyleItem = makeAction(this, "StyleItem", tr("S&tile ändern..."));
    CreateTableItem
        = makeAction(this, "CreateTableItem", tr("Tabelle &erzeugen..."), commandIcon(Command::CreateTable));
    dxBarButton7 = makeAction(this, "dxBarButton7", tr("&Masken Optionen"), commandIcon(Command::MaskOptions));
    connect(CreateTableItem, &QAction::triggered, this, &TMainForm::CreateTableItemClick);
    connect(dxBarButton7, &QAction::triggered, this, &TMainForm::dxBarButton7Click);
    EditModeItem = makeAction(this, "EditModeItem", tr("&Bearbeitungsmodus"));
    RunModeItem = makeAction(this, "RunModeItem", QStringLiteral("&Run Mode"));
    for (QAction *item : {ObjectInspectorItem, EditModeItem, RunModeItem})
        item->setEnabled(false);

    WindowCascadeItem = makeAction(this, "WindowCascadeItem", tr("&Überlappen"), commandIcon(Command::Cascade));
    WindowTileItem = makeAction(this, "WindowTileItem", tr("Ü&bereinander"), commandIcon(Command::Tile));
    WindowArrangeItem = makeAction(this, "WindowArrangeItem", tr("&Anordnen"), commandIcon(Command::Arrange));
    WindowMinimizeItem
        = makeAction(this, "WindowMinimizeItem", tr("Alle &minimieren"), commandIcon(Command::MinimizeAll));
    connect(WindowCascadeItem, &QAction::triggered, this, &TMainForm::WindowCascadeItemClick);
    connect(WindowTileItem, &QAction::triggered, this, &TMainForm::WindowTileItemClick);
    connect(WindowArrangeItem, &QAction::triggered, this, &TMainForm::WindowArrangeItemClick);
    connect(WindowMinimizeItem, &QAction::triggered, this, &TMainForm::WindowMinimizeItemClick);

    HelpAboutItem = makeAction(this, "HelpAboutItem", tr("&Über..."), commandIcon(Command::About));
    connect(HelpAboutItem, &QAction::triggered, this, &TMainForm::HelpAboutItemClick);

    m_windowListGroup = new QActionGroup(this);
    m_windowListGroup->setObjectName(QStringLiteral("dxBarWindowGroup"));
    m_windowListGroup->setExclusive(true);
    connect(m_windowListGroup, &QActionGroup::triggered, this, &TMainForm::dxBarWindowClick);
}

void TMainForm::createMenus()
{
    m_menuBar = new QMenuBar;
    m_menuBar->setObjectName(QStringLiteral("MainMenu"));
    // The menu lives in the "Main Menu" tool bar, so it must draw itself.
    m_menuBar->setNativeMenuBar(false);

    auto addMenu = [this](const char *name, const QString &title) {
        QMenu *menu = m_menuBar->addMenu(title);
        menu->setObjectName(QLatin1String(name));
        // Menus are windows of their own and do not inherit the main window's font.
        menu->setFont(font());
        return menu;
    };

    m_fileMenu = addMenu("FileMenu", tr("&Datei"));
    m_fileMenu->addActions({FileNewItem, FileOpenItem, FileCloseItem, FileSaveItem, FileSaveAsItem});
    m_fileMenu->addSeparator();
    m_fileMenu->addAction(FileExitItem);

    m_editMenu = addMenu("EditMenu", tr("&Bearbeiten"));
    m_editMenu->addActions({CutItem, CopyItem, PasteItem, DeleteItem});
    m_editMenu->addSeparator();
    m_editMenu->addAction(LockItem);

    m_optionsMenu = addMenu("OptionsMenu", tr("&Optionen"));
    m_optionsMenu->addActions({ObjectInspectorItem, SettingsItem, StyleItem});
    m_optionsMenu->addSeparator();
    m_optionsMenu->addActions({dxBarButton7, CreateTableItem});
    m_optionsMenu->addSeparator();
    m_optionsMenu->addActions({EditModeItem, RunModeItem});

    m_windowMenu = addMenu("WindowMenu", tr("&Fenster"));
    m_windowMenu->addActions({WindowCascadeItem, WindowTileItem, WindowArrangeItem, WindowMinimizeItem});
    dxBarWindow = m_windowMenu->addSeparator();
    dxBarWindow->setObjectName(QStringLiteral("dxBarWindow"));
    connect(m_windowMenu, &QMenu::aboutToShow, this, &TMainForm::dxBarWindowPopup);

    m_helpMenu = addMenu("HelpMenu", tr("&Hilfe"));
    m_helpMenu->addAction(HelpAboutItem);
}
