#pragma once

// Shared steps of the mask file tests: writing mask files as the runtime's
// tools write them (Windows-1252, CR LF), loading them into documents with a
// database folder in a temporary home, and reading what saving writes.

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>
#include <memory>

#include "Components.h"
#include "Containers.h"
#include "Graphics.h"
#include "IniFile.h"
#include "MaskDocument.h"
#include "MaskLoader.h"
#include "MaskWriter.h"
#include "TestSupport.h"
#include "TextCodec.h"
#include <vector>

namespace MaskTest {

// Writes text with CR LF line ends in the mask files' code page.
inline void writeMask(const QString &path, const QString &text)
{
    QString crlf = text;
    crlf.replace(QLatin1String("\r\n"), QLatin1String("\n")).replace(QLatin1Char('\n'), QLatin1String("\r\n"));
    QVERIFY(writeFileBytes(path, TextCodec::encodeWindows1252(crlf)));
}

// The text a save of the mask would write, with LF line ends for comparing.
inline QString savedText(const TMaskDocument *mask)
{
    return TextCodec::decodeFileText(MaskWriter::MaskFileBytes(*mask)).replace(QLatin1String("\r\n"),
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
T *component(const QObject *mask, const QString &name)
{
    return qobject_cast<T *>(Components::findComponent(mask, name));
}

// The controls of a mask in component order, by class name.
inline QStringList controlClasses(const QObject *mask)
{
    QStringList out;
    for (QObject *c : Components::components(mask))
        if (TControl::from(c))
            out << QString::fromLatin1(c->metaObject()->className());
    return out;
}

// A new control of class T on parent, owned and named by the document, as
// the designer places one (without the palette's own settings).
template <class T>
T *make(TMaskDocument *document, QWidget *parent = nullptr)
{
    auto *w = new T(parent ? parent : document);
    Components::setOwner(w, document);
    AutoName(w, document);
    w->show();
    return w;
}

// A page control with the two pages a new one gets.
inline TAdvOfficePager *makePager(TMaskDocument *document, QWidget *parent = nullptr)
{
    auto *pager = make<TAdvOfficePager>(document, parent);
    pager->addPage(document->NewOPage(QStringLiteral("Seite1")));
    pager->addPage(document->NewOPage(QStringLiteral("Seite2")));
    return pager;
}

// The preview image with its tab strip, under their fixed names.
inline void makePreview(TMaskDocument *document)
{
    auto *view = new TImage(document);
    view->setObjectName(QStringLiteral("View"));
    Components::setOwner(view, document);
    auto *tabs = new TTabSet(document);
    tabs->setObjectName(QStringLiteral("Tab"));
    Components::setOwner(tabs, document);
}

// A temporary home: a database folder for table settings and a work folder
// for mask files; it owns the documents it loads.
class Fixture
{
public:
    Fixture() { QDir(m_dir.path()).mkdir(QStringLiteral("DB")); }
    QString path(const QString &name) const { return m_dir.filePath(name); }
    QString databaseFolder() const { return QDir::toNativeSeparators(m_dir.filePath(QStringLiteral("DB"))) + QDir::separator(); }

    TMaskDocument *newDocument()
    {
        m_documents.push_back(std::make_unique<TMaskDocument>());
        return m_documents.back().get();
    }
    TMaskDocument *load(const QString &file, QString *error = nullptr)
    {
        TMaskDocument *document = newDocument();
        MaskLoader::LoadMask(*document, file, databaseFolder(), error);
        return document;
    }

private:
    QTemporaryDir m_dir;
    std::vector<std::unique_ptr<TMaskDocument>> m_documents;
};

} // namespace MaskTest
