#pragma once

#include <QString>
#include <QStringList>

class QComboBox;
class QWidget;
struct TConnectionSettings;

// Finding database servers and their databases, for the settings window's
// "Scan Server" and "Scan Alias". No broadcast: the scan asks the loopback
// addresses, the usual socket folders and the hosts the settings list.
namespace ServerScan {

// The ports asked on every host without a port of its own.
constexpr int kFirstPort = 5432;
constexpr int kLastPort = 5439;

// Every place where a PostgreSQL server answers its protocol within
// timeoutMs, as text that DBServerName accepts. Protocol 0 asks TCP/IP
// (127.0.0.1 and ::1 on the ports above, and each "host" or "host:port" of
// extraHosts); 1 and 2 the sockets in the usual folders and in the absolute
// folders of extraHosts. Other indexes ask nothing.
QStringList GetServerNames(int protocol, int timeoutMs, const QStringList &extraHosts = {});

// The server's databases that accept connections and are no templates.
// Empty with errorMessage set when the server cannot be asked.
QStringList GetAliasNames(int protocol, const QString &serverName, QString *errorMessage = nullptr);

QString NoServerText();

// The settings window's steps on its combo boxes: hourglass, fill, first
// item selected, simple style under two entries and a drop-down list from two.
void ScanServerBtnClick(QComboBox *DBServerName, const TConnectionSettings &settings);
// Shows NoServerText() (parent for the box) when DBServerName's list is
// empty; otherwise fills DBAlias. False when nothing was filled.
bool ScanAliasClick(QWidget *parent, const QComboBox *DBServerName, QComboBox *DBAlias,
                    const TConnectionSettings &settings);
// The style rule for a filled list.
void applyListStyle(QComboBox *combo);

} // namespace ServerScan
