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
    <name>ControlKinds</name>
    <message>
        <source>PageControl</source>
        <translation>Page control</translation>
    </message>
    <message>
        <source>Panel</source>
        <translation>Panel</translation>
    </message>
    <message>
        <source>Beschriftung</source>
        <translation>Label</translation>
    </message>
    <message>
        <source>Beschriftungsfeld</source>
        <translation>Data label</translation>
    </message>
    <message>
        <source>Eingabefeld</source>
        <translation>Edit field</translation>
    </message>
    <message>
        <source>Auswahlfeld</source>
        <translation>Combo box</translation>
    </message>
    <message>
        <source>LookUp</source>
        <translation>Lookup</translation>
    </message>
    <message>
        <source>Memofeld</source>
        <translation>Memo field</translation>
    </message>
    <message>
        <source>Checkfeld</source>
        <translation>Check box</translation>
    </message>
    <message>
        <source>Umrahmung</source>
        <translation>Bevel</translation>
    </message>
    <message>
        <source>Image</source>
        <translation>Image</translation>
    </message>
    <message>
        <source>Bild einfügen</source>
        <translation>Insert picture</translation>
    </message>
    <message>
        <source>Formen</source>
        <translation>Shapes</translation>
    </message>
    <message>
        <source>Schalter</source>
        <translation>Button</translation>
    </message>
    <message>
        <source>Browser</source>
        <translation>Browser</translation>
    </message>
    <message>
        <source>DBTreelist</source>
        <translation>DB tree list</translation>
    </message>
    <message>
        <source>Stringgrid</source>
        <translation>String grid</translation>
    </message>
    <message>
        <source>RadioButton</source>
        <translation>Radio group</translation>
    </message>
    <message>
        <source>Vorschau</source>
        <translation>Preview</translation>
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
    <message>
        <source>keine Zahl</source>
        <translation>not a number</translation>
    </message>
    <message>
        <source>kein Wahrheitswert</source>
        <translation>not a truth value</translation>
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
    <name>TAboutBox</name>
    <message>
        <source>Programminfo</source>
        <translation>About</translation>
    </message>
    <message>
        <source>für Quorbex 18.x</source>
        <translation>for Quorbex 18.x</translation>
    </message>
</context>
<context>
    <name>TAdvOfficePager</name>
    <message>
        <source>(keine Seiten)</source>
        <translation>(no pages)</translation>
    </message>
</context>
<context>
    <name>TChangeStyle</name>
    <message>
        <source>Stile ändern</source>
        <translation>Change styles</translation>
    </message>
    <message>
        <source>Links</source>
        <translation>Left</translation>
    </message>
    <message>
        <source>Oben</source>
        <translation>Top</translation>
    </message>
    <message>
        <source>Rechts</source>
        <translation>Right</translation>
    </message>
    <message>
        <source>Unten</source>
        <translation>Bottom</translation>
    </message>
    <message>
        <source>Schatten</source>
        <translation>Shadow</translation>
    </message>
    <message>
        <source>Verlauf</source>
        <translation>Gradient</translation>
    </message>
    <message>
        <source>Rand</source>
        <translation>Border</translation>
    </message>
    <message>
        <source>&amp;Farbe</source>
        <translation>&amp;Colour</translation>
    </message>
    <message>
        <source>St&amp;ile</source>
        <translation>St&amp;yle</translation>
    </message>
    <message>
        <source>Schalter</source>
        <translation>Buttons</translation>
    </message>
    <message>
        <source>S&amp;tile</source>
        <translation>S&amp;tyle</translation>
    </message>
    <message>
        <source>Transparen&amp;z</source>
        <translation>Transparen&amp;cy</translation>
    </message>
    <message>
        <source>Kanten</source>
        <translation>Edges</translation>
    </message>
    <message>
        <source>Andere</source>
        <translation>Other</translation>
    </message>
    <message>
        <source>&amp;Abbrechen</source>
        <translation>&amp;Cancel</translation>
    </message>
</context>
<context>
    <name>TCheckDlg</name>
    <message>
        <source>Feldname:</source>
        <translation>Field name:</translation>
    </message>
    <message>
        <source>Checkbox aktiv:</source>
        <translation>Check box on:</translation>
    </message>
    <message>
        <source>Checkbox deaktiv:</source>
        <translation>Check box off:</translation>
    </message>
    <message>
        <source>&amp;Abbrechen</source>
        <translation>&amp;Cancel</translation>
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
    <name>TFormAlignment</name>
    <message>
        <source>Ausrichtung</source>
        <translation>Alignment</translation>
    </message>
    <message>
        <source>Linksbündig</source>
        <translation>Align left edges</translation>
    </message>
    <message>
        <source>Horizontal zentrieren</source>
        <translation>Centre horizontally</translation>
    </message>
    <message>
        <source>Rechtsbündig</source>
        <translation>Align right edges</translation>
    </message>
    <message>
        <source>gleicher Abstand Horizontal</source>
        <translation>Space equally horizontally</translation>
    </message>
    <message>
        <source>Horizontal ausrichten</source>
        <translation>Centre horizontally in the window</translation>
    </message>
    <message>
        <source>Oben ausrichten</source>
        <translation>Align tops</translation>
    </message>
    <message>
        <source>Vertikal zentrierern</source>
        <translation>Centre vertically</translation>
    </message>
    <message>
        <source>Unten ausrichten</source>
        <translation>Align bottoms</translation>
    </message>
    <message>
        <source>gleicher Abstand Vertikal</source>
        <translation>Space equally vertically</translation>
    </message>
    <message>
        <source>Vertikal ausrichten</source>
        <translation>Centre vertically in the window</translation>
    </message>
