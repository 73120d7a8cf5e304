#pragma once

// The fixture of the designer tests: a form with a design surface and an
// engine, and the mouse and keyboard as a user drives them.
#include <QApplication>
#include <QLabel>
#include <QMouseEvent>
#include <QScreen>
#include <QtTest>

#include "Components.h"
#include "Containers.h"
#include "DesignerWidgets.h"
#include "FormDesigner.h"
#include "MyBtn.h"
#include "GuiSteps.h"

using namespace GuiSteps;

struct DesignForm
{
    QWidget form;
    QWidget *surface = nullptr;
    TFormDesigner *designer = nullptr;

    DesignForm()
    {
        form.resize(700, 500);
        surface = new QWidget(&form);
        surface->setObjectName(QStringLiteral("Surface"));
        surface->setGeometry(0, 0, 600, 400);
        designer = new TFormDesigner(&form);
        designer->setDesignControl(surface);
    }

    template <class T>
    T *add(QWidget *parent, const QRect &bounds)
    {
        auto *c = new T(parent ? parent : surface);
        Components::setOwner(c, &form);
        AutoName(c, &form);
        c->setBounds(bounds.x(), bounds.y(), bounds.width(), bounds.height());
        return c;
    }

    // Active and on the screen.
    bool start()
    {
        designer->setActive(true);
        form.show();
        form.activateWindow();
        return QTest::qWaitForWindowExposed(&form);
    }

    void select(const QList<QWidget *> &controls)
    {
        designer->ClearControls();
        for (QWidget *c : controls)
            designer->AddControl(c);
    }
};

// What the engine reported.
struct Reports
{
    QList<QWidget *> moved;
    int changes = 0;

    void watch(TFormDesigner *designer)
    {
        designer->OnMoveSizeControl = [this](QObject *, QWidget *c) { moved << c; };
        designer->OnChange = [this](QObject *) { ++changes; };
    }
    void clear()
    {
        moved.clear();
        changes = 0;
    }
};

// The handle of the current control at a position.
inline TGrabHandle *handleAt(QWidget *root, TGrabPosition position)
{
    for (TGrabHandle *h : root->findChildren<TGrabHandle *>())
        if (h->Position() == position)
            return h;
    return nullptr;
}

inline int visibleHandles(QWidget *root)
{
    int n = 0;
    for (TGrabHandle *h : root->findChildren<TGrabHandle *>())
        n += h->isVisible() ? 1 : 0;
    return n;
}

// The left button held down on one widget, delivered the way Qt does while a
// button is held: every move and the release go to the pressed widget, in its
// own coordinates (which follow the widget when it moves along).
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

// Press, a move in two steps, release; the modifiers are held after the press.
inline void dragBy(QWidget *widget, QPoint local, QPoint travel, Qt::KeyboardModifiers modifiers = {})
{
    HeldMouse mouse(widget, local);
    mouse.moveBy(travel / 2, modifiers);
    mouse.moveBy(travel, modifiers);
    mouse.release(modifiers);
}

inline void click(QWidget *w, Qt::KeyboardModifiers modifiers = {}, QPoint pos = QPoint(5, 5))
{
    HeldMouse mouse(w, pos, modifiers);
    mouse.release(modifiers);
}

// Whether the screen shows what a full repaint of the form would: repainting
// only what changed must leave nothing behind.
inline bool screenIsCurrent(QWidget *form)
{
    QCoreApplication::sendPostedEvents();
    QEvent request(QEvent::UpdateRequest);
    QCoreApplication::sendEvent(form, &request);
    const QImage shown = form->screen()->grabWindow(form->winId()).toImage().convertToFormat(QImage::Format_RGB32);
    return shown == form->grab().toImage().convertToFormat(QImage::Format_RGB32);
}

// What the engine draws above the design control right now.
inline QImage overlayImage(QWidget *designControl)
{
    auto *overlay = designControl->findChild<TDesignOverlay *>();
    return overlay ? overlay->grab().toImage() : QImage();
}

inline int countColor(const QImage &image, QRgb color)
{
    int n = 0;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            n += qAlpha(image.pixel(x, y)) == 255 && (image.pixel(x, y) & 0xffffff) == (color & 0xffffff);
    return n;
}

// The text of the move/size hint; empty when none shows.
inline QString hintText()
{
    for (QWidget *w : QApplication::topLevelWidgets())
        if (auto *label = qobject_cast<QLabel *>(w); label && label->isVisible() && label->windowType() == Qt::ToolTip)
            return label->text();
    return QString();
}
