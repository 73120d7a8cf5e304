#pragma once

#include <QIcon>

#include "ControlKinds.h"

// The pictograms of the tool bars and menus, drawn in code on a 24x24 grid so
// they stay sharp at every size and need no image files.
namespace PaletteIcons {

// The control palette: one pictogram per control kind; None is the
// selection arrow.
QIcon controlIcon(TPaletteCode code);

enum class Command {
    New, Open, Save, SaveAs, Close, Exit,
    Cut, Copy, Paste, Delete, Lock, Undo, Redo,
    Inspector, Settings,
    Cascade, Tile, Arrange, MinimizeAll,
    About, CreateTable, MaskOptions
};
QIcon commandIcon(Command command);

QIcon applicationIcon();
// The icon in the caption of a mask window.
QIcon maskIcon();

} // namespace PaletteIcons
