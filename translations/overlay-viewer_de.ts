<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>KeyList</name>
    <message>
        <source>%1 is the key of &quot;%2&quot; in the menu and of &quot;%3&quot; in %4.</source>
        <translation>%1 ist die Taste von „%2“ im Menü und von „%3“ in %4.</translation>
    </message>
</context>
<context>
    <name>ModuleCategory</name>
    <message>
        <source>Scene</source>
        <translation>Szene</translation>
    </message>
</context>
<context>
    <name>ReadOut</name>
    <message>
        <source>Top Left</source>
        <translation>Oben links</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>Oben</translation>
    </message>
    <message>
        <source>Top Right</source>
        <translation>Oben rechts</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Links</translation>
    </message>
    <message>
        <source>Center</source>
        <translation>Mitte</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Rechts</translation>
    </message>
    <message>
        <source>Bottom Left</source>
        <translation>Unten links</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>Unten</translation>
    </message>
    <message>
        <source>Bottom Right</source>
        <translation>Unten rechts</translation>
    </message>
    <message>
        <source>Anchor: %1 (x %2, y %3 of the view)</source>
        <translation>Anker: %1 (x %2, y %3 der Ansicht)</translation>
    </message>
    <message>
        <source>Anchor: x %1, y %2 of the view</source>
        <translation>Anker: x %1, y %2 der Ansicht</translation>
    </message>
    <message>
        <source>Offset: x %1 pt, y %2 pt</source>
        <translation>Versatz: x %1 pt, y %2 pt</translation>
    </message>
</context>
<context>
    <name>Step</name>
    <message>
        <source>Create &quot;%1&quot;</source>
        <translation>„%1“ erstellen</translation>
    </message>
    <message>
        <source>Create %1 overlays</source>
        <translation>%1 Overlays erstellen</translation>
    </message>
    <message>
        <source>Create %1 groups</source>
        <translation>%1 Gruppen erstellen</translation>
    </message>
    <message>
        <source>Create %1 switches</source>
        <translation>%1 Schalter erstellen</translation>
    </message>
    <message>
        <source>Duplicate &quot;%1&quot;</source>
        <translation>„%1“ duplizieren</translation>
    </message>
    <message>
        <source>Duplicate %1 items</source>
        <translation>%1 Elemente duplizieren</translation>
    </message>
    <message>
        <source>Delete &quot;%1&quot;</source>
        <translation>„%1“ löschen</translation>
    </message>
    <message>
        <source>Delete %1 items</source>
        <translation>%1 Elemente löschen</translation>
    </message>
    <message>
        <source>Group &quot;%1&quot;</source>
        <translation>„%1“ gruppieren</translation>
    </message>
    <message>
        <source>Group %1 items</source>
        <translation>%1 Elemente gruppieren</translation>
    </message>
    <message>
        <source>Move &quot;%1&quot;</source>
        <translation>„%1“ verschieben</translation>
    </message>
    <message>
        <source>Move %1 items</source>
        <translation>%1 Elemente verschieben</translation>
    </message>
    <message>
        <source>Rename to &quot;%1&quot;</source>
        <translation>In „%1“ umbenennen</translation>
    </message>
    <message>
        <source>Rename %1 items</source>
        <translation>%1 Elemente umbenennen</translation>
    </message>
    <message>
        <source>Switch on &quot;%1&quot;</source>
        <translation>„%1“ einschalten</translation>
    </message>
    <message>
        <source>Switch on %1 items</source>
        <translation>%1 Elemente einschalten</translation>
    </message>
    <message>
        <source>Switch off &quot;%1&quot;</source>
        <translation>„%1“ ausschalten</translation>
    </message>
    <message>
        <source>Switch off %1 items</source>
        <translation>%1 Elemente ausschalten</translation>
    </message>
    <message>
        <source>Toggle &quot;%1&quot;</source>
        <translation>„%1“ umschalten</translation>
    </message>
    <message>
        <source>Toggle %1 items</source>
        <translation>%1 Elemente umschalten</translation>
    </message>
    <message>
        <source>Set type of &quot;%1&quot;</source>
        <translation>Typ von „%1“ setzen</translation>
    </message>
    <message>
        <source>Set type of %1 overlays</source>
        <translation>Typ von %1 Overlays setzen</translation>
    </message>
    <message>
        <source>Set text of &quot;%1&quot;</source>
        <translation>Text von „%1“ setzen</translation>
    </message>
    <message>
        <source>Set text of %1 overlays</source>
        <translation>Text von %1 Overlays setzen</translation>
    </message>
    <message>
        <source>Set font of &quot;%1&quot;</source>
        <translation>Schriftart von „%1“ setzen</translation>
    </message>
    <message>
        <source>Set font of %1 overlays</source>
        <translation>Schriftart von %1 Overlays setzen</translation>
    </message>
    <message>
        <source>Set font colour of &quot;%1&quot;</source>
        <translation>Schriftfarbe von „%1“ setzen</translation>
    </message>
    <message>
        <source>Set font colour of %1 overlays</source>
        <translation>Schriftfarbe von %1 Overlays setzen</translation>
    </message>
    <message>
        <source>Set background colour of &quot;%1&quot;</source>
        <translation>Hintergrundfarbe von „%1“ setzen</translation>
    </message>
    <message>
        <source>Set background colour of %1 overlays</source>
        <translation>Hintergrundfarbe von %1 Overlays setzen</translation>
    </message>
    <message>
        <source>Set background transparency of &quot;%1&quot;</source>
        <translation>Hintergrundtransparenz von „%1“ setzen</translation>
    </message>
    <message>
        <source>Set background transparency of %1 overlays</source>
        <translation>Hintergrundtransparenz von %1 Overlays setzen</translation>
    </message>
    <message>
        <source>Set image of &quot;%1&quot;</source>
        <translation>Bild von „%1“ setzen</translation>
    </message>
    <message>
        <source>Set image of %1 overlays</source>
        <translation>Bild von %1 Overlays setzen</translation>
    </message>
    <message>
        <source>Set size type of &quot;%1&quot;</source>
        <translation>Skalierung von „%1“ setzen</translation>
    </message>
    <message>
        <source>Set size type of %1 overlays</source>
        <translation>Skalierung von %1 Overlays setzen</translation>
    </message>
    <message>
        <source>Set size of &quot;%1&quot;</source>
        <translation>Größe von „%1“ setzen</translation>
    </message>
    <message>
        <source>Set size of %1 overlays</source>
        <translation>Größe von %1 Overlays setzen</translation>
    </message>
    <message>
        <source>Set anchor of &quot;%1&quot;</source>
        <translation>Anker von „%1“ setzen</translation>
    </message>
    <message>
        <source>Set anchor of %1 overlays</source>
        <translation>Anker von %1 Overlays setzen</translation>
    </message>
    <message>
        <source>Set offset of &quot;%1&quot;</source>
        <translation>Versatz von „%1“ setzen</translation>
    </message>
    <message>
        <source>Set offset of %1 overlays</source>
        <translation>Versatz von %1 Overlays setzen</translation>
    </message>
    <message>
        <source>Set horizontal offset of &quot;%1&quot;</source>
        <translation>Horizontalen Versatz von „%1“ setzen</translation>
    </message>
    <message>
        <source>Set horizontal offset of %1 overlays</source>
        <translation>Horizontalen Versatz von %1 Overlays setzen</translation>
    </message>
    <message>
        <source>Set vertical offset of &quot;%1&quot;</source>
        <translation>Vertikalen Versatz von „%1“ setzen</translation>
    </message>
    <message>
        <source>Set vertical offset of %1 overlays</source>
        <translation>Vertikalen Versatz von %1 Overlays setzen</translation>
    </message>
    <message>
        <source>Move &quot;%1&quot; in the view</source>
        <translation>„%1“ in der Ansicht verschieben</translation>
    </message>
    <message>
        <source>Move %1 overlays in the view</source>
        <translation>%1 Overlays in der Ansicht verschieben</translation>
    </message>
    <message>
        <source>Paste &quot;%1&quot;</source>
        <translation>„%1“ einfügen</translation>
    </message>
    <message>
        <source>Paste %1 items</source>
        <translation>%1 Elemente einfügen</translation>
    </message>
    <message>
        <source>Cut &quot;%1&quot;</source>
        <translation>„%1“ ausschneiden</translation>
    </message>
    <message>
        <source>Cut %1 items</source>
        <translation>%1 Elemente ausschneiden</translation>
    </message>
