#pragma once

// The fixture of the object inspector tests: a shown mask with its engine,
// an inspector on it, and steps that work the inspector's editors.
#include <QtTest>

#include <QAbstractButton>
#include <QComboBox>
#include <QLineEdit>
#include <QSpinBox>
#include <QTreeWidget>

#include "Components.h"
#include "FormDesigner.h"
#include "Maske.h"
#include "ObjectInspector.h"
#include "GuiSteps.h"
#include "TestSupport.h"

namespace ObjInspTest {

// A shown mask in design mode with an inspector working on it.
struct InspFixture
{
    ScriptedDialogs dialogs;
    TMaske *mask = new TMaske;
    TObjInsp insp;

    InspFixture()
    {
        mask->resize(700, 500);
        mask->show();
        mask->FormDesigner2()->setActive(true);
        insp.show();
        insp.setActiveMask(mask);
    }
    ~InspFixture() { delete mask; }

    template <class T>
    T *add(QWidget *parent = nullptr, const QRect &r = QRect(10, 10, 120, 24))
    {
        auto *c = new T(parent ? parent : mask->document());
        Components::setOwner(c, mask->document());
        AutoName(c, mask->document());
        c->setBounds(r.x(), r.y(), r.width(), r.height());
        c->show();
        mask->FormDesigner2()->Update();
        return c;
    }

    // The designer's selection changes; the main window tells the inspector.
    void select(const QList<QWidget *> &controls)
    {
        TFormDesigner *d = mask->FormDesigner2();
        d->ClearControls();
        for (QWidget *c : controls)
            d->AddControl(c);
        insp.selectControl(controls.value(0));
    }

    template <class T>
    T *editor(const QString &name) const
    {
        T *w = insp.findChild<T *>(name);
        if (!w)
            qFatal("no editor %s", qPrintable(name));
        return w;
    }
};

using GuiSteps::choose;
using GuiSteps::clickCheck;
using GuiSteps::retype;

} // namespace ObjInspTest
