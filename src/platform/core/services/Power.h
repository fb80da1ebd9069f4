#pragma once

#include <QObject>
#include <QString>

#include <memory>
#include <optional>

namespace quillon {

/// Where the machine takes its power from.
struct PowerState {
    bool onMains = true;       ///< also where nobody can tell
    std::optional<int> charge; ///< of the battery, in per cent; none without a battery

    bool operator==(const PowerState&) const = default;
};

/// Tells of the machine's power.
class PowerSupply : public QObject {
    Q_OBJECT

public:
    /// As last heard; the first answer comes some moments after the start, with changed() if it differs.
    virtual PowerState state() const = 0;

Q_SIGNALS:
    void changed();
};

/// Keeps the machine from going to sleep by itself. Neither a closed lid nor an empty battery waits for it.
class AwakeLock {
public:
    AwakeLock() = default;
    AwakeLock(const AwakeLock&) = delete;
    AwakeLock& operator=(const AwakeLock&) = delete;
    /// Lets go of it.
    virtual ~AwakeLock() = default;

    /// `reason` is what the system tells users who ask: English. Holding it twice is holding it once.
    virtual void hold(const QString& reason) = 0;
    virtual void release() = 0;
};

std::unique_ptr<PowerSupply> makePowerSupply();
std::unique_ptr<AwakeLock> makeAwakeLock();

} // namespace quillon
