<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<!-- Code adds the colon or the ellipsis that a title stands before; texts have none, but for scheduleTitle. -->
<context>
    <name></name>
    <!-- Days -->
    <message id="todayTitle">
        <source></source>
        <translation>今天</translation>
    </message>
    <message id="tomorrowTitle">
        <source></source>
        <translation>明天</translation>
    </message>
    <message id="yesterdayTitle">
        <source></source>
        <translation>昨天</translation>
    </message>
    <!-- What Time Machine is doing -->
    <message id="notAvailableAbbreviation">
        <source></source>
        <translation>无</translation>
    </message>
    <message id="tmPhaseDefault">
        <source></source>
        <translation>未运行</translation>
    </message>
    <message id="tmPhaseUnknown">
        <source></source>
        <translation>未知</translation>
    </message>
    <message id="tmPhaseStarting">
        <source></source>
        <translation>正在启动</translation>
    </message>
    <message id="tmPhaseLookingForDisk">
        <source></source>
        <translation>正在查找备份磁盘</translation>
    </message>
    <message id="tmPhaseConnectingToDisk">
        <source></source>
        <translation>正在连接备份磁盘</translation>
    </message>
    <message id="tmPhasePreparingBackup">
        <source></source>
        <translation>正在准备备份</translation>
    </message>
    <message id="tmPhaseCopying">
        <source></source>
        <translation>正在拷贝</translation>
    </message>
    <message id="tmPhaseCleaningUp">
        <source></source>
        <translation>正在清理</translation>
    </message>
    <message id="tmPhaseHealthCheck">
        <source></source>
        <translation>正在检查备份</translation>
    </message>
    <message id="tmPhaseFinishing">
        <source></source>
        <translation>正在完成</translation>
    </message>
    <!-- Alerts -->
    <message id="AlertButtonClose">
        <source></source>
        <translation>关闭</translation>
    </message>
    <message id="AlertButtonProvidePermission">
        <source></source>
        <translation>授予权限</translation>
    </message>
    <message id="permissionRequiredAlertTitle">
        <source></source>
        <translation>需要权限</translation>
    </message>
    <message id="timeMachinePermissionRequiredAlertMessage">
        <source></source>
        <translation>若要打开“时间机器”偏好设置，请点按“%1”并允许 %2 控制“系统偏好设置”，然后再试一次。</translation>
    </message>
    <!-- Menu bar title -->
    <message id="nextBackupShortTitle">
        <source></source>
        <translation>下次</translation>
    </message>
    <message id="retryBackupShortTitle">
        <source></source>
        <translation>重试</translation>
    </message>
    <message id="statusStarting">
        <source></source>
        <translation>正在启动</translation>
    </message>
    <message id="statusRunning">
        <source></source>
        <translation>正在运行</translation>
    </message>
    <message id="statusStopping">
        <source></source>
        <translation>正在停止</translation>
    </message>
    <!-- What the icon stands for -->
    <message id="iconRunningDescription">
        <source></source>
        <translation>正在备份。</translation>
    </message>
    <message id="iconFailedDescription">
        <source></source>
        <translation>最近一次备份失败。</translation>
    </message>
    <message id="iconMissedDescription">
        <source></source>
        <translation>错过了一次计划的备份。</translation>
    </message>
    <message id="iconUpdateDescription">
        <source></source>
        <translation>有可用更新。</translation>
    </message>
    <!-- Why sleep waits for a moment -->
    <message id="sleepWaitsMessage">
        <source></source>
        <translation>正在停止备份计划。</translation>
    </message>
    <!-- Menu -->
    <message id="latestBackupTitle">
        <source></source>
        <translation>最近一次备份</translation>
    </message>
    <message id="phaseTitle">
        <source></source>
        <translation>阶段</translation>
    </message>
    <message id="copiedWord">
        <source></source>
        <translation>已拷贝</translation>
    </message>
    <message id="backupDiskTitle">
        <source></source>
        <translation>备份磁盘</translation>
    </message>
    <message id="nextBackupTitle">
        <source></source>
        <translation>下次备份</translation>
    </message>
    <message id="nextBackupDisabled">
        <source></source>
        <translation>已停用</translation>
    </message>
    <message id="nextBackupNotAvailable">
        <source></source>
        <translation>没有计划的备份</translation>
    </message>
    <message id="retryAttemptTitle">
        <source></source>
        <translation>重试</translation>
    </message>
    <message id="remainingTimeTitle">
        <source></source>
        <translation>剩余时间</translation>
    </message>
    <message id="calculatingTitle">
        <source></source>
        <translation>正在计算</translation>
    </message>
    <message id="backupNowTitle">
        <source></source>
        <translation>立即备份</translation>
    </message>
    <message id="skipThisBackupTitle">
        <source></source>
        <translation>跳过此备份</translation>
    </message>
    <message id="skipThisBackupTitleVentura">
        <source></source>
        <translation>跳过此备份</translation>
    </message>
    <message id="skipRetryAttemptTitle">
        <source></source>
        <translation>跳过重试</translation>
    </message>
    <message id="enterTimeMachineTitle">
        <source></source>
        <translation>进入“时间机器”</translation>
    </message>
    <message id="enterTimeMachineTitleVentura">
        <source></source>
        <translation>浏览“时间机器”备份</translation>
    </message>
    <message id="openSystemPreferencesTitle">
        <source></source>
        <translation>打开“时间机器”偏好设置</translation>
    </message>
    <message id="openSystemPreferencesTitleVentura">
        <source></source>
        <translation>打开“时间机器”设置</translation>
    </message>
    <message id="updateAvailableMenuTitle">
        <source></source>
        <translation>有可用更新</translation>
    </message>
    <message id="preferencesMenuTitle">
        <source></source>
        <translation>设置</translation>
    </message>
    <message id="aboutMenuTitle">
        <source></source>
        <translation>关于 Quillon</translation>
    </message>
    <message id="quitApplicationTitle">
        <source></source>
        <translation>退出 %1</translation>
    </message>
    <!-- Pause -->
    <message id="pauseScheduleForTitle">
        <source></source>
        <translation>暂停计划</translation>
    </message>
    <message id="pauseScheduleUntilTitle">
        <source></source>
        <translation>计划暂停至</translation>
    </message>
    <message id="resumeScheduleTitle">
        <source></source>
        <translation>恢复计划</translation>
    </message>
    <message id="oneHourTitle">
        <source></source>
        <translation>1 小时</translation>
    </message>
    <message id="twoHoursTitle">
        <source></source>
        <translation>2 小时</translation>
    </message>
    <message id="fourHoursTitle">
        <source></source>
        <translation>4 小时</translation>
    </message>
    <message id="eightHoursTitle">
        <source></source>
        <translation>8 小时</translation>
    </message>
    <message id="twelveHoursTitle">
        <source></source>
        <translation>12 小时</translation>
    </message>
    <message id="oneDayTitle">
        <source></source>
        <translation>1 天</translation>
    </message>
    <message id="twoDaysTitle">
        <source></source>
        <translation>2 天</translation>
    </message>
    <message id="threeDaysTitle">
        <source></source>
        <translation>3 天</translation>
    </message>
    <message id="fourDaysTitle">
        <source></source>
        <translation>4 天</translation>
    </message>
    <message id="fiveDaysTitle">
        <source></source>
        <translation>5 天</translation>
    </message>
    <message id="sixDaysTitle">
        <source></source>
        <translation>6 天</translation>
    </message>
    <message id="oneWeekTitle">
        <source></source>
        <translation>1 周</translation>
    </message>
    <message id="twoWeeksTitle">
        <source></source>
        <translation>2 周</translation>
    </message>
    <message id="threeWeeksTitle">
        <source></source>
        <translation>3 周</translation>
    </message>
    <message id="fourWeeksTitle">
        <source></source>
        <translation>4 周</translation>
    </message>
    <!-- The menu as it opens -->
    <message id="letMacOsDecideBackupDiskTitle">
        <source></source>
        <translation>让“时间机器”选取</translation>
    </message>
    <message id="mostRecentTitle">
        <source></source>
        <translation>最近使用</translation>
    </message>
    <message id="latestBackupOfEachDestinationTitle">
        <source></source>
        <translation>每个磁盘的最近一次备份</translation>
    </message>
    <message id="allBackupInfoHelpMessage">
        <source></source>
        <translation>此列表显示 Quillon 在每个备份磁盘上看到的最近一次完成的备份。没有日期的磁盘自 Quillon 安装以来尚未完成过备份。</translation>
    </message>
    <message id="helpButtonTitle">
        <source></source>
        <translation>帮助</translation>
    </message>
    <!-- What the commands tell -->
    <message id="AlertTitleWarning">
        <source></source>
        <translation>警告</translation>
    </message>
    <message id="failedToStartBackupMessage">
        <source></source>
        <translation>未能开始备份。“时间机器”返回了错误代码 %1。</translation>
    </message>
    <message id="startDiskAwayMessage">
        <source></source>
        <translation>备份磁盘未连接，或无法连接到备份服务器。</translation>
    </message>
    <message id="startResticMissingMessage">
        <source></source>
        <translation>未安装用于备份的程序 restic。</translation>
    </message>
    <message id="appUpdateAvailableAlertTitle">
        <source></source>
        <translation>Quillon %1 可供下载</translation>
    </message>
    <message id="appUpdateAvailableAlertMessage">
        <source></source>
        <translation>你的版本是 %1。浏览器将打开下载页面，Quillon 随后将退出以便替换。</translation>
    </message>
    <message id="AlertButtonGetUpdate">
        <source></source>
        <translation>获取更新</translation>
    </message>
    <message id="AlertButtonCancel">
        <source></source>
        <translation>取消</translation>
    </message>
    <!-- The user’s own programs -->
    <message id="hookStoppedBackupMessage">
        <source></source>
        <translation>程序“before”阻止了备份开始。</translation>
    </message>
    <message id="hookNotRunMessage">
        <source></source>
        <translation>未运行“%1”。它必须是只有你能更改的可执行文件，并位于只有你能更改的文件夹中。</translation>
    </message>
    <message id="hookTooLongMessage">
        <source></source>
        <translation>“%1”在十分钟后被终止。</translation>
    </message>
    <message id="hookStatusMessage">
        <source></source>
        <translation>“%1”已结束，退出状态为 %2。</translation>
    </message>
    <!-- Notifications of the desktop -->
    <message id="backupFailedTitle">
        <source></source>
        <translation>备份失败</translation>
    </message>
    <message id="backupFailedMessage">
        <source></source>
        <translation>最近一次备份未完成就已结束。</translation>
    </message>
    <message id="noBackupForDaysTitle">
        <source></source>
        <translation>近期没有备份</translation>
    </message>
    <message id="noBackupForDaysMessage">
        <source></source>
        <translation>最近一次备份完成于 %1。</translation>
    </message>
    <message id="noBackupYetMessage">
        <source></source>
        <translation>尚未完成任何备份。</translation>
    </message>
    <message id="startWithoutRunTitle">
        <source></source>
        <translation>备份未开始</translation>
    </message>
    <message id="startWithoutRunMessage">
        <source></source>
        <translation>“时间机器”已接受开始备份的请求，但没有备份正在进行。</translation>
    </message>
    <message id="noProgressTitle">
        <source></source>
        <translation>备份没有进展</translation>
    </message>
    <message id="noProgressMessage">
        <source></source>
        <translation>正在进行的备份已有半小时没有进展。</translation>
    </message>
    <message id="damageFoundTitle">
        <source></source>
        <translation>备份已损坏</translation>
    </message>
    <message id="damageFoundMessage">
        <source></source>
        <translation>“时间机器”在你的备份中发现损坏。部分文件可能无法恢复。</translation>
    </message>
    <message id="startAheadTitle">
        <source></source>
        <translation>备份即将开始</translation>
    </message>
    <message id="startAheadMessage">
        <source></source>
        <translation>下次备份将于 %1 开始。</translation>
    </message>
    <message id="startAheadSkipTitle">
        <source></source>
        <translation>跳过</translation>
    </message>
    <message id="startAheadPostponeTitle">
        <source></source>
        <translation>1 小时后</translation>
    </message>
    <!-- Where there is no Time Machine application -->
    <!-- The schedule in the settings panel -->
    <message id="settingsGroupSchedule">
        <source></source>
        <translation>计划备份</translation>
    </message>
    <message id="settingsEnableScheduledBackupsVia">
        <source></source>
        <translation>按以下方式计划备份</translation>
    </message>
    <message id="settingsOptionCalendarInterval">
        <source></source>
        <translation>日期和时间</translation>
    </message>
    <message id="settingsOptionInterval">
        <source></source>
        <translation>间隔</translation>
    </message>
    <message id="scheduleTitle">
        <source></source>
        <translation>计划:</translation>
    </message>
    <message id="warningButtonTitle">
        <source></source>
        <translation>关于自动备份的警告</translation>
    </message>
    <message id="setupDisksButtonTitle">
        <source></source>
        <translation>关于备份磁盘</translation>
    </message>
    <message id="addRuleTitle">
        <source></source>
        <translation>添加规则</translation>
    </message>
    <message id="deleteRuleTitle">
        <source></source>
        <translation>删除规则</translation>
    </message>
    <!-- A rule as one sentence: back up, day, at, time of day -->
    <message id="backupTitle">
        <source></source>
        <translation>备份时间</translation>
    </message>
    <message id="everyDayTitle">
        <source></source>
        <translation>每天</translation>
    </message>
    <message id="weekdaysTitle">
        <source></source>
        <translation>周一至周五</translation>
    </message>
    <message id="mondayTitle">
        <source></source>
        <translation>每周一</translation>
    </message>
    <message id="tuesdayTitle">
        <source></source>
        <translation>每周二</translation>
    </message>
    <message id="wednesdayTitle">
        <source></source>
        <translation>每周三</translation>
    </message>
    <message id="thursdayTitle">
        <source></source>
        <translation>每周四</translation>
    </message>
    <message id="fridayTitle">
        <source></source>
        <translation>每周五</translation>
    </message>
    <message id="saturdayTitle">
        <source></source>
        <translation>每周六</translation>
    </message>
    <message id="sundayTitle">
        <source></source>
        <translation>每周日</translation>
    </message>
    <message id="atTimeTitle">
        <source></source>
        <translation>的</translation>
    </message>
    <!-- The interval page; the unit stands behind any number from 1 on -->
    <message id="settingsIntervalEvery">
        <source></source>
        <translation>备份间隔</translation>
    </message>
    <message id="settingsIntervalHours">
        <source></source>
        <translation>小时</translation>
    </message>
    <message id="settingsIntervalHour">
        <source></source>
        <translation>小时</translation>
    </message>
    <message id="settingsIntervalNotYetUsed">
        <source></source>
        <translation>间隔尚未启用：备份会在规则指定的日期和时间开始。</translation>
    </message>
    <!-- The other groups of the settings panel -->
    <message id="settingsGroupRetry">
        <source></source>
        <translation>重试</translation>
    </message>
    <message id="settingsEnableAfterMissedBackup">
        <source></source>
        <translation>错过备份后重试</translation>
    </message>
    <message id="settingsEnableAfterFailedBackup">
        <source></source>
        <translation>备份失败后重试</translation>
    </message>
    <message id="settingsGroupMenuBar">
        <source></source>
        <translation>菜单栏</translation>
    </message>
    <message id="settingsShowDetailedTimeInMenuBar">
        <source></source>
        <translation>显示详细时间</translation>
    </message>
    <message id="settingsShowDetailedTimeInMenuBarDetails">
        <source></source>
        <translation>例如“1小时30分钟”而非“1小时”。</translation>
    </message>
    <message id="settingsShowMenuBarIconOnly">
        <source></source>
        <translation>仅显示图标</translation>
    </message>
    <message id="settingsDisableIconColors">
        <source></source>
        <translation>需要注意时为图标着色</translation>
    </message>
    <message id="settingsGroupDisks">
        <source></source>
        <translation>磁盘和登录</translation>
    </message>
    <message id="settingsRotateBackupDisks">
        <source></source>
        <translation>轮流使用备份磁盘</translation>
    </message>
    <message id="settingsStartOnSystemStart">
        <source></source>
        <translation>登录时打开 Quillon</translation>
    </message>
    <message id="loginItemRefusedMessage">
        <source></source>
        <translation>系统未接受更改：登录时打开的项目保持不变。</translation>
    </message>
    <!-- The second page of the settings panel; a number stands behind what is not a sentence -->
    <message id="settingsMoreTitle">
        <source></source>
        <translation>更多</translation>
    </message>
    <message id="settingsBackTitle">
        <source></source>
        <translation>返回</translation>
    </message>
    <message id="settingsGroupPower">
        <source></source>
        <translation>电源</translation>
    </message>
    <message id="settingsOnlyOnMainsPower">
        <source></source>
        <translation>仅在接通电源时开始备份</translation>
    </message>
    <message id="settingsChargeThatSuffices">
        <source></source>
        <translation>或电池电量高于</translation>
    </message>
    <message id="settingsPerCent">
        <source></source>
        <translation>%1%</translation>
    </message>
    <message id="settingsStayAwake">
        <source></source>
        <translation>Quillon 开始的备份进行时防止睡眠</translation>
    </message>
    <message id="settingsStartWhenDiskAppears">
        <source></source>
        <translation>备份磁盘出现时重试</translation>
    </message>
    <message id="settingsMinutesAfterWake">
        <source></source>
        <translation>唤醒后等待</translation>
    </message>
    <message id="settingsMinutes">
        <source></source>
        <translation>%1 分钟</translation>
    </message>
    <message id="settingsGroupNotifications">
        <source></source>
        <translation>通知</translation>
    </message>
    <message id="settingsDaysWithoutBackup">
        <source></source>
        <translation>未完成任何备份已达</translation>
    </message>
    <message id="settingsDays">
        <source></source>
        <translation>%1 天</translation>
    </message>
    <message id="settingsDay">
        <source></source>
        <translation>%1 天</translation>
    </message>
    <message id="settingsTellBeforeStart">
        <source></source>
        <translation>备份开始前一分钟</translation>
    </message>
    <!-- Alerts of the settings panel -->
    <message id="maximumRulesReachedTitle">
        <source></source>
        <translation>无法添加更多规则</translation>
    </message>
    <message id="maximumRulesReachedMessage">
        <source></source>
        <translation>一个计划最多有 %1 条规则。请改为更改或删除其中一条。</translation>
    </message>
    <message id="confirmDeleteRuleTitle">
        <source></source>
        <translation>要删除此规则吗？</translation>
    </message>
    <message id="confirmDeleteRuleMessage">
        <source></source>
        <translation>此规则将被移除，Quillon 不再于其时间开始备份。</translation>
    </message>
    <message id="retryAfterMissedBackupTitle">
        <source></source>
        <translation>错过备份后重试</translation>
    </message>
    <message id="retryAfterMissedBackupMessage">
        <source></source>
        <translation>如果电脑在计划的备份时间处于睡眠状态，该备份会在电脑唤醒约五分钟后开始。计划暂停期间不会重试。</translation>
    </message>
    <message id="retryAfterFailedBackupTitle">
        <source></source>
        <translation>备份失败后重试</translation>
    </message>
    <message id="retryAfterFailedBackupMessage">
        <source></source>
        <translation>如果备份未完成就结束，Quillon 会在约五分钟后重试。你自行停止的备份不会重试；计划暂停期间也不会重试。</translation>
    </message>
    <message id="AlertButtonOk">
        <source></source>
        <translation>好</translation>
    </message>
    <message id="AlertButtonDelete">
        <source></source>
        <translation>删除</translation>
    </message>
    <!-- The first launch; the instruction is also the text of the settings panel's warning -->
    <message id="firstStartInfoAlertTitle">
        <source></source>
        <translation>欢迎使用 %1</translation>
    </message>
    <message id="firstStartInfoAlertMessage">
        <source></source>
        <translation>%2 位于菜单栏中，会在你于设置中选取的时间开始备份。

