#include <QtTest>

#include "IniFile.h"
#include "TestSupport.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

using namespace Colors;

namespace {

TMemIniFile fromText(const QString &text)
{
    TMemIniFile ini;
    ini.setText(text);
    return ini;
}

constexpr QFileDevice::Permissions kOthersMayTouch =
    QFileDevice::ReadGroup | QFileDevice::WriteGroup | QFileDevice::ExeGroup | QFileDevice::ReadOther
    | QFileDevice::WriteOther | QFileDevice::ExeOther;

} // namespace

class TestIniFile : public QObject
{
    Q_OBJECT

private slots:
    void init();

    void sectionsMergeWithoutRegardToCase();
    void lineRules();
    void writtenLayout();
    void editing();
    void longSectionsAndManyEdits();
    void typedValues();
    void codePageOnDisk();
    void fileErrors();
    void longLines();

    void profileCreatesPrivateFile();
    void profileLeavesOtherLinesAlone();
    void profileKeepsFileStyle();
    void profileErrors();

private:
    std::unique_ptr<QTemporaryDir> m_dir;
    QString path(const QString &name) const { return m_dir->filePath(name); }
};

void TestIniFile::init()
{
    m_dir = std::make_unique<QTemporaryDir>();
    QVERIFY(m_dir->isValid());
}

void TestIniFile::sectionsMergeWithoutRegardToCase()
{
    TMemIniFile ini = fromText(QStringLiteral("[Datenbank]\nTabelle=x\n[DatenBank]\nPixel=32\n"));
    QCOMPARE(ini.sectionCount(), 1);
    QCOMPARE(ini.readSections(), QStringList{QStringLiteral("Datenbank")});
    QCOMPARE(ini.readSection(QStringLiteral("datenbank")),
             (QStringList{QStringLiteral("Tabelle"), QStringLiteral("Pixel")}));
    QCOMPARE(ini.readString(QStringLiteral("DATENBANK"), QStringLiteral("tabelle"), QString()), QStringLiteral("x"));
    QCOMPARE(ini.readInteger(QStringLiteral("datenbank"), QStringLiteral("PIXEL"), 0), 32);
    QVERIFY(ini.sectionExists(QStringLiteral("DATENBANK")));
    QVERIFY(ini.valueExists(QStringLiteral("Datenbank"), QStringLiteral("pixel")));
    QVERIFY(!ini.valueExists(QStringLiteral("Datenbank"), QStringLiteral("Pixe")));
    QCOMPARE(ini.text(), QStringLiteral("[Datenbank]\r\nTabelle=x\r\nPixel=32\r\n\r\n"));

    // A key keeps the spelling it was first written with.
    ini.writeString(QStringLiteral("Datenbank"), QStringLiteral("Pageindex"), QStringLiteral("1"));
    ini.writeString(QStringLiteral("DATENBANK"), QStringLiteral("PageIndex"), QStringLiteral("2"));
    QCOMPARE(ini.readSection(QStringLiteral("Datenbank")).last(), QStringLiteral("Pageindex"));
    QCOMPARE(ini.readString(QStringLiteral("datenbank"), QStringLiteral("PAGEINDEX"), QString()),
             QStringLiteral("2"));
    QVERIFY(ini.text().contains(QStringLiteral("\r\nPageindex=2\r\n")));

    // Umlauts match their capitals too.
    ini.writeString(QStringLiteral("Größe"), QStringLiteral("Übersicht"), QStringLiteral("ja"));
    QCOMPARE(ini.readString(QStringLiteral("GRÖSSE"), QStringLiteral("übersicht"), QStringLiteral("-")),
             QStringLiteral("-"));
    QCOMPARE(ini.readString(QStringLiteral("GRÖßE"), QStringLiteral("übersicht"), QStringLiteral("-")),
             QStringLiteral("ja"));

    // Of repeated keys the first one counts, in one section or across merged ones.
    const TMemIniFile twice = fromText(QStringLiteral("[A]\nk=1\nk=2\n[a]\nK=3\n"));
    QCOMPARE(twice.readString(QStringLiteral("a"), QStringLiteral("k"), QString()), QStringLiteral("1"));
    QCOMPARE(twice.readSection(QStringLiteral("A")), QStringList{QStringLiteral("k")});
    QCOMPARE(twice.readSectionValues(QStringLiteral("A")),
             (QStringList{QStringLiteral("k=1"), QStringLiteral("k=2"), QStringLiteral("K=3")}));
}

