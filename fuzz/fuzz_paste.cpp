// Pasting from the clipboard onto a mask in a designer: whatever the
// clipboard holds under the designer's format is pasted or refused, never
// raised or crashed on.
#include "FuzzSupport.h"
#include "Components.h"
#include "FormDesigner.h"
#include "MaskDocument.h"

#include <QClipboard>
#include <QMimeData>

FEROLITH_FUZZ_INIT

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    QWidget form;
    auto *document = new TMaskDocument(&form);
    auto *designer = new TFormDesigner(&form);
    designer->setDesignControl(document);
    designer->setActive(true); // an inactive engine pastes nothing
    auto *mime = new QMimeData;
    mime->setData(QStringLiteral("application/x-qt-windows-mime;value=\"CF_DesignedObjects\""),
                  FuzzSupport::bytes(data, size));
    QGuiApplication::clipboard()->setMimeData(mime);
    try {
        designer->PasteFromClipboard();
        // A second paste lands beside the first under new names.
        designer->PasteFromClipboard();
    } catch (const EFormDesigner &) {
        // An empty clipboard is refused with the engine's own error.
    }
    designer->setActive(false);
    return 0;
}
