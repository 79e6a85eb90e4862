<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>ArmFeed</name>
    <message>
        <source>error %1</source>
        <translation>错误 %1</translation>
    </message>
</context>
<context>
    <name>ArmView</name>
    <message>
        <source>3D</source>
        <translation>3D</translation>
    </message>
    <message>
        <source>Side</source>
        <translation>侧视</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>俯视</translation>
    </message>
    <message>
        <source>No link to the controller</source>
        <translation>未连接控制器</translation>
    </message>
    <message>
        <source>The robot&apos;s pose appears when it is connected.</source>
        <translation>连接后显示机器人的位姿。</translation>
    </message>
    <message>
        <source>The controller does not tell the arm&apos;s pose.</source>
        <translation>控制器未报告机械臂的位姿。</translation>
    </message>
    <message>
        <source>Moving</source>
        <translation>运动中</translation>
    </message>
</context>
<context>
    <name>InsertDialog</name>
    <message>
        <source>Insert an instruction</source>
        <translation>插入指令</translation>
    </message>
    <message>
        <source>Write a line</source>
        <translation>手写一行</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>返回</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Insert</source>
        <translation>插入</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>组</translation>
    </message>
    <message>
        <source>Instruction</source>
        <translation>指令</translation>
    </message>
    <message>
        <source>No instructions</source>
        <translation>没有指令</translation>
    </message>
    <message>
        <source>They come with plugins. &quot;Write a line&quot; takes any text.</source>
        <translation>指令由插件提供。“手写一行”可输入任意文本。</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>继续</translation>
    </message>
    <message>
        <source>&quot;%1&quot; can&apos;t be inserted: its plugin gave neither a widget nor a text. Write the line instead.</source>
        <translation>无法插入“%1”：其插件既未提供界面也未提供文本。请改为手写该行。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; can&apos;t be inserted: %2. Write the line instead.</source>
        <translation>无法插入“%1”：%2。请改为手写该行。</translation>
    </message>
    <message>
        <source>It can&apos;t be inserted yet: correct what is entered.</source>
        <translation>暂时无法插入：请更正输入内容。</translation>
    </message>
</context>
<context>
    <name>InstructionBox</name>
    <message>
        <source>its plugin gave no widget</source>
        <translation>其插件未提供界面</translation>
    </message>
    <message>
        <source>There is nothing to enter.</source>
        <translation>无需输入。</translation>
    </message>
    <message>
        <source>its plugin has taken the widget away</source>
        <translation>其插件已收回界面</translation>
    </message>
</context>
<context>
    <name>Instructions</name>
    <message>
        <source>%1 at its character %2</source>
        <translation>%1（第 %2 个字符处）</translation>
    </message>
    <message>
        <source>Others</source>
        <translation>其他</translation>
    </message>
    <message>
        <source>it takes too long on the line &quot;%1&quot;</source>
        <translation>在“%1”这一行上耗时过长</translation>
    </message>
    <message>
        <source>Lines with &quot;%1&quot; are not recognised, since its pattern can&apos;t be used: %2. Its plugin has to be corrected.</source>
        <translation>无法识别含“%1”的行，因为其匹配模式不可用：%2。需要更正其插件。</translation>
    </message>
    <message>
        <source>Other types with such a pattern: %1.</source>
        <translation>另有此类模式的指令：%1。</translation>
    </message>
</context>
<context>
    <name>LineDelegate</name>
    <message>
        <source>Unknown</source>
        <translation>未知</translation>
    </message>
</context>
<context>
    <name>MoveBar</name>
    <message>
        <source>Move</source>
        <translation>移动</translation>
    </message>
    <message>
        <source>STOP</source>
        <translation>停止</translation>
    </message>
    <message>
        <source>%1 mm/s</source>
        <translation>%1 mm/s</translation>
    </message>
    <message>
        <source>Straight</source>
        <translation>直线</translation>
    </message>
    <message>
        <source>By joints</source>
        <translation>关节</translation>
    </message>
    <message>
        <source>Moving to %1</source>
        <translation>正在移动到 %1</translation>
    </message>
    <message>
        <source>Move to %1</source>
        <translation>移动到 %1</translation>
    </message>
    <message>
        <source>To its first element. Keep clear of the robot.</source>
        <translation>移动到其第一个元素。请远离机器人。</translation>
    </message>
    <message>
        <source>Keep clear of the robot.</source>
        <translation>请远离机器人。</translation>
    </message>
    <message>
        <source>No link. If the robot moves, use the emergency stop.</source>
        <translation>没有连接。如果机器人在运动，请按急停。</translation>
    </message>
    <message>
        <source>Stop ends the move. Keep clear of the robot.</source>
        <translation>按停止可结束移动。请远离机器人。</translation>
    </message>
    <message>
        <source>Choose a point of the table.</source>
        <translation>请在表中选择一个点。</translation>
    </message>
    <message>
        <source>A joint target can&apos;t be moved to: teach it as a pose.</source>
        <translation>无法移动到关节目标：请将其示教为位姿。</translation>
    </message>
    <message>
        <source>It has no position yet: teach it first.</source>
        <translation>该点还没有位置：请先示教。</translation>
    </message>
    <message>
        <source>A program is running: stop it first.</source>
        <translation>程序正在运行：请先停止。</translation>
    </message>
    <message>
        <source>The motors are off: switch them on, on the page &quot;Run&quot;.</source>
        <translation>电机已关闭：请在“运行”页面接通。</translation>
    </message>
    <message>
        <source>Move with &quot;%1&quot; in &quot;%2&quot;?</source>
        <translation>使用“%1”在“%2”中移动？</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was taught with that tool in that work object. They get selected, in place of &quot;%2&quot; and &quot;%3&quot;.</source>
        <translation>“%1”是用该工具在该工件坐标系中示教的。将选择它们，取代“%2”和“%3”。</translation>
    </message>
    <message>
        <source>Select and move</source>
        <translation>选择并移动</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has no arm configuration, which a move by joints needs: teach it again, or move straight.</source>
        <translation>“%1”没有机械臂配置，而关节移动需要它：请重新示教，或使用直线移动。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has no position any more: choose another point, or teach it.</source>
        <translation>“%1”已没有位置：请选择其他点，或示教该点。</translation>
    </message>
    <message>
        <source>There is no link, and the robot was not told to stop: if it moves, use the emergency stop.</source>
        <translation>没有连接，未能命令机器人停止：如果它在运动，请按急停。</translation>
    </message>
    <message>
        <source>The robot was told to stop.</source>
        <translation>已命令机器人停止。</translation>
    </message>
    <message>
        <source>The link was lost on the way to &quot;%1&quot;: the robot may still be moving. Use the emergency stop, and check where it is.</source>
        <translation>移动到“%1”途中连接中断：机器人可能仍在运动。请按急停，并检查其位置。</translation>
    </message>
    <message>
        <source>The robot did not move: it is at &quot;%1&quot; already, or the controller waits for something. Check its messages.</source>
        <translation>机器人没有移动：它已在“%1”，或控制器在等待某个条件。请检查其消息。</translation>
    </message>
    <message>
        <source>The robot was stopped on its way to &quot;%1&quot;.</source>
        <translation>机器人在前往“%1”的途中被停止。</translation>
    </message>
    <message>
        <source>The robot is at &quot;%1&quot;.</source>
        <translation>机器人已到达“%1”。</translation>
    </message>
    <message>
        <source>The robot did not get to &quot;%1&quot;: %2. Put that right, or choose another way, tool or point, and move again.</source>
        <translation>机器人未到达“%1”：%2。请排除原因，或选择其他路径、工具或点，然后重新移动。</translation>
    </message>
</context>
<context>
    <name>PluginRow</name>
    <message>
        <source>Running</source>
        <translation>运行中</translation>
    </message>
    <message>
        <source>Left out</source>
        <translation>已跳过</translation>
    </message>
    <message>
        <source>Faulty</source>
        <translation>故障</translation>
    </message>
    <message>
        <source>Not loaded</source>
        <translation>未加载</translation>
    </message>
    <message>
        <source>%1, built against library %2 and Qt %3</source>
        <translation>%1，基于库 %2 和 Qt %3 构建</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>重试</translation>
    </message>
