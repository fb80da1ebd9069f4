#include "Alert.h"
#include "ApplicationIdentity.h"
#include "BrowseWindow.h"
#include "ColorScheme_linux.h"
#include "LocalizedString.h"
#include "RunLoop.h"
#include "SingleInstance.h"
#include "Symbol_linux.h"
#include "TMUtil.h"
#include "Task.h"
#include "TimeMachineSettings.h"
#include "Workspace_linux.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QDBusConnection>
#include <QDir>
#include <QStandardPaths>

#include <clocale>
#include <cstdio>

namespace {

using namespace quillon;
using namespace Qt::StringLiterals;

constexpr auto show = "show"; // what a second start asks of the first

int runWindow(const SingleInstance& instance, const QString& wanted)
{
    QtRunLoop runLoop;
    Task launcher;
    ModalAlertPresenter alerts;
    const ColorScheme colors(QDBusConnection::sessionBus());
    applyColorScheme(colors.preference());
    QObject::connect(&colors, &ColorScheme::changed, qApp, applyColorScheme);
    // Sleep is nothing to this window, so it is not connected to who announces it.
    LinuxWorkspace workspace(runLoop, QDBusConnection(u"none"_s),
                             {.ownPrograms = {{TimeMachineSettings::address(),
                                               QCoreApplication::applicationDirPath() + "/quillon-disks"_L1}},
                              .sleepReason = {}});
    const QString cache = QStandardPaths::writableLocation(QStandardPaths::GenericCacheLocation);
    BrowseWindow window({launcher, runLoop, alerts, tmutilPath()}, workspace,
                        {.cache = cache + "/quillon-browse"_L1, .wanted = wanted});
    const auto present = [&window] {
        window.showNormal();
        window.raise();
        window.activateWindow();
    };
    QObject::connect(&instance, &SingleInstance::presentRequested, &window, present);
    QObject::connect(&instance, &SingleInstance::requested, &window,
                     [&window, present](const QByteArray& /*show*/, const QString& path) {
                         present();
                         window.lookAt(path);
                     });
    window.show();
    return QApplication::exec();
}

} // namespace

int main(int argc, char** argv)
{
    const QApplication application(argc, argv);
    std::setlocale(LC_NUMERIC, "C");
    QApplication::setApplicationName(u"quillon-browse"_s);
    QApplication::setApplicationVersion(bundleShortVersion());
    QApplication::setDesktopFileName(u"com.Orvane.Quillon.Browse"_s);
    installStringTable();
    QApplication::setApplicationDisplayName(localizedString("browseWindowTitle"));
    QApplication::setWindowIcon(symbolIcon({.name = u"clock.arrow.circlepath"_s, .paletteColor = {}}));

    QCommandLineParser parser;
    parser.setApplicationDescription(u"Looks through Time Machine's backups and restores from them."_s);
    parser.addHelpOption();
    parser.addVersionOption();
    parser.addPositionalArgument(u"path"_s, u"What to show as the newest backup has it: a file or a folder."_s,
                                 u"[path]"_s);
    parser.process(application);
    const QStringList paths = parser.positionalArguments();
    if (paths.size() > 1) {
        std::fputs("quillon-browse: one file or folder can be shown at a time\n", stderr);
        return 1;
    }
    const QString wanted =
        paths.isEmpty() ? QString() : QDir::cleanPath(QDir::current().absoluteFilePath(paths.first()));

    // A second start brings the first window to the front, and has it show the path.
    SingleInstance instance(QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) +
                                "/quillon-browse/instance"_L1,
                            {show});
    const auto start = instance.acquireOrAsk(wanted.isEmpty() ? "" : show, wanted);
    if (start == SingleInstance::Start::Asked)
        return 0;
    if (start == SingleInstance::Start::Failed) {
        std::fputs(u"quillon-browse: %1\n"_s.arg(instance.errorString()).toLocal8Bit().constData(), stderr);
        return 1;
    }
    const QuitSignals quitSignals;
    return runWindow(instance, wanted);
}
