<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>ArmFeed</name>
    <message>
        <source>error %1</source>
        <translation>Fehler %1</translation>
    </message>
</context>
<context>
    <name>ArmView</name>
    <message>
        <source>3D</source>
        <translation>3D</translation>
    </message>
    <message>
        <source>Side</source>
        <translation>Seite</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>Oben</translation>
    </message>
    <message>
        <source>No link to the controller</source>
        <translation>Keine Verbindung zur Steuerung</translation>
    </message>
    <message>
        <source>The robot&apos;s pose appears when it is connected.</source>
        <translation>Die Pose des Roboters erscheint, sobald sie verbunden ist.</translation>
    </message>
    <message>
        <source>The controller does not tell the arm&apos;s pose.</source>
        <translation>Die Steuerung meldet die Pose des Arms nicht.</translation>
    </message>
    <message>
        <source>Moving</source>
        <translation>In Bewegung</translation>
    </message>
</context>
<context>
    <name>InsertDialog</name>
    <message>
        <source>Insert an instruction</source>
        <translation>Anweisung einfügen</translation>
    </message>
    <message>
        <source>Write a line</source>
        <translation>Zeile schreiben</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Zurück</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Insert</source>
        <translation>Einfügen</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>Gruppe</translation>
    </message>
    <message>
        <source>Instruction</source>
        <translation>Anweisung</translation>
    </message>
    <message>
        <source>No instructions</source>
        <translation>Keine Anweisungen</translation>
    </message>
    <message>
        <source>They come with plugins. &quot;Write a line&quot; takes any text.</source>
        <translation>Sie kommen mit Plugins. „Zeile schreiben“ nimmt jeden Text.</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Weiter</translation>
    </message>
    <message>
        <source>&quot;%1&quot; can&apos;t be inserted: its plugin gave neither a widget nor a text. Write the line instead.</source>
        <translation>„%1“ kann nicht eingefügt werden: das Plugin gab weder Eingabefeld noch Text. Stattdessen die Zeile schreiben.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; can&apos;t be inserted: %2. Write the line instead.</source>
        <translation>„%1“ kann nicht eingefügt werden: %2. Stattdessen die Zeile schreiben.</translation>
    </message>
    <message>
        <source>It can&apos;t be inserted yet: correct what is entered.</source>
        <translation>Noch nicht einfügbar: die Eingaben berichtigen.</translation>
    </message>
</context>
<context>
    <name>InstructionBox</name>
    <message>
        <source>its plugin gave no widget</source>
        <translation>das Plugin gab kein Eingabefeld</translation>
    </message>
    <message>
        <source>There is nothing to enter.</source>
        <translation>Es gibt nichts einzugeben.</translation>
    </message>
    <message>
        <source>its plugin has taken the widget away</source>
        <translation>das Plugin hat das Eingabefeld weggenommen</translation>
    </message>
</context>
<context>
    <name>Instructions</name>
    <message>
        <source>%1 at its character %2</source>
        <translation>%1 bei Zeichen %2</translation>
    </message>
    <message>
        <source>Others</source>
        <translation>Weitere</translation>
    </message>
    <message>
        <source>it takes too long on the line &quot;%1&quot;</source>
        <translation>es braucht zu lange für die Zeile „%1“</translation>
    </message>
    <message>
        <source>Lines with &quot;%1&quot; are not recognised, since its pattern can&apos;t be used: %2. Its plugin has to be corrected.</source>
        <translation>Zeilen mit „%1“ werden nicht erkannt, weil ihr Muster unbrauchbar ist: %2. Das Plugin muss berichtigt werden.</translation>
    </message>
    <message>
        <source>Other types with such a pattern: %1.</source>
        <translation>Weitere Anweisungen mit solchem Muster: %1.</translation>
    </message>
</context>
<context>
    <name>LineDelegate</name>
    <message>
        <source>Unknown</source>
        <translation>Unbekannt</translation>
    </message>
</context>
<context>
    <name>MoveBar</name>
    <message>
        <source>Move</source>
        <translation>Fahren</translation>
    </message>
    <message>
        <source>STOP</source>
        <translation>STOPP</translation>
    </message>
    <message>
        <source>%1 mm/s</source>
        <translation>%1 mm/s</translation>
    </message>
    <message>
        <source>Straight</source>
        <translation>Linear</translation>
    </message>
    <message>
        <source>By joints</source>
        <translation>Achsweise</translation>
    </message>
    <message>
        <source>Moving to %1</source>
        <translation>Fährt nach %1</translation>
    </message>
    <message>
        <source>Move to %1</source>
        <translation>Nach %1 fahren</translation>
    </message>
    <message>
        <source>To its first element. Keep clear of the robot.</source>
        <translation>Zu seinem ersten Element. Abstand zum Roboter halten.</translation>
    </message>
    <message>
        <source>Keep clear of the robot.</source>
        <translation>Abstand zum Roboter halten.</translation>
    </message>
    <message>
        <source>No link. If the robot moves, use the emergency stop.</source>
        <translation>Keine Verbindung. Bewegt sich der Roboter, Not-Halt drücken.</translation>
    </message>
    <message>
        <source>Stop ends the move. Keep clear of the robot.</source>
        <translation>Stopp beendet die Fahrt. Abstand zum Roboter halten.</translation>
    </message>
    <message>
        <source>Choose a point of the table.</source>
        <translation>Einen Punkt der Tabelle wählen.</translation>
    </message>
    <message>
        <source>A joint target can&apos;t be moved to: teach it as a pose.</source>
        <translation>Ein Achsziel ist nicht anfahrbar: als Pose teachen.</translation>
    </message>
    <message>
        <source>It has no position yet: teach it first.</source>
        <translation>Noch ohne Position: zuerst teachen.</translation>
    </message>
    <message>
        <source>A program is running: stop it first.</source>
        <translation>Ein Programm läuft: zuerst stoppen.</translation>
    </message>
    <message>
        <source>The motors are off: switch them on, on the page &quot;Run&quot;.</source>
        <translation>Die Motoren sind aus: auf der Seite „Betrieb“ einschalten.</translation>
    </message>
    <message>
        <source>Move with &quot;%1&quot; in &quot;%2&quot;?</source>
        <translation>Mit „%1“ in „%2“ fahren?</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was taught with that tool in that work object. They get selected, in place of &quot;%2&quot; and &quot;%3&quot;.</source>
        <translation>„%1“ wurde mit diesem Werkzeug in diesem Werkobjekt geteacht. Sie werden ausgewählt, anstelle von „%2“ und „%3“.</translation>
    </message>
    <message>
        <source>Select and move</source>
        <translation>Auswählen und fahren</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has no arm configuration, which a move by joints needs: teach it again, or move straight.</source>
        <translation>„%1“ hat keine Armkonfiguration, die eine achsweise Fahrt braucht: neu teachen oder linear fahren.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has no position any more: choose another point, or teach it.</source>
        <translation>„%1“ hat keine Position mehr: einen anderen Punkt wählen oder den Punkt teachen.</translation>
    </message>
    <message>
        <source>There is no link, and the robot was not told to stop: if it moves, use the emergency stop.</source>
        <translation>Es gibt keine Verbindung, und der Roboter bekam keinen Stoppbefehl: Bewegt er sich, Not-Halt drücken.</translation>
    </message>
    <message>
        <source>The robot was told to stop.</source>
        <translation>Der Roboter bekam den Befehl zu stoppen.</translation>
    </message>
    <message>
        <source>The link was lost on the way to &quot;%1&quot;: the robot may still be moving. Use the emergency stop, and check where it is.</source>
        <translation>Die Verbindung ging auf dem Weg nach „%1“ verloren: Der Roboter bewegt sich vielleicht noch. Not-Halt drücken und prüfen, wo er steht.</translation>
    </message>
    <message>
        <source>The robot did not move: it is at &quot;%1&quot; already, or the controller waits for something. Check its messages.</source>
        <translation>Der Roboter hat sich nicht bewegt: Er ist schon bei „%1“, oder die Steuerung wartet auf etwas. Ihre Meldungen prüfen.</translation>
    </message>
    <message>
        <source>The robot was stopped on its way to &quot;%1&quot;.</source>
        <translation>Der Roboter wurde auf dem Weg nach „%1“ gestoppt.</translation>
    </message>
    <message>
        <source>The robot is at &quot;%1&quot;.</source>
        <translation>Der Roboter ist bei „%1“.</translation>
    </message>
    <message>
        <source>The robot did not get to &quot;%1&quot;: %2. Put that right, or choose another way, tool or point, and move again.</source>
        <translation>Der Roboter hat „%1“ nicht erreicht: %2. Das beheben oder einen anderen Weg, ein anderes Werkzeug oder einen anderen Punkt wählen und erneut fahren.</translation>
    </message>
</context>
<context>
    <name>PluginRow</name>
    <message>
        <source>Running</source>
        <translation>Läuft</translation>
    </message>
    <message>
        <source>Left out</source>
        <translation>Ausgelassen</translation>
    </message>
    <message>
        <source>Faulty</source>
        <translation>Fehlerhaft</translation>
    </message>
    <message>
        <source>Not loaded</source>
        <translation>Nicht geladen</translation>
    </message>
    <message>
        <source>%1, built against library %2 and Qt %3</source>
        <translation>%1, gebaut für Bibliothek %2 und Qt %3</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>Erneut versuchen</translation>
    </message>
