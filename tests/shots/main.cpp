#include "ColorScheme_linux.h"
#include "LocalDates.h"
#include "LocalizedString.h"
#include "Notifications.h"
#include "Stage.h"

#include <QApplication>

#include <array>
#include <clocale>
#include <cstdio>

namespace {

using namespace quillon;
using namespace Qt::StringLiterals;

struct Scene {
    const char* name;
    void (*play)(Stage& stage);
};

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
              stage.openMenu();
          }},
    Scene{"popover-about", [](Stage& stage) { stage.program().controller->aboutClicked(); }},
    Scene{"popover-settings", [](Stage& stage) { stage.program().controller->preferencesClicked(); }},
    Scene{"popover-history-help", [](Stage& stage) { stage.program().controller->allBackupInfoHelpButtonPressed(); }},
    Scene{"alert-failed-start",
          [](Stage& stage) {
              stage.program().machine.injection = {1, TmutilScript::Fault::None, 17, u"startbackup"_s};
              stage.program().controller->backupNowClicked();
              stage.program().runLoop.advance(Seconds(1));
              stage.showAlert();
          }},
    Scene{"alert-update",
          [](Stage& stage) {
              announceUpdate(stage);
              stage.program().controller->updateAvailableClicked();
              stage.showAlert();
          }},
    Scene{"alert-restore",
          [](Stage& stage) {
              completeABackup(stage);
              stage.program().workspace.opens = false;
              stage.program().controller->enterTimeMachineClicked();
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

/// usage: quillon_shots FOLDER; one picture a scene, light and dark.
int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    QApplication::setApplicationDisplayName(u"Quillon"_s);
    std::setlocale(LC_NUMERIC, "C");
    installStringTable();
    const QDir folder(QString::fromLocal8Bit(argc == 2 ? argv[1] : ""));
    if (argc != 2 || !folder.exists()) {
        std::fputs("usage: quillon_shots FOLDER (which must exist)\n", stderr);
        return 2;
    }
    for (const auto& [preference, suffix] :
         {std::pair{ColorSchemePreference::Light, "-light"_L1}, {ColorSchemePreference::Dark, "-dark"_L1}}) {
        applyColorScheme(preference);
        for (const auto& scene : scenes) {
            Stage stage(folder, suffix);
            stage.launch();
            scene.play(stage);
            stage.take(QString::fromLatin1(scene.name));
        }
    }
    return 0;
}
