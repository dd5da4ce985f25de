<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="de">
<context>
    <name>QObject</name>
    <message>
        <source>Produktvorschau</source>
        <translation>Product preview</translation>
    </message>
</context>
<context>
    <name>ZRDistanceUnit</name>
    <message>
        <source>1/10 mm</source>
        <translation>1/10 mm</translation>
    </message>
    <message>
        <source>mm</source>
        <translation>mm</translation>
    </message>
    <message>
        <source>Zoll</source>
        <translation>in</translation>
    </message>
    <message>
        <source>cm</source>
        <translation>cm</translation>
    </message>
    <message>
        <source>pt</source>
        <translation>pt</translation>
    </message>
</context>
<context>
    <name>ZRFotoBookShape</name>
    <message>
        <source>(ca. 15 x 11 cm)</source>
        <translation>(approx. 15 x 11 cm)</translation>
    </message>
    <message>
        <source>(ca. 14 x 14 cm)</source>
        <translation>(approx. 14 x 14 cm)</translation>
    </message>
    <message>
        <source>(ca. 19 x 15 cm)</source>
        <translation>(approx. 19 x 15 cm)</translation>
    </message>
    <message>
        <source>(ca. 15 x 15 cm)</source>
        <translation>(approx. 15 x 15 cm)</translation>
    </message>
    <message>
        <source>(ca. 21 x 28 cm)</source>
        <translation>(approx. 21 x 28 cm)</translation>
    </message>
    <message>
        <source>(ca. 28 x 21 cm)</source>
        <translation>(approx. 28 x 21 cm)</translation>
    </message>
    <message>
        <source>(ca. 21 x 21 cm)</source>
        <translation>(approx. 21 x 21 cm)</translation>
    </message>
    <message>
        <source>(ca. 30 x 30 cm)</source>
        <translation>(approx. 30 x 30 cm)</translation>
    </message>
    <message>
        <source>(ca. 28 x 36 cm)</source>
        <translation>(approx. 28 x 36 cm)</translation>
    </message>
    <message>
        <source>(ca. 38 x 29 cm)</source>
        <translation>(approx. 38 x 29 cm)</translation>
    </message>
    <message>
        <source>Mini</source>
        <translation>Mini</translation>
    </message>
    <message>
        <source>Kids</source>
        <translation>Kids</translation>
    </message>
    <message>
        <source>Compact Panorama</source>
        <translation>Compact Panorama</translation>
    </message>
    <message>
        <source>Compact Quadratisch</source>
        <translation>Compact Square</translation>
    </message>
    <message>
        <source>Groß</source>
        <translation>Large</translation>
    </message>
    <message>
        <source>Groß Panorama</source>
        <translation>Large Panorama</translation>
    </message>
    <message>
        <source>Quadratisch</source>
        <translation>Square</translation>
    </message>
    <message>
        <source>XL</source>
        <translation>XL</translation>
    </message>
    <message>
        <source>XXL</source>
        <translation>XXL</translation>
    </message>
    <message>
        <source>XXL Panorama</source>
        <translation>XXL Panorama</translation>
    </message>
    <message>
        <source>ZERA FOTOBUCH</source>
        <translation>ZERA PHOTO BOOK</translation>
    </message>
</context>
<context>
    <name>ZRFotoPaperType</name>
    <message>
        <source>Matt</source>
        <translation>Matte</translation>
    </message>
    <message>
        <source>Glänzend</source>
        <translation>Glossy</translation>
    </message>
    <message>
        <source>Seidenraster</source>
        <translation>Silk finish</translation>
    </message>
    <message>
        <source>Perlmutt</source>
        <translation>Pearl</translation>
    </message>
    <message>
        <source>Fine Art</source>
        <translation>Fine Art</translation>
    </message>
