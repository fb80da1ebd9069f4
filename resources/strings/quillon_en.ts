<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<!-- Code adds the colon or the ellipsis behind the title of a button or a menu item; scheduleTitle brings its own. -->
<context>
    <name></name>
    <!-- Days -->
    <message id="todayTitle">
        <source></source>
        <translation>Today</translation>
    </message>
    <message id="tomorrowTitle">
        <source></source>
        <translation>Tomorrow</translation>
    </message>
    <message id="yesterdayTitle">
        <source></source>
        <translation>Yesterday</translation>
    </message>
    <!-- What Time Machine is doing -->
    <message id="notAvailableAbbreviation">
        <source></source>
        <translation>N/A</translation>
    </message>
    <message id="tmPhaseDefault">
        <source></source>
        <translation>Not Running</translation>
    </message>
    <message id="tmPhaseUnknown">
        <source></source>
        <translation>Unknown</translation>
    </message>
    <message id="tmPhaseStarting">
        <source></source>
        <translation>Starting</translation>
    </message>
    <message id="tmPhaseLookingForDisk">
        <source></source>
        <translation>Looking for Backup Disk</translation>
    </message>
    <message id="tmPhaseConnectingToDisk">
        <source></source>
        <translation>Connecting to Backup Disk</translation>
    </message>
    <message id="tmPhasePreparingBackup">
        <source></source>
        <translation>Preparing Backup</translation>
    </message>
    <message id="tmPhaseCopying">
        <source></source>
        <translation>Copying</translation>
    </message>
    <message id="tmPhaseCleaningUp">
        <source></source>
        <translation>Cleaning Up</translation>
    </message>
    <message id="tmPhaseHealthCheck">
        <source></source>
        <translation>Performing Health Check</translation>
    </message>
    <message id="tmPhaseFinishing">
        <source></source>
        <translation>Finishing</translation>
    </message>
    <!-- Alerts -->
    <message id="AlertButtonClose">
        <source></source>
        <translation>Close</translation>
    </message>
    <message id="AlertButtonProvidePermission">
        <source></source>
        <translation>Provide Permission</translation>
    </message>
    <message id="permissionRequiredAlertTitle">
        <source></source>
        <translation>Permission Required</translation>
    </message>
    <message id="timeMachinePermissionRequiredAlertMessage">
        <source></source>
        <translation>To open the Time Machine preferences, click “%1” and allow %2 to control System Preferences. Then try again.</translation>
    </message>
    <!-- Menu bar title -->
    <message id="nextBackupShortTitle">
        <source></source>
        <translation>Next</translation>
    </message>
    <message id="retryBackupShortTitle">
        <source></source>
        <translation>Retry</translation>
    </message>
    <message id="statusStarting">
        <source></source>
        <translation>Starting</translation>
    </message>
    <message id="statusRunning">
        <source></source>
        <translation>Running</translation>
    </message>
    <message id="statusStopping">
        <source></source>
        <translation>Stopping</translation>
    </message>
    <!-- What the icon stands for -->
    <message id="iconRunningDescription">
        <source></source>
        <translation>A backup is running.</translation>
    </message>
    <message id="iconFailedDescription">
        <source></source>
        <translation>The latest backup failed.</translation>
    </message>
    <message id="iconMissedDescription">
        <source></source>
        <translation>A scheduled backup was missed.</translation>
    </message>
    <message id="iconUpdateDescription">
        <source></source>
        <translation>An update is available.</translation>
    </message>
    <!-- Why sleep waits for a moment -->
    <message id="sleepWaitsMessage">
        <source></source>
        <translation>The backup schedule is being put on hold.</translation>
    </message>
    <!-- Menu -->
    <message id="latestBackupTitle">
        <source></source>
        <translation>Latest Backup</translation>
    </message>
    <message id="phaseTitle">
        <source></source>
        <translation>Phase</translation>
    </message>
    <message id="copiedWord">
        <source></source>
        <translation>copied</translation>
    </message>
    <message id="backupDiskTitle">
        <source></source>
        <translation>Backup Disk</translation>
    </message>
    <message id="nextBackupTitle">
        <source></source>
        <translation>Next Backup</translation>
    </message>
    <message id="nextBackupDisabled">
        <source></source>
        <translation>Disabled</translation>
    </message>
    <message id="nextBackupNotAvailable">
        <source></source>
        <translation>No backup is scheduled</translation>
    </message>
    <message id="retryAttemptTitle">
        <source></source>
        <translation>Retry</translation>
    </message>
    <message id="remainingTimeTitle">
        <source></source>
        <translation>Remaining Time</translation>
    </message>
    <message id="calculatingTitle">
        <source></source>
        <translation>Calculating</translation>
    </message>
    <message id="backupNowTitle">
        <source></source>
        <translation>Back Up Now</translation>
    </message>
    <message id="skipThisBackupTitle">
        <source></source>
        <translation>Skip This Backup</translation>
    </message>
    <message id="skipThisBackupTitleVentura">
        <source></source>
        <translation>Skip This Backup</translation>
    </message>
    <message id="skipRetryAttemptTitle">
        <source></source>
        <translation>Skip Retry</translation>
    </message>
    <message id="enterTimeMachineTitle">
        <source></source>
        <translation>Enter Time Machine</translation>
    </message>
    <message id="enterTimeMachineTitleVentura">
        <source></source>
        <translation>Browse Time Machine Backups</translation>
    </message>
    <message id="openSystemPreferencesTitle">
        <source></source>
        <translation>Open Time Machine Preferences</translation>
    </message>
    <message id="openSystemPreferencesTitleVentura">
        <source></source>
        <translation>Open Time Machine Settings</translation>
    </message>
    <message id="updateAvailableMenuTitle">
        <source></source>
        <translation>Update Available</translation>
    </message>
    <message id="preferencesMenuTitle">
        <source></source>
        <translation>Settings</translation>
    </message>
    <message id="aboutMenuTitle">
        <source></source>
        <translation>About Quillon</translation>
    </message>
    <message id="quitApplicationTitle">
        <source></source>
        <translation>Quit %1</translation>
    </message>
    <!-- Pause -->
    <message id="pauseScheduleForTitle">
        <source></source>
        <translation>Pause Schedule For</translation>
    </message>
    <message id="pauseScheduleUntilTitle">
        <source></source>
        <translation>Schedule Paused Until</translation>
    </message>
    <message id="resumeScheduleTitle">
        <source></source>
        <translation>Resume Schedule</translation>
    </message>
    <message id="oneHourTitle">
        <source></source>
        <translation>1 Hour</translation>
    </message>
    <message id="twoHoursTitle">
        <source></source>
        <translation>2 Hours</translation>
    </message>
    <message id="fourHoursTitle">
        <source></source>
        <translation>4 Hours</translation>
    </message>
    <message id="eightHoursTitle">
        <source></source>
        <translation>8 Hours</translation>
    </message>
    <message id="twelveHoursTitle">
        <source></source>
        <translation>12 Hours</translation>
    </message>
    <message id="oneDayTitle">
        <source></source>
        <translation>1 Day</translation>
    </message>
    <message id="twoDaysTitle">
        <source></source>
        <translation>2 Days</translation>
    </message>
    <message id="threeDaysTitle">
        <source></source>
        <translation>3 Days</translation>
    </message>
    <message id="fourDaysTitle">
        <source></source>
        <translation>4 Days</translation>
    </message>
    <message id="fiveDaysTitle">
        <source></source>
        <translation>5 Days</translation>
    </message>
    <message id="sixDaysTitle">
        <source></source>
        <translation>6 Days</translation>
    </message>
    <message id="oneWeekTitle">
        <source></source>
        <translation>1 Week</translation>
    </message>
    <message id="twoWeeksTitle">
        <source></source>
        <translation>2 Weeks</translation>
    </message>
    <message id="threeWeeksTitle">
        <source></source>
        <translation>3 Weeks</translation>
    </message>
    <message id="fourWeeksTitle">
        <source></source>
        <translation>4 Weeks</translation>
    </message>
    <!-- The menu as it opens -->
    <message id="letMacOsDecideBackupDiskTitle">
        <source></source>
        <translation>Let Time Machine Choose</translation>
    </message>
    <message id="mostRecentTitle">
        <source></source>
        <translation>most recent</translation>
    </message>
    <message id="latestBackupOfEachDestinationTitle">
        <source></source>
        <translation>Latest Backup of Each Disk</translation>
    </message>
    <message id="allBackupInfoHelpMessage">
        <source></source>
        <translation>This list shows the latest backup that Quillon has seen complete on each of your backup disks. A disk without a date has not been backed up to since Quillon was installed.</translation>
    </message>
    <message id="helpButtonTitle">
        <source></source>
        <translation>Help</translation>
    </message>
    <!-- What the commands tell -->
    <message id="AlertTitleWarning">
        <source></source>
        <translation>Warning</translation>
    </message>
    <message id="failedToStartBackupMessage">
        <source></source>
        <translation>The backup could not be started. Time Machine answered with error code %1.</translation>
    </message>
    <message id="startDiskAwayMessage">
        <source></source>
        <translation>The backup disk is not connected, or the server with the backups cannot be reached.</translation>
    </message>
    <message id="startResticMissingMessage">
        <source></source>
        <translation>The program restic, which makes the backups, is not installed.</translation>
    </message>
    <message id="appUpdateAvailableAlertTitle">
        <source></source>
        <translation>Quillon %1 is available</translation>
    </message>
    <message id="appUpdateAvailableAlertMessage">
        <source></source>
        <translation>You have version %1. The download page will be opened in your browser, and Quillon will quit so that it can be replaced.</translation>
    </message>
    <message id="AlertButtonGetUpdate">
        <source></source>
        <translation>Get Update</translation>
    </message>
    <message id="AlertButtonCancel">
        <source></source>
        <translation>Cancel</translation>
    </message>
    <!-- The user’s own programs -->
    <message id="hookStoppedBackupMessage">
        <source></source>
        <translation>The program “before” kept the backup from starting.</translation>
    </message>
    <message id="hookNotRunMessage">
        <source></source>
        <translation>“%1” was not run. It has to be an executable file that only you can change, in a folder that only you can change.</translation>
    </message>
    <message id="hookTooLongMessage">
        <source></source>
        <translation>“%1” was ended after ten minutes.</translation>
    </message>
    <message id="hookStatusMessage">
        <source></source>
        <translation>“%1” ended with exit status %2.</translation>
    </message>
    <!-- Notifications of the desktop -->
    <message id="backupFailedTitle">
        <source></source>
        <translation>Backup Failed</translation>
    </message>
    <message id="backupFailedMessage">
        <source></source>
        <translation>The latest backup ended before it was complete.</translation>
    </message>
    <message id="noBackupForDaysTitle">
        <source></source>
        <translation>No Recent Backup</translation>
    </message>
    <message id="noBackupForDaysMessage">
        <source></source>
        <translation>The latest backup was completed on %1.</translation>
    </message>
    <message id="noBackupYetMessage">
        <source></source>
        <translation>No backup has been completed yet.</translation>
    </message>
    <message id="startWithoutRunTitle">
        <source></source>
        <translation>Backup Did Not Start</translation>
    </message>
    <message id="startWithoutRunMessage">
        <source></source>
        <translation>Time Machine accepted the start of a backup, but none is running.</translation>
    </message>
    <message id="noProgressTitle">
        <source></source>
        <translation>Backup Makes No Progress</translation>
    </message>
    <message id="noProgressMessage">
        <source></source>
        <translation>The running backup has made no progress for half an hour.</translation>
    </message>
    <message id="damageFoundTitle">
        <source></source>
        <translation>Backups Are Damaged</translation>
    </message>
    <message id="damageFoundMessage">
        <source></source>
        <translation>Time Machine found damage in your backups. Some files may not be restorable.</translation>
    </message>
    <message id="startAheadTitle">
        <source></source>
        <translation>Backup Starts Soon</translation>
    </message>
    <message id="startAheadMessage">
        <source></source>
        <translation>The next backup starts at %1.</translation>
    </message>
    <message id="startAheadSkipTitle">
        <source></source>
        <translation>Skip</translation>
    </message>
    <message id="startAheadPostponeTitle">
        <source></source>
        <translation>In an Hour</translation>
    </message>
    <!-- Where there is no Time Machine application -->
    <!-- The schedule in the settings panel -->
    <message id="settingsGroupSchedule">
        <source></source>
        <translation>Scheduled Backups</translation>
    </message>
    <message id="settingsEnableScheduledBackupsVia">
        <source></source>
        <translation>Schedule backups by</translation>
    </message>
    <message id="settingsOptionCalendarInterval">
        <source></source>
        <translation>day and time</translation>
    </message>
    <message id="settingsOptionInterval">
        <source></source>
        <translation>interval</translation>
    </message>
    <message id="scheduleTitle">
        <source></source>
        <translation>Schedule:</translation>
    </message>
    <message id="warningButtonTitle">
        <source></source>
        <translation>Warning about automatic backups</translation>
    </message>
    <message id="setupDisksButtonTitle">
        <source></source>
        <translation>About the backup disks</translation>
    </message>
    <message id="addRuleTitle">
        <source></source>
        <translation>Add Rule</translation>
    </message>
    <message id="deleteRuleTitle">
        <source></source>
        <translation>Delete Rule</translation>
    </message>
    <!-- A rule as one sentence: back up, day, at, time of day -->
    <message id="backupTitle">
        <source></source>
        <translation>Back up</translation>
    </message>
    <message id="everyDayTitle">
        <source></source>
        <translation>every day</translation>
    </message>
    <message id="weekdaysTitle">
        <source></source>
        <translation>Monday to Friday</translation>
    </message>
    <message id="mondayTitle">
        <source></source>
        <translation>every Monday</translation>
    </message>
    <message id="tuesdayTitle">
        <source></source>
        <translation>every Tuesday</translation>
    </message>
    <message id="wednesdayTitle">
        <source></source>
        <translation>every Wednesday</translation>
    </message>
    <message id="thursdayTitle">
        <source></source>
        <translation>every Thursday</translation>
    </message>
    <message id="fridayTitle">
        <source></source>
        <translation>every Friday</translation>
    </message>
    <message id="saturdayTitle">
        <source></source>
        <translation>every Saturday</translation>
    </message>
    <message id="sundayTitle">
        <source></source>
        <translation>every Sunday</translation>
    </message>
    <message id="atTimeTitle">
        <source></source>
        <translation>at</translation>
    </message>
    <!-- The interval page; the unit stands behind any number from 1 on -->
    <message id="settingsIntervalEvery">
        <source></source>
        <translation>Back up every</translation>
    </message>
    <message id="settingsIntervalHours">
        <source></source>
        <translation>hours</translation>
    </message>
    <message id="settingsIntervalHour">
        <source></source>
        <translation>hour</translation>
    </message>
    <message id="settingsIntervalNotYetUsed">
        <source></source>
        <translation>The interval is not in use yet: backups start on the days and at the times of the rules.</translation>
    </message>
    <!-- The other groups of the settings panel -->
    <message id="settingsGroupRetry">
        <source></source>
        <translation>Retry</translation>
    </message>
    <message id="settingsEnableAfterMissedBackup">
        <source></source>
        <translation>Retry after a missed backup</translation>
    </message>
    <message id="settingsEnableAfterFailedBackup">
        <source></source>
        <translation>Retry after a failed backup</translation>
    </message>
    <message id="settingsGroupMenuBar">
        <source></source>
        <translation>Menu Bar</translation>
    </message>
    <message id="settingsShowDetailedTimeInMenuBar">
        <source></source>
        <translation>Show detailed times</translation>
    </message>
    <message id="settingsShowDetailedTimeInMenuBarDetails">
        <source></source>
        <translation>For example, “1h 30m” instead of “1h”.</translation>
    </message>
    <message id="settingsShowMenuBarIconOnly">
        <source></source>
        <translation>Show only the icon</translation>
    </message>
    <message id="settingsDisableIconColors">
        <source></source>
        <translation>Color the icon when it needs your attention</translation>
    </message>
    <message id="settingsGroupDisks">
        <source></source>
        <translation>Disks and Login</translation>
    </message>
    <message id="settingsRotateBackupDisks">
        <source></source>
        <translation>Rotate between backup disks</translation>
    </message>
    <message id="settingsStartOnSystemStart">
        <source></source>
        <translation>Open Quillon at login</translation>
    </message>
    <message id="loginItemRefusedMessage">
        <source></source>
        <translation>The system did not take the change: what opens at login stays as it was.</translation>
    </message>
    <!-- The second page of the settings panel; a number stands behind what is not a sentence -->
    <message id="settingsMoreTitle">
        <source></source>
        <translation>More</translation>
    </message>
    <message id="settingsBackTitle">
        <source></source>
        <translation>Back</translation>
    </message>
    <message id="settingsGroupPower">
        <source></source>
        <translation>Power</translation>
    </message>
    <message id="settingsOnlyOnMainsPower">
        <source></source>
        <translation>Start backups only on mains power</translation>
    </message>
    <message id="settingsChargeThatSuffices">
        <source></source>
        <translation>Or when the battery is above</translation>
    </message>
    <message id="settingsPerCent">
        <source></source>
        <translation>%1%</translation>
    </message>
    <message id="settingsStayAwake">
        <source></source>
        <translation>Stay awake during backups that Quillon starts</translation>
    </message>
    <message id="settingsStartWhenDiskAppears">
        <source></source>
        <translation>Retry once the backup disk appears</translation>
    </message>
    <message id="settingsMinutesAfterWake">
        <source></source>
        <translation>After waking, wait</translation>
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
        <translation>No completed backup for</translation>
    </message>
    <message id="settingsDays">
        <source></source>
        <translation>%1 days</translation>
    </message>
    <message id="settingsDay">
        <source></source>
        <translation>%1 day</translation>
    </message>
    <message id="settingsTellBeforeStart">
        <source></source>
        <translation>One minute before a backup starts</translation>
    </message>
    <!-- Alerts of the settings panel -->
    <message id="maximumRulesReachedTitle">
        <source></source>
        <translation>No More Rules Can Be Added</translation>
    </message>
    <message id="maximumRulesReachedMessage">
        <source></source>
        <translation>A schedule has at most %1 rules. Change or delete one of them instead.</translation>
    </message>
    <message id="confirmDeleteRuleTitle">
        <source></source>
        <translation>Delete This Rule?</translation>
    </message>
    <message id="confirmDeleteRuleMessage">
        <source></source>
        <translation>The rule is removed, and Quillon no longer starts backups at its time.</translation>
    </message>
    <message id="retryAfterMissedBackupTitle">
        <source></source>
        <translation>Retry After a Missed Backup</translation>
    </message>
    <message id="retryAfterMissedBackupMessage">
        <source></source>
        <translation>When your computer sleeps through a scheduled backup, that backup starts about five minutes after the computer wakes. While the schedule is paused, nothing is retried.</translation>
    </message>
    <message id="retryAfterFailedBackupTitle">
        <source></source>
        <translation>Retry After a Failed Backup</translation>
    </message>
    <message id="retryAfterFailedBackupMessage">
        <source></source>
        <translation>When a backup ends before it is complete, Quillon tries again about five minutes later. Backups that you stop yourself are not retried, and nothing is while the schedule is paused.</translation>
    </message>
    <message id="AlertButtonOk">
        <source></source>
        <translation>OK</translation>
    </message>
    <message id="AlertButtonDelete">
        <source></source>
        <translation>Delete</translation>
    </message>
    <!-- The first launch; the instruction is also the text of the settings panel's warning -->
    <message id="firstStartInfoAlertTitle">
        <source></source>
        <translation>Welcome to %1</translation>
    </message>
    <message id="firstStartInfoAlertMessage">
        <source></source>
        <translation>%2 is in the menu bar. It starts your backups at the times that you choose in its settings.

