#include "IniFile.h"

#include "IniFileAccess.h"
#include "TextCodec.h"
#include "ValueEncodings.h"

using namespace IniFileAccess;

namespace {
// Sections up to this many lines are searched key by key.
constexpr int kIndexThreshold = 32;
// Gaps are squeezed out once they are this many and half of their list.
constexpr int kMinGapsToCompact = 16;
// Mask files repeat the same few dozen key names thousands of times; sharing
// one string per name saves an allocation per line when reading.
class KeyCache
{
public:
    QString get(QStringView key)
    {
        if (key.isEmpty())
            return QString();
        // Length and three characters tell the usual keys apart well enough.
        const size_t n = size_t(key.size());
        const size_t h = n * 131 + key.front().unicode() * 31 + key[n / 2].unicode() * 7 + key.back().unicode();
        QString &slot = m_slots[h % kSlots];
        if (slot != key)
            slot = key.toString();
        return slot;
    }

private:
    static constexpr size_t kSlots = 256;
    QString m_slots[kSlots];
};

} // namespace

bool TMemIniFile::Name::equal(const Name &a, const Name &b)
{
    return sameName(a.text, b.text);
}

size_t TMemIniFile::Name::hash(const Name &name, size_t seed)
{
    return nameHash(name.text, seed);
}

TMemIniFile::TMemIniFile(const QString &fileName)
{
    load(fileName);
}

bool TMemIniFile::load(const QString &fileName, QString *errorMessage)
{
    m_fileName = fileName;
    clear();
    QByteArray bytes;
    if (!readWhole(fileName, &bytes, errorMessage))
        return false;
    setBytes(bytes);
    return true;
}

bool TMemIniFile::save(const QString &fileName, QString *errorMessage) const
{
    return writeWhole(fileName.isEmpty() ? m_fileName : fileName, toBytes(), errorMessage);
}

void TMemIniFile::setBytes(const QByteArray &bytes)
{
    setText(TextCodec::decodeFileText(bytes));
}

QByteArray TMemIniFile::toBytes() const
{
    return TextCodec::encodeWindows1252(text());
}

void TMemIniFile::clear()
{
    m_sections.clear();
    m_sectionIndex.clear();
    m_erasedSections = 0;
}

void TMemIniFile::setText(const QString &text)
{
    clear();
    const QStringView all(text);
    KeyCache keys;
    qsizetype current = -1; // an index: appending sections moves them
    qsizetype linesSinceHeader = 0;
    qsizetype pos = 0;
    while (pos < all.size()) {
        qsizetype end = all.indexOf(QLatin1Char('\n'), pos);
        if (end < 0)
            end = all.size();
        QStringView line = all.mid(pos, end - pos);
        pos = end + 1;
        if (line.endsWith(QLatin1Char('\r')))
            line.chop(1);

        const QStringView t = trimmed(line);
        if (t.isEmpty())
            continue;
        QStringView name;
        if (sectionHeader(t, &name)) {
            current = sectionFor(name.toString());
            // Sections of one file tend to have alike sizes; this saves regrowing.
            // The hint counts lines read, so all reserved room stays within the
            // size of the input even when sections repeat.
            QVector<Line> &lines = m_sections[current].lines;
            if (lines.capacity() == 0)
                lines.reserve(linesSinceHeader);
            linesSinceHeader = 0;
            continue;
        }
        if (current < 0)
            continue; // nothing before the first section belongs anywhere
        const qsizetype eq = t.front() == QLatin1Char(';') ? -1 : line.indexOf(QLatin1Char('='));
        const QStringView key = eq < 0 ? QStringView() : trimmed(line.left(eq));
        ++linesSinceHeader;
        Section &section = m_sections[current];
        if (key.isEmpty())
            appendLine(section, Line{QString(), line.toString(), true});
        else
            appendLine(section, Line{keys.get(key), line.mid(eq + 1).toString(), false});
    }
}

