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

// Writes through a temporary file that replaces the target only when complete.
// ownerOnlyWhenNew: a file that did not exist before is made readable and
// writable by its owner only (it may hold a password); an existing file keeps
// its permissions.
bool writeWhole(const QString &fileName, const QByteArray &bytes, QString *errorMessage,
                bool ownerOnlyWhenNew = false);

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