</context>
<context>
    <name>viewer</name>
    <message>
        <source>Overlay Viewer</source>
        <translation>Overlay-Betrachter</translation>
    </message>
</context>
<context>
    <name>viewer::ClipboardActions</name>
    <message>
        <source>Cu&amp;t</source>
        <translation>&amp;Ausschneiden</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopieren</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>&amp;Einfügen</translation>
    </message>
</context>
<context>
    <name>viewer::CommandLine</name>
    <message>
        <source>Shows a scene and its overlays, and hosts modules.</source>
        <translation>Zeigt eine Szene mit ihren Overlays und nimmt Module auf.</translation>
    </message>
    <message>
        <source>Show this help.</source>
        <translation>Diese Hilfe anzeigen.</translation>
    </message>
    <message>
        <source>Load this module instead of the editor; may be repeated.</source>
        <translation>Dieses Modul statt des Editors laden; kann wiederholt werden.</translation>
    </message>
    <message>
        <source>file</source>
        <translation>Datei</translation>
    </message>
    <message>
        <source>Paint a backdrop instead of the 3D view.</source>
        <translation>Statt der 3D-Ansicht einen Hintergrund malen.</translation>
    </message>
    <message>
        <source>Save a picture of the window once all is shown, and quit.</source>
        <translation>Sobald alles angezeigt ist, ein Bild des Fensters speichern und beenden.</translation>
    </message>
    <message>
        <source>scene</source>
        <translation>Szene</translation>
    </message>
    <message>
        <source>Scene file to open.</source>
        <translation>Szenendatei, die geöffnet wird.</translation>
    </message>
    <message>
        <source>[scene.json]</source>
        <translation>[szene.json]</translation>
    </message>
    <message>
        <source>Only one scene can be opened.</source>
        <translation>Es kann nur eine Szene geöffnet werden.</translation>
    </message>
    <message>
        <source>The option --screenshot needs the name of a file.</source>
        <translation>Die Option --screenshot braucht den Namen einer Datei.</translation>
    </message>
    <message>
        <source>Run without window and display; ask nothing.</source>
        <translation>Ohne Fenster und Anzeige arbeiten; nichts fragen.</translation>
    </message>
    <message>
        <source>Open this scene.</source>
        <translation>Diese Szene öffnen.</translation>
    </message>
    <message>
        <source>Headless: save the scene.</source>
        <translation>Ohne Fenster: die Szene speichern.</translation>
    </message>
    <message>
        <source>Headless: save a picture of the view.</source>
        <translation>Ohne Fenster: ein Bild der Ansicht speichern.</translation>
    </message>
    <message>
        <source>Size of the exported picture; 1920x1080 unless given.</source>
        <translation>Größe des exportierten Bildes; ohne Angabe 1920x1080.</translation>
    </message>
    <message>
        <source>WIDTHxHEIGHT</source>
        <translation>BREITExHÖHE</translation>
    </message>
    <message>
        <source>Dots per inch of the exported picture; 96 unless given.</source>
        <translation>Punkte pro Zoll des exportierten Bildes; ohne Angabe 96.</translation>
    </message>
    <message>
        <source>number</source>
        <translation>Zahl</translation>
    </message>
    <message>
        <source>Export without backdrop.</source>
        <translation>Ohne Hintergrund exportieren.</translation>
    </message>
    <message>
        <source>The option --%1 needs --headless.</source>
        <translation>Die Option --%1 braucht --headless.</translation>
    </message>
    <message>
        <source>The option --%1 needs a value.</source>
        <translation>Die Option --%1 braucht einen Wert.</translation>
    </message>
    <message>
        <source>The size &quot;%1&quot; is none: 3840x2160 would be one, up to %2 in each direction.</source>
        <translation>„%1“ ist keine Größe; 3840x2160 wäre eine, mit höchstens %2 in jeder Richtung.</translation>
    </message>
    <message>
        <source>The dots per inch must be a number from 1 to %1, and &quot;%2&quot; is none.</source>
        <translation>Die Punkte pro Zoll müssen eine Zahl von 1 bis %1 sein; „%2“ ist keine.</translation>
    </message>
    <message>
        <source>&quot;%1 --help&quot; lists all options.</source>
        <translation>„%1 --help“ nennt alle Optionen.</translation>
    </message>
    <message>
        <source>Language of texts and numbers, such as de or zh_CN; that of the desktop unless given.</source>
        <translation>Sprache der Texte und Zahlen, etwa de oder zh_CN; ohne Angabe die des Desktops.</translation>
    </message>
    <message>
        <source>name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not the name of a language: de would be one.</source>
        <translation>„%1“ ist nicht der Name einer Sprache; de wäre einer.</translation>
    </message>
    <message>
        <source>Run this script once the scene is open.</source>
        <translation>Dieses Skript ausführen, sobald die Szene geöffnet ist.</translation>
    </message>
    <message>
        <source>Record what is done to the scene as a script.</source>
        <translation>Was an der Szene getan wird, als Skript aufzeichnen.</translation>
    </message>
    <message>
        <source>
