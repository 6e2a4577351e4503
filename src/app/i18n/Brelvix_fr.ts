<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>MCsMainWindow</name>
    <message>
        <source>Orvel Scheduler Manager</source>
        <translation>Orvel Scheduler Manager</translation>
    </message>
    <message>
        <source>Note: To run the program, sign in to your Windows account and make sure your PC is set not to lock automatically.</source>
        <translation>Remarque&#xa0;: pour que le programme s’exécute, ouvrez votre session Windows et vérifiez que le verrouillage automatique du PC est désactivé.</translation>
    </message>
    <message>
        <source>Groups</source>
        <translation>Groupes</translation>
    </message>
    <message>
        <source>Task: </source>
        <translation>Tâche&#xa0;: </translation>
    </message>
    <message>
        <source>Filter:</source>
        <translation>Filtre&#xa0;:</translation>
    </message>
    <message>
        <source>Tasks: 0</source>
        <translation>Tâches&#xa0;: 0</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nom</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Type</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>État</translation>
    </message>
    <message>
        <source>Next Run</source>
        <translation>Proch. exéc.</translation>
    </message>
    <message>
        <source>Last Run Status</source>
        <translation>État de la dernière exécution</translation>
    </message>
    <message>
        <source>Activity Log:</source>
        <translation>Journal d’activité&#xa0;:</translation>
    </message>
