<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_TW" sourcelanguage="en">
<context>
    <name>MCsMainWindow</name>
    <message>
        <source>Orvel Scheduler Manager</source>
        <translation>Orvel Scheduler Manager</translation>
    </message>
    <message>
        <source>Note: To run the program, sign in to your Windows account and make sure your PC is set not to lock automatically.</source>
        <translation>注意：若要執行程式，請登入您的 Windows 帳戶，並確認電腦未設定為自動鎖定。</translation>
    </message>
    <message>
        <source>Groups</source>
        <translation>群組</translation>
    </message>
    <message>
        <source>Task: </source>
        <translation>工作： </translation>
    </message>
    <message>
        <source>Filter:</source>
        <translation>篩選：</translation>
    </message>
    <message>
        <source>Tasks: 0</source>
        <translation>工作數：0</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名稱</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>類型</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>狀態</translation>
    </message>
    <message>
        <source>Next Run</source>
        <translation>下次執行</translation>
    </message>
    <message>
        <source>Last Run Status</source>
        <translation>上次執行狀態</translation>
    </message>
    <message>
        <source>Activity Log:</source>
        <translation>活動記錄：</translation>
    </message>
</context>
<context>
    <name>MCsTaskDialog</name>
    <message>
        <source>Task</source>
        <translation>工作</translation>
    </message>
    <message>
        <source>Task Status : </source>
        <translation>工作狀態： </translation>
    </message>
    <message>
        <source>ON</source>
        <translation>開</translation>
    </message>
    <message>
        <source>📋 Basic Information</source>
        <translation>📋 基本資訊</translation>
    </message>
    <message>
        <source>Task Name (*):</source>
        <translation>工作名稱 (*)：</translation>
    </message>
    <message>
        <source>Program Name (*):</source>
        <translation>程式名稱 (*)：</translation>
    </message>
    <message>
        <source>Target Program (*):</source>
        <translation>目標程式 (*)：</translation>
    </message>
    <message>
        <source>Task Type (*):</source>
        <translation>工作類型 (*)：</translation>
    </message>
    <message>
        <source>Group:</source>
        <translation>群組：</translation>
    </message>
    <message>
        <source>💾 Output Settings</source>
        <translation>💾 輸出設定</translation>
    </message>
    <message>
        <source>Use Default Output</source>
        <translation>使用預設輸出</translation>
    </message>
    <message>
        <source>Custom Output</source>
        <translation>自訂輸出</translation>
    </message>
    <message>
        <source>Custom Folder:</source>
        <translation>自訂資料夾：</translation>
    </message>
    <message>
        <source>Browse...</source>
        <translation>瀏覽...</translation>
    </message>
    <message>
        <source>File Name Pattern:</source>
        <translation>檔名格式：</translation>
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
        <translation>🚀 自動啟動前的動作</translation>
    </message>
    <message>
        <source>Run Program:</source>
        <translation>執行程式：</translation>
    </message>
    <message>
        <source>Open URL:</source>
        <translation>開啟網址：</translation>
    </message>
    <message>
        <source>e.g., https://www.example.com</source>
        <translation>例如：https://www.example.com</translation>
    </message>
    <message>
        <source>After completing the above steps, wait for a while for the data or page to load completely :</source>
        <translation>完成上述步驟後等候一段時間，讓資料或頁面完全載入：</translation>
    </message>
    <message>
        <source>Wait for :</source>
        <translation>等候：</translation>
    </message>
    <message>
        <source> seconds</source>
        <translation> 秒</translation>
    </message>
    <message>
        <source>⏰ Start Target Program On</source>
        <translation>⏰ 啟動目標程式的時機</translation>
    </message>
    <message>
        <source>📅 Specified Time</source>
        <translation>📅 指定時間</translation>
    </message>
    <message>
        <source>🔁 Every Day</source>
        <translation>🔁 每天</translation>
    </message>
    <message>
        <source>📆 Every Week</source>
        <translation>📆 每週</translation>
    </message>
    <message>
        <source>🖥️ Monitor App</source>
        <translation>🖥️ 監視程式</translation>
    </message>
    <message>
        <source>📁 Monitor Folder</source>
        <translation>📁 監視資料夾</translation>
    </message>
    <message>
        <source>Specified Date/Time(*):</source>
        <translation>指定日期/時間 (*)：</translation>
    </message>
    <message>
        <source>yyyy-MM-dd HH:mm:ss</source>
        <translation>yyyy-MM-dd HH:mm:ss</translation>
    </message>
    <message>
        <source>Daily Time (HH:MM:SS) *:</source>
        <translation>每日時間 (HH:MM:SS) *：</translation>
    </message>
    <message>
        <source>HH:mm:ss</source>
        <translation>HH:mm:ss</translation>
    </message>
    <message>
        <source>Select Days (*):</source>
        <translation>選取星期 (*)：</translation>
    </message>
    <message>
        <source>Mon</source>
        <translation>週一</translation>
    </message>
    <message>
        <source>Tue</source>
        <translation>週二</translation>
    </message>
    <message>
        <source>Wed</source>
        <translation>週三</translation>
    </message>
    <message>
        <source>Thu</source>
        <translation>週四</translation>
    </message>
    <message>
        <source>Fri</source>
        <translation>週五</translation>
    </message>
    <message>
        <source>Sat</source>
        <translation>週六</translation>
    </message>
    <message>
        <source>Sun</source>
        <translation>週日</translation>
    </message>
    <message>
        <source>Weekly Time (HH:MM:SS) *:</source>
        <translation>每週時間 (HH:MM:SS) *：</translation>
    </message>
    <message>
        <source>Monitor Program (*):</source>
        <translation>監視的程式 (*)：</translation>
    </message>
    <message>
        <source>Monitor Folder (*):</source>
        <translation>監視的資料夾 (*)：</translation>
    </message>
    <message>
        <source>File Extensions (*):</source>
        <translation>副檔名 (*)：</translation>
    </message>
    <message>
        <source>e.g., .mp4,.avi,.mkv</source>
        <translation>例如：.mp4,.avi,.mkv</translation>
    </message>
    <message>
        <source>⏹️ Auto Stop Condition</source>
        <translation>⏹️ 自動停止條件</translation>
    </message>
    <message>
        <source>🚫 None</source>
        <translation>🚫 無</translation>
    </message>
    <message>
        <source>⏱️ By Duration</source>
        <translation>⏱️ 依持續時間</translation>
    </message>
    <message>
        <source>💾 By File Size</source>
        <translation>💾 依檔案大小</translation>
    </message>
    <message>
        <source>🕐 At Time</source>
        <translation>🕐 到達指定時間</translation>
    </message>
    <message>
        <source>Duration (*):</source>
        <translation>持續時間 (*)：</translation>
    </message>
    <message>
        <source> minutes</source>
        <translation> 分鐘</translation>
    </message>
    <message>
        <source>Task File(s) Size (*):</source>
        <translation>工作檔案大小 (*)：</translation>
    </message>
    <message>
        <source> KB</source>
        <translation> KB</translation>
    </message>
    <message>
        <source>Stop At Time (*):</source>
        <translation>停止時間 (*)：</translation>
    </message>
    <message>
        <source>🏁 Action After Auto Stop</source>
        <translation>🏁 自動停止後的動作</translation>
    </message>
    <message>
        <source>❌ Close Program</source>
        <translation>❌ 關閉程式</translation>
    </message>
    <message>
        <source>🔌 Shutdown Computer</source>
        <translation>🔌 關閉電腦</translation>
    </message>
    <message>
        <source>🖥️ Display Mode</source>
        <translation>🖥️ 顯示方式</translation>
    </message>
    <message>
        <source>👁️ Show</source>
        <translation>👁️ 顯示</translation>
    </message>
    <message>
        <source>🔽 Minimize</source>
        <translation>🔽 最小化</translation>
    </message>
    <message>
        <source>🙈 Hide</source>
        <translation>🙈 隱藏</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>Error</source>
        <translation>錯誤</translation>
    </message>
    <message>
        <source>task type</source>
        <translation>工作類型</translation>
    </message>
    <message>
        <source>language</source>
        <translation>語言</translation>
    </message>
    <message>
        <source>program name</source>
        <translation>程式名稱</translation>
    </message>
    <message>
        <source>program path</source>
        <translation>程式路徑</translation>
    </message>
    <message>
        <source>Program parameter JSON file not found!</source>
        <translation>找不到程式參數 JSON 檔案！</translation>
    </message>
    <message>
        <source>Failed to open program parameter JSON file!</source>
        <translation>無法開啟程式參數 JSON 檔案！</translation>
    </message>
    <message>
        <source>Program parameter JSON file is empty!</source>
        <translation>程式參數 JSON 檔案是空的！</translation>
    </message>
    <message>
        <source>Missing required arguments: %1</source>
        <translation>缺少必要的引數：%1</translation>
    </message>
    <message>
        <source>task type error!</source>
        <translation>工作類型錯誤！</translation>
    </message>
    <message>
        <source>All Types</source>
        <translation>所有類型</translation>
    </message>