</context>
<context>
    <name>TMainForm</name>
    <message>
        <source>Schriftart</source>
        <translation>Font</translation>
    </message>
    <message>
        <source>Schriftgrad</source>
        <translation>Font size</translation>
    </message>
    <message>
        <source>Schriftfarbe</source>
        <translation>Font colour</translation>
    </message>
    <message>
        <source>F</source>
        <translation>B</translation>
    </message>
    <message>
        <source>Fett</source>
        <translation>Bold</translation>
    </message>
    <message>
        <source>K</source>
        <translation>I</translation>
    </message>
    <message>
        <source>Kursiv</source>
        <translation>Italic</translation>
    </message>
    <message>
        <source>U</source>
        <translation>U</translation>
    </message>
    <message>
        <source>Unterstrichen</source>
        <translation>Underline</translation>
    </message>
    <message>
        <source>Elemente</source>
        <translation>Elements</translation>
    </message>
    <message>
        <source>Auswahl</source>
        <translation>Select</translation>
    </message>
    <message>
        <source>Auswählen</source>
        <translation>Select</translation>
    </message>
    <message>
        <source>Links:</source>
        <translation>Left:</translation>
    </message>
    <message>
        <source>Oben:</source>
        <translation>Top:</translation>
    </message>
    <message>
        <source>Breite:</source>
        <translation>Width:</translation>
    </message>
    <message>
        <source>Höhe:</source>
        <translation>Height:</translation>
    </message>
    <message>
        <source>Auflösung</source>
        <translation>Resolution</translation>
    </message>
    <message>
        <source>Bildlaufbereich der Maske an den Bildschirm anpassen</source>
        <translation>Fit the mask&apos;s scroll area to the screen</translation>
    </message>
    <message>
        <source>&amp;Neu</source>
        <translation>&amp;New</translation>
    </message>
    <message>
        <source>&amp;Öffnen...</source>
        <translation>&amp;Open...</translation>
    </message>
    <message>
        <source>&amp;Schliessen</source>
        <translation>&amp;Close</translation>
    </message>
    <message>
        <source>&amp;Speichern</source>
        <translation>&amp;Save</translation>
    </message>
    <message>
        <source>Speichern &amp;als...</source>
        <translation>Save &amp;as...</translation>
    </message>
    <message>
        <source>&amp;Beenden</source>
        <translation>E&amp;xit</translation>
    </message>
    <message>
        <source>Ausschneiden</source>
        <translation>Cut</translation>
    </message>
    <message>
        <source>&amp;Kopieren</source>
        <translation>&amp;Copy</translation>
    </message>
    <message>
        <source>&amp;Einfügen</source>
        <translation>&amp;Paste</translation>
    </message>
    <message>
        <source>&amp;Löschen</source>
        <translation>&amp;Delete</translation>
    </message>
    <message>
        <source>Sperren</source>
        <translation>Lock</translation>
    </message>
    <message>
        <source>Rückgängig</source>
        <translation>Undo</translation>
    </message>
    <message>
        <source>Wiederholen</source>
        <translation>Redo</translation>
    </message>
    <message>
        <source>&amp;Objekt Inspektor</source>
        <translation>&amp;Object inspector</translation>
    </message>
    <message>
        <source>&amp;Einstellungen...</source>
        <translation>&amp;Settings...</translation>
    </message>
    <message>
        <source>S&amp;tile ändern...</source>
        <translation>Change s&amp;tyles...</translation>
    </message>
    <message>
        <source>Tabelle &amp;erzeugen...</source>
        <translation>&amp;Create table...</translation>
    </message>
    <message>
        <source>&amp;Masken Optionen</source>
        <translation>&amp;Mask options</translation>
    </message>
    <message>
        <source>&amp;Bearbeitungsmodus</source>
        <translation>&amp;Edit mode</translation>
    </message>
    <message>
        <source>&amp;Überlappen</source>
        <translation>&amp;Cascade</translation>
    </message>
    <message>
        <source>Ü&amp;bereinander</source>
        <translation>&amp;Tile</translation>
    </message>
    <message>
        <source>&amp;Anordnen</source>
        <translation>&amp;Arrange</translation>
    </message>
    <message>
        <source>Alle &amp;minimieren</source>
        <translation>&amp;Minimise all</translation>
    </message>
    <message>
        <source>&amp;Über...</source>
        <translation>&amp;About...</translation>
    </message>
    <message>
        <source>&amp;Datei</source>
        <translation>&amp;File</translation>
    </message>
    <message>
        <source>&amp;Bearbeiten</source>
        <translation>&amp;Edit</translation>
    </message>
    <message>
        <source>&amp;Optionen</source>
        <translation>&amp;Options</translation>
    </message>
    <message>
        <source>&amp;Fenster</source>
        <translation>&amp;Window</translation>
    </message>
    <message>
        <source>&amp;Hilfe</source>
        <translation>&amp;Help</translation>
    </message>
    <message>
        <source>Quorbex Maske (*.dbm)|*.dbm;|Quorbex Maske Backup |*.dbm_bak</source>
        <translation>Quorbex mask (*.dbm)|*.dbm;|Quorbex mask backup |*.dbm_bak</translation>
    </message>
    <message>
        <source>Maske (*.dbm)|*.dbm</source>
        <translation>Mask (*.dbm)|*.dbm</translation>
    </message>
    <message>
        <source>An &amp;Raster anordnen</source>
        <translation>Align to &amp;grid</translation>
    </message>
    <message>
        <source>In &amp;Vordergrund stellen</source>
        <translation>Bring to &amp;front</translation>
    </message>
    <message>
        <source>In &amp;Hintergrund stellen</source>
        <translation>Send to &amp;back</translation>
    </message>
    <message>
        <source>G&amp;röße funktionen...</source>
        <translation>&amp;Size functions...</translation>
    </message>
    <message>
        <source>Raster &amp;Optionen...</source>
        <translation>Grid &amp;options...</translation>
    </message>
    <message>
        <source>&amp;Anordungs funktionen...</source>
        <translation>&amp;Alignment functions...</translation>
    </message>
