#pragma once

#include <QObject>

#include <memory>
#include <optional>

namespace quillon {

/// Where the machine takes its power from.
struct PowerState {
    bool onMains = true;       ///< also where nobody can tell
    std::optional<int> charge; ///< of the battery, in per cent; none without a battery

    bool operator==(const PowerState&) const = default;
};

/// Tells of the machine's power, while somebody wants to know.
class PowerSupply : public QObject {
    Q_OBJECT

public:
    /// As last heard; on mains while it does not watch. The first answer comes some moments after the watch has begun,
    /// with changed() if it differs.
    virtual PowerState state() const = 0;

    /// Begins or ends the watch; the state it is in already changes nothing.
    virtual void setWatching(bool watching) = 0;
    /// Asks anew during the watch: whoever no longer answers is not believed for ever.
    virtual void refresh() = 0;

Q_SIGNALS:
    void changed();
};

std::unique_ptr<PowerSupply> makePowerSupply();

} // namespace quillon
