#pragma once

#include <QMenu>
#include <QList>
#include <QPixmap>
#include <QPointer>
#include <QRect>
#include <QStringList>
#include <QWidget>
#include <functional>

#include "Colors.h"
#include "DesignMessage.h"
#include "DesignSelection.h"
#include "DesignerInput.h"
#include "DesignerTypes.h"
#include "DragSession.h"
#include "StreamCache.h"

class QIODevice;
class TMemIniFile;
class TGrabHandles;
class TDesignOverlay;
class TComponentContainer;
class TfrmAlignmentPalette;

// The form designer engine: attached to a form, it makes the controls on its
// design control selectable, movable and sizable. It knows nothing of masks;
// a "control" is any toolkit control (TControl) inside the design control.
// The engine holds the published properties and the commands; it composes
// the selection (TDesignSelection), the mouse action in progress
// (TDragSession), the input of the design control (TDesignerInput), the grab
// handles (TGrabHandles) and the overlay that draws frames and marks
// (TDesignOverlay).
class TCustomFormDesigner : public QObject, private TDesignerInput::Host
{
    Q_OBJECT
public:
    // owner: the form the engine is dropped on (must be a widget).
    explicit TCustomFormDesigner(QObject *owner);
    ~TCustomFormDesigner() override;

    using TNotifyEvent = std::function<void(QObject *Sender)>;
    using TControlEvent = std::function<void(QObject *Sender, QWidget *TheControl)>;
    using TComponentEvent = std::function<void(QObject *Sender, QObject *TheComponent)>;

    // ---- published properties ----
    bool ClearBeforeLoad() const { return m_clearBeforeLoad; }
    void setClearBeforeLoad(bool v) { m_clearBeforeLoad = v; }
    TMessageProcessor MessageProcessor() const { return m_messageProcessor; }
    void setMessageProcessor(TMessageProcessor v);

    QStringList LockedControls() const { return m_lists[ltLocked]; }
    void setLockedControls(const QStringList &v);
    bool LockedInverse() const { return m_inverse[ltLocked]; }
    void setLockedInverse(bool v);
    TChildrenMode LockChildren() const { return m_children[ltLocked]; }
    void setLockChildren(TChildrenMode v);
    QStringList ProtectedControls() const { return m_lists[ltProtected]; }
    void setProtectedControls(const QStringList &v);
    bool ProtectedInverse() const { return m_inverse[ltProtected]; }
    void setProtectedInverse(bool v);
    TChildrenMode ProtectChildren() const { return m_children[ltProtected]; }
    void setProtectChildren(TChildrenMode v);
    TProtectMode ProtectMode() const { return m_protectMode; }
    void setProtectMode(TProtectMode v) { m_protectMode = v; }
    QStringList TransparentControls() const { return m_lists[ltTransparent]; }
    void setTransparentControls(const QStringList &v) { m_lists[ltTransparent] = v; }
    bool TransparentInverse() const { return m_inverse[ltTransparent]; }
    void setTransparentInverse(bool v) { m_inverse[ltTransparent] = v; }
    TChildrenMode TransparentChildren() const { return m_children[ltTransparent]; }
    void setTransparentChildren(TChildrenMode v) { m_children[ltTransparent] = v; }

    QMenu *PopupMenu() const { return m_popupMenu; }
    void setPopupMenu(QMenu *menu) { m_popupMenu = menu; }

