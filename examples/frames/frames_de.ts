<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>FramesPlugin</name>
    <message>
        <source>Tools, work objects, speeds and zones</source>
        <translation>Werkzeuge, Werkobjekte, Geschwindigkeiten und Zonen</translation>
    </message>
    <message>
        <source>Tool</source>
        <translation>Werkzeug</translation>
    </message>
    <message>
        <source>Work object</source>
        <translation>Werkobjekt</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Geschwindigkeit</translation>
    </message>
    <message>
        <source>Zone</source>
        <translation>Zone</translation>
    </message>
    <message>
        <source>A choice is missing. Where a list is empty, connect the controller.</source>
        <translation>Eine Auswahl fehlt. Ist eine Liste leer, die Steuerung verbinden.</translation>
    </message>
    <message>
        <source>With %1 in %2, speed %3, zone %4.</source>
        <translation>Mit %1 in %2, Geschwindigkeit %3, Zone %4.</translation>
    </message>
</context>
<context>
    <name>navigation</name>
    <message>
        <source>Frames</source>
        <translation>Koordinatensysteme</translation>
    </message>
</context>
</TS>
