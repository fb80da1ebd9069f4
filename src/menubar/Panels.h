#pragma once

#include "AlertPopover.h"
#include "Popover.h"
#include "SettingsViewController.h"
#include "StatusItem.h"
#include "StatusMenu.h"

#include <memory>

namespace quillon {

/// The panels that open at the status item.
class Panels {
public:
    Panels(const SettingsViewController::Services& services, StatusItem& item, StatusMenu& menu);

    void showSettings();
    void showAbout();
    /// Explains the history of backups.
    void showHistoryHelp();

private:
    void show(Popover& popover);

    SettingsViewController::Services services_;
    StatusItem& item_;
    StatusMenu& menu_;
    Popover aboutPopover_;
    Popover preferencesPopover_;
    std::weak_ptr<AlertPopover> historyHelp_;
};

} // namespace quillon