A headless run returns:
  0  all was done
  2  the arguments are wrong
  3  done, but an image that is shown cannot be read; a placeholder was drawn
  4  the scene cannot be read
  5  the scene or the picture cannot be written
  6  a module cannot be loaded
  7  the script cannot be read, or failed; nothing was written
  8  the script was interrupted; nothing was written
</source>
        <translation>
Ein Lauf ohne Fenster gibt zurück:
  0  alles wurde erledigt
  2  die Argumente sind falsch
  3  erledigt, aber ein Bild, das gezeigt wird, kann nicht gelesen werden; ein Platzhalter wurde gezeichnet
  4  die Szene kann nicht gelesen werden
  5  die Szene oder das Bild kann nicht geschrieben werden
  6  ein Modul kann nicht geladen werden
  7  das Skript kann nicht gelesen werden oder ist gescheitert; nichts wurde geschrieben
  8  das Skript wurde unterbrochen; nichts wurde geschrieben
</translation>
    </message>
    <message>
        <source>The option --record needs a window: a run without one has nobody to record.</source>
        <translation>Die Option --record braucht ein Fenster: Ohne gibt es niemanden, der etwas tut.</translation>
    </message>
    <message>
        <source>The name of the scene is empty.</source>
        <translation>Der Name der Szene ist leer.</translation>
    </message>
    <message>
        <source>The option --screenshot needs a window: --export saves a picture without one.</source>
        <translation>Die Option --screenshot braucht ein Fenster: --export speichert ein Bild ohne Fenster.</translation>
    </message>
    <message>
        <source>The option --%1 can be given only once.</source>
        <translation>Die Option --%1 kann nur einmal angegeben werden.</translation>
    </message>
</context>
<context>
    <name>viewer::EditLayer</name>
    <message>
        <source>Outlines of what is selected</source>
        <translation>Umrisse des Ausgewählten</translation>
    </message>
</context>
<context>
    <name>viewer::FileActions</name>
    <message>
        <source>&amp;%1  %2</source>
        <translation>&amp;%1  %2</translation>
    </message>
    <message>
        <source>Open &amp;Recent</source>
        <translation>Zu&amp;letzt geöffnet</translation>
    </message>
    <message>
        <source>&amp;New Scene</source>
        <translation>&amp;Neue Szene</translation>
    </message>
    <message>
        <source>&amp;Open Scene…</source>
        <translation>Szene ö&amp;ffnen…</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Speichern</translation>
    </message>
    <message>
        <source>Save &amp;As…</source>
        <translation>Speichern &amp;unter…</translation>
    </message>
    <message>
        <source>&amp;Clear List</source>
        <translation>Liste lee&amp;ren</translation>
    </message>
</context>
<context>
    <name>viewer::FileIOService</name>
    <message>
        <source>Images (%1)</source>
        <translation>Bilder (%1)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Alle Dateien (*)</translation>
    </message>
