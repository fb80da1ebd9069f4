#pragma once

#include "Calendar.h"
#include "PlayedProgram.h"
#include "ScopedEnvironment.h"

#include <QMap>
#include <QSet>
#include <QStringList>

#include <optional>
#include <random>

namespace quillon {

/// What became of the starts that the rules called for.
struct Tally {
    int due = 0;
    int made = 0;
    int retries = 0;            ///< made besides
    QMap<QString, int> skipped; ///< by reason
    QStringList lost;           ///< when a start was due and not made
    QStringList doubled;        ///< when one was made that nothing called for
    QStringList untrue;         ///< when something else was shown than was so

    std::string trouble() const { return (lost + doubled + untrue).join(u'\n').toStdString(); }
};

/// A computer with the whole program on it, day after day: it sleeps and wakes, somebody sets its clock and travels
/// with it, pauses the schedule and backs up by hand, power and disk come and go, and Time Machine fails now and then.
/// What is to be expected of each start is known from what is done to it, not from the program.
class LivedSchedule : PlayedProgram {
public:
    /// A place with its zone lasts for a life.
    struct Place {
        explicit Place(const char* name)
            : zone("TZ", name)
        {
        }
        ScopedEnvironment zone;
        ScopedEnvironment language{"LC_ALL", "en_US.UTF-8"};
    };

    LivedSchedule(Date begin, unsigned seed, Tally& tally);

    void liveThrough(int days);

private:
    /// What happens around the time of a start.
    enum class Event {
        Nothing,
        RunFails,
        Asleep,
        SmallJump,
        LargeJump,
        SetBack,
        Paused,
        OtherRun,
        ToolFails,
        ByHand,
        Skipped,
        Postponed,
        OnBattery,
        DiskAway,
        StillOnBattery ///< when the next start comes
    };

    int between(int least, int most);
    QList<Date> dueOn(const LocalTime& day) const;
    void meet(Date due);
    void travel();
    void play(Event event, Date due);
    void pass(Date due, bool isExpected, const QString& reason = {});
    void expectStart(Date from, bool isExpected, const QString& reason);
    void expectRetry();
    void beOnBattery(Date due);
    void beWithoutDisk(Date due);
    void setMounted(bool isMounted);
    void expectStartForDisk();
    void letRunEnd();
    /// As another program of the user does.
    void ask(const QString& words);
    void look(Date due);
    QString newInLedger();
    QString lineAt(Date date) const;

    std::mt19937 random_;
    Tally& tally_;
    Event event_ = Event::Nothing;
    bool isLastOfDay_ = false;
    Seconds retryWait_;     ///< after a wake-up
    int seen_ = 0;          ///< how many runs have been accounted for
    QSet<qint64> read_;     ///< entries of the ledger
    QSet<QString> changed_; ///< starts that were skipped or postponed
};

} // namespace quillon
