// The UI localiser: which language it picks, and that Qt's own dialogs speak
// the language picked, switching both ways.
#include <QtTest>

#include <QAbstractButton>
#include <QMessageBox>
#include <QTemporaryDir>

#include "AppPaths.h"
#include "IniFile.h"
#include "Localiser.h"

namespace {

// Qt's dialogs take their texts from one catalogue; the message box's
// buttons stand for all of them.
QString yesButtonText()
{
    return QMessageBox(QMessageBox::Question, QString(), QString(), QMessageBox::Yes).button(QMessageBox::Yes)->text();
}

} // namespace

class TestLocaliser : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanupTestCase();
    void choosesFromSettingThenLocale_data();
    void choosesFromSettingThenLocale();
    void settingsFileOverridesTheSystem();
};

void TestLocaliser::cleanupTestCase()
{
    AppPaths::setSettingsFileOverride(QString());
    Localiser::install(QStringLiteral("de"));
}

void TestLocaliser::choosesFromSettingThenLocale_data()
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

void TestLocaliser::choosesFromSettingThenLocale()
{
    QFETCH(QString, setting);
    QFETCH(QStringList, uiLanguages);
    QFETCH(QString, expected);
    QCOMPARE(Localiser::choose(setting, uiLanguages), expected);
}

void TestLocaliser::settingsFileOverridesTheSystem()
{
    QTemporaryDir dir;
    QVERIFY(dir.isValid());
    const QString ini = dir.filePath(QStringLiteral("ferolith.ini"));
    AppPaths::setSettingsFileOverride(ini);

    // The key sits among the other settings, spelled as a user may type it.
    QVERIFY(Profile::writeString(ini, QStringLiteral("Configuration"), QStringLiteral("GridStep"), QStringLiteral("8")));
    QVERIFY(Profile::writeString(ini, QStringLiteral("configuration"), QStringLiteral("SPRACHE"), QStringLiteral("en")));
    QCOMPARE(Localiser::activate(), QStringLiteral("en"));
    QCOMPARE(Localiser::current(), QStringLiteral("en"));
    QCOMPARE(yesButtonText(), QStringLiteral("&Yes"));

    QVERIFY(Profile::writeString(ini, QStringLiteral("Configuration"), QStringLiteral("Sprache"), QStringLiteral("de")));
    QCOMPARE(Localiser::activate(), QStringLiteral("de"));
    QCOMPARE(yesButtonText(), QStringLiteral("&Ja"));
    // Each switch replaces the catalogues installed before rather than stacking them.
    QVERIFY(
        Profile::writeString(ini, QStringLiteral("Configuration"), QStringLiteral("Sprache"), QStringLiteral("en")));
    QCOMPARE(Localiser::activate(), QStringLiteral("en"));
    QCOMPARE(yesButtonText(), QStringLiteral("&Yes"));
}

QTEST_MAIN(TestLocaliser)
#include "test_localiser.moc"