</context>
<context>
    <name>PointsPage</name>
    <message>
        <source>Entered by hand</source>
        <translation>手动输入</translation>
    </message>
    <message>
        <source>Not taught yet</source>
        <translation>尚未示教</translation>
    </message>
    <message>
        <source>Several tools or work objects</source>
        <translation>多个工具或工件坐标系</translation>
    </message>
    <message>
        <source>Joint</source>
        <translation>关节</translation>
    </message>
    <message>
        <source>Cartesian</source>
        <translation>笛卡尔</translation>
    </message>
    <message>
        <source>Persistent</source>
        <translation>持久</translation>
    </message>
    <message>
        <source>No position yet: teach it.</source>
        <translation>还没有位置：请示教。</translation>
    </message>
    <message>
        <source>Points</source>
        <translation>点位</translation>
    </message>
    <message>
        <source>Save again</source>
        <translation>重新保存</translation>
    </message>
    <message>
        <source>Teach a new point</source>
        <translation>示教新点</translation>
    </message>
    <message>
        <source>Saving the points</source>
        <translation>正在保存点</translation>
    </message>
    <message>
        <source>Point</source>
        <translation>点</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>类型</translation>
    </message>
    <message>
        <source>Elements</source>
        <translation>元素</translation>
    </message>
    <message>
        <source>Add element</source>
        <translation>添加元素</translation>
    </message>
    <message>
        <source>Delete element</source>
        <translation>删除元素</translation>
    </message>
    <message>
        <source>Teach here</source>
        <translation>在此示教</translation>
    </message>
    <message>
        <source>Edit values</source>
        <translation>编辑数值</translation>
    </message>
    <message>
        <source>Delete point</source>
        <translation>删除点</translation>
    </message>
    <message>
        <source>No points yet</source>
        <translation>还没有点</translation>
    </message>
    <message>
        <source>Drive the robot to a place and teach it.</source>
        <translation>将机器人移动到某处并示教。</translation>
    </message>
    <message>
        <source>They can be taught when the controller is connected.</source>
        <translation>连接控制器后即可示教。</translation>
    </message>
    <message>
        <source>No link to the controller: nothing can be taught or changed</source>
        <translation>未连接控制器：无法示教或修改</translation>
    </message>
    <message>
        <source>No project is open: these points belong to none</source>
        <translation>没有打开项目：这些点不属于任何项目</translation>
    </message>
    <message>
        <source>Project %1, points: %2</source>
        <translation>项目 %1，点：%2</translation>
    </message>
    <message>
        <source>joint targets: %1</source>
        <translation>关节目标：%1</translation>
    </message>
    <message>
        <source>in other work objects: %1</source>
        <translation>在其他工件坐标系中：%1</translation>
    </message>
    <message>
        <source>too far away: %1</source>
        <translation>距离过远：%1</translation>
    </message>
    <message>
        <source>Not drawn: %1</source>
        <translation>未显示：%1</translation>
    </message>
    <message>
        <source>Teaching &quot;%1&quot;</source>
        <translation>正在示教“%1”</translation>
    </message>
    <message>
        <source>Saving &quot;%1&quot;</source>
        <translation>正在保存“%1”</translation>
    </message>
    <message>
        <source>Adding %1 to &quot;%2&quot;</source>
        <translation>正在将 %1 添加到“%2”</translation>
    </message>
    <message>
        <source>Delete %1 of &quot;%2&quot;?</source>
        <translation>删除“%2”的 %1？</translation>
    </message>
    <message>
        <source>Its position is lost, and programs that use it fail.</source>
        <translation>其位置将丢失，使用它的程序会失败。</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>删除</translation>
    </message>
    <message>
        <source>Deleting %1 of &quot;%2&quot;</source>
        <translation>正在删除“%2”的 %1</translation>
    </message>
    <message>
        <source>All its %1 positions are lost, and programs that use them fail.</source>
        <translation>其全部 %1 个位置将丢失，使用它们的程序会失败。</translation>
    </message>
    <message>
        <source>It is persistent: the controller forgets what programs have stored in it, too.</source>
        <translation>该点是持久的：控制器也会丢弃程序存入其中的内容。</translation>
    </message>
    <message>
        <source>Delete the point &quot;%1&quot;?</source>
        <translation>删除点“%1”？</translation>
    </message>
    <message>
        <source>Deleting &quot;%1&quot;</source>
        <translation>正在删除“%1”</translation>
    </message>
</context>
<context>
    <name>ProgramPage</name>
    <message>
        <source>Program</source>
        <translation>程序</translation>
    </message>
    <message>
        <source>New program</source>
        <translation>新建程序</translation>
    </message>
    <message>
        <source>Send to the controller</source>
        <translation>发送到控制器</translation>
    </message>
    <message>
        <source>Insert</source>
        <translation>插入</translation>
    </message>
    <message>
        <source>Properties</source>
        <translation>属性</translation>
    </message>
    <message>
        <source>Edit text</source>
        <translation>编辑文本</translation>
    </message>
    <message>
        <source>Move the line up</source>
        <translation>上移该行</translation>
    </message>
    <message>
        <source>Move the line down</source>
        <translation>下移该行</translation>
    </message>
    <message>
        <source>Delete line</source>
        <translation>删除行</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>撤销</translation>
    </message>
    <message>
        <source>A program is running, with the text that it had at its start. What you change here can be sent when it has stopped.</source>
        <translation>程序正在运行，使用其启动时的文本。此处的更改可在程序停止后发送。</translation>
    </message>
    <message>
        <source>No project is open</source>
        <translation>未打开项目</translation>
    </message>
    <message>
        <source>Project %1; files whose names no program can have: %2</source>
        <translation>项目 %1；文件名不能作为程序名的文件：%2</translation>
    </message>
    <message>
        <source>Project %1, lines: %2</source>
        <translation>项目 %1，行数：%2</translation>
    </message>
    <message>
        <source>Open one on the page &quot;Projects&quot;.</source>
        <translation>请在“项目”页面打开一个。</translation>
    </message>
    <message>
        <source>No programs yet</source>
        <translation>尚无程序</translation>
    </message>
    <message>
        <source>It can&apos;t be shown</source>
        <translation>无法显示</translation>
    </message>
    <message>
        <source>The program is empty</source>
        <translation>程序为空</translation>
    </message>
    <message>
        <source>&quot;Insert&quot; makes its first line.</source>
        <translation>“插入”可添加第一行。</translation>
    </message>
    <message>
        <source>No link to the controller</source>
        <translation>未连接控制器</translation>
    </message>
    <message>
        <source>Same text on the controller</source>
        <translation>控制器上的文本相同</translation>
    </message>
    <message>
        <source>Other text on the controller</source>
        <translation>控制器上的文本不同</translation>
    </message>
    <message>
        <source>Not on the controller yet</source>
        <translation>控制器上尚无此程序</translation>
    </message>
    <message>
        <source>A program has at most 1 MiB, and nothing was changed: divide it.</source>
        <translation>程序最大 1 MiB，未作任何更改：请将其拆分。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was changed elsewhere meanwhile, and your change was not made: look at it, and change it again.</source>
        <translation>“%1”已在别处被更改，您的更改未生效：请查看后重新更改。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be saved, and your change was not made: check the space on the panel&apos;s disk, and try again.</source>
        <translation>无法保存“%1”，您的更改未生效：请检查面板磁盘空间后重试。</translation>
    </message>
    <message>
        <source>Another program or line is shown meanwhile, and nothing was changed: choose the line, and try again.</source>
        <translation>当前显示的是其他程序或行，未作任何更改：请选择该行后重试。</translation>
    </message>
    <message>
        <source>Create</source>
        <translation>创建</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名称</translation>
    </message>
    <message>
        <source>Delete the program &quot;%1&quot;?</source>
        <translation>删除程序“%1”？</translation>
    </message>
    <message>
        <source>Its text on this panel is lost. What was sent to the controller stays there.</source>
        <translation>此面板上的文本将丢失。已发送到控制器的内容保留在控制器上。</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>删除</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is deleted on this panel.</source>
        <translation>已在此面板上删除“%1”。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be deleted, and stays: check the panel&apos;s disk.</source>
        <translation>无法删除“%1”，已保留：请检查面板磁盘。</translation>
    </message>
    <message>
        <source>Sending &quot;%1&quot;</source>
        <translation>正在发送“%1”</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was not sent: the link is lost, or a program runs. Send it again later.</source>
        <translation>“%1”未发送：连接已断开或有程序正在运行。请稍后再次发送。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is on the controller.</source>
        <translation>“%1”已在控制器上。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is saved on this panel, but could not be sent: check the network to the controller, then send it again.</source>
        <translation>“%1”已保存在此面板上，但无法发送：请检查与控制器的网络，然后再次发送。</translation>
    </message>
    <message>
        <source>Write a line</source>
        <translation>手写一行</translation>
    </message>
    <message>
        <source>The properties of &quot;%1&quot; can&apos;t be shown: %2. Its text can be edited.</source>
        <translation>无法显示“%1”的属性：%2。可以编辑其文本。</translation>
    </message>
    <message>
        <source>The line is longer than %1 characters, and can&apos;t be edited here: it can be deleted, and written anew.</source>
        <translation>该行超过 %1 个字符，无法在此编辑：可以删除后重新编写。</translation>
    </message>
    <message>
        <source>Edit line %1</source>
        <translation>编辑第 %1 行</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>应用</translation>
    </message>
    <message>
        <source>New</source>
        <translation>新建</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>重命名</translation>
    </message>
    <message>
        <source>&quot;New&quot; makes the first one of this project.</source>
        <translation>“新建”可创建此项目的第一个程序。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is changed, but the panel&apos;s disk did not confirm it: check the disk before the panel is switched off.</source>
        <translation>“%1”已更改，但面板磁盘未确认：请在关闭面板电源前检查磁盘。</translation>
    </message>
    <message>
        <source>Another project is open meanwhile, and nothing was changed: try again.</source>
        <translation>在此期间打开了另一个项目，未作任何更改：请重试。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be made: check the space on the panel&apos;s disk.</source>
        <translation>无法创建“%1”：请检查面板磁盘空间。</translation>
    </message>
    <message>
        <source>Rename program</source>
        <translation>重命名程序</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be renamed, and keeps its name: check the panel&apos;s disk.</source>
        <translation>无法重命名“%1”，名称保持不变：请检查面板磁盘。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is now &quot;%2&quot; on this panel. What was sent to the controller stays there under the old name.</source>
        <translation>“%1”在此面板上现名为“%2”。已发送到控制器的内容以旧名称保留在控制器上。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was changed elsewhere meanwhile, and was not sent: look at it, and send it again.</source>
        <translation>“%1”已在别处被更改，未发送：请查看后重新发送。</translation>
    </message>
