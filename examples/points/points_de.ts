<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>PointsPlugin</name>
    <message>
        <source>Name of a point</source>
        <translation>Name eines Punktes</translation>
    </message>
    <message>
        <source>Move the robot to a place, type a name, then tap Teach.</source>
        <translation>Den Roboter an eine Stelle fahren, einen Namen eingeben, dann teachen.</translation>
    </message>
    <message>
        <source>Teach pose</source>
        <translation>Pose teachen</translation>
    </message>
    <message>
        <source>Teach joints</source>
        <translation>Achsen teachen</translation>
    </message>
    <message>
        <source>Raise 10 mm</source>
        <translation>10 mm anheben</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Entfernen</translation>
    </message>
    <message>
        <source>Type a name first.</source>
        <translation>Zuerst einen Namen eingeben.</translation>
    </message>
    <message>
        <source>The controller says no position. Connect it, then try again.</source>
        <translation>Die Steuerung meldet keine Position. Verbinden, dann erneut versuchen.</translation>
    </message>
    <message>
        <source>Tap again: &quot;%1&quot; gets a new place.</source>
        <translation>Erneut antippen: „%1“ bekommt eine neue Position.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is taught.</source>
        <translation>„%1“ ist geteacht.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is taught here, but not on the controller: see the log.</source>
        <translation>„%1“ ist hier geteacht, aber nicht in der Steuerung: siehe Protokoll.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no point with a pose. Select one.</source>
        <translation>„%1“ ist kein Punkt mit Pose. Einen auswählen.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is raised.</source>
        <translation>„%1“ ist angehoben.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is raised here, but not on the controller: see the log.</source>
        <translation>„%1“ ist hier angehoben, aber nicht in der Steuerung: siehe Protokoll.</translation>
    </message>
    <message>
        <source>There is no &quot;%1&quot;. Select a point.</source>
        <translation>Es gibt kein „%1“. Einen Punkt auswählen.</translation>
    </message>
    <message>
        <source>Tap again: &quot;%1&quot; goes for good.</source>
        <translation>Erneut antippen: „%1“ verschwindet endgültig.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is removed.</source>
        <translation>„%1“ ist entfernt.</translation>
    </message>
    <message>
        <source>The controller needs &quot;%1&quot;. Stop its program first.</source>
        <translation>Die Steuerung braucht „%1“. Zuerst ihr Programm stoppen.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is removed here, but the file is not: see the log.</source>
        <translation>„%1“ ist hier entfernt, die Datei aber nicht: siehe Protokoll.</translation>
    </message>
</context>
<context>
    <name>navigation</name>
    <message>
        <source>My points</source>
        <translation>Meine Punkte</translation>
    </message>
</context>
</TS>
