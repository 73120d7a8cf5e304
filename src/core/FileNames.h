#pragma once

#include <QString>

// File name parts as the mask files and settings store them: folders keep
// their trailing separator, and both "/" and "\" separate folders.
namespace FileNames {

// Everything up to and including the last separator; empty when there is none.
QString extractFilePath(const QString &fileName);
// The name after the last separator.
QString extractFileName(const QString &fileName);
// Replaces the extension of the name part (from its last dot) with newExt,
// which starts with a dot; appends it when the name has no extension.
QString changeFileExt(const QString &fileName, const QString &newExt);

} // namespace FileNames
