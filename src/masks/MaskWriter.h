#pragma once

#include <QByteArray>
#include <QString>

class TMaskDocument;

namespace MaskWriter {

// The mask file text of a document, as saving writes it.
QByteArray MaskFileBytes(const TMaskDocument &document);

// Saves the document to fileName: the previous file becomes its ".dbm_bak"
// backup, then the new file is written completely before it takes the name.
// On failure errorMessage holds the system's reason; the previous version
// is then in the backup.
bool SaveMask(const TMaskDocument &document, const QString &fileName, QString *errorMessage = nullptr);

} // namespace MaskWriter
