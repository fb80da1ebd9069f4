#pragma once

#include "StatusMenuController.h"

#include <QObject>
#include <QString>

namespace quillon {

/// Prints each change of the menu-bar item as a line on standard output, for a person at a terminal and for scripts:
/// "12:00:03  icon=2 title="12.5%" text="3m" phase="Copying"".
class ChangePrinter final : public QObject {
    Q_OBJECT

public:
    /// The controller and the run loop must outlive the printer.
    ChangePrinter(const StatusMenuController& controller, const RunLoop& runLoop);

private:
    void printIfChanged();

    const StatusMenuController& controller_;
    const RunLoop& runLoop_;
    QString lastLine_;
};

} // namespace quillon
