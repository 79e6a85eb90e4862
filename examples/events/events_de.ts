<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>EventsPlugin</name>
    <message>
        <source>Say of each part whether it is good. Each program that ends is one.</source>
        <translation>Bei jedem Teil angeben, ob es gut ist. Jedes Programmende zählt als eines.</translation>
    </message>
    <message>
        <source>Good part</source>
        <translation>Gutteil</translation>
    </message>
    <message>
        <source>operator</source>
        <translation>Bediener</translation>
    </message>
    <message>
        <source>Rejected part</source>
        <translation>Ausschuss</translation>
    </message>
    <message>
        <source>Check the next one</source>
        <translation>Nächstes Teil prüfen</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pause</translation>
    </message>
    <message>
        <source>New shift</source>
        <translation>Neue Schicht</translation>
    </message>
    <message>
        <source>The controller is gone. Parts by hand still count.</source>
        <translation>Die Steuerung ist weg. Teile von Hand zählen weiter.</translation>
    </message>
    <message>
        <source>Change the box: %1 parts are good.</source>
        <translation>Kiste wechseln: %1 Teile sind gut.</translation>
    </message>
    <message>
        <source>part</source>
        <translation>Teil</translation>
    </message>
    <message>
        <source>The next part is not checked.</source>
        <translation>Das nächste Teil wird nicht geprüft.</translation>
    </message>
    <message>
        <source>Measure this part now.</source>
        <translation>Dieses Teil jetzt messen.</translation>
    </message>
    <message>
        <source>Stop the conveyor and measure this part now.</source>
        <translation>Das Förderband stoppen und dieses Teil jetzt messen.</translation>
    </message>
    <message>
        <source>The next part is to be checked.</source>
        <translation>Das nächste Teil ist zu prüfen.</translation>
    </message>
    <message>
        <source>%1 good, %2 rejected</source>
        <translation>%1 gut, %2 Ausschuss</translation>
    </message>
    <message>
        <source>%1, the last at %2</source>
        <translation>%1, das letzte um %2</translation>
    </message>
    <message>
        <source>This shift: %1 events, %2 calls. %3 subscriptions to %4 types, %5 of this plugin, %6 to parts.</source>
        <translation>Diese Schicht: %1 Ereignisse, %2 Aufrufe. %3 Abonnements für %4 Arten, %5 von diesem Plugin, %6 für Teile.</translation>
    </message>
</context>
<context>
    <name>navigation</name>
    <message>
        <source>Part counter</source>
        <translation>Teilezähler</translation>
    </message>
</context>
</TS>