void TestIniFile::lineRules()
{
    const TMemIniFile ini = fromText(QStringLiteral(
        "vorher=weg\r\n"
        "  [ Feld 1 ]  Rest\r\n"
        "  Name \t=  Wert mit Blanks  \r\n"
        "Formel=a=b+c\r\n"
        "\t \r\n"
        "; Kommentar=kein Schlüssel\r\n"
        "  roher Text  \r\n"
        "=ohne Schlüssel\r\n"
        "Leer=\r\n"
        "Zwei=CR\r\r\n"
        "[Farben]\n"
        "rot\n"
        "grün\n"
        "\n"
        "[Datenbank]\n"
        "Tabelle=Kunden"));

    QCOMPARE(ini.readSections(),
             (QStringList{QStringLiteral("Feld 1"), QStringLiteral("Farben"), QStringLiteral("Datenbank")}));
    const QString s = QStringLiteral("feld 1");
    QCOMPARE(ini.readString(s, QStringLiteral("Name"), QString()), QStringLiteral("  Wert mit Blanks  "));
    QCOMPARE(ini.readString(s, QStringLiteral("Formel"), QString()), QStringLiteral("a=b+c"));
    QCOMPARE(ini.readString(s, QStringLiteral("Leer"), QStringLiteral("x")), QString());
    QVERIFY(ini.valueExists(s, QStringLiteral("Leer")));
    // Only the CR of the line end goes.
    QCOMPARE(ini.readString(s, QStringLiteral("Zwei"), QString()), QStringLiteral("CR\r"));
    QVERIFY(!ini.valueExists(s, QStringLiteral("; Kommentar")));
    QVERIFY(!ini.valueExists(s, QString()));
    QCOMPARE(ini.readSection(s), (QStringList{QStringLiteral("Name"), QStringLiteral("Formel"),
                                              QStringLiteral("Leer"), QStringLiteral("Zwei")}));
    QCOMPARE(ini.readSectionValues(s),
             (QStringList{QStringLiteral("Name=  Wert mit Blanks  "), QStringLiteral("Formel=a=b+c"),
                          QStringLiteral("; Kommentar=kein Schlüssel"), QStringLiteral("  roher Text  "),
                          QStringLiteral("=ohne Schlüssel"), QStringLiteral("Leer="), QStringLiteral("Zwei=CR\r")}));

    // A pick-list block is raw lines in order; reading a key there gives the default.
    QCOMPARE(ini.readSectionValues(QStringLiteral("Farben")), (QStringList{QStringLiteral("rot"), QStringLiteral("grün")}));
    QVERIFY(ini.readSection(QStringLiteral("Farben")).isEmpty());
    QCOMPARE(ini.readString(QStringLiteral("Farben"), QStringLiteral("rot"), QStringLiteral("-")), QStringLiteral("-"));
    QCOMPARE(ini.readString(QStringLiteral("Datenbank"), QStringLiteral("Tabelle"), QString()), QStringLiteral("Kunden"));
    QVERIFY(!ini.valueExists(QStringLiteral("Feld 1"), QStringLiteral("vorher")));

    // "[" without "]" is no header.
    const TMemIniFile open = fromText(QStringLiteral("[A]\n[B=1\n[]\nx=2\n"));
    QCOMPARE(open.readString(QStringLiteral("A"), QStringLiteral("[B"), QString()), QStringLiteral("1"));
    QCOMPARE(open.readString(QString(), QStringLiteral("x"), QString()), QStringLiteral("2"));

    // Written and read again, every line survives as it was.
    const TMemIniFile again = fromText(ini.text());
    QCOMPARE(again.text(), ini.text());
    QCOMPARE(again.readSectionValues(s), ini.readSectionValues(s));
}

void TestIniFile::writtenLayout()
{
    QCOMPARE(TMemIniFile().text(), QString());
    QVERIFY(TMemIniFile().toBytes().isEmpty());

    TMemIniFile ini;
    ini.writeString(QStringLiteral("A"), QStringLiteral("x"), QStringLiteral("1"));
    ini.writeString(QStringLiteral("B"), QStringLiteral("y"), QStringLiteral("2"));
    QCOMPARE(ini.text(), QStringLiteral("[A]\r\nx=1\r\n\r\n[B]\r\ny=2\r\n\r\n"));

    ini.appendRawLine(QStringLiteral("Farben"), QStringLiteral("rot"));
    ini.appendRawLine(QStringLiteral("farben"), QStringLiteral("grün"));
    ini.writeString(QStringLiteral("a"), QStringLiteral("z"), QStringLiteral("3"));
    QCOMPARE(ini.text(), QStringLiteral("[A]\r\nx=1\r\nz=3\r\n\r\n[B]\r\ny=2\r\n\r\n[Farben]\r\nrot\r\ngrün\r\n\r\n"));

    // An empty section is written too.
    TMemIniFile empty = fromText(QStringLiteral("[Leer]\n\n[Voll]\nk=v\n"));
    QCOMPARE(empty.text(), QStringLiteral("[Leer]\r\n\r\n[Voll]\r\nk=v\r\n\r\n"));
}

