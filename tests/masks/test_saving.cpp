// Saving masks: the sections and their keys in the runtime's order, the
// numbering and visiting rules, pick-list blocks and the tab order section.
#include <QtTest>

#include "Edits.h"
#include "Graphics.h"
#include "Grids.h"
#include "Label.h"
#include "MyBtn.h"
#include "IniFileAccess.h"
#include "helper_masks.h"

#include <QFileInfo>
#include <cerrno>
#include <sys/stat.h>
#include <unistd.h>

using namespace MaskTest;

namespace {
// A label of a class of its own: not one the mask file knows.
class TFancyLabel : public TLabel
{
    Q_OBJECT
public:
    using TLabel::TLabel;
};

QStringList sectionNames(const QString &text)
{
    QStringList out;
    for (const QString &line : text.split(QLatin1Char('\n')))
        if (line.startsWith(QLatin1Char('[')))
            out << line.mid(1, line.size() - 2);
    return out;
}
} // namespace

class TestSaving : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void visitingOrderAndNumbering();
    void pickListsAndSortLines();
    void failingDiskLosesNothing();
    void savingRespectsLinksModesAndProtection();
};

void TestSaving::visitingOrderAndNumbering()
{
    Fixture home;
    TMaskDocument *mask = home.newDocument();

    auto *first = make<TDBGrid>(mask);
    auto *label = make<TLabel>(mask);
    auto *fancy = new TFancyLabel(mask);
    Components::setOwner(fancy, mask);
    AutoName(fancy, mask);
    fancy->setCaption(QStringLiteral("Nicht gespeichert"));
    make<TDBGrid>(mask);
    auto *label2 = make<TLabel>(mask);
    label->setCaption(QStringLiteral("Erste"));
    label2->setCaption(QStringLiteral("Zweite"));
    label2->setFont(TFont{QStringLiteral("Arial"), 9, Colors::clRed,
                          TFontStyles(fsStrikeOut) | fsItalic | fsBold});

    QString text = savedText(mask);
    // The grid named "DBGrid1" is the main grid and does not count.
    QCOMPARE(first->objectName(), QStringLiteral("DBGrid1"));
    QCOMPARE(sectionNames(text), QStringList({"Datenbank", "Style", "Browser", "Label_1", "DBBrowser_1", "Label_2"}));
    QVERIFY(!text.contains(QLatin1String("Nicht gespeichert")));
    QVERIFY(sectionLines(text, "Label_2").contains("Name=Zweite"));
    QVERIFY(sectionLines(text, "Label_2").contains("FStyle=BIS"));
    QVERIFY(sectionLines(text, "Label_2").contains("FColor=clRed"));

    // Without "DBGrid1" every grid is numbered.
    delete first;
    text = savedText(mask);
    QCOMPARE(sectionNames(text), QStringList({"Datenbank", "Style", "Label_1", "DBBrowser_1", "Label_2"}));
}

void TestSaving::pickListsAndSortLines()
{
    Fixture home;
    TMaskDocument *mask = home.newDocument();

    auto *panelA = make<TPanel>(mask);
    auto *panelB = make<TPanel>(mask);
    auto *c1 = make<TcxComboBox>(mask, panelA);
    auto *c2 = make<TcxComboBox>(mask, panelB);
    auto *c3 = make<TcxComboBox>(mask, panelB);
    auto *c4 = make<TcxComboBox>(mask, panelB);
    c1->setHint(QStringLiteral("Anreden"));
    c1->setItems({QStringLiteral("Herr"), QStringLiteral("Frau")});
    c2->setHint(QStringLiteral("Anreden"));
    c2->setItems({QStringLiteral("Firma")});
    c3->setHint(QStringLiteral("Leer")); // no items: no block
    c4->setHint(QStringLiteral("Länder"));
    c4->setItems({QStringLiteral("Deutschland"), QStringLiteral("Österreich")});
    auto *c5 = make<TcxComboBox>(mask, panelA);
    c5->setHint(QStringLiteral("ANREDEN")); // the same block
    c5->setItems({QStringLiteral("Dr.")});

    const QString text = savedText(mask);
    // The blocks stand before the header, each name once, the first one's items.
    QVERIFY2(text.startsWith(QStringLiteral("[Anreden]\nHerr\nFrau\n\n[Länder]\nDeutschland\nÖsterreich\n\n"
                                            "[Datenbank]\n")),
             qPrintable(text.left(120)));
    QVERIFY(!text.contains(QLatin1String("[Leer]")));
    QCOMPARE(text.count(QLatin1String("[Anreden]")), 1);
    // c1 is first on panel A, c2 first on panel B: both have tab order 0,
    // and the later one keeps the line (so does c5 against c3).
    QCOMPARE(sectionLines(text, "Sort"), QStringList({"0=1-CFeld2", "1=1-CFeld5", "2=1-CFeld4"}));

    // The file is Windows-1252 with CR LF.
    const QByteArray bytes = MaskWriter::MaskFileBytes(*mask);
    QVERIFY(bytes.contains("\xd6sterreich\r\n"));
    QVERIFY(!bytes.contains("\n\n"));

    // Items and names that would read back as sections or keys never reach
    // the file in that form (a pasted control may carry them).
    mask->setTitel(QStringLiteral("Echt"));
    c4->setItems({QStringLiteral("[Datenbank]"), QStringLiteral("Titel=Falsch"), QStringLiteral("x\r\n[Label_1]"),
                  QStringLiteral("=gut"), QStringLiteral("; auch=gut")});
    c3->setHint(QStringLiteral("Z]\r\n[Datenbank]\r\nTitel=Falsch\r\n[Y"));
    c3->setItems({QStringLiteral("z")});
    const QString file = home.path(QStringLiteral("Feind.dbm"));
    QVERIFY(writeFileBytes(file, MaskWriter::MaskFileBytes(*mask)));
    TMaskDocument *back = home.load(file);
    QCOMPARE(back->Titel(), QStringLiteral("Echt"));
    QCOMPARE(controlClasses(back), controlClasses(mask));
    TMemIniFile written(file);
    QCOMPARE(written.readSectionValues(QStringLiteral("Länder")), (QStringList{"=gut", "; auch=gut"}));
}

