<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt_BR" sourcelanguage="en">
<context>
    <name>MCsMainWindow</name>
    <message>
        <source>Orvel Scheduler Manager</source>
        <translation>Orvel Scheduler Manager</translation>
    </message>
    <message>
        <source>Note: To run the program, sign in to your Windows account and make sure your PC is set not to lock automatically.</source>
        <translation>Observação: Para executar o programa, entre na sua conta do Windows e verifique se o PC está configurado para não bloquear automaticamente.</translation>
    </message>
    <message>
        <source>Groups</source>
        <translation>Grupos</translation>
    </message>
    <message>
        <source>Task: </source>
        <translation>Tarefa: </translation>
    </message>
    <message>
        <source>Filter:</source>
        <translation>Filtro:</translation>
    </message>
    <message>
        <source>Tasks: 0</source>
        <translation>Tarefas: 0</translation>
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
        <translation>Status</translation>
    </message>
    <message>
        <source>Next Run</source>
        <translation>Próx. execução</translation>
    </message>
    <message>
        <source>Last Run Status</source>
        <translation>Status da última execução</translation>
    </message>
    <message>
        <source>Activity Log:</source>
        <translation>Registro de atividades:</translation>
    </message>
</context>
<context>
    <name>MCsTaskDialog</name>
    <message>
        <source>Task</source>
        <translation>Tarefa</translation>
    </message>
    <message>
        <source>Task Status : </source>
        <translation>Status da tarefa: </translation>
    </message>
    <message>
        <source>ON</source>
        <translation>Ativada</translation>
    </message>
    <message>
        <source>📋 Basic Information</source>
        <translation>📋 Informações básicas</translation>
    </message>
    <message>
        <source>Task Name (*):</source>
        <translation>Nome da tarefa (*):</translation>
    </message>
    <message>
        <source>Program Name (*):</source>
        <translation>Nome do programa (*):</translation>
    </message>
    <message>
        <source>Target Program (*):</source>
        <translation>Programa de destino (*):</translation>
    </message>
    <message>
        <source>Task Type (*):</source>
        <translation>Tipo de tarefa (*):</translation>
    </message>
    <message>
        <source>Group:</source>
        <translation>Grupo:</translation>
    </message>
    <message>
        <source>💾 Output Settings</source>
        <translation>💾 Configurações de saída</translation>
    </message>
    <message>
        <source>Use Default Output</source>
        <translation>Usar saída padrão</translation>
    </message>
    <message>
        <source>Custom Output</source>
        <translation>Saída personalizada</translation>
    </message>
    <message>
        <source>Custom Folder:</source>
        <translation>Pasta personalizada:</translation>
    </message>
    <message>
        <source>Browse...</source>
        <translation>Procurar...</translation>
    </message>
    <message>
        <source>File Name Pattern:</source>
        <translation>Padrão de nome:</translation>
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
        <translation>🚀 Ação antes do início automático</translation>
    </message>
    <message>
        <source>Run Program:</source>
        <translation>Executar programa:</translation>
    </message>
    <message>
        <source>Open URL:</source>
        <translation>Abrir URL:</translation>
    </message>
    <message>
        <source>e.g., https://www.example.com</source>
        <translation>ex.: https://www.example.com</translation>
    </message>
    <message>
        <source>After completing the above steps, wait for a while for the data or page to load completely :</source>
        <translation>Após concluir as etapas acima, aguarde um tempo até que os dados ou a página sejam totalmente carregados:</translation>
    </message>
    <message>
        <source>Wait for :</source>
        <translation>Aguardar:</translation>
    </message>
    <message>
        <source> seconds</source>
        <translation> segundos</translation>
    </message>
    <message>
        <source>⏰ Start Target Program On</source>
        <translation>⏰ Início do programa de destino</translation>
    </message>
    <message>
        <source>📅 Specified Time</source>
        <translation>📅 Data e hora</translation>
    </message>
    <message>
        <source>🔁 Every Day</source>
        <translation>🔁 Diariamente</translation>
    </message>
    <message>
        <source>📆 Every Week</source>
        <translation>📆 Semanalmente</translation>
    </message>
    <message>
        <source>🖥️ Monitor App</source>
        <translation>🖥️ Monitorar aplicativo</translation>
    </message>
    <message>
        <source>📁 Monitor Folder</source>
        <translation>📁 Monitorar pasta</translation>
    </message>
    <message>
        <source>Specified Date/Time(*):</source>
        <translation>Data e hora (*):</translation>
    </message>
    <message>
        <source>yyyy-MM-dd HH:mm:ss</source>
        <translation>yyyy-MM-dd HH:mm:ss</translation>
    </message>
    <message>
        <source>Daily Time (HH:MM:SS) *:</source>
        <translation>Horário diário (HH:MM:SS) *:</translation>
    </message>
    <message>
        <source>HH:mm:ss</source>
        <translation>HH:mm:ss</translation>
    </message>
    <message>
        <source>Select Days (*):</source>
        <translation>Dias da semana (*):</translation>
    </message>
    <message>
        <source>Mon</source>
        <translation>Seg</translation>
    </message>
    <message>
        <source>Tue</source>
        <translation>Ter</translation>
    </message>
    <message>
        <source>Wed</source>
        <translation>Qua</translation>
    </message>
    <message>
        <source>Thu</source>
        <translation>Qui</translation>
    </message>
    <message>
        <source>Fri</source>
        <translation>Sex</translation>
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
        <translation>Horário semanal (HH:MM:SS) *:</translation>
    </message>
    <message>
        <source>Monitor Program (*):</source>
        <translation>Programa monitorado (*):</translation>
    </message>
    <message>
        <source>Monitor Folder (*):</source>
        <translation>Pasta monitorada (*):</translation>
    </message>
    <message>
        <source>File Extensions (*):</source>
        <translation>Extensões de arquivo (*):</translation>
    </message>
    <message>
        <source>e.g., .mp4,.avi,.mkv</source>
        <translation>ex.: .mp4,.avi,.mkv</translation>
    </message>
    <message>
        <source>⏹️ Auto Stop Condition</source>
        <translation>⏹️ Condição de parada automática</translation>
    </message>
    <message>
        <source>🚫 None</source>
        <translation>🚫 Nenhuma</translation>
    </message>
    <message>
        <source>⏱️ By Duration</source>
        <translation>⏱️ Por duração</translation>
    </message>
    <message>
        <source>💾 By File Size</source>
        <translation>💾 Por tamanho do arquivo</translation>
    </message>
    <message>
        <source>🕐 At Time</source>
        <translation>🕐 Em horário fixo</translation>
    </message>
    <message>
        <source>Duration (*):</source>
        <translation>Duração (*):</translation>
    </message>
    <message>
        <source> minutes</source>
        <translation> minutos</translation>
    </message>
    <message>
        <source>Task File(s) Size (*):</source>
        <translation>Tamanho dos arquivos (*):</translation>
    </message>
    <message>
        <source> KB</source>
        <translation> KB</translation>
    </message>
    <message>
        <source>Stop At Time (*):</source>
        <translation>Horário de parada (*):</translation>
    </message>
    <message>
        <source>🏁 Action After Auto Stop</source>
        <translation>🏁 Ação após a parada automática</translation>
    </message>
    <message>
        <source>❌ Close Program</source>
        <translation>❌ Fechar o programa</translation>
    </message>
    <message>
        <source>🔌 Shutdown Computer</source>
        <translation>🔌 Desligar o computador</translation>
    </message>
    <message>
        <source>🖥️ Display Mode</source>
        <translation>🖥️ Modo de exibição</translation>
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
        <translation>Erro</translation>
    </message>
    <message>
        <source>task type</source>
        <translation>tipo de tarefa</translation>
    </message>
    <message>
        <source>language</source>
        <translation>idioma</translation>
    </message>
    <message>
        <source>program name</source>
        <translation>nome do programa</translation>
    </message>
    <message>
        <source>program path</source>
        <translation>caminho do programa</translation>
    </message>
    <message>
        <source>Program parameter JSON file not found!</source>
        <translation>O arquivo JSON de parâmetros do programa não foi encontrado.</translation>
    </message>
    <message>
        <source>Failed to open program parameter JSON file!</source>
        <translation>Não foi possível abrir o arquivo JSON de parâmetros do programa.</translation>
    </message>
    <message>
        <source>Program parameter JSON file is empty!</source>
        <translation>O arquivo JSON de parâmetros do programa está vazio.</translation>
    </message>
    <message>
        <source>Missing required arguments: %1</source>
        <translation>Argumentos obrigatórios ausentes: %1</translation>
    </message>
    <message>
        <source>task type error!</source>
        <translation>Tipo de tarefa incorreto.</translation>
    </message>
    <message>
        <source>All Types</source>
        <translation>Todos os tipos</translation>
    </message>