</context>
<context>
    <name>viewer::FileQuestions</name>
    <message>
        <source>Scenes (*.json);;All files (*)</source>
        <translation>Szenen (*.json);;Alle Dateien (*)</translation>
    </message>
    <message>
        <source>Unsaved Changes</source>
        <translation>Nicht gespeicherte Änderungen</translation>
    </message>
    <message>
        <source>The scene &quot;%1&quot; has changes that are not saved.</source>
        <translation>Die Szene „%1“ hat Änderungen, die nicht gespeichert sind.</translation>
    </message>
    <message>
        <source>They are lost unless you save them.</source>
        <translation>Sie gehen verloren, wenn sie nicht gespeichert werden.</translation>
    </message>
    <message>
        <source>Recover Work</source>
        <translation>Arbeit wiederherstellen</translation>
    </message>
    <message>
        <source>The viewer did not end properly. Changes to &quot;%1&quot; up to %2 can be recovered.</source>
        <translation>Der Betrachter wurde nicht ordnungsgemäß beendet. Änderungen an „%1“ bis %2 können wiederhergestellt werden.</translation>
    </message>
    <message>
        <source>&amp;Recover</source>
        <translation>&amp;Wiederherstellen</translation>
    </message>
    <message>
        <source>&amp;Later</source>
        <translation>S&amp;päter</translation>
    </message>
    <message>
        <source>Open Scene</source>
        <translation>Szene öffnen</translation>
    </message>
    <message>
        <source>Save Scene</source>
        <translation>Szene speichern</translation>
    </message>
    <message>
        <source>untitled.json</source>
        <translation>unbenannt.json</translation>
    </message>
    <message>
        <source>Run Script</source>
        <translation>Skript ausführen</translation>
    </message>
    <message>
        <source>Scripts (*.js);;All files (*)</source>
        <translation>Skripte (*.js);;Alle Dateien (*)</translation>
    </message>
    <message>
        <source>File Changed</source>
        <translation>Datei geändert</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; was changed by another program since it was last opened or saved here.</source>
        <translation>Die Datei „%1“ wurde von einem anderen Programm geändert, seit sie hier zuletzt geöffnet oder gespeichert wurde.</translation>
    </message>
    <message>
        <source>Saving overwrites these changes. To keep both, cancel and save under another name.</source>
        <translation>Speichern überschreibt diese Änderungen. Um beides zu behalten, abbrechen und unter einem anderen Namen speichern.</translation>
    </message>
    <message>
        <source>&amp;Overwrite</source>
        <translation>&amp;Überschreiben</translation>
    </message>
    <message>
        <source>&amp;Discard</source>
        <translation>&amp;Verwerfen</translation>
    </message>
</context>
<context>
    <name>viewer::GuideWindow</name>
    <message>
        <source>The user guide was not installed with the viewer.</source>
        <translation>Das Benutzerhandbuch wurde nicht mit dem Betrachter installiert.</translation>
    </message>
    <message>
        <source>User Guide</source>
        <translation>Benutzerhandbuch</translation>
    </message>
    <message>
        <source>Contents</source>
        <translation>Inhalt</translation>
    </message>
</context>
<context>
    <name>viewer::HeadlessRun</name>
    <message>
        <source>The picture &quot;%1&quot; cannot be written: %2</source>
        <translation>Das Bild „%1“ kann nicht geschrieben werden: %2</translation>
    </message>
    <message>
        <source>it needs too much memory</source>
        <translation>es braucht zu viel Speicher</translation>
    </message>
    <message>
        <source>Still opening &quot;%1&quot; after %2 s.</source>
        <translation>„%1“ wird nach %2 s noch geöffnet.</translation>
    </message>
    <message>
        <source>Still running &quot;%1&quot; after %2 s.</source>
        <translation>„%1“ wird nach %2 s noch ausgeführt.</translation>
    </message>
    <message>
        <source>Still saving &quot;%1&quot; after %2 s.</source>
        <translation>„%1“ wird nach %2 s noch gespeichert.</translation>
    </message>
    <message>
        <source>Still drawing &quot;%1&quot; after %2 s.</source>
        <translation>„%1“ wird nach %2 s noch gezeichnet.</translation>
    </message>
    <message>
        <source>its format knows no transparency, as PNG does</source>
        <translation>das Format kennt anders als PNG keine Transparenz</translation>
    </message>
    <message>
        <source>Still reading the images of &quot;%1&quot; after %2 s.</source>
        <translation>Die Bilder von „%1“ werden nach %2 s noch gelesen.</translation>
    </message>
    <message>
        <source>Warning: the image &quot;%1&quot; of %2 cannot be read, but is not shown either.</source>
        <translation>Warnung: Das Bild „%1“ von %2 kann nicht gelesen werden, wird aber auch nicht gezeigt.</translation>
    </message>
    <message>
        <source>Warning: the image &quot;%1&quot; of %2 cannot be read; a placeholder stands for it.</source>
        <translation>Warnung: Das Bild „%1“ von %2 kann nicht gelesen werden; dafür steht ein Platzhalter.</translation>
    </message>
    <message>
        <source>&quot;%1&quot;</source>
        <comment>the name of an overlay</comment>
        <translation>„%1“</translation>
    </message>
    <message>
        <source>, </source>
        <comment>between names</comment>
        <translation>, </translation>
    </message>
