#include "RestoreErrors.h"

#include "Paths.h"

#include <gtest/gtest.h>

namespace quillon {

using namespace Qt::StringLiterals;

TEST(RestoreErrors, TellDamageFromWhatTheTargetRefuses)
{
    struct Case {
        const char* words;
        QStringList damaged;
        QString target;
        bool attributes;
    };
    const QStringList there{u"/a"_s, u"/a/Notes"_s, u"/a/Notes: 2023.txt"_s, u"/a/two\nlines: x"_s};
    const Case cases[] = {
        {"ignoring error for /a/Notes: 2023.txt: ciphertext verification failed", {u"/a/Notes: 2023.txt"_s}, {}, false},
        {"ignoring error for /a/Notes: invalid data returned", {u"/a/Notes"_s}, {}, false},
        {"ignoring error for /a/gone: unknown blob 38d4", {u"/a/gone"_s}, {}, false},
        {"ignoring error for /a/Notes: write /t/a/Notes: no space left on device",
         {},
         u"write /t/a/Notes: no space left on device"_s,
         false},
        {"ignoring error for /a/Notes: 2023.txt: lchown /t/a/Notes: operation not permitted", {}, {}, true},
        {"ignoring error for /a: xattr.LSet /t/a user.x: no space left on device", {}, {}, true},
        {"ignoring error for /a/deep: open /t/a/deep: file name too long", {u"/a/deep"_s}, {}, false},
        {"Fatal: There were 1 errors", {}, {}, false},
        {"ignoring error for /a/two\nlines: x: unknown blob\nignoring error for /a/Gr\xFC\xDF"
         "e: bad\nFatal: There were 2 errors",
         {u"/a/two\nlines: x"_s, decodePath("/a/Gr\xFC\xDF"
                                            "e")},
         {},
         false},
    };
    for (const Case& one : cases) {
        RestoreErrors errors([&](const QString& path) { return there.contains(path); });
        errors.read(QByteArray(one.words) + '\n');
        EXPECT_EQ(errors.damaged(), one.damaged) << one.words;
        EXPECT_EQ(errors.targetProblem(), one.target) << one.words;
        EXPECT_EQ(errors.lackAttributes(), one.attributes) << one.words;
    }
}

TEST(Paths, AreShownOnOneLineAndAsTheyAre)
{
    EXPECT_EQ(shownPath(decodePath("/a\\ü\xF0\x9F\x97\xBF\n\x1B[2J\xFC \xE2\x80\xAE")),
              u"/a\\\\ü\U0001F5FF\\n\\x1B[2J\\xFC \\x202E"_s);
}

} // namespace quillon
