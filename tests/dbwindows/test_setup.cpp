// The settings window: what it reads from the registry and the settings
// file, what it writes back, and how its controls react to the user.
#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QSettings>
#include <QSpinBox>
#include <QTemporaryDir>
#include <QTest>
#include <QToolButton>

#include "AppPaths.h"
#include "ConnectionSettings.h"
#include "FormDesigner.h"
#include "IniFile.h"
#include "PgTestServer.h"
#include "RegistryStore.h"
#include "SetupDialog.h"
#include "GuiSteps.h"
#include "TestSupport.h"
#include "helper_dbwindows.h"

using namespace Colors;
using namespace DbWindowsTest;

namespace {
const QString kSection = QStringLiteral("Configuration");
} // namespace

class TestSetup : public QObject
{
    Q_OBJECT

private:
    QTemporaryDir *m_dir = nullptr;
    QString m_iniPath;
    QString m_registryPath;

    void writeRegistry(const QVariantMap &values)
    {
        QSettings store(m_registryPath, QSettings::IniFormat);
        for (auto it = values.begin(); it != values.end(); ++it)
            store.setValue(it.key(), it.value());
    }
    void writeIni(const QString &text)
    {
        QVERIFY(writeFileBytes(m_iniPath, text.toLatin1()));
    }
    // The widgets the connection mode switches on and off.
    static QList<QWidget *> serverControls(const TfrmSetup &w)
    {
        QList<QWidget *> list;
        for (const char *name : {"LoginLabel", "Userlogin", "PwLabel", "Userpass", "ServerProtokol",
                                 "ServerNameLabel", "DBServerName", "DBAliasLabel", "DBAlias", "ServerScanBtn"})
            list << child<QWidget>(&w, name);
        return list;
    }

private Q_SLOTS:
    void init()
    {
        m_dir = new QTemporaryDir;
        QVERIFY(m_dir->isValid());
        m_iniPath = m_dir->filePath(QStringLiteral("ferolith.ini"));
        m_registryPath = m_dir->filePath(QStringLiteral("registry.ini"));
        AppPaths::setSettingsFileOverride(m_iniPath);
        RegistryStore::setFileForTests(m_registryPath);
    }
    void cleanup()
    {
        AppPaths::setSettingsFileOverride(QString());
        RegistryStore::setFileForTests(QString());
        delete m_dir;
        m_dir = nullptr;
    }

    void startsWithDefaultsWithoutAnySettings()
    {
        ScriptedDialogs dialogs;
        // The values shown are those the reference file of a first OK holds.
        TfrmSetup w;
        QVERIFY(dialogs.messages.isEmpty());
        QVERIFY(!QFile::exists(m_iniPath)); // reading creates nothing
    }

    void showsRegistryValuesOfAnInstallation()
    {
        writeRegistry({{"Installdir", "/opt/quorbex"},
                       {"DBPfad", "/srv/db/"},
                       {"NXProtocol", 2},
                       {"NXConnection", true},
                       {"NXServer", "nexus01"},
                       {"NXAlias", "Kunden"},
                       {"LoginName", "anna"},
                       {"LoginPass", "geheim"}});
        ScriptedDialogs dialogs;
        TfrmSetup w;
        // Mode, server and alias are compared with the batch tool's reading
        // below; here the login, which the settings file overrides there.
        QCOMPARE(child<QLineEdit>(&w, "Userlogin")->text(), QStringLiteral("anna"));
        QCOMPARE(child<QLineEdit>(&w, "Userpass")->text(), QStringLiteral("geheim"));
        for (QWidget *c : serverControls(w))
            QVERIFY2(c->isEnabled(), qPrintable(c->objectName()));
        QVERIFY(child<QPushButton>(&w, "ScanAlias")->isEnabled());
        QVERIFY(dialogs.messages.isEmpty());

        // Without an installation folder the rest of the registry is ignored.
        QSettings(m_registryPath, QSettings::IniFormat).remove(QStringLiteral("Installdir"));
        TfrmSetup plain;
        QVERIFY(child<QRadioButton>(&plain, "DBLocal")->isChecked());
        QCOMPARE(plain.ServerProtokolIndex(), 0);
        QVERIFY(child<QComboBox>(&plain, "DBServerName")->currentText().isEmpty());
        QVERIFY(child<QLineEdit>(&plain, "Userlogin")->text().isEmpty());
        QVERIFY(dialogs.messages.isEmpty());
    }

