<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt_BR" sourcelanguage="en">
<!-- Code adds the colon or the ellipsis that a title stands before; texts have none, but for scheduleTitle. -->
<context>
    <name></name>
    <!-- Days -->
    <message id="todayTitle">
        <source></source>
        <translation>Hoje</translation>
    </message>
    <message id="tomorrowTitle">
        <source></source>
        <translation>Amanhã</translation>
    </message>
    <message id="yesterdayTitle">
        <source></source>
        <translation>Ontem</translation>
    </message>
    <!-- What Time Machine is doing -->
    <message id="notAvailableAbbreviation">
        <source></source>
        <translation>N/D</translation>
    </message>
    <message id="tmPhaseDefault">
        <source></source>
        <translation>Inativo</translation>
    </message>
    <message id="tmPhaseUnknown">
        <source></source>
        <translation>Desconhecido</translation>
    </message>
    <message id="tmPhaseStarting">
        <source></source>
        <translation>Iniciando</translation>
    </message>
    <message id="tmPhaseLookingForDisk">
        <source></source>
        <translation>Procurando o Disco de Backup</translation>
    </message>
    <message id="tmPhaseConnectingToDisk">
        <source></source>
        <translation>Conectando ao Disco de Backup</translation>
    </message>
    <message id="tmPhasePreparingBackup">
        <source></source>
        <translation>Preparando o Backup</translation>
    </message>
    <message id="tmPhaseCopying">
        <source></source>
        <translation>Copiando</translation>
    </message>
    <message id="tmPhaseCleaningUp">
        <source></source>
        <translation>Fazendo Limpeza</translation>
    </message>
    <message id="tmPhaseHealthCheck">
        <source></source>
        <translation>Verificando o Backup</translation>
    </message>
    <message id="tmPhaseFinishing">
        <source></source>
        <translation>Finalizando</translation>
    </message>
    <!-- Alerts -->
    <message id="AlertButtonClose">
        <source></source>
        <translation>Fechar</translation>
    </message>
    <message id="AlertButtonProvidePermission">
        <source></source>
        <translation>Dar Permissão</translation>
    </message>
    <message id="permissionRequiredAlertTitle">
        <source></source>
        <translation>Permissão Necessária</translation>
    </message>
    <message id="timeMachinePermissionRequiredAlertMessage">
        <source></source>
        <translation>Para abrir as preferências do Time Machine, clique em “%1” e permita que o %2 controle as Preferências do Sistema. Depois, tente novamente.</translation>
    </message>
    <!-- Menu bar title -->
    <message id="nextBackupShortTitle">
        <source></source>
        <translation>Próximo</translation>
    </message>
    <message id="retryBackupShortTitle">
        <source></source>
        <translation>Repetir</translation>
    </message>
    <message id="statusStarting">
        <source></source>
        <translation>Iniciando</translation>
    </message>
    <message id="statusRunning">
        <source></source>
        <translation>Executando</translation>
    </message>
    <message id="statusStopping">
        <source></source>
        <translation>Parando</translation>
    </message>
    <!-- What the icon stands for -->
    <message id="iconRunningDescription">
        <source></source>
        <translation>Há um backup em andamento.</translation>
    </message>
    <message id="iconFailedDescription">
        <source></source>
        <translation>O último backup falhou.</translation>
    </message>
    <message id="iconMissedDescription">
        <source></source>
        <translation>Um backup programado não foi realizado.</translation>
    </message>
    <message id="iconUpdateDescription">
        <source></source>
        <translation>Há uma atualização disponível.</translation>
    </message>
    <!-- Why sleep waits for a moment -->
    <message id="sleepWaitsMessage">
        <source></source>
        <translation>A programação dos backups está sendo interrompida.</translation>
    </message>
    <!-- Menu -->
    <message id="latestBackupTitle">
        <source></source>
        <translation>Último Backup</translation>
    </message>
    <message id="phaseTitle">
        <source></source>
        <translation>Fase</translation>
    </message>
    <message id="copiedWord">
        <source></source>
        <translation>copiados</translation>
    </message>
    <message id="backupDiskTitle">
        <source></source>
        <translation>Disco de Backup</translation>
    </message>
    <message id="nextBackupTitle">
        <source></source>
        <translation>Próximo Backup</translation>
    </message>
    <message id="nextBackupDisabled">
        <source></source>
        <translation>Desativado</translation>
    </message>
    <message id="nextBackupNotAvailable">
        <source></source>
        <translation>Nenhum backup programado</translation>
    </message>
    <message id="retryAttemptTitle">
        <source></source>
        <translation>Nova Tentativa</translation>
    </message>
    <message id="remainingTimeTitle">
        <source></source>
        <translation>Tempo Restante</translation>
    </message>
    <message id="calculatingTitle">
        <source></source>
        <translation>Calculando</translation>
    </message>
    <message id="backupNowTitle">
        <source></source>
        <translation>Fazer Backup Agora</translation>
    </message>
    <message id="skipThisBackupTitle">
        <source></source>
        <translation>Ignorar Este Backup</translation>
    </message>
    <message id="skipThisBackupTitleVentura">
        <source></source>
        <translation>Ignorar Este Backup</translation>
    </message>
    <message id="skipRetryAttemptTitle">
        <source></source>
        <translation>Ignorar Nova Tentativa</translation>
    </message>
    <message id="enterTimeMachineTitle">
        <source></source>
        <translation>Entrar no Time Machine</translation>
    </message>
    <message id="enterTimeMachineTitleVentura">
        <source></source>
        <translation>Explorar Backups do Time Machine</translation>
    </message>
    <message id="openSystemPreferencesTitle">
        <source></source>
        <translation>Abrir Preferências do Time Machine</translation>
    </message>
    <message id="openSystemPreferencesTitleVentura">
        <source></source>
        <translation>Abrir Ajustes do Time Machine</translation>
    </message>
    <message id="updateAvailableMenuTitle">
        <source></source>
        <translation>Atualização Disponível</translation>
    </message>
    <message id="preferencesMenuTitle">
        <source></source>
        <translation>Ajustes</translation>
    </message>
    <message id="aboutMenuTitle">
        <source></source>
        <translation>Sobre o Quillon</translation>
    </message>
    <message id="quitApplicationTitle">
        <source></source>
        <translation>Encerrar %1</translation>
    </message>
    <!-- Pause -->
    <message id="pauseScheduleForTitle">
        <source></source>
        <translation>Pausar Programação por</translation>
    </message>
    <message id="pauseScheduleUntilTitle">
        <source></source>
        <translation>Programação Pausada até</translation>
    </message>
    <message id="resumeScheduleTitle">
        <source></source>
        <translation>Retomar Programação</translation>
    </message>
    <message id="oneHourTitle">
        <source></source>
        <translation>1 Hora</translation>
    </message>
    <message id="twoHoursTitle">
        <source></source>
        <translation>2 Horas</translation>
    </message>
    <message id="fourHoursTitle">
        <source></source>
        <translation>4 Horas</translation>
    </message>
    <message id="eightHoursTitle">
        <source></source>
        <translation>8 Horas</translation>
    </message>
    <message id="twelveHoursTitle">
        <source></source>
        <translation>12 Horas</translation>
    </message>
    <message id="oneDayTitle">
        <source></source>
        <translation>1 Dia</translation>
    </message>
    <message id="twoDaysTitle">
        <source></source>
        <translation>2 Dias</translation>
    </message>
    <message id="threeDaysTitle">
        <source></source>
        <translation>3 Dias</translation>
    </message>
    <message id="fourDaysTitle">
        <source></source>
        <translation>4 Dias</translation>
    </message>
    <message id="fiveDaysTitle">
        <source></source>
        <translation>5 Dias</translation>
    </message>
    <message id="sixDaysTitle">
        <source></source>
        <translation>6 Dias</translation>
    </message>
    <message id="oneWeekTitle">
        <source></source>
        <translation>1 Semana</translation>
    </message>
    <message id="twoWeeksTitle">
        <source></source>
        <translation>2 Semanas</translation>
    </message>
    <message id="threeWeeksTitle">
        <source></source>
        <translation>3 Semanas</translation>
    </message>
    <message id="fourWeeksTitle">
        <source></source>
        <translation>4 Semanas</translation>
    </message>
    <!-- The menu as it opens -->
    <message id="letMacOsDecideBackupDiskTitle">
        <source></source>
        <translation>Deixar o Time Machine Escolher</translation>
    </message>
    <message id="mostRecentTitle">
        <source></source>
        <translation>mais recente</translation>
    </message>
    <message id="latestBackupOfEachDestinationTitle">
        <source></source>
        <translation>Último Backup de Cada Disco</translation>
    </message>
    <message id="allBackupInfoHelpMessage">
        <source></source>
        <translation>Esta lista mostra, para cada disco de backup, o último backup que o Quillon viu ser concluído. Em um disco sem data, nenhum backup foi concluído desde a instalação do Quillon.</translation>
    </message>
    <message id="helpButtonTitle">
        <source></source>
        <translation>Ajuda</translation>
    </message>
    <!-- What the commands tell -->
    <message id="AlertTitleWarning">
        <source></source>
        <translation>Aviso</translation>
    </message>
    <message id="failedToStartBackupMessage">
        <source></source>
        <translation>Não foi possível iniciar o backup. O Time Machine respondeu com o código de erro %1.</translation>
    </message>
    <message id="startDiskAwayMessage">
        <source></source>
        <translation>O disco de backup não está conectado, ou não é possível acessar o servidor dos backups.</translation>
    </message>
    <message id="startResticMissingMessage">
        <source></source>
        <translation>O programa restic, que faz os backups, não está instalado.</translation>
    </message>
    <message id="appUpdateAvailableAlertTitle">
        <source></source>
        <translation>O Quillon %1 está disponível</translation>
    </message>
    <message id="appUpdateAvailableAlertMessage">
        <source></source>
        <translation>Você tem a versão %1. A página de download será aberta no navegador e o Quillon será encerrado para que possa ser substituído.</translation>
    </message>
    <message id="AlertButtonGetUpdate">
        <source></source>
        <translation>Obter Atualização</translation>
    </message>
    <message id="AlertButtonCancel">
        <source></source>
        <translation>Cancelar</translation>
    </message>
    <!-- The user’s own programs -->
    <message id="hookStoppedBackupMessage">
        <source></source>
        <translation>O programa “before” impediu o início do backup.</translation>
    </message>
    <message id="hookNotRunMessage">
        <source></source>
        <translation>“%1” não foi executado. É preciso que seja um arquivo executável que só você possa alterar, em uma pasta que só você possa alterar.</translation>
    </message>
    <message id="hookTooLongMessage">
        <source></source>
        <translation>“%1” foi encerrado após dez minutos.</translation>
    </message>
    <message id="hookStatusMessage">
        <source></source>
        <translation>“%1” terminou com o status de saída %2.</translation>
    </message>
    <!-- Notifications of the desktop -->
    <message id="backupFailedTitle">
        <source></source>
        <translation>Falha no Backup</translation>
    </message>
    <message id="backupFailedMessage">
        <source></source>
        <translation>O último backup terminou antes de ser concluído.</translation>
    </message>
    <message id="noBackupForDaysTitle">
        <source></source>
        <translation>Nenhum Backup Recente</translation>
    </message>
    <message id="noBackupForDaysMessage">
        <source></source>
        <translation>O último backup foi concluído em %1.</translation>
    </message>
    <message id="noBackupYetMessage">
        <source></source>
        <translation>Nenhum backup foi concluído ainda.</translation>
    </message>
    <message id="startWithoutRunTitle">
        <source></source>
        <translation>O Backup Não Começou</translation>
    </message>
    <message id="startWithoutRunMessage">
        <source></source>
        <translation>O Time Machine aceitou iniciar um backup, mas não há nenhum em andamento.</translation>
    </message>
    <message id="noProgressTitle">
        <source></source>
        <translation>O Backup Não Avança</translation>
    </message>
    <message id="noProgressMessage">
        <source></source>
        <translation>O backup em andamento não avança há meia hora.</translation>
    </message>
    <message id="damageFoundTitle">
        <source></source>
        <translation>Os Backups Estão Danificados</translation>
    </message>
    <message id="damageFoundMessage">
        <source></source>
        <translation>O Time Machine encontrou danos nos seus backups. Talvez alguns arquivos não possam ser restaurados.</translation>
    </message>
    <message id="startAheadTitle">
        <source></source>
        <translation>O Backup Começará em Breve</translation>
    </message>
    <message id="startAheadMessage">
        <source></source>
        <translation>Próximo backup: %1.</translation>
    </message>
    <message id="startAheadSkipTitle">
        <source></source>
        <translation>Ignorar</translation>
    </message>
    <message id="startAheadPostponeTitle">
        <source></source>
        <translation>Em Uma Hora</translation>
    </message>
    <!-- Where there is no Time Machine application -->
    <!-- The schedule in the settings panel -->
    <message id="settingsGroupSchedule">
        <source></source>
        <translation>Backups Programados</translation>
    </message>
    <message id="settingsEnableScheduledBackupsVia">
        <source></source>
        <translation>Programar backups por</translation>
    </message>
    <message id="settingsOptionCalendarInterval">
        <source></source>
        <translation>dia e hora</translation>
    </message>
    <message id="settingsOptionInterval">
        <source></source>
        <translation>intervalo</translation>
    </message>
    <message id="scheduleTitle">
        <source></source>
        <translation>Programação:</translation>
    </message>
    <message id="warningButtonTitle">
        <source></source>
        <translation>Aviso sobre backups automáticos</translation>
    </message>
    <message id="setupDisksButtonTitle">
        <source></source>
        <translation>Sobre os discos de backup</translation>
    </message>
    <message id="addRuleTitle">
        <source></source>
        <translation>Adicionar Regra</translation>
    </message>
    <message id="deleteRuleTitle">
        <source></source>
        <translation>Apagar Regra</translation>
    </message>
    <!-- A rule as one sentence: back up, day, at, time of day -->
    <message id="backupTitle">
        <source></source>
        <translation>Fazer backup</translation>
    </message>
    <message id="everyDayTitle">
        <source></source>
        <translation>todos os dias</translation>
    </message>
    <message id="weekdaysTitle">
        <source></source>
        <translation>de segunda a sexta-feira</translation>
    </message>
    <message id="mondayTitle">
        <source></source>
        <translation>toda segunda-feira</translation>
    </message>
    <message id="tuesdayTitle">
        <source></source>
        <translation>toda terça-feira</translation>
    </message>
    <message id="wednesdayTitle">
        <source></source>
        <translation>toda quarta-feira</translation>
    </message>
    <message id="thursdayTitle">
        <source></source>
        <translation>toda quinta-feira</translation>
    </message>
    <message id="fridayTitle">
        <source></source>
        <translation>toda sexta-feira</translation>
    </message>
    <message id="saturdayTitle">
        <source></source>
        <translation>todo sábado</translation>
    </message>
    <message id="sundayTitle">
        <source></source>
        <translation>todo domingo</translation>
    </message>
    <message id="atTimeTitle">
        <source></source>
        <translation>às</translation>
    </message>
    <!-- The interval page; the unit stands behind any number from 1 on -->
    <message id="settingsIntervalEvery">
        <source></source>
        <translation>Fazer backup a cada</translation>
    </message>
    <message id="settingsIntervalHours">
        <source></source>
        <translation>horas</translation>
    </message>
    <message id="settingsIntervalHour">
        <source></source>
        <translation>hora</translation>
    </message>
    <message id="settingsIntervalNotYetUsed">
        <source></source>
        <translation>O intervalo ainda não é usado: os backups começam nos dias e horários das regras.</translation>
    </message>
    <!-- The other groups of the settings panel -->
    <message id="settingsGroupRetry">
        <source></source>
        <translation>Nova Tentativa</translation>
    </message>
    <message id="settingsEnableAfterMissedBackup">
        <source></source>
        <translation>Tentar novamente após um backup não realizado</translation>
    </message>
    <message id="settingsEnableAfterFailedBackup">
        <source></source>
        <translation>Tentar novamente após uma falha no backup</translation>
    </message>
    <message id="settingsGroupMenuBar">
        <source></source>
        <translation>Barra de Menus</translation>
    </message>
    <message id="settingsShowDetailedTimeInMenuBar">
        <source></source>
        <translation>Mostrar tempos detalhados</translation>
    </message>
    <message id="settingsShowDetailedTimeInMenuBarDetails">
        <source></source>
        <translation>Por exemplo, “1 h 30 min” em vez de “1 h”.</translation>
    </message>
    <message id="settingsShowMenuBarIconOnly">
        <source></source>
        <translation>Mostrar apenas o ícone</translation>
    </message>
    <message id="settingsDisableIconColors">
        <source></source>
        <translation>Colorir o ícone quando ele precisar da sua atenção</translation>
    </message>
    <message id="settingsGroupDisks">
        <source></source>
        <translation>Discos e Início de Sessão</translation>
    </message>
    <message id="settingsRotateBackupDisks">
        <source></source>
        <translation>Alternar entre os discos de backup</translation>
    </message>
    <message id="settingsStartOnSystemStart">
        <source></source>
        <translation>Abrir o Quillon ao iniciar a sessão</translation>
    </message>
    <message id="loginItemRefusedMessage">
        <source></source>
        <translation>O sistema não aceitou a alteração: o que abre ao iniciar a sessão continua como estava.</translation>
    </message>
    <!-- The second page of the settings panel; a number stands behind what is not a sentence -->
    <message id="settingsMoreTitle">
        <source></source>
        <translation>Mais</translation>
    </message>
    <message id="settingsBackTitle">
        <source></source>
        <translation>Voltar</translation>
    </message>
    <message id="settingsGroupPower">
        <source></source>
        <translation>Energia</translation>
    </message>
    <message id="settingsOnlyOnMainsPower">
        <source></source>
        <translation>Iniciar backups apenas na tomada</translation>
    </message>
    <message id="settingsChargeThatSuffices">
        <source></source>
        <translation>Ou com carga acima de</translation>
    </message>
    <message id="settingsPerCent">
        <source></source>
        <translation>%1%</translation>
    </message>
    <message id="settingsStayAwake">
        <source></source>
        <translation>Impedir o repouso durante os backups do Quillon</translation>
    </message>
    <message id="settingsStartWhenDiskAppears">
        <source></source>
        <translation>Tentar novamente quando o disco de backup aparecer</translation>
    </message>
    <message id="settingsMinutesAfterWake">
        <source></source>
        <translation>Após despertar, aguardar</translation>
    </message>
    <message id="settingsMinutes">
        <source></source>
        <translation>%1 min</translation>
    </message>
    <message id="settingsGroupNotifications">
        <source></source>
        <translation>Notificações</translation>
    </message>
    <message id="settingsDaysWithoutBackup">
        <source></source>
        <translation>Nenhum backup concluído há</translation>
    </message>
    <message id="settingsDays">
        <source></source>
        <translation>%1 dias</translation>
    </message>
    <message id="settingsDay">
        <source></source>
        <translation>%1 dia</translation>
    </message>
    <message id="settingsTellBeforeStart">
        <source></source>
        <translation>Um minuto antes do início de um backup</translation>
    </message>
    <!-- Alerts of the settings panel -->
    <message id="maximumRulesReachedTitle">
        <source></source>
        <translation>Não É Possível Adicionar Mais Regras</translation>
    </message>
    <message id="maximumRulesReachedMessage">
        <source></source>
        <translation>Uma programação tem no máximo %1 regras. Em vez disso, altere ou apague uma delas.</translation>
    </message>
    <message id="confirmDeleteRuleTitle">
        <source></source>
        <translation>Apagar Esta Regra?</translation>
    </message>
    <message id="confirmDeleteRuleMessage">
        <source></source>
        <translation>A regra é apagada, e o Quillon deixa de iniciar backups no horário dela.</translation>
    </message>
    <message id="retryAfterMissedBackupTitle">
        <source></source>
        <translation>Nova Tentativa Após um Backup Não Realizado</translation>
    </message>
    <message id="retryAfterMissedBackupMessage">
        <source></source>
        <translation>Se o computador estiver em repouso no horário de um backup programado, o backup começará cerca de cinco minutos depois que o computador despertar. Enquanto a programação estiver pausada, não haverá novas tentativas.</translation>
    </message>
    <message id="retryAfterFailedBackupTitle">
        <source></source>
        <translation>Nova Tentativa Após uma Falha no Backup</translation>
    </message>
    <message id="retryAfterFailedBackupMessage">
        <source></source>
        <translation>Se um backup terminar antes de ser concluído, o Quillon tentará novamente cerca de cinco minutos depois. Não há novas tentativas para os backups que você mesmo interrompe nem enquanto a programação estiver pausada.</translation>
    </message>
    <message id="AlertButtonOk">
        <source></source>
        <translation>OK</translation>
    </message>
    <message id="AlertButtonDelete">
        <source></source>
        <translation>Apagar</translation>
    </message>
    <!-- The first launch; the instruction is also the text of the settings panel's warning -->
    <message id="firstStartInfoAlertTitle">
        <source></source>
        <translation>Boas-vindas ao %1</translation>
    </message>
    <message id="firstStartInfoAlertMessage">
        <source></source>
        <translation>O %2 está na barra de menus. Ele inicia seus backups nos horários que você escolher nos ajustes.

