#pragma once

class QWidget;
class TcxEditStyleController;
class TCustomFormDesigner;
class TMaske;
struct TFont;

// What a mask window needs from the main window that holds it: the armed
// palette tool and the font tool bar, the position fields, the object
// inspector, the settings, and the commands its keys trigger. The main
// window implements it; the mask window only calls.
class TMaskHost
{
public:
    virtual ~TMaskHost() = default;

    // Palette code of the control to place with the next click, 0 for none.
    virtual int ArmedTool() const = 0;
    // The clean-up after a placement click: tool disarmed, arrow button down,
    // tool bars read from the current control, inspector list rebuilt,
    // commands enabled, designer unlocked.
    virtual void placementDone(TMaske *mask) = 0;
    // The early end of a refused second preview image: only the tool is
    // disarmed and the buttons reset; the designer stays locked.
    virtual void placementRefused(TMaske *mask) = 0;
    // Applies the font tool bar to a control; nothing for kinds without a font.
    virtual void WriteFontStates(QWidget *control) = 0;
    // The font the font tool bar last wrote, if any.
    virtual bool lastFont(TFont &font) const = 0;

    virtual void FormDesigner1SelectControl(TMaske *mask, QWidget *control) = 0;
    virtual void setPositionFields(int top, int height, int left, int width) = 0;

    // Activation: the designer settings go into the mask's engine, and the
    // mask's edit style becomes the one the style dialog edits.
    virtual void applyDesignerSettings(TCustomFormDesigner *designer) = 0;
    virtual void maskActivated(TMaske *mask, TcxEditStyleController *styleController) = 0;
    virtual void UpdateComponents() = 0;
    virtual void showObjectInspector() = 0;
    virtual void maskClosed(TMaske *mask) = 0;

    virtual void PasteItemClick() = 0;
    virtual void CopyItemClick() = 0;
    virtual void CutItemClick() = 0;
    virtual void Lschen1Click() = 0;
    virtual void FileSaveItemClick() = 0;
};
