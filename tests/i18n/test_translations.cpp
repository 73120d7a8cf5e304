// The translations shipped with the program: every text in the code is
// translated, no translation is left over from a text that is gone, and the
// catalogue built into the program gives what the .ts file says. And the
// localiser: which language it picks, and that Qt's own dialogs speak the
// language picked, switching both ways.
#include <QtTest>

#include <QAbstractButton>
#include <QFileInfo>
#include <QMessageBox>
#include <QProcess>
#include <QTemporaryDir>

#include "AppPaths.h"
#include "I18nSetup.h"
#include "IniFile.h"
#include "Localiser.h"
#include "helper_ts.h"

namespace {

QStringList fromArray(const char *const *items, int count)
{
    QStringList list;
    for (int i = 0; i < count; ++i)
        list.append(QString::fromUtf8(items[i]));
    return list;
}

QStringList tsFiles()
{
    return fromArray(kTsFiles, int(std::size(kTsFiles)));
}

// "…/ferolith_en.ts" -> "en"
QString languageOf(const QString &tsFile)
{
    return QFileInfo(tsFile).completeBaseName().section(QLatin1Char('_'), 1);
}

// Qt's dialogs take their texts from one catalogue; the message box's
// buttons stand for all of them.
QString yesButtonText()
{
    return QMessageBox(QMessageBox::Question, QString(), QString(), QMessageBox::Yes).button(QMessageBox::Yes)->text();
}

} // namespace

class TestTranslations : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanupTestCase();
    void everyTextTranslatedNoneObsolete_data();
    void everyTextTranslatedNoneObsolete();
    void builtInCatalogueMatchesTheFile_data();
    void builtInCatalogueMatchesTheFile();
    void choosesFromSettingThenLocale_data();
    void choosesFromSettingThenLocale();
    void settingsFileOverridesTheSystem();
};

void TestTranslations::cleanupTestCase()
{
    AppPaths::setSettingsFileOverride(QString());
    Localiser::install(QStringLiteral("de"));
}

void TestTranslations::everyTextTranslatedNoneObsolete_data()
{
    QTest::addColumn<QString>("tsFile");
    for (const QString &file : tsFiles())
        QTest::newRow(qPrintable(QFileInfo(file).fileName())) << file;
}

void TestTranslations::everyTextTranslatedNoneObsolete()
{
    QFETCH(QString, tsFile);
    // lupdate brings a copy up to date with the code: a text new in the code
    // comes in unfinished, a translation whose text is gone is marked vanished.
    QTemporaryDir dir;
    QVERIFY(dir.isValid());
    const QString copy = dir.filePath(QFileInfo(tsFile).fileName());
    QVERIFY(QFile::copy(tsFile, copy));
    QFile::setPermissions(copy, QFile::ReadOwner | QFile::WriteOwner);

    QProcess lupdate;
    lupdate.setProcessChannelMode(QProcess::MergedChannels);
    lupdate.start(QStringLiteral(FEROLITH_LUPDATE),
                  fromArray(kLupdateOptions, int(std::size(kLupdateOptions)))
                      + fromArray(kTrSources, int(std::size(kTrSources))) + QStringList{QStringLiteral("-ts"), copy});
    QVERIFY2(lupdate.waitForFinished(120000), "lupdate did not finish");
    const QByteArray output = lupdate.readAll();
    QVERIFY2(lupdate.exitStatus() == QProcess::NormalExit && lupdate.exitCode() == 0, output.constData());

    TsFile ts;
    QString error;
    QVERIFY2(readTsFile(copy, &ts, &error), qPrintable(error));
    QCOMPARE(ts.sourceLanguage, QStringLiteral("de"));

    QStringList untranslated;
    QStringList obsolete;
    QStringList empty;
    for (const TsMessage &m : std::as_const(ts.messages)) {
        if (m.type == QLatin1String("unfinished"))
            untranslated.append(m.describe());
        else if (m.type == QLatin1String("vanished") || m.type == QLatin1String("obsolete"))
            obsolete.append(m.describe());
        else if (m.numerus ? m.numerusForms.contains(QString()) || m.numerusForms.isEmpty() : m.translation.isEmpty())
            empty.append(m.describe());
    }
    QString report;
    const auto list = [&report](const QString &what, const QStringList &items) {
        if (!items.isEmpty())
            report += QStringLiteral("\n") + what + QStringLiteral(":\n  ") + items.join(QStringLiteral("\n  "));
    };
    list(QStringLiteral("untranslated"), untranslated);
    list(QStringLiteral("obsolete (the text is no longer in the code)"), obsolete);
    list(QStringLiteral("finished but empty"), empty);
    if (!report.isEmpty()) {
        QFAIL(qPrintable(QFileInfo(tsFile).fileName() + report
                         + QStringLiteral("\nBring the file up to date with "
                                          "\"cmake --build <build> --target update_translations\" "
                                          "and translate what is new, in linguist or in the file.")));
    }
}

void TestTranslations::builtInCatalogueMatchesTheFile_data()
{
    everyTextTranslatedNoneObsolete_data();
}