</context>
<context>
    <name>viewer::HistoryModel</name>
    <message>
        <source>Start</source>
        <translation>Anfang</translation>
    </message>
    <message>
        <source>The scene was saved in this state</source>
        <translation>In diesem Zustand wurde die Szene gespeichert</translation>
    </message>
</context>
<context>
    <name>viewer::HistoryPanel</name>
    <message>
        <source>History</source>
        <translation>Verlauf</translation>
    </message>
    <message>
        <source>Steps</source>
        <translation>Schritte</translation>
    </message>
</context>
<context>
    <name>viewer::Journal</name>
    <message>
        <source>Unsaved work cannot be kept safe in %1.</source>
        <translation>Nicht gespeicherte Arbeit kann nicht in %1 gesichert werden.</translation>
    </message>
    <message>
        <source>%1: the file cannot be read: %2</source>
        <translation>%1: Die Datei kann nicht gelesen werden: %2</translation>
    </message>
</context>
<context>
    <name>viewer::JsonBounds</name>
    <message>
        <source>byte %1: %2</source>
        <translation>Byte %1: %2</translation>
    </message>
    <message>
        <source>expected at most %L1 values, found more</source>
        <translation>erwartet: höchstens %L1 Werte; gefunden: mehr</translation>
    </message>
    <message>
        <source>expected at most %L1 keys in an object, found more</source>
        <translation>erwartet: höchstens %L1 Schlüssel in einem Objekt; gefunden: mehr</translation>
    </message>
    <message>
        <source>expected at most %L1 levels of nesting, found more</source>
        <translation>erwartet: höchstens %L1 Ebenen der Verschachtelung; gefunden: mehr</translation>
    </message>
</context>
<context>
    <name>viewer::JsonRecord</name>
    <message>
        <source>a number</source>
        <translation>eine Zahl</translation>
    </message>
    <message>
        <source>a number between -1e9 and 1e9</source>
        <translation>eine Zahl zwischen -1e9 und 1e9</translation>
    </message>
    <message>
        <source>an object</source>
        <translation>ein Objekt</translation>
    </message>
    <message>
        <source>a text</source>
        <translation>ein Text</translation>
    </message>
    <message>
        <source>true or false</source>
        <translation>true oder false</translation>
    </message>
    <message>
        <source>a list of two numbers</source>
        <translation>eine Liste aus zwei Zahlen</translation>
    </message>
    <message>
        <source>a colour such as &quot;#ff8800&quot; or &quot;#ff880080&quot;, or null</source>
        <translation>eine Farbe wie &quot;#ff8800&quot; oder &quot;#ff880080&quot; oder null</translation>
    </message>
    <message>
        <source>&quot; or &quot;</source>
        <translation>&quot; oder &quot;</translation>
    </message>
    <message>
        <source>expected %1, found nothing</source>
        <translation>erwartet: %1; gefunden: nichts</translation>
    </message>
    <message>
        <source>a list</source>
        <translation>eine Liste</translation>
    </message>
    <message>
        <source>expected at most %1 levels of nesting, found more</source>
        <translation>erwartet: höchstens %1 Ebenen der Verschachtelung; gefunden: mehr</translation>
    </message>
    <message>
        <source>null</source>
        <translation>null</translation>
    </message>
    <message>
        <source>a list of %1</source>
        <translation>eine Liste von %1</translation>
    </message>
    <message>
        <source>the text %1</source>
        <translation>der Text %1</translation>
    </message>
    <message>
        <source>expected %1, found %2</source>
        <translation>erwartet: %1; gefunden: %2</translation>
    </message>
</context>
<context>
    <name>viewer::MainWindow</name>
    <message>
        <source>Untitled</source>
        <translation>Unbenannt</translation>
    </message>
    <message>
        <source>%1[*] — %2</source>
        <translation>%1[*] — %2</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Datei</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Beenden</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Bearbeiten</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ansicht</translation>
    </message>
    <message>
        <source>&amp;Reset View</source>
        <translation>Ansicht &amp;zurücksetzen</translation>
    </message>
    <message>
        <source>&amp;Full Screen</source>
        <translation>&amp;Vollbild</translation>
    </message>
    <message>
        <source>&amp;Modules</source>
        <translation>&amp;Module</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Hilfe</translation>
    </message>
    <message>
        <source>&amp;Keyboard Shortcuts…</source>
        <translation>&amp;Tastenkürzel…</translation>
    </message>
    <message>
        <source>&amp;About %1</source>
        <translation>&amp;Über %1</translation>
    </message>
    <message>
        <source>About %1</source>
        <translation>Über %1</translation>
    </message>
    <message>
        <source>&lt;h3&gt;%1 %2&lt;/h3&gt;&lt;p&gt;Shows a scene and its text and image overlays, and hosts the modules that edit them.&lt;/p&gt;</source>
        <translation>&lt;h3&gt;%1 %2&lt;/h3&gt;&lt;p&gt;Zeigt eine Szene mit ihren Text- und Bild-Overlays und nimmt die Module auf, die sie bearbeiten.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>The command of the menu goes first.</source>
        <translation>Der Befehl des Menüs hat Vorrang.</translation>
    </message>
    <message>
        <source>User &amp;Guide</source>
        <translation>Benutzer&amp;handbuch</translation>
    </message>
    <message>
        <source>&amp;History</source>
        <translation>Ver&amp;lauf</translation>
    </message>
