#include "IniFile.h"

#include "IniFileAccess.h"
#include "TextCodec.h"
#include "ValueEncodings.h"

#include <QCoreApplication>
#include <QFileInfo>

using namespace IniFileAccess;

namespace {

TMemIniFile readProfile(const QString &fileName)
{
    TMemIniFile ini;
    QByteArray bytes;
    if (readWhole(fileName, &bytes, nullptr))
        ini.setBytes(bytes);
    return ini;
}

// The settings file edited as bytes, so that every line but the one written
// keeps its bytes, even ones that do not decode cleanly.
class ProfileBytes
{
public:
    explicit ProfileBytes(QByteArray bytes) : m_bytes(std::move(bytes))
    {
        m_utf8 = m_bytes.startsWith("\xEF\xBB\xBF");
        qsizetype pos = m_utf8 ? 3 : 0;
        while (pos < m_bytes.size()) {
            const qsizetype lf = m_bytes.indexOf('\n', pos);
            if (lf < 0) {
                const qsizetype end = m_bytes.size();
                m_lines.append({pos, m_bytes.endsWith('\r') ? end - 1 : end, end});
                break;
            }
            const qsizetype contentEnd = lf > pos && m_bytes.at(lf - 1) == '\r' ? lf - 1 : lf;
            m_lines.append({pos, contentEnd, lf + 1});
            pos = lf + 1;
        }
        // New lines follow the file's own line ends.
        for (const Line &l : m_lines) {
            if (l.end > l.contentEnd) {
                m_eol = l.end - l.contentEnd == 1 ? QByteArray("\n") : QByteArray("\r\n");
                break;
            }
        }
    }

    void write(const QString &section, const QString &key, const QString &value)
    {
        int firstHeader = -1;
        int lastFilled = -1; // last non-blank line of the first matching section
        bool inSection = false;
        // Sections with the same name count as one for reading, but new keys
        // go into the first of them.
        bool inFirst = false;
        for (int i = 0; i < m_lines.size(); ++i) {
            const QString text = decode(m_lines.at(i).begin, m_lines.at(i).contentEnd);
            QStringView name;
            if (sectionHeader(text, &name)) {
                inSection = sameName(name, section);
                inFirst = inSection && firstHeader < 0;
                if (inFirst)
                    firstHeader = lastFilled = i;
                continue;
            }
            if (!inSection || trimmed(text).isEmpty())
                continue;
            if (inFirst)
                lastFilled = i;
            if (trimmed(text).front() == QLatin1Char(';'))
                continue;
            // "=" is one byte in both encodings and never part of another character.
            const Line &l = m_lines.at(i);
            const qsizetype eq = QByteArrayView(m_bytes).sliced(l.begin, l.contentEnd - l.begin).indexOf('=');
            if (eq < 0)
                continue;
            if (sameName(trimmed(decode(l.begin, l.begin + eq)), key)) {
                // Only the value changes; the key keeps its spelling and spacing.
                m_bytes.replace(l.begin + eq + 1, l.contentEnd - l.begin - eq - 1, encode(value));
                return;
            }
        }

        const QByteArray entry = encode(key) + '=' + encode(value) + m_eol;
        if (firstHeader >= 0) {
            const qsizetype at = m_lines.at(lastFilled).end;
            m_bytes.insert(at, breakBefore(at) + entry);
            return;
        }
        m_bytes += breakBefore(m_bytes.size()) + '[' + encode(section) + ']' + m_eol + entry;
    }

    const QByteArray &bytes() const { return m_bytes; }

private:
    struct Line
    {
        qsizetype begin;
        qsizetype contentEnd; // before CR LF or LF
        qsizetype end;        // after them
    };

    // What must come before text inserted at pos so that it starts a line:
    // nothing after a line end or at the start, the LF to a lone CR at the
    // end of the file, a whole line end after a last line without one.
    QByteArray breakBefore(qsizetype pos) const
    {
        if (pos <= (m_utf8 ? 3 : 0) || m_bytes.at(pos - 1) == '\n')
            return QByteArray();
        return m_bytes.at(pos - 1) == '\r' ? QByteArray("\n") : m_eol;
    }

    QString decode(qsizetype begin, qsizetype end) const
    {
        const QByteArray part = m_bytes.mid(begin, end - begin);
        return m_utf8 ? QString::fromUtf8(part) : TextCodec::decodeWindows1252(part);
    }

    QByteArray encode(const QString &text) const
    {
        const QString line = singleLine(text);
        return m_utf8 ? line.toUtf8() : TextCodec::encodeWindows1252(line);
    }

    QByteArray m_bytes;
    QVector<Line> m_lines;
    QByteArray m_eol = QByteArrayLiteral("\r\n");
    bool m_utf8 = false;
};

} // namespace

namespace Profile {

QString readString(const QString &fileName, const QString &section, const QString &key,
                   const QString &defaultValue)
{
    return readProfile(fileName).readString(section, key, defaultValue);
}

qint32 readInteger(const QString &fileName, const QString &section, const QString &key, qint32 defaultValue)
{
    return readProfile(fileName).readInteger(section, key, defaultValue);
}

bool readBool(const QString &fileName, const QString &section, const QString &key, bool defaultValue)
{
    return readProfile(fileName).readBool(section, key, defaultValue);
}

TColor readColor(const QString &fileName, const QString &section, const QString &key, TColor defaultValue)
{
    return readProfile(fileName).readColor(section, key, defaultValue);
}

bool writeString(const QString &fileName, const QString &section, const QString &key,
                 const QString &value, QString *errorMessage)
{
    if (trimmed(key).isEmpty()) {
        if (errorMessage)
            *errorMessage = QCoreApplication::translate(
                "Profile", "Ein Eintrag ohne Schlüsselnamen kann nicht geschrieben werden.");
        return false;
    }
    QByteArray bytes;
    // A file that exists but cannot be read must not be replaced by one key.
    if (QFileInfo::exists(fileName) && !readWhole(fileName, &bytes, errorMessage))
        return false;
    ProfileBytes profile(bytes);
    profile.write(section, key, value);
    return writeWhole(fileName, profile.bytes(), errorMessage, true);
}

bool writeInteger(const QString &fileName, const QString &section, const QString &key, qint32 value,
                  QString *errorMessage)
{
    return writeString(fileName, section, key, QString::number(value), errorMessage);
}

bool writeBool(const QString &fileName, const QString &section, const QString &key, bool value,
               QString *errorMessage)
{
    return writeString(fileName, section, key, BoolToString(value), errorMessage);
}

bool writeColor(const QString &fileName, const QString &section, const QString &key, TColor value,
                QString *errorMessage)
{
    return writeString(fileName, section, key, ColorToString(value), errorMessage);
}

} // namespace Profile
