<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>EventTable</name>
    <message>
        <source>Time</source>
        <translation>时间</translation>
    </message>
    <message>
        <source>No.</source>
        <translation>编号</translation>
    </message>
    <message>
        <source>Event</source>
        <translation>事件</translation>
    </message>
    <message>
        <source>Source</source>
        <translation>来源</translation>
    </message>
    <message>
        <source>Data</source>
        <translation>数据</translation>
    </message>
    <message>
        <source>No events yet</source>
        <translation>还没有事件</translation>
    </message>
</context>
<context>
    <name>MonitorPage</name>
    <message>
        <source>Event monitor</source>
        <translation>事件监视</translation>
    </message>
    <message>
        <source>Full screen</source>
        <translation>全屏</translation>
    </message>
    <message>
        <source>Hub key or notify path, for example demo.temperature</source>
        <translation>枢纽键或通知路径，例如 demo.temperature</translation>
    </message>
    <message>
        <source>Watch hub key</source>
        <translation>监视枢纽键</translation>
    </message>
    <message>
        <source>Watch notify path</source>
        <translation>监视通知路径</translation>
    </message>
    <message>
        <source>%1  ✕</source>
        <translation>%1  ✕</translation>
    </message>
    <message>
        <source>Tap to stop watching</source>
        <translation>点按以停止监视</translation>
    </message>
</context>
<context>
    <name>MonitorPlugin</name>
    <message>
        <source>No. %1 at %2</source>
        <translation>编号 %1，%2</translation>
    </message>
    <message>
        <source>from %1</source>
        <translation>来自 %1</translation>
    </message>
    <message>
        <source>Events: %1</source>
        <translation>事件：%1</translation>
    </message>
    <message>
        <source>The last event appears here.</source>
        <translation>最近的事件显示在这里。</translation>
    </message>
    <message>
        <source>Last event</source>
        <translation>最近的事件</translation>
    </message>
</context>
<context>
    <name>navigation</name>
    <message>
        <source>Monitor</source>
        <translation>监视器</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>暂停</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>清除</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>详情</translation>
    </message>
</context>
</TS>
