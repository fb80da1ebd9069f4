#pragma once

#include "ModalAlertPresenter.h"
#include "PlayedProgram.h"
#include "ScopedEnvironment.h"
#include "StatusItem.h"

#include <QDir>
#include <QString>

#include <memory>

namespace quillon {

/// A played program with a real bar, menu and popovers, whose windows are taken together into pictures.
class Stage {
public:
    /// Begins anew for each picture, so that none depends on the one before.
    explicit Stage(QDir folder, QString suffix);

    PlayedProgram& program() { return program_; }

    void launch();
    /// Opens the status menu and, beside it, the submenu of one of its items where one is given.
    void openMenu(QAction* const StatusMenu::*submenuOf = nullptr);
    /// Shows the alert that the program has presented last.
    void showAlert();
    void take(const QString& name);

private:
    ScopedEnvironment zone_{"TZ", "Europe/Berlin"};
    QDir folder_;
    QString suffix_;
    std::unique_ptr<StatusItem> item_;
    ModalAlertPresenter alerts_;
    PlayedProgram program_;
};

} // namespace quillon
