#pragma once

#include <QIcon>

// The pictograms of the tool bars and menus, drawn in code on a 24x24 grid so
// they stay sharp at every size and need no image files.
namespace PaletteIcons {

// The control palette: one pictogram per control kind (the palette's tag);
// 0 is the selection arrow.
QIcon controlIcon(int tag);

enum class Command {
    New, Open, Save, SaveAs, Close, Exit,
    Cut, Copy, Paste, Delete, Lock, Undo, Redo,
    Inspector, Settings,
    Cascade, Tile, Arrange, MinimizeAll,
    About
};
QIcon commandIcon(Command command);

QIcon applicationIcon();
// The icon in the caption of a mask window.
QIcon maskIcon();

} // namespace PaletteIcons