    void registryReadErrorStopsLoading_data()
    {
        QTest::addColumn<QVariantMap>("registry");
        QTest::addColumn<QString>("missingValue");
        QTest::newRow("no NXProtocol") << QVariantMap{{"Installdir", "/opt/q"}, {"NXConnection", true}}
                                       << QStringLiteral("NXProtocol");
        QTest::newRow("no NXConnection") << QVariantMap{{"Installdir", "/opt/q"}, {"NXProtocol", 1}}
                                         << QStringLiteral("NXConnection");
    }
    void registryReadErrorStopsLoading()
    {
        QFETCH(QVariantMap, registry);
        QFETCH(QString, missingValue);
        writeRegistry(registry);
        writeIni(QStringLiteral("[Configuration]\r\nGridStep=20\r\nLoginName=bert\r\n"));
        ScriptedDialogs dialogs;
        TfrmSetup w;
        QCOMPARE(dialogs.messages.size(), 1);
        QCOMPARE(dialogs.messages.first().type, mtError);
        QVERIFY2(dialogs.messages.first().text.contains(QStringLiteral("Registrierung")),
                 qPrintable(dialogs.messages.first().text));
        QVERIFY(dialogs.messages.first().text.contains(missingValue));
        QCOMPARE(w.InstallDir(), QStringLiteral("/opt/q")); // read before the failure
        QCOMPARE(child<QSpinBox>(&w, "udnGridStep")->value(), 8);
        QVERIFY(child<QLineEdit>(&w, "Userlogin")->text().isEmpty());
    }

    void settingsFileWinsOverRegistry()
    {
        writeRegistry({{"Installdir", "/opt/q"}, {"NXProtocol", 2}, {"NXConnection", true}, {"NXServer", "nexus01"}});
        writeIni(QStringLiteral("[Configuration]\r\nDBConnect=1\r\nServer_Protocol=1\r\n"));
        ScriptedDialogs dialogs;
        TfrmSetup w;
        QVERIFY(child<QRadioButton>(&w, "DBLocal")->isChecked());
        QVERIFY(!child<QRadioButton>(&w, "DBServer")->isChecked());
        QCOMPARE(w.ServerProtokolIndex(), 1);
        QCOMPARE(child<QComboBox>(&w, "DBServerName")->currentText(), QStringLiteral("nexus01"));
        QVERIFY(!child<QComboBox>(&w, "DBServerName")->isEnabled());
        QVERIFY(!child<QPushButton>(&w, "ScanAlias")->isEnabled());
    }

    void windowAndBatchToolReadTheSameConnection()
    {
        // The window hands out what the windowless reading gives.
        writeRegistry({{"Installdir", "/opt/q"}, {"NXProtocol", 2}, {"NXConnection", true}, {"NXServer", "nexus01"},
                       {"NXAlias", "Firma"}, {"LoginName", "reg"}});
        writeIni(QStringLiteral("[Configuration]\r\nDatenbankPfad=/srv/db\r\nLoginName=anna\r\n"
                                "ScanHosts=db1, /run/pg\r\n"));
        ScriptedDialogs dialogs;
        TfrmSetup w;
        const TConnectionSettings shown = w.ConnectionSettings();
        const TConnectionSettings read = TConnectionSettings::load(m_iniPath);
        QCOMPARE(shown.DBLocal, false);
        QCOMPARE(shown.DBPfad, QStringLiteral("/srv/db") + QDir::separator());
        QCOMPARE(shown.ScanHosts, (QStringList{"db1", "/run/pg"}));
        for (const TConnectionSettings *s : {&shown, &read})
            QCOMPARE(QStringList({QString::number(s->DBLocal), s->DBPfad, QString::number(s->ServerProtokol),
                                  s->DBServerName, s->DBAlias, s->Userlogin, s->Userpass, s->ScanHosts.join(','),
                                  s->InstallDir, QString::number(s->ScanTimeOut)}),
                     QStringList({"0", shown.DBPfad, "2", "nexus01", "Firma", "anna", "", "db1,/run/pg", "/opt/q",
                                  "1500"}));
    }