</context>
<context>
    <name>Scheduler::MCsDynamicFormWidget</name>
    <message>
        <source>Audio Source</source>
        <translation>Fonte de áudio</translation>
    </message>
    <message>
        <source>Audio Bitrate</source>
        <translation>Taxa de bits de áudio</translation>
    </message>
    <message>
        <source>Audio Sample Rate</source>
        <translation>Taxa de amostragem</translation>
    </message>
    <message>
        <source>Channels</source>
        <translation>Canais</translation>
    </message>
    <message>
        <source>Enable VBR if supported</source>
        <translation>Ativar VBR se compatível</translation>
    </message>
    <message>
        <source>Output format</source>
        <translation>Formato de saída</translation>
    </message>
    <message>
        <source>⚙️ Program Parameters</source>
        <translation>⚙️ Parâmetros do programa</translation>
    </message>
</context>
<context>
    <name>Scheduler::MCsMainWindow</name>
    <message>
        <source>[INFO] Already connected</source>
        <translation>[INFO] Já conectado</translation>
    </message>
    <message>
        <source>[INFO] Connected to scheduler service</source>
        <translation>[INFO] Conectado ao serviço de agendamento</translation>
    </message>
    <message>
        <source>[INFO] Reconnected to scheduler service</source>
        <translation>[INFO] Reconectado ao serviço de agendamento</translation>
    </message>
    <message>
        <source>[INFO] Disconnected from scheduler service</source>
        <translation>[INFO] Desconectado do serviço de agendamento</translation>
    </message>
    <message>
        <source>[INFO] Not connected</source>
        <translation>[INFO] Sem conexão</translation>
    </message>
    <message>
        <source>[ERROR] Failed to connect to scheduler service</source>
        <translation>[ERROR] Falha ao conectar ao serviço de agendamento</translation>
    </message>
    <message>
        <source>[ERROR] Connection to scheduler service lost</source>
        <translation>[ERROR] A conexão com o serviço de agendamento foi perdida</translation>
    </message>
    <message>
        <source>[ERROR] Failed to reconnect to scheduler service</source>
        <translation>[ERROR] Falha ao reconectar ao serviço de agendamento</translation>
    </message>
    <message>
        <source>[ERROR] Not connected to scheduler service</source>
        <translation>[ERROR] Sem conexão com o serviço de agendamento</translation>
    </message>
    <message>
        <source>[INFO] Scheduler service started</source>
        <translation>[INFO] Serviço de agendamento iniciado</translation>
    </message>
    <message>
        <source>[INFO] Waiting for scheduler service to start</source>
        <translation>[INFO] Aguardando o início do serviço de agendamento</translation>
    </message>
    <message>
        <source>[ERROR] Failed to start scheduler service</source>
        <translation>[ERROR] Falha ao iniciar o serviço de agendamento</translation>
    </message>
    <message>
        <source>[ERROR] Scheduler service is not installed</source>
        <translation>[ERROR] O serviço de agendamento não está instalado</translation>
    </message>
    <message>
        <source>[INFO] Task list refreshed</source>
        <translation>[INFO] Lista de tarefas atualizada</translation>
    </message>
    <message>
        <source>[ERROR] Failed to refresh task list</source>
        <translation>[ERROR] Falha ao atualizar a lista de tarefas</translation>
    </message>
    <message>
        <source>[INFO] Task created: %1</source>
        <translation>[INFO] Tarefa criada: %1</translation>
    </message>
    <message>
        <source>[ERROR] Failed to create task: %1</source>
        <translation>[ERROR] Falha ao criar a tarefa: %1</translation>
    </message>
    <message>
        <source>[INFO] Task updated: %1</source>
        <translation>[INFO] Tarefa alterada: %1</translation>
    </message>
    <message>
        <source>[ERROR] Failed to update task: %1</source>
        <translation>[ERROR] Falha ao alterar a tarefa: %1</translation>
    </message>
    <message>
        <source>[INFO] Task deleted: %1</source>
        <translation>[INFO] Tarefa excluída: %1</translation>
    </message>
    <message>
        <source>[ERROR] Failed to delete task: %1</source>
        <translation>[ERROR] Falha ao excluir a tarefa: %1</translation>
    </message>
    <message>
        <source>[INFO] Task enabled: %1</source>
        <translation>[INFO] Tarefa ativada: %1</translation>
    </message>
    <message>
        <source>[ERROR] Failed to enable task: %1</source>
        <translation>[ERROR] Falha ao ativar a tarefa: %1</translation>
    </message>
    <message>
        <source>[INFO] Task disabled: %1</source>
        <translation>[INFO] Tarefa desativada: %1</translation>
    </message>
    <message>
        <source>[ERROR] Failed to disable task: %1</source>
        <translation>[ERROR] Falha ao desativar a tarefa: %1</translation>
    </message>
    <message>
        <source>[INFO] Task triggered: %1</source>
        <translation>[INFO] Tarefa iniciada: %1</translation>
    </message>
    <message>
        <source>[ERROR] Failed to trigger task: %1</source>
        <translation>[ERROR] Falha ao iniciar a tarefa: %1</translation>
    </message>
    <message>
        <source>[INFO] Task moved to group &apos;%1&apos;</source>
        <translation>[INFO] Tarefa movida para o grupo “%1”</translation>
    </message>
    <message>
        <source>[ERROR] Failed to move task to group &apos;%1&apos;</source>
        <translation>[ERROR] Falha ao mover a tarefa para o grupo “%1”</translation>
    </message>
    <message>
        <source>[INFO] %1 tasks moved to group &apos;%2&apos;</source>
        <translation>[INFO] %1 tarefas movidas para o grupo “%2”</translation>
    </message>
    <message>
        <source>[ERROR] Failed to move %1 tasks to group &apos;%2&apos;</source>
        <translation>[ERROR] Falha ao mover %1 tarefas para o grupo “%2”</translation>
    </message>
    <message>
        <source>[INFO] Group list refreshed</source>
        <translation>[INFO] Lista de grupos atualizada</translation>
    </message>
    <message>
        <source>[ERROR] Failed to refresh group list</source>
        <translation>[ERROR] Falha ao atualizar a lista de grupos</translation>
    </message>
    <message>
        <source>[INFO] Group created: %1</source>
        <translation>[INFO] Grupo criado: %1</translation>
    </message>
    <message>
        <source>[ERROR] Failed to create group: %1</source>
        <translation>[ERROR] Falha ao criar o grupo: %1</translation>
    </message>
    <message>
        <source>[INFO] Group updated: %1</source>
        <translation>[INFO] Grupo alterado: %1</translation>
    </message>
    <message>
        <source>[ERROR] Failed to update group: %1</source>
        <translation>[ERROR] Falha ao alterar o grupo: %1</translation>
    </message>
    <message>
        <source>[INFO] Group deleted: %1</source>
        <translation>[INFO] Grupo excluído: %1</translation>
    </message>
    <message>
        <source>[ERROR] Failed to delete group: %1</source>
        <translation>[ERROR] Falha ao excluir o grupo: %1</translation>
    </message>
    <message>
        <source>[INFO] All tasks in the group enabled</source>
        <translation>[INFO] Todas as tarefas do grupo foram ativadas</translation>
    </message>
    <message>
        <source>[ERROR] Failed to enable all tasks in the group</source>
        <translation>[ERROR] Falha ao ativar todas as tarefas do grupo</translation>
    </message>
    <message>
        <source>[INFO] All tasks in the group disabled</source>
        <translation>[INFO] Todas as tarefas do grupo foram desativadas</translation>
    </message>
    <message>
        <source>[ERROR] Failed to disable all tasks in the group</source>
        <translation>[ERROR] Falha ao desativar todas as tarefas do grupo</translation>
    </message>
    <message>
        <source>[INFO] All tasks in the group triggered</source>
        <translation>[INFO] Todas as tarefas do grupo foram iniciadas</translation>
    </message>
    <message>
        <source>[ERROR] Failed to trigger all tasks in the group</source>
        <translation>[ERROR] Falha ao iniciar todas as tarefas do grupo</translation>
    </message>
    <message>
        <source>[INFO] All tasks in the group deleted</source>
        <translation>[INFO] Todas as tarefas do grupo foram excluídas</translation>
    </message>
    <message>
        <source>[ERROR] Failed to delete all tasks in the group</source>
        <translation>[ERROR] Falha ao excluir todas as tarefas do grupo</translation>
    </message>
    <message>
        <source>[INFO] Activity log refreshed</source>
        <translation>[INFO] Registro de atividades atualizado</translation>
    </message>
    <message>
        <source>[ERROR] Failed to refresh activity log</source>
        <translation>[ERROR] Falha ao atualizar o registro de atividades</translation>
    </message>
    <message>
        <source>Task &apos;%1&apos; execution started</source>
        <translation>Tarefa “%1”: execução iniciada</translation>
    </message>
    <message>
        <source> (run: %1)</source>
        <translation> (execução: %1)</translation>
    </message>
    <message>
        <source>Task &apos;%1&apos; completed successfully</source>
        <translation>Tarefa “%1” concluída com êxito</translation>
    </message>
    <message>
        <source> (exit: %1)</source>
        <translation> (código de saída: %1)</translation>
    </message>
    <message>
        <source>Task &apos;%1&apos; execution failed</source>
        <translation>Tarefa “%1”: falha na execução</translation>
    </message>
    <message>
        <source> - %1</source>
        <translation> - %1</translation>
    </message>
    <message>
        <source>Task &apos;%1&apos; execution timed out</source>
        <translation>Tarefa “%1”: tempo de execução esgotado</translation>
    </message>
    <message>
        <source>Task &apos;%1&apos; execution cancelled</source>
        <translation>Tarefa “%1”: execução cancelada</translation>
    </message>
    <message>
        <source>Group &apos;%1&apos; created</source>
        <translation>Grupo “%1” criado</translation>
    </message>
    <message>
        <source>Group &apos;%1&apos; updated</source>
        <translation>Grupo “%1” alterado</translation>
    </message>
    <message>
        <source>Group &apos;%1&apos; deleted</source>
        <translation>Grupo “%1” excluído</translation>
    </message>
    <message>
        <source>Task &apos;%1&apos; created</source>
        <translation>Tarefa “%1” criada</translation>
    </message>
    <message>
        <source> (schedule: %1)</source>
        <translation> (agendamento: %1)</translation>
    </message>
    <message>
        <source>Task &apos;%1&apos; updated</source>
        <translation>Tarefa “%1” alterada</translation>
    </message>
    <message>
        <source>Task &apos;%1&apos; deleted</source>
        <translation>Tarefa “%1” excluída</translation>
    </message>
    <message>
        <source>Task &apos;%1&apos; enabled</source>
        <translation>Tarefa “%1” ativada</translation>
    </message>
    <message>
        <source>Task &apos;%1&apos; disabled</source>
        <translation>Tarefa “%1” desativada</translation>
    </message>
    <message>
        <source>%1 on &apos;%2&apos;</source>
        <translation>%1 em “%2”</translation>
    </message>
    <message>
        <source>Disconnected</source>
        <translation>Desconectado</translation>
    </message>
    <message>
        <source>Enable All Tasks</source>
        <translation>Ativar todas as tarefas</translation>
    </message>
    <message>
        <source>Disable All Tasks</source>
        <translation>Desativar todas as tarefas</translation>
    </message>
    <message>
        <source>Trigger All Tasks</source>
        <translation>Iniciar todas as tarefas</translation>
    </message>
    <message>
        <source>Delete All Tasks</source>
        <translation>Excluir todas as tarefas</translation>
    </message>
    <message>
        <source>Task Runs</source>
        <translation>Execuções da tarefa</translation>
    </message>
    <message>
        <source>Task runs view not yet implemented.</source>
        <translation>A exibição das execuções da tarefa ainda não está disponível.</translation>
    </message>
    <message>
        <source>Task Logs</source>
        <translation>Registros da tarefa</translation>
    </message>
    <message>
        <source>Task logs view not yet implemented.</source>
        <translation>A exibição dos registros da tarefa ainda não está disponível.</translation>
    </message>
    <message>
        <source>Export Logs</source>
        <translation>Exportar registros</translation>
    </message>
    <message>
        <source>Log export not yet implemented.</source>
        <translation>A exportação de registros ainda não está disponível.</translation>
    </message>
    <message>
        <source>Not Connected</source>
        <translation>Sem conexão</translation>
    </message>
    <message>
        <source>Cannot refresh audit log because not connected to the service.</source>
        <translation>Não é possível atualizar o registro de atividades porque não há conexão com o serviço.</translation>
    </message>
    <message>
        <source>No Selection</source>
        <translation>Nenhuma seleção</translation>
    </message>
    <message>
        <source>Please select a task to edit.</source>
        <translation>Selecione a tarefa que deseja editar.</translation>
    </message>
    <message>
        <source>Please select a task to delete.</source>
        <translation>Selecione a tarefa que deseja excluir.</translation>
    </message>
    <message>
        <source>Confirm Delete</source>
        <translation>Confirmar exclusão</translation>
    </message>
    <message>
        <source>Are you sure you want to delete task &apos;%1&apos;?</source>
        <translation>Tem certeza de que deseja excluir a tarefa “%1”?</translation>
    </message>
    <message>
        <source>Delete Error</source>
        <translation>Erro ao excluir</translation>
    </message>
    <message>
        <source>Failed to delete task.</source>
        <translation>Não foi possível excluir a tarefa.</translation>
    </message>
    <message>
        <source>Toggle Error</source>
        <translation>Erro ao alterar o status</translation>
    </message>
    <message>
        <source>Failed to toggle task status.</source>
        <translation>Não foi possível alterar o status da tarefa.</translation>
    </message>
    <message>
        <source>Please select a task to trigger.</source>
        <translation>Selecione a tarefa que deseja iniciar.</translation>
    </message>
    <message>
        <source>Trigger Error</source>
        <translation>Erro ao iniciar</translation>
    </message>
    <message>
        <source>Failed to trigger task.</source>
        <translation>Não foi possível iniciar a tarefa.</translation>
    </message>
    <message>
        <source>Please select a group to edit.</source>
        <translation>Selecione o grupo que deseja editar.</translation>
    </message>
    <message>
        <source>Cannot Edit</source>
        <translation>Não é possível editar</translation>
    </message>
    <message>
        <source>The &apos;Ungrouped&apos; group cannot be edited.</source>
        <translation>O grupo “Sem grupo” não pode ser editado.</translation>
    </message>
    <message>
        <source>Select Type</source>
        <translation>Selecionar tipo</translation>
    </message>
    <message>
        <source>Please select a specific task type from the filter before creating a group.</source>
        <translation>Selecione um tipo de tarefa específico no filtro antes de criar um grupo.</translation>
    </message>
    <message>
        <source>Please select a group to delete.</source>
        <translation>Selecione o grupo que deseja excluir.</translation>
    </message>
    <message>
        <source>Cannot Delete</source>
        <translation>Não é possível excluir</translation>
    </message>
    <message>
        <source>The &apos;Ungrouped&apos; group cannot be deleted.</source>
        <translation>O grupo “Sem grupo” não pode ser excluído.</translation>
    </message>
    <message>
        <source>Are you sure you want to delete group &apos;%1&apos;?