void TestTranslations::builtInCatalogueMatchesTheFile()
{
    QFETCH(QString, tsFile);
    TsFile ts;
    QString error;
    QVERIFY2(readTsFile(tsFile, &ts, &error), qPrintable(error));
    if (ts.messages.isEmpty())
        QSKIP("no texts to translate yet");

    const QString language = languageOf(tsFile);
    QVERIFY2(ts.language.startsWith(language), qPrintable(ts.language));
    QVERIFY2(Localiser::install(language), qPrintable(language));
    for (const TsMessage &m : std::as_const(ts.messages)) {
        if (m.type == QLatin1String("vanished") || m.type == QLatin1String("obsolete"))
            continue;
        const QByteArray context = m.context.toUtf8();
        const QByteArray source = m.source.toUtf8();
        const QByteArray comment = m.comment.toUtf8();
        const char *disambiguation = m.comment.isEmpty() ? nullptr : comment.constData();
        if (m.numerus) {
            QString singular = m.numerusForms.value(0);
            singular.replace(QLatin1String("%n"), QLatin1String("1"));
            QCOMPARE(QCoreApplication::translate(context.constData(), source.constData(), disambiguation, 1), singular);
        } else {
            QCOMPARE(QCoreApplication::translate(context.constData(), source.constData(), disambiguation),
                     m.translation);
        }
    }

    // German is the source: no catalogue of ours stands between code and screen.
    QVERIFY(Localiser::install(QStringLiteral("de")));
    for (const TsMessage &m : std::as_const(ts.messages)) {
        if (m.numerus)
            continue;
        const QByteArray context = m.context.toUtf8();
        const QByteArray source = m.source.toUtf8();
        const QByteArray comment = m.comment.toUtf8();
        QCOMPARE(QCoreApplication::translate(context.constData(), source.constData(),
                                             m.comment.isEmpty() ? nullptr : comment.constData()),
                 m.source);
    }
}

void TestTranslations::choosesFromSettingThenLocale_data()
{
    QTest::addColumn<QString>("setting");
    QTest::addColumn<QStringList>("uiLanguages");
    QTest::addColumn<QString>("expected");

    const QStringList german{QStringLiteral("de-DE"), QStringLiteral("de-Latn-DE"), QStringLiteral("de")};
    const QStringList french{QStringLiteral("fr-FR"), QStringLiteral("fr")};
    QTest::newRow("German system") << QString() << german << "de";
    QTest::newRow("Austrian system") << QString() << QStringList{QStringLiteral("de-AT")} << "de";
    QTest::newRow("British system") << QString() << QStringList{QStringLiteral("en-GB")} << "en";
    QTest::newRow("underscore form") << QString() << QStringList{QStringLiteral("en_US")} << "en";
    QTest::newRow("other language reads English") << QString() << french << "en";
    QTest::newRow("second preference shipped")
        << QString() << QStringList{QStringLiteral("fr"), QStringLiteral("de-CH")} << "de";
    QTest::newRow("neutral locale keeps the source") << QString() << QStringList{QStringLiteral("C")} << "de";
    QTest::newRow("no preference") << QString() << QStringList() << "de";
    QTest::newRow("setting English on German system") << "en" << german << "en";
    QTest::newRow("setting German on French system") << "de" << french << "de";
    QTest::newRow("setting as typed by hand") << " EN " << german << "en";
    QTest::newRow("unknown setting follows the system") << "fr" << german << "de";
}

void TestTranslations::choosesFromSettingThenLocale()
{
    QFETCH(QString, setting);
    QFETCH(QStringList, uiLanguages);
    QFETCH(QString, expected);
    QCOMPARE(Localiser::choose(setting, uiLanguages), expected);
}

void TestTranslations::settingsFileOverridesTheSystem()
{
    QTemporaryDir dir;
    QVERIFY(dir.isValid());
    const QString ini = dir.filePath(QStringLiteral("ferolith.ini"));
    AppPaths::setSettingsFileOverride(ini);

    // The key sits among the other settings, spelled as a user may type it.
    QVERIFY(
        Profile::writeString(ini, QStringLiteral("Configuration"), QStringLiteral("GridStep"), QStringLiteral("8")));
    QVERIFY(
        Profile::writeString(ini, QStringLiteral("configuration"), QStringLiteral("SPRACHE"), QStringLiteral("en")));
    QCOMPARE(Localiser::activate(), QStringLiteral("en"));
    QCOMPARE(Localiser::current(), QStringLiteral("en"));
    QCOMPARE(yesButtonText(), QStringLiteral("&Yes"));

    QVERIFY(
        Profile::writeString(ini, QStringLiteral("Configuration"), QStringLiteral("Sprache"), QStringLiteral("de")));
    QCOMPARE(Localiser::activate(), QStringLiteral("de"));
    QCOMPARE(yesButtonText(), QStringLiteral("&Ja"));
    // Each switch replaces the catalogues installed before rather than stacking them.
    QVERIFY(
        Profile::writeString(ini, QStringLiteral("Configuration"), QStringLiteral("Sprache"), QStringLiteral("en")));
    QCOMPARE(Localiser::activate(), QStringLiteral("en"));
    QCOMPARE(yesButtonText(), QStringLiteral("&Yes"));
}

QTEST_MAIN(TestTranslations)
#include "test_translations.moc"
