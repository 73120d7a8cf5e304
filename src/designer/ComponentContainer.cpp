// Non-visual components on the design control: the container boxes and the
// engine's bookkeeping of them.
#include "ComponentContainer.h"

#include <QApplication>
#include <QMoveEvent>
#include <QPainter>
#include <QStyle>
#include <QStyleOption>
#include <QVariant>

#include "Components.h"
#include "DesignerWidgets.h"
#include "FormDesigner.h"

namespace {

const char kDesignLeft[] = "designLeft";
const char kDesignTop[] = "designTop";

// Room between boxes placed side by side when a component has no place yet.
constexpr int kSpacing = 8;

QPixmap genericBitmap()
{
    const int extent = TComponentContainer::kBoxSize - 6;
    return QApplication::style()->standardIcon(QStyle::SP_FileIcon).pixmap(extent, extent);
}

// A component the engine shows as a container: owned by the form, no widget,
// and not an engine itself (the engine may well be one of the form's components).
bool isNonVisual(const QObject *object)
{
    return object && !object->isWidgetType() && !qobject_cast<const TCustomFormDesigner *>(object);
}

} // namespace

// ---- TComponentContainer ----

TComponentContainer::TComponentContainer(QWidget *parent) : TControlT<QWidget>(parent)
{
    resize(kBoxSize, kBoxSize);
    attachToParent();
}

TComponentContainer::~TComponentContainer() = default;

const TClassInfo &TComponentContainer::staticClassInfo()
{
    // Not one of the mask's classes: it has nothing to store and is never
    // created from a stream.
    static const TClassInfo info = [] {
        TClassInfo i;
        i.className = QStringLiteral("TComponentContainer");
        return i;
    }();
    return info;
}

TComponentContainer *TComponentContainer::CreateWithComponent(QWidget *owner, QObject *component,
                                                              TCustomFormDesigner *designer)
{
    auto *container = new TComponentContainer(owner);
    container->setObjectName(QStringLiteral("_container_%1").arg(component ? component->objectName() : QString()));
    container->m_designer = designer;
    container->m_component = component;
    if (component) {
        // The box lives exactly as long as its component.
        QObject::connect(component, &QObject::destroyed, container, [container] { delete container; });
        QObject::connect(component, &QObject::objectNameChanged, container,
                         [container] { container->UpdateContainer(); });
    }
    container->UpdateContainer();
    return container;
}

QRect TComponentContainer::boxRect() const
{
    return QRect((width() - kBoxSize) / 2, 0, kBoxSize, kBoxSize);
}

void TComponentContainer::UpdateContainer()
{
    m_updating = true;
    m_bitmap = genericBitmap();
    if (m_designer && m_component && m_designer->OnComponentBitmap)
        m_designer->OnComponentBitmap(m_designer, m_component, m_bitmap);
    m_caption = m_designer && m_component ? m_designer->GetComponentCaption(m_component)
                                          : (m_component ? m_component->objectName() : QString());
    const bool showCaption = m_designer && m_designer->ShowComponentCaptions() && !m_caption.isEmpty();
    setToolTip(m_designer && m_component ? m_designer->GetComponentHint(m_component) : QString());

    QSize size(kBoxSize, kBoxSize);
    if (showCaption) {
        const QFontMetrics fm = fontMetrics();
        size.setWidth(std::max(kBoxSize, fm.horizontalAdvance(m_caption) + 4));
        size.setHeight(kBoxSize + fm.height() + 2);
    }

    QPoint pos = this->pos();
    if (m_component) {
        const QVariant left = m_component->property(kDesignLeft);
        const QVariant top = m_component->property(kDesignTop);
        if (left.isValid() && top.isValid()) {
            pos = QPoint(left.toInt(), top.toInt());
        } else {
            // A first place: after the containers already there.
            int x = kSpacing;
            if (QWidget *parent = parentWidget())
                for (TComponentContainer *other : parent->findChildren<TComponentContainer *>(Qt::FindDirectChildrenOnly))
                    if (other != this && other->m_component)
                        x = std::max(x, other->x() + other->width() + kSpacing);
            pos = QPoint(x, kSpacing);
            m_component->setProperty(kDesignLeft, pos.x());
            m_component->setProperty(kDesignTop, pos.y());
        }
    }
    setGeometry(QRect(pos, size));
    m_updating = false;
    update();
}

