<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>MovesPlugin</name>
    <message>
        <source> mm/s</source>
        <translation> mm/s</translation>
    </message>
    <message>
        <source>Choose a point and a speed. Stop ends every move.</source>
        <translation>Einen Punkt und eine Geschwindigkeit wählen. Stopp beendet jede Fahrt.</translation>
    </message>
    <message>
        <source>Move straight</source>
        <translation>Linear fahren</translation>
    </message>
    <message>
        <source>Move by joints</source>
        <translation>Achsweise fahren</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Stopp</translation>
    </message>
    <message>
        <source>Choose a point. Where there is none, teach one first.</source>
        <translation>Einen Punkt wählen. Gibt es keinen, zuerst einen teachen.</translation>
    </message>
    <message>
        <source>Connect the controller first.</source>
        <translation>Zuerst die Steuerung verbinden.</translation>
    </message>
    <message>
        <source>The robot can&apos;t go from &quot;%1&quot; to &quot;%2&quot;. Choose a point between them.</source>
        <translation>Der Roboter kann nicht von „%1“ nach „%2“. Einen Punkt dazwischen wählen.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has no place. Teach it first.</source>
        <translation>„%1“ hat keine Position. Zuerst teachen.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has no arm configuration. Teach it again as a pose, or move straight.</source>
        <translation>„%1“ hat keine Armkonfiguration. Erneut als Pose teachen oder linear fahren.</translation>
    </message>
    <message>
        <source>The robot was sent to &quot;%1&quot;.</source>
        <translation>Der Roboter wurde nach „%1“ geschickt.</translation>
    </message>
    <message>
        <source>The robot was told to stop.</source>
        <translation>Der Roboter bekam den Befehl zu stoppen.</translation>
    </message>
    <message>
        <source>The controller is not connected: use the emergency stop.</source>
        <translation>Die Steuerung ist nicht verbunden: Not-Halt drücken.</translation>
    </message>
    <message>
        <source>The robot did not get there: %1</source>
        <translation>Der Roboter kam dort nicht an: %1</translation>
    </message>
</context>
<context>
    <name>navigation</name>
    <message>
        <source>My moves</source>
        <translation>Meine Fahrten</translation>
    </message>
</context>
</TS>
