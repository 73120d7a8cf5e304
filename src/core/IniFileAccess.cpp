#include "IniFileAccess.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRandomGenerator>
#include <QSaveFile>

#include "FileNames.h"

#ifdef Q_OS_UNIX
#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#endif

namespace IniFileAccess {

namespace {

QString nativePath(const QString &fileName)
{
    return QDir::toNativeSeparators(QFileInfo(fileName).absoluteFilePath());
}

enum class Access { Reading, Writing };

QString failure(const QString &fileName, Access access, const QString &reason)
{
    QString message
        = (access == Access::Reading
               ? QCoreApplication::translate("IniFileAccess", "Die Datei „%1“ konnte nicht gelesen werden: %2")
               : QCoreApplication::translate("IniFileAccess", "Die Datei „%1“ konnte nicht geschrieben werden: %2"))
              .arg(nativePath(fileName), reason);
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
        return QCoreApplication::translate("IniFileAccess", "Der Ordner „%1“ existiert nicht")
            .arg(QDir::toNativeSeparators(folder.absoluteFilePath()));
    if (!folder.isDir())
        return QCoreApplication::translate("IniFileAccess", "„%1“ ist kein Ordner")
            .arg(QDir::toNativeSeparators(folder.absoluteFilePath()));
    if (!folder.isWritable() || (info.exists() && !info.isWritable()))
        return QCoreApplication::translate("IniFileAccess", "Zugriff verweigert");
    return fallback;
}

} // namespace

bool readWhole(const QString &fileName, QByteArray *bytes, QString *errorMessage)
{
    bytes->clear();
    if (fileName.isEmpty()) {
        report(errorMessage, QCoreApplication::translate("IniFileAccess", "Es wurde kein Dateiname angegeben."));
        return false;
    }
    const QFileInfo info(fileName);
    const auto fail = [&](const QString &reason) {
        report(errorMessage, failure(fileName, Access::Reading, reason));
        bytes->clear();
        return false;
    };
    if (!info.exists())
        return fail(QCoreApplication::translate("IniFileAccess", "Datei nicht gefunden"));
    if (info.isDir())
        return fail(QCoreApplication::translate("IniFileAccess", "Es ist ein Ordner"));
    // Devices and pipes may never end; only regular files are read.
    if (!info.isFile())
        return fail(QCoreApplication::translate("IniFileAccess", "Es ist keine gewöhnliche Datei"));
    if (info.size() > kMaxFileSize) {
        const qint64 megabytes = (info.size() + (1 << 20) - 1) >> 20;
        report(errorMessage,
               QCoreApplication::translate("IniFileAccess",
                                           "Die Datei „%1“ wird nicht gelesen: Sie ist %2 MB groß, "
                                           "erlaubt sind höchstens %3 MB.")
                   .arg(nativePath(fileName))
                   .arg(megabytes)
                   .arg(kMaxFileSize >> 20));
        return false;
    }
    QFile file(fileName);
    if (!file.open(QIODevice::ReadOnly))
        return fail(info.isReadable() ? file.errorString()
                                      : QCoreApplication::translate("IniFileAccess", "Zugriff verweigert"));
    *bytes = file.readAll();
    if (file.error() != QFileDevice::NoError)
        return fail(file.errorString());
    if (bytes->size() > kMaxFileSize)
        return fail(QCoreApplication::translate("IniFileAccess", "Sie ist größer als %1 MB").arg(kMaxFileSize >> 20));
    return true;
}

namespace {

qint64 systemWrite(int fd, const char *data, qint64 size)
{
#ifdef Q_OS_UNIX
    return ::write(fd, data, size_t(size));
#else
    Q_UNUSED(fd); Q_UNUSED(data); Q_UNUSED(size);
    return -1;
#endif
}

int systemSync(int fd)
{
#ifdef Q_OS_UNIX
    return ::fsync(fd);
#else
    Q_UNUSED(fd);
    return 0;
#endif
}

WriteCalls g_calls{systemWrite, systemSync};

// Links are followed to the file they name, so saving writes through them.
bool followLinks(QString *path)
{
    for (int depth = 0; depth < 40; ++depth) {
        const QFileInfo info(*path);
        if (!info.isSymLink())
            return true;
        *path = info.symLinkTarget();
    }
    return false;
}

#ifdef Q_OS_UNIX
QString systemReason(int error)
{
    switch (error) {
    case ENOSPC:
#ifdef EDQUOT
    case EDQUOT:
#endif
        return QCoreApplication::translate("IniFileAccess", "Auf dem Datenträger ist nicht genug Platz");
    case EACCES:
    case EPERM:
        return QCoreApplication::translate("IniFileAccess", "Zugriff verweigert");
    case EROFS:
        return QCoreApplication::translate("IniFileAccess", "Der Datenträger ist schreibgeschützt");
    case EIO:
        return QCoreApplication::translate("IniFileAccess", "Ein-/Ausgabefehler des Datenträgers");
    default:
        return QString::fromLocal8Bit(std::strerror(error));
    }
}

// Writes all bytes through the write call; false with errno set otherwise.
bool writeAll(int fd, const QByteArray &bytes)
{
    const char *data = bytes.constData();
    qint64 left = bytes.size();
    while (left > 0) {
        const qint64 n = g_calls.write(fd, data, left);
        if (n < 0 && errno == EINTR)
            continue;
        if (n <= 0) {
            if (n == 0)
                errno = ENOSPC;
            return false;
        }
        data += n;
        left -= n;
    }
    return true;
}

// A name beside the target that no other file has.
int createTemporary(const QString &target, QString *tempName)
{
    const QFileInfo info(target);
    for (int attempt = 0; attempt < 100; ++attempt) {
        *tempName = info.absolutePath() + QStringLiteral("/.") + info.fileName() + QLatin1Char('.')
                    + QString::number(QRandomGenerator::global()->generate(), 36) + QStringLiteral(".tmp");
        // Readable by the owner only until it is complete and has its final mode.
        const int fd = ::open(QFile::encodeName(*tempName).constData(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC,
                              0600);
        if (fd >= 0 || errno != EEXIST)
            return fd;
    }
    return -1;
}

mode_t currentUmask()
{
    const mode_t mask = ::umask(0);
    ::umask(mask);
    return mask;
}
#endif

} // namespace

void setWriteCalls(const WriteCalls &calls)
{
    g_calls.write = calls.write ? calls.write : systemWrite;
    g_calls.sync = calls.sync ? calls.sync : systemSync;
}

bool writeWhole(const QString &fileName, const QByteArray &bytes, QString *errorMessage, bool ownerOnlyWhenNew,
                const QString &backupExtension)
{
    if (fileName.isEmpty()) {
        report(errorMessage, QCoreApplication::translate("IniFileAccess", "Es wurde kein Dateiname angegeben."));
        return false;
    }
    const auto failAt = [&](const QString &name, const QString &reason) {
        report(errorMessage, failure(name, Access::Writing, reason));
        return false;
    };
    QString target = fileName;
    if (!followLinks(&target))
        return failAt(fileName, QCoreApplication::translate("IniFileAccess", "Zu viele verkettete Verknüpfungen"));
    const QFileInfo info(target);
    const auto fail = [&](const QString &reason) { return failAt(target, reason); };
    if (info.isDir())
        return fail(QCoreApplication::translate("IniFileAccess", "Es ist ein Ordner"));
    const bool isNew = !info.exists();
    if (!isNew && !info.isFile())
        return fail(QCoreApplication::translate("IniFileAccess", "Es ist keine gewöhnliche Datei"));
    // A file without any write permission is write-protected for everyone,
    // the superuser included, whom the system would let through.
    const auto writeBits = QFileDevice::WriteOwner | QFileDevice::WriteGroup | QFileDevice::WriteOther;
    if (!isNew && (!info.isWritable() || !(info.permissions() & writeBits))) {
        report(errorMessage,
               QCoreApplication::translate("IniFileAccess",
                                           "Die Datei „%1“ ist schreibgeschützt und wurde nicht überschrieben.")
                   .arg(nativePath(target)));
        return false;
    }

#ifdef Q_OS_UNIX
    const QByteArray targetPath = QFile::encodeName(info.absoluteFilePath());
    struct stat old {};
    if (!isNew && ::stat(targetPath.constData(), &old) != 0)
        return fail(systemReason(errno));

    QString tempName;
    const int fd = createTemporary(target, &tempName);
    if (fd < 0)
        return fail(writeFailureReason(info, systemReason(errno)));
    const QByteArray tempPath = QFile::encodeName(tempName);
    const auto abandon = [&](int error) {
        ::close(fd);
        ::unlink(tempPath.constData());
        return fail(systemReason(error));
    };
    if (!writeAll(fd, bytes))
        return abandon(errno);
    // On the disk before it replaces anything: a full or failing disk shows
    // here at the latest, while the old file is still untouched.
    if (g_calls.sync(fd) != 0)
        return abandon(errno);
    if (isNew) {
        if (!ownerOnlyWhenNew && ::fchmod(fd, 0666 & ~currentUmask()) != 0)
            return abandon(errno);
    } else {
        // The owner first: a change of owner may clear mode bits. Only the
        // superuser may give a file away; the group may still be kept.
        if (::fchown(fd, old.st_uid, old.st_gid) != 0)
            (void)::fchown(fd, uid_t(-1), old.st_gid);
        if (::fchmod(fd, old.st_mode & 07777) != 0)
            return abandon(errno);
    }
    if (::close(fd) != 0) {
        const int error = errno;
        ::unlink(tempPath.constData());
        return fail(systemReason(error));
    }

    QByteArray backupPath;
    if (!backupExtension.isEmpty()) {
        backupPath = QFile::encodeName(
            QFileInfo(FileNames::changeFileExt(info.absoluteFilePath(), backupExtension)).absoluteFilePath());
        if (backupPath == targetPath)
            backupPath.clear(); // a backup saved under its own name keeps no backup of itself
    }
    // The previous file becomes the backup, replacing an older one in one step.
    if (!isNew && !backupPath.isEmpty() && ::rename(targetPath.constData(), backupPath.constData()) != 0) {
        const int error = errno;
        ::unlink(tempPath.constData());
        return fail(
            QCoreApplication::translate("IniFileAccess", "Die Sicherungskopie „%1“ konnte nicht angelegt werden: %2")
                .arg(QDir::toNativeSeparators(QFile::decodeName(backupPath)), systemReason(error)));
    }
    if (::rename(tempPath.constData(), targetPath.constData()) != 0) {
        const int error = errno;
        if (!isNew && !backupPath.isEmpty())
            ::rename(backupPath.constData(), targetPath.constData());
        ::unlink(tempPath.constData());
        return fail(systemReason(error));
    }
    // Without a previous file an older backup belongs to nothing any more.
    if (isNew && !backupPath.isEmpty())
        ::unlink(backupPath.constData());
    // The new name itself must reach the disk too.
    const int dir = ::open(QFile::encodeName(info.absolutePath()).constData(), O_RDONLY | O_CLOEXEC);
    if (dir >= 0) {
        ::fsync(dir);
        ::close(dir);
    }
    return true;
#else
    if (!isNew && !backupExtension.isEmpty()) {
        const QString backup = FileNames::changeFileExt(info.absoluteFilePath(), backupExtension);
        if (QFileInfo(backup).absoluteFilePath() != info.absoluteFilePath()) {
            QFile::remove(backup);
            QFile::copy(target, backup);
        }
    }
    QSaveFile file(target);
    if (!file.open(QIODevice::WriteOnly))
        return fail(writeFailureReason(info, file.errorString()));
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
#endif
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
