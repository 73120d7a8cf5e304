// ferolith: the desktop designer for data-entry masks.
#include <QApplication>
#include <QDir>
#include <QFileInfo>
#include <QGuiApplication>
#include <QStringList>
#include <QTextStream>

#include "AppPaths.h"
#include "Localiser.h"
#include "MainForm.h"
#include "Version.h"

namespace {

QString usage()
{
    return QCoreApplication::translate(
        "ferolith",
        "Aufruf: ferolith [--ini DATEI] [MASKE.dbm]\n"
        "\n"
        "Ferolith: Masken-Designer für Quorbex 18.x.\n"
        "\n"
        "Optionen:\n"
        "  -h, --help             diese Hilfe anzeigen\n"
        "  -v, --version          Version anzeigen\n"
        "  --ini DATEI            Einstellungsdatei statt der voreingestellten verwenden\n"
        "  --screenshot BILD.png  Hauptfenster mit einer neuen Maske als Bild speichern und beenden\n");
}

QString screenshotNeedsFile()
{
    return QCoreApplication::translate("ferolith", "Die Option --screenshot braucht einen Dateinamen.");
}

// Takes "--screenshot FILE" or "--screenshot=FILE" out of the arguments.
bool takeScreenshotOption(QStringList &arguments, QString &file, QString &error)
{
    for (int i = 0; i < arguments.size(); ++i) {
        const QString arg = arguments.at(i);
        if (arg == QLatin1String("--screenshot")) {
            if (i + 1 >= arguments.size() || arguments.at(i + 1).isEmpty()) {
                error = screenshotNeedsFile();
                return false;
            }
            file = arguments.at(i + 1);
            arguments.remove(i, 2);
            return true;
        }
        if (arg.startsWith(QLatin1String("--screenshot="))) {
            file = arg.mid(13);
            arguments.removeAt(i);
            if (file.isEmpty()) {
                error = screenshotNeedsFile();
                return false;
            }
            return true;
        }
    }
    return true;
}

// --help and --version answer before the GUI application exists, so they
// also work where no display can be opened.
int answerInfoOptions(int argc, char *argv[])
{
    for (int i = 1; i < argc; ++i) {
        const QString arg = QString::fromLocal8Bit(argv[i]);
        if (arg == QLatin1String("--ini") || arg == QLatin1String("--screenshot")) {
            ++i;
        } else if (arg == QLatin1String("-h") || arg == QLatin1String("--help")) {
            // The help is in the user's language, which the settings file may choose.
            QCoreApplication core(argc, argv);
            QCoreApplication::setApplicationName(QStringLiteral("ferolith"));
            QStringList args = QCoreApplication::arguments();
            AppPaths::takeIniOption(args);
            Localiser::activate();
            QTextStream(stdout) << usage();
            return 0;
        } else if (arg == QLatin1String("-v") || arg == QLatin1String("--version")) {
            QTextStream(stdout) << "ferolith " << Version::text() << Qt::endl;
            return 0;
        }
    }
    return -1;
}

} // namespace

int main(int argc, char *argv[])
{
    if (const int rc = answerInfoOptions(argc, argv); rc >= 0)
        return rc;
    QApplication app(argc, argv);
    QApplication::setApplicationName(QStringLiteral("ferolith"));
    QApplication::setApplicationDisplayName(QStringLiteral("Quorbex - Ferolith"));
    QApplication::setApplicationVersion(Version::text());
    // Lets the desktop match the windows to the installed desktop entry and its icon.
    QGuiApplication::setDesktopFileName(QStringLiteral("de.tolvane.ferolith"));

    QTextStream out(stdout);
    QTextStream err(stderr);
    QStringList args;
    if (!AppPaths::takeStartArguments("ferolith", args))
        return 2;
    QString error;

    QString screenshot;
    if (!takeScreenshotOption(args, screenshot, error)) {
        err << "ferolith: " << error << Qt::endl;
        return 2;
    }

    TMainForm mainForm(args);
    if (screenshot.isEmpty()) {
        mainForm.showMaximized();
        return app.exec();
    }

    // Without a display there is no screen size to maximise to.
    if (QGuiApplication::platformName() == QLatin1String("offscreen")) {
        mainForm.resize(1280, 800);
        mainForm.show();
    } else {
        mainForm.showMaximized();
    }
    // A mask named on the command line is shown; otherwise a new one.
    if (args.isEmpty())
        mainForm.FileNewItemClick();
    QApplication::processEvents();
    const QString target = QFileInfo(screenshot).absoluteFilePath();
    if (!mainForm.grab().save(target)) {
        err << "ferolith: "
            << QCoreApplication::translate("ferolith", "Das Bild „%1“ konnte nicht gespeichert werden.")
                   .arg(QDir::toNativeSeparators(target))
            << Qt::endl;
        return 1;
    }
    out << QDir::toNativeSeparators(target) << Qt::endl;
    return 0;
}
