<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="en">
<context>
    <name>MCsMainWindow</name>
    <message>
        <source>Orvel Scheduler Manager</source>
        <translation>Orvel Scheduler Manager</translation>
    </message>
    <message>
        <source>Note: To run the program, sign in to your Windows account and make sure your PC is set not to lock automatically.</source>
        <translation>注意: プログラムを実行するには、Windows アカウントにサインインし、PC が自動的にロックされないように設定してください。</translation>
    </message>
    <message>
        <source>Groups</source>
        <translation>グループ</translation>
    </message>
    <message>
        <source>Task: </source>
        <translation>タスク: </translation>
    </message>
    <message>
        <source>Filter:</source>
        <translation>フィルター:</translation>
    </message>
    <message>
        <source>Tasks: 0</source>
        <translation>タスク数: 0</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名前</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>種類</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>状態</translation>
    </message>
    <message>
        <source>Next Run</source>
        <translation>次回の実行</translation>
    </message>
    <message>
        <source>Last Run Status</source>
        <translation>前回の実行結果</translation>
    </message>
    <message>
        <source>Activity Log:</source>
        <translation>アクティビティログ:</translation>
    </message>
</context>
<context>
    <name>MCsTaskDialog</name>
    <message>
        <source>Task</source>
        <translation>タスク</translation>
    </message>
    <message>
        <source>Task Status : </source>
        <translation>タスクの状態: </translation>
    </message>
    <message>
        <source>ON</source>
        <translation>オン</translation>
    </message>
    <message>
        <source>📋 Basic Information</source>
        <translation>📋 基本情報</translation>
    </message>
    <message>
        <source>Task Name (*):</source>
        <translation>タスク名 (*):</translation>
    </message>
    <message>
        <source>Program Name (*):</source>
        <translation>プログラム名 (*):</translation>
    </message>
    <message>
        <source>Target Program (*):</source>
        <translation>対象プログラム (*):</translation>
    </message>
    <message>
        <source>Task Type (*):</source>
        <translation>タスクの種類 (*):</translation>
    </message>
    <message>
        <source>Group:</source>
        <translation>グループ:</translation>
    </message>
    <message>
        <source>💾 Output Settings</source>
        <translation>💾 出力設定</translation>
    </message>
    <message>
        <source>Use Default Output</source>
        <translation>既定の出力先を使用</translation>
    </message>
    <message>
        <source>Custom Output</source>
        <translation>出力先を指定</translation>
    </message>
    <message>
        <source>Custom Folder:</source>
        <translation>出力先フォルダー:</translation>
    </message>
    <message>
        <source>Browse...</source>
        <translation>参照...</translation>
    </message>
    <message>
        <source>File Name Pattern:</source>
        <translation>ファイル名の形式:</translation>
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
        <translation>🚀 自動開始前の操作</translation>
    </message>
    <message>
        <source>Run Program:</source>
        <translation>プログラムの実行:</translation>
    </message>
    <message>
        <source>Open URL:</source>
        <translation>URL を開く:</translation>
    </message>
    <message>
        <source>e.g., https://www.example.com</source>
        <translation>例: https://www.example.com</translation>
    </message>
    <message>
        <source>After completing the above steps, wait for a while for the data or page to load completely :</source>
        <translation>上記の操作の完了後、データやページが完全に読み込まれるまでしばらく待機します:</translation>
    </message>
    <message>
        <source>Wait for :</source>
        <translation>待機時間:</translation>
    </message>
    <message>
        <source> seconds</source>
        <translation> 秒</translation>
    </message>
    <message>
        <source>⏰ Start Target Program On</source>
        <translation>⏰ 対象プログラムの開始条件</translation>
    </message>
    <message>
        <source>📅 Specified Time</source>
        <translation>📅 指定日時</translation>
    </message>
    <message>
        <source>🔁 Every Day</source>
        <translation>🔁 毎日</translation>
    </message>
    <message>
        <source>📆 Every Week</source>
        <translation>📆 毎週</translation>
    </message>
    <message>
        <source>🖥️ Monitor App</source>
        <translation>🖥️ アプリ監視</translation>
    </message>
    <message>
        <source>📁 Monitor Folder</source>
        <translation>📁 フォルダー監視</translation>
    </message>
    <message>
        <source>Specified Date/Time(*):</source>
        <translation>指定日時 (*):</translation>
    </message>
    <message>
        <source>yyyy-MM-dd HH:mm:ss</source>
        <translation>yyyy-MM-dd HH:mm:ss</translation>
    </message>
    <message>
        <source>Daily Time (HH:MM:SS) *:</source>
        <translation>毎日の時刻 (HH:MM:SS) *:</translation>
    </message>
    <message>
        <source>HH:mm:ss</source>
        <translation>HH:mm:ss</translation>
    </message>
    <message>
        <source>Select Days (*):</source>
        <translation>曜日の選択 (*):</translation>
    </message>
    <message>
        <source>Mon</source>
        <translation>月</translation>
    </message>
    <message>
        <source>Tue</source>
        <translation>火</translation>
    </message>
    <message>
        <source>Wed</source>
        <translation>水</translation>
    </message>
    <message>
        <source>Thu</source>
        <translation>木</translation>
    </message>
    <message>
        <source>Fri</source>
        <translation>金</translation>
    </message>
    <message>
        <source>Sat</source>
        <translation>土</translation>
    </message>
    <message>
        <source>Sun</source>
        <translation>日</translation>
    </message>
    <message>
        <source>Weekly Time (HH:MM:SS) *:</source>
        <translation>毎週の時刻 (HH:MM:SS) *:</translation>
    </message>
    <message>
        <source>Monitor Program (*):</source>
        <translation>監視するプログラム (*):</translation>
    </message>
    <message>
        <source>Monitor Folder (*):</source>
        <translation>監視するフォルダー (*):</translation>
    </message>
    <message>
        <source>File Extensions (*):</source>
        <translation>ファイル拡張子 (*):</translation>
    </message>
    <message>
        <source>e.g., .mp4,.avi,.mkv</source>
        <translation>例: .mp4,.avi,.mkv</translation>
    </message>
    <message>
        <source>⏹️ Auto Stop Condition</source>
        <translation>⏹️ 自動停止の条件</translation>
    </message>
    <message>
        <source>🚫 None</source>
        <translation>🚫 なし</translation>
    </message>
    <message>
        <source>⏱️ By Duration</source>
        <translation>⏱️ 実行時間</translation>
    </message>
    <message>
        <source>💾 By File Size</source>
        <translation>💾 ファイルサイズ</translation>
    </message>
    <message>
        <source>🕐 At Time</source>
        <translation>🕐 停止日時</translation>
    </message>
    <message>
        <source>Duration (*):</source>
        <translation>実行時間 (*):</translation>
    </message>
    <message>
        <source> minutes</source>
        <translation> 分</translation>
    </message>
    <message>
        <source>Task File(s) Size (*):</source>
        <translation>タスクのファイルサイズ (*):</translation>
    </message>
    <message>
        <source> KB</source>
        <translation> KB</translation>
    </message>
    <message>
        <source>Stop At Time (*):</source>
        <translation>停止日時 (*):</translation>
    </message>
    <message>
        <source>🏁 Action After Auto Stop</source>
        <translation>🏁 自動停止後の操作</translation>
    </message>
    <message>
        <source>❌ Close Program</source>
        <translation>❌ プログラムを閉じる</translation>
    </message>
    <message>
        <source>🔌 Shutdown Computer</source>
        <translation>🔌 コンピューターをシャットダウン</translation>
    </message>
    <message>
        <source>🖥️ Display Mode</source>
        <translation>🖥️ 表示モード</translation>
    </message>
    <message>
        <source>👁️ Show</source>
        <translation>👁️ 表示</translation>
    </message>
    <message>
        <source>🔽 Minimize</source>
        <translation>🔽 最小化</translation>
    </message>
    <message>
        <source>🙈 Hide</source>
        <translation>🙈 非表示</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>Error</source>
        <translation>エラー</translation>
    </message>
    <message>
        <source>task type</source>
        <translation>タスクの種類</translation>
    </message>
    <message>
        <source>language</source>
        <translation>言語</translation>
    </message>
    <message>
        <source>program name</source>
        <translation>プログラム名</translation>
    </message>
    <message>
        <source>program path</source>
        <translation>プログラムのパス</translation>
    </message>
    <message>
        <source>Program parameter JSON file not found!</source>
        <translation>プログラムパラメーターの JSON ファイルが見つかりません。</translation>
    </message>
    <message>
        <source>Failed to open program parameter JSON file!</source>
        <translation>プログラムパラメーターの JSON ファイルを開けませんでした。</translation>
    </message>
    <message>
        <source>Program parameter JSON file is empty!</source>
        <translation>プログラムパラメーターの JSON ファイルが空です。</translation>
    </message>
    <message>
        <source>Missing required arguments: %1</source>
        <translation>必須の引数が指定されていません: %1</translation>
    </message>
    <message>
        <source>task type error!</source>
        <translation>タスクの種類が正しくありません。</translation>
    </message>
    <message>
        <source>All Types</source>
        <translation>すべての種類</translation>
    </message>
