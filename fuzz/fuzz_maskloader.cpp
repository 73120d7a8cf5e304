// The mask loader through the document model: any file loads into a
// document without a window, and saving what was loaded works.
#include "FuzzSupport.h"
#include "MaskDocument.h"
#include "MaskLoader.h"
#include "MaskWriter.h"

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
    // What was saved loads again.
    {
        QFile out(file);
        if (!out.open(QIODevice::WriteOnly | QIODevice::Truncate))
            return 0;
        out.write(saved);
    }
    TMaskDocument again;
    MaskLoader::LoadMask(again, file, database, nullptr);
    return 0;
}