    int GridStep() const { return m_gridStep; }
    void setGridStep(int v);
    bool SnapToGrid() const { return m_snapToGrid; }
    void setSnapToGrid(bool v) { m_snapToGrid = v; }
    bool SnapToGridKey() const { return m_snapToGridKey; }
    void setSnapToGridKey(bool v) { m_snapToGridKey = v; }
    bool DisplayGrid() const { return m_displayGrid; }
    void setDisplayGrid(bool v);
    TColor DesignerColor() const { return m_designerColor; }
    void setDesignerColor(TColor v);
    TColor GridColor() const { return m_gridColor; }
    void setGridColor(TColor v);
    bool ShowMoveSizeHint() const { return m_showMoveSizeHint; }
    void setShowMoveSizeHint(bool v) { m_showMoveSizeHint = v; }
    bool ShowComponentHint() const { return m_showComponentHint; }
    void setShowComponentHint(bool v) { m_showComponentHint = v; }
    int GrabSize() const { return m_grabSize; }
    void setGrabSize(int v);
    TAlignmentPaletteOptions AlignmentPalette() const { return m_alignmentPalette; }
    void setAlignmentPalette(TAlignmentPaletteOptions v);

    TColor NormalGrabBorder() const { return m_grabBorder[gtNormal]; }
    void setNormalGrabBorder(TColor v) { setGrabColor(m_grabBorder[gtNormal], v); }
    TColor NormalGrabFill() const { return m_grabFill[gtNormal]; }
    void setNormalGrabFill(TColor v) { setGrabColor(m_grabFill[gtNormal], v); }
    QPixmap NormalGrabGlyph() const { return m_grabGlyph[gtNormal]; }
    void setNormalGrabGlyph(const QPixmap &v) { setGrabGlyph(gtNormal, v); }
    TColor MultiGrabBorder() const { return m_grabBorder[gtMulti]; }
    void setMultiGrabBorder(TColor v) { setGrabColor(m_grabBorder[gtMulti], v); }
    TColor MultiGrabFill() const { return m_grabFill[gtMulti]; }
    void setMultiGrabFill(TColor v) { setGrabColor(m_grabFill[gtMulti], v); }
    QPixmap MultiGrabGlyph() const { return m_grabGlyph[gtMulti]; }
    void setMultiGrabGlyph(const QPixmap &v) { setGrabGlyph(gtMulti, v); }
    TColor LockedGrabBorder() const { return m_grabBorder[gtLocked]; }
    void setLockedGrabBorder(TColor v) { setGrabColor(m_grabBorder[gtLocked], v); }
    TColor LockedGrabFill() const { return m_grabFill[gtLocked]; }
    void setLockedGrabFill(TColor v) { setGrabColor(m_grabFill[gtLocked], v); }
    QPixmap LockedGrabGlyph() const { return m_grabGlyph[gtLocked]; }
    void setLockedGrabGlyph(const QPixmap &v) { setGrabGlyph(gtLocked, v); }

    bool KeySelect() const { return m_keySelect; }
    void setKeySelect(bool v) { m_keySelect = v; }
    bool KeyMove() const { return m_keyMove; }
    void setKeyMove(bool v) { m_keyMove = v; }
    bool ShowNonVisual() const { return m_showNonVisual; }
    void setShowNonVisual(bool v);
    bool ShowComponentCaptions() const { return m_showComponentCaptions; }
    void setShowComponentCaptions(bool v);
    bool SelectInBox() const { return m_selectInBox; }
    void setSelectInBox(bool v) { m_selectInBox = v; }
    bool MultiSelect() const { return m_multiSelect; }
    void setMultiSelect(bool v);
    QWidget *DesignControl() const { return m_designControl; }
    void setDesignControl(QWidget *v);
    bool EnableAxisDrag() const { return m_enableAxisDrag; }
    void setEnableAxisDrag(bool v) { m_enableAxisDrag = v; }
    bool DirectMove() const { return m_directMove; }
    void setDirectMove(bool v) { m_directMove = v; }
    TGrabMode GrabMode() const { return m_grabMode; }
    void setGrabMode(TGrabMode v);
    bool UseGrabGlyphs() const { return m_useGrabGlyphs; }
    void setUseGrabGlyphs(bool v);
    TColor GrabsTransparentColor() const { return m_grabsTransparentColor; }
    void setGrabsTransparentColor(TColor v);
    bool AlignmentEntireForm() const { return m_alignmentEntireForm; }
    void setAlignmentEntireForm(bool v) { m_alignmentEntireForm = v; }
    TLinePositions AlignmentLines() const { return m_alignmentLines; }
    void setAlignmentLines(TLinePositions v) { m_alignmentLines = v; }
    TColor AlignmentColorLeft() const { return m_alignmentColor[0]; }
    void setAlignmentColorLeft(TColor v) { m_alignmentColor[0] = v; }
    TColor AlignmentColorTop() const { return m_alignmentColor[1]; }
    void setAlignmentColorTop(TColor v) { m_alignmentColor[1] = v; }
    TColor AlignmentColorRight() const { return m_alignmentColor[2]; }
    void setAlignmentColorRight(TColor v) { m_alignmentColor[2] = v; }
    TColor AlignmentColorBottom() const { return m_alignmentColor[3]; }
    void setAlignmentColorBottom(TColor v) { m_alignmentColor[3] = v; }
    int AlignmentLineWidth() const { return m_alignmentLineWidth; }
    void setAlignmentLineWidth(int v) { m_alignmentLineWidth = v; }
    TMoveLimitMode MoveLimitMode() const { return m_moveLimitMode; }
    void setMoveLimitMode(TMoveLimitMode v) { m_moveLimitMode = v; }
    bool BlackBkgFix() const { return m_blackBkgFix; }
    void setBlackBkgFix(bool v) { m_blackBkgFix = v; }

