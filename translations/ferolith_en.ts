<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="de">
<context>
    <name>AppPaths</name>
    <message>
        <source>Die Option --ini braucht einen Dateinamen.</source>
        <translation>The option --ini needs a file name.</translation>
    </message>
</context>
<context>
    <name>FieldTypes</name>
    <message>
        <source>Legende:<byte value="xd"/>
A = Textfeld<byte value="xd"/>
I = Zahlenfeld<byte value="xd"/>
I64 = Zahl 64Bit<byte value="xd"/>
N = Dezimalfeld<byte value="xd"/>
D = Datumsfeld<byte value="xd"/>
T = Uhrzeitfeld<byte value="xd"/>
@ = Datum und Zeit<byte value="xd"/>
$ = Währungsfeld<byte value="xd"/>
+ = Auto Zählfeld<byte value="xd"/>
M = Memo<byte value="xd"/>
L = Logisch (Ja/Nein)<byte value="xd"/>
S = Byte</source>
        <translation>Legend:<byte value="xd"/>
A = Text field<byte value="xd"/>
I = Integer field<byte value="xd"/>
I64 = Integer 64 bit<byte value="xd"/>
N = Decimal field<byte value="xd"/>
D = Date field<byte value="xd"/>
T = Time field<byte value="xd"/>
@ = Date and time<byte value="xd"/>
$ = Currency field<byte value="xd"/>
+ = Auto counter field<byte value="xd"/>
M = Memo<byte value="xd"/>
L = Logical (yes/no)<byte value="xd"/>
S = Byte</translation>
    </message>
</context>
<context>
    <name>IniFileAccess</name>
    <message>
        <source>Die Datei „%1“ konnte nicht gelesen werden: %2</source>
        <translation>The file “%1” could not be read: %2</translation>
    </message>
    <message>
        <source>Die Datei „%1“ konnte nicht geschrieben werden: %2</source>
        <translation>The file “%1” could not be written: %2</translation>
    </message>
    <message>
        <source>Der Ordner „%1“ existiert nicht</source>
        <translation>The folder “%1” does not exist</translation>
    </message>
    <message>
        <source>„%1“ ist kein Ordner</source>
        <translation>“%1” is not a folder</translation>
    </message>
    <message>
        <source>Zugriff verweigert</source>
        <translation>Access denied</translation>
    </message>
    <message>
        <source>Es wurde kein Dateiname angegeben.</source>
        <translation>No file name was given.</translation>
    </message>
    <message>
        <source>Datei nicht gefunden</source>
        <translation>File not found</translation>
    </message>
    <message>
        <source>Es ist ein Ordner</source>
        <translation>It is a folder</translation>
    </message>
    <message>
        <source>Es ist keine gewöhnliche Datei</source>
        <translation>It is not a regular file</translation>
    </message>
    <message>
        <source>Die Datei „%1“ wird nicht gelesen: Sie ist %2 MB groß, erlaubt sind höchstens %3 MB.</source>
        <translation>The file “%1” is not read: it is %2 MB large, at most %3 MB are allowed.</translation>
    </message>
    <message>
        <source>Sie ist größer als %1 MB</source>
        <translation>It is larger than %1 MB</translation>
    </message>
    <message>
        <source>Auf dem Datenträger ist nicht genug Platz</source>
        <translation>There is not enough space on the disk</translation>
    </message>
    <message>
        <source>Der Datenträger ist schreibgeschützt</source>
        <translation>The disk is write-protected</translation>
    </message>
    <message>
        <source>Ein-/Ausgabefehler des Datenträgers</source>
        <translation>Input/output error of the disk</translation>
    </message>
    <message>
        <source>Zu viele verkettete Verknüpfungen</source>
        <translation>Too many chained links</translation>
    </message>
    <message>
        <source>Die Datei „%1“ ist schreibgeschützt und wurde nicht überschrieben.</source>
        <translation>The file “%1” is write-protected and was not overwritten.</translation>
    </message>
    <message>
        <source>Die Sicherungskopie „%1“ konnte nicht angelegt werden: %2</source>
        <translation>The backup copy “%1” could not be made: %2</translation>
    </message>
