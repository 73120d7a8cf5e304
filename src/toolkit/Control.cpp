#include "Control.h"

#include <QApplication>
#include <QEvent>
#include <QHash>
#include <QPalette>
#include <QSet>
#include <algorithm>

namespace {

// What a screen can show, and what the mask files' 16-bit origin could hold:
// no file or command can make a control larger or place it farther away, so
// nothing allocates for a giant control and sums of a few coordinates cannot
// overflow.
constexpr int kMaxCoordinate = 32767;

int clampPosition(qint64 v)
{
    return int(std::clamp<qint64>(v, -kMaxCoordinate, kMaxCoordinate));
}

int clampSize(qint64 v)
{
    return int(std::clamp<qint64>(v, 0, kMaxCoordinate));
}

// Lives as a plain QObject child of a container and watches it.
class ContainerInfo : public QObject
{
public:
    static ContainerInfo *of(QWidget *container, bool create)
    {
        if (!container)
            return nullptr;
        ContainerInfo *info = byContainer().value(container);
        if (!info && create)
            info = new ContainerInfo(container);
        return info;
    }

    explicit ContainerInfo(QWidget *container) : QObject(container), m_container(container)
    {
        setObjectName(QStringLiteral("_ferolith_container"));
        container->installEventFilter(this);
        byContainer().insert(container, this);
    }

    ~ContainerInfo() override { byContainer().remove(m_container); }

    // Looked up for every control on every move; a hash beats searching children.
    static QHash<const QWidget *, ContainerInfo *> &byContainer()
    {
        static QHash<const QWidget *, ContainerInfo *> map;
        return map;
    }

    QList<QPointer<QWidget>> tabs; // call tabsChanged() after changing it
    mutable QHash<const QWidget *, int> index;
    mutable bool indexValid = false;
    bool aligning = false;
    // How many of the container's controls have an Align; kept by the
    // controls, so a container without any is never searched.
    int alignedChildren = 0;

    void prune()
    {
        if (tabs.removeIf([](const QPointer<QWidget> &p) { return p.isNull(); }))
            tabsChanged();
    }

    // Saving asks every control for its tab order; an index built once
    // after each change keeps that linear.
    int indexOf(const QWidget *w) const
    {
        if (!indexValid) {
            index.clear();
            index.reserve(tabs.size());
            for (int i = 0; i < tabs.size(); ++i)
                index.insert(tabs.at(i).data(), i);
            indexValid = true;
        }
        return index.value(w, -1);
    }
    void tabsChanged() { indexValid = false; }

    void applyFocusChain()
    {
        prune();
        for (int i = 0; i + 1 < tabs.size(); ++i)
            QWidget::setTabOrder(tabs.at(i), tabs.at(i + 1));
    }

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (watched == m_container) {
            switch (event->type()) {
            case QEvent::Resize:
            case QEvent::ChildRemoved:
            case QEvent::LayoutRequest:
                ControlLayout::alignControls(m_container);
                break;
            default:
                break;
            }
        }
        return false;
    }

private:
    QWidget *m_container;
};

// The lowest and the highest sibling of w in one layer (graphic or
// windowed controls), nullptr where the layer holds nothing but w.
struct LayerEnds
{
    QWidget *lowest = nullptr;
    QWidget *highest = nullptr;
};

LayerEnds layerEnds(const QWidget *w, bool graphic)
{
    LayerEnds ends;
    if (!w->parentWidget())
        return ends;
    for (QObject *o : w->parentWidget()->children()) {
        const TControl *c = TControl::from(o);
        if (o == w || !c || c->widget()->isWindow() || c->classInfo().windowed == graphic)
            continue;
        if (!ends.lowest)
            ends.lowest = c->widget();
        ends.highest = c->widget();
    }
    return ends;
}

