<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it" sourcelanguage="en">
<context>
    <name>MCsMainWindow</name>
    <message>
        <source>Orvel Scheduler Manager</source>
        <translation>Orvel Scheduler Manager</translation>
    </message>
    <message>
        <source>Note: To run the program, sign in to your Windows account and make sure your PC is set not to lock automatically.</source>
        <translation>Nota: per eseguire il programma, accedere al proprio account Windows e verificare che il blocco automatico del PC sia disattivato.</translation>
    </message>
    <message>
        <source>Groups</source>
        <translation>Gruppi</translation>
    </message>
    <message>
        <source>Task: </source>
        <translation>Attività: </translation>
    </message>
    <message>
        <source>Filter:</source>
        <translation>Filtro:</translation>
    </message>
    <message>
        <source>Tasks: 0</source>
        <translation>Attività: 0</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nome</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Tipo</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Stato</translation>
    </message>
    <message>
        <source>Next Run</source>
        <translation>Prossimo avvio</translation>
    </message>
    <message>
        <source>Last Run Status</source>
        <translation>Esito ultima esecuzione</translation>
    </message>
    <message>
        <source>Activity Log:</source>
        <translation>Registro eventi:</translation>
    </message>
</context>
<context>
    <name>MCsTaskDialog</name>
    <message>
        <source>Task</source>
        <translation>Attività</translation>
    </message>
    <message>
        <source>Task Status : </source>
        <translation>Stato attività: </translation>
    </message>
    <message>
        <source>ON</source>
        <translation>Abilitata</translation>
    </message>
    <message>
        <source>📋 Basic Information</source>
        <translation>📋 Informazioni generali</translation>
    </message>
    <message>
        <source>Task Name (*):</source>
        <translation>Nome attività (*):</translation>
    </message>
    <message>
        <source>Program Name (*):</source>
        <translation>Nome programma (*):</translation>
    </message>
    <message>
        <source>Target Program (*):</source>
        <translation>Programma da avviare (*):</translation>
    </message>
    <message>
        <source>Task Type (*):</source>
        <translation>Tipo di attività (*):</translation>
    </message>
    <message>
        <source>Group:</source>
        <translation>Gruppo:</translation>
    </message>
    <message>
        <source>💾 Output Settings</source>
        <translation>💾 Impostazioni di output</translation>
    </message>
    <message>
        <source>Use Default Output</source>
        <translation>Output predefinito</translation>
    </message>
    <message>
        <source>Custom Output</source>
        <translation>Output personalizzato</translation>
    </message>
    <message>
        <source>Custom Folder:</source>
        <translation>Cartella personalizzata:</translation>
    </message>
    <message>
        <source>Browse...</source>
        <translation>Sfoglia...</translation>
    </message>
    <message>
        <source>File Name Pattern:</source>
        <translation>Modello nome file:</translation>
    </message>
    <message>
        <source>[YYYY-MM-DD][hh-mm-ss]_[TaskName]</source>
        <translation>[YYYY-MM-DD][hh-mm-ss]_[NomeAttività]</translation>
    </message>
    <message>
        <source>?</source>
        <translation>?</translation>
    </message>
    <message>
        <source>🚀 Action Before Auto Start</source>
        <translation>🚀 Azione prima dell&apos;avvio automatico</translation>
    </message>
    <message>
        <source>Run Program:</source>
        <translation>Esegui programma:</translation>
    </message>
    <message>
        <source>Open URL:</source>
        <translation>Apri URL:</translation>
    </message>
    <message>
        <source>e.g., https://www.example.com</source>
        <translation>ad es. https://www.example.com</translation>
    </message>
    <message>
        <source>After completing the above steps, wait for a while for the data or page to load completely :</source>
        <translation>Al termine dei passaggi precedenti, attendere il caricamento completo dei dati o della pagina:</translation>
    </message>
    <message>
        <source>Wait for :</source>
        <translation>Tempo di attesa:</translation>
    </message>
    <message>
        <source> seconds</source>
        <translation> secondi</translation>
    </message>
    <message>
        <source>⏰ Start Target Program On</source>
        <translation>⏰ Avvio del programma</translation>
    </message>
    <message>
        <source>📅 Specified Time</source>
        <translation>📅 Orario specificato</translation>
    </message>
    <message>
        <source>🔁 Every Day</source>
        <translation>🔁 Ogni giorno</translation>
    </message>
    <message>
        <source>📆 Every Week</source>
        <translation>📆 Ogni settimana</translation>
    </message>
    <message>
        <source>🖥️ Monitor App</source>
        <translation>🖥️ Monitora app</translation>
    </message>
    <message>
        <source>📁 Monitor Folder</source>
        <translation>📁 Monitora cartella</translation>
    </message>
    <message>
        <source>Specified Date/Time(*):</source>
        <translation>Data/ora specificata (*):</translation>
    </message>
    <message>
        <source>yyyy-MM-dd HH:mm:ss</source>
        <translation>yyyy-MM-dd HH:mm:ss</translation>
    </message>
    <message>
        <source>Daily Time (HH:MM:SS) *:</source>
        <translation>Orario giornaliero (HH:MM:SS) *:</translation>
    </message>
    <message>
        <source>HH:mm:ss</source>
        <translation>HH:mm:ss</translation>
    </message>
    <message>
        <source>Select Days (*):</source>
        <translation>Selezionare i giorni (*):</translation>
    </message>
    <message>
        <source>Mon</source>
        <translation>Lun</translation>
    </message>
    <message>
        <source>Tue</source>
        <translation>Mar</translation>
    </message>
    <message>
        <source>Wed</source>
        <translation>Mer</translation>
    </message>
    <message>
        <source>Thu</source>
        <translation>Gio</translation>
    </message>
    <message>
        <source>Fri</source>
        <translation>Ven</translation>
    </message>
    <message>
        <source>Sat</source>
        <translation>Sab</translation>
    </message>
    <message>
        <source>Sun</source>
        <translation>Dom</translation>
    </message>
    <message>
        <source>Weekly Time (HH:MM:SS) *:</source>
        <translation>Orario settimanale (HH:MM:SS) *:</translation>
    </message>
    <message>
        <source>Monitor Program (*):</source>
        <translation>Programma da monitorare (*):</translation>
    </message>
    <message>
        <source>Monitor Folder (*):</source>
        <translation>Cartella da monitorare (*):</translation>
    </message>
    <message>
        <source>File Extensions (*):</source>
        <translation>Estensioni file (*):</translation>
    </message>
    <message>
        <source>e.g., .mp4,.avi,.mkv</source>
        <translation>ad es. .mp4,.avi,.mkv</translation>
    </message>
    <message>
        <source>⏹️ Auto Stop Condition</source>
        <translation>⏹️ Condizione di arresto automatico</translation>
    </message>
    <message>
        <source>🚫 None</source>
        <translation>🚫 Nessuna</translation>
    </message>
    <message>
        <source>⏱️ By Duration</source>
        <translation>⏱️ Per durata</translation>
    </message>
    <message>
        <source>💾 By File Size</source>
        <translation>💾 Per dimensione file</translation>
    </message>
    <message>
        <source>🕐 At Time</source>
        <translation>🕐 A orario fisso</translation>
    </message>
    <message>
        <source>Duration (*):</source>
        <translation>Durata (*):</translation>
    </message>
    <message>
        <source> minutes</source>
        <translation> minuti</translation>
    </message>
    <message>
        <source>Task File(s) Size (*):</source>
        <translation>Dimensione dei file dell&apos;attività (*):</translation>
    </message>
    <message>
        <source> KB</source>
        <translation> KB</translation>
    </message>
    <message>
        <source>Stop At Time (*):</source>
        <translation>Orario di arresto (*):</translation>
    </message>
    <message>
        <source>🏁 Action After Auto Stop</source>
        <translation>🏁 Azione dopo l&apos;arresto automatico</translation>
    </message>
    <message>
        <source>❌ Close Program</source>
        <translation>❌ Chiudi programma</translation>
    </message>
    <message>
        <source>🔌 Shutdown Computer</source>
        <translation>🔌 Arresta il computer</translation>
    </message>
    <message>
        <source>🖥️ Display Mode</source>
        <translation>🖥️ Modalità di visualizzazione</translation>
    </message>
    <message>
        <source>👁️ Show</source>
        <translation>👁️ Mostra</translation>
    </message>
    <message>
        <source>🔽 Minimize</source>
        <translation>🔽 Riduci a icona</translation>
    </message>
    <message>
        <source>🙈 Hide</source>
        <translation>🙈 Nascondi</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>Error</source>
        <translation>Errore</translation>
    </message>
    <message>
        <source>task type</source>
        <translation>tipo di attività</translation>
    </message>
    <message>
        <source>language</source>
        <translation>lingua</translation>
    </message>
    <message>
        <source>program name</source>
        <translation>nome del programma</translation>
    </message>
    <message>
        <source>program path</source>
        <translation>percorso del programma</translation>
    </message>
    <message>
        <source>Program parameter JSON file not found!</source>
        <translation>File JSON dei parametri del programma non trovato!</translation>
    </message>
    <message>
        <source>Failed to open program parameter JSON file!</source>
        <translation>Impossibile aprire il file JSON dei parametri del programma!</translation>
    </message>
    <message>
        <source>Program parameter JSON file is empty!</source>
        <translation>Il file JSON dei parametri del programma è vuoto!</translation>
    </message>
    <message>
        <source>Missing required arguments: %1</source>
        <translation>Argomenti obbligatori mancanti: %1</translation>
    </message>
    <message>
        <source>task type error!</source>
        <translation>Tipo di attività non valido!</translation>
    </message>
    <message>
        <source>All Types</source>
        <translation>Tutti i tipi</translation>
    </message>
