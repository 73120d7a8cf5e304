#pragma once

#include <QHash>
#include <QString>
#include <QStringList>
#include <QVector>

#include "Colors.h"

// An INI file held in memory: read whole, edited, written back whole.
//
// - Sections and keys match without regard to case; each keeps the spelling
//   under which it was first written ("Datenbank" and "DatenBank" are one
//   section, spelled "Datenbank" when that came first).
// - Sections and keys keep their order.
// - A line without "=" inside a section is kept as a raw line of that section
//   (the pick-list blocks of mask files are such sections).
// - Typed reads take a default and never fail.
// - Files are written as Windows-1252 with CR LF and no byte-order mark;
//   reading accepts CR LF or LF, and UTF-8 with a byte-order mark.
class TMemIniFile
{
public:
    TMemIniFile() = default;
    // Binds the object to a file name and reads it; a missing file gives an
    // empty object (use load() to learn why a file could not be read).
    explicit TMemIniFile(const QString &fileName);

    const QString &fileName() const { return m_fileName; }
    void setFileName(const QString &fileName) { m_fileName = fileName; }

    // Replaces the content with the file's and binds the object to fileName.
    // On failure the object is empty and errorMessage (when given) holds a
    // German sentence naming the file and the reason. A missing file is a
    // failure here; files over 1 GiB are refused unread.
    bool load(const QString &fileName, QString *errorMessage = nullptr);
    // Writes the whole content to fileName (the bound file when empty). The file
    // is written completely before it replaces an existing one.
    bool save(const QString &fileName = QString(), QString *errorMessage = nullptr) const;

    void setText(const QString &text);
    QString text() const;             // lines joined by CR LF, as written to disk
    QByteArray toBytes() const;       // text() in Windows-1252
    void setBytes(const QByteArray &bytes);

    void clear();

    bool sectionExists(const QString &section) const;
    bool valueExists(const QString &section, const QString &key) const;
    // Where the section stands among the sections (a later one has a larger
    // number); -1 when there is none.

    QString readString(const QString &section, const QString &key, const QString &defaultValue) const;
    qint32 readInteger(const QString &section, const QString &key, qint32 defaultValue) const;
    bool readBool(const QString &section, const QString &key, bool defaultValue) const;
    TColor readColor(const QString &section, const QString &key, TColor defaultValue) const;

    // A new key goes to the end of its section, a new section to the end of
    // the file; an existing key keeps its place and spelling. Line breaks in
    // names and values become blanks, so that what is written reads back as
    // one line; an empty key name is not written.
    void writeString(const QString &section, const QString &key, const QString &value);
    void writeInteger(const QString &section, const QString &key, qint32 value);
    void writeBool(const QString &section, const QString &key, bool value);
    void writeColor(const QString &section, const QString &key, TColor value);

    // Appends a line without "=" to a section (created when missing).
    void appendRawLine(const QString &section, const QString &line);

    QStringList readSections() const;                          // names in order
    QStringList readSection(const QString &section) const;     // key names in order
    QStringList readSectionValues(const QString &section) const; // every line: "Key=Value" or raw
    void eraseSection(const QString &section);
    void deleteKey(const QString &section, const QString &key);

    int sectionCount() const { return int(m_sections.size()) - m_erasedSections; }

private:
    // A section or key name as a hash key: matches without regard to case and
    // shares the stored name's data, so indexing a file copies no text.
    struct Name
    {
        QString text;
        static bool equal(const Name &a, const Name &b);
        static size_t hash(const Name &name, size_t seed);
        friend bool operator==(const Name &a, const Name &b) { return equal(a, b); }
        friend size_t qHash(const Name &name, size_t seed) { return hash(name, seed); }
    };
    struct Line
    {
        QString key;     // empty for a raw line
        QString value;   // the raw text for a raw line
        bool raw = false;
        bool erased = false;
    };
    // Erased lines and sections stay in place as gaps until they make up half
    // of their list, so deleting many keys one by one stays linear.
    struct Section
    {
        QString name;
        QVector<Line> lines;
        // Only long sections get a key index: a QHash costs more than a kilobyte,
        // and mask files hold thousands of sections of some twenty keys.
        QHash<Name, int> keyIndex; // key -> index in lines, first occurrence
        bool indexed = false;
        bool duplicateKeys = false; // known only for indexed sections
        bool erased = false;
        int erasedLines = 0;
    };

    const Section *findSection(const QString &name) const;
    Section *findSection(const QString &name);
    int sectionFor(const QString &name); // index of the section, created when missing
    int findKey(const Section &section, const QString &key) const;
    void appendLine(Section &section, Line line);
    void eraseLine(Section &section, int index);
    void compactLines(Section &section);
    void indexKeys(Section &section);
    void rebuildSectionIndex();

    QString m_fileName;
    QVector<Section> m_sections;
    QHash<Name, int> m_sectionIndex; // name -> index in m_sections
    int m_erasedSections = 0;
};

// The profile functions for the settings file: one key read or written at a
// time. Writing changes only the line of that key (or adds it), leaves the
// rest of the file byte for byte as it stands, and creates the file when it
// is missing. A new key goes after the last filled line of its section, a new
// section to the end; new lines take the file's line ends (CR LF in a new
// file). The file stays Windows-1252, or UTF-8 when it starts with the UTF-8
// byte-order mark. A file the profile functions create is readable and
// writable by its owner only, since it may hold a password.
namespace Profile {

QString readString(const QString &fileName, const QString &section, const QString &key,
                   const QString &defaultValue);
qint32 readInteger(const QString &fileName, const QString &section, const QString &key,
                   qint32 defaultValue);
bool readBool(const QString &fileName, const QString &section, const QString &key, bool defaultValue);
TColor readColor(const QString &fileName, const QString &section, const QString &key,
                 TColor defaultValue);

// Returns false (with a German message in errorMessage when given) when the
// file cannot be read or written, or the key name is empty; the file is then
// left as it was.
bool writeString(const QString &fileName, const QString &section, const QString &key,
                 const QString &value, QString *errorMessage = nullptr);
bool writeInteger(const QString &fileName, const QString &section, const QString &key, qint32 value,
                  QString *errorMessage = nullptr);
bool writeBool(const QString &fileName, const QString &section, const QString &key, bool value,
               QString *errorMessage = nullptr);
bool writeColor(const QString &fileName, const QString &section, const QString &key, TColor value,
                QString *errorMessage = nullptr);

} // namespace Profile
