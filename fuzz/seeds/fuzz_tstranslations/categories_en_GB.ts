<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_GB"><context><name>categories</name>
<message><source>Farben</source><translation>Colours</translation></message>
<message><source>Gold  </source><translation>Gold</translation></message>
<message><source>Papierkorb</source><translation type="unfinished"></translation></message>
</context></TS>