</context>
<context>
    <name>PointsPage</name>
    <message>
        <source>Entered by hand</source>
        <translation>Von Hand eingegeben</translation>
    </message>
    <message>
        <source>Not taught yet</source>
        <translation>Noch nicht geteacht</translation>
    </message>
    <message>
        <source>Several tools or work objects</source>
        <translation>Mehrere Werkzeuge oder Werkobjekte</translation>
    </message>
    <message>
        <source>Joint</source>
        <translation>Achsen</translation>
    </message>
    <message>
        <source>Cartesian</source>
        <translation>Kartesisch</translation>
    </message>
    <message>
        <source>Persistent</source>
        <translation>Persistent</translation>
    </message>
    <message>
        <source>No position yet: teach it.</source>
        <translation>Noch keine Position: teachen.</translation>
    </message>
    <message>
        <source>Points</source>
        <translation>Punkte</translation>
    </message>
    <message>
        <source>Save again</source>
        <translation>Erneut speichern</translation>
    </message>
    <message>
        <source>Teach a new point</source>
        <translation>Neuen Punkt teachen</translation>
    </message>
    <message>
        <source>Saving the points</source>
        <translation>Punkte werden gespeichert</translation>
    </message>
    <message>
        <source>Point</source>
        <translation>Punkt</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>Art</translation>
    </message>
    <message>
        <source>Elements</source>
        <translation>Elemente</translation>
    </message>
    <message>
        <source>Add element</source>
        <translation>Element hinzufügen</translation>
    </message>
    <message>
        <source>Delete element</source>
        <translation>Element löschen</translation>
    </message>
    <message>
        <source>Teach here</source>
        <translation>Hier teachen</translation>
    </message>
    <message>
        <source>Edit values</source>
        <translation>Werte ändern</translation>
    </message>
    <message>
        <source>Delete point</source>
        <translation>Punkt löschen</translation>
    </message>
    <message>
        <source>No points yet</source>
        <translation>Noch keine Punkte</translation>
    </message>
    <message>
        <source>Drive the robot to a place and teach it.</source>
        <translation>Den Roboter an eine Stelle fahren und sie teachen.</translation>
    </message>
    <message>
        <source>They can be taught when the controller is connected.</source>
        <translation>Sie können geteacht werden, sobald die Steuerung verbunden ist.</translation>
    </message>
    <message>
        <source>No link to the controller: nothing can be taught or changed</source>
        <translation>Keine Verbindung zur Steuerung: Teachen und Ändern nicht möglich</translation>
    </message>
    <message>
        <source>No project is open: these points belong to none</source>
        <translation>Kein Projekt ist geöffnet: Diese Punkte gehören zu keinem</translation>
    </message>
    <message>
        <source>Project %1, points: %2</source>
        <translation>Projekt %1, Punkte: %2</translation>
    </message>
    <message>
        <source>joint targets: %1</source>
        <translation>Achsziele: %1</translation>
    </message>
    <message>
        <source>in other work objects: %1</source>
        <translation>in anderen Werkobjekten: %1</translation>
    </message>
    <message>
        <source>too far away: %1</source>
        <translation>zu weit entfernt: %1</translation>
    </message>
    <message>
        <source>Not drawn: %1</source>
        <translation>Nicht gezeichnet: %1</translation>
    </message>
    <message>
        <source>Teaching &quot;%1&quot;</source>
        <translation>„%1“ wird geteacht</translation>
    </message>
    <message>
        <source>Saving &quot;%1&quot;</source>
        <translation>„%1“ wird gespeichert</translation>
    </message>
    <message>
        <source>Adding %1 to &quot;%2&quot;</source>
        <translation>%1 wird zu „%2“ hinzugefügt</translation>
    </message>
    <message>
        <source>Delete %1 of &quot;%2&quot;?</source>
        <translation>%1 von „%2“ löschen?</translation>
    </message>
    <message>
        <source>Its position is lost, and programs that use it fail.</source>
        <translation>Die Position geht verloren, und Programme, die sie verwenden, schlagen fehl.</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>Deleting %1 of &quot;%2&quot;</source>
        <translation>%1 von „%2“ wird gelöscht</translation>
    </message>
    <message>
        <source>All its %1 positions are lost, and programs that use them fail.</source>
        <translation>Alle %1 Positionen gehen verloren, und Programme, die sie verwenden, schlagen fehl.</translation>
    </message>
    <message>
        <source>It is persistent: the controller forgets what programs have stored in it, too.</source>
        <translation>Er ist persistent: Die Steuerung vergisst auch, was Programme in ihm gespeichert haben.</translation>
    </message>
    <message>
        <source>Delete the point &quot;%1&quot;?</source>
        <translation>Punkt „%1“ löschen?</translation>
    </message>
    <message>
        <source>Deleting &quot;%1&quot;</source>
        <translation>„%1“ wird gelöscht</translation>
    </message>
</context>
<context>
    <name>ProgramPage</name>
    <message>
        <source>Program</source>
        <translation>Programm</translation>
    </message>
    <message>
        <source>New program</source>
        <translation>Neues Programm</translation>
    </message>
    <message>
        <source>Send to the controller</source>
        <translation>An Steuerung senden</translation>
    </message>
    <message>
        <source>Insert</source>
        <translation>Einfügen</translation>
    </message>
    <message>
        <source>Properties</source>
        <translation>Werte</translation>
    </message>
    <message>
        <source>Edit text</source>
        <translation>Ändern</translation>
    </message>
    <message>
        <source>Move the line up</source>
        <translation>Zeile nach oben</translation>
    </message>
    <message>
        <source>Move the line down</source>
        <translation>Zeile nach unten</translation>
    </message>
    <message>
        <source>Delete line</source>
        <translation>Zeile löschen</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Rückgängig</translation>
    </message>
    <message>
        <source>A program is running, with the text that it had at its start. What you change here can be sent when it has stopped.</source>
        <translation>Ein Programm läuft, mit dem Text, den es beim Start hatte. Was hier geändert wird, kann gesendet werden, wenn es steht.</translation>
    </message>
    <message>
        <source>No project is open</source>
        <translation>Kein Projekt ist geöffnet</translation>
    </message>
    <message>
        <source>Project %1; files whose names no program can have: %2</source>
        <translation>Projekt %1; Dateien mit Namen, die kein Programm haben kann: %2</translation>
    </message>
    <message>
        <source>Project %1, lines: %2</source>
        <translation>Projekt %1, Zeilen: %2</translation>
    </message>
    <message>
        <source>Open one on the page &quot;Projects&quot;.</source>
        <translation>Auf der Seite „Projekte“ eines öffnen.</translation>
    </message>
    <message>
        <source>No programs yet</source>
        <translation>Noch keine Programme</translation>
    </message>
    <message>
        <source>It can&apos;t be shown</source>
        <translation>Es kann nicht gezeigt werden</translation>
    </message>
    <message>
        <source>The program is empty</source>
        <translation>Das Programm ist leer</translation>
    </message>
    <message>
        <source>&quot;Insert&quot; makes its first line.</source>
        <translation>„Einfügen“ macht die erste Zeile.</translation>
    </message>
    <message>
        <source>No link to the controller</source>
        <translation>Keine Verbindung zur Steuerung</translation>
    </message>
    <message>
        <source>Same text on the controller</source>
        <translation>Gleicher Text in der Steuerung</translation>
    </message>
    <message>
        <source>Other text on the controller</source>
        <translation>Anderer Text in der Steuerung</translation>
    </message>
    <message>
        <source>Not on the controller yet</source>
        <translation>Noch nicht in der Steuerung</translation>
    </message>
    <message>
        <source>A program has at most 1 MiB, and nothing was changed: divide it.</source>
        <translation>Ein Programm hat höchstens 1 MiB, und nichts wurde geändert: es aufteilen.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was changed elsewhere meanwhile, and your change was not made: look at it, and change it again.</source>
        <translation>„%1“ wurde inzwischen anderswo geändert, und die eigene Änderung unterblieb: ansehen und erneut ändern.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be saved, and your change was not made: check the space on the panel&apos;s disk, and try again.</source>
        <translation>„%1“ konnte nicht gespeichert werden, und die Änderung unterblieb: den Platz auf dem Datenträger des Bedienpanels prüfen und erneut versuchen.</translation>
    </message>
    <message>
        <source>Another program or line is shown meanwhile, and nothing was changed: choose the line, and try again.</source>
        <translation>Inzwischen wird ein anderes Programm oder eine andere Zeile gezeigt, und nichts wurde geändert: die Zeile wählen und erneut versuchen.</translation>
    </message>
    <message>
        <source>Create</source>
        <translation>Anlegen</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Delete the program &quot;%1&quot;?</source>
        <translation>Das Programm „%1“ löschen?</translation>
    </message>
    <message>
        <source>Its text on this panel is lost. What was sent to the controller stays there.</source>
        <translation>Sein Text auf diesem Bedienpanel geht verloren. Was an die Steuerung gesendet wurde, bleibt dort.</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is deleted on this panel.</source>
        <translation>„%1“ ist auf diesem Bedienpanel gelöscht.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be deleted, and stays: check the panel&apos;s disk.</source>
        <translation>„%1“ konnte nicht gelöscht werden und bleibt: den Datenträger des Bedienpanels prüfen.</translation>
    </message>
    <message>
        <source>Sending &quot;%1&quot;</source>
        <translation>„%1“ wird gesendet</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was not sent: the link is lost, or a program runs. Send it again later.</source>
        <translation>„%1“ wurde nicht gesendet: die Verbindung fehlt, oder ein Programm läuft. Später erneut senden.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is on the controller.</source>
        <translation>„%1“ ist in der Steuerung.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is saved on this panel, but could not be sent: check the network to the controller, then send it again.</source>
        <translation>„%1“ ist auf diesem Bedienpanel gespeichert, konnte aber nicht gesendet werden: das Netz zur Steuerung prüfen, dann erneut senden.</translation>
    </message>
    <message>
        <source>Write a line</source>
        <translation>Zeile schreiben</translation>
    </message>
    <message>
        <source>The properties of &quot;%1&quot; can&apos;t be shown: %2. Its text can be edited.</source>
        <translation>Die Eigenschaften von „%1“ können nicht gezeigt werden: %2. Der Text kann geändert werden.</translation>
    </message>
    <message>
        <source>The line is longer than %1 characters, and can&apos;t be edited here: it can be deleted, and written anew.</source>
        <translation>Die Zeile ist länger als %1 Zeichen und kann hier nicht geändert werden: sie kann gelöscht und neu geschrieben werden.</translation>
    </message>
    <message>
        <source>Edit line %1</source>
        <translation>Zeile %1 ändern</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Übernehmen</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Neu</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Umbenennen</translation>
    </message>
    <message>
        <source>&quot;New&quot; makes the first one of this project.</source>
        <translation>„Neu“ legt das erste dieses Projekts an.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is changed, but the panel&apos;s disk did not confirm it: check the disk before the panel is switched off.</source>
        <translation>„%1“ ist geändert, aber der Datenträger des Bedienpanels hat es nicht bestätigt: den Datenträger prüfen, bevor das Bedienpanel ausgeschaltet wird.</translation>
    </message>
    <message>
        <source>Another project is open meanwhile, and nothing was changed: try again.</source>
        <translation>Inzwischen ist ein anderes Projekt geöffnet, und nichts wurde geändert: erneut versuchen.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be made: check the space on the panel&apos;s disk.</source>
        <translation>„%1“ konnte nicht angelegt werden: den Platz auf dem Datenträger des Bedienpanels prüfen.</translation>
    </message>
    <message>
        <source>Rename program</source>
        <translation>Programm umbenennen</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be renamed, and keeps its name: check the panel&apos;s disk.</source>
        <translation>„%1“ konnte nicht umbenannt werden und behält seinen Namen: den Datenträger des Bedienpanels prüfen.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is now &quot;%2&quot; on this panel. What was sent to the controller stays there under the old name.</source>
        <translation>„%1“ heißt auf diesem Bedienpanel jetzt „%2“. Was an die Steuerung gesendet wurde, bleibt dort unter dem alten Namen.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was changed elsewhere meanwhile, and was not sent: look at it, and send it again.</source>
        <translation>„%1“ wurde inzwischen anderswo geändert und nicht gesendet: ansehen und erneut senden.</translation>
    </message>
