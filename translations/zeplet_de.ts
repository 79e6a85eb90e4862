<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>ArmFeed</name>
    <message>
        <source>error %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ArmView</name>
    <message>
        <source>3D</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Side</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Top</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No link to the controller</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The robot&apos;s pose appears when it is connected.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The controller does not tell the arm&apos;s pose.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Moving</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>MoveBar</name>
    <message>
        <source>Move</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>STOP</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 mm/s</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Straight</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>By joints</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Moving to %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Move to %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>To its first element. Keep clear of the robot.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Keep clear of the robot.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No link. If the robot moves, use the emergency stop.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stop ends the move. Keep clear of the robot.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose a point of the table.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A joint target can&apos;t be moved to: teach it as a pose.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>It has no position yet: teach it first.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A program is running: stop it first.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The motors are off: switch them on, on the page &quot;Run&quot;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Move with &quot;%1&quot; in &quot;%2&quot;?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; was taught with that tool in that work object. They get selected, in place of &quot;%2&quot; and &quot;%3&quot;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select and move</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; has no arm configuration, which a move by joints needs: teach it again, or move straight.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; has no position any more: choose another point, or teach it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no link, and the robot was not told to stop: if it moves, use the emergency stop.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The robot was told to stop.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The link was lost on the way to &quot;%1&quot;: the robot may still be moving. Use the emergency stop, and check where it is.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The robot did not move: it is at &quot;%1&quot; already, or the controller waits for something. Check its messages.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The robot was stopped on its way to &quot;%1&quot;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The robot is at &quot;%1&quot;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The robot did not get to &quot;%1&quot;: %2. Put that right, or choose another way, tool or point, and move again.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PluginRow</name>
    <message>
        <source>Running</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Left out</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Faulty</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Not loaded</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1, built against library %2 and Qt %3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Try again</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PointsPage</name>
    <message>
        <source>Entered by hand</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Not taught yet</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Several tools or work objects</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Joint</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cartesian</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Persistent</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No position yet: teach it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Points</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save again</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Teach a new point</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Saving the points</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Point</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Kind</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Elements</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add element</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete element</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Teach here</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Edit values</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete point</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No points yet</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Drive the robot to a place and teach it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>They can be taught when the controller is connected.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No link to the controller: nothing can be taught or changed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No project is open: these points belong to none</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Project %1, points: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>joint targets: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>in other work objects: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>too far away: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Not drawn: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Teaching &quot;%1&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Saving &quot;%1&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Adding %1 to &quot;%2&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete %1 of &quot;%2&quot;?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Its position is lost, and programs that use it fail.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Deleting %1 of &quot;%2&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All its %1 positions are lost, and programs that use them fail.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>It is persistent: the controller forgets what programs have stored in it, too.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete the point &quot;%1&quot;?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Deleting &quot;%1&quot;</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ProjectsPage</name>
    <message>
        <source>Open</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Loads at start</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No robot is known yet: these projects belong to none.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Robot %1, projects: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Projects</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>State</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Created</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>New project</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No projects yet</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;New project&quot; makes the first one for this robot.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Create</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Description</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open it at once</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Creating the project</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The project &quot;%1&quot; is there.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Opening the project</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The project &quot;%1&quot; is open.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All its points, variables and programs are deleted on this panel. They can&apos;t be brought back.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>It is the open project: none is open afterwards.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The controller loads it when it starts: it will load none afterwards.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove the project &quot;%1&quot;?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Removing the project</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The project &quot;%1&quot; is removed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A program of the open project is running: stop it first, on the page &quot;Run&quot;.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>RunPage</name>
    <message>
        <source>No project is open</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Run</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Program</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Operating mode</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Motors</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>  Start</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Start filter</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stop filter</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No link to the controller</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A plugin has to agree to each start</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No plugin holds back a start</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A plugin has its say before each stop</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No plugin holds back a stop</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The robot may be moving</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Running</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Keep clear of the robot</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stopped</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No program is running</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Starting</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A plugin has to agree: %1 s</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stopping</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>It runs until a plugin agrees: %1 s</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Manual</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>By hand, at low speed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Programs run at full speed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Go automatic</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Go manual</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>On</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The robot can move</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Off</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The robot stands still</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Switch off</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Switch on</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing can be started or stopped here until the controller is connected. If the robot moves, use the emergency stop.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A second stop does not wait for the plugin.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stop takes the start back as well.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The program is running.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The motors are off: switch them on before the program is started.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>  Stop now</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>  Stop</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The program has not started: the message at the bottom of the panel says why, if the controller refused. Put that right and start again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Switching the operating mode</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The controller did not change the mode: its mode switch or a running program may hold it. Check both and try again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Switching the motors on</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Switching the motors off</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The controller did not switch the motors: an emergency stop or an open door may hold them. Check both and try again.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SignalsPage</name>
    <message>
        <source>On</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Off</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Set …</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Switch off</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Switch on</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>System</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>System: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A number is needed, with a point before its decimals: 12.5</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A group of bits takes whole numbers from 0 on.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Signals</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Simulate inputs</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Registers</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Find</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Signal</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Value</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Use</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Register</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Values</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No signal fits</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Neither a name nor a label has these letters.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No signals of this type</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The controller has none.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>They appear when the controller is connected.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: no link to the controller, values are not known</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No registers</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No register fits</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The controller has none that are shown here.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Registers: what the robot shares with other controllers</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Registers: no link to the controller, values are not known</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>End simulation</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Inputs are simulated: programs do not see the real cell. They can be set in this table.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Set %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Set</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Simulate the inputs?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Programs then see the values that are set here, not those of the cell. Nobody notices a real button or sensor until the simulation ends.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Simulate</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The controller could not be asked: wait until it is connected and try again.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SystemPage</name>
    <message>
        <source>Plugins</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Versions</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Plugin library</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Panel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Event bus</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Events published</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Handlers called</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Subscriptions</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Language</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>VariablesPage</name>
    <message>
        <source>Persistent</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Value</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Variables</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Variable</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Type</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Kept</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>On the controller</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save again</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Change</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>New variable</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No variables yet</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;New variable&quot; makes the first one of this project.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>They can be made when the controller is connected.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This controller does not report values while programs run: its version would have to be 2.3, 3.0, 3.1 or 3.2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No link to the controller: nothing can be changed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No project is open: these variables belong to none</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Project %1, variables: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Create</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Persistent: programs keep its changes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The variable needs a name.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is a variable &quot;%1&quot; already: choose another name, or change that one.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Change &quot;%1&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete the variable &quot;%1&quot;?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Its value is lost, and programs that use it fail.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Creating &quot;%1&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The variable &quot;%1&quot; is there.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The controller did not take &quot;%1&quot;, and it was not made: the name may be in use there, or the value may not fit. Choose another one.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Changing &quot;%1&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; has its new value.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The variable &quot;%1&quot; is no longer in the project, and nothing was changed: choose another one.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The controller did not take the new value, and &quot;%1&quot; has its old one: a program may use it, or the value may not fit. Check both, and try again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Deleting &quot;%1&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; is deleted.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The controller did not let go of &quot;%1&quot;, and it stays: a program may use it. Stop the program, check the link, and try again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no variable left to save: the next one that is made saves all.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; is changed on the panel and in the running controller, but not saved there: check the network to it and the space on the panel&apos;s disk, then save again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no link to the controller, and nothing was changed: try again when it is connected.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>brisa::ControllerManager</name>
    <message>
        <source>The controller calls its robot &quot;%1&quot;, which can&apos;t name a directory: its projects are kept as those of an unknown robot. Give the robot a plain name.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>brisa::LogBanner</name>
    <message>
        <source>Messages</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Clear</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No messages</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hide the messages</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show all messages</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>brisa::ModalCounter</name>
    <message>
        <source>Open windows: %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>kest::ExpandSideBar</name>
    <message>
        <source>Choose a page</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Close</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>kest::ModuleRunner</name>
    <message>
        <source>No module is registered under the name &quot;%1&quot;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The maker of &quot;%1&quot; returned no module.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>an unknown exception</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; failed in %2: %3</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>kit::Form</name>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>kit::NoticeLine</name>
    <message>
        <source>Close</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>kit::Page</name>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Please wait: the panel takes no other command meanwhile.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>navigation</name>
    <message>
        <source>Home</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Plugins</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Points</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Projects</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Run</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Signals</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Overview</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Variables</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>panel</name>
    <message>
        <source>The stand-in %1 can&apos;t be used: copying files may ask for a password. Choose another runtime directory, without &quot;:&quot; in its name, where programs can be written and run.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>rsync is not installed: nothing can be copied to the controller. Install rsync and start the panel again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 can&apos;t be made a link to %2: no directory can be copied to the controller. Remove what is there, or check its permissions.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The operator panel.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Loads the plugins of DIR; may be given several times.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Works in DIR: its log, workspace and tools.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reads and keeps the settings in FILE.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ends after SECONDS.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Saves the window as PNG to FILE just before the end.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shows the page KEY of the centre area first.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Speaks CODE: %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Covers the whole screen.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lets the plugin NAME, which took the panel down, take part again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unknown argument &quot;%1&quot;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>--for needs a number of seconds, not &quot;%1&quot;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>--language needs one of %1, not &quot;%2&quot;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is not a library: put the file there that the plugin&apos;s build made, or remove this one.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is a program, not a plugin library: put the library there, or remove it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is cut short: copy the whole file to the panel again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 was built for %2 and this panel is %3: build it for %3.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 has no plugin tag, so nobody knows what it was built against: build it with zeplet_add_plugin().</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 has a name in its tag that is not a plain word: name it with letters, digits, &quot;_&quot; and &quot;-&quot; in zeplet_add_plugin().</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 was built against version %2 of the plugin library and this panel has %3: build it against %3.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 was built against Qt %2 and this panel has Qt %3: build it against Qt %3.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 was built with the compiler interface %2 and this panel uses %3: build it with %3.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is not a plain file: put a plugin library there, or remove it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 can&apos;t be read (%2): check the file&apos;s permissions.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 has a damaged plugin tag: build it again with zeplet_add_plugin().</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 uses %2, which no library of this panel has: link the library that defines it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 needs the library %2, which this panel lacks: install %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 needs %2, which is newer than this panel&apos;s: build it on the panel&apos;s system.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 can&apos;t be opened (%2): build it again for this panel.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The controller does not say</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No link to the controller</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No link</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Service hub only</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Looking for the controller</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>In part</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The service hub is missing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Connected</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Controller and service hub</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>On</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The robot can move</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Off</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The motors are without power</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Programs run by themselves</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Manual</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Moves by hand, at low speed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Running</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A program is running</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stopped</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No program is running</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Level %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Says what may be changed</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>panel::HomePage</name>
    <message>
        <source>%1 of %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The page &quot;Overview&quot; says why</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All plugins are running</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing can be commanded until the controller is found.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A program is running: keep clear of the robot.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The motors are on: the robot is ready to move.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The motors are off: the robot stands still.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Connection</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Motor power</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Operating mode</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Program</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>User</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Plugins</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Robot type</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Identity</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Controller version</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Controller address</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Robot</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>panel::MainWindow</name>
    <message>
        <source>Robot panel</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>panel::PanelApplication</name>
    <message>
        <source>A plugin failed while %1 handled an event: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>an unknown exception</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>panel::PanelSession</name>
    <message>
        <source>The panel is running.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The runtime directory %1 can&apos;t be used: check its permissions.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no page &quot;%1&quot;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The panel has ended.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The picture %1 can&apos;t be saved.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>panel::PluginLoader</name>
    <message>
        <source>%1; correct the plugin and start the panel again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The plugin directory %1 can&apos;t be read: create it, correct its permissions, or start the panel with another one.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 was left out because it took the panel down (%2): replace it with a corrected one, or try it again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 registers the name &quot;%2&quot;, which is taken: remove it, or give it a name of its own.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 registers no plugin named &quot;%2&quot;: call zepletFactory().regist() in a static initialiser of the library.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 registers &quot;%2&quot; but is tagged &quot;%3&quot;: use one name for both.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 takes part again when the panel starts next.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>panel::RunKeys</name>
    <message>
        <source>Start</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stop</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>panel::WaitStrip</name>
    <message>
        <source>Stop now</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Waiting for a plugin to stop the program</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Waiting for a plugin to start the program</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Keep running</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>points</name>
    <message>
        <source>&quot;%1&quot; is changed on this panel but not on the controller: check the link and the panel&apos;s disk, then save again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no link to the controller, and nothing was changed: try again when it is connected.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The point &quot;%1&quot; is no longer in the project, and nothing was changed: choose another one.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; is changed on this panel, but the controller did not take it, or it could not be saved: check the link and the panel&apos;s disk, then save again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The controller did not tell where the robot is, and nothing was taught to &quot;%1&quot;: check that it knows the tool and the work object, and try again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is a point &quot;%1&quot; already: choose another name, or teach that one.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The point &quot;%1&quot; could not be made: choose another name.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; is taught.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; has its new values.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a copy of the first element: teach it its own position.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; is deleted.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The controller did not let go of &quot;%1&quot;, and it stays: a program may use it. Stop the program, check the link, and try again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no link to the controller: save again when it is connected.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All points are saved on the panel and on the controller.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The points could not be saved: check the network to the controller and the space on the panel&apos;s disk, then save again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The point needs a name.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cartesian: the tool&apos;s pose</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Joint: each axis&apos; angle</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Kind</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tool</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Work object</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Axis J%1 goes from %2° to %3°: choose an angle between them.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Teach a new point</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Teach</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Persistent: programs keep its changes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Teach &quot;%1&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Its old position is replaced by the one where the robot is now.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Values of &quot;%1&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: a number is needed, with a point before its decimals: 12.5</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add an element to &quot;%1&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>First index</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Second index</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Third index</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>An index is a whole number from 0 to 9999.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The element %1 is there already: choose another index.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>projects</name>
    <message>
        <source>No project can be named &quot;%1&quot;: the name is reserved or has characters that a file&apos;s name can&apos;t have. Choose another name.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is a project &quot;%1&quot; already: choose another name, or open that one.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The project &quot;%1&quot; could not be written to the panel&apos;s disk: the name may be too long, the disk full or write-protected. Choose a shorter name, or have the disk checked, and try again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; can&apos;t be opened, because no project has such a name: choose one of the list.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The project &quot;%1&quot; is no longer on the panel&apos;s disk: choose another one of the list, or create it anew.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; can&apos;t be removed, because the panel needs it itself: choose a project of the list.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The project &quot;%1&quot; was no longer on the panel&apos;s disk: nothing is left to be removed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The project &quot;%1&quot; could not be removed as a whole, because its directory is write-protected or in use: have its permissions checked and try again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The project needs a name.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A name is no path: leave out &quot;/&quot;, and dots that stand alone.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>qo::kivra::PhysicalButtonRegistry</name>
    <message>
        <source>The key &quot;%1&quot; failed: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>an unknown exception</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>rpc::Client</name>
    <message>
        <source>no answer in time</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the link was lost</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>no reason was given</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>signals</name>
    <message>
        <source>Digital inputs</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Digital outputs</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Group inputs</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Group outputs</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Analogue inputs</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Analogue outputs</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tavik</name>
    <message>
        <source>it is a symbolic link</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it is no plain file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it is larger than %1 MiB</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it holds no JSON object</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>its &quot;%1&quot; is of a wrong kind</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>an element is no object</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it is no object</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>record %1 of &quot;%2&quot;: %3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it has no version</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>its version is &quot;%1&quot;, this panel reads &quot;%2&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it has no list &quot;%1&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it is no JSON (%1)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>If the robot moves, use the emergency stop.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stop the program, then try again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The start of the program</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove the cause, then press Start again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The stop of the program</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Switching the motors on</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove the cause, then switch them on again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Switching the motors off</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The change to manual mode</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The change to automatic mode</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Setting the signal</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Check the signal&apos;s name and type; an input can be set only while inputs are simulated.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Switching the simulation of inputs</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Opening the project in the controller</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The controller still works with the project before. Remove the cause, then open the project again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Switch the motors on, then press Start again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 was refused: %2. %3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 was not confirmed: %2. It may have been carried out: look at the robot before you try again.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tavik::HotUpdates</name>
    <message>
        <source>code %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The controller did not take over the change to point %1: %2. Programs use it as it was until they are started again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>too many requests wait</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tavik::OpenProject</name>
    <message>
        <source>The file stays as it is, and the next save keeps a copy of it beside it: mend the file, then open the project again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing can be saved there: put a plain file in its place, then open the project again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 can&apos;t be used: %2. The project is open without what it holds. %3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The project &quot;%1&quot; can&apos;t be opened: its name is no plain name.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 was closed: the panel now works in %2. What was saved stays in %3.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What is in no project</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The project %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tavik::RunControl</name>
    <message>
        <source>The program can&apos;t be started: there is no link to the controller. Check its power and the network.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The program can&apos;t be started while a stop waits for a plugin. Press Stop again to stop at once, or cancel the stop.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The program is running already.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The program can&apos;t be stopped from here: there is no link to the controller. If the robot moves, use the emergency stop.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The stop was cancelled: the program runs on.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A plugin can&apos;t start the program: there is no link to the controller.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A plugin wanted to start the program while a stop waits: it was not started.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A plugin answered a start that had been given up: the program was not started. Press Start to start it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A plugin can&apos;t stop the program: there is no link to the controller.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A plugin did not let the program start.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The plugin that was asked no longer answers: the program was not started. Press Start again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The link to the controller was lost: the start was given up. Press Start again when the controller is back.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The link to the controller was lost while a stop waited: the program may run on. If the robot moves, use the emergency stop.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>too many requests wait</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tavik::SelectedFrames</name>
    <message>
        <source>The controller did not confirm that moves are meant in %1: %2. Select it again before you move the robot to a point.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>too many requests wait</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is selected in place of %2, which was that of another robot.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tavik::Workspace</name>
    <message>
        <source>The setting &quot;workspace&quot; is empty: the panel keeps %1. Enter a directory for the projects to change it.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>variables</name>
    <message>
        <source>Whole number</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Number</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Text</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Flag</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Connection</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Other</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>true</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>false</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A whole number is needed, from -2147483648 to 2147483647.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A number is needed, with a point before its decimals: 12.5</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>zeplet::InterfaceManager</name>
    <message>
        <source>System IO cannot be simulated.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>DI Signal can only be changed in simulation mode.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Auto generate at: %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>zeplet::SyncTool</name>
    <message>
        <source>Synchronization failed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cannot create path: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Synchronizing...</source>
        <translation type="unfinished"></translation>
    </message>
</context>
</TS>
