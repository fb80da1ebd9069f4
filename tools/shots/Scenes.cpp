#include "Scenes.h"

#include "AppDelegate.h"
#include "Cirrel.h"
#include "NetworkPlace.h"
#include "ScopedEnvironment.h"
#include "StoredAndSent.h"

#include <QAction>
#include <QApplication>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QTreeView>
#include <QTreeWidget>

#include <array>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

void completeABackup(Stage& stage)
{
    stage.program().machine.start(u"A"_s);
    stage.program().runLoop.advance(Seconds(120));
}

void announceUpdate(Stage& stage)
{
    stage.program().notifications.post(notifications::appUpdateAvailable, {{u"latestAppVersion"_s, u"1.1"_s}});
    stage.program().runLoop.settle();
}

void openSettings(Stage& stage)
{
    stage.program().controller->preferencesClicked();
}

void pressInSettings(Stage& stage, const char* button)
{
    openSettings(stage);
    stage.press(button);
}

/// Its list.
QTreeView& openLogWindow(Stage& stage)
{
    pressInSettings(stage, "backupLogButton");
    QTreeView* list = nullptr;
    const auto windows = QApplication::topLevelWidgets();
    for (const QWidget* window : windows)
        list = list ? list : window->findChild<QTreeView*>(u"log"_s);
    list->window()->move(100, 100);
    return *list;
}

/// Some days with everything that can become of a start.
void openLog(Stage& stage)
{
    using enum LedgerEntry::Outcome;
    using Cause = LedgerEntry::Cause;
    using Reason = LedgerEntry::Reason;
    PlayedProgram& program = stage.program();
    const Date noon = program.runLoop.now() + std::chrono::hours(2);
    const auto daysAgo = [&](int days) { return noon - std::chrono::days(days); };
    std::vector<LedgerEntry> entries{
        {.date = daysAgo(1), .outcome = Refused, .reason = Reason::ToolRefused, .exitStatus = 4},
        {.date = daysAgo(2), .outcome = Skipped, .reason = Reason::Paused},
        {.date = daysAgo(3), .outcome = Missed, .reason = Reason::Asleep, .next = daysAgo(3), .nextIsRetry = true},
        {.date = daysAgo(4), .outcome = Failed, .reason = Reason::Incomplete, .detail = u"The disk is full."_s},
        {.date = daysAgo(5), .cause = Cause::Elsewhere, .outcome = Failed, .reason = Reason::StoppedElsewhere},
        {.date = daysAgo(6), .cause = Cause::User, .outcome = Stopped},
        {.date = daysAgo(7), .outcome = Unseen, .reason = Reason::NotFollowed},
    };
    for (const int day : {1, 3, 4, 8, 9, 10, 12, 13, 15, 16, 17, 20, 21, 24, 25, 26, 28})
        entries.push_back({.date = daysAgo(day) + std::chrono::minutes(7),
                           .cause = day < 5 ? Cause::Retry : Cause::Schedule,
                           .outcome = Completed,
                           .began = daysAgo(day),
                           .ended = daysAgo(day) + std::chrono::seconds(day * 97),
                           .diskIdentifier = day % 2 ? u"A"_s : u"B"_s,
                           .diskName = day % 2 ? u"Studio Disk"_s : u"Büro & Archiv 💾"_s,
                           .bytes = day * 73'000'000LL,
                           .next = daysAgo(day - 1)});
    program.ledger.write(entries, noon);
    QTreeView& list = openLogWindow(stage);
    list.setCurrentIndex(list.model()->index(1, 0)); // the start that was refused
}

void openAbout(Stage& stage)
{
    stage.program().controller->aboutClicked();
}

void launchForTheFirstTime(Stage& stage)
{
    auto& program = stage.program();
    const Cirrel::Services unused(program.runLoop, program.defaults, nullptr); // by a build without a service
    AppDelegate delegate({program.runLoop, program.defaults, program.notifications, program.workspace, program.alerts,
                          program.tmutil, u"1.0"_s});
    delegate.applicationDidFinishLaunching();
    program.runLoop.advance(Seconds(1));
    stage.showAlert();
}

void failToStart(Stage& stage, int status)
{
    stage.program().machine.injection = {1, TmutilScript::Fault::None, status, u"startbackup"_s};
    stage.program().controller->backupNowClicked();
    stage.program().runLoop.advance(Seconds(1));
    stage.showAlert();
}

enum DisksPages { Disks, Sources, Exclusions };

/// Chooses from the menu with which things are added to what is left out.
void addExclusion(Stage& stage, const char* key)
{
    stage.openDisks(Exclusions).findChild<QAction*>(QLatin1StringView(key))->trigger();
    stage.program().runLoop.advance(Seconds(1));
}

