<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>StatusPlugin</name>
    <message>
        <source>Robot status</source>
        <translation>Roboterzustand</translation>
    </message>
    <message>
        <source>Changes appear here as the controller reports them.</source>
        <translation>Änderungen erscheinen hier, wie die Steuerung sie meldet.</translation>
    </message>
    <message>
        <source>The operator wants to start. If the cell is clear, tap Start.</source>
        <translation>Der Bediener möchte starten. Ist die Zelle frei, „Start“ antippen.</translation>
    </message>
    <message>
        <source>The operator wants to stop. When the part is finished, tap Stop.</source>
        <translation>Der Bediener möchte stoppen. Ist das Teil fertig, „Stopp“ antippen.</translation>
    </message>
    <message>
        <source>Motors on</source>
        <translation>Motoren ein</translation>
    </message>
    <message>
        <source>Motors off</source>
        <translation>Motoren aus</translation>
    </message>
    <message>
        <source>Manual</source>
        <translation>Manuell</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>Automatik</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Start</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Stopp</translation>
    </message>
    <message>
        <source>Ask before a start</source>
        <translation>Vor Start fragen</translation>
    </message>
    <message>
        <source>Ask before a stop</source>
        <translation>Vor Stopp fragen</translation>
    </message>
    <message>
        <source>%1: sent. The state above follows when the robot has done it.</source>
        <translation>%1: gesendet. Der Zustand oben folgt, sobald der Roboter es getan hat.</translation>
    </message>
    <message>
        <source>%1: not sent. Connect the controller, then try again.</source>
        <translation>%1: nicht gesendet. Die Steuerung verbinden, dann erneut versuchen.</translation>
    </message>
    <message>
        <source>Controller</source>
        <translation>Steuerung</translation>
    </message>
    <message>
        <source>not connected</source>
        <translation>nicht verbunden</translation>
    </message>
    <message>
        <source>Identity</source>
        <translation>Kennung</translation>
    </message>
    <message>
        <source>Robot</source>
        <translation>Roboter</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>Modell</translation>
    </message>
    <message>
        <source>Motors</source>
        <translation>Motoren</translation>
    </message>
    <message>
        <source>on</source>
        <translation>ein</translation>
    </message>
    <message>
        <source>off</source>
        <translation>aus</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>Betriebsart</translation>
    </message>
    <message>
        <source>manual</source>
        <translation>manuell</translation>
    </message>
    <message>
        <source>automatic</source>
        <translation>automatisch</translation>
    </message>
    <message>
        <source>Program</source>
        <translation>Programm</translation>
    </message>
    <message>
        <source>User level</source>
        <translation>Benutzerstufe</translation>
    </message>
</context>
<context>
    <name>navigation</name>
    <message>
        <source>Robot status</source>
        <translation>Roboterzustand</translation>
    </message>
</context>
</TS>