</context>
<context>
    <name>ProjectsPage</name>
    <message>
        <source>Open</source>
        <translation>打开</translation>
    </message>
    <message>
        <source>Loads at start</source>
        <translation>启动时加载</translation>
    </message>
    <message>
        <source>No robot is known yet: these projects belong to none.</source>
        <translation>尚不知是哪台机器人：这些项目不属于任何机器人。</translation>
    </message>
    <message>
        <source>Robot %1, projects: %2</source>
        <translation>机器人 %1，项目：%2</translation>
    </message>
    <message>
        <source>Projects</source>
        <translation>项目</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名称</translation>
    </message>
    <message>
        <source>State</source>
        <translation>状态</translation>
    </message>
    <message>
        <source>Created</source>
        <translation>创建时间</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>移除</translation>
    </message>
    <message>
        <source>New project</source>
        <translation>新建项目</translation>
    </message>
    <message>
        <source>No projects yet</source>
        <translation>还没有项目</translation>
    </message>
    <message>
        <source>&quot;New project&quot; makes the first one for this robot.</source>
        <translation>“新建项目”可为该机器人创建第一个项目。</translation>
    </message>
    <message>
        <source>Create</source>
        <translation>创建</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>说明</translation>
    </message>
    <message>
        <source>Open it at once</source>
        <translation>立即打开</translation>
    </message>
    <message>
        <source>Creating the project</source>
        <translation>正在创建项目</translation>
    </message>
    <message>
        <source>The project &quot;%1&quot; is there.</source>
        <translation>项目“%1”已创建。</translation>
    </message>
    <message>
        <source>Opening the project</source>
        <translation>正在打开项目</translation>
    </message>
    <message>
        <source>The project &quot;%1&quot; is open.</source>
        <translation>项目“%1”已打开。</translation>
    </message>
    <message>
        <source>All its points, variables and programs are deleted on this panel. They can&apos;t be brought back.</source>
        <translation>其所有点、变量和程序都将从此面板删除，且无法恢复。</translation>
    </message>
    <message>
        <source>It is the open project: none is open afterwards.</source>
        <translation>这是当前打开的项目：之后将没有打开的项目。</translation>
    </message>
    <message>
        <source>The controller loads it when it starts: it will load none afterwards.</source>
        <translation>控制器启动时会加载它：之后将不再加载任何项目。</translation>
    </message>
    <message>
        <source>Remove the project &quot;%1&quot;?</source>
        <translation>移除项目“%1”？</translation>
    </message>
    <message>
        <source>Removing the project</source>
        <translation>正在移除项目</translation>
    </message>
    <message>
        <source>The project &quot;%1&quot; is removed.</source>
        <translation>项目“%1”已移除。</translation>
    </message>
    <message>
        <source>A program of the open project is running: stop it first, on the page &quot;Run&quot;.</source>
        <translation>当前项目的程序正在运行：请先在“运行”页面停止。</translation>
    </message>
    <message>
        <source>Open</source>
        <comment>state of a project</comment>
        <translation>已打开</translation>
    </message>
</context>
<context>
    <name>PropertyDialog</name>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>应用</translation>
    </message>
    <message>
        <source>its plugin has no widget for that</source>
        <translation>其插件没有相应的界面</translation>
    </message>
    <message>
        <source>It can&apos;t be applied yet: correct what is entered.</source>
        <translation>暂时无法应用：请更正输入内容。</translation>
    </message>
    <message>
        <source>The line stays as it is: %1. Edit its text instead.</source>
        <translation>该行保持不变：%1。请改为编辑其文本。</translation>
    </message>
</context>
<context>
    <name>RunPage</name>
    <message>
        <source>No project is open</source>
        <translation>没有打开项目</translation>
    </message>
    <message>
        <source>Run</source>
        <translation>运行</translation>
    </message>
    <message>
        <source>Program</source>
        <translation>程序</translation>
    </message>
    <message>
        <source>Operating mode</source>
        <translation>操作模式</translation>
    </message>
    <message>
        <source>Motors</source>
        <translation>电机</translation>
    </message>
    <message>
        <source>  Start</source>
        <translation>  启动</translation>
    </message>
    <message>
        <source>Start filter</source>
        <translation>启动过滤</translation>
    </message>
    <message>
        <source>Stop filter</source>
        <translation>停止过滤</translation>
    </message>
    <message>
        <source>No link to the controller</source>
        <translation>未连接控制器</translation>
    </message>
    <message>
        <source>A plugin has to agree to each start</source>
        <translation>每次启动都需插件同意</translation>
    </message>
    <message>
        <source>No plugin holds back a start</source>
        <translation>没有插件拦截启动</translation>
    </message>
    <message>
        <source>A plugin has its say before each stop</source>
        <translation>每次停止前由插件处理</translation>
    </message>
    <message>
        <source>No plugin holds back a stop</source>
        <translation>没有插件拦截停止</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>未知</translation>
    </message>
    <message>
        <source>The robot may be moving</source>
        <translation>机器人可能在运动</translation>
    </message>
    <message>
        <source>Running</source>
        <translation>运行中</translation>
    </message>
    <message>
        <source>Keep clear of the robot</source>
        <translation>请远离机器人</translation>
    </message>
    <message>
        <source>Stopped</source>
        <translation>已停止</translation>
    </message>
    <message>
        <source>No program is running</source>
        <translation>没有程序在运行</translation>
    </message>
    <message>
        <source>Starting</source>
        <translation>正在启动</translation>
    </message>
    <message>
        <source>A plugin has to agree: %1 s</source>
        <translation>需要插件同意：%1 s</translation>
    </message>
    <message>
        <source>Stopping</source>
        <translation>正在停止</translation>
    </message>
    <message>
        <source>It runs until a plugin agrees: %1 s</source>
        <translation>插件同意前继续运行：%1 s</translation>
    </message>
    <message>
        <source>Manual</source>
        <translation>手动</translation>
    </message>
    <message>
        <source>By hand, at low speed</source>
        <translation>手动，低速</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>自动</translation>
    </message>
    <message>
        <source>Programs run at full speed</source>
        <translation>程序全速运行</translation>
    </message>
    <message>
        <source>Go automatic</source>
        <translation>切换到自动</translation>
    </message>
    <message>
        <source>Go manual</source>
        <translation>切换到手动</translation>
    </message>
    <message>
        <source>On</source>
        <translation>开</translation>
    </message>
    <message>
        <source>The robot can move</source>
        <translation>机器人可以运动</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>关</translation>
    </message>
    <message>
        <source>The robot stands still</source>
        <translation>机器人静止</translation>
    </message>
    <message>
        <source>Switch off</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>Switch on</source>
        <translation>接通</translation>
    </message>
    <message>
        <source>Nothing can be started or stopped here until the controller is connected. If the robot moves, use the emergency stop.</source>
        <translation>连接控制器之前，无法在此启动或停止。如果机器人在运动，请按急停。</translation>
    </message>
    <message>
        <source>A second stop does not wait for the plugin.</source>
        <translation>再次按停止则不等待插件。</translation>
    </message>
    <message>
        <source>Stop takes the start back as well.</source>
        <translation>按停止也会取消启动。</translation>
    </message>
    <message>
        <source>The program is running.</source>
        <translation>程序正在运行。</translation>
    </message>
    <message>
        <source>The motors are off: switch them on before the program is started.</source>
        <translation>电机已关闭：启动程序前请先接通。</translation>
    </message>
    <message>
        <source>  Stop now</source>
        <translation>  立即停止</translation>
    </message>
    <message>
        <source>  Stop</source>
        <translation>  停止</translation>
    </message>
    <message>
        <source>The program has not started: the message at the bottom of the panel says why, if the controller refused. Put that right and start again.</source>
        <translation>程序未启动：如果被控制器拒绝，面板底部的消息会说明原因。请排除后重新启动。</translation>
    </message>
    <message>
        <source>Switching the operating mode</source>
        <translation>正在切换操作模式</translation>
    </message>
    <message>
        <source>The controller did not change the mode: its mode switch or a running program may hold it. Check both and try again.</source>
        <translation>控制器未切换模式：可能被模式开关或正在运行的程序锁定。请检查两者后重试。</translation>
    </message>
    <message>
        <source>Switching the motors on</source>
        <translation>正在接通电机</translation>
    </message>
    <message>
        <source>Switching the motors off</source>
        <translation>正在关闭电机</translation>
    </message>
    <message>
        <source>The controller did not switch the motors: an emergency stop or an open door may hold them. Check both and try again.</source>
        <translation>控制器未切换电机：可能因急停或安全门打开。请检查两者后重试。</translation>
    </message>
