// The batch tool as a user runs it: round trip, dump and render of a mask
// file, and one clear line on standard error for what goes wrong.
#include <QDir>
#include <QImage>
#include <QTemporaryDir>
#include <QtTest>
#include <tuple>

#include "IniFile.h"
#include "helper_cli.h"

using namespace CliTest;

class TestCli : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void roundtripWritesWhatSaveWrites();
    void dumpDescribesTheMask();
    void renderPaintsTheMaskWindow();
    void failuresSayWhatWentWrong();

private:
    Run run(const QStringList &args) const { return runTool(path(QStringLiteral("ferolith.ini")), args); }
    QString path(const QString &name) const { return m_dir.filePath(name); }
    void writeMask(const QString &name, const QString &text) const { QVERIFY(writeCrlfText(path(name), text)); }

    QTemporaryDir m_dir;
};

void TestCli::initTestCase()
{
    QVERIFY(m_dir.isValid());
    QVERIFY(QDir(m_dir.path()).mkdir(QStringLiteral("DB")));
    const QString db = QDir::toNativeSeparators(path(QStringLiteral("DB"))) + QDir::separator();
    QVERIFY(Profile::writeString(path(QStringLiteral("ferolith.ini")), QStringLiteral("Configuration"),
                                 QStringLiteral("DatenbankPfad"), db));
    writeMask(QStringLiteral("DB/Kunden.ini"), QStringLiteral("[Datenbank]\nIndex=KNR\nFokus=NAME\n[Default]\nLAND=DE\n"));
    writeMask(QStringLiteral("kunden.dbm"),
              QStringLiteral("[Datenbank]\nTabelle=Kunden\nTitel=Kundenstamm\nTyp=1\n[DatenBank]\nPixel=32\n"
                             "Height=600\nWidth=800\n[Style]\nBorderStyle=2\n"
                             "[Panel_1]\nName=Kopf\nLeft=0\nTop=0\nHeight=40\nWidth=400\nAlignment=0\n"
                             "[Label_1]\nParent=Panel1\nName=Kundennummer:\nLeft=8\nTop=12\nHeight=16\nWidth=90\n"
                             "FName=Arial\nFontSize=9\nFStyle=B\n"
                             "[Field_1]\nName=KNR\nDesc=Kundennummer\nLeft=104\nTop=50\nHeight=21\nWidth=80\n"
                             "Laenge=6\nTabOrder=0\n"
                             "[Button_1]\nName=Suchen\nLeft=200\nTop=50\nHeight=25\nWidth=75\nTabOrder=1\n"));
}

void TestCli::roundtripWritesWhatSaveWrites()
{
    const Run first = run({QStringLiteral("roundtrip"), path(QStringLiteral("kunden.dbm")), path(QStringLiteral("a.dbm"))});
    QCOMPARE(first.exitCode, 0);
    const QByteArray a = readFileBytes(path(QStringLiteral("a.dbm")));
    QVERIFY(a.startsWith("[Datenbank]\r\nTabelle=Kunden\r\nTitel=Kundenstamm\r\n"));
    QVERIFY(a.contains("[Field_1]\r\nParent=Maske\r\nName=KNR\r\nDesc=Kundennummer\r\n"));
    QVERIFY(a.contains("[Sort]\r\n0=0-Feld1\r\n"));
    // What the tool wrote, it reads and writes again unchanged.
    QCOMPARE(run({QStringLiteral("roundtrip"), path(QStringLiteral("a.dbm")), path(QStringLiteral("b.dbm"))}).exitCode, 0);
    QCOMPARE(readFileBytes(path(QStringLiteral("b.dbm"))), a);
}

void TestCli::dumpDescribesTheMask()
{
    // Header, resolution, style, table settings and every control with its
    // published properties; the references were written once and checked by
    // hand against the mask files. The mask of every kind with every key
    // shows where each key's value went.
    const Run r = run({QStringLiteral("dump"), path(QStringLiteral("kunden.dbm"))});
    QCOMPARE(r.exitCode, 0);
    QCOMPARE(r.out.toUtf8(), readFileBytes(QStringLiteral(FEROLITH_SOURCE_DIR "/tests/cli/data/kunden.dump.json")));
    const Run all = run({QStringLiteral("dump"), QStringLiteral(FEROLITH_SOURCE_DIR "/tests/masks/data/alle.dbm")});
    QCOMPARE(all.exitCode, 0);
    QCOMPARE(all.out.toUtf8(), readFileBytes(QStringLiteral(FEROLITH_SOURCE_DIR "/tests/cli/data/alle.dump.json")));
}

