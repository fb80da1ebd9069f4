#include "LivedSchedule.h"

#include "LocalDates.h"

#include <gtest/gtest.h>

namespace quillon {

TEST(LivedSchedule, LosesNoStartDoublesNoneAndShowsWhatIsTrue)
{
    for (const char* zone : {"Europe/Berlin", "America/New_York", "Asia/Kolkata"}) {
        const LivedSchedule::Place place(zone);
        const unsigned seed = std::random_device()();
        LivedSchedule life(local(2027, 3, 1, 0), seed);
        life.liveThrough(20);
        const Tally& tally = life.tally();
        const auto trouble = (tally.lost + tally.doubled + tally.untrue).join(u'\n').toStdString();
        EXPECT_EQ(trouble, "") << "seed " << seed << " in " << zone;
        EXPECT_GT(tally.made, 10);
    }
}

} // namespace quillon
