<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>MCsMainWindow</name>
    <message>
        <source>Orvel Scheduler Manager</source>
        <translation>Orvel Scheduler Manager</translation>
    </message>
    <message>
        <source>Note: To run the program, sign in to your Windows account and make sure your PC is set not to lock automatically.</source>
        <translation>Hinweis: Zum Ausführen des Programms müssen Sie bei Windows angemeldet sein, und der PC darf nicht automatisch gesperrt werden.</translation>
    </message>
    <message>
        <source>Groups</source>
        <translation>Gruppen</translation>
    </message>
    <message>
        <source>Task: </source>
        <translation>Aufgabe: </translation>
    </message>
    <message>
        <source>Filter:</source>
        <translation>Filter:</translation>
    </message>
    <message>
        <source>Tasks: 0</source>
        <translation>Aufgaben: 0</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Typ</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Status</translation>
    </message>
    <message>
        <source>Next Run</source>
        <translation>Nächster Lauf</translation>
    </message>
    <message>
        <source>Last Run Status</source>
        <translation>Status des letzten Laufs</translation>
    </message>
    <message>
        <source>Activity Log:</source>
        <translation>Aktivitätsprotokoll:</translation>
    </message>
</context>
<context>
    <name>MCsTaskDialog</name>
    <message>
        <source>Task Status : </source>
        <translation>Aufgabenstatus: </translation>
    </message>
    <message>
        <source>ON</source>
        <translation>EIN</translation>
    </message>
    <message>
        <source>📋 Basic Information</source>
        <translation>📋 Grundangaben</translation>
    </message>
    <message>
        <source>Task Name (*):</source>
        <translation>Aufgabenname (*):</translation>
    </message>
    <message>
        <source>Program Name (*):</source>
        <translation>Programmname (*):</translation>
    </message>
    <message>
        <source>Target Program (*):</source>
        <translation>Zielprogramm (*):</translation>
    </message>
    <message>
        <source>Task Type (*):</source>
        <translation>Aufgabentyp (*):</translation>
    </message>
    <message>
        <source>Group:</source>
        <translation>Gruppe:</translation>
    </message>
    <message>
        <source>💾 Output Settings</source>
        <translation>💾 Ausgabe</translation>
    </message>
    <message>
        <source>Use Default Output</source>
        <translation>Standardausgabe verwenden</translation>
    </message>
    <message>
        <source>Custom Output</source>
        <translation>Eigene Ausgabe</translation>
    </message>
    <message>
        <source>Custom Folder:</source>
        <translation>Eigener Ordner:</translation>
    </message>
    <message>
        <source>Browse...</source>
        <translation>Durchsuchen...</translation>
    </message>
    <message>
        <source>File Name Pattern:</source>
        <translation>Dateinamensmuster:</translation>
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
        <translation>🚀 Aktion vor dem automatischen Start</translation>
    </message>
    <message>
        <source>Run Program:</source>
        <translation>Programm ausführen:</translation>
    </message>
    <message>
        <source>Open URL:</source>
        <translation>URL öffnen:</translation>
    </message>
    <message>
        <source>e.g., https://www.example.com</source>
        <translation>z.&#xa0;B. https://www.example.com</translation>
    </message>
    <message>
        <source>After completing the above steps, wait for a while for the data or page to load completely :</source>
        <translation>Nach diesen Schritten eine Weile warten, bis die Daten oder die Seite vollständig geladen sind:</translation>
    </message>
    <message>
        <source>Wait for :</source>
        <translation>Warten:</translation>
    </message>
    <message>
        <source> seconds</source>
        <translation> Sekunden</translation>
    </message>
    <message>
        <source>⏰ Start Target Program On</source>
        <translation>⏰ Zielprogramm starten</translation>
    </message>
    <message>
        <source>📅 Specified Time</source>
        <translation>📅 Zu fester Zeit</translation>
    </message>
    <message>
        <source>🔁 Every Day</source>
        <translation>🔁 Jeden Tag</translation>
    </message>
    <message>
        <source>📆 Every Week</source>
        <translation>📆 Jede Woche</translation>
    </message>
    <message>
        <source>🖥️ Monitor App</source>
        <translation>🖥️ Programm überwachen</translation>
    </message>
    <message>
        <source>📁 Monitor Folder</source>
        <translation>📁 Ordner überwachen</translation>
    </message>
    <message>
        <source>Specified Date/Time(*):</source>
        <translation>Datum/Uhrzeit (*):</translation>
    </message>
    <message>
        <source>Daily Time (HH:MM:SS) *:</source>
        <translation>Tägliche Uhrzeit (HH:MM:SS) *:</translation>
    </message>
    <message>
        <source>Select Days (*):</source>
        <translation>Tage auswählen (*):</translation>
    </message>
    <message>
        <source>Mon</source>
        <translation>Mo</translation>
    </message>
    <message>
        <source>Tue</source>
        <translation>Di</translation>
    </message>
    <message>
        <source>Wed</source>
        <translation>Mi</translation>
    </message>
    <message>
        <source>Thu</source>
        <translation>Do</translation>
    </message>
    <message>
        <source>Fri</source>
        <translation>Fr</translation>
    </message>
    <message>
        <source>Sat</source>
        <translation>Sa</translation>
    </message>
    <message>
        <source>Sun</source>
        <translation>So</translation>
    </message>
    <message>
        <source>Weekly Time (HH:MM:SS) *:</source>
        <translation>Wöchentliche Uhrzeit (HH:MM:SS) *:</translation>
    </message>
    <message>
        <source>Monitor Program (*):</source>
        <translation>Überwachtes Programm (*):</translation>
    </message>
    <message>
        <source>Monitor Folder (*):</source>
        <translation>Überwachter Ordner (*):</translation>
    </message>
    <message>
        <source>File Extensions (*):</source>
        <translation>Dateiendungen (*):</translation>
    </message>
    <message>
        <source>e.g., .mp4,.avi,.mkv</source>
        <translation>z.&#xa0;B. .mp4,.avi,.mkv</translation>
    </message>
    <message>
        <source>⏹️ Auto Stop Condition</source>
        <translation>⏹️ Bedingung für automatischen Stopp</translation>
    </message>
    <message>
        <source>🚫 None</source>
        <translation>🚫 Keine</translation>
    </message>
    <message>
        <source>⏱️ By Duration</source>
        <translation>⏱️ Nach Dauer</translation>
    </message>
    <message>
        <source>💾 By File Size</source>
        <translation>💾 Nach Dateigröße</translation>
    </message>
    <message>
        <source>🕐 At Time</source>
        <translation>🕐 Zu einer Uhrzeit</translation>
    </message>
    <message>
        <source>Duration (*):</source>
        <translation>Dauer (*):</translation>
    </message>
    <message>
        <source> minutes</source>
        <translation> Minuten</translation>
    </message>
    <message>
        <source>Task File(s) Size (*):</source>
        <translation>Größe der Dateien (*):</translation>
    </message>
    <message>
        <source> KB</source>
        <translation> KB</translation>
    </message>
    <message>
        <source>Stop At Time (*):</source>
        <translation>Stoppzeit (*):</translation>
    </message>
    <message>
        <source>🏁 Action After Auto Stop</source>
        <translation>🏁 Aktion nach dem automatischen Stopp</translation>
    </message>
    <message>
        <source>❌ Close Program</source>
        <translation>❌ Programm schließen</translation>
    </message>
    <message>
        <source>🔌 Shutdown Computer</source>
        <translation>🔌 Computer herunterfahren</translation>
    </message>
    <message>
        <source>🖥️ Display Mode</source>
        <translation>🖥️ Anzeigemodus</translation>
    </message>
    <message>
        <source>👁️ Show</source>
        <translation>👁️ Anzeigen</translation>
    </message>
    <message>
        <source>🔽 Minimize</source>
        <translation>🔽 Minimieren</translation>
    </message>
    <message>
        <source>🙈 Hide</source>
        <translation>🙈 Ausblenden</translation>
    </message>
    <message>
        <source>Task</source>
        <translation>Aufgabe</translation>
    </message>
    <message>
        <source>yyyy-MM-dd HH:mm:ss</source>
        <translation>yyyy-MM-dd HH:mm:ss</translation>
    </message>
    <message>
        <source>HH:mm:ss</source>
        <translation>HH:mm:ss</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>Error</source>
        <translation>Fehler</translation>
    </message>
    <message>
        <source>task type</source>
        <translation>Aufgabentyp</translation>
    </message>
    <message>
        <source>language</source>
        <translation>Sprache</translation>
    </message>
    <message>
        <source>program name</source>
        <translation>Programmname</translation>
    </message>
    <message>
        <source>program path</source>
        <translation>Programmpfad</translation>
    </message>
    <message>
        <source>Program parameter JSON file not found!</source>
        <translation>Die JSON-Datei mit den Programmparametern wurde nicht gefunden!</translation>
    </message>
    <message>
        <source>Failed to open program parameter JSON file!</source>
        <translation>Die JSON-Datei mit den Programmparametern konnte nicht geöffnet werden!</translation>
    </message>
    <message>
        <source>Program parameter JSON file is empty!</source>
        <translation>Die JSON-Datei mit den Programmparametern ist leer!</translation>
    </message>
    <message>
        <source>Missing required arguments: %1</source>
        <translation>Erforderliche Argumente fehlen: %1</translation>
    </message>
    <message>
        <source>task type error!</source>
        <translation>Ungültiger Aufgabentyp!</translation>
    </message>
    <message>
        <source>All Types</source>
        <translation>Alle Typen</translation>
    </message>
