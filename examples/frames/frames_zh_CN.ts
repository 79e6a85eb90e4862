<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>FramesPlugin</name>
    <message>
        <source>Tools, work objects, speeds and zones</source>
        <translation>工具、工件坐标系、速度和转弯区</translation>
    </message>
    <message>
        <source>Tool</source>
        <translation>工具</translation>
    </message>
    <message>
        <source>Work object</source>
        <translation>工件坐标系</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>速度</translation>
    </message>
    <message>
        <source>Zone</source>
        <translation>转弯区</translation>
    </message>
    <message>
        <source>A choice is missing. Where a list is empty, connect the controller.</source>
        <translation>缺少选择。如果列表为空，请连接控制器。</translation>
    </message>
    <message>
        <source>With %1 in %2, speed %3, zone %4.</source>
        <translation>使用 %1，在 %2 中，速度 %3，转弯区 %4。</translation>
    </message>
</context>
<context>
    <name>navigation</name>
    <message>
        <source>Frames</source>
        <translation>坐标系</translation>
    </message>
</context>
</TS>