</context>
<context>
    <name>TMaskTable</name>
    <message>
        <source>Die Maske hat keine Tabelle (Maskenoptionen).</source>
        <translation>The mask has no table (mask options).</translation>
    </message>
    <message>
        <source>Keine Verbindung zur Datenbank: %1</source>
        <translation>No connection to the database: %1</translation>
    </message>
    <message>
        <source>Die Tabelle „%1“ ist noch nicht erzeugt.</source>
        <translation>The table “%1” has not been created yet.</translation>
    </message>
    <message>
        <source>Die Tabelle „%1“ hat kein Feld „QXID“; bitte neu erzeugen.</source>
        <translation>The table “%1” has no field “QXID”; please create it again.</translation>
    </message>
    <message>
        <source>Die Auswahltabelle „%1“ kann nicht gelesen werden: %2</source>
        <translation>The pick table “%1” cannot be read: %2</translation>
    </message>
    <message>
        <source>Keine Verbindung.</source>
        <translation>No connection.</translation>
    </message>
    <message>
        <source>Die Tabelle ist noch nicht erzeugt.</source>
        <translation>The table has not been created yet.</translation>
    </message>
    <message>
        <source>Sie hat keine Datenfelder.</source>
        <translation>It has no data fields.</translation>
    </message>
    <message>
        <source>Im Feld „%1“ ist „%2“ %3.</source>
        <translation>In the field “%1”, “%2” is %3.</translation>
    </message>
    <message>
        <source>keine ganze Zahl</source>
        <translation>not a whole number</translation>
    </message>
    <message>
        <source>keine Zahl</source>
        <translation>not a number</translation>
    </message>
    <message>
        <source>kein Datum (TT.MM.JJJJ)</source>
        <translation>not a date (DD.MM.YYYY)</translation>
    </message>
    <message>
        <source>keine Uhrzeit (HH:MM)</source>
        <translation>not a time (HH:MM)</translation>
    </message>
    <message>
        <source>kein Zeitpunkt (TT.MM.JJJJ HH:MM)</source>
        <translation>not a point in time (DD.MM.YYYY HH:MM)</translation>
    </message>
    <message>
        <source>weder Ja noch Nein</source>
        <translation>neither yes nor no</translation>
    </message>
    <message>
        <source>Im Feld „%1“ sind höchstens %2 Zeichen erlaubt.</source>
        <translation>The field “%1” allows at most %2 characters.</translation>
    </message>
    <message>
        <source>Das Feld „%1“ muss ausgefüllt werden.</source>
        <translation>The field “%1” must be filled in.</translation>
    </message>
    <message>
        <source>Der Datensatz konnte nicht gespeichert werden:
%1</source>
        <translation>The record could not be saved:
%1</translation>
    </message>
    <message>
        <source>Die Tabelle ist nicht geöffnet.</source>
        <translation>The table is not open.</translation>
    </message>
    <message>
        <source>Die Spalte „%1“ gibt es in der Tabelle „%2“ nicht.</source>
        <translation>The table “%2” has no column “%1”.</translation>
    </message>
    <message>
        <source>Zeile %1: </source>
        <translation>Row %1: </translation>
    </message>
    <message>
        <source>%1 Werte statt %2.</source>
        <translation>%1 values instead of %2.</translation>
    </message>
    <message>
        <source>Der Datensatz wurde inzwischen von einem anderen Benutzer gelöscht.</source>
        <translation>The record has been deleted by another user in the meantime.</translation>
    </message>
    <message>
        <source>Der Datensatz wurde inzwischen von einem anderen Benutzer geändert.</source>
        <translation>The record has been changed by another user in the meantime.</translation>
    </message>
    <message>
        <source>Der Datensatz konnte nicht gelöscht werden:
%1</source>
        <translation>The record could not be deleted:
%1</translation>
    </message>
</context>
<context>
    <name>TMaske</name>
    <message>
        <source>Maske &quot;%1&quot; wurde verändert!

Sollen die Änderungen gespeichert werden?</source>
        <translation>Mask &quot;%1&quot; was changed!

Shall the changes be saved?</translation>
    </message>
    <message>
        <source>Gelöscht</source>
        <translation>Deleted</translation>
    </message>
</context>
<context>
    <name>TMemoDlg</name>
    <message>
        <source>PullDownliste editieren</source>
        <translation>Edit pull-down list</translation>
    </message>
    <message>
        <source>&amp;Abbrechen</source>
        <translation>&amp;Cancel</translation>
    </message>