</context>
<context>
    <name>Scheduler::MCsDynamicFormWidget</name>
    <message>
        <source>Audio Source</source>
        <translation>Audioquelle</translation>
    </message>
    <message>
        <source>Audio Bitrate</source>
        <translation>Audio-Bitrate</translation>
    </message>
    <message>
        <source>Audio Sample Rate</source>
        <translation>Audio-Abtastrate</translation>
    </message>
    <message>
        <source>Channels</source>
        <translation>Kanäle</translation>
    </message>
    <message>
        <source>Enable VBR if supported</source>
        <translation>VBR aktivieren, falls unterstützt</translation>
    </message>
    <message>
        <source>Output format</source>
        <translation>Ausgabeformat</translation>
    </message>
    <message>
        <source>⚙️ Program Parameters</source>
        <translation>⚙️ Programmparameter</translation>
    </message>
</context>
<context>
    <name>Scheduler::MCsMainWindow</name>
    <message>
        <source>Task &apos;%1&apos; execution started</source>
        <translation>Ausführung der Aufgabe „%1“ gestartet</translation>
    </message>
    <message>
        <source> (run: %1)</source>
        <translation> (Lauf: %1)</translation>
    </message>
    <message>
        <source>Task &apos;%1&apos; completed successfully</source>
        <translation>Aufgabe „%1“ erfolgreich abgeschlossen</translation>
    </message>
    <message>
        <source> (exit: %1)</source>
        <translation> (Exitcode: %1)</translation>
    </message>
    <message>
        <source>Task &apos;%1&apos; execution failed</source>
        <translation>Ausführung der Aufgabe „%1“ fehlgeschlagen</translation>
    </message>
    <message>
        <source> - %1</source>
        <translation> - %1</translation>
    </message>
    <message>
        <source>Task &apos;%1&apos; execution timed out</source>
        <translation>Timeout bei der Ausführung der Aufgabe „%1“</translation>
    </message>
    <message>
        <source>Task &apos;%1&apos; execution cancelled</source>
        <translation>Ausführung der Aufgabe „%1“ abgebrochen</translation>
    </message>
    <message>
        <source>Group &apos;%1&apos; created</source>
        <translation>Gruppe „%1“ erstellt</translation>
    </message>
    <message>
        <source>Group &apos;%1&apos; updated</source>
        <translation>Gruppe „%1“ geändert</translation>
    </message>
    <message>
        <source>Group &apos;%1&apos; deleted</source>
        <translation>Gruppe „%1“ gelöscht</translation>
    </message>
    <message>
        <source>Task &apos;%1&apos; created</source>
        <translation>Aufgabe „%1“ erstellt</translation>
    </message>
    <message>
        <source> (schedule: %1)</source>
        <translation> (Zeitplan: %1)</translation>
    </message>
    <message>
        <source>Task &apos;%1&apos; updated</source>
        <translation>Aufgabe „%1“ geändert</translation>
    </message>
    <message>
        <source>Task &apos;%1&apos; deleted</source>
        <translation>Aufgabe „%1“ gelöscht</translation>
    </message>
    <message>
        <source>Task &apos;%1&apos; enabled</source>
        <translation>Aufgabe „%1“ aktiviert</translation>
    </message>
    <message>
        <source>Task &apos;%1&apos; disabled</source>
        <translation>Aufgabe „%1“ deaktiviert</translation>
    </message>
    <message>
        <source>%1 on &apos;%2&apos;</source>
        <translation>%1 für „%2“</translation>
    </message>
    <message>
        <source>Disconnected</source>
        <translation>Getrennt</translation>
    </message>
    <message>
        <source>Enable All Tasks</source>
        <translation>Alle Aufgaben aktivieren</translation>
    </message>
    <message>
        <source>Disable All Tasks</source>
        <translation>Alle Aufgaben deaktivieren</translation>
    </message>
    <message>
        <source>Trigger All Tasks</source>
        <translation>Alle Aufgaben starten</translation>
    </message>
    <message>
        <source>Delete All Tasks</source>
        <translation>Alle Aufgaben löschen</translation>
    </message>
    <message>
        <source>Task Runs</source>
        <translation>Aufgabenläufe</translation>
    </message>
    <message>
        <source>Task runs view not yet implemented.</source>
        <translation>Die Ansicht der Aufgabenläufe ist noch nicht verfügbar.</translation>
    </message>
    <message>
        <source>Task Logs</source>
        <translation>Aufgabenprotokolle</translation>
    </message>
    <message>
        <source>Task logs view not yet implemented.</source>
        <translation>Die Ansicht der Aufgabenprotokolle ist noch nicht verfügbar.</translation>
    </message>
    <message>
        <source>Export Logs</source>
        <translation>Protokolle exportieren</translation>
    </message>
    <message>
        <source>Log export not yet implemented.</source>
        <translation>Der Export von Protokollen ist noch nicht verfügbar.</translation>
    </message>
    <message>
        <source>Not Connected</source>
        <translation>Nicht verbunden</translation>
    </message>
    <message>
        <source>Cannot refresh audit log because not connected to the service.</source>
        <translation>Das Aktivitätsprotokoll kann nicht aktualisiert werden, da keine Verbindung zum Dienst besteht.</translation>
    </message>
    <message>
        <source>No Selection</source>
        <translation>Keine Auswahl</translation>
    </message>
    <message>
        <source>Please select a task to delete.</source>
        <translation>Bitte wählen Sie die Aufgabe aus, die gelöscht werden soll.</translation>
    </message>
    <message>
        <source>Confirm Delete</source>
        <translation>Löschen bestätigen</translation>
    </message>
    <message>
        <source>Are you sure you want to delete task &apos;%1&apos;?</source>
        <translation>Möchten Sie die Aufgabe „%1“ wirklich löschen?</translation>
    </message>
    <message>
        <source>Delete Error</source>
        <translation>Fehler beim Löschen</translation>
    </message>
    <message>
        <source>Failed to delete task.</source>
        <translation>Die Aufgabe konnte nicht gelöscht werden.</translation>
    </message>
    <message>
        <source>Toggle Error</source>
        <translation>Fehler beim Umschalten</translation>
    </message>
    <message>
        <source>Failed to toggle task status.</source>
        <translation>Der Status der Aufgabe konnte nicht umgeschaltet werden.</translation>
    </message>
    <message>
        <source>Please select a task to trigger.</source>
        <translation>Bitte wählen Sie die Aufgabe aus, die gestartet werden soll.</translation>
    </message>
    <message>
        <source>Trigger Error</source>
        <translation>Fehler beim Starten</translation>
    </message>
    <message>
        <source>Failed to trigger task.</source>
        <translation>Die Aufgabe konnte nicht gestartet werden.</translation>
    </message>
    <message>
        <source>Please select a group to edit.</source>
        <translation>Bitte wählen Sie die Gruppe aus, die bearbeitet werden soll.</translation>
    </message>
    <message>
        <source>Cannot Edit</source>
        <translation>Bearbeiten nicht möglich</translation>
    </message>
    <message>
        <source>The &apos;Ungrouped&apos; group cannot be edited.</source>
        <translation>Die Gruppe „Nicht gruppiert“ kann nicht bearbeitet werden.</translation>
    </message>
    <message>
        <source>Select Type</source>
        <translation>Typ auswählen</translation>
    </message>
    <message>
        <source>Please select a specific task type from the filter before creating a group.</source>
        <translation>Bitte wählen Sie im Filter einen bestimmten Aufgabentyp aus, bevor Sie eine Gruppe erstellen.</translation>
    </message>
    <message>
        <source>Please select a group to delete.</source>
        <translation>Bitte wählen Sie die Gruppe aus, die gelöscht werden soll.</translation>
    </message>
    <message>
        <source>Cannot Delete</source>
        <translation>Löschen nicht möglich</translation>
    </message>
    <message>
        <source>The &apos;Ungrouped&apos; group cannot be deleted.</source>
        <translation>Die Gruppe „Nicht gruppiert“ kann nicht gelöscht werden.</translation>
    </message>
    <message>
        <source>Are you sure you want to delete group &apos;%1&apos;?
