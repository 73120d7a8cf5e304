// The INI reader: any bytes parse, and what is written reads back the same.
#include "FuzzSupport.h"
#include "IniFile.h"

FEROLITH_FUZZ_INIT

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    TMemIniFile ini;
    ini.setBytes(FuzzSupport::bytes(data, size));
    const QStringList sections = ini.readSections();
    for (const QString &section : sections) {
        for (const QString &key : ini.readSection(section)) {
            ini.readInteger(section, key, 0);
            ini.readColor(section, key, TColor(0));
        }
    }
    // Writing and reading again is stable.
    const QByteArray once = ini.toBytes();
    TMemIniFile again;
    again.setBytes(once);
    if (again.toBytes() != once)
        __builtin_trap();
    if (!sections.isEmpty()) {
        ini.writeString(sections.first(), QStringLiteral("Neu"), QStringLiteral("x\r\n[y]"));
        ini.deleteKey(sections.last(), QStringLiteral("Name"));
        ini.eraseSection(sections.first());
    }
    return 0;
}
