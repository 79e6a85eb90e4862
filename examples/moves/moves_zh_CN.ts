<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>MovesPlugin</name>
    <message>
        <source> mm/s</source>
        <translation> mm/s</translation>
    </message>
    <message>
        <source>Choose a point and a speed. Stop ends every move.</source>
        <translation>请选择点和速度。停止会结束任何移动。</translation>
    </message>
    <message>
        <source>Move straight</source>
        <translation>直线移动</translation>
    </message>
    <message>
        <source>Move by joints</source>
        <translation>关节移动</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>停止</translation>
    </message>
    <message>
        <source>Choose a point. Where there is none, teach one first.</source>
        <translation>请选择点。如果没有，请先示教一个。</translation>
    </message>
    <message>
        <source>Connect the controller first.</source>
        <translation>请先连接控制器。</translation>
    </message>
    <message>
        <source>The robot can&apos;t go from &quot;%1&quot; to &quot;%2&quot;. Choose a point between them.</source>
        <translation>机器人无法从“%1”到“%2”。请选择中间的点。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has no place. Teach it first.</source>
        <translation>“%1”没有位置。请先示教。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has no arm configuration. Teach it again as a pose, or move straight.</source>
        <translation>“%1”没有机械臂配置。请重新示教为位姿，或使用直线移动。</translation>
    </message>
    <message>
        <source>The robot was sent to &quot;%1&quot;.</source>
        <translation>机器人正前往“%1”。</translation>
    </message>
    <message>
        <source>The robot was told to stop.</source>
        <translation>已命令机器人停止。</translation>
    </message>
    <message>
        <source>The controller is not connected: use the emergency stop.</source>
        <translation>未连接控制器：请按急停。</translation>
    </message>
    <message>
        <source>The robot did not get there: %1</source>
        <translation>机器人未到达：%1</translation>
    </message>
</context>
<context>
    <name>navigation</name>
    <message>
        <source>My moves</source>
        <translation>我的移动</translation>
    </message>
</context>
</TS>
