// Speed of the designer as a user meets it: a mask of 1000 mixed controls
// (the same mix as bench_maskfile) is opened in the main window, and real
// mouse events go through the engine. Each timed step ends with the repaint
// it causes, the main window's and the object inspector's:
//
// - a drag step: a mouse move while the button is held on one of 50
//   selected controls;
// - a click on another control, which selects it and fills the inspector;
// - a placement: a palette tool armed and a click on the mask.
//
//   bench_interactive [CONTROLS]     (default: 1000)

#include "AppPaths.h"
#include "Components.h"
#include "Control.h"
#include "FormDesigner.h"
#include "MainForm.h"
#include "Maske.h"
#include "bench_input.h"
#include "generated_mask.h"

#include <QAction>
#include <QApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QMouseEvent>
#include <QTemporaryDir>
#include <QWindow>

#include <algorithm>
#include <cstdio>
#include <vector>

using namespace BenchInput;

namespace {

constexpr int kSelected = 50;
constexpr int kSteps = 400;
constexpr int kClicks = 200;
constexpr int kPlacements = 100;

void click(QWidget *w, const QPoint &local)
{
    const QPoint global = w->mapToGlobal(local);
    send(w, QEvent::MouseButtonPress, global, Qt::LeftButton, Qt::LeftButton);
    send(w, QEvent::MouseButtonRelease, global, Qt::LeftButton, Qt::NoButton);
}

} // namespace

int main(int argc, char **argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    const int count = argc > 1 ? std::max(60, QByteArray(argv[1]).toInt()) : 1000;

    QTemporaryDir dir;
    if (!dir.isValid()) {
        std::fprintf(stderr, "no temporary directory\n");
        return 1;
    }
    AppPaths::setSettingsFileOverride(dir.filePath(QStringLiteral("bench_interactive.ini")));
    const QString path = dir.filePath(QStringLiteral("bench.dbm"));
    {
        QFile file(path);
        const QByteArray bytes = GeneratedMask::makeDbm(GeneratedMask::makeLayout(count));
        if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size()) {
            std::fprintf(stderr, "cannot write %s\n", qPrintable(path));
            return 1;
        }
    }

    TMainForm form;
    form.resize(1600, 1300);
    form.show();
    QElapsedTimer wait;
    wait.start();
    while (!form.windowHandle()->isExposed() && wait.elapsed() < 5000)
        QCoreApplication::processEvents();
    TMaske *mask = form.LoadMask(path);
    if (!mask) {
        std::fprintf(stderr, "the mask does not load\n");
        return 1;
    }
    mask->showMaximized();
    QCoreApplication::processEvents();
    repaint();
    TFormDesigner *designer = mask->FormDesigner2();
    QWidget *surface = mask->document();

    // The controls directly on the mask that the user sees, top to bottom.
    QList<QWidget *> seen;
    QWidget *view = surface->parentWidget() ? surface->parentWidget() : surface;
    for (QObject *child : surface->children()) {
        auto *w = qobject_cast<QWidget *>(child);
        if (w && TControl::from(w) && w->isVisible() && view->rect().contains(QRect(w->mapTo(view, QPoint()), w->size()))
            && w->objectName().startsWith(QLatin1String("AdvOfficePager")) == false)
            seen << w;
    }
    std::sort(seen.begin(), seen.end(), [](QWidget *a, QWidget *b) {
        return a->y() != b->y() ? a->y() < b->y() : a->x() < b->x();
    });
    if (seen.size() < kSelected + 2) {
        std::fprintf(stderr, "only %d controls in view\n", int(seen.size()));
        return 1;
    }
    std::printf("controls: %d, in view: %d, selected for dragging: %d\n", count, int(seen.size()), kSelected);

    TPaintCounter counter;
    app.installEventFilter(&counter);

    // Dragging: press on the first selected control, then steps of a pixel
    // or two to and fro.
    designer->ClearControls();
    for (int i = 0; i < kSelected; ++i)
        designer->AddControl(seen.at(i));
    repaint();
    QWidget *grabbed = seen.at(0);
    const QPoint start = grabbed->mapToGlobal(QPoint(5, 5));
    send(grabbed, QEvent::MouseButtonPress, start, Qt::LeftButton, Qt::LeftButton);
    send(grabbed, QEvent::MouseMove, start + QPoint(10, 10), Qt::NoButton, Qt::LeftButton);
    repaint();
    Timings drag;
    counter.paints = 0;
    for (int i = 0; i < kSteps; ++i) {
        const QPoint at = start + QPoint(10 + i % 20, 10 + (i / 2) % 15);
        QElapsedTimer t;
        t.start();
        send(grabbed, QEvent::MouseMove, at, Qt::NoButton, Qt::LeftButton);
        repaint();
        drag.ns.push_back(t.nsecsElapsed());
    }
    drag.paints = counter.paints;
    // Ends without moving anything, so the layout stays for the clicks.
    designer->LeaveMouseAction();
    send(grabbed, QEvent::MouseButtonRelease, start, Qt::LeftButton, Qt::NoButton);
    repaint();
    drag.report("drag step with 50 selected, with repaint");

    // Clicking one control after another, each selected alone with its
    // inspector page filled.
    Timings clicks;
    counter.paints = 0;
    for (int i = 0; i < kClicks; ++i) {
        QWidget *target = seen.at(kSelected / 2 + i % (seen.size() - kSelected / 2));
        QElapsedTimer t;
        t.start();
        click(target, QPoint(3, 3));
        repaint();
        clicks.ns.push_back(t.nsecsElapsed());
        if (designer->currentControl() != target) {
            std::fprintf(stderr, "the click did not select %s\n", qPrintable(target->objectName()));
            return 1;
        }
    }
    clicks.paints = counter.paints;
    clicks.report("click selecting another control, with inspector and repaint");

    // Placing: an edit field from the palette into the gaps between the
    // columns of controls in view.
    QAction *tool = form.findChild<QAction *>(QStringLiteral("dxBarBtnEdit"));
    if (!tool) {
        std::fprintf(stderr, "no palette tool\n");
        return 1;
    }
    const int before = Components::componentCount(surface);
    Timings place;
    counter.paints = 0;
    for (int i = 0; i < kPlacements; ++i) {
        const QPoint at(8 + (i % 7) * 150 + 142, seen.at(kSelected)->y() + (i / 7) * 7 % 200);
        QElapsedTimer t;
        t.start();
        tool->trigger();
        click(surface, at);
        repaint();
        place.ns.push_back(t.nsecsElapsed());
    }
    place.paints = counter.paints;
    const int placed = Components::componentCount(surface) - before;
    if (placed != kPlacements) {
        std::fprintf(stderr, "placed %d controls, expected %d\n", placed, kPlacements);
        return 1;
    }
    place.report("placement from the palette, with inspector and repaint");

    mask->setModified(false);
    return 0;
}
