<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="en">
<!-- Code adds the colon or the ellipsis that a title stands before; texts have none, but for scheduleTitle. -->
<context>
    <name></name>
    <!-- Days -->
    <message id="todayTitle">
        <source></source>
        <translation>今日</translation>
    </message>
    <message id="tomorrowTitle">
        <source></source>
        <translation>明日</translation>
    </message>
    <message id="yesterdayTitle">
        <source></source>
        <translation>昨日</translation>
    </message>
    <!-- What Time Machine is doing -->
    <message id="notAvailableAbbreviation">
        <source></source>
        <translation>なし</translation>
    </message>
    <message id="tmPhaseDefault">
        <source></source>
        <translation>停止中</translation>
    </message>
    <message id="tmPhaseUnknown">
        <source></source>
        <translation>不明</translation>
    </message>
    <message id="tmPhaseStarting">
        <source></source>
        <translation>開始中</translation>
    </message>
    <message id="tmPhaseLookingForDisk">
        <source></source>
        <translation>バックアップディスクを検索中</translation>
    </message>
    <message id="tmPhaseConnectingToDisk">
        <source></source>
        <translation>バックアップディスクに接続中</translation>
    </message>
    <message id="tmPhasePreparingBackup">
        <source></source>
        <translation>バックアップを準備中</translation>
    </message>
    <message id="tmPhaseCopying">
        <source></source>
        <translation>コピー中</translation>
    </message>
    <message id="tmPhaseCleaningUp">
        <source></source>
        <translation>整理中</translation>
    </message>
    <message id="tmPhaseHealthCheck">
        <source></source>
        <translation>バックアップを検証中</translation>
    </message>
    <message id="tmPhaseFinishing">
        <source></source>
        <translation>終了処理中</translation>
    </message>
    <!-- Alerts -->
    <message id="AlertButtonClose">
        <source></source>
        <translation>閉じる</translation>
    </message>
    <message id="AlertButtonProvidePermission">
        <source></source>
        <translation>アクセスを許可</translation>
    </message>
    <message id="permissionRequiredAlertTitle">
        <source></source>
        <translation>アクセス許可が必要です</translation>
    </message>
    <message id="timeMachinePermissionRequiredAlertMessage">
        <source></source>
        <translation>Time Machine環境設定を開くには、「%1」をクリックして、%2による「システム環境設定」の制御を許可してから、もう一度試してください。</translation>
    </message>
    <!-- Menu bar title -->
    <message id="nextBackupShortTitle">
        <source></source>
        <translation>次回</translation>
    </message>
    <message id="retryBackupShortTitle">
        <source></source>
        <translation>再試行</translation>
    </message>
    <message id="statusStarting">
        <source></source>
        <translation>開始中</translation>
    </message>
    <message id="statusRunning">
        <source></source>
        <translation>実行中</translation>
    </message>
    <message id="statusStopping">
        <source></source>
        <translation>停止処理中</translation>
    </message>
    <!-- What the icon stands for -->
    <message id="iconRunningDescription">
        <source></source>
        <translation>バックアップを実行中です。</translation>
    </message>
    <message id="iconFailedDescription">
        <source></source>
        <translation>前回のバックアップに失敗しました。</translation>
    </message>
    <message id="iconMissedDescription">
        <source></source>
        <translation>予定されていたバックアップを実行できませんでした。</translation>
    </message>
    <message id="iconUpdateDescription">
        <source></source>
        <translation>アップデートがあります。</translation>
    </message>
    <!-- Why sleep waits for a moment -->
    <message id="sleepWaitsMessage">
        <source></source>
        <translation>バックアップのスケジュールを停止しています。</translation>
    </message>
    <!-- Menu -->
    <message id="latestBackupTitle">
        <source></source>
        <translation>最新のバックアップ</translation>
    </message>
    <message id="phaseTitle">
        <source></source>
        <translation>状況</translation>
    </message>
    <message id="copiedWord">
        <source></source>
        <translation>コピー済み</translation>
    </message>
    <message id="backupDiskTitle">
        <source></source>
        <translation>バックアップディスク</translation>
    </message>
    <message id="nextBackupTitle">
        <source></source>
        <translation>次回のバックアップ</translation>
    </message>
    <message id="nextBackupDisabled">
        <source></source>
        <translation>オフ</translation>
    </message>
    <message id="nextBackupNotAvailable">
        <source></source>
        <translation>バックアップの予定はありません</translation>
    </message>
    <message id="retryAttemptTitle">
        <source></source>
        <translation>再試行</translation>
    </message>
    <message id="remainingTimeTitle">
        <source></source>
        <translation>残り時間</translation>
    </message>
    <message id="calculatingTitle">
        <source></source>
        <translation>計算中</translation>
    </message>
    <message id="backupNowTitle">
        <source></source>
        <translation>今すぐバックアップを作成</translation>
    </message>
    <message id="skipThisBackupTitle">
        <source></source>
        <translation>このバックアップをスキップ</translation>
    </message>
    <message id="skipThisBackupTitleVentura">
        <source></source>
        <translation>このバックアップをスキップ</translation>
    </message>
    <message id="skipRetryAttemptTitle">
        <source></source>
        <translation>再試行をスキップ</translation>
    </message>
    <message id="enterTimeMachineTitle">
        <source></source>
        <translation>Time Machineに入る</translation>
    </message>
    <message id="enterTimeMachineTitleVentura">
        <source></source>
        <translation>Time Machineバックアップをブラウズ</translation>
    </message>
    <message id="openSystemPreferencesTitle">
        <source></source>
        <translation>「Time Machine」環境設定を開く</translation>
    </message>
    <message id="openSystemPreferencesTitleVentura">
        <source></source>
        <translation>「Time Machine」設定を開く</translation>
    </message>
    <message id="updateAvailableMenuTitle">
        <source></source>
        <translation>アップデートがあります</translation>
    </message>
    <message id="preferencesMenuTitle">
        <source></source>
        <translation>設定</translation>
    </message>
    <message id="aboutMenuTitle">
        <source></source>
        <translation>Quillonについて</translation>
    </message>
    <message id="quitApplicationTitle">
        <source></source>
        <translation>%1を終了</translation>
    </message>
    <!-- Pause -->
    <message id="pauseScheduleForTitle">
        <source></source>
        <translation>スケジュールを一時停止</translation>
    </message>
    <message id="pauseScheduleUntilTitle">
        <source></source>
        <translation>スケジュールの一時停止期限</translation>
    </message>
    <message id="resumeScheduleTitle">
        <source></source>
        <translation>スケジュールを再開</translation>
    </message>
    <message id="oneHourTitle">
        <source></source>
        <translation>1時間</translation>
    </message>
    <message id="twoHoursTitle">
        <source></source>
        <translation>2時間</translation>
    </message>
    <message id="fourHoursTitle">
        <source></source>
        <translation>4時間</translation>
    </message>
    <message id="eightHoursTitle">
        <source></source>
        <translation>8時間</translation>
    </message>
    <message id="twelveHoursTitle">
        <source></source>
        <translation>12時間</translation>
    </message>
    <message id="oneDayTitle">
        <source></source>
        <translation>1日</translation>
    </message>
    <message id="twoDaysTitle">
        <source></source>
        <translation>2日</translation>
    </message>
    <message id="threeDaysTitle">
        <source></source>
        <translation>3日</translation>
    </message>
    <message id="fourDaysTitle">
        <source></source>
        <translation>4日</translation>
    </message>
    <message id="fiveDaysTitle">
        <source></source>
        <translation>5日</translation>
    </message>
    <message id="sixDaysTitle">
        <source></source>
        <translation>6日</translation>
    </message>
    <message id="oneWeekTitle">
        <source></source>
        <translation>1週間</translation>
    </message>
    <message id="twoWeeksTitle">
        <source></source>
        <translation>2週間</translation>
    </message>
    <message id="threeWeeksTitle">
        <source></source>
        <translation>3週間</translation>
    </message>
    <message id="fourWeeksTitle">
        <source></source>
        <translation>4週間</translation>
    </message>
    <!-- The menu as it opens -->
    <message id="letMacOsDecideBackupDiskTitle">
        <source></source>
        <translation>Time Machineに任せる</translation>
    </message>
    <message id="mostRecentTitle">
        <source></source>
        <translation>最近使用</translation>
    </message>
    <message id="latestBackupOfEachDestinationTitle">
        <source></source>
        <translation>各ディスクの最新のバックアップ</translation>
    </message>
    <message id="allBackupInfoHelpMessage">
        <source></source>
        <translation>このリストには、各バックアップディスクについて、Quillonが完了を確認した最新のバックアップが表示されます。日付のないディスクでは、Quillonのインストール後に完了したバックアップがありません。</translation>
    </message>
    <message id="helpButtonTitle">
        <source></source>
        <translation>ヘルプ</translation>
    </message>
    <!-- What the commands tell -->
    <message id="AlertTitleWarning">
        <source></source>
        <translation>警告</translation>
    </message>
    <message id="failedToStartBackupMessage">
        <source></source>
        <translation>バックアップを開始できませんでした。Time Machineからエラーコード%1が返されました。</translation>
    </message>
    <message id="startDiskAwayMessage">
        <source></source>
        <translation>バックアップディスクが接続されていないか、バックアップ先のサーバに接続できません。</translation>
    </message>
    <message id="startResticMissingMessage">
        <source></source>
        <translation>バックアップを作成するプログラムresticがインストールされていません。</translation>
    </message>
    <message id="appUpdateAvailableAlertTitle">
        <source></source>
        <translation>Quillon %1が利用可能です</translation>
    </message>
    <message id="appUpdateAvailableAlertMessage">
        <source></source>
        <translation>現在のバージョンは%1です。ブラウザでダウンロードページが開きます。Quillonは、置き換えられるように終了します。</translation>
    </message>
    <message id="AlertButtonGetUpdate">
        <source></source>
        <translation>アップデートを入手</translation>
    </message>
    <message id="AlertButtonCancel">
        <source></source>
        <translation>キャンセル</translation>
    </message>
    <!-- The user’s own programs -->
    <message id="hookStoppedBackupMessage">
        <source></source>
        <translation>プログラム「before」によりバックアップは開始されませんでした。</translation>
    </message>
    <message id="hookNotRunMessage">
        <source></source>
        <translation>「%1」は実行されませんでした。自分だけが変更できるフォルダにある、自分だけが変更できる実行可能ファイルである必要があります。</translation>
    </message>
    <message id="hookTooLongMessage">
        <source></source>
        <translation>「%1」は10分後に終了されました。</translation>
    </message>
    <message id="hookStatusMessage">
        <source></source>
        <translation>「%1」は終了ステータス%2で終了しました。</translation>
    </message>
    <!-- Notifications of the desktop -->
    <message id="backupFailedTitle">
        <source></source>
        <translation>バックアップに失敗しました</translation>
    </message>
    <message id="backupFailedMessage">
        <source></source>
        <translation>最新のバックアップは完了する前に終了しました。</translation>
    </message>
    <message id="noBackupForDaysTitle">
        <source></source>
        <translation>最近のバックアップがありません</translation>
    </message>
    <message id="noBackupForDaysMessage">
        <source></source>
        <translation>最新のバックアップが完了したのは%1です。</translation>
    </message>
    <message id="noBackupYetMessage">
        <source></source>
        <translation>完了したバックアップはまだありません。</translation>
    </message>
    <message id="startWithoutRunTitle">
        <source></source>
        <translation>バックアップが開始されませんでした</translation>
    </message>
    <message id="startWithoutRunMessage">
        <source></source>
        <translation>Time Machineはバックアップの開始を受け付けましたが、実行中のバックアップはありません。</translation>
    </message>
    <message id="noProgressTitle">
        <source></source>
        <translation>バックアップが進んでいません</translation>
    </message>
    <message id="noProgressMessage">
        <source></source>
        <translation>実行中のバックアップが30分間進んでいません。</translation>
    </message>
    <message id="damageFoundTitle">
        <source></source>
        <translation>バックアップが破損しています</translation>
    </message>
    <message id="damageFoundMessage">
        <source></source>
        <translation>Time Machineがバックアップの破損を検出しました。一部のファイルを復元できない可能性があります。</translation>
    </message>
    <message id="startAheadTitle">
        <source></source>
        <translation>まもなくバックアップを開始します</translation>
    </message>
    <message id="startAheadMessage">
        <source></source>
        <translation>次のバックアップは%1に開始されます。</translation>
    </message>
    <message id="startAheadSkipTitle">
        <source></source>
        <translation>スキップ</translation>
    </message>
    <message id="startAheadPostponeTitle">
        <source></source>
        <translation>1時間後</translation>
    </message>
    <!-- Where there is no Time Machine application -->
    <!-- The schedule in the settings panel -->
    <message id="settingsGroupSchedule">
        <source></source>
        <translation>バックアップのスケジュール</translation>
    </message>
    <message id="settingsEnableScheduledBackupsVia">
        <source></source>
        <translation>次の方法でバックアップをスケジュール</translation>
    </message>
    <message id="settingsOptionCalendarInterval">
        <source></source>
        <translation>曜日と時刻</translation>
    </message>
    <message id="settingsOptionInterval">
        <source></source>
        <translation>間隔</translation>
    </message>
    <message id="scheduleTitle">
        <source></source>
        <translation>スケジュール:</translation>
    </message>
    <message id="warningButtonTitle">
        <source></source>
        <translation>自動バックアップについての警告</translation>
    </message>
    <message id="setupDisksButtonTitle">
        <source></source>
        <translation>バックアップディスクについて</translation>
    </message>
    <message id="addRuleTitle">
        <source></source>
        <translation>ルールを追加</translation>
    </message>
    <message id="deleteRuleTitle">
        <source></source>
        <translation>ルールを削除</translation>
    </message>
    <!-- A rule as one sentence: back up, day, at, time of day -->
    <message id="backupTitle">
        <source></source>
        <translation>バックアップ日時</translation>
    </message>
    <message id="everyDayTitle">
        <source></source>
        <translation>毎日</translation>
    </message>
    <message id="weekdaysTitle">
        <source></source>
        <translation>月曜日から金曜日</translation>
    </message>
    <message id="mondayTitle">
        <source></source>
        <translation>毎週月曜日</translation>
    </message>
    <message id="tuesdayTitle">
        <source></source>
        <translation>毎週火曜日</translation>
    </message>
    <message id="wednesdayTitle">
        <source></source>
        <translation>毎週水曜日</translation>
    </message>
    <message id="thursdayTitle">
        <source></source>
        <translation>毎週木曜日</translation>
    </message>
    <message id="fridayTitle">
        <source></source>
        <translation>毎週金曜日</translation>
    </message>
    <message id="saturdayTitle">
        <source></source>
        <translation>毎週土曜日</translation>
    </message>
    <message id="sundayTitle">
        <source></source>
        <translation>毎週日曜日</translation>
    </message>
    <message id="atTimeTitle">
        <source></source>
        <translation>の</translation>
    </message>
    <!-- The interval page; the unit stands behind any number from 1 on -->
    <message id="settingsIntervalEvery">
        <source></source>
        <translation>バックアップの間隔</translation>
    </message>
    <message id="settingsIntervalHours">
        <source></source>
        <translation>時間</translation>
    </message>
    <message id="settingsIntervalHour">
        <source></source>
        <translation>時間</translation>
    </message>
    <message id="settingsIntervalNotYetUsed">
        <source></source>
        <translation>間隔はまだ使用されません。バックアップは、ルールの曜日と時刻に開始されます。</translation>
    </message>
    <!-- The other groups of the settings panel -->
    <message id="settingsGroupRetry">
        <source></source>
        <translation>再試行</translation>
    </message>
    <message id="settingsEnableAfterMissedBackup">
        <source></source>
        <translation>実行できなかったバックアップを再試行</translation>
    </message>
    <message id="settingsEnableAfterFailedBackup">
        <source></source>
        <translation>失敗したバックアップを再試行</translation>
    </message>
    <message id="settingsGroupMenuBar">
        <source></source>
        <translation>メニューバー</translation>
    </message>
    <message id="settingsShowDetailedTimeInMenuBar">
        <source></source>
        <translation>時間を詳しく表示</translation>
    </message>
    <message id="settingsShowDetailedTimeInMenuBarDetails">
        <source></source>
        <translation>例：「1h」ではなく「1h30m」と表示します。</translation>
    </message>
    <message id="settingsShowMenuBarIconOnly">
        <source></source>
        <translation>アイコンのみを表示</translation>
    </message>
    <message id="settingsDisableIconColors">
        <source></source>
        <translation>注意が必要なときにアイコンに色を付ける</translation>
    </message>
    <message id="settingsGroupDisks">
        <source></source>
        <translation>ディスクとログイン</translation>
    </message>
    <message id="settingsRotateBackupDisks">
        <source></source>
        <translation>バックアップディスクを交互に使用</translation>
    </message>
    <message id="settingsStartOnSystemStart">
        <source></source>
        <translation>ログイン時にQuillonを開く</translation>
    </message>
    <message id="loginItemRefusedMessage">
        <source></source>
        <translation>システムが変更を受け付けませんでした。ログイン時に開く項目は変わりません。</translation>
    </message>
    <!-- The second page of the settings panel; a number stands behind what is not a sentence -->
    <message id="settingsMoreTitle">
        <source></source>
        <translation>その他</translation>
    </message>
    <message id="settingsBackTitle">
        <source></source>
        <translation>戻る</translation>
    </message>
    <message id="settingsGroupPower">
        <source></source>
        <translation>電源</translation>
    </message>
    <message id="settingsOnlyOnMainsPower">
        <source></source>
        <translation>電源に接続中のみバックアップを開始</translation>
    </message>
    <message id="settingsChargeThatSuffices">
        <source></source>
        <translation>またはバッテリー残量が次より多いとき</translation>
    </message>
    <message id="settingsPerCent">
        <source></source>
        <translation>%1%</translation>
    </message>
    <message id="settingsStayAwake">
        <source></source>
        <translation>Quillonが開始したバックアップ中はスリープしない</translation>
    </message>
    <message id="settingsStartWhenDiskAppears">
        <source></source>
        <translation>バックアップディスクが現れたら再試行</translation>
    </message>
    <message id="settingsMinutesAfterWake">
        <source></source>
        <translation>スリープ解除後の待ち時間</translation>
    </message>
    <message id="settingsMinutes">
        <source></source>
        <translation>%1分</translation>
    </message>
    <message id="settingsGroupNotifications">
        <source></source>
        <translation>通知</translation>
    </message>
    <message id="settingsDaysWithoutBackup">
        <source></source>
        <translation>完了したバックアップがない期間</translation>
    </message>
    <message id="settingsDays">
        <source></source>
        <translation>%1日</translation>
    </message>
    <message id="settingsDay">
        <source></source>
        <translation>%1日</translation>
    </message>
    <message id="settingsTellBeforeStart">
        <source></source>
        <translation>バックアップ開始の1分前</translation>
    </message>
    <!-- Alerts of the settings panel -->
    <message id="maximumRulesReachedTitle">
        <source></source>
        <translation>これ以上ルールを追加できません</translation>
    </message>
    <message id="maximumRulesReachedMessage">
        <source></source>
        <translation>スケジュールのルールは最大%1個です。いずれかのルールを変更または削除してください。</translation>
    </message>
    <message id="confirmDeleteRuleTitle">
        <source></source>
        <translation>このルールを削除しますか?</translation>
    </message>
    <message id="confirmDeleteRuleMessage">
        <source></source>
        <translation>このルールは削除され、Quillonはその時刻にバックアップを開始しなくなります。</translation>
    </message>
    <message id="retryAfterMissedBackupTitle">
        <source></source>
        <translation>実行できなかったバックアップの再試行</translation>
    </message>
    <message id="retryAfterMissedBackupMessage">
        <source></source>
        <translation>予定の時刻にコンピュータがスリープしていた場合は、スリープ解除の約5分後にバックアップが開始されます。スケジュールの一時停止中は再試行されません。</translation>
    </message>
    <message id="retryAfterFailedBackupTitle">
        <source></source>
        <translation>失敗したバックアップの再試行</translation>
    </message>
    <message id="retryAfterFailedBackupMessage">
        <source></source>
        <translation>バックアップが完了せずに終わった場合は、約5分後にもう一度試行されます。自分で停止したバックアップは再試行されません。スケジュールの一時停止中も再試行されません。</translation>
    </message>
    <message id="AlertButtonOk">
        <source></source>
        <translation>OK</translation>
    </message>
    <message id="AlertButtonDelete">
        <source></source>
        <translation>削除</translation>
    </message>
    <!-- The first launch; the instruction is also the text of the settings panel's warning -->
    <message id="firstStartInfoAlertTitle">
        <source></source>
        <translation>%1へようこそ</translation>
    </message>
    <message id="firstStartInfoAlertMessage">
        <source></source>
        <translation>%2はメニューバーにあります。設定で選んだ時刻にバックアップを開始します。

