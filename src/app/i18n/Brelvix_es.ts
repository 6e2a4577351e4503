<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name>MCsMainWindow</name>
    <message>
        <source>Orvel Scheduler Manager</source>
        <translation>Orvel Scheduler Manager</translation>
    </message>
    <message>
        <source>Note: To run the program, sign in to your Windows account and make sure your PC is set not to lock automatically.</source>
        <translation>Nota: Para ejecutar el programa, inicie sesión en su cuenta de Windows y asegúrese de que el equipo no se bloquee automáticamente.</translation>
    </message>
    <message>
        <source>Groups</source>
        <translation>Grupos</translation>
    </message>
    <message>
        <source>Task: </source>
        <translation>Tarea: </translation>
    </message>
    <message>
        <source>Filter:</source>
        <translation>Filtro:</translation>
    </message>
    <message>
        <source>Tasks: 0</source>
        <translation>Tareas: 0</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nombre</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Tipo</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Estado</translation>
    </message>
    <message>
        <source>Next Run</source>
        <translation>Próx. ejecución</translation>
    </message>
    <message>
        <source>Last Run Status</source>
        <translation>Estado de última ejecución</translation>
    </message>
    <message>
        <source>Activity Log:</source>
        <translation>Registro de actividad:</translation>
    </message>
