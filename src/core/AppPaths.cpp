#include "AppPaths.h"

#include "Localiser.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>
#include <QTextStream>

namespace {
QString &overridePath()
{
    static QString path;
    return path;
}

QString applicationBaseName()
{
    QString name = QCoreApplication::applicationName();
    if (name.isEmpty())
        name = QStringLiteral("ferolith");
    return name;
}

// An installed program lives in a folder of the system. Its settings belong
// to the user even when the folder could be written (by root), so they go
// to the user's configuration folder as every other program's do.
bool isSystemFolder(const QString &folder)
{
#ifdef Q_OS_WIN
    Q_UNUSED(folder);
    return false;
#else
    const QString path = QDir::cleanPath(folder) + QLatin1Char('/');
    for (const char *prefix : {"/usr/", "/bin/", "/sbin/", "/opt/", "/snap/"}) {
        if (path.startsWith(QLatin1String(prefix)))
            return true;
    }
    return false;
#endif
}
} // namespace

namespace AppPaths {

QString withTrailingSeparator(const QString &folder)
{
    QString native = QDir::toNativeSeparators(folder);
    if (!native.endsWith(QDir::separator()))
        native += QDir::separator();
    return native;
}

QString baseFolder()
{
    QString dir = QCoreApplication::applicationDirPath();
    if (dir.isEmpty())
        dir = QDir::currentPath();
    return withTrailingSeparator(dir);
}

QString settingsFile()
{
    if (!overridePath().isEmpty())
        return QDir::toNativeSeparators(overridePath());
    return settingsFileFor(QCoreApplication::applicationDirPath());
}

QString settingsFileFor(const QString &programFolder)
{
    const QString fileName = applicationBaseName() + QStringLiteral(".ini");
    const QFileInfo exeDir(programFolder);
    if (exeDir.isDir() && exeDir.isWritable() && !isSystemFolder(exeDir.absoluteFilePath()))
        return withTrailingSeparator(programFolder) + fileName;
    QString config = QStandardPaths::writableLocation(QStandardPaths::AppConfigLocation);
    if (config.isEmpty())
        config = QDir::homePath();
    QDir().mkpath(config);
    return withTrailingSeparator(config) + fileName;
}

void setSettingsFileOverride(const QString &path)
{
    overridePath() = path.isEmpty() ? QString() : QFileInfo(path).absoluteFilePath();
}

bool takeIniOption(QStringList &arguments, QString *errorMessage)
{
    for (int i = 1; i < arguments.size(); ++i) {
        const QString arg = arguments.at(i);
        if (arg == QLatin1String("--ini")) {
            if (i + 1 >= arguments.size() || arguments.at(i + 1).isEmpty()) {
                if (errorMessage)
                    *errorMessage
                        = QCoreApplication::translate("AppPaths", "Die Option --ini braucht einen Dateinamen.");
                return false;
            }
            setSettingsFileOverride(arguments.at(i + 1));
            arguments.remove(i, 2);
            return true;
        }
        if (arg.startsWith(QLatin1String("--ini="))) {
            const QString path = arg.mid(6);
            if (path.isEmpty()) {
                if (errorMessage)
                    *errorMessage
                        = QCoreApplication::translate("AppPaths", "Die Option --ini braucht einen Dateinamen.");
                return false;
            }
            setSettingsFileOverride(path);
            arguments.removeAt(i);
            return true;
        }
    }
    return true;
}

bool takeStartArguments(const char *program, QStringList &arguments)
{
    arguments = QCoreApplication::arguments();
    const bool iniTaken = takeIniOption(arguments);
    // The settings file may choose the language, so the language is known
    // only now; a broken --ini leaves it to the system's.
    Localiser::activate();
    if (!iniTaken) {
        QString error;
        takeIniOption(arguments, &error);
        QTextStream(stderr) << program << ": " << error << Qt::endl;
        return false;
    }
    if (!arguments.isEmpty())
        arguments.removeFirst();
    return true;
}

} // namespace AppPaths
