#include "Panels.h"

#include "AboutViewController.h"
#include "LocalizedString.h"
#include "WindowSystem.h"

namespace quillon {

Panels::Panels(const SettingsViewController::Services& services, Ledger& ledger, StatusItem& item, StatusMenu& menu)
    : services_(services)
    , ledger_(ledger)
    , item_(item)
    , menu_(menu)
{
    for (Popover* popover : {&aboutPopover_, &preferencesPopover_})
        popover->setBehavior(PopoverBehavior::Transient);
    // Their frames show no title; screen readers and lists of windows do.
    aboutPopover_.setWindowTitle(localizedString("aboutMenuTitle"));
    preferencesPopover_.setWindowTitle(localizedString("preferencesMenuTitle"));
}

// Their contents follow when they are first shown: most days nobody looks at them.

void Panels::showSettings()
{
    if (!preferencesPopover_.contentView()) { // which takes it
        auto settings = std::make_unique<SettingsViewController>(services_);
        QObject::connect(settings.get(), &SettingsViewController::backupLogButtonPressed, settings.get(),
                         [this] { showLog(); });
        preferencesPopover_.setContentView(settings.release());
    }
    show(preferencesPopover_);
}

void Panels::showAbout()
{
    if (!aboutPopover_.contentView())
        aboutPopover_.setContentView(
            std::make_unique<AboutViewController>(services_.runLoop, services_.workspace, services_.alerts).release());
    show(aboutPopover_);
}

void Panels::showLog()
{
    preferencesPopover_.close(); // it would lie on top
    if (!log_)
        log_ = std::make_unique<LogWindow>(LogWindow::Services{services_.runLoop, ledger_, services_.alerts});
    log_->show();
    bringToFront(*log_);
}

void Panels::show(Popover& popover)
{
    menu_.close(); // which a second start of the program finds open; it would lie on top
    popover.showRelativeTo(item_.anchor(), RectEdge::MinY);
}

void Panels::showHistoryHelp()
{
    menu_.close();                   // it holds the keyboard and the pointer
    auto help = historyHelp_.lock(); // there already, or pushed aside by another one: once is enough
    if (!help) {
        AlertRequest request;
        request.informativeText = localizedString("allBackupInfoHelpMessage");
        request.buttons = {localizedString("AlertButtonClose")};
        help = AlertPopover::create(request);
        historyHelp_ = help;
    }
    help->runAsPopoverForView(item_.anchor(), RectEdge::MinY);
}

} // namespace quillon
