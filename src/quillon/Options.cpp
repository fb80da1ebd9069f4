#include "Options.h"

#include "Alert.h"
#include "StatusMenuController.h"

#include <array>
#include <utility>

namespace quillon {

using namespace Qt::StringLiterals;

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

namespace {

std::optional<StatusItemPlacement> placementNamed(QStringView name)
{
    if (name == "auto"_L1)
        return StatusItemPlacement::Automatic;
    if (name == "tray"_L1)
        return StatusItemPlacement::Tray;
    if (name == "bar"_L1)
        return StatusItemPlacement::Bar;
    return std::nullopt;
}

} // namespace

std::optional<Options> Options::parse(const QStringList& words, QString* error)
{
    constexpr auto placementOption = "--menu-bar="_L1;
    Options options;
    for (const auto& word : words) {
        if (word == "--help"_L1 || word == "-h"_L1) {
            options.help = true;
        } else if (word == "--version"_L1) {
            options.version = true;
        } else if (word == "--print-changes"_L1) {
            options.printChanges = true;
        } else if (word.startsWith(placementOption)) {
            const auto placement = placementNamed(QStringView(word).mid(placementOption.size()));
            if (!placement) {
                *error = u"--menu-bar takes auto, tray or bar, not \"%1\""_s.arg(word.mid(placementOption.size()));
                return std::nullopt;
            }
            options.placement = *placement;
        } else if (const auto request = startRequestNamed(word.mid(2).toUtf8()); request && word.startsWith("--"_L1)) {
            options.request = *request;
        } else {
            *error = u"unknown option \"%1\"; --help lists them"_s.arg(word);
            return std::nullopt;
        }
    }
    return options;
}

QString Options::helpText()
{
    return u"Usage: quillon [OPTION]...\n"
           "Puts Time Machine backups on a schedule of your choosing.\n\n"
           "  --menu-bar=auto|tray|bar  where the menu-bar item is shown (Linux): in the tray\n"
           "                            when there is one and else in a slim bar, or always in\n"
           "                            one of them\n"
           "  --back-up-now             start a backup, unless one runs\n"
           "  --pause-for-an-hour       pause the schedule for an hour\n"
           "  --settings                open the settings\n"
           "  --print-changes           print a line for each change of the menu-bar item\n"
           "  --version                 print the version and end\n"
           "  -h, --help                print this text and end\n\n"
           "Where Quillon runs already, it is the running one that does these things.\n\n"
           "Environment: QUILLON_TMUTIL names the tmutil tool to use.\n"_s;
}

} // namespace quillon
