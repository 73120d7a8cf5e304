// ferolith-cli: the batch tool. It drives the same libraries as the desktop
// program without showing a window.
#include <QApplication>
#include <QCoreApplication>
#include <QStringList>
#include <QTextStream>
#include <cstdio>

#include "AppPaths.h"
#include "CliCommands.h"
#include "CliDatabase.h"
#include "CliRecords.h"
#include "Version.h"

namespace {

QString usage()
{
    return QCoreApplication::translate(
        "ferolith-cli",
        "Aufruf: ferolith-cli [--ini DATEI] BEFEHL [ARGUMENTE]\n"
        "\n"
        "Ferolith-Batchwerkzeug: bearbeitet Masken (.dbm) ohne sichtbares Fenster.\n"
        "\n"
        "Befehle:\n"
        "  roundtrip EIN.dbm AUS.dbm   Maske laden und wie \"Speichern\" wieder schreiben\n"
        "  dump EIN.dbm                Maske als JSON-Objekt ausgeben\n"
        "  render EIN.dbm AUS.png      Maske im Run Mode als PNG-Bild speichern\n"
        "  create-table EIN.dbm [--keep-data|--drop-data]\n"
        "                              Tabelle der Maske in der eingestellten Datenbank erzeugen;\n"
        "                              vorhandene Daten übernehmen (Vorgabe) oder verwerfen\n"
        "  export EIN.dbm              Datensätze der Tabelle der Maske als CSV ausgeben\n"
        "  import EIN.dbm DATEI.csv    CSV-Datei (Kopfzeile: Feldnamen) als neue Datensätze\n"
        "                              übernehmen, mit Vorgabewerten und Prüfungen der Maske;\n"
        "                              eine fehlerhafte Zeile: nichts wird übernommen\n"
        "  servers                     Datenbankserver suchen (Verbindungstyp aus den Einstellungen)\n"
        "  aliases SERVER              Datenbanken eines Servers auflisten\n"
        "\n"
        "Optionen:\n"
        "  -h, --help       diese Hilfe anzeigen\n"
        "  -v, --version    Version anzeigen\n"
        "  --ini DATEI      Einstellungsdatei statt der voreingestellten verwenden\n");
}

// The offscreen platform reports what it cannot do (raise a window, size
// hints); a batch tool has no use for that noise on its error channel.
void quietMessages(QtMsgType type, const QMessageLogContext &context, const QString &message)
{
    if (type == QtWarningMsg
        && (message.startsWith(QLatin1String("This plugin does not support"))
            || message.contains(QLatin1String("XDG_RUNTIME_DIR"))))
        return;
    fprintf(stderr, "%s\n", qPrintable(qFormatLogMessage(type, context, message)));
}

} // namespace

int main(int argc, char *argv[])
{
    // No window is ever shown: run on the offscreen platform unless told otherwise.
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    qInstallMessageHandler(quietMessages);
    QApplication app(argc, argv);
    QApplication::setApplicationName(QStringLiteral("ferolith"));
    QApplication::setApplicationVersion(Version::text());

    QTextStream out(stdout);
    QTextStream err(stderr);
    QStringList args;
    if (!AppPaths::takeStartArguments("ferolith-cli", args))
        return 2;

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
    if (command == QLatin1String("roundtrip"))
        return CliCommands::roundtrip(args, out, err);
    if (command == QLatin1String("dump"))
        return CliCommands::dump(args, out, err);
    if (command == QLatin1String("render"))
        return CliCommands::render(args, out, err);
    if (command == QLatin1String("create-table"))
        return CliDatabase::createTable(args, out, err);
    if (command == QLatin1String("export"))
        return CliRecords::exportRecords(args, out, err);
    if (command == QLatin1String("import"))
        return CliRecords::importRecords(args, out, err);
    if (command == QLatin1String("servers"))
        return CliDatabase::servers(args, out, err);
    if (command == QLatin1String("aliases"))
        return CliDatabase::aliases(args, out, err);
    err << "ferolith-cli: "
        << QCoreApplication::translate("ferolith-cli", "unbekannter Befehl „%1“ (siehe --help)").arg(command)
        << Qt::endl;
    return 2;
}