</context>
<context>
    <name>Scheduler::MCsDynamicFormWidget</name>
    <message>
        <source>Audio Source</source>
        <translation>音声ソース</translation>
    </message>
    <message>
        <source>Audio Bitrate</source>
        <translation>音声ビットレート</translation>
    </message>
    <message>
        <source>Audio Sample Rate</source>
        <translation>音声サンプルレート</translation>
    </message>
    <message>
        <source>Channels</source>
        <translation>チャンネル</translation>
    </message>
    <message>
        <source>Enable VBR if supported</source>
        <translation>可能な場合は VBR を有効化</translation>
    </message>
    <message>
        <source>Output format</source>
        <translation>出力形式</translation>
    </message>
    <message>
        <source>⚙️ Program Parameters</source>
        <translation>⚙️ プログラムパラメーター</translation>
    </message>
</context>
<context>
    <name>Scheduler::MCsMainWindow</name>
    <message>
        <source>[INFO] Already connected</source>
        <translation>[INFO] すでに接続されています</translation>
    </message>
    <message>
        <source>[INFO] Connected to scheduler service</source>
        <translation>[INFO] スケジューラサービスに接続しました</translation>
    </message>
    <message>
        <source>[INFO] Reconnected to scheduler service</source>
        <translation>[INFO] スケジューラサービスに再接続しました</translation>
    </message>
    <message>
        <source>[INFO] Disconnected from scheduler service</source>
        <translation>[INFO] スケジューラサービスから切断しました</translation>
    </message>
    <message>
        <source>[INFO] Not connected</source>
        <translation>[INFO] 接続されていません</translation>
    </message>
    <message>
        <source>[ERROR] Failed to connect to scheduler service</source>
        <translation>[ERROR] スケジューラサービスに接続できませんでした</translation>
    </message>
    <message>
        <source>[ERROR] Connection to scheduler service lost</source>
        <translation>[ERROR] スケジューラサービスとの接続が失われました</translation>
    </message>
    <message>
        <source>[ERROR] Failed to reconnect to scheduler service</source>
        <translation>[ERROR] スケジューラサービスに再接続できませんでした</translation>
    </message>
    <message>
        <source>[ERROR] Not connected to scheduler service</source>
        <translation>[ERROR] スケジューラサービスに接続されていません</translation>
    </message>
    <message>
        <source>[INFO] Scheduler service started</source>
        <translation>[INFO] スケジューラサービスを開始しました</translation>
    </message>
    <message>
        <source>[INFO] Waiting for scheduler service to start</source>
        <translation>[INFO] スケジューラサービスの開始を待っています</translation>
    </message>
    <message>
        <source>[ERROR] Failed to start scheduler service</source>
        <translation>[ERROR] スケジューラサービスを開始できませんでした</translation>
    </message>
    <message>
        <source>[ERROR] Scheduler service is not installed</source>
        <translation>[ERROR] スケジューラサービスがインストールされていません</translation>
    </message>
    <message>
        <source>[INFO] Task list refreshed</source>
        <translation>[INFO] タスク一覧を更新しました</translation>
    </message>
    <message>
        <source>[ERROR] Failed to refresh task list</source>
        <translation>[ERROR] タスク一覧を更新できませんでした</translation>
    </message>
    <message>
        <source>[INFO] Task created: %1</source>
        <translation>[INFO] タスクを作成しました: %1</translation>
    </message>
    <message>
        <source>[ERROR] Failed to create task: %1</source>
        <translation>[ERROR] タスクを作成できませんでした: %1</translation>
    </message>
    <message>
        <source>[INFO] Task updated: %1</source>
        <translation>[INFO] タスクを変更しました: %1</translation>
    </message>
    <message>
        <source>[ERROR] Failed to update task: %1</source>
        <translation>[ERROR] タスクを変更できませんでした: %1</translation>
    </message>
    <message>
        <source>[INFO] Task deleted: %1</source>
        <translation>[INFO] タスクを削除しました: %1</translation>
    </message>
    <message>
        <source>[ERROR] Failed to delete task: %1</source>
        <translation>[ERROR] タスクを削除できませんでした: %1</translation>
    </message>
    <message>
        <source>[INFO] Task enabled: %1</source>
        <translation>[INFO] タスクを有効にしました: %1</translation>
    </message>
    <message>
        <source>[ERROR] Failed to enable task: %1</source>
        <translation>[ERROR] タスクを有効にできませんでした: %1</translation>
    </message>
    <message>
        <source>[INFO] Task disabled: %1</source>
        <translation>[INFO] タスクを無効にしました: %1</translation>
    </message>
    <message>
        <source>[ERROR] Failed to disable task: %1</source>
        <translation>[ERROR] タスクを無効にできませんでした: %1</translation>
    </message>
    <message>
        <source>[INFO] Task triggered: %1</source>
        <translation>[INFO] タスクの実行を開始しました: %1</translation>
    </message>
    <message>
        <source>[ERROR] Failed to trigger task: %1</source>
        <translation>[ERROR] タスクの実行を開始できませんでした: %1</translation>
    </message>
    <message>
        <source>[INFO] Task moved to group &apos;%1&apos;</source>
        <translation>[INFO] タスクをグループ「%1」に移動しました</translation>
    </message>
    <message>
        <source>[ERROR] Failed to move task to group &apos;%1&apos;</source>
        <translation>[ERROR] タスクをグループ「%1」に移動できませんでした</translation>
    </message>
    <message>
        <source>[INFO] %1 tasks moved to group &apos;%2&apos;</source>
        <translation>[INFO] %1 件のタスクをグループ「%2」に移動しました</translation>
    </message>
    <message>
        <source>[ERROR] Failed to move %1 tasks to group &apos;%2&apos;</source>
        <translation>[ERROR] %1 件のタスクをグループ「%2」に移動できませんでした</translation>
    </message>
    <message>
        <source>[INFO] Group list refreshed</source>
        <translation>[INFO] グループ一覧を更新しました</translation>
    </message>
    <message>
        <source>[ERROR] Failed to refresh group list</source>
        <translation>[ERROR] グループ一覧を更新できませんでした</translation>
    </message>
    <message>
        <source>[INFO] Group created: %1</source>
        <translation>[INFO] グループを作成しました: %1</translation>
    </message>
    <message>
        <source>[ERROR] Failed to create group: %1</source>
        <translation>[ERROR] グループを作成できませんでした: %1</translation>
    </message>
    <message>
        <source>[INFO] Group updated: %1</source>
        <translation>[INFO] グループを変更しました: %1</translation>
    </message>
    <message>
        <source>[ERROR] Failed to update group: %1</source>
        <translation>[ERROR] グループを変更できませんでした: %1</translation>
    </message>
    <message>
        <source>[INFO] Group deleted: %1</source>
        <translation>[INFO] グループを削除しました: %1</translation>
    </message>
    <message>
        <source>[ERROR] Failed to delete group: %1</source>
        <translation>[ERROR] グループを削除できませんでした: %1</translation>
    </message>
    <message>
        <source>[INFO] All tasks in the group enabled</source>
        <translation>[INFO] グループ内のすべてのタスクを有効にしました</translation>
    </message>
    <message>
        <source>[ERROR] Failed to enable all tasks in the group</source>
        <translation>[ERROR] グループ内のすべてのタスクを有効にできませんでした</translation>
    </message>
    <message>
        <source>[INFO] All tasks in the group disabled</source>
        <translation>[INFO] グループ内のすべてのタスクを無効にしました</translation>
    </message>
    <message>
        <source>[ERROR] Failed to disable all tasks in the group</source>
        <translation>[ERROR] グループ内のすべてのタスクを無効にできませんでした</translation>
    </message>
    <message>
        <source>[INFO] All tasks in the group triggered</source>
        <translation>[INFO] グループ内のすべてのタスクの実行を開始しました</translation>
    </message>
    <message>
        <source>[ERROR] Failed to trigger all tasks in the group</source>
        <translation>[ERROR] グループ内のすべてのタスクの実行を開始できませんでした</translation>
    </message>
    <message>
        <source>[INFO] All tasks in the group deleted</source>
        <translation>[INFO] グループ内のすべてのタスクを削除しました</translation>
    </message>
    <message>
        <source>[ERROR] Failed to delete all tasks in the group</source>
        <translation>[ERROR] グループ内のすべてのタスクを削除できませんでした</translation>
    </message>
    <message>
        <source>[INFO] Activity log refreshed</source>
        <translation>[INFO] アクティビティログを更新しました</translation>
    </message>
    <message>
        <source>[ERROR] Failed to refresh activity log</source>
        <translation>[ERROR] アクティビティログを更新できませんでした</translation>
    </message>
    <message>
        <source>Task &apos;%1&apos; execution started</source>
        <translation>タスク「%1」の実行を開始しました</translation>
    </message>
    <message>
        <source> (run: %1)</source>
        <translation> (実行 ID: %1)</translation>
    </message>
    <message>
        <source>Task &apos;%1&apos; completed successfully</source>
        <translation>タスク「%1」が正常に完了しました</translation>
    </message>
    <message>
        <source> (exit: %1)</source>
        <translation> (終了コード: %1)</translation>
    </message>
    <message>
        <source>Task &apos;%1&apos; execution failed</source>
        <translation>タスク「%1」の実行に失敗しました</translation>
    </message>
    <message>
        <source> - %1</source>
        <translation> - %1</translation>
    </message>
    <message>
        <source>Task &apos;%1&apos; execution timed out</source>
        <translation>タスク「%1」の実行がタイムアウトしました</translation>
    </message>
    <message>
        <source>Task &apos;%1&apos; execution cancelled</source>
        <translation>タスク「%1」の実行がキャンセルされました</translation>
    </message>
    <message>
        <source>Group &apos;%1&apos; created</source>
        <translation>グループ「%1」を作成しました</translation>
    </message>
    <message>
        <source>Group &apos;%1&apos; updated</source>
        <translation>グループ「%1」を変更しました</translation>
    </message>
    <message>
        <source>Group &apos;%1&apos; deleted</source>
        <translation>グループ「%1」を削除しました</translation>
    </message>
    <message>
        <source>Task &apos;%1&apos; created</source>
        <translation>タスク「%1」を作成しました</translation>
    </message>
    <message>
        <source> (schedule: %1)</source>
        <translation> (スケジュール: %1)</translation>
    </message>
    <message>
        <source>Task &apos;%1&apos; updated</source>
        <translation>タスク「%1」を変更しました</translation>
    </message>
    <message>
        <source>Task &apos;%1&apos; deleted</source>
        <translation>タスク「%1」を削除しました</translation>
    </message>
    <message>
        <source>Task &apos;%1&apos; enabled</source>
        <translation>タスク「%1」を有効にしました</translation>
    </message>
    <message>
        <source>Task &apos;%1&apos; disabled</source>
        <translation>タスク「%1」を無効にしました</translation>
    </message>
    <message>
        <source>%1 on &apos;%2&apos;</source>
        <translation>%1 (対象: 「%2」)</translation>
    </message>
    <message>
        <source>Disconnected</source>
        <translation>未接続</translation>
    </message>
    <message>
        <source>Enable All Tasks</source>
        <translation>すべてのタスクを有効にする</translation>
    </message>
    <message>
        <source>Disable All Tasks</source>
        <translation>すべてのタスクを無効にする</translation>
    </message>
    <message>
        <source>Trigger All Tasks</source>
        <translation>すべてのタスクを今すぐ実行</translation>
    </message>
    <message>
        <source>Delete All Tasks</source>
        <translation>すべてのタスクを削除</translation>
    </message>
    <message>
        <source>Task Runs</source>
        <translation>タスクの実行履歴</translation>
    </message>
    <message>
        <source>Task runs view not yet implemented.</source>
        <translation>タスクの実行履歴の表示はまだ利用できません。</translation>
    </message>
    <message>
        <source>Task Logs</source>
        <translation>タスクのログ</translation>
    </message>
    <message>
        <source>Task logs view not yet implemented.</source>
        <translation>タスクのログの表示はまだ利用できません。</translation>
    </message>
    <message>
        <source>Export Logs</source>
        <translation>ログのエクスポート</translation>
    </message>
    <message>
        <source>Log export not yet implemented.</source>
        <translation>ログのエクスポートはまだ利用できません。</translation>
    </message>
    <message>
        <source>Not Connected</source>
        <translation>未接続</translation>
    </message>
    <message>
        <source>Cannot refresh audit log because not connected to the service.</source>
        <translation>サービスに接続されていないため、アクティビティログを更新できません。</translation>
    </message>
    <message>
        <source>No Selection</source>
        <translation>未選択</translation>
    </message>
    <message>
        <source>Please select a task to edit.</source>
        <translation>編集するタスクを選択してください。</translation>
    </message>
    <message>
        <source>Please select a task to delete.</source>
        <translation>削除するタスクを選択してください。</translation>
    </message>
    <message>
        <source>Confirm Delete</source>
        <translation>削除の確認</translation>
    </message>
    <message>
        <source>Are you sure you want to delete task &apos;%1&apos;?</source>
        <translation>タスク「%1」を削除しますか?</translation>
    </message>
    <message>
        <source>Delete Error</source>
        <translation>削除エラー</translation>
    </message>
    <message>
        <source>Failed to delete task.</source>
        <translation>タスクを削除できませんでした。</translation>
    </message>
    <message>
        <source>Toggle Error</source>
        <translation>切り替えエラー</translation>
    </message>
    <message>
        <source>Failed to toggle task status.</source>
        <translation>タスクの状態を切り替えられませんでした。</translation>
    </message>
    <message>
        <source>Please select a task to trigger.</source>
        <translation>実行するタスクを選択してください。</translation>
    </message>
    <message>
        <source>Trigger Error</source>
        <translation>実行開始エラー</translation>
    </message>
    <message>
        <source>Failed to trigger task.</source>
        <translation>タスクの実行を開始できませんでした。</translation>
    </message>
    <message>
        <source>Please select a group to edit.</source>
        <translation>編集するグループを選択してください。</translation>
    </message>
    <message>
        <source>Cannot Edit</source>
        <translation>編集できません</translation>
    </message>
    <message>
        <source>The &apos;Ungrouped&apos; group cannot be edited.</source>
        <translation>「未分類」グループは編集できません。</translation>
    </message>
    <message>
        <source>Select Type</source>
        <translation>種類の選択</translation>
    </message>
    <message>
        <source>Please select a specific task type from the filter before creating a group.</source>
        <translation>グループを作成する前に、フィルターでタスクの種類を 1 つ選択してください。</translation>
    </message>
    <message>
        <source>Please select a group to delete.</source>
        <translation>削除するグループを選択してください。</translation>
    </message>
    <message>
        <source>Cannot Delete</source>
        <translation>削除できません</translation>
    </message>
    <message>
        <source>The &apos;Ungrouped&apos; group cannot be deleted.</source>
        <translation>「未分類」グループは削除できません。</translation>
    </message>
    <message>
        <source>Are you sure you want to delete group &apos;%1&apos;?
