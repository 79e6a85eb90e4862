<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>PersistentPlugin</name>
    <message>
        <source>Persistent variables</source>
        <translation>Persistente Variablen</translation>
    </message>
    <message>
        <source>Variable</source>
        <translation>Variable</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Wert</translation>
    </message>
    <message>
        <source>Type the name of a variable, then tap Watch.</source>
        <translation>Den Namen einer Variablen eingeben, dann „Beobachten“ antippen.</translation>
    </message>
    <message>
        <source>Name of a variable</source>
        <translation>Name einer Variablen</translation>
    </message>
    <message>
        <source>Value for the selected one</source>
        <translation>Wert für die ausgewählte</translation>
    </message>
    <message>
        <source>Watch</source>
        <translation>Beobachten</translation>
    </message>
    <message>
        <source>Write</source>
        <translation>Schreiben</translation>
    </message>
    <message>
        <source>Connect the controller first, then tap Watch again.</source>
        <translation>Zuerst die Steuerung verbinden, dann erneut „Beobachten“ antippen.</translation>
    </message>
    <message>
        <source>Type the name of a variable that is not in the table yet.</source>
        <translation>Den Namen einer Variablen eingeben, die noch nicht in der Tabelle steht.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has no value yet, or another name.</source>
        <translation>„%1“ hat noch keinen Wert oder heißt anders.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is watched. Select it to write a value.</source>
        <translation>„%1“ wird beobachtet. Auswählen, um einen Wert zu schreiben.</translation>
    </message>
    <message>
        <source>Connect the controller first, then tap Write again.</source>
        <translation>Zuerst die Steuerung verbinden, dann erneut „Schreiben“ antippen.</translation>
    </message>
    <message>
        <source>Select a variable in the table first.</source>
        <translation>Zuerst eine Variable der Tabelle auswählen.</translation>
    </message>
    <message>
        <source>Sent to &quot;%1&quot;. The table shows what the controller made of it.</source>
        <translation>An „%1“ gesendet. Die Tabelle zeigt, was die Steuerung daraus gemacht hat.</translation>
    </message>
    <message>
        <source>Only finite numbers can be sent. Type another value.</source>
        <translation>Nur endliche Zahlen können gesendet werden. Einen anderen Wert eingeben.</translation>
    </message>
    <message>
        <source>The controller has version &quot;%1&quot;; 2.3, 3.0, 3.1 or 3.2 is needed.</source>
        <translation>Die Steuerung hat Version „%1“; nötig ist 2.3, 3.0, 3.1 oder 3.2.</translation>
    </message>
</context>
<context>
    <name>navigation</name>
    <message>
        <source>Persistent</source>
        <translation>Persistent</translation>
    </message>
</context>
</TS>
