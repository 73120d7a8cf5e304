#pragma once

#include <QStringList>
#include <QTextStream>
#include <QVector>

// The record commands of the batch tool: a mask's records as CSV and back.
namespace CliRecords {

// export MASK.dbm: the mask's fields as columns, one record a line, on out.
int exportRecords(const QStringList &args, QTextStream &out, QTextStream &err);
// import MASK.dbm FILE.csv: all rows as new records, or none.
int importRecords(const QStringList &args, QTextStream &out, QTextStream &err);

// CSV as spreadsheets write it: fields separated by `separator`, quoted with
// '"' when they hold the separator, a quote or a line break.
QString csvLine(const QStringList &fields, QChar separator);
// The rows of a CSV text; the separator is ';' when the first line has one,
// else ','. False with the line number of an unclosed quote.
bool parseCsv(const QString &text, QVector<QStringList> &rows, QString *errorMessage);

} // namespace CliRecords
