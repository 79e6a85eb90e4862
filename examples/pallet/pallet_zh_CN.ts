<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>PalletPlugin</name>
    <message>
        <source> places</source>
        <translation> 个位置</translation>
    </message>
    <message>
        <source> mm apart</source>
        <translation> mm 间距</translation>
    </message>
    <message>
        <source>Move the robot to the first place and teach it, then make the others.</source>
        <translation>请将机器人移动到第一个位置并示教，然后生成其他位置。</translation>
    </message>
    <message>
        <source>%1: done.</source>
        <translation>%1：完成。</translation>
    </message>
    <message>
        <source>%1: not all of it reached the controller. The log says why.</source>
        <translation>%1：未全部到达控制器。原因见日志。</translation>
    </message>
    <message>
        <source>Teach place</source>
        <translation>示教位置</translation>
    </message>
    <message>
        <source>Make places</source>
        <translation>生成位置</translation>
    </message>
    <message>
        <source>Remove place</source>
        <translation>移除位置</translation>
    </message>
    <message>
        <source>Raise all 10 mm</source>
        <translation>全部抬高 10 mm</translation>
    </message>
    <message>
        <source>Park position</source>
        <translation>停放位置</translation>
    </message>
    <message>
        <source>Back up</source>
        <translation>备份</translation>
    </message>
    <message>
        <source>The controller says no position. Connect it, then try again.</source>
        <translation>控制器未报告位置。请连接后重试。</translation>
    </message>
    <message>
        <source>Teach the first place first.</source>
        <translation>请先示教第一个位置。</translation>
    </message>
    <message>
        <source>Select a place first.</source>
        <translation>请先选择位置。</translation>
    </message>
    <message>
        <source>The points are in %1.</source>
        <translation>点已保存在 %1。</translation>
    </message>
    <message>
        <source>%1 can&apos;t be written.</source>
        <translation>无法写入 %1。</translation>
    </message>
    <message>
        <source>Places declared in the program: %1</source>
        <translation>程序中声明的位置：%1</translation>
    </message>
    <message>
        <source>%1:   %2</source>
        <translation>%1：   %2</translation>
    </message>
    <message>
        <source>not taught</source>
        <translation>未示教</translation>
    </message>
</context>
<context>
    <name>navigation</name>
    <message>
        <source>My pallet</source>
        <translation>我的码垛</translation>
    </message>
</context>
</TS>