</context>
<context>
    <name>Scheduler::MCsDynamicFormWidget</name>
    <message>
        <source>Audio Source</source>
        <translation>音訊來源</translation>
    </message>
    <message>
        <source>Audio Bitrate</source>
        <translation>音訊位元率</translation>
    </message>
    <message>
        <source>Audio Sample Rate</source>
        <translation>音訊取樣率</translation>
    </message>
    <message>
        <source>Channels</source>
        <translation>聲道</translation>
    </message>
    <message>
        <source>Enable VBR if supported</source>
        <translation>支援時啟用 VBR</translation>
    </message>
    <message>
        <source>Output format</source>
        <translation>輸出格式</translation>
    </message>
    <message>
        <source>⚙️ Program Parameters</source>
        <translation>⚙️ 程式參數</translation>
    </message>
</context>
<context>
    <name>Scheduler::MCsMainWindow</name>
    <message>
        <source>[INFO] Already connected</source>
        <translation>[INFO] 已處於連線狀態</translation>
    </message>
    <message>
        <source>[INFO] Connected to scheduler service</source>
        <translation>[INFO] 已連線到排程服務</translation>
    </message>
    <message>
        <source>[INFO] Reconnected to scheduler service</source>
        <translation>[INFO] 已重新連線到排程服務</translation>
    </message>
    <message>
        <source>[INFO] Disconnected from scheduler service</source>
        <translation>[INFO] 已中斷與排程服務的連線</translation>
    </message>
    <message>
        <source>[INFO] Not connected</source>
        <translation>[INFO] 未連線</translation>
    </message>
    <message>
        <source>[ERROR] Failed to connect to scheduler service</source>
        <translation>[ERROR] 無法連線到排程服務</translation>
    </message>
    <message>
        <source>[ERROR] Connection to scheduler service lost</source>
        <translation>[ERROR] 與排程服務的連線已中斷</translation>
    </message>
    <message>
        <source>[ERROR] Failed to reconnect to scheduler service</source>
        <translation>[ERROR] 無法重新連線到排程服務</translation>
    </message>
    <message>
        <source>[ERROR] Not connected to scheduler service</source>
        <translation>[ERROR] 未連線到排程服務</translation>
    </message>
    <message>
        <source>[INFO] Scheduler service started</source>
        <translation>[INFO] 排程服務已啟動</translation>
    </message>
    <message>
        <source>[INFO] Waiting for scheduler service to start</source>
        <translation>[INFO] 正在等候排程服務啟動</translation>
    </message>
    <message>
        <source>[ERROR] Failed to start scheduler service</source>
        <translation>[ERROR] 無法啟動排程服務</translation>
    </message>
    <message>
        <source>[ERROR] Scheduler service is not installed</source>
        <translation>[ERROR] 未安裝排程服務</translation>
    </message>
    <message>
        <source>[INFO] Task list refreshed</source>
        <translation>[INFO] 已重新整理工作清單</translation>
    </message>
    <message>
        <source>[ERROR] Failed to refresh task list</source>
        <translation>[ERROR] 無法重新整理工作清單</translation>
    </message>
    <message>
        <source>[INFO] Task created: %1</source>
        <translation>[INFO] 已建立工作：%1</translation>
    </message>
    <message>
        <source>[ERROR] Failed to create task: %1</source>
        <translation>[ERROR] 無法建立工作：%1</translation>
    </message>
    <message>
        <source>[INFO] Task updated: %1</source>
        <translation>[INFO] 已更新工作：%1</translation>
    </message>
    <message>
        <source>[ERROR] Failed to update task: %1</source>
        <translation>[ERROR] 無法更新工作：%1</translation>
    </message>
    <message>
        <source>[INFO] Task deleted: %1</source>
        <translation>[INFO] 已刪除工作：%1</translation>
    </message>
    <message>
        <source>[ERROR] Failed to delete task: %1</source>
        <translation>[ERROR] 無法刪除工作：%1</translation>
    </message>
    <message>
        <source>[INFO] Task enabled: %1</source>
        <translation>[INFO] 已啟用工作：%1</translation>
    </message>
    <message>
        <source>[ERROR] Failed to enable task: %1</source>
        <translation>[ERROR] 無法啟用工作：%1</translation>
    </message>
    <message>
        <source>[INFO] Task disabled: %1</source>
        <translation>[INFO] 已停用工作：%1</translation>
    </message>
    <message>
        <source>[ERROR] Failed to disable task: %1</source>
        <translation>[ERROR] 無法停用工作：%1</translation>
    </message>
    <message>
        <source>[INFO] Task triggered: %1</source>
        <translation>[INFO] 已觸發工作：%1</translation>
    </message>
    <message>
        <source>[ERROR] Failed to trigger task: %1</source>
        <translation>[ERROR] 無法觸發工作：%1</translation>
    </message>
    <message>
        <source>[INFO] Task moved to group &apos;%1&apos;</source>
        <translation>[INFO] 已將工作移至群組「%1」</translation>
    </message>
    <message>
        <source>[ERROR] Failed to move task to group &apos;%1&apos;</source>
        <translation>[ERROR] 無法將工作移至群組「%1」</translation>
    </message>
    <message>
        <source>[INFO] %1 tasks moved to group &apos;%2&apos;</source>
        <translation>[INFO] 已將 %1 個工作移至群組「%2」</translation>
    </message>
    <message>
        <source>[ERROR] Failed to move %1 tasks to group &apos;%2&apos;</source>
        <translation>[ERROR] 無法將 %1 個工作移至群組「%2」</translation>
    </message>
    <message>
        <source>[INFO] Group list refreshed</source>
        <translation>[INFO] 已重新整理群組清單</translation>
    </message>
    <message>
        <source>[ERROR] Failed to refresh group list</source>
        <translation>[ERROR] 無法重新整理群組清單</translation>
    </message>
    <message>
        <source>[INFO] Group created: %1</source>
        <translation>[INFO] 已建立群組：%1</translation>
    </message>
    <message>
        <source>[ERROR] Failed to create group: %1</source>
        <translation>[ERROR] 無法建立群組：%1</translation>
    </message>
    <message>
        <source>[INFO] Group updated: %1</source>
        <translation>[INFO] 已更新群組：%1</translation>
    </message>
    <message>
        <source>[ERROR] Failed to update group: %1</source>
        <translation>[ERROR] 無法更新群組：%1</translation>
    </message>
    <message>
        <source>[INFO] Group deleted: %1</source>
        <translation>[INFO] 已刪除群組：%1</translation>
    </message>
    <message>
        <source>[ERROR] Failed to delete group: %1</source>
        <translation>[ERROR] 無法刪除群組：%1</translation>
    </message>
    <message>
        <source>[INFO] All tasks in the group enabled</source>
        <translation>[INFO] 已啟用群組中的所有工作</translation>
    </message>
    <message>
        <source>[ERROR] Failed to enable all tasks in the group</source>
        <translation>[ERROR] 無法啟用群組中的所有工作</translation>
    </message>
    <message>
        <source>[INFO] All tasks in the group disabled</source>
        <translation>[INFO] 已停用群組中的所有工作</translation>
    </message>
    <message>
        <source>[ERROR] Failed to disable all tasks in the group</source>
        <translation>[ERROR] 無法停用群組中的所有工作</translation>
    </message>
    <message>
        <source>[INFO] All tasks in the group triggered</source>
        <translation>[INFO] 已觸發群組中的所有工作</translation>
    </message>
    <message>
        <source>[ERROR] Failed to trigger all tasks in the group</source>
        <translation>[ERROR] 無法觸發群組中的所有工作</translation>
    </message>
    <message>
        <source>[INFO] All tasks in the group deleted</source>
        <translation>[INFO] 已刪除群組中的所有工作</translation>
    </message>
    <message>
        <source>[ERROR] Failed to delete all tasks in the group</source>
        <translation>[ERROR] 無法刪除群組中的所有工作</translation>
    </message>
    <message>
        <source>[INFO] Activity log refreshed</source>
        <translation>[INFO] 已重新整理活動記錄</translation>
    </message>
    <message>
        <source>[ERROR] Failed to refresh activity log</source>
        <translation>[ERROR] 無法重新整理活動記錄</translation>
    </message>
    <message>
        <source>Task &apos;%1&apos; execution started</source>
        <translation>工作「%1」已開始執行</translation>
    </message>
    <message>
        <source> (run: %1)</source>
        <translation> (執行 ID: %1)</translation>
    </message>
    <message>
        <source>Task &apos;%1&apos; completed successfully</source>
        <translation>工作「%1」已順利完成</translation>
    </message>
    <message>
        <source> (exit: %1)</source>
        <translation> (結束代碼: %1)</translation>
    </message>
    <message>
        <source>Task &apos;%1&apos; execution failed</source>
        <translation>工作「%1」執行失敗</translation>
    </message>
    <message>
        <source> - %1</source>
        <translation> - %1</translation>
    </message>
    <message>
        <source>Task &apos;%1&apos; execution timed out</source>
        <translation>工作「%1」執行逾時</translation>
    </message>
    <message>
        <source>Task &apos;%1&apos; execution cancelled</source>
        <translation>工作「%1」的執行已取消</translation>
    </message>
    <message>
        <source>Group &apos;%1&apos; created</source>
        <translation>群組「%1」已建立</translation>
    </message>
    <message>
        <source>Group &apos;%1&apos; updated</source>
        <translation>群組「%1」已更新</translation>
    </message>
    <message>
        <source>Group &apos;%1&apos; deleted</source>
        <translation>群組「%1」已刪除</translation>
    </message>
    <message>
        <source>Task &apos;%1&apos; created</source>
        <translation>工作「%1」已建立</translation>
    </message>
    <message>
        <source> (schedule: %1)</source>
        <translation> (排程: %1)</translation>
    </message>
    <message>
        <source>Task &apos;%1&apos; updated</source>
        <translation>工作「%1」已更新</translation>
    </message>
    <message>
        <source>Task &apos;%1&apos; deleted</source>
        <translation>工作「%1」已刪除</translation>
    </message>
    <message>
        <source>Task &apos;%1&apos; enabled</source>
        <translation>工作「%1」已啟用</translation>
    </message>
    <message>
        <source>Task &apos;%1&apos; disabled</source>
        <translation>工作「%1」已停用</translation>
    </message>
    <message>
        <source>%1 on &apos;%2&apos;</source>
        <translation>「%2」：%1</translation>
    </message>
    <message>
        <source>Disconnected</source>
        <translation>已中斷連線</translation>
    </message>
    <message>
        <source>Enable All Tasks</source>
        <translation>啟用所有工作</translation>
    </message>
    <message>
        <source>Disable All Tasks</source>
        <translation>停用所有工作</translation>
    </message>
    <message>
        <source>Trigger All Tasks</source>
        <translation>觸發所有工作</translation>
    </message>
    <message>
        <source>Delete All Tasks</source>
        <translation>刪除所有工作</translation>
    </message>
    <message>
        <source>Task Runs</source>
        <translation>工作執行記錄</translation>
    </message>
    <message>
        <source>Task runs view not yet implemented.</source>
        <translation>工作執行記錄檢視尚未實作。</translation>
    </message>
    <message>
        <source>Task Logs</source>
        <translation>工作記錄</translation>
    </message>
    <message>
        <source>Task logs view not yet implemented.</source>
        <translation>工作記錄檢視尚未實作。</translation>
    </message>
    <message>
        <source>Export Logs</source>
        <translation>匯出記錄</translation>
    </message>
    <message>
        <source>Log export not yet implemented.</source>
        <translation>記錄匯出功能尚未實作。</translation>
    </message>
    <message>
        <source>Not Connected</source>
        <translation>未連線</translation>
    </message>
    <message>
        <source>Cannot refresh audit log because not connected to the service.</source>
        <translation>未連線到服務，無法重新整理活動記錄。</translation>
    </message>
    <message>
        <source>No Selection</source>
        <translation>未選取</translation>
    </message>
    <message>
        <source>Please select a task to edit.</source>
        <translation>請選取要編輯的工作。</translation>
    </message>
    <message>
        <source>Please select a task to delete.</source>
        <translation>請選取要刪除的工作。</translation>
    </message>
    <message>
        <source>Confirm Delete</source>
        <translation>確認刪除</translation>
    </message>
    <message>
        <source>Are you sure you want to delete task &apos;%1&apos;?</source>
        <translation>確定要刪除工作「%1」嗎？</translation>
    </message>
    <message>
        <source>Delete Error</source>
        <translation>刪除失敗</translation>
    </message>
    <message>
        <source>Failed to delete task.</source>
        <translation>無法刪除工作。</translation>
    </message>
    <message>
        <source>Toggle Error</source>
        <translation>切換失敗</translation>
    </message>
    <message>
        <source>Failed to toggle task status.</source>
        <translation>無法切換工作狀態。</translation>
    </message>
    <message>
        <source>Please select a task to trigger.</source>
        <translation>請選取要觸發的工作。</translation>
    </message>
    <message>
        <source>Trigger Error</source>
        <translation>觸發失敗</translation>
    </message>
    <message>
        <source>Failed to trigger task.</source>
        <translation>無法觸發工作。</translation>
    </message>
    <message>
        <source>Please select a group to edit.</source>
        <translation>請選取要編輯的群組。</translation>
    </message>
    <message>
        <source>Cannot Edit</source>
        <translation>無法編輯</translation>
    </message>
    <message>
        <source>The &apos;Ungrouped&apos; group cannot be edited.</source>
        <translation>無法編輯「未分組」群組。</translation>
    </message>
    <message>
        <source>Select Type</source>
        <translation>選取類型</translation>
    </message>
    <message>
        <source>Please select a specific task type from the filter before creating a group.</source>
        <translation>建立群組前，請先在篩選中選取特定的工作類型。</translation>
    </message>
    <message>
        <source>Please select a group to delete.</source>
        <translation>請選取要刪除的群組。</translation>
    </message>
    <message>
        <source>Cannot Delete</source>
        <translation>無法刪除</translation>
    </message>
    <message>
        <source>The &apos;Ungrouped&apos; group cannot be deleted.</source>
        <translation>無法刪除「未分組」群組。</translation>
    </message>
    <message>
        <source>Are you sure you want to delete group &apos;%1&apos;?
