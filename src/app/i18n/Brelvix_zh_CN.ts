<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>MCsMainWindow</name>
    <message>
        <source>Orvel Scheduler Manager</source>
        <translation>Orvel Scheduler Manager</translation>
    </message>
    <message>
        <source>Note: To run the program, sign in to your Windows account and make sure your PC is set not to lock automatically.</source>
        <translation>注意：要运行程序，请登录您的 Windows 帐户，并确保电脑未设置为自动锁定。</translation>
    </message>
    <message>
        <source>Groups</source>
        <translation>分组</translation>
    </message>
    <message>
        <source>Task: </source>
        <translation>任务： </translation>
    </message>
    <message>
        <source>Filter:</source>
        <translation>筛选：</translation>
    </message>
    <message>
        <source>Tasks: 0</source>
        <translation>任务数：0</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名称</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>类型</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>状态</translation>
    </message>
    <message>
        <source>Next Run</source>
        <translation>下次运行</translation>
    </message>
    <message>
        <source>Last Run Status</source>
        <translation>上次运行状态</translation>
    </message>
    <message>
        <source>Activity Log:</source>
        <translation>活动日志：</translation>
    </message>
</context>
<context>
    <name>MCsTaskDialog</name>
    <message>
        <source>Task</source>
        <translation>任务</translation>
    </message>
    <message>
        <source>Task Status : </source>
        <translation>任务状态： </translation>
    </message>
    <message>
        <source>ON</source>
        <translation>开</translation>
    </message>
    <message>
        <source>📋 Basic Information</source>
        <translation>📋 基本信息</translation>
    </message>
    <message>
        <source>Task Name (*):</source>
        <translation>任务名称 (*)：</translation>
    </message>
    <message>
        <source>Program Name (*):</source>
        <translation>程序名称 (*)：</translation>
    </message>
    <message>
        <source>Target Program (*):</source>
        <translation>目标程序 (*)：</translation>
    </message>
    <message>
        <source>Task Type (*):</source>
        <translation>任务类型 (*)：</translation>
    </message>
    <message>
        <source>Group:</source>
        <translation>分组：</translation>
    </message>
    <message>
        <source>💾 Output Settings</source>
        <translation>💾 输出设置</translation>
    </message>
    <message>
        <source>Use Default Output</source>
        <translation>使用默认输出</translation>
    </message>
    <message>
        <source>Custom Output</source>
        <translation>自定义输出</translation>
    </message>
    <message>
        <source>Custom Folder:</source>
        <translation>自定义文件夹：</translation>
    </message>
    <message>
        <source>Browse...</source>
        <translation>浏览...</translation>
    </message>
    <message>
        <source>File Name Pattern:</source>
        <translation>文件名格式：</translation>
    </message>
    <message>
        <source>[YYYY-MM-DD][hh-mm-ss]_[TaskName]</source>
        <translation>[YYYY-MM-DD][hh-mm-ss]_[TaskName]</translation>
    </message>
    <message>
        <source>?</source>
        <translation>?</translation>
    </message>
    <message>
        <source>🚀 Action Before Auto Start</source>
        <translation>🚀 自动启动前的操作</translation>
    </message>
    <message>
        <source>Run Program:</source>
        <translation>运行程序：</translation>
    </message>
    <message>
        <source>Open URL:</source>
        <translation>打开网址：</translation>
    </message>
    <message>
        <source>e.g., https://www.example.com</source>
        <translation>例如：https://www.example.com</translation>
    </message>
    <message>
        <source>After completing the above steps, wait for a while for the data or page to load completely :</source>
        <translation>完成上述步骤后等待一段时间，以便数据或页面完全加载：</translation>
    </message>
    <message>
        <source>Wait for :</source>
        <translation>等待：</translation>
    </message>
    <message>
        <source> seconds</source>
        <translation> 秒</translation>
    </message>
    <message>
        <source>⏰ Start Target Program On</source>
        <translation>⏰ 启动目标程序的时机</translation>
    </message>
    <message>
        <source>📅 Specified Time</source>
        <translation>📅 指定时间</translation>
    </message>
    <message>
        <source>🔁 Every Day</source>
        <translation>🔁 每天</translation>
    </message>
    <message>
        <source>📆 Every Week</source>
        <translation>📆 每周</translation>
    </message>
    <message>
        <source>🖥️ Monitor App</source>
        <translation>🖥️ 监视程序</translation>
    </message>
    <message>
        <source>📁 Monitor Folder</source>
        <translation>📁 监视文件夹</translation>
    </message>
    <message>
        <source>Specified Date/Time(*):</source>
        <translation>指定日期/时间 (*)：</translation>
    </message>
    <message>
        <source>yyyy-MM-dd HH:mm:ss</source>
        <translation>yyyy-MM-dd HH:mm:ss</translation>
    </message>
    <message>
        <source>Daily Time (HH:MM:SS) *:</source>
        <translation>每日时间 (HH:MM:SS) *：</translation>
    </message>
    <message>
        <source>HH:mm:ss</source>
        <translation>HH:mm:ss</translation>
    </message>
    <message>
        <source>Select Days (*):</source>
        <translation>选择星期 (*)：</translation>
    </message>
    <message>
        <source>Mon</source>
        <translation>周一</translation>
    </message>
    <message>
        <source>Tue</source>
        <translation>周二</translation>
    </message>
    <message>
        <source>Wed</source>
        <translation>周三</translation>
    </message>
    <message>
        <source>Thu</source>
        <translation>周四</translation>
    </message>
    <message>
        <source>Fri</source>
        <translation>周五</translation>
    </message>
    <message>
        <source>Sat</source>
        <translation>周六</translation>
    </message>
    <message>
        <source>Sun</source>
        <translation>周日</translation>
    </message>
    <message>
        <source>Weekly Time (HH:MM:SS) *:</source>
        <translation>每周时间 (HH:MM:SS) *：</translation>
    </message>
    <message>
        <source>Monitor Program (*):</source>
        <translation>监视的程序 (*)：</translation>
    </message>
    <message>
        <source>Monitor Folder (*):</source>
        <translation>监视的文件夹 (*)：</translation>
    </message>
    <message>
        <source>File Extensions (*):</source>
        <translation>文件扩展名 (*)：</translation>
    </message>
    <message>
        <source>e.g., .mp4,.avi,.mkv</source>
        <translation>例如：.mp4,.avi,.mkv</translation>
    </message>
    <message>
        <source>⏹️ Auto Stop Condition</source>
        <translation>⏹️ 自动停止条件</translation>
    </message>
    <message>
        <source>🚫 None</source>
        <translation>🚫 无</translation>
    </message>
    <message>
        <source>⏱️ By Duration</source>
        <translation>⏱️ 按时长</translation>
    </message>
    <message>
        <source>💾 By File Size</source>
        <translation>💾 按文件大小</translation>
    </message>
    <message>
        <source>🕐 At Time</source>
        <translation>🕐 到指定时间</translation>
    </message>
    <message>
        <source>Duration (*):</source>
        <translation>时长 (*)：</translation>
    </message>
    <message>
        <source> minutes</source>
        <translation> 分钟</translation>
    </message>
    <message>
        <source>Task File(s) Size (*):</source>
        <translation>任务文件大小 (*)：</translation>
    </message>
    <message>
        <source> KB</source>
        <translation> KB</translation>
    </message>
    <message>
        <source>Stop At Time (*):</source>
        <translation>停止时间 (*)：</translation>
    </message>
    <message>
        <source>🏁 Action After Auto Stop</source>
        <translation>🏁 自动停止后的操作</translation>
    </message>
    <message>
        <source>❌ Close Program</source>
        <translation>❌ 关闭程序</translation>
    </message>
    <message>
        <source>🔌 Shutdown Computer</source>
        <translation>🔌 关闭电脑</translation>
    </message>
    <message>
        <source>🖥️ Display Mode</source>
        <translation>🖥️ 显示方式</translation>
    </message>
    <message>
        <source>👁️ Show</source>
        <translation>👁️ 显示</translation>
    </message>
    <message>
        <source>🔽 Minimize</source>
        <translation>🔽 最小化</translation>
    </message>
    <message>
        <source>🙈 Hide</source>
        <translation>🙈 隐藏</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>Error</source>
        <translation>错误</translation>
    </message>
    <message>
        <source>task type</source>
        <translation>任务类型</translation>
    </message>
    <message>
        <source>language</source>
        <translation>语言</translation>
    </message>
    <message>
        <source>program name</source>
        <translation>程序名称</translation>
    </message>
    <message>
        <source>program path</source>
        <translation>程序路径</translation>
    </message>
    <message>
        <source>Program parameter JSON file not found!</source>
        <translation>找不到程序参数 JSON 文件！</translation>
    </message>
    <message>
        <source>Failed to open program parameter JSON file!</source>
        <translation>打开程序参数 JSON 文件失败！</translation>
    </message>
    <message>
        <source>Program parameter JSON file is empty!</source>
        <translation>程序参数 JSON 文件为空！</translation>
    </message>
    <message>
        <source>Missing required arguments: %1</source>
        <translation>缺少必需的参数：%1</translation>
    </message>
    <message>
        <source>task type error!</source>
        <translation>任务类型错误！</translation>
    </message>
    <message>
        <source>All Types</source>
        <translation>所有类型</translation>
    </message>
