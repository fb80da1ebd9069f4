<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it" sourcelanguage="en">
<!-- Code adds the colon or the ellipsis that a title stands before; texts have none, but for scheduleTitle. -->
<context>
    <name></name>
    <!-- Days -->
    <message id="todayTitle">
        <source></source>
        <translation>Oggi</translation>
    </message>
    <message id="tomorrowTitle">
        <source></source>
        <translation>Domani</translation>
    </message>
    <message id="yesterdayTitle">
        <source></source>
        <translation>Ieri</translation>
    </message>
    <!-- What Time Machine is doing -->
    <message id="notAvailableAbbreviation">
        <source></source>
        <translation>N/D</translation>
    </message>
    <message id="tmPhaseDefault">
        <source></source>
        <translation>Non attivo</translation>
    </message>
    <message id="tmPhaseUnknown">
        <source></source>
        <translation>Sconosciuto</translation>
    </message>
    <message id="tmPhaseStarting">
        <source></source>
        <translation>Avvio</translation>
    </message>
    <message id="tmPhaseLookingForDisk">
        <source></source>
        <translation>Ricerca del disco di backup</translation>
    </message>
    <message id="tmPhaseConnectingToDisk">
        <source></source>
        <translation>Connessione al disco di backup</translation>
    </message>
    <message id="tmPhasePreparingBackup">
        <source></source>
        <translation>Preparazione del backup</translation>
    </message>
    <message id="tmPhaseCopying">
        <source></source>
        <translation>Copia</translation>
    </message>
    <message id="tmPhaseCleaningUp">
        <source></source>
        <translation>Pulizia</translation>
    </message>
    <message id="tmPhaseHealthCheck">
        <source></source>
        <translation>Verifica del backup</translation>
    </message>
    <message id="tmPhaseFinishing">
        <source></source>
        <translation>Completamento</translation>
    </message>
    <!-- Alerts -->
    <message id="AlertButtonClose">
        <source></source>
        <translation>Chiudi</translation>
    </message>
    <message id="AlertButtonProvidePermission">
        <source></source>
        <translation>Consenti</translation>
    </message>
    <message id="permissionRequiredAlertTitle">
        <source></source>
        <translation>Autorizzazione richiesta</translation>
    </message>
    <message id="timeMachinePermissionRequiredAlertMessage">
        <source></source>
        <translation>Per aprire le preferenze di Time Machine, fai clic su “%1” e consenti a %2 di controllare Preferenze di Sistema. Quindi riprova.</translation>
    </message>
    <!-- Menu bar title -->
    <message id="nextBackupShortTitle">
        <source></source>
        <translation>Prossimo</translation>
    </message>
    <message id="retryBackupShortTitle">
        <source></source>
        <translation>Riprova</translation>
    </message>
    <message id="statusStarting">
        <source></source>
        <translation>Avvio</translation>
    </message>
    <message id="statusRunning">
        <source></source>
        <translation>In corso</translation>
    </message>
    <message id="statusStopping">
        <source></source>
        <translation>Arresto</translation>
    </message>
    <!-- What the icon stands for -->
    <message id="iconRunningDescription">
        <source></source>
        <translation>Backup in corso.</translation>
    </message>
    <message id="iconFailedDescription">
        <source></source>
        <translation>L’ultimo backup non è riuscito.</translation>
    </message>
    <message id="iconMissedDescription">
        <source></source>
        <translation>Un backup programmato è stato mancato.</translation>
    </message>
    <message id="iconUpdateDescription">
        <source></source>
        <translation>È disponibile un aggiornamento.</translation>
    </message>
    <!-- Why sleep waits for a moment -->
    <message id="sleepWaitsMessage">
        <source></source>
        <translation>La programmazione dei backup viene fermata.</translation>
    </message>
    <!-- Menu -->
    <message id="latestBackupTitle">
        <source></source>
        <translation>Ultimo backup</translation>
    </message>
    <message id="phaseTitle">
        <source></source>
        <translation>Fase</translation>
    </message>
    <message id="copiedWord">
        <source></source>
        <translation>copiati</translation>
    </message>
    <message id="backupDiskTitle">
        <source></source>
        <translation>Disco di backup</translation>
    </message>
    <message id="nextBackupTitle">
        <source></source>
        <translation>Prossimo backup</translation>
    </message>
    <message id="nextBackupDisabled">
        <source></source>
        <translation>Disattivato</translation>
    </message>
    <message id="nextBackupNotAvailable">
        <source></source>
        <translation>Nessun backup programmato</translation>
    </message>
    <message id="retryAttemptTitle">
        <source></source>
        <translation>Nuovo tentativo</translation>
    </message>
    <message id="remainingTimeTitle">
        <source></source>
        <translation>Tempo rimanente</translation>
    </message>
    <message id="calculatingTitle">
        <source></source>
        <translation>Calcolo in corso</translation>
    </message>
    <message id="backupNowTitle">
        <source></source>
        <translation>Esegui backup adesso</translation>
    </message>
    <message id="skipThisBackupTitle">
        <source></source>
        <translation>Salta questo backup</translation>
    </message>
    <message id="skipThisBackupTitleVentura">
        <source></source>
        <translation>Salta questo backup</translation>
    </message>
    <message id="skipRetryAttemptTitle">
        <source></source>
        <translation>Salta nuovo tentativo</translation>
    </message>
    <message id="enterTimeMachineTitle">
        <source></source>
        <translation>Entra in Time Machine</translation>
    </message>
    <message id="enterTimeMachineTitleVentura">
        <source></source>
        <translation>Sfoglia i backup di Time Machine</translation>
    </message>
    <message id="openSystemPreferencesTitle">
        <source></source>
        <translation>Apri preferenze Time Machine</translation>
    </message>
    <message id="openSystemPreferencesTitleVentura">
        <source></source>
        <translation>Apri impostazioni Time Machine</translation>
    </message>
    <message id="updateAvailableMenuTitle">
        <source></source>
        <translation>Aggiornamento disponibile</translation>
    </message>
    <message id="preferencesMenuTitle">
        <source></source>
        <translation>Impostazioni</translation>
    </message>
    <message id="aboutMenuTitle">
        <source></source>
        <translation>Informazioni su Quillon</translation>
    </message>
    <message id="quitApplicationTitle">
        <source></source>
        <translation>Esci da %1</translation>
    </message>
    <!-- Pause -->
    <message id="pauseScheduleForTitle">
        <source></source>
        <translation>Sospendi programmazione per</translation>
    </message>
    <message id="pauseScheduleUntilTitle">
        <source></source>
        <translation>Programmazione sospesa fino a</translation>
    </message>
    <message id="resumeScheduleTitle">
        <source></source>
        <translation>Riprendi programmazione</translation>
    </message>
    <message id="oneHourTitle">
        <source></source>
        <translation>1 ora</translation>
    </message>
    <message id="twoHoursTitle">
        <source></source>
        <translation>2 ore</translation>
    </message>
    <message id="fourHoursTitle">
        <source></source>
        <translation>4 ore</translation>
    </message>
    <message id="eightHoursTitle">
        <source></source>
        <translation>8 ore</translation>
    </message>
    <message id="twelveHoursTitle">
        <source></source>
        <translation>12 ore</translation>
    </message>
    <message id="oneDayTitle">
        <source></source>
        <translation>1 giorno</translation>
    </message>
    <message id="twoDaysTitle">
        <source></source>
        <translation>2 giorni</translation>
    </message>
    <message id="threeDaysTitle">
        <source></source>
        <translation>3 giorni</translation>
    </message>
    <message id="fourDaysTitle">
        <source></source>
        <translation>4 giorni</translation>
    </message>
    <message id="fiveDaysTitle">
        <source></source>
        <translation>5 giorni</translation>
    </message>
    <message id="sixDaysTitle">
        <source></source>
        <translation>6 giorni</translation>
    </message>
    <message id="oneWeekTitle">
        <source></source>
        <translation>1 settimana</translation>
    </message>
    <message id="twoWeeksTitle">
        <source></source>
        <translation>2 settimane</translation>
    </message>
    <message id="threeWeeksTitle">
        <source></source>
        <translation>3 settimane</translation>
    </message>
    <message id="fourWeeksTitle">
        <source></source>
        <translation>4 settimane</translation>
    </message>
    <!-- The menu as it opens -->
    <message id="letMacOsDecideBackupDiskTitle">
        <source></source>
        <translation>Lascia scegliere a Time Machine</translation>
    </message>
    <message id="mostRecentTitle">
        <source></source>
        <translation>più recente</translation>
    </message>
    <message id="latestBackupOfEachDestinationTitle">
        <source></source>
        <translation>Ultimo backup di ogni disco</translation>
    </message>
    <message id="allBackupInfoHelpMessage">
        <source></source>
        <translation>Questo elenco mostra, per ogni disco di backup, l’ultimo backup che Quillon ha visto completarsi. Su un disco senza data non è stato completato alcun backup da quando è installato Quillon.</translation>
    </message>
    <message id="helpButtonTitle">
        <source></source>
        <translation>Aiuto</translation>
    </message>
    <!-- What the commands tell -->
    <message id="AlertTitleWarning">
        <source></source>
        <translation>Attenzione</translation>
    </message>
    <message id="failedToStartBackupMessage">
        <source></source>
        <translation>Impossibile avviare il backup. Time Machine ha risposto con il codice di errore %1.</translation>
    </message>
    <message id="startDiskAwayMessage">
        <source></source>
        <translation>Il disco di backup non è collegato, o il server dei backup non è raggiungibile.</translation>
    </message>
    <message id="startResticMissingMessage">
        <source></source>
        <translation>Il programma restic, che esegue i backup, non è installato.</translation>
    </message>
    <message id="appUpdateAvailableAlertTitle">
        <source></source>
        <translation>Quillon %1 è disponibile</translation>
    </message>
    <message id="appUpdateAvailableAlertMessage">
        <source></source>
        <translation>La versione installata è %1. La pagina di download verrà aperta nel browser e Quillon verrà chiuso per poter essere sostituito.</translation>
    </message>
    <message id="AlertButtonGetUpdate">
        <source></source>
        <translation>Ottieni aggiornamento</translation>
    </message>
    <message id="AlertButtonCancel">
        <source></source>
        <translation>Annulla</translation>
    </message>
    <!-- The user’s own programs -->
    <message id="hookStoppedBackupMessage">
        <source></source>
        <translation>Il programma “before” ha impedito l’avvio del backup.</translation>
    </message>
    <message id="hookNotRunMessage">
        <source></source>
        <translation>“%1” non è stato eseguito. Deve essere un file eseguibile che solo tu puoi modificare, in una cartella che solo tu puoi modificare.</translation>
    </message>
    <message id="hookTooLongMessage">
        <source></source>
        <translation>“%1” è stato terminato dopo dieci minuti.</translation>
    </message>
    <message id="hookStatusMessage">
        <source></source>
        <translation>“%1” è terminato con stato di uscita %2.</translation>
    </message>
    <!-- Notifications of the desktop -->
    <message id="backupFailedTitle">
        <source></source>
        <translation>Backup non riuscito</translation>
    </message>
    <message id="backupFailedMessage">
        <source></source>
        <translation>L’ultimo backup è terminato prima di essere completo.</translation>
    </message>
    <message id="noBackupForDaysTitle">
        <source></source>
        <translation>Nessun backup recente</translation>
    </message>
    <message id="noBackupForDaysMessage">
        <source></source>
        <translation>L’ultimo backup è stato completato il %1.</translation>
    </message>
    <message id="noBackupYetMessage">
        <source></source>
        <translation>Non è ancora stato completato alcun backup.</translation>
    </message>
    <message id="startWithoutRunTitle">
        <source></source>
        <translation>Il backup non è iniziato</translation>
    </message>
    <message id="startWithoutRunMessage">
        <source></source>
        <translation>Time Machine ha accettato di avviare un backup, ma nessuno è in corso.</translation>
    </message>
    <message id="noProgressTitle">
        <source></source>
        <translation>Il backup non avanza</translation>
    </message>
    <message id="noProgressMessage">
        <source></source>
        <translation>Il backup in corso non avanza da mezz’ora.</translation>
    </message>
    <message id="damageFoundTitle">
        <source></source>
        <translation>I backup sono danneggiati</translation>
    </message>
    <message id="damageFoundMessage">
        <source></source>
        <translation>Time Machine ha trovato danni nei tuoi backup. Alcuni file potrebbero non essere ripristinabili.</translation>
    </message>
    <message id="startAheadTitle">
        <source></source>
        <translation>Il backup inizia a breve</translation>
    </message>
    <message id="startAheadMessage">
        <source></source>
        <translation>Prossimo backup: %1.</translation>
    </message>
    <message id="startAheadSkipTitle">
        <source></source>
        <translation>Salta</translation>
    </message>
    <message id="startAheadPostponeTitle">
        <source></source>
        <translation>Tra un’ora</translation>
    </message>
    <!-- Where there is no Time Machine application -->
    <!-- The schedule in the settings panel -->
    <message id="settingsGroupSchedule">
        <source></source>
        <translation>Backup programmati</translation>
    </message>
    <message id="settingsEnableScheduledBackupsVia">
        <source></source>
        <translation>Programma i backup per</translation>
    </message>
    <message id="settingsOptionCalendarInterval">
        <source></source>
        <translation>giorno e ora</translation>
    </message>
    <message id="settingsOptionInterval">
        <source></source>
        <translation>intervallo</translation>
    </message>
    <message id="scheduleTitle">
        <source></source>
        <translation>Programmazione:</translation>
    </message>
    <message id="warningButtonTitle">
        <source></source>
        <translation>Avviso sui backup automatici</translation>
    </message>
    <message id="setupDisksButtonTitle">
        <source></source>
        <translation>Informazioni sui dischi di backup</translation>
    </message>
    <message id="addRuleTitle">
        <source></source>
        <translation>Aggiungi regola</translation>
    </message>
    <message id="deleteRuleTitle">
        <source></source>
        <translation>Elimina regola</translation>
    </message>
    <!-- A rule as one sentence: back up, day, at, time of day -->
    <message id="backupTitle">
        <source></source>
        <translation>Backup</translation>
    </message>
    <message id="everyDayTitle">
        <source></source>
        <translation>ogni giorno</translation>
    </message>
    <message id="weekdaysTitle">
        <source></source>
        <translation>dal lunedì al venerdì</translation>
    </message>
    <message id="mondayTitle">
        <source></source>
        <translation>ogni lunedì</translation>
    </message>
    <message id="tuesdayTitle">
        <source></source>
        <translation>ogni martedì</translation>
    </message>
    <message id="wednesdayTitle">
        <source></source>
        <translation>ogni mercoledì</translation>
    </message>
    <message id="thursdayTitle">
        <source></source>
        <translation>ogni giovedì</translation>
    </message>
    <message id="fridayTitle">
        <source></source>
        <translation>ogni venerdì</translation>
    </message>
    <message id="saturdayTitle">
        <source></source>
        <translation>ogni sabato</translation>
    </message>
    <message id="sundayTitle">
        <source></source>
        <translation>ogni domenica</translation>
    </message>
    <message id="atTimeTitle">
        <source></source>
        <translation>alle</translation>
    </message>
    <!-- The interval page; the unit stands behind any number from 1 on -->
    <message id="settingsIntervalEvery">
        <source></source>
        <translation>Backup ogni</translation>
    </message>
    <message id="settingsIntervalHours">
        <source></source>
        <translation>ore</translation>
    </message>
    <message id="settingsIntervalHour">
        <source></source>
        <translation>ora</translation>
    </message>
    <message id="settingsIntervalNotYetUsed">
        <source></source>
        <translation>L’intervallo non viene ancora utilizzato: i backup iniziano nei giorni e agli orari delle regole.</translation>
    </message>
    <!-- The other groups of the settings panel -->
    <message id="settingsGroupRetry">
        <source></source>
        <translation>Nuovo tentativo</translation>
    </message>
    <message id="settingsEnableAfterMissedBackup">
        <source></source>
        <translation>Riprova dopo un backup mancato</translation>
    </message>
    <message id="settingsEnableAfterFailedBackup">
        <source></source>
        <translation>Riprova dopo un backup non riuscito</translation>
    </message>
    <message id="settingsGroupMenuBar">
        <source></source>
        <translation>Barra dei menu</translation>
    </message>
    <message id="settingsShowDetailedTimeInMenuBar">
        <source></source>
        <translation>Mostra tempi dettagliati</translation>
    </message>
    <message id="settingsShowDetailedTimeInMenuBarDetails">
        <source></source>
        <translation>Ad esempio “1h 30min” anziché “1h”.</translation>
    </message>
    <message id="settingsShowMenuBarIconOnly">
        <source></source>
        <translation>Mostra solo l’icona</translation>
    </message>
    <message id="settingsDisableIconColors">
        <source></source>
        <translation>Colora l’icona quando richiede attenzione</translation>
    </message>
    <message id="settingsGroupDisks">
        <source></source>
        <translation>Dischi e login</translation>
    </message>
    <message id="settingsRotateBackupDisks">
        <source></source>
        <translation>Alterna i dischi di backup</translation>
    </message>
    <message id="settingsStartOnSystemStart">
        <source></source>
        <translation>Apri Quillon al login</translation>
    </message>
    <message id="loginItemRefusedMessage">
        <source></source>
        <translation>Il sistema non ha accettato la modifica: ciò che si apre al login resta com’era.</translation>
    </message>
    <!-- The second page of the settings panel; a number stands behind what is not a sentence -->
    <message id="settingsMoreTitle">
        <source></source>
        <translation>Altro</translation>
    </message>
    <message id="settingsBackTitle">
        <source></source>
        <translation>Indietro</translation>
    </message>
    <message id="settingsGroupPower">
        <source></source>
        <translation>Energia</translation>
    </message>
    <message id="settingsOnlyOnMainsPower">
        <source></source>
        <translation>Avvia i backup solo con alimentazione di rete</translation>
    </message>
    <message id="settingsChargeThatSuffices">
        <source></source>
        <translation>O se la carica supera il</translation>
    </message>
    <message id="settingsPerCent">
        <source></source>
        <translation>%1%</translation>
    </message>
    <message id="settingsStayAwake">
        <source></source>
        <translation>Impedisci lo stop durante i backup di Quillon</translation>
    </message>
    <message id="settingsStartWhenDiskAppears">
        <source></source>
        <translation>Riprova quando compare il disco di backup</translation>
    </message>
    <message id="settingsMinutesAfterWake">
        <source></source>
        <translation>Dopo la riattivazione, attendi</translation>
    </message>
    <message id="settingsMinutes">
        <source></source>
        <translation>%1 min</translation>
    </message>
    <message id="settingsGroupNotifications">
        <source></source>
        <translation>Notifiche</translation>
    </message>
    <message id="settingsDaysWithoutBackup">
        <source></source>
        <translation>Nessun backup completato da</translation>
    </message>
    <message id="settingsDays">
        <source></source>
        <translation>%1 giorni</translation>
    </message>
    <message id="settingsDay">
        <source></source>
        <translation>%1 giorno</translation>
    </message>
    <message id="settingsTellBeforeStart">
        <source></source>
        <translation>Un minuto prima dell’inizio di un backup</translation>
    </message>
    <!-- Alerts of the settings panel -->
    <message id="maximumRulesReachedTitle">
        <source></source>
        <translation>Impossibile aggiungere altre regole</translation>
    </message>
    <message id="maximumRulesReachedMessage">
        <source></source>
        <translation>Una programmazione può avere al massimo %1 regole. Modificane o eliminane una.</translation>
    </message>
    <message id="confirmDeleteRuleTitle">
        <source></source>
        <translation>Eliminare questa regola?</translation>
    </message>
    <message id="confirmDeleteRuleMessage">
        <source></source>
        <translation>La regola viene eliminata e Quillon non avvia più backup all’orario che indica.</translation>
    </message>
    <message id="retryAfterMissedBackupTitle">
        <source></source>
        <translation>Riprova dopo un backup mancato</translation>
    </message>
    <message id="retryAfterMissedBackupMessage">
        <source></source>
        <translation>Se il computer è in stop all’ora di un backup programmato, il backup inizia circa cinque minuti dopo la riattivazione. Mentre la programmazione è sospesa non ci sono nuovi tentativi.</translation>
    </message>
    <message id="retryAfterFailedBackupTitle">
        <source></source>
        <translation>Riprova dopo un backup non riuscito</translation>
    </message>
    <message id="retryAfterFailedBackupMessage">
        <source></source>
        <translation>Se un backup termina prima di essere completo, Quillon riprova circa cinque minuti dopo. Non ci sono nuovi tentativi per i backup che interrompi tu, né mentre la programmazione è sospesa.</translation>
    </message>
    <message id="AlertButtonOk">
        <source></source>
        <translation>OK</translation>
    </message>
    <message id="AlertButtonDelete">
        <source></source>
        <translation>Elimina</translation>
    </message>
    <!-- The first launch; the instruction is also the text of the settings panel's warning -->
    <message id="firstStartInfoAlertTitle">
        <source></source>
        <translation>Ti diamo il benvenuto in %1</translation>
    </message>
    <message id="firstStartInfoAlertMessage">
        <source></source>
        <translation>%2 si trova nella barra dei menu. Avvia i backup agli orari che scegli nelle sue impostazioni.

