<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>StatusPlugin</name>
    <message>
        <source>Robot status</source>
        <translation>机器人状态</translation>
    </message>
    <message>
        <source>Changes appear here as the controller reports them.</source>
        <translation>控制器报告的变化显示在这里。</translation>
    </message>
    <message>
        <source>The operator wants to start. If the cell is clear, tap Start.</source>
        <translation>操作员要启动。如果单元内无人，请点按“启动”。</translation>
    </message>
    <message>
        <source>The operator wants to stop. When the part is finished, tap Stop.</source>
        <translation>操作员要停止。零件完成后，请点按“停止”。</translation>
    </message>
    <message>
        <source>Motors on</source>
        <translation>接通电机</translation>
    </message>
    <message>
        <source>Motors off</source>
        <translation>关闭电机</translation>
    </message>
    <message>
        <source>Manual</source>
        <translation>手动</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>自动</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>启动</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>停止</translation>
    </message>
    <message>
        <source>Ask before a start</source>
        <translation>启动前询问</translation>
    </message>
    <message>
        <source>Ask before a stop</source>
        <translation>停止前询问</translation>
    </message>
    <message>
        <source>%1: sent. The state above follows when the robot has done it.</source>
        <translation>%1：已发送。机器人完成后上方状态会更新。</translation>
    </message>
    <message>
        <source>%1: not sent. Connect the controller, then try again.</source>
        <translation>%1：未发送。请连接控制器后重试。</translation>
    </message>
    <message>
        <source>Controller</source>
        <translation>控制器</translation>
    </message>
    <message>
        <source>not connected</source>
        <translation>未连接</translation>
    </message>
    <message>
        <source>Identity</source>
        <translation>标识</translation>
    </message>
    <message>
        <source>Robot</source>
        <translation>机器人</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>型号</translation>
    </message>
    <message>
        <source>Motors</source>
        <translation>电机</translation>
    </message>
    <message>
        <source>on</source>
        <translation>开</translation>
    </message>
    <message>
        <source>off</source>
        <translation>关</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>模式</translation>
    </message>
    <message>
        <source>manual</source>
        <translation>手动</translation>
    </message>
    <message>
        <source>automatic</source>
        <translation>自动</translation>
    </message>
    <message>
        <source>Program</source>
        <translation>程序</translation>
    </message>
    <message>
        <source>User level</source>
        <translation>用户等级</translation>
    </message>
</context>
<context>
    <name>navigation</name>
    <message>
        <source>Robot status</source>
        <translation>机器人状态</translation>
    </message>
</context>
</TS>