Tasks in this group will be moved to &apos;Ungrouped&apos;.</source>
        <translation>Möchten Sie die Gruppe „%1“ wirklich löschen?
Die Aufgaben dieser Gruppe werden nach „Nicht gruppiert“ verschoben.</translation>
    </message>
    <message>
        <source>Failed to delete group.</source>
        <translation>Die Gruppe konnte nicht gelöscht werden.</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Fehler</translation>
    </message>
    <message>
        <source>Failed to enable all tasks in group.</source>
        <translation>Die Aufgaben der Gruppe konnten nicht aktiviert werden.</translation>
    </message>
    <message>
        <source>Failed to disable all tasks in group.</source>
        <translation>Die Aufgaben der Gruppe konnten nicht deaktiviert werden.</translation>
    </message>
    <message>
        <source>Failed to trigger all tasks in group.</source>
        <translation>Die Aufgaben der Gruppe konnten nicht gestartet werden.</translation>
    </message>
    <message>
        <source>Are you sure you want to delete all tasks in this group?</source>
        <translation>Möchten Sie wirklich alle Aufgaben dieser Gruppe löschen?</translation>
    </message>
    <message>
        <source>Failed to delete all tasks in group.</source>
        <translation>Die Aufgaben der Gruppe konnten nicht gelöscht werden.</translation>
    </message>
    <message>
        <source>Connecting to scheduler service...</source>
        <translation>Verbindung zum Planungsdienst wird hergestellt...</translation>
    </message>
    <message>
        <source>Connecting to scheduler service (attempt %1 of %2)...</source>
        <translation>Verbindung zum Planungsdienst wird hergestellt (Versuch %1 von %2)...</translation>
    </message>
    <message>
        <source>Unable to connect to the scheduler service because multiple manager instances are running. Please close the other scheduler managers first.</source>
        <translation>Es kann keine Verbindung zum Planungsdienst hergestellt werden, da mehrere Instanzen des Scheduler-Managers ausgeführt werden. Bitte schließen Sie zuerst die anderen Instanzen.</translation>
    </message>
    <message>
        <source>connected to deamon failed! (attempt %1 of %2) reason = </source>
        <translation>Verbindung zum Planungsdienst fehlgeschlagen! (Versuch %1 von %2) Grund = </translation>
    </message>
    <message>
        <source>[WARN] Initial connection failed, attempting to start service...</source>
        <translation>[WARN] Erste Verbindungsversuche fehlgeschlagen, der Dienst wird gestartet...</translation>
    </message>
    <message>
        <source>Scheduler service is installed but failed to start.