</context>
<context>
    <name>PickLists</name>
    <message>
        <source>Der Eintrag „%1“ kann nicht in die Auswahlliste übernommen werden: Ein Eintrag darf kein „=“ enthalten und nicht in eckigen Klammern stehen.</source>
        <translation>The entry “%1” cannot be taken into the pick list: an entry must not contain “=” nor stand in square brackets.</translation>
    </message>
</context>
<context>
    <name>Profile</name>
    <message>
        <source>Ein Eintrag ohne Schlüsselnamen kann nicht geschrieben werden.</source>
        <translation>An entry without a key name cannot be written.</translation>
    </message>
</context>
<context>
    <name>RegistryStore</name>
    <message>
        <source>Wert „%1“ fehlt.</source>
        <translation>Value “%1” is missing.</translation>
    </message>
    <message>
        <source>Wert „%1“ ist %2.</source>
        <translation>Value “%1” is %2.</translation>
    </message>
</context>
<context>
    <name>Streaming</name>
    <message>
        <source>Kein Komponentenstrom: Kennung „TPF0“ fehlt</source>
        <translation>No component stream: the signature “TPF0” is missing</translation>
    </message>
    <message>
        <source>Komponentenstrom beschädigt (Byte %1): %2</source>
        <translation>Component stream damaged (byte %1): %2</translation>
    </message>
    <message>
        <source>Daten enden unerwartet</source>
        <translation>data end unexpectedly</translation>
    </message>
    <message>
        <source>Länge %1 über das Ende hinaus</source>
        <translation>length %1 beyond the end</translation>
    </message>
    <message>
        <source>leerer Bezeichner</source>
        <translation>empty identifier</translation>
    </message>
    <message>
        <source>zu viele Elemente</source>
        <translation>too many elements</translation>
    </message>
    <message>
        <source>zu tief verschachtelt</source>
        <translation>nested too deeply</translation>
    </message>
    <message>
        <source>unbekannter Werttyp %1</source>
        <translation>unknown value type %1</translation>
    </message>
    <message>
        <source>zu viele Komponenten</source>
        <translation>too many components</translation>
    </message>
    <message>
        <source>Klassenname fehlt</source>
        <translation>class name missing</translation>
    </message>
    <message>
        <source>zu viele Eigenschaften</source>
        <translation>too many properties</translation>
    </message>
    <message>
        <source>Unbekannte Klasse „%1“</source>
        <translation>Unknown class “%1”</translation>
    </message>
    <message>
        <source>Ungültiger Wert für Eigenschaft „%1“ in %2</source>
        <translation>Invalid value for property “%1” in %2</translation>
    </message>
    <message>
        <source>Unbekannte Eigenschaft „%1“ in %2</source>
        <translation>Unknown property “%1” in %2</translation>
    </message>
    <message>
        <source>Keine Komponente zum Einlesen</source>
        <translation>No component to read into</translation>
    </message>
    <message>
        <source>Klasse „%1“ im Datenstrom passt nicht zu „%2“</source>
        <translation>Class “%1” in the stream does not match “%2”</translation>
    </message>
    <message>
        <source>Keine Komponente</source>
        <translation>No component</translation>
    </message>
    <message>
        <source>Kein Komponentenstrom: „object“ fehlt</source>
        <translation>No component stream: “object” is missing</translation>
    </message>
    <message>
        <source>Zeile %1: %2</source>
        <translation>Line %1: %2</translation>
    </message>
    <message>
        <source>Bezeichner erwartet</source>
        <translation>identifier expected</translation>
    </message>
    <message>
        <source>Zeichenkette nicht abgeschlossen</source>
        <translation>string not terminated</translation>
    </message>
    <message>
        <source>Zeilenumbruch in einer Zeichenkette</source>
        <translation>line break in a string</translation>
    </message>
    <message>
        <source>ungültiger Zeichencode</source>
        <translation>invalid character code</translation>
    </message>
    <message>
        <source>Zeichencode erwartet</source>
        <translation>character code expected</translation>
    </message>
    <message>
        <source>Zahl zu groß</source>
        <translation>number too large</translation>
    </message>
    <message>
        <source>ungültige Zahl</source>
        <translation>invalid number</translation>
    </message>
    <message>
        <source>„,“ oder „]“ erwartet</source>
        <translation>“,” or “]” expected</translation>
    </message>
    <message>
        <source>„)“ fehlt</source>
        <translation>“)” missing</translation>
    </message>
    <message>
        <source>Wert erwartet</source>
        <translation>value expected</translation>
    </message>
    <message>
        <source>„=“ erwartet</source>
        <translation>“=” expected</translation>
    </message>
    <message>
        <source>Name erwartet</source>
        <translation>name expected</translation>
    </message>
    <message>
        <source>„end“ fehlt</source>
        <translation>“end” missing</translation>
    </message>
    <message>
        <source>Kein Komponentenstrom: weder „TPF0“ noch „object“ am Anfang</source>
        <translation>No component stream: neither “TPF0” nor “object” at the start</translation>
    </message>
    <message>
        <source>Kein Komponentenstrom: keine Daten</source>
        <translation>No component stream: no data</translation>
    </message>