Tasks in this group will be moved to &apos;Ungrouped&apos;.</source>
        <translation>グループ「%1」を削除しますか?
このグループのタスクは「未分類」に移動されます。</translation>
    </message>
    <message>
        <source>Failed to delete group.</source>
        <translation>グループを削除できませんでした。</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>エラー</translation>
    </message>
    <message>
        <source>Failed to enable all tasks in group.</source>
        <translation>グループ内のすべてのタスクを有効にできませんでした。</translation>
    </message>
    <message>
        <source>Failed to disable all tasks in group.</source>
        <translation>グループ内のすべてのタスクを無効にできませんでした。</translation>
    </message>
    <message>
        <source>Failed to trigger all tasks in group.</source>
        <translation>グループ内のすべてのタスクの実行を開始できませんでした。</translation>
    </message>
    <message>
        <source>Are you sure you want to delete all tasks in this group?</source>
        <translation>このグループ内のすべてのタスクを削除しますか?</translation>
    </message>
    <message>
        <source>Failed to delete all tasks in group.</source>
        <translation>グループ内のすべてのタスクを削除できませんでした。</translation>
    </message>
    <message>
        <source>Connecting to scheduler service...</source>
        <translation>スケジューラサービスに接続しています...</translation>
    </message>
    <message>
        <source>Connecting to scheduler service (attempt %1 of %2)...</source>
        <translation>スケジューラサービスに接続しています (試行 %1/%2)...</translation>
    </message>
    <message>
        <source>Unable to connect to the scheduler service because multiple manager instances are running. Please close the other scheduler managers first.</source>
        <translation>複数のスケジューラマネージャーが起動しているため、スケジューラサービスに接続できません。先に他のスケジューラマネージャーを閉じてください。</translation>
    </message>
    <message>
        <source>connected to deamon failed! (attempt %1 of %2) reason = </source>
        <translation>スケジューラサービスに接続できませんでした (試行 %1/%2) 理由 = </translation>
    </message>
    <message>
        <source>[WARN] Initial connection failed, attempting to start service...</source>
        <translation>[WARN] 最初の接続に失敗しました。サービスの開始を試みています...</translation>
    </message>
    <message>
        <source>Scheduler service is installed but failed to start.