</context>
<context>
    <name>ProjectsPage</name>
    <message>
        <source>Open</source>
        <translation>Öffnen</translation>
    </message>
    <message>
        <source>Loads at start</source>
        <translation>Lädt beim Start</translation>
    </message>
    <message>
        <source>No robot is known yet: these projects belong to none.</source>
        <translation>Noch ist kein Roboter bekannt: Diese Projekte gehören zu keinem.</translation>
    </message>
    <message>
        <source>Robot %1, projects: %2</source>
        <translation>Roboter %1, Projekte: %2</translation>
    </message>
    <message>
        <source>Projects</source>
        <translation>Projekte</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Zustand</translation>
    </message>
    <message>
        <source>Created</source>
        <translation>Angelegt</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Entfernen</translation>
    </message>
    <message>
        <source>New project</source>
        <translation>Neues Projekt</translation>
    </message>
    <message>
        <source>No projects yet</source>
        <translation>Noch keine Projekte</translation>
    </message>
    <message>
        <source>&quot;New project&quot; makes the first one for this robot.</source>
        <translation>„Neues Projekt“ legt das erste für diesen Roboter an.</translation>
    </message>
    <message>
        <source>Create</source>
        <translation>Anlegen</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Beschreibung</translation>
    </message>
    <message>
        <source>Open it at once</source>
        <translation>Sofort öffnen</translation>
    </message>
    <message>
        <source>Creating the project</source>
        <translation>Projekt wird angelegt</translation>
    </message>
    <message>
        <source>The project &quot;%1&quot; is there.</source>
        <translation>Das Projekt „%1“ ist angelegt.</translation>
    </message>
    <message>
        <source>Opening the project</source>
        <translation>Projekt wird geöffnet</translation>
    </message>
    <message>
        <source>The project &quot;%1&quot; is open.</source>
        <translation>Das Projekt „%1“ ist geöffnet.</translation>
    </message>
    <message>
        <source>All its points, variables and programs are deleted on this panel. They can&apos;t be brought back.</source>
        <translation>Alle seine Punkte, Variablen und Programme werden auf diesem Bedienpanel gelöscht. Sie können nicht wiederhergestellt werden.</translation>
    </message>
    <message>
        <source>It is the open project: none is open afterwards.</source>
        <translation>Es ist das geöffnete Projekt: Danach ist keines geöffnet.</translation>
    </message>
    <message>
        <source>The controller loads it when it starts: it will load none afterwards.</source>
        <translation>Die Steuerung lädt es beim Start: Danach lädt sie keines.</translation>
    </message>
    <message>
        <source>Remove the project &quot;%1&quot;?</source>
        <translation>Projekt „%1“ entfernen?</translation>
    </message>
    <message>
        <source>Removing the project</source>
        <translation>Projekt wird entfernt</translation>
    </message>
    <message>
        <source>The project &quot;%1&quot; is removed.</source>
        <translation>Das Projekt „%1“ ist entfernt.</translation>
    </message>
    <message>
        <source>A program of the open project is running: stop it first, on the page &quot;Run&quot;.</source>
        <translation>Ein Programm des geöffneten Projekts läuft: zuerst auf der Seite „Betrieb“ stoppen.</translation>
    </message>
    <message>
        <source>Open</source>
        <comment>state of a project</comment>
        <translation>Geöffnet</translation>
    </message>
</context>
<context>
    <name>PropertyDialog</name>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Übernehmen</translation>
    </message>
    <message>
        <source>its plugin has no widget for that</source>
        <translation>das Plugin hat dafür kein Eingabefeld</translation>
    </message>
    <message>
        <source>It can&apos;t be applied yet: correct what is entered.</source>
        <translation>Noch nicht übernehmbar: die Eingaben berichtigen.</translation>
    </message>
    <message>
        <source>The line stays as it is: %1. Edit its text instead.</source>
        <translation>Die Zeile bleibt, wie sie ist: %1. Stattdessen ihren Text ändern.</translation>
    </message>
</context>
<context>
    <name>RunPage</name>
    <message>
        <source>No project is open</source>
        <translation>Kein Projekt ist geöffnet</translation>
    </message>
    <message>
        <source>Run</source>
        <translation>Betrieb</translation>
    </message>
    <message>
        <source>Program</source>
        <translation>Programm</translation>
    </message>
    <message>
        <source>Operating mode</source>
        <translation>Betriebsart</translation>
    </message>
    <message>
        <source>Motors</source>
        <translation>Motoren</translation>
    </message>
    <message>
        <source>  Start</source>
        <translation>  Start</translation>
    </message>
    <message>
        <source>Start filter</source>
        <translation>Startfilter</translation>
    </message>
    <message>
        <source>Stop filter</source>
        <translation>Stoppfilter</translation>
    </message>
    <message>
        <source>No link to the controller</source>
        <translation>Keine Verbindung zur Steuerung</translation>
    </message>
    <message>
        <source>A plugin has to agree to each start</source>
        <translation>Ein Plugin muss jedem Start zustimmen</translation>
    </message>
    <message>
        <source>No plugin holds back a start</source>
        <translation>Kein Plugin hält einen Start zurück</translation>
    </message>
    <message>
        <source>A plugin has its say before each stop</source>
        <translation>Ein Plugin entscheidet vor jedem Stopp mit</translation>
    </message>
    <message>
        <source>No plugin holds back a stop</source>
        <translation>Kein Plugin hält einen Stopp zurück</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>Unbekannt</translation>
    </message>
    <message>
        <source>The robot may be moving</source>
        <translation>Der Roboter kann in Bewegung sein</translation>
    </message>
    <message>
        <source>Running</source>
        <translation>Läuft</translation>
    </message>
    <message>
        <source>Keep clear of the robot</source>
        <translation>Abstand zum Roboter halten</translation>
    </message>
    <message>
        <source>Stopped</source>
        <translation>Gestoppt</translation>
    </message>
    <message>
        <source>No program is running</source>
        <translation>Kein Programm läuft</translation>
    </message>
    <message>
        <source>Starting</source>
        <translation>Startet</translation>
    </message>
    <message>
        <source>A plugin has to agree: %1 s</source>
        <translation>Ein Plugin muss zustimmen: %1 s</translation>
    </message>
    <message>
        <source>Stopping</source>
        <translation>Stoppt</translation>
    </message>
    <message>
        <source>It runs until a plugin agrees: %1 s</source>
        <translation>Läuft, bis ein Plugin zustimmt: %1 s</translation>
    </message>
    <message>
        <source>Manual</source>
        <translation>Manuell</translation>
    </message>
    <message>
        <source>By hand, at low speed</source>
        <translation>Von Hand, langsam</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>Automatik</translation>
    </message>
    <message>
        <source>Programs run at full speed</source>
        <translation>Programme laufen in vollem Tempo</translation>
    </message>
    <message>
        <source>Go automatic</source>
        <translation>Auf Automatik</translation>
    </message>
    <message>
        <source>Go manual</source>
        <translation>Auf Manuell</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Ein</translation>
    </message>
    <message>
        <source>The robot can move</source>
        <translation>Der Roboter kann sich bewegen</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Aus</translation>
    </message>
    <message>
        <source>The robot stands still</source>
        <translation>Der Roboter steht still</translation>
    </message>
    <message>
        <source>Switch off</source>
        <translation>Ausschalten</translation>
    </message>
    <message>
        <source>Switch on</source>
        <translation>Einschalten</translation>
    </message>
    <message>
        <source>Nothing can be started or stopped here until the controller is connected. If the robot moves, use the emergency stop.</source>
        <translation>Hier kann nichts gestartet oder gestoppt werden, bis die Steuerung verbunden ist. Bewegt sich der Roboter, Not-Halt drücken.</translation>
    </message>
    <message>
        <source>A second stop does not wait for the plugin.</source>
        <translation>Ein zweiter Stopp wartet nicht auf das Plugin.</translation>
    </message>
    <message>
        <source>Stop takes the start back as well.</source>
        <translation>Stopp nimmt auch den Start zurück.</translation>
    </message>
    <message>
        <source>The program is running.</source>
        <translation>Das Programm läuft.</translation>
    </message>
    <message>
        <source>The motors are off: switch them on before the program is started.</source>
        <translation>Die Motoren sind aus: vor dem Programmstart einschalten.</translation>
    </message>
    <message>
        <source>  Stop now</source>
        <translation>  Sofort stoppen</translation>
    </message>
    <message>
        <source>  Stop</source>
        <translation>  Stopp</translation>
    </message>
    <message>
        <source>The program has not started: the message at the bottom of the panel says why, if the controller refused. Put that right and start again.</source>
        <translation>Das Programm ist nicht gestartet: Die Meldung unten im Bedienpanel nennt den Grund, falls die Steuerung abgelehnt hat. Das beheben und erneut starten.</translation>
    </message>
    <message>
        <source>Switching the operating mode</source>
        <translation>Betriebsart wird umgeschaltet</translation>
    </message>
    <message>
        <source>The controller did not change the mode: its mode switch or a running program may hold it. Check both and try again.</source>
        <translation>Die Steuerung hat die Betriebsart nicht umgeschaltet: Ihr Betriebsartenschalter oder ein laufendes Programm kann das verhindern. Beides prüfen und erneut versuchen.</translation>
    </message>
    <message>
        <source>Switching the motors on</source>
        <translation>Motoren werden eingeschaltet</translation>
    </message>
    <message>
        <source>Switching the motors off</source>
        <translation>Motoren werden ausgeschaltet</translation>
    </message>
    <message>
        <source>The controller did not switch the motors: an emergency stop or an open door may hold them. Check both and try again.</source>
        <translation>Die Steuerung hat die Motoren nicht geschaltet: Ein Not-Halt oder eine offene Tür kann das verhindern. Beides prüfen und erneut versuchen.</translation>
    </message>
