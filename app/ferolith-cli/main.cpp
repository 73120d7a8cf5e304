// ferolith-cli: the batch tool. It drives the same libraries as the desktop
// program without showing a window.
#include <QApplication>
#include <QStringList>
#include <QTextStream>
#include <cstdio>

#include "AppPaths.h"
#include "Version.h"

namespace {

QString usage()
{
    return QStringLiteral(
        "Aufruf: ferolith-cli [--ini DATEI] BEFEHL [ARGUMENTE]\n"
        "\n"
        "Ferolith-Batchwerkzeug: bearbeitet Masken (.dbm) ohne sichtbares Fenster.\n"
        "\n"
        "Optionen:\n"
        "  -h, --help       diese Hilfe anzeigen\n"
        "  -v, --version    Version anzeigen\n"
        "  --ini DATEI      Einstellungsdatei statt der voreingestellten verwenden\n");
}

} // namespace

int main(int argc, char *argv[])
{
    // No window is ever shown: run on the offscreen platform unless told otherwise.
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    QApplication::setApplicationName(QStringLiteral("ferolith"));
    QApplication::setApplicationVersion(Version::text());

    QTextStream out(stdout);
    QTextStream err(stderr);
    QStringList args = QApplication::arguments();
    QString error;
    if (!AppPaths::takeIniOption(args, &error)) {
        err << "ferolith-cli: " << error << Qt::endl;
        return 2;
    }
    args.removeFirst();

    if (args.isEmpty()) {
        err << usage();
        return 2;
    }
    const QString command = args.takeFirst();
    if (command == QLatin1String("-h") || command == QLatin1String("--help") || command == QLatin1String("help")) {
        out << usage();
        return 0;
    }
    if (command == QLatin1String("-v") || command == QLatin1String("--version")) {
        out << "ferolith-cli " << Version::text() << Qt::endl;
        return 0;
    }
    err << "ferolith-cli: unbekannter Befehl „" << command << "“ (siehe --help)" << Qt::endl;
    return 2;
}