void TestIniFile::editing()
{
    TMemIniFile ini = fromText(QStringLiteral("[A]\nerst=1\nzweit=2\ndritt=3\n[B]\nb=1\n[C]\nc=1\n"));

    // Replacing keeps the place; a new key goes to the end of its section.
    ini.writeString(QStringLiteral("a"), QStringLiteral("ZWEIT"), QStringLiteral("neu"));
    ini.writeInteger(QStringLiteral("A"), QStringLiteral("viert"), -4);
    QCOMPARE(ini.readSectionValues(QStringLiteral("A")),
             (QStringList{QStringLiteral("erst=1"), QStringLiteral("zweit=neu"), QStringLiteral("dritt=3"),
                          QStringLiteral("viert=-4")}));

    ini.deleteKey(QStringLiteral("A"), QStringLiteral("Erst"));
    ini.deleteKey(QStringLiteral("A"), QStringLiteral("fehlt"));
    ini.deleteKey(QStringLiteral("fehlt"), QStringLiteral("erst"));
    QVERIFY(!ini.valueExists(QStringLiteral("A"), QStringLiteral("erst")));
    QCOMPARE(ini.readSection(QStringLiteral("A")),
             (QStringList{QStringLiteral("zweit"), QStringLiteral("dritt"), QStringLiteral("viert")}));
    QCOMPARE(ini.readInteger(QStringLiteral("A"), QStringLiteral("viert"), 0), -4);

    // An erased section is gone; written again, it comes back at the end.
    ini.eraseSection(QStringLiteral("b"));
    QVERIFY(!ini.sectionExists(QStringLiteral("B")));
    QCOMPARE(ini.sectionCount(), 2);
    QCOMPARE(ini.readString(QStringLiteral("B"), QStringLiteral("b"), QStringLiteral("-")), QStringLiteral("-"));
    QCOMPARE(ini.readString(QStringLiteral("C"), QStringLiteral("c"), QString()), QStringLiteral("1"));
    ini.writeBool(QStringLiteral("b"), QStringLiteral("neu"), true);
    QCOMPARE(ini.readSections(), (QStringList{QStringLiteral("A"), QStringLiteral("C"), QStringLiteral("b")}));
    QCOMPARE(ini.text(), QStringLiteral("[A]\r\nzweit=neu\r\ndritt=3\r\nviert=-4\r\n\r\n[C]\r\nc=1\r\n\r\n[b]\r\nneu=1\r\n\r\n"));

    // Deleting a repeated key takes every occurrence, not just the visible one.
    TMemIniFile twice = fromText(QStringLiteral("[A]\nk=1\nx=0\nK=2\n"));
    twice.deleteKey(QStringLiteral("A"), QStringLiteral("k"));
    QVERIFY(!twice.valueExists(QStringLiteral("A"), QStringLiteral("k")));
    QCOMPARE(twice.readSectionValues(QStringLiteral("A")), QStringList{QStringLiteral("x=0")});

    // A line break in a value would split the line and corrupt the file.
    TMemIniFile breaks;
    breaks.writeString(QStringLiteral("A"), QStringLiteral("k"), QStringLiteral("eins\r\nzwei\n[B]"));
    const TMemIniFile reread = fromText(breaks.text());
    QCOMPARE(reread.sectionCount(), 1);
    QCOMPARE(reread.readSection(QStringLiteral("A")), QStringList{QStringLiteral("k")});
    QVERIFY(reread.readString(QStringLiteral("A"), QStringLiteral("k"), QString()).startsWith(QStringLiteral("eins")));

    // An empty key name cannot be written.
    breaks.writeString(QStringLiteral("A"), QStringLiteral(" "), QStringLiteral("v"));
    QCOMPARE(breaks.readSectionValues(QStringLiteral("A")).size(), 1);

    ini.clear();
    QCOMPARE(ini.sectionCount(), 0);
    QCOMPARE(ini.text(), QString());
}