</context>
<context>
    <name>TObjInsp</name>
    <message>
        <source>Keine</source>
        <translation>None</translation>
    </message>
    <message>
        <source>Oben</source>
        <translation>Top</translation>
    </message>
    <message>
        <source>Unten</source>
        <translation>Bottom</translation>
    </message>
    <message>
        <source>Links</source>
        <translation>Left</translation>
    </message>
    <message>
        <source>Rechts</source>
        <translation>Right</translation>
    </message>
    <message>
        <source>Fenster</source>
        <translation>Window</translation>
    </message>
    <message>
        <source>Textfeld</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>Zahl</source>
        <translation>Number</translation>
    </message>
    <message>
        <source>Datum</source>
        <translation>Date</translation>
    </message>
    <message>
        <source>Uhrzeit</source>
        <translation>Time</translation>
    </message>
    <message>
        <source>Währung</source>
        <translation>Currency</translation>
    </message>
    <message>
        <source>Logisch</source>
        <translation>Logical</translation>
    </message>
    <message>
        <source>Memo</source>
        <translation>Memo</translation>
    </message>
    <message>
        <source>AutoInc</source>
        <translation>AutoInc</translation>
    </message>
    <message>
        <source>Groß/Kleinschreibung</source>
        <translation>Mixed case</translation>
    </message>
    <message>
        <source>Großbuchstaben</source>
        <translation>Upper case</translation>
    </message>
    <message>
        <source>Kleinbuchstaben</source>
        <translation>Lower case</translation>
    </message>
    <message>
        <source>Links angeordnet</source>
        <translation>Left aligned</translation>
    </message>
    <message>
        <source>Rechts angeordnet</source>
        <translation>Right aligned</translation>
    </message>
    <message>
        <source>Zentriert</source>
        <translation>Centred</translation>
    </message>
    <message>
        <source>Datensatz suchen</source>
        <translation>Find record</translation>
    </message>
    <message>
        <source>Zeichnung starten</source>
        <translation>Open drawing</translation>
    </message>
    <message>
        <source>NC Programm starten</source>
        <translation>Start NC program</translation>
    </message>
    <message>
        <source>Datensatz zuweisen</source>
        <translation>Assign record</translation>
    </message>
    <message>
        <source>Datensatz auflisten</source>
        <translation>List records</translation>
    </message>
    <message>
        <source>Zeichnung einfügen</source>
        <translation>Insert drawing</translation>
    </message>
    <message>
        <source>Ext. Programm starten</source>
        <translation>Start ext. program</translation>
    </message>
    <message>
        <source>URL öffnen</source>
        <translation>Open URL</translation>
    </message>
    <message>
        <source>E-Mail senden</source>
        <translation>Send e-mail</translation>
    </message>
    <message>
        <source>Report starten</source>
        <translation>Start report</translation>
    </message>
    <message>
        <source>INI Sektion verarbeiten</source>
        <translation>Process INI section</translation>
    </message>
    <message>
        <source>Regel definieren</source>
        <translation>Define rule</translation>
    </message>
    <message>
        <source>Office2003 Blau</source>
        <translation>Office2003 Blue</translation>
    </message>
    <message>
        <source>Office2003 Silber</source>
        <translation>Office2003 Silver</translation>
    </message>
    <message>
        <source>Office2003 Olive</source>
        <translation>Office2003 Olive</translation>
    </message>
    <message>
        <source>Office2003 Klassik</source>
        <translation>Office2003 Classic</translation>
    </message>
    <message>
        <source>Office2007 Luna</source>
        <translation>Office2007 Luna</translation>
    </message>
    <message>
        <source>Office2007 Obsidian</source>
        <translation>Office2007 Obsidian</translation>
    </message>
    <message>
        <source>WindowsXP</source>
        <translation>WindowsXP</translation>
    </message>
    <message>
        <source>Whidbey</source>
        <translation>Whidbey</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>Custom</translation>
    </message>
    <message>
        <source>Office2007 Silber</source>
        <translation>Office2007 Silver</translation>
    </message>
    <message>
        <source>Größe:</source>
        <translation>Size:</translation>
    </message>
    <message>
        <source>Auto Größe</source>
        <translation>Auto size</translation>
    </message>
    <message>
        <source>Zeilenumbruch</source>
        <translation>Word wrap</translation>
    </message>
    <message>
        <source>Beschriftung:</source>
        <translation>Caption:</translation>
    </message>
    <message>
        <source>Layout:</source>
        <translation>Layout:</translation>
    </message>
    <message>
        <source>Zentrum</source>
        <translation>Centre</translation>
    </message>
    <message>
        <source>Ausrichtung:</source>
        <translation>Alignment:</translation>
    </message>
    <message>
        <source>Schriftart…</source>
        <translation>Font…</translation>
    </message>
    <message>
        <source>Feldname:</source>
        <translation>Field name:</translation>
    </message>
    <message>
        <source>Tabelle:</source>
        <translation>Table:</translation>
    </message>
    <message>
        <source>Feldtyp:</source>
        <translation>Field type:</translation>
    </message>
    <message>
        <source>Feldlänge:</source>
        <translation>Field length:</translation>
    </message>
    <message>
        <source>Im Browser editierbar</source>
        <translation>Editable in the browser</translation>
    </message>
    <message>
        <source>Feldtitel im Browser:</source>
        <translation>Column title in the browser:</translation>
    </message>
    <message>
        <source>Pflichtfeld</source>
        <translation>Required field</translation>
    </message>
    <message>
        <source>Nur lesen</source>
        <translation>Read only</translation>
    </message>
    <message>
        <source>Schreibweise:</source>
        <translation>Letter case:</translation>
    </message>
    <message>
        <source>Formatierung:</source>
        <translation>Edit mask:</translation>
    </message>
    <message>
        <source>Pulldowndatei:</source>
        <translation>Pull-down file:</translation>
    </message>
    <message>
        <source>Pulldowndatei bearbeiten</source>
        <translation>Edit the pull-down file</translation>
    </message>
    <message>
        <source>Bildlaufleisten:</source>
        <translation>Scroll bars:</translation>
    </message>
    <message>
        <source>Horizontal</source>
        <translation>Horizontal</translation>
    </message>
    <message>
        <source>Vertikal</source>
        <translation>Vertical</translation>
    </message>
    <message>
        <source>Beides</source>
        <translation>Both</translation>
    </message>
    <message>
        <source>Nur Text (ohne Formatierung)</source>
        <translation>Plain text (no formatting)</translation>
    </message>
    <message>
        <source>Beschreibung:</source>
        <translation>Description:</translation>
    </message>
    <message>
        <source>Farbfunktionen</source>
        <translation>Colour functions</translation>
    </message>
    <message>
        <source>Icon links</source>
        <translation>Icon left</translation>
    </message>
    <message>
        <source>Icon rechts</source>
        <translation>Icon right</translation>
    </message>
    <message>
        <source>Icon oben</source>
        <translation>Icon top</translation>
    </message>
    <message>
        <source>Icon unten</source>
        <translation>Icon bottom</translation>
    </message>
    <message>
        <source>Rand:</source>
        <translation>Margin:</translation>
    </message>
    <message>
        <source>Auto</source>
        <translation>Auto</translation>
    </message>
    <message>
        <source>Aktion:</source>
        <translation>Action:</translation>
    </message>
    <message>
        <source>Maske:</source>
        <translation>Mask:</translation>
    </message>
    <message>
        <source>Datei auswählen</source>
        <translation>Choose file</translation>
    </message>
    <message>
        <source>Zielfeld:</source>
        <translation>Target field:</translation>
    </message>
    <message>
        <source>IndexfeldEx:</source>
        <translation>Index field ex:</translation>
    </message>
    <message>
        <source>Indexfeld:</source>
        <translation>Index field:</translation>
    </message>
    <message>
        <source>Dateierweiterung:</source>
        <translation>File extension:</translation>
    </message>
    <message>
        <source>INI Sektion:</source>
        <translation>INI section:</translation>
    </message>
    <message>
        <source>als Admin ausführen</source>
        <translation>run as administrator</translation>
    </message>
    <message>
        <source>Form:</source>
        <translation>Shape:</translation>
    </message>
    <message>
        <source>Box</source>
        <translation>Box</translation>
    </message>
    <message>
        <source>Rahmen</source>
        <translation>Frame</translation>
    </message>
    <message>
        <source>Linie oben</source>
        <translation>Line at the top</translation>
    </message>
    <message>
        <source>Linie unten</source>
        <translation>Line at the bottom</translation>
    </message>
    <message>
        <source>Linie links</source>
        <translation>Line on the left</translation>
    </message>
    <message>
        <source>Linie rechts</source>
        <translation>Line on the right</translation>
    </message>
    <message>
        <source>keine</source>
        <translation>none</translation>
    </message>
    <message>
        <source>beide</source>
        <translation>both</translation>
    </message>
    <message>
        <source>Strukturbrowser aktiv</source>
        <translation>Structure browser on</translation>
    </message>
    <message>
        <source>Verknüpfungsfeld:</source>
        <translation>Link field:</translation>
    </message>
    <message>
        <source>Primärer Browser</source>
        <translation>Primary browser</translation>
    </message>
    <message>
        <source>Schrift…</source>
        <translation>Font…</translation>
    </message>
    <message>
        <source>Titelschrift…</source>
        <translation>Title font…</translation>
    </message>
    <message>
        <source>Rechteck</source>
        <translation>Rectangle</translation>
    </message>
    <message>
        <source>Quadrat</source>
        <translation>Square</translation>
    </message>
    <message>
        <source>Rechteck mit abgerundeten Ecken</source>
        <translation>Rounded rectangle</translation>
    </message>
    <message>
        <source>Quadrat mit abgerundeten Ecken</source>
        <translation>Rounded square</translation>
    </message>
    <message>
        <source>Ellipse</source>
        <translation>Ellipse</translation>
    </message>
    <message>
        <source>Kreis</source>
        <translation>Circle</translation>
    </message>
    <message>
        <source>Füllung:</source>
        <translation>Fill:</translation>
    </message>
    <message>
        <source>Rahmen:</source>
        <translation>Border:</translation>
    </message>
    <message>
        <source>Tabellenname:</source>
        <translation>Table name:</translation>
    </message>
    <message>
        <source>Auswahltabelle</source>
        <translation>Pick table</translation>
    </message>
    <message>
        <source>Datei:</source>
        <translation>File:</translation>
    </message>
    <message>
        <source>Bild auswählen</source>
        <translation>Choose picture</translation>
    </message>
    <message>
        <source>Strecken</source>
        <translation>Stretch</translation>
    </message>
    <message>
        <source>Reiterposition</source>
        <translation>Tab position</translation>
    </message>
    <message>
        <source>Stil:</source>
        <translation>Style:</translation>
    </message>
    <message>
        <source>Schriftart Tabs</source>
        <translation>Tab font</translation>
    </message>
    <message>
        <source>Seitentitel:</source>
        <translation>Page title:</translation>
    </message>
    <message>
        <source>Farbe:</source>
        <translation>Colour:</translation>
    </message>
    <message>
        <source>Titel:</source>
        <translation>Title:</translation>
    </message>
    <message>
        <source>Werte:</source>
        <translation>Values:</translation>
    </message>
    <message>
        <source>Spalten:</source>
        <translation>Columns:</translation>
    </message>
    <message>
        <source>Innenkante:</source>
        <translation>Inner bevel:</translation>
    </message>
    <message>
        <source>Außenkante:</source>
        <translation>Outer bevel:</translation>
    </message>
    <message>
        <source>Rahmenbreite:</source>
        <translation>Border width:</translation>
    </message>
    <message>
        <source>kein</source>
        <translation>none</translation>
    </message>
    <message>
        <source>Simpel</source>
        <translation>Single</translation>
    </message>
    <message>
        <source>3D Style</source>
        <translation>3D style</translation>
    </message>
    <message>
        <source>Statusfeld:</source>
        <translation>State field:</translation>
    </message>
    <message>
        <source>Felder:</source>
        <translation>Fields:</translation>
    </message>
    <message>
        <source>Schlüsselfeld:</source>
        <translation>Key field:</translation>
    </message>
    <message>
        <source>Masterfeld:</source>
        <translation>Master field:</translation>
    </message>
    <message>
        <source>Elternfeld:</source>
        <translation>Parent field:</translation>
    </message>
    <message>
        <source>Drag und Drop</source>
        <translation>Drag and drop</translation>
    </message>
    <message>
        <source>Programm auswählen:</source>
        <translation>Choose program:</translation>
    </message>
    <message>
        <source>Sektion:</source>
        <translation>Section:</translation>
    </message>
    <message>
        <source>Sektion Erweiterung:</source>
        <translation>Extension section:</translation>
    </message>
    <message>
        <source>Programm auswählen</source>
        <translation>Choose program</translation>
    </message>
    <message>
        <source>Programm (*.exe)|*.exe</source>
        <translation>Program (*.exe)|*.exe</translation>
    </message>
    <message>
        <source>Datenbankmaske auswählen</source>
        <translation>Choose database mask</translation>
    </message>
    <message>
        <source>Datenbankmaske (*.dbm)|*.dbm</source>
        <translation>Database mask (*.dbm)|*.dbm</translation>
    </message>
    <message>
        <source>Bilder (*.bmp;*.png;*.jpg;*.jpeg;*.gif)|*.bmp;*.png;*.jpg;*.jpeg;*.gif|Alle Dateien (*.*)|*.*</source>
        <translation>Pictures (*.bmp;*.png;*.jpg;*.jpeg;*.gif)|*.bmp;*.png;*.jpg;*.jpeg;*.gif|All files (*.*)|*.*</translation>
    </message>
    <message>
        <source>Dateiname nicht vorhanden. Soll eine neue angelegt werden?</source>
        <translation>The file does not exist. Shall a new one be created?</translation>
    </message>
    <message>
        <source>Die Datei &quot;%1&quot; konnte nicht angelegt werden.</source>
        <translation>The file &quot;%1&quot; could not be created.</translation>
    </message>
    <message>
        <source>Wollen Sie die Datei editieren?</source>
        <translation>Do you want to edit the file?</translation>
    </message>
    <message>
        <source>Die Datei &quot;%1&quot; konnte nicht gelesen werden.</source>
        <translation>The file &quot;%1&quot; could not be read.</translation>
    </message>
    <message>
        <source>Die Datei &quot;%1&quot; konnte nicht geschrieben werden.</source>
        <translation>The file &quot;%1&quot; could not be written.</translation>
    </message>
    <message>
        <source>Neue Seite</source>
        <translation>New page</translation>
    </message>
    <message>
        <source>Farbe…</source>
        <translation>Colour…</translation>
    </message>
    <message>
        <source>Seite des ausgewählten Elements</source>
        <translation>Page of the selected element</translation>
    </message>
    <message>
        <source>Seite %1 ansehen</source>
        <translation>View page %1</translation>
    </message>
    <message>
        <source> (nur Ansicht)</source>
        <translation> (view only)</translation>
    </message>
    <message>
        <source>Objekt Inspektor</source>
        <translation>Object inspector</translation>
    </message>
    <message>
        <source>(kein Element)</source>
        <translation>(no element)</translation>
    </message>
    <message>
        <source>Element der Maske auswählen</source>
        <translation>Choose an element of the mask</translation>
    </message>
    <message>
        <source>Kein oder mehrere Elemente ausgewählt.</source>
        <translation>No element or several elements selected.</translation>
    </message>
    <message>
        <source>%1 Elemente</source>
        <translation>%1 elements</translation>
    </message>
