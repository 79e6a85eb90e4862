<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>VariablesPlugin</name>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>5, 2.5, true, text</source>
        <translation>5, 2.5, true, Text</translation>
    </message>
    <message>
        <source>Persistent</source>
        <translation>Persistent</translation>
    </message>
    <message>
        <source>Type a name and a value, then tap Add.</source>
        <translation>Einen Namen und einen Wert eingeben, dann „Hinzufügen“ antippen.</translation>
    </message>
    <message>
        <source>Type a name first.</source>
        <translation>Zuerst einen Namen eingeben.</translation>
    </message>
    <message>
        <source>Connect the controller first: it has to agree.</source>
        <translation>Zuerst die Steuerung verbinden: Sie muss zustimmen.</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Hinzufügen</translation>
    </message>
    <message>
        <source>Change</source>
        <translation>Ändern</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>There is a &quot;%1&quot; already. Change it, or take another name.</source>
        <translation>Es gibt schon „%1“. Ändern oder einen anderen Namen nehmen.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is added.</source>
        <translation>„%1“ ist hinzugefügt.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is added, but var.json is not on the controller: see the log.</source>
        <translation>„%1“ ist hinzugefügt, aber var.json ist nicht in der Steuerung: siehe Protokoll.</translation>
    </message>
    <message>
        <source>The controller does not take a &quot;%1&quot; of this type.</source>
        <translation>Die Steuerung nimmt kein „%1“ dieses Typs an.</translation>
    </message>
    <message>
        <source>There is no &quot;%1&quot;. Add it first.</source>
        <translation>Es gibt kein „%1“. Zuerst hinzufügen.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is changed.</source>
        <translation>„%1“ ist geändert.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is changed, but var.json is not on the controller: see the log.</source>
        <translation>„%1“ ist geändert, aber var.json ist nicht in der Steuerung: siehe Protokoll.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; keeps its value: it is a connection, or the controller does not take this value.</source>
        <translation>„%1“ behält den Wert: Es ist eine Verbindung, oder die Steuerung nimmt diesen Wert nicht an.</translation>
    </message>
    <message>
        <source>There is no &quot;%1&quot;.</source>
        <translation>Es gibt kein „%1“.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is deleted.</source>
        <translation>„%1“ ist gelöscht.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is deleted, but var.json on the controller is old: see the log.</source>
        <translation>„%1“ ist gelöscht, aber var.json in der Steuerung ist alt: siehe Protokoll.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; stays: it is a connection, or the program needs it.</source>
        <translation>„%1“ bleibt: Es ist eine Verbindung, oder das Programm braucht es.</translation>
    </message>
    <message>
        <source>These stay: %1.</source>
        <translation>Diese bleiben: %1.</translation>
    </message>
    <message>
        <source>%1 are deleted.</source>
        <translation>%1 sind gelöscht.</translation>
    </message>
    <message>
        <source>%1 are deleted, but var.json on the controller is old: see the log.</source>
        <translation>%1 sind gelöscht, aber var.json in der Steuerung ist alt: siehe Protokoll.</translation>
    </message>
</context>
<context>
    <name>navigation</name>
    <message>
        <source>My variables</source>
        <translation>Meine Variablen</translation>
    </message>
</context>
</TS>