</context>
<context>
    <name>Scheduler::MCsDynamicFormWidget</name>
    <message>
        <source>Audio Source</source>
        <translation>音频源</translation>
    </message>
    <message>
        <source>Audio Bitrate</source>
        <translation>音频比特率</translation>
    </message>
    <message>
        <source>Audio Sample Rate</source>
        <translation>音频采样率</translation>
    </message>
    <message>
        <source>Channels</source>
        <translation>声道</translation>
    </message>
    <message>
        <source>Enable VBR if supported</source>
        <translation>支持时启用 VBR</translation>
    </message>
    <message>
        <source>Output format</source>
        <translation>输出格式</translation>
    </message>
    <message>
        <source>⚙️ Program Parameters</source>
        <translation>⚙️ 程序参数</translation>
    </message>
</context>
<context>
    <name>Scheduler::MCsMainWindow</name>
    <message>
        <source>[INFO] Already connected</source>
        <translation>[INFO] 已处于连接状态</translation>
    </message>
    <message>
        <source>[INFO] Connected to scheduler service</source>
        <translation>[INFO] 已连接到计划服务</translation>
    </message>
    <message>
        <source>[INFO] Reconnected to scheduler service</source>
        <translation>[INFO] 已重新连接到计划服务</translation>
    </message>
    <message>
        <source>[INFO] Disconnected from scheduler service</source>
        <translation>[INFO] 已断开与计划服务的连接</translation>
    </message>
    <message>
        <source>[INFO] Not connected</source>
        <translation>[INFO] 未连接</translation>
    </message>
    <message>
        <source>[ERROR] Failed to connect to scheduler service</source>
        <translation>[ERROR] 连接计划服务失败</translation>
    </message>
    <message>
        <source>[ERROR] Connection to scheduler service lost</source>
        <translation>[ERROR] 与计划服务的连接已中断</translation>
    </message>
    <message>
        <source>[ERROR] Failed to reconnect to scheduler service</source>
        <translation>[ERROR] 重新连接计划服务失败</translation>
    </message>
    <message>
        <source>[ERROR] Not connected to scheduler service</source>
        <translation>[ERROR] 未连接到计划服务</translation>
    </message>
    <message>
        <source>[INFO] Scheduler service started</source>
        <translation>[INFO] 计划服务已启动</translation>
    </message>
    <message>
        <source>[INFO] Waiting for scheduler service to start</source>
        <translation>[INFO] 正在等待计划服务启动</translation>
    </message>
    <message>
        <source>[ERROR] Failed to start scheduler service</source>
        <translation>[ERROR] 启动计划服务失败</translation>
    </message>
    <message>
        <source>[ERROR] Scheduler service is not installed</source>
        <translation>[ERROR] 未安装计划服务</translation>
    </message>
    <message>
        <source>[INFO] Task list refreshed</source>
        <translation>[INFO] 任务列表已刷新</translation>
    </message>
    <message>
        <source>[ERROR] Failed to refresh task list</source>
        <translation>[ERROR] 刷新任务列表失败</translation>
    </message>
    <message>
        <source>[INFO] Task created: %1</source>
        <translation>[INFO] 任务已创建：%1</translation>
    </message>
    <message>
        <source>[ERROR] Failed to create task: %1</source>
        <translation>[ERROR] 创建任务失败：%1</translation>
    </message>
    <message>
        <source>[INFO] Task updated: %1</source>
        <translation>[INFO] 任务已更新：%1</translation>
    </message>
    <message>
        <source>[ERROR] Failed to update task: %1</source>
        <translation>[ERROR] 更新任务失败：%1</translation>
    </message>
    <message>
        <source>[INFO] Task deleted: %1</source>
        <translation>[INFO] 任务已删除：%1</translation>
    </message>
    <message>
        <source>[ERROR] Failed to delete task: %1</source>
        <translation>[ERROR] 删除任务失败：%1</translation>
    </message>
    <message>
        <source>[INFO] Task enabled: %1</source>
        <translation>[INFO] 任务已启用：%1</translation>
    </message>
    <message>
        <source>[ERROR] Failed to enable task: %1</source>
        <translation>[ERROR] 启用任务失败：%1</translation>
    </message>
    <message>
        <source>[INFO] Task disabled: %1</source>
        <translation>[INFO] 任务已禁用：%1</translation>
    </message>
    <message>
        <source>[ERROR] Failed to disable task: %1</source>
        <translation>[ERROR] 禁用任务失败：%1</translation>
    </message>
    <message>
        <source>[INFO] Task triggered: %1</source>
        <translation>[INFO] 任务已触发：%1</translation>
    </message>
    <message>
        <source>[ERROR] Failed to trigger task: %1</source>
        <translation>[ERROR] 触发任务失败：%1</translation>
    </message>
    <message>
        <source>[INFO] Task moved to group &apos;%1&apos;</source>
        <translation>[INFO] 任务已移至分组“%1”</translation>
    </message>
    <message>
        <source>[ERROR] Failed to move task to group &apos;%1&apos;</source>
        <translation>[ERROR] 将任务移至分组“%1”失败</translation>
    </message>
    <message>
        <source>[INFO] %1 tasks moved to group &apos;%2&apos;</source>
        <translation>[INFO] %1 个任务已移至分组“%2”</translation>
    </message>
    <message>
        <source>[ERROR] Failed to move %1 tasks to group &apos;%2&apos;</source>
        <translation>[ERROR] 将 %1 个任务移至分组“%2”失败</translation>
    </message>
    <message>
        <source>[INFO] Group list refreshed</source>
        <translation>[INFO] 分组列表已刷新</translation>
    </message>
    <message>
        <source>[ERROR] Failed to refresh group list</source>
        <translation>[ERROR] 刷新分组列表失败</translation>
    </message>
    <message>
        <source>[INFO] Group created: %1</source>
        <translation>[INFO] 分组已创建：%1</translation>
    </message>
    <message>
        <source>[ERROR] Failed to create group: %1</source>
        <translation>[ERROR] 创建分组失败：%1</translation>
    </message>
    <message>
        <source>[INFO] Group updated: %1</source>
        <translation>[INFO] 分组已更新：%1</translation>
    </message>
    <message>
        <source>[ERROR] Failed to update group: %1</source>
        <translation>[ERROR] 更新分组失败：%1</translation>
    </message>
    <message>
        <source>[INFO] Group deleted: %1</source>
        <translation>[INFO] 分组已删除：%1</translation>
    </message>
    <message>
        <source>[ERROR] Failed to delete group: %1</source>
        <translation>[ERROR] 删除分组失败：%1</translation>
    </message>
    <message>
        <source>[INFO] All tasks in the group enabled</source>
        <translation>[INFO] 分组中的所有任务已启用</translation>
    </message>
    <message>
        <source>[ERROR] Failed to enable all tasks in the group</source>
        <translation>[ERROR] 启用分组中的所有任务失败</translation>
    </message>
    <message>
        <source>[INFO] All tasks in the group disabled</source>
        <translation>[INFO] 分组中的所有任务已禁用</translation>
    </message>
    <message>
        <source>[ERROR] Failed to disable all tasks in the group</source>
        <translation>[ERROR] 禁用分组中的所有任务失败</translation>
    </message>
    <message>
        <source>[INFO] All tasks in the group triggered</source>
        <translation>[INFO] 分组中的所有任务已触发</translation>
    </message>
    <message>
        <source>[ERROR] Failed to trigger all tasks in the group</source>
        <translation>[ERROR] 触发分组中的所有任务失败</translation>
    </message>
    <message>
        <source>[INFO] All tasks in the group deleted</source>
        <translation>[INFO] 分组中的所有任务已删除</translation>
    </message>
    <message>
        <source>[ERROR] Failed to delete all tasks in the group</source>
        <translation>[ERROR] 删除分组中的所有任务失败</translation>
    </message>
    <message>
        <source>[INFO] Activity log refreshed</source>
        <translation>[INFO] 活动日志已刷新</translation>
    </message>
    <message>
        <source>[ERROR] Failed to refresh activity log</source>
        <translation>[ERROR] 刷新活动日志失败</translation>
    </message>
    <message>
        <source>Task &apos;%1&apos; execution started</source>
        <translation>任务“%1”已开始运行</translation>
    </message>
    <message>
        <source> (run: %1)</source>
        <translation> (运行 ID: %1)</translation>
    </message>
    <message>
        <source>Task &apos;%1&apos; completed successfully</source>
        <translation>任务“%1”已成功完成</translation>
    </message>
    <message>
        <source> (exit: %1)</source>
        <translation> (退出代码: %1)</translation>
    </message>
    <message>
        <source>Task &apos;%1&apos; execution failed</source>
        <translation>任务“%1”运行失败</translation>
    </message>
    <message>
        <source> - %1</source>
        <translation> - %1</translation>
    </message>
    <message>
        <source>Task &apos;%1&apos; execution timed out</source>
        <translation>任务“%1”运行超时</translation>
    </message>
    <message>
        <source>Task &apos;%1&apos; execution cancelled</source>
        <translation>任务“%1”的运行已取消</translation>
    </message>
    <message>
        <source>Group &apos;%1&apos; created</source>
        <translation>分组“%1”已创建</translation>
    </message>
    <message>
        <source>Group &apos;%1&apos; updated</source>
        <translation>分组“%1”已更新</translation>
    </message>
    <message>
        <source>Group &apos;%1&apos; deleted</source>
        <translation>分组“%1”已删除</translation>
    </message>
    <message>
        <source>Task &apos;%1&apos; created</source>
        <translation>任务“%1”已创建</translation>
    </message>
    <message>
        <source> (schedule: %1)</source>
        <translation> (计划: %1)</translation>
    </message>
    <message>
        <source>Task &apos;%1&apos; updated</source>
        <translation>任务“%1”已更新</translation>
    </message>
    <message>
        <source>Task &apos;%1&apos; deleted</source>
        <translation>任务“%1”已删除</translation>
    </message>
    <message>
        <source>Task &apos;%1&apos; enabled</source>
        <translation>任务“%1”已启用</translation>
    </message>
    <message>
        <source>Task &apos;%1&apos; disabled</source>
        <translation>任务“%1”已禁用</translation>
    </message>
    <message>
        <source>%1 on &apos;%2&apos;</source>
        <translation>“%2”：%1</translation>
    </message>
    <message>
        <source>Disconnected</source>
        <translation>已断开连接</translation>
    </message>
    <message>
        <source>Enable All Tasks</source>
        <translation>启用所有任务</translation>
    </message>
    <message>
        <source>Disable All Tasks</source>
        <translation>禁用所有任务</translation>
    </message>
    <message>
        <source>Trigger All Tasks</source>
        <translation>触发所有任务</translation>
    </message>
    <message>
        <source>Delete All Tasks</source>
        <translation>删除所有任务</translation>
    </message>
    <message>
        <source>Task Runs</source>
        <translation>任务运行记录</translation>
    </message>
    <message>
        <source>Task runs view not yet implemented.</source>
        <translation>任务运行记录视图尚未实现。</translation>
    </message>
    <message>
        <source>Task Logs</source>
        <translation>任务日志</translation>
    </message>
    <message>
        <source>Task logs view not yet implemented.</source>
        <translation>任务日志视图尚未实现。</translation>
    </message>
    <message>
        <source>Export Logs</source>
        <translation>导出日志</translation>
    </message>
    <message>
        <source>Log export not yet implemented.</source>
        <translation>日志导出功能尚未实现。</translation>
    </message>
    <message>
        <source>Not Connected</source>
        <translation>未连接</translation>
    </message>
    <message>
        <source>Cannot refresh audit log because not connected to the service.</source>
        <translation>未连接到服务，无法刷新活动日志。</translation>
    </message>
    <message>
        <source>No Selection</source>
        <translation>未选择</translation>
    </message>
    <message>
        <source>Please select a task to edit.</source>
        <translation>请选择要编辑的任务。</translation>
    </message>
    <message>
        <source>Please select a task to delete.</source>
        <translation>请选择要删除的任务。</translation>
    </message>
    <message>
        <source>Confirm Delete</source>
        <translation>确认删除</translation>
    </message>
    <message>
        <source>Are you sure you want to delete task &apos;%1&apos;?</source>
        <translation>确定要删除任务“%1”吗？</translation>
    </message>
    <message>
        <source>Delete Error</source>
        <translation>删除失败</translation>
    </message>
    <message>
        <source>Failed to delete task.</source>
        <translation>删除任务失败。</translation>
    </message>
    <message>
        <source>Toggle Error</source>
        <translation>切换失败</translation>
    </message>
    <message>
        <source>Failed to toggle task status.</source>
        <translation>切换任务状态失败。</translation>
    </message>
    <message>
        <source>Please select a task to trigger.</source>
        <translation>请选择要触发的任务。</translation>
    </message>
    <message>
        <source>Trigger Error</source>
        <translation>触发失败</translation>
    </message>
    <message>
        <source>Failed to trigger task.</source>
        <translation>触发任务失败。</translation>
    </message>
    <message>
        <source>Please select a group to edit.</source>
        <translation>请选择要编辑的分组。</translation>
    </message>
    <message>
        <source>Cannot Edit</source>
        <translation>无法编辑</translation>
    </message>
    <message>
        <source>The &apos;Ungrouped&apos; group cannot be edited.</source>
        <translation>无法编辑“未分组”分组。</translation>
    </message>
    <message>
        <source>Select Type</source>
        <translation>选择类型</translation>
    </message>
    <message>
        <source>Please select a specific task type from the filter before creating a group.</source>
        <translation>创建分组前，请先在筛选中选择具体的任务类型。</translation>
    </message>
    <message>
        <source>Please select a group to delete.</source>
        <translation>请选择要删除的分组。</translation>
    </message>
    <message>
        <source>Cannot Delete</source>
        <translation>无法删除</translation>
    </message>
    <message>
        <source>The &apos;Ungrouped&apos; group cannot be deleted.</source>
        <translation>无法删除“未分组”分组。</translation>
    </message>
    <message>
        <source>Are you sure you want to delete group &apos;%1&apos;?