    // ---- published events ----
    TControlEvent OnMoveSizeControl;
    TNotifyEvent OnChange;
    std::function<void(QObject *Sender, QWidget *TheControl, TMemIniFile &IniFile)> OnLoadControl;
    std::function<void(QObject *Sender, QWidget *TheControl, TMemIniFile &IniFile)> OnSaveControl;
    TControlEvent OnSelectControl;
    TNotifyEvent OnSelectionChange;
    TControlEvent OnAddControl;
    TControlEvent OnDeleteControl;
    TControlEvent OnControlDblClick;
    TNotifyEvent OnActivate;
    TNotifyEvent OnDeactivate;
    std::function<void(QObject *Sender, int &Key, Qt::KeyboardModifiers Shift)> OnKeyDown;
    std::function<void(QObject *Sender, int &Key, Qt::KeyboardModifiers Shift)> OnKeyUp;
    std::function<void(QObject *Sender, TDesignMessage &Msg)> OnMessage;
    std::function<void(QObject *Sender, QWidget *TheControl, QRect &LimitRect)> OnMoveLimit;
    std::function<void(QObject *Sender, QWidget *TheControl, QPoint &MinSize, QPoint &MaxSize)> OnSizeLimit;
    std::function<void(QObject *Sender, const QString &Message, bool &Handled)> OnReadError;
    std::function<void(QObject *Sender, TGrabPositions &VisibleGrabs, TGrabPositions &EnabledGrabs)>
        OnCustomizeGrabs;
    std::function<void(QObject *Sender, QObject *TheComponent, QString &Text)> OnComponentHint;
    std::function<void(QObject *Sender, QObject *TheComponent, QString &Text)> OnComponentCaption;
    std::function<void(QObject *Sender, QObject *TheComponent, QPixmap &Bitmap)> OnComponentBitmap;
    std::function<void(QObject *Sender, QObject *TheComponent, bool &Editable)> OnComponentEditable;
    TComponentEvent OnCopyComponent;
    TComponentEvent OnPasteComponent;
    std::function<void(QObject *Sender, bool &Handled)> OnContextPopup;
    std::function<void(QObject *Sender, QObject *TheComponent, TEditBehaviour &Behaviour)> OnEditBehaviour;
    TComponentEvent OnPlaceComponent;
    std::function<void(QObject *Sender, QRect &R)> OnEndPlacing;
    std::function<void(QObject *Sender, QRect &R)> OnEndSelecting;
    std::function<void(QObject *Sender, QWidget *Form)> OnShowAlignmentPalette;
    std::function<void(QObject *Sender, QWidget *TheControl, bool &Valid)> OnValidateSelection;