namespace {
// A disk that takes this many more bytes, then reports itself full.
qint64 g_bytesLeft = 0;
bool g_syncFails = false;
qint64 fullDiskWrite(int fd, const char *data, qint64 size)
{
    if (g_bytesLeft == 0) {
        errno = ENOSPC;
        return -1;
    }
    const qint64 n = std::min(size, g_bytesLeft);
    g_bytesLeft -= n;
    return ::write(fd, data, size_t(n));
}
int failingSync(int fd)
{
    if (g_syncFails) {
        errno = EIO;
        return -1;
    }
    return ::fsync(fd);
}
} // namespace

void TestSaving::failingDiskLosesNothing()
{
    Fixture home;
    TMaskDocument *mask = home.newDocument();
    mask->setTitel(QStringLiteral("Neu"));
    make<TcxComboBox>(mask)->setItems({QStringLiteral("A"), QStringLiteral("B")});
    const QByteArray bytes = MaskWriter::MaskFileBytes(*mask);
    const QString file = home.path(QStringLiteral("M.dbm"));
    const QString backup = home.path(QStringLiteral("M.dbm_bak"));
    QVERIFY(writeFileBytes(file, "[Datenbank]\r\nTitel=Jetzt\r\n"));
    QVERIFY(writeFileBytes(backup, "[Datenbank]\r\nTitel=Vorher\r\n"));
    const auto entries = [&] { return QDir(home.path(QString())).entryList(QDir::Files | QDir::Hidden); };
    const QStringList before = entries();

    IniFileAccess::setWriteCalls({fullDiskWrite, failingSync});
    // The disk fills up at every byte in turn, then the flush fails.
    for (qint64 cut = 0; cut <= bytes.size(); ++cut) {
        g_bytesLeft = cut;
        g_syncFails = cut == bytes.size();
        QString error;
        QVERIFY2(!MaskWriter::SaveMask(*mask, file, &error), qPrintable(QString::number(cut)));
        QVERIFY(error.contains(QDir::toNativeSeparators(QFileInfo(file).absoluteFilePath())));
        QCOMPARE(readFileBytes(file), QByteArray("[Datenbank]\r\nTitel=Jetzt\r\n"));
        QCOMPARE(readFileBytes(backup), QByteArray("[Datenbank]\r\nTitel=Vorher\r\n"));
        QCOMPARE(entries(), before); // no temporary file left behind
    }
    IniFileAccess::setWriteCalls({});
    QVERIFY(MaskWriter::SaveMask(*mask, file));
    QCOMPARE(readFileBytes(file), bytes);
    QCOMPARE(readFileBytes(backup), QByteArray("[Datenbank]\r\nTitel=Jetzt\r\n"));
}

void TestSaving::savingRespectsLinksModesAndProtection()
{
    Fixture home;
    TMaskDocument *mask = home.newDocument();
    const QByteArray bytes = MaskWriter::MaskFileBytes(*mask);
    QDir(home.path(QString())).mkdir(QStringLiteral("ablage"));
    const QString real = home.path(QStringLiteral("ablage/Echt.dbm"));
    const QString link = home.path(QStringLiteral("Link.dbm"));
    QVERIFY(writeFileBytes(real, "alt"));
    QVERIFY(QFile::link(real, link));
    QVERIFY(QFile::setPermissions(real, QFileDevice::ReadOwner | QFileDevice::WriteOwner));

    // Through the link to its target, which keeps its mode; the backup lies beside it.
    QVERIFY(MaskWriter::SaveMask(*mask, link));
    QVERIFY(QFileInfo(link).isSymLink());
    QCOMPARE(readFileBytes(real), bytes);
    QCOMPARE(readFileBytes(home.path(QStringLiteral("ablage/Echt.dbm_bak"))), QByteArray("alt"));
    struct stat st {};
    QCOMPARE(::stat(QFile::encodeName(real).constData(), &st), 0);
    QCOMPARE(st.st_mode & 0777, mode_t(0600));
    QCOMPARE(st.st_uid, ::getuid());

    // A write-protected file stays, even in a folder the user may write.
    QVERIFY(QFile::setPermissions(real, QFileDevice::ReadOwner | QFileDevice::ReadUser));
    QString error;
    QVERIFY(!MaskWriter::SaveMask(*mask, real, &error));
    QVERIFY(error.contains(QStringLiteral("schreibgeschützt")));
    QCOMPARE(readFileBytes(real), bytes);
    QCOMPARE(readFileBytes(home.path(QStringLiteral("ablage/Echt.dbm_bak"))), QByteArray("alt"));
}

QTEST_MAIN(TestSaving)
#include "test_saving.moc"