Tasks in this group will be moved to &apos;Ungrouped&apos;.</source>
        <translation>確定要刪除群組「%1」嗎？
此群組中的工作將移至「未分組」。</translation>
    </message>
    <message>
        <source>Failed to delete group.</source>
        <translation>無法刪除群組。</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>錯誤</translation>
    </message>
    <message>
        <source>Failed to enable all tasks in group.</source>
        <translation>無法啟用群組中的所有工作。</translation>
    </message>
    <message>
        <source>Failed to disable all tasks in group.</source>
        <translation>無法停用群組中的所有工作。</translation>
    </message>
    <message>
        <source>Failed to trigger all tasks in group.</source>
        <translation>無法觸發群組中的所有工作。</translation>
    </message>
    <message>
        <source>Are you sure you want to delete all tasks in this group?</source>
        <translation>確定要刪除此群組中的所有工作嗎？</translation>
    </message>
    <message>
        <source>Failed to delete all tasks in group.</source>
        <translation>無法刪除群組中的所有工作。</translation>
    </message>
    <message>
        <source>Connecting to scheduler service...</source>
        <translation>正在連線到排程服務...</translation>
    </message>
    <message>
        <source>Connecting to scheduler service (attempt %1 of %2)...</source>
        <translation>正在連線到排程服務（第 %1 次，共 %2 次）...</translation>
    </message>
    <message>
        <source>Unable to connect to the scheduler service because multiple manager instances are running. Please close the other scheduler managers first.</source>
        <translation>無法連線到排程服務，因為有多個排程管理員正在執行。請先關閉其他排程管理員。</translation>
    </message>
    <message>
        <source>connected to deamon failed! (attempt %1 of %2) reason = </source>
        <translation>無法連線到排程服務！（第 %1 次，共 %2 次）原因 = </translation>
    </message>
    <message>
        <source>[WARN] Initial connection failed, attempting to start service...</source>
        <translation>[WARN] 初次連線失敗，正在嘗試啟動服務...</translation>
    </message>
    <message>
        <source>Scheduler service is installed but failed to start.

