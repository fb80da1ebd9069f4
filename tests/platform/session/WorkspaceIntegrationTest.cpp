#include "EventLoop.h"
#include "PlayedLogind.h"
#include "ScopedEnvironment.h"
#include "SessionTestSupport.h"
#include "VirtualRunLoop.h"
#include "Workspace_linux.h"

#include <QFile>
#include <QSignalSpy>
#include <QTemporaryDir>

#include <csignal>
#include <gtest/gtest.h>
#include <memory>

namespace quillon {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

/// A session whose xdg-open is a script, and which has no system bus.
class WorkspaceIntegrationTest : public testing::Test {
protected:
    void playOpener(const QString& body) { writeScript(folder.filePath(u"xdg-open"_s), body); }
    QString note() const { return contentOf(folder.filePath(u"note"_s)); }

    Workspace::Completion keepResult()
    {
        return [this](bool opened) {
            ++reports;
            result = opened;
        };
    }

    bool reported()
    {
        return runUntil([this] {
            runLoop.settle();
            return reports > 0;
        });
    }

    QTemporaryDir folder;
    ScopedEnvironment path{"PATH", QFile::encodeName(folder.path()) + ":/usr/bin:/bin"};
    ScopedEnvironment noteFile{"NOTE", QFile::encodeName(folder.filePath(u"note"_s))};
    VirtualRunLoop runLoop{Date{}};
    std::unique_ptr<Workspace> workspace =
        std::make_unique<LinuxWorkspace>(runLoop, QDBusConnection(u"no such connection"_s));
    int reports = 0;
    bool result = false;
};

} // namespace

TEST_F(WorkspaceIntegrationTest, AnOpenedAddressReachesTheOpenerUnchanged)
{
    playOpener(u"printf '%s|%s' \"$#\" \"$1\" >\"$NOTE\""_s);
    workspace->openURL(QUrl(u"https://example.org/a b?x=1&y=$(id)#'\";`z"_s), keepResult());
    EXPECT_EQ(reports, 0); // never from inside the call
    ASSERT_TRUE(reported());
    EXPECT_TRUE(result);
    EXPECT_EQ(note(), u"1|https://example.org/a%20b?x=1&y=$(id)#'%22;%60z"_s);

    workspace->openURL(QUrl(u"mailto:a@example.org?subject=b"_s), {});
    EXPECT_TRUE(runUntil([this] { return note() == "1|mailto:a@example.org?subject=b"_L1; }));
}

TEST_F(WorkspaceIntegrationTest, AnOpenerThatFailsOrIsMissingIsReported)
{
    const ScopedEnvironment noOther("PATH", QFile::encodeName(folder.path()));
    for (const auto& body : {u"exit 3"_s, u"kill -9 $$"_s, u""_s}) {
        reports = 0;
        result = true;
        playOpener(body);
        if (body.isEmpty())
            QFile::remove(folder.filePath(u"xdg-open"_s));
        workspace->openURL(QUrl(u"https://example.org"_s), keepResult());
        ASSERT_TRUE(reported());
        EXPECT_FALSE(result) << body.toStdString();
    }
}

TEST_F(WorkspaceIntegrationTest, WhatIsNoAddressIsNotHandedToTheOpener)
{
    playOpener(u"touch \"$NOTE\""_s);
    for (const auto& address : {u""_s, u"--version"_s, u"etc/passwd"_s, u"https://[bad"_s}) {
        reports = 0;
        result = true;
        workspace->openURL(QUrl(address), keepResult());
        ASSERT_TRUE(reported());
        EXPECT_FALSE(result) << address.toStdString();
    }
    EXPECT_FALSE(QFile::exists(folder.filePath(u"note"_s)));
}

TEST_F(WorkspaceIntegrationTest, AnOpenerThatStaysHasOpenedTheAddressAndOutlivesTheProgram)
{
    playOpener(u"echo $$ >\"$NOTE\"; exec sleep 600"_s);
    workspace->openURL(QUrl(u"https://example.org"_s), keepResult());
    ASSERT_TRUE(runUntil([this] { return note().endsWith(u'\n'); }));
    const pid_t opener = note().trimmed().toInt();
    runLoop.advance(9s);
    EXPECT_EQ(reports, 0);
    runLoop.advance(2s);
    EXPECT_TRUE(result);

    workspace.reset();
    EXPECT_EQ(kill(opener, 0), 0);
    kill(opener, SIGKILL);
    EXPECT_EQ(reports, 1);
}

TEST_F(WorkspaceIntegrationTest, AnAddressOfOurOwnStartsItsProgramAndApplicationsByIdentifierAreUnknown)
{
    playOpener(u"touch \"$NOTE\""_s);
    const QUrl address(u"x-settings:disks"_s);
    writeScript(folder.filePath(u"disks"_s), u"printf '%s' \"$#\" >\"$NOTE\""_s);
    for (const bool exists : {true, false}) {
        const QString program = folder.filePath(exists ? u"disks"_s : u"gone"_s);
        workspace = std::make_unique<LinuxWorkspace>(runLoop, QDBusConnection(u"no such connection"_s),
                                                     OwnPrograms{{address, program}});
        reports = 0;
        workspace->openURL(address, keepResult());
        ASSERT_TRUE(reported());
        EXPECT_EQ(result, exists);
    }
    EXPECT_TRUE(runUntil([this] { return note() == "0"_L1; }));
    reports = 0;
    result = true;
    workspace->openApplication(u"com.example.application"_s, keepResult());
    ASSERT_TRUE(reported());
    EXPECT_FALSE(result);
}

TEST_F(WorkspaceIntegrationTest, TheSessionTellsOfSleepAndWake)
{
    const PrivateBus bus;
    PlayedLogind logind(bus);
    workspace = std::make_unique<LinuxWorkspace>(runLoop, bus.connect(u"session"_s));
    const QSignalSpy slept(workspace.get(), &Workspace::willSleep);
    const QSignalSpy woke(workspace.get(), &Workspace::didWake);
    logind.prepareForSleep(true);
    EXPECT_TRUE(runUntil([&] { return slept.size() == 1; }));
    logind.prepareForSleep(false);
    EXPECT_TRUE(runUntil([&] { return woke.size() == 1; }));
    QDBusConnection::disconnectFromBus(u"session"_s);
}

} // namespace quillon