Tasks in this group will be moved to &apos;Ungrouped&apos;.</source>
        <translation>Tem certeza de que deseja excluir o grupo “%1”?
As tarefas deste grupo serão movidas para “Sem grupo”.</translation>
    </message>
    <message>
        <source>Failed to delete group.</source>
        <translation>Não foi possível excluir o grupo.</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Erro</translation>
    </message>
    <message>
        <source>Failed to enable all tasks in group.</source>
        <translation>Não foi possível ativar todas as tarefas do grupo.</translation>
    </message>
    <message>
        <source>Failed to disable all tasks in group.</source>
        <translation>Não foi possível desativar todas as tarefas do grupo.</translation>
    </message>
    <message>
        <source>Failed to trigger all tasks in group.</source>
        <translation>Não foi possível iniciar todas as tarefas do grupo.</translation>
    </message>
    <message>
        <source>Are you sure you want to delete all tasks in this group?</source>
        <translation>Tem certeza de que deseja excluir todas as tarefas deste grupo?</translation>
    </message>
    <message>
        <source>Failed to delete all tasks in group.</source>
        <translation>Não foi possível excluir todas as tarefas do grupo.</translation>
    </message>
    <message>
        <source>Connecting to scheduler service...</source>
        <translation>Conectando ao serviço de agendamento...</translation>
    </message>
    <message>
        <source>Connecting to scheduler service (attempt %1 of %2)...</source>
        <translation>Conectando ao serviço de agendamento (tentativa %1 de %2)...</translation>
    </message>
    <message>
        <source>Unable to connect to the scheduler service because multiple manager instances are running. Please close the other scheduler managers first.</source>
        <translation>Não é possível conectar ao serviço de agendamento porque há várias instâncias do gerenciador em execução. Feche primeiro os outros gerenciadores de agendamento.</translation>
    </message>
    <message>
        <source>connected to deamon failed! (attempt %1 of %2) reason = </source>
        <translation>Falha ao conectar ao serviço de agendamento (tentativa %1 de %2). Motivo = </translation>
    </message>
    <message>
        <source>[WARN] Initial connection failed, attempting to start service...</source>
        <translation>[WARN] Falha na conexão inicial; tentando iniciar o serviço...</translation>
    </message>
    <message>
        <source>Scheduler service is installed but failed to start.