QString TMemIniFile::text() const
{
    const QLatin1String crlf("\r\n");
    qsizetype size = 0;
    for (const Section &s : m_sections) {
        if (s.erased)
            continue;
        size += s.name.size() + 6;
        for (const Line &l : s.lines)
            if (!l.erased)
                size += l.key.size() + l.value.size() + 3;
    }
    QString out;
    out.reserve(size);
    for (const Section &s : m_sections) {
        if (s.erased)
            continue;
        out += QLatin1Char('[');
        out += s.name;
        out += QLatin1Char(']');
        out += crlf;
        for (const Line &l : s.lines) {
            if (l.erased)
                continue;
            if (!l.raw) {
                out += l.key;
                out += QLatin1Char('=');
            }
            out += l.value;
            out += crlf;
        }
        out += crlf;
    }
    return out;
}

const TMemIniFile::Section *TMemIniFile::findSection(const QString &name) const
{
    const auto it = m_sectionIndex.constFind(Name{name});
    return it == m_sectionIndex.cend() ? nullptr : &m_sections[*it];
}

TMemIniFile::Section *TMemIniFile::findSection(const QString &name)
{
    const auto it = m_sectionIndex.constFind(Name{name});
    return it == m_sectionIndex.cend() ? nullptr : &m_sections[*it];
}

int TMemIniFile::sectionFor(const QString &name)
{
    const qsizetype before = m_sectionIndex.size();
    int &slot = m_sectionIndex[Name{name}];
    if (m_sectionIndex.size() != before) {
        slot = int(m_sections.size());
        Section s;
        s.name = name;
        m_sections.append(std::move(s));
    }
    return slot;
}

int TMemIniFile::findKey(const Section &section, const QString &key) const
{
    if (section.indexed)
        return section.keyIndex.value(Name{key}, -1);
    for (int i = 0; i < section.lines.size(); ++i) {
        const Line &l = section.lines.at(i);
        if (!l.raw && !l.erased && sameName(l.key, key))
            return i;
    }
    return -1;
}

void TMemIniFile::appendLine(Section &section, Line line)
{
    const int index = int(section.lines.size());
    section.lines.append(std::move(line));
    if (section.indexed) {
        const Line &l = section.lines.last();
        if (l.raw)
            return;
        const qsizetype before = section.keyIndex.size();
        int &slot = section.keyIndex[Name{l.key}];
        if (section.keyIndex.size() != before)
            slot = index;
        else
            section.duplicateKeys = true;
    } else if (section.lines.size() > kIndexThreshold) {
        indexKeys(section);
    }
}

void TMemIniFile::indexKeys(Section &section)
{
    section.keyIndex.clear();
    section.duplicateKeys = false;
    section.indexed = section.lines.size() - section.erasedLines > kIndexThreshold;
    if (!section.indexed)
        return;
    for (int i = 0; i < section.lines.size(); ++i) {
        const Line &l = section.lines.at(i);
        if (l.raw || l.erased)
            continue;
        const qsizetype before = section.keyIndex.size();
        int &slot = section.keyIndex[Name{l.key}];
        if (section.keyIndex.size() != before)
            slot = i;
        else
            section.duplicateKeys = true;
    }
}

void TMemIniFile::eraseLine(Section &section, int index)
{
    Line &l = section.lines[index];
    l.erased = true;
    l.key.clear();
    l.value.clear();
    ++section.erasedLines;
}

void TMemIniFile::compactLines(Section &section)
{
    if (section.erasedLines < kMinGapsToCompact || section.erasedLines * 2 < section.lines.size())
        return;
    section.lines.removeIf([](const Line &l) { return l.erased; });
    section.erasedLines = 0;
    indexKeys(section);
}

void TMemIniFile::rebuildSectionIndex()
{
    m_sections.removeIf([](const Section &s) { return s.erased; });
    m_erasedSections = 0;
    m_sectionIndex.clear();
    m_sectionIndex.reserve(m_sections.size());
    for (int i = 0; i < m_sections.size(); ++i)
        m_sectionIndex.insert(Name{m_sections.at(i).name}, i);
}

bool TMemIniFile::sectionExists(const QString &section) const
{
    return findSection(section) != nullptr;
}

bool TMemIniFile::valueExists(const QString &section, const QString &key) const
{
    const Section *s = findSection(section);
    return s && findKey(*s, key) >= 0;
}

QString TMemIniFile::readString(const QString &section, const QString &key, const QString &defaultValue) const
{
    const Section *s = findSection(section);
    const int i = s ? findKey(*s, key) : -1;
    return i < 0 ? defaultValue : s->lines.at(i).value;
}