/// Fills in the fields of a new place on a server, asks the server where `asks`, and looks what it answers.
void addPlace(Stage& stage, const NetworkPlace& place, bool asks)
{
    auto* const menu = stage.openDisks(Disks).findChild<QMenu*>(u"addDisk"_s);
    Q_EMIT menu->aboutToShow();
    menu->findChild<QAction*>(u"addPlace"_s)->trigger();
    stage.choose("kind", static_cast<int>(place.kind));
    const QWidget* const dialog = QApplication::activeModalWidget();
    for (const auto& [field, text] : place.texts.asKeyValueRange()) {
        for (QLineEdit* edit : dialog->findChildren<QLineEdit*>()) {
            if (edit->accessibleName() == fieldTitle(field, place.kind))
                edit->setText(text);
        }
    }
    if (asks)
        stage.press("goOn");
    stage.program().runLoop.advance(Seconds(1));
}

/// At an SFTP server of that name.
void askServer(Stage& stage, const QString& server)
{
    using enum NetworkPlace::Field;
    addPlace(stage, {.texts = {{Server, server}, {Path, u"/srv/backups"_s}, {User, u"anna"_s}}}, true);
}

/// The home folder as it was forty days ago, with the file chosen that was changed since.
BrowseWindow& chooseOldFile(Stage& stage)
{
    BrowseWindow& window = stage.openBackups();
    auto* const timeline = window.findChild<QTreeWidget*>(u"timeline"_s);
    timeline->setCurrentItem(timeline->topLevelItem(timeline->topLevelItemCount() - 2)->child(0));
    stage.program().runLoop.advance(Seconds(1));
    auto* const files = window.findChild<QTreeView*>(u"files"_s);
    files->setCurrentIndex(files->model()->index(2, 0));
    stage.program().runLoop.advance(Seconds(1));
    return window;
}

void restoreOldFile(Stage& stage, std::initializer_list<const char*> buttons)
{
    chooseOldFile(stage);
    for (const char* button : buttons) {
        stage.press(button);
        stage.program().runLoop.advance(Seconds(1));
    }
}