void TestIniFile::longSectionsAndManyEdits()
{
    // Long sections are looked up through an index that deletions must keep right.
    TMemIniFile ini;
    const int n = 5000;
    for (int i = 0; i < n; ++i)
        ini.writeInteger(QStringLiteral("Liste"), QStringLiteral("Key%1").arg(i), i);
    ini.deleteKey(QStringLiteral("Liste"), QStringLiteral("KEY10"));
    QVERIFY(!ini.valueExists(QStringLiteral("liste"), QStringLiteral("key10")));
    QCOMPARE(ini.readInteger(QStringLiteral("Liste"), QStringLiteral("Key10"), -1), -1);
    for (int i = 0; i < n; i += 2)
        ini.deleteKey(QStringLiteral("LISTE"), QStringLiteral("key%1").arg(i));
    QCOMPARE(ini.readSection(QStringLiteral("Liste")).size(), n / 2);
    QVERIFY(!ini.valueExists(QStringLiteral("Liste"), QStringLiteral("key4998")));
    QCOMPARE(ini.readString(QStringLiteral("Liste"), QStringLiteral("Key0"), QStringLiteral("-")), QStringLiteral("-"));
    for (int i = 0; i < n; ++i) {
        const int expected = i % 2 ? i : -1;
        QCOMPARE(ini.readInteger(QStringLiteral("Liste"), QStringLiteral("KEY%1").arg(i), -1), expected);
    }
    ini.writeString(QStringLiteral("Liste"), QStringLiteral("key1"), QStringLiteral("eins"));
    ini.writeString(QStringLiteral("Liste"), QStringLiteral("Key0"), QStringLiteral("null"));
    QStringList keys = ini.readSection(QStringLiteral("Liste"));
    QCOMPARE(keys.first(), QStringLiteral("Key1"));
    QCOMPARE(keys.last(), QStringLiteral("Key0"));
    QCOMPARE(ini.readString(QStringLiteral("liste"), QStringLiteral("KEY1"), QString()), QStringLiteral("eins"));

    // Shrunk below the index size, lookups still work.
    for (int i = 1; i < n - 10; i += 2)
        ini.deleteKey(QStringLiteral("Liste"), QStringLiteral("Key%1").arg(i));
    keys = ini.readSection(QStringLiteral("Liste"));
    QCOMPARE(keys.size(), 6);
    for (const QString &key : std::as_const(keys))
        QVERIFY(ini.valueExists(QStringLiteral("Liste"), key.toUpper()));
    QCOMPARE(ini.readString(QStringLiteral("Liste"), QStringLiteral("key0"), QString()), QStringLiteral("null"));

    // Repeated keys in a long section: the first one counts and deleting removes all.
    QString text = QStringLiteral("[L]\n");
    for (int i = 0; i < 100; ++i)
        text += QStringLiteral("k%1=%1\n").arg(i);
    text += QStringLiteral("K5=spät\n");
    TMemIniFile dup = fromText(text);
    QCOMPARE(dup.readString(QStringLiteral("l"), QStringLiteral("k5"), QString()), QStringLiteral("5"));
    QCOMPARE(dup.readSection(QStringLiteral("L")).size(), 100);
    dup.deleteKey(QStringLiteral("L"), QStringLiteral("K5"));
    QVERIFY(!dup.valueExists(QStringLiteral("L"), QStringLiteral("k5")));
    QCOMPARE(dup.readSectionValues(QStringLiteral("L")).size(), 99);

    // Erasing many sections keeps the remaining ones findable.
    TMemIniFile many;
    for (int i = 0; i < 1000; ++i)
        many.writeInteger(QStringLiteral("S%1").arg(i), QStringLiteral("v"), i);
    for (int i = 0; i < 1000; ++i)
        if (i % 10)
            many.eraseSection(QStringLiteral("s%1").arg(i));
    QCOMPARE(many.sectionCount(), 100);
    QCOMPARE(many.readSections().size(), 100);
    for (int i = 0; i < 1000; ++i)
        QCOMPARE(many.readInteger(QStringLiteral("S%1").arg(i), QStringLiteral("V"), -1), i % 10 ? -1 : i);
    many.writeInteger(QStringLiteral("S5"), QStringLiteral("v"), 5);
    QCOMPARE(many.readSections().last(), QStringLiteral("S5"));
    QCOMPARE(many.sectionCount(), 101);
}