</context>
<context>
    <name>MCsTaskDialog</name>
    <message>
        <source>Task</source>
        <translation>Tarea</translation>
    </message>
    <message>
        <source>Task Status : </source>
        <translation>Estado de la tarea: </translation>
    </message>
    <message>
        <source>ON</source>
        <translation>Activada</translation>
    </message>
    <message>
        <source>📋 Basic Information</source>
        <translation>📋 Información básica</translation>
    </message>
    <message>
        <source>Task Name (*):</source>
        <translation>Nombre de la tarea (*):</translation>
    </message>
    <message>
        <source>Program Name (*):</source>
        <translation>Nombre del programa (*):</translation>
    </message>
    <message>
        <source>Target Program (*):</source>
        <translation>Programa de destino (*):</translation>
    </message>
    <message>
        <source>Task Type (*):</source>
        <translation>Tipo de tarea (*):</translation>
    </message>
    <message>
        <source>Group:</source>
        <translation>Grupo:</translation>
    </message>
    <message>
        <source>💾 Output Settings</source>
        <translation>💾 Configuración de salida</translation>
    </message>
    <message>
        <source>Use Default Output</source>
        <translation>Usar salida predeterminada</translation>
    </message>
    <message>
        <source>Custom Output</source>
        <translation>Salida personalizada</translation>
    </message>
    <message>
        <source>Custom Folder:</source>
        <translation>Carpeta personalizada:</translation>
    </message>
    <message>
        <source>Browse...</source>
        <translation>Examinar...</translation>
    </message>
    <message>
        <source>File Name Pattern:</source>
        <translation>Patrón de nombre:</translation>
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
        <translation>🚀 Acción antes del inicio automático</translation>
    </message>
    <message>
        <source>Run Program:</source>
        <translation>Ejecutar programa:</translation>
    </message>
    <message>
        <source>Open URL:</source>
        <translation>Abrir URL:</translation>
    </message>
    <message>
        <source>e.g., https://www.example.com</source>
        <translation>p.&#xa0;ej., https://www.example.com</translation>
    </message>
    <message>
        <source>After completing the above steps, wait for a while for the data or page to load completely :</source>
        <translation>Tras completar los pasos anteriores, espere un tiempo a que los datos o la página se carguen por completo:</translation>
    </message>
    <message>
        <source>Wait for :</source>
        <translation>Esperar:</translation>
    </message>
    <message>
        <source> seconds</source>
        <translation> segundos</translation>
    </message>
    <message>
        <source>⏰ Start Target Program On</source>
        <translation>⏰ Inicio del programa de destino</translation>
    </message>
    <message>
        <source>📅 Specified Time</source>
        <translation>📅 Fecha y hora</translation>
    </message>
    <message>
        <source>🔁 Every Day</source>
        <translation>🔁 Cada día</translation>
    </message>
    <message>
        <source>📆 Every Week</source>
        <translation>📆 Cada semana</translation>
    </message>
    <message>
        <source>🖥️ Monitor App</source>
        <translation>🖥️ Supervisar aplicación</translation>
    </message>
    <message>
        <source>📁 Monitor Folder</source>
        <translation>📁 Supervisar carpeta</translation>
    </message>
    <message>
        <source>Specified Date/Time(*):</source>
        <translation>Fecha y hora (*):</translation>
    </message>
    <message>
        <source>yyyy-MM-dd HH:mm:ss</source>
        <translation>yyyy-MM-dd HH:mm:ss</translation>
    </message>
    <message>
        <source>Daily Time (HH:MM:SS) *:</source>
        <translation>Hora diaria (HH:MM:SS) *:</translation>
    </message>
    <message>
        <source>HH:mm:ss</source>
        <translation>HH:mm:ss</translation>
    </message>
    <message>
        <source>Select Days (*):</source>
        <translation>Días de la semana (*):</translation>
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
        <translation>Mié</translation>
    </message>
    <message>
        <source>Thu</source>
        <translation>Jue</translation>
    </message>
    <message>
        <source>Fri</source>
        <translation>Vie</translation>
    </message>
    <message>
        <source>Sat</source>
        <translation>Sáb</translation>
    </message>
    <message>
        <source>Sun</source>
        <translation>Dom</translation>
    </message>
    <message>
        <source>Weekly Time (HH:MM:SS) *:</source>
        <translation>Hora semanal (HH:MM:SS) *:</translation>
    </message>
    <message>
        <source>Monitor Program (*):</source>
        <translation>Programa supervisado (*):</translation>
    </message>
    <message>
        <source>Monitor Folder (*):</source>
        <translation>Carpeta supervisada (*):</translation>
    </message>
    <message>
        <source>File Extensions (*):</source>
        <translation>Extensiones de archivo (*):</translation>
    </message>
    <message>
        <source>e.g., .mp4,.avi,.mkv</source>
        <translation>p.&#xa0;ej., .mp4,.avi,.mkv</translation>
    </message>
    <message>
        <source>⏹️ Auto Stop Condition</source>
        <translation>⏹️ Condición de detención automática</translation>
    </message>
    <message>
        <source>🚫 None</source>
        <translation>🚫 Ninguna</translation>
    </message>
    <message>
        <source>⏱️ By Duration</source>
        <translation>⏱️ Por duración</translation>
    </message>
    <message>
        <source>💾 By File Size</source>
        <translation>💾 Por tamaño de archivo</translation>
    </message>
    <message>
        <source>🕐 At Time</source>
        <translation>🕐 A una hora fija</translation>
    </message>
    <message>
        <source>Duration (*):</source>
        <translation>Duración (*):</translation>
    </message>
    <message>
        <source> minutes</source>
        <translation> minutos</translation>
    </message>
    <message>
        <source>Task File(s) Size (*):</source>
        <translation>Tamaño de archivos (*):</translation>
    </message>
    <message>
        <source> KB</source>
        <translation> KB</translation>
    </message>
    <message>
        <source>Stop At Time (*):</source>
        <translation>Hora de detención (*):</translation>
    </message>
    <message>
        <source>🏁 Action After Auto Stop</source>
        <translation>🏁 Acción tras la detención automática</translation>
    </message>
    <message>
        <source>❌ Close Program</source>
        <translation>❌ Cerrar el programa</translation>
    </message>
    <message>
        <source>🔌 Shutdown Computer</source>
        <translation>🔌 Apagar el equipo</translation>
    </message>
    <message>
        <source>🖥️ Display Mode</source>
        <translation>🖥️ Modo de visualización</translation>
    </message>
    <message>
        <source>👁️ Show</source>
        <translation>👁️ Mostrar</translation>
    </message>
    <message>
        <source>🔽 Minimize</source>
        <translation>🔽 Minimizar</translation>
    </message>
    <message>
        <source>🙈 Hide</source>
        <translation>🙈 Ocultar</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>Error</source>
        <translation>Error</translation>
    </message>
    <message>
        <source>task type</source>
        <translation>tipo de tarea</translation>
    </message>
    <message>
        <source>language</source>
        <translation>idioma</translation>
    </message>
    <message>
        <source>program name</source>
        <translation>nombre del programa</translation>
    </message>
    <message>
        <source>program path</source>
        <translation>ruta del programa</translation>
    </message>
    <message>
        <source>Program parameter JSON file not found!</source>
        <translation>No se encontró el archivo JSON de parámetros del programa.</translation>
    </message>
    <message>
        <source>Failed to open program parameter JSON file!</source>
        <translation>No se pudo abrir el archivo JSON de parámetros del programa.</translation>
    </message>
    <message>
        <source>Program parameter JSON file is empty!</source>
        <translation>El archivo JSON de parámetros del programa está vacío.</translation>
    </message>
    <message>
        <source>Missing required arguments: %1</source>
        <translation>Faltan argumentos obligatorios: %1</translation>
    </message>
    <message>
        <source>task type error!</source>
        <translation>Tipo de tarea incorrecto.</translation>
    </message>
    <message>
        <source>All Types</source>
        <translation>Todos los tipos</translation>
    </message>