// Qt stacks a widget under another but not over one: under whatever lies
// directly above `below`.
void stackAbove(QWidget *w, QWidget *below)
{
    const QObjectList &siblings = w->parentWidget()->children();
    for (qsizetype i = siblings.indexOf(below) + 1; i < siblings.size(); ++i) {
        QObject *o = siblings.at(i);
        if (o != w && o->isWidgetType() && !static_cast<QWidget *>(o)->isWindow()) {
            w->stackUnder(static_cast<QWidget *>(o));
            return;
        }
    }
    w->raise();
}

bool hasAlignedChildren(QWidget *container)
{
    const ContainerInfo *info = ContainerInfo::of(container, false);
    return info && info->alignedChildren > 0;
}

} // namespace

namespace ControlLayout {

void alignControls(QWidget *container)
{
    if (!container)
        return;
    ContainerInfo *info = ContainerInfo::of(container, false);
    if (info && info->aligning)
        return;
    if (!hasAlignedChildren(container))
        return;
    if (!info)
        info = ContainerInfo::of(container, true);

    QRect rect;
    if (const TControl *c = TControl::from(container))
        rect = c->alignClientRect();
    else
        rect = container->contentsRect();

    info->aligning = true;
    QList<TControl *> byAlign[alCustom + 1];
    for (QObject *child : container->children()) {
        TControl *c = TControl::from(child);
        if (c && c->Align() != alNone && c->Align() != alCustom && c->Visible())
            byAlign[c->Align()].append(c);
    }
    // Controls of one alignment stack in the order of their current position.
    auto byTop = [](TControl *a, TControl *b) { return a->Top() < b->Top(); };
    auto byBottom = [](TControl *a, TControl *b) { return a->Top() + a->Height() > b->Top() + b->Height(); };
    auto byLeft = [](TControl *a, TControl *b) { return a->Left() < b->Left(); };
    auto byRight = [](TControl *a, TControl *b) { return a->Left() + a->Width() > b->Left() + b->Width(); };
    std::stable_sort(byAlign[alTop].begin(), byAlign[alTop].end(), byTop);
    std::stable_sort(byAlign[alBottom].begin(), byAlign[alBottom].end(), byBottom);
    std::stable_sort(byAlign[alLeft].begin(), byAlign[alLeft].end(), byLeft);
    std::stable_sort(byAlign[alRight].begin(), byAlign[alRight].end(), byRight);

    // Wide sums: a long stack of controls may run past any int.
    qint64 left = rect.left(), top = rect.top();
    qint64 right = qint64(rect.left()) + rect.width(), bottom = qint64(rect.top()) + rect.height();
    const auto place = [](TControl *c, qint64 x, qint64 y, qint64 w, qint64 h) {
        c->widget()->setGeometry(clampPosition(x), clampPosition(y), clampSize(w), clampSize(h));
    };
    for (TControl *c : byAlign[alTop]) {
        const int h = c->Height();
        place(c, left, top, right - left, h);
        top += h;
    }
    for (TControl *c : byAlign[alBottom]) {
        const int h = c->Height();
        bottom -= h;
        place(c, left, bottom, right - left, h);
    }
    for (TControl *c : byAlign[alLeft]) {
        const int w = c->Width();
        place(c, left, top, w, bottom - top);
        left += w;
    }
    for (TControl *c : byAlign[alRight]) {
        const int w = c->Width();
        right -= w;
        place(c, right, top, w, bottom - top);
    }
    for (TControl *c : byAlign[alClient])
        place(c, left, top, right - left, bottom - top);
    info->aligning = false;
}

QList<QWidget *> tabList(QWidget *container)
{
    QList<QWidget *> out;
    if (ContainerInfo *info = ContainerInfo::of(container, false)) {
        info->prune();
        for (const auto &p : std::as_const(info->tabs))
            out << p.data();
    }
    return out;
}

void endLoading(const QList<QWidget *> &controls)
{
    QHash<QWidget *, int> wish; // control -> wanted tab order
    QList<QWidget *> parents;
    QSet<QWidget *> seen;
    for (QWidget *w : controls) {
        TControl *c = TControl::from(w);
        if (!c || !w->parentWidget())
            continue;
        if (c->pendingTabOrder() >= 0)
            wish.insert(w, c->pendingTabOrder());
        if (!seen.contains(w->parentWidget())) {
            seen.insert(w->parentWidget());
            parents.append(w->parentWidget());
        }
    }
    for (QWidget *parent : std::as_const(parents)) {
        ContainerInfo *info = ContainerInfo::of(parent, false);
        if (!info)
            continue;
        info->prune();
        // Each control with a wish goes to exactly that place (the lower
        // wish first on a tie, then the next free place); the others fill the
        // places left, in the order they have. So a tab order read from a
        // file comes out as written, whatever order the controls were read in.
        const int n = int(info->tabs.size());
        QList<std::pair<int, int>> wished; // (wish, index)
        for (int i = 0; i < n; ++i) {
            const auto it = wish.constFind(info->tabs.at(i));
            if (it != wish.cend())
                wished.append({*it, i});
        }
        std::stable_sort(wished.begin(), wished.end());
        QVector<QPointer<QWidget>> placed(n);
        QVector<bool> taken(n, false);
        QVector<bool> isWished(n, false);
        for (const auto &[w, i] : std::as_const(wished)) {
            int pos = std::min(w, n - 1);
            while (pos < n && taken[pos])
                ++pos;
            if (pos == n)
                pos = int(taken.indexOf(false));
            taken[pos] = true;
            placed[pos] = info->tabs.at(i);
            isWished[i] = true;
        }
        int free = 0;
        for (int i = 0; i < n; ++i) {
            if (isWished[i])
                continue;
            while (taken[free])
                ++free;
            taken[free] = true;
            placed[free] = info->tabs.at(i);
        }
        info->tabs = QList<QPointer<QWidget>>(placed.cbegin(), placed.cend());
        info->tabsChanged();
        info->applyFocusChain();
    }
    for (QWidget *w : controls) {
        if (TControl *c = TControl::from(w))
            c->endLoading(false);
    }
    // Aligned children were left alone while loading; each container lays
    // them out once now.
    for (QWidget *parent : std::as_const(parents))
        alignControls(parent);
}

bool isGraphic(const QWidget *control)
{
    const TControl *c = TControl::from(control);
    return c && !c->classInfo().windowed;
}

void bringToFront(QWidget *control)
{
    if (!TControl::from(control) || !control->parentWidget())
        return;
    const bool graphic = isGraphic(control);
    if (graphic) {
        if (QWidget *windowed = layerEnds(control, false).lowest) {
            control->stackUnder(windowed);
            return;
        }
    }
    if (QWidget *top = layerEnds(control, graphic).highest)
        stackAbove(control, top);
}

void sendToBack(QWidget *control)
{
    if (!TControl::from(control) || !control->parentWidget())
        return;
    if (QWidget *bottom = layerEnds(control, isGraphic(control)).lowest)
        control->stackUnder(bottom);
}

} // namespace ControlLayout