    // ---- run-time state ----
    bool Active() const { return m_active; }
    void setActive(bool active);
    QWidget *Controls(int index) const; // throws EFormDesigner outside 0..ControlCount-1
    int ControlCount() const { return m_selection.count(); }
    QObject *Components(int index) const; // selected non-visual components
    int ComponentCount() const { return m_selection.componentCount(); }
    bool Modified() const { return m_modified; }
    void setModified(bool v) { m_modified = v; }
    bool Locked() const { return m_lockCount > 0; }
    bool SynchroLocked() const { return m_synchroLockCount > 0; }
    TMouseAction MouseAction() const { return m_session.action(); }
    QWidget *MenuControl() const { return m_input.menuControl(); }
    QWidget *ParentForm() const;
    QWidget *AlignmentPaletteForm() const;
    QByteArray Ancestor() const { return m_ancestor; }
    void setAncestor(const QByteArray &stream) { m_ancestor = stream; }
    // The current control: the first of the selection, or nullptr.
    QWidget *currentControl() const;
    // The selected controls that still exist, the current one first.
    QList<QWidget *> selection() const;

    // ---- operations ----
    void Update();
    // Re-places the handles of the current control and repaints the marks.
    void UpdateGrabs();
    // The grid bitmap for the current settings (empty when the step is wider
    // than the screen). Built when first asked for after a change.
    QPixmap gridBitmap() const;
    // The widget that draws frames and marks over the attached control; the
    // grab handles stay below it.
    QWidget *overlayWidget() const;
    // The pre-drawn handle of each look, as handles and multi-selection marks show it.
    QPixmap grabBitmap(TGrabType type) const { return m_grabBitmap[type]; }
    // What a mark of that look shows: the type's glyph (its transparent
    // colour left out) where glyphs are used and one is set, else the bitmap.
    QPixmap grabLook(TGrabType type) const { return m_grabLook[type]; }
    int ControlIndex(QWidget *control) const;
    void AddControl(QWidget *control);
    void DeleteControl(QWidget *control);
    void AddComponent(QObject *component);
    void DeleteComponent(QObject *component);
    void SelectAll();
    void UnselectAll();
    void ClearControls();
    void ClearForm();
    QWidget *FindNextControl(bool goForward) const;
    // The deepest designable control under pos (design control coordinates),
    // looking through transparent controls; the design control where none.
    QWidget *ControlAtMousePos(QWidget *parent, const QPoint &pos) const;
    QWidget *ControlAtPos(const QPoint &designPos) const;
    // The designable control a widget (or an inner widget of a control) belongs to.
    QWidget *FindWinControl(QWidget *widget) const;
    TComponentContainer *FindComponentContainer(QObject *component) const;
    bool IsDesignable(QObject *component) const;

    bool IsLocked(QWidget *control) const;
    bool IsProtected(QWidget *control) const;
    bool IsTransparent(QWidget *control) const;

    void Lock() { ++m_lockCount; }
    void Unlock() { if (m_lockCount > 0) --m_lockCount; }
    void SynchroLock() { ++m_synchroLockCount; }
    void SynchroUnlock() { if (m_synchroLockCount > 0) --m_synchroLockCount; }
    void LeaveMouseAction();

    // The placing tool: the next left click (or drawn rectangle) creates a
    // component of the class; then OnPlaceComponent.
    void PlaceComponentClassName(const QString &className);
    void CancelPlacing();
    QWidget *CreateComponentClassName(const QString &className, QWidget *parent, const QRect &bounds);