</context>
<context>
    <name>TDbConnection</name>
    <message>
        <source>Fehler: Konnte keine Verbindung zum Datenbankserver herstellen.
<byte value="xd"/>Server: %1</source>
        <translation>Error: could not connect to the database server.
<byte value="xd"/>Server: %1</translation>
    </message>
</context>
<context>
    <name>TDbObjects</name>
    <message>
        <source>Kein Verbindungstyp gewählt.</source>
        <translation>No connection type chosen.</translation>
    </message>
    <message>
        <source>Die Sitzung hat keinen Datenbankserver.</source>
        <translation>The session has no database server.</translation>
    </message>
    <message>
        <source>Die Datenbank hat keine Sitzung.</source>
        <translation>The database has no session.</translation>
    </message>
    <message>
        <source>Es ist kein Datenbankpfad eingestellt.</source>
        <translation>No database path is set.</translation>
    </message>
    <message>
        <source>Der Ordner „%1“ kann nicht angelegt werden.</source>
        <translation>The folder “%1” cannot be created.</translation>
    </message>
    <message>
        <source>Die Datenbank ist nicht geöffnet.</source>
        <translation>The database is not open.</translation>
    </message>
    <message>
        <source>Die Tabelle „%1“ gibt es nicht.</source>
        <translation>The table “%1” does not exist.</translation>
    </message>
</context>
<context>
    <name>TDbexpl</name>
    <message>
        <source>Datensatzversion</source>
        <translation>Record version</translation>
    </message>
    <message>
        <source>Tabelle erzeugen</source>
        <translation>Create table</translation>
    </message>
    <message>
        <source>&amp;Tabellenname:</source>
        <translation>&amp;Table name:</translation>
    </message>
    <message>
        <source>Feldname</source>
        <translation>Field name</translation>
    </message>
    <message>
        <source>Typ</source>
        <translation>Type</translation>
    </message>
    <message>
        <source>Größe</source>
        <translation>Size</translation>
    </message>
    <message>
        <source>Schlüssel</source>
        <translation>Key</translation>
    </message>
    <message>
        <source>Feldbeschreibung</source>
        <translation>Field description</translation>
    </message>
    <message>
        <source>Zeile einfügen</source>
        <translation>Insert row</translation>
    </message>
    <message>
        <source>Zeile löschen</source>
        <translation>Delete row</translation>
    </message>
    <message>
        <source>Tabelle &amp;erzeugen</source>
        <translation>&amp;Create table</translation>
    </message>
    <message>
        <source>Bitte ändern Sie das Feld in der Maske ab.</source>
        <translation>Please change the field in the mask.</translation>
    </message>