</context>
<context>
    <name>Scheduler::MCsDynamicFormWidget</name>
    <message>
        <source>Audio Source</source>
        <translation>Sorgente audio</translation>
    </message>
    <message>
        <source>Audio Bitrate</source>
        <translation>Bitrate audio</translation>
    </message>
    <message>
        <source>Audio Sample Rate</source>
        <translation>Campionamento audio</translation>
    </message>
    <message>
        <source>Channels</source>
        <translation>Canali</translation>
    </message>
    <message>
        <source>Enable VBR if supported</source>
        <translation>Abilita VBR se supportato</translation>
    </message>
    <message>
        <source>Output format</source>
        <translation>Formato di output</translation>
    </message>
    <message>
        <source>⚙️ Program Parameters</source>
        <translation>⚙️ Parametri programma</translation>
    </message>
</context>
<context>
    <name>Scheduler::MCsMainWindow</name>
    <message>
        <source>[INFO] Already connected</source>
        <translation>[INFO] Connessione già attiva</translation>
    </message>
    <message>
        <source>[INFO] Connected to scheduler service</source>
        <translation>[INFO] Connesso al servizio di pianificazione</translation>
    </message>
    <message>
        <source>[INFO] Reconnected to scheduler service</source>
        <translation>[INFO] Riconnesso al servizio di pianificazione</translation>
    </message>
    <message>
        <source>[INFO] Disconnected from scheduler service</source>
        <translation>[INFO] Disconnesso dal servizio di pianificazione</translation>
    </message>
    <message>
        <source>[INFO] Not connected</source>
        <translation>[INFO] Non connesso</translation>
    </message>
    <message>
        <source>[ERROR] Failed to connect to scheduler service</source>
        <translation>[ERROR] Impossibile connettersi al servizio di pianificazione</translation>
    </message>
    <message>
        <source>[ERROR] Connection to scheduler service lost</source>
        <translation>[ERROR] Connessione al servizio di pianificazione interrotta</translation>
    </message>
    <message>
        <source>[ERROR] Failed to reconnect to scheduler service</source>
        <translation>[ERROR] Impossibile riconnettersi al servizio di pianificazione</translation>
    </message>
    <message>
        <source>[ERROR] Not connected to scheduler service</source>
        <translation>[ERROR] Non connesso al servizio di pianificazione</translation>
    </message>
    <message>
        <source>[INFO] Scheduler service started</source>
        <translation>[INFO] Servizio di pianificazione avviato</translation>
    </message>
    <message>
        <source>[INFO] Waiting for scheduler service to start</source>
        <translation>[INFO] In attesa dell&apos;avvio del servizio di pianificazione</translation>
    </message>
    <message>
        <source>[ERROR] Failed to start scheduler service</source>
        <translation>[ERROR] Impossibile avviare il servizio di pianificazione</translation>
    </message>
    <message>
        <source>[ERROR] Scheduler service is not installed</source>
        <translation>[ERROR] Il servizio di pianificazione non è installato</translation>
    </message>
    <message>
        <source>[INFO] Task list refreshed</source>
        <translation>[INFO] Elenco attività aggiornato</translation>
    </message>
    <message>
        <source>[ERROR] Failed to refresh task list</source>
        <translation>[ERROR] Impossibile aggiornare l&apos;elenco attività</translation>
    </message>
    <message>
        <source>[INFO] Task created: %1</source>
        <translation>[INFO] Attività creata: %1</translation>
    </message>
    <message>
        <source>[ERROR] Failed to create task: %1</source>
        <translation>[ERROR] Impossibile creare l&apos;attività: %1</translation>
    </message>
    <message>
        <source>[INFO] Task updated: %1</source>
        <translation>[INFO] Attività modificata: %1</translation>
    </message>
    <message>
        <source>[ERROR] Failed to update task: %1</source>
        <translation>[ERROR] Impossibile modificare l&apos;attività: %1</translation>
    </message>
    <message>
        <source>[INFO] Task deleted: %1</source>
        <translation>[INFO] Attività eliminata: %1</translation>
    </message>
    <message>
        <source>[ERROR] Failed to delete task: %1</source>
        <translation>[ERROR] Impossibile eliminare l&apos;attività: %1</translation>
    </message>
    <message>
        <source>[INFO] Task enabled: %1</source>
        <translation>[INFO] Attività abilitata: %1</translation>
    </message>
    <message>
        <source>[ERROR] Failed to enable task: %1</source>
        <translation>[ERROR] Impossibile abilitare l&apos;attività: %1</translation>
    </message>
    <message>
        <source>[INFO] Task disabled: %1</source>
        <translation>[INFO] Attività disabilitata: %1</translation>
    </message>
    <message>
        <source>[ERROR] Failed to disable task: %1</source>
        <translation>[ERROR] Impossibile disabilitare l&apos;attività: %1</translation>
    </message>
    <message>
        <source>[INFO] Task triggered: %1</source>
        <translation>[INFO] Attività avviata: %1</translation>
    </message>
    <message>
        <source>[ERROR] Failed to trigger task: %1</source>
        <translation>[ERROR] Impossibile avviare l&apos;attività: %1</translation>
    </message>
    <message>
        <source>[INFO] Task moved to group &apos;%1&apos;</source>
        <translation>[INFO] Attività spostata nel gruppo &quot;%1&quot;</translation>
    </message>
    <message>
        <source>[ERROR] Failed to move task to group &apos;%1&apos;</source>
        <translation>[ERROR] Impossibile spostare l&apos;attività nel gruppo &quot;%1&quot;</translation>
    </message>
    <message>
        <source>[INFO] %1 tasks moved to group &apos;%2&apos;</source>
        <translation>[INFO] %1 attività spostate nel gruppo &quot;%2&quot;</translation>
    </message>
    <message>
        <source>[ERROR] Failed to move %1 tasks to group &apos;%2&apos;</source>
        <translation>[ERROR] Impossibile spostare %1 attività nel gruppo &quot;%2&quot;</translation>
    </message>
    <message>
        <source>[INFO] Group list refreshed</source>
        <translation>[INFO] Elenco gruppi aggiornato</translation>
    </message>
    <message>
        <source>[ERROR] Failed to refresh group list</source>
        <translation>[ERROR] Impossibile aggiornare l&apos;elenco gruppi</translation>
    </message>
    <message>
        <source>[INFO] Group created: %1</source>
        <translation>[INFO] Gruppo creato: %1</translation>
    </message>
    <message>
        <source>[ERROR] Failed to create group: %1</source>
        <translation>[ERROR] Impossibile creare il gruppo: %1</translation>
    </message>
    <message>
        <source>[INFO] Group updated: %1</source>
        <translation>[INFO] Gruppo modificato: %1</translation>
    </message>
    <message>
        <source>[ERROR] Failed to update group: %1</source>
        <translation>[ERROR] Impossibile modificare il gruppo: %1</translation>
    </message>
    <message>
        <source>[INFO] Group deleted: %1</source>
        <translation>[INFO] Gruppo eliminato: %1</translation>
    </message>
    <message>
        <source>[ERROR] Failed to delete group: %1</source>
        <translation>[ERROR] Impossibile eliminare il gruppo: %1</translation>
    </message>
    <message>
        <source>[INFO] All tasks in the group enabled</source>
        <translation>[INFO] Tutte le attività del gruppo sono state abilitate</translation>
    </message>
    <message>
        <source>[ERROR] Failed to enable all tasks in the group</source>
        <translation>[ERROR] Impossibile abilitare tutte le attività del gruppo</translation>
    </message>
    <message>
        <source>[INFO] All tasks in the group disabled</source>
        <translation>[INFO] Tutte le attività del gruppo sono state disabilitate</translation>
    </message>
    <message>
        <source>[ERROR] Failed to disable all tasks in the group</source>
        <translation>[ERROR] Impossibile disabilitare tutte le attività del gruppo</translation>
    </message>
    <message>
        <source>[INFO] All tasks in the group triggered</source>
        <translation>[INFO] Tutte le attività del gruppo sono state avviate</translation>
    </message>
    <message>
        <source>[ERROR] Failed to trigger all tasks in the group</source>
        <translation>[ERROR] Impossibile avviare tutte le attività del gruppo</translation>
    </message>
    <message>
        <source>[INFO] All tasks in the group deleted</source>
        <translation>[INFO] Tutte le attività del gruppo sono state eliminate</translation>
    </message>
    <message>
        <source>[ERROR] Failed to delete all tasks in the group</source>
        <translation>[ERROR] Impossibile eliminare tutte le attività del gruppo</translation>
    </message>
    <message>
        <source>[INFO] Activity log refreshed</source>
        <translation>[INFO] Registro eventi aggiornato</translation>
    </message>
    <message>
        <source>[ERROR] Failed to refresh activity log</source>
        <translation>[ERROR] Impossibile aggiornare il registro eventi</translation>
    </message>
    <message>
        <source>Task &apos;%1&apos; execution started</source>
        <translation>Esecuzione dell&apos;attività &quot;%1&quot; avviata</translation>
    </message>
    <message>
        <source> (run: %1)</source>
        <translation> (esecuzione: %1)</translation>
    </message>
    <message>
        <source>Task &apos;%1&apos; completed successfully</source>
        <translation>Attività &quot;%1&quot; completata correttamente</translation>
    </message>
    <message>
        <source> (exit: %1)</source>
        <translation> (codice di uscita: %1)</translation>
    </message>
    <message>
        <source>Task &apos;%1&apos; execution failed</source>
        <translation>Esecuzione dell&apos;attività &quot;%1&quot; non riuscita</translation>
    </message>
    <message>
        <source> - %1</source>
        <translation> - %1</translation>
    </message>
    <message>
        <source>Task &apos;%1&apos; execution timed out</source>
        <translation>Tempo di esecuzione dell&apos;attività &quot;%1&quot; scaduto</translation>
    </message>
    <message>
        <source>Task &apos;%1&apos; execution cancelled</source>
        <translation>Esecuzione dell&apos;attività &quot;%1&quot; annullata</translation>
    </message>
    <message>
        <source>Group &apos;%1&apos; created</source>
        <translation>Gruppo &quot;%1&quot; creato</translation>
    </message>
    <message>
        <source>Group &apos;%1&apos; updated</source>
        <translation>Gruppo &quot;%1&quot; modificato</translation>
    </message>
    <message>
        <source>Group &apos;%1&apos; deleted</source>
        <translation>Gruppo &quot;%1&quot; eliminato</translation>
    </message>
    <message>
        <source>Task &apos;%1&apos; created</source>
        <translation>Attività &quot;%1&quot; creata</translation>
    </message>
    <message>
        <source> (schedule: %1)</source>
        <translation> (pianificazione: %1)</translation>
    </message>
    <message>
        <source>Task &apos;%1&apos; updated</source>
        <translation>Attività &quot;%1&quot; modificata</translation>
    </message>
    <message>
        <source>Task &apos;%1&apos; deleted</source>
        <translation>Attività &quot;%1&quot; eliminata</translation>
    </message>
    <message>
        <source>Task &apos;%1&apos; enabled</source>
        <translation>Attività &quot;%1&quot; abilitata</translation>
    </message>
    <message>
        <source>Task &apos;%1&apos; disabled</source>
        <translation>Attività &quot;%1&quot; disabilitata</translation>
    </message>
    <message>
        <source>%1 on &apos;%2&apos;</source>
        <translation>%1 su &quot;%2&quot;</translation>
    </message>
    <message>
        <source>Disconnected</source>
        <translation>Disconnesso</translation>
    </message>
    <message>
        <source>Enable All Tasks</source>
        <translation>Abilita tutte le attività</translation>
    </message>
    <message>
        <source>Disable All Tasks</source>
        <translation>Disabilita tutte le attività</translation>
    </message>
    <message>
        <source>Trigger All Tasks</source>
        <translation>Avvia tutte le attività</translation>
    </message>
    <message>
        <source>Delete All Tasks</source>
        <translation>Elimina tutte le attività</translation>
    </message>
    <message>
        <source>Task Runs</source>
        <translation>Esecuzioni dell&apos;attività</translation>
    </message>
    <message>
        <source>Task runs view not yet implemented.</source>
        <translation>La visualizzazione delle esecuzioni dell&apos;attività non è ancora disponibile.</translation>
    </message>
    <message>
        <source>Task Logs</source>
        <translation>Registri dell&apos;attività</translation>
    </message>
    <message>
        <source>Task logs view not yet implemented.</source>
        <translation>La visualizzazione dei registri dell&apos;attività non è ancora disponibile.</translation>
    </message>
    <message>
        <source>Export Logs</source>
        <translation>Esporta registri</translation>
    </message>
    <message>
        <source>Log export not yet implemented.</source>
        <translation>L&apos;esportazione dei registri non è ancora disponibile.</translation>
    </message>
    <message>
        <source>Not Connected</source>
        <translation>Non connesso</translation>
    </message>
    <message>
        <source>Cannot refresh audit log because not connected to the service.</source>
        <translation>Impossibile aggiornare il registro eventi: nessuna connessione al servizio.</translation>
    </message>
    <message>
        <source>No Selection</source>
        <translation>Nessuna selezione</translation>
    </message>
    <message>
        <source>Please select a task to edit.</source>
        <translation>Selezionare un&apos;attività da modificare.</translation>
    </message>
    <message>
        <source>Please select a task to delete.</source>
        <translation>Selezionare un&apos;attività da eliminare.</translation>
    </message>
    <message>
        <source>Confirm Delete</source>
        <translation>Conferma eliminazione</translation>
    </message>
    <message>
        <source>Are you sure you want to delete task &apos;%1&apos;?</source>
        <translation>Eliminare l&apos;attività &quot;%1&quot;?</translation>
    </message>
    <message>
        <source>Delete Error</source>
        <translation>Errore di eliminazione</translation>
    </message>
    <message>
        <source>Failed to delete task.</source>
        <translation>Impossibile eliminare l&apos;attività.</translation>
    </message>
    <message>
        <source>Toggle Error</source>
        <translation>Errore di cambio stato</translation>
    </message>
    <message>
        <source>Failed to toggle task status.</source>
        <translation>Impossibile cambiare lo stato dell&apos;attività.</translation>
    </message>
    <message>
        <source>Please select a task to trigger.</source>
        <translation>Selezionare un&apos;attività da avviare.</translation>
    </message>
    <message>
        <source>Trigger Error</source>
        <translation>Errore di avvio</translation>
    </message>
    <message>
        <source>Failed to trigger task.</source>
        <translation>Impossibile avviare l&apos;attività.</translation>
    </message>
    <message>
        <source>Please select a group to edit.</source>
        <translation>Selezionare un gruppo da modificare.</translation>
    </message>
    <message>
        <source>Cannot Edit</source>
        <translation>Impossibile modificare</translation>
    </message>
    <message>
        <source>The &apos;Ungrouped&apos; group cannot be edited.</source>
        <translation>Il gruppo &quot;Senza gruppo&quot; non può essere modificato.</translation>
    </message>
    <message>
        <source>Select Type</source>
        <translation>Seleziona tipo</translation>
    </message>
    <message>
        <source>Please select a specific task type from the filter before creating a group.</source>
        <translation>Selezionare un tipo di attività specifico dal filtro prima di creare un gruppo.</translation>
    </message>
    <message>
        <source>Please select a group to delete.</source>
        <translation>Selezionare un gruppo da eliminare.</translation>
    </message>
    <message>
        <source>Cannot Delete</source>
        <translation>Impossibile eliminare</translation>
    </message>
    <message>
        <source>The &apos;Ungrouped&apos; group cannot be deleted.</source>
        <translation>Il gruppo &quot;Senza gruppo&quot; non può essere eliminato.</translation>
    </message>
    <message>
        <source>Are you sure you want to delete group &apos;%1&apos;?
