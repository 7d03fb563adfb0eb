<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>QKXColorManipulator</name>
    <message>
        <source>Hue</source>
        <translation>Farbton</translation>
    </message>
    <message>
        <source>Saturation</source>
        <translation>Sättigung</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Hellwert</translation>
    </message>
    <message>
        <source>Open the color dialog</source>
        <translation>Farbdialog öffnen</translation>
    </message>
</context>
<context>
    <name>QKXSearchBox</name>
    <message>
        <source>Search</source>
        <translation>Suchen</translation>
    </message>
    <message>
        <source>Clear the search</source>
        <translation>Suche löschen</translation>
    </message>
</context>
<context>
    <name>QKXSlider</name>
    <message>
        <source>Slider</source>
        <translation>Schieberegler</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Wert</translation>
    </message>
    <message>
        <source>%1, slider</source>
        <translation>%1, Schieberegler</translation>
    </message>
</context>
<context>
    <name>QKXTextureControls</name>
    <message>
        <source>Use texture</source>
        <translation>Textur verwenden</translation>
    </message>
</context>
<context>
    <name>QKXToolBar</name>
    <message>
        <source>More actions</source>
        <translation>Weitere Aktionen</translation>
    </message>
</context>
<context>
    <name>hostlib::ImagePreview</name>
    <message>
        <source>Preview</source>
        <translation>Vorschau</translation>
    </message>
    <message>
        <source>No image selected</source>
        <translation>Kein Bild ausgewählt</translation>
    </message>
</context>
<context>
    <name>hostlib::ImageSummary</name>
    <message>
        <source>The file does not exist.</source>
        <translation>Die Datei ist nicht vorhanden.</translation>
    </message>
    <message>
        <source>The file cannot be read as an image.</source>
        <translation>Die Datei kann nicht als Bild gelesen werden.</translation>
    </message>
    <message>
        <source>%1 × %2 pixels, %3</source>
        <translation>%1 × %2 Pixel, %3</translation>
    </message>
</context>
<context>
    <name>hostlib::ImageView</name>
    <message>
        <source>No image</source>
        <translation>Kein Bild</translation>
    </message>
</context>
<context>
    <name>hostlib::TextureFileLine</name>
    <message>
        <source>Load image…</source>
        <translation>Bild laden…</translation>
    </message>
    <message>
        <source>Reload image</source>
        <translation>Bild neu laden</translation>
    </message>
    <message>
        <source>Save image</source>
        <translation>Bild speichern</translation>
    </message>
    <message>
        <source>Show information on the image</source>
        <translation>Bildinformationen anzeigen</translation>
    </message>
    <message>
        <source>Remove image</source>
        <translation>Bild entfernen</translation>
    </message>
    <message>
        <source>Image</source>
        <translation>Bild</translation>
    </message>
</context>
<context>
    <name>hostlib::TexturePathEdit</name>
    <message>
        <source>No image</source>
        <translation>Kein Bild</translation>
    </message>
    <message>
        <source>Image file</source>
        <translation>Bilddatei</translation>
    </message>
</context>
<context>
    <name>hostlib::TextureSettingsPanel</name>
    <message>
        <source>Projection</source>
        <translation>Projektion</translation>
    </message>
    <message>
        <source>UV</source>
        <translation>UV</translation>
    </message>
    <message>
        <source>Planar</source>
        <translation>Planar</translation>
    </message>
    <message>
        <source>Box</source>
        <translation>Quader</translation>
    </message>
    <message>
        <source>Cylindrical</source>
        <translation>Zylindrisch</translation>
    </message>
    <message>
        <source>Spherical</source>
        <translation>Sphärisch</translation>
    </message>
    <message>
        <source>Repeat mode in U</source>
        <translation>Wiederholungsmodus in U</translation>
    </message>
    <message>
        <source>Repeat mode in V</source>
        <translation>Wiederholungsmodus in V</translation>
    </message>
    <message>
        <source>Beyond edges</source>
        <translation>Über den Rand hinaus</translation>
    </message>
    <message>
        <source>Repeat UV</source>
        <translation>Wiederholung UV</translation>
    </message>
    <message>
        <source>Repeat in U</source>
        <translation>Wiederholung in U</translation>
    </message>
    <message>
        <source>Repeat in V</source>
        <translation>Wiederholung in V</translation>
    </message>
    <message>
        <source>Offset UV</source>
        <translation>Versatz UV</translation>
    </message>
    <message>
        <source>Offset in U</source>
        <translation>Versatz in U</translation>
    </message>
    <message>
        <source>Offset in V</source>
        <translation>Versatz in V</translation>
    </message>
    <message>
        <source>Rotation (°)</source>
        <translation>Drehung (°)</translation>
    </message>
    <message>
        <source>Rotation in degrees</source>
        <translation>Drehung in Grad</translation>
    </message>
    <message>
        <source>Real-world scale</source>
        <translation>Maßstab der realen Welt</translation>
    </message>
    <message>
        <source>Real size (m)</source>
        <translation>Reale Größe (m)</translation>
    </message>
    <message>
        <source>Width of the image in metres</source>
        <translation>Breite des Bildes in Metern</translation>
    </message>
    <message>
        <source>Height of the image in metres</source>
        <translation>Höhe des Bildes in Metern</translation>
    </message>
    <message>
        <source>Anisotropic filter</source>
        <translation>Anisotroper Filter</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Aus</translation>
    </message>
    <message>
        <source>%1 samples</source>
        <translation>%1 Abtastungen</translation>
    </message>
    <message>
        <source>Anisotropy</source>
        <translation>Anisotropie</translation>
    </message>
    <message>
        <source>Gamma</source>
        <translation>Gamma</translation>
    </message>
    <message>
        <source>Opacity</source>
        <translation>Deckkraft</translation>
    </message>
    <message>
        <source>Link texture settings</source>
        <translation>Textureinstellungen verknüpfen</translation>
    </message>
    <message>
        <source>Repeat</source>
        <translation>Wiederholen</translation>
    </message>
    <message>
        <source>Clamp</source>
        <translation>Begrenzen</translation>
    </message>
    <message>
        <source>Mirror</source>
        <translation>Spiegeln</translation>
    </message>
    <message>
        <source>Decal</source>
        <translation>Abziehbild</translation>
    </message>
</context>
<context>
    <name>kxStyle</name>
    <message>
        <source>several values</source>
        <translation>mehrere Werte</translation>
    </message>
</context>
</TS>
