#include "SettingsKeys.h"
#include "StatusMenuController.h"
#include "SystemVersion.h"

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
    switch (menuBarIconState_) {
    case MenuBarIconState::Idle:
    case MenuBarIconState::Completed:
        return plain(u"clock.arrow.circlepath"_s);
    case MenuBarIconState::Running:
        return plain(u"clock.arrow.2.circlepath"_s);
    case MenuBarIconState::UpdateAvailable:
        return coloured(u"exclamationmark.arrow.circlepath"_s, SymbolColor::SystemGreen);
    case MenuBarIconState::Failed:
        return coloured(u"exclamationmark.arrow.triangle.2.circlepath"_s, SymbolColor::SystemOrange);
    case MenuBarIconState::MissedSchedule:
        return coloured(u"exclamationmark.arrow.circlepath"_s, SymbolColor::SystemYellow);
    case MenuBarIconState::None:
        break;
    }
    return std::nullopt;
}

} // namespace quillon
