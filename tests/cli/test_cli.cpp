// The batch tool as a user runs it: round trip, dump and render of a mask
// file, and one clear line on standard error for what goes wrong.
#include <QDir>
#include <QImage>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QTemporaryDir>
#include <tuple>
#include <QtTest>

#include "IniFile.h"
#include "TestSupport.h"
#include "TextCodec.h"

namespace {
struct Run
{
    int exitCode = -1;
    QByteArray out;
    QByteArray err;
};
} // namespace

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
    Run run(const QStringList &args) const;
    QString path(const QString &name) const { return m_dir.filePath(name); }
    void writeMask(const QString &name, const QString &text) const
    {
        QString crlf = text;
        crlf.replace(QLatin1Char('\n'), QLatin1String("\r\n"));
        QVERIFY(writeFileBytes(path(name), TextCodec::encodeWindows1252(crlf)));
    }

    QTemporaryDir m_dir;
};

Run TestCli::run(const QStringList &args) const
{
    QProcess p;
    QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
    env.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
    p.setProcessEnvironment(env);
    p.start(QStringLiteral(FEROLITH_CLI), QStringList{QStringLiteral("--ini"), path(QStringLiteral("ferolith.ini"))} + args);
    if (!p.waitForFinished(60000))
        p.kill();
    return Run{p.exitStatus() == QProcess::NormalExit ? p.exitCode() : -1, p.readAllStandardOutput(),
               p.readAllStandardError()};
}

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
    const Run r = run({QStringLiteral("dump"), path(QStringLiteral("kunden.dbm"))});
    QCOMPARE(r.exitCode, 0);
    QJsonParseError error;
    const QJsonObject root = QJsonDocument::fromJson(r.out, &error).object();
    QCOMPARE(error.error, QJsonParseError::NoError);
    QCOMPARE(root.value("title").toString(), QStringLiteral("Kundenstamm"));
    QCOMPARE(root.value("table").toString(), QStringLiteral("Kunden"));
    QCOMPARE(root.value("type").toInt(), 1);
    QCOMPARE(root.value("resolution").toObject().value("width").toInt(), 800);
    QCOMPARE(root.value("resolution").toObject().value("height").toInt(), 600);
    QCOMPARE(root.value("resolution").toObject().value("pixel").toInt(), 32);
    QCOMPARE(root.value("style").toObject().value("BorderStyle").toInt(), 2);
    QCOMPARE(root.value("style").toObject().value("EdgeTop").toBool(), true);
    QCOMPARE(root.value("tableSettings").toObject().value("Index").toString(), QStringLiteral("KNR"));
    QCOMPARE(root.value("tableSettings").toObject().value("Default").toArray().at(0).toString(),
             QStringLiteral("LAND=DE"));

    const QJsonArray controls = root.value("controls").toArray();
    QCOMPARE(controls.size(), 4);
    const QJsonObject label = controls.at(1).toObject();
    QCOMPARE(label.value("class").toString(), QStringLiteral("TLabel"));
    QCOMPARE(label.value("name").toString(), QStringLiteral("Label1"));
    QCOMPARE(label.value("parent").toString(), QStringLiteral("Panel1"));
    QCOMPARE(label.value("left").toInt(), 8);
    QCOMPARE(label.value("width").toInt(), 90);
    QCOMPARE(label.value("caption").toString(), QStringLiteral("Kundennummer:"));
    QVERIFY(label.value("tabOrder").isNull());
    QCOMPARE(label.value("font").toObject().value("size").toInt(), 9);
    QCOMPARE(label.value("font").toObject().value("style").toString(), QStringLiteral("B"));
    QCOMPARE(label.value("properties").toObject().value("Caption").toString(), QStringLiteral("Kundennummer:"));
    QCOMPARE(label.value("properties").toObject().value("Alignment").toString(), QStringLiteral("taRightJustify"));
    const QJsonObject edit = controls.at(2).toObject();
    QCOMPARE(edit.value("class").toString(), QStringLiteral("TcxTextEdit"));
    QCOMPARE(edit.value("caption").toString(), QStringLiteral("KNR"));
    QCOMPARE(edit.value("helpKeyword").toString(), QStringLiteral("Kundennummer"));
    QCOMPARE(edit.value("tabOrder").toInt(), 0); // as its key says; the panel makes way
    QCOMPARE(edit.value("properties").toObject().value("MaxLength").toInt(), 6);
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
    QVERIFY2(oneLine(r), r.err.constData());
    QVERIFY(r.err.contains("fehlt.dbm"));
    QVERIFY(r.out.isEmpty());

    QVERIFY(QDir(m_dir.path()).mkdir(QStringLiteral("ordner.dbm")));
    r = run({QStringLiteral("roundtrip"), path(QStringLiteral("kunden.dbm")), path(QStringLiteral("ordner.dbm"))});
    QVERIFY(r.exitCode != 0);
    QVERIFY2(oneLine(r), r.err.constData());
    QVERIFY(r.err.contains("ordner.dbm"));

    // A write-protected target stays as it is and the exit says so.
    writeMask(QStringLiteral("fest.dbm"), QStringLiteral("[Datenbank]\nTitel=fest\n"));
    QVERIFY(QFile::setPermissions(path(QStringLiteral("fest.dbm")), QFileDevice::ReadOwner));
    r = run({QStringLiteral("roundtrip"), path(QStringLiteral("kunden.dbm")), path(QStringLiteral("fest.dbm"))});
    QCOMPARE(r.exitCode, 1);
    QVERIFY2(oneLine(r) && r.err.contains("schreibgeschützt"), r.err.constData());
    QVERIFY(!QFile::exists(path(QStringLiteral("fest.dbm_bak"))));

    r = run({QStringLiteral("render"), path(QStringLiteral("kunden.dbm")), path(QStringLiteral("ordner.dbm"))});
    QVERIFY(r.exitCode != 0);
    QVERIFY2(oneLine(r), r.err.constData());

    r = run({QStringLiteral("roundtrip"), path(QStringLiteral("kunden.dbm"))});
    QCOMPARE(r.exitCode, 2);
    QVERIFY2(oneLine(r), r.err.constData());

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