</context>
<context>
    <name>SignalsPage</name>
    <message>
        <source>On</source>
        <translation>开</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>关</translation>
    </message>
    <message>
        <source>Set …</source>
        <translation>设置…</translation>
    </message>
    <message>
        <source>Switch off</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>Switch on</source>
        <translation>接通</translation>
    </message>
    <message>
        <source>System</source>
        <translation>系统</translation>
    </message>
    <message>
        <source>System: %1</source>
        <translation>系统：%1</translation>
    </message>
    <message>
        <source>A number is needed, with a point before its decimals: 12.5</source>
        <translation>请输入数字，小数点用“.”：12.5</translation>
    </message>
    <message>
        <source>A group of bits takes whole numbers from 0 on.</source>
        <translation>位组只接受从 0 开始的整数。</translation>
    </message>
    <message>
        <source>Signals</source>
        <translation>信号</translation>
    </message>
    <message>
        <source>Simulate inputs</source>
        <translation>仿真输入</translation>
    </message>
    <message>
        <source>Registers</source>
        <translation>寄存器</translation>
    </message>
    <message>
        <source>Find</source>
        <translation>查找</translation>
    </message>
    <message>
        <source>Signal</source>
        <translation>信号</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>值</translation>
    </message>
    <message>
        <source>Use</source>
        <translation>用途</translation>
    </message>
    <message>
        <source>Register</source>
        <translation>寄存器</translation>
    </message>
    <message>
        <source>Values</source>
        <translation>数值</translation>
    </message>
    <message>
        <source>No signal fits</source>
        <translation>没有匹配的信号</translation>
    </message>
    <message>
        <source>Neither a name nor a label has these letters.</source>
        <translation>名称和标签中都没有这些字符。</translation>
    </message>
    <message>
        <source>No signals of this type</source>
        <translation>没有此类信号</translation>
    </message>
    <message>
        <source>The controller has none.</source>
        <translation>控制器没有此类信号。</translation>
    </message>
    <message>
        <source>They appear when the controller is connected.</source>
        <translation>连接控制器后显示。</translation>
    </message>
    <message>
        <source>%1: no link to the controller, values are not known</source>
        <translation>%1：未连接控制器，值未知</translation>
    </message>
    <message>
        <source>No registers</source>
        <translation>没有寄存器</translation>
    </message>
    <message>
        <source>No register fits</source>
        <translation>没有匹配的寄存器</translation>
    </message>
    <message>
        <source>The controller has none that are shown here.</source>
        <translation>控制器没有可在此显示的寄存器。</translation>
    </message>
    <message>
        <source>Registers: what the robot shares with other controllers</source>
        <translation>寄存器：机器人与其他控制器共享的数据</translation>
    </message>
    <message>
        <source>Registers: no link to the controller, values are not known</source>
        <translation>寄存器：未连接控制器，值未知</translation>
    </message>
    <message>
        <source>End simulation</source>
        <translation>结束仿真</translation>
    </message>
    <message>
        <source>Inputs are simulated: programs do not see the real cell. They can be set in this table.</source>
        <translation>输入正在仿真：程序看到的不是真实单元。可在此表中设置输入。</translation>
    </message>
    <message>
        <source>Set %1</source>
        <translation>设置 %1</translation>
    </message>
    <message>
        <source>Set</source>
        <translation>设置</translation>
    </message>
    <message>
        <source>Simulate the inputs?</source>
        <translation>仿真输入？</translation>
    </message>
    <message>
        <source>Programs then see the values that are set here, not those of the cell. Nobody notices a real button or sensor until the simulation ends.</source>
        <translation>程序将看到此处设置的值，而不是单元的值。仿真结束前，真实的按钮和传感器都不起作用。</translation>
    </message>
    <message>
        <source>Simulate</source>
        <translation>仿真</translation>
    </message>
    <message>
        <source>The controller could not be asked: wait until it is connected and try again.</source>
        <translation>无法向控制器发送请求：请等到连接后重试。</translation>
    </message>
</context>
<context>
    <name>SystemPage</name>
    <message>
        <source>Plugins</source>
        <translation>插件</translation>
    </message>
    <message>
        <source>Versions</source>
        <translation>版本</translation>
    </message>
    <message>
        <source>Plugin library</source>
        <translation>插件库</translation>
    </message>
    <message>
        <source>Panel</source>
        <translation>面板</translation>
    </message>
    <message>
        <source>Event bus</source>
        <translation>事件总线</translation>
    </message>
    <message>
        <source>Events published</source>
        <translation>已发布事件</translation>
    </message>
    <message>
        <source>Handlers called</source>
        <translation>已调用处理函数</translation>
    </message>
    <message>
        <source>Subscriptions</source>
        <translation>订阅</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>语言</translation>
    </message>
</context>
<context>
    <name>VariablesPage</name>
    <message>
        <source>Persistent</source>
        <translation>持久</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>值</translation>
    </message>
    <message>
        <source>Variables</source>
        <translation>变量</translation>
    </message>
    <message>
        <source>Variable</source>
        <translation>变量</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>类型</translation>
    </message>
    <message>
        <source>Kept</source>
        <translation>保持</translation>
    </message>
    <message>
        <source>On the controller</source>
        <translation>控制器中的值</translation>
    </message>
    <message>
        <source>Save again</source>
        <translation>重新保存</translation>
    </message>
    <message>
        <source>Change</source>
        <translation>修改</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>删除</translation>
    </message>
    <message>
        <source>New variable</source>
        <translation>新建变量</translation>
    </message>
    <message>
        <source>No variables yet</source>
        <translation>还没有变量</translation>
    </message>
    <message>
        <source>&quot;New variable&quot; makes the first one of this project.</source>
        <translation>“新建变量”可创建该项目的第一个变量。</translation>
    </message>
    <message>
        <source>They can be made when the controller is connected.</source>
        <translation>连接控制器后即可创建。</translation>
    </message>
    <message>
        <source>This controller does not report values while programs run: its version would have to be 2.3, 3.0, 3.1 or 3.2.</source>
        <translation>该控制器在程序运行时不报告值：需要版本 2.3、3.0、3.1 或 3.2。</translation>
    </message>
    <message>
        <source>No link to the controller: nothing can be changed</source>
        <translation>未连接控制器：无法修改</translation>
    </message>
    <message>
        <source>No project is open: these variables belong to none</source>
        <translation>没有打开项目：这些变量不属于任何项目</translation>
    </message>
    <message>
        <source>Project %1, variables: %2</source>
        <translation>项目 %1，变量：%2</translation>
    </message>
    <message>
        <source>Create</source>
        <translation>创建</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名称</translation>
    </message>
    <message>
        <source>Persistent: programs keep its changes</source>
        <translation>持久：程序保留对它的更改</translation>
    </message>
    <message>
        <source>The variable needs a name.</source>
        <translation>变量需要名称。</translation>
    </message>
    <message>
        <source>There is a variable &quot;%1&quot; already: choose another name, or change that one.</source>
        <translation>变量“%1”已存在：请选择其他名称，或修改该变量。</translation>
    </message>
    <message>
        <source>Change &quot;%1&quot;</source>
        <translation>修改“%1”</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>Delete the variable &quot;%1&quot;?</source>
        <translation>删除变量“%1”？</translation>
    </message>
    <message>
        <source>Its value is lost, and programs that use it fail.</source>
        <translation>其值将丢失，使用它的程序会失败。</translation>
    </message>
    <message>
        <source>Creating &quot;%1&quot;</source>
        <translation>正在创建“%1”</translation>
    </message>
    <message>
        <source>The variable &quot;%1&quot; is there.</source>
        <translation>变量“%1”已创建。</translation>
    </message>
    <message>
        <source>The controller did not take &quot;%1&quot;, and it was not made: the name may be in use there, or the value may not fit. Choose another one.</source>
        <translation>控制器未接受“%1”，变量未创建：名称可能已被占用，或值不合适。请另选一个。</translation>
    </message>
    <message>
        <source>Changing &quot;%1&quot;</source>
        <translation>正在修改“%1”</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has its new value.</source>
        <translation>“%1”已有新值。</translation>
    </message>
    <message>
        <source>The variable &quot;%1&quot; is no longer in the project, and nothing was changed: choose another one.</source>
        <translation>变量“%1”已不在项目中，未作任何更改：请选择其他变量。</translation>
    </message>
    <message>
        <source>The controller did not take the new value, and &quot;%1&quot; has its old one: a program may use it, or the value may not fit. Check both, and try again.</source>
        <translation>控制器未接受新值，“%1”保持旧值：可能有程序在使用它，或值不合适。请检查两者后重试。</translation>
    </message>
    <message>
        <source>Deleting &quot;%1&quot;</source>
        <translation>正在删除“%1”</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is deleted.</source>
        <translation>“%1”已删除。</translation>
    </message>
    <message>
        <source>The controller did not let go of &quot;%1&quot;, and it stays: a program may use it. Stop the program, check the link, and try again.</source>
        <translation>控制器未释放“%1”，因此保留：可能有程序在使用它。请停止程序，检查连接后重试。</translation>
    </message>
    <message>
        <source>There is no variable left to save: the next one that is made saves all.</source>
        <translation>没有需要保存的变量：下次创建变量时会保存全部。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is changed on the panel and in the running controller, but not saved there: check the network to it and the space on the panel&apos;s disk, then save again.</source>
        <translation>“%1”已在面板和运行中的控制器上更改，但控制器上未保存：请检查与控制器的网络和面板磁盘空间，然后重新保存。</translation>
    </message>
    <message>
        <source>There is no link to the controller, and nothing was changed: try again when it is connected.</source>
        <translation>未连接控制器，未作任何更改：请在连接后重试。</translation>
    </message>
</context>
<context>
    <name>brisa::ControllerManager</name>
    <message>
        <source>The controller calls its robot &quot;%1&quot;, which can&apos;t name a directory: its projects are kept as those of an unknown robot. Give the robot a plain name.</source>
        <translation>控制器将机器人命名为“%1”，不能用作目录名：其项目按未知机器人的项目保存。请为机器人取一个普通名称。</translation>
    </message>
</context>
<context>
    <name>brisa::LogBanner</name>
    <message>
        <source>Messages</source>
        <translation>消息</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>清除</translation>
    </message>
    <message>
        <source>No messages</source>
        <translation>没有消息</translation>
    </message>
    <message>
        <source>Hide the messages</source>
        <translation>隐藏消息</translation>
    </message>
    <message>
        <source>Show all messages</source>
        <translation>显示所有消息</translation>
    </message>
</context>
<context>
    <name>brisa::ModalCounter</name>
    <message>
        <source>Open windows: %1</source>
        <translation>打开的窗口：%1</translation>
    </message>
</context>
<context>
    <name>kest::ExpandSideBar</name>
    <message>
        <source>Choose a page</source>
        <translation>选择页面</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
</context>
<context>
    <name>kest::ModuleRunner</name>
    <message>
        <source>No module is registered under the name &quot;%1&quot;.</source>
        <translation>没有以“%1”为名注册的模块。</translation>
    </message>
    <message>
        <source>The maker of &quot;%1&quot; returned no module.</source>
        <translation>“%1”的创建函数未返回模块。</translation>
    </message>
    <message>
        <source>an unknown exception</source>
        <translation>未知异常</translation>
    </message>
    <message>
        <source>&quot;%1&quot; failed in %2: %3</source>
        <translation>“%1”在 %2 中失败：%3</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be made: %2</source>
        <translation>无法创建“%1”：%2</translation>
    </message>