Please check system logs or reinstall the service.</source>
        <translation>Der Planungsdienst ist installiert, konnte aber nicht gestartet werden.

Bitte prüfen Sie die Systemprotokolle oder installieren Sie den Dienst neu.</translation>
    </message>
    <message>
        <source>Scheduler service is not installed.

Please reinstall the service and restart the application.</source>
        <translation>Der Planungsdienst ist nicht installiert.

Bitte installieren Sie den Dienst neu und starten Sie die Anwendung erneut.</translation>
    </message>
    <message>
        <source>Waiting for service to start...</source>
        <translation>Warten auf den Start des Dienstes...</translation>
    </message>
    <message>
        <source>Reconnecting to scheduler service (attempt %1 of %2)...</source>
        <translation>Erneuter Verbindungsaufbau zum Planungsdienst (Versuch %1 von %2)...</translation>
    </message>
    <message>
        <source>Unable to connect to scheduler service after multiple attempts.

Please ensure the service is running correctly and try again.</source>
        <translation>Auch nach mehreren Versuchen konnte keine Verbindung zum Planungsdienst hergestellt werden.

Bitte stellen Sie sicher, dass der Dienst ordnungsgemäß ausgeführt wird, und versuchen Sie es erneut.</translation>
    </message>
    <message>
        <source>No Tasks Found</source>
        <translation>Keine Aufgaben gefunden</translation>
    </message>
    <message>
        <source>No scheduled tasks were found.

