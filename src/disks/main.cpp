#include "Alert.h"
#include "ApplicationIdentity.h"
#include "ColorScheme_linux.h"
#include "DisksWindow.h"
#include "LocalizedString.h"
#include "RunLoop.h"
#include "SingleInstance.h"
#include "Symbol_linux.h"
#include "TMUtil.h"
#include "Task.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QDBusConnection>
#include <QStandardPaths>

#include <clocale>
#include <cstdio>

namespace {

using namespace quillon;
using namespace Qt::StringLiterals;

int runWindow(const SingleInstance& instance)
{
    QtRunLoop runLoop;
    Task launcher;
    ModalAlertPresenter alerts;
    const ColorScheme colors(QDBusConnection::sessionBus());
    applyColorScheme(colors.preference());
    QObject::connect(&colors, &ColorScheme::changed, qApp, applyColorScheme);
    DisksWindow window({launcher, runLoop, alerts, tmutilPath()}, u"/usr/bin/lsblk"_s);
    QObject::connect(&instance, &SingleInstance::presentRequested, &window, [&window] {
        window.showNormal();
        window.raise();
        window.activateWindow();
    });
    window.show();
    return QApplication::exec();
}

} // namespace

int main(int argc, char** argv)
{
    const QApplication application(argc, argv);
    std::setlocale(LC_NUMERIC, "C");
    QApplication::setApplicationName(u"quillon-disks"_s);
    QApplication::setApplicationVersion(bundleShortVersion());
    QApplication::setDesktopFileName(u"com.Orvane.Quillon.Disks"_s);
    installStringTable();
    QApplication::setApplicationDisplayName(localizedString("disksWindowTitle"));
    QApplication::setWindowIcon(symbolIcon({.name = u"clock.arrow.circlepath"_s, .paletteColor = {}}));

    QCommandLineParser parser;
    parser.setApplicationDescription(u"The settings of Time Machine: backup disks, folders, exclusions."_s);
    parser.addHelpOption();
    parser.addVersionOption();
    parser.process(application);

    // A second start brings the first window to the front.
    SingleInstance instance(QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) +
                            "/quillon-disks/instance"_L1);
    const auto start = instance.acquireOrAsk();
    if (start == SingleInstance::Start::Asked)
        return 0;
    if (start == SingleInstance::Start::Failed) {
        std::fputs(u"quillon-disks: %1\n"_s.arg(instance.errorString()).toLocal8Bit().constData(), stderr);
        return 1;
    }
    const QuitSignals quitSignals;
    return runWindow(instance);
}
