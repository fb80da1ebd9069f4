<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="nl" sourcelanguage="en">
<!-- Code adds the colon or the ellipsis that a title stands before; texts have none, but for scheduleTitle. -->
<context>
    <name></name>
    <!-- Days -->
    <message id="todayTitle">
        <source></source>
        <translation>Vandaag</translation>
    </message>
    <message id="tomorrowTitle">
        <source></source>
        <translation>Morgen</translation>
    </message>
    <message id="yesterdayTitle">
        <source></source>
        <translation>Gisteren</translation>
    </message>
    <!-- What Time Machine is doing -->
    <message id="notAvailableAbbreviation">
        <source></source>
        <translation>n.v.t.</translation>
    </message>
    <message id="tmPhaseDefault">
        <source></source>
        <translation>Niet actief</translation>
    </message>
    <message id="tmPhaseUnknown">
        <source></source>
        <translation>Onbekend</translation>
    </message>
    <message id="tmPhaseStarting">
        <source></source>
        <translation>Starten</translation>
    </message>
    <message id="tmPhaseLookingForDisk">
        <source></source>
        <translation>Reservekopieschijf zoeken</translation>
    </message>
    <message id="tmPhaseConnectingToDisk">
        <source></source>
        <translation>Verbinden met reservekopieschijf</translation>
    </message>
    <message id="tmPhasePreparingBackup">
        <source></source>
        <translation>Reservekopie voorbereiden</translation>
    </message>
    <message id="tmPhaseCopying">
        <source></source>
        <translation>Kopiëren</translation>
    </message>
    <message id="tmPhaseCleaningUp">
        <source></source>
        <translation>Opruimen</translation>
    </message>
    <message id="tmPhaseHealthCheck">
        <source></source>
        <translation>Reservekopie controleren</translation>
    </message>
    <message id="tmPhaseFinishing">
        <source></source>
        <translation>Voltooien</translation>
    </message>
    <!-- Alerts -->
    <message id="AlertButtonClose">
        <source></source>
        <translation>Sluit</translation>
    </message>
    <message id="AlertButtonProvidePermission">
        <source></source>
        <translation>Geef toestemming</translation>
    </message>
    <message id="permissionRequiredAlertTitle">
        <source></source>
        <translation>Toestemming vereist</translation>
    </message>
    <message id="timeMachinePermissionRequiredAlertMessage">
        <source></source>
        <translation>Om de Time Machine-voorkeuren te openen, klik je op ‘%1’ en sta je %2 toe om Systeemvoorkeuren te bedienen. Probeer het daarna opnieuw.</translation>
    </message>
    <!-- Menu bar title -->
    <message id="nextBackupShortTitle">
        <source></source>
        <translation>Volgende</translation>
    </message>
    <message id="retryBackupShortTitle">
        <source></source>
        <translation>Opnieuw</translation>
    </message>
    <message id="statusStarting">
        <source></source>
        <translation>Start</translation>
    </message>
    <message id="statusRunning">
        <source></source>
        <translation>Actief</translation>
    </message>
    <message id="statusStopping">
        <source></source>
        <translation>Stopt</translation>
    </message>
    <!-- What the icon stands for -->
    <message id="iconRunningDescription">
        <source></source>
        <translation>Er wordt een reservekopie gemaakt.</translation>
    </message>
    <message id="iconFailedDescription">
        <source></source>
        <translation>De laatste reservekopie is mislukt.</translation>
    </message>
    <message id="iconMissedDescription">
        <source></source>
        <translation>Een geplande reservekopie is gemist.</translation>
    </message>
    <message id="iconUpdateDescription">
        <source></source>
        <translation>Er is een update beschikbaar.</translation>
    </message>
    <!-- Why sleep waits for a moment -->
    <message id="sleepWaitsMessage">
        <source></source>
        <translation>Het schema voor reservekopieën wordt stilgezet.</translation>
    </message>
    <!-- Menu -->
    <message id="latestBackupTitle">
        <source></source>
        <translation>Laatste reservekopie</translation>
    </message>
    <message id="phaseTitle">
        <source></source>
        <translation>Fase</translation>
    </message>
    <message id="copiedWord">
        <source></source>
        <translation>gekopieerd</translation>
    </message>
    <message id="backupDiskTitle">
        <source></source>
        <translation>Reservekopieschijf</translation>
    </message>
    <message id="nextBackupTitle">
        <source></source>
        <translation>Volgende reservekopie</translation>
    </message>
    <message id="nextBackupDisabled">
        <source></source>
        <translation>Uitgeschakeld</translation>
    </message>
    <message id="nextBackupNotAvailable">
        <source></source>
        <translation>Geen reservekopie gepland</translation>
    </message>
    <message id="retryAttemptTitle">
        <source></source>
        <translation>Nieuwe poging</translation>
    </message>
    <message id="remainingTimeTitle">
        <source></source>
        <translation>Resterende tijd</translation>
    </message>
    <message id="calculatingTitle">
        <source></source>
        <translation>Wordt berekend</translation>
    </message>
    <message id="backupNowTitle">
        <source></source>
        <translation>Maak nu een reservekopie</translation>
    </message>
    <message id="skipThisBackupTitle">
        <source></source>
        <translation>Sla deze reservekopie over</translation>
    </message>
    <message id="skipThisBackupTitleVentura">
        <source></source>
        <translation>Sla deze reservekopie over</translation>
    </message>
    <message id="skipRetryAttemptTitle">
        <source></source>
        <translation>Sla nieuwe poging over</translation>
    </message>
    <message id="enterTimeMachineTitle">
        <source></source>
        <translation>Open Time Machine</translation>
    </message>
    <message id="enterTimeMachineTitleVentura">
        <source></source>
        <translation>Blader door Time Machine-reservekopieën</translation>
    </message>
    <message id="openSystemPreferencesTitle">
        <source></source>
        <translation>Open Time Machine-voorkeuren</translation>
    </message>
    <message id="openSystemPreferencesTitleVentura">
        <source></source>
        <translation>Open Time Machine-instellingen</translation>
    </message>
    <message id="updateAvailableMenuTitle">
        <source></source>
        <translation>Update beschikbaar</translation>
    </message>
    <message id="preferencesMenuTitle">
        <source></source>
        <translation>Instellingen</translation>
    </message>
    <message id="aboutMenuTitle">
        <source></source>
        <translation>Over Quillon</translation>
    </message>
    <message id="quitApplicationTitle">
        <source></source>
        <translation>Stop %1</translation>
    </message>
    <!-- Pause -->
    <message id="pauseScheduleForTitle">
        <source></source>
        <translation>Onderbreek schema gedurende</translation>
    </message>
    <message id="pauseScheduleUntilTitle">
        <source></source>
        <translation>Schema onderbroken tot</translation>
    </message>
    <message id="resumeScheduleTitle">
        <source></source>
        <translation>Hervat schema</translation>
    </message>
    <message id="oneHourTitle">
        <source></source>
        <translation>1 uur</translation>
    </message>
    <message id="twoHoursTitle">
        <source></source>
        <translation>2 uur</translation>
    </message>
    <message id="fourHoursTitle">
        <source></source>
        <translation>4 uur</translation>
    </message>
    <message id="eightHoursTitle">
        <source></source>
        <translation>8 uur</translation>
    </message>
    <message id="twelveHoursTitle">
        <source></source>
        <translation>12 uur</translation>
    </message>
    <message id="oneDayTitle">
        <source></source>
        <translation>1 dag</translation>
    </message>
    <message id="twoDaysTitle">
        <source></source>
        <translation>2 dagen</translation>
    </message>
    <message id="threeDaysTitle">
        <source></source>
        <translation>3 dagen</translation>
    </message>
    <message id="fourDaysTitle">
        <source></source>
        <translation>4 dagen</translation>
    </message>
    <message id="fiveDaysTitle">
        <source></source>
        <translation>5 dagen</translation>
    </message>
    <message id="sixDaysTitle">
        <source></source>
        <translation>6 dagen</translation>
    </message>
    <message id="oneWeekTitle">
        <source></source>
        <translation>1 week</translation>
    </message>
    <message id="twoWeeksTitle">
        <source></source>
        <translation>2 weken</translation>
    </message>
    <message id="threeWeeksTitle">
        <source></source>
        <translation>3 weken</translation>
    </message>
    <message id="fourWeeksTitle">
        <source></source>
        <translation>4 weken</translation>
    </message>
    <!-- The menu as it opens -->
    <message id="letMacOsDecideBackupDiskTitle">
        <source></source>
        <translation>Laat Time Machine kiezen</translation>
    </message>
    <message id="mostRecentTitle">
        <source></source>
        <translation>meest recent</translation>
    </message>
    <message id="latestBackupOfEachDestinationTitle">
        <source></source>
        <translation>Laatste reservekopie op elke schijf</translation>
    </message>
    <message id="allBackupInfoHelpMessage">
        <source></source>
        <translation>Deze lijst toont voor elke reservekopieschijf de laatste reservekopie die Quillon heeft zien voltooien. Op een schijf zonder datum is geen reservekopie voltooid sinds Quillon is geïnstalleerd.</translation>
    </message>
    <message id="helpButtonTitle">
        <source></source>
        <translation>Help</translation>
    </message>
    <!-- What the commands tell -->
    <message id="AlertTitleWarning">
        <source></source>
        <translation>Waarschuwing</translation>
    </message>
    <message id="failedToStartBackupMessage">
        <source></source>
        <translation>De reservekopie kon niet worden gestart. Time Machine antwoordde met foutcode %1.</translation>
    </message>
    <message id="startDiskAwayMessage">
        <source></source>
        <translation>De reservekopieschijf is niet aangesloten, of de server met de reservekopieën is niet bereikbaar.</translation>
    </message>
    <message id="startResticMissingMessage">
        <source></source>
        <translation>Het programma restic, dat de reservekopieën maakt, is niet geïnstalleerd.</translation>
    </message>
    <message id="appUpdateAvailableAlertTitle">
        <source></source>
        <translation>Quillon %1 is beschikbaar</translation>
    </message>
    <message id="appUpdateAvailableAlertMessage">
        <source></source>
        <translation>Je hebt versie %1. De downloadpagina wordt in je browser geopend en Quillon wordt gestopt, zodat het kan worden vervangen.</translation>
    </message>
    <message id="AlertButtonGetUpdate">
        <source></source>
        <translation>Download update</translation>
    </message>
    <message id="AlertButtonCancel">
        <source></source>
        <translation>Annuleer</translation>
    </message>
    <!-- The user’s own programs -->
    <message id="hookStoppedBackupMessage">
        <source></source>
        <translation>Het programma ‘before’ heeft de start van de reservekopie tegengehouden.</translation>
    </message>
    <message id="hookNotRunMessage">
        <source></source>
        <translation>‘%1’ is niet uitgevoerd. Het moet een uitvoerbaar bestand zijn dat alleen jij kunt wijzigen, in een map die alleen jij kunt wijzigen.</translation>
    </message>
    <message id="hookTooLongMessage">
        <source></source>
        <translation>‘%1’ is na tien minuten beëindigd.</translation>
    </message>
    <message id="hookStatusMessage">
        <source></source>
        <translation>‘%1’ eindigde met afsluitstatus %2.</translation>
    </message>
    <!-- Notifications of the desktop -->
    <message id="backupFailedTitle">
        <source></source>
        <translation>Reservekopie mislukt</translation>
    </message>
    <message id="backupFailedMessage">
        <source></source>
        <translation>De laatste reservekopie eindigde voordat die voltooid was.</translation>
    </message>
    <message id="noBackupForDaysTitle">
        <source></source>
        <translation>Geen recente reservekopie</translation>
    </message>
    <message id="noBackupForDaysMessage">
        <source></source>
        <translation>De laatste reservekopie is voltooid op %1.</translation>
    </message>
    <message id="noBackupYetMessage">
        <source></source>
        <translation>Er is nog geen reservekopie voltooid.</translation>
    </message>
    <message id="startWithoutRunTitle">
        <source></source>
        <translation>Reservekopie niet gestart</translation>
    </message>
    <message id="startWithoutRunMessage">
        <source></source>
        <translation>Time Machine heeft de start van een reservekopie geaccepteerd, maar er is er geen actief.</translation>
    </message>
    <message id="noProgressTitle">
        <source></source>
        <translation>Reservekopie vordert niet</translation>
    </message>
    <message id="noProgressMessage">
        <source></source>
        <translation>De actieve reservekopie is al een half uur niet gevorderd.</translation>
    </message>
    <message id="damageFoundTitle">
        <source></source>
        <translation>Reservekopieën zijn beschadigd</translation>
    </message>
    <message id="damageFoundMessage">
        <source></source>
        <translation>Time Machine heeft schade in je reservekopieën gevonden. Sommige bestanden kunnen mogelijk niet worden teruggezet.</translation>
    </message>
    <message id="startAheadTitle">
        <source></source>
        <translation>Reservekopie start zo</translation>
    </message>
    <message id="startAheadMessage">
        <source></source>
        <translation>De volgende reservekopie start om %1.</translation>
    </message>
    <message id="startAheadSkipTitle">
        <source></source>
        <translation>Sla over</translation>
    </message>
    <message id="startAheadPostponeTitle">
        <source></source>
        <translation>Over een uur</translation>
    </message>
    <!-- Where there is no Time Machine application -->
    <!-- The schedule in the settings panel -->
    <message id="settingsGroupSchedule">
        <source></source>
        <translation>Geplande reservekopieën</translation>
    </message>
    <message id="settingsEnableScheduledBackupsVia">
        <source></source>
        <translation>Plan reservekopieën op basis van</translation>
    </message>
    <message id="settingsOptionCalendarInterval">
        <source></source>
        <translation>dag en tijd</translation>
    </message>
    <message id="settingsOptionInterval">
        <source></source>
        <translation>interval</translation>
    </message>
    <message id="scheduleTitle">
        <source></source>
        <translation>Schema:</translation>
    </message>
    <message id="warningButtonTitle">
        <source></source>
        <translation>Waarschuwing over automatische reservekopieën</translation>
    </message>
    <message id="setupDisksButtonTitle">
        <source></source>
        <translation>Over de reservekopieschijven</translation>
    </message>
    <message id="addRuleTitle">
        <source></source>
        <translation>Voeg regel toe</translation>
    </message>
    <message id="deleteRuleTitle">
        <source></source>
        <translation>Verwijder regel</translation>
    </message>
    <!-- A rule as one sentence: back up, day, at, time of day -->
    <message id="backupTitle">
        <source></source>
        <translation>Reservekopie</translation>
    </message>
    <message id="everyDayTitle">
        <source></source>
        <translation>elke dag</translation>
    </message>
    <message id="weekdaysTitle">
        <source></source>
        <translation>maandag tot en met vrijdag</translation>
    </message>
    <message id="mondayTitle">
        <source></source>
        <translation>elke maandag</translation>
    </message>
    <message id="tuesdayTitle">
        <source></source>
        <translation>elke dinsdag</translation>
    </message>
    <message id="wednesdayTitle">
        <source></source>
        <translation>elke woensdag</translation>
    </message>
    <message id="thursdayTitle">
        <source></source>
        <translation>elke donderdag</translation>
    </message>
    <message id="fridayTitle">
        <source></source>
        <translation>elke vrijdag</translation>
    </message>
    <message id="saturdayTitle">
        <source></source>
        <translation>elke zaterdag</translation>
    </message>
    <message id="sundayTitle">
        <source></source>
        <translation>elke zondag</translation>
    </message>
    <message id="atTimeTitle">
        <source></source>
        <translation>om</translation>
    </message>
    <!-- The interval page; the unit stands behind any number from 1 on -->
    <message id="settingsIntervalEvery">
        <source></source>
        <translation>Reservekopie elke</translation>
    </message>
    <message id="settingsIntervalHours">
        <source></source>
        <translation>uur</translation>
    </message>
    <message id="settingsIntervalHour">
        <source></source>
        <translation>uur</translation>
    </message>
    <message id="settingsIntervalNotYetUsed">
        <source></source>
        <translation>Het interval wordt nog niet gebruikt: reservekopieën starten op de dagen en tijden van de regels.</translation>
    </message>
    <!-- The other groups of the settings panel -->
    <message id="settingsGroupRetry">
        <source></source>
        <translation>Nieuwe poging</translation>
    </message>
    <message id="settingsEnableAfterMissedBackup">
        <source></source>
        <translation>Probeer opnieuw na gemiste reservekopie</translation>
    </message>
    <message id="settingsEnableAfterFailedBackup">
        <source></source>
        <translation>Probeer opnieuw na mislukte reservekopie</translation>
    </message>
    <message id="settingsGroupMenuBar">
        <source></source>
        <translation>Menubalk</translation>
    </message>
    <message id="settingsShowDetailedTimeInMenuBar">
        <source></source>
        <translation>Toon gedetailleerde tijden</translation>
    </message>
    <message id="settingsShowDetailedTimeInMenuBarDetails">
        <source></source>
        <translation>Bijvoorbeeld ‘1 u, 30 m’ in plaats van ‘1 u’.</translation>
    </message>
    <message id="settingsShowMenuBarIconOnly">
        <source></source>
        <translation>Toon alleen het symbool</translation>
    </message>
    <message id="settingsDisableIconColors">
        <source></source>
        <translation>Kleur het symbool als het aandacht vraagt</translation>
    </message>
    <message id="settingsGroupDisks">
        <source></source>
        <translation>Schijven en inloggen</translation>
    </message>
    <message id="settingsRotateBackupDisks">
        <source></source>
        <translation>Wissel tussen reservekopieschijven</translation>
    </message>
    <message id="settingsStartOnSystemStart">
        <source></source>
        <translation>Open Quillon bij inloggen</translation>
    </message>
    <message id="loginItemRefusedMessage">
        <source></source>
        <translation>Het systeem heeft de wijziging niet aangenomen: wat bij het inloggen wordt geopend, blijft zoals het was.</translation>
    </message>
    <!-- The second page of the settings panel; a number stands behind what is not a sentence -->
    <message id="settingsMoreTitle">
        <source></source>
        <translation>Meer</translation>
    </message>
    <message id="settingsBackTitle">
        <source></source>
        <translation>Terug</translation>
    </message>
    <message id="settingsGroupPower">
        <source></source>
        <translation>Energie</translation>
    </message>
    <message id="settingsOnlyOnMainsPower">
        <source></source>
        <translation>Start reservekopieën alleen op netstroom</translation>
    </message>
    <message id="settingsChargeThatSuffices">
        <source></source>
        <translation>Of bij een lading boven</translation>
    </message>
    <message id="settingsPerCent">
        <source></source>
        <translation>%1%</translation>
    </message>
    <message id="settingsStayAwake">
        <source></source>
        <translation>Voorkom slaapstand tijdens reservekopieën van Quillon</translation>
    </message>
    <message id="settingsStartWhenDiskAppears">
        <source></source>
        <translation>Probeer opnieuw zodra de reservekopieschijf verschijnt</translation>
    </message>
    <message id="settingsMinutesAfterWake">
        <source></source>
        <translation>Wacht na ontwaken</translation>
    </message>
    <message id="settingsMinutes">
        <source></source>
        <translation>%1 min</translation>
    </message>
    <message id="settingsGroupNotifications">
        <source></source>
        <translation>Meldingen</translation>
    </message>
    <message id="settingsDaysWithoutBackup">
        <source></source>
        <translation>Geen voltooide reservekopie sinds</translation>
    </message>
    <message id="settingsDays">
        <source></source>
        <translation>%1 dagen</translation>
    </message>
    <message id="settingsDay">
        <source></source>
        <translation>%1 dag</translation>
    </message>
    <message id="settingsTellBeforeStart">
        <source></source>
        <translation>Een minuut voordat een reservekopie start</translation>
    </message>
    <!-- Alerts of the settings panel -->
    <message id="maximumRulesReachedTitle">
        <source></source>
        <translation>Er kunnen geen regels meer bij</translation>
    </message>
    <message id="maximumRulesReachedMessage">
        <source></source>
        <translation>Een schema heeft hoogstens %1 regels. Wijzig of verwijder er in plaats daarvan een.</translation>
    </message>
    <message id="confirmDeleteRuleTitle">
        <source></source>
        <translation>Deze regel verwijderen?</translation>
    </message>
    <message id="confirmDeleteRuleMessage">
        <source></source>
        <translation>De regel wordt verwijderd en Quillon start op dat tijdstip geen reservekopie meer.</translation>
    </message>
    <message id="retryAfterMissedBackupTitle">
        <source></source>
        <translation>Opnieuw proberen na gemiste reservekopie</translation>
    </message>
    <message id="retryAfterMissedBackupMessage">
        <source></source>
        <translation>Als de computer slaapt op het tijdstip van een geplande reservekopie, start die reservekopie ongeveer vijf minuten nadat de computer is ontwaakt. Zolang het schema is onderbroken, wordt niets opnieuw geprobeerd.</translation>
    </message>
    <message id="retryAfterFailedBackupTitle">
        <source></source>
        <translation>Opnieuw proberen na mislukte reservekopie</translation>
    </message>
    <message id="retryAfterFailedBackupMessage">
        <source></source>
        <translation>Als een reservekopie voortijdig eindigt, probeert Quillon het ongeveer vijf minuten later opnieuw. Reservekopieën die je zelf stopt, worden niet opnieuw geprobeerd; zolang het schema is onderbroken, gebeurt dat evenmin.</translation>
    </message>
    <message id="AlertButtonOk">
        <source></source>
        <translation>OK</translation>
    </message>
    <message id="AlertButtonDelete">
        <source></source>
        <translation>Verwijder</translation>
    </message>
    <!-- The first launch; the instruction is also the text of the settings panel's warning -->
    <message id="firstStartInfoAlertTitle">
        <source></source>
        <translation>Welkom bij %1</translation>
    </message>
    <message id="firstStartInfoAlertMessage">
        <source></source>
        <translation>%2 staat in de menubalk en start je reservekopieën op de tijden die je in de instellingen kiest.

