#include "Localiser.h"

#include "AppPaths.h"
#include "IniFile.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QPointer>
#include <QTranslator>
#include <QVector>

#include <utility>

namespace {

const QString kSource = QStringLiteral("de");
const QString kFallback = QStringLiteral("en");

struct State
{
    QString language = kSource;
    QVector<QPointer<QTranslator>> translators;
};

State &state()
{
    static State s;
    return s;
}

// "de-AT", "de_AT", "de" -> "de".
QString languagePart(const QString &name)
{
    qsizetype end = 0;
    while (end < name.size() && name.at(end).isLetter())
        ++end;
    return name.left(end).toLower();
}

// A translator owned by the application, so that it goes with it.
bool addTranslator(const QString &fileName, const QString &folder)
{
    auto *translator = new QTranslator(QCoreApplication::instance());
    if (!translator->load(fileName, folder)) {
        delete translator;
        return false;
    }
    QCoreApplication::installTranslator(translator);
    state().translators.append(translator);
    return true;
}

} // namespace

namespace Localiser {

const QString kSettingsSection = QStringLiteral("Configuration");
const QString kSettingsKey = QStringLiteral("Sprache");

QStringList languages()
{
    return {kSource, kFallback};
}

QString choose(const QString &setting, const QStringList &uiLanguages)
{
    const QStringList shipped = languages();
    const QString wanted = setting.trimmed().toLower();
    if (shipped.contains(wanted))
        return wanted;
    bool prefersOther = false;
    for (const QString &entry : uiLanguages) {
        const QString code = languagePart(entry);
        if (shipped.contains(code))
            return code;
        // The neutral locale says nothing about the reader.
        if (code != QLatin1String("c") && code != QLatin1String("posix") && !code.isEmpty())
            prefersOther = true;
    }
    return prefersOther ? kFallback : kSource;
}

bool install(const QString &language)
{
    State &s = state();
    for (const QPointer<QTranslator> &translator : std::as_const(s.translators)) {
        if (translator) {
            QCoreApplication::removeTranslator(translator);
            delete translator;
        }
    }
    s.translators.clear();
    s.language = language;

    bool complete = true;
    if (language != kSource && !addTranslator(QStringLiteral("ferolith_") + language, QStringLiteral(":/i18n"))) {
        qWarning("Localiser: the catalogue ferolith_%s is not part of the program", qPrintable(language));
        complete = false;
    }
    // Qt's texts are English in its source, so only other languages need its catalogue.
    if (!addTranslator(QStringLiteral("qtbase_") + language, QLibraryInfo::path(QLibraryInfo::TranslationsPath))
        && language != QLatin1String("en"))
        complete = false;
    return complete;
}

QString current()
{
    return state().language;
}

QString activate()
{
    const QString setting = Profile::readString(AppPaths::settingsFile(), kSettingsSection, kSettingsKey, QString());
    const QString language = choose(setting, QLocale::system().uiLanguages());
    install(language);
    return language;
}

} // namespace Localiser