</context>
<context>
    <name>viewer::MainWindowService</name>
    <message>
        <source>A module named &quot;%1&quot; is registered already; the second one is not shown.</source>
        <translation>Ein Modul namens „%1“ ist bereits angemeldet; das zweite wird nicht angezeigt.</translation>
    </message>
</context>
<context>
    <name>viewer::ModuleLoader</name>
    <message>
        <source>The module &quot;%1&quot; is missing: there is no such file.</source>
        <translation>Das Modul „%1“ fehlt: Es gibt keine solche Datei.</translation>
    </message>
    <message>
        <source>The module &quot;%1&quot; cannot be loaded: %2</source>
        <translation>Das Modul „%1“ kann nicht geladen werden: %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a module: it has no entry &quot;initPlugin&quot;.</source>
        <translation>„%1“ ist kein Modul: Es hat keinen Einstieg „initPlugin“.</translation>
    </message>
    <message>
        <source>The module &quot;%1&quot; failed to start: %2</source>
        <translation>Das Modul „%1“ konnte nicht starten: %2</translation>
    </message>
    <message>
        <source>The module &quot;%1&quot; failed to start.</source>
        <translation>Das Modul „%1“ konnte nicht starten.</translation>
    </message>
</context>
<context>
    <name>viewer::MoveActions</name>
    <message>
        <source>Move &amp;Up</source>
        <translation>Nach &amp;oben schieben</translation>
    </message>
    <message>
        <source>Move &amp;Down</source>
        <translation>Nach &amp;unten schieben</translation>
    </message>
    <message>
        <source>Move &amp;In</source>
        <translation>&amp;Hineinschieben</translation>
    </message>
    <message>
        <source>Move &amp;Out</source>
        <translation>H&amp;inausschieben</translation>
    </message>
    <message>
        <source>Move %1 items</source>
        <translation>%1 Elemente verschieben</translation>
    </message>
</context>
<context>
    <name>viewer::Notice</name>
    <message>
        <source>Dismiss</source>
        <translation>Schließen</translation>
    </message>
</context>
<context>
    <name>viewer::OverlayService</name>
    <message>
        <source>Group %1</source>
        <translation>Gruppe %1</translation>
    </message>
    <message>
        <source>Switch %1</source>
        <translation>Schalter %1</translation>
    </message>
    <message>
        <source>Text %1</source>
        <translation>Text %1</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Kopie</translation>
    </message>
    <message>
        <source>%1 Copy</source>
        <translation>%1 Kopie</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Text</translation>
    </message>
</context>
<context>
    <name>viewer::RecordedService</name>
    <message>
        <source>The recording &quot;%1&quot; cannot be written: %2</source>
        <translation>Die Aufzeichnung „%1“ kann nicht geschrieben werden: %2</translation>
    </message>
</context>
<context>
    <name>viewer::SceneClipboard</name>
    <message>
        <source>These overlays cannot be copied: they lie in too many groups.</source>
        <translation>Diese Overlays können nicht kopiert werden: Sie liegen in zu vielen Gruppen.</translation>
    </message>
    <message>
        <source>There are no overlays on the clipboard.</source>
        <translation>In der Zwischenablage sind keine Overlays.</translation>
    </message>
    <message>
        <source>Clipboard</source>
        <translation>Zwischenablage</translation>
    </message>
    <message>
        <source>The scene that was copied is empty.</source>
        <translation>Die kopierte Szene ist leer.</translation>
    </message>
</context>
<context>
    <name>viewer::SceneDocument</name>
    <message numerus="yes">
        <source>... and %n more</source>
        <translation>
            <numerusform>… und %n weiterer</numerusform>
            <numerusform>… und %n weitere</numerusform>
        </translation>
    </message>
    <message>
        <source>Untitled</source>
        <translation>Unbenannt</translation>
    </message>
    <message>
        <source>The scene was not opened.</source>
        <translation>Die Szene wurde nicht geöffnet.</translation>
    </message>
</context>
<context>
    <name>viewer::SceneReader</name>
    <message>
        <source>an overlay scene</source>
        <translation>eine Overlay-Szene</translation>
    </message>
    <message>
        <source>expected a list, found nothing</source>
        <translation>erwartet: eine Liste; gefunden: nichts</translation>
    </message>
    <message>
        <source>expected &quot;%1&quot;, found %2; this is not an overlay scene</source>
        <translation>erwartet: „%1“; gefunden: %2; dies ist keine Overlay-Szene</translation>
    </message>
    <message>
        <source>nothing</source>
        <translation>nichts</translation>
    </message>
    <message>
        <source>expected at most %1, found %2; a newer version of the program wrote this scene</source>
        <translation>erwartet: höchstens %1; gefunden: %2; eine neuere Version des Programms hat diese Szene geschrieben</translation>
    </message>
    <message>
        <source>expected %1</source>
        <translation>erwartet: %1</translation>
    </message>
    <message>
        <source>expected at most %L1 levels of groups, found more</source>
        <translation>erwartet: höchstens %L1 Gruppenebenen; gefunden: mehr</translation>
    </message>
    <message>
        <source>nothing in an overlay</source>
        <translation>nichts in einem Overlay</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is disabled, because its switch has another enabled child before it</source>
        <translation>„%1“ ist ausgeschaltet, weil der Schalter davor schon ein eingeschaltetes Element hat</translation>
    </message>
    <message>
        <source>the image file %1 is missing</source>
        <translation>die Bilddatei %1 fehlt</translation>
    </message>
    <message>
        <source>byte %1: %2</source>
        <translation>Byte %1: %2</translation>
    </message>
    <message>
        <source>expected JSON; %1</source>
        <translation>erwartet: JSON; %1</translation>
    </message>
    <message>
        <source>expected JSON; line %1, %2</source>
        <translation>erwartet: JSON; Zeile %1, %2</translation>
    </message>
    <message>
        <source>expected a number between -1e9 and 1e9, found %1</source>
        <translation>erwartet: eine Zahl zwischen -1e9 und 1e9; gefunden: %1</translation>
    </message>
    <message>
        <source>there is no such file</source>
        <translation>es gibt keine solche Datei</translation>
    </message>
    <message>
        <source>expected a scene file, found a folder</source>
        <translation>erwartet: eine Szenendatei; gefunden: ein Ordner</translation>
    </message>
    <message>
        <source>expected a scene file, found a device</source>
        <translation>erwartet: eine Szenendatei; gefunden: ein Gerät</translation>
    </message>
    <message>
        <source>expected at most %L1 bytes, found %L2</source>
        <translation>erwartet: höchstens %L1 Byte; gefunden: %L2</translation>
    </message>
    <message>
        <source>the file cannot be read: %1</source>
        <translation>die Datei kann nicht gelesen werden: %1</translation>
    </message>