void TestIniFile::typedValues()
{
    // How numbers, flags and colours are spelt is the value encodings' test;
    // here the typed reads, their defaults and the typed writes.
    TMemIniFile ini = fromText(QStringLiteral("[T]\nhex=$ff\nmuell=12abc\nbneg=-5\nbtext=abc\n"
                                              "c1=clWindow\nc5=Blau\nc6=$00123456\n"));
    const QString t = QStringLiteral("T");
    QCOMPARE(ini.readInteger(t, "hex", 0), 255);
    QCOMPARE(ini.readInteger(t, "muell", 7), 7);
    QCOMPARE(ini.readInteger(t, "fehlt", -3), -3);
    QCOMPARE(ini.readInteger("fehlt", "hex", -3), -3);
    QCOMPARE(ini.readBool(t, "bneg", false), true);
    QCOMPARE(ini.readBool(t, "btext", true), true);
    QCOMPARE(ini.readBool(t, "btext", false), false);
    QCOMPARE(ini.readBool(t, "fehlt", true), true);
    // System colours stay symbolic.
    const TColor window = ini.readColor(t, "c1", clBlack);
    QCOMPARE(window, clWindow);
    QCOMPARE(ini.readColor(t, "c5", clLime), clLime);
    QCOMPARE(ini.readColor(t, "c6", clBlack), TColor::fromRgb(0x56, 0x34, 0x12));
    QCOMPARE(ini.readColor(t, "fehlt", clNone), clNone);

    TMemIniFile out;
    out.writeColor(t, "a", window);
    out.writeColor(t, "c", TColor::fromRgb(0xAB, 0xCD, 0xEF));
    out.writeBool(t, "e", true);
    out.writeBool(t, "f", false);
    out.writeInteger(t, "g", std::numeric_limits<qint32>::min());
    QCOMPARE(out.readSectionValues(t), (QStringList{"a=clWindow", "c=$00efcdab", "e=1", "f=0", "g=-2147483648"}));
}

void TestIniFile::codePageOnDisk()
{
    const QString text = QStringLiteral("Größe äöü ÄÖÜ ß €  ");
    const QString file = path(QStringLiteral("cp.dbm"));
    TMemIniFile ini;
    ini.writeString(QStringLiteral("Maske"), QStringLiteral("Titel"), text);
    ini.writeString(QStringLiteral("Maske"), QStringLiteral("Fremd"), QStringLiteral("Ω\U0001F600x"));
    QString error;
    QVERIFY2(ini.save(file, &error), qPrintable(error));

    const QByteArray bytes = readFileBytes(file);
    QCOMPARE(bytes, QByteArray("[Maske]\r\nTitel=Gr\xF6\xDF" "e \xE4\xF6\xFC \xC4\xD6\xDC \xDF \x80  \r\n"
                               "Fremd=??x\r\n\r\n"));

    TMemIniFile back;
    QVERIFY(back.load(file, &error));
    QCOMPARE(back.fileName(), file);
    QCOMPARE(back.readString(QStringLiteral("Maske"), QStringLiteral("Titel"), QString()), text);

    // The bound name is used when save() gets none.
    back.writeString(QStringLiteral("Maske"), QStringLiteral("Neu"), QStringLiteral("ja"));
    QVERIFY(back.save());
    QVERIFY(TMemIniFile(file).valueExists(QStringLiteral("maske"), QStringLiteral("neu")));

    // LF line ends and UTF-8 with its mark are read as well.
    const QString lf = path(QStringLiteral("lf.ini"));
    QVERIFY(writeFileBytes(lf, QByteArray("[A]\nk=\xE4\n[B]\nl=2")));
    const TMemIniFile lfIni(lf);
    QCOMPARE(lfIni.readString(QStringLiteral("A"), QStringLiteral("k"), QString()), QStringLiteral("ä"));
    QCOMPARE(lfIni.readInteger(QStringLiteral("B"), QStringLiteral("l"), 0), 2);

    const QString utf8 = path(QStringLiteral("utf8.ini"));
    QVERIFY(writeFileBytes(utf8, "\xEF\xBB\xBF" + QStringLiteral("[Größe]\r\nk=äß€\r\n").toUtf8()));
    TMemIniFile utf8Ini(utf8);
    QCOMPARE(utf8Ini.readString(QStringLiteral("größe"), QStringLiteral("K"), QString()), QStringLiteral("äß€"));
    // Written back, it is Windows-1252 without a mark.
    QVERIFY(utf8Ini.save());
    QCOMPARE(readFileBytes(utf8), QByteArray("[Gr\xF6\xDF" "e]\r\nk=\xE4\xDF\x80\r\n\r\n"));
}

