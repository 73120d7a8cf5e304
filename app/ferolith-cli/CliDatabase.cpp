// The database commands: a table from a mask, and the two scans. The
// connection comes from the settings file, as in the program.
#include "CliDatabase.h"

#include "AppPaths.h"
#include "CliCommands.h"
#include "ConnectionSettings.h"
#include "DbConnection.h"
#include "MaskDocument.h"
#include "MaskFields.h"
#include "ServerScan.h"
#include "TableGenerator.h"
#include "UserDialogs.h"

#include <QCoreApplication>
#include <QFileInfo>

namespace {

// Messages go to the error channel; the data question is answered by the
// command line, and a question about rows that do not convert with No, so
// that nothing is left out unasked.
class CliDialogs : public UserDialogs
{
public:
    CliDialogs(QTextStream &err, bool keepData) : m_err(err), m_keepData(keepData) { setInstance(this); }
    ~CliDialogs() override { setInstance(nullptr); }
    CliDialogs(const CliDialogs &) = delete;
    CliDialogs &operator=(const CliDialogs &) = delete;

    TModalResult messageDlg(QWidget *, const QString &text, TMsgDlgType type, TMsgDlgButtons buttons,
                            const QString &) override
    {
        QString plain = text;
        plain.replace(QLatin1String("\n\r"), QLatin1String("\n"));
        m_err << plain << Qt::endl;
        if (!(buttons & mbYes))
            return mrOk;
        // The generator asks to confirm taking over the data; the conversion warns.
        const bool dataQuestion = type == mtConfirmation;
        const TModalResult answer = dataQuestion && m_keepData ? mrYes : mrNo;
        m_err << (answer == mrYes ? QCoreApplication::translate("ferolith-cli", "→ Ja")
                                  : QCoreApplication::translate("ferolith-cli", "→ Nein"))
              << Qt::endl;
        return answer;
    }
    bool fileDialog(QWidget *, TFileDialog &) override { return false; }
    std::optional<TColor> colorDialog(QWidget *, TColor) override { return std::nullopt; }
    std::optional<QFont> fontDialog(QWidget *, const QFont &) override { return std::nullopt; }
    QString directoryDialog(QWidget *, const QString &, const QString &) override { return QString(); }
    int execDialog(QDialog *) override { return mrCancel; }

private:
    QTextStream &m_err;
    bool m_keepData;
};

TConnectionSettings loadSettings(QTextStream &err, bool *ok)
{
    QString error;
    const TConnectionSettings settings = TConnectionSettings::load(AppPaths::settingsFile(), ok, &error);
    if (!*ok)
        err << "ferolith-cli: "
            << QCoreApplication::translate("ferolith-cli",
                                           "Die Einstellungen konnten nicht aus der Registrierung gelesen werden: %1")
                   .arg(error)
            << Qt::endl;
    return settings;
}

} // namespace

namespace CliDatabase {

int createTable(const QStringList &args, QTextStream &, QTextStream &err)
{
    QStringList rest = args;
    bool keepData = true; // nothing is dropped unless asked for
    const bool keep = rest.removeAll(QStringLiteral("--keep-data")) > 0;
    const bool drop = rest.removeAll(QStringLiteral("--drop-data")) > 0;
    if (rest.size() != 1 || (keep && drop)) {
        err << "ferolith-cli: "
            << QCoreApplication::translate("ferolith-cli",
                                           "Aufruf: ferolith-cli create-table MASKE.dbm [--keep-data|--drop-data]")
            << Qt::endl;
        return 2;
    }
    if (drop)
        keepData = false;
    bool settingsOk = false;
    const TConnectionSettings settings = loadSettings(err, &settingsOk);
    if (!settingsOk)
        return 1;

    return CliCommands::withMask(rest.first(), err, [&](const TMaskDocument &mask) {
        if (mask.Tabelle().isEmpty()) {
            err << "ferolith-cli: "
                << QCoreApplication::translate("ferolith-cli", "Die Maske „%1“ nennt keine Tabelle.").arg(rest.first())
                << Qt::endl;
            return 1;
        }
        CliDialogs dialogs(err, keepData);
        TDbConnection connection;
        TTableGenerator generator(connection, settings);
        generator.TableName = mask.Tabelle();
        generator.Rows = MaskFields::FieldRows(&mask, mask.TableSettings().Index);
        generator.Description = mask.TableSettings();
        return generator.CreateDB() ? 0 : 1;
    });
}

int servers(const QStringList &args, QTextStream &out, QTextStream &err)
{
    if (!args.isEmpty()) {
        err << "ferolith-cli: " << QCoreApplication::translate("ferolith-cli", "Aufruf: ferolith-cli servers")
            << Qt::endl;
        return 2;
    }
    bool settingsOk = false;
    const TConnectionSettings settings = loadSettings(err, &settingsOk);
    if (!settingsOk)
        return 1;
    const QStringList names = ServerScan::GetServerNames(settings.ServerProtokol, settings.ScanTimeOut, settings.ScanHosts);
    if (names.isEmpty()) {
        err << ServerScan::NoServerText().replace(QLatin1String("\n\r"), QLatin1String("\n")) << Qt::endl;
        return 1;
    }
    for (const QString &name : names)
        out << name << Qt::endl;
    return 0;
}

int aliases(const QStringList &args, QTextStream &out, QTextStream &err)
{
    if (args.size() != 1) {
        err << "ferolith-cli: " << QCoreApplication::translate("ferolith-cli", "Aufruf: ferolith-cli aliases SERVER")
            << Qt::endl;
        return 2;
    }
    bool settingsOk = false;
    const TConnectionSettings settings = loadSettings(err, &settingsOk);
    if (!settingsOk)
        return 1;
    QString error;
    const QStringList names = ServerScan::GetAliasNames(settings.ServerProtokol, args.first(), &error);
    if (names.isEmpty()) {
        err << "ferolith-cli: "
            << QCoreApplication::translate("ferolith-cli", "Keine Datenbank auf dem Server „%1“ gefunden.")
                   .arg(args.first());
        if (!error.isEmpty())
            err << " " << error.simplified();
        err << Qt::endl;
        return 1;
    }
    for (const QString &name : names)
        out << name << Qt::endl;
    return 0;
}

} // namespace CliDatabase