Please check system logs or reinstall the service.</source>
        <translation>スケジューラサービスはインストールされていますが、開始できませんでした。

システムログを確認するか、サービスを再インストールしてください。</translation>
    </message>
    <message>
        <source>Scheduler service is not installed.

Please reinstall the service and restart the application.</source>
        <translation>スケジューラサービスがインストールされていません。

サービスを再インストールし、アプリケーションを再起動してください。</translation>
    </message>
    <message>
        <source>Waiting for service to start...</source>
        <translation>サービスの開始を待っています...</translation>
    </message>
    <message>
        <source>Reconnecting to scheduler service (attempt %1 of %2)...</source>
        <translation>スケジューラサービスに再接続しています (試行 %1/%2)...</translation>
    </message>
    <message>
        <source>Unable to connect to scheduler service after multiple attempts.

Please ensure the service is running correctly and try again.</source>
        <translation>複数回試行しましたが、スケジューラサービスに接続できませんでした。

サービスが正常に動作していることを確認し、もう一度お試しください。</translation>
    </message>
    <message>
        <source>No Tasks Found</source>
        <translation>タスクがありません</translation>
    </message>
    <message>
        <source>No scheduled tasks were found.

Would you like to create one now?</source>
        <translation>スケジュールされたタスクが見つかりませんでした。