Please check system logs or reinstall the service.</source>
        <translation>排程服務已安裝，但無法啟動。

請檢查系統記錄，或重新安裝此服務。</translation>
    </message>
    <message>
        <source>Scheduler service is not installed.

Please reinstall the service and restart the application.</source>
        <translation>未安裝排程服務。

請重新安裝此服務，然後重新啟動應用程式。</translation>
    </message>
    <message>
        <source>Waiting for service to start...</source>
        <translation>正在等候服務啟動...</translation>
    </message>
    <message>
        <source>Reconnecting to scheduler service (attempt %1 of %2)...</source>
        <translation>正在重新連線到排程服務（第 %1 次，共 %2 次）...</translation>
    </message>
    <message>
        <source>Unable to connect to scheduler service after multiple attempts.

Please ensure the service is running correctly and try again.</source>
        <translation>嘗試多次後仍無法連線到排程服務。

請確認此服務正常執行，然後再試一次。</translation>
    </message>
    <message>
        <source>No Tasks Found</source>
        <translation>沒有排程工作</translation>
    </message>
    <message>
        <source>No scheduled tasks were found.

Would you like to create one now?</source>
        <translation>找不到任何排程工作。

要立即建立一個嗎？</translation>
    </message>
    <message>
        <source>[WARN] Connection lost, attempting to reconnect...</source>
        <translation>[WARN] 連線已中斷，正在嘗試重新連線...</translation>
    </message>
    <message>
        <source>[INFO] Reconnection attempt %1 of %2...</source>
        <translation>[INFO] 正在嘗試重新連線（第 %1 次，共 %2 次）...</translation>
    </message>
    <message>
        <source>Reconnecting (%1/%2)...</source>
        <translation>正在重新連線 (%1/%2)...</translation>
    </message>
    <message>
        <source>Connection lost. Reconnecting...