TControl::TControl(QWidget *self) : m_self(self)
{
    // A new control shows its name until it gets a caption of its own.
    QObject::connect(self, &QObject::objectNameChanged, self, [this](const QString &name) {
        noteChange();
        if (classInfo().setCaptionFromName && !isLoading() && Caption() == m_lastName)
            setCaption(name);
        m_lastName = name;
    });
}

TControl::~TControl()
{
    if (ContainerInfo *info = ContainerInfo::of(m_tabParent, false)) {
        info->tabs.removeAll(m_self);
        info->tabsChanged();
        if (m_align != alNone)
            --info->alignedChildren;
    }
}

void TControl::setLeft(int value)
{
    noteChange();
    m_self->move(clampPosition(value), m_self->y());
}

void TControl::setTop(int value)
{
    noteChange();
    m_self->move(m_self->x(), clampPosition(value));
}

void TControl::setWidth(int value)
{
    noteChange();
    m_self->resize(clampSize(value), m_self->height());
}

void TControl::setHeight(int value)
{
    noteChange();
    m_self->resize(m_self->width(), clampSize(value));
}

void TControl::setBounds(int left, int top, int width, int height)
{
    noteChange();
    m_self->setGeometry(clampPosition(left), clampPosition(top), clampSize(width), clampSize(height));
}

