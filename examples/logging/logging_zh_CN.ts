<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>LoggingPlugin</name>
    <message>
        <source>What happened at the cell</source>
        <translation>单元发生了什么</translation>
    </message>
    <message>
        <source>Type a note, then tap Note or Problem.</source>
        <translation>请输入记录，然后点按“记录”或“问题”。</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>记录</translation>
    </message>
    <message>
        <source>Problem</source>
        <translation>问题</translation>
    </message>
    <message>
        <source>Record state</source>
        <translation>记录状态</translation>
    </message>
    <message>
        <source>Remove file</source>
        <translation>移除文件</translation>
    </message>
    <message>
        <source>Tidy up</source>
        <translation>清理</translation>
    </message>
    <message>
        <source>Type a note first.</source>
        <translation>请先输入记录。</translation>
    </message>
    <message>
        <source>Written to %1.</source>
        <translation>已写入 %1。</translation>
    </message>
    <message>
        <source>The robot&apos;s state is recorded.</source>
        <translation>已记录机器人状态。</translation>
    </message>
    <message>
        <source>The state can&apos;t be written: is the panel&apos;s disk full?</source>
        <translation>无法写入状态：面板磁盘是否已满？</translation>
    </message>
    <message>
        <source>Select a file first.</source>
        <translation>请先选择文件。</translation>
    </message>
    <message>
        <source>The file is removed.</source>
        <translation>文件已移除。</translation>
    </message>
    <message>
        <source>The file can&apos;t be removed.</source>
        <translation>无法移除文件。</translation>
    </message>
    <message>
        <source>The oldest files are gone as far as all are above 50 MiB.</source>
        <translation>总量超过 50 MiB 的最旧文件已删除。</translation>
    </message>
</context>
<context>
    <name>navigation</name>
    <message>
        <source>Logbook</source>
        <translation>日志簿</translation>
    </message>
</context>
</TS>
