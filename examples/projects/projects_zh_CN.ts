<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>ProjectsPlugin</name>
    <message>
        <source>My projects</source>
        <translation>我的项目</translation>
    </message>
    <message>
        <source>Name of a new project</source>
        <translation>新项目名称</translation>
    </message>
    <message>
        <source>Type a name, then tap Create.</source>
        <translation>请输入名称，然后点按“创建”。</translation>
    </message>
    <message>
        <source>Create</source>
        <translation>创建</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>打开</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>移除</translation>
    </message>
    <message>
        <source>%1   (open)</source>
        <translation>%1   （已打开）</translation>
    </message>
    <message>
        <source>Made by an example</source>
        <translation>由示例创建</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is made and open.</source>
        <translation>“%1”已创建并打开。</translation>
    </message>
    <message>
        <source>There is a &quot;%1&quot; already. Choose another name, or open it.</source>
        <translation>“%1”已存在。请选择其他名称，或打开它。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is open.</source>
        <translation>“%1”已打开。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no longer there.</source>
        <translation>“%1”已不存在。</translation>
    </message>
    <message>
        <source>Tap Remove again within 5 s: &quot;%1&quot; goes with all its points.</source>
        <translation>5 秒内再次点按“移除”：“%1”及其所有点将被删除。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is removed.</source>
        <translation>“%1”已移除。</translation>
    </message>
    <message>
        <source>Type or select a name; one without &quot;/&quot;.</source>
        <translation>请输入或选择不含“/”的名称。</translation>
    </message>
    <message>
        <source>The disk refused. Make room, or choose a shorter name.</source>
        <translation>磁盘拒绝写入。请腾出空间，或选择更短的名称。</translation>
    </message>
</context>
<context>
    <name>navigation</name>
    <message>
        <source>My projects</source>
        <translation>我的项目</translation>
    </message>
</context>
</TS>
