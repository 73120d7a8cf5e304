#pragma once

#include <QStringList>
#include <QTextStream>

// The database commands of the batch tool. Each returns the process exit
// code; messages go to err in German.
namespace CliDatabase {

// create-table MASK.dbm [--keep-data|--drop-data]
int createTable(const QStringList &args, QTextStream &out, QTextStream &err);
// servers: the database servers the scan finds, one per line.
int servers(const QStringList &args, QTextStream &out, QTextStream &err);
// aliases SERVER: the databases of a server, one per line.
int aliases(const QStringList &args, QTextStream &out, QTextStream &err);

} // namespace CliDatabase