今すぐ作成しますか?</translation>
    </message>
    <message>
        <source>[WARN] Connection lost, attempting to reconnect...</source>
        <translation>[WARN] 接続が失われました。再接続を試みています...</translation>
    </message>
    <message>
        <source>[INFO] Reconnection attempt %1 of %2...</source>
        <translation>[INFO] 再接続の試行 %1/%2...</translation>
    </message>
    <message>
        <source>Reconnecting (%1/%2)...</source>
        <translation>再接続中 (%1/%2)...</translation>
    </message>
    <message>
        <source>Connection lost. Reconnecting...
Attempt %1 of %2</source>
        <translation>接続が失われました。再接続しています...
試行 %1/%2</translation>
    </message>
    <message>
        <source>Connection to scheduler service was lost and could not be restored.

The application will now close.</source>
        <translation>スケジューラサービスとの接続が失われ、再接続できませんでした。

アプリケーションを終了します。</translation>
    </message>
    <message>
        <source>Service Error</source>
        <translation>サービスエラー</translation>
    </message>
    <message>
        <source>Connecting</source>
        <translation>接続中</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>Connection Lost</source>
        <translation>接続が失われました</translation>
    </message>
    <message>
        <source>Connection lost. Reconnecting to scheduler service...</source>
        <translation>接続が失われました。スケジューラサービスに再接続しています...</translation>
    </message>
    <message>
        <source>Connected</source>
        <translation>接続済み</translation>
    </message>
    <message>
        <source>Failed to move task to group &apos;%1&apos;.</source>
        <translation>タスクをグループ「%1」に移動できませんでした。</translation>
    </message>
    <message>
        <source>Failed to move %1 tasks to group &apos;%2&apos;.</source>
        <translation>%1 件のタスクをグループ「%2」に移動できませんでした。</translation>
    </message>
    <message>
        <source>Failed to move task to group.</source>
        <translation>タスクをグループに移動できませんでした。</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>Tasks: %1</source>
        <translation>タスク数: %1</translation>
    </message>
    <message>
        <source> (in %1)</source>
        <translation> (グループ: %1)</translation>
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
        <translation>タイムアウト</translation>
    </message>
    <message>
        <source>Running</source>
        <translation>実行中</translation>
    </message>
    <message>
        <source>Pending</source>
        <translation>待機中</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>無効</translation>
    </message>
    <message>
        <source>Not scheduled</source>
        <translation>予定なし</translation>
    </message>
    <message>
        <source>Overdue</source>
        <translation>予定時刻超過</translation>
    </message>
    <message>
        <source>%1s left</source>
        <translation>あと%1秒</translation>
    </message>
    <message>
        <source>%1m %2s left</source>
        <translation>あと%1分%2秒</translation>
    </message>
    <message>
        <source>%1d %2h left</source>
        <translation>あと%1日%2時間</translation>
    </message>
    <message>
        <source>%1h %2m left</source>
        <translation>あと%1時間%2分</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>有効</translation>
    </message>