</context>
<context>
    <name>TSqliteEngine</name>
    <message>
        <source>Die Felder „rowid“, „_rowid_“ und „oid“ schließen einander in SQLite aus.</source>
        <translation>The fields “rowid”, “_rowid_” and “oid” exclude one another in SQLite.</translation>
    </message>
</context>
<context>
    <name>TTableGenerator</name>
    <message>
        <source>… und %1 weitere</source>
        <translation>… and %1 more</translation>
    </message>
    <message>
        <source>FEHLER
<byte value="xd"/>Diese Datensätze passen nicht in die neuen Feldtypen und können nicht übernommen werden:
<byte value="xd"/>%1
<byte value="xd"/>Sollen die übrigen Daten ohne sie übernommen werden? Bei Nein bleibt die Tabelle unverändert.</source>
        <translation>ERROR
<byte value="xd"/>These records do not fit the new field types and cannot be carried over:
<byte value="xd"/>%1
<byte value="xd"/>Shall the remaining data be carried over without them? With No the table stays unchanged.</translation>
    </message>
    <message>
        <source>Die Daten konnten nicht übernommen werden: </source>
        <translation>The data could not be carried over: </translation>
    </message>
    <message>
        <source>Fehler in Zeile: %1
<byte value="xd"/>%2</source>
        <translation>Error in row: %1
<byte value="xd"/>%2</translation>
    </message>
    <message>
        <source>Im Zeichnen Feldtyp fehlt die Feldgröße. Funktion wird abgebrochen.</source>
        <translation>The field size of the text field type is missing. The function is cancelled.</translation>
    </message>
    <message>
        <source>Der Datenbank Feldtyp fehlt. Funktion wird abgebrochen.</source>
        <translation>The database field type is missing. The function is cancelled.</translation>
    </message>
    <message>
        <source>Der Datenbank Feldname fehlt. Funktion wird abgebrochen.</source>
        <translation>The database field name is missing. The function is cancelled.</translation>
    </message>
    <message>
        <source>FEHLER
<byte value="xd"/>%1
<byte value="xd"/>Die Tabelle %2 bleibt unverändert.</source>
        <translation>ERROR
<byte value="xd"/>%1
<byte value="xd"/>The table %2 stays unchanged.</translation>
    </message>
    <message>
        <source>Achtung Tabellenname Fehlt
<byte value="xd"/>Bitte geben Sie ein Tabellenname ein.</source>
        <translation>Attention: table name missing
<byte value="xd"/>Please enter a table name.</translation>
    </message>
    <message>
        <source>Die reservierten Wörter des Datenbankservers konnten nicht gelesen werden:
<byte value="xd"/></source>
        <translation>The reserved words of the database server could not be read:
<byte value="xd"/></translation>
    </message>
    <message>
        <source>Die Beschreibungsdatei der Tabelle konnte nicht geschrieben werden:
<byte value="xd"/></source>
        <translation>The description file of the table could not be written:
<byte value="xd"/></translation>
    </message>
    <message>
        <source>Tabelle %1 enthält bereits Daten, sollen die Daten Übernommen werden?</source>
        <translation>Table %1 already holds data; shall the data be carried over?</translation>
    </message>
    <message>
        <source>Die Tabelle konnte nicht erstellt werden: </source>
        <translation>The table could not be created: </translation>
    </message>
    <message>
        <source>Datenbank %1 wurde erfolgreich erstellt</source>
        <translation>Database %1 was created successfully</translation>
    </message>
    <message>
        <source>Daten wurden erfolgreich konvertiert.</source>
        <translation>Data were converted successfully.</translation>
    </message>
