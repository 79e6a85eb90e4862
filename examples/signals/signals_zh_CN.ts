<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>SignalsPage</name>
    <message>
        <source>Signal</source>
        <translation>信号</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>值</translation>
    </message>
    <message>
        <source>Register</source>
        <translation>寄存器</translation>
    </message>
    <message>
        <source>My signals</source>
        <translation>我的信号</translation>
    </message>
    <message>
        <source>Digital inputs</source>
        <translation>数字输入</translation>
    </message>
    <message>
        <source>Digital outputs</source>
        <translation>数字输出</translation>
    </message>
    <message>
        <source>Group inputs</source>
        <translation>组输入</translation>
    </message>
    <message>
        <source>Group outputs</source>
        <translation>组输出</translation>
    </message>
    <message>
        <source>Analogue inputs</source>
        <translation>模拟量输入</translation>
    </message>
    <message>
        <source>Analogue outputs</source>
        <translation>模拟量输出</translation>
    </message>
    <message>
        <source>Set to 1</source>
        <translation>置 1</translation>
    </message>
    <message>
        <source>Set to 0</source>
        <translation>置 0</translation>
    </message>
    <message>
        <source>Toggle</source>
        <translation>切换</translation>
    </message>
    <message>
        <source>Read again</source>
        <translation>重新读取</translation>
    </message>
    <message>
        <source>No values came. Connect the controller, then tap Read again.</source>
        <translation>没有收到值。请连接控制器，然后点按“重新读取”。</translation>
    </message>
    <message>
        <source>The robot has no signals of this kind.</source>
        <translation>机器人没有此类信号。</translation>
    </message>
    <message>
        <source>Select a digital signal to set it.</source>
        <translation>选择数字信号以进行设置。</translation>
    </message>
    <message>
        <source>Connect the controller first, then set the signal again.</source>
        <translation>请先连接控制器，然后重新设置信号。</translation>
    </message>
    <message>
        <source>Select a digital input or output first.</source>
        <translation>请先选择数字输入或输出。</translation>
    </message>
    <message>
        <source>Sent. If the value stays, the line below says why.</source>
        <translation>已发送。如果值不变，下方会说明原因。</translation>
    </message>
    <message>
        <source>Select a digital output first.</source>
        <translation>请先选择数字输出。</translation>
    </message>
</context>
<context>
    <name>navigation</name>
    <message>
        <source>My signals</source>
        <translation>我的信号</translation>
    </message>
</context>
</TS>