</context>
<context>
    <name>Scheduler::MCsDynamicFormWidget</name>
    <message>
        <source>Audio Source</source>
        <translation>Fuente de audio</translation>
    </message>
    <message>
        <source>Audio Bitrate</source>
        <translation>Tasa de bits de audio</translation>
    </message>
    <message>
        <source>Audio Sample Rate</source>
        <translation>Frecuencia de muestreo</translation>
    </message>
    <message>
        <source>Channels</source>
        <translation>Canales</translation>
    </message>
    <message>
        <source>Enable VBR if supported</source>
        <translation>Activar VBR si se admite</translation>
    </message>
    <message>
        <source>Output format</source>
        <translation>Formato de salida</translation>
    </message>
    <message>
        <source>⚙️ Program Parameters</source>
        <translation>⚙️ Parámetros del programa</translation>
    </message>
</context>
<context>
    <name>Scheduler::MCsMainWindow</name>
    <message>
        <source>[INFO] Already connected</source>
        <translation>[INFO] Ya hay conexión</translation>
    </message>
    <message>
        <source>[INFO] Connected to scheduler service</source>
        <translation>[INFO] Conectado al servicio de programación</translation>
    </message>
    <message>
        <source>[INFO] Reconnected to scheduler service</source>
        <translation>[INFO] Reconectado al servicio de programación</translation>
    </message>
    <message>
        <source>[INFO] Disconnected from scheduler service</source>
        <translation>[INFO] Desconectado del servicio de programación</translation>
    </message>
    <message>
        <source>[INFO] Not connected</source>
        <translation>[INFO] Sin conexión</translation>
    </message>
    <message>
        <source>[ERROR] Failed to connect to scheduler service</source>
        <translation>[ERROR] No se pudo conectar al servicio de programación</translation>
    </message>
    <message>
        <source>[ERROR] Connection to scheduler service lost</source>
        <translation>[ERROR] Se perdió la conexión con el servicio de programación</translation>
    </message>
    <message>
        <source>[ERROR] Failed to reconnect to scheduler service</source>
        <translation>[ERROR] No se pudo reconectar al servicio de programación</translation>
    </message>
    <message>
        <source>[ERROR] Not connected to scheduler service</source>
        <translation>[ERROR] Sin conexión con el servicio de programación</translation>
    </message>
    <message>
        <source>[INFO] Scheduler service started</source>
        <translation>[INFO] Servicio de programación iniciado</translation>
    </message>
    <message>
        <source>[INFO] Waiting for scheduler service to start</source>
        <translation>[INFO] Esperando a que se inicie el servicio de programación</translation>
    </message>
    <message>
        <source>[ERROR] Failed to start scheduler service</source>
        <translation>[ERROR] No se pudo iniciar el servicio de programación</translation>
    </message>
    <message>
        <source>[ERROR] Scheduler service is not installed</source>
        <translation>[ERROR] El servicio de programación no está instalado</translation>
    </message>
    <message>
        <source>[INFO] Task list refreshed</source>
        <translation>[INFO] Lista de tareas actualizada</translation>
    </message>
    <message>
        <source>[ERROR] Failed to refresh task list</source>
        <translation>[ERROR] No se pudo actualizar la lista de tareas</translation>
    </message>
    <message>
        <source>[INFO] Task created: %1</source>
        <translation>[INFO] Tarea creada: %1</translation>
    </message>
    <message>
        <source>[ERROR] Failed to create task: %1</source>
        <translation>[ERROR] No se pudo crear la tarea: %1</translation>
    </message>
    <message>
        <source>[INFO] Task updated: %1</source>
        <translation>[INFO] Tarea modificada: %1</translation>
    </message>
    <message>
        <source>[ERROR] Failed to update task: %1</source>
        <translation>[ERROR] No se pudo modificar la tarea: %1</translation>
    </message>
    <message>
        <source>[INFO] Task deleted: %1</source>
        <translation>[INFO] Tarea eliminada: %1</translation>
    </message>
    <message>
        <source>[ERROR] Failed to delete task: %1</source>
        <translation>[ERROR] No se pudo eliminar la tarea: %1</translation>
    </message>
    <message>
        <source>[INFO] Task enabled: %1</source>
        <translation>[INFO] Tarea activada: %1</translation>
    </message>
    <message>
        <source>[ERROR] Failed to enable task: %1</source>
        <translation>[ERROR] No se pudo activar la tarea: %1</translation>
    </message>
    <message>
        <source>[INFO] Task disabled: %1</source>
        <translation>[INFO] Tarea desactivada: %1</translation>
    </message>
    <message>
        <source>[ERROR] Failed to disable task: %1</source>
        <translation>[ERROR] No se pudo desactivar la tarea: %1</translation>
    </message>
    <message>
        <source>[INFO] Task triggered: %1</source>
        <translation>[INFO] Tarea iniciada: %1</translation>
    </message>
    <message>
        <source>[ERROR] Failed to trigger task: %1</source>
        <translation>[ERROR] No se pudo iniciar la tarea: %1</translation>
    </message>
    <message>
        <source>[INFO] Task moved to group &apos;%1&apos;</source>
        <translation>[INFO] Tarea movida al grupo “%1”</translation>
    </message>
    <message>
        <source>[ERROR] Failed to move task to group &apos;%1&apos;</source>
        <translation>[ERROR] No se pudo mover la tarea al grupo “%1”</translation>
    </message>
    <message>
        <source>[INFO] %1 tasks moved to group &apos;%2&apos;</source>
        <translation>[INFO] %1 tareas movidas al grupo “%2”</translation>
    </message>
    <message>
        <source>[ERROR] Failed to move %1 tasks to group &apos;%2&apos;</source>
        <translation>[ERROR] No se pudieron mover %1 tareas al grupo “%2”</translation>
    </message>
    <message>
        <source>[INFO] Group list refreshed</source>
        <translation>[INFO] Lista de grupos actualizada</translation>
    </message>
    <message>
        <source>[ERROR] Failed to refresh group list</source>
        <translation>[ERROR] No se pudo actualizar la lista de grupos</translation>
    </message>
    <message>
        <source>[INFO] Group created: %1</source>
        <translation>[INFO] Grupo creado: %1</translation>
    </message>
    <message>
        <source>[ERROR] Failed to create group: %1</source>
        <translation>[ERROR] No se pudo crear el grupo: %1</translation>
    </message>
    <message>
        <source>[INFO] Group updated: %1</source>
        <translation>[INFO] Grupo modificado: %1</translation>
    </message>
    <message>
        <source>[ERROR] Failed to update group: %1</source>
        <translation>[ERROR] No se pudo modificar el grupo: %1</translation>
    </message>
    <message>
        <source>[INFO] Group deleted: %1</source>
        <translation>[INFO] Grupo eliminado: %1</translation>
    </message>
    <message>
        <source>[ERROR] Failed to delete group: %1</source>
        <translation>[ERROR] No se pudo eliminar el grupo: %1</translation>
    </message>
    <message>
        <source>[INFO] All tasks in the group enabled</source>
        <translation>[INFO] Se activaron todas las tareas del grupo</translation>
    </message>
    <message>
        <source>[ERROR] Failed to enable all tasks in the group</source>
        <translation>[ERROR] No se pudieron activar todas las tareas del grupo</translation>
    </message>
    <message>
        <source>[INFO] All tasks in the group disabled</source>
        <translation>[INFO] Se desactivaron todas las tareas del grupo</translation>
    </message>
    <message>
        <source>[ERROR] Failed to disable all tasks in the group</source>
        <translation>[ERROR] No se pudieron desactivar todas las tareas del grupo</translation>
    </message>
    <message>
        <source>[INFO] All tasks in the group triggered</source>
        <translation>[INFO] Se iniciaron todas las tareas del grupo</translation>
    </message>
    <message>
        <source>[ERROR] Failed to trigger all tasks in the group</source>
        <translation>[ERROR] No se pudieron iniciar todas las tareas del grupo</translation>
    </message>
    <message>
        <source>[INFO] All tasks in the group deleted</source>
        <translation>[INFO] Se eliminaron todas las tareas del grupo</translation>
    </message>
    <message>
        <source>[ERROR] Failed to delete all tasks in the group</source>
        <translation>[ERROR] No se pudieron eliminar todas las tareas del grupo</translation>
    </message>
    <message>
        <source>[INFO] Activity log refreshed</source>
        <translation>[INFO] Registro de actividad actualizado</translation>
    </message>
    <message>
        <source>[ERROR] Failed to refresh activity log</source>
        <translation>[ERROR] No se pudo actualizar el registro de actividad</translation>
    </message>
    <message>
        <source>Task &apos;%1&apos; execution started</source>
        <translation>Tarea “%1”: ejecución iniciada</translation>
    </message>
    <message>
        <source> (run: %1)</source>
        <translation> (ejecución: %1)</translation>
    </message>
    <message>
        <source>Task &apos;%1&apos; completed successfully</source>
        <translation>Tarea “%1” completada correctamente</translation>
    </message>
    <message>
        <source> (exit: %1)</source>
        <translation> (código de salida: %1)</translation>
    </message>
    <message>
        <source>Task &apos;%1&apos; execution failed</source>
        <translation>Tarea “%1”: error de ejecución</translation>
    </message>
    <message>
        <source> - %1</source>
        <translation> - %1</translation>
    </message>
    <message>
        <source>Task &apos;%1&apos; execution timed out</source>
        <translation>Tarea “%1”: tiempo de ejecución agotado</translation>
    </message>
    <message>
        <source>Task &apos;%1&apos; execution cancelled</source>
        <translation>Tarea “%1”: ejecución cancelada</translation>
    </message>
    <message>
        <source>Group &apos;%1&apos; created</source>
        <translation>Grupo “%1” creado</translation>
    </message>
    <message>
        <source>Group &apos;%1&apos; updated</source>
        <translation>Grupo “%1” modificado</translation>
    </message>
    <message>
        <source>Group &apos;%1&apos; deleted</source>
        <translation>Grupo “%1” eliminado</translation>
    </message>
    <message>
        <source>Task &apos;%1&apos; created</source>
        <translation>Tarea “%1” creada</translation>
    </message>
    <message>
        <source> (schedule: %1)</source>
        <translation> (programación: %1)</translation>
    </message>
    <message>
        <source>Task &apos;%1&apos; updated</source>
        <translation>Tarea “%1” modificada</translation>
    </message>
    <message>
        <source>Task &apos;%1&apos; deleted</source>
        <translation>Tarea “%1” eliminada</translation>
    </message>
    <message>
        <source>Task &apos;%1&apos; enabled</source>
        <translation>Tarea “%1” activada</translation>
    </message>
    <message>
        <source>Task &apos;%1&apos; disabled</source>
        <translation>Tarea “%1” desactivada</translation>
    </message>
    <message>
        <source>%1 on &apos;%2&apos;</source>
        <translation>%1 en “%2”</translation>
    </message>
    <message>
        <source>Disconnected</source>
        <translation>Desconectado</translation>
    </message>
    <message>
        <source>Enable All Tasks</source>
        <translation>Activar todas las tareas</translation>
    </message>
    <message>
        <source>Disable All Tasks</source>
        <translation>Desactivar todas las tareas</translation>
    </message>
    <message>
        <source>Trigger All Tasks</source>
        <translation>Iniciar todas las tareas</translation>
    </message>
    <message>
        <source>Delete All Tasks</source>
        <translation>Eliminar todas las tareas</translation>
    </message>
    <message>
        <source>Task Runs</source>
        <translation>Ejecuciones de la tarea</translation>
    </message>
    <message>
        <source>Task runs view not yet implemented.</source>
        <translation>La vista de ejecuciones de la tarea aún no está disponible.</translation>
    </message>
    <message>
        <source>Task Logs</source>
        <translation>Registros de la tarea</translation>
    </message>
    <message>
        <source>Task logs view not yet implemented.</source>
        <translation>La vista de registros de la tarea aún no está disponible.</translation>
    </message>
    <message>
        <source>Export Logs</source>
        <translation>Exportar registros</translation>
    </message>
    <message>
        <source>Log export not yet implemented.</source>
        <translation>La exportación de registros aún no está disponible.</translation>
    </message>
    <message>
        <source>Not Connected</source>
        <translation>Sin conexión</translation>
    </message>
    <message>
        <source>Cannot refresh audit log because not connected to the service.</source>
        <translation>No se puede actualizar el registro de actividad porque no hay conexión con el servicio.</translation>
    </message>
    <message>
        <source>No Selection</source>
        <translation>Sin selección</translation>
    </message>
    <message>
        <source>Please select a task to edit.</source>
        <translation>Seleccione la tarea que desea editar.</translation>
    </message>
    <message>
        <source>Please select a task to delete.</source>
        <translation>Seleccione la tarea que desea eliminar.</translation>
    </message>
    <message>
        <source>Confirm Delete</source>
        <translation>Confirmar eliminación</translation>
    </message>
    <message>
        <source>Are you sure you want to delete task &apos;%1&apos;?</source>
        <translation>¿Seguro que desea eliminar la tarea “%1”?</translation>
    </message>
    <message>
        <source>Delete Error</source>
        <translation>Error al eliminar</translation>
    </message>
    <message>
        <source>Failed to delete task.</source>
        <translation>No se pudo eliminar la tarea.</translation>
    </message>
    <message>
        <source>Toggle Error</source>
        <translation>Error al cambiar el estado</translation>
    </message>
    <message>
        <source>Failed to toggle task status.</source>
        <translation>No se pudo cambiar el estado de la tarea.</translation>
    </message>
    <message>
        <source>Please select a task to trigger.</source>
        <translation>Seleccione la tarea que desea iniciar.</translation>
    </message>
    <message>
        <source>Trigger Error</source>
        <translation>Error al iniciar</translation>
    </message>
    <message>
        <source>Failed to trigger task.</source>
        <translation>No se pudo iniciar la tarea.</translation>
    </message>
    <message>
        <source>Please select a group to edit.</source>
        <translation>Seleccione el grupo que desea editar.</translation>
    </message>
    <message>
        <source>Cannot Edit</source>
        <translation>No se puede editar</translation>
    </message>
    <message>
        <source>The &apos;Ungrouped&apos; group cannot be edited.</source>
        <translation>El grupo “Sin grupo” no se puede editar.</translation>
    </message>
    <message>
        <source>Select Type</source>
        <translation>Seleccionar tipo</translation>
    </message>
    <message>
        <source>Please select a specific task type from the filter before creating a group.</source>
        <translation>Seleccione un tipo de tarea concreto en el filtro antes de crear un grupo.</translation>
    </message>
    <message>
        <source>Please select a group to delete.</source>
        <translation>Seleccione el grupo que desea eliminar.</translation>
    </message>
    <message>
        <source>Cannot Delete</source>
        <translation>No se puede eliminar</translation>
    </message>
    <message>
        <source>The &apos;Ungrouped&apos; group cannot be deleted.</source>
        <translation>El grupo “Sin grupo” no se puede eliminar.</translation>
    </message>
    <message>
        <source>Are you sure you want to delete group &apos;%1&apos;?
