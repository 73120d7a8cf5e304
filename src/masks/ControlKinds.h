#pragma once

#include <QList>
#include <QString>

class QWidget;
class TControlReader;
class TControlWriter;

// The palette codes of the control kinds: the palette buttons' tags and the
// placement switch of the mask window share them. 14 and 15 are unused.
enum class TPaletteCode : int {
    None = 0,
    Label = 1,
    Edit = 2,
    Combo = 3,
    Memo = 4,
    CheckBox = 5,
    Grid = 6,
    Button = 7,
    Bevel = 8,
    Preview = 9,
    DBLabel = 10,
    Shape = 11,
    Lookup = 12,
    Image = 13,
    PageControl = 16,
    Panel = 17,
    RadioGroup = 18,
    TreeList = 19,
    StringGrid = 20,
};

// What placing a control of the kind sets beyond its class defaults.
enum TPlaceFlag : unsigned {
    pfNone = 0,
    pfClassHint = 1 << 0,     // the class name as a placeholder hint
    pfTransparent = 1 << 1,   // drawn on the parent's surface
    pfEditStyle = 1 << 2,     // takes the mask's edit style
    pfEditable = 1 << 3,      // not read-only
    pfNoTabStop = 1 << 4,     // "Pflicht" starts off
    pfClassText = 1 << 5,     // the class name as its text
    pfShowHint = 1 << 6,
    pfToolFont = 1 << 7,      // the font tool bar applies
    pfLastFont = 1 << 8,      // the last tool bar font, set directly
};

// One kind of control a mask can hold: everything the palette, placement,
// mask file, tab order section and object inspector know about it.
struct TControlKind
{
    const char *className;        // the exact control class, "TLabel"
    const char *sectionPrefix;    // numbered sections "Label_1", ...; nullptr for single ones only
    const char *singleSection;    // a section of its own: the main grid, the preview and its tab strip
    const char *singleName;       // with a prefix too: the one control that takes the single section
    TPaletteCode code;            // None: the palette does not place it
    const char *paletteName;      // the palette button
    const char *paletteCaption;
    const char *paletteHint;      // nullptr: the caption
    int sortCode;                 // kind code of the "Sort" lines; -1: none
    const char *sortWord;         // "Feld" in "0-Feld3"
    const char *sortStem;         // the old component name stem the loader looks up, "dxEdit"
    void (TControlReader::*load)(const QString &section); // nullptr: loaded with another kind
    void (TControlWriter::*write)(QWidget *control, const QString &section);
    const char *inspectorCaption; // the inspector palette's button for the kind's page
    unsigned place;               // TPlaceFlag
};

namespace ControlKinds {

// Every kind, in the order loading makes them: containers before their contents.
const QList<TControlKind> &all();
// By exact class name; nullptr for classes the mask file does not know.
const TControlKind *byClass(const QString &className);
const TControlKind *byCode(TPaletteCode code);
const TControlKind *bySortCode(int sortCode);

} // namespace ControlKinds