Tasks in this group will be moved to &apos;Ungrouped&apos;.</source>
        <translation>确定要删除分组“%1”吗？
该分组中的任务将移至“未分组”。</translation>
    </message>
    <message>
        <source>Failed to delete group.</source>
        <translation>删除分组失败。</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>错误</translation>
    </message>
    <message>
        <source>Failed to enable all tasks in group.</source>
        <translation>启用分组中的所有任务失败。</translation>
    </message>
    <message>
        <source>Failed to disable all tasks in group.</source>
        <translation>禁用分组中的所有任务失败。</translation>
    </message>
    <message>
        <source>Failed to trigger all tasks in group.</source>
        <translation>触发分组中的所有任务失败。</translation>
    </message>
    <message>
        <source>Are you sure you want to delete all tasks in this group?</source>
        <translation>确定要删除该分组中的所有任务吗？</translation>
    </message>
    <message>
        <source>Failed to delete all tasks in group.</source>
        <translation>删除分组中的所有任务失败。</translation>
    </message>
    <message>
        <source>Connecting to scheduler service...</source>
        <translation>正在连接计划服务...</translation>
    </message>
    <message>
        <source>Connecting to scheduler service (attempt %1 of %2)...</source>
        <translation>正在连接计划服务（第 %1 次，共 %2 次）...</translation>
    </message>
    <message>
        <source>Unable to connect to the scheduler service because multiple manager instances are running. Please close the other scheduler managers first.</source>
        <translation>无法连接到计划服务，因为有多个计划管理器正在运行。请先关闭其他计划管理器。</translation>
    </message>
    <message>
        <source>connected to deamon failed! (attempt %1 of %2) reason = </source>
        <translation>连接计划服务失败！（第 %1 次，共 %2 次）原因 = </translation>
    </message>
    <message>
        <source>[WARN] Initial connection failed, attempting to start service...</source>
        <translation>[WARN] 首次连接失败，正在尝试启动服务...</translation>
    </message>
    <message>
        <source>Scheduler service is installed but failed to start.