Tasks in this group will be moved to &apos;Ungrouped&apos;.</source>
        <translation>¿Seguro que desea eliminar el grupo “%1”?
Las tareas de este grupo se moverán a “Sin grupo”.</translation>
    </message>
    <message>
        <source>Failed to delete group.</source>
        <translation>No se pudo eliminar el grupo.</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Error</translation>
    </message>
    <message>
        <source>Failed to enable all tasks in group.</source>
        <translation>No se pudieron activar todas las tareas del grupo.</translation>
    </message>
    <message>
        <source>Failed to disable all tasks in group.</source>
        <translation>No se pudieron desactivar todas las tareas del grupo.</translation>
    </message>
    <message>
        <source>Failed to trigger all tasks in group.</source>
        <translation>No se pudieron iniciar todas las tareas del grupo.</translation>
    </message>
    <message>
        <source>Are you sure you want to delete all tasks in this group?</source>
        <translation>¿Seguro que desea eliminar todas las tareas de este grupo?</translation>
    </message>
    <message>
        <source>Failed to delete all tasks in group.</source>
        <translation>No se pudieron eliminar todas las tareas del grupo.</translation>
    </message>
    <message>
        <source>Connecting to scheduler service...</source>
        <translation>Conectando al servicio de programación...</translation>
    </message>
    <message>
        <source>Connecting to scheduler service (attempt %1 of %2)...</source>
        <translation>Conectando al servicio de programación (intento %1 de %2)...</translation>
    </message>
    <message>
        <source>Unable to connect to the scheduler service because multiple manager instances are running. Please close the other scheduler managers first.</source>
        <translation>No se puede conectar al servicio de programación porque hay varias instancias del administrador de programación en ejecución. Cierre primero las demás.</translation>
    </message>
    <message>
        <source>connected to deamon failed! (attempt %1 of %2) reason = </source>
        <translation>No se pudo conectar al servicio de programación (intento %1 de %2). Motivo = </translation>
    </message>
    <message>
        <source>[WARN] Initial connection failed, attempting to start service...</source>
        <translation>[WARN] Falló la conexión inicial; intentando iniciar el servicio...</translation>
    </message>
    <message>
        <source>Scheduler service is installed but failed to start.