Tasks in this group will be moved to &apos;Ungrouped&apos;.</source>
        <translation>Eliminare il gruppo &quot;%1&quot;?
Le attività di questo gruppo verranno spostate in &quot;Senza gruppo&quot;.</translation>
    </message>
    <message>
        <source>Failed to delete group.</source>
        <translation>Impossibile eliminare il gruppo.</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Errore</translation>
    </message>
    <message>
        <source>Failed to enable all tasks in group.</source>
        <translation>Impossibile abilitare tutte le attività del gruppo.</translation>
    </message>
    <message>
        <source>Failed to disable all tasks in group.</source>
        <translation>Impossibile disabilitare tutte le attività del gruppo.</translation>
    </message>
    <message>
        <source>Failed to trigger all tasks in group.</source>
        <translation>Impossibile avviare tutte le attività del gruppo.</translation>
    </message>
    <message>
        <source>Are you sure you want to delete all tasks in this group?</source>
        <translation>Eliminare tutte le attività di questo gruppo?</translation>
    </message>
    <message>
        <source>Failed to delete all tasks in group.</source>
        <translation>Impossibile eliminare tutte le attività del gruppo.</translation>
    </message>
    <message>
        <source>Connecting to scheduler service...</source>
        <translation>Connessione al servizio di pianificazione...</translation>
    </message>
    <message>
        <source>Connecting to scheduler service (attempt %1 of %2)...</source>
        <translation>Connessione al servizio di pianificazione (tentativo %1 di %2)...</translation>
    </message>
    <message>
        <source>Unable to connect to the scheduler service because multiple manager instances are running. Please close the other scheduler managers first.</source>
        <translation>Impossibile connettersi al servizio di pianificazione perché sono in esecuzione più istanze del gestore. Chiudere prima gli altri gestori di pianificazione.</translation>
    </message>
    <message>
        <source>connected to deamon failed! (attempt %1 of %2) reason = </source>
        <translation>Connessione al servizio di pianificazione non riuscita! (tentativo %1 di %2) motivo = </translation>
    </message>
    <message>
        <source>[WARN] Initial connection failed, attempting to start service...</source>
        <translation>[WARN] Connessione iniziale non riuscita, tentativo di avvio del servizio...</translation>
    </message>
    <message>
        <source>Scheduler service is installed but failed to start.

