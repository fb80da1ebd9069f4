<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<!-- Code adds the colon or the ellipsis that a title stands before; texts have none, but for scheduleTitle. -->
<context>
    <name></name>
    <!-- Days -->
    <message id="todayTitle">
        <source></source>
        <translation>Heute</translation>
    </message>
    <message id="tomorrowTitle">
        <source></source>
        <translation>Morgen</translation>
    </message>
    <message id="yesterdayTitle">
        <source></source>
        <translation>Gestern</translation>
    </message>
    <!-- What Time Machine is doing -->
    <message id="notAvailableAbbreviation">
        <source></source>
        <translation>k. A.</translation>
    </message>
    <message id="tmPhaseDefault">
        <source></source>
        <translation>Nicht aktiv</translation>
    </message>
    <message id="tmPhaseUnknown">
        <source></source>
        <translation>Unbekannt</translation>
    </message>
    <message id="tmPhaseStarting">
        <source></source>
        <translation>Wird gestartet</translation>
    </message>
    <message id="tmPhaseLookingForDisk">
        <source></source>
        <translation>Backup-Volume wird gesucht</translation>
    </message>
    <message id="tmPhaseConnectingToDisk">
        <source></source>
        <translation>Verbindung zum Backup-Volume wird hergestellt</translation>
    </message>
    <message id="tmPhasePreparingBackup">
        <source></source>
        <translation>Backup wird vorbereitet</translation>
    </message>
    <message id="tmPhaseCopying">
        <source></source>
        <translation>Kopieren</translation>
    </message>
    <message id="tmPhaseCleaningUp">
        <source></source>
        <translation>Aufräumen</translation>
    </message>
    <message id="tmPhaseHealthCheck">
        <source></source>
        <translation>Backup wird überprüft</translation>
    </message>
    <message id="tmPhaseFinishing">
        <source></source>
        <translation>Wird abgeschlossen</translation>
    </message>
    <!-- Alerts -->
    <message id="AlertButtonClose">
        <source></source>
        <translation>Schließen</translation>
    </message>
    <message id="AlertButtonProvidePermission">
        <source></source>
        <translation>Zugriff erlauben</translation>
    </message>
    <message id="permissionRequiredAlertTitle">
        <source></source>
        <translation>Zugriff erforderlich</translation>
    </message>
    <message id="timeMachinePermissionRequiredAlertMessage">
        <source></source>
        <translation>Die Time Machine-Einstellungen lassen sich erst öffnen, wenn %2 die Systemeinstellungen steuern darf. Dies lässt sich über „%1“ festlegen; danach kann der Vorgang wiederholt werden.</translation>
    </message>
    <!-- Menu bar title -->
    <message id="nextBackupShortTitle">
        <source></source>
        <translation>Nächstes</translation>
    </message>
    <message id="retryBackupShortTitle">
        <source></source>
        <translation>Erneut</translation>
    </message>
    <message id="statusStarting">
        <source></source>
        <translation>Startet</translation>
    </message>
    <message id="statusRunning">
        <source></source>
        <translation>Läuft</translation>
    </message>
    <message id="statusStopping">
        <source></source>
        <translation>Wird gestoppt</translation>
    </message>
    <!-- What the icon stands for -->
    <message id="iconRunningDescription">
        <source></source>
        <translation>Ein Backup läuft.</translation>
    </message>
    <message id="iconFailedDescription">
        <source></source>
        <translation>Das letzte Backup ist fehlgeschlagen.</translation>
    </message>
    <message id="iconMissedDescription">
        <source></source>
        <translation>Ein geplantes Backup wurde verpasst.</translation>
    </message>
    <message id="iconUpdateDescription">
        <source></source>
        <translation>Ein Update ist verfügbar.</translation>
    </message>
    <!-- Why sleep waits for a moment -->
    <message id="sleepWaitsMessage">
        <source></source>
        <translation>Der Zeitplan der Backups wird angehalten.</translation>
    </message>
    <!-- Menu -->
    <message id="latestBackupTitle">
        <source></source>
        <translation>Letztes Backup</translation>
    </message>
    <message id="phaseTitle">
        <source></source>
        <translation>Phase</translation>
    </message>
    <message id="copiedWord">
        <source></source>
        <translation>kopiert</translation>
    </message>
    <message id="backupDiskTitle">
        <source></source>
        <translation>Backup-Volume</translation>
    </message>
    <message id="nextBackupTitle">
        <source></source>
        <translation>Nächstes Backup</translation>
    </message>
    <message id="nextBackupDisabled">
        <source></source>
        <translation>Deaktiviert</translation>
    </message>
    <message id="nextBackupNotAvailable">
        <source></source>
        <translation>Kein Backup geplant</translation>
    </message>
    <message id="retryAttemptTitle">
        <source></source>
        <translation>Neuer Versuch</translation>
    </message>
    <message id="remainingTimeTitle">
        <source></source>
        <translation>Verbleibende Zeit</translation>
    </message>
    <message id="calculatingTitle">
        <source></source>
        <translation>Wird berechnet</translation>
    </message>
    <message id="backupNowTitle">
        <source></source>
        <translation>Backup jetzt erstellen</translation>
    </message>
    <message id="skipThisBackupTitle">
        <source></source>
        <translation>Dieses Backup überspringen</translation>
    </message>
    <message id="skipThisBackupTitleVentura">
        <source></source>
        <translation>Dieses Backup überspringen</translation>
    </message>
    <message id="skipRetryAttemptTitle">
        <source></source>
        <translation>Neuen Versuch überspringen</translation>
    </message>
    <message id="enterTimeMachineTitle">
        <source></source>
        <translation>Time Machine öffnen</translation>
    </message>
    <message id="enterTimeMachineTitleVentura">
        <source></source>
        <translation>Time Machine-Backups durchsuchen</translation>
    </message>
    <message id="openSystemPreferencesTitle">
        <source></source>
        <translation>Systemeinstellung „Time Machine“ öffnen</translation>
    </message>
    <message id="openSystemPreferencesTitleVentura">
        <source></source>
        <translation>Time Machine-Einstellungen öffnen</translation>
    </message>
    <message id="updateAvailableMenuTitle">
        <source></source>
        <translation>Update verfügbar</translation>
    </message>
    <message id="preferencesMenuTitle">
        <source></source>
        <translation>Einstellungen</translation>
    </message>
    <message id="aboutMenuTitle">
        <source></source>
        <translation>Über Quillon</translation>
    </message>
    <message id="quitApplicationTitle">
        <source></source>
        <translation>%1 beenden</translation>
    </message>
    <!-- Pause -->
    <message id="pauseScheduleForTitle">
        <source></source>
        <translation>Zeitplan pausieren für</translation>
    </message>
    <message id="pauseScheduleUntilTitle">
        <source></source>
        <translation>Zeitplan pausiert bis</translation>
    </message>
    <message id="resumeScheduleTitle">
        <source></source>
        <translation>Zeitplan fortsetzen</translation>
    </message>
    <message id="oneHourTitle">
        <source></source>
        <translation>1 Stunde</translation>
    </message>
    <message id="twoHoursTitle">
        <source></source>
        <translation>2 Stunden</translation>
    </message>
    <message id="fourHoursTitle">
        <source></source>
        <translation>4 Stunden</translation>
    </message>
    <message id="eightHoursTitle">
        <source></source>
        <translation>8 Stunden</translation>
    </message>
    <message id="twelveHoursTitle">
        <source></source>
        <translation>12 Stunden</translation>
    </message>
    <message id="oneDayTitle">
        <source></source>
        <translation>1 Tag</translation>
    </message>
    <message id="twoDaysTitle">
        <source></source>
        <translation>2 Tage</translation>
    </message>
    <message id="threeDaysTitle">
        <source></source>
        <translation>3 Tage</translation>
    </message>
    <message id="fourDaysTitle">
        <source></source>
        <translation>4 Tage</translation>
    </message>
    <message id="fiveDaysTitle">
        <source></source>
        <translation>5 Tage</translation>
    </message>
    <message id="sixDaysTitle">
        <source></source>
        <translation>6 Tage</translation>
    </message>
    <message id="oneWeekTitle">
        <source></source>
        <translation>1 Woche</translation>
    </message>
    <message id="twoWeeksTitle">
        <source></source>
        <translation>2 Wochen</translation>
    </message>
    <message id="threeWeeksTitle">
        <source></source>
        <translation>3 Wochen</translation>
    </message>
    <message id="fourWeeksTitle">
        <source></source>
        <translation>4 Wochen</translation>
    </message>
    <!-- The menu as it opens -->
    <message id="letMacOsDecideBackupDiskTitle">
        <source></source>
        <translation>Time Machine entscheiden lassen</translation>
    </message>
    <message id="mostRecentTitle">
        <source></source>
        <translation>zuletzt verwendet</translation>
    </message>
    <message id="latestBackupOfEachDestinationTitle">
        <source></source>
        <translation>Letztes Backup auf jedem Volume</translation>
    </message>
    <message id="allBackupInfoHelpMessage">
        <source></source>
        <translation>Diese Liste zeigt für jedes Backup-Volume das letzte Backup, dessen Abschluss Quillon beobachtet hat. Auf einem Volume ohne Datum wurde kein Backup abgeschlossen, seit Quillon installiert ist.</translation>
    </message>
    <message id="helpButtonTitle">
        <source></source>
        <translation>Hilfe</translation>
    </message>
    <!-- What the commands tell -->
    <message id="AlertTitleWarning">
        <source></source>
        <translation>Achtung</translation>
    </message>
    <message id="failedToStartBackupMessage">
        <source></source>
        <translation>Das Backup konnte nicht gestartet werden. Time Machine meldete den Fehlercode %1.</translation>
    </message>
    <message id="startDiskAwayMessage">
        <source></source>
        <translation>Das Backup-Volume ist nicht verbunden, oder der Server mit den Backups ist nicht erreichbar.</translation>
    </message>
    <message id="startResticMissingMessage">
        <source></source>
        <translation>Das Programm restic, das die Backups erstellt, ist nicht installiert.</translation>
    </message>
    <message id="appUpdateAvailableAlertTitle">
        <source></source>
        <translation>Quillon %1 ist verfügbar</translation>
    </message>
    <message id="appUpdateAvailableAlertMessage">
        <source></source>
        <translation>Installiert ist Version %1. Die Download-Seite wird im Browser geöffnet, und Quillon wird beendet, damit es ersetzt werden kann.</translation>
    </message>
    <message id="AlertButtonGetUpdate">
        <source></source>
        <translation>Update laden</translation>
    </message>
    <message id="AlertButtonCancel">
        <source></source>
        <translation>Abbrechen</translation>
    </message>
    <!-- The user’s own programs -->
    <message id="hookStoppedBackupMessage">
        <source></source>
        <translation>Das Programm „before“ hat den Start des Backups verhindert.</translation>
    </message>
    <message id="hookNotRunMessage">
        <source></source>
        <translation>„%1“ wurde nicht ausgeführt. Es muss eine ausführbare Datei sein, die nur du ändern kannst, in einem Ordner, den nur du ändern kannst.</translation>
    </message>
    <message id="hookTooLongMessage">
        <source></source>
        <translation>„%1“ wurde nach zehn Minuten beendet.</translation>
    </message>
    <message id="hookStatusMessage">
        <source></source>
        <translation>„%1“ endete mit Status %2.</translation>
    </message>
    <!-- Notifications of the desktop -->
    <message id="backupFailedTitle">
        <source></source>
        <translation>Backup fehlgeschlagen</translation>
    </message>
    <message id="backupFailedMessage">
        <source></source>
        <translation>Das letzte Backup endete, bevor es vollständig war.</translation>
    </message>
    <message id="noBackupForDaysTitle">
        <source></source>
        <translation>Kein aktuelles Backup</translation>
    </message>
    <message id="noBackupForDaysMessage">
        <source></source>
        <translation>Das letzte Backup wurde am %1 abgeschlossen.</translation>
    </message>
    <message id="noBackupYetMessage">
        <source></source>
        <translation>Es wurde noch kein Backup abgeschlossen.</translation>
    </message>
    <message id="startWithoutRunTitle">
        <source></source>
        <translation>Backup nicht gestartet</translation>
    </message>
    <message id="startWithoutRunMessage">
        <source></source>
        <translation>Time Machine hat den Start eines Backups angenommen, aber es läuft keines.</translation>
    </message>
    <message id="noProgressTitle">
        <source></source>
        <translation>Backup kommt nicht voran</translation>
    </message>
    <message id="noProgressMessage">
        <source></source>
        <translation>Das laufende Backup ist seit einer halben Stunde nicht vorangekommen.</translation>
    </message>
    <message id="damageFoundTitle">
        <source></source>
        <translation>Backups sind beschädigt</translation>
    </message>
    <message id="damageFoundMessage">
        <source></source>
        <translation>Time Machine hat Schäden in den Backups gefunden. Einige Dateien lassen sich möglicherweise nicht wiederherstellen.</translation>
    </message>
    <message id="startAheadTitle">
        <source></source>
        <translation>Backup startet gleich</translation>
    </message>
    <message id="startAheadMessage">
        <source></source>
        <translation>Das nächste Backup startet um %1 Uhr.</translation>
    </message>
    <message id="startAheadSkipTitle">
        <source></source>
        <translation>Überspringen</translation>
    </message>
    <message id="startAheadPostponeTitle">
        <source></source>
        <translation>In einer Stunde</translation>
    </message>
    <!-- Where there is no Time Machine application -->
    <!-- The schedule in the settings panel -->
    <message id="settingsGroupSchedule">
        <source></source>
        <translation>Geplante Backups</translation>
    </message>
    <message id="settingsEnableScheduledBackupsVia">
        <source></source>
        <translation>Backups planen nach</translation>
    </message>
    <message id="settingsOptionCalendarInterval">
        <source></source>
        <translation>Tag und Uhrzeit</translation>
    </message>
    <message id="settingsOptionInterval">
        <source></source>
        <translation>Intervall</translation>
    </message>
    <message id="scheduleTitle">
        <source></source>
        <translation>Zeitplan:</translation>
    </message>
    <message id="warningButtonTitle">
        <source></source>
        <translation>Warnung zu automatischen Backups</translation>
    </message>
    <message id="setupDisksButtonTitle">
        <source></source>
        <translation>Informationen zu den Backup-Volumes</translation>
    </message>
    <message id="addRuleTitle">
        <source></source>
        <translation>Regel hinzufügen</translation>
    </message>
    <message id="deleteRuleTitle">
        <source></source>
        <translation>Regel löschen</translation>
    </message>
    <!-- A rule as one sentence: back up, day, at, time of day -->
    <message id="backupTitle">
        <source></source>
        <translation>Backup</translation>
    </message>
    <message id="everyDayTitle">
        <source></source>
        <translation>jeden Tag</translation>
    </message>
    <message id="weekdaysTitle">
        <source></source>
        <translation>Montag bis Freitag</translation>
    </message>
    <message id="mondayTitle">
        <source></source>
        <translation>jeden Montag</translation>
    </message>
    <message id="tuesdayTitle">
        <source></source>
        <translation>jeden Dienstag</translation>
    </message>
    <message id="wednesdayTitle">
        <source></source>
        <translation>jeden Mittwoch</translation>
    </message>
    <message id="thursdayTitle">
        <source></source>
        <translation>jeden Donnerstag</translation>
    </message>
    <message id="fridayTitle">
        <source></source>
        <translation>jeden Freitag</translation>
    </message>
    <message id="saturdayTitle">
        <source></source>
        <translation>jeden Samstag</translation>
    </message>
    <message id="sundayTitle">
        <source></source>
        <translation>jeden Sonntag</translation>
    </message>
    <message id="atTimeTitle">
        <source></source>
        <translation>um</translation>
    </message>
    <!-- The interval page; the unit stands behind any number from 1 on -->
    <message id="settingsIntervalEvery">
        <source></source>
        <translation>Backup alle</translation>
    </message>
    <message id="settingsIntervalHours">
        <source></source>
        <translation>Stunden</translation>
    </message>
    <message id="settingsIntervalHour">
        <source></source>
        <translation>Stunde</translation>
    </message>
    <message id="settingsIntervalNotYetUsed">
        <source></source>
        <translation>Das Intervall wird noch nicht verwendet: Backups starten an den Tagen und zu den Zeiten der Regeln.</translation>
    </message>
    <!-- The other groups of the settings panel -->
    <message id="settingsGroupRetry">
        <source></source>
        <translation>Neuer Versuch</translation>
    </message>
    <message id="settingsEnableAfterMissedBackup">
        <source></source>
        <translation>Neuer Versuch nach verpasstem Backup</translation>
    </message>
    <message id="settingsEnableAfterFailedBackup">
        <source></source>
        <translation>Neuer Versuch nach fehlgeschlagenem Backup</translation>
    </message>
    <message id="settingsGroupMenuBar">
        <source></source>
        <translation>Menüleiste</translation>
    </message>
    <message id="settingsShowDetailedTimeInMenuBar">
        <source></source>
        <translation>Genaue Zeiten anzeigen</translation>
    </message>
    <message id="settingsShowDetailedTimeInMenuBarDetails">
        <source></source>
        <translation>Zum Beispiel „1 Std., 30 Min.“ statt „1 Std.“</translation>
    </message>
    <message id="settingsShowMenuBarIconOnly">
        <source></source>
        <translation>Nur das Symbol anzeigen</translation>
    </message>
    <message id="settingsDisableIconColors">
        <source></source>
        <translation>Symbol farbig hervorheben, wenn es Aufmerksamkeit verlangt</translation>
    </message>
    <message id="settingsGroupDisks">
        <source></source>
        <translation>Volumes und Anmeldung</translation>
    </message>
    <message id="settingsRotateBackupDisks">
        <source></source>
        <translation>Zwischen Backup-Volumes wechseln</translation>
    </message>
    <message id="settingsStartOnSystemStart">
        <source></source>
        <translation>Quillon bei der Anmeldung öffnen</translation>
    </message>
    <message id="loginItemRefusedMessage">
        <source></source>
        <translation>Das System hat die Änderung nicht angenommen: Was bei der Anmeldung geöffnet wird, bleibt, wie es war.</translation>
    </message>
    <!-- The second page of the settings panel; a number stands behind what is not a sentence -->
    <message id="settingsMoreTitle">
        <source></source>
        <translation>Weitere</translation>
    </message>
    <message id="settingsBackTitle">
        <source></source>
        <translation>Zurück</translation>
    </message>
    <message id="settingsGroupPower">
        <source></source>
        <translation>Energie</translation>
    </message>
    <message id="settingsOnlyOnMainsPower">
        <source></source>
        <translation>Backups nur bei Netzbetrieb starten</translation>
    </message>
    <message id="settingsChargeThatSuffices">
        <source></source>
        <translation>Oder bei einer Ladung über</translation>
    </message>
    <message id="settingsPerCent">
        <source></source>
        <translation>%1 %</translation>
    </message>
    <message id="settingsStayAwake">
        <source></source>
        <translation>Ruhezustand während Backups von Quillon verhindern</translation>
    </message>
    <message id="settingsStartWhenDiskAppears">
        <source></source>
        <translation>Neuer Versuch, sobald das Backup-Volume erscheint</translation>
    </message>
    <message id="settingsMinutesAfterWake">
        <source></source>
        <translation>Nach dem Aufwachen warten</translation>
    </message>
    <message id="settingsMinutes">
        <source></source>
        <translation>%1 Min.</translation>
    </message>
    <message id="settingsGroupNotifications">
        <source></source>
        <translation>Mitteilungen</translation>
    </message>
    <message id="settingsDaysWithoutBackup">
        <source></source>
        <translation>Kein abgeschlossenes Backup seit</translation>
    </message>
    <message id="settingsDays">
        <source></source>
        <translation>%1 Tagen</translation>
    </message>
    <message id="settingsDay">
        <source></source>
        <translation>%1 Tag</translation>
    </message>
    <message id="settingsTellBeforeStart">
        <source></source>
        <translation>Eine Minute vor dem Start eines Backups</translation>
    </message>
    <!-- Alerts of the settings panel -->
    <message id="maximumRulesReachedTitle">
        <source></source>
        <translation>Keine weiteren Regeln möglich</translation>
    </message>
    <message id="maximumRulesReachedMessage">
        <source></source>
        <translation>Ein Zeitplan hat höchstens %1 Regeln. Stattdessen kann eine davon geändert oder gelöscht werden.</translation>
    </message>
    <message id="confirmDeleteRuleTitle">
        <source></source>
        <translation>Diese Regel löschen?</translation>
    </message>
    <message id="confirmDeleteRuleMessage">
        <source></source>
        <translation>Die Regel wird entfernt, und Quillon startet zu ihrer Zeit keine Backups mehr.</translation>
    </message>
    <message id="retryAfterMissedBackupTitle">
        <source></source>
        <translation>Neuer Versuch nach verpasstem Backup</translation>
    </message>
    <message id="retryAfterMissedBackupMessage">
        <source></source>
        <translation>Verpasst der Computer ein geplantes Backup im Ruhezustand, startet dieses etwa fünf Minuten nach dem Aufwachen. Solange der Zeitplan pausiert ist, gibt es keine neuen Versuche.</translation>
    </message>
    <message id="retryAfterFailedBackupTitle">
        <source></source>
        <translation>Neuer Versuch nach fehlgeschlagenem Backup</translation>
    </message>
    <message id="retryAfterFailedBackupMessage">
        <source></source>
        <translation>Endet ein Backup vorzeitig, versucht Quillon es etwa fünf Minuten später noch einmal. Selbst gestoppte Backups werden nicht wiederholt; solange der Zeitplan pausiert ist, gibt es keine neuen Versuche.</translation>
    </message>
    <message id="AlertButtonOk">
        <source></source>
        <translation>OK</translation>
    </message>
    <message id="AlertButtonDelete">
        <source></source>
        <translation>Löschen</translation>
    </message>
    <!-- The first launch; the instruction is also the text of the settings panel's warning -->
    <message id="firstStartInfoAlertTitle">
        <source></source>
        <translation>Willkommen bei %1</translation>
    </message>
    <message id="firstStartInfoAlertMessage">
        <source></source>
        <translation>%2 befindet sich in der Menüleiste und startet Backups zu den Zeiten, die in den Einstellungen gewählt sind.