</context>
<context>
    <name>kit::Form</name>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
</context>
<context>
    <name>kit::NoticeLine</name>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
</context>
<context>
    <name>kit::Page</name>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Please wait: the panel takes no other command meanwhile.</source>
        <translation>请稍候：在此期间面板不接受其他命令。</translation>
    </message>
</context>
<context>
    <name>navigation</name>
    <message>
        <source>Home</source>
        <translation>主页</translation>
    </message>
    <message>
        <source>Plugins</source>
        <translation>插件</translation>
    </message>
    <message>
        <source>Points</source>
        <translation>点位</translation>
    </message>
    <message>
        <source>Projects</source>
        <translation>项目</translation>
    </message>
    <message>
        <source>Run</source>
        <translation>运行</translation>
    </message>
    <message>
        <source>Signals</source>
        <translation>信号</translation>
    </message>
    <message>
        <source>Overview</source>
        <translation>概览</translation>
    </message>
    <message>
        <source>Variables</source>
        <translation>变量</translation>
    </message>
    <message>
        <source>Program</source>
        <translation>程序</translation>
    </message>
</context>
<context>
    <name>panel</name>
    <message>
        <source>The stand-in %1 can&apos;t be used: copying files may ask for a password. Choose another runtime directory, without &quot;:&quot; in its name, where programs can be written and run.</source>
        <translation>替代程序 %1 无法使用：复制文件时可能要求输入密码。请选择名称中不含“:”、且可写入并运行程序的其他运行目录。</translation>
    </message>
    <message>
        <source>rsync is not installed: nothing can be copied to the controller. Install rsync and start the panel again.</source>
        <translation>未安装 rsync：无法向控制器复制任何内容。请安装 rsync 并重新启动面板。</translation>
    </message>
    <message>
        <source>%1 can&apos;t be made a link to %2: no directory can be copied to the controller. Remove what is there, or check its permissions.</source>
        <translation>无法将 %1 设为指向 %2 的链接：无法向控制器复制目录。请删除该处的内容，或检查其权限。</translation>
    </message>
    <message>
        <source>The operator panel.</source>
        <translation>操作面板。</translation>
    </message>
    <message>
        <source>Loads the plugins of DIR; may be given several times.</source>
        <translation>加载 DIR 中的插件；可多次给出。</translation>
    </message>
    <message>
        <source>Works in DIR: its log, workspace and tools.</source>
        <translation>在 DIR 中工作：日志、工作区和工具。</translation>
    </message>
    <message>
        <source>Reads and keeps the settings in FILE.</source>
        <translation>从 FILE 读取并保存设置。</translation>
    </message>
    <message>
        <source>Ends after SECONDS.</source>
        <translation>SECONDS 秒后结束。</translation>
    </message>
    <message>
        <source>Saves the window as PNG to FILE just before the end.</source>
        <translation>结束前将窗口以 PNG 保存到 FILE。</translation>
    </message>
    <message>
        <source>Shows the page KEY of the centre area first.</source>
        <translation>首先显示中心区域的页面 KEY。</translation>
    </message>
    <message>
        <source>Speaks CODE: %1.</source>
        <translation>使用语言 CODE：%1。</translation>
    </message>
    <message>
        <source>Covers the whole screen.</source>
        <translation>全屏显示。</translation>
    </message>
    <message>
        <source>Lets the plugin NAME, which took the panel down, take part again.</source>
        <translation>让曾导致面板崩溃的插件 NAME 重新参与。</translation>
    </message>
    <message>
        <source>Unknown argument &quot;%1&quot;.</source>
        <translation>未知参数“%1”。</translation>
    </message>
    <message>
        <source>--for needs a number of seconds, not &quot;%1&quot;.</source>
        <translation>--for 需要秒数，而不是“%1”。</translation>
    </message>
    <message>
        <source>--language needs one of %1, not &quot;%2&quot;.</source>
        <translation>--language 需要 %1 之一，而不是“%2”。</translation>
    </message>
    <message>
        <source>%1 is not a library: put the file there that the plugin&apos;s build made, or remove this one.</source>
        <translation>%1 不是库：请放入插件构建生成的文件，或删除此文件。</translation>
    </message>
    <message>
        <source>%1 is a program, not a plugin library: put the library there, or remove it.</source>
        <translation>%1 是程序，不是插件库：请放入库文件，或将其删除。</translation>
    </message>
    <message>
        <source>%1 is cut short: copy the whole file to the panel again.</source>
        <translation>%1 不完整：请将完整文件重新复制到面板。</translation>
    </message>
    <message>
        <source>%1 was built for %2 and this panel is %3: build it for %3.</source>
        <translation>%1 是为 %2 构建的，而此面板是 %3：请为 %3 构建。</translation>
    </message>
    <message>
        <source>%1 has no plugin tag, so nobody knows what it was built against: build it with zeplet_add_plugin().</source>
        <translation>%1 没有插件标签，无法得知其构建环境：请使用 zeplet_add_plugin() 构建。</translation>
    </message>
    <message>
        <source>%1 has a name in its tag that is not a plain word: name it with letters, digits, &quot;_&quot; and &quot;-&quot; in zeplet_add_plugin().</source>
        <translation>%1 的标签中的名称不是普通单词：请在 zeplet_add_plugin() 中用字母、数字、“_”和“-”命名。</translation>
    </message>
    <message>
        <source>%1 was built against version %2 of the plugin library and this panel has %3: build it against %3.</source>
        <translation>%1 基于插件库版本 %2 构建，而此面板为 %3：请基于 %3 构建。</translation>
    </message>
    <message>
        <source>%1 was built against Qt %2 and this panel has Qt %3: build it against Qt %3.</source>
        <translation>%1 基于 Qt %2 构建，而此面板为 Qt %3：请基于 Qt %3 构建。</translation>
    </message>
    <message>
        <source>%1 was built with the compiler interface %2 and this panel uses %3: build it with %3.</source>
        <translation>%1 使用编译器接口 %2 构建，而此面板使用 %3：请使用 %3 构建。</translation>
    </message>
    <message>
        <source>%1 is not a plain file: put a plugin library there, or remove it.</source>
        <translation>%1 不是普通文件：请放入插件库，或将其删除。</translation>
    </message>
    <message>
        <source>%1 can&apos;t be read (%2): check the file&apos;s permissions.</source>
        <translation>无法读取 %1（%2）：请检查文件权限。</translation>
    </message>
    <message>
        <source>%1 has a damaged plugin tag: build it again with zeplet_add_plugin().</source>
        <translation>%1 的插件标签已损坏：请使用 zeplet_add_plugin() 重新构建。</translation>
    </message>
    <message>
        <source>%1 uses %2, which no library of this panel has: link the library that defines it.</source>
        <translation>%1 使用 %2，但此面板的库中都没有：请链接定义它的库。</translation>
    </message>
    <message>
        <source>%1 needs the library %2, which this panel lacks: install %2.</source>
        <translation>%1 需要库 %2，而此面板没有：请安装 %2。</translation>
    </message>
    <message>
        <source>%1 needs %2, which is newer than this panel&apos;s: build it on the panel&apos;s system.</source>
        <translation>%1 需要 %2，比此面板的新：请在面板的系统上构建。</translation>
    </message>
    <message>
        <source>%1 can&apos;t be opened (%2): build it again for this panel.</source>
        <translation>无法打开 %1（%2）：请为此面板重新构建。</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>未知</translation>
    </message>
    <message>
        <source>The controller does not say</source>
        <translation>控制器未报告</translation>
    </message>
    <message>
        <source>No link to the controller</source>
        <translation>未连接控制器</translation>
    </message>
    <message>
        <source>No link</source>
        <translation>无连接</translation>
    </message>
    <message>
        <source>Service hub only</source>
        <translation>仅服务枢纽</translation>
    </message>
    <message>
        <source>Looking for the controller</source>
        <translation>正在查找控制器</translation>
    </message>
    <message>
        <source>In part</source>
        <translation>部分连接</translation>
    </message>
    <message>
        <source>The service hub is missing</source>
        <translation>缺少服务枢纽</translation>
    </message>
    <message>
        <source>Connected</source>
        <translation>已连接</translation>
    </message>
    <message>
        <source>Controller and service hub</source>
        <translation>控制器和服务枢纽</translation>
    </message>
    <message>
        <source>On</source>
        <translation>开</translation>
    </message>
    <message>
        <source>The robot can move</source>
        <translation>机器人可以运动</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>关</translation>
    </message>
    <message>
        <source>The motors are without power</source>
        <translation>电机未通电</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>自动</translation>
    </message>
    <message>
        <source>Programs run by themselves</source>
        <translation>程序自动运行</translation>
    </message>
    <message>
        <source>Manual</source>
        <translation>手动</translation>
    </message>
    <message>
        <source>Moves by hand, at low speed</source>
        <translation>手动移动，低速</translation>
    </message>
    <message>
        <source>Running</source>
        <translation>运行中</translation>
    </message>
    <message>
        <source>A program is running</source>
        <translation>程序正在运行</translation>
    </message>
    <message>
        <source>Stopped</source>
        <translation>已停止</translation>
    </message>
    <message>
        <source>No program is running</source>
        <translation>没有程序在运行</translation>
    </message>
    <message>
        <source>Level %1</source>
        <translation>等级 %1</translation>
    </message>
    <message>
        <source>Says what may be changed</source>
        <translation>决定允许更改的内容</translation>
    </message>
    <message>
        <source>Shows the page that was shown last, else that of --page.</source>
        <translation>显示上次显示的页面，否则显示 --page 指定的页面。</translation>
    </message>
    <message>
        <source>Shows nothing, starts the plugins without a controller, prints what became of each library (NAME, STATE, FILE, SENTENCE with tabs between) and ends. A plugin that takes it down here is named by the next --list.</source>
        <translation>不显示窗口，在没有控制器的情况下启动插件，输出每个库的结果（NAME、STATE、FILE、SENTENCE，以制表符分隔）后结束。若某插件使其崩溃，下一次 --list 会指出。</translation>
    </message>
    <message>
        <source>throws while it is loaded (%1)</source>
        <translation>加载时抛出异常（%1）</translation>
    </message>
    <message>
        <source>does not come back while it is loaded (within %1 s)</source>
        <translation>加载时没有返回（%1 秒内）</translation>
    </message>
    <message>
        <source>crashes while it is loaded (%1)</source>
        <translation>加载时崩溃（%1）</translation>
    </message>
    <message>
        <source>ends the program while it is loaded</source>
        <translation>加载时结束程序</translation>
    </message>
    <message>
        <source>%1 %2: correct what its static initialisers do.</source>
        <translation>%1 %2：请修正其静态初始化的行为。</translation>
    </message>
    <message>
        <source>%1 can&apos;t be written: %2</source>
        <translation>无法写入 %1：%2</translation>
    </message>
    <message>
        <source>%1 is a directory: put the plugin library itself there, or remove it.</source>
        <translation>%1 是目录：请放入插件库文件本身，或将其删除。</translation>
    </message>
