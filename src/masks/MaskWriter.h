#pragma once

#include <QByteArray>
#include <QString>

class TMaske;

namespace MaskWriter {

// The mask file text of a mask window, as saving writes it.
QByteArray MaskFileBytes(TMaske *mask);

// Saves the mask to fileName: the previous file becomes its ".dbm_bak"
// backup, then the new file is written completely before it takes the name.
// On failure errorMessage holds the system's reason and the mask stays
// modified; the previous version is then in the backup.
bool SaveMask(TMaske *mask, const QString &fileName, QString *errorMessage = nullptr);

} // namespace MaskWriter