void TestIniFile::fileErrors()
{
    QString error;
    TMemIniFile ini = fromText(QStringLiteral("[A]\nk=1\n"));

    const QString missing = path(QStringLiteral("fehlt.dbm"));
    QVERIFY(!ini.load(missing, &error));
    QCOMPARE(ini.sectionCount(), 0);
    QCOMPARE(ini.fileName(), missing);
    QVERIFY2(error.contains(QDir::toNativeSeparators(missing)), qPrintable(error));
    QVERIFY2(error.contains(QStringLiteral("nicht gelesen")), qPrintable(error));

    QCOMPARE(TMemIniFile(missing).sectionCount(), 0);

    ini.writeString(QStringLiteral("A"), QStringLiteral("k"), QStringLiteral("1"));
    error.clear();
    QVERIFY(!ini.load(m_dir->path(), &error));
    QCOMPARE(ini.sectionCount(), 0);
    QVERIFY2(error.contains(QStringLiteral("Ordner")), qPrintable(error));

    // Refused by size before anything is read (the file is sparse).
    const QString huge = path(QStringLiteral("riesig.dbm"));
    {
        QFile f(huge);
        QVERIFY(f.open(QIODevice::WriteOnly));
        QVERIFY(f.resize((qint64(1) << 30) + 1));
    }
    error.clear();
    QVERIFY(!ini.load(huge, &error));
    QVERIFY2(error.contains(QDir::toNativeSeparators(huge)) && error.contains(QStringLiteral("groß")),
             qPrintable(error));
    QFile::remove(huge);

#ifdef Q_OS_UNIX
    const QString locked = path(QStringLiteral("gesperrt.dbm"));
    QVERIFY(writeFileBytes(locked, "[A]\nk=1\n"));
    QVERIFY(QFile::setPermissions(locked, QFileDevice::WriteOwner));
    if (QFileInfo(locked).isReadable()) {
        qInfo("Running with rights that read any file; the access check is left out.");
    } else {
        error.clear();
        QVERIFY(!ini.load(locked, &error));
        QVERIFY2(error.contains(QStringLiteral("Zugriff verweigert")), qPrintable(error));
    }
#endif

    // Saving into a folder that does not exist fails and names the file.
    ini.writeString(QStringLiteral("A"), QStringLiteral("k"), QStringLiteral("1"));
    const QString nowhere = path(QStringLiteral("kein/Ordner/x.dbm"));
    error.clear();
    QVERIFY(!ini.save(nowhere, &error));
    QVERIFY2(error.contains(QDir::toNativeSeparators(nowhere)), qPrintable(error));
    QVERIFY2(error.contains(QStringLiteral("nicht geschrieben")), qPrintable(error));
    error.clear();
    QVERIFY(!ini.save(m_dir->path(), &error));
    QVERIFY(!error.isEmpty());
    QVERIFY(!TMemIniFile().save(QString(), &error));
}

void TestIniFile::longLines()
{
    // One line of 20 MB, as a value and as garbage before the first section.
    // Random bytes are the INI fuzz target's job; speed on many sections is
    // the benchmark's.
    TMemIniFile ini;
    const qsizetype big = 20 << 20;
    QByteArray longLine = "[S]\r\nk=";
    longLine.append(big, 'x');
    longLine.append("\r\nnach=1\r\n");
    ini.setBytes(QByteArray(big, 'y') + "\n" + longLine);
    QCOMPARE(ini.readString(QStringLiteral("S"), QStringLiteral("k"), QString()).size(), big);
    QCOMPARE(ini.readInteger(QStringLiteral("S"), QStringLiteral("nach"), 0), 1);
    QCOMPARE(ini.text().size(), big + 19);
}

void TestIniFile::profileCreatesPrivateFile()
{
    const QString file = path(QStringLiteral("neu.ini"));
    QString error;
    QVERIFY2(Profile::writeString(file, QStringLiteral("Datenbank"), QStringLiteral("Passwort"),
                                  QStringLiteral("geheim€"), &error),
             qPrintable(error));
    QCOMPARE(readFileBytes(file), QByteArray("[Datenbank]\r\nPasswort=geheim\x80\r\n"));
#ifdef Q_OS_UNIX
    const QFileDevice::Permissions perms = QFile::permissions(file);
    QVERIFY(perms.testFlags(QFileDevice::ReadOwner | QFileDevice::WriteOwner));
    QCOMPARE(perms & kOthersMayTouch, QFileDevice::Permissions());

    // An existing file keeps the permissions it has.
    const QString shared = path(QStringLiteral("geteilt.ini"));
    QVERIFY(writeFileBytes(shared, "[A]\r\n"));
    const QFileDevice::Permissions open = QFileDevice::ReadOwner | QFileDevice::WriteOwner
                                          | QFileDevice::ReadGroup | QFileDevice::ReadOther;
    QVERIFY(QFile::setPermissions(shared, open));
    QVERIFY(Profile::writeInteger(shared, QStringLiteral("A"), QStringLiteral("k"), 1));
    QCOMPARE(QFile::permissions(shared) & (open | kOthersMayTouch), open);
    QCOMPARE(readFileBytes(shared), QByteArray("[A]\r\nk=1\r\n"));
#endif
    QVERIFY(Profile::writeBool(file, QStringLiteral("datenbank"), QStringLiteral("passwort"), false));
    QCOMPARE(readFileBytes(file), QByteArray("[Datenbank]\r\nPasswort=0\r\n"));
}

