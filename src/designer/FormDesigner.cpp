// The engine's core: properties, attaching to the design control, and the
// selection model.
#include "FormDesigner.h"

#include <QApplication>
#include <QMenu>

#include "Components.h"
#include "Control.h"
#include "DesignerWidgets.h"

TCustomFormDesigner::TCustomFormDesigner(QObject *owner)
    : QObject(owner), m_session(*this), m_input(*this, *this, m_session)
{
    connect(&m_selection, &TDesignSelection::controlDestroyed, this, [this](QWidget *gone, QWidget *old) {
        // A selected control went away: it has left the selection.
        if (!m_active)
            return;
        if (OnDeleteControl)
            OnDeleteControl(this, gone);
        selectionChanged(old);
    });
    updateGrabBitmaps();
}

TCustomFormDesigner::~TCustomFormDesigner()
{
    if (m_active) {
        try {
            setActive(false);
        } catch (...) {
            // Going away anyway; nothing to report to.
        }
    }
    delete m_palette.data();
}

QWidget *TCustomFormDesigner::ParentForm() const
{
    return qobject_cast<QWidget *>(parent());
}

QWidget *TCustomFormDesigner::designControlOrForm() const
{
    return m_designControl ? m_designControl.data() : ParentForm();
}

// ---- properties that act at once ----

void TCustomFormDesigner::setMessageProcessor(TMessageProcessor v)
{
    if (v == m_messageProcessor)
        return;
    if (m_active)
        throw EFormDesigner(QStringLiteral("Cannot change message processor when TFormDesigner is active"));
    m_messageProcessor = v;
}

void TCustomFormDesigner::gridChanged()
{
    if (m_active) {
        updateGridBitmap();
        applyDesignBackground();
    }
}

void TCustomFormDesigner::setGridStep(int v)
{
    m_gridStep = std::max(1, v);
    gridChanged();
}

void TCustomFormDesigner::setDisplayGrid(bool v)
{
    m_displayGrid = v;
    gridChanged();
}

void TCustomFormDesigner::setDesignerColor(TColor v)
{
    m_designerColor = v;
    gridChanged();
}

void TCustomFormDesigner::setGridColor(TColor v)
{
    m_gridColor = v;
    gridChanged();
}

void TCustomFormDesigner::setGrabSize(int v)
{
    m_grabSize = std::clamp(v, 1, 128);
    updateGrabBitmaps();
}

void TCustomFormDesigner::setMultiSelect(bool v)
{
    m_multiSelect = v;
    // Without multiple selection only the current control stays.
    while (!m_multiSelect && m_selection.count() > 1)
        DeleteControl(m_selection.at(m_selection.count() - 1));
}

void TCustomFormDesigner::setDesignControl(QWidget *v)
{
    if (v == m_designControl)
        return;
    const bool wasActive = m_active;
    if (wasActive)
        setActive(false);
    m_designControl = v;
    if (wasActive)
        setActive(true);
}

void TCustomFormDesigner::setGrabMode(TGrabMode v)
{
    m_grabMode = v;
    UpdateGrabs();
}

void TCustomFormDesigner::setUseGrabGlyphs(bool v)
{
    m_useGrabGlyphs = v;
    updateGrabBitmaps();
}

void TCustomFormDesigner::setGrabsTransparentColor(TColor v)
{
    m_grabsTransparentColor = v;
    updateGrabBitmaps();
}

// ---- attaching ----

void TCustomFormDesigner::setActive(bool active)
{
    if (active == m_active)
        return;
    if (active)
        attach();
    else
        detach();
}

void TCustomFormDesigner::attach()
{
    if (!ParentForm())
        throw EFormDesigner(QStringLiteral("Owner of TFormDesigner must be TCustomForm descendant."));
    QWidget *dc = designControlOrForm();
    if (!dc)
        throw EFormDesigner(QStringLiteral("TFormDesigner has no parent window."));

    m_attached = dc;
    m_active = true;
    m_selection.takeControls();
    m_selection.clearComponents();
    m_grabs = new TGrabHandles(this);
    m_session.setDesignControl(dc);
    m_input.attach(dc);

    m_savedFocusPolicy = dc->focusPolicy();
    dc->setFocusPolicy(Qt::StrongFocus);
    updateGridBitmap();
    applyDesignBackground();
    m_overlay = new TDesignOverlay(*this, m_session, dc);
    m_input.exclude(m_overlay);
    m_input.exclude(m_overlay->stillWidget());
    // The design control may go first and take the overlay with it.
    connect(m_overlay, &QObject::destroyed, this, [this](QObject *gone) {
        if (m_overlay == gone)
            m_overlay = nullptr;
    });
    updateContainers();
    UpdateGrabs();

    if (m_alignmentPalette & apAutoShow)
        ShowAlignmentPalette();
    if (OnActivate)
        OnActivate(this);
}