void TControl::setHint(const QString &hint)
{
    noteChange();
    m_hint = hint;
    m_self->setToolTip(m_showHint ? m_hint : QString());
}

void TControl::setShowHint(bool show)
{
    noteChange();
    m_showHint = show;
    m_self->setToolTip(m_showHint ? m_hint : QString());
}

void TControl::setAlign(TAlign align)
{
    noteChange();
    if (m_align == align)
        return;
    if (ContainerInfo *info = ContainerInfo::of(m_tabParent, false); info && (m_align == alNone) != (align == alNone))
        info->alignedChildren += align == alNone ? -1 : 1;
    m_align = align;
    requestParentAlign();
}

TColor TControl::Color() const
{
    if (m_parentColor) {
        if (const TControl *parent = from(m_self->parentWidget()))
            return parent->Color();
    }
    return m_color;
}

void TControl::setColor(TColor color)
{
    noteChange();
    m_color = color;
    m_parentColor = false;
    applyColor();
}

void TControl::setParentColor(bool parentColor)
{
    noteChange();
    m_parentColor = parentColor;
    applyColor();
}

void TControl::setTransparent(bool transparent)
{
    noteChange();
    m_transparent = transparent;
    applyColor();
}

void TControl::applyColor()
{
    const bool fill = !m_transparent && !m_parentColor;
    if (fill) {
        QPalette pal = m_self->palette();
        const QColor c = m_color.toQColor();
        pal.setColor(QPalette::Window, c);
        pal.setColor(QPalette::Base, c);
        m_self->setPalette(pal);
    }
    m_self->setAutoFillBackground(fill);
    m_self->update();
}

void TControl::applyFontColor()
{
    QPalette pal = m_self->palette();
    const QColor c = m_fontColor.toQColor();
    pal.setColor(QPalette::WindowText, c);
    pal.setColor(QPalette::Text, c);
    pal.setColor(QPalette::ButtonText, c);
    m_self->setPalette(pal);
}

TFont TControl::Font() const
{
    const QFont f = m_self->font();
    TFont font;
    font.Name = f.family();
    font.Size = f.pointSize() > 0 ? f.pointSize() : qRound(f.pixelSize() * 72.0 / 96.0);
    font.Color = m_fontColor;
    font.Style = fontStylesOf(f);
    return font;
}

void TControl::setFont(const TFont &font)
{
    noteChange();
    QFont f = m_self->font();
    f.setFamily(font.Name);
    if (font.Size > 0)
        f.setPointSize(std::min(font.Size, 1000));
    applyFontStyles(f, font.Style);
    m_self->setFont(f);
    m_parentFont = false;
    if (m_fontColor != font.Color) {
        m_fontColor = font.Color;
        applyFontColor();
    }
}

void TControl::setParentFont(bool parentFont)
{
    noteChange();
    m_parentFont = parentFont;
    if (parentFont)
        m_self->setFont(QFont());
}

int TControl::TabOrder() const
{
    ContainerInfo *info = ContainerInfo::of(m_tabParent, false);
    if (!info)
        return -1;
    // Controls take themselves out of the list when they go, so no entry is
    // stale here; read for every control of every undo snapshot, it stays cheap.
    return info->indexOf(m_self);
}

void TControl::setTabOrder(int order)
{
    noteChange();
    if (isLoading()) {
        m_loadTabOrder = order;
        return;
    }
    ContainerInfo *info = ContainerInfo::of(m_tabParent, false);
    if (!info || order < 0)
        return;
    info->prune();
    const int from = int(info->tabs.indexOf(m_self));
    if (from < 0)
        return;
    const int to = std::min(order, int(info->tabs.size()) - 1);
    if (from != to) {
        info->tabs.move(from, to);
        info->tabsChanged();
        info->applyFocusChain();
    }
}