</context>
<context>
    <name>Scheduler::MCsTaskDialog</name>
    <message>
        <source>Failed to load task.</source>
        <translation>タスクを読み込めませんでした。</translation>
    </message>
    <message>
        <source>Test Task</source>
        <translation>テストタスク</translation>
    </message>
    <message>
        <source>Screen Recorder</source>
        <translation>画面録画</translation>
    </message>
    <message>
        <source>Audio Recorder</source>
        <translation>音声録音</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>カスタム</translation>
    </message>
    <message>
        <source>Create Task</source>
        <translation>タスクの作成</translation>
    </message>
    <message>
        <source>Edit Task</source>
        <translation>タスクの編集</translation>
    </message>
    <message>
        <source>ON</source>
        <translation>オン</translation>
    </message>
    <message>
        <source>OFF</source>
        <translation>オフ</translation>
    </message>
    <message>
        <source>Select Program</source>
        <translation>プログラムの選択</translation>
    </message>
    <message>
        <source>Executable Files (*.exe);;All Files (*.*)</source>
        <translation>実行可能ファイル (*.exe);;すべてのファイル (*.*)</translation>
    </message>
    <message>
        <source>Select Program to Monitor</source>
        <translation>監視するプログラムの選択</translation>
    </message>
    <message>
        <source>Select Folder to Monitor</source>
        <translation>監視するフォルダーの選択</translation>
    </message>
    <message>
        <source>Select Output Folder</source>
        <translation>出力先フォルダーの選択</translation>
    </message>
    <message>
        <source>File Name Pattern Help</source>
        <translation>ファイル名の形式のヘルプ</translation>
    </message>
    <message>
        <source>Available format variables:

[YYYY-MM-DD] - Date (e.g., 2024-03-15)
[hh-mm-ss] - Time (e.g., 14-30-45)
[TaskName] - Task name
[Counter] - Auto-incrementing counter

Example: [YYYY-MM-DD][hh-mm-ss]_[TaskName]
Result: 2024-03-15_14-30-45_MyTask.mp4</source>
        <translation>使用できる変数:

[YYYY-MM-DD] - 日付 (例: 2024-03-15)
[hh-mm-ss] - 時刻 (例: 14-30-45)
[TaskName] - タスク名
[Counter] - 自動的に増加する連番

例: [YYYY-MM-DD][hh-mm-ss]_[TaskName]
結果: 2024-03-15_14-30-45_MyTask.mp4</translation>
    </message>
    <message>
        <source>Ungrouped</source>
        <translation>未分類</translation>
    </message>
    <message>
        <source>Critical Error!</source>
        <translation>重大なエラー</translation>
    </message>
    <message>
        <source>Task type mismatch!</source>
        <translation>タスクの種類が一致しません。</translation>
    </message>
    <message>
        <source>Task type not accepted!</source>
        <translation>このタスクの種類は使用できません。</translation>
    </message>
    <message>
        <source>📋 Basic Info</source>
        <translation>📋 基本情報</translation>
    </message>
    <message>
        <source>⚙️ Program Parameters</source>
        <translation>⚙️ プログラムパラメーター</translation>
    </message>
    <message>
        <source>💾 Output</source>
        <translation>💾 出力</translation>
    </message>
    <message>
        <source>🚀 Before Start</source>
        <translation>🚀 開始前</translation>
    </message>
    <message>
        <source>⏰ Start Target Program</source>
        <translation>⏰ 対象プログラムの開始</translation>
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
        <translation>🖥️ 表示</translation>
    </message>
    <message>
        <source>Connection Error</source>
        <translation>接続エラー</translation>
    </message>
    <message>
        <source>Not connected to daemon. Please connect first.</source>
        <translation>スケジューラサービスに接続されていません。先に接続してください。</translation>
    </message>
    <message>
        <source>Success</source>
        <translation>成功</translation>
    </message>
    <message>
        <source>Task created successfully.</source>
        <translation>タスクを作成しました。</translation>
    </message>
    <message>
        <source>Task updated successfully.</source>
        <translation>タスクを変更しました。</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>エラー</translation>
    </message>
    <message>
        <source>Failed to save task. reason : </source>
        <translation>タスクを保存できませんでした。理由: </translation>
    </message>
    <message>
        <source>Task name is required.</source>
        <translation>タスク名を入力してください。</translation>
    </message>
    <message>
        <source>Program name is required.</source>
        <translation>プログラム名が指定されていません。</translation>
    </message>
    <message>
        <source>Target program is required.</source>
        <translation>対象プログラムが指定されていません。</translation>
    </message>
    <message>
        <source>Task type is required.</source>
        <translation>タスクの種類を指定してください。</translation>
    </message>
    <message>
        <source>Specified date/time must be in the future.</source>
        <translation>指定日時には現在より後の日時を指定してください。</translation>
    </message>
    <message>
        <source>At least one weekday must be selected for EveryWeek mode.</source>
        <translation>「毎週」モードでは、曜日を 1 つ以上選択してください。</translation>
    </message>
    <message>
        <source>Monitor program is required for monitorApp mode.</source>
        <translation>「アプリ監視」モードでは、監視するプログラムを指定してください。</translation>
    </message>
    <message>
        <source>Monitor folder path is required for monitorFolder mode.</source>
        <translation>「フォルダー監視」モードでは、監視するフォルダーのパスを指定してください。</translation>
    </message>
    <message>
        <source>File extensions are required for monitorFolder mode.</source>
        <translation>「フォルダー監視」モードでは、ファイル拡張子を指定してください。</translation>
    </message>
    <message>
        <source>Stop time must be in the future.</source>
        <translation>停止日時には現在より後の日時を指定してください。</translation>
    </message>
    <message>
        <source>Validation Error</source>
        <translation>入力エラー</translation>
    </message>
</context>
<context>
    <name>Scheduler::MCsTaskTableWidget</name>
    <message numerus="yes">
        <source>%n task(s)</source>
        <translation>
            <numerusform>%n 件のタスク</numerusform>
        </translation>
    </message>
</context>
</TS>
