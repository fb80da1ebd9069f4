#include "StatusItemFace.h"

#include "AboutViewController.h"
#include "DataHelper.h"
#include "LocalizedString.h"
#include "StoredAndSent.h"
#include "WindowSystem.h"

#include <algorithm>

namespace quillon {

Panels::Panels(const SettingsViewController::Services& services, Ledger& ledger, StatusItem& item, StatusMenu& menu)
    : services_(services)
    , ledger_(ledger)
    , item_(item)
    , menu_(menu)
{
    for (Popover* popover : {&aboutPopover_, &preferencesPopover_})
        popover->setBehavior(PopoverBehavior::Transient);
    // Their frames show no title; screen readers and lists of windows do.
    aboutPopover_.setWindowTitle(localizedString("aboutMenuTitle"));
    preferencesPopover_.setWindowTitle(localizedString("preferencesMenuTitle"));
}

// Their contents follow when they are first shown: most days nobody looks at them.

void Panels::showSettings()
{
    if (!preferencesPopover_.contentView()) { // which takes it
        auto settings = std::make_unique<SettingsViewController>(services_);
        QObject::connect(settings.get(), &SettingsViewController::backupLogButtonPressed, settings.get(),
                         [this] { showLog(); });
        preferencesPopover_.setContentView(settings.release());
    }
    show(preferencesPopover_);
}

void Panels::showAbout()
{
    if (!aboutPopover_.contentView())
        aboutPopover_.setContentView(
            std::make_unique<AboutViewController>(services_.runLoop, services_.workspace, services_.alerts).release());
    show(aboutPopover_);
}

void Panels::showLog()
{
    preferencesPopover_.close(); // it would lie on top
    if (!log_)
        log_ = std::make_unique<LogWindow>(LogWindow::Services{services_.runLoop, ledger_, services_.alerts});
    log_->show();
    bringToFront(*log_);
}

void Panels::show(Popover& popover)
{
    menu_.close(); // which a second start of the program finds open; it would lie on top
    popover.showRelativeTo(item_.anchor(), RectEdge::MinY);
}

void Panels::showHistoryHelp()
{
    menu_.close();                   // it holds the keyboard and the pointer
    auto help = historyHelp_.lock(); // there already, or pushed aside by another one: once is enough
    if (!help) {
        AlertRequest request;
        request.informativeText = localizedString("allBackupInfoHelpMessage");
        request.buttons = {localizedString("AlertButtonClose")};
        help = AlertPopover::create(request);
        historyHelp_ = help;
    }
    help->runAsPopoverForView(item_.anchor(), RectEdge::MinY);
}

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

namespace {

/// Points of the system font.
double buttonFontSize()
{
    return systemIsAtLeast(u"11.0") ? 11.0 : 12.0;
}

} // namespace

StatusItemFace::StatusItemFace(RunLoop& runLoop, UserDefaults& defaults, StatusItem& item, const BackupRun& run)
    : runLoop_(runLoop)
    , defaults_(defaults)
    , item_(item)
    , run_(run)
{
    item_.setFontSize(buttonFontSize());
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