void TCustomFormDesigner::detach()
{
    CancelPlacing();
    LeaveMouseAction();
    removeContainers();
    m_input.detach();
    QWidget *dc = m_attached;
    m_selection.takeControls();
    m_selection.clearComponents();
    delete m_grabs;
    m_grabs = nullptr;
    delete m_overlay;
    m_overlay = nullptr;
    m_session.reset();
    m_session.setDesignControl(nullptr);
    if (dc) {
        restoreDesignBackground();
        dc->setFocusPolicy(m_savedFocusPolicy);
    }
    m_attached = nullptr;
    m_active = false;
    if (OnDeactivate)
        OnDeactivate(this);
}

void TCustomFormDesigner::Update()
{
    if (!m_active)
        return;
    m_input.refresh();
    updateGridBitmap();
    applyDesignBackground();
    UpdateGrabs();
}

bool TCustomFormDesigner::IsDesignable(QObject *component) const
{
    auto *w = qobject_cast<QWidget *>(component);
    if (!w || !m_attached || w == m_attached || !TControl::from(w) || !m_attached->isAncestorOf(w))
        return false;
    bool editable = true;
    if (OnComponentEditable)
        OnComponentEditable(const_cast<TCustomFormDesigner *>(this), component, editable);
    return editable;
}

// ---- the selection ----

QWidget *TCustomFormDesigner::currentControl() const
{
    return m_selection.current();
}

QList<QWidget *> TCustomFormDesigner::selection() const
{
    return m_selection.controls();
}

QWidget *TCustomFormDesigner::Controls(int index) const
{
    QWidget *control = m_selection.at(index);
    if (!control)
        throw EFormDesigner(QStringLiteral("Index of Controls array is out or range."));
    return control;
}

QObject *TCustomFormDesigner::Components(int index) const
{
    if (index < 0 || index >= m_selection.componentCount())
        throw EFormDesigner(QStringLiteral("Index of Controls array is out or range."));
    return m_selection.componentAt(index);
}

int TCustomFormDesigner::ControlIndex(QWidget *control) const
{
    return m_selection.indexOf(control);
}

bool TCustomFormDesigner::validateSelection(QWidget *control)
{
    bool valid = true;
    if (OnValidateSelection)
        OnValidateSelection(this, control, valid);
    return valid;
}

void TCustomFormDesigner::selectionChanged(QWidget *oldCurrent)
{
    UpdateGrabs();
    if (OnSelectionChange)
        OnSelectionChange(this);
    QWidget *current = currentControl();
    if (current != oldCurrent && OnSelectControl)
        OnSelectControl(this, current);
}

void TCustomFormDesigner::AddControl(QWidget *control)
{
    if (!control || ControlIndex(control) >= 0 || !IsDesignable(control) || !validateSelection(control))
        return;
    QWidget *old = currentControl();
    if (!m_multiSelect && m_selection.count() > 0) {
        // One control at a time: the new one replaces the selection.
        for (QWidget *c : m_selection.takeControls())
            if (OnDeleteControl)
                OnDeleteControl(this, c);
    }
    m_selection.append(control);
    if (OnAddControl)
        OnAddControl(this, control);
    selectionChanged(old);
}

void TCustomFormDesigner::DeleteControl(QWidget *control)
{
    if (ControlIndex(control) < 0)
        return;
    QWidget *old = currentControl();
    m_selection.remove(control);
    if (OnDeleteControl)
        OnDeleteControl(this, control);
    selectionChanged(old);
}

void TCustomFormDesigner::makeCurrent(QWidget *control)
{
    if (ControlIndex(control) <= 0)
        return;
    QWidget *old = currentControl();
    m_selection.moveToFront(control);
    selectionChanged(old);
}

void TCustomFormDesigner::ClearControls()
{
    if (m_selection.count() == 0 && m_selection.componentCount() == 0)
        return;
    QWidget *old = currentControl();
    const QList<QWidget *> gone = m_selection.takeControls();
    m_selection.clearComponents();
    for (QWidget *c : gone)
        if (OnDeleteControl)
            OnDeleteControl(this, c);
    selectionChanged(old);
}

void TCustomFormDesigner::UnselectAll()
{
    ClearControls();
}

