#include "IniFileAccess.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

namespace IniFileAccess {

namespace {

QString nativePath(const QString &fileName)
{
    return QDir::toNativeSeparators(QFileInfo(fileName).absoluteFilePath());
}

QString failure(const QString &fileName, const char *verb, const QString &reason)
{
    QString message = QStringLiteral("Die Datei „%1“ konnte nicht %2 werden: %3")
                          .arg(nativePath(fileName), QString::fromUtf8(verb), reason);
    if (!message.endsWith(QLatin1Char('.')))
        message += QLatin1Char('.');
    return message;
}

void report(QString *errorMessage, const QString &message)
{
    if (errorMessage)
        *errorMessage = message;
}

// QSaveFile reports "cannot open" without the cause; the folder tells it.
QString writeFailureReason(const QFileInfo &info, const QString &fallback)
{
    const QFileInfo folder(info.absolutePath());
    if (!folder.exists())
        return QStringLiteral("Der Ordner „%1“ existiert nicht")
            .arg(QDir::toNativeSeparators(folder.absoluteFilePath()));
    if (!folder.isDir())
        return QStringLiteral("„%1“ ist kein Ordner").arg(QDir::toNativeSeparators(folder.absoluteFilePath()));
    if (!folder.isWritable() || (info.exists() && !info.isWritable()))
        return QStringLiteral("Zugriff verweigert");
    return fallback;
}

} // namespace

bool readWhole(const QString &fileName, QByteArray *bytes, QString *errorMessage)
{
    bytes->clear();
    if (fileName.isEmpty()) {
        report(errorMessage, QStringLiteral("Es wurde kein Dateiname angegeben."));
        return false;
    }
    const QFileInfo info(fileName);
    const auto fail = [&](const QString &reason) {
        report(errorMessage, failure(fileName, "gelesen", reason));
        bytes->clear();
        return false;
    };
    if (!info.exists())
        return fail(QStringLiteral("Datei nicht gefunden"));
    if (info.isDir())
        return fail(QStringLiteral("Es ist ein Ordner"));
    // Devices and pipes may never end; only regular files are read.
    if (!info.isFile())
        return fail(QStringLiteral("Es ist keine gewöhnliche Datei"));
    if (info.size() > kMaxFileSize) {
        const qint64 megabytes = (info.size() + (1 << 20) - 1) >> 20;
        report(errorMessage, QStringLiteral("Die Datei „%1“ wird nicht gelesen: Sie ist %2 MB groß, "
                                            "erlaubt sind höchstens %3 MB.")
                                 .arg(nativePath(fileName))
                                 .arg(megabytes)
                                 .arg(kMaxFileSize >> 20));
        return false;
    }
    QFile file(fileName);
    if (!file.open(QIODevice::ReadOnly))
        return fail(info.isReadable() ? file.errorString() : QStringLiteral("Zugriff verweigert"));
    *bytes = file.readAll();
    if (file.error() != QFileDevice::NoError)
        return fail(file.errorString());
    if (bytes->size() > kMaxFileSize)
        return fail(QStringLiteral("Sie ist größer als %1 MB").arg(kMaxFileSize >> 20));
    return true;
}

bool writeWhole(const QString &fileName, const QByteArray &bytes, QString *errorMessage,
                bool ownerOnlyWhenNew)
{
    if (fileName.isEmpty()) {
        report(errorMessage, QStringLiteral("Es wurde kein Dateiname angegeben."));
        return false;
    }
    const QFileInfo info(fileName);
    const auto fail = [&](const QString &reason) {
        report(errorMessage, failure(fileName, "geschrieben", reason));
        return false;
    };
    if (info.isDir())
        return fail(QStringLiteral("Es ist ein Ordner"));
    const bool isNew = !info.exists();

    QSaveFile file(fileName);
    if (!file.open(QIODevice::WriteOnly))
        return fail(writeFailureReason(info, file.errorString()));
    // Restricted before the first byte is written, so the content is never
    // readable by others, not even for a moment.
    if (isNew && ownerOnlyWhenNew)
        file.setPermissions(QFileDevice::ReadOwner | QFileDevice::WriteOwner);
    if (file.write(bytes) != bytes.size()) {
        const QString reason = file.errorString();
        file.cancelWriting();
        return fail(reason);
    }
    if (!file.commit())
        return fail(writeFailureReason(info, file.errorString()));
    return true;
}

QStringView trimmed(QStringView text)
{
    qsizetype begin = 0;
    qsizetype end = text.size();
    while (begin < end && isBlank(text[begin].unicode()))
        ++begin;
    while (end > begin && isBlank(text[end - 1].unicode()))
        --end;
    return text.mid(begin, end - begin);
}

bool sectionHeader(QStringView line, QStringView *name)
{
    const QStringView t = trimmed(line);
    if (t.isEmpty() || t.front() != QLatin1Char('['))
        return false;
    const qsizetype close = t.indexOf(QLatin1Char(']'), 1);
    if (close < 0)
        return false;
    *name = trimmed(t.mid(1, close - 1));
    return true;
}

namespace {
inline char16_t fold(char16_t c)
{
    if (c < 0x80)
        return (c >= 'A' && c <= 'Z') ? char16_t(c + 32) : c;
    return char16_t(QChar::toCaseFolded(char32_t(c)));
}
} // namespace

bool sameName(QStringView a, QStringView b)
{
    if (a.size() != b.size())
        return false;
    const char16_t *pa = a.utf16();
    const char16_t *pb = b.utf16();
    for (qsizetype i = 0, n = a.size(); i < n; ++i)
        if (pa[i] != pb[i] && fold(pa[i]) != fold(pb[i]))
            return false;
    return true;
}

size_t nameHash(QStringView name, size_t seed)
{
    // FNV-1a over the folded characters.
    size_t h = size_t(14695981039346656037ull) ^ seed;
    const char16_t *p = name.utf16();
    for (qsizetype i = 0, n = name.size(); i < n; ++i) {
        h ^= fold(p[i]);
        h *= size_t(1099511628211ull);
    }
    return h;
}

QString singleLine(const QString &text)
{
    if (!text.contains(QLatin1Char('\n')) && !text.contains(QLatin1Char('\r')))
        return text;
    QString result = text;
    result.replace(QLatin1Char('\r'), QLatin1Char(' ')).replace(QLatin1Char('\n'), QLatin1Char(' '));
    return result;
}

} // namespace IniFileAccess
