#pragma once

#include "Alert.h"
#include "PlayedBackups.h"
#include "PlayedDisks.h"
#include "PlayedProgram.h"
#include "ScopedEnvironment.h"
#include "StatusItem.h"

#include <QImage>
#include <QWidgetList>

#include <memory>
#include <optional>

namespace quillon {

/// A played program with a real bar, menu, panels and alerts, whose windows are taken together into a picture. Begins
/// anew for each picture, so that none depends on the one before.
class Stage {
public:
    Stage();

    PlayedProgram& program() { return program_; }

    void launch();
    /// Opens the status menu and, beside it, the submenu of one of its items where one is given.
    void openMenu(QAction* const StatusMenu::*submenuOf = nullptr);
    /// Opens the window of disks, with the page of that place in front.
    DisksWindow& openDisks(int page);
    /// Opens the window of backups at the home folder; without backups it says what to do.
    BrowseWindow& openBackups(bool withBackups = true);
    /// Presses the visible button of that object name; of several the one that stands highest.
    void press(const char* button);
    /// Chooses an item of the visible combo box of that object name.
    void choose(const char* comboBox, int item);
    /// Shows the alert that the program has presented last.
    void showAlert();
    /// What is on the screen once nothing moves any more; what stands in front of the others comes last.
    static QWidgetList windows();
    /// A picture of them.
    static QImage picture();
    /// Answers alerts and closes menus.
    static void clear();

private:
    ScopedEnvironment zone_{"TZ", "Europe/Berlin"};
    std::unique_ptr<StatusItem> item_;
    ModalAlertPresenter alerts_;
    PlayedProgram program_;
    std::optional<PlayedDisks> disks_;
    std::optional<PlayedBackups> backups_;
};

} // namespace quillon