Please check system logs or reinstall the service.</source>
        <translation>Il servizio di pianificazione è installato, ma non è stato possibile avviarlo.

Controllare i registri di sistema o reinstallare il servizio.</translation>
    </message>
    <message>
        <source>Scheduler service is not installed.

Please reinstall the service and restart the application.</source>
        <translation>Il servizio di pianificazione non è installato.

Reinstallare il servizio e riavviare l&apos;applicazione.</translation>
    </message>
    <message>
        <source>Waiting for service to start...</source>
        <translation>In attesa dell&apos;avvio del servizio...</translation>
    </message>
    <message>
        <source>Reconnecting to scheduler service (attempt %1 of %2)...</source>
        <translation>Riconnessione al servizio di pianificazione (tentativo %1 di %2)...</translation>
    </message>
    <message>
        <source>Unable to connect to scheduler service after multiple attempts.

Please ensure the service is running correctly and try again.</source>
        <translation>Impossibile connettersi al servizio di pianificazione dopo diversi tentativi.

Verificare che il servizio funzioni correttamente e riprovare.</translation>
    </message>
    <message>
        <source>No Tasks Found</source>
        <translation>Nessuna attività trovata</translation>
    </message>
    <message>
        <source>No scheduled tasks were found.

Would you like to create one now?</source>
        <translation>Nessuna attività pianificata trovata.