qint32 TMemIniFile::readInteger(const QString &section, const QString &key, qint32 defaultValue) const
{
    const Section *s = findSection(section);
    const int i = s ? findKey(*s, key) : -1;
    return i < 0 ? defaultValue : StringToIntDef(s->lines.at(i).value, defaultValue);
}

bool TMemIniFile::readBool(const QString &section, const QString &key, bool defaultValue) const
{
    const Section *s = findSection(section);
    const int i = s ? findKey(*s, key) : -1;
    return i < 0 ? defaultValue : StringToBool(s->lines.at(i).value, defaultValue);
}

TColor TMemIniFile::readColor(const QString &section, const QString &key, TColor defaultValue) const
{
    const Section *s = findSection(section);
    const int i = s ? findKey(*s, key) : -1;
    return i < 0 ? defaultValue : StringToColor(s->lines.at(i).value).value_or(defaultValue);
}

void TMemIniFile::writeString(const QString &section, const QString &key, const QString &value)
{
    if (trimmed(key).isEmpty())
        return; // "=value" would read back as a raw line
    Section &s = m_sections[sectionFor(singleLine(section))];
    const int i = findKey(s, key);
    if (i >= 0)
        s.lines[i].value = singleLine(value);
    else
        appendLine(s, Line{singleLine(key), singleLine(value), false});
}

void TMemIniFile::writeInteger(const QString &section, const QString &key, qint32 value)
{
    writeString(section, key, QString::number(value));
}

void TMemIniFile::writeBool(const QString &section, const QString &key, bool value)
{
    writeString(section, key, BoolToString(value));
}

void TMemIniFile::writeColor(const QString &section, const QString &key, TColor value)
{
    writeString(section, key, ColorToString(value));
}

void TMemIniFile::appendRawLine(const QString &section, const QString &line)
{
    appendLine(m_sections[sectionFor(singleLine(section))], Line{QString(), singleLine(line), true});
}

QStringList TMemIniFile::readSections() const
{
    QStringList names;
    names.reserve(sectionCount());
    for (const Section &s : m_sections)
        if (!s.erased)
            names << s.name;
    return names;
}

QStringList TMemIniFile::readSection(const QString &section) const
{
    QStringList keys;
    const Section *s = findSection(section);
    if (!s)
        return keys;
    const bool mayRepeat = !s->indexed || s->duplicateKeys;
    for (int i = 0; i < s->lines.size(); ++i) {
        const Line &l = s->lines.at(i);
        if (l.raw || l.erased)
            continue;
        // A repeated key is listed once, where it is read from.
        if (mayRepeat && findKey(*s, l.key) != i)
            continue;
        keys << l.key;
    }
    return keys;
}

QStringList TMemIniFile::readSectionValues(const QString &section) const
{
    QStringList values;
    const Section *s = findSection(section);
    if (!s)
        return values;
    values.reserve(s->lines.size() - s->erasedLines);
    for (const Line &l : s->lines) {
        if (l.erased)
            continue;
        values << (l.raw ? l.value : l.key + QLatin1Char('=') + l.value);
    }
    return values;
}

void TMemIniFile::eraseSection(const QString &section)
{
    const auto it = m_sectionIndex.constFind(Name{section});
    if (it == m_sectionIndex.cend())
        return;
    Section &s = m_sections[*it];
    m_sectionIndex.erase(it);
    s.erased = true;
    s.lines.clear();
    s.keyIndex.clear();
    ++m_erasedSections;
    if (m_erasedSections >= kMinGapsToCompact && m_erasedSections * 2 >= m_sections.size())
        rebuildSectionIndex();
}

void TMemIniFile::deleteKey(const QString &section, const QString &key)
{
    Section *s = findSection(section);
    const int first = s ? findKey(*s, key) : -1;
    if (first < 0)
        return;
    const Name name{s->lines.at(first).key};
    eraseLine(*s, first);
    if (s->indexed)
        s->keyIndex.remove(name);
    // Every occurrence goes, or the next one would surface in its place.
    if (!s->indexed || s->duplicateKeys) {
        for (int i = first + 1; i < s->lines.size(); ++i) {
            const Line &l = s->lines.at(i);
            if (!l.raw && !l.erased && sameName(l.key, name.text))
                eraseLine(*s, i);
        }
    }
    compactLines(*s);
}