</context>
<context>
    <name>TWizard</name>
    <message>
        <source>Maskeneinstellungen</source>
        <translation>Mask settings</translation>
    </message>
    <message>
        <source>Zurück</source>
        <translation>Back</translation>
    </message>
    <message>
        <source>Weiter</source>
        <translation>Next</translation>
    </message>
    <message>
        <source>Abbruch</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>Ordner auswählen</source>
        <translation>Choose folder</translation>
    </message>
    <message>
        <source>Bitte wählen Sie einen Ordner aus:</source>
        <translation>Please choose a folder:</translation>
    </message>
    <message>
        <source>Datenbank und Tabelle</source>
        <translation>Database and table</translation>
    </message>
    <message>
        <source>Geben Sie den Datenbankpfad an:</source>
        <translation>Enter the database path:</translation>
    </message>
    <message>
        <source>Geben Sie den Tabellenname an:</source>
        <translation>Enter the table name:</translation>
    </message>
    <message>
        <source>Geben Sie den Maskentitel an:</source>
        <translation>Enter the mask title:</translation>
    </message>
    <message>
        <source>Geben Sie den Indexfeld an:</source>
        <translation>Enter the index field:</translation>
    </message>
    <message>
        <source>Zeichnungen, Dateizähler und Fokus</source>
        <translation>Drawings, file counter and focus</translation>
    </message>
    <message>
        <source>Geben Sie den Zeichnungspfad an. In diesem Pfad werden später die Zeichnungen bzw. Nc-Programme angelegt:</source>
        <translation>Enter the drawing path. Drawings and NC programs will be created in this path later:</translation>
    </message>
    <message>
        <source>Geben Sie ein Dateizaehler an (z.B. DATEI.NUM). Beim Anlegen werden dann fortlaufende Nummer vergeben:</source>
        <translation>Enter a file counter (e.g. FILE.NUM). New records then get consecutive numbers:</translation>
    </message>
    <message>
        <source>Welcher Datenbankfeld soll beim Anlegen eines neuen Datensatztes den Eingabefokus besitzen?</source>
        <translation>Which database field shall have the input focus when a new record is created?</translation>
    </message>
    <message>
        <source>Felder aus dem Dateizähler</source>
        <translation>Fields from the file counter</translation>
    </message>
    <message>
        <source>Markierte Felder zuweisen</source>
        <translation>Assign the selected fields</translation>
    </message>
    <message>
        <source>Alle Felder zuweisen</source>
        <translation>Assign all fields</translation>
    </message>
    <message>
        <source>Markierte Felder entfernen</source>
        <translation>Remove the selected fields</translation>
    </message>
    <message>
        <source>Alle Felder entfernen</source>
        <translation>Remove all fields</translation>
    </message>
    <message>
        <source>Verfügbare Felder:</source>
        <translation>Available fields:</translation>
    </message>
    <message>
        <source>Zugewiesene Felder:</source>
        <translation>Assigned fields:</translation>
    </message>
    <message>
        <source>Felder:</source>
        <translation>Fields:</translation>
    </message>
    <message>
        <source>Welche Felder sollen beim Anlegen, automatisch mit der Nummer aus dem Dateizähler ausgefüllt werden?</source>
        <translation>Which fields shall be filled automatically with the number from the file counter when a record is created?</translation>
    </message>
    <message>
        <source>Datenbankfeld:</source>
        <translation>Database field:</translation>
    </message>
    <message>
        <source>Wert:</source>
        <translation>Value:</translation>
    </message>
    <message>
        <source>Ein Eintrag entsteht, sobald Feld und Wert gewählt sind. Entfernen: Rechtsklick auf den Eintrag, &quot;Eintrag löschen&quot;.</source>
        <translation>An entry is made as soon as field and value are chosen. To remove one: right-click the entry, &quot;Delete entry&quot;.</translation>
    </message>
    <message>
        <source>AutoFill Werte</source>
        <translation>AutoFill values</translation>
    </message>
    <message>
        <source>Beim Anlegen können Sie den Feldern ein Standardwert zuweisen. Entweder durch einen Festen Wert oder durch ein Makro.</source>
        <translation>When a record is created you can give the fields a default value, either a fixed value or a macro.</translation>
    </message>
    <message>
        <source>AutoFill Werte:</source>
        <translation>AutoFill values:</translation>
    </message>
    <message>
        <source>Default Werte</source>
        <translation>Default values</translation>
    </message>
    <message>
        <source>Beim ausfüllen bzw. editieren eines Datensatzes, können Felder mit festen Werten versehen werden.</source>
        <translation>When a record is filled in or edited, fields can be given fixed values.</translation>
    </message>
    <message>
        <source>Default Werte:</source>
        <translation>Default values:</translation>
    </message>
    <message>
        <source>Seite %1 von %2</source>
        <translation>Page %1 of %2</translation>
    </message>
    <message>
        <source>Eintrag löschen</source>
        <translation>Delete entry</translation>
    </message>
