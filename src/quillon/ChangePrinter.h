#pragma once

#include "DateFormatter.h"
#include "StatusMenuController.h"

#include <QObject>
#include <QString>

#include <cstdio>

namespace quillon {

/// Prints each change of the menu-bar item as a line on standard output, for a person at a terminal and for scripts:
/// "12:00:03  icon=2 title="12.5%" text="3m" phase="Copying"".
class ChangePrinter final : public QObject {
    Q_OBJECT

public:
    /// The controller and the run loop must outlive the printer.
    ChangePrinter(const StatusMenuController& controller, const RunLoop& runLoop)
        : controller_(controller)
        , runLoop_(runLoop)
    {
        connect(&controller, &StatusMenuController::statusBarUpdated, this, &ChangePrinter::printIfChanged);
        connect(&controller, &StatusMenuController::menuBarIconStateChanged, this, &ChangePrinter::printIfChanged);
    }

private:
    void printIfChanged()
    {
        using namespace Qt::StringLiterals;
        const QString line = u"icon=%1 title=\"%2\" text=\"%3\" phase=\"%4\""_s.arg(
            QString::number(static_cast<int>(controller_.menuBarIconState())), controller_.itemTitle().title,
            controller_.itemTitle().text, controller_.tmPhase());
        if (line == lastLine_)
            return;
        lastLine_ = line;
        const QString stamped = DateFormatter::string(runLoop_.now(), u"HH:mm:ss"_s) + u"  "_s + line + u'\n';
        std::fputs(stamped.toUtf8().constData(), stdout);
        std::fflush(stdout);
    }

    const StatusMenuController& controller_;
    const RunLoop& runLoop_;
    QString lastLine_;
};

} // namespace quillon
