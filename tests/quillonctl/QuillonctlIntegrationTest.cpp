#include "EventLoop.h"
#include "FakeStatusNotifierTray.h"
#include "PrivateBus.h"

#include <QJsonDocument>
#include <QProcess>

#include <gtest/gtest.h>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

/// Runs the program; this process plays the desktop meanwhile.
void ask(QProcess& process, const QString& words)
{
    process.start(QStringLiteral(QUILLONCTL_EXECUTABLE), words.split(u' '));
    EXPECT_TRUE(runUntil([&] { return process.state() == QProcess::NotRunning; }));
}

} // namespace

TEST(Quillonctl, SaysHowItEnded)
{
    QProcess process;
    process.setStandardOutputFile(u"/dev/full"_s);
    ask(process, u"--version"_s);
    EXPECT_EQ(process.exitCode(), 1);
    EXPECT_EQ(process.readAllStandardError(), "quillonctl: the answer could not be written\n");
}

TEST(Quillonctl, FindsTheTrayThatIsThere)
{
    const PrivateBus bus;
    const auto itemPlace = [&] {
        QProcess doctor;
        doctor.setEnvironment(QProcess::systemEnvironment() +
                              QStringList{u"XDG_CONFIG_HOME=/nonexistent"_s, u"QT_QPA_PLATFORM=offscreen"_s,
                                          u"QUILLON_TMUTIL=/nonexistent"_s, bus.variable()});
        ask(doctor, u"doctor --json"_s);
        return QJsonDocument::fromJson(doctor.readAllStandardOutput())[u"item"_s][u"place"_s].toString();
    };
    EXPECT_EQ(itemPlace(), u"bar"_s);
    const FakeStatusNotifierTray tray(bus.connect(u"tray"_s));
    EXPECT_EQ(itemPlace(), u"tray"_s);
}

} // namespace quillon
