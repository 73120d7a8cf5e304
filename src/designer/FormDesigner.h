#pragma once

#include <QElapsedTimer>
#include <QLabel>
#include <QMenu>
#include <QList>
#include <QPixmap>
#include <QPointer>
#include <QRect>
#include <QSet>
#include <QStringList>
#include <QWidget>
#include <functional>

#include "Colors.h"
#include "DesignerTypes.h"

class QIODevice;
class TMemIniFile;
class TGrabHandles;
class TDesignOverlay;
class TComponentContainer;
class TfrmAlignmentPalette;

// Message codes of the records the engine hands to OnMessage. Mouse and key
// events of the design control and everything inside it become such records;
// a handler that sets the code to 0 swallows the event.
namespace DesignMessages {
constexpr unsigned WM_MOVE = 0x0003;
constexpr unsigned WM_SIZE = 0x0005;
constexpr unsigned WM_PAINT = 0x000F;
constexpr unsigned WM_KEYDOWN = 0x0100;
constexpr unsigned WM_KEYUP = 0x0101;
constexpr unsigned WM_HSCROLL = 0x0114;
constexpr unsigned WM_VSCROLL = 0x0115;
constexpr unsigned WM_MOUSEMOVE = 0x0200;
constexpr unsigned WM_LBUTTONDOWN = 0x0201;
constexpr unsigned WM_LBUTTONUP = 0x0202;
constexpr unsigned WM_LBUTTONDBLCLK = 0x0203;
constexpr unsigned WM_RBUTTONDOWN = 0x0204;
constexpr unsigned WM_RBUTTONUP = 0x0205;
constexpr unsigned WM_RBUTTONDBLCLK = 0x0206;
constexpr unsigned WM_MBUTTONDOWN = 0x0207;
constexpr unsigned WM_MBUTTONUP = 0x0208;
constexpr unsigned WM_MBUTTONDBLCLK = 0x0209;
constexpr unsigned WM_MOUSEWHEEL = 0x020A;
// The engine's own posted messages.
constexpr unsigned FD_POPUPMENU = 2025;
constexpr unsigned FD_LEAVEMOUSEACTION = 0xB001;
} // namespace DesignMessages

// One intercepted input event, as handlers see it.
struct TDesignMessage
{
    QPointer<QWidget> hwnd;   // the widget the event is addressed to
    unsigned message = 0;     // a DesignMessages code; 0 = swallowed
    int key = 0;              // Qt::Key of key messages
    Qt::MouseButtons buttons; // buttons held (mouse messages)
    Qt::KeyboardModifiers shift;
    QPoint pos;               // in hwnd's coordinates
    QPoint pt;                // global position
    qint64 time = 0;          // milliseconds
};

// The form designer engine: attached to a form, it makes the controls on its
// design control selectable, movable and sizable. It knows nothing of masks;
// a "control" is any toolkit control (TControl) inside the design control.
class TCustomFormDesigner : public QObject
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
    int ControlCount() const { return int(m_controls.size()); }
    QObject *Components(int index) const; // selected non-visual components
    int ComponentCount() const { return int(m_components.size()); }
    bool Modified() const { return m_modified; }
    void setModified(bool v) { m_modified = v; }
    bool Locked() const { return m_lockCount > 0; }
    bool SynchroLocked() const { return m_synchroLockCount > 0; }
    TMouseAction MouseAction() const { return m_mouseAction; }
    QWidget *MenuControl() const { return m_menuControl; }
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
    // The grid bitmap as last built (empty when the step is wider than the screen).
    QPixmap gridBitmap() const { return m_gridBitmap; }
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

    // The engines that are active now, across the process.
    static const QList<TCustomFormDesigner *> &activeDesigners();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void customEvent(QEvent *event) override;

    // The two notifications through which moves, sizes and changes are reported.
    virtual void DoMoveSizeControl(QWidget *control);
    virtual void DoChange();

