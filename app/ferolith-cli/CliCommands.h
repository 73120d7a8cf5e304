#pragma once

#include <QStringList>
#include <QTextStream>

// The commands of the batch tool. Each returns the process exit code and
// writes failures as one line to err.
namespace CliCommands {

int roundtrip(const QStringList &args, QTextStream &out, QTextStream &err);
int dump(const QStringList &args, QTextStream &out, QTextStream &err);
int render(const QStringList &args, QTextStream &out, QTextStream &err);

} // namespace CliCommands
