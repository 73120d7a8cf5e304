// Where the settings file lives: next to a program that runs from a folder
// of its own, in the user's configuration folder for an installed one.
#include <QtTest>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include "AppPaths.h"

class TestAppPaths : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanup();
    void installedProgramUsesTheConfigurationFolder();
    void programInItsOwnFolderKeepsSettingsBesideIt();
    void readOnlyProgramFolderUsesTheConfigurationFolder();
    void iniOptionWins();

private:
    QString configured() const
    {
        return QDir::toNativeSeparators(m_config.filePath(QStringLiteral("ferolith/ferolith.ini")));
    }

    QTemporaryDir m_config;
    QTemporaryDir m_program;
};

void TestAppPaths::initTestCase()
{
    QVERIFY(m_config.isValid());
    QVERIFY(m_program.isValid());
    QCoreApplication::setApplicationName(QStringLiteral("ferolith"));
    QCoreApplication::setOrganizationName(QString());
    qputenv("XDG_CONFIG_HOME", QFile::encodeName(m_config.path()));
}

void TestAppPaths::cleanup()
{
    AppPaths::setSettingsFileOverride(QString());
}

void TestAppPaths::installedProgramUsesTheConfigurationFolder()
{
    // Also when the folder could be written, as it can by root.
    for (const QString &folder : {QStringLiteral("/usr/bin"), QStringLiteral("/usr/local/bin"),
                                  QStringLiteral("/opt/ferolith/bin")}) {
        QCOMPARE(AppPaths::settingsFileFor(folder), configured());
    }
    // The folder is made, so that the first save succeeds.
    QVERIFY(QFileInfo(m_config.filePath(QStringLiteral("ferolith"))).isDir());
}

void TestAppPaths::programInItsOwnFolderKeepsSettingsBesideIt()
{
    QCOMPARE(AppPaths::settingsFileFor(m_program.path()),
             QDir::toNativeSeparators(m_program.filePath(QStringLiteral("ferolith.ini"))));
}

void TestAppPaths::readOnlyProgramFolderUsesTheConfigurationFolder()
{
    const QString folder = m_program.filePath(QStringLiteral("readonly"));
    QVERIFY(QDir().mkpath(folder));
    QVERIFY(QFile::setPermissions(folder, QFile::ReadOwner | QFile::ExeOwner));
    const bool stillWritable = QFileInfo(folder).isWritable();
    const QString file = AppPaths::settingsFileFor(folder);
    QFile::setPermissions(folder, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    if (stillWritable)
        QSKIP("root writes into read-only folders");
    QCOMPARE(file, configured());
}

void TestAppPaths::iniOptionWins()
{
    QStringList args{QStringLiteral("ferolith"), QStringLiteral("--ini"), QStringLiteral("other.ini"),
                     QStringLiteral("Kunden.dbm")};
    QVERIFY(AppPaths::takeIniOption(args));
    QCOMPARE(args, (QStringList{QStringLiteral("ferolith"), QStringLiteral("Kunden.dbm")}));
    QCOMPARE(AppPaths::settingsFile(), QDir::toNativeSeparators(QDir::current().absoluteFilePath(QStringLiteral("other.ini"))));
}

QTEST_GUILESS_MAIN(TestAppPaths)
#include "test_apppaths.moc"