Please check system logs or reinstall the service.</source>
        <translation>El servicio de programación está instalado, pero no se pudo iniciar.

Revise los registros del sistema o reinstale el servicio.</translation>
    </message>
    <message>
        <source>Scheduler service is not installed.

Please reinstall the service and restart the application.</source>
        <translation>El servicio de programación no está instalado.

Reinstale el servicio y reinicie la aplicación.</translation>
    </message>
    <message>
        <source>Waiting for service to start...</source>
        <translation>Esperando a que se inicie el servicio...</translation>
    </message>
    <message>
        <source>Reconnecting to scheduler service (attempt %1 of %2)...</source>
        <translation>Reconectando al servicio de programación (intento %1 de %2)...</translation>
    </message>
    <message>
        <source>Unable to connect to scheduler service after multiple attempts.

Please ensure the service is running correctly and try again.</source>
        <translation>No se pudo conectar al servicio de programación después de varios intentos.

Asegúrese de que el servicio funcione correctamente e inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>No Tasks Found</source>
        <translation>No hay tareas</translation>
    </message>
    <message>
        <source>No scheduled tasks were found.

Would you like to create one now?</source>
        <translation>No se encontraron tareas programadas.

¿Desea crear una ahora?</translation>
    </message>
    <message>
        <source>[WARN] Connection lost, attempting to reconnect...</source>
        <translation>[WARN] Se perdió la conexión; intentando reconectar...</translation>
    </message>
    <message>
        <source>[INFO] Reconnection attempt %1 of %2...</source>
        <translation>[INFO] Intento de reconexión %1 de %2...</translation>
    </message>
    <message>
        <source>Reconnecting (%1/%2)...</source>
        <translation>Reconectando (%1/%2)...</translation>
    </message>
    <message>
        <source>Connection lost. Reconnecting...
