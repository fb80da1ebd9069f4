#include "AppDelegate.h"

#include "ApplicationIdentity.h"
#include "Cirrel.h"
#include "DataHelper.h"
#include "LocalizedString.h"
#include "SetupAdvice.h"
#include "StoredAndSent.h"
#include "Text.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QPointer>

#include <compare>

namespace quillon {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

constexpr Seconds updateCheckPeriod = 24h;
constexpr double answerIsFreshFor = 12.0 * 3600;

} // namespace

AppDelegate::AppDelegate(const Services& services)
    : runLoop_(services.runLoop)
    , defaults_(services.defaults)
    , notifications_(services.notifications)
    , workspace_(services.workspace)
    , alerts_(services.alerts)
    , tmutil_(services.tmutil)
    , version_(services.version)
{
}

void AppDelegate::applicationDidFinishLaunching()
{
    isRunning_ = true;
    checkNowAndDaily();
    connect(&workspace_, &Workspace::didWake, this, &AppDelegate::checkNowAndDaily);
    if (defaults_.boolean(settingskeys::didShowAlertAtFirstLaunch))
        return;
    giveSetupAdvice(tmutil_, runLoop_, [self = QPointer(this)](const SetupAdvice& advice) {
        if (self)
            self->presentFirstLaunchAlert(advice);
    });
}

void AppDelegate::checkNowAndDaily()
{
    retrieveLatestAppVersion();
    scheduleCheckForAppUpdateTimer();
}

void AppDelegate::retrieveLatestAppVersion()
{
    const QString noUpdate = u"{\"os\":\"%1\",\"app\":\"%2\"}"_s.arg(systemVersion(), version_);
    Cirrel::getConfigForParameter(u"LatestAppVersion"_s, answerIsFreshFor, noUpdate,
                                  [self = QPointer(this)](const QVariant& value, const std::optional<Error>& error) {
                                      if (self && !error)
                                          self->isAppUpdateAvailable(value.toString());
                                  });
}

void AppDelegate::isAppUpdateAvailable(const QString& versions)
{
    const QJsonObject latest = QJsonDocument::fromJson(versions.toUtf8()).object();
    const QJsonValue os = latest.value(u"os"_s);
    const QJsonValue app = latest.value(u"app"_s);
    if (!os.isString() || !app.isString() || !systemIsAtLeast(os.toString()))
        return;
    const bool isNewer = std::is_lt(compareNumerically(version_, app.toString()));
    notifications_.post(notifications::appUpdateAvailable, {{u"latestAppVersion"_s, isNewer ? app.toString() : u""_s}});
}

void AppDelegate::scheduleCheckForAppUpdateTimer()
{
    checkForAppUpdateTimer_ = runLoop_.scheduleRepeating(updateCheckPeriod, [this] { retrieveLatestAppVersion(); });
}

void AppDelegate::presentFirstLaunchAlert(const SetupAdvice& advice)
{
    AlertRequest alert;
    const QString name = identity::name;
    alert.messageText = localizedString("firstStartInfoAlertTitle").arg(name);
    alert.informativeText = localizedString("firstStartInfoAlertMessage").arg(advice.text, name);
    alert.buttons = {localizedString("AlertButtonClose"), localizedString("AlertButtonHelp")};
    alert.escapeButton = 0;
    alerts_.present(alert, [self = QPointer(this), name, diskIsMissing = advice.diskIsMissing](int response) {
        if (!self)
            return;
        if (response == alertSecondButtonReturn)
            self->workspace_.openURL(makersite::page(u"/quillon/manual/"_s), {});
        self->defaults_.setObject(settingskeys::didShowAlertAtFirstLaunch, true);
        if (diskIsMissing)
            self->tmutil_.openTimeMachineSettings(name);
    });
}

} // namespace quillon
