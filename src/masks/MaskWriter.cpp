// Saving a mask document to its mask file.
#include "MaskWriter.h"

#include "Components.h"
#include "ControlWriter.h"
#include "EditStyle.h"
#include "FileNames.h"
#include "IniFile.h"
#include "IniFileAccess.h"
#include "MaskDocument.h"
#include "TextCodec.h"
#include "WaitCursor.h"

#include <QFile>
#include <QFileInfo>
#include <QGuiApplication>

namespace {

void writeHeader(const TMaskDocument *mask, TMemIniFile &ini)
{
    // Both spellings on purpose: the runtime reads either, and they are one
    // section when read.
    const QString db = QStringLiteral("Datenbank");
    ini.writeString(db, QStringLiteral("Tabelle"), mask->Tabelle());
    ini.writeString(db, QStringLiteral("Titel"), mask->Titel());
    ini.writeInteger(db, QStringLiteral("Typ"), mask->Typ());
    const QString screen = QStringLiteral("DatenBank");
    ini.writeInteger(screen, QStringLiteral("Pixel"), mask->Pixel());
    ini.writeInteger(screen, QStringLiteral("Height"), mask->ScreenHeight());
    ini.writeInteger(screen, QStringLiteral("Width"), mask->ScreenWidth());

    const TcxEditStyleController *style = mask->cxStyleController();
    const QString s = QStringLiteral("Style");
    ini.writeInteger(s, QStringLiteral("BorderStyle"), style->BorderStyle());
    ini.writeInteger(s, QStringLiteral("ButtonStyle"), style->ButtonStyle());
    ini.writeInteger(s, QStringLiteral("ButtonTrans"), style->ButtonTransparency());
    ini.writeColor(s, QStringLiteral("Color"), style->BorderColor());
    ini.writeBool(s, QStringLiteral("Shadow"), style->Shadow());
    ini.writeBool(s, QStringLiteral("Hottrack"), style->HotTrack());
    ini.writeBool(s, QStringLiteral("EdgeLeft"), style->Edges() & bLeft);
    ini.writeBool(s, QStringLiteral("EdgeRight"), style->Edges() & bRight);
    ini.writeBool(s, QStringLiteral("EdgeTop"), style->Edges() & bTop);
    ini.writeBool(s, QStringLiteral("EdgeBottom"), style->Edges() & bBottom);
}

} // namespace

namespace MaskWriter {

QByteArray MaskFileBytes(const TMaskDocument &document)
{
    TMemIniFile ini;
    writeHeader(&document, ini);
    QStringList pickLists;
    TControlWriter writer(&document, ini, pickLists);
    for (QObject *component : Components::components(&document))
        writer.write(component);
    if (pickLists.isEmpty())
        return ini.toBytes();
    // The pick-list blocks stand before everything else.
    const QString crlf = QStringLiteral("\r\n");
    return TextCodec::encodeWindows1252(pickLists.join(crlf) + crlf + ini.text());
}

bool SaveMask(const TMaskDocument &document, const QString &fileName, QString *errorMessage)
{
    TWaitCursor wait;
    // The previous file becomes the ".dbm_bak" backup only once the new one
    // is complete on the disk; until then both stay as they are.
    return IniFileAccess::writeWhole(fileName, MaskFileBytes(document), errorMessage, false,
                                     QStringLiteral(".dbm_bak"));
}

} // namespace MaskWriter
