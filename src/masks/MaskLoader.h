#pragma once

#include <QString>

class TMaske;

// What loading a mask needs from the main window: a new mask window, the
// resolution list, the configured database folder and the inspector.
class TMaskLoaderHost
{
public:
    virtual ~TMaskLoaderHost() = default;

    // Opens a new mask window for the file name; it becomes the active one.
    virtual TMaske *OpenMaskWindow(const QString &fileName) = 0;
    // Selects the entry "WIDTHxHEIGHT" of the resolution list (none when
    // there is no such entry) and adapts the mask to it.
    virtual void selectResolution(TMaske *mask, const QString &text) = 0;
    // The folder that holds the table settings files; ends with a separator.
    virtual QString DatabasePath() const = 0;
    // Rebuilds the object inspector's component list.
    virtual void UpdateComponents() = 0;
};

namespace MaskLoader {

// Loads a mask file into a new mask window and returns it. Never fails: a
// missing or unreadable file gives an empty mask with every default, and
// errorMessage (when given) then says why the file could not be read.
TMaske *LoadMask(TMaskLoaderHost &host, const QString &fileName, QString *errorMessage = nullptr);

// Reads the table settings file of a table from the database folder into the
// mask; the extension may be spelled ".Ini" or ".ini". A missing file leaves
// the settings empty.
void LoadTableSettings(TMaske *mask, const QString &databaseFolder);

} // namespace MaskLoader
