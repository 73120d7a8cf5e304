#include "FileNames.h"

namespace {
int lastSeparator(const QString &fileName)
{
    return int(qMax(fileName.lastIndexOf(QLatin1Char('/')), fileName.lastIndexOf(QLatin1Char('\\'))));
}
} // namespace

namespace FileNames {

QString extractFilePath(const QString &fileName)
{
    return fileName.left(lastSeparator(fileName) + 1);
}

QString extractFileName(const QString &fileName)
{
    return fileName.mid(lastSeparator(fileName) + 1);
}

QString changeFileExt(const QString &fileName, const QString &newExt)
{
    const int dot = int(fileName.lastIndexOf(QLatin1Char('.')));
    if (dot <= lastSeparator(fileName))
        return fileName + newExt;
    return fileName.left(dot) + newExt;
}

} // namespace FileNames