</context>
<context>
    <name>TRunSession</name>
    <message>
        <source>Soll eine neue Nummer aus „%1“ vergeben werden?</source>
        <translation>Shall a new number be taken from “%1”?</translation>
    </message>
    <message>
        <source>Der Datensatz wurde geändert.<byte value="xd"/><byte value="xd"/>Sollen die Änderungen gespeichert werden?</source>
        <translation>The record was changed.<byte value="xd"/><byte value="xd"/>Shall the changes be saved?</translation>
    </message>
    <message>
        <source>%1<byte value="xd"/><byte value="xd"/>Soll der Datensatz neu geladen werden? Ihre Änderungen gehen dabei verloren.</source>
        <translation>%1<byte value="xd"/><byte value="xd"/>Shall the record be loaded again? Your changes will be lost.</translation>
    </message>
    <message>
        <source>Soll der Datensatz gelöscht werden?</source>
        <translation>Shall the record be deleted?</translation>
    </message>
    <message>
        <source>Kein Datensatz gefunden.</source>
        <translation>No record found.</translation>
    </message>
    <message>
        <source>Datensatz suchen</source>
        <translation>Find record</translation>
    </message>
    <message>
        <source>Suchen nach „%1“:</source>
        <translation>Search for “%1”:</translation>
    </message>
    <message>
        <source>Abbrechen</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>Keine Daten: %1</source>
        <translation>No data: %1</translation>
    </message>
    <message>
        <source>Neuer Datensatz (%1 vorhanden)</source>
        <translation>New record (%1 present)</translation>
    </message>
    <message>
        <source>Datensatz %1 von %2</source>
        <translation>Record %1 of %2</translation>
    </message>
    <message>
        <source>Erster</source>
        <translation>First</translation>
    </message>
    <message>
        <source>Voriger</source>
        <translation>Previous</translation>
    </message>
    <message>
        <source>Nächster</source>
        <translation>Next</translation>
    </message>
    <message>
        <source>Letzter</source>
        <translation>Last</translation>
    </message>
    <message>
        <source>Neu</source>
        <translation>New</translation>
    </message>
    <message>
        <source>Speichern</source>
        <translation>Save</translation>
    </message>
    <message>
        <source>Löschen</source>
        <translation>Delete</translation>
    </message>
    <message>
        <source>Verwerfen</source>
        <translation>Discard</translation>
    </message>
    <message>
        <source>Suchen</source>
        <translation>Find</translation>
    </message>