Attempt %1 of %2</source>
        <translation>Se perdió la conexión. Reconectando...
Intento %1 de %2</translation>
    </message>
    <message>
        <source>Connection to scheduler service was lost and could not be restored.

The application will now close.</source>
        <translation>Se perdió la conexión con el servicio de programación y no se pudo restablecer.

La aplicación se cerrará ahora.</translation>
    </message>
    <message>
        <source>Service Error</source>
        <translation>Error del servicio</translation>
    </message>
    <message>
        <source>Connecting</source>
        <translation>Conectando</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Connection Lost</source>
        <translation>Conexión perdida</translation>
    </message>
    <message>
        <source>Connection lost. Reconnecting to scheduler service...</source>
        <translation>Se perdió la conexión. Reconectando al servicio de programación...</translation>
    </message>
    <message>
        <source>Connected</source>
        <translation>Conectado</translation>
    </message>
    <message>
        <source>Failed to move task to group &apos;%1&apos;.</source>
        <translation>No se pudo mover la tarea al grupo “%1”.</translation>
    </message>
    <message>
        <source>Failed to move %1 tasks to group &apos;%2&apos;.</source>
        <translation>No se pudieron mover %1 tareas al grupo “%2”.</translation>
    </message>
    <message>
        <source>Failed to move task to group.</source>
        <translation>No se pudo mover la tarea al grupo.</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>Tasks: %1</source>
        <translation>Tareas: %1</translation>
    </message>
    <message>
        <source> (in %1)</source>
        <translation> (en %1)</translation>
    </message>
    <message>
        <source>Success</source>
        <translation>Correcta</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Fallida</translation>
    </message>
    <message>
        <source>Timeout</source>
        <translation>Tiempo agotado</translation>
    </message>
    <message>
        <source>Running</source>
        <translation>En ejecución</translation>
    </message>
    <message>
        <source>Pending</source>
        <translation>Pendiente</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>Desactivada</translation>
    </message>
    <message>
        <source>Not scheduled</source>
        <translation>Sin programar</translation>
    </message>
    <message>
        <source>Overdue</source>
        <translation>Atrasada</translation>
    </message>
    <message>
        <source>%1s left</source>
        <translation>En %1 s</translation>
    </message>
    <message>
        <source>%1m %2s left</source>
        <translation>En %1 min %2 s</translation>
    </message>
    <message>
        <source>%1d %2h left</source>
        <translation>En %1 d %2 h</translation>
    </message>
    <message>
        <source>%1h %2m left</source>
        <translation>En %1 h %2 min</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Activada</translation>
    </message>
