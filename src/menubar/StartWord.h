#pragma once

#include "DataManager.h"
#include "RunLoop.h"
#include "Services.h"
#include "StatusMenuController.h"
#include "UserDefaults.h"

#include <QObject>

#include <chrono>
#include <optional>

/// Whether the user is told of the next start at a moment, as pure functions.
namespace quillon::startword {

struct Moment {
    Date now;
    std::optional<Date> next{};      ///< start or retry
    std::optional<Date> following{}; ///< the start behind it
    bool mayStart = true;            ///< no backup runs, and power allows one
};

struct Word {
    Date start;
    bool mayBePostponed = false; ///< which takes it past no other start

    bool operator==(const Word&) const = default;
};

inline constexpr auto ahead = std::chrono::minutes(1);
inline constexpr auto postponement = std::chrono::hours(1);

/// What stands on the desktop at that moment.
std::optional<Word> wordAt(const Moment& moment);

/// When time alone changes that.
std::optional<Date> nextChange(const Moment& moment);

} // namespace quillon::startword

namespace quillon {

/// Tells the user of a start one minute ahead, who then may skip or postpone it, and takes the word back once the start
/// is made or is no longer the next one. Only while the user wants that it has a timer.
class StartWord final : public QObject {
    Q_OBJECT

public:
    struct Services {
        RunLoop& runLoop;
        UserDefaults& defaults;
        DataManager& dataManager;
        UserNotifications& notifications;
        StatusMenuController& controller;
    };

    /// The services must outlive it.
    explicit StartWord(const Services& services);
    ~StartWord() override;

private:
    startword::Moment moment() const;
    void look();
    void post(const startword::Word& word);
    void withdraw();
    void carryOut(const QString& action);

    Services services_;
    std::optional<startword::Word> shown_;
    Timer timer_;
};

} // namespace quillon