</context>
<context>
    <name>TSizeForm</name>
    <message>
        <source>Größe anpassen</source>
        <translation>Adjust size</translation>
    </message>
    <message>
        <source> Breite </source>
        <translation> Width </translation>
    </message>
    <message>
        <source>Keine Änderung</source>
        <translation>No change</translation>
    </message>
    <message>
        <source>aufs kleinste anpassen</source>
        <translation>Shrink to smallest</translation>
    </message>
    <message>
        <source>aufs größste anpassen</source>
        <translation>Grow to largest</translation>
    </message>
    <message>
        <source>Breite:</source>
        <translation>Width:</translation>
    </message>
    <message>
        <source> Höhe </source>
        <translation> Height </translation>
    </message>
    <message>
        <source>Höhe:</source>
        <translation>Height:</translation>
    </message>
    <message>
        <source>&amp;Abbrechen</source>
        <translation>&amp;Cancel</translation>
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
    <name>TValueMacros</name>
    <message>
        <source>Der Dateizähler „%1“ kann nicht benutzt werden: %2</source>
        <translation>The file counter “%1” cannot be used: %2</translation>
    </message>
    <message>
        <source>Kein Dateiname angegeben.</source>
        <translation>No file name given.</translation>
    </message>
    <message>
        <source>Der Ordner fehlt.</source>
        <translation>The folder is missing.</translation>
    </message>
    <message>
        <source>Die Datei ist gesperrt.</source>
        <translation>The file is locked.</translation>
    </message>
    <message>
        <source>Sie enthält keine Zahl („%1“).</source>
        <translation>It holds no number (“%1”).</translation>
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
    <name>TfrmRule</name>
    <message>
        <source>Regel definieren</source>
        <translation>Define rule</translation>
    </message>
    <message>
        <source>Regel:</source>
        <translation>Rule:</translation>
    </message>
    <message>
        <source>Feld:</source>
        <translation>Field:</translation>
    </message>
    <message>
        <source>Farbe:</source>
        <translation>Colour:</translation>
    </message>
    <message>
        <source>auf Datensatz anwenden</source>
        <translation>apply to the record</translation>
    </message>
    <message>
        <source>Abbruch</source>
        <translation>Cancel</translation>
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
    <name>UserDialogs</name>
    <message>
        <source>Warnung</source>
        <translation>Warning</translation>
    </message>
    <message>
        <source>Fehler</source>
        <translation>Error</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Information</translation>
    </message>
    <message>
        <source>Bestätigen</source>
        <translation>Confirm</translation>
    </message>
    <message>
        <source>&amp;Ja</source>
        <translation>&amp;Yes</translation>
    </message>
    <message>
        <source>&amp;Nein</source>
        <translation>&amp;No</translation>
    </message>
    <message>
        <source>Abbrechen</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>&amp;Abbrechen</source>
        <translation>&amp;Abort</translation>
    </message>
    <message>
        <source>&amp;Wiederholen</source>
        <translation>&amp;Retry</translation>
    </message>
    <message>
        <source>&amp;Ignorieren</source>
        <translation>&amp;Ignore</translation>
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
<context>
    <name>ferolith-cli</name>
    <message>
        <source>Aufruf: %1</source>
        <translation>Usage: %1</translation>
    </message>
    <message>
        <source>Die Datei „%1“ gibt es nicht.</source>
        <translation>The file “%1” does not exist.</translation>
    </message>
    <message>
        <source>Die Datei „%1“ kann nicht gelesen werden.</source>
        <translation>The file “%1” cannot be read.</translation>
    </message>
    <message>
        <source>roundtrip EIN.dbm AUS.dbm</source>
        <translation>roundtrip IN.dbm OUT.dbm</translation>
    </message>
    <message>
        <source>dump EIN.dbm</source>
        <translation>dump IN.dbm</translation>
    </message>
    <message>
        <source>render EIN.dbm AUS.png</source>
        <translation>render IN.dbm OUT.png</translation>
    </message>
    <message>
        <source>Das Bild „%1“ kann nicht geschrieben werden: %2</source>
        <translation>The picture “%1” cannot be written: %2</translation>
    </message>
    <message>
        <source>→ Ja</source>
        <translation>→ Yes</translation>
    </message>
    <message>
        <source>→ Nein</source>
        <translation>→ No</translation>
    </message>
    <message>
        <source>Die Einstellungen konnten nicht aus der Registrierung gelesen werden: %1</source>
        <translation>The settings could not be read from the registry: %1</translation>
    </message>
    <message>
        <source>Aufruf: ferolith-cli create-table MASKE.dbm [--keep-data|--drop-data]</source>
        <translation>Usage: ferolith-cli create-table MASK.dbm [--keep-data|--drop-data]</translation>
    </message>
    <message>
        <source>Die Maske „%1“ nennt keine Tabelle.</source>
        <translation>The mask “%1” names no table.</translation>
    </message>
    <message>
        <source>Aufruf: ferolith-cli servers</source>
        <translation>Usage: ferolith-cli servers</translation>
    </message>
    <message>
        <source>Aufruf: ferolith-cli aliases SERVER</source>
        <translation>Usage: ferolith-cli aliases SERVER</translation>
    </message>
    <message>
        <source>Keine Datenbank auf dem Server „%1“ gefunden.</source>
        <translation>No database found on the server “%1”.</translation>
    </message>
    <message>
        <source>Die Einstellungen konnten nicht gelesen werden: %1</source>
        <translation>The settings could not be read: %1</translation>
    </message>
    <message>
        <source>Das Anführungszeichen in Zeile %1 wird nicht geschlossen.</source>
        <translation>The quotation mark in line %1 is not closed.</translation>
    </message>
    <message>
        <source>Aufruf: ferolith-cli export MASKE.dbm</source>
        <translation>Usage: ferolith-cli export MASK.dbm</translation>
    </message>
    <message>
        <source>Aufruf: ferolith-cli import MASKE.dbm DATEI.csv</source>
        <translation>Usage: ferolith-cli import MASK.dbm FILE.csv</translation>
    </message>
    <message>
        <source>Die Datei hat keine Kopfzeile mit den Feldnamen.</source>
        <translation>The file has no header line with the field names.</translation>
    </message>
    <message>
        <source>Nichts wurde übernommen.</source>
        <translation>Nothing was imported.</translation>
    </message>
    <message>
        <source>%1 Datensätze übernommen.</source>
        <translation>%1 records imported.</translation>
    </message>
    <message>
        <source>Aufruf: ferolith-cli [--ini DATEI] BEFEHL [ARGUMENTE]

