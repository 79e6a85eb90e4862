<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN">
<context>
    <name>WeldForm</name>
    <message>
        <source>Robot target</source>
        <translation>机器人目标点</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1（%2）</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>%1 至 %2</translation>
    </message>
    <message>
        <source>The project has no robot target &quot;%1&quot;. Choose one, or teach it first.</source>
        <translation>项目中没有机器人目标点“%1”。请选择一个目标点，或先示教该点。</translation>
    </message>
    <message>
        <source>A program can&apos;t use the name &quot;%1&quot;. Rename the target without commas.</source>
        <translation>程序不能使用名称“%1”。请为目标点改用不含逗号的名称。</translation>
    </message>
    <message>
        <source>%1 has to be a number such as %2.</source>
        <translation>%1必须是数字，例如 %2。</translation>
    </message>
    <message>
        <source>%1 has to be from %2 to %3 %4.</source>
        <translation>%1必须在 %2 至 %3 %4 之间。</translation>
    </message>
</context>
<context>
    <name>Welding</name>
    <message>
        <source>Lets the gas flow for a moment.</source>
        <translation>短时放出保护气体。</translation>
    </message>
    <message>
        <source>Welding</source>
        <translation>焊接</translation>
    </message>
    <message>
        <source>Welding setup</source>
        <translation>焊接设置</translation>
    </message>
    <message>
        <source>Lets the gas flow, then lights the arc.</source>
        <translation>先送保护气体，然后起弧。</translation>
    </message>
    <message>
        <source>Current</source>
        <translation>电流</translation>
    </message>
    <message>
        <source>Voltage</source>
        <translation>电压</translation>
    </message>
    <message>
        <source>Gas pre-flow</source>
        <translation>提前送气</translation>
    </message>
    <message>
        <source>Welds a straight seam to a target.</source>
        <translation>沿直线焊接到目标点。</translation>
    </message>
    <message>
        <source>Weld speed</source>
        <translation>焊接速度</translation>
    </message>
    <message>
        <source>Weaving width</source>
        <translation>摆动宽度</translation>
    </message>
    <message>
        <source>Fills the crater, then ends the arc.</source>
        <translation>先填弧坑，然后收弧。</translation>
    </message>
    <message>
        <source>Crater fill</source>
        <translation>填弧坑</translation>
    </message>
</context>
<context>
    <name>WeldingPage</name>
    <message>
        <source>The program editor offers these instructions:</source>
        <translation>程序编辑器提供以下指令：</translation>
    </message>
</context>
<context>
    <name>navigation</name>
    <message>
        <source>Welding</source>
        <translation>焊接</translation>
    </message>
</context>
</TS>