%1</translation>
    </message>
    <message id="disableTmInstruction">
        <source></source>
        <translation>如果“时间机器”也会自动备份，请将其关闭，以便备份只在你计划的时间开始。在 Mac 上，打开“系统偏好设置”，点按“时间机器”，然后关闭自动备份。</translation>
    </message>
    <message id="disableTmInstructionVentura">
        <source></source>
        <translation>如果“时间机器”也会自动备份，请将其关闭，以便备份只在你计划的时间开始。在 Mac 上，打开“系统设置”，选取“通用”&gt;“时间机器”&gt;“选项”，然后将备份频率设为“手动”。</translation>
    </message>
    <message id="setupDisksMessage">
        <source></source>
        <translation>备份储存在：
%1

可在“时间机器”设置中添加和移除备份磁盘。</translation>
    </message>
    <message id="setupNoDiskMessage">
        <source></source>
        <translation>尚未设置备份磁盘，因此无法开始备份。请在“时间机器”设置中添加一个。</translation>
    </message>
    <message id="setupUnknownDisksMessage">
        <source></source>
        <translation>备份磁盘在“时间机器”设置中选取。</translation>
    </message>
    <message id="AlertButtonHelp">
        <source></source>
        <translation>帮助</translation>
    </message>
    <!-- The about panel -->
    <message id="versionTitle">
        <source></source>
        <translation>版本</translation>
    </message>
    <message id="copyrightTitle">
        <source></source>
        <translation>© %1 Quillon 作者</translation>
    </message>
    <message id="supportDetailsMessage">
        <source></source>
        <translation>有疑问、想法或遇到问题？请写信给我们。</translation>
    </message>
    <message id="websiteButtonTitle">
        <source></source>
        <translation>网站</translation>
    </message>
    <message id="creditsTitle">
        <source></source>
        <translation>Quillon 基于 Qt、ICU 和 libplist 构建。在 Linux 上，备份由 restic 完成。</translation>
    </message>
    <message id="appIconCreditsTitle">
        <source></source>
        <translation>图标来自 %1</translation>
    </message>
    <message id="privacyPolicyDetailsMessage">
        <source></source>
        <translation>Quillon 不会发送任何关于你或你的文件的信息。</translation>
    </message>
    <message id="termsButtonTitle">
        <source></source>
        <translation>使用条款</translation>
    </message>
    <message id="privacyPolicyAlertTitle">
        <source></source>
        <translation>隐私政策</translation>
    </message>
    <message id="privacyPolicyAlertMessage">
        <source></source>
        <translation>%1 将设置和备份记录保存在此电脑上。为了获知新版本，%1 会查询开发者的服务；该请求标识的是 %1，而不是你。%1 的完整隐私政策请见网站。</translation>
    </message>
    <message id="AlertButtonReadMore">
        <source></source>
        <translation>阅读更多</translation>
    </message>
    <message id="AlertMessageMailNotConfigured">
        <source></source>
        <translation>未能打开邮件 App。请写信至 %1。</translation>
    </message>
    <!-- Window of the Time Machine settings on Linux -->
    <message id="disksWindowTitle">
        <source></source>
        <translation>时间机器</translation>
    </message>
    <message id="disksDisksTitle">
        <source></source>
        <translation>备份磁盘</translation>
    </message>
    <message id="disksSourcesTitle">
        <source></source>
        <translation>文件夹</translation>
    </message>
    <message id="disksExclusionsTitle">
        <source></source>
        <translation>已排除</translation>
    </message>
    <message id="disksDisksExplanation">
        <source></source>
        <translation>备份储存在这些磁盘和网络位置上。备份经过加密，磁盘上的其他内容保持不变。密钥保存在你的个人文件夹中。</translation>
    </message>
    <message id="disksSourcesExplanation">
        <source></source>
        <translation>这些文件夹及其中的所有内容都会备份。</translation>
    </message>
    <message id="disksExclusionsExplanation">
        <source></source>
        <translation>这些文件和文件夹不会包含在任何备份中。</translation>
    </message>
    <message id="disksNoDisks">
        <source></source>
        <translation>还没有备份磁盘。若要开始，请添加磁盘、磁盘上的文件夹或网络位置。</translation>
    </message>
    <message id="disksNoExclusions">
        <source></source>
        <translation>没有排除任何内容。请添加不需要备份的内容，例如可以重新下载的文件。</translation>
    </message>
    <message id="disksReading">
        <source></source>
        <translation>正在读取设置…</translation>
    </message>
    <message id="disksConnected">
        <source></source>
        <translation>已连接</translation>
    </message>
    <message id="disksNotConnected">
        <source></source>
        <translation>未连接</translation>
    </message>
    <message id="disksLastBackup">
        <source></source>
        <translation>最近一次备份：%1</translation>
    </message>
    <message id="disksNoBackupYet">
        <source></source>
        <translation>尚无备份</translation>
    </message>
    <message id="disksAddDiskTitle">
        <source></source>
        <translation>添加磁盘</translation>
    </message>
    <message id="disksAddFolderTitle">
        <source></source>
        <translation>添加文件夹</translation>
    </message>
    <message id="disksAddFileTitle">
        <source></source>
        <translation>添加文件</translation>
    </message>
    <message id="disksRemoveTitle">
        <source></source>
        <translation>移除</translation>
    </message>
    <message id="disksCancelTitle">
        <source></source>
        <translation>取消</translation>
    </message>
    <message id="disksOkTitle">
        <source></source>
        <translation>好</translation>
    </message>
    <message id="disksTryAgainTitle">
        <source></source>
        <translation>重试</translation>
    </message>
    <message id="disksFree">
        <source></source>
        <translation>%1（%2 可用）</translation>
    </message>
    <message id="disksNoOtherDisk">
        <source></source>
        <translation>没有连接其他磁盘</translation>
    </message>
    <message id="disksAddFailed">
        <source></source>
        <translation>未能添加“%1”。</translation>
    </message>
    <message id="disksRemoveFailed">
        <source></source>
        <translation>未能移除“%1”。</translation>
    </message>
    <message id="disksRemoveAlertMessage">
        <source></source>
        <translation>要停止备份到“%1”吗？</translation>
    </message>
    <message id="disksRemoveAlertInformative">
        <source></source>
        <translation>其中的备份及其密钥都会保留。再次添加同一文件夹即可继续使用。</translation>
    </message>
    <message id="disksHomeAlertMessage">
        <source></source>
        <translation>要改为备份整个个人文件夹吗？</translation>
    </message>
    <message id="disksHomeAlertInformative">
        <source></source>
        <translation>“%1”是列表中唯一的文件夹。列表为空时，将备份个人文件夹中的所有内容。</translation>
    </message>
    <message id="disksReadFailed">
        <source></source>
        <translation>未能读取设置：%1</translation>
    </message>
    <message id="disksToolHangs">
        <source></source>
        <translation>tmutil 没有响应。</translation>
    </message>
    <message id="disksToolMissing">
        <source></source>
        <translation>无法启动工具“%1”。</translation>
    </message>
    <message id="disksToolFailed">
        <source></source>
        <translation>tmutil 已退出，退出状态为 %1。</translation>
    </message>
    <message id="disksToolUnreadable">
        <source></source>
        <translation>无法理解 tmutil 的回答。</translation>
    </message>
    <message id="reasonWithDetail">
        <source></source>
        <translation>%1（tmutil：%2）</translation>
    </message>
    <message id="reasonMissing">
        <source></source>
        <translation>备份磁盘未连接，或无法连接到网络位置。</translation>
    </message>
    <message id="reasonNoSpace">
        <source></source>
        <translation>没有可用空间。</translation>
    </message>
    <message id="reasonCannotWrite">
        <source></source>
        <translation>那里无法写入。</translation>
    </message>
    <message id="reasonExists">
        <source></source>
        <translation>已有同名项目，将予以保留。</translation>
    </message>
    <message id="reasonNotInBackups">
        <source></source>
        <translation>备份中没有此项目。</translation>
    </message>
    <message id="reasonDamaged">
        <source></source>
        <translation>它在备份中已损坏。</translation>
    </message>
    <message id="reasonNoAttributes">
        <source></source>
        <translation>内容完整，但无法恢复所有者、权限或其他属性。</translation>
    </message>
    <message id="reasonConnectionLost">
        <source></source>
        <translation>与服务器的连接已中断。</translation>
    </message>
    <message id="reasonAccessDenied">
        <source></source>
        <translation>服务器拒绝了用户、密码或密钥。</translation>
    </message>
    <message id="reasonUntrusted">
        <source></source>
        <translation>无法确定这是正确的服务器。</translation>
    </message>
    <message id="reasonServerFailed">
        <source></source>
        <translation>服务器报告了自身的错误，可能已满。</translation>
    </message>
    <message id="reasonWrongKey">
        <source></source>
        <translation>备份的密钥缺失或不匹配。</translation>
    </message>
    <message id="reasonLocked">
        <source></source>
        <translation>备份正在使用中。请稍后再试。</translation>
    </message>
    <message id="reasonResticMissing">
        <source></source>
        <translation>未安装 restic。</translation>
    </message>
    <message id="reasonNoRepository">
        <source></source>
        <translation>备份缺失或已损坏。</translation>
    </message>
    <message id="reasonNoInput">
        <source></source>
        <translation>文件或文件夹不存在。</translation>
    </message>
    <message id="reasonConfiguration">
        <source></source>
        <translation>备份的设置已损坏。</translation>
    </message>
    <message id="reasonNoWorkSpace">
        <source></source>
        <translation>个人文件夹中没有空间存放临时文件。</translation>
    </message>
    <message id="disksRoom">
        <source></source>
        <translation>%1可用，共%2</translation>
    </message>
    <message id="disksTaken">
        <source></source>
        <translation>备份占用%1</translation>
    </message>
    <message id="disksProblem">
        <source></source>
        <translation>上次的问题（%1）：%2</translation>
    </message>
    <message id="disksKeyNotKept">
        <source></source>
        <translation>尚未保存恢复密钥</translation>
    </message>
    <message id="disksSourceOnDisk">
        <source></source>
        <translation>文件夹“%1”也在此磁盘上：磁盘损坏时，两者都会丢失</translation>
    </message>
    <message id="disksKeyBar">
        <source></source>
        <translation>如果这台电脑丢失，没有恢复密钥就无法读取“%1”上的备份。</translation>
    </message>
    <message id="disksShowKeyTitle">
        <source></source>
        <translation>显示恢复密钥</translation>
    </message>
    <message id="disksKeyHeading">
        <source></source>
        <translation>“%1”的恢复密钥</translation>
    </message>
    <message id="disksKeyExplanation">
        <source></source>
        <translation>如果这台电脑丢失，凭此密钥和磁盘可以取回备份。请抄下密钥或将其存储为页面，并与这台电脑和磁盘分开保管。同时持有两者的人可以读取备份。</translation>
    </message>
    <message id="disksKeyOnce">
        <source></source>
        <translation>这是新密钥，仅在此时显示。你保管好之后，之前显示的密钥将不再有效。</translation>
    </message>
    <message id="disksSavePageTitle">
        <source></source>
        <translation>存储为页面</translation>
    </message>
    <message id="disksLaterTitle">
        <source></source>
        <translation>稍后</translation>
    </message>
    <message id="disksKeptTitle">
        <source></source>
        <translation>我已保管好</translation>
    </message>
    <message id="disksKeyFailed">
        <source></source>
        <translation>无法为“%1”创建恢复密钥。</translation>
    </message>
    <message id="disksKeepFailed">
        <source></source>
        <translation>无法记录你已保管“%1”的恢复密钥。</translation>
    </message>
    <message id="disksPageFailed">
        <source></source>
        <translation>无法存储页面。</translation>
    </message>
    <message id="disksPagePdf">
        <source></source>
        <translation>PDF文稿</translation>
    </message>
    <message id="disksPageText">
        <source></source>
        <translation>文本文件</translation>
    </message>
    <message id="disksPageOnDiskMessage">
        <source></source>
        <translation>要将页面存储到备份磁盘本身吗？</translation>
    </message>
    <message id="disksPageOnDiskInformative">
        <source></source>
        <translation>拿到磁盘的人也会得到密钥；如果磁盘损坏，页面也会随之丢失。</translation>
    </message>
    <message id="disksSaveTitle">
        <source></source>
        <translation>存储</translation>
    </message>
    <message id="disksPageMade">
        <source></source>
        <translation>创建于%1。请将此页与电脑和磁盘分开保管。同时持有此页和磁盘的人可以读取备份。</translation>
    </message>
    <message id="disksPageSteps">
        <source></source>
        <translation>如果电脑丢失，请在新电脑上操作</translation>
    </message>
    <message id="disksPageConnect">
        <source></source>
        <translation>安装Quillon并连接磁盘。</translation>
    </message>
    <message id="disksPageAdopt">
        <source></source>
        <translation>%1 会询问恢复密钥并接管磁盘。</translation>
    </message>
    <message id="disksPageList">
        <source></source>
        <translation>%1 会列出备份。</translation>
    </message>
    <message id="disksPageRestore">
        <source></source>
        <translation>%1 会取回一个文件夹。</translation>
    </message>
    <message id="disksPageContinue">
        <source></source>
        <translation>%1 会继续备份。</translation>
    </message>
    <message id="disksAddTitle">
        <source></source>
        <translation>添加</translation>
    </message>
    <message id="disksAddNameTitle">
        <source></source>
        <translation>添加名称模式</translation>
    </message>
    <message id="disksAddSizeTitle">
        <source></source>
        <translation>添加大小限制</translation>
    </message>
    <message id="disksByName">
        <source></source>
        <translation>任何位置使用此名称的文件和文件夹</translation>
    </message>
    <message id="disksBySize">
        <source></source>
        <translation>所有文件夹中</translation>
    </message>
    <message id="disksLargerThan">
        <source></source>
        <translation>大于%1的文件</translation>
    </message>
    <message id="disksNamePrompt">
        <source></source>
        <translation>排除使用以下名称的文件和文件夹</translation>
    </message>
    <message id="disksNameHint">
        <source></source>
        <translation>* 代表任意多个字符，? 代表一个字符。</translation>
    </message>
    <message id="disksSizePrompt">
        <source></source>
        <translation>排除大于以下大小的文件</translation>
    </message>
    <message id="disksCounting">
        <source></source>
        <translation>正在统计将排除的文件…</translation>
    </message>
    <message id="disksPreview">
        <source></source>
        <translation>现在将排除的文件：%1个（%2）</translation>
    </message>
    <message id="disksPreviewNothing">
        <source></source>
        <translation>现在不会排除任何文件。</translation>
    </message>
    <message id="disksLeaveOutTitle">
        <source></source>
        <translation>排除</translation>
    </message>
    <message id="disksListing">
        <source></source>
        <translation>正在查找磁盘…</translation>
    </message>
    <message id="disksListFailed">
        <source></source>
        <translation>无法列出磁盘</translation>
    </message>
    <message id="disksEditTitle">
        <source></source>
        <translation>编辑</translation>
    </message>
    <message id="disksAddPlaceTitle">
        <source></source>
        <translation>添加网络位置</translation>
    </message>
    <message id="disksEditPlaceTitle">
        <source></source>
        <translation>访问“%1”</translation>
    </message>
    <message id="disksPlaceKind">
        <source></source>
        <translation>类型</translation>
    </message>
    <message id="disksPlaceSftp">
        <source></source>
        <translation>SFTP（SSH）</translation>
    </message>
    <message id="disksPlaceRest">
        <source></source>
        <translation>restic REST服务器</translation>
    </message>
    <message id="disksPlaceS3">
        <source></source>
        <translation>兼容S3的存储</translation>
    </message>
    <message id="disksPlaceAddress">
        <source></source>
        <translation>地址</translation>
    </message>
    <message id="disksPlaceServer">
        <source></source>
        <translation>服务器</translation>
    </message>
    <message id="disksPlacePort">
        <source></source>
        <translation>端口</translation>
    </message>
    <message id="disksPlaceFolder">
        <source></source>
        <translation>文件夹</translation>
    </message>
    <message id="disksPlacePath">
        <source></source>
        <translation>路径</translation>
    </message>
    <message id="disksPlaceBucket">
        <source></source>
        <translation>存储桶</translation>
    </message>
    <message id="disksPlaceUser">
        <source></source>
        <translation>用户名</translation>
    </message>
    <message id="disksPlaceKeyFile">
        <source></source>
        <translation>密钥文件</translation>
    </message>
    <message id="disksPlacePassword">
        <source></source>
        <translation>密码</translation>
    </message>
    <message id="disksPlaceAccessKey">
        <source></source>
        <translation>访问密钥</translation>
    </message>
    <message id="disksPlaceSecretKey">
        <source></source>
        <translation>私有密钥</translation>
    </message>
    <message id="disksPlaceRegion">
        <source></source>
        <translation>地区</translation>
    </message>
    <message id="disksPlaceSecure">
        <source></source>
        <translation>加密连接（HTTPS）</translation>
    </message>
    <message id="disksPlaceCertificate">
        <source></source>
        <translation>证书文件</translation>
    </message>
    <message id="disksPlaceUpload">
        <source></source>
        <translation>上传限速</translation>
    </message>
    <message id="disksPlaceDownload">
        <source></source>
        <translation>下载限速</translation>
    </message>
    <message id="disksPlaceNoLimit">
        <source></source>
        <translation>无</translation>
    </message>
    <message id="disksPlaceUploadAtMost">
        <source></source>
        <translation>上传不超过 %1</translation>
    </message>
    <message id="disksPlaceDownloadAtMost">
        <source></source>
        <translation>下载不超过 %1</translation>
    </message>
    <message id="disksPlaceOptional">
        <source></source>
        <translation>可选</translation>
    </message>
    <message id="disksPlaceUnchanged">
        <source></source>
        <translation>未更改</translation>
    </message>
    <message id="disksPlaceChooseTitle">
        <source></source>
        <translation>选取</translation>
    </message>
    <message id="disksPlaceNeeded">
        <source></source>
        <translation>还需填写：%1</translation>
    </message>
    <message id="disksPlaceBadServer">
        <source></source>
        <translation>请仅填写服务器的名称或地址，例如nas.example.org。</translation>
    </message>
    <message id="disksPlaceBadPort">
        <source></source>
        <translation>端口是1到65535之间的数字。</translation>
    </message>
    <message id="disksPlaceBadFolder">
        <source></source>
        <translation>文件夹以 / 开头；如果位于你在服务器上的个人文件夹中，则以 ~/ 开头。</translation>
    </message>
    <message id="disksPlaceBadFile">
        <source></source>
        <translation>请以完整路径填写文件，路径以 / 开头。</translation>
    </message>
    <message id="disksPlaceUserAndPassword">
        <source></source>
        <translation>用户名和密码须同时填写，或都不填写。</translation>
    </message>
    <message id="disksPlaceTryTitle">
        <source></source>
        <translation>测试</translation>
    </message>
    <message id="disksPlaceTrustTitle">
        <source></source>
        <translation>信任</translation>
    </message>
    <message id="disksPlaceTakeUpTitle">
        <source></source>
        <translation>接管</translation>
    </message>
    <message id="disksPlaceAsking">
        <source></source>
        <translation>正在询问服务器…</translation>
    </message>
    <message id="disksPlaceKeeping">
        <source></source>
        <translation>正在设置位置…</translation>
    </message>
    <message id="disksPlaceEmpty">
        <source></source>
        <translation>可以使用该服务器。那里还没有备份。</translation>
    </message>
    <message id="disksPlaceBackups">
        <source></source>
        <translation>可以使用该服务器。那里有这台电脑能读取的备份，将继续使用它们。</translation>
    </message>
    <message id="disksPlaceWrongKey">
        <source></source>
        <translation>那里有这台电脑没有密钥的备份。如果是你的备份，请输入其恢复密钥以继续使用；否则请选择其他位置。</translation>
    </message>
    <message id="disksPlaceRecoveryKey">
        <source></source>
        <translation>恢复密钥</translation>
    </message>
    <message id="disksPlaceFingerprint">
        <source></source>
        <translation>服务器密钥的指纹</translation>
    </message>
    <message id="disksPlaceUnknownKey">
        <source></source>
        <translation>这台电脑还不认识“%1”。请将其密钥的指纹与管理员告诉你的指纹比较，仅在两者相同时信任。</translation>
    </message>
    <message id="disksPlaceChangedKey">
        <source></source>
        <translation>警告：“%1”出示的密钥与以前不同，可能有人在窃取通信。仅在服务器管理员确认密钥已更换且指纹无误时信任新密钥。</translation>
    </message>
    <message id="disksPlaceChangedKeyMessage">
        <source></source>
        <translation>要信任“%1”的新密钥吗？</translation>
    </message>
    <message id="disksPlaceChangedKeyInformative">
        <source></source>
        <translation>如果它不是服务器自己的密钥，发送的内容会落入他人之手。</translation>
    </message>
    <message id="disksPlaceBadCertificate">
        <source></source>
        <translation>“%1”的证书不受信任，可能是其他服务器。如果是你自己的证书，请将该证书或其颁发者的证书选为证书文件。</translation>
    </message>
    <message id="disksPlaceAccessDeniedKey">
        <source></source>
        <translation>“%1”拒绝了用户或密钥。请检查两者。公钥必须已在服务器上设置，且密钥文件不能有密码短语。</translation>
    </message>
    <message id="disksPlaceAccessDenied">
        <source></source>
        <translation>“%1”拒绝访问。请检查填写的用户名和密码，或密钥。</translation>
    </message>
    <message id="disksPlaceNoPermission">
        <source></source>
        <translation>那里无法写入。请选择服务器上的其他位置，或让管理员授予权限。</translation>
    </message>
    <message id="disksPlaceNoAnswer">
        <source></source>
        <translation>“%1”没有响应。请检查服务器和端口，以及这台电脑是否已连接网络。</translation>
    </message>
    <message id="disksPlaceNoSpace">
        <source></source>
        <translation>服务器没有可用空间。请在那里腾出空间，或选择其他位置。</translation>
    </message>
    <message id="disksPlaceFailed">
        <source></source>
        <translation>无法使用该服务器：%1</translation>
    </message>
    <message id="disksPlaceRemoveInformative">
        <source></source>
        <translation>那里的备份及其密钥都会保留，服务器的访问信息会被抹掉。再次添加同一位置即可继续使用。</translation>
    </message>
    <message id="disksPlaceKeyExplanation">
        <source></source>
        <translation>如果这台电脑丢失，凭此密钥和服务器的访问信息可以取回备份。请抄下密钥或将其存储为页面，并与服务器的访问信息一起，与这台电脑分开保管。同时持有两者的人可以读取备份。</translation>
    </message>
    <message id="disksPlacePageMade">
        <source></source>
        <translation>创建于%1。请将此页与电脑分开保管。同时持有此页和服务器访问信息的人可以读取备份。</translation>
    </message>
    <message id="disksPlacePageStart">
        <source></source>
        <translation>安装Quillon并启动 %1。</translation>
    </message>
    <message id="disksPlacePageAdd">
        <source></source>
        <translation>选取“%1”，输入 %2 作为服务器并填写访问信息，然后在询问时输入恢复密钥。</translation>
    </message>
    <!-- Window of the backups on Linux -->
    <message id="browseWindowTitle">
        <source></source>
        <translation>时间机器备份</translation>
    </message>
    <message id="browseThisWeek">
        <source></source>
        <translation>本周</translation>
    </message>
    <message id="browseDayAndTime">
        <source></source>
        <translation>%1 %2</translation>
    </message>
    <message id="browseMonthPattern">
        <source></source>
        <translation>y年M月</translation>
    </message>
    <message id="browseDamaged">
        <source></source>
        <translation>已损坏</translation>
    </message>
    <message id="browseIncomplete">
        <source></source>
        <translation>不完整</translation>
    </message>
    <message id="browseRestoring">
        <source></source>
        <translation>正在恢复 …</translation>
    </message>
    <message id="browseRestoreProgress">
        <source></source>
        <translation>%1/%2 个文件，%3/%4</translation>
    </message>
    <message id="browseRestoreStopped">
        <source></source>
        <translation>已停止。尚未恢复的内容保持原样。</translation>
    </message>
    <message id="browseRestoredCount">
        <source></source>
        <translation>已恢复：%1</translation>
    </message>
    <message id="browseSkippedCount">
        <source></source>
        <translation>已跳过：%1</translation>
    </message>
    <message id="browseLostCount">
        <source></source>
        <translation>未恢复：%1</translation>
    </message>
    <message id="browseConflictMessage">
        <source></source>
        <translation>“%1”已存在。</translation>
    </message>
    <message id="browseNameColumn">
        <source></source>
        <translation>名称</translation>
    </message>
    <message id="browseSizeColumn">
        <source></source>
        <translation>大小</translation>
    </message>
    <message id="browseModifiedColumn">
        <source></source>
        <translation>修改日期</translation>
    </message>
    <message id="browseSinceColumn">
        <source></source>
        <translation>之后</translation>
    </message>
    <message id="browseFolderColumn">
        <source></source>
        <translation>文件夹</translation>
    </message>
    <message id="browseBackupColumn">
        <source></source>
        <translation>备份</translation>
    </message>
    <message id="browseSortTip">
        <source></source>
        <translation>按此列排序（%1）</translation>
    </message>
    <message id="browseChanged">
        <source></source>
        <translation>已更改</translation>
    </message>
    <message id="browseGone">
        <source></source>
        <translation>已删除</translation>
    </message>
    <message id="browseFolderKind">
        <source></source>
        <translation>文件夹</translation>
    </message>
    <message id="browseLinkTo">
        <source></source>
        <translation>指向 %1 的链接</translation>
    </message>
    <message id="browseDiskLabel">
        <source></source>
        <translation>备份位置</translation>
    </message>
    <message id="browseTimelineName">
        <source></source>
        <translation>备份</translation>
    </message>
    <message id="browseFilesName">
        <source></source>
        <translation>备份中的文件</translation>
    </message>
    <message id="browsePathLabel">
        <source></source>
        <translation>备份中的文件夹</translation>
    </message>
    <message id="browseBackTitle">
        <source></source>
        <translation>后退</translation>
    </message>
    <message id="browseUpTitle">
        <source></source>
        <translation>上层文件夹</translation>
    </message>
    <message id="browseSearchPrompt">
        <source></source>
        <translation>按名称搜索</translation>
    </message>
    <message id="browseAllBackups">
        <source></source>
        <translation>在所有备份中</translation>
    </message>
    <message id="browseVersionsName">
        <source></source>
        <translation>版本</translation>
    </message>
    <message id="browseVersionsHint">
        <source></source>
        <translation>选择一个文件以查看其版本。</translation>
    </message>
    <message id="browseNoVersions">
        <source></source>
        <translation>没有备份包含它。</translation>
    </message>
    <message id="browsePreviewTitle">
        <source></source>
        <translation>预览</translation>
    </message>
    <message id="browseRestoreTitle">
        <source></source>
        <translation>恢复</translation>
    </message>
    <message id="browseReading">
        <source></source>
        <translation>正在读取 …</translation>
    </message>
    <message id="browseEmptyFolder">
        <source></source>
        <translation>此文件夹为空。</translation>
    </message>
    <message id="browseNothingFound">
        <source></source>
        <translation>未找到该名称的内容。</translation>
    </message>
    <message id="browseSearching">
        <source></source>
        <translation>正在搜索 …</translation>
    </message>
    <message id="browseFilling">
        <source></source>
        <translation>正在读取整个备份以供搜索：%1</translation>
    </message>
    <message id="browseReadFailed">
        <source></source>
        <translation>无法读取：%1</translation>
    </message>
    <message id="browseNoDiskMessage">
        <source></source>
        <translation>尚未设置备份磁盘或网络位置。请在时间机器设置中选择一个，以备份您的文件。</translation>
    </message>
    <message id="browseNoBackupMessage">
        <source></source>
        <translation>没有可浏览的备份。请连接备份磁盘或网络，或等待首次备份完成。</translation>
    </message>
    <message id="browseSettingsTitle">
        <source></source>
        <translation>时间机器设置</translation>
    </message>
    <message id="browsePreviewing">
        <source></source>
        <translation>正在提取“%1” …</translation>
    </message>
    <message id="browsePreviewFailed">
        <source></source>
        <translation>无法显示“%1”。</translation>
    </message>
    <message id="browseNoProgram">
        <source></source>
        <translation>无法打开用于显示它的程序。</translation>
    </message>
    <message id="browseRestoreHeading">
        <source></source>
        <translation>恢复“%1”</translation>
    </message>
    <message id="browseRestoreManyHeading">
        <source></source>
        <translation>恢复 %1 个项目</translation>
    </message>
    <message id="browseFromBackup">
        <source></source>
        <translation>来自 %1 的备份</translation>
    </message>
    <message id="browseToItsPlace">
        <source></source>
        <translation>到原来的位置</translation>
    </message>
    <message id="browseToFolder">
        <source></source>
        <translation>到其他文件夹</translation>
    </message>
    <message id="browseChooseFolderTitle">
        <source></source>
        <translation>选择文件夹</translation>
    </message>
    <message id="browseNothingOverwritten">
        <source></source>
        <translation>未经询问不会覆盖任何内容。</translation>
    </message>
    <message id="browseKeepBothTitle">
        <source></source>
        <translation>保留两者</translation>
    </message>
    <message id="browseReplaceTitle">
        <source></source>
        <translation>替换</translation>
    </message>
    <message id="browseSkipTitle">
        <source></source>
        <translation>跳过</translation>
    </message>
    <message id="browseForAll">
        <source></source>
        <translation>对其余项目执行相同操作</translation>
    </message>
    <message id="browseStopTitle">
        <source></source>
        <translation>停止</translation>
    </message>
    <message id="browseStopping">
        <source></source>
        <translation>正在停止 …</translation>
    </message>
    <message id="browseLossesName">
        <source></source>
        <translation>未能恢复的内容</translation>
    </message>
    <!-- The log of backups -->
    <message id="logWindowTitle">
        <source></source>
        <translation>备份日志</translation>
    </message>
    <message id="logDateTitle">
        <source></source>
        <translation>日期</translation>
    </message>
    <message id="logOutcomeTitle">
        <source></source>
        <translation>结果</translation>
    </message>
    <message id="logCauseTitle">
        <source></source>
        <translation>发起方</translation>
    </message>
    <message id="logDiskTitle">
        <source></source>
        <translation>磁盘</translation>
    </message>
    <message id="logSizeTitle">
        <source></source>
        <translation>已拷贝</translation>
    </message>
    <message id="logDurationTitle">
        <source></source>
        <translation>时长</translation>
    </message>
    <message id="logBytesTitle">
        <source></source>
        <translation>字节</translation>
    </message>
    <message id="logBeganTitle">
        <source></source>
        <translation>开始</translation>
    </message>
    <message id="logEndedTitle">
        <source></source>
        <translation>结束</translation>
    </message>
    <message id="logReasonTitle">
        <source></source>
        <translation>原因</translation>
    </message>
    <message id="logRunningTitle">
        <source></source>
        <translation>正在进行</translation>
    </message>
    <message id="logCompletedTitle">
        <source></source>
        <translation>已完成</translation>
    </message>
    <message id="logFailedTitle">
        <source></source>
        <translation>失败</translation>
    </message>
    <message id="logStoppedTitle">
        <source></source>
        <translation>已停止</translation>
    </message>
    <message id="logUnseenTitle">
        <source></source>
        <translation>未见到</translation>
    </message>
    <message id="logSkippedTitle">
        <source></source>
        <translation>已跳过</translation>
    </message>
    <message id="logMissedTitle">
        <source></source>
        <translation>已错过</translation>
    </message>
    <message id="logRefusedTitle">
        <source></source>
        <translation>被拒绝</translation>
    </message>
    <message id="logScheduleTitle">
        <source></source>
        <translation>计划</translation>
    </message>
    <message id="logRetryTitle">
        <source></source>
        <translation>重试</translation>
    </message>
    <message id="logUserTitle">
        <source></source>
        <translation>您</translation>
    </message>
    <message id="logElsewhereTitle">
        <source></source>
        <translation>Quillon 之外</translation>
    </message>
    <message id="logAllTitle">
        <source></source>
        <translation>全部</translation>
    </message>
    <message id="logNoBackupTitle">
        <source></source>
        <translation>无备份</translation>
    </message>
    <message id="logDaysMessage">
        <source></source>
        <translation>过去 %1 天：%2 天有备份，%3 天只有问题</translation>
    </message>
    <message id="logCopyTitle">
        <source></source>
        <translation>拷贝为文本</translation>
    </message>
    <message id="logSaveTitle">
        <source></source>
        <translation>存储为 CSV</translation>
    </message>
    <message id="logSaveFailedTitle">
        <source></source>
        <translation>未能存储日志。</translation>
    </message>
    <message id="logEmptyMessage">
        <source></source>
        <translation>尚无记录。</translation>
    </message>
    <message id="logNothingFoundMessage">
        <source></source>
        <translation>没有符合条件的条目。</translation>
    </message>
    <message id="logUnreadableMessage">
        <source></source>
        <translation>未能读取日志。备份仍会照常进行。</translation>
    </message>
    <message id="logNextMessage">
        <source></source>
        <translation>之后计划：%1</translation>
    </message>
    <message id="logAskedMessage">
        <source></source>
        <translation>此次启动已通过命令跳过。</translation>
    </message>
    <message id="logOnBatteryMessage">
        <source></source>
        <translation>电脑正在使用电池供电。重新接通电源后将补做此备份，除非下一次备份先到。</translation>
    </message>
    <message id="logPausedMessage">
        <source></source>
        <translation>计划已暂停。要继续备份，请在菜单中恢复计划。</translation>
    </message>
    <message id="logAsleepMessage">
        <source></source>
        <translation>电脑处于睡眠状态。请选择电脑处于唤醒状态的时间，或启用错过备份后重试。</translation>
    </message>
    <message id="logClockSetMessage">
        <source></source>
        <translation>时钟被调到此时间之后，或者电脑过于繁忙。</translation>
    </message>
    <message id="logBackupRanMessage">
        <source></source>
        <translation>另一个备份已在进行，并取代了此备份。</translation>
    </message>
    <message id="logOvertakenMessage">
        <source></source>
        <translation>同时启动了另一个备份，并取代了此备份。</translation>
    </message>
    <message id="logStatusUnreadableMessage">
        <source></source>
        <translation>“时间机器”未报告其状态。如果再次发生，请重新启动电脑。</translation>
    </message>
    <message id="logSettingsChangedMessage">
        <source></source>
        <translation>就在那一刻，计划被暂停或切换了。</translation>
    </message>
    <message id="logIncompleteMessage">
        <source></source>
        <translation>备份未完成便已结束。请检查磁盘是否已连接且有可用空间。</translation>
    </message>
    <message id="logStoppedElsewhereMessage">
        <source></source>
        <translation>备份在 Quillon 之外被停止。</translation>
    </message>
    <message id="logNeverReportedMessage">
        <source></source>
        <translation>“时间机器”接受了启动，但未见到备份。可能时间太短而未被察觉。</translation>
    </message>
    <message id="logNotFollowedMessage">
        <source></source>
        <translation>Quillon 在备份完成之前退出。请浏览备份以查看其是否完成。</translation>
    </message>
</context>
</TS>