%1</translation>
    </message>
    <message id="disableTmInstruction">
        <source></source>
        <translation>Time Machineの自動バックアップがオンの場合は、予定した時刻にだけバックアップが開始されるように、オフにしてください。Macでは、「システム環境設定」を開き、「Time Machine」をクリックして、バックアップの自動作成をオフにします。</translation>
    </message>
    <message id="disableTmInstructionVentura">
        <source></source>
        <translation>Time Machineの自動バックアップがオンの場合は、予定した時刻にだけバックアップが開始されるように、オフにしてください。Macでは、「システム設定」を開き、「一般」&gt;「Time Machine」&gt;「オプション」と選択して、バックアップの頻度を「手動」に設定します。</translation>
    </message>
    <message id="setupDisksMessage">
        <source></source>
        <translation>バックアップの作成先：
%1

バックアップディスクの追加と削除は「Time Machine」設定で行います。</translation>
    </message>
    <message id="setupNoDiskMessage">
        <source></source>
        <translation>バックアップディスクがまだ設定されていないため、バックアップを開始できません。「Time Machine」設定で追加してください。</translation>
    </message>
    <message id="setupUnknownDisksMessage">
        <source></source>
        <translation>バックアップディスクは「Time Machine」設定で選びます。</translation>
    </message>
    <message id="AlertButtonHelp">
        <source></source>
        <translation>ヘルプ</translation>
    </message>
    <!-- The about panel -->
    <message id="versionTitle">
        <source></source>
        <translation>バージョン</translation>
    </message>
    <message id="copyrightTitle">
        <source></source>
        <translation>© %1 Quillonの作者</translation>
    </message>
    <message id="supportDetailsMessage">
        <source></source>
        <translation>ご質問、ご意見、不具合のご報告をお寄せください。</translation>
    </message>
    <message id="websiteButtonTitle">
        <source></source>
        <translation>Webサイト</translation>
    </message>
    <message id="creditsTitle">
        <source></source>
        <translation>QuillonはQt、ICU、libplistを使用しています。Linuxではresticがバックアップを作成します。</translation>
    </message>
    <message id="appIconCreditsTitle">
        <source></source>
        <translation>アイコンの提供元：%1</translation>
    </message>
    <message id="privacyPolicyDetailsMessage">
        <source></source>
        <translation>Quillonは、ユーザやファイルに関する情報を送信しません。</translation>
    </message>
    <message id="termsButtonTitle">
        <source></source>
        <translation>利用規約</translation>
    </message>
    <message id="privacyPolicyAlertTitle">
        <source></source>
        <translation>プライバシーポリシー</translation>
    </message>
    <message id="privacyPolicyAlertMessage">
        <source></source>
        <translation>%1は、設定とバックアップの記録をこのコンピュータに保存します。%1は、新しいバージョンを確認するために開発元のサービスに問い合わせます。この問い合わせで識別されるのは%1であり、ユーザではありません。%1のプライバシーポリシーの全文はWebサイトにあります。</translation>
    </message>
    <message id="AlertButtonReadMore">
        <source></source>
        <translation>詳しく読む</translation>
    </message>
    <message id="AlertMessageMailNotConfigured">
        <source></source>
        <translation>メールアプリを開けませんでした。%1宛てにお送りください。</translation>
    </message>
    <!-- Window of the Time Machine settings on Linux -->
    <message id="disksWindowTitle">
        <source></source>
        <translation>Time Machine</translation>
    </message>
    <message id="disksDisksTitle">
        <source></source>
        <translation>バックアップディスク</translation>
    </message>
    <message id="disksSourcesTitle">
        <source></source>
        <translation>フォルダ</translation>
    </message>
    <message id="disksExclusionsTitle">
        <source></source>
        <translation>除外</translation>
    </message>
    <message id="disksDisksExplanation">
        <source></source>
        <translation>バックアップはこれらのディスクとネットワークの場所に作成されます。バックアップは暗号化され、ディスク上のほかの項目は変更されません。鍵はホームフォルダに保管されます。</translation>
    </message>
    <message id="disksSourcesExplanation">
        <source></source>
        <translation>これらのフォルダが、中の項目もすべて含めてバックアップされます。</translation>
    </message>
    <message id="disksExclusionsExplanation">
        <source></source>
        <translation>これらのファイルとフォルダは、どのバックアップにも含まれません。</translation>
    </message>
    <message id="disksNoDisks">
        <source></source>
        <translation>バックアップディスクがまだありません。まずディスク、ディスク上のフォルダ、またはネットワークの場所を追加してください。</translation>
    </message>
    <message id="disksNoExclusions">
        <source></source>
        <translation>除外項目はありません。もう一度ダウンロードできるファイルなど、バックアップが不要な項目を追加してください。</translation>
    </message>
    <message id="disksReading">
        <source></source>
        <translation>設定を読み込み中…</translation>
    </message>
    <message id="disksConnected">
        <source></source>
        <translation>接続済み</translation>
    </message>
    <message id="disksNotConnected">
        <source></source>
        <translation>未接続</translation>
    </message>
    <message id="disksLastBackup">
        <source></source>
        <translation>最新のバックアップ：%1</translation>
    </message>
    <message id="disksNoBackupYet">
        <source></source>
        <translation>バックアップはまだありません</translation>
    </message>
    <message id="disksAddDiskTitle">
        <source></source>
        <translation>ディスクを追加</translation>
    </message>
    <message id="disksAddFolderTitle">
        <source></source>
        <translation>フォルダを追加</translation>
    </message>
    <message id="disksAddFileTitle">
        <source></source>
        <translation>ファイルを追加</translation>
    </message>
    <message id="disksRemoveTitle">
        <source></source>
        <translation>取り除く</translation>
    </message>
    <message id="disksCancelTitle">
        <source></source>
        <translation>キャンセル</translation>
    </message>
    <message id="disksOkTitle">
        <source></source>
        <translation>OK</translation>
    </message>
    <message id="disksTryAgainTitle">
        <source></source>
        <translation>再試行</translation>
    </message>
    <message id="disksFree">
        <source></source>
        <translation>%1（空き%2）</translation>
    </message>
    <message id="disksNoOtherDisk">
        <source></source>
        <translation>ほかに接続されているディスクはありません</translation>
    </message>
    <message id="disksAddFailed">
        <source></source>
        <translation>「%1」を追加できませんでした。</translation>
    </message>
    <message id="disksRemoveFailed">
        <source></source>
        <translation>「%1」を取り除けませんでした。</translation>
    </message>
    <message id="disksRemoveAlertMessage">
        <source></source>
        <translation>「%1」へのバックアップをやめますか?</translation>
    </message>
    <message id="disksRemoveAlertInformative">
        <source></source>
        <translation>保存されているバックアップとその鍵は残ります。同じフォルダをもう一度追加すると、続きから使用できます。</translation>
    </message>
    <message id="disksHomeAlertMessage">
        <source></source>
        <translation>代わりにホームフォルダ全体をバックアップしますか?</translation>
    </message>
    <message id="disksHomeAlertInformative">
        <source></source>
        <translation>「%1」はリストにある唯一のフォルダです。リストが空の場合は、ホームフォルダの内容がすべてバックアップされます。</translation>
    </message>
    <message id="disksReadFailed">
        <source></source>
        <translation>設定を読み込めませんでした：%1</translation>
    </message>
    <message id="disksToolHangs">
        <source></source>
        <translation>tmutilが応答しません。</translation>
    </message>
    <message id="disksToolMissing">
        <source></source>
        <translation>ツール「%1」を開始できません。</translation>
    </message>
    <message id="disksToolFailed">
        <source></source>
        <translation>tmutilが終了ステータス%1で終了しました。</translation>
    </message>
    <message id="disksToolUnreadable">
        <source></source>
        <translation>tmutilの応答を解釈できません。</translation>
    </message>
    <message id="reasonWithDetail">
        <source></source>
        <translation>%1（tmutil: %2）</translation>
    </message>
    <message id="reasonMissing">
        <source></source>
        <translation>バックアップディスクが接続されていないか、ネットワークの場所に接続できません。</translation>
    </message>
    <message id="reasonNoSpace">
        <source></source>
        <translation>空き容量がありません。</translation>
    </message>
    <message id="reasonCannotWrite">
        <source></source>
        <translation>そこには書き込めません。</translation>
    </message>
    <message id="reasonExists">
        <source></source>
        <translation>同じ名前の項目がすでにあり、そのまま残されます。</translation>
    </message>
    <message id="reasonNotInBackups">
        <source></source>
        <translation>バックアップにありません。</translation>
    </message>
    <message id="reasonDamaged">
        <source></source>
        <translation>バックアップ内で壊れています。</translation>
    </message>
    <message id="reasonNoAttributes">
        <source></source>
        <translation>内容は完全ですが、所有者、アクセス権、またはその他の属性を復元できませんでした。</translation>
    </message>
    <message id="reasonConnectionLost">
        <source></source>
        <translation>サーバとの接続が切れました。</translation>
    </message>
    <message id="reasonAccessDenied">
        <source></source>
        <translation>サーバがユーザ、パスワード、または鍵を拒否しました。</translation>
    </message>
    <message id="reasonUntrusted">
        <source></source>
        <translation>正しいサーバかどうか確認できません。</translation>
    </message>
    <message id="reasonServerFailed">
        <source></source>
        <translation>サーバがエラーを返しました。空き容量がない可能性があります。</translation>
    </message>
    <message id="reasonWrongKey">
        <source></source>
        <translation>バックアップのキーがないか、一致しません。</translation>
    </message>
    <message id="reasonLocked">
        <source></source>
        <translation>バックアップは使用中です。しばらくしてからやり直してください。</translation>
    </message>
    <message id="reasonResticMissing">
        <source></source>
        <translation>resticがインストールされていません。</translation>
    </message>
    <message id="reasonNoRepository">
        <source></source>
        <translation>バックアップがないか、壊れています。</translation>
    </message>
    <message id="reasonNoInput">
        <source></source>
        <translation>ファイルまたはフォルダがありません。</translation>
    </message>
    <message id="reasonConfiguration">
        <source></source>
        <translation>バックアップの設定が壊れています。</translation>
    </message>
    <message id="reasonNoWorkSpace">
        <source></source>
        <translation>ホームフォルダに一時ファイル用の空きがありません。</translation>
    </message>
    <message id="disksRoom">
        <source></source>
        <translation>空き容量%1/%2</translation>
    </message>
    <message id="disksTaken">
        <source></source>
        <translation>バックアップの使用量：%1</translation>
    </message>
    <message id="disksProblem">
        <source></source>
        <translation>前回の問題（%1）：%2</translation>
    </message>
    <message id="disksKeyNotKept">
        <source></source>
        <translation>復旧キーはまだ保管されていません</translation>
    </message>
    <message id="disksSourceOnDisk">
        <source></source>
        <translation>フォルダ「%1」もこのディスクにあります。故障すると両方とも失われます</translation>
    </message>
    <message id="disksKeyBar">
        <source></source>
        <translation>このコンピュータを失った場合、復旧キーがないと「%1」のバックアップを読み出せません。</translation>
    </message>
    <message id="disksShowKeyTitle">
        <source></source>
        <translation>復旧キーを表示</translation>
    </message>
    <message id="disksKeyHeading">
        <source></source>
        <translation>「%1」の復旧キー</translation>
    </message>
    <message id="disksKeyExplanation">
        <source></source>
        <translation>このコンピュータを失っても、このキーとディスクがあればバックアップを取り戻せます。書き留めるかページとして保存して、このコンピュータともディスクとも別の場所に保管してください。両方を持つ人はバックアップを読むことができます。</translation>
    </message>
    <message id="disksKeyOnce">
        <source></source>
        <translation>これは新しいキーで、表示されるのは今だけです。保管した時点で、以前に表示されたキーは使えなくなります。</translation>
    </message>
    <message id="disksSavePageTitle">
        <source></source>
        <translation>ページとして保存</translation>
    </message>
    <message id="disksLaterTitle">
        <source></source>
        <translation>あとで</translation>
    </message>
    <message id="disksKeptTitle">
        <source></source>
        <translation>保管しました</translation>
    </message>
    <message id="disksKeyFailed">
        <source></source>
        <translation>「%1」の復旧キーを作成できませんでした。</translation>
    </message>
    <message id="disksKeepFailed">
        <source></source>
        <translation>「%1」の復旧キーを保管したことを記録できませんでした。</translation>
    </message>
    <message id="disksPageFailed">
        <source></source>
        <translation>ページを保存できませんでした。</translation>
    </message>
    <message id="disksPagePdf">
        <source></source>
        <translation>PDF書類</translation>
    </message>
    <message id="disksPageText">
        <source></source>
        <translation>テキストファイル</translation>
    </message>
    <message id="disksPageOnDiskMessage">
        <source></source>
        <translation>ページをバックアップディスク自体に保存しますか?</translation>
    </message>
    <message id="disksPageOnDiskInformative">
        <source></source>
        <translation>ディスクを手にした人がキーも手に入れることになり、ディスクが壊れるとページも失われます。</translation>
    </message>
    <message id="disksSaveTitle">
        <source></source>
        <translation>保存</translation>
    </message>
    <message id="disksPageMade">
        <source></source>
        <translation>作成日：%1。このページはコンピュータともディスクとも別の場所に保管してください。両方を持つ人はバックアップを読むことができます。</translation>
    </message>
    <message id="disksPageSteps">
        <source></source>
        <translation>コンピュータを失った場合に新しいコンピュータで行うこと</translation>
    </message>
    <message id="disksPageConnect">
        <source></source>
        <translation>Quillonをインストールして、ディスクを接続します。</translation>
    </message>
    <message id="disksPageAdopt">
        <source></source>
        <translation>%1 は復旧キーを尋ね、ディスクを引き継ぎます。</translation>
    </message>
    <message id="disksPageList">
        <source></source>
        <translation>%1 はバックアップを一覧表示します。</translation>
    </message>
    <message id="disksPageRestore">
        <source></source>
        <translation>%1 はフォルダを復元します。</translation>
    </message>
    <message id="disksPageContinue">
        <source></source>
        <translation>%1 はバックアップを続けます。</translation>
    </message>
    <message id="disksAddTitle">
        <source></source>
        <translation>追加</translation>
    </message>
    <message id="disksAddNameTitle">
        <source></source>
        <translation>名前のパターンを追加</translation>
    </message>
    <message id="disksAddSizeTitle">
        <source></source>
        <translation>サイズの上限を追加</translation>
    </message>
    <message id="disksByName">
        <source></source>
        <translation>場所にかかわらず、この名前のファイルとフォルダ</translation>
    </message>
    <message id="disksBySize">
        <source></source>
        <translation>すべてのフォルダ</translation>
    </message>
    <message id="disksLargerThan">
        <source></source>
        <translation>%1を超えるファイル</translation>
    </message>
    <message id="disksNamePrompt">
        <source></source>
        <translation>除外するファイルとフォルダの名前</translation>
    </message>
    <message id="disksNameHint">
        <source></source>
        <translation>*は任意の文字列、?は任意の1文字を表します。</translation>
    </message>
    <message id="disksSizePrompt">
        <source></source>
        <translation>除外するファイルのサイズの上限</translation>
    </message>
    <message id="disksCounting">
        <source></source>
        <translation>除外されるファイルを数えています…</translation>
    </message>
    <message id="disksPreview">
        <source></source>
        <translation>現在除外されるファイル：%1個（%2）</translation>
    </message>
    <message id="disksPreviewNothing">
        <source></source>
        <translation>現在除外されるファイルはありません。</translation>
    </message>
    <message id="disksLeaveOutTitle">
        <source></source>
        <translation>除外</translation>
    </message>
    <message id="disksListing">
        <source></source>
        <translation>ディスクを検索中…</translation>
    </message>
    <message id="disksListFailed">
        <source></source>
        <translation>ディスクを一覧表示できませんでした</translation>
    </message>
    <message id="disksEditTitle">
        <source></source>
        <translation>編集</translation>
    </message>
    <message id="disksAddPlaceTitle">
        <source></source>
        <translation>ネットワークの場所を追加</translation>
    </message>
    <message id="disksEditPlaceTitle">
        <source></source>
        <translation>「%1」へのアクセス</translation>
    </message>
    <message id="disksPlaceKind">
        <source></source>
        <translation>種類</translation>
    </message>
    <message id="disksPlaceSftp">
        <source></source>
        <translation>SFTP（SSH）</translation>
    </message>
    <message id="disksPlaceRest">
        <source></source>
        <translation>restic RESTサーバ</translation>
    </message>
    <message id="disksPlaceS3">
        <source></source>
        <translation>S3互換ストレージ</translation>
    </message>
    <message id="disksPlaceAddress">
        <source></source>
        <translation>アドレス</translation>
    </message>
    <message id="disksPlaceServer">
        <source></source>
        <translation>サーバ</translation>
    </message>
    <message id="disksPlacePort">
        <source></source>
        <translation>ポート</translation>
    </message>
    <message id="disksPlaceFolder">
        <source></source>
        <translation>フォルダ</translation>
    </message>
    <message id="disksPlacePath">
        <source></source>
        <translation>パス</translation>
    </message>
    <message id="disksPlaceBucket">
        <source></source>
        <translation>バケット</translation>
    </message>
    <message id="disksPlaceUser">
        <source></source>
        <translation>ユーザ名</translation>
    </message>
    <message id="disksPlaceKeyFile">
        <source></source>
        <translation>鍵ファイル</translation>
    </message>
    <message id="disksPlacePassword">
        <source></source>
        <translation>パスワード</translation>
    </message>
    <message id="disksPlaceAccessKey">
        <source></source>
        <translation>アクセスキー</translation>
    </message>
    <message id="disksPlaceSecretKey">
        <source></source>
        <translation>シークレットキー</translation>
    </message>
    <message id="disksPlaceRegion">
        <source></source>
        <translation>リージョン</translation>
    </message>
    <message id="disksPlaceSecure">
        <source></source>
        <translation>暗号化された接続（HTTPS）</translation>
    </message>
    <message id="disksPlaceCertificate">
        <source></source>
        <translation>証明書ファイル</translation>
    </message>
    <message id="disksPlaceUpload">
        <source></source>
        <translation>アップロードの上限</translation>
    </message>
    <message id="disksPlaceDownload">
        <source></source>
        <translation>ダウンロードの上限</translation>
    </message>
    <message id="disksPlaceNoLimit">
        <source></source>
        <translation>なし</translation>
    </message>
    <message id="disksPlaceUploadAtMost">
        <source></source>
        <translation>アップロードは最大%1</translation>
    </message>
    <message id="disksPlaceDownloadAtMost">
        <source></source>
        <translation>ダウンロードは最大%1</translation>
    </message>
    <message id="disksPlaceOptional">
        <source></source>
        <translation>任意</translation>
    </message>
    <message id="disksPlaceUnchanged">
        <source></source>
        <translation>変更なし</translation>
    </message>
    <message id="disksPlaceChooseTitle">
        <source></source>
        <translation>選択</translation>
    </message>
    <message id="disksPlaceNeeded">
        <source></source>
        <translation>未入力：%1</translation>
    </message>
    <message id="disksPlaceBadServer">
        <source></source>
        <translation>サーバは、nas.example.orgのように名前またはアドレスだけで指定してください。</translation>
    </message>
    <message id="disksPlaceBadPort">
        <source></source>
        <translation>ポートは1から65535までの数字です。</translation>
    </message>
    <message id="disksPlaceBadFolder">
        <source></source>
        <translation>フォルダは / で始めます。サーバ上の自分のフォルダの中にある場合は ~/ で始めます。</translation>
    </message>
    <message id="disksPlaceBadFile">
        <source></source>
        <translation>ファイルは / で始まる完全なパスで指定してください。</translation>
    </message>
    <message id="disksPlaceUserAndPassword">
        <source></source>
        <translation>ユーザ名とパスワードは、両方を入力するか、両方とも空にしてください。</translation>
    </message>
    <message id="disksPlaceTryTitle">
        <source></source>
        <translation>テスト</translation>
    </message>
    <message id="disksPlaceTrustTitle">
        <source></source>
        <translation>信頼</translation>
    </message>
    <message id="disksPlaceTakeUpTitle">
        <source></source>
        <translation>引き継ぐ</translation>
    </message>
    <message id="disksPlaceAsking">
        <source></source>
        <translation>サーバに問い合わせ中…</translation>
    </message>
    <message id="disksPlaceKeeping">
        <source></source>
        <translation>場所を設定中…</translation>
    </message>
    <message id="disksPlaceEmpty">
        <source></source>
        <translation>サーバを使用できます。ここにはまだバックアップがありません。</translation>
    </message>
    <message id="disksPlaceBackups">
        <source></source>
        <translation>サーバを使用できます。このコンピュータで読めるバックアップがあり、続きから使用されます。</translation>
    </message>
    <message id="disksPlaceWrongKey">
        <source></source>
        <translation>このコンピュータに鍵がないバックアップがあります。自分のものであれば復旧キーを入力すると続きから使用できます。そうでなければ別の場所を選んでください。</translation>
    </message>
    <message id="disksPlaceRecoveryKey">
        <source></source>
        <translation>復旧キー</translation>
    </message>
    <message id="disksPlaceFingerprint">
        <source></source>
        <translation>サーバの鍵のフィンガープリント</translation>
    </message>
    <message id="disksPlaceUnknownKey">
        <source></source>
        <translation>「%1」はこのコンピュータではまだ知られていません。鍵のフィンガープリントを管理者から聞いたものと比べ、同じ場合にだけ信頼してください。</translation>
    </message>
    <message id="disksPlaceChangedKey">
        <source></source>
        <translation>警告：「%1」の鍵が以前と異なります。通信が盗み見られているおそれがあります。サーバの管理者が変更とこのフィンガープリントを確認した場合にだけ、新しい鍵を信頼してください。</translation>
    </message>
    <message id="disksPlaceChangedKeyMessage">
        <source></source>
        <translation>「%1」の新しい鍵を信頼しますか？</translation>
    </message>
    <message id="disksPlaceChangedKeyInformative">
        <source></source>
        <translation>サーバ本来の鍵でない場合、送信した内容は別の誰かに届きます。</translation>
    </message>
    <message id="disksPlaceBadCertificate">
        <source></source>
        <translation>「%1」の証明書は信頼されていません。別のサーバの可能性があります。自分で発行した証明書の場合は、それまたは発行元の証明書を証明書ファイルとして選択してください。</translation>
    </message>
    <message id="disksPlaceAccessDeniedKey">
        <source></source>
        <translation>「%1」はユーザまたは鍵を拒否しました。両方を確認してください。公開鍵がサーバに設定されていて、鍵ファイルにパスフレーズがないことが必要です。</translation>
    </message>
    <message id="disksPlaceAccessDenied">
        <source></source>
        <translation>「%1」にアクセスを拒否されました。入力したユーザ名とパスワード、または鍵を確認してください。</translation>
    </message>
    <message id="disksPlaceNoPermission">
        <source></source>
        <translation>ここには書き込めません。サーバ上の別の場所を選ぶか、管理者に許可してもらってください。</translation>
    </message>
    <message id="disksPlaceNoAnswer">
        <source></source>
        <translation>「%1」が応答しません。サーバとポート、およびこのコンピュータがネットワークに接続されているかを確認してください。</translation>
    </message>
    <message id="disksPlaceNoSpace">
        <source></source>
        <translation>サーバに空き容量がありません。空きを作るか、別の場所を選んでください。</translation>
    </message>
    <message id="disksPlaceFailed">
        <source></source>
        <translation>サーバを使用できません：%1</translation>
    </message>
    <message id="disksPlaceRemoveInformative">
        <source></source>
        <translation>保存されているバックアップとその鍵は残り、サーバへのアクセス情報は消去されます。同じ場所をもう一度追加すると、続きから使用できます。</translation>
    </message>
    <message id="disksPlaceKeyExplanation">
        <source></source>
        <translation>このコンピュータを失っても、このキーとサーバへのアクセス情報があればバックアップを取り戻せます。書き留めるかページとして保存して、サーバへのアクセス情報とともにこのコンピュータとは別の場所に保管してください。両方を持つ人はバックアップを読むことができます。</translation>
    </message>
    <message id="disksPlacePageMade">
        <source></source>
        <translation>作成日：%1。このページはコンピュータとは別の場所に保管してください。このページとサーバへのアクセス情報を持つ人はバックアップを読むことができます。</translation>
    </message>
    <message id="disksPlacePageStart">
        <source></source>
        <translation>Quillonをインストールして、%1 を起動します。</translation>
    </message>
    <message id="disksPlacePageAdd">
        <source></source>
        <translation>「%1」を選択し、サーバとして %2 とアクセス情報を入力します。求められたら復旧キーを入力します。</translation>
    </message>
    <!-- Window of the backups on Linux -->
    <message id="browseWindowTitle">
        <source></source>
        <translation>Time Machineバックアップ</translation>
    </message>
    <message id="browseThisWeek">
        <source></source>
        <translation>今週</translation>
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
        <translation>損傷あり</translation>
    </message>
    <message id="browseIncomplete">
        <source></source>
        <translation>不完全</translation>
    </message>
    <message id="browseRestoring">
        <source></source>
        <translation>復元中 …</translation>
    </message>
    <message id="browseRestoreProgress">
        <source></source>
        <translation>%1/%2ファイル、%3/%4</translation>
    </message>
    <message id="browseRestoreStopped">
        <source></source>
        <translation>停止しました。まだ復元されていないものは元のままです。</translation>
    </message>
    <message id="browseRestoredCount">
        <source></source>
        <translation>復元済み: %1</translation>
    </message>
    <message id="browseSkippedCount">
        <source></source>
        <translation>スキップ: %1</translation>
    </message>
    <message id="browseLostCount">
        <source></source>
        <translation>復元できず: %1</translation>
    </message>
    <message id="browseConflictMessage">
        <source></source>
        <translation>“%1”はすでにあります。</translation>
    </message>
    <message id="browseNameColumn">
        <source></source>
        <translation>名前</translation>
    </message>
    <message id="browseSizeColumn">
        <source></source>
        <translation>サイズ</translation>
    </message>
    <message id="browseModifiedColumn">
        <source></source>
        <translation>変更日</translation>
    </message>
    <message id="browseSinceColumn">
        <source></source>
        <translation>その後</translation>
    </message>
    <message id="browseFolderColumn">
        <source></source>
        <translation>フォルダ</translation>
    </message>
    <message id="browseBackupColumn">
        <source></source>
        <translation>バックアップ</translation>
    </message>
    <message id="browseSortTip">
        <source></source>
        <translation>この列で並べ替え（%1）</translation>
    </message>
    <message id="browseChanged">
        <source></source>
        <translation>変更</translation>
    </message>
    <message id="browseGone">
        <source></source>
        <translation>削除</translation>
    </message>
    <message id="browseFolderKind">
        <source></source>
        <translation>フォルダ</translation>
    </message>
    <message id="browseLinkTo">
        <source></source>
        <translation>%1へのリンク</translation>
    </message>
    <message id="browseDiskLabel">
        <source></source>
        <translation>バックアップ先</translation>
    </message>
    <message id="browseTimelineName">
        <source></source>
        <translation>バックアップ</translation>
    </message>
    <message id="browseFilesName">
        <source></source>
        <translation>バックアップ内のファイル</translation>
    </message>
    <message id="browsePathLabel">
        <source></source>
        <translation>バックアップ内のフォルダ</translation>
    </message>
    <message id="browseBackTitle">
        <source></source>
        <translation>戻る</translation>
    </message>
    <message id="browseUpTitle">
        <source></source>
        <translation>上位のフォルダ</translation>
    </message>
    <message id="browseSearchPrompt">
        <source></source>
        <translation>名前で検索</translation>
    </message>
    <message id="browseAllBackups">
        <source></source>
        <translation>すべてのバックアップ</translation>
    </message>
    <message id="browseVersionsName">
        <source></source>
        <translation>バージョン</translation>
    </message>
    <message id="browseVersionsHint">
        <source></source>
        <translation>ファイルを選択すると、そのバージョンが表示されます。</translation>
    </message>
    <message id="browseNoVersions">
        <source></source>
        <translation>どのバックアップにもありません。</translation>
    </message>
    <message id="browsePreviewTitle">
        <source></source>
        <translation>プレビュー</translation>
    </message>
    <message id="browseRestoreTitle">
        <source></source>
        <translation>復元</translation>
    </message>
    <message id="browseReading">
        <source></source>
        <translation>読み込み中 …</translation>
    </message>
    <message id="browseEmptyFolder">
        <source></source>
        <translation>このフォルダは空です。</translation>
    </message>
    <message id="browseNothingFound">
        <source></source>
        <translation>その名前のものは見つかりませんでした。</translation>
    </message>
    <message id="browseSearching">
        <source></source>
        <translation>検索中 …</translation>
    </message>
    <message id="browseFilling">
        <source></source>
        <translation>検索のためバックアップ全体を読み込み中: %1</translation>
    </message>
    <message id="browseReadFailed">
        <source></source>
        <translation>読み込めませんでした: %1</translation>
    </message>
    <message id="browseNoDiskMessage">
        <source></source>
        <translation>バックアップディスクもネットワークの場所も設定されていません。Time Machineの設定で選択すると、ファイルがバックアップされます。</translation>
    </message>
    <message id="browseNoBackupMessage">
        <source></source>
        <translation>見られるバックアップがありません。バックアップディスクまたはネットワークに接続するか、最初のバックアップをお待ちください。</translation>
    </message>
    <message id="browseSettingsTitle">
        <source></source>
        <translation>Time Machineの設定</translation>
    </message>
    <message id="browsePreviewing">
        <source></source>
        <translation>“%1”を取り出し中 …</translation>
    </message>
    <message id="browsePreviewFailed">
        <source></source>
        <translation>“%1”を表示できません。</translation>
    </message>
    <message id="browseNoProgram">
        <source></source>
        <translation>開けるプログラムがありません。</translation>
    </message>
    <message id="browseRestoreHeading">
        <source></source>
        <translation>“%1”を復元</translation>
    </message>
    <message id="browseRestoreManyHeading">
        <source></source>
        <translation>%1項目を復元</translation>
    </message>
    <message id="browseFromBackup">
        <source></source>
        <translation>%1のバックアップから</translation>
    </message>
    <message id="browseToItsPlace">
        <source></source>
        <translation>元の場所へ</translation>
    </message>
    <message id="browseToFolder">
        <source></source>
        <translation>別のフォルダへ</translation>
    </message>
    <message id="browseChooseFolderTitle">
        <source></source>
        <translation>フォルダを選択</translation>
    </message>
    <message id="browseNothingOverwritten">
        <source></source>
        <translation>確認なしに上書きされることはありません。</translation>
    </message>
    <message id="browseKeepBothTitle">
        <source></source>
        <translation>両方を残す</translation>
    </message>
    <message id="browseReplaceTitle">
        <source></source>
        <translation>置き換える</translation>
    </message>
    <message id="browseSkipTitle">
        <source></source>
        <translation>スキップ</translation>
    </message>
    <message id="browseForAll">
        <source></source>
        <translation>残りすべてに適用</translation>
    </message>
    <message id="browseStopTitle">
        <source></source>
        <translation>停止</translation>
    </message>
    <message id="browseStopping">
        <source></source>
        <translation>停止中 …</translation>
    </message>
    <message id="browseLossesName">
        <source></source>
        <translation>復元できなかったもの</translation>
    </message>
    <!-- The log of backups -->
    <message id="logWindowTitle">
        <source></source>
        <translation>バックアップログ</translation>
    </message>
    <message id="logDateTitle">
        <source></source>
        <translation>日時</translation>
    </message>
    <message id="logOutcomeTitle">
        <source></source>
        <translation>結果</translation>
    </message>
    <message id="logCauseTitle">
        <source></source>
        <translation>開始元</translation>
    </message>
    <message id="logDiskTitle">
        <source></source>
        <translation>ディスク</translation>
    </message>
    <message id="logSizeTitle">
        <source></source>
        <translation>コピー量</translation>
    </message>
    <message id="logDurationTitle">
        <source></source>
        <translation>所要時間</translation>
    </message>
    <message id="logBytesTitle">
        <source></source>
        <translation>バイト</translation>
    </message>
    <message id="logBeganTitle">
        <source></source>
        <translation>開始</translation>
    </message>
    <message id="logEndedTitle">
        <source></source>
        <translation>終了</translation>
    </message>
    <message id="logReasonTitle">
        <source></source>
        <translation>理由</translation>
    </message>
    <message id="logRunningTitle">
        <source></source>
        <translation>実行中</translation>
    </message>
    <message id="logCompletedTitle">
        <source></source>
        <translation>完了</translation>
    </message>
    <message id="logFailedTitle">
        <source></source>
        <translation>失敗</translation>
    </message>
    <message id="logStoppedTitle">
        <source></source>
        <translation>停止</translation>
    </message>
    <message id="logUnseenTitle">
        <source></source>
        <translation>未確認</translation>
    </message>
    <message id="logSkippedTitle">
        <source></source>
        <translation>スキップ</translation>
    </message>
    <message id="logMissedTitle">
        <source></source>
        <translation>未実行</translation>
    </message>
    <message id="logRefusedTitle">
        <source></source>
        <translation>拒否</translation>
    </message>
    <message id="logScheduleTitle">
        <source></source>
        <translation>スケジュール</translation>
    </message>
    <message id="logRetryTitle">
        <source></source>
        <translation>再試行</translation>
    </message>
    <message id="logUserTitle">
        <source></source>
        <translation>ユーザ</translation>
    </message>
    <message id="logElsewhereTitle">
        <source></source>
        <translation>Quillon以外</translation>
    </message>
    <message id="logAllTitle">
        <source></source>
        <translation>すべて</translation>
    </message>
    <message id="logNoBackupTitle">
        <source></source>
        <translation>バックアップなし</translation>
    </message>
    <message id="logDaysMessage">
        <source></source>
        <translation>過去%1日間：バックアップあり%2日、問題のみ%3日</translation>
    </message>
    <message id="logCopyTitle">
        <source></source>
        <translation>テキストとしてコピー</translation>
    </message>
    <message id="logSaveTitle">
        <source></source>
        <translation>CSVとして保存</translation>
    </message>
    <message id="logSaveFailedTitle">
        <source></source>
        <translation>ログを保存できませんでした。</translation>
    </message>
    <message id="logEmptyMessage">
        <source></source>
        <translation>まだ記録がありません。</translation>
    </message>
    <message id="logNothingFoundMessage">
        <source></source>
        <translation>一致する項目はありません。</translation>
    </message>
    <message id="logUnreadableMessage">
        <source></source>
        <translation>ログを読み込めませんでした。バックアップは引き続き作成されます。</translation>
    </message>
    <message id="logNextMessage">
        <source></source>
        <translation>次の予定：%1</translation>
    </message>
    <message id="logAskedMessage">
        <source></source>
        <translation>この開始はコマンドによりスキップされました。</translation>
    </message>
    <message id="logOnBatteryMessage">
        <source></source>
        <translation>コンピュータはバッテリーで動作していました。次のバックアップの時刻より前に電源に接続されると、このバックアップが実行されます。</translation>
    </message>
    <message id="logPausedMessage">
        <source></source>
        <translation>スケジュールが一時停止されていました。再開するにはメニューから操作してください。</translation>
    </message>
    <message id="logAsleepMessage">
        <source></source>
        <translation>コンピュータがスリープしていました。起動している時刻を選ぶか、実行できなかったバックアップの再試行を有効にしてください。</translation>
    </message>
    <message id="logClockSetMessage">
        <source></source>
        <translation>時計がこの時刻より先に進められたか、コンピュータの負荷が高すぎました。</translation>
    </message>
    <message id="logBackupRanMessage">
        <source></source>
        <translation>別のバックアップがすでに実行中で、代わりとなりました。</translation>
    </message>
    <message id="logOvertakenMessage">
        <source></source>
        <translation>同時に別のバックアップが開始され、代わりとなりました。</translation>
    </message>
    <message id="logStatusUnreadableMessage">
        <source></source>
        <translation>Time Machineの状況を取得できませんでした。繰り返される場合は、コンピュータを再起動してください。</translation>
    </message>
    <message id="logSettingsChangedMessage">
        <source></source>
        <translation>ちょうどその時にスケジュールが一時停止または切り替えられました。</translation>
    </message>
    <message id="logIncompleteMessage">
        <source></source>
        <translation>バックアップが完了前に終了しました。ディスクが接続され、空きがあることを確認してください。</translation>
    </message>
    <message id="logStoppedElsewhereMessage">
        <source></source>
        <translation>バックアップはQuillon以外で停止されました。</translation>
    </message>
    <message id="logNeverReportedMessage">
        <source></source>
        <translation>Time Machineは開始を受け付けましたが、バックアップは確認できませんでした。短すぎた可能性があります。</translation>
    </message>
    <message id="logNotFollowedMessage">
        <source></source>
        <translation>バックアップの終了前にQuillonが終了しました。完了したかどうかはバックアップを表示して確認してください。</translation>
    </message>
</context>
</TS>