%1</translation>
    </message>
    <message id="disableTmInstruction">
        <source></source>
        <translation>Als Time Machine ook automatisch reservekopieën maakt, schakel je dat uit, zodat reservekopieën alleen starten wanneer jij ze hebt gepland. Op een Mac open je Systeemvoorkeuren, klik je op ‘Time Machine’ en schakel je automatische reservekopieën uit.</translation>
    </message>
    <message id="disableTmInstructionVentura">
        <source></source>
        <translation>Als Time Machine ook automatisch reservekopieën maakt, schakel je dat uit, zodat reservekopieën alleen starten wanneer jij ze hebt gepland. Op een Mac open je Systeeminstellingen, kies je ‘Algemeen’ &gt; ‘Time Machine’ &gt; ‘Opties’ en stel je de frequentie van de reservekopieën in op ‘Handmatig’.</translation>
    </message>
    <message id="setupDisksMessage">
        <source></source>
        <translation>Reservekopieën worden gemaakt op:
%1

Reservekopieschijven voeg je toe en verwijder je in de Time Machine-instellingen.</translation>
    </message>
    <message id="setupNoDiskMessage">
        <source></source>
        <translation>Er is nog geen reservekopieschijf ingesteld en zonder schijf kan geen reservekopie starten. Voeg er een toe in de Time Machine-instellingen.</translation>
    </message>
    <message id="setupUnknownDisksMessage">
        <source></source>
        <translation>Reservekopieschijven kies je in de Time Machine-instellingen.</translation>
    </message>
    <message id="AlertButtonHelp">
        <source></source>
        <translation>Help</translation>
    </message>
    <!-- The about panel -->
    <message id="versionTitle">
        <source></source>
        <translation>Versie</translation>
    </message>
    <message id="copyrightTitle">
        <source></source>
        <translation>© %1 de auteurs van Quillon</translation>
    </message>
    <message id="supportDetailsMessage">
        <source></source>
        <translation>Een vraag, een idee of iets dat niet werkt? Schrijf ons.</translation>
    </message>
    <message id="websiteButtonTitle">
        <source></source>
        <translation>Website</translation>
    </message>
    <message id="creditsTitle">
        <source></source>
        <translation>Quillon is gebouwd op Qt, ICU en libplist. Op Linux maakt restic de reservekopieën.</translation>
    </message>
    <message id="appIconCreditsTitle">
        <source></source>
        <translation>Symbool van %1</translation>
    </message>
    <message id="privacyPolicyDetailsMessage">
        <source></source>
        <translation>Quillon verstuurt niets over jou of je bestanden.</translation>
    </message>
    <message id="termsButtonTitle">
        <source></source>
        <translation>Gebruiksvoorwaarden</translation>
    </message>
    <message id="privacyPolicyAlertTitle">
        <source></source>
        <translation>Privacybeleid</translation>
    </message>
    <message id="privacyPolicyAlertMessage">
        <source></source>
        <translation>%1 bewaart je instellingen en de gegevens over je reservekopieën op deze computer. Om te weten of er nieuwe versies zijn, raadpleegt %1 een dienst van de maker; dat verzoek noemt %1, niet jou. Het volledige privacybeleid van %1 staat op de website.</translation>
    </message>
    <message id="AlertButtonReadMore">
        <source></source>
        <translation>Lees meer</translation>
    </message>
    <message id="AlertMessageMailNotConfigured">
        <source></source>
        <translation>Er kon geen mailapp worden geopend. Schrijf naar %1.</translation>
    </message>
    <!-- Window of the Time Machine settings on Linux -->
    <message id="disksWindowTitle">
        <source></source>
        <translation>Time Machine</translation>
    </message>
    <message id="disksDisksTitle">
        <source></source>
        <translation>Reservekopieschijven</translation>
    </message>
    <message id="disksSourcesTitle">
        <source></source>
        <translation>Mappen</translation>
    </message>
    <message id="disksExclusionsTitle">
        <source></source>
        <translation>Uitgesloten</translation>
    </message>
    <message id="disksDisksExplanation">
        <source></source>
        <translation>Reservekopieën worden op deze schijven en netwerklocaties gemaakt. De reservekopieën zijn versleuteld; wat er verder op een schijf staat, blijft zoals het is. De sleutels staan in je thuismap.</translation>
    </message>
    <message id="disksSourcesExplanation">
        <source></source>
        <translation>Van deze mappen wordt een reservekopie gemaakt, met alles erin.</translation>
    </message>
    <message id="disksExclusionsExplanation">
        <source></source>
        <translation>Deze bestanden en mappen komen in geen enkele reservekopie.</translation>
    </message>
    <message id="disksNoDisks">
        <source></source>
        <translation>Er is nog geen reservekopieschijf. Voeg om te beginnen een schijf, een map op een schijf of een netwerklocatie toe.</translation>
    </message>
    <message id="disksNoExclusions">
        <source></source>
        <translation>Er is niets uitgesloten. Voeg toe wat geen reservekopie nodig heeft, zoals downloads die je opnieuw kunt ophalen.</translation>
    </message>
    <message id="disksReading">
        <source></source>
        <translation>Instellingen lezen…</translation>
    </message>
    <message id="disksConnected">
        <source></source>
        <translation>Verbonden</translation>
    </message>
    <message id="disksNotConnected">
        <source></source>
        <translation>Niet verbonden</translation>
    </message>
    <message id="disksLastBackup">
        <source></source>
        <translation>Laatste reservekopie: %1</translation>
    </message>
    <message id="disksNoBackupYet">
        <source></source>
        <translation>Nog geen reservekopie</translation>
    </message>
    <message id="disksAddDiskTitle">
        <source></source>
        <translation>Voeg schijf toe</translation>
    </message>
    <message id="disksAddFolderTitle">
        <source></source>
        <translation>Voeg map toe</translation>
    </message>
    <message id="disksAddFileTitle">
        <source></source>
        <translation>Voeg bestand toe</translation>
    </message>
    <message id="disksRemoveTitle">
        <source></source>
        <translation>Verwijder</translation>
    </message>
    <message id="disksCancelTitle">
        <source></source>
        <translation>Annuleer</translation>
    </message>
    <message id="disksOkTitle">
        <source></source>
        <translation>OK</translation>
    </message>
    <message id="disksTryAgainTitle">
        <source></source>
        <translation>Probeer opnieuw</translation>
    </message>
    <message id="disksFree">
        <source></source>
        <translation>%1 (%2 vrij)</translation>
    </message>
    <message id="disksNoOtherDisk">
        <source></source>
        <translation>Er is geen andere schijf verbonden</translation>
    </message>
    <message id="disksAddFailed">
        <source></source>
        <translation>‘%1’ kon niet worden toegevoegd.</translation>
    </message>
    <message id="disksRemoveFailed">
        <source></source>
        <translation>‘%1’ kon niet worden verwijderd.</translation>
    </message>
    <message id="disksRemoveAlertMessage">
        <source></source>
        <translation>Geen reservekopieën meer maken op ‘%1’?</translation>
    </message>
    <message id="disksRemoveAlertInformative">
        <source></source>
        <translation>De reservekopieën erop blijven bewaard, en de sleutel ook. Voeg dezelfde map opnieuw toe om ermee door te gaan.</translation>
    </message>
    <message id="disksHomeAlertMessage">
        <source></source>
        <translation>In plaats daarvan een reservekopie van je hele thuismap maken?</translation>
    </message>
    <message id="disksHomeAlertInformative">
        <source></source>
        <translation>‘%1’ is de enige map in de lijst. Als de lijst leeg is, wordt een reservekopie gemaakt van alles in je thuismap.</translation>
    </message>
    <message id="disksReadFailed">
        <source></source>
        <translation>De instellingen konden niet worden gelezen: %1</translation>
    </message>
    <message id="disksToolHangs">
        <source></source>
        <translation>tmutil reageert niet.</translation>
    </message>
    <message id="disksToolMissing">
        <source></source>
        <translation>Het programma ‘%1’ kan niet worden gestart.</translation>
    </message>
    <message id="disksToolFailed">
        <source></source>
        <translation>tmutil eindigde met afsluitstatus %1.</translation>
    </message>
    <message id="disksToolUnreadable">
        <source></source>
        <translation>Het antwoord van tmutil is onleesbaar.</translation>
    </message>
    <message id="reasonWithDetail">
        <source></source>
        <translation>%1 (tmutil: %2)</translation>
    </message>
    <message id="reasonMissing">
        <source></source>
        <translation>De reservekopieschijf is niet aangesloten of de netwerklocatie is niet bereikbaar.</translation>
    </message>
    <message id="reasonNoSpace">
        <source></source>
        <translation>Er is geen ruimte meer.</translation>
    </message>
    <message id="reasonCannotWrite">
        <source></source>
        <translation>Daar kan niets worden geschreven.</translation>
    </message>
    <message id="reasonExists">
        <source></source>
        <translation>Er is al iets met die naam; dat blijft staan.</translation>
    </message>
    <message id="reasonNotInBackups">
        <source></source>
        <translation>Het zit niet in de reservekopieën.</translation>
    </message>
    <message id="reasonDamaged">
        <source></source>
        <translation>Het is beschadigd in de reservekopie.</translation>
    </message>
    <message id="reasonNoAttributes">
        <source></source>
        <translation>De inhoud is volledig, maar de eigenaar, de rechten of andere kenmerken konden niet worden hersteld.</translation>
    </message>
    <message id="reasonConnectionLost">
        <source></source>
        <translation>De verbinding met de server is verbroken.</translation>
    </message>
    <message id="reasonAccessDenied">
        <source></source>
        <translation>De server weigert de gebruiker, het wachtwoord of de sleutel.</translation>
    </message>
    <message id="reasonUntrusted">
        <source></source>
        <translation>Het is niet zeker dat dit de juiste server is.</translation>
    </message>
    <message id="reasonServerFailed">
        <source></source>
        <translation>De server meldt een eigen fout; misschien is hij vol.</translation>
    </message>
    <message id="reasonWrongKey">
        <source></source>
        <translation>De sleutel van de reservekopieën ontbreekt of past niet.</translation>
    </message>
    <message id="reasonLocked">
        <source></source>
        <translation>De reservekopieën zijn in gebruik. Probeer het later opnieuw.</translation>
    </message>
    <message id="reasonResticMissing">
        <source></source>
        <translation>restic is niet geïnstalleerd.</translation>
    </message>
    <message id="reasonNoRepository">
        <source></source>
        <translation>De reservekopieën ontbreken of zijn beschadigd.</translation>
    </message>
    <message id="reasonNoInput">
        <source></source>
        <translation>Het bestand of de map is er niet.</translation>
    </message>
    <message id="reasonConfiguration">
        <source></source>
        <translation>De instellingen van de reservekopieën zijn beschadigd.</translation>
    </message>
    <message id="reasonNoWorkSpace">
        <source></source>
        <translation>Er is geen ruimte voor tijdelijke bestanden in de thuismap.</translation>
    </message>
    <message id="disksRoom">
        <source></source>
        <translation>%1 van %2 vrij</translation>
    </message>
    <message id="disksTaken">
        <source></source>
        <translation>Reservekopieën: %1</translation>
    </message>
    <message id="disksProblem">
        <source></source>
        <translation>Laatste probleem (%1): %2</translation>
    </message>
    <message id="disksKeyNotKept">
        <source></source>
        <translation>Herstelsleutel nog niet bewaard</translation>
    </message>
    <message id="disksSourceOnDisk">
        <source></source>
        <translation>De map ‘%1’ staat ook op deze schijf: als die stukgaat, zijn beide verloren</translation>
    </message>
    <message id="disksKeyBar">
        <source></source>
        <translation>Als deze computer verloren gaat, zijn de reservekopieën op ‘%1’ zonder herstelsleutel niet leesbaar.</translation>
    </message>
    <message id="disksShowKeyTitle">
        <source></source>
        <translation>Toon herstelsleutel</translation>
    </message>
    <message id="disksKeyHeading">
        <source></source>
        <translation>Herstelsleutel van ‘%1’</translation>
    </message>
    <message id="disksKeyExplanation">
        <source></source>
        <translation>Als deze computer verloren gaat, krijg je de reservekopieën met deze sleutel en de schijf terug. Schrijf de sleutel op of bewaar hem als pagina, weg van deze computer en van de schijf. Wie beide heeft, kan de reservekopieën lezen.</translation>
    </message>
    <message id="disksKeyOnce">
        <source></source>
        <translation>Dit is een nieuwe sleutel, die alleen nu wordt getoond. Zodra je hem hebt bewaard, openen eerder getoonde sleutels niets meer.</translation>
    </message>
    <message id="disksSavePageTitle">
        <source></source>
        <translation>Bewaar als pagina</translation>
    </message>
    <message id="disksLaterTitle">
        <source></source>
        <translation>Later</translation>
    </message>
    <message id="disksKeptTitle">
        <source></source>
        <translation>Ik heb hem bewaard</translation>
    </message>
    <message id="disksKeyFailed">
        <source></source>
        <translation>Er kon geen herstelsleutel voor ‘%1’ worden gemaakt.</translation>
    </message>
    <message id="disksKeepFailed">
        <source></source>
        <translation>Er kon niet worden genoteerd dat je de herstelsleutel van ‘%1’ hebt bewaard.</translation>
    </message>
    <message id="disksPageFailed">
        <source></source>
        <translation>De pagina kon niet worden bewaard.</translation>
    </message>
    <message id="disksPagePdf">
        <source></source>
        <translation>PDF-document</translation>
    </message>
    <message id="disksPageText">
        <source></source>
        <translation>Tekstbestand</translation>
    </message>
    <message id="disksPageOnDiskMessage">
        <source></source>
        <translation>De pagina op de reservekopieschijf zelf bewaren?</translation>
    </message>
    <message id="disksPageOnDiskInformative">
        <source></source>
        <translation>Wie de schijf meeneemt, heeft dan ook de sleutel, en met een defecte schijf is ook de pagina weg.</translation>
    </message>
    <message id="disksSaveTitle">
        <source></source>
        <translation>Bewaar</translation>
    </message>
    <message id="disksPageMade">
        <source></source>
        <translation>Gemaakt op %1. Bewaar deze pagina weg van de computer en van de schijf. Wie beide heeft, kan de reservekopieën lezen.</translation>
    </message>
    <message id="disksPageSteps">
        <source></source>
        <translation>Als de computer verloren is, op een nieuwe</translation>
    </message>
    <message id="disksPageConnect">
        <source></source>
        <translation>Installeer Quillon en verbind de schijf.</translation>
    </message>
    <message id="disksPageAdopt">
        <source></source>
        <translation>%1 vraagt om de herstelsleutel en neemt de schijf over.</translation>
    </message>
    <message id="disksPageList">
        <source></source>
        <translation>%1 noemt de reservekopieën.</translation>
    </message>
    <message id="disksPageRestore">
        <source></source>
        <translation>%1 zet een map terug.</translation>
    </message>
    <message id="disksPageContinue">
        <source></source>
        <translation>%1 gaat verder met de reservekopieën.</translation>
    </message>
    <message id="disksAddTitle">
        <source></source>
        <translation>Voeg toe</translation>
    </message>
    <message id="disksAddNameTitle">
        <source></source>
        <translation>Voeg naampatroon toe</translation>
    </message>
    <message id="disksAddSizeTitle">
        <source></source>
        <translation>Voeg groottelimiet toe</translation>
    </message>
    <message id="disksByName">
        <source></source>
        <translation>Bestanden en mappen met deze naam, waar dan ook</translation>
    </message>
    <message id="disksBySize">
        <source></source>
        <translation>In alle mappen</translation>
    </message>
    <message id="disksLargerThan">
        <source></source>
        <translation>Bestanden groter dan %1</translation>
    </message>
    <message id="disksNamePrompt">
        <source></source>
        <translation>Sluit bestanden en mappen uit met de naam</translation>
    </message>
    <message id="disksNameHint">
        <source></source>
        <translation>* staat voor willekeurige tekens, ? voor één teken.</translation>
    </message>
    <message id="disksSizePrompt">
        <source></source>
        <translation>Sluit bestanden uit die groter zijn dan</translation>
    </message>
    <message id="disksCounting">
        <source></source>
        <translation>Uitgesloten bestanden tellen…</translation>
    </message>
    <message id="disksPreview">
        <source></source>
        <translation>Bestanden die nu worden uitgesloten: %1 (%2)</translation>
    </message>
    <message id="disksPreviewNothing">
        <source></source>
        <translation>Er wordt nu geen bestand uitgesloten.</translation>
    </message>
    <message id="disksLeaveOutTitle">
        <source></source>
        <translation>Sluit uit</translation>
    </message>
    <message id="disksListing">
        <source></source>
        <translation>Schijven zoeken…</translation>
    </message>
    <message id="disksListFailed">
        <source></source>
        <translation>De schijven konden niet worden opgesomd</translation>
    </message>
    <message id="disksEditTitle">
        <source></source>
        <translation>Wijzig</translation>
    </message>
    <message id="disksAddPlaceTitle">
        <source></source>
        <translation>Voeg netwerklocatie toe</translation>
    </message>
    <message id="disksEditPlaceTitle">
        <source></source>
        <translation>Toegang tot ‘%1’</translation>
    </message>
    <message id="disksPlaceKind">
        <source></source>
        <translation>Soort</translation>
    </message>
    <message id="disksPlaceSftp">
        <source></source>
        <translation>SFTP (SSH)</translation>
    </message>
    <message id="disksPlaceRest">
        <source></source>
        <translation>REST-server van restic</translation>
    </message>
    <message id="disksPlaceS3">
        <source></source>
        <translation>S3-compatibele opslag</translation>
    </message>
    <message id="disksPlaceAddress">
        <source></source>
        <translation>Adres</translation>
    </message>
    <message id="disksPlaceServer">
        <source></source>
        <translation>Server</translation>
    </message>
    <message id="disksPlacePort">
        <source></source>
        <translation>Poort</translation>
    </message>
    <message id="disksPlaceFolder">
        <source></source>
        <translation>Map</translation>
    </message>
    <message id="disksPlacePath">
        <source></source>
        <translation>Pad</translation>
    </message>
    <message id="disksPlaceBucket">
        <source></source>
        <translation>Bucket</translation>
    </message>
    <message id="disksPlaceUser">
        <source></source>
        <translation>Gebruikersnaam</translation>
    </message>
    <message id="disksPlaceKeyFile">
        <source></source>
        <translation>Sleutelbestand</translation>
    </message>
    <message id="disksPlacePassword">
        <source></source>
        <translation>Wachtwoord</translation>
    </message>
    <message id="disksPlaceAccessKey">
        <source></source>
        <translation>Toegangssleutel</translation>
    </message>
    <message id="disksPlaceSecretKey">
        <source></source>
        <translation>Geheime sleutel</translation>
    </message>
    <message id="disksPlaceRegion">
        <source></source>
        <translation>Regio</translation>
    </message>
    <message id="disksPlaceSecure">
        <source></source>
        <translation>Versleutelde verbinding (HTTPS)</translation>
    </message>
    <message id="disksPlaceCertificate">
        <source></source>
        <translation>Certificaatbestand</translation>
    </message>
    <message id="disksPlaceUpload">
        <source></source>
        <translation>Uploadlimiet</translation>
    </message>
    <message id="disksPlaceDownload">
        <source></source>
        <translation>Downloadlimiet</translation>
    </message>
    <message id="disksPlaceNoLimit">
        <source></source>
        <translation>Geen</translation>
    </message>
    <message id="disksPlaceUploadAtMost">
        <source></source>
        <translation>Upload hoogstens %1</translation>
    </message>
    <message id="disksPlaceDownloadAtMost">
        <source></source>
        <translation>Download hoogstens %1</translation>
    </message>
    <message id="disksPlaceOptional">
        <source></source>
        <translation>Optioneel</translation>
    </message>
    <message id="disksPlaceUnchanged">
        <source></source>
        <translation>Ongewijzigd</translation>
    </message>
    <message id="disksPlaceChooseTitle">
        <source></source>
        <translation>Kies</translation>
    </message>
    <message id="disksPlaceNeeded">
        <source></source>
        <translation>Nog nodig: %1</translation>
    </message>
    <message id="disksPlaceBadServer">
        <source></source>
        <translation>Geef alleen de naam of het adres van de server op, zoals nas.example.org.</translation>
    </message>
    <message id="disksPlaceBadPort">
        <source></source>
        <translation>Een poort is een getal van 1 tot en met 65535.</translation>
    </message>
    <message id="disksPlaceBadFolder">
        <source></source>
        <translation>De map begint met / of, als die in je eigen map op de server staat, met ~/.</translation>
    </message>
    <message id="disksPlaceBadFile">
        <source></source>
        <translation>Een bestand geef je op met het volledige pad, dat met / begint.</translation>
    </message>
    <message id="disksPlaceUserAndPassword">
        <source></source>
        <translation>Geef zowel gebruikersnaam als wachtwoord op, of geen van beide.</translation>
    </message>
    <message id="disksPlaceTryTitle">
        <source></source>
        <translation>Test</translation>
    </message>
    <message id="disksPlaceTrustTitle">
        <source></source>
        <translation>Vertrouw</translation>
    </message>
    <message id="disksPlaceTakeUpTitle">
        <source></source>
        <translation>Neem over</translation>
    </message>
    <message id="disksPlaceAsking">
        <source></source>
        <translation>Server wordt benaderd…</translation>
    </message>
    <message id="disksPlaceKeeping">
        <source></source>
        <translation>Locatie wordt ingesteld…</translation>
    </message>
    <message id="disksPlaceEmpty">
        <source></source>
        <translation>De server kan worden gebruikt. Er staan daar nog geen reservekopieën.</translation>
    </message>
    <message id="disksPlaceBackups">
        <source></source>
        <translation>De server kan worden gebruikt. Er staan daar reservekopieën die deze computer kan lezen; daarmee wordt doorgegaan.</translation>
    </message>
    <message id="disksPlaceWrongKey">
        <source></source>
        <translation>Er staan daar reservekopieën waarvan deze computer geen sleutel heeft. Zijn ze van jou, voer dan de herstelsleutel in om ermee door te gaan; kies anders een andere locatie.</translation>
    </message>
    <message id="disksPlaceRecoveryKey">
        <source></source>
        <translation>Herstelsleutel</translation>
    </message>
    <message id="disksPlaceFingerprint">
        <source></source>
        <translation>Vingerafdruk van de serversleutel</translation>
    </message>
    <message id="disksPlaceUnknownKey">
        <source></source>
        <translation>‘%1’ is nog niet bekend op deze computer. Vergelijk de vingerafdruk van de sleutel met die van de beheerder en vertrouw de server alleen als ze gelijk zijn.</translation>
    </message>
    <message id="disksPlaceChangedKey">
        <source></source>
        <translation>Waarschuwing: ‘%1’ toont een andere sleutel dan eerst. Misschien leest er iemand mee. Vertrouw de nieuwe sleutel alleen als de beheerder van de server de wijziging en deze vingerafdruk bevestigt.</translation>
    </message>
    <message id="disksPlaceChangedKeyMessage">
        <source></source>
        <translation>De nieuwe sleutel van ‘%1’ vertrouwen?</translation>
    </message>
    <message id="disksPlaceChangedKeyInformative">
        <source></source>
        <translation>Als die niet van de server zelf is, komt wat je verstuurt bij iemand anders terecht.</translation>
    </message>
    <message id="disksPlaceBadCertificate">
        <source></source>
        <translation>Het certificaat van ‘%1’ wordt niet vertrouwd; het kan een andere server zijn. Is het een eigen certificaat, kies dan dat of dat van de uitgever als certificaatbestand.</translation>
    </message>
    <message id="disksPlaceAccessDeniedKey">
        <source></source>
        <translation>‘%1’ weigert de gebruiker of de sleutel. Controleer beide. De publieke sleutel moet op de server zijn ingesteld en het sleutelbestand mag geen wachtwoordzin hebben.</translation>
    </message>
    <message id="disksPlaceAccessDenied">
        <source></source>
        <translation>‘%1’ weigert de toegang. Controleer wat je hebt ingevoerd: de gebruikersnaam en het wachtwoord, of de sleutels.</translation>
    </message>
    <message id="disksPlaceNoPermission">
        <source></source>
        <translation>Daar kan niets worden geschreven. Kies een andere plek op de server of laat de beheerder het toestaan.</translation>
    </message>
    <message id="disksPlaceNoAnswer">
        <source></source>
        <translation>‘%1’ antwoordt niet. Controleer de server en de poort, en of deze computer met het netwerk is verbonden.</translation>
    </message>
    <message id="disksPlaceNoSpace">
        <source></source>
        <translation>De server is vol. Maak daar ruimte vrij of kies een andere locatie.</translation>
    </message>
    <message id="disksPlaceFailed">
        <source></source>
        <translation>De server kan niet worden gebruikt: %1</translation>
    </message>
    <message id="disksPlaceRemoveInformative">
        <source></source>
        <translation>De reservekopieën daar blijven bewaard, en de sleutel ook; de toegangsgegevens van de server worden gewist. Voeg dezelfde locatie opnieuw toe om ermee door te gaan.</translation>
    </message>
    <message id="disksPlaceKeyExplanation">
        <source></source>
        <translation>Als deze computer verloren gaat, krijg je de reservekopieën met deze sleutel en toegang tot de server terug. Schrijf de sleutel op of bewaar hem als pagina, weg van deze computer, samen met de toegangsgegevens van de server. Wie beide heeft, kan de reservekopieën lezen.</translation>
    </message>
    <message id="disksPlacePageMade">
        <source></source>
        <translation>Gemaakt op %1. Bewaar deze pagina weg van de computer. Wie de pagina en toegang tot de server heeft, kan de reservekopieën lezen.</translation>
    </message>
    <message id="disksPlacePageStart">
        <source></source>
        <translation>Installeer Quillon en start %1.</translation>
    </message>
    <message id="disksPlacePageAdd">
        <source></source>
        <translation>Kies ‘%1’, voer %2 in als server en de toegangsgegevens, en de herstelsleutel wanneer daarom wordt gevraagd.</translation>
    </message>
    <!-- Window of the backups on Linux -->
    <message id="browseWindowTitle">
        <source></source>
        <translation>Time Machine-reservekopieën</translation>
    </message>
    <message id="browseThisWeek">
        <source></source>
        <translation>Deze week</translation>
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
        <translation>Beschadigd</translation>
    </message>
    <message id="browseIncomplete">
        <source></source>
        <translation>Onvolledig</translation>
    </message>
    <message id="browseRestoring">
        <source></source>
        <translation>Terugzetten …</translation>
    </message>
    <message id="browseRestoreProgress">
        <source></source>
        <translation>%1 van %2 bestanden, %3 van %4</translation>
    </message>
    <message id="browseRestoreStopped">
        <source></source>
        <translation>Gestopt. Wat nog niet was teruggezet, blijft zoals het was.</translation>
    </message>
    <message id="browseRestoredCount">
        <source></source>
        <translation>Teruggezet: %1</translation>
    </message>
    <message id="browseSkippedCount">
        <source></source>
        <translation>Overgeslagen: %1</translation>
    </message>
    <message id="browseLostCount">
        <source></source>
        <translation>Niet teruggezet: %1</translation>
    </message>
    <message id="browseConflictMessage">
        <source></source>
        <translation>‘%1’ bestaat al.</translation>
    </message>
    <message id="browseNameColumn">
        <source></source>
        <translation>Naam</translation>
    </message>
    <message id="browseSizeColumn">
        <source></source>
        <translation>Grootte</translation>
    </message>
    <message id="browseModifiedColumn">
        <source></source>
        <translation>Gewijzigd</translation>
    </message>
    <message id="browseSinceColumn">
        <source></source>
        <translation>Later</translation>
    </message>
    <message id="browseFolderColumn">
        <source></source>
        <translation>Map</translation>
    </message>
    <message id="browseBackupColumn">
        <source></source>
        <translation>Reservekopie</translation>
    </message>
    <message id="browseSortTip">
        <source></source>
        <translation>Sorteer op deze kolom (%1)</translation>
    </message>
    <message id="browseChanged">
        <source></source>
        <translation>Gewijzigd</translation>
    </message>
    <message id="browseGone">
        <source></source>
        <translation>Verwijderd</translation>
    </message>
    <message id="browseFolderKind">
        <source></source>
        <translation>Map</translation>
    </message>
    <message id="browseLinkTo">
        <source></source>
        <translation>Koppeling naar %1</translation>
    </message>
    <message id="browseDiskLabel">
        <source></source>
        <translation>Reservekopieën op</translation>
    </message>
    <message id="browseTimelineName">
        <source></source>
        <translation>Reservekopieën</translation>
    </message>
    <message id="browseFilesName">
        <source></source>
        <translation>Bestanden in de reservekopie</translation>
    </message>
    <message id="browsePathLabel">
        <source></source>
        <translation>Map in de reservekopie</translation>
    </message>
    <message id="browseBackTitle">
        <source></source>
        <translation>Terug</translation>
    </message>
    <message id="browseUpTitle">
        <source></source>
        <translation>Bovenliggende map</translation>
    </message>
    <message id="browseSearchPrompt">
        <source></source>
        <translation>Zoek naar namen</translation>
    </message>
    <message id="browseAllBackups">
        <source></source>
        <translation>In alle reservekopieën</translation>
    </message>
    <message id="browseVersionsName">
        <source></source>
        <translation>Versies</translation>
    </message>
    <message id="browseVersionsHint">
        <source></source>
        <translation>Kies een bestand om de versies ervan te zien.</translation>
    </message>
    <message id="browseNoVersions">
        <source></source>
        <translation>Geen reservekopie bevat het.</translation>
    </message>
    <message id="browsePreviewTitle">
        <source></source>
        <translation>Voorvertoning</translation>
    </message>
    <message id="browseRestoreTitle">
        <source></source>
        <translation>Zet terug</translation>
    </message>
    <message id="browseReading">
        <source></source>
        <translation>Lezen …</translation>
    </message>
    <message id="browseEmptyFolder">
        <source></source>
        <translation>Deze map is leeg.</translation>
    </message>
    <message id="browseNothingFound">
        <source></source>
        <translation>Niets met die naam gevonden.</translation>
    </message>
    <message id="browseSearching">
        <source></source>
        <translation>Zoeken …</translation>
    </message>
    <message id="browseFilling">
        <source></source>
        <translation>De hele reservekopie wordt voor het zoeken gelezen: %1</translation>
    </message>
    <message id="browseReadFailed">
        <source></source>
        <translation>Dit kon niet worden gelezen: %1</translation>
    </message>
    <message id="browseNoDiskMessage">
        <source></source>
        <translation>Er is geen reservekopieschijf of netwerklocatie ingesteld. Kies er een in de Time Machine-instellingen, dan worden je bestanden daar bewaard.</translation>
    </message>
    <message id="browseNoBackupMessage">
        <source></source>
        <translation>Er is geen reservekopie om te bekijken. Sluit de reservekopieschijf aan of maak verbinding met het netwerk, of wacht op de eerste reservekopie.</translation>
    </message>
    <message id="browseSettingsTitle">
        <source></source>
        <translation>Time Machine-instellingen</translation>
    </message>
    <message id="browsePreviewing">
        <source></source>
        <translation>‘%1’ wordt opgehaald …</translation>
    </message>
    <message id="browsePreviewFailed">
        <source></source>
        <translation>‘%1’ kan niet worden getoond.</translation>
    </message>
    <message id="browseNoProgram">
        <source></source>
        <translation>Er kon geen programma voor worden geopend.</translation>
    </message>
    <message id="browseRestoreHeading">
        <source></source>
        <translation>‘%1’ terugzetten</translation>
    </message>
    <message id="browseRestoreManyHeading">
        <source></source>
        <translation>%1 onderdelen terugzetten</translation>
    </message>
    <message id="browseFromBackup">
        <source></source>
        <translation>Uit de reservekopie van %1</translation>
    </message>
    <message id="browseToItsPlace">
        <source></source>
        <translation>Naar de oude plaats</translation>
    </message>
    <message id="browseToFolder">
        <source></source>
        <translation>Naar een andere map</translation>
    </message>
    <message id="browseChooseFolderTitle">
        <source></source>
        <translation>Kies map</translation>
    </message>
    <message id="browseNothingOverwritten">
        <source></source>
        <translation>Niets wordt overschreven zonder het je te vragen.</translation>
    </message>
    <message id="browseKeepBothTitle">
        <source></source>
        <translation>Bewaar beide</translation>
    </message>
    <message id="browseReplaceTitle">
        <source></source>
        <translation>Vervang</translation>
    </message>
    <message id="browseSkipTitle">
        <source></source>
        <translation>Sla over</translation>
    </message>
    <message id="browseForAll">
        <source></source>
        <translation>Doe hetzelfde voor alle andere</translation>
    </message>
    <message id="browseStopTitle">
        <source></source>
        <translation>Stop</translation>
    </message>
    <message id="browseStopping">
        <source></source>
        <translation>Stoppen …</translation>
    </message>
    <message id="browseLossesName">
        <source></source>
        <translation>Wat niet is teruggekomen</translation>
    </message>
    <!-- The log of backups -->
    <message id="logWindowTitle">
        <source></source>
        <translation>Reservekopielogboek</translation>
    </message>
    <message id="logDateTitle">
        <source></source>
        <translation>Datum</translation>
    </message>
    <message id="logOutcomeTitle">
        <source></source>
        <translation>Resultaat</translation>
    </message>
    <message id="logCauseTitle">
        <source></source>
        <translation>Gestart door</translation>
    </message>
    <message id="logDiskTitle">
        <source></source>
        <translation>Schijf</translation>
    </message>
    <message id="logSizeTitle">
        <source></source>
        <translation>Gekopieerd</translation>
    </message>
    <message id="logDurationTitle">
        <source></source>
        <translation>Duur</translation>
    </message>
    <message id="logBytesTitle">
        <source></source>
        <translation>Bytes</translation>
    </message>
    <message id="logBeganTitle">
        <source></source>
        <translation>Begin</translation>
    </message>
    <message id="logEndedTitle">
        <source></source>
        <translation>Einde</translation>
    </message>
    <message id="logReasonTitle">
        <source></source>
        <translation>Reden</translation>
    </message>
    <message id="logRunningTitle">
        <source></source>
        <translation>Bezig</translation>
    </message>
    <message id="logCompletedTitle">
        <source></source>
        <translation>Voltooid</translation>
    </message>
    <message id="logFailedTitle">
        <source></source>
        <translation>Mislukt</translation>
    </message>
    <message id="logStoppedTitle">
        <source></source>
        <translation>Gestopt</translation>
    </message>
    <message id="logUnseenTitle">
        <source></source>
        <translation>Niet gezien</translation>
    </message>
    <message id="logSkippedTitle">
        <source></source>
        <translation>Overgeslagen</translation>
    </message>
    <message id="logMissedTitle">
        <source></source>
        <translation>Gemist</translation>
    </message>
    <message id="logRefusedTitle">
        <source></source>
        <translation>Geweigerd</translation>
    </message>
    <message id="logScheduleTitle">
        <source></source>
        <translation>Schema</translation>
    </message>
    <message id="logRetryTitle">
        <source></source>
        <translation>Nieuwe poging</translation>
    </message>
    <message id="logUserTitle">
        <source></source>
        <translation>U</translation>
    </message>
    <message id="logElsewhereTitle">
        <source></source>
        <translation>Buiten Quillon</translation>
    </message>
    <message id="logAllTitle">
        <source></source>
        <translation>Alle</translation>
    </message>
    <message id="logNoBackupTitle">
        <source></source>
        <translation>Geen reservekopie</translation>
    </message>
    <message id="logDaysMessage">
        <source></source>
        <translation>De afgelopen %1 dagen: %2 met een reservekopie, %3 met alleen problemen</translation>
    </message>
    <message id="logCopyTitle">
        <source></source>
        <translation>Kopieer als tekst</translation>
    </message>
    <message id="logSaveTitle">
        <source></source>
        <translation>Bewaar als CSV</translation>
    </message>
    <message id="logSaveFailedTitle">
        <source></source>
        <translation>Het logboek kon niet worden bewaard.</translation>
    </message>
    <message id="logEmptyMessage">
        <source></source>
        <translation>Er is nog niets vastgelegd.</translation>
    </message>
    <message id="logNothingFoundMessage">
        <source></source>
        <translation>Geen regel komt overeen.</translation>
    </message>
    <message id="logUnreadableMessage">
        <source></source>
        <translation>Het logboek kon niet worden gelezen. Reservekopieën worden toch gemaakt.</translation>
    </message>
    <message id="logNextMessage">
        <source></source>
        <translation>Daarna gepland: %1</translation>
    </message>
    <message id="logAskedMessage">
        <source></source>
        <translation>Deze start is door een opdracht overgeslagen.</translation>
    </message>
    <message id="logOnBatteryMessage">
        <source></source>
        <translation>De computer werkte op de batterij. De reservekopie wordt gemaakt zodra hij weer op netstroom is aangesloten, tenzij een latere eerder aan de beurt is.</translation>
    </message>
    <message id="logPausedMessage">
        <source></source>
        <translation>Het schema was onderbroken. Hervat het in het menu om weer reservekopieën te maken.</translation>
    </message>
    <message id="logAsleepMessage">
        <source></source>
        <translation>De computer sliep. Kies tijden waarop hij wakker is of laat gemiste reservekopieën opnieuw proberen.</translation>
    </message>
    <message id="logClockSetMessage">
        <source></source>
        <translation>De klok is voorbij deze tijd gezet, of de computer had het te druk.</translation>
    </message>
    <message id="logBackupRanMessage">
        <source></source>
        <translation>Er was al een andere reservekopie bezig. Die kwam in de plaats van deze.</translation>
    </message>
    <message id="logOvertakenMessage">
        <source></source>
        <translation>Op hetzelfde moment werd een andere reservekopie gestart. Die kwam in de plaats van deze.</translation>
    </message>
    <message id="logStatusUnreadableMessage">
        <source></source>
        <translation>Time Machine gaf geen status door. Start de computer opnieuw op als dit vaker gebeurt.</translation>
    </message>
    <message id="logSettingsChangedMessage">
        <source></source>
        <translation>Het schema werd precies op dat moment onderbroken of omgezet.</translation>
    </message>
    <message id="logIncompleteMessage">
        <source></source>
        <translation>De reservekopie eindigde voortijdig. Controleer of de schijf is aangesloten en ruimte heeft.</translation>
    </message>
    <message id="logStoppedElsewhereMessage">
        <source></source>
        <translation>De reservekopie is buiten Quillon gestopt.</translation>
    </message>
    <message id="logNeverReportedMessage">
        <source></source>
        <translation>Time Machine accepteerde de start, maar er was geen reservekopie te zien. Mogelijk was die te kort.</translation>
    </message>
    <message id="logNotFollowedMessage">
        <source></source>
        <translation>Quillon stopte eerder dan de reservekopie. Blader door de reservekopieën om te zien of die voltooid is.</translation>
    </message>
</context>
</TS>
