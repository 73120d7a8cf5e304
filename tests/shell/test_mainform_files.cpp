// The File menu of the main window: open and save dialogs, the mask header
// written on save, its backup, and the folders remembered between runs.
#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QSettings>
#include <QTemporaryDir>
#include <QtTest>
#include <memory>

#include "AppPaths.h"
#include "Containers.h"
#include "FormDesigner.h"
#include "IniFile.h"
#include "IniFileAccess.h"
#include <cerrno>
#include "RegistryStore.h"
#include "TestSupport.h"
#include "helper_shell.h"

using namespace ShellTest;

class TestMainFormFiles : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();

    void dialogFoldersWithoutSettings();
    void openedAndSavedFilesSurviveARestart();
    void openDialogOpensEverySelectedFile();
    void newMaskIsSavedInTheCurrentFolder();
    void untitledOrPathlessMaskAsksForAName();
    void saveFailureIsReported();

private:
    QString path(const QString &name) const { return QDir::toNativeSeparators(m_work->filePath(name)); }
    QString iniFile() const { return m_dir.filePath(QStringLiteral("ferolith.ini")); }
    TMaske *activeMask(TMainForm *form) const { return qobject_cast<TMaske *>(form->mdiArea()->activeSubWindow()); }

    QTemporaryDir m_dir;
    std::unique_ptr<QTemporaryDir> m_work; // a fresh folder for each test
    QString m_startFolder;
};

void TestMainFormFiles::initTestCase()
{
    QVERIFY(m_dir.isValid());
    AppPaths::setSettingsFileOverride(iniFile());
    m_startFolder = QDir::currentPath();
}

void TestMainFormFiles::init()
{
    QFile::remove(iniFile());
    m_work = std::make_unique<QTemporaryDir>();
    QVERIFY(m_work->isValid());
    QDir::setCurrent(m_work->path());
}

void TestMainFormFiles::cleanup()
{
    flushDeletes();
    QDir::setCurrent(m_startFolder);
}

void TestMainFormFiles::dialogFoldersWithoutSettings()
{
    ScriptedDialogs dialogs;
    dialogs.fileAnswers << QStringList();
    auto form = showMainForm();
    clickTool(form.get(), "FileOpenItem");

    QCOMPARE(dialogs.fileDialogs.size(), 1);
    const TFileDialog &shown = dialogs.fileDialogs.at(0);
    QCOMPARE(shown.kind, TFileDialog::Open);
    QVERIFY(shown.fileName.isEmpty());
    QCOMPARE(shown.initialDir, AppPaths::baseFolder() + QStringLiteral("Masken") + QDir::separator());
    QVERIFY(shown.allowMultiSelect);
    QVERIFY(shown.fileMustExist);
    QCOMPARE(form->SaveDialog1.initialDir, AppPaths::baseFolder());

    // An installation keeps its masks in its own folder.
    {
        QSettings registry(m_dir.filePath(QStringLiteral("registry.ini")), QSettings::IniFormat);
        registry.setValue(QStringLiteral("Installdir"), m_work->path());
        registry.setValue(QStringLiteral("NXProtocol"), 0);
        registry.setValue(QStringLiteral("NXConnection"), false);
    }
    RegistryStore::setFileForTests(m_dir.filePath(QStringLiteral("registry.ini")));
    auto installed = showMainForm();
    RegistryStore::setFileForTests(QString());
    QCOMPARE(installed->OpenDialog.initialDir, AppPaths::withTrailingSeparator(m_work->path()) + QStringLiteral("Masken") + QDir::separator());
}

void TestMainFormFiles::openedAndSavedFilesSurviveARestart()
{
    QVERIFY(QDir(m_work->path()).mkpath(QStringLiteral("neu")));
    const QString opened = path(QStringLiteral("Kunden.dbm"));
    const QString saved = path(QStringLiteral("neu/Lager.dbm"));
    QVERIFY(writeFileBytes(opened, "[Datenbank]\r\nTitel=Kundenstamm\r\n"));
    {
        ScriptedDialogs dialogs;
        dialogs.fileAnswers << QStringList{opened} << QStringList{saved};
        auto form = showMainForm();
        clickTool(form.get(), "FileOpenItem");
        clickTool(form.get(), "FileSaveAsItem");
        QCOMPARE(dialogs.fileDialogs.size(), 2);
        QCOMPARE(dialogs.fileDialogs.at(1).kind, TFileDialog::Save);
        // The dialog proposes the caption of the mask, which shows its title.
        QCOMPARE(withoutSize(dialogs.fileDialogs.at(1).fileName), QStringLiteral("Kundenstamm"));
        QCOMPARE(form->SaveDialog1.initialDir, path(QStringLiteral("neu")) + QDir::separator());
        QVERIFY(form->close());
        QCOMPARE(dialogs.unexpected, 0);
    }

    TMemIniFile settings;
    QVERIFY(settings.load(iniFile()));
    QCOMPARE(settings.readSection(QStringLiteral("PRG")),
             (QStringList{QStringLiteral("LastSave"), QStringLiteral("LastOpen")}));
    QCOMPARE(settings.readString(QStringLiteral("PRG"), QStringLiteral("LastOpen"), QString()), opened);
    QCOMPARE(settings.readString(QStringLiteral("PRG"), QStringLiteral("LastSave"), QString()), saved);

    ScriptedDialogs dialogs;
    dialogs.fileAnswers << QStringList();
    auto form = showMainForm();
    QCOMPARE(form->OpenDialog.fileName, opened);
    QCOMPARE(form->OpenDialog.initialDir, m_work->path() + QDir::separator());
    // The save dialog starts where the last save went: the stored name is the
    // last saved file itself.
    QCOMPARE(form->SaveDialog1.initialDir, saved);
    clickTool(form.get(), "FileOpenItem");
    QCOMPARE(dialogs.fileDialogs.size(), 1);
    QCOMPARE(withoutSize(dialogs.fileDialogs.at(0).fileName), opened);
    QCOMPARE(dialogs.fileDialogs.at(0).initialDir, m_work->path() + QDir::separator());
}