</context>
<context>
    <name>panel::HomePage</name>
    <message>
        <source>%1 of %2</source>
        <translation>%1 / %2</translation>
    </message>
    <message>
        <source>The page &quot;Overview&quot; says why</source>
        <translation>“概览”页面说明原因</translation>
    </message>
    <message>
        <source>All plugins are running</source>
        <translation>所有插件都在运行</translation>
    </message>
    <message>
        <source>Nothing can be commanded until the controller is found.</source>
        <translation>找到控制器之前无法发出命令。</translation>
    </message>
    <message>
        <source>A program is running: keep clear of the robot.</source>
        <translation>程序正在运行：请远离机器人。</translation>
    </message>
    <message>
        <source>The motors are on: the robot is ready to move.</source>
        <translation>电机已接通：机器人可以运动。</translation>
    </message>
    <message>
        <source>The motors are off: the robot stands still.</source>
        <translation>电机已关闭：机器人静止。</translation>
    </message>
    <message>
        <source>Connection</source>
        <translation>连接</translation>
    </message>
    <message>
        <source>Motor power</source>
        <translation>电机</translation>
    </message>
    <message>
        <source>Operating mode</source>
        <translation>操作模式</translation>
    </message>
    <message>
        <source>Program</source>
        <translation>程序</translation>
    </message>
    <message>
        <source>User</source>
        <translation>用户</translation>
    </message>
    <message>
        <source>Plugins</source>
        <translation>插件</translation>
    </message>
    <message>
        <source>Robot type</source>
        <translation>机器人型号</translation>
    </message>
    <message>
        <source>Identity</source>
        <translation>标识</translation>
    </message>
    <message>
        <source>Controller version</source>
        <translation>控制器版本</translation>
    </message>
    <message>
        <source>Controller address</source>
        <translation>控制器地址</translation>
    </message>
    <message>
        <source>Robot</source>
        <translation>机器人</translation>
    </message>
</context>
<context>
    <name>panel::LastPage</name>
    <message>
        <source>%1 can&apos;t be written.</source>
        <translation>无法写入 %1。</translation>
    </message>
</context>
<context>
    <name>panel::MainWindow</name>
    <message>
        <source>Robot panel</source>
        <translation>机器人面板</translation>
    </message>
</context>
<context>
    <name>panel::PanelApplication</name>
    <message>
        <source>A plugin failed while %1 handled an event: %2</source>
        <translation>%1 处理事件时插件出错：%2</translation>
    </message>
    <message>
        <source>an unknown exception</source>
        <translation>未知异常</translation>
    </message>
</context>
<context>
    <name>panel::PanelSession</name>
    <message>
        <source>The panel is running.</source>
        <translation>面板正在运行。</translation>
    </message>
    <message>
        <source>The runtime directory %1 can&apos;t be used: check its permissions.</source>
        <translation>运行目录 %1 无法使用：请检查其权限。</translation>
    </message>
    <message>
        <source>There is no page &quot;%1&quot;.</source>
        <translation>没有页面“%1”。</translation>
    </message>
    <message>
        <source>The panel has ended.</source>
        <translation>面板已结束。</translation>
    </message>
    <message>
        <source>The picture %1 can&apos;t be saved.</source>
        <translation>无法保存图片 %1。</translation>
    </message>
</context>
<context>
    <name>panel::PluginLoader</name>
    <message>
        <source>%1; correct the plugin and start the panel again.</source>
        <translation>%1；请修正插件并重新启动面板。</translation>
    </message>
    <message>
        <source>The plugin directory %1 can&apos;t be read: create it, correct its permissions, or start the panel with another one.</source>
        <translation>无法读取插件目录 %1：请创建它、更正其权限，或使用其他目录启动面板。</translation>
    </message>
    <message>
        <source>%1 was left out because it took the panel down (%2): replace it with a corrected one, or try it again.</source>
        <translation>%1 因导致面板崩溃（%2）而被跳过：请替换为修正后的版本，或重试。</translation>
    </message>
    <message>
        <source>%1 registers the name &quot;%2&quot;, which is taken: remove it, or give it a name of its own.</source>
        <translation>%1 注册的名称“%2”已被占用：请将其删除，或改用自己的名称。</translation>
    </message>
    <message>
        <source>%1 registers no plugin named &quot;%2&quot;: call zepletFactory().regist() in a static initialiser of the library.</source>
        <translation>%1 没有注册名为“%2”的插件：请在库的静态初始化中调用 zepletFactory().regist()。</translation>
    </message>
    <message>
        <source>%1 registers &quot;%2&quot; but is tagged &quot;%3&quot;: use one name for both.</source>
        <translation>%1 注册“%2”，但标签为“%3”：请使用同一名称。</translation>
    </message>
    <message>
        <source>%1 takes part again when the panel starts next.</source>
        <translation>%1 将在面板下次启动时重新参与。</translation>
    </message>
    <message>
        <source>%1 registers the name &quot;%2&quot;, which %3 has already: remove one of the two, or give one a name of its own.</source>
        <translation>%1 注册的名称“%2”已被 %3 使用：请删除其中一个，或为其中一个改用自己的名称。</translation>
    </message>
</context>
<context>
    <name>panel::RunKeys</name>
    <message>
        <source>Start</source>
        <translation>启动</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>停止</translation>
    </message>
</context>
<context>
    <name>panel::WaitStrip</name>
    <message>
        <source>Stop now</source>
        <translation>立即停止</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Waiting for a plugin to stop the program</source>
        <translation>正在等待插件停止程序</translation>
    </message>
    <message>
        <source>Waiting for a plugin to start the program</source>
        <translation>正在等待插件启动程序</translation>
    </message>
    <message>
        <source>Keep running</source>
        <translation>继续运行</translation>
    </message>
