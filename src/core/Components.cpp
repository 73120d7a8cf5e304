#include "Components.h"

#include <QMultiHash>
#include <QPointer>
#include <QSet>
#include <QVariant>

namespace {

const char kOwnerProperty[] = "_ferolith_owner";

// Lives as a plain QObject child of the owner, so it goes with it; it keeps
// the creation order and an index of names that follows renames.
class ComponentRegistry : public QObject
{
public:
    explicit ComponentRegistry(QObject *owner) : QObject(owner), m_owner(owner)
    {
        setObjectName(QStringLiteral("_ferolith_components"));
        byOwner().insert(owner, this);
    }

    ~ComponentRegistry() override
    {
        byOwner().remove(m_owner);
        for (QObject *c : std::as_const(m_items)) {
            QObject::disconnect(c, nullptr, this, nullptr);
            c->setProperty(kOwnerProperty, QVariant());
        }
    }

    void add(QObject *component)
    {
        m_items.append(component);
        m_byName.insert(component->objectName().toLower(), component);
        m_names.insert(component, component->objectName().toLower());
        connect(component, &QObject::destroyed, this, [this](QObject *gone) { remove(gone); });
        connect(component, &QObject::objectNameChanged, this, [this, component](const QString &name) {
            rename(component, name);
        });
    }

    void remove(QObject *component)
    {
        // Mostly the newest goes (undo, cut); search from the end.
        const int i = int(m_items.lastIndexOf(component));
        if (i < 0)
            return;
        m_items.removeAt(i);
        const QString name = m_names.take(component);
        m_byName.remove(name, component);
        nameFreed(name);
        QObject::disconnect(component, nullptr, this, nullptr);
    }

    void rename(QObject *component, const QString &name)
    {
        auto it = m_names.find(component);
        if (it == m_names.end())
            return;
        m_byName.remove(*it, component);
        nameFreed(*it);
        *it = name.toLower();
        m_byName.insert(*it, component);
    }

    QObject *find(const QString &name) const
    {
        // Several components may share a name for a moment (a paste renames
        // afterwards); the first created wins as it does in the ordered list.
        const QList<QObject *> hits = m_byName.values(name.toLower());
        if (hits.isEmpty())
            return nullptr;
        if (hits.size() == 1)
            return hits.first();
        for (QObject *c : m_items)
            if (hits.contains(c))
                return c;
        return nullptr;
    }

    bool nameTakenByOther(const QString &name, const QObject *self) const
    {
        const auto range = m_byName.equal_range(name.toLower());
        for (auto it = range.first; it != range.second; ++it)
            if (*it != self)
                return true;
        return false;
    }

    const QList<QObject *> &items() const { return m_items; }
    QList<QObject *> &items() { return m_items; }

    // The naming rule looks for the first free number from 1. Per name stem
    // the registry remembers a number below which none is free, so naming
    // thousands of controls of one class does not test 1, 2, 3 ... each time.
    int firstCandidate(const QString &stem) const { return m_freeFrom.value(stem.toLower(), 1); }
    void numbersTakenBelow(const QString &stem, int n) { m_freeFrom.insert(stem.toLower(), n); }

    // Owners with components; looked up on every name check, so not by
    // searching the owner's children.
    static QHash<const QObject *, ComponentRegistry *> &byOwner()
    {
        static QHash<const QObject *, ComponentRegistry *> map;
        return map;
    }

private:
    void nameFreed(const QString &lowerName)
    {
        if (m_freeFrom.isEmpty())
            return;
        qsizetype digits = lowerName.size();
        while (digits > 0 && lowerName.at(digits - 1).isDigit())
            --digits;
        if (digits == lowerName.size() || lowerName.size() - digits > 6)
            return;
        auto it = m_freeFrom.find(lowerName.left(digits));
        if (it == m_freeFrom.end())
            return;
        const int n = QStringView(lowerName).mid(digits).toInt();
        if (n < *it)
            *it = qMax(1, n);
    }

    const QObject *m_owner;
    QHash<QString, int> m_freeFrom;
    QList<QObject *> m_items;
    QMultiHash<QString, QObject *> m_byName;
    QHash<QObject *, QString> m_names;
};

ComponentRegistry *registryOf(const QObject *owner, bool create)
{
    if (!owner)
        return nullptr;
    ComponentRegistry *reg = ComponentRegistry::byOwner().value(owner);
    if (!reg && create)
        reg = new ComponentRegistry(const_cast<QObject *>(owner));
    return reg;
}

} // namespace

namespace Components {

void setOwner(QObject *component, QObject *newOwner)
{
    if (!component)
        return;
    QObject *old = owner(component);
    if (old == newOwner)
        return;
    if (auto *reg = registryOf(old, false))
        reg->remove(component);
    component->setProperty(kOwnerProperty, QVariant());
    if (newOwner) {
        registryOf(newOwner, true)->add(component);
        component->setProperty(kOwnerProperty, QVariant::fromValue(QPointer<QObject>(newOwner)));
    }
}

QObject *owner(const QObject *component)
{
    if (!component)
        return nullptr;
    return component->property(kOwnerProperty).value<QPointer<QObject>>().data();
}

QList<QObject *> components(const QObject *owner)
{
    if (auto *reg = registryOf(owner, false))
        return reg->items();
    return {};
}

int componentCount(const QObject *owner)
{
    auto *reg = registryOf(owner, false);
    return reg ? int(reg->items().size()) : 0;
}

int componentIndex(const QObject *component)
{
    auto *reg = registryOf(owner(component), false);
    return reg ? int(reg->items().indexOf(const_cast<QObject *>(component))) : -1;
}

QObject *findComponent(const QObject *owner, const QString &name)
{
    if (name.isEmpty())
        return nullptr;
    auto *reg = registryOf(owner, false);
    return reg ? reg->find(name) : nullptr;
}

} // namespace Components

bool AutoName(QObject *component, const QObject *owner)
{
    if (!component)
        return false;
    const ComponentRegistry *reg = registryOf(owner, false);
    const auto taken = [&](const QString &name) { return reg && reg->nameTakenByOther(name, component); };

    const QString current = component->objectName();
    if (!current.isEmpty() && !taken(current))
        return false;

    const QString base = QString::fromLatin1(component->metaObject()->className()).mid(1);
    ComponentRegistry *writable = const_cast<ComponentRegistry *>(reg);
    for (int n = reg ? reg->firstCandidate(base) : 1; n <= 32768; ++n) {
        const QString candidate = base + QString::number(n);
        if (!taken(candidate)) {
            // Only names the registry sees are remembered: a component of
            // another owner must not move this owner's mark.
            const bool owned = reg && Components::owner(component) == owner;
            component->setObjectName(candidate);
            if (owned)
                writable->numbersTakenBelow(base, n + 1);
            else if (writable)
                writable->numbersTakenBelow(base, n);
            return true;
        }
    }
    return false;
}
