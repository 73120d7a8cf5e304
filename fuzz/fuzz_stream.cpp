// The component stream readers, binary ("TPF0") or text ("object ... end")
// as the first byte chooses: any input is read or refused cleanly, and
// nothing is left behind on a refusal. FEROLITH_FUZZ_STREAM_TEXT selects the
// text reader's target.
#include "FuzzSupport.h"
#include "Components.h"
#include "Streaming.h"

#include <QBuffer>

FEROLITH_FUZZ_INIT

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    QByteArray bytes = FuzzSupport::bytes(data, size);
#ifdef FEROLITH_FUZZ_STREAM_TEXT
    if (bytes.startsWith("TPF0"))
        bytes.remove(0, 1); // the binary reader has a target of its own
#else
    if (!bytes.startsWith("TPF0"))
        bytes.prepend("TPF0");
#endif
    QWidget owner;
    QBuffer buffer;
    buffer.setData(bytes);
    buffer.open(QIODevice::ReadOnly);
    TReadContext ctx;
    ctx.owner = &owner;
    ctx.parent = &owner;
    ctx.onError = [](const QString &, bool &) {};
    QString error;
    const QList<QWidget *> read = readComponents(buffer, ctx, &error);
    if (!error.isEmpty() && Components::componentCount(&owner) != 0)
        __builtin_trap(); // all or nothing
    // What was read converts both ways.
    for (QWidget *w : read) {
        const QByteArray binary = componentToBytes(w, TStreamFormat::Binary);
        binaryToText(binary);
    }
    QString convertError;
    textToBinary(binaryToText(bytes, &convertError), &convertError);
    return 0;
}
