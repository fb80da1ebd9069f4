#include "ResticDiagnosis.h"

#include <gtest/gtest.h>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

// Standard error of restic 0.14.0, as recorded.
const QString locked = u"unable to create lock in backend: repository is already locked exclusively by PID 19308 on vm "
                       u"by root (UID 0, GID 0)\n"
                       "lock was created at 2026-11-21 07:30:25 (5.527356663s ago)\n"
                       "storage ID 259fc822\n"
                       "the `unlock` command can be used to remove stale locks\n"_s;
const QString noRepository = u"Fatal: unable to open config file: stat nope/config: no such file or directory\n"
                             "Is there a repository at the following location?\n"
                             "nope\n"_s;
const QString wrongKey = u"Fatal: wrong password or no key found\n"_s;
const QString noSpace =
    u"Fatal: unable to save snapshot: write /m/data/d4/d4c869-tmp-1220017042: no space left on device\n"_s;
const QString noPermission = u"Save(<lock/1a251ce761>) returned error, retrying after 552.330144ms: open "
                             u"/m/locks/1a251-tmp-2866: permission denied\n"
                             "open /m/locks/1a251-tmp-2866: permission denied\n"
                             "github.com/restic/restic/internal/backend/local.(*Local).Save\n"
                             "\tgithub.com/restic/restic/internal/backend/local/local.go:153\n"
                             "unable to create lock in backend\n"_s;
const QString unknown = u"some warning\nFatal: all target directories/files do not exist\n"_s;

} // namespace

TEST(ResticDiagnosis, TellsApartWhatResticSays)
{
    const std::pair<QString, ResticProblem> cases[] = {
        {locked, ResticProblem::Locked},
        {noRepository, ResticProblem::NoRepository},
        {wrongKey, ResticProblem::WrongKey},
        {noSpace, ResticProblem::NoSpace},
        {noPermission, ResticProblem::NoPermission},
        {unknown, ResticProblem::Unknown},
        {QString(), ResticProblem::Unknown},
    };
    for (const auto& [text, problem] : cases) {
        const auto diagnosis = ResticDiagnosis::of(text, 1);
        EXPECT_EQ(diagnosis.problem, problem) << text.toStdString();
        EXPECT_FALSE(diagnosis.description.isEmpty());
        EXPECT_FALSE(diagnosis.description.contains(u'\n')) << "one line";
        EXPECT_FALSE(diagnosis.cause().isEmpty());
    }
}

TEST(ResticDiagnosis, WhatIsUnknownIsToldInResticsOwnWords)
{
    EXPECT_EQ(ResticDiagnosis::of(unknown, 1).description, u"restic: all target directories/files do not exist"_s);
    EXPECT_EQ(ResticDiagnosis::of(u"\n  panic: oh\nmore"_s, 2).description, u"restic: panic: oh"_s);
    EXPECT_EQ(ResticDiagnosis::of(u"Fatal: open /a/\x1b[2J\x01\uFFFE\U0001F5BF b: bad"_s, 1).description,
              u"restic: open /a/\uFFFD[2J\uFFFD\uFFFD\U0001F5BF b: bad"_s)
        << "file names may hold what neither a terminal nor the history should get";
    EXPECT_TRUE(ResticDiagnosis::of({}, 77).description.contains(u"77"_s));
}

// restic 0.17 and later, written from its documentation ("Scripting: Exit codes"): the status tells, whatever is said.
TEST(ResticDiagnosis, TheExitStatusesOfLaterVersionsTell)
{
    for (const auto& [status, problem] :
         {std::pair{10, ResticProblem::NoRepository}, std::pair{11, ResticProblem::Locked},
          std::pair{12, ResticProblem::WrongKey}, std::pair{130, ResticProblem::Unknown}})
        EXPECT_EQ(ResticDiagnosis::of(u"Fatal: words that nobody knows yet\n"_s, status).problem, problem);
}

TEST(ResticDiagnosis, AFullComputerIsNoFullDisk)
{
    const QString folder = u"/home/a/.cache/quillon-timemachine/restic"_s;
    for (const char* reason : {"no space left on device", "permission denied"}) {
        const QString words = u"Fatal: unable to save snapshot: write %1/restic-temp-pack-12: %2\n"_s.arg(
            folder, QLatin1StringView(reason));
        EXPECT_EQ(ResticDiagnosis::of(words, 1, folder).problem, ResticProblem::NoWorkSpace);
    }
    EXPECT_EQ(ResticDiagnosis::of(noSpace, 1, folder).problem, ResticProblem::NoSpace);
}

TEST(ResticDiagnosis, AFileNameIsNoDiagnosis)
{
    const QString text = u"error: open /home/a/permission denied.txt: input/output error\n"
                         "error: read /home/a/no space left on device/x: input/output error\n"_s;
    EXPECT_EQ(ResticDiagnosis::of(text, 1).problem, ResticProblem::Unknown);
}

} // namespace quillon
