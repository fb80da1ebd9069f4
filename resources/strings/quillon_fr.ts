<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<!-- Code adds the colon or the ellipsis that a title stands before; titles with a colon end in the no-break space that goes before it. -->
<context>
    <name></name>
    <!-- Days -->
    <message id="todayTitle">
        <source></source>
        <translation>Aujourd’hui</translation>
    </message>
    <message id="tomorrowTitle">
        <source></source>
        <translation>Demain</translation>
    </message>
    <message id="yesterdayTitle">
        <source></source>
        <translation>Hier</translation>
    </message>
    <!-- What Time Machine is doing -->
    <message id="notAvailableAbbreviation">
        <source></source>
        <translation>N/D</translation>
    </message>
    <message id="tmPhaseDefault">
        <source></source>
        <translation>Inactif</translation>
    </message>
    <message id="tmPhaseUnknown">
        <source></source>
        <translation>Inconnu</translation>
    </message>
    <message id="tmPhaseStarting">
        <source></source>
        <translation>Démarrage</translation>
    </message>
    <message id="tmPhaseLookingForDisk">
        <source></source>
        <translation>Recherche du disque de sauvegarde</translation>
    </message>
    <message id="tmPhaseConnectingToDisk">
        <source></source>
        <translation>Connexion au disque de sauvegarde</translation>
    </message>
    <message id="tmPhasePreparingBackup">
        <source></source>
        <translation>Préparation de la sauvegarde</translation>
    </message>
    <message id="tmPhaseCopying">
        <source></source>
        <translation>Copie</translation>
    </message>
    <message id="tmPhaseCleaningUp">
        <source></source>
        <translation>Nettoyage</translation>
    </message>
    <message id="tmPhaseHealthCheck">
        <source></source>
        <translation>Vérification de la sauvegarde</translation>
    </message>
    <message id="tmPhaseFinishing">
        <source></source>
        <translation>Finalisation</translation>
    </message>
    <!-- Alerts -->
    <message id="AlertButtonClose">
        <source></source>
        <translation>Fermer</translation>
    </message>
    <message id="AlertButtonProvidePermission">
        <source></source>
        <translation>Donner l’autorisation</translation>
    </message>
    <message id="permissionRequiredAlertTitle">
        <source></source>
        <translation>Autorisation requise</translation>
    </message>
    <message id="timeMachinePermissionRequiredAlertMessage">
        <source></source>
        <translation>Pour ouvrir les préférences Time Machine, cliquez sur « %1 » et autorisez %2 à contrôler Préférences Système. Réessayez ensuite.</translation>
    </message>
    <!-- Menu bar title -->
    <message id="nextBackupShortTitle">
        <source></source>
        <translation>Prochaine </translation>
    </message>
    <message id="retryBackupShortTitle">
        <source></source>
        <translation>Réessai </translation>
    </message>
    <message id="statusStarting">
        <source></source>
        <translation>Démarrage</translation>
    </message>
    <message id="statusRunning">
        <source></source>
        <translation>En cours</translation>
    </message>
    <message id="statusStopping">
        <source></source>
        <translation>Arrêt</translation>
    </message>
    <!-- What the icon stands for -->
    <message id="iconRunningDescription">
        <source></source>
        <translation>Une sauvegarde est en cours.</translation>
    </message>
    <message id="iconFailedDescription">
        <source></source>
        <translation>La dernière sauvegarde a échoué.</translation>
    </message>
    <message id="iconMissedDescription">
        <source></source>
        <translation>Une sauvegarde programmée a été manquée.</translation>
    </message>
    <message id="iconUpdateDescription">
        <source></source>
        <translation>Une mise à jour est disponible.</translation>
    </message>
    <!-- Why sleep waits for a moment -->
    <message id="sleepWaitsMessage">
        <source></source>
        <translation>La programmation des sauvegardes est mise en attente.</translation>
    </message>
    <!-- Menu -->
    <message id="latestBackupTitle">
        <source></source>
        <translation>Dernière sauvegarde </translation>
    </message>
    <message id="phaseTitle">
        <source></source>
        <translation>Phase </translation>
    </message>
    <message id="copiedWord">
        <source></source>
        <translation>copiés</translation>
    </message>
    <message id="backupDiskTitle">
        <source></source>
        <translation>Disque de sauvegarde </translation>
    </message>
    <message id="nextBackupTitle">
        <source></source>
        <translation>Prochaine sauvegarde </translation>
    </message>
    <message id="nextBackupDisabled">
        <source></source>
        <translation>Désactivée</translation>
    </message>
    <message id="nextBackupNotAvailable">
        <source></source>
        <translation>Aucune sauvegarde n’est programmée</translation>
    </message>
    <message id="retryAttemptTitle">
        <source></source>
        <translation>Nouvel essai</translation>
    </message>
    <message id="remainingTimeTitle">
        <source></source>
        <translation>Temps restant </translation>
    </message>
    <message id="calculatingTitle">
        <source></source>
        <translation>Calcul en cours</translation>
    </message>
    <message id="backupNowTitle">
        <source></source>
        <translation>Sauvegarder maintenant</translation>
    </message>
    <message id="skipThisBackupTitle">
        <source></source>
        <translation>Ignorer cette sauvegarde</translation>
    </message>
    <message id="skipThisBackupTitleVentura">
        <source></source>
        <translation>Ignorer cette sauvegarde</translation>
    </message>
    <message id="skipRetryAttemptTitle">
        <source></source>
        <translation>Ignorer le nouvel essai</translation>
    </message>
    <message id="enterTimeMachineTitle">
        <source></source>
        <translation>Accéder à Time Machine</translation>
    </message>
    <message id="enterTimeMachineTitleVentura">
        <source></source>
        <translation>Parcourir les sauvegardes Time Machine</translation>
    </message>
    <message id="openSystemPreferencesTitle">
        <source></source>
        <translation>Ouvrir les préférences Time Machine</translation>
    </message>
    <message id="openSystemPreferencesTitleVentura">
        <source></source>
        <translation>Ouvrir les réglages Time Machine</translation>
    </message>
    <message id="updateAvailableMenuTitle">
        <source></source>
        <translation>Mise à jour disponible</translation>
    </message>
    <message id="preferencesMenuTitle">
        <source></source>
        <translation>Réglages</translation>
    </message>
    <message id="aboutMenuTitle">
        <source></source>
        <translation>À propos de Quillon</translation>
    </message>
    <message id="quitApplicationTitle">
        <source></source>
        <translation>Quitter %1</translation>
    </message>
    <!-- Pause -->
    <message id="pauseScheduleForTitle">
        <source></source>
        <translation>Suspendre la programmation pendant</translation>
    </message>
    <message id="pauseScheduleUntilTitle">
        <source></source>
        <translation>Programmation suspendue jusqu’à </translation>
    </message>
    <message id="resumeScheduleTitle">
        <source></source>
        <translation>Reprendre la programmation</translation>
    </message>
    <message id="oneHourTitle">
        <source></source>
        <translation>1 heure</translation>
    </message>
    <message id="twoHoursTitle">
        <source></source>
        <translation>2 heures</translation>
    </message>
    <message id="fourHoursTitle">
        <source></source>
        <translation>4 heures</translation>
    </message>
    <message id="eightHoursTitle">
        <source></source>
        <translation>8 heures</translation>
    </message>
    <message id="twelveHoursTitle">
        <source></source>
        <translation>12 heures</translation>
    </message>
    <message id="oneDayTitle">
        <source></source>
        <translation>1 jour</translation>
    </message>
    <message id="twoDaysTitle">
        <source></source>
        <translation>2 jours</translation>
    </message>
    <message id="threeDaysTitle">
        <source></source>
        <translation>3 jours</translation>
    </message>
    <message id="fourDaysTitle">
        <source></source>
        <translation>4 jours</translation>
    </message>
    <message id="fiveDaysTitle">
        <source></source>
        <translation>5 jours</translation>
    </message>
    <message id="sixDaysTitle">
        <source></source>
        <translation>6 jours</translation>
    </message>
    <message id="oneWeekTitle">
        <source></source>
        <translation>1 semaine</translation>
    </message>
    <message id="twoWeeksTitle">
        <source></source>
        <translation>2 semaines</translation>
    </message>
    <message id="threeWeeksTitle">
        <source></source>
        <translation>3 semaines</translation>
    </message>
    <message id="fourWeeksTitle">
        <source></source>
        <translation>4 semaines</translation>
    </message>
    <!-- The menu as it opens -->
    <message id="letMacOsDecideBackupDiskTitle">
        <source></source>
        <translation>Laisser Time Machine choisir</translation>
    </message>
    <message id="mostRecentTitle">
        <source></source>
        <translation>le plus récent</translation>
    </message>
    <message id="latestBackupOfEachDestinationTitle">
        <source></source>
        <translation>Dernière sauvegarde de chaque disque</translation>
    </message>
    <message id="allBackupInfoHelpMessage">
        <source></source>
        <translation>Cette liste indique, pour chacun de vos disques de sauvegarde, la dernière sauvegarde que Quillon a vue se terminer. Un disque sans date n’a reçu aucune sauvegarde complète depuis l’installation de Quillon.</translation>
    </message>
    <message id="helpButtonTitle">
        <source></source>
        <translation>Aide</translation>
    </message>
    <!-- What the commands tell -->
    <message id="AlertTitleWarning">
        <source></source>
        <translation>Attention</translation>
    </message>
    <message id="failedToStartBackupMessage">
        <source></source>
        <translation>La sauvegarde n’a pas pu démarrer. Time Machine a répondu par le code d’erreur %1.</translation>
    </message>
    <message id="startDiskAwayMessage">
        <source></source>
        <translation>Le disque de sauvegarde n’est pas connecté, ou le serveur des sauvegardes est injoignable.</translation>
    </message>
    <message id="startResticMissingMessage">
        <source></source>
        <translation>Le programme restic, qui effectue les sauvegardes, n’est pas installé.</translation>
    </message>
    <message id="appUpdateAvailableAlertTitle">
        <source></source>
        <translation>Quillon %1 est disponible</translation>
    </message>
    <message id="appUpdateAvailableAlertMessage">
        <source></source>
        <translation>Vous disposez de la version %1. La page de téléchargement va s’ouvrir dans votre navigateur et Quillon va quitter afin de pouvoir être remplacé.</translation>
    </message>
    <message id="AlertButtonGetUpdate">
        <source></source>
        <translation>Obtenir la mise à jour</translation>
    </message>
    <message id="AlertButtonCancel">
        <source></source>
        <translation>Annuler</translation>
    </message>
    <!-- The user’s own programs -->
    <message id="hookStoppedBackupMessage">
        <source></source>
        <translation>Le programme « before » a empêché le démarrage de la sauvegarde.</translation>
    </message>
    <message id="hookNotRunMessage">
        <source></source>
        <translation>« %1 » n’a pas été exécuté. Ce doit être un fichier exécutable que vous seul pouvez modifier, dans un dossier que vous seul pouvez modifier.</translation>
    </message>
    <message id="hookTooLongMessage">
        <source></source>
        <translation>« %1 » a été arrêté au bout de dix minutes.</translation>
    </message>
    <message id="hookStatusMessage">
        <source></source>
        <translation>« %1 » s’est terminé avec le code de sortie %2.</translation>
    </message>
    <!-- Notifications of the desktop -->
    <message id="backupFailedTitle">
        <source></source>
        <translation>Échec de la sauvegarde</translation>
    </message>
    <message id="backupFailedMessage">
        <source></source>
        <translation>La dernière sauvegarde s’est interrompue avant la fin.</translation>
    </message>
    <message id="noBackupForDaysTitle">
        <source></source>
        <translation>Aucune sauvegarde récente</translation>
    </message>
    <message id="noBackupForDaysMessage">
        <source></source>
        <translation>La dernière sauvegarde s’est terminée le %1.</translation>
    </message>
    <message id="noBackupYetMessage">
        <source></source>
        <translation>Aucune sauvegarde n’est encore terminée.</translation>
    </message>
    <message id="startWithoutRunTitle">
        <source></source>
        <translation>La sauvegarde n’a pas démarré</translation>
    </message>
    <message id="startWithoutRunMessage">
        <source></source>
        <translation>Time Machine a accepté de démarrer une sauvegarde, mais aucune n’est en cours.</translation>
    </message>
    <message id="noProgressTitle">
        <source></source>
        <translation>La sauvegarde n’avance plus</translation>
    </message>
    <message id="noProgressMessage">
        <source></source>
        <translation>La sauvegarde en cours n’avance plus depuis une demi-heure.</translation>
    </message>
    <message id="damageFoundTitle">
        <source></source>
        <translation>Sauvegardes endommagées</translation>
    </message>
    <message id="damageFoundMessage">
        <source></source>
        <translation>Time Machine a trouvé des dommages dans vos sauvegardes. Certains fichiers ne pourront peut-être pas être restaurés.</translation>
    </message>
    <message id="startAheadTitle">
        <source></source>
        <translation>Sauvegarde imminente</translation>
    </message>
    <message id="startAheadMessage">
        <source></source>
        <translation>La prochaine sauvegarde démarre à %1.</translation>
    </message>
    <message id="startAheadSkipTitle">
        <source></source>
        <translation>Ignorer</translation>
    </message>
    <message id="startAheadPostponeTitle">
        <source></source>
        <translation>Dans une heure</translation>
    </message>
    <!-- Where there is no Time Machine application -->
    <!-- The schedule in the settings panel -->
    <message id="settingsGroupSchedule">
        <source></source>
        <translation>Sauvegardes programmées</translation>
    </message>
    <message id="settingsEnableScheduledBackupsVia">
        <source></source>
        <translation>Programmer les sauvegardes par</translation>
    </message>
    <message id="settingsOptionCalendarInterval">
        <source></source>
        <translation>jour et heure</translation>
    </message>
    <message id="settingsOptionInterval">
        <source></source>
        <translation>intervalle</translation>
    </message>
    <message id="scheduleTitle">
        <source></source>
        <translation>Programmation :</translation>
    </message>
    <message id="warningButtonTitle">
        <source></source>
        <translation>Avertissement sur les sauvegardes automatiques</translation>
    </message>
    <message id="setupDisksButtonTitle">
        <source></source>
        <translation>À propos des disques de sauvegarde</translation>
    </message>
    <message id="addRuleTitle">
        <source></source>
        <translation>Ajouter une règle</translation>
    </message>
    <message id="deleteRuleTitle">
        <source></source>
        <translation>Supprimer la règle</translation>
    </message>
    <!-- A rule as one sentence: back up, day, at, time of day -->
    <message id="backupTitle">
        <source></source>
        <translation>Sauvegarder</translation>
    </message>
    <message id="everyDayTitle">
        <source></source>
        <translation>tous les jours</translation>
    </message>
    <message id="weekdaysTitle">
        <source></source>
        <translation>du lundi au vendredi</translation>
    </message>
    <message id="mondayTitle">
        <source></source>
        <translation>tous les lundis</translation>
    </message>
    <message id="tuesdayTitle">
        <source></source>
        <translation>tous les mardis</translation>
    </message>
    <message id="wednesdayTitle">
        <source></source>
        <translation>tous les mercredis</translation>
    </message>
    <message id="thursdayTitle">
        <source></source>
        <translation>tous les jeudis</translation>
    </message>
    <message id="fridayTitle">
        <source></source>
        <translation>tous les vendredis</translation>
    </message>
    <message id="saturdayTitle">
        <source></source>
        <translation>tous les samedis</translation>
    </message>
    <message id="sundayTitle">
        <source></source>
        <translation>tous les dimanches</translation>
    </message>
    <message id="atTimeTitle">
        <source></source>
        <translation>à</translation>
    </message>
    <!-- The interval page; the unit stands behind any number from 1 on -->
    <message id="settingsIntervalEvery">
        <source></source>
        <translation>Sauvegarder toutes les</translation>
    </message>
    <message id="settingsIntervalHours">
        <source></source>
        <translation>heures</translation>
    </message>
    <message id="settingsIntervalHour">
        <source></source>
        <translation>heure</translation>
    </message>
    <message id="settingsIntervalNotYetUsed">
        <source></source>
        <translation>L’intervalle n’est pas encore utilisé : les sauvegardes démarrent aux jours et aux heures des règles.</translation>
    </message>
    <!-- The other groups of the settings panel -->
    <message id="settingsGroupRetry">
        <source></source>
        <translation>Nouvel essai</translation>
    </message>
    <message id="settingsEnableAfterMissedBackup">
        <source></source>
        <translation>Réessayer après une sauvegarde manquée</translation>
    </message>
    <message id="settingsEnableAfterFailedBackup">
        <source></source>
        <translation>Réessayer après l’échec d’une sauvegarde</translation>
    </message>
    <message id="settingsGroupMenuBar">
        <source></source>
        <translation>Barre des menus</translation>
    </message>
    <message id="settingsShowDetailedTimeInMenuBar">
        <source></source>
        <translation>Afficher les durées détaillées</translation>
    </message>
    <message id="settingsShowDetailedTimeInMenuBarDetails">
        <source></source>
        <translation>Par exemple, « 1h 30min » au lieu de « 1h ».</translation>
    </message>
    <message id="settingsShowMenuBarIconOnly">
        <source></source>
        <translation>Afficher uniquement l’icône</translation>
    </message>
    <message id="settingsDisableIconColors">
        <source></source>
        <translation>Colorer l’icône quand elle requiert votre attention</translation>
    </message>
    <message id="settingsGroupDisks">
        <source></source>
        <translation>Disques et ouverture de session</translation>
    </message>
    <message id="settingsRotateBackupDisks">
        <source></source>
        <translation>Alterner entre les disques de sauvegarde</translation>
    </message>
    <message id="settingsStartOnSystemStart">
        <source></source>
        <translation>Ouvrir Quillon avec la session</translation>
    </message>
    <message id="loginItemRefusedMessage">
        <source></source>
        <translation>Le système n’a pas accepté la modification : ce qui s’ouvre à l’ouverture de session reste inchangé.</translation>
    </message>
    <!-- The second page of the settings panel; a number stands behind what is not a sentence -->
    <message id="settingsMoreTitle">
        <source></source>
        <translation>Plus</translation>
    </message>
    <message id="settingsBackTitle">
        <source></source>
        <translation>Retour</translation>
    </message>
    <message id="settingsGroupPower">
        <source></source>
        <translation>Énergie</translation>
    </message>
    <message id="settingsOnlyOnMainsPower">
        <source></source>
        <translation>Démarrer les sauvegardes uniquement sur secteur</translation>
    </message>
    <message id="settingsChargeThatSuffices">
        <source></source>
        <translation>Ou si la charge dépasse</translation>
    </message>
    <message id="settingsPerCent">
        <source></source>
        <translation>%1 %</translation>
    </message>
    <message id="settingsStayAwake">
        <source></source>
        <translation>Empêcher la veille pendant les sauvegardes de Quillon</translation>
    </message>
    <message id="settingsStartWhenDiskAppears">
        <source></source>
        <translation>Réessayer dès que le disque de sauvegarde apparaît</translation>
    </message>
    <message id="settingsMinutesAfterWake">
        <source></source>
        <translation>Après le réveil, attendre</translation>
    </message>
    <message id="settingsMinutes">
        <source></source>
        <translation>%1 min</translation>
    </message>
    <message id="settingsGroupNotifications">
        <source></source>
        <translation>Notifications</translation>
    </message>
    <message id="settingsDaysWithoutBackup">
        <source></source>
        <translation>Aucune sauvegarde terminée depuis</translation>
    </message>
    <message id="settingsDays">
        <source></source>
        <translation>%1 jours</translation>
    </message>
    <message id="settingsDay">
        <source></source>
        <translation>%1 jour</translation>
    </message>
    <message id="settingsTellBeforeStart">
        <source></source>
        <translation>Une minute avant le début d’une sauvegarde</translation>
    </message>
    <!-- Alerts of the settings panel -->
    <message id="maximumRulesReachedTitle">
        <source></source>
        <translation>Impossible d’ajouter d’autres règles</translation>
    </message>
    <message id="maximumRulesReachedMessage">
        <source></source>
        <translation>Une programmation comporte au plus %1 règles. Modifiez ou supprimez plutôt l’une d’elles.</translation>
    </message>
    <message id="confirmDeleteRuleTitle">
        <source></source>
        <translation>Supprimer cette règle ?</translation>
    </message>
    <message id="confirmDeleteRuleMessage">
        <source></source>
        <translation>La règle est supprimée, et Quillon ne lance plus de sauvegarde à l’heure qu’elle indique.</translation>
    </message>
    <message id="retryAfterMissedBackupTitle">
        <source></source>
        <translation>Réessayer après une sauvegarde manquée</translation>
    </message>
    <message id="retryAfterMissedBackupMessage">
        <source></source>
        <translation>Si l’ordinateur est en veille à l’heure d’une sauvegarde programmée, celle-ci démarre environ cinq minutes après son réveil. Tant que la programmation est suspendue, il n’y a pas de nouvel essai.</translation>
    </message>
    <message id="retryAfterFailedBackupTitle">
        <source></source>
        <translation>Réessayer après l’échec d’une sauvegarde</translation>
    </message>
    <message id="retryAfterFailedBackupMessage">
        <source></source>
        <translation>Si une sauvegarde s’interrompt avant la fin, Quillon réessaie environ cinq minutes plus tard. Il n’y a pas de nouvel essai pour les sauvegardes que vous arrêtez vous-même, ni tant que la programmation est suspendue.</translation>
    </message>
    <message id="AlertButtonOk">
        <source></source>
        <translation>OK</translation>
    </message>
    <message id="AlertButtonDelete">
        <source></source>
        <translation>Supprimer</translation>
    </message>
    <!-- The first launch; the instruction is also the text of the settings panel's warning -->
    <message id="firstStartInfoAlertTitle">
        <source></source>
        <translation>Bienvenue dans %1</translation>
    </message>
    <message id="firstStartInfoAlertMessage">
        <source></source>
        <translation>%2 se trouve dans la barre des menus. Il lance vos sauvegardes aux heures que vous choisissez dans ses réglages.

