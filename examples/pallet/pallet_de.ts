<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>PalletPlugin</name>
    <message>
        <source> places</source>
        <translation> Plätze</translation>
    </message>
    <message>
        <source> mm apart</source>
        <translation> mm Abstand</translation>
    </message>
    <message>
        <source>Move the robot to the first place and teach it, then make the others.</source>
        <translation>Den Roboter zum ersten Platz fahren und ihn teachen, dann die anderen anlegen.</translation>
    </message>
    <message>
        <source>%1: done.</source>
        <translation>%1: erledigt.</translation>
    </message>
    <message>
        <source>%1: not all of it reached the controller. The log says why.</source>
        <translation>%1: Nicht alles kam bei der Steuerung an. Das Protokoll nennt den Grund.</translation>
    </message>
    <message>
        <source>Teach place</source>
        <translation>Platz teachen</translation>
    </message>
    <message>
        <source>Make places</source>
        <translation>Plätze anlegen</translation>
    </message>
    <message>
        <source>Remove place</source>
        <translation>Platz entfernen</translation>
    </message>
    <message>
        <source>Raise all 10 mm</source>
        <translation>Alle 10 mm anheben</translation>
    </message>
    <message>
        <source>Park position</source>
        <translation>Parkposition</translation>
    </message>
    <message>
        <source>Back up</source>
        <translation>Sichern</translation>
    </message>
    <message>
        <source>The controller says no position. Connect it, then try again.</source>
        <translation>Die Steuerung meldet keine Position. Verbinden, dann erneut versuchen.</translation>
    </message>
    <message>
        <source>Teach the first place first.</source>
        <translation>Zuerst den ersten Platz teachen.</translation>
    </message>
    <message>
        <source>Select a place first.</source>
        <translation>Zuerst einen Platz auswählen.</translation>
    </message>
    <message>
        <source>The points are in %1.</source>
        <translation>Die Punkte sind in %1.</translation>
    </message>
    <message>
        <source>%1 can&apos;t be written.</source>
        <translation>%1 kann nicht geschrieben werden.</translation>
    </message>
    <message>
        <source>Places declared in the program: %1</source>
        <translation>Im Programm deklarierte Plätze: %1</translation>
    </message>
    <message>
        <source>%1:   %2</source>
        <translation>%1:   %2</translation>
    </message>
    <message>
        <source>not taught</source>
        <translation>nicht geteacht</translation>
    </message>
</context>
<context>
    <name>navigation</name>
    <message>
        <source>My pallet</source>
        <translation>Meine Palette</translation>
    </message>
</context>
</TS>
