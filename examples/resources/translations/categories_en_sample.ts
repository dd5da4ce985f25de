<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en">
<context>
    <name>ThematicCategories</name>
    <message>
        <source>Alle anzeigen</source>
        <translation>Show all</translation>
    </message>
    <message>
        <source>Papierkorb</source>
        <translation>Recycle bin</translation>
    </message>
    <message>
        <source>Farben</source>
        <translation>Colours</translation>
    </message>
    <message>
        <source>category-colours</source>
        <translation>Plain colours</translation>
    </message>
    <message>
        <source>category-last-downloaded</source>
        <translation>Recently downloaded</translation>
    </message>
    <message>
        <source>Favoriten</source>
        <translation>Favourites</translation>
    </message>
    <message>
        <source>Passend zu Ihren Fotos</source>
        <translation>Matching your photos</translation>
    </message>
    <message>
        <source>Passend zur Einband-Innenseite</source>
        <translation>Matching the inside cover</translation>
    </message>
    <message>
        <source>Oben</source>
        <translation>Top</translation>
    </message>
    <message>
        <source>Zentriert</source>
        <translation>Centred</translation>
    </message>
    <message>
        <source>Breiter Rand</source>
        <translation>Wide margin</translation>
    </message>
    <message>
        <source>Quadratisch</source>
        <translation>Square</translation>
    </message>
    <message>
        <source>Mittig</source>
        <translation>Middle</translation>
    </message>
    <message>
        <source>Elegant</source>
        <translation>Elegant</translation>
    </message>
    <message>
        <source>Klassisch</source>
        <translation>Classic</translation>
    </message>
    <message>
        <source>large</source>
        <translation>Large photo</translation>
    </message>
    <message>
        <source>full</source>
        <translation>Full page</translation>
    </message>
    <message>
        <source>Meine Layouts</source>
        <translation>My layouts</translation>
    </message>
    <message>
        <source>Meine Cliparts</source>
        <translation>My cliparts</translation>
    </message>
    <message>
        <source>Meine Rahmen</source>
        <translation>My frames</translation>
    </message>
    <message>
        <source>Meine Masken</source>
        <translation>My masks</translation>
    </message>
    <message>
        <source>Meine Buchvorlagen</source>
        <translation>My book styles</translation>
    </message>
    <message>
        <source>Gold</source>
        <translation>Gold</translation>
    </message>
    <message>
        <source>Silber</source>
        <translation>Silver</translation>
    </message>
    <message>
        <source>Roségold</source>
        <translation>Rose gold</translation>
    </message>
    <message>
        <source>Effektlack</source>
        <translation>Effect varnish</translation>
    </message>
    <message>
        <source>Metallic Effekt</source>
        <translation>Metallic effect</translation>
    </message>
    <message>
        <source>Stile mit gewählter Veredelung</source>
        <translation>Styles with the chosen finish</translation>
    </message>
    <message>
        <source>Multicolor</source>
        <translation>Multicolour</translation>
    </message>
    <message>
        <source>Sonstige</source>
        <translation>Other</translation>
    </message>
    <message>
        <source>Rot</source>
        <translation>Red</translation>
    </message>
    <message>
        <source>Orange</source>
        <translation>Orange</translation>
    </message>
    <message>
        <source>Gelb</source>
        <translation>Yellow</translation>
    </message>
    <message>
        <source>Grün</source>
        <translation>Green</translation>
    </message>
    <message>
        <source>Dunkelgrün</source>
        <translation>Dark green</translation>
    </message>
    <message>
        <source>Türkis</source>
        <translation>Turquoise</translation>
    </message>
    <message>
        <source>Hellblau</source>
        <translation>Light blue</translation>
    </message>
    <message>
        <source>Blau</source>
        <translation>Blue</translation>
    </message>
    <message>
        <source>Lila</source>
        <translation>Purple</translation>
    </message>
    <message>
        <source>Pink</source>
        <translation>Pink</translation>
    </message>
    <message>
        <source>Braun</source>
        <translation>Brown</translation>
    </message>
    <message>
        <source>Beige</source>
        <translation>Beige</translation>
    </message>
    <message>
        <source>Pastellrosa</source>
        <translation>Pastel pink</translation>
    </message>
    <message>
        <source>Pastellblau</source>
        <translation>Pastel blue</translation>
    </message>
    <message>
        <source>Pastellgrün</source>
        <translation>Pastel green</translation>
    </message>
    <message>
        <source>Mint</source>
        <translation>Mint</translation>
    </message>
    <message>
        <source>Schwarz</source>
        <translation>Black</translation>
    </message>
    <message>
        <source>Dunkelgrau</source>
        <translation>Dark grey</translation>
    </message>
    <message>
        <source>Grau</source>
        <translation>Grey</translation>
    </message>
    <message>
        <source>Hellgrau</source>
        <translation>Light grey</translation>
    </message>
    <message>
        <source>Weiß</source>
        <translation>White</translation>
    </message>
    <message>
        <source>Urlaub</source>
        <translation>Holiday</translation>
    </message>
    <message>
        <source>Hochzeit</source>
        <translation>Wedding</translation>
    </message>
    <message>
        <source>Geburtstag</source>
        <translation>Birthday</translation>
    </message>
    <message>
        <source>Weihnachten</source>
        <translation>Christmas</translation>
    </message>
</context>
</TS>