Attempt %1 of %2</source>
        <translation>連線已中斷，正在重新連線...
第 %1 次，共 %2 次</translation>
    </message>
    <message>
        <source>Connection to scheduler service was lost and could not be restored.

The application will now close.</source>
        <translation>與排程服務的連線已中斷，且無法恢復。

應用程式即將關閉。</translation>
    </message>
    <message>
        <source>Service Error</source>
        <translation>服務錯誤</translation>
    </message>
    <message>
        <source>Connecting</source>
        <translation>正在連線</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Connection Lost</source>
        <translation>連線已中斷</translation>
    </message>
    <message>
        <source>Connection lost. Reconnecting to scheduler service...</source>
        <translation>連線已中斷，正在重新連線到排程服務...</translation>
    </message>
    <message>
        <source>Connected</source>
        <translation>已連線</translation>
    </message>
    <message>
        <source>Failed to move task to group &apos;%1&apos;.</source>
        <translation>無法將工作移至群組「%1」。</translation>
    </message>
    <message>
        <source>Failed to move %1 tasks to group &apos;%2&apos;.</source>
        <translation>無法將 %1 個工作移至群組「%2」。</translation>
    </message>
    <message>
        <source>Failed to move task to group.</source>
        <translation>無法將工作移至群組。</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>Tasks: %1</source>
        <translation>工作數：%1</translation>
    </message>
    <message>
        <source> (in %1)</source>
        <translation> (群組: %1)</translation>
    </message>
    <message>
        <source>Success</source>
        <translation>成功</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>失敗</translation>
    </message>
    <message>
        <source>Timeout</source>
        <translation>逾時</translation>
    </message>
    <message>
        <source>Running</source>
        <translation>執行中</translation>
    </message>
    <message>
        <source>Pending</source>
        <translation>等候中</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>已停用</translation>
    </message>
    <message>
        <source>Not scheduled</source>
        <translation>未排程</translation>
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
        <translation>剩%1天%2小時</translation>
    </message>
    <message>
        <source>%1h %2m left</source>
        <translation>剩%1小時%2分</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>已啟用</translation>
    </message>
