#include "TMReports.h"

#include <cstdint>
#include <cstdlib>

namespace {

using namespace quillon;

/// What holds for every status, whatever was read.
bool isSound(const TMStatus& status)
{
    if (status.failed)
        return status == TMStatus::failure();
    if (status.state == TMState::NotRunning)
        return status == TMStatus::notRunning();
    const bool runs = status.state == TMState::Running || status.state == TMState::Stopping;
    return runs && status.timeRemaining >= 0 && status.bytesCopied >= 0;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const QByteArray output(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
    if (!isSound(TMStatus::fromOutput(output)))
        std::abort();
    const auto destinations = BackupDestinations::fromOutput(output);
    if (!destinations.success && !destinations.list.isEmpty())
        std::abort();
    return 0;
}