%1</translation>
    </message>
    <message id="disableTmInstruction">
        <source></source>
        <translation>Si Time Machine effectue aussi des sauvegardes automatiques, désactivez-les afin que les sauvegardes ne démarrent qu’aux heures programmées. Sur un Mac, ouvrez Préférences Système, cliquez sur « Time Machine » et désactivez les sauvegardes automatiques.</translation>
    </message>
    <message id="disableTmInstructionVentura">
        <source></source>
        <translation>Si Time Machine effectue aussi des sauvegardes automatiques, désactivez-les afin que les sauvegardes ne démarrent qu’aux heures programmées. Sur un Mac, ouvrez Réglages Système, choisissez Général &gt; Time Machine &gt; Options et réglez la fréquence des sauvegardes sur « Manuellement ».</translation>
    </message>
    <message id="setupDisksMessage">
        <source></source>
        <translation>Les sauvegardes sont effectuées sur :
%1

Les disques de sauvegarde s’ajoutent et se retirent dans les réglages Time Machine.</translation>
    </message>
    <message id="setupNoDiskMessage">
        <source></source>
        <translation>Aucun disque de sauvegarde n’est encore configuré, et sans lui aucune sauvegarde ne peut démarrer. Ajoutez-en un dans les réglages Time Machine.</translation>
    </message>
    <message id="setupUnknownDisksMessage">
        <source></source>
        <translation>Les disques de sauvegarde se choisissent dans les réglages Time Machine.</translation>
    </message>
    <message id="AlertButtonHelp">
        <source></source>
        <translation>Aide</translation>
    </message>
    <!-- The about panel -->
    <message id="versionTitle">
        <source></source>
        <translation>Version </translation>
    </message>
    <message id="copyrightTitle">
        <source></source>
        <translation>© %1 les auteurs de Quillon</translation>
    </message>
    <message id="supportDetailsMessage">
        <source></source>
        <translation>Une question, une idée, un problème ? Écrivez-nous.</translation>
    </message>
    <message id="websiteButtonTitle">
        <source></source>
        <translation>Site web</translation>
    </message>
    <message id="creditsTitle">
        <source></source>
        <translation>Quillon repose sur Qt, ICU et libplist. Sous Linux, restic effectue les sauvegardes.</translation>
    </message>
    <message id="appIconCreditsTitle">
        <source></source>
        <translation>Icône de %1</translation>
    </message>
    <message id="privacyPolicyDetailsMessage">
        <source></source>
        <translation>Quillon n’envoie rien sur vous ni sur vos fichiers.</translation>
    </message>
    <message id="termsButtonTitle">
        <source></source>
        <translation>Conditions d’utilisation</translation>
    </message>
    <message id="privacyPolicyAlertTitle">
        <source></source>
        <translation>Politique de confidentialité</translation>
    </message>
    <message id="privacyPolicyAlertMessage">
        <source></source>
        <translation>%1 conserve vos réglages et l’historique de vos sauvegardes sur cet ordinateur. Pour connaître les nouvelles versions, %1 interroge un service de son éditeur ; la requête nomme %1, pas vous. La politique de confidentialité complète de %1 se trouve sur le site web.</translation>
    </message>
    <message id="AlertButtonReadMore">
        <source></source>
        <translation>En savoir plus</translation>
    </message>
    <message id="AlertMessageMailNotConfigured">
        <source></source>
        <translation>Aucune app de messagerie n’a pu être ouverte. Écrivez à %1.</translation>
    </message>
    <!-- Window of the Time Machine settings on Linux -->
    <message id="disksWindowTitle">
        <source></source>
        <translation>Time Machine</translation>
    </message>
    <message id="disksDisksTitle">
        <source></source>
        <translation>Disques de sauvegarde</translation>
    </message>
    <message id="disksSourcesTitle">
        <source></source>
        <translation>Dossiers</translation>
    </message>
    <message id="disksExclusionsTitle">
        <source></source>
        <translation>Exclusions</translation>
    </message>
    <message id="disksDisksExplanation">
        <source></source>
        <translation>Les sauvegardes sont effectuées sur ces disques et emplacements réseau. Elles sont chiffrées ; le reste du disque n’est pas modifié. Les clés se trouvent dans votre dossier personnel.</translation>
    </message>
    <message id="disksSourcesExplanation">
        <source></source>
        <translation>Ces dossiers sont sauvegardés avec tout leur contenu.</translation>
    </message>
    <message id="disksExclusionsExplanation">
        <source></source>
        <translation>Ces fichiers et dossiers sont exclus de toutes les sauvegardes.</translation>
    </message>
    <message id="disksNoDisks">
        <source></source>
        <translation>Il n’y a pas encore de disque de sauvegarde. Pour commencer, ajoutez un disque, un dossier sur un disque ou un emplacement réseau.</translation>
    </message>
    <message id="disksNoExclusions">
        <source></source>
        <translation>Rien n’est exclu. Ajoutez ce qui n’a pas besoin d’être sauvegardé, par exemple des téléchargements que vous pouvez refaire.</translation>
    </message>
    <message id="disksReading">
        <source></source>
        <translation>Lecture des réglages…</translation>
    </message>
    <message id="disksConnected">
        <source></source>
        <translation>Connecté</translation>
    </message>
    <message id="disksNotConnected">
        <source></source>
        <translation>Non connecté</translation>
    </message>
    <message id="disksLastBackup">
        <source></source>
        <translation>Dernière sauvegarde : %1</translation>
    </message>
    <message id="disksNoBackupYet">
        <source></source>
        <translation>Pas encore de sauvegarde</translation>
    </message>
    <message id="disksAddDiskTitle">
        <source></source>
        <translation>Ajouter un disque</translation>
    </message>
    <message id="disksAddFolderTitle">
        <source></source>
        <translation>Ajouter un dossier</translation>
    </message>
    <message id="disksAddFileTitle">
        <source></source>
        <translation>Ajouter un fichier</translation>
    </message>
    <message id="disksRemoveTitle">
        <source></source>
        <translation>Retirer</translation>
    </message>
    <message id="disksCancelTitle">
        <source></source>
        <translation>Annuler</translation>
    </message>
    <message id="disksOkTitle">
        <source></source>
        <translation>OK</translation>
    </message>
    <message id="disksTryAgainTitle">
        <source></source>
        <translation>Réessayer</translation>
    </message>
    <message id="disksFree">
        <source></source>
        <translation>%1 (%2 libres)</translation>
    </message>
    <message id="disksNoOtherDisk">
        <source></source>
        <translation>Aucun autre disque n’est connecté</translation>
    </message>
    <message id="disksAddFailed">
        <source></source>
        <translation>« %1 » n’a pas pu être ajouté.</translation>
    </message>
    <message id="disksRemoveFailed">
        <source></source>
        <translation>« %1 » n’a pas pu être retiré.</translation>
    </message>
    <message id="disksRemoveAlertMessage">
        <source></source>
        <translation>Ne plus sauvegarder sur « %1 » ?</translation>
    </message>
    <message id="disksRemoveAlertInformative">
        <source></source>
        <translation>Les sauvegardes qui s’y trouvent sont conservées, ainsi que leur clé. Ajoutez à nouveau le même dossier pour les poursuivre.</translation>
    </message>
    <message id="disksHomeAlertMessage">
        <source></source>
        <translation>Sauvegarder tout votre dossier personnel à la place ?</translation>
    </message>
    <message id="disksHomeAlertInformative">
        <source></source>
        <translation>« %1 » est le seul dossier de la liste. Si la liste est vide, tout le contenu de votre dossier personnel est sauvegardé.</translation>
    </message>
    <message id="disksReadFailed">
        <source></source>
        <translation>Les réglages n’ont pas pu être lus : %1</translation>
    </message>
    <message id="disksToolHangs">
        <source></source>
        <translation>tmutil ne répond pas.</translation>
    </message>
    <message id="disksToolMissing">
        <source></source>
        <translation>L’outil « %1 » ne peut pas être lancé.</translation>
    </message>
    <message id="disksToolFailed">
        <source></source>
        <translation>tmutil s’est terminé avec le code de sortie %1.</translation>
    </message>
    <message id="disksToolUnreadable">
        <source></source>
        <translation>La réponse de tmutil est incompréhensible.</translation>
    </message>
    <message id="reasonWithDetail">
        <source></source>
        <translation>%1 (tmutil: %2)</translation>
    </message>
    <message id="reasonMissing">
        <source></source>
        <translation>Le disque de sauvegarde n’est pas connecté, ou l’emplacement réseau est injoignable.</translation>
    </message>
    <message id="reasonNoSpace">
        <source></source>
        <translation>Il n’y a plus de place.</translation>
    </message>
    <message id="reasonCannotWrite">
        <source></source>
        <translation>Rien ne peut y être écrit.</translation>
    </message>
    <message id="reasonExists">
        <source></source>
        <translation>Un élément de ce nom existe déjà et est conservé.</translation>
    </message>
    <message id="reasonNotInBackups">
        <source></source>
        <translation>Cet élément n’est pas dans les sauvegardes.</translation>
    </message>
    <message id="reasonDamaged">
        <source></source>
        <translation>Cet élément est endommagé dans la sauvegarde.</translation>
    </message>
    <message id="reasonNoAttributes">
        <source></source>
        <translation>Le contenu est intact, mais le propriétaire, les autorisations ou d’autres attributs n’ont pas pu être restaurés.</translation>
    </message>
    <message id="reasonConnectionLost">
        <source></source>
        <translation>La connexion au serveur a été interrompue.</translation>
    </message>
    <message id="reasonAccessDenied">
        <source></source>
        <translation>Le serveur refuse l’utilisateur, le mot de passe ou la clé.</translation>
    </message>
    <message id="reasonUntrusted">
        <source></source>
        <translation>Il n’est pas certain que ce soit le bon serveur.</translation>
    </message>
    <message id="reasonServerFailed">
        <source></source>
        <translation>Le serveur signale une erreur interne ; il est peut-être plein.</translation>
    </message>
    <message id="reasonWrongKey">
        <source></source>
        <translation>La clé des sauvegardes manque ou ne convient pas.</translation>
    </message>
    <message id="reasonLocked">
        <source></source>
        <translation>Les sauvegardes sont en cours d’utilisation. Réessayez plus tard.</translation>
    </message>
    <message id="reasonResticMissing">
        <source></source>
        <translation>restic n’est pas installé.</translation>
    </message>
    <message id="reasonNoRepository">
        <source></source>
        <translation>Les sauvegardes sont absentes ou endommagées.</translation>
    </message>
    <message id="reasonNoInput">
        <source></source>
        <translation>Le fichier ou le dossier n’existe pas.</translation>
    </message>
    <message id="reasonConfiguration">
        <source></source>
        <translation>Les réglages des sauvegardes sont endommagés.</translation>
    </message>
    <message id="reasonNoWorkSpace">
        <source></source>
        <translation>Il n’y a pas de place pour les fichiers temporaires dans le dossier personnel.</translation>
    </message>
    <message id="disksRoom">
        <source></source>
        <translation>%1 disponibles sur %2</translation>
    </message>
    <message id="disksTaken">
        <source></source>
        <translation>Sauvegardes : %1</translation>
    </message>
    <message id="disksProblem">
        <source></source>
        <translation>Dernier problème (%1) : %2</translation>
    </message>
    <message id="disksKeyNotKept">
        <source></source>
        <translation>Clé de secours pas encore conservée</translation>
    </message>
    <message id="disksSourceOnDisk">
        <source></source>
        <translation>Le dossier « %1 » se trouve aussi sur ce disque : s’il tombe en panne, tout est perdu</translation>
    </message>
    <message id="disksKeyBar">
        <source></source>
        <translation>Si cet ordinateur est perdu, les sauvegardes sur « %1 » sont illisibles sans clé de secours.</translation>
    </message>
    <message id="disksShowKeyTitle">
        <source></source>
        <translation>Afficher la clé de secours</translation>
    </message>
    <message id="disksKeyHeading">
        <source></source>
        <translation>Clé de secours de « %1 »</translation>
    </message>
    <message id="disksKeyExplanation">
        <source></source>
        <translation>Si cet ordinateur est perdu, cette clé et le disque permettent de récupérer les sauvegardes. Notez-la ou enregistrez-la sur une page, et conservez-la loin de cet ordinateur et du disque. Quiconque a les deux peut lire les sauvegardes.</translation>
    </message>
    <message id="disksKeyOnce">
        <source></source>
        <translation>Cette clé est nouvelle et n’est affichée que maintenant. Dès que vous l’avez conservée, les clés affichées auparavant n’ouvrent plus rien.</translation>
    </message>
    <message id="disksSavePageTitle">
        <source></source>
        <translation>Enregistrer une page</translation>
    </message>
    <message id="disksLaterTitle">
        <source></source>
        <translation>Plus tard</translation>
    </message>
    <message id="disksKeptTitle">
        <source></source>
        <translation>Je l’ai conservée</translation>
    </message>
    <message id="disksKeyFailed">
        <source></source>
        <translation>Aucune clé de secours n’a pu être créée pour « %1 ».</translation>
    </message>
    <message id="disksKeepFailed">
        <source></source>
        <translation>Impossible de noter que vous avez conservé la clé de secours de « %1 ».</translation>
    </message>
    <message id="disksPageFailed">
        <source></source>
        <translation>La page n’a pas pu être enregistrée.</translation>
    </message>
    <message id="disksPagePdf">
        <source></source>
        <translation>Document PDF</translation>
    </message>
    <message id="disksPageText">
        <source></source>
        <translation>Fichier texte</translation>
    </message>
    <message id="disksPageOnDiskMessage">
        <source></source>
        <translation>Enregistrer la page sur le disque de sauvegarde lui-même ?</translation>
    </message>
    <message id="disksPageOnDiskInformative">
        <source></source>
        <translation>Quiconque prend le disque aurait aussi sa clé, et un disque en panne emporterait la page.</translation>
    </message>
    <message id="disksSaveTitle">
        <source></source>
        <translation>Enregistrer</translation>
    </message>
    <message id="disksPageMade">
        <source></source>
        <translation>Créée le %1. Conservez cette page loin de l’ordinateur et du disque. Quiconque a les deux peut lire les sauvegardes.</translation>
    </message>
    <message id="disksPageSteps">
        <source></source>
        <translation>Si l’ordinateur est perdu, sur un nouveau</translation>
    </message>
    <message id="disksPageConnect">
        <source></source>
        <translation>Installez Quillon et connectez le disque.</translation>
    </message>
    <message id="disksPageAdopt">
        <source></source>
        <translation>%1 demande la clé de secours et reprend le disque.</translation>
    </message>
    <message id="disksPageList">
        <source></source>
        <translation>%1 énumère les sauvegardes.</translation>
    </message>
    <message id="disksPageRestore">
        <source></source>
        <translation>%1 restaure un dossier.</translation>
    </message>
    <message id="disksPageContinue">
        <source></source>
        <translation>%1 poursuit les sauvegardes.</translation>
    </message>
    <message id="disksAddTitle">
        <source></source>
        <translation>Ajouter</translation>
    </message>
    <message id="disksAddNameTitle">
        <source></source>
        <translation>Ajouter un motif de nom</translation>
    </message>
    <message id="disksAddSizeTitle">
        <source></source>
        <translation>Ajouter une limite de taille</translation>
    </message>
    <message id="disksByName">
        <source></source>
        <translation>Fichiers et dossiers de ce nom, où qu’ils soient</translation>
    </message>
    <message id="disksBySize">
        <source></source>
        <translation>Dans tous les dossiers</translation>
    </message>
    <message id="disksLargerThan">
        <source></source>
        <translation>Fichiers de plus de %1</translation>
    </message>
    <message id="disksNamePrompt">
        <source></source>
        <translation>Exclure les fichiers et dossiers nommés</translation>
    </message>
    <message id="disksNameHint">
        <source></source>
        <translation>* remplace des caractères quelconques, ? un seul caractère.</translation>
    </message>
    <message id="disksSizePrompt">
        <source></source>
        <translation>Exclure les fichiers de plus de</translation>
    </message>
    <message id="disksCounting">
        <source></source>
        <translation>Décompte des fichiers exclus…</translation>
    </message>
    <message id="disksPreview">
        <source></source>
        <translation>Fichiers exclus actuellement : %1 (%2)</translation>
    </message>
    <message id="disksPreviewNothing">
        <source></source>
        <translation>Aucun fichier ne serait exclu actuellement.</translation>
    </message>
    <message id="disksLeaveOutTitle">
        <source></source>
        <translation>Exclure</translation>
    </message>
    <message id="disksListing">
        <source></source>
        <translation>Recherche de disques…</translation>
    </message>
    <message id="disksListFailed">
        <source></source>
        <translation>Les disques n’ont pas pu être énumérés</translation>
    </message>
    <message id="disksEditTitle">
        <source></source>
        <translation>Modifier</translation>
    </message>
    <message id="disksAddPlaceTitle">
        <source></source>
        <translation>Ajouter un emplacement réseau</translation>
    </message>
    <message id="disksEditPlaceTitle">
        <source></source>
        <translation>Accès à « %1 »</translation>
    </message>
    <message id="disksPlaceKind">
        <source></source>
        <translation>Type</translation>
    </message>
    <message id="disksPlaceSftp">
        <source></source>
        <translation>SFTP (SSH)</translation>
    </message>
    <message id="disksPlaceRest">
        <source></source>
        <translation>Serveur REST de restic</translation>
    </message>
    <message id="disksPlaceS3">
        <source></source>
        <translation>Stockage compatible S3</translation>
    </message>
    <message id="disksPlaceAddress">
        <source></source>
        <translation>Adresse</translation>
    </message>
    <message id="disksPlaceServer">
        <source></source>
        <translation>Serveur</translation>
    </message>
    <message id="disksPlacePort">
        <source></source>
        <translation>Port</translation>
    </message>
    <message id="disksPlaceFolder">
        <source></source>
        <translation>Dossier</translation>
    </message>
    <message id="disksPlacePath">
        <source></source>
        <translation>Chemin</translation>
    </message>
    <message id="disksPlaceBucket">
        <source></source>
        <translation>Compartiment</translation>
    </message>
    <message id="disksPlaceUser">
        <source></source>
        <translation>Nom d’utilisateur</translation>
    </message>
    <message id="disksPlaceKeyFile">
        <source></source>
        <translation>Fichier de clé</translation>
    </message>
    <message id="disksPlacePassword">
        <source></source>
        <translation>Mot de passe</translation>
    </message>
    <message id="disksPlaceAccessKey">
        <source></source>
        <translation>Clé d’accès</translation>
    </message>
    <message id="disksPlaceSecretKey">
        <source></source>
        <translation>Clé secrète</translation>
    </message>
    <message id="disksPlaceRegion">
        <source></source>
        <translation>Région</translation>
    </message>
    <message id="disksPlaceSecure">
        <source></source>
        <translation>Connexion chiffrée (HTTPS)</translation>
    </message>
    <message id="disksPlaceCertificate">
        <source></source>
        <translation>Fichier de certificat</translation>
    </message>
    <message id="disksPlaceUpload">
        <source></source>
        <translation>Limite d’envoi</translation>
    </message>
    <message id="disksPlaceDownload">
        <source></source>
        <translation>Limite de réception</translation>
    </message>
    <message id="disksPlaceNoLimit">
        <source></source>
        <translation>Aucune</translation>
    </message>
    <message id="disksPlaceUploadAtMost">
        <source></source>
        <translation>Envoi limité à %1</translation>
    </message>
    <message id="disksPlaceDownloadAtMost">
        <source></source>
        <translation>Réception limitée à %1</translation>
    </message>
    <message id="disksPlaceOptional">
        <source></source>
        <translation>Facultatif</translation>
    </message>
    <message id="disksPlaceUnchanged">
        <source></source>
        <translation>Inchangé</translation>
    </message>
    <message id="disksPlaceChooseTitle">
        <source></source>
        <translation>Choisir</translation>
    </message>
    <message id="disksPlaceNeeded">
        <source></source>
        <translation>Il manque encore : %1</translation>
    </message>
    <message id="disksPlaceBadServer">
        <source></source>
        <translation>Indiquez seulement le nom ou l’adresse du serveur, par exemple nas.example.org.</translation>
    </message>
    <message id="disksPlaceBadPort">
        <source></source>
        <translation>Un port est un nombre de 1 à 65535.</translation>
    </message>
    <message id="disksPlaceBadFolder">
        <source></source>
        <translation>Le dossier commence par / ou, s’il se trouve dans votre dossier sur le serveur, par ~/.</translation>
    </message>
    <message id="disksPlaceBadFile">
        <source></source>
        <translation>Un fichier est indiqué par son chemin complet, qui commence par /.</translation>
    </message>
    <message id="disksPlaceUserAndPassword">
        <source></source>
        <translation>Indiquez le nom d’utilisateur et le mot de passe, ou ni l’un ni l’autre.</translation>
    </message>
    <message id="disksPlaceTryTitle">
        <source></source>
        <translation>Tester</translation>
    </message>
    <message id="disksPlaceTrustTitle">
        <source></source>
        <translation>Faire confiance</translation>
    </message>
    <message id="disksPlaceTakeUpTitle">
        <source></source>
        <translation>Reprendre</translation>
    </message>
    <message id="disksPlaceAsking">
        <source></source>
        <translation>Interrogation du serveur…</translation>
    </message>
    <message id="disksPlaceKeeping">
        <source></source>
        <translation>Configuration de l’emplacement…</translation>
    </message>
    <message id="disksPlaceEmpty">
        <source></source>
        <translation>Le serveur peut être utilisé. Il n’y a pas encore de sauvegardes à cet endroit.</translation>
    </message>
    <message id="disksPlaceBackups">
        <source></source>
        <translation>Le serveur peut être utilisé. Il s’y trouve des sauvegardes que cet ordinateur peut lire ; elles seront poursuivies.</translation>
    </message>
    <message id="disksPlaceWrongKey">
        <source></source>
        <translation>Il s’y trouve des sauvegardes dont cet ordinateur n’a pas la clé. Si ce sont les vôtres, saisissez leur clé de secours pour les poursuivre ; sinon, choisissez un autre emplacement.</translation>
    </message>
    <message id="disksPlaceRecoveryKey">
        <source></source>
        <translation>Clé de secours</translation>
    </message>
    <message id="disksPlaceFingerprint">
        <source></source>
        <translation>Empreinte de la clé du serveur</translation>
    </message>
    <message id="disksPlaceUnknownKey">
        <source></source>
        <translation>« %1 » n’est pas encore connu de cet ordinateur. Comparez l’empreinte de sa clé avec celle que son administrateur vous indique, et ne lui faites confiance que si elles sont identiques.</translation>
    </message>
    <message id="disksPlaceChangedKey">
        <source></source>
        <translation>Attention : « %1 » présente une autre clé qu’auparavant. Quelqu’un intercepte peut-être la connexion. Ne faites confiance à la nouvelle clé que si l’administrateur du serveur confirme le changement et cette empreinte.</translation>
    </message>
    <message id="disksPlaceChangedKeyMessage">
        <source></source>
        <translation>Faire confiance à la nouvelle clé de « %1 » ?</translation>
    </message>
    <message id="disksPlaceChangedKeyInformative">
        <source></source>
        <translation>Si ce n’est pas celle du serveur, ce qui y est envoyé parvient à quelqu’un d’autre.</translation>
    </message>
    <message id="disksPlaceBadCertificate">
        <source></source>
        <translation>Le certificat de « %1 » n’est pas approuvé ; il peut s’agir d’un autre serveur. Si le certificat est le vôtre, choisissez-le, ou celui de son émetteur, comme fichier de certificat.</translation>
    </message>
    <message id="disksPlaceAccessDeniedKey">
        <source></source>
        <translation>« %1 » refuse l’utilisateur ou la clé. Vérifiez les deux. La clé publique doit être installée sur le serveur et le fichier de clé ne doit pas avoir de phrase secrète.</translation>
    </message>
    <message id="disksPlaceAccessDenied">
        <source></source>
        <translation>« %1 » refuse l’accès. Vérifiez ce que vous avez saisi : le nom d’utilisateur et le mot de passe, ou les clés.</translation>
    </message>
    <message id="disksPlaceNoPermission">
        <source></source>
        <translation>Rien ne peut être écrit à cet endroit. Choisissez un autre emplacement sur le serveur ou demandez l’autorisation à son administrateur.</translation>
    </message>
    <message id="disksPlaceNoAnswer">
        <source></source>
        <translation>« %1 » ne répond pas. Vérifiez le serveur et le port, ainsi que la connexion de cet ordinateur au réseau.</translation>
    </message>
    <message id="disksPlaceNoSpace">
        <source></source>
        <translation>Il n’y a plus de place sur le serveur. Libérez-en ou choisissez un autre emplacement.</translation>
    </message>
    <message id="disksPlaceFailed">
        <source></source>
        <translation>Le serveur ne peut pas être utilisé : %1</translation>
    </message>
    <message id="disksPlaceRemoveInformative">
        <source></source>
        <translation>Les sauvegardes qui s’y trouvent sont conservées, ainsi que leur clé ; les données d’accès au serveur sont effacées. Ajoutez à nouveau le même emplacement pour les poursuivre.</translation>
    </message>
    <message id="disksPlaceKeyExplanation">
        <source></source>
        <translation>Si cet ordinateur est perdu, cette clé et l’accès au serveur permettent de récupérer les sauvegardes. Notez-la ou enregistrez-la sur une page, et conservez-la loin de cet ordinateur, avec vos données d’accès au serveur. Quiconque a les deux peut lire les sauvegardes.</translation>
    </message>
    <message id="disksPlacePageMade">
        <source></source>
        <translation>Créée le %1. Conservez cette page loin de l’ordinateur. Quiconque l’a et accède au serveur peut lire les sauvegardes.</translation>
    </message>
    <message id="disksPlacePageStart">
        <source></source>
        <translation>Installez Quillon et lancez %1.</translation>
    </message>
    <message id="disksPlacePageAdd">
        <source></source>
        <translation>Choisissez « %1 », saisissez %2 comme serveur ainsi que vos données d’accès, puis la clé de secours lorsqu’elle est demandée.</translation>
    </message>
    <!-- Window of the backups on Linux -->
    <message id="browseWindowTitle">
        <source></source>
        <translation>Sauvegardes Time Machine</translation>
    </message>
    <message id="browseThisWeek">
        <source></source>
        <translation>Cette semaine</translation>
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
        <translation>Endommagée</translation>
    </message>
    <message id="browseIncomplete">
        <source></source>
        <translation>Incomplète</translation>
    </message>
    <message id="browseRestoring">
        <source></source>
        <translation>Restauration …</translation>
    </message>
    <message id="browseRestoreProgress">
        <source></source>
        <translation>%1 fichiers sur %2, %3 sur %4</translation>
    </message>
    <message id="browseRestoreStopped">
        <source></source>
        <translation>Arrêté. Ce qui n’était pas encore restauré reste en l’état.</translation>
    </message>
    <message id="browseRestoredCount">
        <source></source>
        <translation>Restaurés : %1</translation>
    </message>
    <message id="browseSkippedCount">
        <source></source>
        <translation>Ignorés : %1</translation>
    </message>
    <message id="browseLostCount">
        <source></source>
        <translation>Non restaurés : %1</translation>
    </message>
    <message id="browseConflictMessage">
        <source></source>
        <translation>« %1 » existe déjà.</translation>
    </message>
    <message id="browseNameColumn">
        <source></source>
        <translation>Nom</translation>
    </message>
    <message id="browseSizeColumn">
        <source></source>
        <translation>Taille</translation>
    </message>
    <message id="browseModifiedColumn">
        <source></source>
        <translation>Modification</translation>
    </message>
    <message id="browseSinceColumn">
        <source></source>
        <translation>Ensuite</translation>
    </message>
    <message id="browseFolderColumn">
        <source></source>
        <translation>Dossier</translation>
    </message>
    <message id="browseBackupColumn">
        <source></source>
        <translation>Sauvegarde</translation>
    </message>
    <message id="browseSortTip">
        <source></source>
        <translation>Trier selon cette colonne (%1)</translation>
    </message>
    <message id="browseChanged">
        <source></source>
        <translation>Modifié</translation>
    </message>
    <message id="browseGone">
        <source></source>
        <translation>Supprimé</translation>
    </message>
    <message id="browseFolderKind">
        <source></source>
        <translation>Dossier</translation>
    </message>
    <message id="browseLinkTo">
        <source></source>
        <translation>Lien vers %1</translation>
    </message>
    <message id="browseDiskLabel">
        <source></source>
        <translation>Sauvegardes sur</translation>
    </message>
    <message id="browseTimelineName">
        <source></source>
        <translation>Sauvegardes</translation>
    </message>
    <message id="browseFilesName">
        <source></source>
        <translation>Fichiers de la sauvegarde</translation>
    </message>
    <message id="browsePathLabel">
        <source></source>
        <translation>Dossier de la sauvegarde</translation>
    </message>
    <message id="browseBackTitle">
        <source></source>
        <translation>Précédent</translation>
    </message>
    <message id="browseUpTitle">
        <source></source>
        <translation>Dossier parent</translation>
    </message>
    <message id="browseSearchPrompt">
        <source></source>
        <translation>Rechercher des noms</translation>
    </message>
    <message id="browseAllBackups">
        <source></source>
        <translation>Dans toutes les sauvegardes</translation>
    </message>
    <message id="browseVersionsName">
        <source></source>
        <translation>Versions</translation>
    </message>
    <message id="browseVersionsHint">
        <source></source>
        <translation>Choisissez un fichier pour voir ses versions.</translation>
    </message>
    <message id="browseNoVersions">
        <source></source>
        <translation>Aucune sauvegarde ne le contient.</translation>
    </message>
    <message id="browsePreviewTitle">
        <source></source>
        <translation>Aperçu</translation>
    </message>
    <message id="browseRestoreTitle">
        <source></source>
        <translation>Restaurer</translation>
    </message>
    <message id="browseReading">
        <source></source>
        <translation>Lecture …</translation>
    </message>
    <message id="browseEmptyFolder">
        <source></source>
        <translation>Ce dossier est vide.</translation>
    </message>
    <message id="browseNothingFound">
        <source></source>
        <translation>Rien de ce nom n’a été trouvé.</translation>
    </message>
    <message id="browseSearching">
        <source></source>
        <translation>Recherche …</translation>
    </message>
    <message id="browseFilling">
        <source></source>
        <translation>Lecture de toute la sauvegarde pour la recherche : %1</translation>
    </message>
    <message id="browseReadFailed">
        <source></source>
        <translation>Lecture impossible : %1</translation>
    </message>
    <message id="browseNoDiskMessage">
        <source></source>
        <translation>Aucun disque de sauvegarde ni emplacement réseau n’est configuré. Choisissez-en un dans les réglages de Time Machine pour y sauvegarder vos fichiers.</translation>
    </message>
    <message id="browseNoBackupMessage">
        <source></source>
        <translation>Il n’y a aucune sauvegarde à parcourir. Connectez le disque de sauvegarde ou le réseau, ou attendez la première sauvegarde.</translation>
    </message>
    <message id="browseSettingsTitle">
        <source></source>
        <translation>Réglages Time Machine</translation>
    </message>
    <message id="browsePreviewing">
        <source></source>
        <translation>Récupération de « %1 » …</translation>
    </message>
    <message id="browsePreviewFailed">
        <source></source>
        <translation>Impossible d’afficher « %1 ».</translation>
    </message>
    <message id="browseNoProgram">
        <source></source>
        <translation>Aucun programme n’a pu être ouvert.</translation>
    </message>
    <message id="browseRestoreHeading">
        <source></source>
        <translation>Restaurer « %1 »</translation>
    </message>
    <message id="browseRestoreManyHeading">
        <source></source>
        <translation>Restaurer %1 éléments</translation>
    </message>
    <message id="browseFromBackup">
        <source></source>
        <translation>Depuis la sauvegarde du %1</translation>
    </message>
    <message id="browseToItsPlace">
        <source></source>
        <translation>À son emplacement d’origine</translation>
    </message>
    <message id="browseToFolder">
        <source></source>
        <translation>Dans un autre dossier</translation>
    </message>
    <message id="browseChooseFolderTitle">
        <source></source>
        <translation>Choisir un dossier</translation>
    </message>
    <message id="browseNothingOverwritten">
        <source></source>
        <translation>Rien n’est remplacé sans vous le demander.</translation>
    </message>
    <message id="browseKeepBothTitle">
        <source></source>
        <translation>Conserver les deux</translation>
    </message>
    <message id="browseReplaceTitle">
        <source></source>
        <translation>Remplacer</translation>
    </message>
    <message id="browseSkipTitle">
        <source></source>
        <translation>Ignorer</translation>
    </message>
    <message id="browseForAll">
        <source></source>
        <translation>Faire de même pour tous les autres</translation>
    </message>
    <message id="browseStopTitle">
        <source></source>
        <translation>Arrêter</translation>
    </message>
    <message id="browseStopping">
        <source></source>
        <translation>Arrêt …</translation>
    </message>
    <message id="browseLossesName">
        <source></source>
        <translation>Ce qui n’est pas revenu</translation>
    </message>
    <!-- The log of backups -->
    <message id="logWindowTitle">
        <source></source>
        <translation>Journal des sauvegardes</translation>
    </message>
    <message id="logDateTitle">
        <source></source>
        <translation>Date</translation>
    </message>
    <message id="logOutcomeTitle">
        <source></source>
        <translation>Résultat</translation>
    </message>
    <message id="logCauseTitle">
        <source></source>
        <translation>Lancée par</translation>
    </message>
    <message id="logDiskTitle">
        <source></source>
        <translation>Disque</translation>
    </message>
    <message id="logSizeTitle">
        <source></source>
        <translation>Copié</translation>
    </message>
    <message id="logDurationTitle">
        <source></source>
        <translation>Durée</translation>
    </message>
    <message id="logBytesTitle">
        <source></source>
        <translation>Octets</translation>
    </message>
    <message id="logBeganTitle">
        <source></source>
        <translation>Début</translation>
    </message>
    <message id="logEndedTitle">
        <source></source>
        <translation>Fin</translation>
    </message>
    <message id="logReasonTitle">
        <source></source>
        <translation>Raison</translation>
    </message>
    <message id="logRunningTitle">
        <source></source>
        <translation>En cours</translation>
    </message>
    <message id="logCompletedTitle">
        <source></source>
        <translation>Terminée</translation>
    </message>
    <message id="logFailedTitle">
        <source></source>
        <translation>Échouée</translation>
    </message>
    <message id="logStoppedTitle">
        <source></source>
        <translation>Arrêtée</translation>
    </message>
    <message id="logUnseenTitle">
        <source></source>
        <translation>Non observée</translation>
    </message>
    <message id="logSkippedTitle">
        <source></source>
        <translation>Ignorée</translation>
    </message>
    <message id="logMissedTitle">
        <source></source>
        <translation>Manquée</translation>
    </message>
    <message id="logRefusedTitle">
        <source></source>
        <translation>Refusée</translation>
    </message>
    <message id="logScheduleTitle">
        <source></source>
        <translation>Programmation</translation>
    </message>
    <message id="logRetryTitle">
        <source></source>
        <translation>Nouvel essai</translation>
    </message>
    <message id="logUserTitle">
        <source></source>
        <translation>Vous</translation>
    </message>
    <message id="logElsewhereTitle">
        <source></source>
        <translation>Hors de Quillon</translation>
    </message>
    <message id="logAllTitle">
        <source></source>
        <translation>Tout</translation>
    </message>
    <message id="logNoBackupTitle">
        <source></source>
        <translation>Aucune sauvegarde</translation>
    </message>
    <message id="logDaysMessage">
        <source></source>
        <translation>Les %1 derniers jours : %2 avec une sauvegarde, %3 avec seulement des problèmes</translation>
    </message>
    <message id="logCopyTitle">
        <source></source>
        <translation>Copier le texte</translation>
    </message>
    <message id="logSaveTitle">
        <source></source>
        <translation>Enregistrer en CSV</translation>
    </message>
    <message id="logSaveFailedTitle">
        <source></source>
        <translation>Le journal n’a pas pu être enregistré.</translation>
    </message>
    <message id="logEmptyMessage">
        <source></source>
        <translation>Le journal est encore vide.</translation>
    </message>
    <message id="logNothingFoundMessage">
        <source></source>
        <translation>Aucune entrée ne correspond.</translation>
    </message>
    <message id="logUnreadableMessage">
        <source></source>
        <translation>Le journal n’a pas pu être lu. Les sauvegardes ont lieu malgré tout.</translation>
    </message>
    <message id="logNextMessage">
        <source></source>
        <translation>Prévue ensuite : %1</translation>
    </message>
    <message id="logAskedMessage">
        <source></source>
        <translation>Ce démarrage a été ignoré par une commande.</translation>
    </message>
    <message id="logOnBatteryMessage">
        <source></source>
        <translation>L’ordinateur fonctionnait sur batterie. La sauvegarde sera effectuée dès qu’il sera de nouveau sur secteur, sauf si la suivante arrive avant.</translation>
    </message>
    <message id="logPausedMessage">
        <source></source>
        <translation>La programmation était suspendue. Reprenez-la dans le menu pour relancer les sauvegardes.</translation>
    </message>
    <message id="logAsleepMessage">
        <source></source>
        <translation>L’ordinateur était en veille. Choisissez des heures où il est actif ou faites réessayer les sauvegardes manquées.</translation>
    </message>
    <message id="logClockSetMessage">
        <source></source>
        <translation>L’horloge a été avancée au-delà de cette heure, ou l’ordinateur était trop occupé.</translation>
    </message>
    <message id="logBackupRanMessage">
        <source></source>
        <translation>Une autre sauvegarde était déjà en cours et a remplacé celle-ci.</translation>
    </message>
    <message id="logOvertakenMessage">
        <source></source>
        <translation>Une autre sauvegarde a été lancée au même moment et a remplacé celle-ci.</translation>
    </message>
    <message id="logStatusUnreadableMessage">
        <source></source>
        <translation>Time Machine n’a pas indiqué son état. Si cela se répète, redémarrez l’ordinateur.</translation>
    </message>
    <message id="logSettingsChangedMessage">
        <source></source>
        <translation>La programmation a été suspendue ou modifiée à cet instant précis.</translation>
    </message>
    <message id="logIncompleteMessage">
        <source></source>
        <translation>La sauvegarde s’est arrêtée avant la fin. Vérifiez que le disque est connecté et a de la place.</translation>
    </message>
    <message id="logStoppedElsewhereMessage">
        <source></source>
        <translation>La sauvegarde a été arrêtée hors de Quillon.</translation>
    </message>
    <message id="logNeverReportedMessage">
        <source></source>
        <translation>Time Machine a accepté le lancement, mais aucune sauvegarde n’a été observée. Elle était peut-être trop courte.</translation>
    </message>
    <message id="logNotFollowedMessage">
        <source></source>
        <translation>Quillon s’est arrêté avant la fin de la sauvegarde. Parcourez les sauvegardes pour savoir si elle est terminée.</translation>
    </message>
</context>
</TS>
