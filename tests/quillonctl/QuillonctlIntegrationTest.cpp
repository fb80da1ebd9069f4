#include "EventLoop.h"
#include "FakeStatusNotifierTray.h"
#include "PrivateBus.h"
#include "Report.h"
#include "ScriptedTmutil.h"
#include "TrayProtocols_linux.h"
#include "VirtualDisplay.h"

#include <QJsonDocument>
#include <QProcess>

#include <gtest/gtest.h>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

class Quillonctl : public testing::Test {
protected:
    Quillonctl()
    {
        environment_.insert(u"QT_QPA_PLATFORM"_s, u"xcb"_s);
        environment_.insert(u"XDG_CONFIG_HOME"_s, u"/nonexistent"_s);
        environment_.insert(u"QUILLON_TMUTIL"_s, u"/nonexistent/tmutil"_s);
        for (const QString& variable : {bus_.variable(), display_.variable()})
            environment_.insert(variable.section(u'=', 0, 0), variable.section(u'=', 1));
    }

    /// Runs the program; this process plays the desktop meanwhile.
    void ask(QProcess& process, const QString& words)
    {
        process.setProcessEnvironment(environment_);
        process.start(QStringLiteral(QUILLONCTL_EXECUTABLE), words.split(u' '));
        EXPECT_TRUE(runUntil([&] { return process.state() == QProcess::NotRunning; }));
    }
    QString itemPlace()
    {
        QProcess doctor;
        ask(doctor, u"doctor --json"_s);
        return QJsonDocument::fromJson(doctor.readAllStandardOutput())[u"item"_s][u"place"_s].toString();
    }

    const PrivateBus bus_;
    const VirtualDisplay display_;
    QProcessEnvironment environment_ = QProcessEnvironment::systemEnvironment();
};

} // namespace

TEST_F(Quillonctl, AsksARealToolAndSaysHowThatEnded)
{
    const ScriptedTmutil tool(R"([{"expect":["status"],"output":"{ Running = 0; }"}])");
    environment_.insert(u"QUILLON_TMUTIL"_s, tool.path());
    QProcess process;
    ask(process, u"status --json"_s);
    EXPECT_EQ(process.exitCode(), 0);
    EXPECT_EQ(process.readAllStandardOutput(), report::status(TMStatus::notRunning(), true));
    process.setStandardOutputFile(u"/dev/full"_s);
    ask(process, u"--version"_s);
    EXPECT_EQ(process.exitCode(), 1);
    EXPECT_EQ(process.readAllStandardError(), "quillonctl: the answer could not be written\n");
    ask(process, u"state"_s);
    EXPECT_EQ(process.exitCode(), 2);
    EXPECT_TRUE(process.readAllStandardError().startsWith("quillonctl: unknown command"));
}

TEST_F(Quillonctl, FindsTheTrayThatIsThere)
{
    EXPECT_EQ(itemPlace(), u"bar"_s);
    {
        const FakeStatusNotifierTray tray(bus_.connect(u"tray"_s));
        EXPECT_EQ(itemPlace(), u"tray"_s);
    }
    QDBusConnection::disconnectFromBus(u"tray"_s);
    EXPECT_EQ(itemPlace(), u"bar"_s);
    xcb_connection_t* panel = xcb_connect(qPrintable(display_.variable().section(u'=', 1)), nullptr);
    const xcb_window_t window = xcb_generate_id(panel);
    xcb_create_window(panel, XCB_COPY_FROM_PARENT, window, xcb_setup_roots_iterator(xcb_get_setup(panel)).data->root, 0,
                      0, 1, 1, 0, XCB_WINDOW_CLASS_INPUT_OUTPUT, XCB_COPY_FROM_PARENT, 0, nullptr);
    xcb_set_selection_owner(panel, window, internAtom(panel, trayprotocols::traySelection), XCB_CURRENT_TIME);
    ASSERT_TRUE(isOwned(panel, internAtom(panel, trayprotocols::traySelection)));
    EXPECT_EQ(itemPlace(), u"tray"_s);
    environment_.insert(u"QT_QPA_PLATFORM"_s, u"wayland"_s);
    EXPECT_EQ(itemPlace(), u"bar"_s);
    xcb_disconnect(panel);
}

} // namespace quillon
