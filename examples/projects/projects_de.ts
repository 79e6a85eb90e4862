<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>ProjectsPlugin</name>
    <message>
        <source>My projects</source>
        <translation>Meine Projekte</translation>
    </message>
    <message>
        <source>Name of a new project</source>
        <translation>Name eines neuen Projekts</translation>
    </message>
    <message>
        <source>Type a name, then tap Create.</source>
        <translation>Einen Namen eingeben, dann „Anlegen“ antippen.</translation>
    </message>
    <message>
        <source>Create</source>
        <translation>Anlegen</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Öffnen</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Entfernen</translation>
    </message>
    <message>
        <source>%1   (open)</source>
        <translation>%1   (geöffnet)</translation>
    </message>
    <message>
        <source>Made by an example</source>
        <translation>Von einem Beispiel angelegt</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is made and open.</source>
        <translation>„%1“ ist angelegt und geöffnet.</translation>
    </message>
    <message>
        <source>There is a &quot;%1&quot; already. Choose another name, or open it.</source>
        <translation>Es gibt schon ein „%1“. Einen anderen Namen wählen oder es öffnen.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is open.</source>
        <translation>„%1“ ist geöffnet.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no longer there.</source>
        <translation>„%1“ ist nicht mehr da.</translation>
    </message>
    <message>
        <source>Tap Remove again within 5 s: &quot;%1&quot; goes with all its points.</source>
        <translation>Innerhalb von 5 s erneut „Entfernen“ antippen: „%1“ verschwindet mit allen Punkten.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is removed.</source>
        <translation>„%1“ ist entfernt.</translation>
    </message>
    <message>
        <source>Type or select a name; one without &quot;/&quot;.</source>
        <translation>Einen Namen ohne „/“ eingeben oder auswählen.</translation>
    </message>
    <message>
        <source>The disk refused. Make room, or choose a shorter name.</source>
        <translation>Der Datenträger hat abgelehnt. Platz schaffen oder einen kürzeren Namen wählen.</translation>
    </message>
</context>
<context>
    <name>navigation</name>
    <message>
        <source>My projects</source>
        <translation>Meine Projekte</translation>
    </message>
</context>
</TS>
