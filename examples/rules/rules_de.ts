<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>RulesPlugin</name>
    <message>
        <source>Tap what you want to be told of.</source>
        <translation>Antippen, was gemeldet werden soll.</translation>
    </message>
    <message>
        <source>Motors switch</source>
        <translation>Motoren schalten</translation>
    </message>
    <message>
        <source>The motors switched.</source>
        <translation>Die Motoren haben geschaltet.</translation>
    </message>
    <message>
        <source>Motors go on</source>
        <translation>Motoren gehen an</translation>
    </message>
    <message>
        <source>The motors are on: keep clear.</source>
        <translation>Die Motoren sind ein: Abstand halten.</translation>
    </message>
    <message>
        <source>Mode changes</source>
        <translation>Betriebsart wechselt</translation>
    </message>
    <message>
        <source>The operating mode changed.</source>
        <translation>Die Betriebsart hat gewechselt.</translation>
    </message>
    <message>
        <source>Next start</source>
        <translation>Nächster Start</translation>
    </message>
    <message>
        <source>The program has started.</source>
        <translation>Das Programm ist gestartet.</translation>
    </message>
    <message>
        <source>Box is full</source>
        <translation>Kiste ist voll</translation>
    </message>
    <message>
        <source>Two parts are done: change the box.</source>
        <translation>Zwei Teile sind fertig: die Kiste wechseln.</translation>
    </message>
    <message>
        <source>Select a rule first.</source>
        <translation>Zuerst eine Regel auswählen.</translation>
    </message>
    <message>
        <source>Try</source>
        <translation>Ausprobieren</translation>
    </message>
    <message>
        <source>Seen</source>
        <translation>Gesehen</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Entfernen</translation>
    </message>
    <message>
        <source>Remove its kind</source>
        <translation>Diese Art entfernen</translation>
    </message>
    <message>
        <source>Remove its group</source>
        <translation>Diese Gruppe entfernen</translation>
    </message>
    <message>
        <source>The rule is there.</source>
        <translation>Die Regel ist da.</translation>
    </message>
    <message>
        <source>The rule starts anew.</source>
        <translation>Die Regel beginnt von vorn.</translation>
    </message>
    <message>
        <source>done</source>
        <translation>fertig</translation>
    </message>
    <message>
        <source>waits</source>
        <translation>wartet</translation>
    </message>
    <message>
        <source>events: %1</source>
        <translation>Ereignisse: %1</translation>
    </message>
    <message>
        <source>%1 rules for %2 kinds of events, %3 of them for the motors; %4 for the shift, %5 for service. Last event: %6.</source>
        <translation>%1 Regeln für %2 Arten von Ereignissen, %3 davon für die Motoren; %4 für die Schicht, %5 für den Service. Letztes Ereignis: %6.</translation>
    </message>
    <message>
        <source>none</source>
        <translation>keines</translation>
    </message>
</context>
<context>
    <name>navigation</name>
    <message>
        <source>My rules</source>
        <translation>Meine Regeln</translation>
    </message>
</context>
</TS>