</context>
<context>
    <name>ZRHumanReadable</name>
    <message>
        <source>Leinwand Ohne Rahmen</source>
        <translation>Canvas without frame</translation>
    </message>
    <message>
        <source>Havanna Frame Creme</source>
        <translation>Havanna Frame Cream</translation>
    </message>
    <message>
        <source>Havanna Frame Rot</source>
        <translation>Havanna Frame Red</translation>
    </message>
    <message>
        <source>Havanna Frame Blau</source>
        <translation>Havanna Frame Blue</translation>
    </message>
    <message>
        <source>Art silber</source>
        <translation>Art silver</translation>
    </message>
    <message>
        <source>Art schwarz</source>
        <translation>Art black</translation>
    </message>
    <message>
        <source>Art hellgold</source>
        <translation>Art light gold</translation>
    </message>
    <message>
        <source>Poster Ohne Rahmen</source>
        <translation>Poster without frame</translation>
    </message>
    <message>
        <source>Home Grün</source>
        <translation>Home Green</translation>
    </message>
    <message>
        <source>Home Kirsche</source>
        <translation>Home Cherry</translation>
    </message>
    <message>
        <source>Home Schwarz</source>
        <translation>Home Black</translation>
    </message>
    <message>
        <source>Home Gelb</source>
        <translation>Home Yellow</translation>
    </message>
    <message>
        <source>Home Blau</source>
        <translation>Home Blue</translation>
    </message>
    <message>
        <source>Home Kiefer</source>
        <translation>Home Pine</translation>
    </message>
    <message>
        <source>Home Ahorn</source>
        <translation>Home Maple</translation>
    </message>
    <message>
        <source>Home Rotbuche</source>
        <translation>Home Beech</translation>
    </message>
    <message>
        <source>Style Silber-Gold</source>
        <translation>Style Silver-Gold</translation>
    </message>
    <message>
        <source>Style Gold</source>
        <translation>Style Gold</translation>
    </message>
    <message>
        <source>Style Silber</source>
        <translation>Style Silver</translation>
    </message>
    <message>
        <source>Style Bronze</source>
        <translation>Style Bronze</translation>
    </message>
    <message>
        <source>Style Natur</source>
        <translation>Style Natural</translation>
    </message>
    <message>
        <source>Style Gelb</source>
        <translation>Style Yellow</translation>
    </message>
    <message>
        <source>Style Blau</source>
        <translation>Style Blue</translation>
    </message>
    <message>
        <source>Style Rot</source>
        <translation>Style Red</translation>
    </message>
    <message>
        <source>Style Creme</source>
        <translation>Style Cream</translation>
    </message>
    <message>
        <source>Premium Poster digital Ohne Rahmen</source>
        <translation>Premium Poster digital without frame</translation>
    </message>
    <message>
        <source>Luxor Kiefer</source>
        <translation>Luxor Pine</translation>
    </message>
    <message>
        <source>Confetti Schwarz</source>
        <translation>Confetti Black</translation>
    </message>
    <message>
        <source>Confetti Weiß</source>
        <translation>Confetti White</translation>
    </message>
    <message>
        <source>Natura Nussbaum</source>
        <translation>Natura Walnut</translation>
    </message>
    <message>
        <source>Sento</source>
        <translation>Sento</translation>
    </message>
    <message>
        <source>Designer Schwarz Metall</source>
        <translation>Designer Black Metal</translation>
    </message>
    <message>
        <source>Designer Silber Metall</source>
        <translation>Designer Silver Metal</translation>
    </message>
    <message>
        <source>Designer Kupfer Metall</source>
        <translation>Designer Copper Metal</translation>
    </message>
    <message>
        <source>Designer Gold Metall</source>
        <translation>Designer Gold Metal</translation>
    </message>
    <message>
        <source>Lancaster Treibholz dunkel</source>
        <translation>Lancaster Dark Driftwood</translation>
    </message>
    <message>
        <source>Unique Silber edel</source>
        <translation>Unique Precious Silver</translation>
    </message>
    <message>
        <source>Kunststoff Schwarz</source>
        <translation>Plastic Black</translation>
    </message>
    <message>
        <source>Kunststoff Weiß</source>
        <translation>Plastic White</translation>
    </message>
    <message>
        <source>Weiß</source>
        <translation>White</translation>
    </message>
    <message>
        <source>Schwarz</source>
        <translation>Black</translation>
    </message>
    <message>
        <source>Grau</source>
        <translation>Gray</translation>
    </message>
    <message>
        <source>Cremeweiß</source>
        <translation>Cream white</translation>
    </message>
    <message>
        <source>Glas</source>
        <translation>Glass</translation>
    </message>
    <message>
        <source>Kaschierung</source>
        <translation>Lamination</translation>
    </message>
</context>
<context>
    <name>ZRJigType</name>
    <message>
        <source>Hintergrund</source>
        <translation>Background</translation>
    </message>
    <message>
        <source>Design</source>
        <translation>Design</translation>
    </message>
    <message>
        <source>Clipart</source>
        <translation>Clipart</translation>
    </message>
    <message>
        <source>Layout</source>
        <translation>Layout</translation>
    </message>
    <message>
        <source>Maske</source>
        <translation>Mask</translation>
    </message>
    <message>
        <source>Stil</source>
        <translation>Style</translation>
    </message>
    <message>
        <source>Rahmen</source>
        <translation>Frame</translation>
    </message>
    <message>
        <source>Passepartout</source>
        <translation>Passe-partout</translation>
    </message>
    <message>
        <source>Glas</source>
        <translation>Glass</translation>
    </message>
    <message>
        <source>Wandhalterung</source>
        <translation>Wall mount</translation>
    </message>
    <message>
        <source>Buchvorlage</source>
        <translation>Book template</translation>
    </message>