void TestIniFile::profileLeavesOtherLinesAlone()
{
    const QString file = path(QStringLiteral("einstellungen.ini"));
    const QByteArray original =
        "; Einstellungen\r\n"
        "[Allgemein]\r\n"
        "Zuletzt=C:\\Masken\\kunden.dbm\r\n"
        "\r\n"
        "  Sprache = de  \r\n"
        "; Ende Allgemein\r\n"
        "\r\n"
        "[DATENBANK]\r\n"
        "Server=db1\r\n"
        "Pfad=\xE4\r\n"
        "\r\n"
        "[Fenster]\r\n"
        "Links=10\r\n";
    QVERIFY(writeFileBytes(file, original));

    // Changing a value touches only its bytes; the key keeps its spelling and blanks.
    QVERIFY(Profile::writeString(file, QStringLiteral("allgemein"), QStringLiteral("SPRACHE"), QStringLiteral("en")));
    QByteArray expected = original;
    expected.replace("  Sprache = de  \r\n", "  Sprache =en\r\n");
    QCOMPARE(readFileBytes(file), expected);

    // A differently spelt section header is found.
    QVERIFY(Profile::writeString(file, QStringLiteral("Datenbank"), QStringLiteral("server"), QStringLiteral("db2")));
    expected.replace("Server=db1", "Server=db2");
    QCOMPARE(readFileBytes(file), expected);

    // A new key joins its section after its last line, before the blank ones.
    QVERIFY(Profile::writeInteger(file, QStringLiteral("Allgemein"), QStringLiteral("Neu"), 7));
    expected.replace("; Ende Allgemein\r\n", "; Ende Allgemein\r\nNeu=7\r\n");
    QCOMPARE(readFileBytes(file), expected);
    QVERIFY(Profile::writeColor(file, QStringLiteral("fenster"), QStringLiteral("Farbe"), clBtnFace));
    expected += "Farbe=clBtnFace\r\n";
    QCOMPARE(readFileBytes(file), expected);

    // A new section goes to the end.
    QVERIFY(Profile::writeString(file, QStringLiteral("Zusatz"), QStringLiteral("Wert"), QStringLiteral("ü")));
    expected += "[Zusatz]\r\nWert=\xFC\r\n";
    QCOMPARE(readFileBytes(file), expected);

    QCOMPARE(Profile::readString(file, QStringLiteral("ZUSATZ"), QStringLiteral("wert"), QString()), QStringLiteral("ü"));
    QCOMPARE(Profile::readInteger(file, QStringLiteral("allgemein"), QStringLiteral("neu"), 0), 7);
    QCOMPARE(Profile::readBool(file, QStringLiteral("Allgemein"), QStringLiteral("Neu"), false), true);
    QCOMPARE(Profile::readColor(file, QStringLiteral("Fenster"), QStringLiteral("Farbe"), clBlack), clBtnFace);
    QCOMPARE(Profile::readString(file, QStringLiteral("Fenster"), QStringLiteral("fehlt"), QStringLiteral("d")),
             QStringLiteral("d"));
}