Please check system logs or reinstall the service.</source>
        <translation>计划服务已安装，但启动失败。

请检查系统日志或重新安装该服务。</translation>
    </message>
    <message>
        <source>Scheduler service is not installed.

Please reinstall the service and restart the application.</source>
        <translation>未安装计划服务。

请重新安装该服务，然后重启应用程序。</translation>
    </message>
    <message>
        <source>Waiting for service to start...</source>
        <translation>正在等待服务启动...</translation>
    </message>
    <message>
        <source>Reconnecting to scheduler service (attempt %1 of %2)...</source>
        <translation>正在重新连接计划服务（第 %1 次，共 %2 次）...</translation>
    </message>
    <message>
        <source>Unable to connect to scheduler service after multiple attempts.

Please ensure the service is running correctly and try again.</source>
        <translation>多次尝试后仍无法连接到计划服务。

请确保该服务正常运行，然后重试。</translation>
    </message>
    <message>
        <source>No Tasks Found</source>
        <translation>未找到任务</translation>
    </message>
    <message>
        <source>No scheduled tasks were found.

Would you like to create one now?</source>
        <translation>未找到计划任务。

是否立即创建一个？</translation>
    </message>
    <message>
        <source>[WARN] Connection lost, attempting to reconnect...</source>
        <translation>[WARN] 连接已中断，正在尝试重新连接...</translation>
    </message>
    <message>
        <source>[INFO] Reconnection attempt %1 of %2...</source>
        <translation>[INFO] 正在尝试重新连接（第 %1 次，共 %2 次）...</translation>
    </message>
    <message>
        <source>Reconnecting (%1/%2)...</source>
        <translation>正在重新连接 (%1/%2)...</translation>
    </message>
    <message>
        <source>Connection lost. Reconnecting...
