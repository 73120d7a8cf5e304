#pragma once

#include <QString>
#include <QStringList>

// The UI localiser: picks the language of the interface and installs the
// translators for it. The program's texts are written in German, so German
// needs no translator of our own; every other language loads
// ":/i18n/ferolith_<code>.qm". Qt's own texts (the buttons of message boxes,
// the file, colour and font dialogs) come from Qt's catalogue "qtbase_<code>"
// in Qt's translations folder, so they speak the same language.
namespace Localiser {

// Section and key in the settings file that override the system's language:
// "" (or missing) follows the system, "de" or "en" names a language.
extern const QString kSettingsSection;
extern const QString kSettingsKey;

// The languages the program ships, the source language first.
QStringList languages();

// The language to use: the setting when it names a shipped language,
// otherwise the first shipped one among the user's preferred languages
// (QLocale::uiLanguages(), e.g. "de-AT", "en-GB"). A user who prefers only
// other languages gets English; the neutral "C"/"POSIX" locale gets German.
QString choose(const QString &setting, const QStringList &uiLanguages);

// Removes the translators installed before and installs those for the
// language. Returns false when a catalogue that should be there could not be
// loaded; the texts it would translate then stay as they are.
bool install(const QString &language);

// The language installed last ("de" before any install).
QString current();

// What the programs call once at start-up, after the settings file is known
// (--ini): reads the override from the settings file, chooses from it and the
// system's locale and installs the translators. Returns the language.
QString activate();

} // namespace Localiser
