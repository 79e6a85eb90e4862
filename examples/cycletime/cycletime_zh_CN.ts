<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>CycleTimePlugin</name>
    <message>
        <source> s</source>
        <translation> 秒</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>清除</translation>
    </message>
    <message>
        <source>Start the program: each run is a cycle.</source>
        <translation>请启动程序：每次运行为一个周期。</translation>
    </message>
    <message>
        <source>This cycle</source>
        <translation>本周期</translation>
    </message>
    <message>
        <source>Warn above</source>
        <translation>超过时警告</translation>
    </message>
    <message>
        <source>Large digits</source>
        <translation>大数字</translation>
    </message>
    <message>
        <source>Library %1</source>
        <translation>库 %1</translation>
    </message>
    <message>
        <source>No cycles yet.</source>
        <translation>还没有周期。</translation>
    </message>
    <message>
        <source>Cycles: %1
Shortest: %2
Median: %3
Longest: %4</source>
        <translation>周期数：%1
最短：%2
中位数：%3
最长：%4</translation>
    </message>
    <message>
        <source>%1 s</source>
        <translation>%1 秒</translation>
    </message>
    <message>
        <source>The program runs.</source>
        <translation>程序正在运行。</translation>
    </message>
    <message>
        <source>The last cycle took %1.</source>
        <translation>上一周期用时 %1。</translation>
    </message>
    <message>
        <source>The cycle took %1: see what holds it up.</source>
        <translation>周期用时 %1：请检查延误原因。</translation>
    </message>
    <message>
        <source>Forget all cycle times? There are %1.</source>
        <translation>清除全部 %1 个周期时间？</translation>
    </message>
    <message>
        <source>The cycle times begin anew.</source>
        <translation>周期时间重新开始记录。</translation>
    </message>
</context>
<context>
    <name>navigation</name>
    <message>
        <source>Cycle time</source>
        <translation>周期时间</translation>
    </message>
</context>
</TS>
