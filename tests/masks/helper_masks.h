#pragma once

// Shared steps of the mask file tests: writing mask files as the runtime's
// tools write them (Windows-1252, CR LF), a main window with its settings in
// a temporary folder, and loading and saving through it.

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>
#include <memory>

#include "../shell/helper_shell.h"
#include "AppPaths.h"
#include "Components.h"
#include "IniFile.h"
#include "MaskWriter.h"
#include "Maske.h"
#include "TestSupport.h"
#include "TextCodec.h"

namespace MaskTest {

// Writes text with CR LF line ends in the mask files' code page.
inline void writeMask(const QString &path, const QString &text)
{
    QString crlf = text;
    crlf.replace(QLatin1String("\r\n"), QLatin1String("\n")).replace(QLatin1Char('\n'), QLatin1String("\r\n"));
    QVERIFY(writeFileBytes(path, TextCodec::encodeWindows1252(crlf)));
}

// The text a save of the mask would write, with LF line ends for comparing.
inline QString savedText(TMaske *mask)
{
    return TextCodec::decodeFileText(MaskWriter::MaskFileBytes(mask)).replace(QLatin1String("\r\n"),
                                                                              QLatin1String("\n"));
}

// The lines of one section of a saved text, "Key=Value" each.
inline QStringList sectionLines(const QString &text, const QString &section)
{
    QStringList out;
    bool in = false;
    for (const QString &line : text.split(QLatin1Char('\n'))) {
        if (line.startsWith(QLatin1Char('['))) {
            in = line.compare(QLatin1Char('[') + section + QLatin1Char(']'), Qt::CaseInsensitive) == 0;
            continue;
        }
        if (in && !line.isEmpty())
            out << line;
    }
    return out;
}

template <class T>
T *component(TMaske *mask, const QString &name)
{
    return qobject_cast<T *>(Components::findComponent(mask, name));
}

// The controls of a mask in component order, by class name.
inline QStringList controlClasses(TMaske *mask)
{
    QStringList out;
    for (QObject *c : Components::components(mask))
        if (TControl::from(c))
            out << QString::fromLatin1(c->metaObject()->className());
    return out;
}

// A temporary home: the settings file (with the database folder) and a
// work folder for mask files.
class Fixture
{
public:
    Fixture()
    {
        QDir(m_dir.path()).mkdir(QStringLiteral("DB"));
        AppPaths::setSettingsFileOverride(m_dir.filePath(QStringLiteral("ferolith.ini")));
        QVERIFY(Profile::writeString(m_dir.filePath(QStringLiteral("ferolith.ini")), QStringLiteral("Configuration"),
                                     QStringLiteral("DatenbankPfad"), databaseFolder()));
    }
    QString path(const QString &name) const { return m_dir.filePath(name); }
    QString databaseFolder() const { return QDir::toNativeSeparators(m_dir.filePath(QStringLiteral("DB"))) + QDir::separator(); }

private:
    QTemporaryDir m_dir;
};

} // namespace MaskTest