void TestCli::renderPaintsTheMaskWindow()
{
    const QString png = path(QStringLiteral("kunden.png"));
    const Run r = run({QStringLiteral("render"), path(QStringLiteral("kunden.dbm")), png});
    QCOMPARE(r.exitCode, 0);
    QVERIFY(r.out.trimmed().endsWith("kunden.png"));
    const QImage image(png);
    QCOMPARE(image.size(), QSize(815, 473)); // the window of an 800x600 mask
    // Not an empty window: the panel, the field and the button leave more
    // than a handful of colours.
    QSet<QRgb> colours;
    for (int y = 0; y < image.height(); y += 2)
        for (int x = 0; x < image.width(); x += 2)
            colours.insert(image.pixel(x, y));
    QVERIFY(colours.size() > 20);
}

void TestCli::failuresSayWhatWentWrong()
{
    const auto oneLine = [](const Run &r) { return r.err.trimmed().count('\n') == 0 && !r.err.trimmed().isEmpty(); };

    Run r = run({QStringLiteral("dump"), path(QStringLiteral("fehlt.dbm"))});
    QVERIFY(r.exitCode != 0);
    QVERIFY2(oneLine(r), qPrintable(r.err));
    QVERIFY(r.err.contains("fehlt.dbm"));
    QVERIFY(r.out.isEmpty());

    QVERIFY(QDir(m_dir.path()).mkdir(QStringLiteral("ordner.dbm")));
    r = run({QStringLiteral("roundtrip"), path(QStringLiteral("kunden.dbm")), path(QStringLiteral("ordner.dbm"))});
    QVERIFY(r.exitCode != 0);
    QVERIFY2(oneLine(r), qPrintable(r.err));
    QVERIFY(r.err.contains("ordner.dbm"));

    // A write-protected target stays as it is and the exit says so.
    writeMask(QStringLiteral("fest.dbm"), QStringLiteral("[Datenbank]\nTitel=fest\n"));
    QVERIFY(QFile::setPermissions(path(QStringLiteral("fest.dbm")), QFileDevice::ReadOwner));
    r = run({QStringLiteral("roundtrip"), path(QStringLiteral("kunden.dbm")), path(QStringLiteral("fest.dbm"))});
    QCOMPARE(r.exitCode, 1);
    QVERIFY2(oneLine(r) && r.err.contains("schreibgeschützt"), qPrintable(r.err));
    QVERIFY(!QFile::exists(path(QStringLiteral("fest.dbm_bak"))));

    r = run({QStringLiteral("render"), path(QStringLiteral("kunden.dbm")), path(QStringLiteral("ordner.dbm"))});
    QVERIFY(r.exitCode != 0);
    QVERIFY2(oneLine(r), qPrintable(r.err));

    r = run({QStringLiteral("roundtrip"), path(QStringLiteral("kunden.dbm"))});
    QCOMPARE(r.exitCode, 2);
    QVERIFY2(oneLine(r), qPrintable(r.err));

    // Help and messages speak the language the settings choose.
    const QString ini = path(QStringLiteral("ferolith.ini"));
    for (const auto &[language, usage, missing] : {std::tuple{"en", "Usage:", "does not exist"},
                                                   std::tuple{"de", "Aufruf:", "gibt es nicht"}}) {
        QVERIFY(Profile::writeString(ini, QStringLiteral("Configuration"), QStringLiteral("Sprache"),
                                     QLatin1String(language)));
        QVERIFY(run({QStringLiteral("--help")}).out.startsWith(usage));
        QVERIFY(run({QStringLiteral("dump"), path(QStringLiteral("fehlt.dbm"))}).err.contains(missing));
    }
}

QTEST_GUILESS_MAIN(TestCli)
#include "test_cli.moc"