</context>
<context>
    <name>Scheduler::MCsTaskDialog</name>
    <message>
        <source>Failed to load task.</source>
        <translation>無法載入工作。</translation>
    </message>
    <message>
        <source>Test Task</source>
        <translation>測試工作</translation>
    </message>
    <message>
        <source>Screen Recorder</source>
        <translation>螢幕錄影</translation>
    </message>
    <message>
        <source>Audio Recorder</source>
        <translation>音訊錄製</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>自訂</translation>
    </message>
    <message>
        <source>Create Task</source>
        <translation>建立工作</translation>
    </message>
    <message>
        <source>Edit Task</source>
        <translation>編輯工作</translation>
    </message>
    <message>
        <source>ON</source>
        <translation>開</translation>
    </message>
    <message>
        <source>OFF</source>
        <translation>關</translation>
    </message>
    <message>
        <source>Select Program</source>
        <translation>選取程式</translation>
    </message>
    <message>
        <source>Executable Files (*.exe);;All Files (*.*)</source>
        <translation>執行檔 (*.exe);;所有檔案 (*.*)</translation>
    </message>
    <message>
        <source>Select Program to Monitor</source>
        <translation>選取要監視的程式</translation>
    </message>
    <message>
        <source>Select Folder to Monitor</source>
        <translation>選取要監視的資料夾</translation>
    </message>
    <message>
        <source>Select Output Folder</source>
        <translation>選取輸出資料夾</translation>
    </message>
    <message>
        <source>File Name Pattern Help</source>
        <translation>檔名格式說明</translation>
    </message>
    <message>
        <source>Available format variables:

[YYYY-MM-DD] - Date (e.g., 2024-03-15)
[hh-mm-ss] - Time (e.g., 14-30-45)
[TaskName] - Task name
[Counter] - Auto-incrementing counter

Example: [YYYY-MM-DD][hh-mm-ss]_[TaskName]
Result: 2024-03-15_14-30-45_MyTask.mp4</source>
        <translation>可用的格式變數：

[YYYY-MM-DD] - 日期（例如 2024-03-15）
[hh-mm-ss] - 時間（例如 14-30-45）
[TaskName] - 工作名稱
[Counter] - 自動遞增的計數器

範例：[YYYY-MM-DD][hh-mm-ss]_[TaskName]
結果：2024-03-15_14-30-45_MyTask.mp4</translation>
    </message>
    <message>
        <source>Ungrouped</source>
        <translation>未分組</translation>
    </message>
    <message>
        <source>Critical Error!</source>
        <translation>嚴重錯誤！</translation>
    </message>
    <message>
        <source>Task type mismatch!</source>
        <translation>工作類型不符！</translation>
    </message>
    <message>
        <source>Task type not accepted!</source>
        <translation>不接受此工作類型！</translation>
    </message>
    <message>
        <source>📋 Basic Info</source>
        <translation>📋 基本資訊</translation>
    </message>
    <message>
        <source>⚙️ Program Parameters</source>
        <translation>⚙️ 程式參數</translation>
    </message>
    <message>
        <source>💾 Output</source>
        <translation>💾 輸出</translation>
    </message>
    <message>
        <source>🚀 Before Start</source>
        <translation>🚀 啟動前</translation>
    </message>
    <message>
        <source>⏰ Start Target Program</source>
        <translation>⏰ 啟動目標程式</translation>
    </message>
    <message>
        <source>⏹️ Auto Stop</source>
        <translation>⏹️ 自動停止</translation>
    </message>
    <message>
        <source>🏁 After Stop</source>
        <translation>🏁 停止後</translation>
    </message>
    <message>
        <source>🖥️ Display</source>
        <translation>🖥️ 顯示</translation>
    </message>
    <message>
        <source>Connection Error</source>
        <translation>連線錯誤</translation>
    </message>
    <message>
        <source>Not connected to daemon. Please connect first.</source>
        <translation>未連線到排程服務，請先連線。</translation>
    </message>
    <message>
        <source>Success</source>
        <translation>成功</translation>
    </message>
    <message>
        <source>Task created successfully.</source>
        <translation>已成功建立工作。</translation>
    </message>
    <message>
        <source>Task updated successfully.</source>
        <translation>已成功更新工作。</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>錯誤</translation>
    </message>
    <message>
        <source>Failed to save task. reason : </source>
        <translation>無法儲存工作。原因： </translation>
    </message>
    <message>
        <source>Task name is required.</source>
        <translation>請輸入工作名稱。</translation>
    </message>
    <message>
        <source>Program name is required.</source>
        <translation>請輸入程式名稱。</translation>
    </message>
    <message>
        <source>Target program is required.</source>
        <translation>請指定目標程式。</translation>
    </message>
    <message>
        <source>Task type is required.</source>
        <translation>請選取工作類型。</translation>
    </message>
    <message>
        <source>Specified date/time must be in the future.</source>
        <translation>指定的日期/時間必須晚於目前時間。</translation>
    </message>
    <message>
        <source>At least one weekday must be selected for EveryWeek mode.</source>
        <translation>在「每週」模式下，請至少選取星期中的一天。</translation>
    </message>
    <message>
        <source>Monitor program is required for monitorApp mode.</source>
        <translation>在「監視程式」模式下，請指定要監視的程式。</translation>
    </message>
    <message>
        <source>Monitor folder path is required for monitorFolder mode.</source>
        <translation>在「監視資料夾」模式下，請指定要監視的資料夾路徑。</translation>
    </message>
    <message>
        <source>File extensions are required for monitorFolder mode.</source>
        <translation>在「監視資料夾」模式下，請輸入副檔名。</translation>
    </message>
    <message>
        <source>Stop time must be in the future.</source>
        <translation>停止時間必須晚於目前時間。</translation>
    </message>
    <message>
        <source>Validation Error</source>
        <translation>驗證錯誤</translation>
    </message>
</context>
<context>
    <name>Scheduler::MCsTaskTableWidget</name>
    <message numerus="yes">
        <source>%n task(s)</source>
        <translation>
            <numerusform>%n 個工作</numerusform>
        </translation>
    </message>
</context>
</TS>