</context>
<context>
    <name>MCsTaskDialog</name>
    <message>
        <source>Task</source>
        <translation>Tâche</translation>
    </message>
    <message>
        <source>Task Status : </source>
        <translation>État de la tâche&#xa0;: </translation>
    </message>
    <message>
        <source>ON</source>
        <translation>Activée</translation>
    </message>
    <message>
        <source>📋 Basic Information</source>
        <translation>📋 Informations générales</translation>
    </message>
    <message>
        <source>Task Name (*):</source>
        <translation>Nom de la tâche (*)&#xa0;:</translation>
    </message>
    <message>
        <source>Program Name (*):</source>
        <translation>Nom du programme (*)&#xa0;:</translation>
    </message>
    <message>
        <source>Target Program (*):</source>
        <translation>Programme cible (*)&#xa0;:</translation>
    </message>
    <message>
        <source>Task Type (*):</source>
        <translation>Type de tâche (*)&#xa0;:</translation>
    </message>
    <message>
        <source>Group:</source>
        <translation>Groupe&#xa0;:</translation>
    </message>
    <message>
        <source>💾 Output Settings</source>
        <translation>💾 Paramètres de sortie</translation>
    </message>
    <message>
        <source>Use Default Output</source>
        <translation>Sortie par défaut</translation>
    </message>
    <message>
        <source>Custom Output</source>
        <translation>Sortie personnalisée</translation>
    </message>
    <message>
        <source>Custom Folder:</source>
        <translation>Dossier personnalisé&#xa0;:</translation>
    </message>
    <message>
        <source>Browse...</source>
        <translation>Parcourir...</translation>
    </message>
    <message>
        <source>File Name Pattern:</source>
        <translation>Modèle de nom de fichier&#xa0;:</translation>
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
        <translation>🚀 Action avant le démarrage automatique</translation>
    </message>
    <message>
        <source>Run Program:</source>
        <translation>Exécuter un programme&#xa0;:</translation>
    </message>
    <message>
        <source>Open URL:</source>
        <translation>Ouvrir une URL&#xa0;:</translation>
    </message>
    <message>
        <source>e.g., https://www.example.com</source>
        <translation>p.&#xa0;ex. https://www.example.com</translation>
    </message>
    <message>
        <source>After completing the above steps, wait for a while for the data or page to load completely :</source>
        <translation>Une fois les étapes ci-dessus terminées, patienter le temps que les données ou la page soient entièrement chargées&#xa0;:</translation>
    </message>
    <message>
        <source>Wait for :</source>
        <translation>Délai d’attente&#xa0;:</translation>
    </message>
    <message>
        <source> seconds</source>
        <translation> secondes</translation>
    </message>
    <message>
        <source>⏰ Start Target Program On</source>
        <translation>⏰ Démarrer le programme cible</translation>
    </message>
    <message>
        <source>📅 Specified Time</source>
        <translation>📅 Heure spécifiée</translation>
    </message>
    <message>
        <source>🔁 Every Day</source>
        <translation>🔁 Chaque jour</translation>
    </message>
    <message>
        <source>📆 Every Week</source>
        <translation>📆 Chaque semaine</translation>
    </message>
    <message>
        <source>🖥️ Monitor App</source>
        <translation>🖥️ Surveiller une appli</translation>
    </message>
    <message>
        <source>📁 Monitor Folder</source>
        <translation>📁 Surveiller un dossier</translation>
    </message>
    <message>
        <source>Specified Date/Time(*):</source>
        <translation>Date/heure spécifiée (*)&#xa0;:</translation>
    </message>
    <message>
        <source>yyyy-MM-dd HH:mm:ss</source>
        <translation>yyyy-MM-dd HH:mm:ss</translation>
    </message>
    <message>
        <source>Daily Time (HH:MM:SS) *:</source>
        <translation>Heure quotidienne (HH:MM:SS)&#xa0;*&#xa0;:</translation>
    </message>
    <message>
        <source>HH:mm:ss</source>
        <translation>HH:mm:ss</translation>
    </message>
    <message>
        <source>Select Days (*):</source>
        <translation>Sélectionner les jours (*)&#xa0;:</translation>
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
        <translation>Jeu</translation>
    </message>
    <message>
        <source>Fri</source>
        <translation>Ven</translation>
    </message>
    <message>
        <source>Sat</source>
        <translation>Sam</translation>
    </message>
    <message>
        <source>Sun</source>
        <translation>Dim</translation>
    </message>
    <message>
        <source>Weekly Time (HH:MM:SS) *:</source>
        <translation>Heure hebdomadaire (HH:MM:SS)&#xa0;*&#xa0;:</translation>
    </message>
    <message>
        <source>Monitor Program (*):</source>
        <translation>Programme à surveiller (*)&#xa0;:</translation>
    </message>
    <message>
        <source>Monitor Folder (*):</source>
        <translation>Dossier à surveiller (*)&#xa0;:</translation>
    </message>
    <message>
        <source>File Extensions (*):</source>
        <translation>Extensions de fichier (*)&#xa0;:</translation>
    </message>
    <message>
        <source>e.g., .mp4,.avi,.mkv</source>
        <translation>p.&#xa0;ex. .mp4,.avi,.mkv</translation>
    </message>
    <message>
        <source>⏹️ Auto Stop Condition</source>
        <translation>⏹️ Condition d’arrêt automatique</translation>
    </message>
    <message>
        <source>🚫 None</source>
        <translation>🚫 Aucune</translation>
    </message>
    <message>
        <source>⏱️ By Duration</source>
        <translation>⏱️ Selon la durée</translation>
    </message>
    <message>
        <source>💾 By File Size</source>
        <translation>💾 Selon la taille du fichier</translation>
    </message>
    <message>
        <source>🕐 At Time</source>
        <translation>🕐 À heure fixe</translation>
    </message>
    <message>
        <source>Duration (*):</source>
        <translation>Durée (*)&#xa0;:</translation>
    </message>
    <message>
        <source> minutes</source>
        <translation> minutes</translation>
    </message>
    <message>
        <source>Task File(s) Size (*):</source>
        <translation>Taille des fichiers de la tâche (*)&#xa0;:</translation>
    </message>
    <message>
        <source> KB</source>
        <translation> KB</translation>
    </message>
    <message>
        <source>Stop At Time (*):</source>
        <translation>Heure d’arrêt (*)&#xa0;:</translation>
    </message>
    <message>
        <source>🏁 Action After Auto Stop</source>
        <translation>🏁 Action après l’arrêt automatique</translation>
    </message>
    <message>
        <source>❌ Close Program</source>
        <translation>❌ Fermer le programme</translation>
    </message>
    <message>
        <source>🔌 Shutdown Computer</source>
        <translation>🔌 Éteindre l’ordinateur</translation>
    </message>
    <message>
        <source>🖥️ Display Mode</source>
        <translation>🖥️ Mode d’affichage</translation>
    </message>
    <message>
        <source>👁️ Show</source>
        <translation>👁️ Afficher</translation>
    </message>
    <message>
        <source>🔽 Minimize</source>
        <translation>🔽 Réduire</translation>
    </message>
    <message>
        <source>🙈 Hide</source>
        <translation>🙈 Masquer</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>Error</source>
        <translation>Erreur</translation>
    </message>
    <message>
        <source>task type</source>
        <translation>type de tâche</translation>
    </message>
    <message>
        <source>language</source>
        <translation>langue</translation>
    </message>
    <message>
        <source>program name</source>
        <translation>nom du programme</translation>
    </message>
    <message>
        <source>program path</source>
        <translation>chemin du programme</translation>
    </message>
    <message>
        <source>Program parameter JSON file not found!</source>
        <translation>Fichier JSON des paramètres du programme introuvable&#xa0;!</translation>
    </message>
    <message>
        <source>Failed to open program parameter JSON file!</source>
        <translation>Impossible d’ouvrir le fichier JSON des paramètres du programme&#xa0;!</translation>
    </message>
    <message>
        <source>Program parameter JSON file is empty!</source>
        <translation>Le fichier JSON des paramètres du programme est vide&#xa0;!</translation>
    </message>
    <message>
        <source>Missing required arguments: %1</source>
        <translation>Arguments obligatoires manquants&#xa0;: %1</translation>
    </message>
    <message>
        <source>task type error!</source>
        <translation>Type de tâche incorrect&#xa0;!</translation>
    </message>
    <message>
        <source>All Types</source>
        <translation>Tous les types</translation>
    </message>
