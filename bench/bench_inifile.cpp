// Speed of mask file reading and writing on a 10 MB file shaped like a large mask.
// Prints the best of five runs per step.

#include "IniFile.h"
#include "TextCodec.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QTemporaryDir>
#include <QTextStream>

#include <algorithm>
#include <cstdio>
#include <functional>
#include <limits>

namespace {

const char *const kKeys[] = {"Parent", "Name",   "Desc",    "Left",     "Top",     "Height", "Width",
                             "Color",  "FName",  "FSize",   "FStyle",   "FColor",  "TabOrder", "Visible",
                             "Field",  "Table",  "Format",  "ReadOnly", "Hint",    "Caption"};

QByteArray makeMask(qsizetype targetBytes, int *sectionCount)
{
    TMemIniFile ini;
    int n = 0;
    qsizetype size = 0;
    while (size < targetBytes) {
        const QString s = QStringLiteral("Field_%1").arg(n);
        const QString num = QString::number(n);
        const auto put = [&](const char *key, const QString &value) {
            ini.writeString(s, QString::fromLatin1(key), value);
            size += qsizetype(qstrlen(key)) + value.size() + 3;
        };
        put("Parent", QStringLiteral("Panel_%1").arg(n / 40));
        put("Name", QStringLiteral("Edit") + num);
        put("Desc", QStringLiteral("Straßenname und Hausnummer Nr. ") + num);
        put("Left", QString::number(8 + (n % 7) * 120));
        put("Top", QString::number(8 + (n % 31) * 24));
        put("Height", QStringLiteral("21"));
        put("Width", QStringLiteral("113"));
        put("Color", QStringLiteral("clWindow"));
        put("FName", QStringLiteral("Arial"));
        put("FSize", QStringLiteral("10"));
        put("FStyle", QStringLiteral("B"));
        put("FColor", QStringLiteral("clWindowText"));
        put("TabOrder", num);
        put("Visible", QStringLiteral("1"));
        put("Field", QStringLiteral("Größe_") + num);
        put("Table", QStringLiteral("Kunden"));
        put("Format", QStringLiteral("#,##0.00 €"));
        put("ReadOnly", n % 5 == 0 ? QStringLiteral("1") : QStringLiteral("0"));
        put("Hint", QStringLiteral("Bitte die Öffnungszeiten prüfen  "));
        put("Caption", QStringLiteral("Übersicht ") + num);
        size += s.size() + 6;
        ++n;
    }
    *sectionCount = n;
    return ini.toBytes();
}

// prepare runs untimed before each run.
double bestOf(int runs, const std::function<void()> &step, const std::function<void()> &prepare = {})
{
    double best = std::numeric_limits<double>::max();
    for (int i = 0; i < runs; ++i) {
        if (prepare)
            prepare();
        QElapsedTimer timer;
        timer.start();
        step();
        best = std::min(best, timer.nsecsElapsed() / 1e6);
    }
    return best;
}

void printRow(const char *what, double ms, qsizetype bytes)
{
    const double mbPerSecond = ms > 0 ? (bytes / 1048576.0) / (ms / 1000.0) : 0;
    std::printf("%-28s %10.2f ms %10.1f MB/s\n", what, ms, mbPerSecond);
}

} // namespace