</context>
<context>
    <name>SignalsPage</name>
    <message>
        <source>On</source>
        <translation>Ein</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Aus</translation>
    </message>
    <message>
        <source>Set …</source>
        <translation>Setzen …</translation>
    </message>
    <message>
        <source>Switch off</source>
        <translation>Ausschalten</translation>
    </message>
    <message>
        <source>Switch on</source>
        <translation>Einschalten</translation>
    </message>
    <message>
        <source>System</source>
        <translation>System</translation>
    </message>
    <message>
        <source>System: %1</source>
        <translation>System: %1</translation>
    </message>
    <message>
        <source>A number is needed, with a point before its decimals: 12.5</source>
        <translation>Eine Zahl eingeben, mit Punkt vor den Nachkommastellen: 12.5</translation>
    </message>
    <message>
        <source>A group of bits takes whole numbers from 0 on.</source>
        <translation>Eine Gruppe von Bits nimmt ganze Zahlen ab 0 an.</translation>
    </message>
    <message>
        <source>Signals</source>
        <translation>Signale</translation>
    </message>
    <message>
        <source>Simulate inputs</source>
        <translation>Eingänge simulieren</translation>
    </message>
    <message>
        <source>Registers</source>
        <translation>Register</translation>
    </message>
    <message>
        <source>Find</source>
        <translation>Suchen</translation>
    </message>
    <message>
        <source>Signal</source>
        <translation>Signal</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Wert</translation>
    </message>
    <message>
        <source>Use</source>
        <translation>Verwendung</translation>
    </message>
    <message>
        <source>Register</source>
        <translation>Register</translation>
    </message>
    <message>
        <source>Values</source>
        <translation>Werte</translation>
    </message>
    <message>
        <source>No signal fits</source>
        <translation>Kein passendes Signal</translation>
    </message>
    <message>
        <source>Neither a name nor a label has these letters.</source>
        <translation>Weder ein Name noch eine Bezeichnung enthält diese Buchstaben.</translation>
    </message>
    <message>
        <source>No signals of this type</source>
        <translation>Keine Signale dieser Art</translation>
    </message>
    <message>
        <source>The controller has none.</source>
        <translation>Die Steuerung hat keine.</translation>
    </message>
    <message>
        <source>They appear when the controller is connected.</source>
        <translation>Sie erscheinen, sobald die Steuerung verbunden ist.</translation>
    </message>
    <message>
        <source>%1: no link to the controller, values are not known</source>
        <translation>%1: keine Verbindung zur Steuerung, Werte unbekannt</translation>
    </message>
    <message>
        <source>No registers</source>
        <translation>Keine Register</translation>
    </message>
    <message>
        <source>No register fits</source>
        <translation>Kein passendes Register</translation>
    </message>
    <message>
        <source>The controller has none that are shown here.</source>
        <translation>Die Steuerung hat keine, die hier angezeigt werden.</translation>
    </message>
    <message>
        <source>Registers: what the robot shares with other controllers</source>
        <translation>Register: was der Roboter mit anderen Steuerungen teilt</translation>
    </message>
    <message>
        <source>Registers: no link to the controller, values are not known</source>
        <translation>Register: keine Verbindung zur Steuerung, Werte unbekannt</translation>
    </message>
    <message>
        <source>End simulation</source>
        <translation>Simulation beenden</translation>
    </message>
    <message>
        <source>Inputs are simulated: programs do not see the real cell. They can be set in this table.</source>
        <translation>Eingänge sind simuliert: Programme sehen nicht die echte Zelle. Sie können in dieser Tabelle gesetzt werden.</translation>
    </message>
    <message>
        <source>Set %1</source>
        <translation>%1 setzen</translation>
    </message>
    <message>
        <source>Set</source>
        <translation>Setzen</translation>
    </message>
    <message>
        <source>Simulate the inputs?</source>
        <translation>Eingänge simulieren?</translation>
    </message>
    <message>
        <source>Programs then see the values that are set here, not those of the cell. Nobody notices a real button or sensor until the simulation ends.</source>
        <translation>Programme sehen dann die hier gesetzten Werte, nicht die der Zelle. Niemand bemerkt einen echten Taster oder Sensor, bis die Simulation endet.</translation>
    </message>
    <message>
        <source>Simulate</source>
        <translation>Simulieren</translation>
    </message>
    <message>
        <source>The controller could not be asked: wait until it is connected and try again.</source>
        <translation>Die Steuerung konnte nicht gefragt werden: warten, bis sie verbunden ist, und erneut versuchen.</translation>
    </message>
</context>
<context>
    <name>SystemPage</name>
    <message>
        <source>Plugins</source>
        <translation>Plugins</translation>
    </message>
    <message>
        <source>Versions</source>
        <translation>Versionen</translation>
    </message>
    <message>
        <source>Plugin library</source>
        <translation>Plugin-Bibliothek</translation>
    </message>
    <message>
        <source>Panel</source>
        <translation>Bedienpanel</translation>
    </message>
    <message>
        <source>Event bus</source>
        <translation>Ereignisbus</translation>
    </message>
    <message>
        <source>Events published</source>
        <translation>Veröffentlichte Ereignisse</translation>
    </message>
    <message>
        <source>Handlers called</source>
        <translation>Aufgerufene Handler</translation>
    </message>
    <message>
        <source>Subscriptions</source>
        <translation>Abonnements</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Sprache</translation>
    </message>
</context>
<context>
    <name>VariablesPage</name>
    <message>
        <source>Persistent</source>
        <translation>Persistent</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Wert</translation>
    </message>
    <message>
        <source>Variables</source>
        <translation>Variablen</translation>
    </message>
    <message>
        <source>Variable</source>
        <translation>Variable</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Typ</translation>
    </message>
    <message>
        <source>Kept</source>
        <translation>Dauerhaft</translation>
    </message>
    <message>
        <source>On the controller</source>
        <translation>In der Steuerung</translation>
    </message>
    <message>
        <source>Save again</source>
        <translation>Erneut speichern</translation>
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
        <source>New variable</source>
        <translation>Neue Variable</translation>
    </message>
    <message>
        <source>No variables yet</source>
        <translation>Noch keine Variablen</translation>
    </message>
    <message>
        <source>&quot;New variable&quot; makes the first one of this project.</source>
        <translation>„Neue Variable“ legt die erste dieses Projekts an.</translation>
    </message>
    <message>
        <source>They can be made when the controller is connected.</source>
        <translation>Sie können angelegt werden, sobald die Steuerung verbunden ist.</translation>
    </message>
    <message>
        <source>This controller does not report values while programs run: its version would have to be 2.3, 3.0, 3.1 or 3.2.</source>
        <translation>Diese Steuerung meldet keine Werte, während Programme laufen: Dazu müsste sie Version 2.3, 3.0, 3.1 oder 3.2 haben.</translation>
    </message>
    <message>
        <source>No link to the controller: nothing can be changed</source>
        <translation>Keine Verbindung zur Steuerung: Ändern nicht möglich</translation>
    </message>
    <message>
        <source>No project is open: these variables belong to none</source>
        <translation>Kein Projekt ist geöffnet: Diese Variablen gehören zu keinem</translation>
    </message>
    <message>
        <source>Project %1, variables: %2</source>
        <translation>Projekt %1, Variablen: %2</translation>
    </message>
    <message>
        <source>Create</source>
        <translation>Anlegen</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Persistent: programs keep its changes</source>
        <translation>Persistent: Programme behalten ihre Änderungen</translation>
    </message>
    <message>
        <source>The variable needs a name.</source>
        <translation>Die Variable braucht einen Namen.</translation>
    </message>
    <message>
        <source>There is a variable &quot;%1&quot; already: choose another name, or change that one.</source>
        <translation>Es gibt schon eine Variable „%1“: einen anderen Namen wählen oder jene ändern.</translation>
    </message>
    <message>
        <source>Change &quot;%1&quot;</source>
        <translation>„%1“ ändern</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <source>Delete the variable &quot;%1&quot;?</source>
        <translation>Variable „%1“ löschen?</translation>
    </message>
    <message>
        <source>Its value is lost, and programs that use it fail.</source>
        <translation>Der Wert geht verloren, und Programme, die sie verwenden, schlagen fehl.</translation>
    </message>
    <message>
        <source>Creating &quot;%1&quot;</source>
        <translation>„%1“ wird angelegt</translation>
    </message>
    <message>
        <source>The variable &quot;%1&quot; is there.</source>
        <translation>Die Variable „%1“ ist angelegt.</translation>
    </message>
    <message>
        <source>The controller did not take &quot;%1&quot;, and it was not made: the name may be in use there, or the value may not fit. Choose another one.</source>
        <translation>Die Steuerung hat „%1“ nicht angenommen, und sie wurde nicht angelegt: Der Name kann dort vergeben sein, oder der Wert passt nicht. Einen anderen wählen.</translation>
    </message>
    <message>
        <source>Changing &quot;%1&quot;</source>
        <translation>„%1“ wird geändert</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has its new value.</source>
        <translation>„%1“ hat den neuen Wert.</translation>
    </message>
    <message>
        <source>The variable &quot;%1&quot; is no longer in the project, and nothing was changed: choose another one.</source>
        <translation>Die Variable „%1“ ist nicht mehr im Projekt, und nichts wurde geändert: eine andere wählen.</translation>
    </message>
    <message>
        <source>The controller did not take the new value, and &quot;%1&quot; has its old one: a program may use it, or the value may not fit. Check both, and try again.</source>
        <translation>Die Steuerung hat den neuen Wert nicht angenommen, und „%1“ behält den alten: Ein Programm verwendet sie vielleicht, oder der Wert passt nicht. Beides prüfen und erneut versuchen.</translation>
    </message>
    <message>
        <source>Deleting &quot;%1&quot;</source>
        <translation>„%1“ wird gelöscht</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is deleted.</source>
        <translation>„%1“ ist gelöscht.</translation>
    </message>
    <message>
        <source>The controller did not let go of &quot;%1&quot;, and it stays: a program may use it. Stop the program, check the link, and try again.</source>
        <translation>Die Steuerung hat „%1“ nicht freigegeben, der Eintrag bleibt: Ein Programm verwendet ihn vielleicht. Das Programm stoppen, die Verbindung prüfen und erneut versuchen.</translation>
    </message>
    <message>
        <source>There is no variable left to save: the next one that is made saves all.</source>
        <translation>Keine Variable ist mehr zu speichern: Die nächste, die angelegt wird, speichert alle.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is changed on the panel and in the running controller, but not saved there: check the network to it and the space on the panel&apos;s disk, then save again.</source>
        <translation>„%1“ ist auf dem Bedienpanel und in der laufenden Steuerung geändert, dort aber nicht gespeichert: das Netzwerk zur Steuerung und den Platz auf dem Datenträger des Bedienpanels prüfen, dann erneut speichern.</translation>
    </message>
    <message>
        <source>There is no link to the controller, and nothing was changed: try again when it is connected.</source>
        <translation>Es gibt keine Verbindung zur Steuerung, und nichts wurde geändert: erneut versuchen, sobald sie verbunden ist.</translation>
    </message>
</context>
<context>
    <name>brisa::ControllerManager</name>
    <message>
        <source>The controller calls its robot &quot;%1&quot;, which can&apos;t name a directory: its projects are kept as those of an unknown robot. Give the robot a plain name.</source>
        <translation>Die Steuerung nennt ihren Roboter „%1“, was kein Verzeichnisname sein kann: Seine Projekte werden wie die eines unbekannten Roboters geführt. Dem Roboter einen einfachen Namen geben.</translation>
    </message>
</context>
<context>
    <name>brisa::LogBanner</name>
    <message>
        <source>Messages</source>
        <translation>Meldungen</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Leeren</translation>
    </message>
    <message>
        <source>No messages</source>
        <translation>Keine Meldungen</translation>
    </message>
    <message>
        <source>Hide the messages</source>
        <translation>Meldungen ausblenden</translation>
    </message>
    <message>
        <source>Show all messages</source>
        <translation>Alle Meldungen anzeigen</translation>
    </message>
</context>
<context>
    <name>brisa::ModalCounter</name>
    <message>
        <source>Open windows: %1</source>
        <translation>Offene Fenster: %1</translation>
    </message>
</context>
<context>
    <name>kest::ExpandSideBar</name>
    <message>
        <source>Choose a page</source>
        <translation>Seite wählen</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
</context>
<context>
    <name>kest::ModuleRunner</name>
    <message>
        <source>No module is registered under the name &quot;%1&quot;.</source>
        <translation>Unter dem Namen „%1“ ist kein Modul registriert.</translation>
    </message>
    <message>
        <source>The maker of &quot;%1&quot; returned no module.</source>
        <translation>Der Erzeuger von „%1“ lieferte kein Modul.</translation>
    </message>
    <message>
        <source>an unknown exception</source>
        <translation>eine unbekannte Ausnahme</translation>
    </message>
    <message>
        <source>&quot;%1&quot; failed in %2: %3</source>
        <translation>„%1“ ist in %2 fehlgeschlagen: %3</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be made: %2</source>
        <translation>„%1“ konnte nicht erzeugt werden: %2</translation>
    </message>
</context>
<context>
    <name>kit::Form</name>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
