<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>kxOverlayEditor</name>
    <message>
        <source>Overlays</source>
        <translation>Overlays</translation>
    </message>
    <message>
        <source>Delete Overlays</source>
        <translation>Overlays löschen</translation>
    </message>
    <message>
        <source>Duplicate Overlay</source>
        <translation>Overlay duplizieren</translation>
    </message>
    <message>
        <source>Rename Overlay</source>
        <translation>Overlay umbenennen</translation>
    </message>
    <message>
        <source>Find Overlay</source>
        <translation>Overlay suchen</translation>
    </message>
    <message>
        <source>Select All Overlays</source>
        <translation>Alle Overlays auswählen</translation>
    </message>
    <message>
        <source>Deselect All Overlays</source>
        <translation>Auswahl aller Overlays aufheben</translation>
    </message>
    <message>
        <source>Invert Selection</source>
        <translation>Auswahl umkehren</translation>
    </message>
    <message>
        <source>Toggle Overlay Enabled State</source>
        <translation>Overlay ein- oder ausschalten</translation>
    </message>
    <message>
        <source>Create Group</source>
        <translation>Gruppe erstellen</translation>
    </message>
    <message>
        <source>Create Group from selection</source>
        <translation>Gruppe aus Auswahl erstellen</translation>
    </message>
    <message>
        <source>Overlay Editor</source>
        <translation>Overlay-Editor</translation>
    </message>
    <message>
        <source>Load Texture</source>
        <translation>Textur laden</translation>
    </message>
    <message>
        <source>Create Overlay</source>
        <translation>Overlay erstellen</translation>
    </message>
    <message>
        <source>Create Group	</source>
        <translation>Gruppe erstellen	</translation>
    </message>
    <message>
        <source>Create Switch</source>
        <translation>Schalter erstellen</translation>
    </message>
    <message>
        <source>Duplicate Overlays	</source>
        <translation>Overlays duplizieren	</translation>
    </message>
    <message>
        <source>Delete Overlays	</source>
        <translation>Overlays löschen	</translation>
    </message>
    <message>
        <source>Rename Overlay	</source>
        <translation>Overlay umbenennen	</translation>
    </message>
    <message>
        <source>Group Selection	</source>
        <translation>Auswahl gruppieren	</translation>
    </message>
    <message>
        <source>Switch On</source>
        <translation>Einschalten</translation>
    </message>
    <message>
        <source>Switch Off</source>
        <translation>Ausschalten</translation>
    </message>
    <message>
        <source>Toggle	</source>
        <translation>Umschalten	</translation>
    </message>
    <message>
        <source>Select All	</source>
        <translation>Alles auswählen	</translation>
    </message>
    <message>
        <source>Deselect All	</source>
        <translation>Auswahl aufheben	</translation>
    </message>
    <message>
        <source>Invert Selection	</source>
        <translation>Auswahl umkehren	</translation>
    </message>
    <message>
        <source>Create</source>
        <translation>Erstellen</translation>
    </message>
    <message>
        <source>Create a new overlay</source>
        <translation>Ein neues Overlay erstellen</translation>
    </message>
    <message>
        <source>Duplicate</source>
        <translation>Duplizieren</translation>
    </message>
    <message>
        <source>Duplicates the currently selected overlays</source>
        <translation>Dupliziert die ausgewählten Overlays</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>Deletes the currently selected overlays</source>
        <translation>Löscht die ausgewählten Overlays</translation>
    </message>
    <message>
        <source>QuickActions</source>
        <translation>Schnellaktionen</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Links</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Rechts</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>Oben</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>Unten</translation>
    </message>
    <message>
        <source>Center</source>
        <translation>Mitte</translation>
    </message>
    <message>
        <source>Top Left</source>
        <translation>Oben links</translation>
    </message>
    <message>
        <source>Top Right</source>
        <translation>Oben rechts</translation>
    </message>
    <message>
        <source>Bottom Left</source>
        <translation>Unten links</translation>
    </message>
    <message>
        <source>Bottom Right</source>
        <translation>Unten rechts</translation>
    </message>
    <message>
        <source>Horizontal offset</source>
        <translation>Horizontaler Versatz</translation>
    </message>
    <message>
        <source>Vertical offset</source>
        <translation>Vertikaler Versatz</translation>
    </message>
</context>
<context>
    <name>kxOverlayEditorGUI</name>
    <message>
        <source>Overlay Editor</source>
        <translation>Overlay-Editor</translation>
    </message>
    <message>
        <source>Properties</source>
        <translation>Eigenschaften</translation>
    </message>
    <message>
        <source>Font Color</source>
        <translation>Schriftfarbe</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Typ</translation>
    </message>
    <message>
        <source>Image</source>
        <translation>Bild</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>Background Transparency</source>
        <translation>Hintergrundtransparenz</translation>
    </message>
    <message>
        <source>Background Color</source>
        <translation>Hintergrundfarbe</translation>
    </message>
    <message>
        <source>Font</source>
        <translation>Schriftart</translation>
    </message>
    <message>
        <source>Size and Position</source>
        <translation>Größe und Position</translation>
    </message>
    <message>
        <source>Offset XY</source>
        <translation>Versatz XY</translation>
    </message>
    <message>
        <source>Scale</source>
        <translation>Skalierung</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Position</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Größe</translation>
    </message>
    <message>
        <source>Absolute</source>
        <translation>Absolut</translation>
    </message>
    <message>
        <source>Relative</source>
        <translation>Relativ</translation>
    </message>
</context>
</TS>
