#include "TextCodec.h"

#include <array>

namespace {

// 0x80..0x9F; the unassigned bytes keep their own number.
constexpr char16_t kHighControlRange[32] = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, //
    0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x008D, 0x017D, 0x008F, //
    0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014, //
    0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178, //
};

constexpr std::array<char16_t, 256> makeDecodeTable()
{
    std::array<char16_t, 256> table{};
    for (int b = 0; b < 256; ++b)
        table[b] = (b >= 0x80 && b < 0xA0) ? kHighControlRange[b - 0x80] : char16_t(b);
    return table;
}

constexpr std::array<char16_t, 256> kDecodeTable = makeDecodeTable();

// The byte for a character outside Latin-1, or 0 when the code page lacks it.
char encodeSpecial(char16_t c)
{
    for (int i = 0; i < 32; ++i)
        if (kHighControlRange[i] == c)
            return char(0x80 + i);
    return 0;
}

bool isAssigned(char16_t c)
{
    // U+0080..U+009F only stand for themselves where the byte is unassigned;
    // the other bytes of that range mean other characters.
    return c < 0x80 || c >= 0xA0 || kDecodeTable[c] == c;
}

} // namespace

namespace TextCodec {

QString decodeWindows1252(const QByteArray &bytes)
{
    const qsizetype n = bytes.size();
    QString text(n, Qt::Uninitialized);
    const auto *in = reinterpret_cast<const unsigned char *>(bytes.constData());
    auto *out = reinterpret_cast<char16_t *>(text.data());
    for (qsizetype i = 0; i < n; ++i)
        out[i] = kDecodeTable[in[i]];
    return text;
}

QByteArray encodeWindows1252(const QString &text)
{
    const qsizetype n = text.size();
    QByteArray bytes(n, Qt::Uninitialized);
    const auto *in = reinterpret_cast<const char16_t *>(text.constData());
    char *out = bytes.data();
    qsizetype o = 0;
    for (qsizetype i = 0; i < n; ++i) {
        const char16_t c = in[i];
        if (c < 0x100) {
            out[o++] = isAssigned(c) ? char(c) : '?';
            continue;
        }
        if (const char b = encodeSpecial(c)) {
            out[o++] = b;
            continue;
        }
        // A surrogate pair is one character and becomes one "?".
        if (QChar::isHighSurrogate(c) && i + 1 < n && QChar::isLowSurrogate(in[i + 1]))
            ++i;
        out[o++] = '?';
    }
    bytes.truncate(o);
    return bytes;
}

QString decodeFileText(const QByteArray &bytes)
{
    if (bytes.startsWith("\xEF\xBB\xBF"))
        return QString::fromUtf8(QByteArrayView(bytes).sliced(3));
    return decodeWindows1252(bytes);
}

} // namespace TextCodec
