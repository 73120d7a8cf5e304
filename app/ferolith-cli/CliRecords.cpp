// The record commands: export and import of a mask's records as CSV, through
// the same record layer as run mode (defaults, required fields, types).
#include "CliRecords.h"

#include "AppPaths.h"
#include "CliCommands.h"
#include "ConnectionSettings.h"
#include "MaskDocument.h"
#include "MaskTable.h"
#include "TextCodec.h"

#include <QCoreApplication>
#include <QFile>
#include <QStringDecoder>

namespace {

bool openTable(const TMaskDocument &mask, const QString &file, TMaskTable &table, QTextStream &err)
{
    bool ok = false;
    QString error;
    const TConnectionSettings settings = TConnectionSettings::load(AppPaths::settingsFile(), &ok, &error);
    if (!ok) {
        err << "ferolith-cli: "
            << QCoreApplication::translate("ferolith-cli", "Die Einstellungen konnten nicht gelesen werden: %1")
                   .arg(error)
            << Qt::endl;
        return false;
    }
    // A script cannot answer "%?NUM": it always draws the number.
    table.Macros.AskForNumber = [](const QString &) { return true; };
    if (!table.open(settings, mask.Tabelle(), mask.TableSettings(), TMaskTable::FieldsOf(&mask), &error)) {
        err << "ferolith-cli: " << file << ": " << error << Qt::endl;
        return false;
    }
    return true;
}

// UTF-8 as the export writes it; a file that is no valid UTF-8 comes from an
// older spreadsheet and is read as Windows-1252.
QString decodeCsv(const QByteArray &bytes)
{
    QStringDecoder utf8(QStringDecoder::Utf8);
    const QString text = utf8.decode(bytes);
    return utf8.hasError() ? TextCodec::decodeWindows1252(bytes) : text;
}

} // namespace

