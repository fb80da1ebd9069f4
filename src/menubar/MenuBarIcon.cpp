#include "MenuBarIcon.h"

#include "LocalizedString.h"

#include <algorithm>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

SymbolImage plain(const QString& name)
{
    return {name, std::nullopt, false};
}

SymbolImage meaning(SymbolImage image, const char* descriptionKey)
{
    image.description = localizedString(descriptionKey);
    return image;
}

/// Nothing before a run has told how far it has come.
std::optional<int> shownPercent(double percentage)
{
    const int percent = static_cast<int>(std::min(percentage, 1.0) * 100);
    return percent > 0 ? std::optional(percent) : std::nullopt;
}

} // namespace

std::optional<SymbolImage> menuBarIcon(MenuBarIconState state, bool colorsAreOn, double percentage)
{
    // The coloured image is marked as a template image all the same.
    const auto coloured = [colorsAreOn](const QString& name, SymbolColor color) {
        return colorsAreOn ? SymbolImage{name, color, true} : plain(name);
    };
    switch (state) {
    case MenuBarIconState::Idle:
    case MenuBarIconState::Completed:
        return plain(u"clock.arrow.circlepath"_s);
    case MenuBarIconState::Running: {
        SymbolImage image = meaning(plain(u"clock.arrow.2.circlepath"_s), "iconRunningDescription");
        image.percent = shownPercent(percentage);
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

} // namespace quillon
