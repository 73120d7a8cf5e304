#pragma once

#include <QList>
#include <QObject>
#include <QPointer>
#include <QWidget>

// The selected controls of one engine in selection order, the first being the
// current control, and the selected non-visual components. It only keeps the
// order and notices controls that go away; which controls may be selected and
// what is reported about it is the engine's business.
class TDesignSelection : public QObject
{
    Q_OBJECT
public:
    explicit TDesignSelection(QObject *parent = nullptr);

    // Entries of controls that went away count until purge() drops them.
    int count() const { return int(m_controls.size()); }
    QWidget *at(int index) const; // nullptr outside 0..count-1 and for a gone control
    int indexOf(const QWidget *control) const;
    QWidget *current() const;          // the first control that still exists
    QList<QWidget *> controls() const; // the controls that still exist, in order

    void append(QWidget *control);
    void remove(QWidget *control);
    void moveToFront(QWidget *control);
    // Takes every control out; returns those that still exist.
    QList<QWidget *> takeControls();
    void purge();

    int componentCount() const { return int(m_components.size()); }
    QObject *componentAt(int index) const { return m_components.value(index); }
    bool addComponent(QObject *component);
    bool removeComponent(QObject *component);
    void clearComponents() { m_components.clear(); }

signals:
    // A selected control is being destroyed and has left the selection;
    // oldCurrent is the current control from before, compared by address only.
    void controlDestroyed(QWidget *gone, QWidget *oldCurrent);

private:
    void follow(QWidget *control);
    void unfollow(QWidget *control);

    QList<QPointer<QWidget>> m_controls;
    QList<QPointer<QObject>> m_components;
};