Attempt %1 of %2</source>
        <translation>连接已中断，正在重新连接...
第 %1 次，共 %2 次</translation>
    </message>
    <message>
        <source>Connection to scheduler service was lost and could not be restored.

The application will now close.</source>
        <translation>与计划服务的连接已中断，且无法恢复。

应用程序即将关闭。</translation>
    </message>
    <message>
        <source>Service Error</source>
        <translation>服务错误</translation>
    </message>
    <message>
        <source>Connecting</source>
        <translation>正在连接</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Connection Lost</source>
        <translation>连接已中断</translation>
    </message>
    <message>
        <source>Connection lost. Reconnecting to scheduler service...</source>
        <translation>连接已中断，正在重新连接计划服务...</translation>
    </message>
    <message>
        <source>Connected</source>
        <translation>已连接</translation>
    </message>
    <message>
        <source>Failed to move task to group &apos;%1&apos;.</source>
        <translation>将任务移至分组“%1”失败。</translation>
    </message>
    <message>
        <source>Failed to move %1 tasks to group &apos;%2&apos;.</source>
        <translation>将 %1 个任务移至分组“%2”失败。</translation>
    </message>
    <message>
        <source>Failed to move task to group.</source>
        <translation>将任务移至分组失败。</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>Tasks: %1</source>
        <translation>任务数：%1</translation>
    </message>
    <message>
        <source> (in %1)</source>
        <translation> (分组: %1)</translation>
    </message>
    <message>
        <source>Success</source>
        <translation>成功</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>失败</translation>
    </message>
    <message>
        <source>Timeout</source>
        <translation>超时</translation>
    </message>
    <message>
        <source>Running</source>
        <translation>运行中</translation>
    </message>
    <message>
        <source>Pending</source>
        <translation>等待中</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>已禁用</translation>
    </message>
    <message>
        <source>Not scheduled</source>
        <translation>未计划</translation>
    </message>
    <message>
        <source>Overdue</source>
        <translation>已逾期</translation>
    </message>
    <message>
        <source>%1s left</source>
        <translation>剩%1秒</translation>
    </message>
    <message>
        <source>%1m %2s left</source>
        <translation>剩%1分%2秒</translation>
    </message>
    <message>
        <source>%1d %2h left</source>
        <translation>剩%1天%2小时</translation>
    </message>
    <message>
        <source>%1h %2m left</source>
        <translation>剩%1小时%2分</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>已启用</translation>
    </message>