</context>
<context>
    <name>Scheduler::MCsDynamicFormWidget</name>
    <message>
        <source>Audio Source</source>
        <translation>Source audio</translation>
    </message>
    <message>
        <source>Audio Bitrate</source>
        <translation>Débit audio</translation>
    </message>
    <message>
        <source>Audio Sample Rate</source>
        <translation>Échantillonnage audio</translation>
    </message>
    <message>
        <source>Channels</source>
        <translation>Canaux</translation>
    </message>
    <message>
        <source>Enable VBR if supported</source>
        <translation>Activer le VBR si pris en charge</translation>
    </message>
    <message>
        <source>Output format</source>
        <translation>Format de sortie</translation>
    </message>
    <message>
        <source>⚙️ Program Parameters</source>
        <translation>⚙️ Paramètres du programme</translation>
    </message>
</context>
<context>
    <name>Scheduler::MCsMainWindow</name>
    <message>
        <source>[INFO] Already connected</source>
        <translation>[INFO] Déjà connecté</translation>
    </message>
    <message>
        <source>[INFO] Connected to scheduler service</source>
        <translation>[INFO] Connecté au service de planification</translation>
    </message>
    <message>
        <source>[INFO] Reconnected to scheduler service</source>
        <translation>[INFO] Reconnecté au service de planification</translation>
    </message>
    <message>
        <source>[INFO] Disconnected from scheduler service</source>
        <translation>[INFO] Déconnecté du service de planification</translation>
    </message>
    <message>
        <source>[INFO] Not connected</source>
        <translation>[INFO] Non connecté</translation>
    </message>
    <message>
        <source>[ERROR] Failed to connect to scheduler service</source>
        <translation>[ERROR] Échec de la connexion au service de planification</translation>
    </message>
    <message>
        <source>[ERROR] Connection to scheduler service lost</source>
        <translation>[ERROR] Connexion au service de planification perdue</translation>
    </message>
    <message>
        <source>[ERROR] Failed to reconnect to scheduler service</source>
        <translation>[ERROR] Échec de la reconnexion au service de planification</translation>
    </message>
    <message>
        <source>[ERROR] Not connected to scheduler service</source>
        <translation>[ERROR] Non connecté au service de planification</translation>
    </message>
    <message>
        <source>[INFO] Scheduler service started</source>
        <translation>[INFO] Service de planification démarré</translation>
    </message>
    <message>
        <source>[INFO] Waiting for scheduler service to start</source>
        <translation>[INFO] En attente du démarrage du service de planification</translation>
    </message>
    <message>
        <source>[ERROR] Failed to start scheduler service</source>
        <translation>[ERROR] Échec du démarrage du service de planification</translation>
    </message>
    <message>
        <source>[ERROR] Scheduler service is not installed</source>
        <translation>[ERROR] Le service de planification n’est pas installé</translation>
    </message>
    <message>
        <source>[INFO] Task list refreshed</source>
        <translation>[INFO] Liste des tâches actualisée</translation>
    </message>
    <message>
        <source>[ERROR] Failed to refresh task list</source>
        <translation>[ERROR] Impossible d’actualiser la liste des tâches</translation>
    </message>
    <message>
        <source>[INFO] Task created: %1</source>
        <translation>[INFO] Tâche créée&#xa0;: %1</translation>
    </message>
    <message>
        <source>[ERROR] Failed to create task: %1</source>
        <translation>[ERROR] Impossible de créer la tâche&#xa0;: %1</translation>
    </message>
    <message>
        <source>[INFO] Task updated: %1</source>
        <translation>[INFO] Tâche modifiée&#xa0;: %1</translation>
    </message>
    <message>
        <source>[ERROR] Failed to update task: %1</source>
        <translation>[ERROR] Impossible de modifier la tâche&#xa0;: %1</translation>
    </message>
    <message>
        <source>[INFO] Task deleted: %1</source>
        <translation>[INFO] Tâche supprimée&#xa0;: %1</translation>
    </message>
    <message>
        <source>[ERROR] Failed to delete task: %1</source>
        <translation>[ERROR] Impossible de supprimer la tâche&#xa0;: %1</translation>
    </message>
    <message>
        <source>[INFO] Task enabled: %1</source>
        <translation>[INFO] Tâche activée&#xa0;: %1</translation>
    </message>
    <message>
        <source>[ERROR] Failed to enable task: %1</source>
        <translation>[ERROR] Impossible d’activer la tâche&#xa0;: %1</translation>
    </message>
    <message>
        <source>[INFO] Task disabled: %1</source>
        <translation>[INFO] Tâche désactivée&#xa0;: %1</translation>
    </message>
    <message>
        <source>[ERROR] Failed to disable task: %1</source>
        <translation>[ERROR] Impossible de désactiver la tâche&#xa0;: %1</translation>
    </message>
    <message>
        <source>[INFO] Task triggered: %1</source>
        <translation>[INFO] Tâche lancée&#xa0;: %1</translation>
    </message>
    <message>
        <source>[ERROR] Failed to trigger task: %1</source>
        <translation>[ERROR] Impossible de lancer la tâche&#xa0;: %1</translation>
    </message>
    <message>
        <source>[INFO] Task moved to group &apos;%1&apos;</source>
        <translation>[INFO] Tâche déplacée vers le groupe «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>[ERROR] Failed to move task to group &apos;%1&apos;</source>
        <translation>[ERROR] Impossible de déplacer la tâche vers le groupe «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>[INFO] %1 tasks moved to group &apos;%2&apos;</source>
        <translation>[INFO] %1 tâches déplacées vers le groupe «&#xa0;%2&#xa0;»</translation>
    </message>
    <message>
        <source>[ERROR] Failed to move %1 tasks to group &apos;%2&apos;</source>
        <translation>[ERROR] Impossible de déplacer %1 tâches vers le groupe «&#xa0;%2&#xa0;»</translation>
    </message>
    <message>
        <source>[INFO] Group list refreshed</source>
        <translation>[INFO] Liste des groupes actualisée</translation>
    </message>
    <message>
        <source>[ERROR] Failed to refresh group list</source>
        <translation>[ERROR] Impossible d’actualiser la liste des groupes</translation>
    </message>
    <message>
        <source>[INFO] Group created: %1</source>
        <translation>[INFO] Groupe créé&#xa0;: %1</translation>
    </message>
    <message>
        <source>[ERROR] Failed to create group: %1</source>
        <translation>[ERROR] Impossible de créer le groupe&#xa0;: %1</translation>
    </message>
    <message>
        <source>[INFO] Group updated: %1</source>
        <translation>[INFO] Groupe modifié&#xa0;: %1</translation>
    </message>
    <message>
        <source>[ERROR] Failed to update group: %1</source>
        <translation>[ERROR] Impossible de modifier le groupe&#xa0;: %1</translation>
    </message>
    <message>
        <source>[INFO] Group deleted: %1</source>
        <translation>[INFO] Groupe supprimé&#xa0;: %1</translation>
    </message>
    <message>
        <source>[ERROR] Failed to delete group: %1</source>
        <translation>[ERROR] Impossible de supprimer le groupe&#xa0;: %1</translation>
    </message>
    <message>
        <source>[INFO] All tasks in the group enabled</source>
        <translation>[INFO] Toutes les tâches du groupe ont été activées</translation>
    </message>
    <message>
        <source>[ERROR] Failed to enable all tasks in the group</source>
        <translation>[ERROR] Impossible d’activer toutes les tâches du groupe</translation>
    </message>
    <message>
        <source>[INFO] All tasks in the group disabled</source>
        <translation>[INFO] Toutes les tâches du groupe ont été désactivées</translation>
    </message>
    <message>
        <source>[ERROR] Failed to disable all tasks in the group</source>
        <translation>[ERROR] Impossible de désactiver toutes les tâches du groupe</translation>
    </message>
    <message>
        <source>[INFO] All tasks in the group triggered</source>
        <translation>[INFO] Toutes les tâches du groupe ont été lancées</translation>
    </message>
    <message>
        <source>[ERROR] Failed to trigger all tasks in the group</source>
        <translation>[ERROR] Impossible de lancer toutes les tâches du groupe</translation>
    </message>
    <message>
        <source>[INFO] All tasks in the group deleted</source>
        <translation>[INFO] Toutes les tâches du groupe ont été supprimées</translation>
    </message>
    <message>
        <source>[ERROR] Failed to delete all tasks in the group</source>
        <translation>[ERROR] Impossible de supprimer toutes les tâches du groupe</translation>
    </message>
    <message>
        <source>[INFO] Activity log refreshed</source>
        <translation>[INFO] Journal d’activité actualisé</translation>
    </message>
    <message>
        <source>[ERROR] Failed to refresh activity log</source>
        <translation>[ERROR] Impossible d’actualiser le journal d’activité</translation>
    </message>
    <message>
        <source>Task &apos;%1&apos; execution started</source>
        <translation>Exécution de la tâche «&#xa0;%1&#xa0;» démarrée</translation>
    </message>
    <message>
        <source> (run: %1)</source>
        <translation> (exécution&#xa0;: %1)</translation>
    </message>
    <message>
        <source>Task &apos;%1&apos; completed successfully</source>
        <translation>Tâche «&#xa0;%1&#xa0;» terminée avec succès</translation>
    </message>
    <message>
        <source> (exit: %1)</source>
        <translation> (code de sortie&#xa0;: %1)</translation>
    </message>
    <message>
        <source>Task &apos;%1&apos; execution failed</source>
        <translation>Échec de l’exécution de la tâche «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source> - %1</source>
        <translation> - %1</translation>
    </message>
    <message>
        <source>Task &apos;%1&apos; execution timed out</source>
        <translation>Délai d’exécution de la tâche «&#xa0;%1&#xa0;» dépassé</translation>
    </message>
    <message>
        <source>Task &apos;%1&apos; execution cancelled</source>
        <translation>Exécution de la tâche «&#xa0;%1&#xa0;» annulée</translation>
    </message>
    <message>
        <source>Group &apos;%1&apos; created</source>
        <translation>Groupe «&#xa0;%1&#xa0;» créé</translation>
    </message>
    <message>
        <source>Group &apos;%1&apos; updated</source>
        <translation>Groupe «&#xa0;%1&#xa0;» modifié</translation>
    </message>
    <message>
        <source>Group &apos;%1&apos; deleted</source>
        <translation>Groupe «&#xa0;%1&#xa0;» supprimé</translation>
    </message>
    <message>
        <source>Task &apos;%1&apos; created</source>
        <translation>Tâche «&#xa0;%1&#xa0;» créée</translation>
    </message>
    <message>
        <source> (schedule: %1)</source>
        <translation> (planification&#xa0;: %1)</translation>
    </message>
    <message>
        <source>Task &apos;%1&apos; updated</source>
        <translation>Tâche «&#xa0;%1&#xa0;» modifiée</translation>
    </message>
    <message>
        <source>Task &apos;%1&apos; deleted</source>
        <translation>Tâche «&#xa0;%1&#xa0;» supprimée</translation>
    </message>
    <message>
        <source>Task &apos;%1&apos; enabled</source>
        <translation>Tâche «&#xa0;%1&#xa0;» activée</translation>
    </message>
    <message>
        <source>Task &apos;%1&apos; disabled</source>
        <translation>Tâche «&#xa0;%1&#xa0;» désactivée</translation>
    </message>
    <message>
        <source>%1 on &apos;%2&apos;</source>
        <translation>%1 sur «&#xa0;%2&#xa0;»</translation>
    </message>
    <message>
        <source>Disconnected</source>
        <translation>Déconnecté</translation>
    </message>
    <message>
        <source>Enable All Tasks</source>
        <translation>Activer toutes les tâches</translation>
    </message>
    <message>
        <source>Disable All Tasks</source>
        <translation>Désactiver toutes les tâches</translation>
    </message>
    <message>
        <source>Trigger All Tasks</source>
        <translation>Lancer toutes les tâches</translation>
    </message>
    <message>
        <source>Delete All Tasks</source>
        <translation>Supprimer toutes les tâches</translation>
    </message>
    <message>
        <source>Task Runs</source>
        <translation>Exécutions de la tâche</translation>
    </message>
    <message>
        <source>Task runs view not yet implemented.</source>
        <translation>L’affichage des exécutions de la tâche n’est pas encore disponible.</translation>
    </message>
    <message>
        <source>Task Logs</source>
        <translation>Journaux de la tâche</translation>
    </message>
    <message>
        <source>Task logs view not yet implemented.</source>
        <translation>L’affichage des journaux de la tâche n’est pas encore disponible.</translation>
    </message>
    <message>
        <source>Export Logs</source>
        <translation>Exporter les journaux</translation>
    </message>
    <message>
        <source>Log export not yet implemented.</source>
        <translation>L’exportation des journaux n’est pas encore disponible.</translation>
    </message>
    <message>
        <source>Not Connected</source>
        <translation>Non connecté</translation>
    </message>
    <message>
        <source>Cannot refresh audit log because not connected to the service.</source>
        <translation>Impossible d’actualiser le journal d’activité&#xa0;: aucune connexion au service.</translation>
    </message>
    <message>
        <source>No Selection</source>
        <translation>Aucune sélection</translation>
    </message>
    <message>
        <source>Please select a task to edit.</source>
        <translation>Sélectionnez une tâche à modifier.</translation>
    </message>
    <message>
        <source>Please select a task to delete.</source>
        <translation>Sélectionnez une tâche à supprimer.</translation>
    </message>
    <message>
        <source>Confirm Delete</source>
        <translation>Confirmer la suppression</translation>
    </message>
    <message>
        <source>Are you sure you want to delete task &apos;%1&apos;?</source>
        <translation>Voulez-vous vraiment supprimer la tâche «&#xa0;%1&#xa0;»&#xa0;?</translation>
    </message>
    <message>
        <source>Delete Error</source>
        <translation>Erreur de suppression</translation>
    </message>
    <message>
        <source>Failed to delete task.</source>
        <translation>Impossible de supprimer la tâche.</translation>
    </message>
    <message>
        <source>Toggle Error</source>
        <translation>Erreur de changement d’état</translation>
    </message>
    <message>
        <source>Failed to toggle task status.</source>
        <translation>Impossible de changer l’état de la tâche.</translation>
    </message>
    <message>
        <source>Please select a task to trigger.</source>
        <translation>Sélectionnez une tâche à lancer.</translation>
    </message>
    <message>
        <source>Trigger Error</source>
        <translation>Erreur de lancement</translation>
    </message>
    <message>
        <source>Failed to trigger task.</source>
        <translation>Impossible de lancer la tâche.</translation>
    </message>
    <message>
        <source>Please select a group to edit.</source>
        <translation>Sélectionnez un groupe à modifier.</translation>
    </message>
    <message>
        <source>Cannot Edit</source>
        <translation>Modification impossible</translation>
    </message>
    <message>
        <source>The &apos;Ungrouped&apos; group cannot be edited.</source>
        <translation>Le groupe «&#xa0;Sans groupe&#xa0;» ne peut pas être modifié.</translation>
    </message>
    <message>
        <source>Select Type</source>
        <translation>Sélectionner un type</translation>
    </message>
    <message>
        <source>Please select a specific task type from the filter before creating a group.</source>
        <translation>Sélectionnez un type de tâche précis dans le filtre avant de créer un groupe.</translation>
    </message>
    <message>
        <source>Please select a group to delete.</source>
        <translation>Sélectionnez un groupe à supprimer.</translation>
    </message>
    <message>
        <source>Cannot Delete</source>
        <translation>Suppression impossible</translation>
    </message>
    <message>
        <source>The &apos;Ungrouped&apos; group cannot be deleted.</source>
        <translation>Le groupe «&#xa0;Sans groupe&#xa0;» ne peut pas être supprimé.</translation>
    </message>
    <message>
        <source>Are you sure you want to delete group &apos;%1&apos;?
Tasks in this group will be moved to &apos;Ungrouped&apos;.</source>
        <translation>Voulez-vous vraiment supprimer le groupe «&#xa0;%1&#xa0;»&#xa0;?
Les tâches de ce groupe seront déplacées vers «&#xa0;Sans groupe&#xa0;».</translation>
    </message>
    <message>
        <source>Failed to delete group.</source>
        <translation>Impossible de supprimer le groupe.</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Erreur</translation>
    </message>
    <message>
        <source>Failed to enable all tasks in group.</source>
        <translation>Impossible d’activer toutes les tâches du groupe.</translation>
    </message>
    <message>
        <source>Failed to disable all tasks in group.</source>
        <translation>Impossible de désactiver toutes les tâches du groupe.</translation>
    </message>
    <message>
        <source>Failed to trigger all tasks in group.</source>
        <translation>Impossible de lancer toutes les tâches du groupe.</translation>
    </message>
    <message>
        <source>Are you sure you want to delete all tasks in this group?</source>
        <translation>Voulez-vous vraiment supprimer toutes les tâches de ce groupe&#xa0;?</translation>
    </message>
    <message>
        <source>Failed to delete all tasks in group.</source>
        <translation>Impossible de supprimer toutes les tâches du groupe.</translation>
    </message>
    <message>
        <source>Connecting to scheduler service...</source>
        <translation>Connexion au service de planification...</translation>
    </message>
    <message>
        <source>Connecting to scheduler service (attempt %1 of %2)...</source>
        <translation>Connexion au service de planification (tentative %1 sur %2)...</translation>
    </message>
    <message>
        <source>Unable to connect to the scheduler service because multiple manager instances are running. Please close the other scheduler managers first.</source>
        <translation>Impossible de se connecter au service de planification, car plusieurs instances du gestionnaire sont en cours d’exécution. Fermez d’abord les autres gestionnaires de planification.</translation>
    </message>
    <message>
        <source>connected to deamon failed! (attempt %1 of %2) reason = </source>
        <translation>Échec de la connexion au service de planification&#xa0;! (tentative %1 sur %2) motif = </translation>
    </message>
    <message>
        <source>[WARN] Initial connection failed, attempting to start service...</source>
        <translation>[WARN] Échec de la connexion initiale, tentative de démarrage du service...</translation>
    </message>
    <message>
        <source>Scheduler service is installed but failed to start.

Please check system logs or reinstall the service.</source>
        <translation>Le service de planification est installé, mais n’a pas pu démarrer.

Consultez les journaux système ou réinstallez le service.</translation>
    </message>
    <message>
        <source>Scheduler service is not installed.

Please reinstall the service and restart the application.</source>
        <translation>Le service de planification n’est pas installé.

Réinstallez le service, puis redémarrez l’application.</translation>
    </message>
    <message>
        <source>Waiting for service to start...</source>
        <translation>En attente du démarrage du service...</translation>
    </message>
    <message>
        <source>Reconnecting to scheduler service (attempt %1 of %2)...</source>
        <translation>Reconnexion au service de planification (tentative %1 sur %2)...</translation>
    </message>
    <message>
        <source>Unable to connect to scheduler service after multiple attempts.

Please ensure the service is running correctly and try again.</source>
        <translation>Impossible de se connecter au service de planification après plusieurs tentatives.

Vérifiez que le service fonctionne correctement, puis réessayez.</translation>
    </message>
    <message>
        <source>No Tasks Found</source>
        <translation>Aucune tâche trouvée</translation>
    </message>
    <message>
        <source>No scheduled tasks were found.

Would you like to create one now?</source>
        <translation>Aucune tâche planifiée n’a été trouvée.

Voulez-vous en créer une maintenant&#xa0;?</translation>
    </message>
    <message>
        <source>[WARN] Connection lost, attempting to reconnect...</source>
        <translation>[WARN] Connexion perdue, tentative de reconnexion...</translation>
    </message>
    <message>
        <source>[INFO] Reconnection attempt %1 of %2...</source>
        <translation>[INFO] Tentative de reconnexion %1 sur %2...</translation>
    </message>
    <message>
        <source>Reconnecting (%1/%2)...</source>
        <translation>Reconnexion (%1/%2)...</translation>
    </message>
    <message>
        <source>Connection lost. Reconnecting...
Attempt %1 of %2</source>
        <translation>Connexion perdue. Reconnexion...
Tentative %1 sur %2</translation>
    </message>
    <message>
        <source>Connection to scheduler service was lost and could not be restored.

The application will now close.</source>
        <translation>La connexion au service de planification a été perdue et n’a pas pu être rétablie.

L’application va maintenant se fermer.</translation>
    </message>
    <message>
        <source>Service Error</source>
        <translation>Erreur du service</translation>
    </message>
    <message>
        <source>Connecting</source>
        <translation>Connexion</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Connection Lost</source>
        <translation>Connexion perdue</translation>
    </message>
    <message>
        <source>Connection lost. Reconnecting to scheduler service...</source>
        <translation>Connexion perdue. Reconnexion au service de planification...</translation>
    </message>
    <message>
        <source>Connected</source>
        <translation>Connecté</translation>
    </message>
    <message>
        <source>Failed to move task to group &apos;%1&apos;.</source>
        <translation>Impossible de déplacer la tâche vers le groupe «&#xa0;%1&#xa0;».</translation>
    </message>
    <message>
        <source>Failed to move %1 tasks to group &apos;%2&apos;.</source>
        <translation>Impossible de déplacer %1 tâches vers le groupe «&#xa0;%2&#xa0;».</translation>
    </message>
    <message>
        <source>Failed to move task to group.</source>
        <translation>Impossible de déplacer la tâche vers le groupe.</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>Tasks: %1</source>
        <translation>Tâches&#xa0;: %1</translation>
    </message>
    <message>
        <source> (in %1)</source>
        <translation> (dans %1)</translation>
    </message>
    <message>
        <source>Success</source>
        <translation>Réussite</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Échec</translation>
    </message>
    <message>
        <source>Timeout</source>
        <translation>Délai dépassé</translation>
    </message>
    <message>
        <source>Running</source>
        <translation>En cours</translation>
    </message>
    <message>
        <source>Pending</source>
        <translation>En attente</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>Désactivée</translation>
    </message>
    <message>
        <source>Not scheduled</source>
        <translation>Non planifiée</translation>
    </message>
    <message>
        <source>Overdue</source>
        <translation>En retard</translation>
    </message>
    <message>
        <source>%1s left</source>
        <translation>dans %1s</translation>
    </message>
    <message>
        <source>%1m %2s left</source>
        <translation>dans %1min %2s</translation>
    </message>
    <message>
        <source>%1d %2h left</source>
        <translation>dans %1j %2h</translation>
    </message>
    <message>
        <source>%1h %2m left</source>
        <translation>dans %1h %2min</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Activée</translation>
    </message>
</context>
<context>
    <name>Scheduler::MCsTaskDialog</name>
    <message>
        <source>Failed to load task.</source>
        <translation>Impossible de charger la tâche.</translation>
    </message>
    <message>
        <source>Test Task</source>
        <translation>Tâche de test</translation>
    </message>
    <message>
        <source>Screen Recorder</source>
        <translation>Enreg. d’écran</translation>
    </message>
    <message>
        <source>Audio Recorder</source>
        <translation>Enreg. audio</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>Personnalisée</translation>
    </message>
    <message>
        <source>Create Task</source>
        <translation>Créer une tâche</translation>
    </message>
    <message>
        <source>Edit Task</source>
        <translation>Modifier la tâche</translation>
    </message>
    <message>
        <source>ON</source>
        <translation>Activée</translation>
    </message>
    <message>
        <source>OFF</source>
        <translation>Désactivée</translation>
    </message>
    <message>
        <source>Select Program</source>
        <translation>Sélectionner un programme</translation>
    </message>
    <message>
        <source>Executable Files (*.exe);;All Files (*.*)</source>
        <translation>Fichiers exécutables (*.exe);;Tous les fichiers (*.*)</translation>
    </message>
    <message>
        <source>Select Program to Monitor</source>
        <translation>Sélectionner le programme à surveiller</translation>
    </message>
    <message>
        <source>Select Folder to Monitor</source>
        <translation>Sélectionner le dossier à surveiller</translation>
    </message>
    <message>
        <source>Select Output Folder</source>
        <translation>Sélectionner le dossier de sortie</translation>
    </message>
    <message>
        <source>File Name Pattern Help</source>
        <translation>Aide sur le modèle de nom de fichier</translation>
    </message>
    <message>
        <source>Available format variables:

[YYYY-MM-DD] - Date (e.g., 2024-03-15)
[hh-mm-ss] - Time (e.g., 14-30-45)
[TaskName] - Task name
[Counter] - Auto-incrementing counter

Example: [YYYY-MM-DD][hh-mm-ss]_[TaskName]
Result: 2024-03-15_14-30-45_MyTask.mp4</source>
        <translation>Variables de format disponibles&#xa0;:

[YYYY-MM-DD] - Date (p.&#xa0;ex. 2024-03-15)
[hh-mm-ss] - Heure (p.&#xa0;ex. 14-30-45)
[TaskName] - Nom de la tâche
[Counter] - Compteur incrémenté automatiquement

Exemple&#xa0;: [YYYY-MM-DD][hh-mm-ss]_[TaskName]
Résultat&#xa0;: 2024-03-15_14-30-45_MaTâche.mp4</translation>
    </message>
    <message>
        <source>Ungrouped</source>
        <translation>Sans groupe</translation>
    </message>
    <message>
        <source>Critical Error!</source>
        <translation>Erreur critique&#xa0;!</translation>
    </message>
    <message>
        <source>Task type mismatch!</source>
        <translation>Le type de tâche ne correspond pas&#xa0;!</translation>
    </message>
    <message>
        <source>Task type not accepted!</source>
        <translation>Type de tâche non accepté&#xa0;!</translation>
    </message>
    <message>
        <source>📋 Basic Info</source>
        <translation>📋 Informations</translation>
    </message>
    <message>
        <source>⚙️ Program Parameters</source>
        <translation>⚙️ Paramètres</translation>
    </message>
    <message>
        <source>💾 Output</source>
        <translation>💾 Sortie</translation>
    </message>
    <message>
        <source>🚀 Before Start</source>
        <translation>🚀 Avant le démarrage</translation>
    </message>
    <message>
        <source>⏰ Start Target Program</source>
        <translation>⏰ Démarrage</translation>
    </message>
    <message>
        <source>⏹️ Auto Stop</source>
        <translation>⏹️ Arrêt automatique</translation>
    </message>
    <message>
        <source>🏁 After Stop</source>
        <translation>🏁 Après l’arrêt</translation>
    </message>
    <message>
        <source>🖥️ Display</source>
        <translation>🖥️ Affichage</translation>
    </message>
    <message>
        <source>Connection Error</source>
        <translation>Erreur de connexion</translation>
    </message>
    <message>
        <source>Not connected to daemon. Please connect first.</source>
        <translation>Non connecté au service de planification. Connectez-vous d’abord.</translation>
    </message>
    <message>
        <source>Success</source>
        <translation>Opération réussie</translation>
    </message>
    <message>
        <source>Task created successfully.</source>
        <translation>La tâche a été créée.</translation>
    </message>
    <message>
        <source>Task updated successfully.</source>
        <translation>La tâche a été modifiée.</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Erreur</translation>
    </message>
    <message>
        <source>Failed to save task. reason : </source>
        <translation>Impossible d’enregistrer la tâche. Motif&#xa0;: </translation>
    </message>
    <message>
        <source>Task name is required.</source>
        <translation>Le nom de la tâche est obligatoire.</translation>
    </message>
    <message>
        <source>Program name is required.</source>
        <translation>Le nom du programme est obligatoire.</translation>
    </message>
    <message>
        <source>Target program is required.</source>
        <translation>Le programme cible est obligatoire.</translation>
    </message>
    <message>
        <source>Task type is required.</source>
        <translation>Le type de tâche est obligatoire.</translation>
    </message>
    <message>
        <source>Specified date/time must be in the future.</source>
        <translation>La date/heure spécifiée doit être dans le futur.</translation>
    </message>
    <message>
        <source>At least one weekday must be selected for EveryWeek mode.</source>
        <translation>Sélectionnez au moins un jour de la semaine pour le mode «&#xa0;Chaque semaine&#xa0;».</translation>
    </message>
    <message>
        <source>Monitor program is required for monitorApp mode.</source>
        <translation>Le programme à surveiller est obligatoire pour le mode «&#xa0;Surveiller une appli&#xa0;».</translation>
    </message>
    <message>
        <source>Monitor folder path is required for monitorFolder mode.</source>
        <translation>Le chemin du dossier à surveiller est obligatoire pour le mode «&#xa0;Surveiller un dossier&#xa0;».</translation>
    </message>
    <message>
        <source>File extensions are required for monitorFolder mode.</source>
        <translation>Les extensions de fichier sont obligatoires pour le mode «&#xa0;Surveiller un dossier&#xa0;».</translation>
    </message>
    <message>
        <source>Stop time must be in the future.</source>
        <translation>L’heure d’arrêt doit être dans le futur.</translation>
    </message>
    <message>
        <source>Validation Error</source>
        <translation>Erreur de validation</translation>
    </message>
</context>
<context>
    <name>Scheduler::MCsTaskTableWidget</name>
    <message numerus="yes">
        <source>%n task(s)</source>
        <translation>
            <numerusform>%n tâche</numerusform>
            <numerusform>%n tâches</numerusform>
        </translation>
    </message>
</context>
</TS>