</context>
<context>
    <name>kit::NoticeLine</name>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
</context>
<context>
    <name>kit::Page</name>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Please wait: the panel takes no other command meanwhile.</source>
        <translation>Bitte warten: Das Bedienpanel nimmt solange keinen anderen Befehl an.</translation>
    </message>
</context>
<context>
    <name>navigation</name>
    <message>
        <source>Home</source>
        <translation>Hauptseite</translation>
    </message>
    <message>
        <source>Plugins</source>
        <translation>Plugins</translation>
    </message>
    <message>
        <source>Points</source>
        <translation>Punkte</translation>
    </message>
    <message>
        <source>Projects</source>
        <translation>Projekte</translation>
    </message>
    <message>
        <source>Run</source>
        <translation>Betrieb</translation>
    </message>
    <message>
        <source>Signals</source>
        <translation>Signale</translation>
    </message>
    <message>
        <source>Overview</source>
        <translation>Übersicht</translation>
    </message>
    <message>
        <source>Variables</source>
        <translation>Variablen</translation>
    </message>
    <message>
        <source>Program</source>
        <translation>Programm</translation>
    </message>
</context>
<context>
    <name>panel</name>
    <message>
        <source>The stand-in %1 can&apos;t be used: copying files may ask for a password. Choose another runtime directory, without &quot;:&quot; in its name, where programs can be written and run.</source>
        <translation>Das Ersatzprogramm %1 kann nicht verwendet werden: Beim Kopieren von Dateien kann ein Passwort verlangt werden. Ein anderes Laufzeitverzeichnis ohne „:“ im Namen wählen, in dem Programme geschrieben und ausgeführt werden können.</translation>
    </message>
    <message>
        <source>rsync is not installed: nothing can be copied to the controller. Install rsync and start the panel again.</source>
        <translation>rsync ist nicht installiert: Nichts kann zur Steuerung kopiert werden. rsync installieren und das Bedienpanel neu starten.</translation>
    </message>
    <message>
        <source>%1 can&apos;t be made a link to %2: no directory can be copied to the controller. Remove what is there, or check its permissions.</source>
        <translation>%1 kann kein Verweis auf %2 werden: Kein Verzeichnis kann zur Steuerung kopiert werden. Entfernen, was dort ist, oder dessen Rechte prüfen.</translation>
    </message>
    <message>
        <source>The operator panel.</source>
        <translation>Das Bedienpanel.</translation>
    </message>
    <message>
        <source>Loads the plugins of DIR; may be given several times.</source>
        <translation>Lädt die Plugins aus DIR; mehrfach erlaubt.</translation>
    </message>
    <message>
        <source>Works in DIR: its log, workspace and tools.</source>
        <translation>Arbeitet in DIR: Protokoll, Arbeitsbereich und Werkzeuge.</translation>
    </message>
    <message>
        <source>Reads and keeps the settings in FILE.</source>
        <translation>Liest und hält die Einstellungen in FILE.</translation>
    </message>
    <message>
        <source>Ends after SECONDS.</source>
        <translation>Endet nach SECONDS Sekunden.</translation>
    </message>
    <message>
        <source>Saves the window as PNG to FILE just before the end.</source>
        <translation>Speichert das Fenster kurz vor dem Ende als PNG in FILE.</translation>
    </message>
    <message>
        <source>Shows the page KEY of the centre area first.</source>
        <translation>Zeigt zuerst die Seite KEY der Mitte.</translation>
    </message>
    <message>
        <source>Speaks CODE: %1.</source>
        <translation>Spricht die Sprache CODE: %1.</translation>
    </message>
    <message>
        <source>Covers the whole screen.</source>
        <translation>Füllt den ganzen Bildschirm.</translation>
    </message>
    <message>
        <source>Lets the plugin NAME, which took the panel down, take part again.</source>
        <translation>Lässt das Plugin NAME, das das Bedienpanel zum Absturz brachte, wieder teilnehmen.</translation>
    </message>
    <message>
        <source>Unknown argument &quot;%1&quot;.</source>
        <translation>Unbekanntes Argument „%1“.</translation>
    </message>
    <message>
        <source>--for needs a number of seconds, not &quot;%1&quot;.</source>
        <translation>--for braucht eine Zahl von Sekunden, nicht „%1“.</translation>
    </message>
    <message>
        <source>--language needs one of %1, not &quot;%2&quot;.</source>
        <translation>--language braucht eine von %1, nicht „%2“.</translation>
    </message>
    <message>
        <source>%1 is not a library: put the file there that the plugin&apos;s build made, or remove this one.</source>
        <translation>%1 ist keine Bibliothek: die vom Plugin gebaute Datei dorthin legen oder diese entfernen.</translation>
    </message>
    <message>
        <source>%1 is a program, not a plugin library: put the library there, or remove it.</source>
        <translation>%1 ist ein Programm, keine Plugin-Bibliothek: die Bibliothek dorthin legen oder es entfernen.</translation>
    </message>
    <message>
        <source>%1 is cut short: copy the whole file to the panel again.</source>
        <translation>%1 ist abgeschnitten: die ganze Datei erneut auf das Bedienpanel kopieren.</translation>
    </message>
    <message>
        <source>%1 was built for %2 and this panel is %3: build it for %3.</source>
        <translation>%1 wurde für %2 gebaut, und dieses Bedienpanel ist %3: für %3 bauen.</translation>
    </message>
    <message>
        <source>%1 has no plugin tag, so nobody knows what it was built against: build it with zeplet_add_plugin().</source>
        <translation>%1 hat keinen Plugin-Vermerk, niemand weiß also, wofür es gebaut wurde: mit zeplet_add_plugin() bauen.</translation>
    </message>
    <message>
        <source>%1 has a name in its tag that is not a plain word: name it with letters, digits, &quot;_&quot; and &quot;-&quot; in zeplet_add_plugin().</source>
        <translation>%1 hat im Vermerk einen Namen, der kein einfaches Wort ist: in zeplet_add_plugin() nur Buchstaben, Ziffern, „_“ und „-“ verwenden.</translation>
    </message>
    <message>
        <source>%1 was built against version %2 of the plugin library and this panel has %3: build it against %3.</source>
        <translation>%1 wurde für Version %2 der Plugin-Bibliothek gebaut, und dieses Bedienpanel hat %3: für %3 bauen.</translation>
    </message>
    <message>
        <source>%1 was built against Qt %2 and this panel has Qt %3: build it against Qt %3.</source>
        <translation>%1 wurde für Qt %2 gebaut, und dieses Bedienpanel hat Qt %3: für Qt %3 bauen.</translation>
    </message>
    <message>
        <source>%1 was built with the compiler interface %2 and this panel uses %3: build it with %3.</source>
        <translation>%1 wurde mit der Compiler-Schnittstelle %2 gebaut, und dieses Bedienpanel verwendet %3: mit %3 bauen.</translation>
    </message>
    <message>
        <source>%1 is not a plain file: put a plugin library there, or remove it.</source>
        <translation>%1 ist keine gewöhnliche Datei: eine Plugin-Bibliothek dorthin legen oder es entfernen.</translation>
    </message>
    <message>
        <source>%1 can&apos;t be read (%2): check the file&apos;s permissions.</source>
        <translation>%1 kann nicht gelesen werden (%2): die Rechte der Datei prüfen.</translation>
    </message>
    <message>
        <source>%1 has a damaged plugin tag: build it again with zeplet_add_plugin().</source>
        <translation>%1 hat einen beschädigten Plugin-Vermerk: mit zeplet_add_plugin() neu bauen.</translation>
    </message>
    <message>
        <source>%1 uses %2, which no library of this panel has: link the library that defines it.</source>
        <translation>%1 verwendet %2, was keine Bibliothek dieses Bedienpanels hat: die Bibliothek einbinden, die es definiert.</translation>
    </message>
    <message>
        <source>%1 needs the library %2, which this panel lacks: install %2.</source>
        <translation>%1 braucht die Bibliothek %2, die diesem Bedienpanel fehlt: %2 installieren.</translation>
    </message>
    <message>
        <source>%1 needs %2, which is newer than this panel&apos;s: build it on the panel&apos;s system.</source>
        <translation>%1 braucht %2, das neuer ist als das dieses Bedienpanels: auf dem System des Bedienpanels bauen.</translation>
    </message>
    <message>
        <source>%1 can&apos;t be opened (%2): build it again for this panel.</source>
        <translation>%1 kann nicht geöffnet werden (%2): für dieses Bedienpanel neu bauen.</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>Unbekannt</translation>
    </message>
    <message>
        <source>The controller does not say</source>
        <translation>Die Steuerung meldet es nicht</translation>
    </message>
    <message>
        <source>No link to the controller</source>
        <translation>Keine Verbindung zur Steuerung</translation>
    </message>
    <message>
        <source>No link</source>
        <translation>Keine Verbindung</translation>
    </message>
    <message>
        <source>Service hub only</source>
        <translation>Nur Service-Hub</translation>
    </message>
    <message>
        <source>Looking for the controller</source>
        <translation>Steuerung wird gesucht</translation>
    </message>
    <message>
        <source>In part</source>
        <translation>Teilweise</translation>
    </message>
    <message>
        <source>The service hub is missing</source>
        <translation>Der Service-Hub fehlt</translation>
    </message>
    <message>
        <source>Connected</source>
        <translation>Verbunden</translation>
    </message>
    <message>
        <source>Controller and service hub</source>
        <translation>Steuerung und Service-Hub</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Ein</translation>
    </message>
    <message>
        <source>The robot can move</source>
        <translation>Der Roboter kann sich bewegen</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Aus</translation>
    </message>
    <message>
        <source>The motors are without power</source>
        <translation>Die Motoren sind stromlos</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>Automatik</translation>
    </message>
    <message>
        <source>Programs run by themselves</source>
        <translation>Programme laufen selbsttätig</translation>
    </message>
    <message>
        <source>Manual</source>
        <translation>Manuell</translation>
    </message>
    <message>
        <source>Moves by hand, at low speed</source>
        <translation>Fährt von Hand, langsam</translation>
    </message>
    <message>
        <source>Running</source>
        <translation>Läuft</translation>
    </message>
    <message>
        <source>A program is running</source>
        <translation>Ein Programm läuft</translation>
    </message>
    <message>
        <source>Stopped</source>
        <translation>Gestoppt</translation>
    </message>
    <message>
        <source>No program is running</source>
        <translation>Kein Programm läuft</translation>
    </message>
    <message>
        <source>Level %1</source>
        <translation>Stufe %1</translation>
    </message>
    <message>
        <source>Says what may be changed</source>
        <translation>Legt fest, was geändert werden darf</translation>
    </message>
    <message>
        <source>Shows the page that was shown last, else that of --page.</source>
        <translation>Zeigt die zuletzt gezeigte Seite, sonst die von --page.</translation>
    </message>
    <message>
        <source>Shows nothing, starts the plugins without a controller, prints what became of each library (NAME, STATE, FILE, SENTENCE with tabs between) and ends. A plugin that takes it down here is named by the next --list.</source>
        <translation>Zeigt nichts, startet die Plugins ohne Steuerung, gibt aus, was aus jeder Bibliothek wurde (NAME, STATE, FILE, SENTENCE mit Tabulatoren dazwischen), und endet. Ein Plugin, das es dabei zum Absturz bringt, nennt das nächste --list.</translation>
    </message>
    <message>
        <source>throws while it is loaded (%1)</source>
        <translation>löst beim Laden eine Ausnahme aus (%1)</translation>
    </message>
    <message>
        <source>does not come back while it is loaded (within %1 s)</source>
        <translation>kehrt beim Laden nicht zurück (innerhalb von %1 s)</translation>
    </message>
    <message>
        <source>crashes while it is loaded (%1)</source>
        <translation>stürzt beim Laden ab (%1)</translation>
    </message>
    <message>
        <source>ends the program while it is loaded</source>
        <translation>beendet beim Laden das Programm</translation>
    </message>
    <message>
        <source>%1 %2: correct what its static initialisers do.</source>
        <translation>%1 %2: korrigieren, was die statischen Initialisierungen tun.</translation>
    </message>
    <message>
        <source>%1 can&apos;t be written: %2</source>
        <translation>%1 kann nicht geschrieben werden: %2</translation>
    </message>
    <message>
        <source>%1 is a directory: put the plugin library itself there, or remove it.</source>
        <translation>%1 ist ein Verzeichnis: die Plugin-Bibliothek selbst dorthin legen oder es entfernen.</translation>
    </message>
