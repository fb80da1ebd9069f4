#include "StatusItemFace.h"

#include "LocalizedString.h"
#include "MenuBarIcon.h"
#include "ProcessInfo.h"
#include "SettingsKeys.h"
#include "SystemVersion.h"

namespace quillon {

namespace {

/// Points of the system font.
double buttonFontSize(const OperatingSystemVersion& system)
{
    return system.major < 11 ? 12.0 : 11.0;
}

} // namespace

StatusItemFace::StatusItemFace(RunLoop& runLoop, UserDefaults& defaults, StatusItem& item, const BackupRun& run)
    : runLoop_(runLoop)
    , defaults_(defaults)
    , item_(item)
    , run_(run)
{
    item_.setFontSize(buttonFontSize(operatingSystemVersion()));
}

void StatusItemFace::restore()
{
    const bool isStored = defaults_.object(settingskeys::lastMenuBarIconState).isValid();
    setMenuBarIconState(isStored ? MenuBarIconState{defaults_.integer(settingskeys::lastMenuBarIconState)}
                                 : MenuBarIconState::Idle);
}

void StatusItemFace::setMenuBarIconState(MenuBarIconState state)
{
    if (!shown::iconReplaces(state, menuBarIconState_))
        return;
    menuBarIconState_ = state;
    runLoop_.enqueue([this] { drawIcon(); });
    defaults_.setObject(settingskeys::lastMenuBarIconState, static_cast<qlonglong>(state));
    Q_EMIT menuBarIconStateChanged();
}

std::optional<SymbolImage> StatusItemFace::getMenuBarIcon() const
{
    const bool colorsAreOn = defaults_.integer(settingskeys::enableMenuBarColors) == 1 && systemIsAtLeast(u"12.0");
    return menuBarIcon(menuBarIconState_, colorsAreOn, run_.progress().percentage());
}

void StatusItemFace::updateStatusBarTitle(const QString& title, const QString& text)
{
    constexpr double pointSize = 9.5;
    constexpr double twoLineAdjustment = -5.0; // packs two lines into the height of a menu bar
    title_ = {title, text};
    if (title.isEmpty() && text.isEmpty()) {
        item_.setTitle(QString());
        return;
    }
    const bool twoLines = !title.isEmpty() && !text.isEmpty();
    const QString composed = twoLines ? title + u'\n' + text : title + text;
    const double adjustment = twoLines ? twoLineAdjustment : 0.0;
    item_.setAttributedTitle({localizedString(composed.toUtf8().constData()), pointSize, adjustment, adjustment});
}

} // namespace quillon
