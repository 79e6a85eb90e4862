<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE">
<context>
    <name>WeldForm</name>
    <message>
        <source>Robot target</source>
        <translation>Roboterziel</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>%1 bis %2</translation>
    </message>
    <message>
        <source>The project has no robot target &quot;%1&quot;. Choose one, or teach it first.</source>
        <translation>Das Projekt hat kein Roboterziel „%1“. Wählen Sie eines, oder teachen Sie es zuerst.</translation>
    </message>
    <message>
        <source>A program can&apos;t use the name &quot;%1&quot;. Rename the target without commas.</source>
        <translation>Ein Programm kann den Namen „%1“ nicht verwenden. Geben Sie dem Ziel einen Namen ohne Komma.</translation>
    </message>
    <message>
        <source>%1 has to be a number such as %2.</source>
        <translation>%1: Geben Sie eine Zahl ein, zum Beispiel %2.</translation>
    </message>
    <message>
        <source>%1 has to be from %2 to %3 %4.</source>
        <translation>%1: erlaubt sind %2 bis %3 %4.</translation>
    </message>
</context>
<context>
    <name>Welding</name>
    <message>
        <source>Lets the gas flow for a moment.</source>
        <translation>Lässt kurz Gas strömen.</translation>
    </message>
    <message>
        <source>Welding</source>
        <translation>Schweißen</translation>
    </message>
    <message>
        <source>Welding setup</source>
        <translation>Schweißen einrichten</translation>
    </message>
    <message>
        <source>Lets the gas flow, then lights the arc.</source>
        <translation>Lässt Gas strömen und zündet dann den Lichtbogen.</translation>
    </message>
    <message>
        <source>Current</source>
        <translation>Strom</translation>
    </message>
    <message>
        <source>Voltage</source>
        <translation>Spannung</translation>
    </message>
    <message>
        <source>Gas pre-flow</source>
        <translation>Gasvorströmung</translation>
    </message>
    <message>
        <source>Welds a straight seam to a target.</source>
        <translation>Schweißt eine gerade Naht bis zu einem Ziel.</translation>
    </message>
    <message>
        <source>Weld speed</source>
        <translation>Schweißgeschwindigkeit</translation>
    </message>
    <message>
        <source>Weaving width</source>
        <translation>Pendelbreite</translation>
    </message>
    <message>
        <source>Fills the crater, then ends the arc.</source>
        <translation>Füllt den Endkrater und beendet dann den Lichtbogen.</translation>
    </message>
    <message>
        <source>Crater fill</source>
        <translation>Kraterfüllen</translation>
    </message>
</context>
<context>
    <name>WeldingPage</name>
    <message>
        <source>The program editor offers these instructions:</source>
        <translation>Der Programmeditor bietet diese Anweisungen an:</translation>
    </message>
</context>
<context>
    <name>navigation</name>
    <message>
        <source>Welding</source>
        <translation>Schweißen</translation>
    </message>
</context>
</TS>