Crearne una adesso?</translation>
    </message>
    <message>
        <source>[WARN] Connection lost, attempting to reconnect...</source>
        <translation>[WARN] Connessione interrotta, tentativo di riconnessione...</translation>
    </message>
    <message>
        <source>[INFO] Reconnection attempt %1 of %2...</source>
        <translation>[INFO] Tentativo di riconnessione %1 di %2...</translation>
    </message>
    <message>
        <source>Reconnecting (%1/%2)...</source>
        <translation>Riconnessione (%1/%2)...</translation>
    </message>
    <message>
        <source>Connection lost. Reconnecting...
Attempt %1 of %2</source>
        <translation>Connessione interrotta. Riconnessione...
Tentativo %1 di %2</translation>
    </message>
    <message>
        <source>Connection to scheduler service was lost and could not be restored.

The application will now close.</source>
        <translation>La connessione al servizio di pianificazione è stata interrotta e non è stato possibile ripristinarla.

L&apos;applicazione verrà ora chiusa.</translation>
    </message>
    <message>
        <source>Service Error</source>
        <translation>Errore del servizio</translation>
    </message>
    <message>
        <source>Connecting</source>
        <translation>Connessione</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>Connection Lost</source>
        <translation>Connessione interrotta</translation>
    </message>
    <message>
        <source>Connection lost. Reconnecting to scheduler service...</source>
        <translation>Connessione interrotta. Riconnessione al servizio di pianificazione...</translation>
    </message>
    <message>
        <source>Connected</source>
        <translation>Connesso</translation>
    </message>
    <message>
        <source>Failed to move task to group &apos;%1&apos;.</source>
        <translation>Impossibile spostare l&apos;attività nel gruppo &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>Failed to move %1 tasks to group &apos;%2&apos;.</source>
        <translation>Impossibile spostare %1 attività nel gruppo &quot;%2&quot;.</translation>
    </message>
    <message>
        <source>Failed to move task to group.</source>
        <translation>Impossibile spostare l&apos;attività nel gruppo.</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>Tasks: %1</source>
        <translation>Attività: %1</translation>
    </message>
    <message>
        <source> (in %1)</source>
        <translation> (in %1)</translation>
    </message>
    <message>
        <source>Success</source>
        <translation>Riuscita</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Non riuscita</translation>
    </message>
    <message>
        <source>Timeout</source>
        <translation>Tempo scaduto</translation>
    </message>
    <message>
        <source>Running</source>
        <translation>In esecuzione</translation>
    </message>
    <message>
        <source>Pending</source>
        <translation>In attesa</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>Disabilitata</translation>
    </message>
    <message>
        <source>Not scheduled</source>
        <translation>Non pianificata</translation>
    </message>
    <message>
        <source>Overdue</source>
        <translation>In ritardo</translation>
    </message>
    <message>
        <source>%1s left</source>
        <translation>tra %1 s</translation>
    </message>
    <message>
        <source>%1m %2s left</source>
        <translation>tra %1 min %2 s</translation>
    </message>
    <message>
        <source>%1d %2h left</source>
        <translation>tra %1 g %2 h</translation>
    </message>
    <message>
        <source>%1h %2m left</source>
        <translation>tra %1 h %2 min</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Abilitata</translation>
    </message>
