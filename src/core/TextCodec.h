#pragma once

#include <QByteArray>
#include <QString>

// The 8-bit code page of mask and settings files: Windows-1252.
namespace TextCodec {

// Every byte maps to one character (the five unassigned bytes to the C1
// control characters of the same number), so decoding never fails and any
// byte sequence survives a decode/encode round trip.
QString decodeWindows1252(const QByteArray &bytes);
// Characters that Windows-1252 cannot hold become "?".
QByteArray encodeWindows1252(const QString &text);

// A file's text: UTF-8 when it starts with the UTF-8 byte-order mark (the
// mark is dropped), Windows-1252 otherwise.
QString decodeFileText(const QByteArray &bytes);

} // namespace TextCodec