    void loginNameWinsAndOkWritesItToBothKeys()
    {
        writeIni(QStringLiteral("[Configuration]\r\nUserlogin=alt\r\nUserpasswort=altpw\r\n"
                                "LoginName=neu\r\nLoginPass=neupw\r\n"));
        ScriptedDialogs dialogs;
        TfrmSetup w;
        QCOMPARE(child<QLineEdit>(&w, "Userlogin")->text(), QStringLiteral("neu"));
        QCOMPARE(child<QLineEdit>(&w, "Userpass")->text(), QStringLiteral("neupw"));
        showAndWait(&w);
        QTest::mouseClick(child<QPushButton>(&w, "btnOk"), Qt::LeftButton);
        QCOMPARE(w.result(), int(QDialog::Accepted));
        const TMemIniFile ini(m_iniPath);
        QCOMPARE(ini.readString(kSection, "Userlogin", QString()), QStringLiteral("neu"));
        QCOMPARE(ini.readString(kSection, "LoginName", QString()), QStringLiteral("neu"));
        QCOMPARE(ini.readString(kSection, "Userpasswort", QString()), QStringLiteral("neupw"));
        QCOMPARE(ini.readString(kSection, "LoginPass", QString()), QStringLiteral("neupw"));
    }

    void badSettingsKeepDefaults()
    {
        writeIni(QStringLiteral("[Configuration]\r\nGridColor=Fliederlila\r\nDesignerColor=$00FF0000\r\n"
                                "GrapSize=500\r\nGridStep=abc\r\nDisplayGrip=0\r\nNFillColor=clRed\r\n"));
        ScriptedDialogs dialogs;
        TfrmSetup w;
        QCOMPARE(w.GridColor(), clBlack);
        QCOMPARE(w.DesignerColor(), clBlue);
        QCOMPARE(w.NFillColor(), clRed);
        QCOMPARE(child<QSpinBox>(&w, "udnGrabSize")->value(), 128);
        QCOMPARE(child<QSpinBox>(&w, "udnGridStep")->value(), 8);
        QVERIFY(!child<QCheckBox>(&w, "chbDisplayGrid")->isChecked());
        QVERIFY(dialogs.messages.isEmpty());
    }

    void cancelWritesNothingButTheDesignerFollows()
    {
        writeIni(QStringLiteral("; eigene Notiz\r\n[Configuration]\r\nGridStep=8\r\n"));
        const QByteArray before = readFileBytes(m_iniPath);
        QWidget form;
        TFormDesigner main(&form);
        ScriptedDialogs dialogs;
        TfrmSetup w;
        w.mainDesigner = [&main] { return &main; };
        showAndWait(&w);
        auto *step = child<QSpinBox>(&w, "udnGridStep");
        step->setFocus();
        QTest::keyClick(step, Qt::Key_A, Qt::ControlModifier);
        QTest::keyClicks(step, QStringLiteral("16"));
        GuiSteps::clickCheck(child<QCheckBox>(&w, "chbSnapToGrid"));
        QTest::mouseClick(child<QPushButton>(&w, "btnCancel"), Qt::LeftButton);
        QCOMPARE(w.result(), int(QDialog::Rejected));
        QVERIFY(!w.isVisible());
        QCOMPARE(readFileBytes(m_iniPath), before);
        QCOMPARE(main.GridStep(), 16);
        QVERIFY(!main.SnapToGrid());
        // The change stays in the window and reaches every mask activated later.
        QWidget maskForm;
        TFormDesigner mask(&maskForm);
        w.applyTo(&mask);
        QCOMPARE(mask.GridStep(), 16);
        QVERIFY(!mask.SnapToGrid());
    }