    void AlignToGrid();
    void AlignControls(TAlignMode horizontal, TAlignMode vertical);
    void SizeControls(TSizeMode widthMode, int widthValue, TSizeMode heightMode, int heightValue);
    void AlignDialog();
    void SizeDialog();
    bool TabOrderDialog();
    void ShowAlignmentPalette();
    void HideAlignmentPalette();
    void EditControlLists(TListType defaultList);

    bool CanCopy() const;
    bool CanPaste() const;
    void CopyToClipboard();
    void CutToClipboard();
    void PasteFromClipboard();
    void SaveToStream(QIODevice &stream);
    // What SaveToStream writes, one binary stream per control of the layout.
    QList<QByteArray> layoutStreams() const;
    void LoadFromStream(QIODevice &stream);
    void SaveComponentToStream(QIODevice &stream, QWidget *component, TDFMFormat format);
    void LoadComponentFromStream(QIODevice &stream, QWidget *component, TDFMFormat format);
    void SaveToDFM(const QString &fileName, TDFMFormat format);
    void LoadFromDFM(const QString &fileName, TDFMFormat format);
    void SaveToFile(const QString &fileName);
    void LoadFromFile(const QString &fileName);
    QString GetComponentProperties(QObject *component) const;
    void SetComponentProperties(QObject *component, const QString &properties);

    QString GetComponentHint(QObject *component) const;
    QString GetComponentCaption(QObject *component) const;

protected:
    void customEvent(QEvent *event) override;

    // The two notifications through which moves, sizes and changes are reported.
    virtual void DoMoveSizeControl(QWidget *control);
    virtual void DoChange();

private:
    // FormDesigner.cpp: attaching, selection
    void attach();
    void detach();
    QWidget *designControlOrForm() const;
    void selectionChanged(QWidget *oldCurrent);
    bool validateSelection(QWidget *control);
    void showPopupMenu();

    // What the input asks of the engine (TDesignerInput::Host).
    void makeCurrent(QWidget *control) override;
    bool acceptsSelection(QWidget *control) override { return validateSelection(control); }
    QString armedClass() const override { return m_placeClass; }
    void moveSizeByKey(int key, TDesignerInput::KeyMode mode) override; // FormDesignerNudge.cpp
    void finishMouseAction(const QPoint &designPos, Qt::KeyboardModifiers shift,
                           const QPoint &globalPos) override; // FormDesignerDrag.cpp

    // FormDesignerDrag.cpp: applying a mouse action
    void finishDrag();
    void finishSelecting(Qt::KeyboardModifiers shift);
    void finishPlacing(Qt::KeyboardModifiers shift);

    // FormDesignerGrabs.cpp: the handles' looks
    void setGrabColor(TColor &slot, TColor value);
    void setGrabGlyph(TGrabType type, const QPixmap &glyph);
    void updateGrabBitmaps();

    // FormDesignerGrid.cpp: grid bitmap and the design control's background
    void gridChanged(); // FormDesigner.cpp: a grid property changed
    void updateGridBitmap();
    void applyDesignBackground();
    void restoreDesignBackground();

    // FormDesignerLists.cpp: locked, protected, transparent
    bool nameListMatch(TListType list, QWidget *control) const;
    bool listTest(TListType list, QWidget *control) const;
    TEditBehaviour behaviourOf(QObject *component) const;
    void listsChanged();

    // FormDesignerCommands.cpp: align, size, tab order
    void prepareSelection(bool dropLocked);
    // Moves and sizes done, reported together.
    void reportMoveSize(const QList<QWidget *> &controls, const QList<QRect> &before);

    // FormDesignerClipboard.cpp: streaming and clipboard
    QWidget *pasteTarget() const;
    void readError(const QString &message, bool handled, bool raise);
    // A reader's error handler that asks OnReadError and notes what it saw.
    std::function<void(const QString &, bool &)> reportingTo(QStringList *reported);
    void readLayout(const QByteArray &bytes, const QString &what);
    QList<QWidget *> layoutControls() const;

