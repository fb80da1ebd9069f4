#include "StatusNotifierHostWatcher_linux.h"

#include "TrayProtocols_linux.h"

namespace quillon {

using namespace Qt::StringLiterals;
using namespace trayprotocols;

namespace {

// A watcher that hangs must not keep the item hidden.
constexpr int answerTimeoutMs = 1000;

} // namespace

StatusNotifierHostWatcher::StatusNotifierHostWatcher(const QDBusConnection& bus)
    : bus_(bus)
    , serviceWatcher_(statusNotifierWatcher, bus_, QDBusServiceWatcher::WatchForOwnerChange)
    , known_(!bus_.isConnected())
{
    if (known_)
        return;
    connect(&serviceWatcher_, &QDBusServiceWatcher::serviceOwnerChanged, this,
            [this](const QString& /*service*/, const QString& /*oldOwner*/, const QString& newOwner) {
                if (!newOwner.isEmpty()) {
                    ask();
                    return;
                }
                question_.reset();
                settle(false);
            });
    for (const auto signal : {"StatusNotifierHostRegistered"_L1, "StatusNotifierHostUnregistered"_L1})
        bus_.connect(statusNotifierWatcher, statusNotifierPath, statusNotifierWatcher, signal, this, SLOT(ask()));
    ask();
}

StatusNotifierHostWatcher::~StatusNotifierHostWatcher() = default;

void StatusNotifierHostWatcher::ask()
{
    // A newer question replaces one under way, so that answers cannot overtake each other.
    question_ = std::make_unique<QDBusPendingCallWatcher>(bus_.asyncCall(statusNotifierQuestion(), answerTimeoutMs));
    connect(question_.get(), &QDBusPendingCallWatcher::finished, this, [this] {
        const bool present = isYes(question_->reply());
        question_.release()->deleteLater();
        settle(present);
    });
}

void StatusNotifierHostWatcher::settle(bool present)
{
    const bool news = !known_ || present_ != present;
    known_ = true;
    present_ = present;
    if (news)
        Q_EMIT changed();
}

} // namespace quillon
