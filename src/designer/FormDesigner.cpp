// The engine's core: properties, attaching to the design control, and the
// selection model.
#include "FormDesigner.h"

#include <QApplication>
#include <QMenu>

#include "Components.h"
#include "Control.h"
#include "DesignerWidgets.h"

namespace {
QList<TCustomFormDesigner *> &activeList()
{
    static QList<TCustomFormDesigner *> list;
    return list;
}
} // namespace

TCustomFormDesigner::TCustomFormDesigner(QObject *owner) : QObject(owner)
{
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
    delete m_hint.data();
}

const QList<TCustomFormDesigner *> &TCustomFormDesigner::activeDesigners()
{
    return activeList();
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

void TCustomFormDesigner::setGridStep(int v)
{
    m_gridStep = std::max(1, v);
    if (m_active) {
        updateGridBitmap();
        applyDesignBackground();
    }
}

void TCustomFormDesigner::setDisplayGrid(bool v)
{
    m_displayGrid = v;
    if (m_active) {
        updateGridBitmap();
        applyDesignBackground();
    }
}

void TCustomFormDesigner::setDesignerColor(TColor v)
{
    m_designerColor = v;
    if (m_active) {
        updateGridBitmap();
        applyDesignBackground();
    }
}

void TCustomFormDesigner::setGridColor(TColor v)
{
    m_gridColor = v;
    if (m_active) {
        updateGridBitmap();
        applyDesignBackground();
    }
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
    while (!m_multiSelect && m_controls.size() > 1)
        DeleteControl(m_controls.last());
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
    m_controls.clear();
    m_components.clear();
    m_grabs = new TGrabHandles(this);
    activeList().append(this);
    installHook();
    watchWidget(dc);

    m_savedFocusPolicy = dc->focusPolicy();
    dc->setFocusPolicy(Qt::StrongFocus);
    updateGridBitmap();
    applyDesignBackground();
    m_overlay = new TDesignOverlay(this, dc);
    m_overlay->show();
    m_overlay->raise();
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
    activeList().removeAll(this);
    removeHook();
    QWidget *dc = m_attached;
    for (const QPointer<QWidget> &w : std::as_const(m_watched))
        if (w)
            unwatchWidget(w);
    m_watched.clear();
    m_watchedSet.clear();
    for (const QPointer<QWidget> &c : std::as_const(m_controls))
        if (c)
            disconnect(c, &QObject::destroyed, this, nullptr);
    m_controls.clear();
    m_components.clear();
    delete m_grabs;
    m_grabs = nullptr;
    delete m_overlay;
    m_overlay = nullptr;
    hideHint();
    if (dc) {
        restoreDesignBackground();
        dc->setFocusPolicy(m_savedFocusPolicy);
    }
    m_attached = nullptr;
    m_active = false;
    if (OnDeactivate)
        OnDeactivate(this);
}

void TCustomFormDesigner::watchWidget(QWidget *widget)
{
    if (!widget || widget == m_overlay || widget == m_underlay)
        return;
    if (m_messageProcessor == mpEvent && !m_watchedSet.contains(widget)) {
        widget->installEventFilter(this);
        m_watched.append(widget);
        m_watchedSet.insert(widget);
        // A later widget may get the same address; it must be watched anew.
        connect(widget, &QObject::destroyed, &m_watchContext,
                [this](QObject *gone) { m_watchedSet.remove(static_cast<QWidget *>(gone)); });
    }
    if (TControl *c = TControl::from(widget); c && widget != m_attached)
        c->setDesigning(true);
    for (QObject *child : widget->children())
        if (child->isWidgetType())
            watchWidget(static_cast<QWidget *>(child));
}

void TCustomFormDesigner::unwatchWidget(QWidget *widget)
{
    widget->removeEventFilter(this);
    disconnect(widget, &QObject::destroyed, &m_watchContext, nullptr);
    if (TControl *c = TControl::from(widget); c && widget != m_attached)
        c->setDesigning(false);
}

void TCustomFormDesigner::Update()
{
    if (!m_active)
        return;
    m_watched.removeIf([](const QPointer<QWidget> &w) { return w.isNull(); });
    watchWidget(m_attached);
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

bool TCustomFormDesigner::isInDesignControl(const QWidget *widget) const
{
    return m_attached && widget && (widget == m_attached || m_attached->isAncestorOf(widget));
}

// ---- the selection ----

QWidget *TCustomFormDesigner::currentControl() const
{
    for (const QPointer<QWidget> &c : m_controls)
        if (c)
            return c;
    return nullptr;
}

QList<QWidget *> TCustomFormDesigner::selection() const
{
    QList<QWidget *> out;
    for (const QPointer<QWidget> &c : m_controls)
        if (c)
            out << c.data();
    return out;
}

QWidget *TCustomFormDesigner::Controls(int index) const
{
    if (index < 0 || index >= m_controls.size() || !m_controls.at(index))
        throw EFormDesigner(QStringLiteral("Index of Controls array is out or range."));
    return m_controls.at(index);
}

QObject *TCustomFormDesigner::Components(int index) const
{
    if (index < 0 || index >= m_components.size())
        throw EFormDesigner(QStringLiteral("Index of Controls array is out or range."));
    return m_components.at(index);
}

int TCustomFormDesigner::ControlIndex(QWidget *control) const
{
    for (int i = 0; i < m_controls.size(); ++i)
        if (m_controls.at(i) == control)
            return i;
    return -1;
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
    if (!m_multiSelect && !m_controls.isEmpty()) {
        // One control at a time: the new one replaces the selection.
        const QList<QPointer<QWidget>> gone = m_controls;
        m_controls.clear();
        for (const QPointer<QWidget> &c : gone)
            if (c && OnDeleteControl)
                OnDeleteControl(this, c);
    }
    m_controls.append(control);
    disconnect(control, &QObject::destroyed, this, nullptr);
    connect(control, &QObject::destroyed, this, [this](QObject *gone) {
        // A selected control went away: it leaves the selection.
        if (!m_active)
            return;
        QWidget *old = currentControl();
        const auto dead = [gone](const QPointer<QWidget> &c) {
            return c.isNull() || static_cast<QObject *>(c.data()) == gone;
        };
        m_controls.removeIf(dead);
        if (OnDeleteControl)
            OnDeleteControl(this, static_cast<QWidget *>(gone));
        selectionChanged(old); // compared by address only: the old one may be dying
    });
    if (OnAddControl)
        OnAddControl(this, control);
    selectionChanged(old);
}

void TCustomFormDesigner::DeleteControl(QWidget *control)
{
    const int index = ControlIndex(control);
    if (index < 0)
        return;
    QWidget *old = currentControl();
    m_controls.removeAt(index);
    disconnect(control, &QObject::destroyed, this, nullptr);
    if (OnDeleteControl)
        OnDeleteControl(this, control);
    selectionChanged(old);
}

void TCustomFormDesigner::setCurrent(QWidget *control)
{
    const int index = ControlIndex(control);
    if (index <= 0)
        return;
    QWidget *old = currentControl();
    m_controls.move(index, 0);
    selectionChanged(old);
}

void TCustomFormDesigner::ClearControls()
{
    if (m_controls.isEmpty() && m_components.isEmpty())
        return;
    QWidget *old = currentControl();
    const QList<QPointer<QWidget>> gone = m_controls;
    m_controls.clear();
    m_components.clear();
    for (const QPointer<QWidget> &c : gone) {
        if (!c)
            continue;
        disconnect(c, &QObject::destroyed, this, nullptr);
        if (OnDeleteControl)
            OnDeleteControl(this, c);
    }
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
    if (!component || m_components.contains(component))
        return;
    m_components.append(component);
    if (OnSelectionChange)
        OnSelectionChange(this);
}

void TCustomFormDesigner::DeleteComponent(QObject *component)
{
    if (m_components.removeAll(component) > 0 && OnSelectionChange)
        OnSelectionChange(this);
}

// ---- finding controls ----

QWidget *TCustomFormDesigner::ControlAtMousePos(QWidget *parent, const QPoint &pos) const
{
    // Deepest designable control under pos (parent's coordinates), topmost
    // first; transparent controls are looked through.
    const QObjectList &children = parent->children();
    for (auto it = children.crbegin(); it != children.crend(); ++it) {
        if (!(*it)->isWidgetType())
            continue;
        auto *w = static_cast<QWidget *>(*it);
        if (w->isHidden() || !w->geometry().contains(pos) || !IsDesignable(w))
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
