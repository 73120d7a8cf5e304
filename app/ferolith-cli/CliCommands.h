#pragma once

#include <QStringList>
#include <QTextStream>
#include <functional>

class TMaskDocument;

// The commands of the batch tool. Each returns the process exit code and
// writes failures as one line to err.
namespace CliCommands {

int roundtrip(const QStringList &args, QTextStream &out, QTextStream &err);
int dump(const QStringList &args, QTextStream &out, QTextStream &err);
int render(const QStringList &args, QTextStream &out, QTextStream &err);

// Loads a mask and hands it to use; returns use's exit code, or 1 when the
// mask cannot be loaded (the reason is on err).
int withMask(const QString &file, QTextStream &err, const std::function<int(const TMaskDocument &)> &use);

} // namespace CliCommands
