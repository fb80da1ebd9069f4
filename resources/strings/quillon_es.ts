<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<!-- Code adds the colon or the ellipsis that a title stands before; texts have none, but for scheduleTitle. -->
<context>
    <name></name>
    <!-- Days -->
    <message id="todayTitle">
        <source></source>
        <translation>Hoy</translation>
    </message>
    <message id="tomorrowTitle">
        <source></source>
        <translation>Mañana</translation>
    </message>
    <message id="yesterdayTitle">
        <source></source>
        <translation>Ayer</translation>
    </message>
    <!-- What Time Machine is doing -->
    <message id="notAvailableAbbreviation">
        <source></source>
        <translation>N/D</translation>
    </message>
    <message id="tmPhaseDefault">
        <source></source>
        <translation>Inactivo</translation>
    </message>
    <message id="tmPhaseUnknown">
        <source></source>
        <translation>Desconocido</translation>
    </message>
    <message id="tmPhaseStarting">
        <source></source>
        <translation>Iniciando</translation>
    </message>
    <message id="tmPhaseLookingForDisk">
        <source></source>
        <translation>Buscando el disco de copia de seguridad</translation>
    </message>
    <message id="tmPhaseConnectingToDisk">
        <source></source>
        <translation>Conectando con el disco de copia de seguridad</translation>
    </message>
    <message id="tmPhasePreparingBackup">
        <source></source>
        <translation>Preparando la copia de seguridad</translation>
    </message>
    <message id="tmPhaseCopying">
        <source></source>
        <translation>Copiando</translation>
    </message>
    <message id="tmPhaseCleaningUp">
        <source></source>
        <translation>Haciendo limpieza</translation>
    </message>
    <message id="tmPhaseHealthCheck">
        <source></source>
        <translation>Comprobando la copia de seguridad</translation>
    </message>
    <message id="tmPhaseFinishing">
        <source></source>
        <translation>Finalizando</translation>
    </message>
    <!-- Alerts -->
    <message id="AlertButtonClose">
        <source></source>
        <translation>Cerrar</translation>
    </message>
    <message id="AlertButtonProvidePermission">
        <source></source>
        <translation>Dar permiso</translation>
    </message>
    <message id="permissionRequiredAlertTitle">
        <source></source>
        <translation>Se necesita permiso</translation>
    </message>
    <message id="timeMachinePermissionRequiredAlertMessage">
        <source></source>
        <translation>Para abrir las preferencias de Time Machine, haz clic en “%1” y permite que %2 controle Preferencias del Sistema. Después, vuelve a intentarlo.</translation>
    </message>
    <!-- Menu bar title -->
    <message id="nextBackupShortTitle">
        <source></source>
        <translation>Próxima</translation>
    </message>
    <message id="retryBackupShortTitle">
        <source></source>
        <translation>Reintento</translation>
    </message>
    <message id="statusStarting">
        <source></source>
        <translation>Iniciando</translation>
    </message>
    <message id="statusRunning">
        <source></source>
        <translation>En curso</translation>
    </message>
    <message id="statusStopping">
        <source></source>
        <translation>Deteniendo</translation>
    </message>
    <!-- What the icon stands for -->
    <message id="iconRunningDescription">
        <source></source>
        <translation>Hay una copia en curso.</translation>
    </message>
    <message id="iconFailedDescription">
        <source></source>
        <translation>La última copia ha fallado.</translation>
    </message>
    <message id="iconMissedDescription">
        <source></source>
        <translation>No se realizó una copia programada.</translation>
    </message>
    <message id="iconUpdateDescription">
        <source></source>
        <translation>Hay una actualización disponible.</translation>
    </message>
    <!-- Why sleep waits for a moment -->
    <message id="sleepWaitsMessage">
        <source></source>
        <translation>Se está deteniendo la programación de las copias.</translation>
    </message>
    <!-- Menu -->
    <message id="latestBackupTitle">
        <source></source>
        <translation>Última copia</translation>
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
        <translation>Disco de copia de seguridad</translation>
    </message>
    <message id="nextBackupTitle">
        <source></source>
        <translation>Próxima copia</translation>
    </message>
    <message id="nextBackupDisabled">
        <source></source>
        <translation>Desactivada</translation>
    </message>
    <message id="nextBackupNotAvailable">
        <source></source>
        <translation>No hay ninguna copia programada</translation>
    </message>
    <message id="retryAttemptTitle">
        <source></source>
        <translation>Reintento</translation>
    </message>
    <message id="remainingTimeTitle">
        <source></source>
        <translation>Tiempo restante</translation>
    </message>
    <message id="calculatingTitle">
        <source></source>
        <translation>Calculando</translation>
    </message>
    <message id="backupNowTitle">
        <source></source>
        <translation>Realizar copia de seguridad ahora</translation>
    </message>
    <message id="skipThisBackupTitle">
        <source></source>
        <translation>Omitir esta copia de seguridad</translation>
    </message>
    <message id="skipThisBackupTitleVentura">
        <source></source>
        <translation>Omitir esta copia de seguridad</translation>
    </message>
    <message id="skipRetryAttemptTitle">
        <source></source>
        <translation>Omitir reintento</translation>
    </message>
    <message id="enterTimeMachineTitle">
        <source></source>
        <translation>Entrar en Time Machine</translation>
    </message>
    <message id="enterTimeMachineTitleVentura">
        <source></source>
        <translation>Explorar copias de seguridad de Time Machine</translation>
    </message>
    <message id="openSystemPreferencesTitle">
        <source></source>
        <translation>Abrir preferencias de Time Machine</translation>
    </message>
    <message id="openSystemPreferencesTitleVentura">
        <source></source>
        <translation>Abrir ajustes de Time Machine</translation>
    </message>
    <message id="updateAvailableMenuTitle">
        <source></source>
        <translation>Actualización disponible</translation>
    </message>
    <message id="preferencesMenuTitle">
        <source></source>
        <translation>Ajustes</translation>
    </message>
    <message id="aboutMenuTitle">
        <source></source>
        <translation>Acerca de Quillon</translation>
    </message>
    <message id="quitApplicationTitle">
        <source></source>
        <translation>Salir de %1</translation>
    </message>
    <!-- Pause -->
    <message id="pauseScheduleForTitle">
        <source></source>
        <translation>Pausar la programación durante</translation>
    </message>
    <message id="pauseScheduleUntilTitle">
        <source></source>
        <translation>Programación en pausa hasta</translation>
    </message>
    <message id="resumeScheduleTitle">
        <source></source>
        <translation>Reanudar la programación</translation>
    </message>
    <message id="oneHourTitle">
        <source></source>
        <translation>1 hora</translation>
    </message>
    <message id="twoHoursTitle">
        <source></source>
        <translation>2 horas</translation>
    </message>
    <message id="fourHoursTitle">
        <source></source>
        <translation>4 horas</translation>
    </message>
    <message id="eightHoursTitle">
        <source></source>
        <translation>8 horas</translation>
    </message>
    <message id="twelveHoursTitle">
        <source></source>
        <translation>12 horas</translation>
    </message>
    <message id="oneDayTitle">
        <source></source>
        <translation>1 día</translation>
    </message>
    <message id="twoDaysTitle">
        <source></source>
        <translation>2 días</translation>
    </message>
    <message id="threeDaysTitle">
        <source></source>
        <translation>3 días</translation>
    </message>
    <message id="fourDaysTitle">
        <source></source>
        <translation>4 días</translation>
    </message>
    <message id="fiveDaysTitle">
        <source></source>
        <translation>5 días</translation>
    </message>
    <message id="sixDaysTitle">
        <source></source>
        <translation>6 días</translation>
    </message>
    <message id="oneWeekTitle">
        <source></source>
        <translation>1 semana</translation>
    </message>
    <message id="twoWeeksTitle">
        <source></source>
        <translation>2 semanas</translation>
    </message>
    <message id="threeWeeksTitle">
        <source></source>
        <translation>3 semanas</translation>
    </message>
    <message id="fourWeeksTitle">
        <source></source>
        <translation>4 semanas</translation>
    </message>
    <!-- The menu as it opens -->
    <message id="letMacOsDecideBackupDiskTitle">
        <source></source>
        <translation>Dejar que Time Machine elija</translation>
    </message>
    <message id="mostRecentTitle">
        <source></source>
        <translation>el más reciente</translation>
    </message>
    <message id="latestBackupOfEachDestinationTitle">
        <source></source>
        <translation>Última copia de cada disco</translation>
    </message>
    <message id="allBackupInfoHelpMessage">
        <source></source>
        <translation>Esta lista muestra, para cada disco de copia de seguridad, la última copia que Quillon ha visto finalizar. Un disco sin fecha no ha recibido ninguna copia completa desde que se instaló Quillon.</translation>
    </message>
    <message id="helpButtonTitle">
        <source></source>
        <translation>Ayuda</translation>
    </message>
    <!-- What the commands tell -->
    <message id="AlertTitleWarning">
        <source></source>
        <translation>Advertencia</translation>
    </message>
    <message id="failedToStartBackupMessage">
        <source></source>
        <translation>No se ha podido iniciar la copia de seguridad. Time Machine ha respondido con el código de error %1.</translation>
    </message>
    <message id="startDiskAwayMessage">
        <source></source>
        <translation>El disco de copia de seguridad no está conectado, o no se puede acceder al servidor de las copias.</translation>
    </message>
    <message id="startResticMissingMessage">
        <source></source>
        <translation>El programa restic, que hace las copias, no está instalado.</translation>
    </message>
    <message id="appUpdateAvailableAlertTitle">
        <source></source>
        <translation>Quillon %1 está disponible</translation>
    </message>
    <message id="appUpdateAvailableAlertMessage">
        <source></source>
        <translation>Tienes la versión %1. Se abrirá la página de descarga en el navegador y se cerrará Quillon para poder sustituirlo.</translation>
    </message>
    <message id="AlertButtonGetUpdate">
        <source></source>
        <translation>Obtener actualización</translation>
    </message>
    <message id="AlertButtonCancel">
        <source></source>
        <translation>Cancelar</translation>
    </message>
    <!-- The user’s own programs -->
    <message id="hookStoppedBackupMessage">
        <source></source>
        <translation>El programa «before» ha impedido que se iniciara la copia de seguridad.</translation>
    </message>
    <message id="hookNotRunMessage">
        <source></source>
        <translation>«%1» no se ha ejecutado. Debe ser un archivo ejecutable que solo tú puedas modificar, en una carpeta que solo tú puedas modificar.</translation>
    </message>
    <message id="hookTooLongMessage">
        <source></source>
        <translation>«%1» se ha detenido al cabo de diez minutos.</translation>
    </message>
    <message id="hookStatusMessage">
        <source></source>
        <translation>«%1» ha terminado con el estado de salida %2.</translation>
    </message>
    <!-- Notifications of the desktop -->
    <message id="backupFailedTitle">
        <source></source>
        <translation>La copia ha fallado</translation>
    </message>
    <message id="backupFailedMessage">
        <source></source>
        <translation>La última copia de seguridad terminó antes de completarse.</translation>
    </message>
    <message id="noBackupForDaysTitle">
        <source></source>
        <translation>No hay copias recientes</translation>
    </message>
    <message id="noBackupForDaysMessage">
        <source></source>
        <translation>La última copia de seguridad se completó el %1.</translation>
    </message>
    <message id="noBackupYetMessage">
        <source></source>
        <translation>Aún no se ha completado ninguna copia de seguridad.</translation>
    </message>
    <message id="startWithoutRunTitle">
        <source></source>
        <translation>La copia no se ha iniciado</translation>
    </message>
    <message id="startWithoutRunMessage">
        <source></source>
        <translation>Time Machine aceptó iniciar una copia de seguridad, pero no hay ninguna en curso.</translation>
    </message>
    <message id="noProgressTitle">
        <source></source>
        <translation>La copia no avanza</translation>
    </message>
    <message id="noProgressMessage">
        <source></source>
        <translation>La copia de seguridad en curso no avanza desde hace media hora.</translation>
    </message>
    <message id="damageFoundTitle">
        <source></source>
        <translation>Las copias están dañadas</translation>
    </message>
    <message id="damageFoundMessage">
        <source></source>
        <translation>Time Machine ha encontrado daños en tus copias de seguridad. Es posible que algunos archivos no puedan restaurarse.</translation>
    </message>
    <message id="startAheadTitle">
        <source></source>
        <translation>La copia se iniciará en breve</translation>
    </message>
    <message id="startAheadMessage">
        <source></source>
        <translation>Próxima copia de seguridad: %1.</translation>
    </message>
    <message id="startAheadSkipTitle">
        <source></source>
        <translation>Omitir</translation>
    </message>
    <message id="startAheadPostponeTitle">
        <source></source>
        <translation>En una hora</translation>
    </message>
    <!-- Where there is no Time Machine application -->
    <!-- The schedule in the settings panel -->
    <message id="settingsGroupSchedule">
        <source></source>
        <translation>Copias programadas</translation>
    </message>
    <message id="settingsEnableScheduledBackupsVia">
        <source></source>
        <translation>Programar copias de seguridad por</translation>
    </message>
    <message id="settingsOptionCalendarInterval">
        <source></source>
        <translation>día y hora</translation>
    </message>
    <message id="settingsOptionInterval">
        <source></source>
        <translation>intervalo</translation>
    </message>
    <message id="scheduleTitle">
        <source></source>
        <translation>Programación:</translation>
    </message>
    <message id="warningButtonTitle">
        <source></source>
        <translation>Advertencia sobre las copias automáticas</translation>
    </message>
    <message id="setupDisksButtonTitle">
        <source></source>
        <translation>Acerca de los discos de copia de seguridad</translation>
    </message>
    <message id="addRuleTitle">
        <source></source>
        <translation>Añadir regla</translation>
    </message>
    <message id="deleteRuleTitle">
        <source></source>
        <translation>Eliminar regla</translation>
    </message>
    <!-- A rule as one sentence: back up, day, at, time of day -->
    <message id="backupTitle">
        <source></source>
        <translation>Hacer copia</translation>
    </message>
    <message id="everyDayTitle">
        <source></source>
        <translation>todos los días</translation>
    </message>
    <message id="weekdaysTitle">
        <source></source>
        <translation>de lunes a viernes</translation>
    </message>
    <message id="mondayTitle">
        <source></source>
        <translation>todos los lunes</translation>
    </message>
    <message id="tuesdayTitle">
        <source></source>
        <translation>todos los martes</translation>
    </message>
    <message id="wednesdayTitle">
        <source></source>
        <translation>todos los miércoles</translation>
    </message>
    <message id="thursdayTitle">
        <source></source>
        <translation>todos los jueves</translation>
    </message>
    <message id="fridayTitle">
        <source></source>
        <translation>todos los viernes</translation>
    </message>
    <message id="saturdayTitle">
        <source></source>
        <translation>todos los sábados</translation>
    </message>
    <message id="sundayTitle">
        <source></source>
        <translation>todos los domingos</translation>
    </message>
    <message id="atTimeTitle">
        <source></source>
        <translation>a las</translation>
    </message>
    <!-- The interval page; the unit stands behind any number from 1 on -->
    <message id="settingsIntervalEvery">
        <source></source>
        <translation>Hacer copia cada</translation>
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
        <translation>El intervalo aún no se utiliza: las copias se inician los días y a las horas de las reglas.</translation>
    </message>
    <!-- The other groups of the settings panel -->
    <message id="settingsGroupRetry">
        <source></source>
        <translation>Reintento</translation>
    </message>
    <message id="settingsEnableAfterMissedBackup">
        <source></source>
        <translation>Reintentar tras una copia no realizada</translation>
    </message>
    <message id="settingsEnableAfterFailedBackup">
        <source></source>
        <translation>Reintentar tras una copia fallida</translation>
    </message>
    <message id="settingsGroupMenuBar">
        <source></source>
        <translation>Barra de menús</translation>
    </message>
    <message id="settingsShowDetailedTimeInMenuBar">
        <source></source>
        <translation>Mostrar tiempos detallados</translation>
    </message>
    <message id="settingsShowDetailedTimeInMenuBarDetails">
        <source></source>
        <translation>Por ejemplo, “1h 30min” en vez de “1h”.</translation>
    </message>
    <message id="settingsShowMenuBarIconOnly">
        <source></source>
        <translation>Mostrar solo el icono</translation>
    </message>
    <message id="settingsDisableIconColors">
        <source></source>
        <translation>Colorear el icono cuando requiera atención</translation>
    </message>
    <message id="settingsGroupDisks">
        <source></source>
        <translation>Discos e inicio de sesión</translation>
    </message>
    <message id="settingsRotateBackupDisks">
        <source></source>
        <translation>Alternar entre los discos de copia de seguridad</translation>
    </message>
    <message id="settingsStartOnSystemStart">
        <source></source>
        <translation>Abrir Quillon al iniciar sesión</translation>
    </message>
    <message id="loginItemRefusedMessage">
        <source></source>
        <translation>El sistema no ha aceptado el cambio: lo que se abre al iniciar sesión queda como estaba.</translation>
    </message>
    <!-- The second page of the settings panel; a number stands behind what is not a sentence -->
    <message id="settingsMoreTitle">
        <source></source>
        <translation>Más</translation>
    </message>
    <message id="settingsBackTitle">
        <source></source>
        <translation>Atrás</translation>
    </message>
    <message id="settingsGroupPower">
        <source></source>
        <translation>Energía</translation>
    </message>
    <message id="settingsOnlyOnMainsPower">
        <source></source>
        <translation>Iniciar copias solo con corriente</translation>
    </message>
    <message id="settingsChargeThatSuffices">
        <source></source>
        <translation>O si la carga supera el</translation>
    </message>
    <message id="settingsPerCent">
        <source></source>
        <translation>%1 %</translation>
    </message>
    <message id="settingsStayAwake">
        <source></source>
        <translation>Evitar el reposo durante las copias de Quillon</translation>
    </message>
    <message id="settingsStartWhenDiskAppears">
        <source></source>
        <translation>Reintentar cuando aparezca el disco de copia</translation>
    </message>
    <message id="settingsMinutesAfterWake">
        <source></source>
        <translation>Tras la activación, esperar</translation>
    </message>
    <message id="settingsMinutes">
        <source></source>
        <translation>%1 min</translation>
    </message>
    <message id="settingsGroupNotifications">
        <source></source>
        <translation>Notificaciones</translation>
    </message>
    <message id="settingsDaysWithoutBackup">
        <source></source>
        <translation>Ninguna copia completada desde hace</translation>
    </message>
    <message id="settingsDays">
        <source></source>
        <translation>%1 días</translation>
    </message>
    <message id="settingsDay">
        <source></source>
        <translation>%1 día</translation>
    </message>
    <message id="settingsTellBeforeStart">
        <source></source>
        <translation>Un minuto antes de que se inicie una copia</translation>
    </message>
    <!-- Alerts of the settings panel -->
    <message id="maximumRulesReachedTitle">
        <source></source>
        <translation>No se pueden añadir más reglas</translation>
    </message>
    <message id="maximumRulesReachedMessage">
        <source></source>
        <translation>Una programación admite como máximo %1 reglas. En su lugar, cambia o elimina una de ellas.</translation>
    </message>
    <message id="confirmDeleteRuleTitle">
        <source></source>
        <translation>¿Eliminar esta regla?</translation>
    </message>
    <message id="confirmDeleteRuleMessage">
        <source></source>
        <translation>La regla se elimina y Quillon deja de iniciar copias a la hora que indica.</translation>
    </message>
    <message id="retryAfterMissedBackupTitle">
        <source></source>
        <translation>Reintentar tras una copia no realizada</translation>
    </message>
    <message id="retryAfterMissedBackupMessage">
        <source></source>
        <translation>Si el equipo está en reposo a la hora de una copia programada, la copia se inicia unos cinco minutos después de que se active. Mientras la programación está en pausa no hay reintentos.</translation>
    </message>
    <message id="retryAfterFailedBackupTitle">
        <source></source>
        <translation>Reintentar tras una copia fallida</translation>
    </message>
    <message id="retryAfterFailedBackupMessage">
        <source></source>
        <translation>Si una copia termina antes de completarse, Quillon vuelve a intentarlo unos cinco minutos después. Las copias que detienes tú no se reintentan, y mientras la programación está en pausa no hay reintentos.</translation>
    </message>
    <message id="AlertButtonOk">
        <source></source>
        <translation>Aceptar</translation>
    </message>
    <message id="AlertButtonDelete">
        <source></source>
        <translation>Eliminar</translation>
    </message>
    <!-- The first launch; the instruction is also the text of the settings panel's warning -->
    <message id="firstStartInfoAlertTitle">
        <source></source>
        <translation>Te damos la bienvenida a %1</translation>
    </message>
    <message id="firstStartInfoAlertMessage">
        <source></source>
        <translation>%2 está en la barra de menús. Inicia tus copias de seguridad a las horas que elijas en sus ajustes.