%1</translation>
    </message>
    <message id="disableTmInstruction">
        <source></source>
        <translation>Falls Time Machine auch automatisch Backups erstellt, sollte dies ausgeschaltet werden, damit Backups nur nach Zeitplan starten. Auf dem Mac: „Systemeinstellungen“ &gt; „Time Machine“ öffnen und automatische Backups deaktivieren.</translation>
    </message>
    <message id="disableTmInstructionVentura">
        <source></source>
        <translation>Falls Time Machine auch automatisch Backups erstellt, sollte dies ausgeschaltet werden, damit Backups nur nach Zeitplan starten. Auf dem Mac: „Systemeinstellungen“ &gt; „Allgemein“ &gt; „Time Machine“ &gt; „Optionen“ öffnen und die Häufigkeit der Backups auf „Manuell“ setzen.</translation>
    </message>
    <message id="setupDisksMessage">
        <source></source>
        <translation>Backups werden erstellt auf:
%1

Backup-Volumes werden in den Time Machine-Einstellungen hinzugefügt und entfernt.</translation>
    </message>
    <message id="setupNoDiskMessage">
        <source></source>
        <translation>Es ist noch kein Backup-Volume eingerichtet, und ohne eines kann kein Backup starten. In den Time Machine-Einstellungen lässt sich eines hinzufügen.</translation>
    </message>
    <message id="setupUnknownDisksMessage">
        <source></source>
        <translation>Backup-Volumes werden in den Time Machine-Einstellungen ausgewählt.</translation>
    </message>
    <message id="AlertButtonHelp">
        <source></source>
        <translation>Hilfe</translation>
    </message>
    <!-- The about panel -->
    <message id="versionTitle">
        <source></source>
        <translation>Version</translation>
    </message>
    <message id="copyrightTitle">
        <source></source>
        <translation>© %1 die Autoren von Quillon</translation>
    </message>
    <message id="supportDetailsMessage">
        <source></source>
        <translation>Fragen, Ideen, Probleme? Jede Nachricht ist willkommen.</translation>
    </message>
    <message id="websiteButtonTitle">
        <source></source>
        <translation>Website</translation>
    </message>
    <message id="creditsTitle">
        <source></source>
        <translation>Quillon baut auf Qt, ICU und libplist auf. Unter Linux erstellt restic die Backups.</translation>
    </message>
    <message id="appIconCreditsTitle">
        <source></source>
        <translation>Symbol von %1</translation>
    </message>
    <message id="privacyPolicyDetailsMessage">
        <source></source>
        <translation>Quillon sendet nichts über seine Benutzer oder deren Dateien.</translation>
    </message>
    <message id="termsButtonTitle">
        <source></source>
        <translation>Nutzungsbedingungen</translation>
    </message>
    <message id="privacyPolicyAlertTitle">
        <source></source>
        <translation>Datenschutzrichtlinie</translation>
    </message>
    <message id="privacyPolicyAlertMessage">
        <source></source>
        <translation>%1 bewahrt Einstellungen und Angaben zu Backups auf diesem Computer auf. Um von neuen Versionen zu erfahren, fragt %1 einen Dienst des Herstellers; die Anfrage nennt %1, aber keine Person. Die vollständige Datenschutzrichtlinie von %1 steht auf der Website.</translation>
    </message>
    <message id="AlertButtonReadMore">
        <source></source>
        <translation>Weitere Infos</translation>
    </message>
    <message id="AlertMessageMailNotConfigured">
        <source></source>
        <translation>Es konnte kein Mail-Programm geöffnet werden. Die Adresse lautet %1.</translation>
    </message>
    <!-- Window of the Time Machine settings on Linux -->
    <message id="disksWindowTitle">
        <source></source>
        <translation>Time Machine</translation>
    </message>
    <message id="disksDisksTitle">
        <source></source>
        <translation>Backup-Volumes</translation>
    </message>
    <message id="disksSourcesTitle">
        <source></source>
        <translation>Ordner</translation>
    </message>
    <message id="disksExclusionsTitle">
        <source></source>
        <translation>Ausgenommen</translation>
    </message>
    <message id="disksDisksExplanation">
        <source></source>
        <translation>Backups werden auf diesen Volumes und Netzwerkorten erstellt. Die Backups sind verschlüsselt; alles andere auf einem Volume bleibt, wie es ist. Die Schlüssel liegen im Benutzerordner.</translation>
    </message>
    <message id="disksSourcesExplanation">
        <source></source>
        <translation>Diese Ordner werden samt Inhalt gesichert.</translation>
    </message>
    <message id="disksExclusionsExplanation">
        <source></source>
        <translation>Diese Dateien und Ordner werden nie gesichert.</translation>
    </message>
    <message id="disksNoDisks">
        <source></source>
        <translation>Es gibt noch kein Backup-Volume. Zum Beginnen ein Volume, einen Ordner darauf oder einen Netzwerkort hinzufügen.</translation>
    </message>
    <message id="disksNoExclusions">
        <source></source>
        <translation>Nichts ist ausgenommen. Hier kann hinzugefügt werden, was kein Backup braucht, zum Beispiel Downloads, die sich erneut laden lassen.</translation>
    </message>
    <message id="disksReading">
        <source></source>
        <translation>Einstellungen werden gelesen …</translation>
    </message>
    <message id="disksConnected">
        <source></source>
        <translation>Verbunden</translation>
    </message>
    <message id="disksNotConnected">
        <source></source>
        <translation>Nicht verbunden</translation>
    </message>
    <message id="disksLastBackup">
        <source></source>
        <translation>Letztes Backup: %1</translation>
    </message>
    <message id="disksNoBackupYet">
        <source></source>
        <translation>Noch kein Backup</translation>
    </message>
    <message id="disksAddDiskTitle">
        <source></source>
        <translation>Volume hinzufügen</translation>
    </message>
    <message id="disksAddFolderTitle">
        <source></source>
        <translation>Ordner hinzufügen</translation>
    </message>
    <message id="disksAddFileTitle">
        <source></source>
        <translation>Datei hinzufügen</translation>
    </message>
    <message id="disksRemoveTitle">
        <source></source>
        <translation>Entfernen</translation>
    </message>
    <message id="disksCancelTitle">
        <source></source>
        <translation>Abbrechen</translation>
    </message>
    <message id="disksOkTitle">
        <source></source>
        <translation>OK</translation>
    </message>
    <message id="disksTryAgainTitle">
        <source></source>
        <translation>Erneut versuchen</translation>
    </message>
    <message id="disksFree">
        <source></source>
        <translation>%1 (%2 frei)</translation>
    </message>
    <message id="disksNoOtherDisk">
        <source></source>
        <translation>Kein anderes Volume ist verbunden</translation>
    </message>
    <message id="disksAddFailed">
        <source></source>
        <translation>„%1“ konnte nicht hinzugefügt werden.</translation>
    </message>
    <message id="disksRemoveFailed">
        <source></source>
        <translation>„%1“ konnte nicht entfernt werden.</translation>
    </message>
    <message id="disksRemoveAlertMessage">
        <source></source>
        <translation>Keine Backups mehr auf „%1“ erstellen?</translation>
    </message>
    <message id="disksRemoveAlertInformative">
        <source></source>
        <translation>Die Backups darauf bleiben erhalten, ebenso ihr Schlüssel. Wird derselbe Ordner erneut hinzugefügt, werden sie fortgesetzt.</translation>
    </message>
    <message id="disksHomeAlertMessage">
        <source></source>
        <translation>Stattdessen den ganzen Benutzerordner sichern?</translation>
    </message>
    <message id="disksHomeAlertInformative">
        <source></source>
        <translation>„%1“ ist der einzige Ordner in der Liste. Ist die Liste leer, wird alles im Benutzerordner gesichert.</translation>
    </message>
    <message id="disksReadFailed">
        <source></source>
        <translation>Die Einstellungen konnten nicht gelesen werden: %1</translation>
    </message>
    <message id="disksToolHangs">
        <source></source>
        <translation>tmutil antwortet nicht.</translation>
    </message>
    <message id="disksToolMissing">
        <source></source>
        <translation>Das Programm „%1“ kann nicht gestartet werden.</translation>
    </message>
    <message id="disksToolFailed">
        <source></source>
        <translation>tmutil endete mit dem Exit-Status %1.</translation>
    </message>
    <message id="disksToolUnreadable">
        <source></source>
        <translation>Die Antwort von tmutil ist nicht lesbar.</translation>
    </message>
    <message id="reasonWithDetail">
        <source></source>
        <translation>%1 (tmutil: %2)</translation>
    </message>
    <message id="reasonMissing">
        <source></source>
        <translation>Das Backup-Volume ist nicht angeschlossen, oder der Netzwerkort ist nicht erreichbar.</translation>
    </message>
    <message id="reasonNoSpace">
        <source></source>
        <translation>Es ist kein Platz mehr.</translation>
    </message>
    <message id="reasonCannotWrite">
        <source></source>
        <translation>Dort kann nichts geschrieben werden.</translation>
    </message>
    <message id="reasonExists">
        <source></source>
        <translation>Dort gibt es schon etwas mit diesem Namen; es bleibt, wie es ist.</translation>
    </message>
    <message id="reasonNotInBackups">
        <source></source>
        <translation>Es ist nicht in den Backups.</translation>
    </message>
    <message id="reasonDamaged">
        <source></source>
        <translation>Es ist im Backup beschädigt.</translation>
    </message>
    <message id="reasonNoAttributes">
        <source></source>
        <translation>Der Inhalt ist vollständig, aber Eigentümer, Rechte oder andere Attribute ließen sich nicht wiederherstellen.</translation>
    </message>
    <message id="reasonConnectionLost">
        <source></source>
        <translation>Die Verbindung zum Server ist abgebrochen.</translation>
    </message>
    <message id="reasonAccessDenied">
        <source></source>
        <translation>Der Server lehnt den Benutzer, das Passwort oder den Schlüssel ab.</translation>
    </message>
    <message id="reasonUntrusted">
        <source></source>
        <translation>Es ist nicht sicher, dass dies der richtige Server ist.</translation>
    </message>
    <message id="reasonServerFailed">
        <source></source>
        <translation>Der Server meldet einen eigenen Fehler; vielleicht ist er voll.</translation>
    </message>
    <message id="reasonWrongKey">
        <source></source>
        <translation>Der Schlüssel der Backups fehlt oder passt nicht.</translation>
    </message>
    <message id="reasonLocked">
        <source></source>
        <translation>Die Backups werden gerade benutzt. Später erneut versuchen.</translation>
    </message>
    <message id="reasonResticMissing">
        <source></source>
        <translation>restic ist nicht installiert.</translation>
    </message>
    <message id="reasonNoRepository">
        <source></source>
        <translation>Die Backups fehlen oder sind beschädigt.</translation>
    </message>
    <message id="reasonNoInput">
        <source></source>
        <translation>Die Datei oder der Ordner ist nicht vorhanden.</translation>
    </message>
    <message id="reasonConfiguration">
        <source></source>
        <translation>Die Einstellungen der Backups sind beschädigt.</translation>
    </message>
    <message id="reasonNoWorkSpace">
        <source></source>
        <translation>Im Benutzerordner ist kein Platz für temporäre Dateien.</translation>
    </message>
    <message id="disksRoom">
        <source></source>
        <translation>%1 von %2 frei</translation>
    </message>
    <message id="disksTaken">
        <source></source>
        <translation>Backups belegen %1</translation>
    </message>
    <message id="disksProblem">
        <source></source>
        <translation>Letztes Problem (%1): %2</translation>
    </message>
    <message id="disksKeyNotKept">
        <source></source>
        <translation>Wiederherstellungsschlüssel noch nicht verwahrt</translation>
    </message>
    <message id="disksSourceOnDisk">
        <source></source>
        <translation>Auch der Ordner „%1“ liegt auf diesem Volume: Fällt es aus, geht beides verloren</translation>
    </message>
    <message id="disksKeyBar">
        <source></source>
        <translation>Geht dieser Computer verloren, sind die Backups auf „%1“ ohne Wiederherstellungsschlüssel nicht lesbar.</translation>
    </message>
    <message id="disksShowKeyTitle">
        <source></source>
        <translation>Schlüssel anzeigen</translation>
    </message>
    <message id="disksKeyHeading">
        <source></source>
        <translation>Wiederherstellungsschlüssel von „%1“</translation>
    </message>
    <message id="disksKeyExplanation">
        <source></source>
        <translation>Geht dieser Computer verloren, lassen sich die Backups mit diesem Schlüssel und dem Volume wiederherstellen. Der Schlüssel sollte notiert oder als Seite gesichert und getrennt von Computer und Volume verwahrt werden. Wer beides hat, kann die Backups lesen.</translation>
    </message>
    <message id="disksKeyOnce">
        <source></source>
        <translation>Dies ist ein neuer Schlüssel; er wird nur jetzt angezeigt. Sobald er verwahrt ist, öffnen früher angezeigte Schlüssel nichts mehr.</translation>
    </message>
    <message id="disksSavePageTitle">
        <source></source>
        <translation>Als Seite sichern</translation>
    </message>
    <message id="disksLaterTitle">
        <source></source>
        <translation>Später</translation>
    </message>
    <message id="disksKeptTitle">
        <source></source>
        <translation>Schlüssel ist verwahrt</translation>
    </message>
    <message id="disksKeyFailed">
        <source></source>
        <translation>Für „%1“ konnte kein Wiederherstellungsschlüssel erstellt werden.</translation>
    </message>
    <message id="disksKeepFailed">
        <source></source>
        <translation>Es konnte nicht vermerkt werden, dass der Wiederherstellungsschlüssel von „%1“ verwahrt ist.</translation>
    </message>
    <message id="disksPageFailed">
        <source></source>
        <translation>Die Seite konnte nicht gesichert werden.</translation>
    </message>
    <message id="disksPagePdf">
        <source></source>
        <translation>PDF-Dokument</translation>
    </message>
    <message id="disksPageText">
        <source></source>
        <translation>Textdatei</translation>
    </message>
    <message id="disksPageOnDiskMessage">
        <source></source>
        <translation>Die Seite auf dem Backup-Volume selbst sichern?</translation>
    </message>
    <message id="disksPageOnDiskInformative">
        <source></source>
        <translation>Wer das Volume an sich nimmt, hätte dann auch den Schlüssel; und mit einem defekten Volume wäre auch die Seite verloren.</translation>
    </message>
    <message id="disksSaveTitle">
        <source></source>
        <translation>Sichern</translation>
    </message>
    <message id="disksPageMade">
        <source></source>
        <translation>Erstellt am %1. Diese Seite getrennt von Computer und Volume verwahren. Wer sie und das Volume hat, kann die Backups lesen.</translation>
    </message>
    <message id="disksPageSteps">
        <source></source>
        <translation>Wenn der Computer verloren ist, auf einem neuen</translation>
    </message>
    <message id="disksPageConnect">
        <source></source>
        <translation>Quillon installieren und das Volume anschließen.</translation>
    </message>
    <message id="disksPageAdopt">
        <source></source>
        <translation>%1 fragt nach dem Wiederherstellungsschlüssel und übernimmt das Volume.</translation>
    </message>
    <message id="disksPageList">
        <source></source>
        <translation>%1 nennt die Backups.</translation>
    </message>
    <message id="disksPageRestore">
        <source></source>
        <translation>%1 stellt einen Ordner wieder her.</translation>
    </message>
    <message id="disksPageContinue">
        <source></source>
        <translation>%1 setzt die Backups fort.</translation>
    </message>
    <message id="disksAddTitle">
        <source></source>
        <translation>Hinzufügen</translation>
    </message>
    <message id="disksAddNameTitle">
        <source></source>
        <translation>Namensmuster hinzufügen</translation>
    </message>
    <message id="disksAddSizeTitle">
        <source></source>
        <translation>Größengrenze hinzufügen</translation>
    </message>
    <message id="disksByName">
        <source></source>
        <translation>Dateien und Ordner dieses Namens an jedem Ort</translation>
    </message>
    <message id="disksBySize">
        <source></source>
        <translation>In allen Ordnern</translation>
    </message>
    <message id="disksLargerThan">
        <source></source>
        <translation>Dateien über %1</translation>
    </message>
    <message id="disksNamePrompt">
        <source></source>
        <translation>Dateien und Ordner mit diesem Namen ausnehmen</translation>
    </message>
    <message id="disksNameHint">
        <source></source>
        <translation>* steht für beliebige Zeichen, ? für ein einzelnes.</translation>
    </message>
    <message id="disksSizePrompt">
        <source></source>
        <translation>Dateien ausnehmen, die größer sind als</translation>
    </message>
    <message id="disksCounting">
        <source></source>
        <translation>Ausgenommene Dateien werden gezählt …</translation>
    </message>
    <message id="disksPreview">
        <source></source>
        <translation>Derzeit ausgenommene Dateien: %1 (%2)</translation>
    </message>
    <message id="disksPreviewNothing">
        <source></source>
        <translation>Derzeit wäre keine Datei ausgenommen.</translation>
    </message>
    <message id="disksLeaveOutTitle">
        <source></source>
        <translation>Ausnehmen</translation>
    </message>
    <message id="disksListing">
        <source></source>
        <translation>Volumes werden gesucht …</translation>
    </message>
    <message id="disksListFailed">
        <source></source>
        <translation>Die Volumes konnten nicht aufgelistet werden</translation>
    </message>
    <message id="disksEditTitle">
        <source></source>
        <translation>Bearbeiten</translation>
    </message>
    <message id="disksAddPlaceTitle">
        <source></source>
        <translation>Netzwerkort hinzufügen</translation>
    </message>
    <message id="disksEditPlaceTitle">
        <source></source>
        <translation>Zugang zu „%1“</translation>
    </message>
    <message id="disksPlaceKind">
        <source></source>
        <translation>Art</translation>
    </message>
    <message id="disksPlaceSftp">
        <source></source>
        <translation>SFTP (SSH)</translation>
    </message>
    <message id="disksPlaceRest">
        <source></source>
        <translation>REST-Server von restic</translation>
    </message>
    <message id="disksPlaceS3">
        <source></source>
        <translation>S3-kompatibler Speicher</translation>
    </message>
    <message id="disksPlaceAddress">
        <source></source>
        <translation>Adresse</translation>
    </message>
    <message id="disksPlaceServer">
        <source></source>
        <translation>Server</translation>
    </message>
    <message id="disksPlacePort">
        <source></source>
        <translation>Port</translation>
    </message>
    <message id="disksPlaceFolder">
        <source></source>
        <translation>Ordner</translation>
    </message>
    <message id="disksPlacePath">
        <source></source>
        <translation>Pfad</translation>
    </message>
    <message id="disksPlaceBucket">
        <source></source>
        <translation>Bucket</translation>
    </message>
    <message id="disksPlaceUser">
        <source></source>
        <translation>Benutzername</translation>
    </message>
    <message id="disksPlaceKeyFile">
        <source></source>
        <translation>Schlüsseldatei</translation>
    </message>
    <message id="disksPlacePassword">
        <source></source>
        <translation>Passwort</translation>
    </message>
    <message id="disksPlaceAccessKey">
        <source></source>
        <translation>Zugriffsschlüssel</translation>
    </message>
    <message id="disksPlaceSecretKey">
        <source></source>
        <translation>Geheimer Schlüssel</translation>
    </message>
    <message id="disksPlaceRegion">
        <source></source>
        <translation>Region</translation>
    </message>
    <message id="disksPlaceSecure">
        <source></source>
        <translation>Verschlüsselte Verbindung (HTTPS)</translation>
    </message>
    <message id="disksPlaceCertificate">
        <source></source>
        <translation>Zertifikatsdatei</translation>
    </message>
    <message id="disksPlaceUpload">
        <source></source>
        <translation>Upload-Grenze</translation>
    </message>
    <message id="disksPlaceDownload">
        <source></source>
        <translation>Download-Grenze</translation>
    </message>
    <message id="disksPlaceNoLimit">
        <source></source>
        <translation>Keine</translation>
    </message>
    <message id="disksPlaceUploadAtMost">
        <source></source>
        <translation>Upload höchstens %1</translation>
    </message>
    <message id="disksPlaceDownloadAtMost">
        <source></source>
        <translation>Download höchstens %1</translation>
    </message>
    <message id="disksPlaceOptional">
        <source></source>
        <translation>Optional</translation>
    </message>
    <message id="disksPlaceUnchanged">
        <source></source>
        <translation>Unverändert</translation>
    </message>
    <message id="disksPlaceChooseTitle">
        <source></source>
        <translation>Auswählen</translation>
    </message>
    <message id="disksPlaceNeeded">
        <source></source>
        <translation>Noch nötig: %1</translation>
    </message>
    <message id="disksPlaceBadServer">
        <source></source>
        <translation>Der Server wird nur mit Namen oder Adresse angegeben, zum Beispiel nas.example.org.</translation>
    </message>
    <message id="disksPlaceBadPort">
        <source></source>
        <translation>Ein Port ist eine Zahl von 1 bis 65535.</translation>
    </message>
    <message id="disksPlaceBadFolder">
        <source></source>
        <translation>Der Ordner beginnt mit / oder, wenn er im eigenen Ordner auf dem Server liegt, mit ~/.</translation>
    </message>
    <message id="disksPlaceBadFile">
        <source></source>
        <translation>Eine Datei wird mit ihrem ganzen Pfad angegeben, der mit / beginnt.</translation>
    </message>
    <message id="disksPlaceUserAndPassword">
        <source></source>
        <translation>Benutzername und Passwort werden beide angegeben oder keines von beiden.</translation>
    </message>
    <message id="disksPlaceTryTitle">
        <source></source>
        <translation>Testen</translation>
    </message>
    <message id="disksPlaceTrustTitle">
        <source></source>
        <translation>Vertrauen</translation>
    </message>
    <message id="disksPlaceTakeUpTitle">
        <source></source>
        <translation>Übernehmen</translation>
    </message>
    <message id="disksPlaceAsking">
        <source></source>
        <translation>Server wird gefragt …</translation>
    </message>
    <message id="disksPlaceKeeping">
        <source></source>
        <translation>Netzwerkort wird eingerichtet …</translation>
    </message>
    <message id="disksPlaceEmpty">
        <source></source>
        <translation>Der Server lässt sich verwenden. Dort gibt es noch keine Backups.</translation>
    </message>
    <message id="disksPlaceBackups">
        <source></source>
        <translation>Der Server lässt sich verwenden. Dort gibt es Backups, die dieser Computer lesen kann; sie werden fortgesetzt.</translation>
    </message>
    <message id="disksPlaceWrongKey">
        <source></source>
        <translation>Dort gibt es Backups, zu denen dieser Computer keinen Schlüssel hat. Eigene Backups lassen sich mit ihrem Wiederherstellungsschlüssel fortsetzen; sonst einen anderen Ort wählen.</translation>
    </message>
    <message id="disksPlaceRecoveryKey">
        <source></source>
        <translation>Wiederherstellungsschlüssel</translation>
    </message>
    <message id="disksPlaceFingerprint">
        <source></source>
        <translation>Fingerabdruck des Serverschlüssels</translation>
    </message>
    <message id="disksPlaceUnknownKey">
        <source></source>
        <translation>„%1“ ist diesem Computer noch nicht bekannt. Den Fingerabdruck des Schlüssels mit dem vergleichen, den die Verwaltung des Servers nennt, und nur vertrauen, wenn beide gleich sind.</translation>
    </message>
    <message id="disksPlaceChangedKey">
        <source></source>
        <translation>Warnung: „%1“ weist einen anderen Schlüssel vor als bisher. Möglicherweise liest jemand mit. Dem neuen Schlüssel nur vertrauen, wenn die Verwaltung des Servers den Wechsel und diesen Fingerabdruck bestätigt.</translation>
    </message>
    <message id="disksPlaceChangedKeyMessage">
        <source></source>
        <translation>Dem neuen Schlüssel von „%1“ vertrauen?</translation>
    </message>
    <message id="disksPlaceChangedKeyInformative">
        <source></source>
        <translation>Gehört er nicht dem Server, gelangt alles dorthin Gesendete zu jemand anderem.</translation>
    </message>
    <message id="disksPlaceBadCertificate">
        <source></source>
        <translation>Dem Zertifikat von „%1“ wird nicht vertraut; es könnte ein anderer Server sein. Ein selbst ausgestelltes Zertifikat oder das seines Ausstellers als Zertifikatsdatei auswählen.</translation>
    </message>
    <message id="disksPlaceAccessDeniedKey">
        <source></source>
        <translation>„%1“ lehnt den Benutzer oder den Schlüssel ab. Beide prüfen. Der öffentliche Schlüssel muss auf dem Server eingerichtet sein, und die Schlüsseldatei darf keine Passphrase haben.</translation>
    </message>
    <message id="disksPlaceAccessDenied">
        <source></source>
        <translation>„%1“ verweigert den Zugang. Die Angaben prüfen: Benutzername und Passwort oder die Schlüssel.</translation>
    </message>
    <message id="disksPlaceNoPermission">
        <source></source>
        <translation>Dort darf nichts geschrieben werden. Einen anderen Ort auf dem Server wählen oder es von der Verwaltung des Servers erlauben lassen.</translation>
    </message>
    <message id="disksPlaceNoAnswer">
        <source></source>
        <translation>„%1“ antwortet nicht. Server und Port prüfen, und ob dieser Computer mit dem Netzwerk verbunden ist.</translation>
    </message>
    <message id="disksPlaceNoSpace">
        <source></source>
        <translation>Auf dem Server ist kein Platz mehr. Dort Platz schaffen oder einen anderen Ort wählen.</translation>
    </message>
    <message id="disksPlaceFailed">
        <source></source>
        <translation>Der Server lässt sich nicht verwenden: %1</translation>
    </message>
    <message id="disksPlaceRemoveInformative">
        <source></source>
        <translation>Die Backups dort bleiben erhalten, ebenso ihr Schlüssel; die Zugangsdaten zum Server werden gelöscht. Wird derselbe Ort erneut hinzugefügt, werden sie fortgesetzt.</translation>
    </message>
    <message id="disksPlaceKeyExplanation">
        <source></source>
        <translation>Geht dieser Computer verloren, lassen sich die Backups mit diesem Schlüssel und dem Zugang zum Server wiederherstellen. Der Schlüssel sollte notiert oder als Seite gesichert und zusammen mit den Zugangsdaten getrennt vom Computer verwahrt werden. Wer beides hat, kann die Backups lesen.</translation>
    </message>
    <message id="disksPlacePageMade">
        <source></source>
        <translation>Erstellt am %1. Diese Seite getrennt vom Computer verwahren. Wer sie und Zugang zum Server hat, kann die Backups lesen.</translation>
    </message>
    <message id="disksPlacePageStart">
        <source></source>
        <translation>Quillon installieren und %1 starten.</translation>
    </message>
    <message id="disksPlacePageAdd">
        <source></source>
        <translation>„%1“ wählen, als Server %2 und die Zugangsdaten eingeben, dann auf Nachfrage den Wiederherstellungsschlüssel.</translation>
    </message>
    <!-- Window of the backups on Linux -->
    <message id="browseWindowTitle">
        <source></source>
        <translation>Time Machine-Backups</translation>
    </message>
    <message id="browseThisWeek">
        <source></source>
        <translation>Diese Woche</translation>
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
        <translation>Beschädigt</translation>
    </message>
    <message id="browseIncomplete">
        <source></source>
        <translation>Unvollständig</translation>
    </message>
    <message id="browseRestoring">
        <source></source>
        <translation>Wird wiederhergestellt …</translation>
    </message>
    <message id="browseRestoreProgress">
        <source></source>
        <translation>%1 von %2 Dateien, %3 von %4</translation>
    </message>
    <message id="browseRestoreStopped">
        <source></source>
        <translation>Gestoppt. Was noch nicht wiederhergestellt war, bleibt, wie es war.</translation>
    </message>
    <message id="browseRestoredCount">
        <source></source>
        <translation>Wiederhergestellt: %1</translation>
    </message>
    <message id="browseSkippedCount">
        <source></source>
        <translation>Übersprungen: %1</translation>
    </message>
    <message id="browseLostCount">
        <source></source>
        <translation>Nicht wiederhergestellt: %1</translation>
    </message>
    <message id="browseConflictMessage">
        <source></source>
        <translation>„%1“ ist schon vorhanden.</translation>
    </message>
    <message id="browseNameColumn">
        <source></source>
        <translation>Name</translation>
    </message>
    <message id="browseSizeColumn">
        <source></source>
        <translation>Größe</translation>
    </message>
    <message id="browseModifiedColumn">
        <source></source>
        <translation>Geändert</translation>
    </message>
    <message id="browseSinceColumn">
        <source></source>
        <translation>Später</translation>
    </message>
    <message id="browseFolderColumn">
        <source></source>
        <translation>Ordner</translation>
    </message>
    <message id="browseBackupColumn">
        <source></source>
        <translation>Backup</translation>
    </message>
    <message id="browseSortTip">
        <source></source>
        <translation>Nach dieser Spalte sortieren (%1)</translation>
    </message>
    <message id="browseChanged">
        <source></source>
        <translation>Geändert</translation>
    </message>
    <message id="browseGone">
        <source></source>
        <translation>Gelöscht</translation>
    </message>
    <message id="browseFolderKind">
        <source></source>
        <translation>Ordner</translation>
    </message>
    <message id="browseLinkTo">
        <source></source>
        <translation>Verweis auf %1</translation>
    </message>
    <message id="browseDiskLabel">
        <source></source>
        <translation>Backups auf</translation>
    </message>
    <message id="browseTimelineName">
        <source></source>
        <translation>Backups</translation>
    </message>
    <message id="browseFilesName">
        <source></source>
        <translation>Dateien im Backup</translation>
    </message>
    <message id="browsePathLabel">
        <source></source>
        <translation>Ordner im Backup</translation>
    </message>
    <message id="browseBackTitle">
        <source></source>
        <translation>Zurück</translation>
    </message>
    <message id="browseUpTitle">
        <source></source>
        <translation>Übergeordneter Ordner</translation>
    </message>
    <message id="browseSearchPrompt">
        <source></source>
        <translation>Namen suchen</translation>
    </message>
    <message id="browseAllBackups">
        <source></source>
        <translation>In allen Backups</translation>
    </message>
    <message id="browseVersionsName">
        <source></source>
        <translation>Versionen</translation>
    </message>
    <message id="browseVersionsHint">
        <source></source>
        <translation>Wähle eine Datei, um ihre Versionen zu sehen.</translation>
    </message>
    <message id="browseNoVersions">
        <source></source>
        <translation>Kein Backup enthält sie.</translation>
    </message>
    <message id="browsePreviewTitle">
        <source></source>
        <translation>Vorschau</translation>
    </message>
    <message id="browseRestoreTitle">
        <source></source>
        <translation>Wiederherstellen</translation>
    </message>
    <message id="browseReading">
        <source></source>
        <translation>Wird gelesen …</translation>
    </message>
    <message id="browseEmptyFolder">
        <source></source>
        <translation>Dieser Ordner ist leer.</translation>
    </message>
    <message id="browseNothingFound">
        <source></source>
        <translation>Nichts mit diesem Namen gefunden.</translation>
    </message>
    <message id="browseSearching">
        <source></source>
        <translation>Suche läuft …</translation>
    </message>
    <message id="browseFilling">
        <source></source>
        <translation>Backup wird für die Suche ganz gelesen: %1</translation>
    </message>
    <message id="browseReadFailed">
        <source></source>
        <translation>Das konnte nicht gelesen werden: %1</translation>
    </message>
    <message id="browseNoDiskMessage">
        <source></source>
        <translation>Es ist weder ein Backup-Volume noch ein Netzwerkort eingerichtet. Wähle etwas davon in den Time Machine-Einstellungen, dann werden deine Dateien dort gesichert.</translation>
    </message>
    <message id="browseNoBackupMessage">
        <source></source>
        <translation>Es gibt kein Backup zum Durchsehen. Schließe das Backup-Volume an oder verbinde dich mit dem Netzwerk, oder warte auf das erste Backup.</translation>
    </message>
    <message id="browseSettingsTitle">
        <source></source>
        <translation>Time Machine-Einstellungen</translation>
    </message>
    <message id="browsePreviewing">
        <source></source>
        <translation>„%1“ wird geholt …</translation>
    </message>
    <message id="browsePreviewFailed">
        <source></source>
        <translation>„%1“ kann nicht angezeigt werden.</translation>
    </message>
    <message id="browseNoProgram">
        <source></source>
        <translation>Dafür konnte kein Programm geöffnet werden.</translation>
    </message>
    <message id="browseRestoreHeading">
        <source></source>
        <translation>„%1“ wiederherstellen</translation>
    </message>
    <message id="browseRestoreManyHeading">
        <source></source>
        <translation>%1 Objekte wiederherstellen</translation>
    </message>
    <message id="browseFromBackup">
        <source></source>
        <translation>Aus dem Backup vom %1</translation>
    </message>
    <message id="browseToItsPlace">
        <source></source>
        <translation>An den alten Ort</translation>
    </message>
    <message id="browseToFolder">
        <source></source>
        <translation>In einen anderen Ordner</translation>
    </message>
    <message id="browseChooseFolderTitle">
        <source></source>
        <translation>Ordner wählen</translation>
    </message>
    <message id="browseNothingOverwritten">
        <source></source>
        <translation>Nichts wird überschrieben, ohne dass du gefragt wirst.</translation>
    </message>
    <message id="browseKeepBothTitle">
        <source></source>
        <translation>Beide behalten</translation>
    </message>
    <message id="browseReplaceTitle">
        <source></source>
        <translation>Ersetzen</translation>
    </message>
    <message id="browseSkipTitle">
        <source></source>
        <translation>Überspringen</translation>
    </message>
    <message id="browseForAll">
        <source></source>
        <translation>Für alle weiteren ebenso</translation>
    </message>
    <message id="browseStopTitle">
        <source></source>
        <translation>Stoppen</translation>
    </message>
    <message id="browseStopping">
        <source></source>
        <translation>Wird gestoppt …</translation>
    </message>
    <message id="browseLossesName">
        <source></source>
        <translation>Was nicht zurückkam</translation>
    </message>
    <!-- The log of backups -->
    <message id="logWindowTitle">
        <source></source>
        <translation>Backup-Protokoll</translation>
    </message>
    <message id="logDateTitle">
        <source></source>
        <translation>Datum</translation>
    </message>
    <message id="logOutcomeTitle">
        <source></source>
        <translation>Ergebnis</translation>
    </message>
    <message id="logCauseTitle">
        <source></source>
        <translation>Anlass</translation>
    </message>
    <message id="logDiskTitle">
        <source></source>
        <translation>Volume</translation>
    </message>
    <message id="logSizeTitle">
        <source></source>
        <translation>Kopiert</translation>
    </message>
    <message id="logDurationTitle">
        <source></source>
        <translation>Dauer</translation>
    </message>
    <message id="logBytesTitle">
        <source></source>
        <translation>Byte</translation>
    </message>
    <message id="logBeganTitle">
        <source></source>
        <translation>Beginn</translation>
    </message>
    <message id="logEndedTitle">
        <source></source>
        <translation>Ende</translation>
    </message>
    <message id="logReasonTitle">
        <source></source>
        <translation>Grund</translation>
    </message>
    <message id="logRunningTitle">
        <source></source>
        <translation>Läuft</translation>
    </message>
    <message id="logCompletedTitle">
        <source></source>
        <translation>Abgeschlossen</translation>
    </message>
    <message id="logFailedTitle">
        <source></source>
        <translation>Fehlgeschlagen</translation>
    </message>
    <message id="logStoppedTitle">
        <source></source>
        <translation>Gestoppt</translation>
    </message>
    <message id="logUnseenTitle">
        <source></source>
        <translation>Nicht gesehen</translation>
    </message>
    <message id="logSkippedTitle">
        <source></source>
        <translation>Übersprungen</translation>
    </message>
    <message id="logMissedTitle">
        <source></source>
        <translation>Verpasst</translation>
    </message>
    <message id="logRefusedTitle">
        <source></source>
        <translation>Abgelehnt</translation>
    </message>
    <message id="logScheduleTitle">
        <source></source>
        <translation>Zeitplan</translation>
    </message>
    <message id="logRetryTitle">
        <source></source>
        <translation>Neuer Versuch</translation>
    </message>
    <message id="logUserTitle">
        <source></source>
        <translation>Sie</translation>
    </message>
    <message id="logElsewhereTitle">
        <source></source>
        <translation>Außerhalb von Quillon</translation>
    </message>
    <message id="logAllTitle">
        <source></source>
        <translation>Alle</translation>
    </message>
    <message id="logNoBackupTitle">
        <source></source>
        <translation>Kein Backup</translation>
    </message>
    <message id="logDaysMessage">
        <source></source>
        <translation>Die letzten %1 Tage: %2 mit Backup, %3 nur mit Problemen</translation>
    </message>
    <message id="logCopyTitle">
        <source></source>
        <translation>Als Text kopieren</translation>
    </message>
    <message id="logSaveTitle">
        <source></source>
        <translation>Als CSV sichern</translation>
    </message>
    <message id="logSaveFailedTitle">
        <source></source>
        <translation>Das Protokoll konnte nicht gesichert werden.</translation>
    </message>
    <message id="logEmptyMessage">
        <source></source>
        <translation>Es ist noch nichts verzeichnet.</translation>
    </message>
    <message id="logNothingFoundMessage">
        <source></source>
        <translation>Kein Eintrag passt dazu.</translation>
    </message>
    <message id="logUnreadableMessage">
        <source></source>
        <translation>Das Protokoll konnte nicht gelesen werden. Backups werden trotzdem erstellt.</translation>
    </message>
    <message id="logNextMessage">
        <source></source>
        <translation>Danach geplant: %1</translation>
    </message>
    <message id="logAskedMessage">
        <source></source>
        <translation>Der Start wurde durch einen Befehl übersprungen.</translation>
    </message>
    <message id="logOnBatteryMessage">
        <source></source>
        <translation>Der Computer lief im Batteriebetrieb. Das Backup wird nachgeholt, sobald er wieder am Stromnetz ist, sofern kein späteres vorher an der Reihe ist.</translation>
    </message>
    <message id="logPausedMessage">
        <source></source>
        <translation>Der Zeitplan war pausiert. Im Menü lässt er sich fortsetzen.</translation>
    </message>
    <message id="logAsleepMessage">
        <source></source>
        <translation>Der Computer war im Ruhezustand. Wählen Sie Zeiten, zu denen er wach ist, oder lassen Sie verpasste Backups nachholen.</translation>
    </message>
    <message id="logClockSetMessage">
        <source></source>
        <translation>Die Uhr wurde über diese Zeit hinaus gestellt, oder der Computer war zu beschäftigt.</translation>
    </message>
    <message id="logBackupRanMessage">
        <source></source>
        <translation>Es lief bereits ein anderes Backup. Es trat an die Stelle von diesem.</translation>
    </message>
    <message id="logOvertakenMessage">
        <source></source>
        <translation>Im selben Moment wurde ein anderes Backup gestartet. Es trat an die Stelle von diesem.</translation>
    </message>
    <message id="logStatusUnreadableMessage">
        <source></source>
        <translation>Time Machine gab keine Auskunft. Starten Sie den Computer neu, wenn das öfter geschieht.</translation>
    </message>
    <message id="logSettingsChangedMessage">
        <source></source>
        <translation>Der Zeitplan wurde genau in diesem Moment pausiert oder umgeschaltet.</translation>
    </message>
    <message id="logIncompleteMessage">
        <source></source>
        <translation>Das Backup endete, bevor es vollständig war. Prüfen Sie, ob das Volume verbunden ist und Platz hat.</translation>
    </message>
    <message id="logStoppedElsewhereMessage">
        <source></source>
        <translation>Das Backup wurde außerhalb von Quillon gestoppt.</translation>
    </message>
    <message id="logNeverReportedMessage">
        <source></source>
        <translation>Time Machine nahm den Start an, doch es war kein Backup zu sehen. Es war vielleicht zu kurz.</translation>
    </message>
    <message id="logNotFollowedMessage">
        <source></source>
        <translation>Quillon wurde vor dem Backup beendet. Ob es abgeschlossen wurde, zeigen die Backups selbst.</translation>
    </message>
</context>
</TS>
