#pragma once

#include "AlertPopover.h"
#include "LogWindow.h"
#include "Popover.h"
#include "RunLoop.h"
#include "SettingsViewController.h"
#include "Shown.h"
#include "StatusItem.h"
#include "StatusMenu.h"
#include "StoredAndSent.h"
#include "UserDefaults.h"

#include <QObject>
#include <QString>

#include <memory>
#include <optional>

namespace quillon {

/// The panels that open at the status item, and the window that opens from them.
class Panels {
public:
    Panels(const SettingsViewController::Services& services, Ledger& ledger, StatusItem& item, StatusMenu& menu);

    void showSettings();
    void showAbout();
    void showLog();
    /// Explains the history of backups.
    void showHistoryHelp();

private:
    void show(Popover& popover);

    SettingsViewController::Services services_;
    Ledger& ledger_;
    StatusItem& item_;
    StatusMenu& menu_;
    Popover aboutPopover_;
    Popover preferencesPopover_;
    std::weak_ptr<AlertPopover> historyHelp_;
    std::unique_ptr<LogWindow> log_;
};

/// The image for a state: coloured where the user wants that and the system can, with how far a run has come, a
/// fraction, in the one of a run. None has no image.
std::optional<SymbolImage> menuBarIcon(MenuBarIconState state, bool colorsAreOn, double percentage);

/// What the item in the menu bar shows: its title of two lines, and the icon of a state that is kept between launches.
class StatusItemFace final : public QObject {
    Q_OBJECT

public:
    /// The icon bears the progress of the run.
    StatusItemFace(RunLoop& runLoop, UserDefaults& defaults, StatusItem& item, const BackupRun& run);

    MenuBarIconState menuBarIconState() const { return menuBarIconState_; }
    const shown::ItemTitle& title() const { return title_; }

    /// Takes up the icon of the last launch.
    void restore();
    /// An idle icon does not replace the mark of a failure or of a missed schedule.
    void setMenuBarIconState(MenuBarIconState state);
    std::optional<SymbolImage> getMenuBarIcon() const;
    /// Draws the icon anew: its colours or its progress may have changed.
    void drawIcon() { item_.setImage(getMenuBarIcon()); }
    void updateStatusBarTitle(const QString& title, const QString& text);

Q_SIGNALS:
    void menuBarIconStateChanged();

private:
    RunLoop& runLoop_;
    UserDefaults& defaults_;
    StatusItem& item_;
    const BackupRun& run_;
    MenuBarIconState menuBarIconState_ = MenuBarIconState::None;
    shown::ItemTitle title_;
};

} // namespace quillon