</context>
<context>
    <name>TableDescription</name>
    <message>
        <source>Der Tabellenname „%1“ ist kein gültiger Dateiname.</source>
        <translation>The table name “%1” is not a valid file name.</translation>
    </message>
</context>
<context>
    <name>TfrmSetup</name>
    <message>
        <source>Einstellungen</source>
        <translation>Settings</translation>
    </message>
    <message>
        <source>Normal grabs</source>
        <translation>Normal grabs</translation>
    </message>
    <message>
        <source>Multi grabs</source>
        <translation>Multi grabs</translation>
    </message>
    <message>
        <source>Gesperrte grabs</source>
        <translation>Locked grabs</translation>
    </message>
    <message>
        <source>Abbruch</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>Designer</source>
        <translation>Designer</translation>
    </message>
    <message>
        <source>Raster sichtbar</source>
        <translation>Grid visible</translation>
    </message>
    <message>
        <source>an Raster schnappen</source>
        <translation>Snap to grid</translation>
    </message>
    <message>
        <source>Show hint when move/size</source>
        <translation>Show hint when move/size</translation>
    </message>
    <message>
        <source>Grid schritt</source>
        <translation>Grid step</translation>
    </message>
    <message>
        <source>Designer Farbe</source>
        <translation>Designer colour</translation>
    </message>
    <message>
        <source>Grid Farbe</source>
        <translation>Grid colour</translation>
    </message>
    <message>
        <source>Grab handle größe</source>
        <translation>Grab handle size</translation>
    </message>
    <message>
        <source>Rahmen</source>
        <translation>Border</translation>
    </message>
    <message>
        <source>Füllung</source>
        <translation>Fill</translation>
    </message>
    <message>
        <source> Verbindungstyp </source>
        <translation> Connection type </translation>
    </message>
    <message>
        <source>Datenbank</source>
        <translation>Database</translation>
    </message>
    <message>
        <source>Local</source>
        <translation>Local</translation>
    </message>
    <message>
        <source>Server</source>
        <translation>Server</translation>
    </message>
    <message>
        <source>Datenbankpfad auswählen</source>
        <translation>Choose the database path</translation>
    </message>
    <message>
        <source>Login:</source>
        <translation>Login:</translation>
    </message>
    <message>
        <source>Passwort:</source>
        <translation>Password:</translation>
    </message>
    <message>
        <source>Servername:</source>
        <translation>Server name:</translation>
    </message>
    <message>
        <source>Scan Server</source>
        <translation>Scan servers</translation>
    </message>
    <message>
        <source>DB Alias:</source>
        <translation>DB alias:</translation>
    </message>
    <message>
        <source>Scan Alias</source>
        <translation>Scan aliases</translation>
    </message>
    <message>
        <source>Timeout ms:</source>
        <translation>Timeout ms:</translation>
    </message>
    <message>
        <source>DB Verbindung:</source>
        <translation>DB connection:</translation>
    </message>
    <message>
        <source>Datenbankpfad:</source>
        <translation>Database path:</translation>
    </message>
    <message>
        <source>Bitte wählen Sie den Datenbankpfad aus:</source>
        <translation>Please choose the database path:</translation>
    </message>
    <message>
        <source>Farbe wählen</source>
        <translation>Choose colour</translation>
    </message>
    <message>
        <source>Es ist keine Maske geöffnet.</source>
        <translation>No mask is open.</translation>
    </message>
    <message>
        <source>Die Einstellungen konnten nicht aus der Registrierung gelesen werden: </source>
        <translation>The settings could not be read from the registry: </translation>
    </message>
</context>
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