    void applyToCopiesEveryDesignerSetting()
    {
        writeIni(QStringLiteral("[Configuration]\r\nShowHint=0\r\nSnapToGrid=0\r\nDisplayGrip=0\r\n"
                                "GrapSize=7\r\nGridStep=12\r\nGridColor=clRed\r\nDesignerColor=clWhite\r\n"
                                "MFillColor=clLime\r\nMBorderColor=clNavy\r\nLFillColor=clTeal\r\n"
                                "LBorderColor=clMaroon\r\nNFillColor=clYellow\r\nNBorderColor=clAqua\r\n"));
        ScriptedDialogs dialogs;
        TfrmSetup w;
        QWidget form;
        TFormDesigner d(&form);
        w.applyTo(&d);
        QVERIFY(!d.ShowMoveSizeHint());
        QVERIFY(!d.SnapToGrid());
        QVERIFY(!d.DisplayGrid());
        QCOMPARE(d.GrabSize(), 7);
        QCOMPARE(d.GridStep(), 12);
        QCOMPARE(d.GridColor(), clRed);
        QCOMPARE(d.DesignerColor(), clWhite);
        QCOMPARE(d.MultiGrabFill(), clLime);
        QCOMPARE(d.MultiGrabBorder(), clNavy);
        QCOMPARE(d.LockedGrabFill(), clTeal);
        QCOMPARE(d.LockedGrabBorder(), clMaroon);
        QCOMPARE(d.NormalGrabFill(), clYellow);
        QCOMPARE(d.NormalGrabBorder(), clAqua);
    }

    void okWritesEveryKeyInOrderToANewPrivateFile()
    {
        QWidget form;
        TFormDesigner main(&form);
        ScriptedDialogs dialogs;
        TfrmSetup w;
        w.mainDesigner = [&main] { return &main; };
        showAndWait(&w);
        GuiSteps::clickCheck(child<QCheckBox>(&w, "chbDisplayGrid"));
        QTest::mouseClick(child<QRadioButton>(&w, "DBServer"), Qt::LeftButton);
        QTest::mouseClick(child<QRadioButton>(&w, "ServerProtokol_2"), Qt::LeftButton);
        auto *grab = child<QSpinBox>(&w, "udnGrabSize");
        grab->setFocus();
        QTest::keyClick(grab, Qt::Key_A, Qt::ControlModifier);
        QTest::keyClicks(grab, QStringLiteral("9"));
        QTest::mouseClick(child<QPushButton>(&w, "btnOk"), Qt::LeftButton);
        QCOMPARE(w.result(), int(QDialog::Accepted));
        QVERIFY(dialogs.messages.isEmpty());

        // Every key in the order and spelling the program has always written,
        // colours by name; the database folder is this machine's.
        QByteArray layout = readFileBytes(m_iniPath);
        layout.replace((AppPaths::baseFolder() + "DB" + QDir::separator()).toLocal8Bit(), "<DB>");
        QCOMPARE(layout, readFileBytes(QStringLiteral(FEROLITH_SOURCE_DIR "/tests/dbwindows/data/setup.ini")));
        QCOMPARE(main.GrabSize(), 9);
        QVERIFY(!main.DisplayGrid());
#ifdef Q_OS_UNIX
        QCOMPARE(QFile::permissions(m_iniPath) & (QFile::ReadGroup | QFile::WriteGroup | QFile::ReadOther
                                                  | QFile::WriteOther | QFile::ExeOwner),
                 QFile::Permissions());
        QVERIFY(QFile::permissions(m_iniPath).testFlag(QFile::ReadOwner));
#endif

        // What was written reads back as it was shown: the user's changes,
        // and OK once more writes the same file again.
        const QByteArray written = readFileBytes(m_iniPath);
        TfrmSetup again;
        QVERIFY(child<QRadioButton>(&again, "DBServer")->isChecked());
        QCOMPARE(again.ServerProtokolIndex(), 2);
        QCOMPARE(child<QSpinBox>(&again, "udnGrabSize")->value(), 9);
        QVERIFY(!child<QCheckBox>(&again, "chbDisplayGrid")->isChecked());
        showAndWait(&again);
        QTest::mouseClick(child<QPushButton>(&again, "btnOk"), Qt::LeftButton);
        QCOMPARE(readFileBytes(m_iniPath), written);
    }