void TControl::endLoading(bool applyPendingTabOrder)
{
    m_state &= ~csLoading;
    const int order = m_loadTabOrder;
    m_loadTabOrder = -1;
    if (applyPendingTabOrder) {
        // Loading appended the control to its container's tab list without
        // linking it into the focus chain.
        if (ContainerInfo *info = ContainerInfo::of(m_tabParent, false)) {
            info->prune();
            const int i = int(info->tabs.indexOf(m_self));
            if (i > 0)
                QWidget::setTabOrder(info->tabs.at(i - 1), m_self);
            if (i >= 0 && i + 1 < info->tabs.size())
                QWidget::setTabOrder(m_self, info->tabs.at(i + 1));
        }
        if (order >= 0)
            setTabOrder(order);
        requestParentAlign();
    }
    loadingEnded();
}

void TControl::setDesigning(bool designing)
{
    noteChange();
    const int state = designing ? (m_state | csDesigning) : (m_state & ~csDesigning);
    if (state == m_state)
        return;
    m_state = state;
    designingChanged();
}

void TControl::parentChanged()
{
    QWidget *parent = m_self->parentWidget();
    if (parent == m_tabParent)
        return;
    QWidget *oldParent = m_tabParent;
    if (ContainerInfo *old = ContainerInfo::of(oldParent, false)) {
        old->tabs.removeAll(m_self);
        old->tabsChanged();
        if (m_align != alNone)
            --old->alignedChildren;
        ControlLayout::alignControls(oldParent);
    }
    m_tabParent = parent;
    if (!parent) {
        parentWidgetChanged(oldParent);
        return;
    }
    ContainerInfo *info = ContainerInfo::of(parent, true);
    if (m_align != alNone)
        ++info->alignedChildren;
    if (classInfo().windowed) {
        if (isLoading()) {
            // Linked once when loading ends (ControlLayout::endLoading).
            info->tabs.append(m_self);
            info->tabsChanged();
        } else {
            // Appended last: only the link from the previous last one is new.
            info->prune();
            if (!info->tabs.isEmpty())
                QWidget::setTabOrder(info->tabs.last(), m_self);
            info->tabs.append(m_self);
            info->tabsChanged();
        }
    }
    // A graphic control joins the top of its layer, which lies beneath the
    // windowed controls that are there already.
    if (!classInfo().windowed) {
        QWidget *windowed = layerEnds(m_self, false).lowest;
        const QObjectList &siblings = parent->children();
        if (windowed && siblings.indexOf(m_self) > siblings.indexOf(windowed))
            m_self->stackUnder(windowed);
    }
    if (m_parentColor)
        applyColor();
    if (m_visible && parent->isVisible() && m_self->isHidden())
        m_self->QWidget::setVisible(true);
    if (!isLoading())
        requestParentAlign();
    parentWidgetChanged(oldParent);
}

void TControl::requestParentAlign()
{
    if (m_self->parentWidget())
        ControlLayout::alignControls(m_self->parentWidget());
}

void TControl::noteChange()
{
    ++m_revision;
    for (QWidget *w = m_self->parentWidget(); w && !w->isWindow(); w = w->parentWidget())
        if (TControl *c = from(w))
            ++c->m_revision;
}

void TControl::controlEvent(QEvent *event)
{
    switch (event->type()) {
    case QEvent::ParentChange:
        noteChange();
        parentChanged();
        break;
    case QEvent::Move:
    case QEvent::Resize:
    case QEvent::Show:
    case QEvent::Hide:
        noteChange();
        if (m_align != alNone)
            requestParentAlign();
        break;
    case QEvent::ChildAdded:
    case QEvent::ChildRemoved:
    case QEvent::ZOrderChange:
    case QEvent::FontChange:
    case QEvent::PaletteChange:
    case QEvent::EnabledChange:
    case QEvent::ShowToParent:
    case QEvent::HideToParent:
        noteChange();
        break;
    case QEvent::ApplicationPaletteChange:
        // System colours follow the platform palette.
        if (m_color.isSystem())
            applyColor();
        if (m_fontColor.isSystem())
            applyFontColor();
        break;
    default:
        break;
    }
}