%1</translation>
    </message>
    <message id="disableTmInstruction">
        <source></source>
        <translation>Se o Time Machine também fizer backups automáticos, desative-os para que os backups comecem somente quando você os tiver programado. No Mac, abra as Preferências do Sistema, clique em Time Machine e desmarque o backup automático.</translation>
    </message>
    <message id="disableTmInstructionVentura">
        <source></source>
        <translation>Se o Time Machine também fizer backups automáticos, desative-os para que os backups comecem somente quando você os tiver programado. No Mac, abra os Ajustes do Sistema, escolha Geral &gt; Time Machine &gt; Opções e defina a frequência dos backups como “Manualmente”.</translation>
    </message>
    <message id="setupDisksMessage">
        <source></source>
        <translation>Os backups são feitos em:
%1

Os discos de backup são adicionados e removidos nos Ajustes do Time Machine.</translation>
    </message>
    <message id="setupNoDiskMessage">
        <source></source>
        <translation>Ainda não há um disco de backup configurado, e sem ele nenhum backup pode começar. Adicione um nos Ajustes do Time Machine.</translation>
    </message>
    <message id="setupUnknownDisksMessage">
        <source></source>
        <translation>Os discos de backup são escolhidos nos Ajustes do Time Machine.</translation>
    </message>
    <message id="AlertButtonHelp">
        <source></source>
        <translation>Ajuda</translation>
    </message>
    <!-- The about panel -->
    <message id="versionTitle">
        <source></source>
        <translation>Versão</translation>
    </message>
    <message id="copyrightTitle">
        <source></source>
        <translation>© %1 os autores do Quillon</translation>
    </message>
    <message id="supportDetailsMessage">
        <source></source>
        <translation>Dúvidas, ideias ou algo que não funciona? Escreva para nós.</translation>
    </message>
    <message id="websiteButtonTitle">
        <source></source>
        <translation>Site</translation>
    </message>
    <message id="creditsTitle">
        <source></source>
        <translation>O Quillon é feito com Qt, ICU e libplist. No Linux, o restic faz os backups.</translation>
    </message>
    <message id="appIconCreditsTitle">
        <source></source>
        <translation>Ícone de %1</translation>
    </message>
    <message id="privacyPolicyDetailsMessage">
        <source></source>
        <translation>O Quillon não envia nada sobre você nem sobre os seus arquivos.</translation>
    </message>
    <message id="termsButtonTitle">
        <source></source>
        <translation>Termos de Uso</translation>
    </message>
    <message id="privacyPolicyAlertTitle">
        <source></source>
        <translation>Política de Privacidade</translation>
    </message>
    <message id="privacyPolicyAlertMessage">
        <source></source>
        <translation>O %1 mantém os seus ajustes e o registro dos backups neste computador. Para saber de novas versões, o %1 consulta um serviço do fabricante; a solicitação identifica o %1, não você. A política de privacidade completa do %1 está no site.</translation>
    </message>
    <message id="AlertButtonReadMore">
        <source></source>
        <translation>Ler Mais</translation>
    </message>
    <message id="AlertMessageMailNotConfigured">
        <source></source>
        <translation>Não foi possível abrir um app de e-mail. Escreva para %1.</translation>
    </message>
    <!-- Window of the Time Machine settings on Linux -->
    <message id="disksWindowTitle">
        <source></source>
        <translation>Time Machine</translation>
    </message>
    <message id="disksDisksTitle">
        <source></source>
        <translation>Discos de Backup</translation>
    </message>
    <message id="disksSourcesTitle">
        <source></source>
        <translation>Pastas</translation>
    </message>
    <message id="disksExclusionsTitle">
        <source></source>
        <translation>Exclusões</translation>
    </message>
    <message id="disksDisksExplanation">
        <source></source>
        <translation>Os backups são feitos nestes discos e locais de rede. Os backups são criptografados; o restante do disco permanece como está. As chaves ficam na sua pasta pessoal.</translation>
    </message>
    <message id="disksSourcesExplanation">
        <source></source>
        <translation>O backup destas pastas é feito com tudo o que há nelas.</translation>
    </message>
    <message id="disksExclusionsExplanation">
        <source></source>
        <translation>Estes arquivos e pastas ficam fora de todos os backups.</translation>
    </message>
    <message id="disksNoDisks">
        <source></source>
        <translation>Ainda não há um disco de backup. Para começar, adicione um disco, uma pasta em um disco ou um local de rede.</translation>
    </message>
    <message id="disksNoExclusions">
        <source></source>
        <translation>Nada foi excluído. Adicione o que não precisa de backup, como downloads que podem ser feitos novamente.</translation>
    </message>
    <message id="disksReading">
        <source></source>
        <translation>Lendo os ajustes…</translation>
    </message>
    <message id="disksConnected">
        <source></source>
        <translation>Conectado</translation>
    </message>
    <message id="disksNotConnected">
        <source></source>
        <translation>Não conectado</translation>
    </message>
    <message id="disksLastBackup">
        <source></source>
        <translation>Último backup: %1</translation>
    </message>
    <message id="disksNoBackupYet">
        <source></source>
        <translation>Ainda sem backup</translation>
    </message>
    <message id="disksAddDiskTitle">
        <source></source>
        <translation>Adicionar Disco</translation>
    </message>
    <message id="disksAddFolderTitle">
        <source></source>
        <translation>Adicionar Pasta</translation>
    </message>
    <message id="disksAddFileTitle">
        <source></source>
        <translation>Adicionar Arquivo</translation>
    </message>
    <message id="disksRemoveTitle">
        <source></source>
        <translation>Remover</translation>
    </message>
    <message id="disksCancelTitle">
        <source></source>
        <translation>Cancelar</translation>
    </message>
    <message id="disksOkTitle">
        <source></source>
        <translation>OK</translation>
    </message>
    <message id="disksTryAgainTitle">
        <source></source>
        <translation>Tentar Novamente</translation>
    </message>
    <message id="disksFree">
        <source></source>
        <translation>%1 (%2 livres)</translation>
    </message>
    <message id="disksNoOtherDisk">
        <source></source>
        <translation>Nenhum outro disco está conectado</translation>
    </message>
    <message id="disksAddFailed">
        <source></source>
        <translation>Não foi possível adicionar “%1”.</translation>
    </message>
    <message id="disksRemoveFailed">
        <source></source>
        <translation>Não foi possível remover “%1”.</translation>
    </message>
    <message id="disksRemoveAlertMessage">
        <source></source>
        <translation>Parar de fazer backup em “%1”?</translation>
    </message>
    <message id="disksRemoveAlertInformative">
        <source></source>
        <translation>Os backups nele são mantidos, assim como a chave. Para continuá-los, adicione a mesma pasta novamente.</translation>
    </message>
    <message id="disksHomeAlertMessage">
        <source></source>
        <translation>Fazer backup de toda a pasta pessoal em vez disso?</translation>
    </message>
    <message id="disksHomeAlertInformative">
        <source></source>
        <translation>“%1” é a única pasta da lista. Quando a lista está vazia, é feito o backup de tudo o que há na sua pasta pessoal.</translation>
    </message>
    <message id="disksReadFailed">
        <source></source>
        <translation>Não foi possível ler os ajustes: %1</translation>
    </message>
    <message id="disksToolHangs">
        <source></source>
        <translation>O tmutil não responde.</translation>
    </message>
    <message id="disksToolMissing">
        <source></source>
        <translation>Não é possível iniciar a ferramenta “%1”.</translation>
    </message>
    <message id="disksToolFailed">
        <source></source>
        <translation>O tmutil terminou com o status de saída %1.</translation>
    </message>
    <message id="disksToolUnreadable">
        <source></source>
        <translation>A resposta do tmutil não faz sentido.</translation>
    </message>
    <message id="reasonWithDetail">
        <source></source>
        <translation>%1 (tmutil: %2)</translation>
    </message>
    <message id="reasonMissing">
        <source></source>
        <translation>O disco de backup não está conectado ou o local de rede está inacessível.</translation>
    </message>
    <message id="reasonNoSpace">
        <source></source>
        <translation>Não há mais espaço.</translation>
    </message>
    <message id="reasonCannotWrite">
        <source></source>
        <translation>Não é possível gravar lá.</translation>
    </message>
    <message id="reasonExists">
        <source></source>
        <translation>Já existe algo com esse nome, e será mantido.</translation>
    </message>
    <message id="reasonNotInBackups">
        <source></source>
        <translation>Não está nos backups.</translation>
    </message>
    <message id="reasonDamaged">
        <source></source>
        <translation>Está danificado no backup.</translation>
    </message>
    <message id="reasonNoAttributes">
        <source></source>
        <translation>O conteúdo está íntegro, mas não foi possível restaurar o proprietário, as permissões ou outros atributos.</translation>
    </message>
    <message id="reasonConnectionLost">
        <source></source>
        <translation>A conexão com o servidor foi perdida.</translation>
    </message>
    <message id="reasonAccessDenied">
        <source></source>
        <translation>O servidor recusa o usuário, a senha ou a chave.</translation>
    </message>
    <message id="reasonUntrusted">
        <source></source>
        <translation>Não é certo que este seja o servidor correto.</translation>
    </message>
    <message id="reasonServerFailed">
        <source></source>
        <translation>O servidor informa um erro próprio; talvez esteja cheio.</translation>
    </message>
    <message id="reasonWrongKey">
        <source></source>
        <translation>A chave dos backups está faltando ou não é a correta.</translation>
    </message>
    <message id="reasonLocked">
        <source></source>
        <translation>Os backups estão em uso. Tente novamente mais tarde.</translation>
    </message>
    <message id="reasonResticMissing">
        <source></source>
        <translation>O restic não está instalado.</translation>
    </message>
    <message id="reasonNoRepository">
        <source></source>
        <translation>Os backups estão faltando ou danificados.</translation>
    </message>
    <message id="reasonNoInput">
        <source></source>
        <translation>O arquivo ou a pasta não existe.</translation>
    </message>
    <message id="reasonConfiguration">
        <source></source>
        <translation>Os ajustes dos backups estão danificados.</translation>
    </message>
    <message id="reasonNoWorkSpace">
        <source></source>
        <translation>Não há espaço para arquivos temporários na pasta pessoal.</translation>
    </message>
    <message id="disksRoom">
        <source></source>
        <translation>%1 de %2 disponíveis</translation>
    </message>
    <message id="disksTaken">
        <source></source>
        <translation>Os backups ocupam %1</translation>
    </message>
    <message id="disksProblem">
        <source></source>
        <translation>Último problema (%1): %2</translation>
    </message>
    <message id="disksKeyNotKept">
        <source></source>
        <translation>Chave reserva ainda não guardada</translation>
    </message>
    <message id="disksSourceOnDisk">
        <source></source>
        <translation>A pasta “%1” também está neste disco: se ele falhar, tudo se perde</translation>
    </message>
    <message id="disksKeyBar">
        <source></source>
        <translation>Se este computador for perdido, os backups em “%1” não poderão ser lidos sem uma chave reserva.</translation>
    </message>
    <message id="disksShowKeyTitle">
        <source></source>
        <translation>Mostrar Chave Reserva</translation>
    </message>
    <message id="disksKeyHeading">
        <source></source>
        <translation>Chave Reserva de “%1”</translation>
    </message>
    <message id="disksKeyExplanation">
        <source></source>
        <translation>Se este computador for perdido, esta chave e o disco devolvem os backups. Anote-a ou salve-a como página e guarde-a longe deste computador e do disco. Quem tiver ambos poderá ler os backups.</translation>
    </message>
    <message id="disksKeyOnce">
        <source></source>
        <translation>Esta é uma chave nova, mostrada somente agora. Depois que você a guardar, as chaves mostradas antes não abrirão mais nada.</translation>
    </message>
    <message id="disksSavePageTitle">
        <source></source>
        <translation>Salvar como Página</translation>
    </message>
    <message id="disksLaterTitle">
        <source></source>
        <translation>Mais Tarde</translation>
    </message>
    <message id="disksKeptTitle">
        <source></source>
        <translation>Já Guardei</translation>
    </message>
    <message id="disksKeyFailed">
        <source></source>
        <translation>Não foi possível criar uma chave reserva para “%1”.</translation>
    </message>
    <message id="disksKeepFailed">
        <source></source>
        <translation>Não foi possível anotar que você guardou a chave reserva de “%1”.</translation>
    </message>
    <message id="disksPageFailed">
        <source></source>
        <translation>Não foi possível salvar a página.</translation>
    </message>
    <message id="disksPagePdf">
        <source></source>
        <translation>Documento PDF</translation>
    </message>
    <message id="disksPageText">
        <source></source>
        <translation>Arquivo de Texto</translation>
    </message>
    <message id="disksPageOnDiskMessage">
        <source></source>
        <translation>Salvar a página no próprio disco de backup?</translation>
    </message>
    <message id="disksPageOnDiskInformative">
        <source></source>
        <translation>Quem levar o disco também teria a chave, e um disco com defeito levaria a página consigo.</translation>
    </message>
    <message id="disksSaveTitle">
        <source></source>
        <translation>Salvar</translation>
    </message>
    <message id="disksPageMade">
        <source></source>
        <translation>Criada em %1. Guarde esta página longe do computador e do disco. Quem tiver ambos poderá ler os backups.</translation>
    </message>
    <message id="disksPageSteps">
        <source></source>
        <translation>Se o computador for perdido, em um novo</translation>
    </message>
    <message id="disksPageConnect">
        <source></source>
        <translation>Instale o Quillon e conecte o disco.</translation>
    </message>
    <message id="disksPageAdopt">
        <source></source>
        <translation>%1 pede a chave reserva e assume o disco.</translation>
    </message>
    <message id="disksPageList">
        <source></source>
        <translation>%1 lista os backups.</translation>
    </message>
    <message id="disksPageRestore">
        <source></source>
        <translation>%1 restaura uma pasta.</translation>
    </message>
    <message id="disksPageContinue">
        <source></source>
        <translation>%1 continua os backups.</translation>
    </message>
    <message id="disksAddTitle">
        <source></source>
        <translation>Adicionar</translation>
    </message>
    <message id="disksAddNameTitle">
        <source></source>
        <translation>Adicionar Padrão de Nome</translation>
    </message>
    <message id="disksAddSizeTitle">
        <source></source>
        <translation>Adicionar Limite de Tamanho</translation>
    </message>
    <message id="disksByName">
        <source></source>
        <translation>Arquivos e pastas com este nome, onde quer que estejam</translation>
    </message>
    <message id="disksBySize">
        <source></source>
        <translation>Em todas as pastas</translation>
    </message>
    <message id="disksLargerThan">
        <source></source>
        <translation>Arquivos com mais de %1</translation>
    </message>
    <message id="disksNamePrompt">
        <source></source>
        <translation>Excluir do backup arquivos e pastas com o nome</translation>
    </message>
    <message id="disksNameHint">
        <source></source>
        <translation>* representa quaisquer caracteres; ? apenas um.</translation>
    </message>
    <message id="disksSizePrompt">
        <source></source>
        <translation>Excluir do backup arquivos com mais de</translation>
    </message>
    <message id="disksCounting">
        <source></source>
        <translation>Contando os arquivos excluídos…</translation>
    </message>
    <message id="disksPreview">
        <source></source>
        <translation>Arquivos que seriam excluídos agora: %1 (%2)</translation>
    </message>
    <message id="disksPreviewNothing">
        <source></source>
        <translation>Nenhum arquivo seria excluído agora.</translation>
    </message>
    <message id="disksLeaveOutTitle">
        <source></source>
        <translation>Excluir do Backup</translation>
    </message>
    <message id="disksListing">
        <source></source>
        <translation>Procurando discos…</translation>
    </message>
    <message id="disksListFailed">
        <source></source>
        <translation>Não foi possível listar os discos</translation>
    </message>
    <message id="disksEditTitle">
        <source></source>
        <translation>Editar</translation>
    </message>
    <message id="disksAddPlaceTitle">
        <source></source>
        <translation>Adicionar Local de Rede</translation>
    </message>
    <message id="disksEditPlaceTitle">
        <source></source>
        <translation>Acesso a “%1”</translation>
    </message>
    <message id="disksPlaceKind">
        <source></source>
        <translation>Tipo</translation>
    </message>
    <message id="disksPlaceSftp">
        <source></source>
        <translation>SFTP (SSH)</translation>
    </message>
    <message id="disksPlaceRest">
        <source></source>
        <translation>Servidor REST do restic</translation>
    </message>
    <message id="disksPlaceS3">
        <source></source>
        <translation>Armazenamento compatível com S3</translation>
    </message>
    <message id="disksPlaceAddress">
        <source></source>
        <translation>Endereço</translation>
    </message>
    <message id="disksPlaceServer">
        <source></source>
        <translation>Servidor</translation>
    </message>
    <message id="disksPlacePort">
        <source></source>
        <translation>Porta</translation>
    </message>
    <message id="disksPlaceFolder">
        <source></source>
        <translation>Pasta</translation>
    </message>
    <message id="disksPlacePath">
        <source></source>
        <translation>Caminho</translation>
    </message>
    <message id="disksPlaceBucket">
        <source></source>
        <translation>Bucket</translation>
    </message>
    <message id="disksPlaceUser">
        <source></source>
        <translation>Nome de Usuário</translation>
    </message>
    <message id="disksPlaceKeyFile">
        <source></source>
        <translation>Arquivo de Chave</translation>
    </message>
    <message id="disksPlacePassword">
        <source></source>
        <translation>Senha</translation>
    </message>
    <message id="disksPlaceAccessKey">
        <source></source>
        <translation>Chave de Acesso</translation>
    </message>
    <message id="disksPlaceSecretKey">
        <source></source>
        <translation>Chave Secreta</translation>
    </message>
    <message id="disksPlaceRegion">
        <source></source>
        <translation>Região</translation>
    </message>
    <message id="disksPlaceSecure">
        <source></source>
        <translation>Conexão criptografada (HTTPS)</translation>
    </message>
    <message id="disksPlaceCertificate">
        <source></source>
        <translation>Arquivo de Certificado</translation>
    </message>
    <message id="disksPlaceUpload">
        <source></source>
        <translation>Limite de Envio</translation>
    </message>
    <message id="disksPlaceDownload">
        <source></source>
        <translation>Limite de Recebimento</translation>
    </message>
    <message id="disksPlaceNoLimit">
        <source></source>
        <translation>Nenhum</translation>
    </message>
    <message id="disksPlaceUploadAtMost">
        <source></source>
        <translation>Envio de no máximo %1</translation>
    </message>
    <message id="disksPlaceDownloadAtMost">
        <source></source>
        <translation>Recebimento de no máximo %1</translation>
    </message>
    <message id="disksPlaceOptional">
        <source></source>
        <translation>Opcional</translation>
    </message>
    <message id="disksPlaceUnchanged">
        <source></source>
        <translation>Inalterado</translation>
    </message>
    <message id="disksPlaceChooseTitle">
        <source></source>
        <translation>Escolher</translation>
    </message>
    <message id="disksPlaceNeeded">
        <source></source>
        <translation>Ainda falta: %1</translation>
    </message>
    <message id="disksPlaceBadServer">
        <source></source>
        <translation>Indique somente o nome ou o endereço do servidor, como nas.example.org.</translation>
    </message>
    <message id="disksPlaceBadPort">
        <source></source>
        <translation>Uma porta é um número de 1 a 65535.</translation>
    </message>
    <message id="disksPlaceBadFolder">
        <source></source>
        <translation>A pasta começa com / ou, se estiver na sua pasta no servidor, com ~/.</translation>
    </message>
    <message id="disksPlaceBadFile">
        <source></source>
        <translation>Um arquivo é indicado pelo caminho completo, que começa com /.</translation>
    </message>
    <message id="disksPlaceUserAndPassword">
        <source></source>
        <translation>Indique o nome de usuário e a senha, ou nenhum dos dois.</translation>
    </message>
    <message id="disksPlaceTryTitle">
        <source></source>
        <translation>Testar</translation>
    </message>
    <message id="disksPlaceTrustTitle">
        <source></source>
        <translation>Confiar</translation>
    </message>
    <message id="disksPlaceTakeUpTitle">
        <source></source>
        <translation>Assumir</translation>
    </message>
    <message id="disksPlaceAsking">
        <source></source>
        <translation>Consultando o servidor…</translation>
    </message>
    <message id="disksPlaceKeeping">
        <source></source>
        <translation>Configurando o local…</translation>
    </message>
    <message id="disksPlaceEmpty">
        <source></source>
        <translation>O servidor pode ser usado. Ainda não há backups lá.</translation>
    </message>
    <message id="disksPlaceBackups">
        <source></source>
        <translation>O servidor pode ser usado. Há backups lá que este computador pode ler; eles serão continuados.</translation>
    </message>
    <message id="disksPlaceWrongKey">
        <source></source>
        <translation>Há backups lá para os quais este computador não tem a chave. Se forem seus, digite a chave reserva para continuá-los; caso contrário, escolha outro local.</translation>
    </message>
    <message id="disksPlaceRecoveryKey">
        <source></source>
        <translation>Chave Reserva</translation>
    </message>
    <message id="disksPlaceFingerprint">
        <source></source>
        <translation>Impressão digital da chave do servidor</translation>
    </message>
    <message id="disksPlaceUnknownKey">
        <source></source>
        <translation>“%1” ainda não é conhecido por este computador. Compare a impressão digital da chave com a informada pelo administrador e confie nela somente se forem iguais.</translation>
    </message>
    <message id="disksPlaceChangedKey">
        <source></source>
        <translation>Atenção: “%1” mostra uma chave diferente da anterior. Alguém pode estar interceptando a conexão. Confie na nova chave somente se o administrador do servidor confirmar a mudança e esta impressão digital.</translation>
    </message>
    <message id="disksPlaceChangedKeyMessage">
        <source></source>
        <translation>Confiar na nova chave de “%1”?</translation>
    </message>
    <message id="disksPlaceChangedKeyInformative">
        <source></source>
        <translation>Se ela não for do servidor, o que for enviado chegará a outra pessoa.</translation>
    </message>
    <message id="disksPlaceBadCertificate">
        <source></source>
        <translation>O certificado de “%1” não é confiável; pode ser outro servidor. Se o certificado for próprio, escolha-o, ou o do emissor, como arquivo de certificado.</translation>
    </message>
    <message id="disksPlaceAccessDeniedKey">
        <source></source>
        <translation>“%1” recusa o usuário ou a chave. Verifique ambos. A chave pública precisa estar instalada no servidor, e o arquivo de chave não pode ter frase secreta.</translation>
    </message>
    <message id="disksPlaceAccessDenied">
        <source></source>
        <translation>“%1” recusa o acesso. Verifique o que você digitou: o nome de usuário e a senha, ou as chaves.</translation>
    </message>
    <message id="disksPlaceNoPermission">
        <source></source>
        <translation>Não é possível gravar lá. Escolha outro local no servidor ou peça permissão ao administrador.</translation>
    </message>
    <message id="disksPlaceNoAnswer">
        <source></source>
        <translation>“%1” não responde. Verifique o servidor e a porta, e se este computador está conectado à rede.</translation>
    </message>
    <message id="disksPlaceNoSpace">
        <source></source>
        <translation>Não há mais espaço no servidor. Libere espaço ou escolha outro local.</translation>
    </message>
    <message id="disksPlaceFailed">
        <source></source>
        <translation>O servidor não pode ser usado: %1</translation>
    </message>
    <message id="disksPlaceRemoveInformative">
        <source></source>
        <translation>Os backups lá são mantidos, assim como a chave; os dados de acesso ao servidor são apagados. Para continuá-los, adicione o mesmo local novamente.</translation>
    </message>
    <message id="disksPlaceKeyExplanation">
        <source></source>
        <translation>Se este computador for perdido, esta chave e o acesso ao servidor devolvem os backups. Anote-a ou salve-a como página e guarde-a longe deste computador, com os dados de acesso ao servidor. Quem tiver ambos poderá ler os backups.</translation>
    </message>
    <message id="disksPlacePageMade">
        <source></source>
        <translation>Criada em %1. Guarde esta página longe do computador. Quem a tiver e acessar o servidor poderá ler os backups.</translation>
    </message>
    <message id="disksPlacePageStart">
        <source></source>
        <translation>Instale o Quillon e inicie o %1.</translation>
    </message>
    <message id="disksPlacePageAdd">
        <source></source>
        <translation>Escolha “%1”, digite %2 como servidor e os dados de acesso e, quando for pedida, a chave reserva.</translation>
    </message>
    <!-- Window of the backups on Linux -->
    <message id="browseWindowTitle">
        <source></source>
        <translation>Backups do Time Machine</translation>
    </message>
    <message id="browseThisWeek">
        <source></source>
        <translation>Esta semana</translation>
    </message>
    <message id="browseDayAndTime">
        <source></source>
        <translation>%1, %2</translation>
    </message>
    <message id="browseMonthPattern">
        <source></source>
        <translation>LLLL y</translation>
    </message>
    <message id="browseDamaged">
        <source></source>
        <translation>Danificado</translation>
    </message>
    <message id="browseIncomplete">
        <source></source>
        <translation>Incompleto</translation>
    </message>
    <message id="browseRestoring">
        <source></source>
        <translation>Restaurando …</translation>
    </message>
    <message id="browseRestoreProgress">
        <source></source>
        <translation>%1 de %2 arquivos, %3 de %4</translation>
    </message>
    <message id="browseRestoreStopped">
        <source></source>
        <translation>Interrompido. O que ainda não havia sido restaurado fica como estava.</translation>
    </message>
    <message id="browseRestoredCount">
        <source></source>
        <translation>Restaurados: %1</translation>
    </message>
    <message id="browseSkippedCount">
        <source></source>
        <translation>Ignorados: %1</translation>
    </message>
    <message id="browseLostCount">
        <source></source>
        <translation>Não restaurados: %1</translation>
    </message>
    <message id="browseConflictMessage">
        <source></source>
        <translation>“%1” já existe.</translation>
    </message>
    <message id="browseNameColumn">
        <source></source>
        <translation>Nome</translation>
    </message>
    <message id="browseSizeColumn">
        <source></source>
        <translation>Tamanho</translation>
    </message>
    <message id="browseModifiedColumn">
        <source></source>
        <translation>Modificação</translation>
    </message>
    <message id="browseSinceColumn">
        <source></source>
        <translation>Depois</translation>
    </message>
    <message id="browseFolderColumn">
        <source></source>
        <translation>Pasta</translation>
    </message>
    <message id="browseBackupColumn">
        <source></source>
        <translation>Backup</translation>
    </message>
    <message id="browseSortTip">
        <source></source>
        <translation>Ordenar por esta coluna (%1)</translation>
    </message>
    <message id="browseChanged">
        <source></source>
        <translation>Mudou</translation>
    </message>
    <message id="browseGone">
        <source></source>
        <translation>Apagado</translation>
    </message>
    <message id="browseFolderKind">
        <source></source>
        <translation>Pasta</translation>
    </message>
    <message id="browseLinkTo">
        <source></source>
        <translation>Link para %1</translation>
    </message>
    <message id="browseDiskLabel">
        <source></source>
        <translation>Backups em</translation>
    </message>
    <message id="browseTimelineName">
        <source></source>
        <translation>Backups</translation>
    </message>
    <message id="browseFilesName">
        <source></source>
        <translation>Arquivos do backup</translation>
    </message>
    <message id="browsePathLabel">
        <source></source>
        <translation>Pasta do backup</translation>
    </message>
    <message id="browseBackTitle">
        <source></source>
        <translation>Voltar</translation>
    </message>
    <message id="browseUpTitle">
        <source></source>
        <translation>Pasta superior</translation>
    </message>
    <message id="browseSearchPrompt">
        <source></source>
        <translation>Buscar nomes</translation>
    </message>
    <message id="browseAllBackups">
        <source></source>
        <translation>Em todos os backups</translation>
    </message>
    <message id="browseVersionsName">
        <source></source>
        <translation>Versões</translation>
    </message>
    <message id="browseVersionsHint">
        <source></source>
        <translation>Escolha um arquivo para ver as versões.</translation>
    </message>
    <message id="browseNoVersions">
        <source></source>
        <translation>Nenhum backup o contém.</translation>
    </message>
    <message id="browsePreviewTitle">
        <source></source>
        <translation>Pré-visualizar</translation>
    </message>
    <message id="browseRestoreTitle">
        <source></source>
        <translation>Restaurar</translation>
    </message>
    <message id="browseReading">
        <source></source>
        <translation>Lendo …</translation>
    </message>
    <message id="browseEmptyFolder">
        <source></source>
        <translation>Esta pasta está vazia.</translation>
    </message>
    <message id="browseNothingFound">
        <source></source>
        <translation>Nada com esse nome foi encontrado.</translation>
    </message>
    <message id="browseSearching">
        <source></source>
        <translation>Buscando …</translation>
    </message>
    <message id="browseFilling">
        <source></source>
        <translation>Lendo todo o backup para a busca: %1</translation>
    </message>
    <message id="browseReadFailed">
        <source></source>
        <translation>Não foi possível ler: %1</translation>
    </message>
    <message id="browseNoDiskMessage">
        <source></source>
        <translation>Nenhum disco de backup ou local de rede está configurado. Escolha um nos ajustes do Time Machine para copiar seus arquivos nele.</translation>
    </message>
    <message id="browseNoBackupMessage">
        <source></source>
        <translation>Não há backup para explorar. Conecte o disco de backup ou a rede, ou espere o primeiro backup.</translation>
    </message>
    <message id="browseSettingsTitle">
        <source></source>
        <translation>Ajustes do Time Machine</translation>
    </message>
    <message id="browsePreviewing">
        <source></source>
        <translation>Obtendo “%1” …</translation>
    </message>
    <message id="browsePreviewFailed">
        <source></source>
        <translation>Não é possível mostrar “%1”.</translation>
    </message>
    <message id="browseNoProgram">
        <source></source>
        <translation>Nenhum programa pôde ser aberto para isso.</translation>
    </message>
    <message id="browseRestoreHeading">
        <source></source>
        <translation>Restaurar “%1”</translation>
    </message>
    <message id="browseRestoreManyHeading">
        <source></source>
        <translation>Restaurar %1 itens</translation>
    </message>
    <message id="browseFromBackup">
        <source></source>
        <translation>Do backup de %1</translation>
    </message>
    <message id="browseToItsPlace">
        <source></source>
        <translation>Para onde estava</translation>
    </message>
    <message id="browseToFolder">
        <source></source>
        <translation>Para outra pasta</translation>
    </message>
    <message id="browseChooseFolderTitle">
        <source></source>
        <translation>Escolher pasta</translation>
    </message>
    <message id="browseNothingOverwritten">
        <source></source>
        <translation>Nada é substituído sem perguntar a você.</translation>
    </message>
    <message id="browseKeepBothTitle">
        <source></source>
        <translation>Manter ambos</translation>
    </message>
    <message id="browseReplaceTitle">
        <source></source>
        <translation>Substituir</translation>
    </message>
    <message id="browseSkipTitle">
        <source></source>
        <translation>Ignorar</translation>
    </message>
    <message id="browseForAll">
        <source></source>
        <translation>Fazer o mesmo com os demais</translation>
    </message>
    <message id="browseStopTitle">
        <source></source>
        <translation>Parar</translation>
    </message>
    <message id="browseStopping">
        <source></source>
        <translation>Parando …</translation>
    </message>
    <message id="browseLossesName">
        <source></source>
        <translation>O que não voltou</translation>
    </message>
    <!-- The log of backups -->
    <message id="logWindowTitle">
        <source></source>
        <translation>Registro de Backups</translation>
    </message>
    <message id="logDateTitle">
        <source></source>
        <translation>Data</translation>
    </message>
    <message id="logOutcomeTitle">
        <source></source>
        <translation>Resultado</translation>
    </message>
    <message id="logCauseTitle">
        <source></source>
        <translation>Origem</translation>
    </message>
    <message id="logDiskTitle">
        <source></source>
        <translation>Disco</translation>
    </message>
    <message id="logSizeTitle">
        <source></source>
        <translation>Copiado</translation>
    </message>
    <message id="logDurationTitle">
        <source></source>
        <translation>Duração</translation>
    </message>
    <message id="logBytesTitle">
        <source></source>
        <translation>Bytes</translation>
    </message>
    <message id="logBeganTitle">
        <source></source>
        <translation>Início</translation>
    </message>
    <message id="logEndedTitle">
        <source></source>
        <translation>Fim</translation>
    </message>
    <message id="logReasonTitle">
        <source></source>
        <translation>Motivo</translation>
    </message>
    <message id="logRunningTitle">
        <source></source>
        <translation>Em andamento</translation>
    </message>
    <message id="logCompletedTitle">
        <source></source>
        <translation>Concluído</translation>
    </message>
    <message id="logFailedTitle">
        <source></source>
        <translation>Falhou</translation>
    </message>
    <message id="logStoppedTitle">
        <source></source>
        <translation>Interrompido</translation>
    </message>
    <message id="logUnseenTitle">
        <source></source>
        <translation>Não observado</translation>
    </message>
    <message id="logSkippedTitle">
        <source></source>
        <translation>Ignorado</translation>
    </message>
    <message id="logMissedTitle">
        <source></source>
        <translation>Não realizado</translation>
    </message>
    <message id="logRefusedTitle">
        <source></source>
        <translation>Recusado</translation>
    </message>
    <message id="logScheduleTitle">
        <source></source>
        <translation>Programação</translation>
    </message>
    <message id="logRetryTitle">
        <source></source>
        <translation>Nova Tentativa</translation>
    </message>
    <message id="logUserTitle">
        <source></source>
        <translation>Você</translation>
    </message>
    <message id="logElsewhereTitle">
        <source></source>
        <translation>Fora do Quillon</translation>
    </message>
    <message id="logAllTitle">
        <source></source>
        <translation>Tudo</translation>
    </message>
    <message id="logNoBackupTitle">
        <source></source>
        <translation>Nenhum backup</translation>
    </message>
    <message id="logDaysMessage">
        <source></source>
        <translation>Os últimos %1 dias: %2 com backup, %3 apenas com problemas</translation>
    </message>
    <message id="logCopyTitle">
        <source></source>
        <translation>Copiar como Texto</translation>
    </message>
    <message id="logSaveTitle">
        <source></source>
        <translation>Salvar como CSV</translation>
    </message>
    <message id="logSaveFailedTitle">
        <source></source>
        <translation>Não foi possível salvar o registro.</translation>
    </message>
    <message id="logEmptyMessage">
        <source></source>
        <translation>Ainda não há nada registrado.</translation>
    </message>
    <message id="logNothingFoundMessage">
        <source></source>
        <translation>Nenhuma entrada corresponde.</translation>
    </message>
    <message id="logUnreadableMessage">
        <source></source>
        <translation>Não foi possível ler o registro. Os backups são feitos mesmo assim.</translation>
    </message>
    <message id="logNextMessage">
        <source></source>
        <translation>Programado em seguida: %1</translation>
    </message>
    <message id="logAskedMessage">
        <source></source>
        <translation>Este início foi ignorado por um comando.</translation>
    </message>
    <message id="logOnBatteryMessage">
        <source></source>
        <translation>O computador estava usando a bateria. O backup será feito quando ele voltar a ter energia, a menos que o próximo chegue antes.</translation>
    </message>
    <message id="logPausedMessage">
        <source></source>
        <translation>A programação estava pausada. Retome-a no menu para voltar a fazer backups.</translation>
    </message>
    <message id="logAsleepMessage">
        <source></source>
        <translation>O computador estava em repouso. Escolha horários em que ele esteja ativo ou ative novas tentativas de backups não realizados.</translation>
    </message>
    <message id="logClockSetMessage">
        <source></source>
        <translation>O relógio foi adiantado além deste horário ou o computador estava ocupado demais.</translation>
    </message>
    <message id="logBackupRanMessage">
        <source></source>
        <translation>Outro backup já estava em andamento e substituiu este.</translation>
    </message>
    <message id="logOvertakenMessage">
        <source></source>
        <translation>Outro backup foi iniciado no mesmo momento e substituiu este.</translation>
    </message>
    <message id="logStatusUnreadableMessage">
        <source></source>
        <translation>O Time Machine não informou seu estado. Se isso se repetir, reinicie o computador.</translation>
    </message>
    <message id="logSettingsChangedMessage">
        <source></source>
        <translation>A programação foi pausada ou alterada naquele exato momento.</translation>
    </message>
    <message id="logIncompleteMessage">
        <source></source>
        <translation>O backup terminou antes de ser concluído. Verifique se o disco está conectado e tem espaço.</translation>
    </message>
    <message id="logStoppedElsewhereMessage">
        <source></source>
        <translation>O backup foi interrompido fora do Quillon.</translation>
    </message>
    <message id="logNeverReportedMessage">
        <source></source>
        <translation>O Time Machine aceitou o início, mas nenhum backup foi observado. Talvez tenha sido curto demais.</translation>
    </message>
    <message id="logNotFollowedMessage">
        <source></source>
        <translation>O Quillon foi encerrado antes do backup. Explore os backups para ver se ele foi concluído.</translation>
    </message>
</context>
</TS>