</context>
<context>
    <name>panel::HomePage</name>
    <message>
        <source>%1 of %2</source>
        <translation>%1 von %2</translation>
    </message>
    <message>
        <source>The page &quot;Overview&quot; says why</source>
        <translation>Die Seite „Übersicht“ nennt den Grund</translation>
    </message>
    <message>
        <source>All plugins are running</source>
        <translation>Alle Plugins laufen</translation>
    </message>
    <message>
        <source>Nothing can be commanded until the controller is found.</source>
        <translation>Kein Befehl möglich, bis die Steuerung gefunden ist.</translation>
    </message>
    <message>
        <source>A program is running: keep clear of the robot.</source>
        <translation>Ein Programm läuft: Abstand zum Roboter halten.</translation>
    </message>
    <message>
        <source>The motors are on: the robot is ready to move.</source>
        <translation>Die Motoren sind ein: Der Roboter ist bereit zur Bewegung.</translation>
    </message>
    <message>
        <source>The motors are off: the robot stands still.</source>
        <translation>Die Motoren sind aus: Der Roboter steht still.</translation>
    </message>
    <message>
        <source>Connection</source>
        <translation>Verbindung</translation>
    </message>
    <message>
        <source>Motor power</source>
        <translation>Motoren</translation>
    </message>
    <message>
        <source>Operating mode</source>
        <translation>Betriebsart</translation>
    </message>
    <message>
        <source>Program</source>
        <translation>Programm</translation>
    </message>
    <message>
        <source>User</source>
        <translation>Benutzer</translation>
    </message>
    <message>
        <source>Plugins</source>
        <translation>Plugins</translation>
    </message>
    <message>
        <source>Robot type</source>
        <translation>Robotertyp</translation>
    </message>
    <message>
        <source>Identity</source>
        <translation>Kennung</translation>
    </message>
    <message>
        <source>Controller version</source>
        <translation>Version der Steuerung</translation>
    </message>
    <message>
        <source>Controller address</source>
        <translation>Adresse der Steuerung</translation>
    </message>
    <message>
        <source>Robot</source>
        <translation>Roboter</translation>
    </message>
</context>
<context>
    <name>panel::LastPage</name>
    <message>
        <source>%1 can&apos;t be written.</source>
        <translation>%1 kann nicht geschrieben werden.</translation>
    </message>
</context>
<context>
    <name>panel::MainWindow</name>
    <message>
        <source>Robot panel</source>
        <translation>Bedienpanel</translation>
    </message>
</context>
<context>
    <name>panel::PanelApplication</name>
    <message>
        <source>A plugin failed while %1 handled an event: %2</source>
        <translation>Ein Plugin ist fehlgeschlagen, während %1 ein Ereignis verarbeitete: %2</translation>
    </message>
    <message>
        <source>an unknown exception</source>
        <translation>eine unbekannte Ausnahme</translation>
    </message>
</context>
<context>
    <name>panel::PanelSession</name>
    <message>
        <source>The panel is running.</source>
        <translation>Das Bedienpanel läuft.</translation>
    </message>
    <message>
        <source>The runtime directory %1 can&apos;t be used: check its permissions.</source>
        <translation>Das Laufzeitverzeichnis %1 kann nicht verwendet werden: seine Rechte prüfen.</translation>
    </message>
    <message>
        <source>There is no page &quot;%1&quot;.</source>
        <translation>Es gibt keine Seite „%1“.</translation>
    </message>
    <message>
        <source>The panel has ended.</source>
        <translation>Das Bedienpanel ist beendet.</translation>
    </message>
    <message>
        <source>The picture %1 can&apos;t be saved.</source>
        <translation>Das Bild %1 kann nicht gespeichert werden.</translation>
    </message>
</context>
<context>
    <name>panel::PluginLoader</name>
    <message>
        <source>%1; correct the plugin and start the panel again.</source>
        <translation>%1; das Plugin korrigieren und das Bedienpanel neu starten.</translation>
    </message>
    <message>
        <source>The plugin directory %1 can&apos;t be read: create it, correct its permissions, or start the panel with another one.</source>
        <translation>Das Plugin-Verzeichnis %1 kann nicht gelesen werden: anlegen, seine Rechte korrigieren oder das Bedienpanel mit einem anderen starten.</translation>
    </message>
    <message>
        <source>%1 was left out because it took the panel down (%2): replace it with a corrected one, or try it again.</source>
        <translation>%1 wurde ausgelassen, weil es das Bedienpanel zum Absturz brachte (%2): durch eine korrigierte Fassung ersetzen oder erneut versuchen.</translation>
    </message>
    <message>
        <source>%1 registers the name &quot;%2&quot;, which is taken: remove it, or give it a name of its own.</source>
        <translation>%1 registriert den Namen „%2“, der vergeben ist: entfernen oder ihm einen eigenen Namen geben.</translation>
    </message>
    <message>
        <source>%1 registers no plugin named &quot;%2&quot;: call zepletFactory().regist() in a static initialiser of the library.</source>
        <translation>%1 registriert kein Plugin namens „%2“: zepletFactory().regist() in einer statischen Initialisierung der Bibliothek aufrufen.</translation>
    </message>
    <message>
        <source>%1 registers &quot;%2&quot; but is tagged &quot;%3&quot;: use one name for both.</source>
        <translation>%1 registriert „%2“, der Vermerk nennt aber „%3“: für beide denselben Namen verwenden.</translation>
    </message>
    <message>
        <source>%1 takes part again when the panel starts next.</source>
        <translation>%1 nimmt beim nächsten Start des Bedienpanels wieder teil.</translation>
    </message>
    <message>
        <source>%1 registers the name &quot;%2&quot;, which %3 has already: remove one of the two, or give one a name of its own.</source>
        <translation>%1 registriert den Namen „%2“, den %3 schon hat: eines von beiden entfernen oder einem einen eigenen Namen geben.</translation>
    </message>
</context>
<context>
    <name>panel::RunKeys</name>
    <message>
        <source>Start</source>
        <translation>Start</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Stopp</translation>
    </message>
</context>
<context>
    <name>panel::WaitStrip</name>
    <message>
        <source>Stop now</source>
        <translation>Sofort stoppen</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Waiting for a plugin to stop the program</source>
        <translation>Ein Plugin muss dem Programmstopp noch zustimmen</translation>
    </message>
    <message>
        <source>Waiting for a plugin to start the program</source>
        <translation>Ein Plugin muss dem Programmstart noch zustimmen</translation>
    </message>
    <message>
        <source>Keep running</source>
        <translation>Weiterlaufen</translation>
    </message>
</context>
<context>
    <name>points</name>
    <message>
        <source>&quot;%1&quot; is changed on this panel but not on the controller: check the link and the panel&apos;s disk, then save again.</source>
        <translation>„%1“ ist auf diesem Bedienpanel geändert, aber nicht in der Steuerung: die Verbindung und den Datenträger des Bedienpanels prüfen, dann erneut speichern.</translation>
    </message>
    <message>
        <source>There is no link to the controller, and nothing was changed: try again when it is connected.</source>
        <translation>Es gibt keine Verbindung zur Steuerung, und nichts wurde geändert: erneut versuchen, sobald sie verbunden ist.</translation>
    </message>
    <message>
        <source>The point &quot;%1&quot; is no longer in the project, and nothing was changed: choose another one.</source>
        <translation>Der Punkt „%1“ ist nicht mehr im Projekt, und nichts wurde geändert: einen anderen wählen.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is changed on this panel, but the controller did not take it, or it could not be saved: check the link and the panel&apos;s disk, then save again.</source>
        <translation>„%1“ ist auf diesem Bedienpanel geändert, aber die Steuerung hat es nicht angenommen, oder es konnte nicht gespeichert werden: die Verbindung und den Datenträger des Bedienpanels prüfen, dann erneut speichern.</translation>
    </message>
    <message>
        <source>The controller did not tell where the robot is, and nothing was taught to &quot;%1&quot;: check that it knows the tool and the work object, and try again.</source>
        <translation>Die Steuerung hat nicht gemeldet, wo der Roboter ist, und „%1“ wurde nicht geteacht: prüfen, ob sie das Werkzeug und das Werkobjekt kennt, und erneut versuchen.</translation>
    </message>
    <message>
        <source>There is a point &quot;%1&quot; already: choose another name, or teach that one.</source>
        <translation>Es gibt schon einen Punkt „%1“: einen anderen Namen wählen oder jenen teachen.</translation>
    </message>
    <message>
        <source>The point &quot;%1&quot; could not be made: choose another name.</source>
        <translation>Der Punkt „%1“ konnte nicht angelegt werden: einen anderen Namen wählen.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is taught.</source>
        <translation>„%1“ ist geteacht.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has its new values.</source>
        <translation>„%1“ hat die neuen Werte.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a copy of the first element: teach it its own position.</source>
        <translation>„%1“ ist eine Kopie des ersten Elements: die eigene Position teachen.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is deleted.</source>
        <translation>„%1“ ist gelöscht.</translation>
    </message>
    <message>
        <source>The controller did not let go of &quot;%1&quot;, and it stays: a program may use it. Stop the program, check the link, and try again.</source>
        <translation>Die Steuerung hat „%1“ nicht freigegeben, der Eintrag bleibt: Ein Programm verwendet ihn vielleicht. Das Programm stoppen, die Verbindung prüfen und erneut versuchen.</translation>
    </message>
    <message>
        <source>There is no link to the controller: save again when it is connected.</source>
        <translation>Es gibt keine Verbindung zur Steuerung: erneut speichern, sobald sie verbunden ist.</translation>
    </message>
    <message>
        <source>All points are saved on the panel and on the controller.</source>
        <translation>Alle Punkte sind auf dem Bedienpanel und in der Steuerung gespeichert.</translation>
    </message>
    <message>
        <source>The points could not be saved: check the network to the controller and the space on the panel&apos;s disk, then save again.</source>
        <translation>Die Punkte konnten nicht gespeichert werden: das Netzwerk zur Steuerung und den Platz auf dem Datenträger des Bedienpanels prüfen, dann erneut speichern.</translation>
    </message>
    <message>
        <source>The point needs a name.</source>
        <translation>Der Punkt braucht einen Namen.</translation>
    </message>
    <message>
        <source>Cartesian: the tool&apos;s pose</source>
        <translation>Kartesisch: die Pose des Werkzeugs</translation>
    </message>
    <message>
        <source>Joint: each axis&apos; angle</source>
        <translation>Achsen: der Winkel jeder Achse</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>Art</translation>
    </message>
    <message>
        <source>Tool</source>
        <translation>Werkzeug</translation>
    </message>
    <message>
        <source>Work object</source>
        <translation>Werkobjekt</translation>
    </message>
    <message>
        <source>Axis J%1 goes from %2° to %3°: choose an angle between them.</source>
        <translation>Achse J%1 reicht von %2° bis %3°: einen Winkel dazwischen wählen.</translation>
    </message>
    <message>
        <source>Teach a new point</source>
        <translation>Neuen Punkt teachen</translation>
    </message>
    <message>
        <source>Teach</source>
        <translation>Teachen</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Persistent: programs keep its changes</source>
        <translation>Persistent: Programme behalten ihre Änderungen</translation>
    </message>
    <message>
        <source>Teach &quot;%1&quot;</source>
        <translation>„%1“ teachen</translation>
    </message>
    <message>
        <source>Its old position is replaced by the one where the robot is now.</source>
        <translation>Die alte Position wird durch die ersetzt, an der der Roboter jetzt ist.</translation>
    </message>
    <message>
        <source>Values of &quot;%1&quot;</source>
        <translation>Werte von „%1“</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <source>%1: a number is needed, with a point before its decimals: 12.5</source>
        <translation>%1: eine Zahl eingeben, mit Punkt vor den Nachkommastellen: 12.5</translation>
    </message>
    <message>
        <source>Add an element to &quot;%1&quot;</source>
        <translation>Ein Element zu „%1“ hinzufügen</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Hinzufügen</translation>
    </message>
    <message>
        <source>First index</source>
        <translation>Erster Index</translation>
    </message>
    <message>
        <source>Second index</source>
        <translation>Zweiter Index</translation>
    </message>
    <message>
        <source>Third index</source>
        <translation>Dritter Index</translation>
    </message>
    <message>
        <source>An index is a whole number from 0 to 9999.</source>
        <translation>Ein Index ist eine ganze Zahl von 0 bis 9999.</translation>
    </message>
    <message>
        <source>The element %1 is there already: choose another index.</source>
        <translation>Das Element %1 gibt es schon: einen anderen Index wählen.</translation>
    </message>