    void okKeepsTheRestOfTheFile()
    {
        writeIni(QStringLiteral("[Fenster]\r\nLinks=10\r\n[Configuration]\r\nGridStep=8\r\nEigen=ja\r\n"));
        ScriptedDialogs dialogs;
        TfrmSetup w;
        showAndWait(&w);
        QTest::mouseClick(child<QPushButton>(&w, "btnOk"), Qt::LeftButton);
        const TMemIniFile ini(m_iniPath);
        QCOMPARE(ini.readString(QStringLiteral("Fenster"), "Links", QString()), QStringLiteral("10"));
        QCOMPARE(ini.readString(kSection, "Eigen", QString()), QStringLiteral("ja"));
        QCOMPARE(ini.readString(kSection, "NBorderColor", QString()), QStringLiteral("clBlack"));
    }

    void writeErrorKeepsTheWindowOpen()
    {
        m_iniPath = m_dir->filePath(QStringLiteral("fehlt/ferolith.ini"));
        AppPaths::setSettingsFileOverride(m_iniPath);
        ScriptedDialogs dialogs;
        TfrmSetup w;
        showAndWait(&w);
        QTest::mouseClick(child<QPushButton>(&w, "btnOk"), Qt::LeftButton);
        QCOMPARE(dialogs.messages.size(), 1);
        QCOMPARE(dialogs.messages.first().type, mtError);
        QVERIFY(!dialogs.messages.first().text.isEmpty());
        QVERIFY(w.isVisible());
        QVERIFY(!QFile::exists(m_iniPath));
    }

    void connectionModeSwitchesServerControls()
    {
        ScriptedDialogs dialogs;
        TfrmSetup w;
        showAndWait(&w);
        auto *scanAlias = child<QPushButton>(&w, "ScanAlias");
        QTest::mouseClick(child<QRadioButton>(&w, "DBServer"), Qt::LeftButton);
        for (QWidget *c : serverControls(w))
            QVERIFY2(c->isEnabled(), qPrintable(c->objectName()));
        QVERIFY(!scanAlias->isEnabled()); // no server name yet

        auto *serverName = child<QComboBox>(&w, "DBServerName");
        QTest::keyClicks(serverName, QStringLiteral("nx"));
        QVERIFY(scanAlias->isEnabled());
        QTest::keyClick(serverName, Qt::Key_Backspace);
        QTest::keyClick(serverName, Qt::Key_Backspace);
        QVERIFY(!scanAlias->isEnabled());
        QTest::keyClicks(serverName, QStringLiteral("nexus"));

        QTest::mouseClick(child<QRadioButton>(&w, "DBLocal"), Qt::LeftButton);
        for (QWidget *c : serverControls(w))
            QVERIFY2(!c->isEnabled(), qPrintable(c->objectName()));
        QVERIFY(!scanAlias->isEnabled());
        QVERIFY(child<QLineEdit>(&w, "DBPfad")->isEnabled());
        QVERIFY(child<QSpinBox>(&w, "ScanTimeOut")->isEnabled());
        QVERIFY(child<QLabel>(&w, "lblTimeOut")->isEnabled());

        QTest::mouseClick(child<QRadioButton>(&w, "DBServer"), Qt::LeftButton);
        QVERIFY(scanAlias->isEnabled()); // the name typed before is still there
    }

