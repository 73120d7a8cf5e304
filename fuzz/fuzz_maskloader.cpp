// The mask loader through the document model: any file loads into a
// document without a window, and saving what was loaded works.
#include "FuzzSupport.h"
#include "MaskDocument.h"
#include "MaskLoader.h"
#include "MaskWriter.h"
#include "IniFile.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

FEROLITH_FUZZ_INIT

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    static QTemporaryDir dir;
    static const QString file = dir.filePath(QStringLiteral("fuzz.dbm"));
    static const QString database = dir.path() + QLatin1Char('/');
    {
        QFile out(file);
        if (!out.open(QIODevice::WriteOnly | QIODevice::Truncate))
            return 0;
        out.write(reinterpret_cast<const char *>(data), qint64(size));
    }
    TMaskDocument document;
    MaskLoader::LoadMask(document, file, database, nullptr);
    const QByteArray saved = MaskWriter::MaskFileBytes(document);
    // Nothing the mask holds (pick-list items, names, texts) may change its
    // header when the saved file is read again: the title reads back as a
    // file holding only the title would give it.
    TMemIniFile back;
    back.setBytes(saved);
    TMemIniFile alone;
    alone.writeString(QStringLiteral("Datenbank"), QStringLiteral("Titel"), document.Titel());
    alone.setBytes(alone.toBytes());
    const QString title = QStringLiteral("Titel");
    if (back.readString(QStringLiteral("Datenbank"), title, QString())
        != alone.readString(QStringLiteral("Datenbank"), title, QString()))
        __builtin_trap();
    return 0;
}
