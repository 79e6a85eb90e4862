<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>EventTable</name>
    <message>
        <source>Time</source>
        <translation>Zeit</translation>
    </message>
    <message>
        <source>No.</source>
        <translation>Nr.</translation>
    </message>
    <message>
        <source>Event</source>
        <translation>Ereignis</translation>
    </message>
    <message>
        <source>Source</source>
        <translation>Quelle</translation>
    </message>
    <message>
        <source>Data</source>
        <translation>Daten</translation>
    </message>
    <message>
        <source>No events yet</source>
        <translation>Noch keine Ereignisse</translation>
    </message>
</context>
<context>
    <name>MonitorPage</name>
    <message>
        <source>Event monitor</source>
        <translation>Ereignismonitor</translation>
    </message>
    <message>
        <source>Full screen</source>
        <translation>Vollbild</translation>
    </message>
    <message>
        <source>Hub key or notify path, for example demo.temperature</source>
        <translation>Hub-Schlüssel oder Notify-Pfad, zum Beispiel demo.temperature</translation>
    </message>
    <message>
        <source>Watch hub key</source>
        <translation>Hub-Schlüssel beobachten</translation>
    </message>
    <message>
        <source>Watch notify path</source>
        <translation>Notify-Pfad beobachten</translation>
    </message>
    <message>
        <source>%1  ✕</source>
        <translation>%1  ✕</translation>
    </message>
    <message>
        <source>Tap to stop watching</source>
        <translation>Antippen, um die Beobachtung zu beenden</translation>
    </message>
</context>
<context>
    <name>MonitorPlugin</name>
    <message>
        <source>No. %1 at %2</source>
        <translation>Nr. %1 um %2</translation>
    </message>
    <message>
        <source>from %1</source>
        <translation>von %1</translation>
    </message>
    <message>
        <source>Events: %1</source>
        <translation>Ereignisse: %1</translation>
    </message>
    <message>
        <source>The last event appears here.</source>
        <translation>Das letzte Ereignis erscheint hier.</translation>
    </message>
    <message>
        <source>Last event</source>
        <translation>Letztes Ereignis</translation>
    </message>
</context>
<context>
    <name>navigation</name>
    <message>
        <source>Monitor</source>
        <translation>Monitor</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pause</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Leeren</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Details</translation>
    </message>
</context>
</TS>
