#pragma once

#include "AlertPopover.h"
#include "LogWindow.h"
#include "Popover.h"
#include "SettingsViewController.h"
#include "StatusItem.h"
#include "StatusMenu.h"

#include <memory>

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

} // namespace quillon
