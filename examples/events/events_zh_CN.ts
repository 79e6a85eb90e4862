<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>EventsPlugin</name>
    <message>
        <source>Say of each part whether it is good. Each program that ends is one.</source>
        <translation>请说明每个零件是否合格。每次程序结束计一个。</translation>
    </message>
    <message>
        <source>Good part</source>
        <translation>合格件</translation>
    </message>
    <message>
        <source>operator</source>
        <translation>操作员</translation>
    </message>
    <message>
        <source>Rejected part</source>
        <translation>不合格件</translation>
    </message>
    <message>
        <source>Check the next one</source>
        <translation>检查下一件</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>暂停</translation>
    </message>
    <message>
        <source>New shift</source>
        <translation>新班次</translation>
    </message>
    <message>
        <source>The controller is gone. Parts by hand still count.</source>
        <translation>控制器已断开。仍可手动计数。</translation>
    </message>
    <message>
        <source>Change the box: %1 parts are good.</source>
        <translation>请更换箱子：已有 %1 个合格件。</translation>
    </message>
    <message>
        <source>part</source>
        <translation>零件</translation>
    </message>
    <message>
        <source>The next part is not checked.</source>
        <translation>下一件不检查。</translation>
    </message>
    <message>
        <source>Measure this part now.</source>
        <translation>请立即测量此零件。</translation>
    </message>
    <message>
        <source>Stop the conveyor and measure this part now.</source>
        <translation>请停止输送带并立即测量此零件。</translation>
    </message>
    <message>
        <source>The next part is to be checked.</source>
        <translation>下一件需要检查。</translation>
    </message>
    <message>
        <source>%1 good, %2 rejected</source>
        <translation>合格 %1，不合格 %2</translation>
    </message>
    <message>
        <source>%1, the last at %2</source>
        <translation>%1，最近一件 %2</translation>
    </message>
    <message>
        <source>This shift: %1 events, %2 calls. %3 subscriptions to %4 types, %5 of this plugin, %6 to parts.</source>
        <translation>本班次：%1 个事件，%2 次调用。%3 个订阅，%4 种类型，其中本插件 %5 个，零件 %6 个。</translation>
    </message>
</context>
<context>
    <name>navigation</name>
    <message>
        <source>Part counter</source>
        <translation>零件计数</translation>
    </message>
</context>
</TS>