constexpr std::array scenes{
    Scene{"menu", [](Stage& stage) { stage.openMenu(); }},
    Scene{"menu-disks",
          [](Stage& stage) {
              completeABackup(stage);
              stage.openMenu(&StatusMenu::backupNowMenuItem);
          }},
    Scene{"menu-history",
          [](Stage& stage) {
              completeABackup(stage);
              stage.openMenu(&StatusMenu::phaseMenuItem);
          }},
    Scene{"menu-pause", [](Stage& stage) { stage.openMenu(&StatusMenu::pauseScheduleMenuItem); }},
    Scene{"menu-paused",
          [](Stage& stage) {
              stage.program().controller->pauseForClicked(14400);
              stage.openMenu(&StatusMenu::pauseScheduleMenuItem);
          }},
    Scene{"menu-running",
          [](Stage& stage) {
              stage.program().machine.start(u"A"_s);
              stage.program().runLoop.advance(Seconds(40));
              stage.openMenu();
          }},
    Scene{"menu-stopping",
          [](Stage& stage) {
              stage.program().machine.start(u"A"_s);
              stage.program().runLoop.advance(Seconds(40));
              stage.program().controller->backupNowClicked();
              stage.program().runLoop.advance(Seconds(0.5));
              stage.openMenu();
          }},
    Scene{"menu-failed",
          [](Stage& stage) {
              stage.program().machine.phases = {{u"Copying"_s, 20, true}};
              completeABackup(stage);
              stage.openMenu();
          }},
    Scene{"menu-update",
          [](Stage& stage) {
              announceUpdate(stage);
              stage.openMenu();
          }},
    Scene{"menu-schedule-off",
          [](Stage& stage) {
              stage.program().manager->setIsScheduleEnabled(false);
              stage.program().notifications.post(notifications::shouldUpdateStatusBar);
              stage.openMenu();
          }},
    Scene{"settings", openSettings},
    Scene{"settings-interval",
          [](Stage& stage) {
              openSettings(stage);
              stage.choose("schedulePopup", 1);
          }},
    Scene{"settings-more",
          [](Stage& stage) {
              pressInSettings(stage, "moreButton");
              stage.press("userSettingsOnlyOnMainsPower"); // lets one choose a charge
          }},
    Scene{"settings-off",
          [](Stage& stage) {
              openSettings(stage);
              stage.press("enableScheduleCheckmark");
              stage.press("showMenuBarIconOnlyCheckmark");
          }},
    Scene{"settings-delete", [](Stage& stage) { pressInSettings(stage, "deleteButton"); }},
    Scene{"settings-limit", [](Stage& stage) { pressInSettings(stage, "addCalendarIntervalButton"); }},
    Scene{"settings-advice",
          [](Stage& stage) {
              pressInSettings(stage, "warningButton");
              stage.program().runLoop.advance(Seconds(1));
          }},
    Scene{"settings-help-missed", [](Stage& stage) { pressInSettings(stage, "retryAtMissedScheduleHelpButton"); }},
    Scene{"settings-help-failed", [](Stage& stage) { pressInSettings(stage, "retryAtFailureHelpButton"); }},
    Scene{"log", openLog},
    Scene{"log-empty", [](Stage& stage) { openLogWindow(stage); }},
    Scene{"about", openAbout},
    Scene{"history-help", [](Stage& stage) { stage.program().controller->allBackupInfoHelpButtonPressed(); }},
    Scene{"disks",
          [](Stage& stage) {
              for (auto* list : stage.openDisks(Disks).findChildren<QListWidget*>())
                  list->setCurrentRow(1);
          }},
    Scene{"disks-sources", [](Stage& stage) { stage.openDisks(Sources); }},
    Scene{"disks-exclusions", [](Stage& stage) { stage.openDisks(Exclusions); }},
    Scene{"disks-recovery-key",
          [](Stage& stage) {
              stage.openDisks(Disks);
              stage.press("showKey");
              stage.program().runLoop.advance(Seconds(1));
          }},
    Scene{"disks-name",
          [](Stage& stage) {
              addExclusion(stage, "disksAddNameTitle");
              QApplication::activeModalWidget()->findChild<QLineEdit*>()->setText(u"*.iso"_s);
              stage.program().runLoop.advance(Seconds(1));
          }},
    Scene{"disks-size", [](Stage& stage) { addExclusion(stage, "disksAddSizeTitle"); }},
    Scene{"disks-place", [](Stage& stage) { addPlace(stage, {}, false); }},
    Scene{"disks-place-rest",
          [](Stage& stage) {
              using enum NetworkPlace::Field;
              addPlace(stage,
                       {.kind = NetworkPlace::Kind::Rest,
                        .texts = {{Server, u"self-signed.example.org"_s},
                                  {Port, u"8000"_s},
                                  {User, u"anna"_s},
                                  {Password, u"secret"_s}}},
                       true);
          }},
    Scene{"disks-place-s3",
          [](Stage& stage) {
              using enum NetworkPlace::Field;
              addPlace(stage,
                       {.kind = NetworkPlace::Kind::S3,
                        .texts = {{Server, u"s3.example.com"_s},
                                  {Path, u"backups"_s},
                                  {AccessKey, u"AKEXAMPLE"_s},
                                  {SecretKey, u"secret"_s}}},
                       true);
          }},
    Scene{"disks-place-host-key", [](Stage& stage) { askServer(stage, u"first.example.org"_s); }},
    Scene{"disks-place-changed-key", [](Stage& stage) { askServer(stage, u"changed.example.org"_s); }},
    Scene{"disks-place-take-up", [](Stage& stage) { askServer(stage, u"known.example.org"_s); }},
    Scene{"disks-place-edit",
          [](Stage& stage) {
              for (auto* list : stage.openDisks(Disks).findChildren<QListWidget*>())
                  list->setCurrentRow(list->count() - 1);
              stage.press("edit");
          }},
    Scene{"backups", [](Stage& stage) { chooseOldFile(stage); }},
    Scene{"backups-search",
          [](Stage& stage) {
              BrowseWindow& window = stage.openBackups();
              stage.press("everywhere");
              window.findChild<QLineEdit*>(u"search"_s)->setText(u"budget"_s);
              stage.program().runLoop.advance(Seconds(1));
          }},
    Scene{"backups-small", [](Stage& stage) { stage.openBackups().resize(0, 0); }},
    Scene{"backups-none", [](Stage& stage) { stage.openBackups(false); }},
    Scene{"backups-restore", [](Stage& stage) { restoreOldFile(stage, {"restoreSelected"}); }},
    Scene{"backups-restore-in-the-way",
          [](Stage& stage) {
              restoreOldFile(stage, {"restoreSelected", "start"});
          }},
    Scene{"backups-restore-end",
          [](Stage& stage) {
              restoreOldFile(stage, {"restoreSelected", "start", "keepBoth"});
          }},
    Scene{"alert-first-launch", launchForTheFirstTime},
    Scene{"alert-first-launch-no-disk",
          [](Stage& stage) {
              stage.program().machine.destinations.clear();
              launchForTheFirstTime(stage);
          }},
    Scene{"alert-mail",
          [](Stage& stage) {
              stage.program().workspace.opens = false;
              openAbout(stage);
              stage.press("emailButton");
              stage.showAlert();
          }},
    Scene{"alert-privacy",
          [](Stage& stage) {
              openAbout(stage);
              stage.press("privacyPolicyButton");
              stage.showAlert();
          }},
    Scene{"alert-failed-start", [](Stage& stage) { failToStart(stage, 17); }},
    Scene{"alert-failed-start-no-disk", [](Stage& stage) { failToStart(stage, 2); }},
    Scene{"alert-update",
          [](Stage& stage) {
              announceUpdate(stage);
              stage.program().controller->updateAvailableClicked();
              stage.showAlert();
          }},
    Scene{"alert-permission",
          [](Stage& stage) {
              const ScopedEnvironment monterey("QUILLON_SYSTEM_VERSION", "12.6");
              stage.program().machine.injection = {1, TmutilScript::Fault::None, 1, u"-e"_s}; // the script's
              stage.program().controller->openSystemPreferences();
              stage.program().runLoop.advance(Seconds(1));
              stage.showAlert();
          }},
};

} // namespace

std::span<const Scene> allScenes()
{
    return scenes;
}

} // namespace quillon
