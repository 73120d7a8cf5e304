#pragma once

// The left button held down on one widget, delivered the way Qt does while a
// button is held: every move and the release go to the pressed widget, in its
// own coordinates (which follow the widget when it moves along).
#include <QApplication>
#include <QImage>
#include <QLabel>
#include <QMouseEvent>

#include "DesignerWidgets.h"

class HeldMouse
{
public:
    HeldMouse(QWidget *widget, QPoint local, Qt::KeyboardModifiers modifiers = {})
        : m_widget(widget), m_start(widget->mapToGlobal(local)), m_global(m_start)
    {
        send(QEvent::MouseButtonPress, Qt::LeftButton, Qt::LeftButton, modifiers);
    }

    // To the press point plus travel.
    void moveBy(QPoint travel, Qt::KeyboardModifiers modifiers = {})
    {
        m_global = m_start + travel;
        send(QEvent::MouseMove, Qt::NoButton, Qt::LeftButton, modifiers);
    }

    void release(Qt::KeyboardModifiers modifiers = {})
    {
        send(QEvent::MouseButtonRelease, Qt::LeftButton, Qt::NoButton, modifiers);
    }

private:
    void send(QEvent::Type type, Qt::MouseButton button, Qt::MouseButtons buttons, Qt::KeyboardModifiers modifiers)
    {
        QMouseEvent event(type, m_widget->mapFromGlobal(m_global), m_global, button, buttons, modifiers);
        QApplication::sendEvent(m_widget, &event);
    }

    QWidget *m_widget;
    QPoint m_start;
    QPoint m_global;
};

// Press, a move in two steps, release.
inline void dragBy(QWidget *widget, QPoint local, QPoint travel, Qt::KeyboardModifiers moveModifiers = {})
{
    HeldMouse mouse(widget, local);
    mouse.moveBy(travel / 2, moveModifiers);
    mouse.moveBy(travel, moveModifiers);
    mouse.release(moveModifiers);
}

// What the engine draws above the design control right now.
inline QImage overlayImage(QWidget *designControl)
{
    auto *overlay = designControl->findChild<TDesignOverlay *>();
    return overlay ? overlay->grab().toImage() : QImage();
}

// The move/size hint when it shows.
inline QLabel *shownHint()
{
    for (QWidget *w : QApplication::topLevelWidgets())
        if (auto *label = qobject_cast<QLabel *>(w); label && label->isVisible() && label->windowType() == Qt::ToolTip)
            return label;
    return nullptr;
}

// Its text; empty when no hint shows.
inline QString hintText()
{
    QLabel *label = shownHint();
    return label ? label->text() : QString();
}

// A press and release through HeldMouse, as a user clicks.
inline void click(QWidget *w, Qt::KeyboardModifiers modifiers = {}, QPoint pos = QPoint(5, 5))
{
    HeldMouse mouse(w, pos, modifiers);
    mouse.release(modifiers);
}
