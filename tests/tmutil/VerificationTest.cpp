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
         {{}, {u"38d443e4"_s, other}}},
        {u"pack %1: not referenced in any index\n"_s.arg(pack), {}},
        // restic 0.18, written from its documentation ("Troubleshooting")
        {u"pack %1 contains 1 errors: [blob 0: ciphertext verification failed]\n"
         "The repository contains damaged pack files. Please run the following commands.\n"
         "restic repair packs %1\n"_s.arg(pack),
         {{pack}, {}}},
        {u"Fatal: no space left on device\n"_s, {}},
    };
    for (const auto& [text, findings] : cases) {
        CheckFindings read;
        for (const QString& line : text.split(u'\n'))
            read.readLine(line);
        EXPECT_EQ(read, findings) << text.toStdString();
    }
}

TEST(Verification, DamageThatResticDoesNotNameStandsUntilTheSameDataIsSound)
{
    const QString seventh = u"7/10"_s;
    const Damage found{.date = {}, .subset = seventh};
    EXPECT_TRUE(found.outlasts(u"1/10"_s));
    EXPECT_TRUE(found.outlasts(u"7/20"_s));
    EXPECT_FALSE(found.outlasts(seventh));
    EXPECT_FALSE(found.outlasts({})) << "all of it";
    EXPECT_FALSE((Damage{.date = {}, .repaired = true, .subset = seventh}.outlasts(u"1/10"_s)));
    EXPECT_TRUE((Damage{.date = {}, .repaired = true, .subset = seventh, .lasting = true}.outlasts(u"1/10"_s)));
    EXPECT_FALSE((Damage{.date = {}, .findings = {{u"c3b7"_s}, {}}, .subset = seventh}.outlasts(u"1/10"_s)));
}

TEST(Verification, ReadsAllDataInTenTurnsAndLessAtATimeWhileItIsInterrupted)
{
    Slice slice;
    QStringList subsets;
    for (int turn = 0; turn < Slice::tenths; ++turn, slice = slice.next())
        subsets.append(slice.subset());
    EXPECT_EQ(subsets.first(), u"1/10"_s);
    EXPECT_EQ(subsets.last(), u"10/10"_s);
    EXPECT_EQ(slice, Slice{});

    const Slice quarter = slice.smaller().smaller();
    subsets.clear();
    for (slice = quarter; slice.tenth == 1; slice = slice.next())
        subsets.append(slice.subset());
    EXPECT_EQ(subsets, (QStringList{u"1/40"_s, u"11/40"_s, u"21/40"_s, u"31/40"_s}));
    EXPECT_EQ(slice, (Slice{.tenth = 2, .part = 0, .parts = 2}));
    for (int turn = 0; turn < 10; ++turn)
        slice = slice.next().smaller();
    EXPECT_EQ(slice.parts, Slice::mostParts);
    EXPECT_EQ(Slice::fromDictionary(quarter.next().toDictionary()), quarter.next());
    EXPECT_EQ(Slice::fromDictionary({}), Slice{});
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
