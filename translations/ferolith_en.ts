<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="de">
<context>
    <name>ferolith</name>
    <message>
        <source>Aufruf: ferolith [--ini DATEI] [MASKE.dbm]

Ferolith: Masken-Designer für Quorbex 18.x.

Optionen:
  -h, --help             diese Hilfe anzeigen
  -v, --version          Version anzeigen
  --ini DATEI            Einstellungsdatei statt der voreingestellten verwenden
  --screenshot BILD.png  Hauptfenster mit einer neuen Maske als Bild speichern und beenden
</source>
        <translation>Usage: ferolith [--ini FILE] [MASK.dbm]

Ferolith: mask designer for Quorbex 18.x.

Options:
  -h, --help             show this help
  -v, --version          show the version
  --ini FILE             use this settings file instead of the default one
  --screenshot IMAGE.png save the main window with a new mask as a picture and quit
</translation>
    </message>
    <message>
        <source>Die Option --screenshot braucht einen Dateinamen.</source>
        <translation>The option --screenshot needs a file name.</translation>
    </message>
    <message>
        <source>Das Bild „%1“ konnte nicht gespeichert werden.</source>
        <translation>The picture “%1” could not be saved.</translation>
    </message>
</context>
</TS>