%1</translation>
    </message>
    <message id="disableTmInstruction">
        <source></source>
        <translation>Se Time Machine esegue anche backup automatici, disattivali: così i backup inizieranno solo quando li hai programmati. Sul Mac, apri Preferenze di Sistema, fai clic su Time Machine e disattiva i backup automatici.</translation>
    </message>
    <message id="disableTmInstructionVentura">
        <source></source>
        <translation>Se Time Machine esegue anche backup automatici, disattivali: così i backup inizieranno solo quando li hai programmati. Sul Mac, apri Impostazioni di Sistema, scegli Generali &gt; Time Machine &gt; Opzioni e imposta la frequenza dei backup su “Manualmente”.</translation>
    </message>
    <message id="setupDisksMessage">
        <source></source>
        <translation>I backup vengono eseguiti su:
%1

I dischi di backup si aggiungono e si rimuovono nelle impostazioni Time Machine.</translation>
    </message>
    <message id="setupNoDiskMessage">
        <source></source>
        <translation>Non è ancora configurato alcun disco di backup e, senza, nessun backup può iniziare. Aggiungine uno nelle impostazioni Time Machine.</translation>
    </message>
    <message id="setupUnknownDisksMessage">
        <source></source>
        <translation>I dischi di backup si scelgono nelle impostazioni Time Machine.</translation>
    </message>
    <message id="AlertButtonHelp">
        <source></source>
        <translation>Aiuto</translation>
    </message>
    <!-- The about panel -->
    <message id="versionTitle">
        <source></source>
        <translation>Versione</translation>
    </message>
    <message id="copyrightTitle">
        <source></source>
        <translation>© %1 gli autori di Quillon</translation>
    </message>
    <message id="supportDetailsMessage">
        <source></source>
        <translation>Domande, idee o qualcosa che non funziona? Scrivici.</translation>
    </message>
    <message id="websiteButtonTitle">
        <source></source>
        <translation>Sito web</translation>
    </message>
    <message id="creditsTitle">
        <source></source>
        <translation>Quillon si basa su Qt, ICU e libplist. Su Linux i backup sono eseguiti da restic.</translation>
    </message>
    <message id="appIconCreditsTitle">
        <source></source>
        <translation>Icona di %1</translation>
    </message>
    <message id="privacyPolicyDetailsMessage">
        <source></source>
        <translation>Quillon non invia nulla su di te o sui tuoi file.</translation>
    </message>
    <message id="termsButtonTitle">
        <source></source>
        <translation>Termini di utilizzo</translation>
    </message>
    <message id="privacyPolicyAlertTitle">
        <source></source>
        <translation>Informativa sulla privacy</translation>
    </message>
    <message id="privacyPolicyAlertMessage">
        <source></source>
        <translation>%1 conserva le impostazioni e il registro dei backup su questo computer. Per sapere se ci sono nuove versioni, %1 consulta un servizio del produttore; la richiesta identifica %1, non te. L’informativa completa sulla privacy di %1 si trova sul sito web.</translation>
    </message>
    <message id="AlertButtonReadMore">
        <source></source>
        <translation>Leggi tutto</translation>
    </message>
    <message id="AlertMessageMailNotConfigured">
        <source></source>
        <translation>Impossibile aprire un’app per l’email. Scrivi a %1.</translation>
    </message>
    <!-- Window of the Time Machine settings on Linux -->
    <message id="disksWindowTitle">
        <source></source>
        <translation>Time Machine</translation>
    </message>
    <message id="disksDisksTitle">
        <source></source>
        <translation>Dischi di backup</translation>
    </message>
    <message id="disksSourcesTitle">
        <source></source>
        <translation>Cartelle</translation>
    </message>
    <message id="disksExclusionsTitle">
        <source></source>
        <translation>Esclusioni</translation>
    </message>
    <message id="disksDisksExplanation">
        <source></source>
        <translation>I backup vengono eseguiti su questi dischi e percorsi di rete. I backup sono codificati; il resto del disco rimane com’è. Le chiavi si trovano nella tua cartella Inizio.</translation>
    </message>
    <message id="disksSourcesExplanation">
        <source></source>
        <translation>Viene eseguito il backup di queste cartelle con tutto il loro contenuto.</translation>
    </message>
    <message id="disksExclusionsExplanation">
        <source></source>
        <translation>Questi file e cartelle sono esclusi da tutti i backup.</translation>
    </message>
    <message id="disksNoDisks">
        <source></source>
        <translation>Non c’è ancora alcun disco di backup. Per iniziare, aggiungi un disco, una cartella su un disco o un percorso di rete.</translation>
    </message>
    <message id="disksNoExclusions">
        <source></source>
        <translation>Non è escluso nulla. Aggiungi ciò che non ha bisogno di backup, ad esempio i download che puoi ripetere.</translation>
    </message>
    <message id="disksReading">
        <source></source>
        <translation>Lettura delle impostazioni…</translation>
    </message>
    <message id="disksConnected">
        <source></source>
        <translation>Collegato</translation>
    </message>
    <message id="disksNotConnected">
        <source></source>
        <translation>Non collegato</translation>
    </message>
    <message id="disksLastBackup">
        <source></source>
        <translation>Ultimo backup: %1</translation>
    </message>
    <message id="disksNoBackupYet">
        <source></source>
        <translation>Ancora nessun backup</translation>
    </message>
    <message id="disksAddDiskTitle">
        <source></source>
        <translation>Aggiungi disco</translation>
    </message>
    <message id="disksAddFolderTitle">
        <source></source>
        <translation>Aggiungi cartella</translation>
    </message>
    <message id="disksAddFileTitle">
        <source></source>
        <translation>Aggiungi file</translation>
    </message>
    <message id="disksRemoveTitle">
        <source></source>
        <translation>Rimuovi</translation>
    </message>
    <message id="disksCancelTitle">
        <source></source>
        <translation>Annulla</translation>
    </message>
    <message id="disksOkTitle">
        <source></source>
        <translation>OK</translation>
    </message>
    <message id="disksTryAgainTitle">
        <source></source>
        <translation>Riprova</translation>
    </message>
    <message id="disksFree">
        <source></source>
        <translation>%1 (%2 disponibili)</translation>
    </message>
    <message id="disksNoOtherDisk">
        <source></source>
        <translation>Nessun altro disco è collegato</translation>
    </message>
    <message id="disksAddFailed">
        <source></source>
        <translation>Impossibile aggiungere “%1”.</translation>
    </message>
    <message id="disksRemoveFailed">
        <source></source>
        <translation>Impossibile rimuovere “%1”.</translation>
    </message>
    <message id="disksRemoveAlertMessage">
        <source></source>
        <translation>Non eseguire più il backup su “%1”?</translation>
    </message>
    <message id="disksRemoveAlertInformative">
        <source></source>
        <translation>I backup che contiene vengono conservati, e così la loro chiave. Per continuarli, aggiungi di nuovo la stessa cartella.</translation>
    </message>
    <message id="disksHomeAlertMessage">
        <source></source>
        <translation>Eseguire invece il backup di tutta la cartella Inizio?</translation>
    </message>
    <message id="disksHomeAlertInformative">
        <source></source>
        <translation>“%1” è l’unica cartella dell’elenco. Se l’elenco è vuoto, viene eseguito il backup di tutta la cartella Inizio.</translation>
    </message>
    <message id="disksReadFailed">
        <source></source>
        <translation>Impossibile leggere le impostazioni: %1</translation>
    </message>
    <message id="disksToolHangs">
        <source></source>
        <translation>tmutil non risponde.</translation>
    </message>
    <message id="disksToolMissing">
        <source></source>
        <translation>Impossibile avviare lo strumento “%1”.</translation>
    </message>
    <message id="disksToolFailed">
        <source></source>
        <translation>tmutil è terminato con lo stato di uscita %1.</translation>
    </message>
    <message id="disksToolUnreadable">
        <source></source>
        <translation>La risposta di tmutil non è comprensibile.</translation>
    </message>
    <message id="reasonWithDetail">
        <source></source>
        <translation>%1 (tmutil: %2)</translation>
    </message>
    <message id="reasonMissing">
        <source></source>
        <translation>Il disco di backup non è collegato o il percorso di rete non è raggiungibile.</translation>
    </message>
    <message id="reasonNoSpace">
        <source></source>
        <translation>Non c’è più spazio.</translation>
    </message>
    <message id="reasonCannotWrite">
        <source></source>
        <translation>Lì non è possibile scrivere.</translation>
    </message>
    <message id="reasonExists">
        <source></source>
        <translation>C’è già qualcosa con quel nome, e rimane.</translation>
    </message>
    <message id="reasonNotInBackups">
        <source></source>
        <translation>Non è nei backup.</translation>
    </message>
    <message id="reasonDamaged">
        <source></source>
        <translation>È danneggiato nel backup.</translation>
    </message>
    <message id="reasonNoAttributes">
        <source></source>
        <translation>Il contenuto è integro, ma non è stato possibile ripristinare il proprietario, i permessi o altri attributi.</translation>
    </message>
    <message id="reasonConnectionLost">
        <source></source>
        <translation>La connessione al server si è interrotta.</translation>
    </message>
    <message id="reasonAccessDenied">
        <source></source>
        <translation>Il server rifiuta l’utente, la password o la chiave.</translation>
    </message>
    <message id="reasonUntrusted">
        <source></source>
        <translation>Non è certo che questo sia il server giusto.</translation>
    </message>
    <message id="reasonServerFailed">
        <source></source>
        <translation>Il server segnala un proprio errore; potrebbe essere pieno.</translation>
    </message>
    <message id="reasonWrongKey">
        <source></source>
        <translation>La chiave dei backup manca o non è quella giusta.</translation>
    </message>
    <message id="reasonLocked">
        <source></source>
        <translation>I backup sono in uso. Riprova più tardi.</translation>
    </message>
    <message id="reasonResticMissing">
        <source></source>
        <translation>restic non è installato.</translation>
    </message>
    <message id="reasonNoRepository">
        <source></source>
        <translation>I backup mancano o sono danneggiati.</translation>
    </message>
    <message id="reasonNoInput">
        <source></source>
        <translation>Il file o la cartella non c’è.</translation>
    </message>
    <message id="reasonConfiguration">
        <source></source>
        <translation>Le impostazioni dei backup sono danneggiate.</translation>
    </message>
    <message id="reasonNoWorkSpace">
        <source></source>
        <translation>Nella cartella Inizio non c’è spazio per i file temporanei.</translation>
    </message>
    <message id="disksRoom">
        <source></source>
        <translation>%1 disponibili di %2</translation>
    </message>
    <message id="disksTaken">
        <source></source>
        <translation>I backup occupano %1</translation>
    </message>
    <message id="disksProblem">
        <source></source>
        <translation>Ultimo problema (%1): %2</translation>
    </message>
    <message id="disksKeyNotKept">
        <source></source>
        <translation>Chiave di recupero non ancora conservata</translation>
    </message>
    <message id="disksSourceOnDisk">
        <source></source>
        <translation>Anche la cartella “%1” è su questo disco: se si guasta, si perde tutto</translation>
    </message>
    <message id="disksKeyBar">
        <source></source>
        <translation>Se perdi questo computer, i backup su “%1” non sono leggibili senza una chiave di recupero.</translation>
    </message>
    <message id="disksShowKeyTitle">
        <source></source>
        <translation>Mostra chiave di recupero</translation>
    </message>
    <message id="disksKeyHeading">
        <source></source>
        <translation>Chiave di recupero di “%1”</translation>
    </message>
    <message id="disksKeyExplanation">
        <source></source>
        <translation>Se perdi questo computer, questa chiave e il disco ti restituiscono i backup. Annotala o registrala come pagina e conservala lontano da questo computer e dal disco. Chi ha entrambi può leggere i backup.</translation>
    </message>
    <message id="disksKeyOnce">
        <source></source>
        <translation>Questa chiave è nuova e viene mostrata solo ora. Quando l’hai conservata, le chiavi mostrate prima non aprono più nulla.</translation>
    </message>
    <message id="disksSavePageTitle">
        <source></source>
        <translation>Registra come pagina</translation>
    </message>
    <message id="disksLaterTitle">
        <source></source>
        <translation>Più tardi</translation>
    </message>
    <message id="disksKeptTitle">
        <source></source>
        <translation>L’ho conservata</translation>
    </message>
    <message id="disksKeyFailed">
        <source></source>
        <translation>Impossibile creare una chiave di recupero per “%1”.</translation>
    </message>
    <message id="disksKeepFailed">
        <source></source>
        <translation>Impossibile annotare che hai conservato la chiave di recupero di “%1”.</translation>
    </message>
    <message id="disksPageFailed">
        <source></source>
        <translation>Impossibile registrare la pagina.</translation>
    </message>
    <message id="disksPagePdf">
        <source></source>
        <translation>Documento PDF</translation>
    </message>
    <message id="disksPageText">
        <source></source>
        <translation>File di testo</translation>
    </message>
    <message id="disksPageOnDiskMessage">
        <source></source>
        <translation>Registrare la pagina proprio sul disco di backup?</translation>
    </message>
    <message id="disksPageOnDiskInformative">
        <source></source>
        <translation>Chi prende il disco avrebbe anche la chiave, e se il disco si guasta anche la pagina va persa.</translation>
    </message>
    <message id="disksSaveTitle">
        <source></source>
        <translation>Registra</translation>
    </message>
    <message id="disksPageMade">
        <source></source>
        <translation>Creata il %1. Conserva questa pagina lontano dal computer e dal disco. Chi ha entrambi può leggere i backup.</translation>
    </message>
    <message id="disksPageSteps">
        <source></source>
        <translation>Se il computer va perso, su uno nuovo</translation>
    </message>
    <message id="disksPageConnect">
        <source></source>
        <translation>Installa Quillon e collega il disco.</translation>
    </message>
    <message id="disksPageAdopt">
        <source></source>
        <translation>%1 chiede la chiave di recupero e acquisisce il disco.</translation>
    </message>
    <message id="disksPageList">
        <source></source>
        <translation>%1 elenca i backup.</translation>
    </message>
    <message id="disksPageRestore">
        <source></source>
        <translation>%1 ripristina una cartella.</translation>
    </message>
    <message id="disksPageContinue">
        <source></source>
        <translation>%1 continua i backup.</translation>
    </message>
    <message id="disksAddTitle">
        <source></source>
        <translation>Aggiungi</translation>
    </message>
    <message id="disksAddNameTitle">
        <source></source>
        <translation>Aggiungi modello di nome</translation>
    </message>
    <message id="disksAddSizeTitle">
        <source></source>
        <translation>Aggiungi limite di dimensione</translation>
    </message>
    <message id="disksByName">
        <source></source>
        <translation>File e cartelle con questo nome, ovunque si trovino</translation>
    </message>
    <message id="disksBySize">
        <source></source>
        <translation>In tutte le cartelle</translation>
    </message>
    <message id="disksLargerThan">
        <source></source>
        <translation>File oltre %1</translation>
    </message>
    <message id="disksNamePrompt">
        <source></source>
        <translation>Escludi file e cartelle con nome</translation>
    </message>
    <message id="disksNameHint">
        <source></source>
        <translation>* sta per caratteri qualsiasi, ? per uno solo.</translation>
    </message>
    <message id="disksSizePrompt">
        <source></source>
        <translation>Escludi i file oltre</translation>
    </message>
    <message id="disksCounting">
        <source></source>
        <translation>Conteggio dei file esclusi…</translation>
    </message>
    <message id="disksPreview">
        <source></source>
        <translation>File esclusi al momento: %1 (%2)</translation>
    </message>
    <message id="disksPreviewNothing">
        <source></source>
        <translation>Al momento nessun file sarebbe escluso.</translation>
    </message>
    <message id="disksLeaveOutTitle">
        <source></source>
        <translation>Escludi</translation>
    </message>
    <message id="disksListing">
        <source></source>
        <translation>Ricerca dei dischi…</translation>
    </message>
    <message id="disksListFailed">
        <source></source>
        <translation>Impossibile elencare i dischi</translation>
    </message>
    <message id="disksEditTitle">
        <source></source>
        <translation>Modifica</translation>
    </message>
    <message id="disksAddPlaceTitle">
        <source></source>
        <translation>Aggiungi percorso di rete</translation>
    </message>
    <message id="disksEditPlaceTitle">
        <source></source>
        <translation>Accesso a “%1”</translation>
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
        <translation>Server REST di restic</translation>
    </message>
    <message id="disksPlaceS3">
        <source></source>
        <translation>Archiviazione compatibile con S3</translation>
    </message>
    <message id="disksPlaceAddress">
        <source></source>
        <translation>Indirizzo</translation>
    </message>
    <message id="disksPlaceServer">
        <source></source>
        <translation>Server</translation>
    </message>
    <message id="disksPlacePort">
        <source></source>
        <translation>Porta</translation>
    </message>
    <message id="disksPlaceFolder">
        <source></source>
        <translation>Cartella</translation>
    </message>
    <message id="disksPlacePath">
        <source></source>
        <translation>Percorso</translation>
    </message>
    <message id="disksPlaceBucket">
        <source></source>
        <translation>Bucket</translation>
    </message>
    <message id="disksPlaceUser">
        <source></source>
        <translation>Nome utente</translation>
    </message>
    <message id="disksPlaceKeyFile">
        <source></source>
        <translation>File della chiave</translation>
    </message>
    <message id="disksPlacePassword">
        <source></source>
        <translation>Password</translation>
    </message>
    <message id="disksPlaceAccessKey">
        <source></source>
        <translation>Chiave di accesso</translation>
    </message>
    <message id="disksPlaceSecretKey">
        <source></source>
        <translation>Chiave segreta</translation>
    </message>
    <message id="disksPlaceRegion">
        <source></source>
        <translation>Regione</translation>
    </message>
    <message id="disksPlaceSecure">
        <source></source>
        <translation>Connessione codificata (HTTPS)</translation>
    </message>
    <message id="disksPlaceCertificate">
        <source></source>
        <translation>File del certificato</translation>
    </message>
    <message id="disksPlaceUpload">
        <source></source>
        <translation>Limite di upload</translation>
    </message>
    <message id="disksPlaceDownload">
        <source></source>
        <translation>Limite di download</translation>
    </message>
    <message id="disksPlaceNoLimit">
        <source></source>
        <translation>Nessuno</translation>
    </message>
    <message id="disksPlaceUploadAtMost">
        <source></source>
        <translation>Upload al massimo %1</translation>
    </message>
    <message id="disksPlaceDownloadAtMost">
        <source></source>
        <translation>Download al massimo %1</translation>
    </message>
    <message id="disksPlaceOptional">
        <source></source>
        <translation>Facoltativo</translation>
    </message>
    <message id="disksPlaceUnchanged">
        <source></source>
        <translation>Invariato</translation>
    </message>
    <message id="disksPlaceChooseTitle">
        <source></source>
        <translation>Scegli</translation>
    </message>
    <message id="disksPlaceNeeded">
        <source></source>
        <translation>Manca ancora: %1</translation>
    </message>
    <message id="disksPlaceBadServer">
        <source></source>
        <translation>Indica solo il nome o l’indirizzo del server, per esempio nas.example.org.</translation>
    </message>
    <message id="disksPlaceBadPort">
        <source></source>
        <translation>Una porta è un numero da 1 a 65535.</translation>
    </message>
    <message id="disksPlaceBadFolder">
        <source></source>
        <translation>La cartella inizia con / oppure, se è nella tua cartella sul server, con ~/.</translation>
    </message>
    <message id="disksPlaceBadFile">
        <source></source>
        <translation>Un file si indica con il percorso completo, che inizia con /.</translation>
    </message>
    <message id="disksPlaceUserAndPassword">
        <source></source>
        <translation>Indica sia il nome utente sia la password, o nessuno dei due.</translation>
    </message>
    <message id="disksPlaceTryTitle">
        <source></source>
        <translation>Prova</translation>
    </message>
    <message id="disksPlaceTrustTitle">
        <source></source>
        <translation>Autorizza</translation>
    </message>
    <message id="disksPlaceTakeUpTitle">
        <source></source>
        <translation>Acquisisci</translation>
    </message>
    <message id="disksPlaceAsking">
        <source></source>
        <translation>Interrogazione del server…</translation>
    </message>
    <message id="disksPlaceKeeping">
        <source></source>
        <translation>Configurazione del percorso…</translation>
    </message>
    <message id="disksPlaceEmpty">
        <source></source>
        <translation>Il server può essere usato. Lì non ci sono ancora backup.</translation>
    </message>
    <message id="disksPlaceBackups">
        <source></source>
        <translation>Il server può essere usato. Lì ci sono backup che questo computer può leggere; verranno continuati.</translation>
    </message>
    <message id="disksPlaceWrongKey">
        <source></source>
        <translation>Lì ci sono backup di cui questo computer non ha la chiave. Se sono tuoi, inserisci la loro chiave di recupero per continuarli; altrimenti scegli un altro percorso.</translation>
    </message>
    <message id="disksPlaceRecoveryKey">
        <source></source>
        <translation>Chiave di recupero</translation>
    </message>
    <message id="disksPlaceFingerprint">
        <source></source>
        <translation>Impronta della chiave del server</translation>
    </message>
    <message id="disksPlaceUnknownKey">
        <source></source>
        <translation>“%1” non è ancora noto a questo computer. Confronta l’impronta della sua chiave con quella che ti comunica l’amministratore e autorizzala solo se sono uguali.</translation>
    </message>
    <message id="disksPlaceChangedKey">
        <source></source>
        <translation>Attenzione: “%1” mostra una chiave diversa da prima. Qualcuno potrebbe intercettare la connessione. Autorizza la nuova chiave solo se l’amministratore del server conferma il cambio e questa impronta.</translation>
    </message>
    <message id="disksPlaceChangedKeyMessage">
        <source></source>
        <translation>Autorizzare la nuova chiave di “%1”?</translation>
    </message>
    <message id="disksPlaceChangedKeyInformative">
        <source></source>
        <translation>Se non è quella del server, ciò che viene inviato arriva a qualcun altro.</translation>
    </message>
    <message id="disksPlaceBadCertificate">
        <source></source>
        <translation>Il certificato di “%1” non è attendibile; potrebbe essere un altro server. Se il certificato è tuo, scegli quello, o quello di chi l’ha emesso, come file del certificato.</translation>
    </message>
    <message id="disksPlaceAccessDeniedKey">
        <source></source>
        <translation>“%1” rifiuta l’utente o la chiave. Controlla entrambi. La chiave pubblica deve essere configurata sul server e il file della chiave non deve avere una passphrase.</translation>
    </message>
    <message id="disksPlaceAccessDenied">
        <source></source>
        <translation>“%1” rifiuta l’accesso. Controlla ciò che hai inserito: il nome utente e la password, o le chiavi.</translation>
    </message>
    <message id="disksPlaceNoPermission">
        <source></source>
        <translation>Lì non è possibile scrivere. Scegli un altro percorso sul server o chiedi il permesso all’amministratore.</translation>
    </message>
    <message id="disksPlaceNoAnswer">
        <source></source>
        <translation>“%1” non risponde. Controlla il server e la porta, e che questo computer sia collegato alla rete.</translation>
    </message>
    <message id="disksPlaceNoSpace">
        <source></source>
        <translation>Sul server non c’è più spazio. Libera spazio o scegli un altro percorso.</translation>
    </message>
    <message id="disksPlaceFailed">
        <source></source>
        <translation>Il server non può essere usato: %1</translation>
    </message>
    <message id="disksPlaceRemoveInformative">
        <source></source>
        <translation>I backup che contiene vengono conservati, e così la loro chiave; i dati di accesso al server vengono eliminati. Per continuarli, aggiungi di nuovo lo stesso percorso.</translation>
    </message>
    <message id="disksPlaceKeyExplanation">
        <source></source>
        <translation>Se perdi questo computer, questa chiave e l’accesso al server ti restituiscono i backup. Annotala o registrala come pagina e conservala lontano da questo computer, insieme ai dati di accesso al server. Chi ha entrambi può leggere i backup.</translation>
    </message>
    <message id="disksPlacePageMade">
        <source></source>
        <translation>Creata il %1. Conserva questa pagina lontano dal computer. Chi ha la pagina e accede al server può leggere i backup.</translation>
    </message>
    <message id="disksPlacePageStart">
        <source></source>
        <translation>Installa Quillon e avvia %1.</translation>
    </message>
    <message id="disksPlacePageAdd">
        <source></source>
        <translation>Scegli “%1”, inserisci %2 come server e i dati di accesso, poi la chiave di recupero quando viene chiesta.</translation>
    </message>
    <!-- Window of the backups on Linux -->
    <message id="browseWindowTitle">
        <source></source>
        <translation>Backup di Time Machine</translation>
    </message>
    <message id="browseThisWeek">
        <source></source>
        <translation>Questa settimana</translation>
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
        <translation>Danneggiato</translation>
    </message>
    <message id="browseIncomplete">
        <source></source>
        <translation>Incompleto</translation>
    </message>
    <message id="browseRestoring">
        <source></source>
        <translation>Ripristino …</translation>
    </message>
    <message id="browseRestoreProgress">
        <source></source>
        <translation>%1 di %2 file, %3 di %4</translation>
    </message>
    <message id="browseRestoreStopped">
        <source></source>
        <translation>Interrotto. Ciò che non era ancora ripristinato resta com’era.</translation>
    </message>
    <message id="browseRestoredCount">
        <source></source>
        <translation>Ripristinati: %1</translation>
    </message>
    <message id="browseSkippedCount">
        <source></source>
        <translation>Ignorati: %1</translation>
    </message>
    <message id="browseLostCount">
        <source></source>
        <translation>Non ripristinati: %1</translation>
    </message>
    <message id="browseConflictMessage">
        <source></source>
        <translation>“%1” esiste già.</translation>
    </message>
    <message id="browseNameColumn">
        <source></source>
        <translation>Nome</translation>
    </message>
    <message id="browseSizeColumn">
        <source></source>
        <translation>Dimensioni</translation>
    </message>
    <message id="browseModifiedColumn">
        <source></source>
        <translation>Modifica</translation>
    </message>
    <message id="browseSinceColumn">
        <source></source>
        <translation>In seguito</translation>
    </message>
    <message id="browseFolderColumn">
        <source></source>
        <translation>Cartella</translation>
    </message>
    <message id="browseBackupColumn">
        <source></source>
        <translation>Backup</translation>
    </message>
    <message id="browseSortTip">
        <source></source>
        <translation>Ordina per questa colonna (%1)</translation>
    </message>
    <message id="browseChanged">
        <source></source>
        <translation>Modificato</translation>
    </message>
    <message id="browseGone">
        <source></source>
        <translation>Eliminato</translation>
    </message>
    <message id="browseFolderKind">
        <source></source>
        <translation>Cartella</translation>
    </message>
    <message id="browseLinkTo">
        <source></source>
        <translation>Collegamento a %1</translation>
    </message>
    <message id="browseDiskLabel">
        <source></source>
        <translation>Backup su</translation>
    </message>
    <message id="browseTimelineName">
        <source></source>
        <translation>Backup</translation>
    </message>
    <message id="browseFilesName">
        <source></source>
        <translation>File nel backup</translation>
    </message>
    <message id="browsePathLabel">
        <source></source>
        <translation>Cartella nel backup</translation>
    </message>
    <message id="browseBackTitle">
        <source></source>
        <translation>Indietro</translation>
    </message>
    <message id="browseUpTitle">
        <source></source>
        <translation>Cartella superiore</translation>
    </message>
    <message id="browseSearchPrompt">
        <source></source>
        <translation>Cerca nomi</translation>
    </message>
    <message id="browseAllBackups">
        <source></source>
        <translation>In tutti i backup</translation>
    </message>
    <message id="browseVersionsName">
        <source></source>
        <translation>Versioni</translation>
    </message>
    <message id="browseVersionsHint">
        <source></source>
        <translation>Scegli un file per vederne le versioni.</translation>
    </message>
    <message id="browseNoVersions">
        <source></source>
        <translation>Nessun backup lo contiene.</translation>
    </message>
    <message id="browsePreviewTitle">
        <source></source>
        <translation>Anteprima</translation>
    </message>
    <message id="browseRestoreTitle">
        <source></source>
        <translation>Ripristina</translation>
    </message>
    <message id="browseReading">
        <source></source>
        <translation>Lettura …</translation>
    </message>
    <message id="browseEmptyFolder">
        <source></source>
        <translation>Questa cartella è vuota.</translation>
    </message>
    <message id="browseNothingFound">
        <source></source>
        <translation>Nessun elemento con questo nome.</translation>
    </message>
    <message id="browseSearching">
        <source></source>
        <translation>Ricerca …</translation>
    </message>
    <message id="browseFilling">
        <source></source>
        <translation>Lettura dell’intero backup per la ricerca: %1</translation>
    </message>
    <message id="browseReadFailed">
        <source></source>
        <translation>Impossibile leggere: %1</translation>
    </message>
    <message id="browseNoDiskMessage">
        <source></source>
        <translation>Nessun disco di backup o percorso di rete è configurato. Scegline uno nelle impostazioni di Time Machine per salvarvi i tuoi file.</translation>
    </message>
    <message id="browseNoBackupMessage">
        <source></source>
        <translation>Non c’è nessun backup da esplorare. Collega il disco di backup o la rete, o attendi il primo backup.</translation>
    </message>
    <message id="browseSettingsTitle">
        <source></source>
        <translation>Impostazioni di Time Machine</translation>
    </message>
    <message id="browsePreviewing">
        <source></source>
        <translation>Recupero di “%1” …</translation>
    </message>
    <message id="browsePreviewFailed">
        <source></source>
        <translation>Impossibile mostrare “%1”.</translation>
    </message>
    <message id="browseNoProgram">
        <source></source>
        <translation>Non è stato possibile aprire un programma adatto.</translation>
    </message>
    <message id="browseRestoreHeading">
        <source></source>
        <translation>Ripristina “%1”</translation>
    </message>
    <message id="browseRestoreManyHeading">
        <source></source>
        <translation>Ripristina %1 elementi</translation>
    </message>
    <message id="browseFromBackup">
        <source></source>
        <translation>Dal backup del %1</translation>
    </message>
    <message id="browseToItsPlace">
        <source></source>
        <translation>Dove si trovava</translation>
    </message>
    <message id="browseToFolder">
        <source></source>
        <translation>In un’altra cartella</translation>
    </message>
    <message id="browseChooseFolderTitle">
        <source></source>
        <translation>Scegli cartella</translation>
    </message>
    <message id="browseNothingOverwritten">
        <source></source>
        <translation>Nulla viene sovrascritto senza chiedertelo.</translation>
    </message>
    <message id="browseKeepBothTitle">
        <source></source>
        <translation>Conserva entrambi</translation>
    </message>
    <message id="browseReplaceTitle">
        <source></source>
        <translation>Sostituisci</translation>
    </message>
    <message id="browseSkipTitle">
        <source></source>
        <translation>Ignora</translation>
    </message>
    <message id="browseForAll">
        <source></source>
        <translation>Fai lo stesso per tutti gli altri</translation>
    </message>
    <message id="browseStopTitle">
        <source></source>
        <translation>Interrompi</translation>
    </message>
    <message id="browseStopping">
        <source></source>
        <translation>Interruzione …</translation>
    </message>
    <message id="browseLossesName">
        <source></source>
        <translation>Ciò che non è tornato</translation>
    </message>
    <!-- The log of backups -->
    <message id="logWindowTitle">
        <source></source>
        <translation>Registro backup</translation>
    </message>
    <message id="logDateTitle">
        <source></source>
        <translation>Data</translation>
    </message>
    <message id="logOutcomeTitle">
        <source></source>
        <translation>Esito</translation>
    </message>
    <message id="logCauseTitle">
        <source></source>
        <translation>Avviato da</translation>
    </message>
    <message id="logDiskTitle">
        <source></source>
        <translation>Disco</translation>
    </message>
    <message id="logSizeTitle">
        <source></source>
        <translation>Copiato</translation>
    </message>
    <message id="logDurationTitle">
        <source></source>
        <translation>Durata</translation>
    </message>
    <message id="logBytesTitle">
        <source></source>
        <translation>Byte</translation>
    </message>
    <message id="logBeganTitle">
        <source></source>
        <translation>Inizio</translation>
    </message>
    <message id="logEndedTitle">
        <source></source>
        <translation>Fine</translation>
    </message>
    <message id="logReasonTitle">
        <source></source>
        <translation>Motivo</translation>
    </message>
    <message id="logRunningTitle">
        <source></source>
        <translation>In corso</translation>
    </message>
    <message id="logCompletedTitle">
        <source></source>
        <translation>Completato</translation>
    </message>
    <message id="logFailedTitle">
        <source></source>
        <translation>Non riuscito</translation>
    </message>
    <message id="logStoppedTitle">
        <source></source>
        <translation>Interrotto</translation>
    </message>
    <message id="logUnseenTitle">
        <source></source>
        <translation>Non osservato</translation>
    </message>
    <message id="logSkippedTitle">
        <source></source>
        <translation>Saltato</translation>
    </message>
    <message id="logMissedTitle">
        <source></source>
        <translation>Mancato</translation>
    </message>
    <message id="logRefusedTitle">
        <source></source>
        <translation>Rifiutato</translation>
    </message>
    <message id="logScheduleTitle">
        <source></source>
        <translation>Programmazione</translation>
    </message>
    <message id="logRetryTitle">
        <source></source>
        <translation>Nuovo tentativo</translation>
    </message>
    <message id="logUserTitle">
        <source></source>
        <translation>Utente</translation>
    </message>
    <message id="logElsewhereTitle">
        <source></source>
        <translation>Fuori da Quillon</translation>
    </message>
    <message id="logAllTitle">
        <source></source>
        <translation>Tutto</translation>
    </message>
    <message id="logNoBackupTitle">
        <source></source>
        <translation>Nessun backup</translation>
    </message>
    <message id="logDaysMessage">
        <source></source>
        <translation>Gli ultimi %1 giorni: %2 con un backup, %3 solo con problemi</translation>
    </message>
    <message id="logCopyTitle">
        <source></source>
        <translation>Copia come testo</translation>
    </message>
    <message id="logSaveTitle">
        <source></source>
        <translation>Registra come CSV</translation>
    </message>
    <message id="logSaveFailedTitle">
        <source></source>
        <translation>Impossibile registrare il file.</translation>
    </message>
    <message id="logEmptyMessage">
        <source></source>
        <translation>Il registro è ancora vuoto.</translation>
    </message>
    <message id="logNothingFoundMessage">
        <source></source>
        <translation>Nessuna voce corrisponde.</translation>
    </message>
    <message id="logUnreadableMessage">
        <source></source>
        <translation>Impossibile leggere il registro. I backup vengono eseguiti comunque.</translation>
    </message>
    <message id="logNextMessage">
        <source></source>
        <translation>Programmato in seguito: %1</translation>
    </message>
    <message id="logAskedMessage">
        <source></source>
        <translation>Questo avvio è stato saltato con un comando.</translation>
    </message>
    <message id="logOnBatteryMessage">
        <source></source>
        <translation>Il computer funzionava a batteria. Il backup verrà eseguito quando sarà di nuovo collegato all’alimentazione, a meno che il successivo non venga prima.</translation>
    </message>
    <message id="logPausedMessage">
        <source></source>
        <translation>La programmazione era sospesa. Riprendila dal menu per eseguire di nuovo i backup.</translation>
    </message>
    <message id="logAsleepMessage">
        <source></source>
        <translation>Il computer era in stop. Scegli orari in cui è attivo o fai ritentare i backup mancati.</translation>
    </message>
    <message id="logClockSetMessage">
        <source></source>
        <translation>L’orologio è stato spostato oltre quest’ora o il computer era troppo occupato.</translation>
    </message>
    <message id="logBackupRanMessage">
        <source></source>
        <translation>Era già in corso un altro backup, che ha sostituito questo.</translation>
    </message>
    <message id="logOvertakenMessage">
        <source></source>
        <translation>Nello stesso momento è stato avviato un altro backup, che ha sostituito questo.</translation>
    </message>
    <message id="logStatusUnreadableMessage">
        <source></source>
        <translation>Time Machine non ha indicato il suo stato. Se succede di nuovo, riavvia il computer.</translation>
    </message>
    <message id="logSettingsChangedMessage">
        <source></source>
        <translation>La programmazione è stata sospesa o modificata proprio in quel momento.</translation>
    </message>
    <message id="logIncompleteMessage">
        <source></source>
        <translation>Il backup è terminato prima di essere completo. Verifica che il disco sia collegato e abbia spazio.</translation>
    </message>
    <message id="logStoppedElsewhereMessage">
        <source></source>
        <translation>Il backup è stato interrotto fuori da Quillon.</translation>
    </message>
    <message id="logNeverReportedMessage">
        <source></source>
        <translation>Time Machine ha accettato l’avvio, ma non è stato osservato alcun backup. Forse è stato troppo breve.</translation>
    </message>
    <message id="logNotFollowedMessage">
        <source></source>
        <translation>Quillon si è chiuso prima del backup. Sfoglia i backup per vedere se è stato completato.</translation>
    </message>
</context>
</TS>
