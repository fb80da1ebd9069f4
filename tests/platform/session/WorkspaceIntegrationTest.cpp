#include "EventLoop.h"
#include "PlayedServices.h"
#include "ScopedEnvironment.h"
#include "SessionTestSupport.h"
#include "VirtualRunLoop.h"
#include "Workspace_linux.h"

#include <QSignalSpy>
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
    const WorkspaceNeeds needs{.ownPrograms = {{QUrl(u"x-settings:disks"_s), folder.filePath(u"disks"_s)}},
                               .ownApplications = {{u"com.example.ours"_s, folder.filePath(u"disks"_s)}},
                               .sleepReason = {}};
    std::unique_ptr<Workspace> workspace =
        std::make_unique<LinuxWorkspace>(runLoop, QDBusConnection(u"no such connection"_s), needs);
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
    writeScript(folder.filePath(u"disks"_s), u"printf '%s again' \"$#\" >\"$NOTE\""_s);
    workspace->openApplication(u"com.example.ours"_s, keepResult());
    EXPECT_EQ(reported(), true);
    EXPECT_TRUE(notes(u"0 again"_s));
}

TEST_F(WorkspaceIntegrationTest, WhatIsNoAddressIsNotHandedToTheOpenerAndOtherApplicationsAreUnknown)
{
    playOpener(u": >\"$NOTE\""_s);
    for (const auto& address : {u"--version"_s, u"https://[bad"_s})
        EXPECT_EQ(open(address), false) << address.toStdString();
    workspace->openApplication(u"com.example.application"_s, keepResult());
    EXPECT_EQ(reported(), false);
    EXPECT_FALSE(QFile::exists(folder.filePath(u"note"_s)));
}

TEST_F(WorkspaceIntegrationTest, AnOpenerThatFailsOrIsMissingIsReported)
{
    const ScopedEnvironment noOther("PATH", QFile::encodeName(folder.path()));
    EXPECT_EQ(open(u"https://example.org"_s), false);
    playOpener(u"exit 3"_s);
    EXPECT_EQ(open(u"https://example.org"_s), false);
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

class SleepIntegrationTest : public testing::Test {
protected:
    void TearDown() override { QDBusConnection::disconnectFromBus(u"client"_s); }

    VirtualRunLoop runLoop{Date{}};
    PrivateBus bus;
    std::optional<PlayedLogind> logind;
    /// The program's own connection: it must not share one with the side that plays.
    QDBusConnection client = bus.connect(u"client"_s);
};

TEST_F(SleepIntegrationTest, WaitsForTheHandlersEachTimeAlsoUnderALogindThatComesLateOrRestarts)
{
    const LinuxWorkspace workspace(runLoop, client);
    const QSignalSpy woke(&workspace, &Workspace::didWake);
    const QStringList held{u"sleep delay"_s};
    QList<QStringList> seen;
    QObject::connect(&workspace, &Workspace::willSleep, [&] { seen.append(logind->locks()); });
    for (int wakes = 1; wakes <= 3; ++wakes) {
        if (!logind)
            logind.emplace(bus);
        ASSERT_TRUE(runUntil([&] { return logind->locks() == held; }));
        logind->prepareForSleep(true);
        EXPECT_TRUE(runUntil([&] { return seen.size() == wakes && logind->locks().isEmpty(); }));
        EXPECT_EQ(seen.last(), held);
        if (wakes == 2)
            logind.reset(); // and nobody announces the wake
        else
            logind->prepareForSleep(false);
        EXPECT_TRUE(runUntil([&] { return woke.size() == wakes; }));
    }
}

TEST_F(SleepIntegrationTest, ABusThatIsLostDoesNoHarm)
{
    const LinuxWorkspace earlier(runLoop, client);
    bus.crash();
    ASSERT_TRUE(runUntil([this] { return !client.isConnected(); }));
    const LinuxWorkspace later(runLoop, client);
}

} // namespace
} // namespace quillon
