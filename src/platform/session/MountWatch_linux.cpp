#include "MountWatch.h"

#include <QFile>
#include <QSocketNotifier>

#include <optional>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

/// The kernel marks the list of mounts as exceptional once for every change, proc(5).
class KernelMountWatch final : public MountWatch {
public:
    void setWatching(bool watching) override
    {
        if (watching == change_.has_value())
            return;
        change_.reset();
        mounts_.close();
        if (!watching || !mounts_.open(QIODevice::ReadOnly))
            return;
        change_.emplace(mounts_.handle(), QSocketNotifier::Exception);
        connect(&*change_, &QSocketNotifier::activated, this, &MountWatch::changed);
    }

private:
    QFile mounts_{u"/proc/self/mountinfo"_s};
    std::optional<QSocketNotifier> change_;
};

} // namespace

std::unique_ptr<MountWatch> makeMountWatch()
{
    return std::make_unique<KernelMountWatch>();
}

} // namespace quillon
