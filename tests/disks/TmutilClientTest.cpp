#include "LocalizedString.h"
#include "Setup.h"
#include "VirtualLauncher.h"

#include <gtest/gtest.h>
#include <optional>

namespace quillon {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

// How the queue treats a tool that fails is the queue's matter; here it is told in a line for people.
TEST(TmutilClient, EveryFaultIsAFailureWithALineOfItsOwn)
{
    VirtualRunLoop runLoop(Date(1'000'000s));
    ScriptedLauncher launcher(runLoop, TmutilScript::fromJson(R"([
        {"expect":["a","-X"],"output":"answer"}, {"expect":["b"],"fault":"hang"}, {"expect":["c"],"fault":"refused"},
        {"expect":["d"],"fault":"crash"}, {"expect":["e"],"fault":"endless"}, {"expect":["f"],"status":5},
        {"expect":["g"],"fault":"hang"}])"));
    std::optional<TmutilClient> client(std::in_place, launcher, runLoop, u"/libexec/tmutil"_s);
    QStringList told;
    const auto call = [&](const QStringList& words) {
        client->call(words, [&told](const TmutilAnswer& answer) {
            told.append(answer.success ? QString::fromUtf8(answer.output) : answer.complaint);
            EXPECT_EQ(answer.success, answer.complaint.isEmpty());
        });
    };
    call({u"a"_s, u"-X"_s});
    for (const QString& word : {u"b"_s, u"c"_s, u"d"_s, u"e"_s, u"f"_s, u"g"_s, u"never made"_s})
        call({word});
    runLoop.advance(59s);
    EXPECT_EQ(told, QStringList(u"answer"_s));
    runLoop.advance(2s);
    const auto failed = [](int status) { return localizedString("disksToolFailed").arg(status); };
    EXPECT_EQ(told, (QStringList{u"answer"_s, localizedString("disksToolHangs"),
                                 localizedString("disksToolMissing").arg(u"/libexec/tmutil"_s), failed(11), failed(9),
                                 failed(5)}));
    client.reset();
    runLoop.advance(100s);
    EXPECT_EQ(told.size(), 6) << "it answers nothing once it has gone";
    EXPECT_EQ(launcher.liveChildren(), 0);
}

} // namespace quillon
