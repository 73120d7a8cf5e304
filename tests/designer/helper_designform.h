#pragma once

// A form with a design surface and a few controls, designed by an engine:
// the fixture of the designer tests.
#include <QWidget>

#include "Components.h"
#include "Containers.h"
#include "FormDesigner.h"
#include "DesignerWidgets.h"
#include "MyBtn.h"

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

    void show()
    {
        form.show();
        form.activateWindow();
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