</context>
<context>
    <name>points</name>
    <message>
        <source>&quot;%1&quot; is changed on this panel but not on the controller: check the link and the panel&apos;s disk, then save again.</source>
        <translation>“%1”已在此面板上更改，但控制器上没有：请检查连接和面板磁盘，然后重新保存。</translation>
    </message>
    <message>
        <source>There is no link to the controller, and nothing was changed: try again when it is connected.</source>
        <translation>未连接控制器，未作任何更改：请在连接后重试。</translation>
    </message>
    <message>
        <source>The point &quot;%1&quot; is no longer in the project, and nothing was changed: choose another one.</source>
        <translation>点“%1”已不在项目中，未作任何更改：请选择其他点。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is changed on this panel, but the controller did not take it, or it could not be saved: check the link and the panel&apos;s disk, then save again.</source>
        <translation>“%1”已在此面板上更改，但控制器未接受，或无法保存：请检查连接和面板磁盘，然后重新保存。</translation>
    </message>
    <message>
        <source>The controller did not tell where the robot is, and nothing was taught to &quot;%1&quot;: check that it knows the tool and the work object, and try again.</source>
        <translation>控制器未报告机器人位置，“%1”未示教：请检查它是否知道该工具和工件坐标系，然后重试。</translation>
    </message>
    <message>
        <source>There is a point &quot;%1&quot; already: choose another name, or teach that one.</source>
        <translation>点“%1”已存在：请选择其他名称，或示教该点。</translation>
    </message>
    <message>
        <source>The point &quot;%1&quot; could not be made: choose another name.</source>
        <translation>无法创建点“%1”：请选择其他名称。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is taught.</source>
        <translation>“%1”已示教。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has its new values.</source>
        <translation>“%1”已有新值。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a copy of the first element: teach it its own position.</source>
        <translation>“%1”是第一个元素的副本：请示教其自身位置。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is deleted.</source>
        <translation>“%1”已删除。</translation>
    </message>
    <message>
        <source>The controller did not let go of &quot;%1&quot;, and it stays: a program may use it. Stop the program, check the link, and try again.</source>
        <translation>控制器未释放“%1”，因此保留：可能有程序在使用它。请停止程序，检查连接后重试。</translation>
    </message>
    <message>
        <source>There is no link to the controller: save again when it is connected.</source>
        <translation>未连接控制器：请在连接后重新保存。</translation>
    </message>
    <message>
        <source>All points are saved on the panel and on the controller.</source>
        <translation>所有点都已保存到面板和控制器。</translation>
    </message>
    <message>
        <source>The points could not be saved: check the network to the controller and the space on the panel&apos;s disk, then save again.</source>
        <translation>无法保存点：请检查与控制器的网络和面板磁盘空间，然后重新保存。</translation>
    </message>
    <message>
        <source>The point needs a name.</source>
        <translation>点需要名称。</translation>
    </message>
    <message>
        <source>Cartesian: the tool&apos;s pose</source>
        <translation>笛卡尔：工具的位姿</translation>
    </message>
    <message>
        <source>Joint: each axis&apos; angle</source>
        <translation>关节：各轴的角度</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>类型</translation>
    </message>
    <message>
        <source>Tool</source>
        <translation>工具</translation>
    </message>
    <message>
        <source>Work object</source>
        <translation>工件坐标系</translation>
    </message>
    <message>
        <source>Axis J%1 goes from %2° to %3°: choose an angle between them.</source>
        <translation>轴 J%1 的范围为 %2° 至 %3°：请选择其间的角度。</translation>
    </message>
    <message>
        <source>Teach a new point</source>
        <translation>示教新点</translation>
    </message>
    <message>
        <source>Teach</source>
        <translation>示教</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名称</translation>
    </message>
    <message>
        <source>Persistent: programs keep its changes</source>
        <translation>持久：程序保留对它的更改</translation>
    </message>
    <message>
        <source>Teach &quot;%1&quot;</source>
        <translation>示教“%1”</translation>
    </message>
    <message>
        <source>Its old position is replaced by the one where the robot is now.</source>
        <translation>其旧位置将被机器人当前位置取代。</translation>
    </message>
    <message>
        <source>Values of &quot;%1&quot;</source>
        <translation>“%1”的数值</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>%1: a number is needed, with a point before its decimals: 12.5</source>
        <translation>%1：请输入数字，小数点用“.”：12.5</translation>
    </message>
    <message>
        <source>Add an element to &quot;%1&quot;</source>
        <translation>向“%1”添加元素</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>添加</translation>
    </message>
    <message>
        <source>First index</source>
        <translation>第一索引</translation>
    </message>
    <message>
        <source>Second index</source>
        <translation>第二索引</translation>
    </message>
    <message>
        <source>Third index</source>
        <translation>第三索引</translation>
    </message>
    <message>
        <source>An index is a whole number from 0 to 9999.</source>
        <translation>索引是 0 到 9999 的整数。</translation>
    </message>
    <message>
        <source>The element %1 is there already: choose another index.</source>
        <translation>元素 %1 已存在：请选择其他索引。</translation>
    </message>
</context>
<context>
    <name>program</name>
    <message>
        <source>its plugin gave an empty function</source>
        <translation>其插件提供了空函数</translation>
    </message>
    <message>
        <source>its plugin failed with &quot;%1&quot;</source>
        <translation>其插件出错：“%1”</translation>
    </message>
    <message>
        <source>its plugin failed without saying why</source>
        <translation>其插件出错，原因不明</translation>
    </message>
    <message>
        <source>it is a link to another place</source>
        <translation>它是指向别处的链接</translation>
    </message>
    <message>
        <source>it is no longer there</source>
        <translation>它已不存在</translation>
    </message>
    <message>
        <source>it is no plain file</source>
        <translation>它不是普通文件</translation>
    </message>
    <message>
        <source>it is larger than 1 MiB</source>
        <translation>它大于 1 MiB</translation>
    </message>
    <message>
        <source>The program needs a name.</source>
        <translation>程序需要名称。</translation>
    </message>
    <message>
        <source>A name has at most %1 characters.</source>
        <translation>名称最多 %1 个字符。</translation>
    </message>
    <message>
        <source>A name begins with a letter or a digit and has letters, digits, spaces and the signs _ - . only.</source>
        <translation>名称以字母或数字开头，只能包含字母、数字、空格以及符号 _ - .</translation>
    </message>
    <message>
        <source>There is a program &quot;%1&quot; already: choose another name.</source>
        <translation>已有程序“%1”：请选择其他名称。</translation>
    </message>
    <message>
        <source>it is no text in UTF-8</source>
        <translation>它不是 UTF-8 文本</translation>
    </message>
    <message>
        <source>&quot;%1&quot; can&apos;t be shown: %2. The file stays as it is; put a text file in its place, or choose another program.</source>
        <translation>无法显示“%1”：%2。文件保持不变；请用文本文件替换，或选择其他程序。</translation>
    </message>
    <message>
        <source>A line has at most %1 characters: shorten it.</source>
        <translation>一行最多 %1 个字符：请缩短。</translation>
    </message>
    <message>
        <source>It holds characters that are no text: leave them out.</source>
        <translation>其中含有非文本字符：请去掉。</translation>
    </message>
    <message>
        <source>One instruction has at most %1 lines.</source>
        <translation>一条指令最多 %1 行。</translation>
    </message>
    <message>
        <source>There is no text: fill in what is missing.</source>
        <translation>没有文本：请补全缺少的内容。</translation>
    </message>
</context>
<context>
    <name>projects</name>
    <message>
        <source>No project can be named &quot;%1&quot;: the name is reserved or has characters that a file&apos;s name can&apos;t have. Choose another name.</source>
        <translation>项目不能命名为“%1”：该名称被保留，或含有文件名不允许的字符。请选择其他名称。</translation>
    </message>
    <message>
        <source>There is a project &quot;%1&quot; already: choose another name, or open that one.</source>
        <translation>项目“%1”已存在：请选择其他名称，或打开该项目。</translation>
    </message>
    <message>
        <source>The project &quot;%1&quot; could not be written to the panel&apos;s disk: the name may be too long, the disk full or write-protected. Choose a shorter name, or have the disk checked, and try again.</source>
        <translation>无法将项目“%1”写入面板磁盘：名称可能过长，或磁盘已满或被写保护。请选择更短的名称，或让人检查磁盘后重试。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; can&apos;t be opened, because no project has such a name: choose one of the list.</source>
        <translation>无法打开“%1”，因为没有该名称的项目：请选择列表中的项目。</translation>
    </message>
    <message>
        <source>The project &quot;%1&quot; is no longer on the panel&apos;s disk: choose another one of the list, or create it anew.</source>
        <translation>项目“%1”已不在面板磁盘上：请选择列表中的其他项目，或重新创建。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; can&apos;t be removed, because the panel needs it itself: choose a project of the list.</source>
        <translation>无法移除“%1”，因为面板自身需要它：请选择列表中的项目。</translation>
    </message>
    <message>
        <source>The project &quot;%1&quot; was no longer on the panel&apos;s disk: nothing is left to be removed.</source>
        <translation>项目“%1”已不在面板磁盘上：没有可移除的内容。</translation>
    </message>
    <message>
        <source>The project &quot;%1&quot; could not be removed as a whole, because its directory is write-protected or in use: have its permissions checked and try again.</source>
        <translation>无法完全移除项目“%1”，因为其目录被写保护或正在使用：请让人检查权限后重试。</translation>
    </message>
    <message>
        <source>The project needs a name.</source>
        <translation>项目需要名称。</translation>
    </message>
    <message>
        <source>A name is no path: leave out &quot;/&quot;, and dots that stand alone.</source>
        <translation>名称不是路径：请去掉“/”和单独的点。</translation>
    </message>
</context>
<context>
    <name>qo::kivra::PhysicalButtonRegistry</name>
    <message>
        <source>The key &quot;%1&quot; failed: %2</source>
        <translation>按键“%1”出错：%2</translation>
    </message>
    <message>
        <source>an unknown exception</source>
        <translation>未知异常</translation>
    </message>
</context>
<context>
    <name>rpc::Client</name>
    <message>
        <source>no answer in time</source>
        <translation>没有及时应答</translation>
    </message>
    <message>
        <source>the link was lost</source>
        <translation>连接中断</translation>
    </message>
    <message>
        <source>no reason was given</source>
        <translation>未说明原因</translation>
    </message>
</context>
<context>
    <name>signals</name>
    <message>
        <source>Digital inputs</source>
        <translation>数字输入</translation>
    </message>
    <message>
        <source>Digital outputs</source>
        <translation>数字输出</translation>
    </message>
    <message>
        <source>Group inputs</source>
        <translation>组输入</translation>
    </message>
    <message>
        <source>Group outputs</source>
        <translation>组输出</translation>
    </message>
    <message>
        <source>Analogue inputs</source>
        <translation>模拟量输入</translation>
    </message>
    <message>
        <source>Analogue outputs</source>
        <translation>模拟量输出</translation>
    </message>
