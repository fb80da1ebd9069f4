#include "StartRequest.h"

#include "ModalWindow.h"
#include "StatusMenuController.h"

#include <array>
#include <utility>

namespace quillon {

namespace {

constexpr std::array names{
    std::pair{StartRequest::BackUpNow, "back-up-now"},
    std::pair{StartRequest::PauseForAnHour, "pause-for-an-hour"},
    std::pair{StartRequest::Settings, "settings"},
};

void pauseForAnHour(StatusMenuController& controller)
{
    constexpr qlonglong hour = 3600;
    if (!controller.statusMenu().pauseScheduleMenuItem->isEnabled()) {
        controller.preferencesClicked(); // which show that there is no schedule to pause
        return;
    }
    const auto durations = controller.statusMenu().pauseDurationItems();
    for (QAction* item : durations) {
        if (item->data().toLongLong() == hour)
            item->trigger();
    }
}

} // namespace

std::optional<StartRequest> startRequestNamed(const QByteArray& name)
{
    for (const auto& [request, known] : names) {
        if (name == known)
            return request;
    }
    return std::nullopt;
}

QByteArray nameOf(StartRequest request)
{
    for (const auto& [known, name] : names) {
        if (request == known)
            return name;
    }
    return "present";
}

QByteArrayList startRequestNames()
{
    QByteArrayList result;
    for (const auto& [request, name] : names)
        result.append(name);
    return result;
}

void carryOut(StartRequest request, StatusMenuController& controller)
{
    if (bringModalWindowToFront())
        return;
    switch (request) {
    case StartRequest::BackUpNow:
        controller.backupNowRequested();
        return;
    case StartRequest::PauseForAnHour:
        pauseForAnHour(controller);
        return;
    case StartRequest::Present: // not the menu: the item may be hidden in a crowded bar
    case StartRequest::Settings:
        controller.preferencesClicked();
        return;
    }
}

} // namespace quillon