Please check system logs or reinstall the service.</source>
        <translation>O serviço de agendamento está instalado, mas não pôde ser iniciado.

Verifique os logs do sistema ou reinstale o serviço.</translation>
    </message>
    <message>
        <source>Scheduler service is not installed.

Please reinstall the service and restart the application.</source>
        <translation>O serviço de agendamento não está instalado.

Reinstale o serviço e reinicie o aplicativo.</translation>
    </message>
    <message>
        <source>Waiting for service to start...</source>
        <translation>Aguardando o início do serviço...</translation>
    </message>
    <message>
        <source>Reconnecting to scheduler service (attempt %1 of %2)...</source>
        <translation>Reconectando ao serviço de agendamento (tentativa %1 de %2)...</translation>
    </message>
    <message>
        <source>Unable to connect to scheduler service after multiple attempts.

Please ensure the service is running correctly and try again.</source>
        <translation>Não foi possível conectar ao serviço de agendamento após várias tentativas.

Verifique se o serviço está funcionando corretamente e tente novamente.</translation>
    </message>
    <message>
        <source>No Tasks Found</source>
        <translation>Nenhuma tarefa encontrada</translation>
    </message>
    <message>
        <source>No scheduled tasks were found.

Would you like to create one now?</source>
        <translation>Nenhuma tarefa agendada foi encontrada.

