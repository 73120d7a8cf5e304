#include "DesignSelection.h"

TDesignSelection::TDesignSelection(QObject *parent) : QObject(parent) {}

QWidget *TDesignSelection::at(int index) const
{
    return index >= 0 && index < m_controls.size() ? m_controls.at(index).data() : nullptr;
}

int TDesignSelection::indexOf(const QWidget *control) const
{
    for (int i = 0; i < m_controls.size(); ++i)
        if (m_controls.at(i) == control)
            return i;
    return -1;
}

QWidget *TDesignSelection::current() const
{
    for (const QPointer<QWidget> &c : m_controls)
        if (c)
            return c;
    return nullptr;
}

QList<QWidget *> TDesignSelection::controls() const
{
    QList<QWidget *> out;
    for (const QPointer<QWidget> &c : m_controls)
        if (c)
            out << c.data();
    return out;
}

void TDesignSelection::append(QWidget *control)
{
    m_controls.append(control);
    follow(control);
}

void TDesignSelection::remove(QWidget *control)
{
    const int index = indexOf(control);
    if (index < 0)
        return;
    m_controls.removeAt(index);
    unfollow(control);
}

void TDesignSelection::moveToFront(QWidget *control)
{
    const int index = indexOf(control);
    if (index > 0)
        m_controls.move(index, 0);
}

QList<QWidget *> TDesignSelection::takeControls()
{
    const QList<QWidget *> gone = controls();
    m_controls.clear();
    for (QWidget *c : gone)
        unfollow(c);
    return gone;
}

void TDesignSelection::purge()
{
    m_controls.removeIf([](const QPointer<QWidget> &c) { return c.isNull(); });
}

bool TDesignSelection::addComponent(QObject *component)
{
    if (!component || m_components.contains(component))
        return false;
    m_components.append(component);
    return true;
}

bool TDesignSelection::removeComponent(QObject *component)
{
    return m_components.removeAll(component) > 0;
}

void TDesignSelection::follow(QWidget *control)
{
    disconnect(control, &QObject::destroyed, this, nullptr);
    connect(control, &QObject::destroyed, this, [this](QObject *gone) {
        QWidget *old = current();
        m_controls.removeIf([gone](const QPointer<QWidget> &c) {
            return c.isNull() || static_cast<QObject *>(c.data()) == gone;
        });
        emit controlDestroyed(static_cast<QWidget *>(gone), old);
    });
}

void TDesignSelection::unfollow(QWidget *control)
{
    disconnect(control, &QObject::destroyed, this, nullptr);
}
