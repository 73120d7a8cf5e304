#pragma once

// Mouse input, repaints and timing reports shared by the interactive
// benchmarks: events go straight to the widgets, and the paint events an
// input causes are processed inside the timed part.
#include <QApplication>
#include <QEvent>
#include <QMouseEvent>
#include <QWidget>

#include <algorithm>
#include <cstdio>
#include <vector>

namespace BenchInput {

// Counts the widgets painted, to show how much a step repaints.
class TPaintCounter : public QObject
{
public:
    int paints = 0;
    bool eventFilter(QObject *, QEvent *event) override
    {
        if (event->type() == QEvent::Paint)
            ++paints;
        return false;
    }
};

inline void send(QWidget *w, QEvent::Type type, const QPoint &global, Qt::MouseButton button,
                 Qt::MouseButtons buttons)
{
    QMouseEvent event(type, w->mapFromGlobal(global), global, button, buttons, Qt::NoModifier);
    QApplication::sendEvent(w, &event);
}

// Paints what the last input made dirty in every window, as the next frame would.
inline void repaint()
{
    QCoreApplication::sendPostedEvents();
    for (QWidget *w : QApplication::topLevelWidgets()) {
        if (!w->isVisible())
            continue;
        QEvent request(QEvent::UpdateRequest);
        QCoreApplication::sendEvent(w, &request);
    }
}

// Median, mean and 90th percentile of the runs; the widgets painted per run
// when counted.
struct Timings
{
    std::vector<qint64> ns;
    int paints = -1;
    void report(const char *what)
    {
        std::sort(ns.begin(), ns.end());
        double sum = 0;
        for (qint64 t : ns)
            sum += double(t);
        std::printf("%s (%zu runs): median %.3f ms, mean %.3f ms, 90%% %.3f ms", what, ns.size(),
                    double(ns[ns.size() / 2]) / 1e6, sum / double(ns.size()) / 1e6,
                    double(ns[ns.size() * 9 / 10]) / 1e6);
        if (paints >= 0)
            std::printf(", %.1f widgets painted", double(paints) / double(ns.size()));
        std::printf("\n");
    }
};

} // namespace BenchInput
