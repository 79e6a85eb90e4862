<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>PersistentPlugin</name>
    <message>
        <source>Persistent variables</source>
        <translation>持久变量</translation>
    </message>
    <message>
        <source>Variable</source>
        <translation>变量</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>值</translation>
    </message>
    <message>
        <source>Type the name of a variable, then tap Watch.</source>
        <translation>请输入变量名，然后点按“监视”。</translation>
    </message>
    <message>
        <source>Name of a variable</source>
        <translation>变量名</translation>
    </message>
    <message>
        <source>Value for the selected one</source>
        <translation>所选变量的值</translation>
    </message>
    <message>
        <source>Watch</source>
        <translation>监视</translation>
    </message>
    <message>
        <source>Write</source>
        <translation>写入</translation>
    </message>
    <message>
        <source>Connect the controller first, then tap Watch again.</source>
        <translation>请先连接控制器，然后再点按“监视”。</translation>
    </message>
    <message>
        <source>Type the name of a variable that is not in the table yet.</source>
        <translation>请输入表中还没有的变量名。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has no value yet, or another name.</source>
        <translation>“%1”还没有值，或名称不同。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is watched. Select it to write a value.</source>
        <translation>正在监视“%1”。选择后可写入值。</translation>
    </message>
    <message>
        <source>Connect the controller first, then tap Write again.</source>
        <translation>请先连接控制器，然后再点按“写入”。</translation>
    </message>
    <message>
        <source>Select a variable in the table first.</source>
        <translation>请先在表中选择变量。</translation>
    </message>
    <message>
        <source>Sent to &quot;%1&quot;. The table shows what the controller made of it.</source>
        <translation>已发送到“%1”。表中显示控制器的结果。</translation>
    </message>
    <message>
        <source>Only finite numbers can be sent. Type another value.</source>
        <translation>只能发送有限数值。请输入其他值。</translation>
    </message>
    <message>
        <source>The controller has version &quot;%1&quot;; 2.3, 3.0, 3.1 or 3.2 is needed.</source>
        <translation>控制器版本为“%1”；需要 2.3、3.0、3.1 或 3.2。</translation>
    </message>
</context>
<context>
    <name>navigation</name>
    <message>
        <source>Persistent</source>
        <translation>持久</translation>
    </message>
</context>
</TS>