void TComponentContainer::moveEvent(QMoveEvent *event)
{
    TControlT<QWidget>::moveEvent(event);
    // Moved by the user (dragging, aligning): the component remembers the place.
    if (!m_updating && m_component) {
        m_component->setProperty(kDesignLeft, x());
        m_component->setProperty(kDesignTop, y());
    }
}

void TComponentContainer::paintEvent(QPaintEvent *)
{
    QPainter p(this);
    const QRect box = boxRect();
    QStyleOptionButton option;
    option.initFrom(this);
    option.rect = box;
    option.state |= QStyle::State_Raised;
    style()->drawPrimitive(QStyle::PE_PanelButtonBevel, &option, &p, this);
    if (!m_bitmap.isNull()) {
        const QSize size = m_bitmap.deviceIndependentSize().toSize();
        p.drawPixmap(box.center() - QPoint(size.width() / 2, size.height() / 2), m_bitmap);
    }
    if (m_designer && m_designer->ShowComponentCaptions() && !m_caption.isEmpty()) {
        p.setPen(palette().color(QPalette::WindowText));
        p.drawText(QRect(0, box.bottom() + 2, width(), height() - box.height() - 2),
                   Qt::AlignHCenter | Qt::AlignTop, m_caption);
    }
}

// ---- the engine's side ----

TComponentContainer *TCustomFormDesigner::FindComponentContainer(QObject *component) const
{
    if (!component)
        return nullptr;
    for (const QPointer<TComponentContainer> &c : m_containers)
        if (c && c->Component() == component)
            return c;
    return nullptr;
}

void TCustomFormDesigner::setShowNonVisual(bool v)
{
    m_showNonVisual = v;
    updateContainers();
}

void TCustomFormDesigner::setShowComponentCaptions(bool v)
{
    m_showComponentCaptions = v;
    for (const QPointer<TComponentContainer> &c : std::as_const(m_containers))
        if (c)
            c->UpdateContainer();
    UpdateGrabs();
}

void TCustomFormDesigner::updateContainers()
{
    m_containers.removeIf([](const QPointer<TComponentContainer> &c) { return c.isNull(); });
    QWidget *form = ParentForm();
    if (!m_active || !m_attached || !m_showNonVisual || !form) {
        removeContainers();
        return;
    }
    // Containers whose component has left the form go first.
    const QList<QPointer<TComponentContainer>> existing = m_containers;
    for (const QPointer<TComponentContainer> &c : existing) {
        if (c && (!c->Component() || Components::owner(c->Component()) != form)) {
            DeleteControl(c);
            m_containers.removeAll(c);
            delete c.data();
        }
    }
    bool created = false;
    for (QObject *component : Components::components(form)) {
        if (!isNonVisual(component))
            continue;
        if (TComponentContainer *c = FindComponentContainer(component)) {
            c->UpdateContainer();
            continue;
        }
        TComponentContainer *c = TComponentContainer::CreateWithComponent(m_attached, component, this);
        m_containers << c;
        m_input.watch(c);
        c->show();
        created = true;
    }
    // The overlay draws above everything on the design control.
    if (created && m_overlay)
        m_overlay->keepOnTop();
    UpdateGrabs();
}

void TCustomFormDesigner::removeContainers()
{
    const QList<QPointer<TComponentContainer>> all = m_containers;
    m_containers.clear();
    for (const QPointer<TComponentContainer> &c : all) {
        if (!c)
            continue;
        DeleteControl(c);
        delete c.data();
    }
}
