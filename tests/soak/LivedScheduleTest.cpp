#include "LivedSchedule.h"

#include "LocalDates.h"

#include <gtest/gtest.h>

namespace quillon {

TEST(LivedSchedule, LosesNoStartDoublesNoneAndShowsWhatIsTrue)
{
    for (const char* zone : {"Europe/Berlin", "America/New_York", "Asia/Kolkata"}) {
        const LivedSchedule::Place place(zone);
        const unsigned seed = std::random_device()();
        Tally tally;
        LivedSchedule(local(2027, 3, 10, 0), seed, tally).liveThrough(20);
        EXPECT_EQ(tally.trouble(), "") << "seed " << seed << " in " << zone;
        EXPECT_GT(tally.made, 10);
    }
}

} // namespace quillon