Would you like to create one now?</source>
        <translation>Es wurden keine geplanten Aufgaben gefunden.

Möchten Sie jetzt eine erstellen?</translation>
    </message>
    <message>
        <source>[WARN] Connection lost, attempting to reconnect...</source>
        <translation>[WARN] Verbindung unterbrochen, sie wird wiederhergestellt...</translation>
    </message>
    <message>
        <source>[INFO] Reconnection attempt %1 of %2...</source>
        <translation>[INFO] Wiederverbindungsversuch %1 von %2...</translation>
    </message>
    <message>
        <source>Reconnecting (%1/%2)...</source>
        <translation>Verbindung wird wiederhergestellt (%1/%2)...</translation>
    </message>
    <message>
        <source>Connection lost. Reconnecting...
Attempt %1 of %2</source>
        <translation>Verbindung unterbrochen. Sie wird wiederhergestellt...
Versuch %1 von %2</translation>
    </message>
    <message>
        <source>Connection to scheduler service was lost and could not be restored.

The application will now close.</source>
        <translation>Die Verbindung zum Planungsdienst wurde unterbrochen und konnte nicht wiederhergestellt werden.

Die Anwendung wird jetzt beendet.</translation>
    </message>
    <message>
        <source>Service Error</source>
        <translation>Dienstfehler</translation>
    </message>
    <message>
        <source>Connecting</source>
        <translation>Verbindungsaufbau</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Connection Lost</source>
        <translation>Verbindung unterbrochen</translation>
    </message>
    <message>
        <source>Connection lost. Reconnecting to scheduler service...</source>
        <translation>Verbindung zum Planungsdienst unterbrochen. Sie wird wiederhergestellt...</translation>
    </message>
    <message>
        <source>Connected</source>
        <translation>Verbunden</translation>
    </message>
    <message>
        <source>Failed to move task to group &apos;%1&apos;.</source>
        <translation>Die Aufgabe konnte nicht in die Gruppe „%1“ verschoben werden.</translation>
    </message>
    <message>
        <source>Failed to move %1 tasks to group &apos;%2&apos;.</source>
        <translation>%1 Aufgaben konnten nicht in die Gruppe „%2“ verschoben werden.</translation>
    </message>
    <message>
        <source>Failed to move task to group.</source>
        <translation>Die Aufgabe konnte nicht in die Gruppe verschoben werden.</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>Tasks: %1</source>
        <translation>Aufgaben: %1</translation>
    </message>
    <message>
        <source> (in %1)</source>
        <translation> (in %1)</translation>
    </message>
    <message>
        <source>Success</source>
        <translation>Erfolgreich</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Fehlgeschlagen</translation>
    </message>
    <message>
        <source>Timeout</source>
        <translation>Timeout</translation>
    </message>
    <message>
        <source>Running</source>
        <translation>Läuft</translation>
    </message>
    <message>
        <source>Pending</source>
        <translation>Ausstehend</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>Deaktiviert</translation>
    </message>
    <message>
        <source>Not scheduled</source>
        <translation>Nicht geplant</translation>
    </message>
    <message>
        <source>Overdue</source>
        <translation>Überfällig</translation>
    </message>
    <message>
        <source>%1s left</source>
        <translation>In %1 s</translation>
    </message>
    <message>
        <source>%1m %2s left</source>
        <translation>In %1 min %2 s</translation>
    </message>
    <message>
        <source>%1d %2h left</source>
        <translation>In %1 d %2 h</translation>
    </message>
    <message>
        <source>%1h %2m left</source>
        <translation>In %1 h %2 min</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Aktiviert</translation>
    </message>
    <message>
        <source>Please select a task to edit.</source>
        <translation>Bitte wählen Sie die Aufgabe aus, die bearbeitet werden soll.</translation>
    </message>
    <message>
        <source>[INFO] Already connected</source>
        <translation>[INFO] Bereits verbunden</translation>
    </message>
    <message>
        <source>[INFO] Connected to scheduler service</source>
        <translation>[INFO] Mit dem Planungsdienst verbunden</translation>
    </message>
    <message>
        <source>[INFO] Reconnected to scheduler service</source>
        <translation>[INFO] Erneut mit dem Planungsdienst verbunden</translation>
    </message>
    <message>
        <source>[INFO] Disconnected from scheduler service</source>
        <translation>[INFO] Verbindung zum Planungsdienst getrennt</translation>
    </message>
    <message>
        <source>[INFO] Not connected</source>
        <translation>[INFO] Nicht verbunden</translation>
    </message>
    <message>
        <source>[ERROR] Failed to connect to scheduler service</source>
        <translation>[ERROR] Verbindung zum Planungsdienst konnte nicht hergestellt werden</translation>
    </message>
    <message>
        <source>[ERROR] Connection to scheduler service lost</source>
        <translation>[ERROR] Verbindung zum Planungsdienst unterbrochen</translation>
    </message>
    <message>
        <source>[ERROR] Failed to reconnect to scheduler service</source>
        <translation>[ERROR] Verbindung zum Planungsdienst konnte nicht wiederhergestellt werden</translation>
    </message>
    <message>
        <source>[ERROR] Not connected to scheduler service</source>
        <translation>[ERROR] Nicht mit dem Planungsdienst verbunden</translation>
    </message>
    <message>
        <source>[INFO] Scheduler service started</source>
        <translation>[INFO] Planungsdienst gestartet</translation>
    </message>
    <message>
        <source>[INFO] Waiting for scheduler service to start</source>
        <translation>[INFO] Warten auf den Start des Planungsdienstes</translation>
    </message>
    <message>
        <source>[ERROR] Failed to start scheduler service</source>
        <translation>[ERROR] Planungsdienst konnte nicht gestartet werden</translation>
    </message>
    <message>
        <source>[ERROR] Scheduler service is not installed</source>
        <translation>[ERROR] Planungsdienst ist nicht installiert</translation>
    </message>
    <message>
        <source>[INFO] Task list refreshed</source>
        <translation>[INFO] Aufgabenliste aktualisiert</translation>
    </message>
    <message>
        <source>[ERROR] Failed to refresh task list</source>
        <translation>[ERROR] Aufgabenliste konnte nicht aktualisiert werden</translation>
    </message>
    <message>
        <source>[INFO] Task created: %1</source>
        <translation>[INFO] Aufgabe erstellt: %1</translation>
    </message>
    <message>
        <source>[ERROR] Failed to create task: %1</source>
        <translation>[ERROR] Aufgabe konnte nicht erstellt werden: %1</translation>
    </message>
    <message>
        <source>[INFO] Task updated: %1</source>
        <translation>[INFO] Aufgabe geändert: %1</translation>
    </message>
    <message>
        <source>[ERROR] Failed to update task: %1</source>
        <translation>[ERROR] Aufgabe konnte nicht geändert werden: %1</translation>
    </message>
    <message>
        <source>[INFO] Task deleted: %1</source>
        <translation>[INFO] Aufgabe gelöscht: %1</translation>
    </message>
    <message>
        <source>[ERROR] Failed to delete task: %1</source>
        <translation>[ERROR] Aufgabe konnte nicht gelöscht werden: %1</translation>
    </message>
    <message>
        <source>[INFO] Task enabled: %1</source>
        <translation>[INFO] Aufgabe aktiviert: %1</translation>
    </message>
    <message>
        <source>[ERROR] Failed to enable task: %1</source>
        <translation>[ERROR] Aufgabe konnte nicht aktiviert werden: %1</translation>
    </message>
    <message>
        <source>[INFO] Task disabled: %1</source>
        <translation>[INFO] Aufgabe deaktiviert: %1</translation>
    </message>
    <message>
        <source>[ERROR] Failed to disable task: %1</source>
        <translation>[ERROR] Aufgabe konnte nicht deaktiviert werden: %1</translation>
    </message>
    <message>
        <source>[INFO] Task triggered: %1</source>
        <translation>[INFO] Aufgabe gestartet: %1</translation>
    </message>
    <message>
        <source>[ERROR] Failed to trigger task: %1</source>
        <translation>[ERROR] Aufgabe konnte nicht gestartet werden: %1</translation>
    </message>
    <message>
        <source>[INFO] Task moved to group &apos;%1&apos;</source>
        <translation>[INFO] Aufgabe in die Gruppe „%1“ verschoben</translation>
    </message>
    <message>
        <source>[ERROR] Failed to move task to group &apos;%1&apos;</source>
        <translation>[ERROR] Aufgabe konnte nicht in die Gruppe „%1“ verschoben werden</translation>
    </message>
    <message>
        <source>[INFO] %1 tasks moved to group &apos;%2&apos;</source>
        <translation>[INFO] %1 Aufgaben in die Gruppe „%2“ verschoben</translation>
    </message>
    <message>
        <source>[ERROR] Failed to move %1 tasks to group &apos;%2&apos;</source>
        <translation>[ERROR] %1 Aufgaben konnten nicht in die Gruppe „%2“ verschoben werden</translation>
    </message>
    <message>
        <source>[INFO] Group list refreshed</source>
        <translation>[INFO] Gruppenliste aktualisiert</translation>
    </message>
    <message>
        <source>[ERROR] Failed to refresh group list</source>
        <translation>[ERROR] Gruppenliste konnte nicht aktualisiert werden</translation>
    </message>
    <message>
        <source>[INFO] Group created: %1</source>
        <translation>[INFO] Gruppe erstellt: %1</translation>
    </message>
    <message>
        <source>[ERROR] Failed to create group: %1</source>
        <translation>[ERROR] Gruppe konnte nicht erstellt werden: %1</translation>
    </message>
    <message>
        <source>[INFO] Group updated: %1</source>
        <translation>[INFO] Gruppe geändert: %1</translation>
    </message>
    <message>
        <source>[ERROR] Failed to update group: %1</source>
        <translation>[ERROR] Gruppe konnte nicht geändert werden: %1</translation>
    </message>
    <message>
        <source>[INFO] Group deleted: %1</source>
        <translation>[INFO] Gruppe gelöscht: %1</translation>
    </message>
    <message>
        <source>[ERROR] Failed to delete group: %1</source>
        <translation>[ERROR] Gruppe konnte nicht gelöscht werden: %1</translation>
    </message>
    <message>
        <source>[INFO] All tasks in the group enabled</source>
        <translation>[INFO] Alle Aufgaben der Gruppe aktiviert</translation>
    </message>
    <message>
        <source>[ERROR] Failed to enable all tasks in the group</source>
        <translation>[ERROR] Die Aufgaben der Gruppe konnten nicht aktiviert werden</translation>
    </message>
    <message>
        <source>[INFO] All tasks in the group disabled</source>
        <translation>[INFO] Alle Aufgaben der Gruppe deaktiviert</translation>
    </message>
    <message>
        <source>[ERROR] Failed to disable all tasks in the group</source>
        <translation>[ERROR] Die Aufgaben der Gruppe konnten nicht deaktiviert werden</translation>
    </message>
    <message>
        <source>[INFO] All tasks in the group triggered</source>
        <translation>[INFO] Alle Aufgaben der Gruppe gestartet</translation>
    </message>
    <message>
        <source>[ERROR] Failed to trigger all tasks in the group</source>
        <translation>[ERROR] Die Aufgaben der Gruppe konnten nicht gestartet werden</translation>
    </message>
    <message>
        <source>[INFO] All tasks in the group deleted</source>
        <translation>[INFO] Alle Aufgaben der Gruppe gelöscht</translation>
    </message>
    <message>
        <source>[ERROR] Failed to delete all tasks in the group</source>
        <translation>[ERROR] Die Aufgaben der Gruppe konnten nicht gelöscht werden</translation>
    </message>
    <message>
        <source>[INFO] Activity log refreshed</source>
        <translation>[INFO] Aktivitätsprotokoll aktualisiert</translation>
    </message>
    <message>
        <source>[ERROR] Failed to refresh activity log</source>
        <translation>[ERROR] Aktivitätsprotokoll konnte nicht aktualisiert werden</translation>
    </message>