void TCustomFormDesigner::SelectAll()
{
    if (!m_attached)
        return;
    const QList<QWidget *> all = m_attached->findChildren<QWidget *>();
    for (QWidget *w : all)
        if (IsDesignable(w) && !IsProtected(w))
            AddControl(w);
}

void TCustomFormDesigner::AddComponent(QObject *component)
{
    if (m_selection.addComponent(component) && OnSelectionChange)
        OnSelectionChange(this);
}

void TCustomFormDesigner::DeleteComponent(QObject *component)
{
    if (m_selection.removeComponent(component) && OnSelectionChange)
        OnSelectionChange(this);
}

// ---- finding controls ----

QWidget *TCustomFormDesigner::ControlAtMousePos(QWidget *parent, const QPoint &pos) const
{
    // Deepest designable control under pos (parent's coordinates), topmost
    // first; transparent controls are looked through. Graphic controls lie
    // on their parent's surface, beneath every windowed control of it.
    const QObjectList &children = parent->children();
    for (const bool graphic : {false, true}) {
        for (auto it = children.crbegin(); it != children.crend(); ++it) {
            if (!(*it)->isWidgetType())
                continue;
            auto *w = static_cast<QWidget *>(*it);
            if (ControlLayout::isGraphic(w) != graphic || w->isHidden() || !w->geometry().contains(pos)
                || !IsDesignable(w))
                continue;
            QWidget *deeper = ControlAtMousePos(w, pos - w->pos());
            if (deeper == w)
                deeper = nullptr;
            if (IsTransparent(w)) {
                if (deeper)
                    return deeper;
                continue;
            }
            return deeper ? deeper : w;
        }
    }
    return parent;
}

QWidget *TCustomFormDesigner::ControlAtPos(const QPoint &designPos) const
{
    return m_attached ? ControlAtMousePos(m_attached, designPos) : nullptr;
}

QWidget *TCustomFormDesigner::FindWinControl(QWidget *widget) const
{
    for (QWidget *w = widget; w && w != m_attached; w = w->parentWidget())
        if (IsDesignable(w))
            return w;
    return nullptr;
}

QWidget *TCustomFormDesigner::FindNextControl(bool goForward) const
{
    if (!m_attached)
        return nullptr;
    // Tab order within each container, containers entered after themselves;
    // graphic controls follow the windowed ones of their parent.
    QList<QWidget *> order;
    std::function<void(QWidget *)> walk = [&](QWidget *container) {
        QList<QWidget *> kids = ControlLayout::tabList(container);
        for (QObject *o : container->children())
            if (o->isWidgetType() && !kids.contains(static_cast<QWidget *>(o)))
                kids << static_cast<QWidget *>(o);
        for (QWidget *w : kids) {
            if (!IsDesignable(w) || w->isHidden())
                continue;
            order << w;
            walk(w);
        }
    };
    walk(m_attached);
    if (order.isEmpty())
        return nullptr;
    const int index = int(order.indexOf(currentControl()));
    if (index < 0)
        return goForward ? order.first() : order.last();
    const int n = int(order.size());
    return order.at(((index + (goForward ? 1 : -1)) % n + n) % n);
}

QString TCustomFormDesigner::GetComponentHint(QObject *component) const
{
    QString text = component ? QStringLiteral("%1: %2").arg(component->objectName(),
                                                           QString::fromLatin1(component->metaObject()->className()))
                             : QString();
    if (OnComponentHint)
        OnComponentHint(const_cast<TCustomFormDesigner *>(this), component, text);
    return text;
}

QString TCustomFormDesigner::GetComponentCaption(QObject *component) const
{
    QString text = component ? component->objectName() : QString();
    if (OnComponentCaption)
        OnComponentCaption(const_cast<TCustomFormDesigner *>(this), component, text);
    return text;
}

// ---- the engine's posted messages ----

void TCustomFormDesigner::customEvent(QEvent *event)
{
    if (event->type() == designEventType(DesignMessages::FD_POPUPMENU))
        showPopupMenu();
    else if (event->type() == designEventType(DesignMessages::FD_LEAVEMOUSEACTION))
        LeaveMouseAction();
}

void TCustomFormDesigner::showPopupMenu()
{
    if (!m_popupMenu || !m_active)
        return;
    Lock();
    QCoreApplication::processEvents();
    LeaveMouseAction();
    m_popupMenu->popup(QCursor::pos());
    Unlock();
}

void TCustomFormDesigner::DoMoveSizeControl(QWidget *control)
{
    if (OnMoveSizeControl)
        OnMoveSizeControl(this, control);
}

void TCustomFormDesigner::DoChange()
{
    m_modified = true;
    if (OnChange)
        OnChange(this);
}