</context>
<context>
    <name>tavik</name>
    <message>
        <source>it is a symbolic link</source>
        <translation>它是符号链接</translation>
    </message>
    <message>
        <source>it is no plain file</source>
        <translation>它不是普通文件</translation>
    </message>
    <message>
        <source>it is larger than %1 MiB</source>
        <translation>它大于 %1 MiB</translation>
    </message>
    <message>
        <source>it holds no JSON object</source>
        <translation>它不含 JSON 对象</translation>
    </message>
    <message>
        <source>its &quot;%1&quot; is of a wrong kind</source>
        <translation>其“%1”类型不正确</translation>
    </message>
    <message>
        <source>an element is no object</source>
        <translation>某个元素不是对象</translation>
    </message>
    <message>
        <source>it is no object</source>
        <translation>它不是对象</translation>
    </message>
    <message>
        <source>record %1 of &quot;%2&quot;: %3</source>
        <translation>“%2”的第 %1 条记录：%3</translation>
    </message>
    <message>
        <source>it has no version</source>
        <translation>它没有版本</translation>
    </message>
    <message>
        <source>its version is &quot;%1&quot;, this panel reads &quot;%2&quot;</source>
        <translation>其版本为“%1”，此面板读取“%2”</translation>
    </message>
    <message>
        <source>it has no list &quot;%1&quot;</source>
        <translation>它没有列表“%1”</translation>
    </message>
    <message>
        <source>it is no JSON (%1)</source>
        <translation>它不是 JSON（%1）</translation>
    </message>
    <message>
        <source>If the robot moves, use the emergency stop.</source>
        <translation>如果机器人在运动，请按急停。</translation>
    </message>
    <message>
        <source>Stop the program, then try again.</source>
        <translation>请停止程序后重试。</translation>
    </message>
    <message>
        <source>The start of the program</source>
        <translation>程序启动</translation>
    </message>
    <message>
        <source>Remove the cause, then press Start again.</source>
        <translation>请排除原因后再按启动。</translation>
    </message>
    <message>
        <source>The stop of the program</source>
        <translation>程序停止</translation>
    </message>
    <message>
        <source>Switching the motors on</source>
        <translation>接通电机</translation>
    </message>
    <message>
        <source>Remove the cause, then switch them on again.</source>
        <translation>请排除原因后重新接通。</translation>
    </message>
    <message>
        <source>Switching the motors off</source>
        <translation>关闭电机</translation>
    </message>
    <message>
        <source>The change to manual mode</source>
        <translation>切换到手动模式</translation>
    </message>
    <message>
        <source>The change to automatic mode</source>
        <translation>切换到自动模式</translation>
    </message>
    <message>
        <source>Setting the signal</source>
        <translation>设置信号</translation>
    </message>
    <message>
        <source>Check the signal&apos;s name and type; an input can be set only while inputs are simulated.</source>
        <translation>请检查信号的名称和类型；只有在仿真输入时才能设置输入。</translation>
    </message>
    <message>
        <source>Switching the simulation of inputs</source>
        <translation>切换输入仿真</translation>
    </message>
    <message>
        <source>Opening the project in the controller</source>
        <translation>在控制器中打开项目</translation>
    </message>
    <message>
        <source>The controller still works with the project before. Remove the cause, then open the project again.</source>
        <translation>控制器仍在使用之前的项目。请排除原因后重新打开项目。</translation>
    </message>
    <message>
        <source>Switch the motors on, then press Start again.</source>
        <translation>请接通电机后再按启动。</translation>
    </message>
    <message>
        <source>%1 was refused: %2. %3</source>
        <translation>%1被拒绝：%2。%3</translation>
    </message>
    <message>
        <source>%1 was not confirmed: %2. It may have been carried out: look at the robot before you try again.</source>
        <translation>%1未得到确认：%2。可能已经执行：重试前请先查看机器人。</translation>
    </message>
</context>
<context>
    <name>tavik::HotUpdates</name>
    <message>
        <source>code %1</source>
        <translation>代码 %1</translation>
    </message>
    <message>
        <source>The controller did not take over the change to point %1: %2. Programs use it as it was until they are started again.</source>
        <translation>控制器未采用对点 %1 的更改：%2。程序在重新启动之前仍使用原来的点。</translation>
    </message>
    <message>
        <source>too many requests wait</source>
        <translation>等待的请求过多</translation>
    </message>
</context>
<context>
    <name>tavik::OpenProject</name>
    <message>
        <source>The file stays as it is, and the next save keeps a copy of it beside it: mend the file, then open the project again.</source>
        <translation>文件保持原样，下次保存时会在旁边保留其副本：请修复文件，然后重新打开项目。</translation>
    </message>
    <message>
        <source>Nothing can be saved there: put a plain file in its place, then open the project again.</source>
        <translation>无法在该处保存：请换成普通文件，然后重新打开项目。</translation>
    </message>
    <message>
        <source>%1 can&apos;t be used: %2. The project is open without what it holds. %3</source>
        <translation>%1 无法使用：%2。项目已打开，但不含其内容。%3</translation>
    </message>
    <message>
        <source>The project &quot;%1&quot; can&apos;t be opened: its name is no plain name.</source>
        <translation>无法打开项目“%1”：其名称不是普通名称。</translation>
    </message>
    <message>
        <source>%1 was closed: the panel now works in %2. What was saved stays in %3.</source>
        <translation>%1已关闭：面板现在在 %2 中工作。已保存的内容保留在 %3 中。</translation>
    </message>
    <message>
        <source>What is in no project</source>
        <translation>不属于任何项目的内容</translation>
    </message>
    <message>
        <source>The project %1</source>
        <translation>项目 %1</translation>
    </message>
</context>
<context>
    <name>tavik::RunControl</name>
    <message>
        <source>The program can&apos;t be started: there is no link to the controller. Check its power and the network.</source>
        <translation>无法启动程序：未连接控制器。请检查其电源和网络。</translation>
    </message>
    <message>
        <source>The program can&apos;t be started while a stop waits for a plugin. Press Stop again to stop at once, or cancel the stop.</source>
        <translation>有停止请求正在等待插件，无法启动程序。请再按停止以立即停止，或取消停止。</translation>
    </message>
    <message>
        <source>The program is running already.</source>
        <translation>程序已在运行。</translation>
    </message>
    <message>
        <source>The program can&apos;t be stopped from here: there is no link to the controller. If the robot moves, use the emergency stop.</source>
        <translation>无法从此处停止程序：未连接控制器。如果机器人在运动，请按急停。</translation>
    </message>
    <message>
        <source>The stop was cancelled: the program runs on.</source>
        <translation>已取消停止：程序继续运行。</translation>
    </message>
    <message>
        <source>A plugin can&apos;t start the program: there is no link to the controller.</source>
        <translation>插件无法启动程序：未连接控制器。</translation>
    </message>
    <message>
        <source>A plugin wanted to start the program while a stop waits: it was not started.</source>
        <translation>有停止请求等待时插件要求启动程序：程序未启动。</translation>
    </message>
    <message>
        <source>A plugin answered a start that had been given up: the program was not started. Press Start to start it.</source>
        <translation>插件应答了已放弃的启动：程序未启动。请按启动。</translation>
    </message>
    <message>
        <source>A plugin can&apos;t stop the program: there is no link to the controller.</source>
        <translation>插件无法停止程序：未连接控制器。</translation>
    </message>
    <message>
        <source>A plugin did not let the program start.</source>
        <translation>插件不允许启动程序。</translation>
    </message>
    <message>
        <source>The plugin that was asked no longer answers: the program was not started. Press Start again.</source>
        <translation>被询问的插件不再应答：程序未启动。请重新按启动。</translation>
    </message>
    <message>
        <source>The link to the controller was lost: the start was given up. Press Start again when the controller is back.</source>
        <translation>与控制器的连接中断：已放弃启动。控制器恢复后请重新按启动。</translation>
    </message>
    <message>
        <source>The link to the controller was lost while a stop waited: the program may run on. If the robot moves, use the emergency stop.</source>
        <translation>停止等待期间与控制器的连接中断：程序可能继续运行。如果机器人在运动，请按急停。</translation>
    </message>
    <message>
        <source>too many requests wait</source>
        <translation>等待的请求过多</translation>
    </message>
</context>
<context>
    <name>tavik::SelectedFrames</name>
    <message>
        <source>The controller did not confirm that moves are meant in %1: %2. Select it again before you move the robot to a point.</source>
        <translation>控制器未确认移动以 %1 为准：%2。将机器人移动到点之前请重新选择。</translation>
    </message>
    <message>
        <source>too many requests wait</source>
        <translation>等待的请求过多</translation>
    </message>
    <message>
        <source>%1 is selected in place of %2, which was that of another robot.</source>
        <translation>已选择 %1 取代 %2，后者属于另一台机器人。</translation>
    </message>
</context>
<context>
    <name>tavik::Workspace</name>
    <message>
        <source>The setting &quot;workspace&quot; is empty: the panel keeps %1. Enter a directory for the projects to change it.</source>
        <translation>设置“workspace”为空：面板保留 %1。要更改，请输入项目目录。</translation>
    </message>
</context>
<context>
    <name>variables</name>
    <message>
        <source>Whole number</source>
        <translation>整数</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>数值</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>文本</translation>
    </message>
    <message>
        <source>Flag</source>
        <translation>布尔值</translation>
    </message>
    <message>
        <source>Connection</source>
        <translation>连接</translation>
    </message>
    <message>
        <source>Other</source>
        <translation>其他</translation>
    </message>
    <message>
        <source>true</source>
        <translation>真</translation>
    </message>
    <message>
        <source>false</source>
        <translation>假</translation>
    </message>
    <message>
        <source>A whole number is needed, from -2147483648 to 2147483647.</source>
        <translation>请输入 -2147483648 到 2147483647 的整数。</translation>
    </message>
    <message>
        <source>A number is needed, with a point before its decimals: 12.5</source>
        <translation>请输入数字，小数点用“.”：12.5</translation>
    </message>
</context>
<context>
    <name>zeplet::InterfaceManager</name>
    <message>
        <source>System IO cannot be simulated.</source>
        <translation>系统 IO 不能仿真。</translation>
    </message>
    <message>
        <source>DI Signal can only be changed in simulation mode.</source>
        <translation>DI 信号只能在仿真模式下更改。</translation>
    </message>
    <message>
        <source>Auto generate at: %1</source>
        <translation>自动生成于：%1</translation>
    </message>
</context>
<context>
    <name>zeplet::SyncTool</name>
    <message>
        <source>Synchronization failed</source>
        <translation>同步失败</translation>
    </message>
    <message>
        <source>Cannot create path: %1</source>
        <translation>无法创建路径：%1</translation>
    </message>
    <message>
        <source>Synchronizing...</source>
        <translation>正在同步…</translation>
    </message>
</context>
</TS>
