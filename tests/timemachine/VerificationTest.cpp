#include "Verification.h"

#include "Restic.h"

#include <gtest/gtest.h>

namespace quillon {

using namespace Qt::StringLiterals;

TEST(Verification, TellsWhatIsDamaged)
{
    const QString pack = u"c3b77d7ec716122c54872bb6e3ece21fff63da97ae1c611ea53fecaf486dfb46"_s;
    const QString other = u"38d443e4cdd1c51eee717efa6048cff18830b991398cfb816f462ce936ac51db"_s;
    const std::pair<QString, CheckFindings> cases[] = {
        // restic 0.14.0, as recorded
        {u"pack %1: does not exist\nFatal: repository contains errors\n"_s.arg(pack), {{pack}, {}}},
        {u"Pack ID does not match, want %1, got %2\nFatal: repository contains errors\n"_s.arg(pack, other),
         {{pack}, {}}},
        {u"error for tree 38d443e4:\n  tree %1: file \"f1\" blob %2 not found in index\n"
         "  tree %1: file \"f2\" blob %2 not found in index\n"_s.arg(other, pack),
         {{}, {other}}},
        {u"pack %1: not referenced in any index\n"_s.arg(pack), {}},
        // restic 0.18, written from its documentation ("Troubleshooting")
        {u"pack %1 contains 1 errors: [blob 0: ciphertext verification failed]\n"
         "The repository contains damaged pack files. Please run the following commands.\n"
         "restic repair packs %1\n"_s.arg(pack),
         {{pack}, {}}},
        {u"Fatal: no space left on device\n"_s, {}},
    };
    for (const auto& [text, findings] : cases)
        EXPECT_EQ(CheckFindings::of(text), findings) << text.toStdString();
}

TEST(Verification, DamageThatResticDoesNotNameStandsUntilTheSameDataIsSound)
{
    const Damage found{.date = {}, .slice = 7};
    EXPECT_TRUE(found.outlasts(1));
    EXPECT_FALSE(found.outlasts(7));
    EXPECT_FALSE(found.outlasts(0)) << "all of it";
    EXPECT_FALSE((Damage{.date = {}, .repaired = true, .slice = 7}.outlasts(1)));
    EXPECT_TRUE((Damage{.date = {}, .repaired = true, .slice = 7, .lasting = true}.outlasts(1)));
    EXPECT_FALSE((Damage{.date = {}, .findings = {{u"c3b7"_s}, {}}, .slice = 7}.outlasts(1)));
}

TEST(Verification, TakesNoEndOfResticForDamageThatItDidNotSpeakOf)
{
    const CheckFindings none;
    const CheckFindings some{{u"c3b77d7e"_s}, {}};
    const std::tuple<int, const char*, CheckFindings, bool> cases[] = {
        {1, "Fatal: repository contains errors", none, true},
        {1, "Fatal: LoadIndex returned errors", none, true},
        {10, "", none, true}, // 0.17: there is no repository
        {1, "", some, true},
        {1, "Fatal: no space left on device", none, false},
        {2, "runtime: out of memory", none, false},
        {127, "execvp: No such file or directory", none, false},
        {-9, "", none, false},
        {-15, "", some, false},
    };
    for (const auto& [status, words, findings, damage] : cases) {
        ResticOutcome outcome;
        outcome.exitStatus = status;
        outcome.errorText = QString::fromLatin1(words);
        EXPECT_EQ(Verification::tellsOfDamage(outcome, findings), damage) << status << words;
    }
}

} // namespace quillon