void TestMainFormFiles::openDialogOpensEverySelectedFile()
{
    ScriptedDialogs dialogs;
    const QStringList files{path(QStringLiteral("c.dbm")), path(QStringLiteral("a.dbm")),
                            path(QStringLiteral("b.dbm"))};
    // The second is designed for a screen the resolution list offers, the
    // third for one it does not.
    const QByteArray screens[] = {"", "[DatenBank]\r\nHeight=600\r\nWidth=800\r\n",
                                  "[DatenBank]\r\nHeight=700\r\nWidth=1000\r\n"};
    for (int i = 0; i < 3; ++i)
        QVERIFY(writeFileBytes(files.at(i), "[Datenbank]\r\nTitel=" + QFileInfo(files.at(i)).fileName().toLatin1()
                                                 + "\r\n" + screens[i] + "[Panel_1]\r\nName=P\r\n"));
    dialogs.fileAnswers << files << QStringList();
    auto form = showMainForm();
    clickTool(form.get(), "FileOpenItem");

    const QList<QMdiSubWindow *> windows = subWindows(form.get());
    QCOMPARE(windows.size(), 3);
    for (int i = 0; i < 3; ++i) {
        auto *mask = qobject_cast<TMaske *>(windows.at(i));
        QCOMPARE(mask->Path(), files.at(i));
        // Loaded, unchanged, designable, its controls on the surface.
        QVERIFY(!mask->Modified());
        QVERIFY(mask->FormDesigner2()->Active());
        QCOMPARE(mask->document()->findChild<TPanel *>()->parentWidget(), mask->document());
        // Whole in view, whatever size its resolution asks for.
        QVERIFY(form->mdiArea()->viewport()->rect().contains(mask->geometry()));
    }
    QCOMPARE(windows.at(1)->size(), QSize(815, 473));
    // The last one loaded is active: the list shows its resolution, which it does not offer.
    QCOMPARE(form->resolutionList()->currentText(), QStringLiteral("1000x700"));
    QCOMPARE(tabTexts(form->tabSet()),
             (QStringList{QStringLiteral("c.dbm"), QStringLiteral("a.dbm"), QStringLiteral("b.dbm")}));
    QCOMPARE(form->mdiArea()->activeSubWindow(), windows.at(2));

    // Cancel leaves windows and the remembered file alone.
    clickTool(form.get(), "FileOpenItem");
    QCOMPARE(dialogs.fileDialogs.size(), 2);
    QCOMPARE(subWindows(form.get()).size(), 3);
    QCOMPARE(form->OpenDialog.fileName, files.at(0));
    QCOMPARE(dialogs.unexpected, 0);
}

void TestMainFormFiles::newMaskIsSavedInTheCurrentFolder()
{
    ScriptedDialogs dialogs;
    auto form = showMainForm();
    clickTool(form.get(), "FileNewItem");
    TMaske *mask = activeMask(form.get());
    QVERIFY(mask);
    mask->document()->setTitel(QStringLiteral("Kundenstamm"));
    mask->setModified(true);

    clickTool(form.get(), "FileSaveItem");
    QVERIFY(dialogs.fileDialogs.isEmpty());
    QVERIFY(dialogs.messages.isEmpty());
    QVERIFY(!mask->Modified());
    QCOMPARE(withoutSize(mask->windowTitle()), QStringLiteral("Unbenannt.dbm"));

    // What the header holds is the mask writer's business; here: it went
    // to the current folder.
    TMemIniFile written;
    QVERIFY(written.load(m_work->filePath(QStringLiteral("Unbenannt.dbm"))));
    QCOMPARE(written.readString(QStringLiteral("Datenbank"), QStringLiteral("Titel"), QString()),
             QStringLiteral("Kundenstamm"));
    QVERIFY(!QFile::exists(m_work->filePath(QStringLiteral("Unbenannt.dbm_bak"))));
}