</context>
<context>
    <name>Scheduler::MCsTaskDialog</name>
    <message>
        <source>Failed to load task.</source>
        <translation>No se pudo cargar la tarea.</translation>
    </message>
    <message>
        <source>Test Task</source>
        <translation>Prueba</translation>
    </message>
    <message>
        <source>Screen Recorder</source>
        <translation>Grabar pantalla</translation>
    </message>
    <message>
        <source>Audio Recorder</source>
        <translation>Grabar audio</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>Personalizado</translation>
    </message>
    <message>
        <source>Create Task</source>
        <translation>Crear tarea</translation>
    </message>
    <message>
        <source>Edit Task</source>
        <translation>Editar tarea</translation>
    </message>
    <message>
        <source>ON</source>
        <translation>Activada</translation>
    </message>
    <message>
        <source>OFF</source>
        <translation>Desactivada</translation>
    </message>
    <message>
        <source>Select Program</source>
        <translation>Seleccionar programa</translation>
    </message>
    <message>
        <source>Executable Files (*.exe);;All Files (*.*)</source>
        <translation>Archivos ejecutables (*.exe);;Todos los archivos (*.*)</translation>
    </message>
    <message>
        <source>Select Program to Monitor</source>
        <translation>Seleccionar programa para supervisar</translation>
    </message>
    <message>
        <source>Select Folder to Monitor</source>
        <translation>Seleccionar carpeta para supervisar</translation>
    </message>
    <message>
        <source>Select Output Folder</source>
        <translation>Seleccionar carpeta de salida</translation>
    </message>
    <message>
        <source>File Name Pattern Help</source>
        <translation>Ayuda del patrón de nombre de archivo</translation>
    </message>
    <message>
        <source>Available format variables:

[YYYY-MM-DD] - Date (e.g., 2024-03-15)
[hh-mm-ss] - Time (e.g., 14-30-45)
[TaskName] - Task name
[Counter] - Auto-incrementing counter