</context>
<context>
    <name>Scheduler::MCsTaskDialog</name>
    <message>
        <source>Failed to load task.</source>
        <translation>Impossibile caricare l&apos;attività.</translation>
    </message>
    <message>
        <source>Test Task</source>
        <translation>Attività di test</translation>
    </message>
    <message>
        <source>Screen Recorder</source>
        <translation>Reg. schermo</translation>
    </message>
    <message>
        <source>Audio Recorder</source>
        <translation>Reg. audio</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>Personalizzata</translation>
    </message>
    <message>
        <source>Create Task</source>
        <translation>Crea attività</translation>
    </message>
    <message>
        <source>Edit Task</source>
        <translation>Modifica attività</translation>
    </message>
    <message>
        <source>ON</source>
        <translation>Abilitata</translation>
    </message>
    <message>
        <source>OFF</source>
        <translation>Disabilitata</translation>
    </message>
    <message>
        <source>Select Program</source>
        <translation>Seleziona programma</translation>
    </message>
    <message>
        <source>Executable Files (*.exe);;All Files (*.*)</source>
        <translation>File eseguibili (*.exe);;Tutti i file (*.*)</translation>
    </message>
    <message>
        <source>Select Program to Monitor</source>
        <translation>Seleziona programma da monitorare</translation>
    </message>
    <message>
        <source>Select Folder to Monitor</source>
        <translation>Seleziona cartella da monitorare</translation>
    </message>
    <message>
        <source>Select Output Folder</source>
        <translation>Seleziona cartella di output</translation>
    </message>
    <message>
        <source>File Name Pattern Help</source>
        <translation>Guida al modello nome file</translation>
    </message>
    <message>
        <source>Available format variables:

