#pragma once

#include <QByteArray>
#include <QString>

class TMaskDocument;

namespace MaskWriter {

// The mask file text of a document, as saving writes it.
QByteArray MaskFileBytes(const TMaskDocument &document);

// Saves the document to fileName: the new file is written completely and
// flushed to the disk, then the previous file becomes its ".dbm_bak" backup
// and the new one takes the name. A link is saved through to its target, the
// replaced file's mode and owner are kept, a write-protected file is refused.
// On failure errorMessage holds a German reason and the file and its backup
// are as they were.
bool SaveMask(const TMaskDocument &document, const QString &fileName, QString *errorMessage = nullptr);

} // namespace MaskWriter
