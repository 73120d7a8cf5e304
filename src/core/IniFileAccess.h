#pragma once

#include <QByteArray>
#include <QString>
#include <QStringView>

// Shared by TMemIniFile and the profile functions: whole-file reading and
// writing with German error messages, and the line rules both agree on.
namespace IniFileAccess {

// Files above this size are refused rather than read into memory.
constexpr qint64 kMaxFileSize = qint64(1) << 30;

bool readWhole(const QString &fileName, QByteArray *bytes, QString *errorMessage);

// Writes through a temporary file in the target's folder that replaces the
// target only when every byte is written and flushed to the disk. A symbolic
// link is written through to its target; an existing file keeps its mode and
// (where the system allows) its owner; a write-protected file is refused.
// ownerOnlyWhenNew: a file that did not exist before is made readable and
// writable by its owner only (it may hold a password).
// backupExtension (e.g. ".dbm_bak"): the file being replaced becomes the file
// of that extension beside it, replacing an older one, at the moment the new
// file takes its place. On failure the file and its backup are as they were.
bool writeWhole(const QString &fileName, const QByteArray &bytes, QString *errorMessage,
                bool ownerOnlyWhenNew = false, const QString &backupExtension = QString());

// The system calls the writing goes through, replaceable so that tests can
// make the disk fail at any byte. Each works as its POSIX namesake; nullptr
// restores the system's own.
struct WriteCalls
{
    qint64 (*write)(int fd, const char *data, qint64 size) = nullptr;
    int (*sync)(int fd) = nullptr;
};
void setWriteCalls(const WriteCalls &calls);

// Blanks and control characters, as the trimming of keys and lines treats them.
inline bool isBlank(char16_t c) { return c <= 0x20; }
QStringView trimmed(QStringView text);

// A section header is a line whose trimmed text starts with "[" and has a "]"
// after it; the name lies between them, trimmed. False for other lines.
bool sectionHeader(QStringView line, QStringView *name);

// Case-insensitive comparison and a hash that agrees with it.
bool sameName(QStringView a, QStringView b);
size_t nameHash(QStringView name, size_t seed);

// Line breaks inside a key or value would split the line; they become blanks.
QString singleLine(const QString &text);

} // namespace IniFileAccess
