<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>VariablesPlugin</name>
    <message>
        <source>Name</source>
        <translation>名称</translation>
    </message>
    <message>
        <source>5, 2.5, true, text</source>
        <translation>5, 2.5, true, 文本</translation>
    </message>
    <message>
        <source>Persistent</source>
        <translation>持久</translation>
    </message>
    <message>
        <source>Type a name and a value, then tap Add.</source>
        <translation>请输入名称和值，然后点按“添加”。</translation>
    </message>
    <message>
        <source>Type a name first.</source>
        <translation>请先输入名称。</translation>
    </message>
    <message>
        <source>Connect the controller first: it has to agree.</source>
        <translation>请先连接控制器：需要它同意。</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>添加</translation>
    </message>
    <message>
        <source>Change</source>
        <translation>修改</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>删除</translation>
    </message>
    <message>
        <source>There is a &quot;%1&quot; already. Change it, or take another name.</source>
        <translation>“%1”已存在。请修改它，或换一个名称。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is added.</source>
        <translation>“%1”已添加。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is added, but var.json is not on the controller: see the log.</source>
        <translation>“%1”已添加，但 var.json 不在控制器上：见日志。</translation>
    </message>
    <message>
        <source>The controller does not take a &quot;%1&quot; of this type.</source>
        <translation>控制器不接受此类型的“%1”。</translation>
    </message>
    <message>
        <source>There is no &quot;%1&quot;. Add it first.</source>
        <translation>没有“%1”。请先添加。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is changed.</source>
        <translation>“%1”已修改。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is changed, but var.json is not on the controller: see the log.</source>
        <translation>“%1”已修改，但 var.json 不在控制器上：见日志。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; keeps its value: it is a connection, or the controller does not take this value.</source>
        <translation>“%1”保持原值：它是连接，或控制器不接受此值。</translation>
    </message>
    <message>
        <source>There is no &quot;%1&quot;.</source>
        <translation>没有“%1”。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is deleted.</source>
        <translation>“%1”已删除。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is deleted, but var.json on the controller is old: see the log.</source>
        <translation>“%1”已删除，但控制器上的 var.json 是旧的：见日志。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; stays: it is a connection, or the program needs it.</source>
        <translation>“%1”保留：它是连接，或程序需要它。</translation>
    </message>
    <message>
        <source>These stay: %1.</source>
        <translation>以下保留：%1。</translation>
    </message>
    <message>
        <source>%1 are deleted.</source>
        <translation>%1 已删除。</translation>
    </message>
    <message>
        <source>%1 are deleted, but var.json on the controller is old: see the log.</source>
        <translation>%1 已删除，但控制器上的 var.json 是旧的：见日志。</translation>
    </message>
</context>
<context>
    <name>navigation</name>
    <message>
        <source>My variables</source>
        <translation>我的变量</translation>
    </message>
</context>
</TS>
