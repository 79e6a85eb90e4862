<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>CycleTimePlugin</name>
    <message>
        <source> s</source>
        <translation> s</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Leeren</translation>
    </message>
    <message>
        <source>Start the program: each run is a cycle.</source>
        <translation>Das Programm starten: Jeder Lauf ist ein Zyklus.</translation>
    </message>
    <message>
        <source>This cycle</source>
        <translation>Dieser Zyklus</translation>
    </message>
    <message>
        <source>Warn above</source>
        <translation>Warnen über</translation>
    </message>
    <message>
        <source>Large digits</source>
        <translation>Große Ziffern</translation>
    </message>
    <message>
        <source>Library %1</source>
        <translation>Bibliothek %1</translation>
    </message>
    <message>
        <source>No cycles yet.</source>
        <translation>Noch keine Zyklen.</translation>
    </message>
    <message>
        <source>Cycles: %1
Shortest: %2
Median: %3
Longest: %4</source>
        <translation>Zyklen: %1
Kürzester: %2
Median: %3
Längster: %4</translation>
    </message>
    <message>
        <source>%1 s</source>
        <translation>%1 s</translation>
    </message>
    <message>
        <source>The program runs.</source>
        <translation>Das Programm läuft.</translation>
    </message>
    <message>
        <source>The last cycle took %1.</source>
        <translation>Der letzte Zyklus dauerte %1.</translation>
    </message>
    <message>
        <source>The cycle took %1: see what holds it up.</source>
        <translation>Der Zyklus dauerte %1: nachsehen, was ihn aufhält.</translation>
    </message>
    <message>
        <source>Forget all cycle times? There are %1.</source>
        <translation>Alle %1 Zykluszeiten vergessen?</translation>
    </message>
    <message>
        <source>The cycle times begin anew.</source>
        <translation>Die Zykluszeiten beginnen von vorn.</translation>
    </message>
</context>
<context>
    <name>navigation</name>
    <message>
        <source>Cycle time</source>
        <translation>Zykluszeit</translation>
    </message>
</context>
</TS>
