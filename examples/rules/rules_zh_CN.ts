<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>RulesPlugin</name>
    <message>
        <source>Tap what you want to be told of.</source>
        <translation>请点按要通知的内容。</translation>
    </message>
    <message>
        <source>Motors switch</source>
        <translation>电机切换</translation>
    </message>
    <message>
        <source>The motors switched.</source>
        <translation>电机已切换。</translation>
    </message>
    <message>
        <source>Motors go on</source>
        <translation>电机接通</translation>
    </message>
    <message>
        <source>The motors are on: keep clear.</source>
        <translation>电机已接通：请远离。</translation>
    </message>
    <message>
        <source>Mode changes</source>
        <translation>模式改变</translation>
    </message>
    <message>
        <source>The operating mode changed.</source>
        <translation>操作模式已改变。</translation>
    </message>
    <message>
        <source>Next start</source>
        <translation>下次启动</translation>
    </message>
    <message>
        <source>The program has started.</source>
        <translation>程序已启动。</translation>
    </message>
    <message>
        <source>Box is full</source>
        <translation>箱子已满</translation>
    </message>
    <message>
        <source>Two parts are done: change the box.</source>
        <translation>已完成两件：请更换箱子。</translation>
    </message>
    <message>
        <source>Select a rule first.</source>
        <translation>请先选择规则。</translation>
    </message>
    <message>
        <source>Try</source>
        <translation>试用</translation>
    </message>
    <message>
        <source>Seen</source>
        <translation>已阅</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>移除</translation>
    </message>
    <message>
        <source>Remove its kind</source>
        <translation>移除此类</translation>
    </message>
    <message>
        <source>Remove its group</source>
        <translation>移除此组</translation>
    </message>
    <message>
        <source>The rule is there.</source>
        <translation>规则已添加。</translation>
    </message>
    <message>
        <source>The rule starts anew.</source>
        <translation>规则重新开始。</translation>
    </message>
    <message>
        <source>done</source>
        <translation>完成</translation>
    </message>
    <message>
        <source>waits</source>
        <translation>等待</translation>
    </message>
    <message>
        <source>events: %1</source>
        <translation>事件：%1</translation>
    </message>
    <message>
        <source>%1 rules for %2 kinds of events, %3 of them for the motors; %4 for the shift, %5 for service. Last event: %6.</source>
        <translation>%1 条规则，%2 种事件，其中电机 %3 条；班次 %4 条，服务 %5 条。最近事件：%6。</translation>
    </message>
    <message>
        <source>none</source>
        <translation>无</translation>
    </message>
</context>
<context>
    <name>navigation</name>
    <message>
        <source>My rules</source>
        <translation>我的规则</translation>
    </message>
</context>
</TS>