int main(int argc, char **argv)
{
    QCoreApplication app(argc, argv);
    QTemporaryDir dir;
    if (!dir.isValid()) {
        std::fprintf(stderr, "no temporary folder\n");
        return 1;
    }
    int sections = 0;
    const QByteArray bytes = makeMask(10 * 1024 * 1024, &sections);
    const QString file = dir.filePath(QStringLiteral("gross.dbm"));
    {
        QFile f(file);
        if (!f.open(QIODevice::WriteOnly) || f.write(bytes) != bytes.size()) {
            std::fprintf(stderr, "cannot write %s\n", qPrintable(file));
            return 1;
        }
    }
    const qsizetype size = bytes.size();
    std::printf("Mask file: %.1f MB, %d sections, %d keys\n\n", size / 1048576.0, sections,
                sections * int(std::size(kKeys)));
    std::printf("%-28s %13s %15s\n", "step (best of 5)", "time", "throughput");

    const int runs = 5;
    volatile qsizetype sink = 0;

    printRow("read bytes (QFile)", bestOf(runs, [&] {
                 QFile f(file);
                 f.open(QIODevice::ReadOnly);
                 sink = f.readAll().size();
             }), size);

    QString text;
    printRow("decode Windows-1252", bestOf(runs, [&] { text = TextCodec::decodeWindows1252(bytes); }), size);
    printRow("encode Windows-1252", bestOf(runs, [&] { sink = TextCodec::encodeWindows1252(text).size(); }), size);

    // Reading into an empty object; freeing the old content is timed on its own.
    TMemIniFile ini;
    const auto empty = [&] { ini.clear(); };
    printRow("parse (setBytes)", bestOf(runs, [&] { ini.setBytes(bytes); }, empty), size);
    printRow("load", bestOf(runs, [&] { ini.load(file); }, empty), size);
    printRow("clear", bestOf(runs, [&] { ini.clear(); }, [&] { ini.setBytes(bytes); }), size);
    ini.setBytes(bytes);
    printRow("text()", bestOf(runs, [&] { sink = ini.text().size(); }), size);
    const QString out = dir.filePath(QStringLiteral("kopie.dbm"));
    printRow("save", bestOf(runs, [&] { ini.save(out); }), size);

    QStringList sectionNames;
    for (int i = 0; i < sections; ++i)
        sectionNames << QStringLiteral("FIELD_%1").arg(i);
    QStringList keys;
    for (const char *k : kKeys)
        keys << QString::fromLatin1(k).toLower();
    const double lookupMs = bestOf(runs, [&] {
        qsizetype found = 0;
        for (const QString &s : std::as_const(sectionNames))
            for (const QString &k : std::as_const(keys))
                found += ini.readString(s, k, QString()).size();
        sink = found;
    });
    printRow("look up every key", lookupMs, size);
    std::printf("%-28s %10.1f ns per key\n", "", lookupMs * 1e6 / (double(sections) * keys.size()));

    // Shapes that punish anything quadratic.
    std::printf("\n");
    QByteArray manySections;
    const int million = 1000000;
    for (int i = 0; i < million; ++i)
        manySections += "[S_" + QByteArray::number(i) + "]\r\nv=" + QByteArray::number(i) + "\r\n";
    TMemIniFile big;
    printRow("1,000,000 sections: parse", bestOf(3, [&] { big.setBytes(manySections); },
                                                  [&] { big.clear(); }), manySections.size());
    printRow("  look up each section", bestOf(3, [&] {
                 qsizetype found = 0;
                 for (int i = 0; i < million; i += 1)
                     found += big.readInteger(QStringLiteral("s_%1").arg(i), QStringLiteral("V"), 0);
                 sink = found;
             }), manySections.size());
    big.clear();

    QByteArray manyKeys = "[Liste]\r\n";
    const int keyCount = 100000;
    for (int i = 0; i < keyCount; ++i)
        manyKeys += "Eintrag" + QByteArray::number(i) + "=" + QByteArray::number(i) + "\r\n";
    printRow("100,000 keys, one section", bestOf(3, [&] { big.setBytes(manyKeys); },
                                                  [&] { big.clear(); }), manyKeys.size());
    printRow("  delete every other key", bestOf(3, [&] {
                 for (int i = 0; i < keyCount; i += 2)
                     big.deleteKey(QStringLiteral("LISTE"), QStringLiteral("eintrag%1").arg(i));
             }, [&] { big.setBytes(manyKeys); }), manyKeys.size());

    const bool same = QFile(out).size() == size;
    std::printf("\nsaved copy %s the original size\n", same ? "has" : "DOES NOT have");
    return same ? 0 : 1;
}
