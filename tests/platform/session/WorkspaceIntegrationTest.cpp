#include "EventLoop.h"
#include "ScopedEnvironment.h"
#include "SessionTestSupport.h"
#include "VirtualRunLoop.h"
#include "Workspace_linux.h"

#include <QTemporaryDir>

#include <memory>
#include <optional>

namespace quillon {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

/// A session whose xdg-open is a script, and which has no system bus.
class WorkspaceIntegrationTest : public testing::Test {
protected:
    void playOpener(const QString& body) { writeScript(folder.filePath(u"xdg-open"_s), body); }
    bool notes(const QString& text)
    {
        return runUntil([&] { return note() == text; });
    }
    QString note() const { return contentOf(folder.filePath(u"note"_s)); }

    Workspace::Completion keepResult()
    {
        result.reset();
        return [this](bool opened) {
            EXPECT_FALSE(result) << "reported twice";
            result = opened;
        };
    }

    std::optional<bool> reported()
    {
        EXPECT_FALSE(result) << "reported inside the call";
        runUntil([this] {
            runLoop.settle();
            return result.has_value();
        });
        return result;
    }

    std::optional<bool> open(const QString& address)
    {
        workspace->openURL(QUrl(address), keepResult());
        return reported();
    }

    QTemporaryDir folder;
    ScopedEnvironment path{"PATH", QFile::encodeName(folder.path()) + ":/usr/bin:/bin"};
    ScopedEnvironment noteFile{"NOTE", QFile::encodeName(folder.filePath(u"note"_s))};
    VirtualRunLoop runLoop{Date{}};
    const OwnPrograms ownPrograms{{QUrl(u"x-settings:disks"_s), folder.filePath(u"disks"_s)}};
    std::unique_ptr<Workspace> workspace =
        std::make_unique<LinuxWorkspace>(runLoop, QDBusConnection(u"no such connection"_s), ownPrograms);
    std::optional<bool> result;
};

TEST_F(WorkspaceIntegrationTest, AnAddressReachesTheOpenerUnchangedOrStartsAProgramOfOurOwn)
{
    playOpener(u"printf '%s|%s' \"$#\" \"$1\" >\"$NOTE\""_s);
    EXPECT_EQ(open(u"https://example.org/a b?x=1&y=$(id)#'\";`z"_s), true);
    EXPECT_EQ(note(), u"1|https://example.org/a%20b?x=1&y=$(id)#'%22;%60z"_s);
    workspace->openURL(QUrl(u"mailto:a@example.org?subject=b"_s), {});
    EXPECT_TRUE(notes(u"1|mailto:a@example.org?subject=b"_s));

    EXPECT_EQ(open(u"x-settings:disks"_s), false) << "there is none";
    writeScript(folder.filePath(u"disks"_s), u"printf '%s' \"$#\" >\"$NOTE\""_s);
    EXPECT_EQ(open(u"x-settings:disks"_s), true);
    EXPECT_TRUE(notes(u"0"_s));
}

TEST_F(WorkspaceIntegrationTest, WhatIsNoAddressIsNotHandedToTheOpenerAndApplicationsByIdentifierAreUnknown)
{
    playOpener(u": >\"$NOTE\""_s);
    for (const auto& address : {u""_s, u"--version"_s, u"etc/passwd"_s, u"https://[bad"_s})
        EXPECT_EQ(open(address), false) << address.toStdString();
    workspace->openApplication(u"com.example.application"_s, keepResult());
    EXPECT_EQ(reported(), false);
    EXPECT_FALSE(QFile::exists(folder.filePath(u"note"_s)));
}

TEST_F(WorkspaceIntegrationTest, AnOpenerThatFailsOrIsMissingIsReported)
{
    const ScopedEnvironment noOther("PATH", QFile::encodeName(folder.path()));
    EXPECT_EQ(open(u"https://example.org"_s), false);
    for (const auto& body : {u"exit 3"_s, u"kill -9 $$"_s}) {
        playOpener(body);
        EXPECT_EQ(open(u"https://example.org"_s), false) << body.toStdString();
    }
}

TEST_F(WorkspaceIntegrationTest, AnOpenerThatStaysHasOpenedTheAddressAndOutlivesTheProgram)
{
    playOpener(u"echo on >\"$NOTE\"; until [ -e \"$NOTE.gate\" ]; do sleep 0.02; done; echo lives >\"$NOTE\""_s);
    workspace->openURL(QUrl(u"https://example.org"_s), keepResult());
    ASSERT_TRUE(notes(u"on\n"_s));
    runLoop.advance(9s);
    EXPECT_FALSE(result);
    runLoop.advance(2s);
    EXPECT_EQ(result, true);
    workspace.reset();
    writeScript(folder.filePath(u"note.gate"_s), {});
    EXPECT_TRUE(notes(u"lives\n"_s));
}

} // namespace
} // namespace quillon