</context>
<context>
    <name>Scheduler::MCsTaskDialog</name>
    <message>
        <source>Failed to load task.</source>
        <translation>加载任务失败。</translation>
    </message>
    <message>
        <source>Test Task</source>
        <translation>测试任务</translation>
    </message>
    <message>
        <source>Screen Recorder</source>
        <translation>屏幕录制</translation>
    </message>
    <message>
        <source>Audio Recorder</source>
        <translation>音频录制</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>自定义</translation>
    </message>
    <message>
        <source>Create Task</source>
        <translation>创建任务</translation>
    </message>
    <message>
        <source>Edit Task</source>
        <translation>编辑任务</translation>
    </message>
    <message>
        <source>ON</source>
        <translation>开</translation>
    </message>
    <message>
        <source>OFF</source>
        <translation>关</translation>
    </message>
    <message>
        <source>Select Program</source>
        <translation>选择程序</translation>
    </message>
    <message>
        <source>Executable Files (*.exe);;All Files (*.*)</source>
        <translation>可执行文件 (*.exe);;所有文件 (*.*)</translation>
    </message>
    <message>
        <source>Select Program to Monitor</source>
        <translation>选择要监视的程序</translation>
    </message>
    <message>
        <source>Select Folder to Monitor</source>
        <translation>选择要监视的文件夹</translation>
    </message>
    <message>
        <source>Select Output Folder</source>
        <translation>选择输出文件夹</translation>
    </message>
    <message>
        <source>File Name Pattern Help</source>
        <translation>文件名格式帮助</translation>
    </message>
    <message>
        <source>Available format variables:

[YYYY-MM-DD] - Date (e.g., 2024-03-15)
[hh-mm-ss] - Time (e.g., 14-30-45)
[TaskName] - Task name
[Counter] - Auto-incrementing counter

Example: [YYYY-MM-DD][hh-mm-ss]_[TaskName]
Result: 2024-03-15_14-30-45_MyTask.mp4</source>
        <translation>可用的格式变量：

[YYYY-MM-DD] - 日期（例如 2024-03-15）
[hh-mm-ss] - 时间（例如 14-30-45）
[TaskName] - 任务名称
[Counter] - 自动递增的计数器

示例：[YYYY-MM-DD][hh-mm-ss]_[TaskName]
结果：2024-03-15_14-30-45_MyTask.mp4</translation>
    </message>
    <message>
        <source>Ungrouped</source>
        <translation>未分组</translation>
    </message>
    <message>
        <source>Critical Error!</source>
        <translation>严重错误！</translation>
    </message>
    <message>
        <source>Task type mismatch!</source>
        <translation>任务类型不匹配！</translation>
    </message>
    <message>
        <source>Task type not accepted!</source>
        <translation>不接受此任务类型！</translation>
    </message>
    <message>
        <source>📋 Basic Info</source>
        <translation>📋 基本信息</translation>
    </message>
    <message>
        <source>⚙️ Program Parameters</source>
        <translation>⚙️ 程序参数</translation>
    </message>
    <message>
        <source>💾 Output</source>
        <translation>💾 输出</translation>
    </message>
    <message>
        <source>🚀 Before Start</source>
        <translation>🚀 启动前</translation>
    </message>
    <message>
        <source>⏰ Start Target Program</source>
        <translation>⏰ 启动目标程序</translation>
    </message>
    <message>
        <source>⏹️ Auto Stop</source>
        <translation>⏹️ 自动停止</translation>
    </message>
    <message>
        <source>🏁 After Stop</source>
        <translation>🏁 停止后</translation>
    </message>
    <message>
        <source>🖥️ Display</source>
        <translation>🖥️ 显示</translation>
    </message>
    <message>
        <source>Connection Error</source>
        <translation>连接错误</translation>
    </message>
    <message>
        <source>Not connected to daemon. Please connect first.</source>
        <translation>未连接到计划服务，请先连接。</translation>
    </message>
    <message>
        <source>Success</source>
        <translation>成功</translation>
    </message>
    <message>
        <source>Task created successfully.</source>
        <translation>任务创建成功。</translation>
    </message>
    <message>
        <source>Task updated successfully.</source>
        <translation>任务更新成功。</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>错误</translation>
    </message>
    <message>
        <source>Failed to save task. reason : </source>
        <translation>保存任务失败。原因： </translation>
    </message>
    <message>
        <source>Task name is required.</source>
        <translation>请输入任务名称。</translation>
    </message>
    <message>
        <source>Program name is required.</source>
        <translation>请输入程序名称。</translation>
    </message>
    <message>
        <source>Target program is required.</source>
        <translation>请指定目标程序。</translation>
    </message>
    <message>
        <source>Task type is required.</source>
        <translation>请选择任务类型。</translation>
    </message>
    <message>
        <source>Specified date/time must be in the future.</source>
        <translation>指定的日期/时间必须晚于当前时间。</translation>
    </message>
    <message>
        <source>At least one weekday must be selected for EveryWeek mode.</source>
        <translation>在“每周”模式下，请至少选择一周中的一天。</translation>
    </message>
    <message>
        <source>Monitor program is required for monitorApp mode.</source>
        <translation>在“监视程序”模式下，请指定要监视的程序。</translation>
    </message>
    <message>
        <source>Monitor folder path is required for monitorFolder mode.</source>
        <translation>在“监视文件夹”模式下，请指定要监视的文件夹路径。</translation>
    </message>
    <message>
        <source>File extensions are required for monitorFolder mode.</source>
        <translation>在“监视文件夹”模式下，请输入文件扩展名。</translation>
    </message>
    <message>
        <source>Stop time must be in the future.</source>
        <translation>停止时间必须晚于当前时间。</translation>
    </message>
    <message>
        <source>Validation Error</source>
        <translation>验证错误</translation>
    </message>
</context>
<context>
    <name>Scheduler::MCsTaskTableWidget</name>
    <message numerus="yes">
        <source>%n task(s)</source>
        <translation>
            <numerusform>%n 个任务</numerusform>
        </translation>
    </message>
</context>
</TS>