Example: [YYYY-MM-DD][hh-mm-ss]_[TaskName]
Result: 2024-03-15_14-30-45_MyTask.mp4</source>
        <translation>Variables de formato disponibles:

[YYYY-MM-DD] - Fecha (p.&#xa0;ej., 2024-03-15)
[hh-mm-ss] - Hora (p.&#xa0;ej., 14-30-45)
[TaskName] - Nombre de la tarea
[Counter] - Contador que aumenta automáticamente

Ejemplo: [YYYY-MM-DD][hh-mm-ss]_[TaskName]
Resultado: 2024-03-15_14-30-45_MiTarea.mp4</translation>
    </message>
    <message>
        <source>Ungrouped</source>
        <translation>Sin grupo</translation>
    </message>
    <message>
        <source>Critical Error!</source>
        <translation>Error crítico</translation>
    </message>
    <message>
        <source>Task type mismatch!</source>
        <translation>El tipo de tarea no coincide.</translation>
    </message>
    <message>
        <source>Task type not accepted!</source>
        <translation>No se admite el tipo de tarea.</translation>
    </message>
    <message>
        <source>📋 Basic Info</source>
        <translation>📋 Datos básicos</translation>
    </message>
    <message>
        <source>⚙️ Program Parameters</source>
        <translation>⚙️ Parámetros</translation>
    </message>
    <message>
        <source>💾 Output</source>
        <translation>💾 Salida</translation>
    </message>
    <message>
        <source>🚀 Before Start</source>
        <translation>🚀 Antes del inicio</translation>
    </message>
    <message>
        <source>⏰ Start Target Program</source>
        <translation>⏰ Inicio del programa</translation>
    </message>
    <message>
        <source>⏹️ Auto Stop</source>
        <translation>⏹️ Detención automática</translation>
    </message>
    <message>
        <source>🏁 After Stop</source>
        <translation>🏁 Tras la detención</translation>
    </message>
    <message>
        <source>🖥️ Display</source>
        <translation>🖥️ Visualización</translation>
    </message>
    <message>
        <source>Connection Error</source>
        <translation>Error de conexión</translation>
    </message>
    <message>
        <source>Not connected to daemon. Please connect first.</source>
        <translation>No hay conexión con el servicio de programación. Conéctese primero.</translation>
    </message>
    <message>
        <source>Success</source>
        <translation>Operación correcta</translation>
    </message>
    <message>
        <source>Task created successfully.</source>
        <translation>La tarea se creó correctamente.</translation>
    </message>
    <message>
        <source>Task updated successfully.</source>
        <translation>La tarea se modificó correctamente.</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Error</translation>
    </message>
    <message>
        <source>Failed to save task. reason : </source>
        <translation>No se pudo guardar la tarea. Motivo: </translation>
    </message>
    <message>
        <source>Task name is required.</source>
        <translation>El nombre de la tarea es obligatorio.</translation>
    </message>
    <message>
        <source>Program name is required.</source>
        <translation>El nombre del programa es obligatorio.</translation>
    </message>
    <message>
        <source>Target program is required.</source>
        <translation>El programa de destino es obligatorio.</translation>
    </message>
    <message>
        <source>Task type is required.</source>
        <translation>El tipo de tarea es obligatorio.</translation>
    </message>
    <message>
        <source>Specified date/time must be in the future.</source>
        <translation>La fecha y la hora deben ser futuras.</translation>
    </message>
    <message>
        <source>At least one weekday must be selected for EveryWeek mode.</source>
        <translation>Seleccione al menos un día de la semana para el modo “Cada semana”.</translation>
    </message>
    <message>
        <source>Monitor program is required for monitorApp mode.</source>
        <translation>El programa supervisado es obligatorio en el modo “Supervisar aplicación”.</translation>
    </message>
    <message>
        <source>Monitor folder path is required for monitorFolder mode.</source>
        <translation>La ruta de la carpeta supervisada es obligatoria en el modo “Supervisar carpeta”.</translation>
    </message>
    <message>
        <source>File extensions are required for monitorFolder mode.</source>
        <translation>Las extensiones de archivo son obligatorias en el modo “Supervisar carpeta”.</translation>
    </message>
    <message>
        <source>Stop time must be in the future.</source>
        <translation>La hora de detención debe ser futura.</translation>
    </message>
    <message>
        <source>Validation Error</source>
        <translation>Error de validación</translation>
    </message>
</context>
<context>
    <name>Scheduler::MCsTaskTableWidget</name>
    <message numerus="yes">
        <source>%n task(s)</source>
        <translation>
            <numerusform>%n tarea</numerusform>
            <numerusform>%n tareas</numerusform>
        </translation>
    </message>
</context>
</TS>
