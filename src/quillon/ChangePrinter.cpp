#include "ChangePrinter.h"

#include "DateFormatter.h"

#include <cstdio>

namespace quillon {

using namespace Qt::StringLiterals;

ChangePrinter::ChangePrinter(const StatusMenuController& controller, const RunLoop& runLoop)
    : controller_(controller)
    , runLoop_(runLoop)
{
    connect(&controller, &StatusMenuController::statusBarUpdated, this, &ChangePrinter::printIfChanged);
    connect(&controller, &StatusMenuController::menuBarIconStateChanged, this, &ChangePrinter::printIfChanged);
}

void ChangePrinter::printIfChanged()
{
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

} // namespace quillon
