#include "LivedSchedule.h"
#include "LocalDates.h"
#include "LocalizedString.h"

#include <QApplication>

#include <array>
#include <cstdlib>
#include <iostream>

using namespace quillon;

/// usage: quillon_soak YEARS [SEED]; exit status 1 when a start was lost or doubled, or something untrue was shown.
int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    installStringTable(QStringLiteral("en"));
    const int years = argc > 1 ? std::atoi(argv[1]) : 0;
    if (years < 1 || years > 1000) {
        std::cerr << "usage: quillon_soak YEARS [SEED]\n";
        return 2;
    }
    const unsigned seed = argc > 2 ? unsigned(std::atoi(argv[2])) : std::random_device()();
    std::cout << "seed " << seed << std::endl;
    constexpr std::array zones = {"Europe/Berlin", "America/New_York", "Asia/Kolkata", "Australia/Lord_Howe"};
    Tally tally;
    for (int quarter = 0; quarter < years * 4; ++quarter) { // in each the program is installed anew, somewhere else
        const LivedSchedule::Place place(zones[quarter % zones.size()]);
        const Date begin = local(2027 + quarter / 4, quarter % 4 * 3 + 1, 1, 0);
        LivedSchedule(begin, seed + unsigned(quarter), tally).liveThrough(90);
    }
    std::cout << "starts due " << tally.due << ", made " << tally.made << ", retries besides " << tally.retries << '\n';
    for (const auto& [reason, count] : tally.skipped.asKeyValueRange())
        std::cout << "skipped, " << reason.toStdString() << ": " << count << '\n';
    std::cout << "lost " << tally.lost.size() << ", doubled " << tally.doubled.size() << ", shown untruly "
              << tally.untrue.size() << '\n';
    std::cout << tally.trouble();
    return tally.trouble().empty() ? 0 : 1;
}