</context>
<context>
    <name>Scheduler::MCsTaskDialog</name>
    <message>
        <source>Test Task</source>
        <translation>Testaufgabe</translation>
    </message>
    <message>
        <source>Screen Recorder</source>
        <translation>Screenrecorder</translation>
    </message>
    <message>
        <source>Audio Recorder</source>
        <translation>Audiorecorder</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>Eigener Typ</translation>
    </message>
    <message>
        <source>Create Task</source>
        <translation>Aufgabe erstellen</translation>
    </message>
    <message>
        <source>Edit Task</source>
        <translation>Aufgabe bearbeiten</translation>
    </message>
    <message>
        <source>ON</source>
        <translation>EIN</translation>
    </message>
    <message>
        <source>OFF</source>
        <translation>AUS</translation>
    </message>
    <message>
        <source>Select Program</source>
        <translation>Programm auswählen</translation>
    </message>
    <message>
        <source>Executable Files (*.exe);;All Files (*.*)</source>
        <translation>Ausführbare Dateien (*.exe);;Alle Dateien (*.*)</translation>
    </message>
    <message>
        <source>Select Program to Monitor</source>
        <translation>Zu überwachendes Programm auswählen</translation>
    </message>
    <message>
        <source>Select Folder to Monitor</source>
        <translation>Zu überwachenden Ordner auswählen</translation>
    </message>
    <message>
        <source>Select Output Folder</source>
        <translation>Ausgabeordner auswählen</translation>
    </message>
    <message>
        <source>File Name Pattern Help</source>
        <translation>Hilfe zum Dateinamensmuster</translation>
    </message>
    <message>
        <source>Available format variables:

[YYYY-MM-DD] - Date (e.g., 2024-03-15)
[hh-mm-ss] - Time (e.g., 14-30-45)
[TaskName] - Task name
[Counter] - Auto-incrementing counter

Example: [YYYY-MM-DD][hh-mm-ss]_[TaskName]
Result: 2024-03-15_14-30-45_MyTask.mp4</source>
        <translation>Verfügbare Platzhalter:

[YYYY-MM-DD] - Datum (z.&#xa0;B. 2024-03-15)
[hh-mm-ss] - Uhrzeit (z.&#xa0;B. 14-30-45)
[TaskName] - Name der Aufgabe
[Counter] - Fortlaufende Nummer

Beispiel: [YYYY-MM-DD][hh-mm-ss]_[TaskName]
Ergebnis: 2024-03-15_14-30-45_MeineAufgabe.mp4</translation>
    </message>
    <message>
        <source>Ungrouped</source>
        <translation>Nicht gruppiert</translation>
    </message>
    <message>
        <source>Critical Error!</source>
        <translation>Schwerer Fehler!</translation>
    </message>
    <message>
        <source>Task type mismatch!</source>
        <translation>Der Aufgabentyp stimmt nicht überein!</translation>
    </message>
    <message>
        <source>Task type not accepted!</source>
        <translation>Der Aufgabentyp wird nicht akzeptiert!</translation>
    </message>
    <message>
        <source>📋 Basic Info</source>
        <translation>📋 Grundangaben</translation>
    </message>
    <message>
        <source>⚙️ Program Parameters</source>
        <translation>⚙️ Programmparameter</translation>
    </message>
    <message>
        <source>💾 Output</source>
        <translation>💾 Ausgabe</translation>
    </message>
    <message>
        <source>🚀 Before Start</source>
        <translation>🚀 Vor dem Start</translation>
    </message>
    <message>
        <source>⏰ Start Target Program</source>
        <translation>⏰ Zielprogramm starten</translation>
    </message>
    <message>
        <source>⏹️ Auto Stop</source>
        <translation>⏹️ Auto-Stopp</translation>
    </message>
    <message>
        <source>🏁 After Stop</source>
        <translation>🏁 Nach dem Stopp</translation>
    </message>
    <message>
        <source>🖥️ Display</source>
        <translation>🖥️ Anzeige</translation>
    </message>
    <message>
        <source>Connection Error</source>
        <translation>Verbindungsfehler</translation>
    </message>
    <message>
        <source>Not connected to daemon. Please connect first.</source>
        <translation>Keine Verbindung zum Planungsdienst. Bitte stellen Sie zuerst eine Verbindung her.</translation>
    </message>
    <message>
        <source>Success</source>
        <translation>Erfolg</translation>
    </message>
    <message>
        <source>Task created successfully.</source>
        <translation>Die Aufgabe wurde erstellt.</translation>
    </message>
    <message>
        <source>Task updated successfully.</source>
        <translation>Die Aufgabe wurde geändert.</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Fehler</translation>
    </message>
    <message>
        <source>Failed to save task. reason : </source>
        <translation>Die Aufgabe konnte nicht gespeichert werden. Grund: </translation>
    </message>
    <message>
        <source>Task name is required.</source>
        <translation>Der Aufgabenname ist erforderlich.</translation>
    </message>
    <message>
        <source>Program name is required.</source>
        <translation>Der Programmname ist erforderlich.</translation>
    </message>
    <message>
        <source>Target program is required.</source>
        <translation>Das Zielprogramm ist erforderlich.</translation>
    </message>
    <message>
        <source>Task type is required.</source>
        <translation>Der Aufgabentyp ist erforderlich.</translation>
    </message>
    <message>
        <source>Specified date/time must be in the future.</source>
        <translation>Datum und Uhrzeit müssen in der Zukunft liegen.</translation>
    </message>
    <message>
        <source>At least one weekday must be selected for EveryWeek mode.</source>
        <translation>Im Modus „Jede Woche“ muss mindestens ein Wochentag ausgewählt sein.</translation>
    </message>
    <message>
        <source>Monitor program is required for monitorApp mode.</source>
        <translation>Im Modus „Programm überwachen“ ist das überwachte Programm erforderlich.</translation>
    </message>
    <message>
        <source>Monitor folder path is required for monitorFolder mode.</source>
        <translation>Im Modus „Ordner überwachen“ ist der Pfad des überwachten Ordners erforderlich.</translation>
    </message>
    <message>
        <source>File extensions are required for monitorFolder mode.</source>
        <translation>Im Modus „Ordner überwachen“ sind Dateiendungen erforderlich.</translation>
    </message>
    <message>
        <source>Stop time must be in the future.</source>
        <translation>Die Stoppzeit muss in der Zukunft liegen.</translation>
    </message>
    <message>
        <source>Validation Error</source>
        <translation>Eingabefehler</translation>
    </message>
    <message>
        <source>Failed to load task.</source>
        <translation>Die Aufgabe konnte nicht geladen werden.</translation>
    </message>
</context>
<context>
    <name>Scheduler::MCsTaskTableWidget</name>
    <message numerus="yes">
        <source>%n task(s)</source>
        <translation>
            <numerusform>%n Aufgabe</numerusform>
            <numerusform>%n Aufgaben</numerusform>
        </translation>
    </message>
</context>
</TS>
