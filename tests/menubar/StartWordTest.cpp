#include "StartWord.h"

#include "ControllerFixture.h"
#include "Popover.h"

#include <QApplication>

namespace quillon {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

/// On a Saturday with one backup a day at twelve.
class StartWordOf : public ControllerFixture {
protected:
    void launchWithWord(qlonglong wanted = 1)
    {
        word.reset();
        defaults.stored[settingskeys::tellBeforeStart] = wanted;
        launch();
        word = std::make_unique<StartWord>(
            StartWord::Services{runLoop, defaults, *manager, userNotifications, *controller});
    }
    /// Ahead of each name of an action that is offered stands the text; nothing where no word stands.
    std::string told() const
    {
        if (!userNotifications.shown.contains(u"startAhead"_s))
            return "";
        EXPECT_EQ(userNotifications.posted.last().title, u"Backup Starts Soon"_s);
        QStringList words{userNotifications.posted.last().text};
        for (const auto& action : userNotifications.posted.last().actions)
            words.append(action.identifier);
        return words.join(u' ').toStdString();
    }
    static bool settingsAreOpen()
    {
        return std::ranges::any_of(QApplication::topLevelWidgets(), [](const QWidget* window) {
            const auto* popover = qobject_cast<const Popover*>(window);
            return popover && popover->isShown();
        });
    }

    std::unique_ptr<StartWord> word;
};

TEST(StartWord, StandsInTheLastMinuteAheadOfAStartThatIsToBeMade)
{
    const Date start = PlayedSaturday::today(12);
    const struct {
        Date now;
        std::optional<Date> next, following;
        bool mayStart;
        std::optional<startword::Word> word;
        std::optional<Date> change;
    } rows[] = {
        {start - 2h, start, {}, true, {}, start - 1min},
        {start - 60001ms, start, {}, true, {}, start - 1min},
        {start - 1min, start, {}, true, startword::Word{start, true}, start},
        {start - 1ms, start, start + 61min, true, startword::Word{start, true}, start},
        {start - 1ms, start, start + 60min, true, startword::Word{start, false}, start},
        {start - 30s, start, {}, false, {}, start},
        {start, start, {}, true, {}, {}},
        {start - 30s, {}, {}, true, {}, {}},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE((row.now - start).count());
        const startword::Moment moment{row.now, row.next, row.following, row.mayStart};
        EXPECT_EQ(startword::wordAt(moment), row.word);
        EXPECT_EQ(startword::nextChange(moment), row.change);
    }
}

TEST_F(StartWordOf, ComesOnceAMinuteAheadAndGoesWithTheStart)
{
    launchWithWord();
    until(today(11, 58, 59));
    EXPECT_EQ(told(), "");
    until(today(11, 59) + 1ms);
    EXPECT_EQ(told(), "The next backup starts at 12:00. skip postpone");
    until(today(11, 59, 59));
    EXPECT_EQ(userNotifications.posted.size(), 1);
    EXPECT_EQ(userNotifications.posted[0].lasts, 1min - 1ms) << "desktops take one away within seconds";
    until(today(12) + 1ms);
    EXPECT_EQ(told(), "");
    after(1, "startbackup -r; 2, 0.0% Starting, Skip This Backup, next 22 12:00");

    launchWithWord(0);
    sleepUntil(today(11, 58) + 24h);
    wait(90);
    EXPECT_EQ(told(), "") << "nobody wants it";
    EXPECT_EQ(userNotifications.posted.size(), 1);
}

TEST_F(StartWordOf, GoesWithWhatMovesTheStart)
{
    launchWithWord();
    const auto expectWordUntil = [&](const char* what, const std::function<void()>& act) {
        sleepUntil(*manager->nextScheduledBackupDate() - 70s);
        wait(30);
        EXPECT_NE(told(), "") << what;
        act();
        wait(1);
        EXPECT_EQ(told(), "") << what;
    };
    expectWordUntil("pause", [&] { controller->pauseForClicked(3600); });
    controller->resumeScheduleClicked();
    wait(1);
    EXPECT_NE(told(), "") << "it is the next one again";
    expectWordUntil("rule", [&] {
        manager->addNewSchedule({0, 43200 + 300});
        manager->deleteBackupScheduleAtIndex(0);
        notifications.post(notifications::rulesChanged);
        controller->updateStatusBar();
    });
    expectWordUntil("setting", [&] {
        defaults.stored[settingskeys::tellBeforeStart] = 0LL;
        notifications.post(notifications::shouldUpdateStatusBar);
    });
    defaults.stored[settingskeys::tellBeforeStart] = 1LL;
    controller->updateStatusBar();
    expectWordUntil("backup", [&] { runElsewhere(16); });
    wait(120);
    defaults.stored[settingskeys::onlyOnMainsPower] = 1LL;
    expectWordUntil("power", [&] {
        powerSupply.become({.onMains = false, .charge = 50});
        controller->updateStatusBar();
    });
    powerSupply.become({});
    expectWordUntil("clock", [&] {
        runLoop.stepWallClock(-1h);
        wait(16);
    });
    sleepUntil(*manager->nextScheduledBackupDate() - 70s);
    wait(30);
    EXPECT_NE(told(), "") << "by the clock as it is now";
    word.reset();
    EXPECT_EQ(told(), "") << "nobody would do what it offers";
}

TEST_F(StartWordOf, SkipsAndPostponesStartsAndRetriesAlikeAndOpensTheSettings)
{
    launchWithWord();
    until(today(11, 59, 30));
    userNotifications.choose(u"postpone"_s);
    wait(1);
    EXPECT_EQ(told(), "");
    expect("1, Next: 1h 0m, Back Up Now, next 21 13:00");
    until(today(12, 59, 30));
    EXPECT_EQ(told(), "The next backup starts at 13:00. skip postpone");
    userNotifications.choose(u"skip"_s);
    wait(1);
    expect("1, Next: 23h 0m, Back Up Now, next 22 12:00");
    EXPECT_EQ(ledger.read()->front().reason, LedgerEntry::Reason::Asked);
    EXPECT_FALSE(settingsAreOpen());

    manager->setRetryBackupDate(today(14));
    until(today(13, 59, 30));
    userNotifications.choose(u"postpone"_s);
    wait(1);
    expect("1, Retry: 1h 0m, Back Up Now, retry 21 15:00");
    until(today(14, 59, 30));
    userNotifications.choose(u"skip"_s);
    wait(1);
    expect("1, Next: 21h 0m, Back Up Now, next 22 12:00");

    sleepUntil(today(11, 58) + 24h);
    wait(90);
    defaults.stored[settingskeys::changedStarts] =
        QVariantList(20, QVariantMap{{u"start"_s, u"2026-12-24T12:00:00"_s}});
    const auto before = userNotifications.posted.size();
    userNotifications.choose(u"skip"_s);
    EXPECT_EQ(userNotifications.posted.size(), before + 1) << "it could not be skipped";
    userNotifications.choose({});
    EXPECT_TRUE(settingsAreOpen());
    EXPECT_NE(told(), "");
}

} // namespace quillon
