<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>CellController</name>
    <message>
        <source>The controller did not answer.</source>
        <translation>控制器没有应答。</translation>
    </message>
    <message>
        <source>A %1. Projects: %2.</source>
        <translation>%1。项目：%2。</translation>
    </message>
    <message>
        <source>An old %1.</source>
        <translation>旧版 %1。</translation>
    </message>
</context>
<context>
    <name>CellDevices</name>
    <message>
        <source>The sensor says nothing.</source>
        <translation>传感器没有数据。</translation>
    </message>
    <message>
        <source>%1 °C, %2 looks after it.</source>
        <translation>%1 °C，由 %2 负责。</translation>
    </message>
</context>
<context>
    <name>CellPlugin</name>
    <message>
        <source>Connected.</source>
        <translation>已连接。</translation>
    </message>
    <message>
        <source>Not connected.</source>
        <translation>未连接。</translation>
    </message>
    <message>
        <source>The conveyor says nothing yet.</source>
        <translation>输送带还没有数据。</translation>
    </message>
    <message>
        <source>Tap what a device is to do.</source>
        <translation>请点按设备要执行的动作。</translation>
    </message>
    <message>
        <source>Connect the controller first.</source>
        <translation>请先连接控制器。</translation>
    </message>
    <message>
        <source>Lamp on</source>
        <translation>开灯</translation>
    </message>
    <message>
        <source>The lamp is told to light.</source>
        <translation>已命令灯点亮。</translation>
    </message>
    <message>
        <source>Lamp off</source>
        <translation>关灯</translation>
    </message>
    <message>
        <source>The lamp is told to go out.</source>
        <translation>已命令灯熄灭。</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>温度</translation>
    </message>
    <message>
        <source>Reset devices</source>
        <translation>复位设备</translation>
    </message>
    <message>
        <source>The devices are reset.</source>
        <translation>设备已复位。</translation>
    </message>
    <message>
        <source>Grip</source>
        <translation>夹紧</translation>
    </message>
    <message>
        <source>Release</source>
        <translation>松开</translation>
    </message>
    <message>
        <source>Run conveyor</source>
        <translation>启动输送带</translation>
    </message>
    <message>
        <source>Asked.</source>
        <translation>已请求。</translation>
    </message>
    <message>
        <source>Controller</source>
        <translation>控制器</translation>
    </message>
    <message>
        <source>The conveyor is at %1 mm.</source>
        <translation>输送带位于 %1 mm。</translation>
    </message>
    <message>
        <source>Disconnected.</source>
        <translation>已断开。</translation>
    </message>
    <message>
        <source>The controller is lost.</source>
        <translation>与控制器的连接丢失。</translation>
    </message>
    <message>
        <source>The door says nothing yet.</source>
        <translation>门还没有状态。</translation>
    </message>
    <message>
        <source>The door is closed.</source>
        <translation>门已关闭。</translation>
    </message>
    <message>
        <source>The door is open.</source>
        <translation>门已打开。</translation>
    </message>
    <message>
        <source>That did not work. The log says more.</source>
        <translation>操作失败。详见日志。</translation>
    </message>
</context>
<context>
    <name>Gripper</name>
    <message>
        <source>The gripper did not answer.</source>
        <translation>夹爪没有应答。</translation>
    </message>
    <message>
        <source>The gripper answered: %1</source>
        <translation>夹爪应答：%1</translation>
    </message>
</context>
<context>
    <name>navigation</name>
    <message>
        <source>My cell</source>
        <translation>我的单元</translation>
    </message>
</context>
</TS>