Deseja criar uma agora?</translation>
    </message>
    <message>
        <source>[WARN] Connection lost, attempting to reconnect...</source>
        <translation>[WARN] Conexão perdida; tentando reconectar...</translation>
    </message>
    <message>
        <source>[INFO] Reconnection attempt %1 of %2...</source>
        <translation>[INFO] Tentativa de reconexão %1 de %2...</translation>
    </message>
    <message>
        <source>Reconnecting (%1/%2)...</source>
        <translation>Reconectando (%1/%2)...</translation>
    </message>
    <message>
        <source>Connection lost. Reconnecting...
Attempt %1 of %2</source>
        <translation>Conexão perdida. Reconectando...
Tentativa %1 de %2</translation>
    </message>
    <message>
        <source>Connection to scheduler service was lost and could not be restored.

The application will now close.</source>
        <translation>A conexão com o serviço de agendamento foi perdida e não pôde ser restabelecida.

O aplicativo será fechado agora.</translation>
    </message>
    <message>
        <source>Service Error</source>
        <translation>Erro do serviço</translation>
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
        <translation>Conexão perdida</translation>
    </message>
    <message>
        <source>Connection lost. Reconnecting to scheduler service...</source>
        <translation>Conexão perdida. Reconectando ao serviço de agendamento...</translation>
    </message>
    <message>
        <source>Connected</source>
        <translation>Conectado</translation>
    </message>
    <message>
        <source>Failed to move task to group &apos;%1&apos;.</source>
        <translation>Não foi possível mover a tarefa para o grupo “%1”.</translation>
    </message>
    <message>
        <source>Failed to move %1 tasks to group &apos;%2&apos;.</source>
        <translation>Não foi possível mover %1 tarefas para o grupo “%2”.</translation>
    </message>
    <message>
        <source>Failed to move task to group.</source>
        <translation>Não foi possível mover a tarefa para o grupo.</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>Tasks: %1</source>
        <translation>Tarefas: %1</translation>
    </message>
    <message>
        <source> (in %1)</source>
        <translation> (em %1)</translation>
    </message>
    <message>
        <source>Success</source>
        <translation>Êxito</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Falha</translation>
    </message>
    <message>
        <source>Timeout</source>
        <translation>Tempo esgotado</translation>
    </message>
    <message>
        <source>Running</source>
        <translation>Em execução</translation>
    </message>
    <message>
        <source>Pending</source>
        <translation>Pendente</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>Desativada</translation>
    </message>
    <message>
        <source>Not scheduled</source>
        <translation>Não agendada</translation>
    </message>
    <message>
        <source>Overdue</source>
        <translation>Atrasada</translation>
    </message>
    <message>
        <source>%1s left</source>
        <translation>Em %1 s</translation>
    </message>
    <message>
        <source>%1m %2s left</source>
        <translation>Em %1 min %2 s</translation>
    </message>
    <message>
        <source>%1d %2h left</source>
        <translation>Em %1 d %2 h</translation>
    </message>
    <message>
        <source>%1h %2m left</source>
        <translation>Em %1 h %2 min</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Ativada</translation>
    </message>
