#pragma once

#include <QList>
#include <QString>
#include <QStringList>

// The messages of a Qt Linguist translation file (.ts), as the checks on the
// translations need them.
struct TsMessage
{
    QString context;
    QString source;
    QString comment;
    QString translation;      // empty for plural messages
    QStringList numerusForms; // the plural forms of a plural message
    bool numerus = false;
    QString type;             // "", "unfinished", "vanished" or "obsolete"

    // "context: source" for failure messages.
    QString describe() const;
};

struct TsFile
{
    QString language;
    QString sourceLanguage;
    QList<TsMessage> messages;
};

// Reads a .ts file; false with a message when it cannot be read or parsed.
bool readTsFile(const QString &path, TsFile *file, QString *error);