private:
    friend class TGrabHandles;
    friend class TGrabHandle;
    friend class TDesignOverlay;
    friend class TDesignerHook;
    friend class TComponentContainer;

    // FormDesigner.cpp: attaching, selection
    void attach();
    void detach();
    void installHook();
    void removeHook();
    void watchWidget(QWidget *widget);
    void unwatchWidget(QWidget *widget);
    QWidget *designControlOrForm() const;
    void selectionChanged(QWidget *oldCurrent);
    void setCurrent(QWidget *control);
    bool validateSelection(QWidget *control);

    // FormDesignerMessages.cpp: events to message records and their handling
    bool isInDesignControl(const QWidget *widget) const;
    bool processEvent(QWidget *target, QEvent *event);
    bool buildMessage(QWidget *target, QEvent *event, TDesignMessage &msg) const;
    bool dispatchMessage(TDesignMessage &msg);
    void handleLeftButtonDown(TDesignMessage &msg);
    void handleDoubleClick(TDesignMessage &msg, bool raiseEvent);
    void handleRightButtonDown(TDesignMessage &msg);
    void handleRightButtonUp(TDesignMessage &msg);
    void showPopupMenu();

    // FormDesignerKeys.cpp
    void handleKeyDown(TDesignMessage &msg);
    void handleKeyUp(TDesignMessage &msg);
    enum TKeyMode { kmNone, kmSelect, kmMovePixel, kmMoveGrid, kmSize };
    TKeyMode keyMode(Qt::KeyboardModifiers shift) const;
    void keyboardMoveSize(int key, TKeyMode mode);

    // FormDesignerGrabs.cpp: handles and multi-selection marks
    void setGrabColor(TColor &slot, TColor value);
    void setGrabGlyph(TGrabType type, const QPixmap &glyph);
    void updateGrabBitmaps();
    QPixmap grabBitmap(TGrabType type) const { return m_grabBitmap[type]; }

    // FormDesignerDrag.cpp: mouse moving, sizing, rubber band, placing
    void startDrag(QWidget *control, TGrabPosition handle, const QPoint &designPos);
    void startSelecting(const QPoint &designPos);
    void startPlacing(QWidget *parent, const QPoint &designPos);
    void mouseMoveAction(TDesignMessage &msg);
    void mouseUpAction(TDesignMessage &msg);
    QRect snapRect(const QRect &r) const;
    QPoint snapPoint(const QPoint &p) const;
    QRect limitRect(QWidget *control) const;
    QRect applyLimits(QWidget *control, const QRect &r, bool sizing) const;
    void setControlBounds(QWidget *control, const QRect &r);
    void updateHint(const QString &text, const QPoint &globalPos);
    void hideHint();

    // FormDesignerGrid.cpp: grid bitmap and the design control's background
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

    // FormDesignerClipboard.cpp: streaming and clipboard
    QWidget *pasteTarget() const;

    // ---- commands, lists and clipboard ----
    // ComponentContainer.cpp: one container per non-visual component of the
    // form while active and ShowNonVisual; attach() calls updateContainers()
    // once the design control is set up, detach() calls removeContainers()
    // while m_attached is still set.
    void updateContainers();
    void removeContainers();
    QList<QPointer<TComponentContainer>> m_containers;
    // FormDesignerCommands.cpp: moves and sizes done, reported together.
    void reportMoveSize(const QList<QWidget *> &controls, const QList<QRect> &before);
    // FormDesignerClipboard.cpp
    void readError(const QString &message, bool handled, bool raise);
    void readLayout(const QByteArray &bytes, const QString &what);
    QList<QWidget *> layoutControls() const;
    // ---- end of commands, lists and clipboard ----

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
    QPointer<QWidget> m_attached;             // the design control while active
    QList<QPointer<QWidget>> m_watched;       // widgets carrying our event filter (mpEvent)
    QSet<const QWidget *> m_watchedSet;       // the same, for the membership test
    QObject m_watchContext;                   // receiver of the watched widgets' destroyed signals
    QList<QPointer<QWidget>> m_controls;      // the selection; the first is the current control
    QList<QPointer<QObject>> m_components;    // selected non-visual components
    QPointer<QWidget> m_menuControl;
    TGrabHandles *m_grabs = nullptr;
    TDesignOverlay *m_overlay = nullptr;
    QPixmap m_grabBitmap[3];
    QPixmap m_gridBitmap;
    Qt::FocusPolicy m_savedFocusPolicy = Qt::NoFocus;
    QPointer<QWidget> m_palette; // the TfrmAlignmentPalette, once made
    QPointer<QLabel> m_hint;
    int m_lockCount = 0;
    int m_synchroLockCount = 0;
    bool m_modified = false;
    QByteArray m_ancestor;

    // placing
    QString m_placeClass;
    QPointer<QWidget> m_placeParent;

    // mouse work
    TMouseAction m_mouseAction = maNone;
    QPoint m_clickPos;        // design control coordinates
    QPoint m_cursorPos;       // design control coordinates
    QPoint m_dragPoint;       // design control coordinates
    QRect m_controlRect;      // the current control's bounds at the start (its parent's coordinates)
    QRect m_dragRect;         // the drag frame (parent's coordinates)
    QList<QRect> m_dragRects; // frames of every dragged control (their parents' coordinates)
    QRect m_selectRect;       // rubber band (design control coordinates)
    QRect m_placeRect;        // placing frame (design control coordinates)
    TGrabPosition m_dragHandle = gpNone;
    // The last event handled, so that a mouse or key event passed on to a
    // parent widget is not handled a second time there.
    int m_lastEventType = 0;
    quint64 m_lastEventTime = 0;
    QPoint m_lastEventGlobal;
    int m_lastEventKey = 0;
    QPoint m_lastClickPos;    // for double clicks: where the preceding click was
    QPointer<QWidget> m_lastClickControl;
    bool m_dragStarted = false;

    // drag state (FormDesignerDrag.cpp, FormDesignerGrid.cpp, DesignOverlay.cpp)
    QList<QPointer<QWidget>> m_dragControls; // the moved or sized controls, in step with m_dragRects
    QList<QRect> m_dragOrigins;              // their bounds when the drag started
    QPointer<QWidget> m_selectParent;        // the container whose children the rubber band selects
    QPointer<QWidget> m_underlay;            // paints the grid under the controls
    QPoint designOrigin(const QWidget *widget) const;
    QPoint messageDesignPos(const TDesignMessage &msg) const;
    void sizeLimits(QWidget *control, QPoint &minSize, QPoint &maxSize) const;
    QRect limitedRect(QWidget *control, const QRect &r, const QRect &old, TGrabPosition handle,
                      bool keepInside) const;
    void dragTo(QPoint designPos, Qt::KeyboardModifiers shift);
    void finishDrag();
    void finishSelecting(Qt::KeyboardModifiers shift);
    void finishPlacing(Qt::KeyboardModifiers shift);
    void resetMouseAction();
};

// The component that forms carry: publishes everything above.
class TFormDesigner : public TCustomFormDesigner
{
    Q_OBJECT
public:
    explicit TFormDesigner(QObject *owner) : TCustomFormDesigner(owner) {}
};