void TestMainFormFiles::untitledOrPathlessMaskAsksForAName()
{
    ScriptedDialogs dialogs;
    auto form = showMainForm();
    clickTool(form.get(), "FileNewItem");
    TMaske *mask = activeMask(form.get());
    QVERIFY(mask);

    // The English placeholder caption counts as "never saved".
    mask->setWindowTitle(QStringLiteral("Untitled.dbm"));
    const QString chosen = path(QStringLiteral("Bestellung.dbm"));
    dialogs.fileAnswers << QStringList{chosen};
    clickTool(form.get(), "FileSaveItem");
    QCOMPARE(dialogs.fileDialogs.size(), 1);
    QCOMPARE(withoutSize(dialogs.fileDialogs.at(0).fileName), QStringLiteral("Untitled.dbm"));
    QCOMPARE(withoutSize(mask->windowTitle()), QStringLiteral("Bestellung.dbm"));
    QCOMPARE(mask->Path(), chosen);
    QCOMPARE(form->tabSet()->tabText(0), QStringLiteral("Bestellung.dbm"));
    QVERIFY(QFile::exists(chosen));
    QVERIFY(!QFile::exists(m_work->filePath(QStringLiteral("Untitled.dbm"))));

    // Saving again goes straight to the chosen file.
    clickTool(form.get(), "FileSaveItem");
    QCOMPARE(dialogs.fileDialogs.size(), 1);
    QVERIFY(QFile::exists(path(QStringLiteral("Bestellung.dbm_bak"))));

    // A mask without a path asks too; cancelling changes nothing.
    clickTool(form.get(), "FileNewItem");
    TMaske *pathless = activeMask(form.get());
    QVERIFY(pathless && pathless != mask);
    pathless->setPath(QString());
    pathless->setModified(true);
    dialogs.fileAnswers << QStringList();
    clickTool(form.get(), "FileSaveItem");
    QCOMPARE(dialogs.fileDialogs.size(), 2);
    QCOMPARE(withoutSize(dialogs.fileDialogs.at(1).fileName), QStringLiteral("Unbenannt.dbm"));
    QCOMPARE(withoutSize(pathless->windowTitle()), QStringLiteral("Unbenannt.dbm"));
    QVERIFY(pathless->Path().isEmpty());
    QVERIFY(pathless->Modified());
    QVERIFY(!QFile::exists(m_work->filePath(QStringLiteral("Unbenannt.dbm"))));

    // A name typed without extension is saved as a mask all the same.
    form->mdiArea()->setActiveSubWindow(mask);
    dialogs.fileAnswers << QStringList{path(QStringLiteral("Lager"))};
    clickTool(form.get(), "FileSaveAsItem");
    QCOMPARE(dialogs.fileDialogs.last().defaultExt, QStringLiteral("dcf"));
    QCOMPARE(mask->Path(), path(QStringLiteral("Lager.dbm")));
    QVERIFY(QFile::exists(path(QStringLiteral("Lager.dbm"))));
    QCOMPARE(dialogs.unexpected, 0);
}

void TestMainFormFiles::saveFailureIsReported()
{
    ScriptedDialogs dialogs;
    dialogs.messageAnswers << mrOk;
    auto form = showMainForm();
    clickTool(form.get(), "FileNewItem");
    TMaske *mask = activeMask(form.get());
    mask->setModified(true);
    const QString target = path(QStringLiteral("fehlt/Maske.dbm"));
    dialogs.fileAnswers << QStringList{target};
    clickTool(form.get(), "FileSaveAsItem");

    QCOMPARE(dialogs.messages.size(), 1);
    QCOMPARE(dialogs.messages.at(0).type, mtError);
    QVERIFY(dialogs.messages.at(0).text.contains(target));
    QVERIFY(mask->Modified());
    QVERIFY(!QFile::exists(target));

    // A full disk when closing with "save": told why, and the mask stays open.
    mask->setPath(path(QStringLiteral("Maske.dbm")));
    mask->setWindowTitle(QStringLiteral("Maske.dbm"));
    IniFileAccess::setWriteCalls({+[](int, const char *, qint64) -> qint64 {
                                      errno = ENOSPC;
                                      return -1;
                                  },
                                  nullptr});
    dialogs.messageAnswers << mrYes << mrOk;
    mask->close();
    IniFileAccess::setWriteCalls({});
    QCOMPARE(dialogs.messages.size(), 3);
    QVERIFY(dialogs.messages.at(2).text.contains(QStringLiteral("nicht genug Platz")));
    QVERIFY(form->mdiArea()->subWindowList().contains(mask));
    QVERIFY(mask->Modified());
    QVERIFY(!QFile::exists(path(QStringLiteral("Maske.dbm"))));
}

QTEST_MAIN(TestMainFormFiles)
#include "test_mainform_files.moc"
