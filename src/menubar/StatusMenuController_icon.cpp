#include "LocalizedString.h"
#include "SettingsKeys.h"
#include "StatusMenuController.h"
#include "SystemVersion.h"

#include <algorithm>

namespace quillon {

using namespace Qt::StringLiterals;

void StatusMenuController::setMenuBarIconState(MenuBarIconState state)
{
    if (state == menuBarIconState_)
        return;
    const bool marksTrouble =
        menuBarIconState_ == MenuBarIconState::Failed || menuBarIconState_ == MenuBarIconState::MissedSchedule;
    if (state == MenuBarIconState::Idle && marksTrouble)
        return;
    menuBarIconState_ = state;
    runLoop_.enqueue([this] { statusItem_.setImage(getMenuBarIcon()); });
    defaults_.setObject(settingskeys::lastMenuBarIconState, static_cast<qlonglong>(state));
    Q_EMIT menuBarIconStateChanged();
}

std::optional<SymbolImage> StatusMenuController::getMenuBarIcon() const
{
    const auto plain = [](const QString& name) { return SymbolImage{name, std::nullopt, false}; };
    // The coloured image is marked as a template image all the same.
    const auto coloured = [&](const QString& name, SymbolColor color) {
        const bool colorsAreOn = switchIsOn(settingskeys::enableMenuBarColors) && systemIsAtLeast(u"12.0");
        return colorsAreOn ? SymbolImage{name, color, true} : plain(name);
    };
    const auto meaning = [](SymbolImage image, const char* descriptionKey) {
        image.description = localizedString(descriptionKey);
        return image;
    };
    switch (menuBarIconState_) {
    case MenuBarIconState::Idle:
    case MenuBarIconState::Completed:
        return plain(u"clock.arrow.circlepath"_s);
    case MenuBarIconState::Running: {
        SymbolImage image = meaning(plain(u"clock.arrow.2.circlepath"_s), "iconRunningDescription");
        image.percent = shownPercent();
        return image;
    }
    case MenuBarIconState::UpdateAvailable:
        return meaning(coloured(u"exclamationmark.arrow.circlepath"_s, SymbolColor::SystemGreen),
                       "iconUpdateDescription");
    case MenuBarIconState::Failed: {
        SymbolImage image =
            meaning(coloured(u"exclamationmark.arrow.triangle.2.circlepath"_s, SymbolColor::SystemOrange),
                    "iconFailedDescription");
        image.needsAttention = true;
        return image;
    }
    case MenuBarIconState::MissedSchedule:
        return meaning(coloured(u"exclamationmark.arrow.circlepath"_s, SymbolColor::SystemYellow),
                       "iconMissedDescription");
    case MenuBarIconState::None:
        break;
    }
    return std::nullopt;
}

/// Nothing before a run has told how far it has come.
std::optional<int> StatusMenuController::shownPercent() const
{
    const int percent = static_cast<int>(std::min(progress_.percentage(), 1.0) * 100);
    return percent > 0 ? std::optional(percent) : std::nullopt;
}

} // namespace quillon