Ferolith-Batchwerkzeug: bearbeitet Masken (.dbm) ohne sichtbares Fenster.

Befehle:
  roundtrip EIN.dbm AUS.dbm   Maske laden und wie &quot;Speichern&quot; wieder schreiben
  dump EIN.dbm                Maske als JSON-Objekt ausgeben
  render EIN.dbm AUS.png      Maske im Run Mode als PNG-Bild speichern
  create-table EIN.dbm [--keep-data|--drop-data]
                              Tabelle der Maske in der eingestellten Datenbank erzeugen;
                              vorhandene Daten übernehmen (Vorgabe) oder verwerfen
  export EIN.dbm              Datensätze der Tabelle der Maske als CSV ausgeben
  import EIN.dbm DATEI.csv    CSV-Datei (Kopfzeile: Feldnamen) als neue Datensätze
                              übernehmen, mit Vorgabewerten und Prüfungen der Maske;
                              eine fehlerhafte Zeile: nichts wird übernommen
  servers                     Datenbankserver suchen (Verbindungstyp aus den Einstellungen)
  aliases SERVER              Datenbanken eines Servers auflisten

Optionen:
  -h, --help       diese Hilfe anzeigen
  -v, --version    Version anzeigen
  --ini DATEI      Einstellungsdatei statt der voreingestellten verwenden
</source>
        <translation>Usage: ferolith-cli [--ini FILE] COMMAND [ARGUMENTS]

Ferolith batch tool: works on masks (.dbm) without a visible window.

Commands:
  roundtrip IN.dbm OUT.dbm    load a mask and write it again as &quot;Save&quot; does
  dump IN.dbm                 print the mask as a JSON object
  render IN.dbm OUT.png       save the mask in run mode as a PNG picture
  create-table IN.dbm [--keep-data|--drop-data]
                              create the mask&apos;s table in the configured database;
                              carry existing data over (default) or drop it
  export IN.dbm               print the records of the mask&apos;s table as CSV
  import IN.dbm FILE.csv      take a CSV file (header line: field names) as new records,
                              with the mask&apos;s default values and checks;
                              one faulty row: nothing is imported
  servers                     look for database servers (connection type from the settings)
  aliases SERVER              list the databases of a server

Options:
  -h, --help       show this help
  -v, --version    show the version
  --ini FILE       use this settings file instead of the default one
</translation>
    </message>
    <message>
        <source>unbekannter Befehl „%1“ (siehe --help)</source>
        <translation>unknown command “%1” (see --help)</translation>
    </message>
</context>
</TS>
