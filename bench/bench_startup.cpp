// Start-up: from the first line of main() to the main window's first paint,
// against a bare QMainWindow with an MDI area. Each start is a fresh process
// (this program runs itself), so the first-use costs of fonts, styles and
// plugins are counted as a user meets them.
//
//   bench_startup [STARTS]     (default: 9 of each, alternating)

#include "AppPaths.h"
#include "MainForm.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QMainWindow>
#include <QMdiArea>
#include <QProcess>
#include <QTemporaryDir>
#include <QWindow>

#include <algorithm>
#include <cstdio>
#include <cstring>
#include <vector>

namespace {

// Notes the first paint of any widget in the window.
class FirstPaint : public QObject
{
public:
    explicit FirstPaint(QWidget *window)
        : m_window(window)
    {
    }
    bool painted = false;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::Paint && watched->isWidgetType()
            && static_cast<QWidget *>(watched)->window() == m_window)
            painted = true;
        return QObject::eventFilter(watched, event);
    }

private:
    QWidget *m_window;
};

// One start in this process: prints the milliseconds to the application,
// to the constructed window and to its first paint.
int start(int argc, char **argv, bool ferolith, const QElapsedTimer &clock)
{
    QApplication app(argc, argv);
    const qint64 appReady = clock.nsecsElapsed();
    QTemporaryDir dir;
    AppPaths::setSettingsFileOverride(dir.filePath(QStringLiteral("bench_startup.ini")));

    QMainWindow *window = nullptr;
    if (ferolith) {
        window = new TMainForm;
    } else {
        window = new QMainWindow;
        window->setCentralWidget(new QMdiArea);
        window->resize(1024, 720);
    }
    const qint64 built = clock.nsecsElapsed();
    FirstPaint paint(window);
    app.installEventFilter(&paint);
    window->show();
    QElapsedTimer wait;
    wait.start();
    while (!paint.painted && wait.elapsed() < 10000)
        QCoreApplication::processEvents(QEventLoop::AllEvents, 10);
    const qint64 shown = clock.nsecsElapsed();
    std::printf("%.3f %.3f %.3f\n", appReady / 1e6, built / 1e6, shown / 1e6);
    delete window;
    return paint.painted ? 0 : 1;
}

struct Figures
{
    std::vector<double> app, built, shown;
};

double median(std::vector<double> v)
{
    std::sort(v.begin(), v.end());
    return v.empty() ? 0 : v[v.size() / 2];
}

bool measure(const QString &program, const char *mode, Figures &into)
{
    QProcess child;
    child.start(program, {QString::fromLatin1(mode)});
    if (!child.waitForFinished(60000) || child.exitCode() != 0) {
        std::fprintf(stderr, "start %s failed: %s\n", mode, child.readAllStandardError().constData());
        return false;
    }
    double app = 0, built = 0, shown = 0;
    if (std::sscanf(child.readAllStandardOutput().constData(), "%lf %lf %lf", &app, &built, &shown) != 3)
        return false;
    into.app.push_back(app);
    into.built.push_back(built);
    into.shown.push_back(shown);
    return true;
}

} // namespace

int main(int argc, char **argv)
{
    QElapsedTimer clock;
    clock.start();
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    if (argc > 1 && (!std::strcmp(argv[1], "qt") || !std::strcmp(argv[1], "ferolith"))) {
        int childArgc = 1;
        return start(childArgc, argv, !std::strcmp(argv[1], "ferolith"), clock);
    }

    const int starts = argc > 1 ? std::max(1, std::atoi(argv[1])) : 9;
    QCoreApplication core(argc, argv);
    const QString self = QCoreApplication::applicationFilePath();
    Figures qt, ours;
    for (int i = 0; i < starts; ++i) {
        if (!measure(self, "qt", qt) || !measure(self, "ferolith", ours))
            return 1;
    }
    std::printf("start-up, medians of %d fresh processes (ms from main())\n", starts);
    std::printf("%-28s %10s %10s %10s\n", "", "app", "window", "painted");
    std::printf("%-28s %10.1f %10.1f %10.1f\n", "QMainWindow + QMdiArea", median(qt.app), median(qt.built),
                median(qt.shown));
    std::printf("%-28s %10.1f %10.1f %10.1f\n", "Ferolith main window", median(ours.app), median(ours.built),
                median(ours.shown));
    const double qtWindow = median(qt.shown) - median(qt.app);
    const double ourWindow = median(ours.shown) - median(ours.app);
    std::printf("ratio to Qt: whole start %.2f, window only (built and painted) %.2f\n",
                median(ours.shown) / median(qt.shown), qtWindow > 0 ? ourWindow / qtWindow : 0.0);
    return 0;
}
