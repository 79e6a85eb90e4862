<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>LoggingPlugin</name>
    <message>
        <source>What happened at the cell</source>
        <translation>Was an der Zelle geschah</translation>
    </message>
    <message>
        <source>Type a note, then tap Note or Problem.</source>
        <translation>Eine Notiz eingeben, dann „Notiz“ oder „Problem“ antippen.</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>Notiz</translation>
    </message>
    <message>
        <source>Problem</source>
        <translation>Problem</translation>
    </message>
    <message>
        <source>Record state</source>
        <translation>Zustand festhalten</translation>
    </message>
    <message>
        <source>Remove file</source>
        <translation>Datei entfernen</translation>
    </message>
    <message>
        <source>Tidy up</source>
        <translation>Aufräumen</translation>
    </message>
    <message>
        <source>Type a note first.</source>
        <translation>Zuerst eine Notiz eingeben.</translation>
    </message>
    <message>
        <source>Written to %1.</source>
        <translation>In %1 geschrieben.</translation>
    </message>
    <message>
        <source>The robot&apos;s state is recorded.</source>
        <translation>Der Zustand des Roboters ist festgehalten.</translation>
    </message>
    <message>
        <source>The state can&apos;t be written: is the panel&apos;s disk full?</source>
        <translation>Der Zustand kann nicht geschrieben werden: Ist der Datenträger des Bedienpanels voll?</translation>
    </message>
    <message>
        <source>Select a file first.</source>
        <translation>Zuerst eine Datei auswählen.</translation>
    </message>
    <message>
        <source>The file is removed.</source>
        <translation>Die Datei ist entfernt.</translation>
    </message>
    <message>
        <source>The file can&apos;t be removed.</source>
        <translation>Die Datei kann nicht entfernt werden.</translation>
    </message>
    <message>
        <source>The oldest files are gone as far as all are above 50 MiB.</source>
        <translation>Die ältesten Dateien sind weg, soweit alle zusammen über 50 MiB lagen.</translation>
    </message>
</context>
<context>
    <name>navigation</name>
    <message>
        <source>Logbook</source>
        <translation>Logbuch</translation>
    </message>
</context>
</TS>
