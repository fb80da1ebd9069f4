#include "RestoreErrors.h"

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
    const QStringList there{u"/a"_s, u"/a/Notes"_s, u"/a/Notes: 2023.txt"_s};
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
        {"Fatal: There were 1 errors", {}, {}, false},
    };
    for (const Case& one : cases) {
        RestoreErrors errors([&](const QString& path) { return there.contains(path); });
        errors.readLine(QString::fromLatin1(one.words) + u'\n');
        EXPECT_EQ(errors.damaged(), one.damaged) << one.words;
        EXPECT_EQ(errors.targetProblem(), one.target) << one.words;
        EXPECT_EQ(errors.lackAttributes(), one.attributes) << one.words;
    }
}

} // namespace quillon