</context>
<context>
    <name>ZRPageBinding</name>
    <message>
        <source>Klebebindung</source>
        <translation>Perfect binding</translation>
    </message>
    <message>
        <source>Layflat-Bindung</source>
        <translation>Layflat binding</translation>
    </message>
    <message>
        <source>Rückstichheftung</source>
        <translation>Saddle stitching</translation>
    </message>
    <message>
        <source>Spiralbindung</source>
        <translation>Spiral binding</translation>
    </message>
    <message>
        <source>Wire-O-Bindung</source>
        <translation>Wire-O binding</translation>
    </message>
</context>
<context>
    <name>ZRPaperType</name>
    <message>
        <source>Fotopapier matt</source>
        <translation>Matte photo paper</translation>
    </message>
    <message>
        <source>Fotopapier glänzend</source>
        <translation>Glossy photo paper</translation>
    </message>
    <message>
        <source>Digitaldruck matt</source>
        <translation>Matte digital print</translation>
    </message>
    <message>
        <source>Digitaldruck glänzend</source>
        <translation>Glossy digital print</translation>
    </message>
    <message>
        <source>Recyclingpapier</source>
        <translation>Recycled paper</translation>
    </message>
    <message>
        <source>Premium-Fotopapier matt</source>
        <translation>Premium matte photo paper</translation>
    </message>
    <message>
        <source>Premium-Fotopapier glänzend</source>
        <translation>Premium glossy photo paper</translation>
    </message>
</context>
<context>
    <name>ZRProductClassificationGroup</name>
    <message>
        <source>Poster</source>
        <translation>Poster</translation>
    </message>
    <message>
        <source>Fotoleinwand</source>
        <translation>Photo canvas</translation>
    </message>
    <message>
        <source>Foto auf Alu-Dibond</source>
        <translation>Photo on Alu-Dibond</translation>
    </message>
    <message>
        <source>Foto hinter Acrylglas</source>
        <translation>Photo behind acrylic glass</translation>
    </message>
    <message>
        <source>Foto auf Alu-Dibond (Direktdruck)</source>
        <translation>Photo on Alu-Dibond (direct print)</translation>
    </message>
    <message>
        <source>Foto hinter Acrylglas (Direktdruck)</source>
        <translation>Photo behind acrylic glass (direct print)</translation>
    </message>
    <message>
        <source>Premium Poster Digitaldruck Matt</source>
        <translation>Premium Poster digital print matte</translation>
    </message>
    <message>
        <source>Foto auf Hartschaum (Direktdruck)</source>
        <translation>Photo on foam board (direct print)</translation>
    </message>
    <message>
        <source>Foto als Gallery Print</source>
        <translation>Photo as Gallery Print</translation>
    </message>
    <message>
        <source>Premium Poster Fotopapier Glänzend</source>
        <translation>Premium Poster photo paper glossy</translation>
    </message>
    <message>
        <source>Premium Poster Digitaldruck Matt (100% recycelt)</source>
        <translation>Premium Poster digital print matte (100% recycled)</translation>
    </message>
    <message>
        <source>Premium Poster Fotopapier Matt</source>
        <translation>Premium Poster photo paper matte</translation>
    </message>
    <message>
        <source>Premium Poster Fotopapier Seidenraster</source>
        <translation>Premium Poster photo paper silk finish</translation>
    </message>
    <message>
        <source>Premium Poster Fotopapier Perlmutt</source>
        <translation>Premium Poster photo paper pearl</translation>
    </message>
    <message>
        <source>Premium Poster Digitaldruck Fine Art Matt</source>
        <translation>Premium Poster digital print Fine Art matte</translation>
    </message>
    <message>
        <source>Fotoleiste als Gallery Print (Direktdruck)</source>
        <translation>Photo strip as Gallery Print (direct print)</translation>
    </message>
    <message>
        <source>Fotoleiste auf Alu-Dibond (Direktdruck)</source>
        <translation>Photo strip on Alu-Dibond (direct print)</translation>
    </message>
    <message>
        <source>Fotoleiste hinter Acrylglas (Direktdruck)</source>
        <translation>Photo strip behind acrylic glass (direct print)</translation>
    </message>
    <message>
        <source>Fotoleiste auf Hartschaum (Direktdruck)</source>
        <translation>Photo strip on foam board (direct print)</translation>
    </message>
    <message>
        <source>Fine Art Print</source>
        <translation>Fine Art Print</translation>
    </message>
    <message>
        <source>Foto auf Holz (Direktdruck)</source>
        <translation>Photo on wood (direct print)</translation>
    </message>
    <message>
        <source>Foto im Rahmen</source>
        <translation>Framed photo</translation>
    </message>
    <message>
        <source>Photo Streetmap Poster</source>
        <translation>Photo Streetmap Poster</translation>
    </message>
</context>
<context>
    <name>ZRThematicCategory</name>
    <message numerus="yes">
        <source>Alle anzeigen</source>
        <translation>
            <numerusform>Show all</numerusform>
            <numerusform>Show all</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ZRThematicCategorySet</name>
    <message>
        <source>Sonstige</source>
        <translation>Other</translation>
    </message>
</context>
</TS>
