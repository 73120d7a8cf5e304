#include "helper_ts.h"

#include <QFile>
#include <QXmlStreamReader>

QString TsMessage::describe() const
{
    QString text = source;
    if (text.size() > 60)
        text = text.left(57) + QStringLiteral("...");
    text.replace(QLatin1Char('\n'), QLatin1String("\\n"));
    return context + QStringLiteral(": \"") + text + QLatin1Char('"');
}

namespace {
// An element's text; lupdate writes characters XML cannot hold (a carriage
// return) as <byte value="xd"/> inside it.
QString readText(QXmlStreamReader &xml)
{
    QString text;
    while (!xml.atEnd()) {
        xml.readNext();
        if (xml.isCharacters())
            text += xml.text();
        else if (xml.isStartElement() && xml.name() == QLatin1String("byte"))
            text += QChar(xml.attributes().value(QLatin1String("value")).mid(1).toUInt(nullptr, 16));
        else if (xml.isEndElement() && xml.name() != QLatin1String("byte"))
            break;
    }
    return text;
}
} // namespace

bool readTsFile(const QString &path, TsFile *file, QString *error)
{
    QFile in(path);
    if (!in.open(QIODevice::ReadOnly)) {
        *error = path + QStringLiteral(": ") + in.errorString();
        return false;
    }
    *file = TsFile();
    QXmlStreamReader xml(&in);
    QString context;
    TsMessage message;
    while (!xml.atEnd()) {
        xml.readNext();
        if (xml.isStartElement()) {
            const auto name = xml.name();
            if (name == QLatin1String("TS")) {
                file->language = xml.attributes().value(QLatin1String("language")).toString();
                file->sourceLanguage = xml.attributes().value(QLatin1String("sourcelanguage")).toString();
            } else if (name == QLatin1String("context")) {
                context.clear();
            } else if (name == QLatin1String("name")) {
                context = xml.readElementText();
            } else if (name == QLatin1String("message")) {
                message = TsMessage();
                message.context = context;
                message.numerus = xml.attributes().value(QLatin1String("numerus")) == QLatin1String("yes");
            } else if (name == QLatin1String("source")) {
                message.source = readText(xml);
            } else if (name == QLatin1String("comment")) {
                message.comment = xml.readElementText();
            } else if (name == QLatin1String("translation")) {
                message.type = xml.attributes().value(QLatin1String("type")).toString();
                if (!message.numerus)
                    message.translation = readText(xml);
            } else if (name == QLatin1String("numerusform")) {
                message.numerusForms.append(readText(xml));
            }
        } else if (xml.isEndElement() && xml.name() == QLatin1String("message")) {
            file->messages.append(message);
        }
    }
    if (xml.hasError()) {
        *error = QStringLiteral("%1:%2: %3").arg(path).arg(xml.lineNumber()).arg(xml.errorString());
        return false;
    }
    return true;
}