</context>
<context>
    <name>viewer::SceneWriter</name>
    <message>
        <source>%1: the scene cannot be written: it has more than %L2 levels of groups</source>
        <translation>%1: Die Szene kann nicht geschrieben werden; sie hat mehr als %L2 Gruppenebenen</translation>
    </message>
    <message>
        <source>%1: the scene cannot be written: %2</source>
        <translation>%1: Die Szene kann nicht geschrieben werden: %2</translation>
    </message>
    <message>
        <source>A number of &quot;%1&quot; cannot be written; %L2 stands for it now.</source>
        <translation>Eine Zahl von „%1“ kann nicht geschrieben werden; dafür steht jetzt %L2.</translation>
    </message>
</context>
<context>
    <name>viewer::Screenshot</name>
    <message>
        <source>The picture &quot;%1&quot; cannot be written: %2</source>
        <translation>Das Bild „%1“ kann nicht geschrieben werden: %2</translation>
    </message>
</context>
<context>
    <name>viewer::ScriptActions</name>
    <message>
        <source>R&amp;un Script…</source>
        <translation>Skript a&amp;usführen…</translation>
    </message>
    <message>
        <source>Ran %1</source>
        <translation>%1 ausgeführt</translation>
    </message>
    <message>
        <source>%1
The scene is as it was before.</source>
        <translation>%1
Die Szene ist, wie sie vorher war.</translation>
    </message>
</context>
<context>
    <name>viewer::ScriptBridge</name>
    <message>
        <source>readText(path) takes one string, the path of a file.</source>
        <translation>readText(path) erwartet einen String, den Pfad einer Datei.</translation>
    </message>
</context>
<context>
    <name>viewer::ScriptCall</name>
    <message>
        <source>The number of arguments is wrong: %1 was called with %2.</source>
        <translation>Die Anzahl der Argumente ist falsch: %1 wurde mit %2 aufgerufen.</translation>
    </message>
    <message>
        <source>%1: &quot;%2&quot; must be the id of a node, which is a whole number.</source>
        <translation>%1: „%2“ muss die Kennung eines Knotens sein, eine ganze Zahl.</translation>
    </message>
    <message>
        <source>%1: &quot;%2&quot; must be an array with the ids of nodes.</source>
        <translation>%1: „%2“ muss ein Array mit Kennungen von Knoten sein.</translation>
    </message>
    <message>
        <source>%1: &quot;%2&quot; must be a whole number.</source>
        <translation>%1: „%2“ muss eine ganze Zahl sein.</translation>
    </message>
    <message>
        <source>%1: &quot;%2&quot; must be one of %3.</source>
        <translation>%1: „%2“ muss einer dieser Werte sein: %3.</translation>
    </message>
    <message>
        <source>%1: &quot;%2&quot; must be a number.</source>
        <translation>%1: „%2“ muss eine Zahl sein.</translation>
    </message>
    <message>
        <source>%1: &quot;%2&quot; must be true or false.</source>
        <translation>%1: „%2“ muss true oder false sein.</translation>
    </message>
    <message>
        <source>%1: &quot;%2&quot; must be a string.</source>
        <translation>%1: „%2“ muss ein String sein.</translation>
    </message>
    <message>
        <source>%1: &quot;%2&quot; must be a colour, as &quot;#rrggbb&quot; or &quot;#aarrggbb&quot;, or null for none.</source>
        <translation>%1: „%2“ muss eine Farbe sein, als &quot;#rrggbb&quot; oder &quot;#aarrggbb&quot;, oder null für keine.</translation>
    </message>
    <message>
        <source>%1: &quot;%2&quot; must be a point, as {x: 0.5, y: 1}.</source>
        <translation>%1: „%2“ muss ein Punkt sein, als {x: 0.5, y: 1}.</translation>
    </message>
</context>
<context>
    <name>viewer::ScriptInWindow</name>
    <message>
        <source>The script &quot;%1&quot; is running.</source>
        <translation>Das Skript „%1“ läuft.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Run Script</source>
        <translation>Skript ausführen</translation>
    </message>
    <message>
        <source>The script is being ended.</source>
        <translation>Das Skript wird beendet.</translation>
    </message>
