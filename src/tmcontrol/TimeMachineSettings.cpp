#include "TimeMachineSettings.h"

#include "DataHelper.h"
#include "LocalizedString.h"

namespace quillon {

using namespace Qt::StringLiterals;

TimeMachineSettings::TimeMachineSettings(TaskLauncher& launcher, RunLoop& runLoop, Workspace& workspace,
                                         AlertPresenter& alerts)
    : launcher_(launcher)
    , runLoop_(runLoop)
    , workspace_(workspace)
    , alerts_(alerts)
{
}

QUrl TimeMachineSettings::address()
{
    return QUrl(u"x-apple.systempreferences:com.apple.Time-Machine-Settings.extension"_s);
}

QString TimeMachineSettings::browser()
{
    return u"com.apple.backup.launcher"_s;
}

void TimeMachineSettings::open(const QString& applicationName)
{
    if (systemIsAtLeast(u"13.0")) {
        workspace_.openURL(address(), {});
        return;
    }
    TaskRequest script;
    script.executable = u"/usr/bin/osascript"_s;
    script.arguments = {u"-e"_s, u"tell Application \"System Preferences\""_s,
                        u"-e"_s, u"activate"_s,
                        u"-e"_s, u"set the current pane to pane id \"com.apple.prefs.backup\""_s,
                        u"-e"_s, u"end tell"_s};
    script.environment = {u"command=OpenTimeMachinePrefs"_s};
    script.captureOutput = false;
    const auto running = scripts_.emplace(scripts_.end());
    *running = launcher_.launch(script, [this, running, applicationName](const TaskResult& result) {
        runLoop_.enqueue([this, running, applicationName, allowed = result.status == 0] {
            scripts_.erase(running);
            if (!allowed)
                presentPermissionAlert(applicationName);
        });
    });
}

void TimeMachineSettings::presentPermissionAlert(const QString& applicationName)
{
    AlertRequest alert;
    alert.style = AlertStyle::Critical;
    alert.messageText = localizedString("permissionRequiredAlertTitle");
    const QString provide = localizedString("AlertButtonProvidePermission");
    alert.informativeText = localizedString("timeMachinePermissionRequiredAlertMessage").arg(provide, applicationName);
    alert.buttons = {localizedString("AlertButtonClose"), provide};
    alert.escapeButton = 0;
    alerts_.present(alert, [this](int response) {
        if (response == alertSecondButtonReturn)
            workspace_.openURL(QUrl(u"x-apple.systempreferences:com.apple.preference.security?Privacy_Automation"_s),
                               {});
    });
}

} // namespace quillon