</context>
<context>
    <name>Scheduler::MCsTaskDialog</name>
    <message>
        <source>Failed to load task.</source>
        <translation>Não foi possível carregar a tarefa.</translation>
    </message>
    <message>
        <source>Test Task</source>
        <translation>Tarefa de teste</translation>
    </message>
    <message>
        <source>Screen Recorder</source>
        <translation>Gravar tela</translation>
    </message>
    <message>
        <source>Audio Recorder</source>
        <translation>Gravar áudio</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>Personalizado</translation>
    </message>
    <message>
        <source>Create Task</source>
        <translation>Criar tarefa</translation>
    </message>
    <message>
        <source>Edit Task</source>
        <translation>Editar tarefa</translation>
    </message>
    <message>
        <source>ON</source>
        <translation>Ativada</translation>
    </message>
    <message>
        <source>OFF</source>
        <translation>Desativada</translation>
    </message>
    <message>
        <source>Select Program</source>
        <translation>Selecionar programa</translation>
    </message>
    <message>
        <source>Executable Files (*.exe);;All Files (*.*)</source>
        <translation>Arquivos executáveis (*.exe);;Todos os arquivos (*.*)</translation>
    </message>
    <message>
        <source>Select Program to Monitor</source>
        <translation>Selecionar programa para monitorar</translation>
    </message>
    <message>
        <source>Select Folder to Monitor</source>
        <translation>Selecionar pasta para monitorar</translation>
    </message>
    <message>
        <source>Select Output Folder</source>
        <translation>Selecionar pasta de saída</translation>
    </message>
    <message>
        <source>File Name Pattern Help</source>
        <translation>Ajuda do padrão de nome de arquivo</translation>
    </message>
    <message>
        <source>Available format variables:

[YYYY-MM-DD] - Date (e.g., 2024-03-15)
[hh-mm-ss] - Time (e.g., 14-30-45)
[TaskName] - Task name
[Counter] - Auto-incrementing counter

Example: [YYYY-MM-DD][hh-mm-ss]_[TaskName]
Result: 2024-03-15_14-30-45_MyTask.mp4</source>
        <translation>Variáveis de formato disponíveis:

[YYYY-MM-DD] - Data (ex.: 2024-03-15)
[hh-mm-ss] - Hora (ex.: 14-30-45)
[TaskName] - Nome da tarefa
[Counter] - Contador com incremento automático

Exemplo: [YYYY-MM-DD][hh-mm-ss]_[TaskName]
Resultado: 2024-03-15_14-30-45_MinhaTarefa.mp4</translation>
    </message>
    <message>
        <source>Ungrouped</source>
        <translation>Sem grupo</translation>
    </message>
    <message>
        <source>Critical Error!</source>
        <translation>Erro crítico</translation>
    </message>
    <message>
        <source>Task type mismatch!</source>
        <translation>O tipo de tarefa não corresponde.</translation>
    </message>
    <message>
        <source>Task type not accepted!</source>
        <translation>O tipo de tarefa não é aceito.</translation>
    </message>
    <message>
        <source>📋 Basic Info</source>
        <translation>📋 Dados básicos</translation>
    </message>
    <message>
        <source>⚙️ Program Parameters</source>
        <translation>⚙️ Parâmetros</translation>
    </message>
    <message>
        <source>💾 Output</source>
        <translation>💾 Saída</translation>
    </message>
    <message>
        <source>🚀 Before Start</source>
        <translation>🚀 Antes do início</translation>
    </message>
    <message>
        <source>⏰ Start Target Program</source>
        <translation>⏰ Início do programa</translation>
    </message>
    <message>
        <source>⏹️ Auto Stop</source>
        <translation>⏹️ Parada automática</translation>
    </message>
    <message>
        <source>🏁 After Stop</source>
        <translation>🏁 Após a parada</translation>
    </message>
    <message>
        <source>🖥️ Display</source>
        <translation>🖥️ Exibição</translation>
    </message>
    <message>
        <source>Connection Error</source>
        <translation>Erro de conexão</translation>
    </message>
    <message>
        <source>Not connected to daemon. Please connect first.</source>
        <translation>Não há conexão com o serviço de agendamento. Conecte-se primeiro.</translation>
    </message>
    <message>
        <source>Success</source>
        <translation>Êxito</translation>
    </message>
    <message>
        <source>Task created successfully.</source>
        <translation>A tarefa foi criada com êxito.</translation>
    </message>
    <message>
        <source>Task updated successfully.</source>
        <translation>A tarefa foi alterada com êxito.</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Erro</translation>
    </message>
    <message>
        <source>Failed to save task. reason : </source>
        <translation>Não foi possível salvar a tarefa. Motivo: </translation>
    </message>
    <message>
        <source>Task name is required.</source>
        <translation>O nome da tarefa é obrigatório.</translation>
    </message>
    <message>
        <source>Program name is required.</source>
        <translation>O nome do programa é obrigatório.</translation>
    </message>
    <message>
        <source>Target program is required.</source>
        <translation>O programa de destino é obrigatório.</translation>
    </message>
    <message>
        <source>Task type is required.</source>
        <translation>O tipo de tarefa é obrigatório.</translation>
    </message>
    <message>
        <source>Specified date/time must be in the future.</source>
        <translation>A data e a hora devem estar no futuro.</translation>
    </message>
    <message>
        <source>At least one weekday must be selected for EveryWeek mode.</source>
        <translation>Selecione pelo menos um dia da semana para o modo “Semanalmente”.</translation>
    </message>
    <message>
        <source>Monitor program is required for monitorApp mode.</source>
        <translation>O programa monitorado é obrigatório no modo “Monitorar aplicativo”.</translation>
    </message>
    <message>
        <source>Monitor folder path is required for monitorFolder mode.</source>
        <translation>O caminho da pasta monitorada é obrigatório no modo “Monitorar pasta”.</translation>
    </message>
    <message>
        <source>File extensions are required for monitorFolder mode.</source>
        <translation>As extensões de arquivo são obrigatórias no modo “Monitorar pasta”.</translation>
    </message>
    <message>
        <source>Stop time must be in the future.</source>
        <translation>O horário de parada deve estar no futuro.</translation>
    </message>
    <message>
        <source>Validation Error</source>
        <translation>Erro de validação</translation>
    </message>
</context>
<context>
    <name>Scheduler::MCsTaskTableWidget</name>
    <message numerus="yes">
        <source>%n task(s)</source>
        <translation>
            <numerusform>%n tarefa</numerusform>
            <numerusform>%n tarefas</numerusform>
        </translation>
    </message>
</context>
</TS>