void TestIniFile::profileKeepsFileStyle()
{
    const struct
    {
        const char *before, *section, *key, *value, *after;
    } cases[] = {
        // LF files get LF lines; a missing final line break is added before new lines.
        {"[A]\nx=1", "A", "y", "2", "[A]\nx=1\ny=2\n"},
        {"[A]\nx=1", "B", "y", "2", "[A]\nx=1\n[B]\ny=2\n"},
        // A lone CR at the very end is half a line end.
        {"[A]\r\nx=1\r", "A", "y", "2", "[A]\r\nx=1\r\ny=2\r\n"},
        {"[A]\r\nx=1\r", "A", "x", "3", "[A]\r\nx=3\r"},
        {"[A]\r\nx=3\r", "B", "y", "4", "[A]\r\nx=3\r\n[B]\r\ny=4\r\n"},
        // A UTF-8 file with its mark stays one, bytes that are no UTF-8 included.
        {"\xEF\xBB\xBF[Größe]\r\nalt=\xFF\xFE\r\nk=1\r\n", "GRÖßE", "K", "€",
         "\xEF\xBB\xBF[Größe]\r\nalt=\xFF\xFE\r\nk=\xE2\x82\xAC\r\n"},
        // An empty file, and one holding only the mark.
        {"\xEF\xBB\xBF", "A", "k", "ä", "\xEF\xBB\xBF[A]\r\nk=\xC3\xA4\r\n"},
        {"", "A", "k", "ä", "[A]\r\nk=\xE4\r\n"},
        // A key in a repeated section is changed where it stands; a new key goes into the first one.
        {"[A]\r\nx=1\r\n[B]\r\n[a]\r\ny=2\r\n", "A", "Y", "3", "[A]\r\nx=1\r\n[B]\r\n[a]\r\ny=3\r\n"},
        {"[A]\r\nx=1\r\n[B]\r\n[a]\r\ny=2\r\n", "A", "z", "4", "[A]\r\nx=1\r\nz=4\r\n[B]\r\n[a]\r\ny=2\r\n"},
        // A comment is no key; a line break in the value stays inside its line.
        {"[A]\r\n;k=1\r\n", "A", "k", "2", "[A]\r\n;k=1\r\nk=2\r\n"},
        {"[A]\r\n", "A", "k", "1\r\n[B]", "[A]\r\nk=1  [B]\r\n"},
    };
    const QString file = path(QStringLiteral("stil.ini"));
    for (const auto &c : cases) {
        QVERIFY(writeFileBytes(file, c.before));
        const QString section = QString::fromUtf8(c.section), key = QString::fromUtf8(c.key);
        const QString value = QString::fromUtf8(c.value);
        QVERIFY(Profile::writeString(file, section, key, value));
        QCOMPARE(readFileBytes(file), QByteArray(c.after));
        if (!value.contains(QLatin1Char('\n')))
            QCOMPARE(Profile::readString(file, section.toLower(), key, QString()), value);
    }
}

void TestIniFile::profileErrors()
{
    QString error;
    const QString nowhere = path(QStringLiteral("fehlt/x.ini"));
    QVERIFY(!Profile::writeString(nowhere, QStringLiteral("A"), QStringLiteral("k"), QStringLiteral("v"), &error));
    QVERIFY2(error.contains(QDir::toNativeSeparators(nowhere)), qPrintable(error));
    error.clear();
    QVERIFY(!Profile::writeString(m_dir->path(), QStringLiteral("A"), QStringLiteral("k"), QStringLiteral("v"), &error));
    QVERIFY(!error.isEmpty());
    QVERIFY(QFileInfo(m_dir->path()).isDir());
    // Reading a missing file gives the default and creates nothing.
    QCOMPARE(Profile::readInteger(nowhere, QStringLiteral("A"), QStringLiteral("k"), 5), 5);
    QVERIFY(!QFile::exists(nowhere));

    const QString file = path(QStringLiteral("x.ini"));
    QVERIFY(writeFileBytes(file, "[A]\r\n"));
    QVERIFY(!Profile::writeString(file, QStringLiteral("A"), QStringLiteral(" "), QStringLiteral("v"), &error));
    QCOMPARE(readFileBytes(file), QByteArray("[A]\r\n"));
#ifdef Q_OS_UNIX
    // A file that cannot be read is not replaced by one holding a single key.
    const QString locked = path(QStringLiteral("gesperrt.ini"));
    QVERIFY(writeFileBytes(locked, "[A]\r\nalt=1\r\n"));
    QVERIFY(QFile::setPermissions(locked, QFileDevice::WriteOwner));
    if (!QFileInfo(locked).isReadable()) {
        error.clear();
        QVERIFY(!Profile::writeString(locked, QStringLiteral("A"), QStringLiteral("k"), QStringLiteral("v"), &error));
        QVERIFY2(error.contains(QStringLiteral("Zugriff verweigert")), qPrintable(error));
        QVERIFY(QFile::setPermissions(locked, QFileDevice::ReadOwner | QFileDevice::WriteOwner));
        QCOMPARE(readFileBytes(locked), QByteArray("[A]\r\nalt=1\r\n"));
    }
#endif
}

QTEST_GUILESS_MAIN(TestIniFile)
#include "test_inifile.moc"