%1</translation>
    </message>
    <message id="disableTmInstruction">
        <source></source>
        <translation>Si Time Machine también hace copias automáticas, desactívalas para que las copias solo se inicien cuando las hayas programado. En un Mac, abre Preferencias del Sistema, haz clic en Time Machine y desmarca las copias de seguridad automáticas.</translation>
    </message>
    <message id="disableTmInstructionVentura">
        <source></source>
        <translation>Si Time Machine también hace copias automáticas, desactívalas para que las copias solo se inicien cuando las hayas programado. En un Mac, abre Ajustes del Sistema, selecciona General &gt; Time Machine &gt; Opciones y elige “Manualmente” como frecuencia de las copias.</translation>
    </message>
    <message id="setupDisksMessage">
        <source></source>
        <translation>Las copias de seguridad se hacen en:
%1

Los discos de copia de seguridad se añaden y se quitan en los ajustes de Time Machine.</translation>
    </message>
    <message id="setupNoDiskMessage">
        <source></source>
        <translation>Aún no hay ningún disco de copia de seguridad configurado, y sin él no puede iniciarse ninguna copia. Añade uno en los ajustes de Time Machine.</translation>
    </message>
    <message id="setupUnknownDisksMessage">
        <source></source>
        <translation>Los discos de copia de seguridad se eligen en los ajustes de Time Machine.</translation>
    </message>
    <message id="AlertButtonHelp">
        <source></source>
        <translation>Ayuda</translation>
    </message>
    <!-- The about panel -->
    <message id="versionTitle">
        <source></source>
        <translation>Versión</translation>
    </message>
    <message id="copyrightTitle">
        <source></source>
        <translation>© %1 los autores de Quillon</translation>
    </message>
    <message id="supportDetailsMessage">
        <source></source>
        <translation>¿Alguna pregunta, idea o problema? Escríbenos.</translation>
    </message>
    <message id="websiteButtonTitle">
        <source></source>
        <translation>Sitio web</translation>
    </message>
    <message id="creditsTitle">
        <source></source>
        <translation>Quillon se basa en Qt, ICU y libplist. En Linux, restic hace las copias.</translation>
    </message>
    <message id="appIconCreditsTitle">
        <source></source>
        <translation>Icono de %1</translation>
    </message>
    <message id="privacyPolicyDetailsMessage">
        <source></source>
        <translation>Quillon no envía nada sobre ti ni sobre tus archivos.</translation>
    </message>
    <message id="termsButtonTitle">
        <source></source>
        <translation>Condiciones de uso</translation>
    </message>
    <message id="privacyPolicyAlertTitle">
        <source></source>
        <translation>Política de privacidad</translation>
    </message>
    <message id="privacyPolicyAlertMessage">
        <source></source>
        <translation>%1 guarda tus ajustes y el registro de tus copias en este equipo. Para saber si hay versiones nuevas, %1 consulta un servicio de su fabricante; la petición identifica a %1, no a ti. La política de privacidad completa de %1 está en el sitio web.</translation>
    </message>
    <message id="AlertButtonReadMore">
        <source></source>
        <translation>Leer más</translation>
    </message>
    <message id="AlertMessageMailNotConfigured">
        <source></source>
        <translation>No se ha podido abrir ninguna app de correo. Escribe a %1.</translation>
    </message>
    <!-- Window of the Time Machine settings on Linux -->
    <message id="disksWindowTitle">
        <source></source>
        <translation>Time Machine</translation>
    </message>
    <message id="disksDisksTitle">
        <source></source>
        <translation>Discos de copia de seguridad</translation>
    </message>
    <message id="disksSourcesTitle">
        <source></source>
        <translation>Carpetas</translation>
    </message>
    <message id="disksExclusionsTitle">
        <source></source>
        <translation>Exclusiones</translation>
    </message>
    <message id="disksDisksExplanation">
        <source></source>
        <translation>Las copias de seguridad se hacen en estos discos y ubicaciones de red. Las copias están cifradas; lo demás que haya en un disco no se toca. Las claves se guardan en tu carpeta personal.</translation>
    </message>
    <message id="disksSourcesExplanation">
        <source></source>
        <translation>Se hace copia de seguridad de estas carpetas con todo su contenido.</translation>
    </message>
    <message id="disksExclusionsExplanation">
        <source></source>
        <translation>Estos archivos y carpetas se excluyen de todas las copias de seguridad.</translation>
    </message>
    <message id="disksNoDisks">
        <source></source>
        <translation>Aún no hay ningún disco de copia de seguridad. Para empezar, añade un disco, una carpeta de un disco o una ubicación de red.</translation>
    </message>
    <message id="disksNoExclusions">
        <source></source>
        <translation>No hay exclusiones. Añade lo que no necesite copia de seguridad, como descargas que puedas volver a obtener.</translation>
    </message>
    <message id="disksReading">
        <source></source>
        <translation>Leyendo los ajustes…</translation>
    </message>
    <message id="disksConnected">
        <source></source>
        <translation>Conectado</translation>
    </message>
    <message id="disksNotConnected">
        <source></source>
        <translation>No conectado</translation>
    </message>
    <message id="disksLastBackup">
        <source></source>
        <translation>Última copia: %1</translation>
    </message>
    <message id="disksNoBackupYet">
        <source></source>
        <translation>Aún no hay copias</translation>
    </message>
    <message id="disksAddDiskTitle">
        <source></source>
        <translation>Añadir disco</translation>
    </message>
    <message id="disksAddFolderTitle">
        <source></source>
        <translation>Añadir carpeta</translation>
    </message>
    <message id="disksAddFileTitle">
        <source></source>
        <translation>Añadir archivo</translation>
    </message>
    <message id="disksRemoveTitle">
        <source></source>
        <translation>Quitar</translation>
    </message>
    <message id="disksCancelTitle">
        <source></source>
        <translation>Cancelar</translation>
    </message>
    <message id="disksOkTitle">
        <source></source>
        <translation>Aceptar</translation>
    </message>
    <message id="disksTryAgainTitle">
        <source></source>
        <translation>Reintentar</translation>
    </message>
    <message id="disksFree">
        <source></source>
        <translation>%1 (%2 libres)</translation>
    </message>
    <message id="disksNoOtherDisk">
        <source></source>
        <translation>No hay ningún otro disco conectado</translation>
    </message>
    <message id="disksAddFailed">
        <source></source>
        <translation>No se ha podido añadir “%1”.</translation>
    </message>
    <message id="disksRemoveFailed">
        <source></source>
        <translation>No se ha podido quitar “%1”.</translation>
    </message>
    <message id="disksRemoveAlertMessage">
        <source></source>
        <translation>¿Dejar de hacer copias de seguridad en “%1”?</translation>
    </message>
    <message id="disksRemoveAlertInformative">
        <source></source>
        <translation>Las copias que contiene se conservan, y también su clave. Para continuarlas, vuelve a añadir la misma carpeta.</translation>
    </message>
    <message id="disksHomeAlertMessage">
        <source></source>
        <translation>¿Hacer copia de toda tu carpeta personal en su lugar?</translation>
    </message>
    <message id="disksHomeAlertInformative">
        <source></source>
        <translation>“%1” es la única carpeta de la lista. Si la lista está vacía, se hace copia de todo el contenido de tu carpeta personal.</translation>
    </message>
    <message id="disksReadFailed">
        <source></source>
        <translation>No se han podido leer los ajustes: %1</translation>
    </message>
    <message id="disksToolHangs">
        <source></source>
        <translation>tmutil no responde.</translation>
    </message>
    <message id="disksToolMissing">
        <source></source>
        <translation>No se puede iniciar la herramienta “%1”.</translation>
    </message>
    <message id="disksToolFailed">
        <source></source>
        <translation>tmutil ha terminado con el estado de salida %1.</translation>
    </message>
    <message id="disksToolUnreadable">
        <source></source>
        <translation>La respuesta de tmutil no se entiende.</translation>
    </message>
    <message id="reasonWithDetail">
        <source></source>
        <translation>%1 (tmutil: %2)</translation>
    </message>
    <message id="reasonMissing">
        <source></source>
        <translation>El disco de copia no está conectado o no se puede acceder a la ubicación de red.</translation>
    </message>
    <message id="reasonNoSpace">
        <source></source>
        <translation>No queda espacio.</translation>
    </message>
    <message id="reasonCannotWrite">
        <source></source>
        <translation>Ahí no se puede escribir.</translation>
    </message>
    <message id="reasonExists">
        <source></source>
        <translation>Ya hay algo con ese nombre, y se conserva.</translation>
    </message>
    <message id="reasonNotInBackups">
        <source></source>
        <translation>No está en las copias.</translation>
    </message>
    <message id="reasonDamaged">
        <source></source>
        <translation>Está dañado en la copia.</translation>
    </message>
    <message id="reasonNoAttributes">
        <source></source>
        <translation>El contenido está completo, pero no se pudieron restaurar el propietario, los permisos u otros atributos.</translation>
    </message>
    <message id="reasonConnectionLost">
        <source></source>
        <translation>Se perdió la conexión con el servidor.</translation>
    </message>
    <message id="reasonAccessDenied">
        <source></source>
        <translation>El servidor rechaza el usuario, la contraseña o la clave.</translation>
    </message>
    <message id="reasonUntrusted">
        <source></source>
        <translation>No es seguro que este sea el servidor correcto.</translation>
    </message>
    <message id="reasonServerFailed">
        <source></source>
        <translation>El servidor informa de un error propio; puede que esté lleno.</translation>
    </message>
    <message id="reasonWrongKey">
        <source></source>
        <translation>La clave de las copias falta o no es la correcta.</translation>
    </message>
    <message id="reasonLocked">
        <source></source>
        <translation>Las copias están en uso. Inténtalo de nuevo más tarde.</translation>
    </message>
    <message id="reasonResticMissing">
        <source></source>
        <translation>restic no está instalado.</translation>
    </message>
    <message id="reasonNoRepository">
        <source></source>
        <translation>Las copias faltan o están dañadas.</translation>
    </message>
    <message id="reasonNoInput">
        <source></source>
        <translation>El archivo o la carpeta no existe.</translation>
    </message>
    <message id="reasonConfiguration">
        <source></source>
        <translation>Los ajustes de las copias están dañados.</translation>
    </message>
    <message id="reasonNoWorkSpace">
        <source></source>
        <translation>No hay espacio para archivos temporales en la carpeta de inicio.</translation>
    </message>
    <message id="disksRoom">
        <source></source>
        <translation>%1 disponibles de %2</translation>
    </message>
    <message id="disksTaken">
        <source></source>
        <translation>Las copias ocupan %1</translation>
    </message>
    <message id="disksProblem">
        <source></source>
        <translation>Último problema (%1): %2</translation>
    </message>
    <message id="disksKeyNotKept">
        <source></source>
        <translation>Clave de recuperación aún sin guardar</translation>
    </message>
    <message id="disksSourceOnDisk">
        <source></source>
        <translation>La carpeta “%1” también está en este disco: si falla, se pierde todo</translation>
    </message>
    <message id="disksKeyBar">
        <source></source>
        <translation>Si pierdes este ordenador, las copias en “%1” no se podrán leer sin una clave de recuperación.</translation>
    </message>
    <message id="disksShowKeyTitle">
        <source></source>
        <translation>Mostrar clave de recuperación</translation>
    </message>
    <message id="disksKeyHeading">
        <source></source>
        <translation>Clave de recuperación de “%1”</translation>
    </message>
    <message id="disksKeyExplanation">
        <source></source>
        <translation>Si pierdes este ordenador, esta clave y el disco te devuelven las copias. Anótala o guárdala como página y mantenla lejos de este ordenador y del disco. Quien tenga ambos puede leer las copias.</translation>
    </message>
    <message id="disksKeyOnce">
        <source></source>
        <translation>Esta clave es nueva y solo se muestra ahora. Cuando la hayas guardado, las claves mostradas antes ya no abrirán nada.</translation>
    </message>
    <message id="disksSavePageTitle">
        <source></source>
        <translation>Guardar como página</translation>
    </message>
    <message id="disksLaterTitle">
        <source></source>
        <translation>Más tarde</translation>
    </message>
    <message id="disksKeptTitle">
        <source></source>
        <translation>La he guardado</translation>
    </message>
    <message id="disksKeyFailed">
        <source></source>
        <translation>No se ha podido crear una clave de recuperación para “%1”.</translation>
    </message>
    <message id="disksKeepFailed">
        <source></source>
        <translation>No se ha podido anotar que has guardado la clave de recuperación de “%1”.</translation>
    </message>
    <message id="disksPageFailed">
        <source></source>
        <translation>No se ha podido guardar la página.</translation>
    </message>
    <message id="disksPagePdf">
        <source></source>
        <translation>Documento PDF</translation>
    </message>
    <message id="disksPageText">
        <source></source>
        <translation>Archivo de texto</translation>
    </message>
    <message id="disksPageOnDiskMessage">
        <source></source>
        <translation>¿Guardar la página en el propio disco de copias de seguridad?</translation>
    </message>
    <message id="disksPageOnDiskInformative">
        <source></source>
        <translation>Quien se lleve el disco tendría también su clave, y si el disco se avería, la página se pierde con él.</translation>
    </message>
    <message id="disksSaveTitle">
        <source></source>
        <translation>Guardar</translation>
    </message>
    <message id="disksPageMade">
        <source></source>
        <translation>Creada el %1. Mantén esta página lejos del ordenador y del disco. Quien tenga ambos puede leer las copias.</translation>
    </message>
    <message id="disksPageSteps">
        <source></source>
        <translation>Si se pierde el ordenador, en uno nuevo</translation>
    </message>
    <message id="disksPageConnect">
        <source></source>
        <translation>Instala Quillon y conecta el disco.</translation>
    </message>
    <message id="disksPageAdopt">
        <source></source>
        <translation>%1 pide la clave de recuperación e incorpora el disco.</translation>
    </message>
    <message id="disksPageList">
        <source></source>
        <translation>%1 enumera las copias.</translation>
    </message>
    <message id="disksPageRestore">
        <source></source>
        <translation>%1 recupera una carpeta.</translation>
    </message>
    <message id="disksPageContinue">
        <source></source>
        <translation>%1 continúa con las copias.</translation>
    </message>
    <message id="disksAddTitle">
        <source></source>
        <translation>Añadir</translation>
    </message>
    <message id="disksAddNameTitle">
        <source></source>
        <translation>Añadir patrón de nombre</translation>
    </message>
    <message id="disksAddSizeTitle">
        <source></source>
        <translation>Añadir límite de tamaño</translation>
    </message>
    <message id="disksByName">
        <source></source>
        <translation>Archivos y carpetas con este nombre, estén donde estén</translation>
    </message>
    <message id="disksBySize">
        <source></source>
        <translation>En todas las carpetas</translation>
    </message>
    <message id="disksLargerThan">
        <source></source>
        <translation>Archivos de más de %1</translation>
    </message>
    <message id="disksNamePrompt">
        <source></source>
        <translation>Excluir archivos y carpetas con el nombre</translation>
    </message>
    <message id="disksNameHint">
        <source></source>
        <translation>* representa cualquier número de caracteres; ? solo uno.</translation>
    </message>
    <message id="disksSizePrompt">
        <source></source>
        <translation>Excluir archivos de más de</translation>
    </message>
    <message id="disksCounting">
        <source></source>
        <translation>Contando los archivos excluidos…</translation>
    </message>
    <message id="disksPreview">
        <source></source>
        <translation>Archivos que se excluirían ahora: %1 (%2)</translation>
    </message>
    <message id="disksPreviewNothing">
        <source></source>
        <translation>Ahora no se excluiría ningún archivo.</translation>
    </message>
    <message id="disksLeaveOutTitle">
        <source></source>
        <translation>Excluir</translation>
    </message>
    <message id="disksListing">
        <source></source>
        <translation>Buscando discos…</translation>
    </message>
    <message id="disksListFailed">
        <source></source>
        <translation>No se han podido enumerar los discos</translation>
    </message>
    <message id="disksEditTitle">
        <source></source>
        <translation>Editar</translation>
    </message>
    <message id="disksAddPlaceTitle">
        <source></source>
        <translation>Añadir ubicación de red</translation>
    </message>
    <message id="disksEditPlaceTitle">
        <source></source>
        <translation>Acceso a “%1”</translation>
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
        <translation>Servidor REST de restic</translation>
    </message>
    <message id="disksPlaceS3">
        <source></source>
        <translation>Almacenamiento compatible con S3</translation>
    </message>
    <message id="disksPlaceAddress">
        <source></source>
        <translation>Dirección</translation>
    </message>
    <message id="disksPlaceServer">
        <source></source>
        <translation>Servidor</translation>
    </message>
    <message id="disksPlacePort">
        <source></source>
        <translation>Puerto</translation>
    </message>
    <message id="disksPlaceFolder">
        <source></source>
        <translation>Carpeta</translation>
    </message>
    <message id="disksPlacePath">
        <source></source>
        <translation>Ruta</translation>
    </message>
    <message id="disksPlaceBucket">
        <source></source>
        <translation>Bucket</translation>
    </message>
    <message id="disksPlaceUser">
        <source></source>
        <translation>Nombre de usuario</translation>
    </message>
    <message id="disksPlaceKeyFile">
        <source></source>
        <translation>Archivo de clave</translation>
    </message>
    <message id="disksPlacePassword">
        <source></source>
        <translation>Contraseña</translation>
    </message>
    <message id="disksPlaceAccessKey">
        <source></source>
        <translation>Clave de acceso</translation>
    </message>
    <message id="disksPlaceSecretKey">
        <source></source>
        <translation>Clave secreta</translation>
    </message>
    <message id="disksPlaceRegion">
        <source></source>
        <translation>Región</translation>
    </message>
    <message id="disksPlaceSecure">
        <source></source>
        <translation>Conexión cifrada (HTTPS)</translation>
    </message>
    <message id="disksPlaceCertificate">
        <source></source>
        <translation>Archivo de certificado</translation>
    </message>
    <message id="disksPlaceUpload">
        <source></source>
        <translation>Límite de subida</translation>
    </message>
    <message id="disksPlaceDownload">
        <source></source>
        <translation>Límite de bajada</translation>
    </message>
    <message id="disksPlaceNoLimit">
        <source></source>
        <translation>Ninguno</translation>
    </message>
    <message id="disksPlaceUploadAtMost">
        <source></source>
        <translation>Subida a %1 como máximo</translation>
    </message>
    <message id="disksPlaceDownloadAtMost">
        <source></source>
        <translation>Bajada a %1 como máximo</translation>
    </message>
    <message id="disksPlaceOptional">
        <source></source>
        <translation>Opcional</translation>
    </message>
    <message id="disksPlaceUnchanged">
        <source></source>
        <translation>Sin cambios</translation>
    </message>
    <message id="disksPlaceChooseTitle">
        <source></source>
        <translation>Seleccionar</translation>
    </message>
    <message id="disksPlaceNeeded">
        <source></source>
        <translation>Falta: %1</translation>
    </message>
    <message id="disksPlaceBadServer">
        <source></source>
        <translation>Indica solo el nombre o la dirección del servidor, como nas.example.org.</translation>
    </message>
    <message id="disksPlaceBadPort">
        <source></source>
        <translation>Un puerto es un número del 1 al 65535.</translation>
    </message>
    <message id="disksPlaceBadFolder">
        <source></source>
        <translation>La carpeta empieza por / o, si está en tu carpeta del servidor, por ~/.</translation>
    </message>
    <message id="disksPlaceBadFile">
        <source></source>
        <translation>Un archivo se indica con su ruta completa, que empieza por /.</translation>
    </message>
    <message id="disksPlaceUserAndPassword">
        <source></source>
        <translation>Indica el nombre de usuario y la contraseña, o ninguno de los dos.</translation>
    </message>
    <message id="disksPlaceTryTitle">
        <source></source>
        <translation>Probar</translation>
    </message>
    <message id="disksPlaceTrustTitle">
        <source></source>
        <translation>Confiar</translation>
    </message>
    <message id="disksPlaceTakeUpTitle">
        <source></source>
        <translation>Incorporar</translation>
    </message>
    <message id="disksPlaceAsking">
        <source></source>
        <translation>Consultando al servidor…</translation>
    </message>
    <message id="disksPlaceKeeping">
        <source></source>
        <translation>Configurando la ubicación…</translation>
    </message>
    <message id="disksPlaceEmpty">
        <source></source>
        <translation>El servidor se puede usar. Ahí todavía no hay copias.</translation>
    </message>
    <message id="disksPlaceBackups">
        <source></source>
        <translation>El servidor se puede usar. Ahí hay copias que este ordenador puede leer; se continuarán.</translation>
    </message>
    <message id="disksPlaceWrongKey">
        <source></source>
        <translation>Ahí hay copias de las que este ordenador no tiene la clave. Si son tuyas, escribe su clave de recuperación para continuarlas; si no, elige otra ubicación.</translation>
    </message>
    <message id="disksPlaceRecoveryKey">
        <source></source>
        <translation>Clave de recuperación</translation>
    </message>
    <message id="disksPlaceFingerprint">
        <source></source>
        <translation>Huella de la clave del servidor</translation>
    </message>
    <message id="disksPlaceUnknownKey">
        <source></source>
        <translation>Este ordenador aún no conoce “%1”. Compara la huella de su clave con la que te indique su administrador y confía en ella solo si son iguales.</translation>
    </message>
    <message id="disksPlaceChangedKey">
        <source></source>
        <translation>Advertencia: “%1” muestra una clave distinta a la de antes. Puede que alguien esté espiando la conexión. Confía en la clave nueva solo si el administrador del servidor confirma el cambio y esta huella.</translation>
    </message>
    <message id="disksPlaceChangedKeyMessage">
        <source></source>
        <translation>¿Confiar en la clave nueva de “%1”?</translation>
    </message>
    <message id="disksPlaceChangedKeyInformative">
        <source></source>
        <translation>Si no es la del servidor, lo que se envíe llegará a otra persona.</translation>
    </message>
    <message id="disksPlaceBadCertificate">
        <source></source>
        <translation>El certificado de “%1” no es de confianza; podría ser otro servidor. Si el certificado es propio, elígelo, o el de su emisor, como archivo de certificado.</translation>
    </message>
    <message id="disksPlaceAccessDeniedKey">
        <source></source>
        <translation>“%1” rechaza el usuario o la clave. Comprueba ambos. La clave pública debe estar instalada en el servidor y el archivo de clave no puede tener frase de contraseña.</translation>
    </message>
    <message id="disksPlaceAccessDenied">
        <source></source>
        <translation>“%1” deniega el acceso. Comprueba lo que has escrito: el nombre de usuario y la contraseña, o las claves.</translation>
    </message>
    <message id="disksPlaceNoPermission">
        <source></source>
        <translation>Ahí no se puede escribir. Elige otra ubicación del servidor o pide permiso a su administrador.</translation>
    </message>
    <message id="disksPlaceNoAnswer">
        <source></source>
        <translation>“%1” no responde. Comprueba el servidor y el puerto, y que este ordenador esté conectado a la red.</translation>
    </message>
    <message id="disksPlaceNoSpace">
        <source></source>
        <translation>No queda espacio en el servidor. Libera espacio o elige otra ubicación.</translation>
    </message>
    <message id="disksPlaceFailed">
        <source></source>
        <translation>El servidor no se puede usar: %1</translation>
    </message>
    <message id="disksPlaceRemoveInformative">
        <source></source>
        <translation>Las copias que contiene se conservan, y también su clave; los datos de acceso al servidor se borran. Para continuarlas, vuelve a añadir la misma ubicación.</translation>
    </message>
    <message id="disksPlaceKeyExplanation">
        <source></source>
        <translation>Si pierdes este ordenador, esta clave y el acceso al servidor te devuelven las copias. Anótala o guárdala como página y mantenla lejos de este ordenador, junto con los datos de acceso al servidor. Quien tenga ambos puede leer las copias.</translation>
    </message>
    <message id="disksPlacePageMade">
        <source></source>
        <translation>Creada el %1. Mantén esta página lejos del ordenador. Quien la tenga y acceda al servidor puede leer las copias.</translation>
    </message>
    <message id="disksPlacePageStart">
        <source></source>
        <translation>Instala Quillon y abre %1.</translation>
    </message>
    <message id="disksPlacePageAdd">
        <source></source>
        <translation>Elige “%1”, escribe %2 como servidor y los datos de acceso, y la clave de recuperación cuando se te pida.</translation>
    </message>
    <!-- Window of the backups on Linux -->
    <message id="browseWindowTitle">
        <source></source>
        <translation>Copias de Time Machine</translation>
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
        <translation>Dañada</translation>
    </message>
    <message id="browseIncomplete">
        <source></source>
        <translation>Incompleta</translation>
    </message>
    <message id="browseRestoring">
        <source></source>
        <translation>Restaurando …</translation>
    </message>
    <message id="browseRestoreProgress">
        <source></source>
        <translation>%1 de %2 archivos, %3 de %4</translation>
    </message>
    <message id="browseRestoreStopped">
        <source></source>
        <translation>Detenido. Lo que aún no se había restaurado queda como estaba.</translation>
    </message>
    <message id="browseRestoredCount">
        <source></source>
        <translation>Restaurados: %1</translation>
    </message>
    <message id="browseSkippedCount">
        <source></source>
        <translation>Omitidos: %1</translation>
    </message>
    <message id="browseLostCount">
        <source></source>
        <translation>No restaurados: %1</translation>
    </message>
    <message id="browseConflictMessage">
        <source></source>
        <translation>“%1” ya existe.</translation>
    </message>
    <message id="browseNameColumn">
        <source></source>
        <translation>Nombre</translation>
    </message>
    <message id="browseSizeColumn">
        <source></source>
        <translation>Tamaño</translation>
    </message>
    <message id="browseModifiedColumn">
        <source></source>
        <translation>Modificación</translation>
    </message>
    <message id="browseSinceColumn">
        <source></source>
        <translation>Después</translation>
    </message>
    <message id="browseFolderColumn">
        <source></source>
        <translation>Carpeta</translation>
    </message>
    <message id="browseBackupColumn">
        <source></source>
        <translation>Copia</translation>
    </message>
    <message id="browseSortTip">
        <source></source>
        <translation>Ordenar por esta columna (%1)</translation>
    </message>
    <message id="browseChanged">
        <source></source>
        <translation>Cambió</translation>
    </message>
    <message id="browseGone">
        <source></source>
        <translation>Eliminado</translation>
    </message>
    <message id="browseFolderKind">
        <source></source>
        <translation>Carpeta</translation>
    </message>
    <message id="browseLinkTo">
        <source></source>
        <translation>Enlace a %1</translation>
    </message>
    <message id="browseDiskLabel">
        <source></source>
        <translation>Copias en</translation>
    </message>
    <message id="browseTimelineName">
        <source></source>
        <translation>Copias</translation>
    </message>
    <message id="browseFilesName">
        <source></source>
        <translation>Archivos de la copia</translation>
    </message>
    <message id="browsePathLabel">
        <source></source>
        <translation>Carpeta de la copia</translation>
    </message>
    <message id="browseBackTitle">
        <source></source>
        <translation>Atrás</translation>
    </message>
    <message id="browseUpTitle">
        <source></source>
        <translation>Carpeta superior</translation>
    </message>
    <message id="browseSearchPrompt">
        <source></source>
        <translation>Buscar nombres</translation>
    </message>
    <message id="browseAllBackups">
        <source></source>
        <translation>En todas las copias</translation>
    </message>
    <message id="browseVersionsName">
        <source></source>
        <translation>Versiones</translation>
    </message>
    <message id="browseVersionsHint">
        <source></source>
        <translation>Elige un archivo para ver sus versiones.</translation>
    </message>
    <message id="browseNoVersions">
        <source></source>
        <translation>Ninguna copia lo contiene.</translation>
    </message>
    <message id="browsePreviewTitle">
        <source></source>
        <translation>Previsualizar</translation>
    </message>
    <message id="browseRestoreTitle">
        <source></source>
        <translation>Restaurar</translation>
    </message>
    <message id="browseReading">
        <source></source>
        <translation>Leyendo …</translation>
    </message>
    <message id="browseEmptyFolder">
        <source></source>
        <translation>Esta carpeta está vacía.</translation>
    </message>
    <message id="browseNothingFound">
        <source></source>
        <translation>No se encontró nada con ese nombre.</translation>
    </message>
    <message id="browseSearching">
        <source></source>
        <translation>Buscando …</translation>
    </message>
    <message id="browseFilling">
        <source></source>
        <translation>Leyendo toda la copia para la búsqueda: %1</translation>
    </message>
    <message id="browseReadFailed">
        <source></source>
        <translation>No se pudo leer: %1</translation>
    </message>
    <message id="browseNoDiskMessage">
        <source></source>
        <translation>No hay ningún disco de copia ni ubicación de red configurados. Elige uno en los ajustes de Time Machine para copiar ahí tus archivos.</translation>
    </message>
    <message id="browseNoBackupMessage">
        <source></source>
        <translation>No hay ninguna copia que ver. Conecta el disco de copia o la red, o espera a la primera copia.</translation>
    </message>
    <message id="browseSettingsTitle">
        <source></source>
        <translation>Ajustes de Time Machine</translation>
    </message>
    <message id="browsePreviewing">
        <source></source>
        <translation>Obteniendo “%1” …</translation>
    </message>
    <message id="browsePreviewFailed">
        <source></source>
        <translation>No se puede mostrar “%1”.</translation>
    </message>
    <message id="browseNoProgram">
        <source></source>
        <translation>No se pudo abrir ningún programa para ello.</translation>
    </message>
    <message id="browseRestoreHeading">
        <source></source>
        <translation>Restaurar “%1”</translation>
    </message>
    <message id="browseRestoreManyHeading">
        <source></source>
        <translation>Restaurar %1 elementos</translation>
    </message>
    <message id="browseFromBackup">
        <source></source>
        <translation>De la copia del %1</translation>
    </message>
    <message id="browseToItsPlace">
        <source></source>
        <translation>A donde estaba</translation>
    </message>
    <message id="browseToFolder">
        <source></source>
        <translation>A otra carpeta</translation>
    </message>
    <message id="browseChooseFolderTitle">
        <source></source>
        <translation>Elegir carpeta</translation>
    </message>
    <message id="browseNothingOverwritten">
        <source></source>
        <translation>No se sobrescribe nada sin preguntarte.</translation>
    </message>
    <message id="browseKeepBothTitle">
        <source></source>
        <translation>Conservar ambos</translation>
    </message>
    <message id="browseReplaceTitle">
        <source></source>
        <translation>Reemplazar</translation>
    </message>
    <message id="browseSkipTitle">
        <source></source>
        <translation>Omitir</translation>
    </message>
    <message id="browseForAll">
        <source></source>
        <translation>Hacer lo mismo con los demás</translation>
    </message>
    <message id="browseStopTitle">
        <source></source>
        <translation>Detener</translation>
    </message>
    <message id="browseStopping">
        <source></source>
        <translation>Deteniendo …</translation>
    </message>
    <message id="browseLossesName">
        <source></source>
        <translation>Lo que no se restauró</translation>
    </message>
    <!-- The log of backups -->
    <message id="logWindowTitle">
        <source></source>
        <translation>Registro de copias</translation>
    </message>
    <message id="logDateTitle">
        <source></source>
        <translation>Fecha</translation>
    </message>
    <message id="logOutcomeTitle">
        <source></source>
        <translation>Resultado</translation>
    </message>
    <message id="logCauseTitle">
        <source></source>
        <translation>Origen</translation>
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
        <translation>Duración</translation>
    </message>
    <message id="logBytesTitle">
        <source></source>
        <translation>Bytes</translation>
    </message>
    <message id="logBeganTitle">
        <source></source>
        <translation>Inicio</translation>
    </message>
    <message id="logEndedTitle">
        <source></source>
        <translation>Fin</translation>
    </message>
    <message id="logReasonTitle">
        <source></source>
        <translation>Motivo</translation>
    </message>
    <message id="logRunningTitle">
        <source></source>
        <translation>En curso</translation>
    </message>
    <message id="logCompletedTitle">
        <source></source>
        <translation>Completada</translation>
    </message>
    <message id="logFailedTitle">
        <source></source>
        <translation>Fallida</translation>
    </message>
    <message id="logStoppedTitle">
        <source></source>
        <translation>Detenida</translation>
    </message>
    <message id="logUnseenTitle">
        <source></source>
        <translation>No observada</translation>
    </message>
    <message id="logSkippedTitle">
        <source></source>
        <translation>Omitida</translation>
    </message>
    <message id="logMissedTitle">
        <source></source>
        <translation>No realizada</translation>
    </message>
    <message id="logRefusedTitle">
        <source></source>
        <translation>Rechazada</translation>
    </message>
    <message id="logScheduleTitle">
        <source></source>
        <translation>Programación</translation>
    </message>
    <message id="logRetryTitle">
        <source></source>
        <translation>Reintento</translation>
    </message>
    <message id="logUserTitle">
        <source></source>
        <translation>Usted</translation>
    </message>
    <message id="logElsewhereTitle">
        <source></source>
        <translation>Fuera de Quillon</translation>
    </message>
    <message id="logAllTitle">
        <source></source>
        <translation>Todo</translation>
    </message>
    <message id="logNoBackupTitle">
        <source></source>
        <translation>Ninguna copia</translation>
    </message>
    <message id="logDaysMessage">
        <source></source>
        <translation>Los últimos %1 días: %2 con una copia, %3 solo con problemas</translation>
    </message>
    <message id="logCopyTitle">
        <source></source>
        <translation>Copiar como texto</translation>
    </message>
    <message id="logSaveTitle">
        <source></source>
        <translation>Guardar como CSV</translation>
    </message>
    <message id="logSaveFailedTitle">
        <source></source>
        <translation>No se ha podido guardar el registro.</translation>
    </message>
    <message id="logEmptyMessage">
        <source></source>
        <translation>Aún no hay nada registrado.</translation>
    </message>
    <message id="logNothingFoundMessage">
        <source></source>
        <translation>Ninguna entrada coincide.</translation>
    </message>
    <message id="logUnreadableMessage">
        <source></source>
        <translation>No se ha podido leer el registro. Las copias se realizan de todos modos.</translation>
    </message>
    <message id="logNextMessage">
        <source></source>
        <translation>Programada después: %1</translation>
    </message>
    <message id="logAskedMessage">
        <source></source>
        <translation>Este inicio se omitió mediante un comando.</translation>
    </message>
    <message id="logOnBatteryMessage">
        <source></source>
        <translation>El equipo funcionaba con batería. La copia se hará cuando vuelva a tener corriente, salvo que antes llegue la siguiente.</translation>
    </message>
    <message id="logPausedMessage">
        <source></source>
        <translation>La programación estaba en pausa. Reanúdela en el menú para volver a hacer copias.</translation>
    </message>
    <message id="logAsleepMessage">
        <source></source>
        <translation>El equipo estaba en reposo. Elija horas en las que esté activo o active el reintento de copias no realizadas.</translation>
    </message>
    <message id="logClockSetMessage">
        <source></source>
        <translation>El reloj se adelantó más allá de esta hora o el equipo estaba demasiado ocupado.</translation>
    </message>
    <message id="logBackupRanMessage">
        <source></source>
        <translation>Ya se estaba haciendo otra copia, que sustituyó a esta.</translation>
    </message>
    <message id="logOvertakenMessage">
        <source></source>
        <translation>En ese mismo momento se inició otra copia, que sustituyó a esta.</translation>
    </message>
    <message id="logStatusUnreadableMessage">
        <source></source>
        <translation>Time Machine no ha indicado su estado. Si se repite, reinicie el equipo.</translation>
    </message>
    <message id="logSettingsChangedMessage">
        <source></source>
        <translation>La programación se pausó o se cambió en ese preciso momento.</translation>
    </message>
    <message id="logIncompleteMessage">
        <source></source>
        <translation>La copia terminó antes de completarse. Compruebe que el disco esté conectado y tenga espacio.</translation>
    </message>
    <message id="logStoppedElsewhereMessage">
        <source></source>
        <translation>La copia se detuvo fuera de Quillon.</translation>
    </message>
    <message id="logNeverReportedMessage">
        <source></source>
        <translation>Time Machine aceptó el inicio, pero no se observó ninguna copia. Puede que fuera demasiado breve.</translation>
    </message>
    <message id="logNotFollowedMessage">
        <source></source>
        <translation>Quillon se cerró antes que la copia. Explore las copias para ver si se completó.</translation>
    </message>
</context>
</TS>