    // The scans find the test server and its databases, and say so when a
    // server gives no answer.
    void scanButtonsFillTheLists()
    {
        PgTestServer server;
        QString error;
        QVERIFY2(server.start(&error), qPrintable(error));
        const QString address = QStringLiteral("127.0.0.1:%1").arg(server.port());
        writeIni(QStringLiteral("[Configuration]\r\nDBConnect=0\r\nScanHosts=%1\r\n").arg(address));
        ScriptedDialogs dialogs;
        TfrmSetup w;
        showAndWait(&w);
        auto *names = child<QComboBox>(&w, "DBServerName");
        auto *aliases = child<QComboBox>(&w, "DBAlias");
        QTest::mouseClick(child<QPushButton>(&w, "ServerScanBtn"), Qt::LeftButton);
        QVERIFY2(names->findText(address) >= 0, qPrintable(names->currentText()));
        names->setCurrentIndex(names->findText(address));
        QTest::mouseClick(child<QPushButton>(&w, "ScanAlias"), Qt::LeftButton);
        QVERIFY(aliases->findText(QStringLiteral("postgres")) >= 0);
        QVERIFY(dialogs.messages.isEmpty());

        server.stop();
        QTest::mouseClick(child<QPushButton>(&w, "ScanAlias"), Qt::LeftButton);
        QCOMPARE(dialogs.messages.size(), 1);
        QVERIFY(dialogs.messages.first().text.endsWith(address));
    }

    void colourButtonsStartFromTheActiveMask()
    {
        QWidget form;
        TFormDesigner active(&form);
        active.setMultiGrabFill(clRed);
        active.setDesignerColor(clWindow);
        TFormDesigner *current = nullptr;
        ScriptedDialogs dialogs;
        TfrmSetup w;
        w.activeDesigner = [&current] { return current; };
        showAndWait(&w);

        // Without an open mask there is nothing to start from.
        dialogs.messageAnswers << mrOk;
        QTest::mouseClick(child<QToolButton>(&w, "btnGridColor"), Qt::LeftButton);
        QCOMPARE(dialogs.messages.size(), 1);
        QCOMPARE(dialogs.messages.first().text, QStringLiteral("Es ist keine Maske geöffnet."));
        QCOMPARE(dialogs.messages.first().type, mtInformation);
        QVERIFY(dialogs.colorInitials.isEmpty());
        QCOMPARE(w.GridColor(), clBlack);

        current = &active;
        dialogs.colorAnswers << std::optional<TColor>(clBlue) << std::nullopt;
        QTest::mouseClick(child<QToolButton>(&w, "btnMFill"), Qt::LeftButton);
        QTest::mouseClick(child<QToolButton>(&w, "btnDesignerColor"), Qt::LeftButton);
        QCOMPARE(dialogs.colorInitials, QList<TColor>({clRed, clWindow}));
        QCOMPARE(w.MFillColor(), clBlue);
        QCOMPARE(child<QFrame>(&w, "pnlMFill")->palette().color(QPalette::Window), QColor(Qt::blue));
        QCOMPARE(w.DesignerColor(), clBtnFace); // the dialog was cancelled
        QCOMPARE(active.MultiGrabFill(), clRed); // chosen, not applied yet
        QCOMPARE(dialogs.unexpected, 0);
    }

    void browsingSetsTheDatabasePath()
    {
        ScriptedDialogs dialogs;
        TfrmSetup w;
        showAndWait(&w);
        dialogs.directoryAnswers << m_dir->path();
        QTest::mouseClick(child<QToolButton>(&w, "btnDBPfad"), Qt::LeftButton);
        QCOMPARE(child<QLineEdit>(&w, "DBPfad")->text(), AppPaths::withTrailingSeparator(m_dir->path()));
    }

    void focusStartsOnTheDesignerColourButton()
    {
        ScriptedDialogs dialogs;
        TfrmSetup w;
        showAndWait(&w);
        w.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&w));
        QCOMPARE(QApplication::focusWidget(), child<QWidget>(&w, "btnDesignerColor"));
    }
};

QTEST_MAIN(TestSetup)
#include "test_setup.moc"
