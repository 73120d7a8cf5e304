// Speed of placing controls through the palette: a tool button is triggered
// and a left click on the design surface drops the control, 1000 times in a
// row on one new mask. Then the object inspector's component list is rebuilt
// with those controls on the mask.

#include "AppPaths.h"
#include "Components.h"
#include "MainForm.h"
#include "Maske.h"
#include "ObjectInspector.h"
#include "UndoRedo.h"

#include <QAction>
#include <QApplication>
#include <QCoreApplication>
#include <QElapsedTimer>
#include <QMouseEvent>
#include <QTemporaryDir>

#include <algorithm>
#include <cstdio>
#include <limits>
#include <vector>

namespace {

constexpr int kPlacements = 1000;
constexpr int kRebuilds = 10;

struct Tool {
    const char *action;
    int code;
};

const Tool kTools[] = {
    {"dxBarBtnLabel", 1},    {"dxBarBtnEdit", 2},     {"dxBarBtnCombo", 3},
    {"dxBarBtnMemo", 4},     {"dxBarBtnCheckbox", 5}, {"dxBarBtnButton", 7},
    {"dxBarBtnBevel", 8},    {"dxBarBtnDBLabel", 10}, {"dxBarBtnShape", 11},
    {"dxBarBtnDBLockup", 12}, {"dxBarPanel", 17},
};
constexpr int kToolCount = int(sizeof(kTools) / sizeof(kTools[0]));

void clickAt(QWidget *surface, const QPoint &pos)
{
    const QPointF local(pos);
    const QPointF global(surface->mapToGlobal(pos));
    QMouseEvent press(QEvent::MouseButtonPress, local, global, Qt::LeftButton, Qt::LeftButton,
                      Qt::NoModifier);
    QCoreApplication::sendEvent(surface, &press);
    QMouseEvent release(QEvent::MouseButtonRelease, local, global, Qt::LeftButton, Qt::NoButton,
                        Qt::NoModifier);
    QCoreApplication::sendEvent(surface, &release);
}

} // namespace

int main(int argc, char **argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);

    QTemporaryDir tempDir;
    if (!tempDir.isValid()) {
        std::fprintf(stderr, "no temporary directory\n");
        return 1;
    }
    AppPaths::setSettingsFileOverride(tempDir.filePath(QStringLiteral("bench_placement.ini")));

    TMainForm form;
    form.resize(1280, 900);
    form.show();
    QCoreApplication::processEvents();

    form.FileNewItemClick();
    QCoreApplication::processEvents();
    TMaske *mask = form.activeMask();
    if (!mask) {
        std::fprintf(stderr, "no mask after File/New\n");
        return 1;
    }
    mask->resize(1200, 800);
    QCoreApplication::processEvents();
    QWidget *surface = mask->document();
    if (!surface) {
        std::fprintf(stderr, "mask has no design surface\n");
        return 1;
    }

    QAction *actions[kToolCount];
    for (int i = 0; i < kToolCount; ++i) {
        actions[i] = form.findChild<QAction *>(QString::fromLatin1(kTools[i].action));
        if (!actions[i]) {
            std::fprintf(stderr, "palette action %s not found\n", kTools[i].action);
            return 1;
        }
    }

    const int before = Components::componentCount(mask->document());
    const int width = std::max(1, surface->width() - 40);
    const int height = std::max(1, surface->height() - 40);
    std::printf("design surface: %d x %d\n", surface->width(), surface->height());

    std::vector<qint64> times;
    times.reserve(kPlacements);
    QElapsedTimer total;
    total.start();
    for (int i = 0; i < kPlacements; ++i) {
        const int x = 4 + (i * 37) % width;
        const int y = 4 + ((i / 7) * 23 + (i % 7) * 5) % height;
        QElapsedTimer one;
        one.start();
        actions[i % kToolCount]->trigger();
        clickAt(surface, QPoint(x, y));
        times.push_back(one.nsecsElapsed());
    }
    const double totalMs = double(total.nsecsElapsed()) / 1e6;

    auto meanMs = [&](int from, int to) {
        qint64 sum = 0;
        for (int i = from; i < to; ++i)
            sum += times[size_t(i)];
        return double(sum) / 1e6 / double(to - from);
    };

    std::printf("placements: %d, total %.1f ms\n", kPlacements, totalMs);
    std::printf("per placement: mean %.3f ms\n", totalMs / kPlacements);
    std::printf("first 100: mean %.3f ms per placement\n", meanMs(0, 100));
    std::printf("last 100:  mean %.3f ms per placement\n", meanMs(kPlacements - 100, kPlacements));

    const int after = Components::componentCount(mask->document());
    std::printf("components on the mask: %d (before placing: %d, placed: %d)\n", after, before,
                after - before);

    std::printf("undo history: %.1f MiB\n", double(TUndoStream::instance().storedBytes()) / (1024.0 * 1024.0));

    TObjInsp *insp = form.ObjInsp();
    if (!insp) {
        std::fprintf(stderr, "no object inspector\n");
        return 1;
    }
    double best = std::numeric_limits<double>::max();
    double sum = 0;
    for (int r = 0; r < kRebuilds; ++r) {
        QElapsedTimer t;
        t.start();
        insp->UpdateComponents();
        const double ms = double(t.nsecsElapsed()) / 1e6;
        best = std::min(best, ms);
        sum += ms;
    }
    std::printf("inspector rebuild (%d runs): best %.3f ms, mean %.3f ms\n", kRebuilds, best,
                sum / kRebuilds);

    // Leave without the close-query dialog of the modified mask.
    mask->setModified(false);
    return 0;
}