%1</translation>
    </message>
    <message id="disableTmInstruction">
        <source></source>
        <translation>If Time Machine also backs up automatically, switch that off, so that backups start only when you have scheduled them. On a Mac, open System Preferences, click Time Machine, and deselect “Back Up Automatically”.</translation>
    </message>
    <message id="disableTmInstructionVentura">
        <source></source>
        <translation>If Time Machine also backs up automatically, switch that off, so that backups start only when you have scheduled them. On a Mac, open System Settings, choose General &gt; Time Machine &gt; Options, and set “Back up frequency” to “Manually”.</translation>
    </message>
    <message id="setupDisksMessage">
        <source></source>
        <translation>Backups are made to:
%1

Backup disks are added and removed in the Time Machine settings.</translation>
    </message>
    <message id="setupNoDiskMessage">
        <source></source>
        <translation>No backup disk is set up yet, and without one no backup can start. Add one in the Time Machine settings.</translation>
    </message>
    <message id="setupUnknownDisksMessage">
        <source></source>
        <translation>Backup disks are chosen in the Time Machine settings.</translation>
    </message>
    <message id="AlertButtonHelp">
        <source></source>
        <translation>Help</translation>
    </message>
    <!-- The about panel -->
    <message id="versionTitle">
        <source></source>
        <translation>Version</translation>
    </message>
    <message id="copyrightTitle">
        <source></source>
        <translation>© %1 the Quillon authors</translation>
    </message>
    <message id="supportDetailsMessage">
        <source></source>
        <translation>Questions, ideas, or something that does not work? Write to us.</translation>
    </message>
    <message id="websiteButtonTitle">
        <source></source>
        <translation>Website</translation>
    </message>
    <message id="creditsTitle">
        <source></source>
        <translation>Quillon is built on Qt, ICU, and libplist. On Linux, restic makes the backups.</translation>
    </message>
    <message id="appIconCreditsTitle">
        <source></source>
        <translation>Icon from %1</translation>
    </message>
    <message id="privacyPolicyDetailsMessage">
        <source></source>
        <translation>Quillon sends nothing about you or your files.</translation>
    </message>
    <message id="termsButtonTitle">
        <source></source>
        <translation>Terms of Use</translation>
    </message>
    <message id="privacyPolicyAlertTitle">
        <source></source>
        <translation>Privacy Policy</translation>
    </message>
    <message id="privacyPolicyAlertMessage">
        <source></source>
        <translation>%1 keeps your settings and the record of your backups on this computer. To learn of new versions, %1 asks a service of its maker; the request names %1, not you. The whole privacy policy of %1 is on the website.</translation>
    </message>
    <message id="AlertButtonReadMore">
        <source></source>
        <translation>Read More</translation>
    </message>
    <message id="AlertMessageMailNotConfigured">
        <source></source>
        <translation>No mail application could be opened. Please write to %1.</translation>
    </message>
    <!-- Window of the Time Machine settings on Linux -->
    <message id="disksWindowTitle">
        <source></source>
        <translation>Time Machine</translation>
    </message>
    <message id="disksDisksTitle">
        <source></source>
        <translation>Backup Disks</translation>
    </message>
    <message id="disksSourcesTitle">
        <source></source>
        <translation>Folders</translation>
    </message>
    <message id="disksExclusionsTitle">
        <source></source>
        <translation>Left Out</translation>
    </message>
    <message id="disksDisksExplanation">
        <source></source>
        <translation>Backups are made to these disks and network places. The backups are encrypted; whatever else is on a disk is left as it is. The keys are kept in your home folder.</translation>
    </message>
    <message id="disksSourcesExplanation">
        <source></source>
        <translation>These folders are backed up, with everything in them.</translation>
    </message>
    <message id="disksExclusionsExplanation">
        <source></source>
        <translation>These files and folders are left out of every backup.</translation>
    </message>
    <message id="disksNoDisks">
        <source></source>
        <translation>There is no backup disk yet. Add a disk, a folder on one, or a network place to begin.</translation>
    </message>
    <message id="disksNoExclusions">
        <source></source>
        <translation>Nothing is left out. Add what needs no backup, such as downloads that you can get again.</translation>
    </message>
    <message id="disksReading">
        <source></source>
        <translation>Reading the settings …</translation>
    </message>
    <message id="disksConnected">
        <source></source>
        <translation>Connected</translation>
    </message>
    <message id="disksNotConnected">
        <source></source>
        <translation>Not connected</translation>
    </message>
    <message id="disksLastBackup">
        <source></source>
        <translation>Last backup: %1</translation>
    </message>
    <message id="disksNoBackupYet">
        <source></source>
        <translation>No backup yet</translation>
    </message>
    <message id="disksAddDiskTitle">
        <source></source>
        <translation>Add Disk</translation>
    </message>
    <message id="disksAddFolderTitle">
        <source></source>
        <translation>Add Folder</translation>
    </message>
    <message id="disksAddFileTitle">
        <source></source>
        <translation>Add File</translation>
    </message>
    <message id="disksRemoveTitle">
        <source></source>
        <translation>Remove</translation>
    </message>
    <message id="disksCancelTitle">
        <source></source>
        <translation>Cancel</translation>
    </message>
    <message id="disksOkTitle">
        <source></source>
        <translation>OK</translation>
    </message>
    <message id="disksTryAgainTitle">
        <source></source>
        <translation>Try Again</translation>
    </message>
    <message id="disksFree">
        <source></source>
        <translation>%1 (%2 free)</translation>
    </message>
    <message id="disksNoOtherDisk">
        <source></source>
        <translation>No other disk is connected</translation>
    </message>
    <message id="disksAddFailed">
        <source></source>
        <translation>“%1” could not be added.</translation>
    </message>
    <message id="disksRemoveFailed">
        <source></source>
        <translation>“%1” could not be removed.</translation>
    </message>
    <message id="disksRemoveAlertMessage">
        <source></source>
        <translation>Stop backing up to “%1”?</translation>
    </message>
    <message id="disksRemoveAlertInformative">
        <source></source>
        <translation>The backups on it are kept, and so is their key. Add the same folder again to go on with them.</translation>
    </message>
    <message id="disksHomeAlertMessage">
        <source></source>
        <translation>Back up your whole home folder instead?</translation>
    </message>
    <message id="disksHomeAlertInformative">
        <source></source>
        <translation>“%1” is the only folder on the list. When the list is empty, everything in your home folder is backed up.</translation>
    </message>
    <message id="disksReadFailed">
        <source></source>
        <translation>The settings could not be read: %1</translation>
    </message>
    <message id="disksToolHangs">
        <source></source>
        <translation>tmutil does not answer.</translation>
    </message>
    <message id="disksToolMissing">
        <source></source>
        <translation>The tool “%1” cannot be started.</translation>
    </message>
    <message id="disksToolFailed">
        <source></source>
        <translation>tmutil ended with exit status %1.</translation>
    </message>
    <message id="disksToolUnreadable">
        <source></source>
        <translation>The answer of tmutil makes no sense.</translation>
    </message>
    <message id="reasonWithDetail">
        <source></source>
        <translation>%1 (tmutil: %2)</translation>
    </message>
    <message id="reasonMissing">
        <source></source>
        <translation>The backup disk is not connected, or the network place cannot be reached.</translation>
    </message>
    <message id="reasonNoSpace">
        <source></source>
        <translation>There is no room left.</translation>
    </message>
    <message id="reasonCannotWrite">
        <source></source>
        <translation>Nothing can be written there.</translation>
    </message>
    <message id="reasonExists">
        <source></source>
        <translation>Something of that name is there already, and stays.</translation>
    </message>
    <message id="reasonNotInBackups">
        <source></source>
        <translation>It is not in the backups.</translation>
    </message>
    <message id="reasonDamaged">
        <source></source>
        <translation>It is damaged in the backup.</translation>
    </message>
    <message id="reasonNoAttributes">
        <source></source>
        <translation>The contents are whole, but the owner, the rights or other attributes could not be restored.</translation>
    </message>
    <message id="reasonConnectionLost">
        <source></source>
        <translation>The connection to the server was lost.</translation>
    </message>
    <message id="reasonAccessDenied">
        <source></source>
        <translation>The server refuses the user, the password or the key.</translation>
    </message>
    <message id="reasonUntrusted">
        <source></source>
        <translation>It is not certain that this is the right server.</translation>
    </message>
    <message id="reasonServerFailed">
        <source></source>
        <translation>The server reports an error of its own; it may be full.</translation>
    </message>
    <message id="reasonWrongKey">
        <source></source>
        <translation>The key of the backups is missing or does not fit.</translation>
    </message>
    <message id="reasonLocked">
        <source></source>
        <translation>The backups are in use. Try again in a while.</translation>
    </message>
    <message id="reasonResticMissing">
        <source></source>
        <translation>restic is not installed.</translation>
    </message>
    <message id="reasonNoRepository">
        <source></source>
        <translation>The backups are missing or damaged.</translation>
    </message>
    <message id="reasonNoInput">
        <source></source>
        <translation>The file or folder is not there.</translation>
    </message>
    <message id="reasonConfiguration">
        <source></source>
        <translation>The settings of the backups are damaged.</translation>
    </message>
    <message id="reasonNoWorkSpace">
        <source></source>
        <translation>There is no room for temporary files in the home folder.</translation>
    </message>
    <message id="disksRoom">
        <source></source>
        <translation>%1 of %2 free</translation>
    </message>
    <message id="disksTaken">
        <source></source>
        <translation>Backups take %1</translation>
    </message>
    <message id="disksProblem">
        <source></source>
        <translation>Last problem (%1): %2</translation>
    </message>
    <message id="disksKeyNotKept">
        <source></source>
        <translation>Recovery key not kept yet</translation>
    </message>
    <message id="disksSourceOnDisk">
        <source></source>
        <translation>The folder “%1” is on this disk too: when the disk breaks, both are lost</translation>
    </message>
    <message id="disksKeyBar">
        <source></source>
        <translation>If this computer is lost, the backups on “%1” cannot be read without a recovery key.</translation>
    </message>
    <message id="disksShowKeyTitle">
        <source></source>
        <translation>Show Recovery Key</translation>
    </message>
    <message id="disksKeyHeading">
        <source></source>
        <translation>Recovery Key of “%1”</translation>
    </message>
    <message id="disksKeyExplanation">
        <source></source>
        <translation>If this computer is lost, this key and the disk give the backups back. Write it down or save it as a page, and keep it away from this computer and from the disk. Whoever has both can read the backups.</translation>
    </message>
    <message id="disksKeyOnce">
        <source></source>
        <translation>This is a new key, shown only now. Once you have kept it, keys shown before open nothing any more.</translation>
    </message>
    <message id="disksSavePageTitle">
        <source></source>
        <translation>Save as Page</translation>
    </message>
    <message id="disksLaterTitle">
        <source></source>
        <translation>Later</translation>
    </message>
    <message id="disksKeptTitle">
        <source></source>
        <translation>I Have Kept It</translation>
    </message>
    <message id="disksKeyFailed">
        <source></source>
        <translation>No recovery key could be made for “%1”.</translation>
    </message>
    <message id="disksKeepFailed">
        <source></source>
        <translation>It could not be noted that you have kept the recovery key of “%1”.</translation>
    </message>
    <message id="disksPageFailed">
        <source></source>
        <translation>The page could not be saved.</translation>
    </message>
    <message id="disksPagePdf">
        <source></source>
        <translation>PDF Document</translation>
    </message>
    <message id="disksPageText">
        <source></source>
        <translation>Text File</translation>
    </message>
    <message id="disksPageOnDiskMessage">
        <source></source>
        <translation>Save the page on the backup disk itself?</translation>
    </message>
    <message id="disksPageOnDiskInformative">
        <source></source>
        <translation>Whoever takes the disk would have its key as well, and a disk that breaks would take the page with it.</translation>
    </message>
    <message id="disksSaveTitle">
        <source></source>
        <translation>Save</translation>
    </message>
    <message id="disksPageMade">
        <source></source>
        <translation>Made on %1. Keep this page away from the computer and from the disk. Whoever has it and the disk can read the backups.</translation>
    </message>
    <message id="disksPageSteps">
        <source></source>
        <translation>When the computer is lost, on a new one</translation>
    </message>
    <message id="disksPageConnect">
        <source></source>
        <translation>Install Quillon and connect the disk.</translation>
    </message>
    <message id="disksPageAdopt">
        <source></source>
        <translation>%1 asks for the recovery key and takes the disk up.</translation>
    </message>
    <message id="disksPageList">
        <source></source>
        <translation>%1 names the backups.</translation>
    </message>
    <message id="disksPageRestore">
        <source></source>
        <translation>%1 gives a folder back.</translation>
    </message>
    <message id="disksPageContinue">
        <source></source>
        <translation>%1 goes on with the backups.</translation>
    </message>
    <message id="disksAddTitle">
        <source></source>
        <translation>Add</translation>
    </message>
    <message id="disksAddNameTitle">
        <source></source>
        <translation>Add Name Pattern</translation>
    </message>
    <message id="disksAddSizeTitle">
        <source></source>
        <translation>Add Size Limit</translation>
    </message>
    <message id="disksByName">
        <source></source>
        <translation>Files and folders of this name, wherever they are</translation>
    </message>
    <message id="disksBySize">
        <source></source>
        <translation>In all folders</translation>
    </message>
    <message id="disksLargerThan">
        <source></source>
        <translation>Files larger than %1</translation>
    </message>
    <message id="disksNamePrompt">
        <source></source>
        <translation>Leave out files and folders named</translation>
    </message>
    <message id="disksNameHint">
        <source></source>
        <translation>* stands for any characters, ? for a single one.</translation>
    </message>
    <message id="disksSizePrompt">
        <source></source>
        <translation>Leave out files larger than</translation>
    </message>
    <message id="disksCounting">
        <source></source>
        <translation>Counting what that leaves out …</translation>
    </message>
    <message id="disksPreview">
        <source></source>
        <translation>Files that would be left out now: %1 (%2)</translation>
    </message>
    <message id="disksPreviewNothing">
        <source></source>
        <translation>No file would be left out now.</translation>
    </message>
    <message id="disksLeaveOutTitle">
        <source></source>
        <translation>Leave Out</translation>
    </message>
    <message id="disksListing">
        <source></source>
        <translation>Looking for disks …</translation>
    </message>
    <message id="disksListFailed">
        <source></source>
        <translation>The disks could not be listed</translation>
    </message>
    <message id="disksEditTitle">
        <source></source>
        <translation>Edit</translation>
    </message>
    <message id="disksAddPlaceTitle">
        <source></source>
        <translation>Add Network Place</translation>
    </message>
    <message id="disksEditPlaceTitle">
        <source></source>
        <translation>Access to “%1”</translation>
    </message>
    <message id="disksPlaceKind">
        <source></source>
        <translation>Kind</translation>
    </message>
    <message id="disksPlaceSftp">
        <source></source>
        <translation>SFTP (SSH)</translation>
    </message>
    <message id="disksPlaceRest">
        <source></source>
        <translation>restic REST Server</translation>
    </message>
    <message id="disksPlaceS3">
        <source></source>
        <translation>S3-Compatible Storage</translation>
    </message>
    <message id="disksPlaceAddress">
        <source></source>
        <translation>Address</translation>
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
        <translation>Folder</translation>
    </message>
    <message id="disksPlacePath">
        <source></source>
        <translation>Path</translation>
    </message>
    <message id="disksPlaceBucket">
        <source></source>
        <translation>Bucket</translation>
    </message>
    <message id="disksPlaceUser">
        <source></source>
        <translation>User Name</translation>
    </message>
    <message id="disksPlaceKeyFile">
        <source></source>
        <translation>Key File</translation>
    </message>
    <message id="disksPlacePassword">
        <source></source>
        <translation>Password</translation>
    </message>
    <message id="disksPlaceAccessKey">
        <source></source>
        <translation>Access Key</translation>
    </message>
    <message id="disksPlaceSecretKey">
        <source></source>
        <translation>Secret Key</translation>
    </message>
    <message id="disksPlaceRegion">
        <source></source>
        <translation>Region</translation>
    </message>
    <message id="disksPlaceSecure">
        <source></source>
        <translation>Encrypted connection (HTTPS)</translation>
    </message>
    <message id="disksPlaceCertificate">
        <source></source>
        <translation>Certificate File</translation>
    </message>
    <message id="disksPlaceUpload">
        <source></source>
        <translation>Upload Limit</translation>
    </message>
    <message id="disksPlaceDownload">
        <source></source>
        <translation>Download Limit</translation>
    </message>
    <message id="disksPlaceNoLimit">
        <source></source>
        <translation>None</translation>
    </message>
    <message id="disksPlaceUploadAtMost">
        <source></source>
        <translation>Upload at most %1</translation>
    </message>
    <message id="disksPlaceDownloadAtMost">
        <source></source>
        <translation>Download at most %1</translation>
    </message>
    <message id="disksPlaceOptional">
        <source></source>
        <translation>Optional</translation>
    </message>
    <message id="disksPlaceUnchanged">
        <source></source>
        <translation>Unchanged</translation>
    </message>
    <message id="disksPlaceChooseTitle">
        <source></source>
        <translation>Choose</translation>
    </message>
    <message id="disksPlaceNeeded">
        <source></source>
        <translation>Still needed: %1</translation>
    </message>
    <message id="disksPlaceBadServer">
        <source></source>
        <translation>The server is given by its name or address alone, such as nas.example.org.</translation>
    </message>
    <message id="disksPlaceBadPort">
        <source></source>
        <translation>A port is a number from 1 to 65535.</translation>
    </message>
    <message id="disksPlaceBadFolder">
        <source></source>
        <translation>The folder begins with / or, if it is in your own folder on the server, with ~/.</translation>
    </message>
    <message id="disksPlaceBadFile">
        <source></source>
        <translation>A file is given by its whole path, which begins with /.</translation>
    </message>
    <message id="disksPlaceUserAndPassword">
        <source></source>
        <translation>User name and password are given together, or neither.</translation>
    </message>
    <message id="disksPlaceTryTitle">
        <source></source>
        <translation>Try</translation>
    </message>
    <message id="disksPlaceTrustTitle">
        <source></source>
        <translation>Trust</translation>
    </message>
    <message id="disksPlaceTakeUpTitle">
        <source></source>
        <translation>Take Up</translation>
    </message>
    <message id="disksPlaceAsking">
        <source></source>
        <translation>Asking the server …</translation>
    </message>
    <message id="disksPlaceKeeping">
        <source></source>
        <translation>Setting up the place …</translation>
    </message>
    <message id="disksPlaceEmpty">
        <source></source>
        <translation>The server can be used. There are no backups there yet.</translation>
    </message>
    <message id="disksPlaceBackups">
        <source></source>
        <translation>The server can be used. There are backups there that this computer can read; they are continued.</translation>
    </message>
    <message id="disksPlaceWrongKey">
        <source></source>
        <translation>There are backups there that this computer has no key for. If they are yours, enter their recovery key to continue them; otherwise choose another place.</translation>
    </message>
    <message id="disksPlaceRecoveryKey">
        <source></source>
        <translation>Recovery Key</translation>
    </message>
    <message id="disksPlaceFingerprint">
        <source></source>
        <translation>Fingerprint of the server’s key</translation>
    </message>
    <message id="disksPlaceUnknownKey">
        <source></source>
        <translation>“%1” is not known to this computer yet. Compare the fingerprint of its key with the one that its administrator tells you, and trust it only if they are the same.</translation>
    </message>
    <message id="disksPlaceChangedKey">
        <source></source>
        <translation>Warning: “%1” shows a different key than before. Somebody may be reading along. Trust the new key only if the administrator of the server confirms that it was changed, and this fingerprint.</translation>
    </message>
    <message id="disksPlaceChangedKeyMessage">
        <source></source>
        <translation>Trust the new key of “%1”?</translation>
    </message>
    <message id="disksPlaceChangedKeyInformative">
        <source></source>
        <translation>If it is not the server’s own, what is sent there reaches somebody else.</translation>
    </message>
    <message id="disksPlaceBadCertificate">
        <source></source>
        <translation>The certificate of “%1” is not trusted, so it may be another server. If the certificate is one of your own, choose it, or its issuer’s, as the certificate file.</translation>
    </message>
    <message id="disksPlaceAccessDeniedKey">
        <source></source>
        <translation>“%1” refuses the user or the key. Check both. The public key has to be set up on the server, and the key file must have no passphrase.</translation>
    </message>
    <message id="disksPlaceAccessDenied">
        <source></source>
        <translation>“%1” refuses access. Check what you have entered: the user name and password, or the keys.</translation>
    </message>
    <message id="disksPlaceNoPermission">
        <source></source>
        <translation>Nothing can be written there. Choose another place on the server, or have its administrator allow it.</translation>
    </message>
    <message id="disksPlaceNoAnswer">
        <source></source>
        <translation>“%1” does not answer. Check the server and the port, and whether this computer is connected to the network.</translation>
    </message>
    <message id="disksPlaceNoSpace">
        <source></source>
        <translation>The server has no room left. Make room there, or choose another place.</translation>
    </message>
    <message id="disksPlaceFailed">
        <source></source>
        <translation>The server cannot be used: %1</translation>
    </message>
    <message id="disksPlaceRemoveInformative">
        <source></source>
        <translation>The backups there are kept, and so is their key; what lets this computer into the server is forgotten. Add the same place again to go on with them.</translation>
    </message>
    <message id="disksPlaceKeyExplanation">
        <source></source>
        <translation>If this computer is lost, this key and access to the server give the backups back. Write it down or save it as a page, and keep it away from this computer, together with what lets you into the server. Whoever has both can read the backups.</translation>
    </message>
    <message id="disksPlacePageMade">
        <source></source>
        <translation>Made on %1. Keep this page away from the computer. Whoever has it and access to the server can read the backups.</translation>
    </message>
    <message id="disksPlacePageStart">
        <source></source>
        <translation>Install Quillon and start %1.</translation>
    </message>
    <message id="disksPlacePageAdd">
        <source></source>
        <translation>Choose “%1”, enter %2 as the server and what lets you into it, then the recovery key when it is asked for.</translation>
    </message>
    <!-- Window of the backups on Linux -->
    <message id="browseWindowTitle">
        <source></source>
        <translation>Time Machine Backups</translation>
    </message>
    <message id="browseThisWeek">
        <source></source>
        <translation>This Week</translation>
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
        <translation>Damaged</translation>
    </message>
    <message id="browseIncomplete">
        <source></source>
        <translation>Incomplete</translation>
    </message>
    <message id="browseRestoring">
        <source></source>
        <translation>Restoring …</translation>
    </message>
    <message id="browseRestoreProgress">
        <source></source>
        <translation>%1 of %2 files, %3 of %4</translation>
    </message>
    <message id="browseRestoreStopped">
        <source></source>
        <translation>Stopped. What was not restored yet is left as it was.</translation>
    </message>
    <message id="browseRestoredCount">
        <source></source>
        <translation>Restored: %1</translation>
    </message>
    <message id="browseSkippedCount">
        <source></source>
        <translation>Skipped: %1</translation>
    </message>
    <message id="browseLostCount">
        <source></source>
        <translation>Not restored: %1</translation>
    </message>
    <message id="browseConflictMessage">
        <source></source>
        <translation>“%1” is there already.</translation>
    </message>
    <message id="browseNameColumn">
        <source></source>
        <translation>Name</translation>
    </message>
    <message id="browseSizeColumn">
        <source></source>
        <translation>Size</translation>
    </message>
    <message id="browseModifiedColumn">
        <source></source>
        <translation>Modified</translation>
    </message>
    <message id="browseSinceColumn">
        <source></source>
        <translation>Later</translation>
    </message>
    <message id="browseFolderColumn">
        <source></source>
        <translation>Folder</translation>
    </message>
    <message id="browseBackupColumn">
        <source></source>
        <translation>Backup</translation>
    </message>
    <message id="browseSortTip">
        <source></source>
        <translation>Sort by this column (%1)</translation>
    </message>
    <message id="browseChanged">
        <source></source>
        <translation>Changed</translation>
    </message>
    <message id="browseGone">
        <source></source>
        <translation>Deleted</translation>
    </message>
    <message id="browseFolderKind">
        <source></source>
        <translation>Folder</translation>
    </message>
    <message id="browseLinkTo">
        <source></source>
        <translation>Link to %1</translation>
    </message>
    <message id="browseDiskLabel">
        <source></source>
        <translation>Backups on</translation>
    </message>
    <message id="browseTimelineName">
        <source></source>
        <translation>Backups</translation>
    </message>
    <message id="browseFilesName">
        <source></source>
        <translation>Files in the backup</translation>
    </message>
    <message id="browsePathLabel">
        <source></source>
        <translation>Folder in the backup</translation>
    </message>
    <message id="browseBackTitle">
        <source></source>
        <translation>Back</translation>
    </message>
    <message id="browseUpTitle">
        <source></source>
        <translation>Enclosing Folder</translation>
    </message>
    <message id="browseSearchPrompt">
        <source></source>
        <translation>Search for names</translation>
    </message>
    <message id="browseAllBackups">
        <source></source>
        <translation>In all backups</translation>
    </message>
    <message id="browseVersionsName">
        <source></source>
        <translation>Versions</translation>
    </message>
    <message id="browseVersionsHint">
        <source></source>
        <translation>Choose a file to see its versions.</translation>
    </message>
    <message id="browseNoVersions">
        <source></source>
        <translation>No backup holds it.</translation>
    </message>
    <message id="browsePreviewTitle">
        <source></source>
        <translation>Preview</translation>
    </message>
    <message id="browseRestoreTitle">
        <source></source>
        <translation>Restore</translation>
    </message>
    <message id="browseReading">
        <source></source>
        <translation>Reading …</translation>
    </message>
    <message id="browseEmptyFolder">
        <source></source>
        <translation>This folder is empty.</translation>
    </message>
    <message id="browseNothingFound">
        <source></source>
        <translation>Nothing of that name was found.</translation>
    </message>
    <message id="browseSearching">
        <source></source>
        <translation>Searching …</translation>
    </message>
    <message id="browseFilling">
        <source></source>
        <translation>Reading all of this backup for the search: %1</translation>
    </message>
    <message id="browseReadFailed">
        <source></source>
        <translation>This could not be read: %1</translation>
    </message>
    <message id="browseNoDiskMessage">
        <source></source>
        <translation>No backup disk or network place is set up. Choose one in the Time Machine settings, and your files are backed up to it.</translation>
    </message>
    <message id="browseNoBackupMessage">
        <source></source>
        <translation>There is no backup to look into. Connect the backup disk or the network, or wait for the first backup.</translation>
    </message>
    <message id="browseSettingsTitle">
        <source></source>
        <translation>Time Machine Settings</translation>
    </message>
    <message id="browsePreviewing">
        <source></source>
        <translation>Fetching “%1” …</translation>
    </message>
    <message id="browsePreviewFailed">
        <source></source>
        <translation>“%1” can’t be shown.</translation>
    </message>
    <message id="browseNoProgram">
        <source></source>
        <translation>No program could be opened for it.</translation>
    </message>
    <message id="browseRestoreHeading">
        <source></source>
        <translation>Restore “%1”</translation>
    </message>
    <message id="browseRestoreManyHeading">
        <source></source>
        <translation>Restore %1 items</translation>
    </message>
    <message id="browseFromBackup">
        <source></source>
        <translation>From the backup of %1</translation>
    </message>
    <message id="browseToItsPlace">
        <source></source>
        <translation>To where it was</translation>
    </message>
    <message id="browseToFolder">
        <source></source>
        <translation>To another folder</translation>
    </message>
    <message id="browseChooseFolderTitle">
        <source></source>
        <translation>Choose Folder</translation>
    </message>
    <message id="browseNothingOverwritten">
        <source></source>
        <translation>Nothing is overwritten without asking you.</translation>
    </message>
    <message id="browseKeepBothTitle">
        <source></source>
        <translation>Keep Both</translation>
    </message>
    <message id="browseReplaceTitle">
        <source></source>
        <translation>Replace</translation>
    </message>
    <message id="browseSkipTitle">
        <source></source>
        <translation>Skip</translation>
    </message>
    <message id="browseForAll">
        <source></source>
        <translation>Do the same for all others</translation>
    </message>
    <message id="browseStopTitle">
        <source></source>
        <translation>Stop</translation>
    </message>
    <message id="browseStopping">
        <source></source>
        <translation>Stopping …</translation>
    </message>
    <message id="browseLossesName">
        <source></source>
        <translation>What did not come back</translation>
    </message>
    <!-- The log of backups -->
    <message id="logWindowTitle">
        <source></source>
        <translation>Backup Log</translation>
    </message>
    <message id="logDateTitle">
        <source></source>
        <translation>Date</translation>
    </message>
    <message id="logOutcomeTitle">
        <source></source>
        <translation>Outcome</translation>
    </message>
    <message id="logCauseTitle">
        <source></source>
        <translation>Started by</translation>
    </message>
    <message id="logDiskTitle">
        <source></source>
        <translation>Disk</translation>
    </message>
    <message id="logSizeTitle">
        <source></source>
        <translation>Copied</translation>
    </message>
    <message id="logDurationTitle">
        <source></source>
        <translation>Duration</translation>
    </message>
    <message id="logBytesTitle">
        <source></source>
        <translation>Bytes</translation>
    </message>
    <message id="logBeganTitle">
        <source></source>
        <translation>Began</translation>
    </message>
    <message id="logEndedTitle">
        <source></source>
        <translation>Ended</translation>
    </message>
    <message id="logReasonTitle">
        <source></source>
        <translation>Reason</translation>
    </message>
    <message id="logRunningTitle">
        <source></source>
        <translation>Running</translation>
    </message>
    <message id="logCompletedTitle">
        <source></source>
        <translation>Completed</translation>
    </message>
    <message id="logFailedTitle">
        <source></source>
        <translation>Failed</translation>
    </message>
    <message id="logStoppedTitle">
        <source></source>
        <translation>Stopped</translation>
    </message>
    <message id="logUnseenTitle">
        <source></source>
        <translation>Not seen</translation>
    </message>
    <message id="logSkippedTitle">
        <source></source>
        <translation>Skipped</translation>
    </message>
    <message id="logMissedTitle">
        <source></source>
        <translation>Missed</translation>
    </message>
    <message id="logRefusedTitle">
        <source></source>
        <translation>Refused</translation>
    </message>
    <message id="logScheduleTitle">
        <source></source>
        <translation>Schedule</translation>
    </message>
    <message id="logRetryTitle">
        <source></source>
        <translation>Retry</translation>
    </message>
    <message id="logUserTitle">
        <source></source>
        <translation>You</translation>
    </message>
    <message id="logElsewhereTitle">
        <source></source>
        <translation>Outside Quillon</translation>
    </message>
    <message id="logAllTitle">
        <source></source>
        <translation>All</translation>
    </message>
    <message id="logNoBackupTitle">
        <source></source>
        <translation>No backup</translation>
    </message>
    <message id="logDaysMessage">
        <source></source>
        <translation>The last %1 days: %2 with a backup, %3 with trouble only</translation>
    </message>
    <message id="logCopyTitle">
        <source></source>
        <translation>Copy as Text</translation>
    </message>
    <message id="logSaveTitle">
        <source></source>
        <translation>Save as CSV</translation>
    </message>
    <message id="logSaveFailedTitle">
        <source></source>
        <translation>The log could not be saved.</translation>
    </message>
    <message id="logEmptyMessage">
        <source></source>
        <translation>Nothing has been logged yet.</translation>
    </message>
    <message id="logNothingFoundMessage">
        <source></source>
        <translation>No entry matches.</translation>
    </message>
    <message id="logUnreadableMessage">
        <source></source>
        <translation>The log could not be read. Backups are made all the same.</translation>
    </message>
    <message id="logNextMessage">
        <source></source>
        <translation>Planned next: %1</translation>
    </message>
    <message id="logAskedMessage">
        <source></source>
        <translation>The start was skipped by a command.</translation>
    </message>
    <message id="logOnBatteryMessage">
        <source></source>
        <translation>The computer ran on battery. The backup is made up for once it has power again, unless a later one comes first.</translation>
    </message>
    <message id="logPausedMessage">
        <source></source>
        <translation>The schedule was paused. Resume it in the menu to have backups made again.</translation>
    </message>
    <message id="logAsleepMessage">
        <source></source>
        <translation>The computer was asleep. Choose times when it is awake, or have missed backups retried.</translation>
    </message>
    <message id="logClockSetMessage">
        <source></source>
        <translation>The clock was set past this time, or the computer was too busy to keep it.</translation>
    </message>
    <message id="logBackupRanMessage">
        <source></source>
        <translation>Another backup was running already. It took the place of this one.</translation>
    </message>
    <message id="logOvertakenMessage">
        <source></source>
        <translation>Another backup was started in the same moment. It took the place of this one.</translation>
    </message>
    <message id="logStatusUnreadableMessage">
        <source></source>
        <translation>Time Machine did not tell what it was doing. If this happens again, restart the computer.</translation>
    </message>
    <message id="logSettingsChangedMessage">
        <source></source>
        <translation>The schedule was paused or switched at that very moment.</translation>
    </message>
    <message id="logIncompleteMessage">
        <source></source>
        <translation>The backup ended before it was complete. Check that the disk is connected and has room.</translation>
    </message>
    <message id="logStoppedElsewhereMessage">
        <source></source>
        <translation>The backup was stopped outside Quillon.</translation>
    </message>
    <message id="logNeverReportedMessage">
        <source></source>
        <translation>Time Machine accepted the start, but no backup was seen. It may have been too short to be noticed.</translation>
    </message>
    <message id="logNotFollowedMessage">
        <source></source>
        <translation>Quillon ended before the backup did. Browse the backups to see whether it was completed.</translation>
    </message>
</context>
</TS>
