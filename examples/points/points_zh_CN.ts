<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>PointsPlugin</name>
    <message>
        <source>Name of a point</source>
        <translation>点名称</translation>
    </message>
    <message>
        <source>Move the robot to a place, type a name, then tap Teach.</source>
        <translation>请将机器人移动到某处，输入名称，然后点按示教。</translation>
    </message>
    <message>
        <source>Teach pose</source>
        <translation>示教位姿</translation>
    </message>
    <message>
        <source>Teach joints</source>
        <translation>示教关节</translation>
    </message>
    <message>
        <source>Raise 10 mm</source>
        <translation>抬高 10 mm</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>移除</translation>
    </message>
    <message>
        <source>Type a name first.</source>
        <translation>请先输入名称。</translation>
    </message>
    <message>
        <source>The controller says no position. Connect it, then try again.</source>
        <translation>控制器未报告位置。请连接后重试。</translation>
    </message>
    <message>
        <source>Tap again: &quot;%1&quot; gets a new place.</source>
        <translation>再次点按：“%1”将获得新位置。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is taught.</source>
        <translation>“%1”已示教。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is taught here, but not on the controller: see the log.</source>
        <translation>“%1”已在此示教，但控制器上没有：见日志。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no point with a pose. Select one.</source>
        <translation>“%1”不是带位姿的点。请选择一个。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is raised.</source>
        <translation>“%1”已抬高。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is raised here, but not on the controller: see the log.</source>
        <translation>“%1”已在此抬高，但控制器上没有：见日志。</translation>
    </message>
    <message>
        <source>There is no &quot;%1&quot;. Select a point.</source>
        <translation>没有“%1”。请选择点。</translation>
    </message>
    <message>
        <source>Tap again: &quot;%1&quot; goes for good.</source>
        <translation>再次点按：“%1”将被永久删除。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is removed.</source>
        <translation>“%1”已移除。</translation>
    </message>
    <message>
        <source>The controller needs &quot;%1&quot;. Stop its program first.</source>
        <translation>控制器需要“%1”。请先停止其程序。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is removed here, but the file is not: see the log.</source>
        <translation>“%1”已在此移除，但文件没有更新：见日志。</translation>
    </message>
</context>
<context>
    <name>navigation</name>
    <message>
        <source>My points</source>
        <translation>我的点</translation>
    </message>
</context>
</TS>