namespace CliRecords {

QString csvLine(const QStringList &fields, QChar separator)
{
    QStringList quoted;
    for (const QString &field : fields) {
        if (field.contains(separator) || field.contains(QLatin1Char('"')) || field.contains(QLatin1Char('\n'))
            || field.contains(QLatin1Char('\r')))
            quoted << QLatin1Char('"') + QString(field).replace(QLatin1String("\""), QLatin1String("\"\""))
                          + QLatin1Char('"');
        else
            quoted << field;
    }
    return quoted.join(separator);
}

bool parseCsv(const QString &input, QVector<QStringList> &rows, QString *errorMessage)
{
    QString text = input;
    if (text.startsWith(QChar(0xFEFF)))
        text.remove(0, 1);
    const QString firstLine = text.section(QLatin1Char('\n'), 0, 0);
    const QChar separator = firstLine.contains(QLatin1Char(';')) ? QLatin1Char(';') : QLatin1Char(',');
    rows.clear();
    QStringList row;
    QString field;
    bool quoted = false;
    bool rowHasContent = false;
    int line = 1;
    int quoteLine = 0;
    for (int i = 0; i < text.size(); ++i) {
        const QChar c = text.at(i);
        if (quoted) {
            if (c == QLatin1Char('"')) {
                if (i + 1 < text.size() && text.at(i + 1) == QLatin1Char('"')) {
                    field += c;
                    ++i;
                } else
                    quoted = false;
            } else {
                if (c == QLatin1Char('\n'))
                    ++line;
                field += c;
            }
            continue;
        }
        if (c == QLatin1Char('"')) {
            quoted = true;
            quoteLine = line;
            rowHasContent = true;
        } else if (c == separator) {
            row << field;
            field.clear();
            rowHasContent = true;
        } else if (c == QLatin1Char('\n') || c == QLatin1Char('\r')) {
            if (c == QLatin1Char('\r') && i + 1 < text.size() && text.at(i + 1) == QLatin1Char('\n'))
                ++i;
            ++line;
            // Empty lines carry no record.
            if (rowHasContent || !field.isEmpty()) {
                row << field;
                rows << row;
            }
            row.clear();
            field.clear();
            rowHasContent = false;
        } else {
            field += c;
        }
    }
    if (quoted) {
        if (errorMessage)
            *errorMessage = QCoreApplication::translate("ferolith-cli",
                                                        "Das Anführungszeichen in Zeile %1 wird nicht geschlossen.")
                                .arg(quoteLine);
        return false;
    }
    if (rowHasContent || !field.isEmpty()) {
        row << field;
        rows << row;
    }
    return true;
}

int exportRecords(const QStringList &args, QTextStream &out, QTextStream &err)
{
    if (args.size() != 1) {
        err << "ferolith-cli: " << QCoreApplication::translate("ferolith-cli", "Aufruf: ferolith-cli export MASKE.dbm")
            << Qt::endl;
        return 2;
    }
    return CliCommands::withMask(args.first(), err, [&](const TMaskDocument &mask) {
        TMaskTable table;
        if (!openTable(mask, args.first(), table, err))
            return 1;
        QStringList names;
        for (const TRunField &f : table.fields())
            if (!f.Column.isEmpty())
                names << f.Name;
        const QChar separator = QLatin1Char(';');
        out << csvLine(names, separator) << '\n';
        // In pieces, so that a big table never sits in memory whole.
        const int chunk = 500;
        QVector<TRecord> records;
        QString error;
        for (int first = 0; first < table.count(); first += chunk) {
            if (!table.fetchRows(first, chunk, records, &error)) {
                out.flush();
                err << "ferolith-cli: " << error << Qt::endl;
                return 1;
            }
            for (const TRecord &r : std::as_const(records)) {
                QStringList values;
                for (const QString &name : std::as_const(names))
                    values << table.text(r, name);
                out << csvLine(values, separator) << '\n';
            }
        }
        out.flush();
        return 0;
    });
}

int importRecords(const QStringList &args, QTextStream &out, QTextStream &err)
{
    if (args.size() != 2) {
        err << "ferolith-cli: "
            << QCoreApplication::translate("ferolith-cli", "Aufruf: ferolith-cli import MASKE.dbm DATEI.csv")
            << Qt::endl;
        return 2;
    }
    QFile file(args.at(1));
    if (!file.open(QIODevice::ReadOnly)) {
        err << "ferolith-cli: "
            << QCoreApplication::translate("ferolith-cli", "Die Datei „%1“ kann nicht gelesen werden.").arg(args.at(1))
            << Qt::endl;
        return 1;
    }
    QVector<QStringList> rows;
    QString error;
    if (!parseCsv(decodeCsv(file.readAll()), rows, &error)) {
        err << "ferolith-cli: " << args.at(1) << ": " << error << Qt::endl;
        return 1;
    }
    if (rows.isEmpty()) {
        err << "ferolith-cli: " << args.at(1) << ": "
            << QCoreApplication::translate("ferolith-cli", "Die Datei hat keine Kopfzeile mit den Feldnamen.")
            << Qt::endl;
        return 1;
    }
    return CliCommands::withMask(args.first(), err, [&](const TMaskDocument &mask) {
        TMaskTable table;
        if (!openTable(mask, args.first(), table, err))
            return 1;
        QStringList columns = rows.takeFirst();
        for (QString &c : columns)
            c = c.trimmed();
        const int before = table.count();
        QString why;
        if (!table.importRecords(columns, rows, &why)) {
            err << "ferolith-cli: " << args.at(1) << ": " << why.simplified() << Qt::endl
                << "ferolith-cli: " << QCoreApplication::translate("ferolith-cli", "Nichts wurde übernommen.")
                << Qt::endl;
            return 1;
        }
        out << QCoreApplication::translate("ferolith-cli", "%1 Datensätze übernommen.").arg(table.count() - before)
            << Qt::endl;
        return 0;
    });
}

} // namespace CliRecords
