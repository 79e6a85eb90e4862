<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>SyncPlugin</name>
    <message>
        <source>A note for whoever works on this project next</source>
        <translation>给下一位处理此项目的人的便条</translation>
    </message>
    <message>
        <source>Send everything once, then the note alone.</source>
        <translation>先全部发送一次，之后只发送便条。</translation>
    </message>
    <message>
        <source>Send all</source>
        <translation>全部发送</translation>
    </message>
    <message>
        <source>The controller has all notes of this panel, and no others.</source>
        <translation>控制器已有此面板的全部便条，且没有其他便条。</translation>
    </message>
    <message>
        <source>Send note</source>
        <translation>发送便条</translation>
    </message>
    <message>
        <source>The controller has this note.</source>
        <translation>控制器已有此便条。</translation>
    </message>
    <message>
        <source>Fetch all</source>
        <translation>全部取回</translation>
    </message>
    <message>
        <source>This panel has all notes of the controller, and no others.</source>
        <translation>此面板已有控制器的全部便条，且没有其他便条。</translation>
    </message>
    <message>
        <source>Not everything was copied. Is the controller on, and does it have this project? The log says what rsync found.</source>
        <translation>未全部复制。控制器是否开启，是否有此项目？rsync 的结果见日志。</translation>
    </message>
    <message>
        <source>The note can&apos;t be saved on the panel: %1</source>
        <translation>无法在面板上保存便条：%1</translation>
    </message>
</context>
<context>
    <name>navigation</name>
    <message>
        <source>My note</source>
        <translation>我的便条</translation>
    </message>
</context>
</TS>