</context>
<context>
    <name>program</name>
    <message>
        <source>its plugin gave an empty function</source>
        <translation>das Plugin gab eine leere Funktion</translation>
    </message>
    <message>
        <source>its plugin failed with &quot;%1&quot;</source>
        <translation>das Plugin scheiterte mit „%1“</translation>
    </message>
    <message>
        <source>its plugin failed without saying why</source>
        <translation>das Plugin scheiterte ohne Begründung</translation>
    </message>
    <message>
        <source>it is a link to another place</source>
        <translation>sie ist ein Verweis an eine andere Stelle</translation>
    </message>
    <message>
        <source>it is no longer there</source>
        <translation>sie ist nicht mehr da</translation>
    </message>
    <message>
        <source>it is no plain file</source>
        <translation>sie ist keine gewöhnliche Datei</translation>
    </message>
    <message>
        <source>it is larger than 1 MiB</source>
        <translation>sie ist größer als 1 MiB</translation>
    </message>
    <message>
        <source>The program needs a name.</source>
        <translation>Das Programm braucht einen Namen.</translation>
    </message>
    <message>
        <source>A name has at most %1 characters.</source>
        <translation>Ein Name hat höchstens %1 Zeichen.</translation>
    </message>
    <message>
        <source>A name begins with a letter or a digit and has letters, digits, spaces and the signs _ - . only.</source>
        <translation>Ein Name beginnt mit einem Buchstaben oder einer Ziffer und hat nur Buchstaben, Ziffern, Leerzeichen und die Zeichen _ - .</translation>
    </message>
    <message>
        <source>There is a program &quot;%1&quot; already: choose another name.</source>
        <translation>Es gibt schon ein Programm „%1“: einen anderen Namen wählen.</translation>
    </message>
    <message>
        <source>it is no text in UTF-8</source>
        <translation>sie ist kein Text in UTF-8</translation>
    </message>
    <message>
        <source>&quot;%1&quot; can&apos;t be shown: %2. The file stays as it is; put a text file in its place, or choose another program.</source>
        <translation>„%1“ kann nicht gezeigt werden: %2. Die Datei bleibt, wie sie ist; eine Textdatei an ihre Stelle legen oder ein anderes Programm wählen.</translation>
    </message>
    <message>
        <source>A line has at most %1 characters: shorten it.</source>
        <translation>Eine Zeile hat höchstens %1 Zeichen: sie kürzen.</translation>
    </message>
    <message>
        <source>It holds characters that are no text: leave them out.</source>
        <translation>Sie enthält Zeichen, die kein Text sind: sie weglassen.</translation>
    </message>
    <message>
        <source>One instruction has at most %1 lines.</source>
        <translation>Eine Anweisung hat höchstens %1 Zeilen.</translation>
    </message>
    <message>
        <source>There is no text: fill in what is missing.</source>
        <translation>Es fehlt der Text: das Fehlende eintragen.</translation>
    </message>
</context>
<context>
    <name>projects</name>
    <message>
        <source>No project can be named &quot;%1&quot;: the name is reserved or has characters that a file&apos;s name can&apos;t have. Choose another name.</source>
        <translation>Kein Projekt kann „%1“ heißen: Der Name ist reserviert oder hat Zeichen, die ein Dateiname nicht haben kann. Einen anderen Namen wählen.</translation>
    </message>
    <message>
        <source>There is a project &quot;%1&quot; already: choose another name, or open that one.</source>
        <translation>Es gibt schon ein Projekt „%1“: einen anderen Namen wählen oder jenes öffnen.</translation>
    </message>
    <message>
        <source>The project &quot;%1&quot; could not be written to the panel&apos;s disk: the name may be too long, the disk full or write-protected. Choose a shorter name, or have the disk checked, and try again.</source>
        <translation>Das Projekt „%1“ konnte nicht auf den Datenträger des Bedienpanels geschrieben werden: Der Name kann zu lang sein, der Datenträger voll oder schreibgeschützt. Einen kürzeren Namen wählen oder den Datenträger prüfen lassen und erneut versuchen.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; can&apos;t be opened, because no project has such a name: choose one of the list.</source>
        <translation>„%1“ kann nicht geöffnet werden, weil kein Projekt so heißt: eines der Liste wählen.</translation>
    </message>
    <message>
        <source>The project &quot;%1&quot; is no longer on the panel&apos;s disk: choose another one of the list, or create it anew.</source>
        <translation>Das Projekt „%1“ ist nicht mehr auf dem Datenträger des Bedienpanels: ein anderes der Liste wählen oder es neu anlegen.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; can&apos;t be removed, because the panel needs it itself: choose a project of the list.</source>
        <translation>„%1“ kann nicht entfernt werden, weil das Bedienpanel es selbst braucht: ein Projekt der Liste wählen.</translation>
    </message>
    <message>
        <source>The project &quot;%1&quot; was no longer on the panel&apos;s disk: nothing is left to be removed.</source>
        <translation>Das Projekt „%1“ war nicht mehr auf dem Datenträger des Bedienpanels: Nichts ist mehr zu entfernen.</translation>
    </message>
    <message>
        <source>The project &quot;%1&quot; could not be removed as a whole, because its directory is write-protected or in use: have its permissions checked and try again.</source>
        <translation>Das Projekt „%1“ konnte nicht ganz entfernt werden, weil sein Verzeichnis schreibgeschützt oder in Gebrauch ist: dessen Rechte prüfen lassen und erneut versuchen.</translation>
    </message>
    <message>
        <source>The project needs a name.</source>
        <translation>Das Projekt braucht einen Namen.</translation>
    </message>
    <message>
        <source>A name is no path: leave out &quot;/&quot;, and dots that stand alone.</source>
        <translation>Ein Name ist kein Pfad: „/“ und alleinstehende Punkte weglassen.</translation>
    </message>
</context>
<context>
    <name>qo::kivra::PhysicalButtonRegistry</name>
    <message>
        <source>The key &quot;%1&quot; failed: %2</source>
        <translation>Die Taste „%1“ ist fehlgeschlagen: %2</translation>
    </message>
    <message>
        <source>an unknown exception</source>
        <translation>eine unbekannte Ausnahme</translation>
    </message>
</context>
<context>
    <name>rpc::Client</name>
    <message>
        <source>no answer in time</source>
        <translation>keine rechtzeitige Antwort</translation>
    </message>
    <message>
        <source>the link was lost</source>
        <translation>die Verbindung ging verloren</translation>
    </message>
    <message>
        <source>no reason was given</source>
        <translation>kein Grund wurde genannt</translation>
    </message>
