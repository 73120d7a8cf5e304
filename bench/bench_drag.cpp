// Speed of the designer engine on a crowded form: 1000 controls on the design
// control, 50 of them selected. One drag step is a mouse move while the
// button is held on a selected control, with the repaint it causes; a click
// on another control selects it alone, again with the repaint.

#include <QApplication>
#include <QElapsedTimer>
#include <QMouseEvent>
#include <QWindow>

#include <algorithm>
#include <cstdio>
#include <vector>

#include "Components.h"
#include "FormDesigner.h"
#include "MyBtn.h"
#include "bench_input.h"

using namespace BenchInput;

namespace {

constexpr int kControls = 1000;
constexpr int kSelected = 50;
constexpr int kSteps = 400;
constexpr int kClicks = 200;

} // namespace

int main(int argc, char **argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    TPaintCounter counter;
    app.installEventFilter(&counter);

    QWidget form;
    form.resize(1400, 1000);
    auto *surface = new QWidget(&form);
    surface->setGeometry(0, 0, 1400, 1000);
    TFormDesigner designer(&form);
    designer.setDesignControl(surface);
    designer.setAlignmentLines(lpLeft | lpTop | lpRight | lpBottom);
    designer.setDisplayGrid(true);

    // 40 columns of 25 buttons.
    QList<QWidget *> controls;
    for (int i = 0; i < kControls; ++i) {
        auto *c = new TMaskBtn(surface);
        Components::setOwner(c, &form);
        AutoName(c, &form);
        c->setBounds(4 + (i % 40) * 34, 4 + (i / 40) * 38, 30, 30);
        controls << c;
    }
    designer.setActive(true);
    form.show();
    // Painting happens only once the window is exposed.
    QElapsedTimer wait;
    wait.start();
    while (!form.windowHandle()->isExposed() && wait.elapsed() < 5000)
        QCoreApplication::processEvents();
    if (!form.windowHandle()->isExposed()) {
        std::fprintf(stderr, "the form does not show\n");
        return 1;
    }
    repaint();

    for (int i = 0; i < kSelected; ++i)
        designer.AddControl(controls.at(i * 7));
    repaint();
    std::printf("controls: %d, selected: %d\n", kControls, designer.ControlCount());

    // Dragging: press on the first selected control, then steps of a pixel
    // or two to and fro.
    QWidget *grabbed = controls.at(0);
    const QPoint start = grabbed->mapToGlobal(QPoint(10, 10));
    send(grabbed, QEvent::MouseButtonPress, start, Qt::LeftButton, Qt::LeftButton);
    send(grabbed, QEvent::MouseMove, start + QPoint(20, 20), Qt::NoButton, Qt::LeftButton);
    repaint();
    Timings steps;
    counter.paints = 0;
    for (int i = 0; i < kSteps; ++i) {
        const QPoint at = start + QPoint(20 + i % 40, 20 + (i / 2) % 30);
        QElapsedTimer t;
        t.start();
        send(grabbed, QEvent::MouseMove, at, Qt::NoButton, Qt::LeftButton);
        repaint();
        steps.ns.push_back(t.nsecsElapsed());
    }
    // Esc-like end without moving anything, so the layout stays for the clicks.
    designer.LeaveMouseAction();
    send(grabbed, QEvent::MouseButtonRelease, start, Qt::LeftButton, Qt::NoButton);
    repaint();
    steps.paints = counter.paints;
    steps.report("drag step with repaint");

    // Clicking: from the 50 selected to one control, then from one to another.
    Timings fromMany, fromOne;
    fromMany.paints = 0;
    for (int i = 0; i < kClicks; ++i) {
        for (int j = 0; j < kSelected; ++j)
            designer.AddControl(controls.at(j * 7));
        repaint();
        QWidget *target = controls.at(500 + i);
        const QPoint at = target->mapToGlobal(QPoint(10, 10));
        QElapsedTimer t;
        counter.paints = 0;
        t.start();
        send(target, QEvent::MouseButtonPress, at, Qt::LeftButton, Qt::LeftButton);
        send(target, QEvent::MouseButtonRelease, at, Qt::LeftButton, Qt::NoButton);
        repaint();
        fromMany.ns.push_back(t.nsecsElapsed());
        fromMany.paints += counter.paints;

        QWidget *next = controls.at(300 + i);
        const QPoint nextAt = next->mapToGlobal(QPoint(10, 10));
        t.restart();
        send(next, QEvent::MouseButtonPress, nextAt, Qt::LeftButton, Qt::LeftButton);
        send(next, QEvent::MouseButtonRelease, nextAt, Qt::LeftButton, Qt::NoButton);
        repaint();
        fromOne.ns.push_back(t.nsecsElapsed());
    }
    fromMany.report("click from 50 selected to one, with repaint");
    fromOne.report("click from one control to another, with repaint");
    designer.setActive(false);
    return 0;
}
