#pragma once

#include <QString>
#include <QStringList>

// Where the program keeps its files. Folders are returned with native
// separators and always end with one.
namespace AppPaths {

// The folder of the executable.
QString baseFolder();

// The settings file: "<application name>.ini" next to the executable when
// that folder is writable, otherwise in the user's configuration folder.
// An override (the --ini option) wins.
QString settingsFile();
// The same for a program in programFolder, without the override. A program
// installed into the system's folders (/usr/bin, /opt ...) always uses the
// user's configuration folder: ~/.config/<application name>/ on Linux.
QString settingsFileFor(const QString &programFolder);
void setSettingsFileOverride(const QString &path);

// Takes "--ini PATH" or "--ini=PATH" out of the arguments and sets the
// override; returns false with a message when the option has no path.
bool takeIniOption(QStringList &arguments, QString *errorMessage = nullptr);

QString withTrailingSeparator(const QString &folder);

// The start of both programs: the application's arguments without the
// program's own name and without "--ini" (which takes effect), and the
// interface language chosen from the settings. False after a line on
// standard error, "program: why", when --ini names no file.
bool takeStartArguments(const char *program, QStringList &arguments);

} // namespace AppPaths
