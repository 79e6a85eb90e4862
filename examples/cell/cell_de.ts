<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>CellController</name>
    <message>
        <source>The controller did not answer.</source>
        <translation>Die Steuerung hat nicht geantwortet.</translation>
    </message>
    <message>
        <source>A %1. Projects: %2.</source>
        <translation>Ein %1. Projekte: %2.</translation>
    </message>
    <message>
        <source>An old %1.</source>
        <translation>Ein alter %1.</translation>
    </message>
</context>
<context>
    <name>CellDevices</name>
    <message>
        <source>The sensor says nothing.</source>
        <translation>Der Sensor meldet nichts.</translation>
    </message>
    <message>
        <source>%1 °C, %2 looks after it.</source>
        <translation>%1 °C, %2 kümmert sich darum.</translation>
    </message>
</context>
<context>
    <name>CellPlugin</name>
    <message>
        <source>Connected.</source>
        <translation>Verbunden.</translation>
    </message>
    <message>
        <source>Not connected.</source>
        <translation>Nicht verbunden.</translation>
    </message>
    <message>
        <source>The conveyor says nothing yet.</source>
        <translation>Das Förderband meldet noch nichts.</translation>
    </message>
    <message>
        <source>Tap what a device is to do.</source>
        <translation>Antippen, was ein Gerät tun soll.</translation>
    </message>
    <message>
        <source>Connect the controller first.</source>
        <translation>Zuerst die Steuerung verbinden.</translation>
    </message>
    <message>
        <source>Lamp on</source>
        <translation>Lampe ein</translation>
    </message>
    <message>
        <source>The lamp is told to light.</source>
        <translation>Die Lampe soll leuchten.</translation>
    </message>
    <message>
        <source>Lamp off</source>
        <translation>Lampe aus</translation>
    </message>
    <message>
        <source>The lamp is told to go out.</source>
        <translation>Die Lampe soll ausgehen.</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>Temperatur</translation>
    </message>
    <message>
        <source>Reset devices</source>
        <translation>Geräte zurücksetzen</translation>
    </message>
    <message>
        <source>The devices are reset.</source>
        <translation>Die Geräte sind zurückgesetzt.</translation>
    </message>
    <message>
        <source>Grip</source>
        <translation>Greifen</translation>
    </message>
    <message>
        <source>Release</source>
        <translation>Loslassen</translation>
    </message>
    <message>
        <source>Run conveyor</source>
        <translation>Förderband starten</translation>
    </message>
    <message>
        <source>Asked.</source>
        <translation>Angefragt.</translation>
    </message>
    <message>
        <source>Controller</source>
        <translation>Steuerung</translation>
    </message>
    <message>
        <source>The conveyor is at %1 mm.</source>
        <translation>Das Förderband steht bei %1 mm.</translation>
    </message>
    <message>
        <source>Disconnected.</source>
        <translation>Getrennt.</translation>
    </message>
    <message>
        <source>The controller is lost.</source>
        <translation>Die Verbindung zur Steuerung ist verloren.</translation>
    </message>
    <message>
        <source>The door says nothing yet.</source>
        <translation>Die Tür meldet noch nichts.</translation>
    </message>
    <message>
        <source>The door is closed.</source>
        <translation>Die Tür ist geschlossen.</translation>
    </message>
    <message>
        <source>The door is open.</source>
        <translation>Die Tür ist offen.</translation>
    </message>
    <message>
        <source>That did not work. The log says more.</source>
        <translation>Das hat nicht geklappt. Mehr steht im Protokoll.</translation>
    </message>
</context>
<context>
    <name>Gripper</name>
    <message>
        <source>The gripper did not answer.</source>
        <translation>Der Greifer hat nicht geantwortet.</translation>
    </message>
    <message>
        <source>The gripper answered: %1</source>
        <translation>Der Greifer antwortete: %1</translation>
    </message>
</context>
<context>
    <name>navigation</name>
    <message>
        <source>My cell</source>
        <translation>Meine Zelle</translation>
    </message>
</context>
</TS>
