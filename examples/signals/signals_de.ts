<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>SignalsPage</name>
    <message>
        <source>Signal</source>
        <translation>Signal</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Wert</translation>
    </message>
    <message>
        <source>Register</source>
        <translation>Register</translation>
    </message>
    <message>
        <source>My signals</source>
        <translation>Meine Signale</translation>
    </message>
    <message>
        <source>Digital inputs</source>
        <translation>Digitale Eingänge</translation>
    </message>
    <message>
        <source>Digital outputs</source>
        <translation>Digitale Ausgänge</translation>
    </message>
    <message>
        <source>Group inputs</source>
        <translation>Gruppeneingänge</translation>
    </message>
    <message>
        <source>Group outputs</source>
        <translation>Gruppenausgänge</translation>
    </message>
    <message>
        <source>Analogue inputs</source>
        <translation>Analoge Eingänge</translation>
    </message>
    <message>
        <source>Analogue outputs</source>
        <translation>Analoge Ausgänge</translation>
    </message>
    <message>
        <source>Set to 1</source>
        <translation>Auf 1 setzen</translation>
    </message>
    <message>
        <source>Set to 0</source>
        <translation>Auf 0 setzen</translation>
    </message>
    <message>
        <source>Toggle</source>
        <translation>Umschalten</translation>
    </message>
    <message>
        <source>Read again</source>
        <translation>Erneut lesen</translation>
    </message>
    <message>
        <source>No values came. Connect the controller, then tap Read again.</source>
        <translation>Es kamen keine Werte. Die Steuerung verbinden, dann „Erneut lesen“ antippen.</translation>
    </message>
    <message>
        <source>The robot has no signals of this kind.</source>
        <translation>Der Roboter hat keine Signale dieser Art.</translation>
    </message>
    <message>
        <source>Select a digital signal to set it.</source>
        <translation>Ein digitales Signal auswählen, um es zu setzen.</translation>
    </message>
    <message>
        <source>Connect the controller first, then set the signal again.</source>
        <translation>Zuerst die Steuerung verbinden, dann das Signal erneut setzen.</translation>
    </message>
    <message>
        <source>Select a digital input or output first.</source>
        <translation>Zuerst einen digitalen Eingang oder Ausgang auswählen.</translation>
    </message>
    <message>
        <source>Sent. If the value stays, the line below says why.</source>
        <translation>Gesendet. Bleibt der Wert, nennt die Zeile unten den Grund.</translation>
    </message>
    <message>
        <source>Select a digital output first.</source>
        <translation>Zuerst einen digitalen Ausgang auswählen.</translation>
    </message>
</context>
<context>
    <name>navigation</name>
    <message>
        <source>My signals</source>
        <translation>Meine Signale</translation>
    </message>
</context>
</TS>