[YYYY-MM-DD] - Date (e.g., 2024-03-15)
[hh-mm-ss] - Time (e.g., 14-30-45)
[TaskName] - Task name
[Counter] - Auto-incrementing counter

Example: [YYYY-MM-DD][hh-mm-ss]_[TaskName]
Result: 2024-03-15_14-30-45_MyTask.mp4</source>
        <translation>Variabili di formato disponibili:

[YYYY-MM-DD] - Data (ad es. 2024-03-15)
[hh-mm-ss] - Ora (ad es. 14-30-45)
[NomeAttività] - Nome dell&apos;attività
[Counter] - Contatore incrementato automaticamente

Esempio: [YYYY-MM-DD][hh-mm-ss]_[NomeAttività]
Risultato: 2024-03-15_14-30-45_MiaAttività.mp4</translation>
    </message>
    <message>
        <source>Ungrouped</source>
        <translation>Senza gruppo</translation>
    </message>
    <message>
        <source>Critical Error!</source>
        <translation>Errore critico!</translation>
    </message>
    <message>
        <source>Task type mismatch!</source>
        <translation>Il tipo di attività non corrisponde!</translation>
    </message>
    <message>
        <source>Task type not accepted!</source>
        <translation>Tipo di attività non accettato!</translation>
    </message>
    <message>
        <source>📋 Basic Info</source>
        <translation>📋 Informazioni</translation>
    </message>
    <message>
        <source>⚙️ Program Parameters</source>
        <translation>⚙️ Parametri programma</translation>
    </message>
    <message>
        <source>💾 Output</source>
        <translation>💾 Output</translation>
    </message>
    <message>
        <source>🚀 Before Start</source>
        <translation>🚀 Prima dell&apos;avvio</translation>
    </message>
    <message>
        <source>⏰ Start Target Program</source>
        <translation>⏰ Avvio programma</translation>
    </message>
    <message>
        <source>⏹️ Auto Stop</source>
        <translation>⏹️ Arresto automatico</translation>
    </message>
    <message>
        <source>🏁 After Stop</source>
        <translation>🏁 Dopo l&apos;arresto</translation>
    </message>
    <message>
        <source>🖥️ Display</source>
        <translation>🖥️ Visualizzazione</translation>
    </message>
    <message>
        <source>Connection Error</source>
        <translation>Errore di connessione</translation>
    </message>
    <message>
        <source>Not connected to daemon. Please connect first.</source>
        <translation>Non connesso al servizio di pianificazione. Connettersi prima di continuare.</translation>
    </message>
    <message>
        <source>Success</source>
        <translation>Operazione riuscita</translation>
    </message>
    <message>
        <source>Task created successfully.</source>
        <translation>Attività creata correttamente.</translation>
    </message>
    <message>
        <source>Task updated successfully.</source>
        <translation>Attività modificata correttamente.</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Errore</translation>
    </message>
    <message>
        <source>Failed to save task. reason : </source>
        <translation>Impossibile salvare l&apos;attività. Motivo: </translation>
    </message>
    <message>
        <source>Task name is required.</source>
        <translation>Il nome dell&apos;attività è obbligatorio.</translation>
    </message>
    <message>
        <source>Program name is required.</source>
        <translation>Il nome del programma è obbligatorio.</translation>
    </message>
    <message>
        <source>Target program is required.</source>
        <translation>Il programma da avviare è obbligatorio.</translation>
    </message>
    <message>
        <source>Task type is required.</source>
        <translation>Il tipo di attività è obbligatorio.</translation>
    </message>
    <message>
        <source>Specified date/time must be in the future.</source>
        <translation>La data/ora specificata deve essere futura.</translation>
    </message>
    <message>
        <source>At least one weekday must be selected for EveryWeek mode.</source>
        <translation>Selezionare almeno un giorno della settimana per la modalità &quot;Ogni settimana&quot;.</translation>
    </message>
    <message>
        <source>Monitor program is required for monitorApp mode.</source>
        <translation>Il programma da monitorare è obbligatorio per la modalità &quot;Monitora app&quot;.</translation>
    </message>
    <message>
        <source>Monitor folder path is required for monitorFolder mode.</source>
        <translation>Il percorso della cartella da monitorare è obbligatorio per la modalità &quot;Monitora cartella&quot;.</translation>
    </message>
    <message>
        <source>File extensions are required for monitorFolder mode.</source>
        <translation>Le estensioni file sono obbligatorie per la modalità &quot;Monitora cartella&quot;.</translation>
    </message>
    <message>
        <source>Stop time must be in the future.</source>
        <translation>L&apos;orario di arresto deve essere futuro.</translation>
    </message>
    <message>
        <source>Validation Error</source>
        <translation>Errore di convalida</translation>
    </message>
</context>
<context>
    <name>Scheduler::MCsTaskTableWidget</name>
    <message numerus="yes">
        <source>%n task(s)</source>
        <translation>
            <numerusform>%n attività</numerusform>
            <numerusform>%n attività</numerusform>
        </translation>
    </message>
</context>
</TS>
