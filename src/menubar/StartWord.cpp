#include "StartWord.h"

#include "DataHelper.h"
#include "LocalizedString.h"
#include "StoredAndSent.h"

#include <utility>

namespace quillon::startword {

std::optional<Word> wordAt(const Moment& moment)
{
    if (!moment.next || !moment.mayStart || moment.now < *moment.next - ahead || moment.now >= *moment.next)
        return std::nullopt;
    return Word{*moment.next, !moment.following || *moment.next + postponement < *moment.following};
}

std::optional<Date> nextChange(const Moment& moment)
{
    if (!moment.next || moment.now >= *moment.next)
        return std::nullopt;
    return moment.now < *moment.next - ahead ? *moment.next - ahead : *moment.next;
}

} // namespace quillon::startword

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

const QString wordIdentifier = u"startAhead"_s;
const QString skipAction = u"skip"_s;
const QString postponeAction = u"postpone"_s;

} // namespace

StartWord::StartWord(const Services& services)
    : services_(services)
{
    connect(&services.controller, &StatusMenuController::statusBarUpdated, this, &StartWord::look);
    connect(&services.notifications, &UserNotifications::chosen, this,
            [this](const QString& of, const QString& action) {
                if (of == wordIdentifier)
                    carryOut(action);
            });
}

/// Nobody would do what its buttons say.
StartWord::~StartWord()
{
    withdraw();
}

startword::Moment StartWord::moment() const
{
    if (services_.defaults.integer(settingskeys::tellBeforeStart) != 1)
        return {};
    const DataManager& model = services_.dataManager;
    return {.now = services_.runLoop.now(),
            .next = model.nextScheduledBackupDate(),
            .following = model.startAfterNext(),
            .mayStart = services_.controller.mayStart()};
}

void StartWord::look()
{
    const auto now = moment();
    if (const auto word = startword::wordAt(now); !word)
        withdraw();
    else if (word != std::exchange(shown_, word))
        post(*word);
    // Armed anew at every look: the clock may have been set.
    const auto change = startword::nextChange(now);
    timer_ = change ? services_.runLoop.scheduleOnce(*change, [this] { look(); }) : Timer();
}

void StartWord::post(const startword::Word& word)
{
    UserNotification notification{
        .identifier = wordIdentifier,
        .title = localizedString("startAheadTitle"),
        .text = localizedString("startAheadMessage")
                    .arg(DataHelper::getDateTimeFrom(word.start, DateFormatterStyle::None, DateFormatterStyle::Short)),
        .actions = {{skipAction, localizedString("startAheadSkipTitle")}},
        .lasts = word.start - services_.runLoop.now()};
    if (word.mayBePostponed)
        notification.actions.append({postponeAction, localizedString("startAheadPostponeTitle")});
    services_.notifications.post(notification);
}

void StartWord::withdraw()
{
    if (std::exchange(shown_, std::nullopt))
        services_.notifications.withdraw(wordIdentifier);
}

void StartWord::carryOut(const QString& action)
{
    if (action.isEmpty()) {
        services_.controller.preferencesClicked();
        return;
    }
    DataManager& model = services_.dataManager;
    if (!shown_ || shown_->start != model.nextScheduledBackupDate())
        return; // its last moment has passed
    const Date start = shown_->start;
    const bool isRetry = start == model.retryBackupDate();
    withdraw();
    if (action == skipAction && isRetry) {
        services_.controller.skipRetryAttemptClicked();
    } else if (action == skipAction) {
        services_.controller.skipNextStart();
    } else if (isRetry) {
        model.setRetryBackupDate(start + startword::postponement);
        services_.controller.updateStatusBar();
    } else {
        services_.controller.postponeNextStart(startword::postponement);
    }
    look(); // a start that could not be changed is told of again
}

} // namespace quillon