    // ComponentContainer.cpp: one container per non-visual component of the
    // form while active and ShowNonVisual; attach() calls updateContainers()
    // once the design control is set up, detach() calls removeContainers()
    // while m_attached is still set.
    void updateContainers();
    void removeContainers();

    // properties
    bool m_clearBeforeLoad = true;
    TMessageProcessor m_messageProcessor = mpEvent;
    QStringList m_lists[3];
    bool m_inverse[3] = {false, false, false};
    TChildrenMode m_children[3] = {cmNone, cmNone, cmNone};
    TProtectMode m_protectMode = pmUnselect;
    QPointer<QMenu> m_popupMenu;
    int m_gridStep = 8;
    bool m_snapToGrid = false;
    bool m_snapToGridKey = false;
    bool m_displayGrid = false;
    TColor m_designerColor = Colors::clNone;
    TColor m_gridColor = Colors::clNone;
    bool m_showMoveSizeHint = true;
    bool m_showComponentHint = false;
    int m_grabSize = 5;
    TAlignmentPaletteOptions m_alignmentPalette = apStayOnTop | apShowHints;
    TColor m_grabBorder[3] = {Colors::clBlack, Colors::clGray, Colors::clBlack};
    TColor m_grabFill[3] = {Colors::clBlack, Colors::clGray, Colors::clGray};
    QPixmap m_grabGlyph[3];
    bool m_keySelect = true;
    bool m_keyMove = true;
    bool m_showNonVisual = true;
    bool m_showComponentCaptions = false;
    bool m_selectInBox = false;
    bool m_multiSelect = true;
    QPointer<QWidget> m_designControl;
    bool m_enableAxisDrag = false;
    bool m_directMove = false;
    TGrabMode m_grabMode = gmMiddle;
    bool m_useGrabGlyphs = false;
    TColor m_grabsTransparentColor = Colors::clBlack;
    bool m_alignmentEntireForm = false;
    TLinePositions m_alignmentLines;
    TColor m_alignmentColor[4] = {Colors::clGray, Colors::clGray, Colors::clGray, Colors::clGray};
    int m_alignmentLineWidth = 1;
    TMoveLimitMode m_moveLimitMode = lmCursor;
    bool m_blackBkgFix = false;

    // state
    bool m_active = false;
    QPointer<QWidget> m_attached; // the design control while active
    TDesignSelection m_selection;
    TDragSession m_session;
    TDesignerInput m_input;
    TGrabHandles *m_grabs = nullptr;
    TDesignOverlay *m_overlay = nullptr;
    mutable TStreamCache m_streamCache;
    QPointer<QWidget> m_underlay; // paints the grid under the controls
    QList<QPointer<TComponentContainer>> m_containers;
    QPixmap m_grabBitmap[3];
    QPixmap m_grabLook[3];
    // Activation sets the grid's settings one by one; the bitmap is built
    // once, when painted, and only when what it shows differs.
    struct TGridKey {
        QRgb fill = 0;
        QRgb dot = 0;
        int step = 0;
        QSize screen;
        bool operator==(const TGridKey &o) const
        {
            return fill == o.fill && dot == o.dot && step == o.step && screen == o.screen;
        }
    };
    mutable QPixmap m_gridBitmap;
    mutable TGridKey m_gridKey;
    mutable bool m_gridBuilt = false;
    mutable bool m_gridStale = true;
    Qt::FocusPolicy m_savedFocusPolicy = Qt::NoFocus;
    QPointer<QWidget> m_palette; // the TfrmAlignmentPalette, once made
    int m_lockCount = 0;
    int m_synchroLockCount = 0;
    bool m_modified = false;
    QByteArray m_ancestor;
    QString m_placeClass; // the class the placing tool is armed with
};

// The component that forms carry: publishes everything above.
class TFormDesigner : public TCustomFormDesigner
{
    Q_OBJECT
public:
    explicit TFormDesigner(QObject *owner) : TCustomFormDesigner(owner) {}
};
