#include "TmutilClient.h"

#include "VirtualLauncher.h"

#include <gtest/gtest.h>
#include <optional>

namespace quillon {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

class TmutilClientTest : public testing::Test {
protected:
    /// Calls tmutil; the answer stands in `answers_` once it is there.
    void call(const QString& command)
    {
        client_->call({command}, [this](const TmutilAnswer& answer) { answers_.push_back(answer); });
    }

    TmutilScript script_;
    VirtualRunLoop runLoop_{Date(1'000'000s)};
    std::optional<ScriptedLauncher> launcher_;
    std::optional<TmutilClient> client_;
    std::vector<TmutilAnswer> answers_;

    void play(const QList<TmutilScript::Call>& calls)
    {
        script_.calls = calls;
        launcher_.emplace(runLoop_, script_);
        client_.emplace(*launcher_, runLoop_, u"/libexec/tmutil"_s);
    }
};

TmutilScript::Call scripted(const QString& command, TmutilScript::Fault fault, int status = 0)
{
    TmutilScript::Call call;
    call.expected = QStringList(command);
    call.fault = fault;
    call.status = status;
    call.output = "answer";
    return call;
}

} // namespace

TEST_F(TmutilClientTest, ACallThatHangsIsEndedAndTheNextOneMade)
{
    play({scripted(u"a"_s, TmutilScript::Fault::Hang), scripted(u"b"_s, TmutilScript::Fault::None)});
    call(u"a"_s);
    call(u"b"_s);
    runLoop_.advance(59s);
    EXPECT_EQ(launcher_->launched().size(), 1) << "one after the other";
    EXPECT_TRUE(answers_.empty());
    runLoop_.advance(2s);
    ASSERT_EQ(answers_.size(), 2U);
    EXPECT_FALSE(answers_[0].success);
    EXPECT_FALSE(answers_[0].complaint.isEmpty());
    EXPECT_TRUE(answers_[1].success);
    EXPECT_EQ(answers_[1].output, "answer");
    EXPECT_EQ(launcher_->liveChildren(), 0);
}

TEST_F(TmutilClientTest, EveryFaultIsAFailureWithALineOfItsOwn)
{
    using Fault = TmutilScript::Fault;
    play({scripted(u"a"_s, Fault::Refused), scripted(u"b"_s, Fault::Crash), scripted(u"c"_s, Fault::Endless),
          scripted(u"d"_s, Fault::None, 5)});
    for (const QString& command : {u"a"_s, u"b"_s, u"c"_s, u"d"_s})
        call(command);
    runLoop_.advance(10s);
    ASSERT_EQ(answers_.size(), 4U);
    for (const TmutilAnswer& answer : answers_) {
        EXPECT_FALSE(answer.success);
        EXPECT_FALSE(answer.complaint.isEmpty());
    }
}

TEST_F(TmutilClientTest, GoneItAnswersNothingAndLeavesNoChild)
{
    play({scripted(u"a"_s, TmutilScript::Fault::Hang)});
    call(u"a"_s);
    call(u"never made"_s);
    client_.reset();
    runLoop_.advance(100s);
    EXPECT_TRUE(answers_.empty());
    EXPECT_EQ(launcher_->liveChildren(), 0);

    play({scripted(u"a"_s, TmutilScript::Fault::None)});
    client_->call({u"a"_s}, [this](const TmutilAnswer&) { client_.reset(); });
    runLoop_.advance(1s);
    EXPECT_FALSE(client_) << "from inside an answer, too";
}

} // namespace quillon
