#pragma once

#include <QString>
#include <functional>

class TMaskDocument;

namespace MaskLoader {

// Called once the header is read and before any control is made; the mask
// window adapts itself to the stored resolution there.
using HeaderRead = std::function<void(TMaskDocument &)>;

// Fills an empty document from a mask file: header, table settings (from
// the table's settings file in databaseFolder), edit style and controls.
// Never fails: a missing or unreadable file gives an empty mask with every
// default; the result is then false and errorMessage (when given) says why.
bool LoadMask(TMaskDocument &document, const QString &fileName, const QString &databaseFolder,
              QString *errorMessage = nullptr, const HeaderRead &headerRead = {});

// Reads the table settings file of the document's table from the database
// folder; the extension may be spelled ".Ini" or ".ini". A missing file
// leaves the settings empty.
void LoadTableSettings(TMaskDocument &document, const QString &databaseFolder);

} // namespace MaskLoader