</context>
<context>
    <name>viewer::ScriptRun</name>
    <message>
        <source>Run %1</source>
        <translation>%1 ausführen</translation>
    </message>
    <message>
        <source>The script &quot;%1&quot; was interrupted.</source>
        <translation>Das Skript „%1“ wurde unterbrochen.</translation>
    </message>
</context>
<context>
    <name>viewer::ScriptSource</name>
    <message>
        <source>There is no file &quot;%1&quot;.</source>
        <translation>Es gibt keine Datei „%1“.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; is too large: 16 MB can be read.</source>
        <translation>Die Datei „%1“ ist zu groß: Es können 16 MB gelesen werden.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; cannot be read: %2.</source>
        <translation>Die Datei „%1“ kann nicht gelesen werden: %2.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; is no text in UTF-8.</source>
        <translation>Die Datei „%1“ ist kein Text in UTF-8.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; does not lie in the script&apos;s folder.</source>
        <translation>Die Datei „%1“ liegt nicht im Ordner des Skripts.</translation>
    </message>
</context>
<context>
    <name>viewer::SearchGuide</name>
    <message>
        <source>Search result</source>
        <translation>Suchergebnis</translation>
    </message>
    <message>
        <source>Nothing found</source>
        <translation>Nichts gefunden</translation>
    </message>
    <message numerus="yes">
        <source>%n found</source>
        <translation>
            <numerusform>%n gefunden</numerusform>
            <numerusform>%n gefunden</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n selected, but hidden by the search</source>
        <translation>
            <numerusform>%n ausgewählt, aber durch die Suche verborgen</numerusform>
            <numerusform>%n ausgewählt, aber durch die Suche verborgen</numerusform>
        </translation>
    </message>
    <message>
        <source>Search again</source>
        <translation>Erneut suchen</translation>
    </message>
    <message numerus="yes">
        <source>%n changed since the search</source>
        <translation>
            <numerusform>%n seit der Suche geändert</numerusform>
            <numerusform>%n seit der Suche geändert</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>viewer::ShortcutsDialog</name>
    <message>
        <source>Keyboard Shortcuts</source>
        <translation>Tastenkürzel</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>Befehl</translation>
    </message>
    <message>
        <source>Key</source>
        <translation>Taste</translation>
    </message>
    <message>
        <source>Keyboard shortcuts</source>
        <translation>Tastenkürzel</translation>
    </message>
    <message>
        <source>Shortcuts shown: %1</source>
        <translation>Angezeigte Tastenkürzel: %1</translation>
    </message>
    <message>
        <source>No shortcut matches.</source>
        <translation>Kein Tastenkürzel passt dazu.</translation>
    </message>
    <message>
        <source>%1 or %2</source>
        <translation>%1 oder %2</translation>
    </message>
</context>
<context>
    <name>viewer::UndoActions</name>
    <message>
        <source>&amp;Undo %1</source>
        <translation>&amp;Rückgängig: %1</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Rückgängig</translation>
    </message>
    <message>
        <source>&amp;Redo %1</source>
        <translation>&amp;Wiederholen: %1</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Wiederholen</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Rückgängig</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Wiederholen</translation>
    </message>
</context>
<context>
    <name>viewer::ViewArea</name>
    <message>
        <source>switched off for this run</source>
        <translation>für diesen Lauf ausgeschaltet</translation>
    </message>
    <message>
        <source>No 3D view (%1): painted backdrop</source>
        <translation>Keine 3D-Ansicht (%1): gemalter Hintergrund</translation>
    </message>
    <message>
        <source>3D view</source>
        <translation>3D-Ansicht</translation>
    </message>
    <message>
        <source>3D view: %1</source>
        <translation>3D-Ansicht: %1</translation>
    </message>
    <message>
        <source>View of the scene</source>
        <translation>Ansicht der Szene</translation>
    </message>
</context>
<context>
    <name>viewer::ViewerSession</name>
    <message>
        <source>Opened %1</source>
        <translation>Geöffnet: %1</translation>
    </message>
    <message>
        <source>Saved %1</source>
        <translation>Gespeichert: %1</translation>
    </message>
    <message>
        <source>Untitled</source>
        <translation>Unbenannt</translation>
    </message>
    <message>
        <source>There are more image files than can be watched. When one of the others changes, it is shown within a few seconds.</source>
        <translation>Es gibt mehr Bilddateien, als überwacht werden können. Ändert sich eine der übrigen, wird das innerhalb weniger Sekunden gezeigt.</translation>
    </message>
    <message>
        <source>Unsaved changes to &quot;%1&quot; cannot be recovered.
%2
The file is kept as %3.</source>
        <translation>Nicht gespeicherte Änderungen an „%1“ können nicht wiederhergestellt werden.
%2
Die Datei bleibt als %3 erhalten.</translation>
    </message>
</context>
<context>
    <name>viewer::Viewport</name>
    <message>
        <source>the platform &quot;%1&quot; has no OpenGL</source>
        <translation>die Plattform „%1“ hat kein OpenGL</translation>
    </message>
    <message>
        <source>no OpenGL context can be created</source>
        <translation>es kann kein OpenGL-Kontext angelegt werden</translation>
    </message>
    <message>
        <source>OpenGL 2 is needed</source>
        <translation>OpenGL 2 wird gebraucht</translation>
    </message>
    <message>
        <source>the graphics driver refuses the shaders</source>
        <translation>der Grafiktreiber weist die Shader zurück</translation>
    </message>
</context>
</TS>