</context>
<context>
    <name>signals</name>
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
</context>
<context>
    <name>tavik</name>
    <message>
        <source>it is a symbolic link</source>
        <translation>sie ist ein symbolischer Verweis</translation>
    </message>
    <message>
        <source>it is no plain file</source>
        <translation>sie ist keine gewöhnliche Datei</translation>
    </message>
    <message>
        <source>it is larger than %1 MiB</source>
        <translation>sie ist größer als %1 MiB</translation>
    </message>
    <message>
        <source>it holds no JSON object</source>
        <translation>sie enthält kein JSON-Objekt</translation>
    </message>
    <message>
        <source>its &quot;%1&quot; is of a wrong kind</source>
        <translation>„%1“ ist von falscher Art</translation>
    </message>
    <message>
        <source>an element is no object</source>
        <translation>ein Element ist kein Objekt</translation>
    </message>
    <message>
        <source>it is no object</source>
        <translation>er ist kein Objekt</translation>
    </message>
    <message>
        <source>record %1 of &quot;%2&quot;: %3</source>
        <translation>Eintrag %1 von „%2“: %3</translation>
    </message>
    <message>
        <source>it has no version</source>
        <translation>sie hat keine Version</translation>
    </message>
    <message>
        <source>its version is &quot;%1&quot;, this panel reads &quot;%2&quot;</source>
        <translation>ihre Version ist „%1“, dieses Bedienpanel liest „%2“</translation>
    </message>
    <message>
        <source>it has no list &quot;%1&quot;</source>
        <translation>sie hat keine Liste „%1“</translation>
    </message>
    <message>
        <source>it is no JSON (%1)</source>
        <translation>sie ist kein JSON (%1)</translation>
    </message>
    <message>
        <source>If the robot moves, use the emergency stop.</source>
        <translation>Bewegt sich der Roboter, Not-Halt drücken.</translation>
    </message>
    <message>
        <source>Stop the program, then try again.</source>
        <translation>Das Programm stoppen, dann erneut versuchen.</translation>
    </message>
    <message>
        <source>The start of the program</source>
        <translation>Der Start des Programms</translation>
    </message>
    <message>
        <source>Remove the cause, then press Start again.</source>
        <translation>Die Ursache beheben, dann erneut Start drücken.</translation>
    </message>
    <message>
        <source>The stop of the program</source>
        <translation>Der Stopp des Programms</translation>
    </message>
    <message>
        <source>Switching the motors on</source>
        <translation>Das Einschalten der Motoren</translation>
    </message>
    <message>
        <source>Remove the cause, then switch them on again.</source>
        <translation>Die Ursache beheben, dann erneut einschalten.</translation>
    </message>
    <message>
        <source>Switching the motors off</source>
        <translation>Das Ausschalten der Motoren</translation>
    </message>
    <message>
        <source>The change to manual mode</source>
        <translation>Der Wechsel zu Manuell</translation>
    </message>
    <message>
        <source>The change to automatic mode</source>
        <translation>Der Wechsel zu Automatik</translation>
    </message>
    <message>
        <source>Setting the signal</source>
        <translation>Das Setzen des Signals</translation>
    </message>
    <message>
        <source>Check the signal&apos;s name and type; an input can be set only while inputs are simulated.</source>
        <translation>Name und Art des Signals prüfen; ein Eingang kann nur gesetzt werden, solange Eingänge simuliert sind.</translation>
    </message>
    <message>
        <source>Switching the simulation of inputs</source>
        <translation>Das Umschalten der Simulation von Eingängen</translation>
    </message>
    <message>
        <source>Opening the project in the controller</source>
        <translation>Das Öffnen des Projekts in der Steuerung</translation>
    </message>
    <message>
        <source>The controller still works with the project before. Remove the cause, then open the project again.</source>
        <translation>Die Steuerung arbeitet noch mit dem vorigen Projekt. Die Ursache beheben, dann das Projekt erneut öffnen.</translation>
    </message>
    <message>
        <source>Switch the motors on, then press Start again.</source>
        <translation>Die Motoren einschalten, dann erneut Start drücken.</translation>
    </message>
    <message>
        <source>%1 was refused: %2. %3</source>
        <translation>%1 wurde abgelehnt: %2. %3</translation>
    </message>
    <message>
        <source>%1 was not confirmed: %2. It may have been carried out: look at the robot before you try again.</source>
        <translation>%1 wurde nicht bestätigt: %2. Es kann trotzdem ausgeführt sein: nach dem Roboter sehen, bevor Sie es erneut versuchen.</translation>
    </message>
</context>
<context>
    <name>tavik::HotUpdates</name>
    <message>
        <source>code %1</source>
        <translation>Code %1</translation>
    </message>
    <message>
        <source>The controller did not take over the change to point %1: %2. Programs use it as it was until they are started again.</source>
        <translation>Die Steuerung hat die Änderung an Punkt %1 nicht übernommen: %2. Programme verwenden ihn wie bisher, bis sie neu gestartet werden.</translation>
    </message>
    <message>
        <source>too many requests wait</source>
        <translation>zu viele Anfragen warten</translation>
    </message>
</context>
<context>
    <name>tavik::OpenProject</name>
    <message>
        <source>The file stays as it is, and the next save keeps a copy of it beside it: mend the file, then open the project again.</source>
        <translation>Die Datei bleibt, wie sie ist, und das nächste Speichern behält eine Kopie daneben: die Datei in Ordnung bringen, dann das Projekt erneut öffnen.</translation>
    </message>
    <message>
        <source>Nothing can be saved there: put a plain file in its place, then open the project again.</source>
        <translation>Nichts kann dort gespeichert werden: eine gewöhnliche Datei an ihre Stelle setzen, dann das Projekt erneut öffnen.</translation>
    </message>
    <message>
        <source>%1 can&apos;t be used: %2. The project is open without what it holds. %3</source>
        <translation>%1 kann nicht verwendet werden: %2. Das Projekt ist ohne ihren Inhalt geöffnet. %3</translation>
    </message>
    <message>
        <source>The project &quot;%1&quot; can&apos;t be opened: its name is no plain name.</source>
        <translation>Das Projekt „%1“ kann nicht geöffnet werden: Sein Name ist kein einfacher Name.</translation>
    </message>
    <message>
        <source>%1 was closed: the panel now works in %2. What was saved stays in %3.</source>
        <translation>%1 wurde geschlossen: Das Bedienpanel arbeitet jetzt in %2. Was gespeichert wurde, bleibt in %3.</translation>
    </message>
    <message>
        <source>What is in no project</source>
        <translation>Was zu keinem Projekt gehört,</translation>
    </message>
    <message>
        <source>The project %1</source>
        <translation>Das Projekt %1</translation>
    </message>
</context>
<context>
    <name>tavik::RunControl</name>
    <message>
        <source>The program can&apos;t be started: there is no link to the controller. Check its power and the network.</source>
        <translation>Das Programm kann nicht gestartet werden: Es gibt keine Verbindung zur Steuerung. Ihre Stromversorgung und das Netzwerk prüfen.</translation>
    </message>
    <message>
        <source>The program can&apos;t be started while a stop waits for a plugin. Press Stop again to stop at once, or cancel the stop.</source>
        <translation>Das Programm kann nicht gestartet werden, solange ein Stopp auf ein Plugin wartet. Erneut Stopp drücken, um sofort zu stoppen, oder den Stopp abbrechen.</translation>
    </message>
    <message>
        <source>The program is running already.</source>
        <translation>Das Programm läuft schon.</translation>
    </message>
    <message>
        <source>The program can&apos;t be stopped from here: there is no link to the controller. If the robot moves, use the emergency stop.</source>
        <translation>Das Programm kann von hier nicht gestoppt werden: Es gibt keine Verbindung zur Steuerung. Bewegt sich der Roboter, Not-Halt drücken.</translation>
    </message>
    <message>
        <source>The stop was cancelled: the program runs on.</source>
        <translation>Der Stopp wurde abgebrochen: Das Programm läuft weiter.</translation>
    </message>
    <message>
        <source>A plugin can&apos;t start the program: there is no link to the controller.</source>
        <translation>Ein Plugin kann das Programm nicht starten: Es gibt keine Verbindung zur Steuerung.</translation>
    </message>
    <message>
        <source>A plugin wanted to start the program while a stop waits: it was not started.</source>
        <translation>Ein Plugin wollte das Programm starten, während ein Stopp wartet: Es wurde nicht gestartet.</translation>
    </message>
    <message>
        <source>A plugin answered a start that had been given up: the program was not started. Press Start to start it.</source>
        <translation>Ein Plugin antwortete auf einen Start, der schon aufgegeben war: Das Programm wurde nicht gestartet. Start drücken, um es zu starten.</translation>
    </message>
    <message>
        <source>A plugin can&apos;t stop the program: there is no link to the controller.</source>
        <translation>Ein Plugin kann das Programm nicht stoppen: Es gibt keine Verbindung zur Steuerung.</translation>
    </message>
    <message>
        <source>A plugin did not let the program start.</source>
        <translation>Ein Plugin ließ das Programm nicht starten.</translation>
    </message>
    <message>
        <source>The plugin that was asked no longer answers: the program was not started. Press Start again.</source>
        <translation>Das gefragte Plugin antwortet nicht mehr: Das Programm wurde nicht gestartet. Erneut Start drücken.</translation>
    </message>
    <message>
        <source>The link to the controller was lost: the start was given up. Press Start again when the controller is back.</source>
        <translation>Die Verbindung zur Steuerung ging verloren: Der Start wurde aufgegeben. Erneut Start drücken, sobald die Steuerung wieder da ist.</translation>
    </message>
    <message>
        <source>The link to the controller was lost while a stop waited: the program may run on. If the robot moves, use the emergency stop.</source>
        <translation>Die Verbindung zur Steuerung ging verloren, während ein Stopp wartete: Das Programm läuft vielleicht weiter. Bewegt sich der Roboter, Not-Halt drücken.</translation>
    </message>
    <message>
        <source>too many requests wait</source>
        <translation>zu viele Anfragen warten</translation>
    </message>
</context>
<context>
    <name>tavik::SelectedFrames</name>
    <message>
        <source>The controller did not confirm that moves are meant in %1: %2. Select it again before you move the robot to a point.</source>
        <translation>Die Steuerung hat nicht bestätigt, dass Fahrten in %1 gemeint sind: %2. Erneut auswählen, bevor der Roboter zu einem Punkt fährt.</translation>
    </message>
    <message>
        <source>too many requests wait</source>
        <translation>zu viele Anfragen warten</translation>
    </message>
    <message>
        <source>%1 is selected in place of %2, which was that of another robot.</source>
        <translation>%1 ist anstelle von %2 ausgewählt, das zu einem anderen Roboter gehörte.</translation>
    </message>
</context>
<context>
    <name>tavik::Workspace</name>
    <message>
        <source>The setting &quot;workspace&quot; is empty: the panel keeps %1. Enter a directory for the projects to change it.</source>
        <translation>Die Einstellung „workspace“ ist leer: Das Bedienpanel behält %1. Ein Verzeichnis für die Projekte eintragen, um das zu ändern.</translation>
    </message>
</context>
<context>
    <name>variables</name>
    <message>
        <source>Whole number</source>
        <translation>Ganzzahl</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>Zahl</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>Flag</source>
        <translation>Wahrheitswert</translation>
    </message>
    <message>
        <source>Connection</source>
        <translation>Verbindung</translation>
    </message>
    <message>
        <source>Other</source>
        <translation>Andere</translation>
    </message>
    <message>
        <source>true</source>
        <translation>wahr</translation>
    </message>
    <message>
        <source>false</source>
        <translation>falsch</translation>
    </message>
    <message>
        <source>A whole number is needed, from -2147483648 to 2147483647.</source>
        <translation>Eine ganze Zahl eingeben, von -2147483648 bis 2147483647.</translation>
    </message>
    <message>
        <source>A number is needed, with a point before its decimals: 12.5</source>
        <translation>Eine Zahl eingeben, mit Punkt vor den Nachkommastellen: 12.5</translation>
    </message>
</context>
<context>
    <name>zeplet::InterfaceManager</name>
    <message>
        <source>System IO cannot be simulated.</source>
        <translation>System-E/A können nicht simuliert werden.</translation>
    </message>
    <message>
        <source>DI Signal can only be changed in simulation mode.</source>
        <translation>Ein DI-Signal kann nur im Simulationsbetrieb geändert werden.</translation>
    </message>
    <message>
        <source>Auto generate at: %1</source>
        <translation>Automatisch erzeugt am: %1</translation>
    </message>
</context>
<context>
    <name>zeplet::SyncTool</name>
    <message>
        <source>Synchronization failed</source>
        <translation>Synchronisierung fehlgeschlagen</translation>
    </message>
    <message>
        <source>Cannot create path: %1</source>
        <translation>Der Pfad kann nicht angelegt werden: %1</translation>
    </message>
    <message>
        <source>Synchronizing...</source>
        <translation>Wird synchronisiert …</translation>
    </message>
</context>
</TS>
