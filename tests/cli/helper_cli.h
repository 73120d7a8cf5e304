#pragma once

// The batch tool run as a user runs it, with the settings file the test
// names, and the files it reads written as the runtime's tools write them.
#include <QProcess>
#include <QString>
#include <QStringList>

#include "TestSupport.h"
#include "TextCodec.h"

namespace CliTest {

struct Run
{
    int exitCode = -1; // -1 when the tool did not end by itself
    QString out;
    QString err;
};

inline Run runTool(const QString &ini, const QStringList &args)
{
    QProcess p;
    QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
    env.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
    p.setProcessEnvironment(env);
    p.start(QStringLiteral(FEROLITH_CLI), QStringList{QStringLiteral("--ini"), ini} + args);
    if (!p.waitForFinished(60000))
        p.kill();
    return Run{p.exitStatus() == QProcess::NormalExit ? p.exitCode() : -1, QString::fromUtf8(p.readAllStandardOutput()),
               QString::fromUtf8(p.readAllStandardError())};
}

// CR LF line ends, Windows-1252.
inline bool writeCrlfText(const QString &path, const QString &text)
{
    QString crlf = text;
    crlf.replace(QLatin1Char('\n'), QLatin1String("\r\n"));
    return writeFileBytes(path, TextCodec::encodeWindows1252(crlf));
}

} // namespace CliTest
