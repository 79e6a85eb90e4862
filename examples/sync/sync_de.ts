<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>SyncPlugin</name>
    <message>
        <source>A note for whoever works on this project next</source>
        <translation>Eine Notiz für alle, die als Nächste an diesem Projekt arbeiten</translation>
    </message>
    <message>
        <source>Send everything once, then the note alone.</source>
        <translation>Einmal alles senden, danach nur die Notiz.</translation>
    </message>
    <message>
        <source>Send all</source>
        <translation>Alles senden</translation>
    </message>
    <message>
        <source>The controller has all notes of this panel, and no others.</source>
        <translation>Die Steuerung hat alle Notizen dieses Bedienpanels und keine anderen.</translation>
    </message>
    <message>
        <source>Send note</source>
        <translation>Notiz senden</translation>
    </message>
    <message>
        <source>The controller has this note.</source>
        <translation>Die Steuerung hat diese Notiz.</translation>
    </message>
    <message>
        <source>Fetch all</source>
        <translation>Alles holen</translation>
    </message>
    <message>
        <source>This panel has all notes of the controller, and no others.</source>
        <translation>Dieses Bedienpanel hat alle Notizen der Steuerung und keine anderen.</translation>
    </message>
    <message>
        <source>Not everything was copied. Is the controller on, and does it have this project? The log says what rsync found.</source>
        <translation>Nicht alles wurde kopiert. Ist die Steuerung ein und hat sie dieses Projekt? Das Protokoll sagt, was rsync fand.</translation>
    </message>
    <message>
        <source>The note can&apos;t be saved on the panel: %1</source>
        <translation>Die Notiz kann auf dem Bedienpanel nicht gespeichert werden: %1</translation>
    </message>
</context>
<context>
    <name>navigation</name>
    <message>
        <source>My note</source>
        <translation>Meine Notiz</translation>
    </message>
</context>
</TS>
