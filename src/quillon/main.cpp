#include "Alert.h"
#include "AppDelegate.h"
#include "ApplicationIdentity.h"
#include "Calendar.h"
#include "Cirrel.h"
#include "DataManager.h"
#include "DateFormatter.h"
#include "HostSystem.h"
#include "HttpClient.h"
#include "Ledger.h"
#include "LocalizedString.h"
#include "NotificationCenter.h"
#include "Options.h"
#include "RemoteControl.h"
#include "RunLedger.h"
#include "RunLoop.h"
#include "Services.h"
#include "SingleInstance.h"
#include "StartWord.h"
#include "StatusMenuController.h"
#include "TMUtil.h"
#include "Task.h"
#include "UserDefaults.h"

#include <QApplication>
#include <QDir>
#include <QObject>
#include <QString>

#include <clocale>
#include <cstdio>
#include <memory>

namespace {

using namespace quillon;
using namespace Qt::StringLiterals;

constexpr int exitFailed = 1;
constexpr int exitUsage = 2;

void printLine(std::FILE* stream, const QString& text)
{
    std::fputs((text + u'\n').toLocal8Bit().constData(), stream);
}

/// Prints each change of the menu-bar item as a line on standard output, for a person at a terminal and for scripts:
/// "12:00:03  icon=2 title="12.5%" text="3m" phase="Copying"".
class ChangePrinter final : public QObject {
public:
    /// The controller and the run loop must outlive the printer.
    ChangePrinter(const StatusMenuController& controller, const RunLoop& runLoop)
        : controller_(controller)
        , runLoop_(runLoop)
    {
        connect(&controller, &StatusMenuController::statusBarUpdated, this, &ChangePrinter::printIfChanged);
        connect(&controller, &StatusMenuController::menuBarIconStateChanged, this, &ChangePrinter::printIfChanged);
    }

private:
    void printIfChanged()
    {
        const QString line = u"icon=%1 title=\"%2\" text=\"%3\" phase=\"%4\""_s.arg(
            QString::number(static_cast<int>(controller_.menuBarIconState())), controller_.itemTitle().title,
            controller_.itemTitle().text, controller_.tmPhase());
        if (line == lastLine_)
            return;
        lastLine_ = line;
        const QString stamped = DateFormatter::string(runLoop_.now(), u"HH:mm:ss"_s) + u"  "_s + line + u'\n';
        std::fputs(stamped.toUtf8().constData(), stdout);
        std::fflush(stdout);
    }

    const StatusMenuController& controller_;
    const RunLoop& runLoop_;
    QString lastLine_;
};

/// Creates the services, joins the parts and runs until the user quits.
int runApplication(const Options& options, SingleInstance& instance)
{
    QtRunLoop runLoop;
    Task launcher;
    NotificationCenter notifications;
    ModalAlertPresenter alerts;
    const auto defaults = openUserDefaults(identity::identifier, DefaultsAccess::ReadWrite, runLoop);
    const QString programs = QCoreApplication::applicationDirPath();
    const auto workspace =
        makeWorkspace(runLoop, {.ownPrograms = {{TimeMachineSettings::address(), programs + "/quillon-disks"_L1}},
                                .ownApplications = {{TimeMachineSettings::browser(), programs + "/quillon-browse"_L1}},
                                .sleepReason = localizedString("sleepWaitsMessage")});
    const auto loginItem = makeLoginItem({.name = identity::name,
                                          .identifier = identity::identifier,
                                          .companion = identity::companionIdentifier,
                                          .path = QDir::cleanPath(programs + "/../libexec/quillon/QuillonHelper"_L1)});
    TMUtilQueue tmutilQueue(launcher, runLoop, tmutilPath());
    TimeMachineSettings timeMachineSettings(launcher, runLoop, *workspace, alerts);
    TMUtil tmutil(tmutilQueue, timeMachineSettings);
    DataManager& dataManager = DataManager::createSharedInstance({runLoop, *defaults, notifications, *loginItem});
    Cirrel::Services cirrel(runLoop, *defaults, std::make_unique<HttpClient>(runLoop));
    const auto statusItem = makeStatusItem(options.placement);
    SqliteLedger ledger(ledgerFile());
    const auto userNotifications =
        makeUserNotifications({.name = identity::name, .desktopEntry = identity::identifier});
    const auto awakeLock = makeAwakeLock();
    const auto powerSupply = makePowerSupply();
    const auto mountWatch = makeMountWatch();
    Hooks hooks({runLoop, launcher, hooksFolder()});
    StatusMenuController controller({runLoop, *defaults, notifications, *workspace, tmutil, alerts, dataManager,
                                     *loginItem, *statusItem, ledger, *userNotifications, *awakeLock, *powerSupply,
                                     *mountWatch, hooks});
    RemoteControl remoteControl({runLoop, notifications, tmutil, dataManager, controller});
    const StartWord startWord({runLoop, *defaults, dataManager, *userNotifications, controller});
    AppDelegate delegate({runLoop, *defaults, notifications, *workspace, alerts, tmutil, bundleShortVersion()});

    std::unique_ptr<ChangePrinter> printer;
    if (options.printChanges)
        printer = std::make_unique<ChangePrinter>(controller, runLoop);
    controller.awakeFromNib();
    QObject::connect(&controller, &StatusMenuController::terminate, qApp, &QCoreApplication::quit);
    Cirrel::initWithAppId(makerservice::applicationId(), makerservice::apiKey(), makerservice::address());
    QObject::connect(&instance, &SingleInstance::presentRequested, &controller,
                     [&controller] { carryOut(StartRequest::Present, controller); });
    QObject::connect(&instance, &SingleInstance::requested, &controller, [&controller](const QByteArray& name) {
        if (const auto request = startRequestNamed(name))
            carryOut(*request, controller);
    });
    QObject::connect(&instance, &SingleInstance::asked, &remoteControl,
                     [&remoteControl](const QByteArray& question, const std::shared_ptr<Caller>& caller) {
                         remoteControl.take(question, [caller](const QByteArray& line) { return caller->tell(line); });
                     });
    QObject::connect(qApp, &QCoreApplication::aboutToQuit, qApp, [&tmutilQueue] { tmutilQueue.shutDown(); });
    delegate.applicationDidFinishLaunching();
    if (options.request != StartRequest::Present)
        runLoop.enqueue([&controller, &options] { carryOut(options.request, controller); });
    return QApplication::exec();
}

/// Two instances on one settings folder never run: a second start has the first one do what it was started for.
int runAsOnlyInstance(const Options& options)
{
    SingleInstance instance(identity::instanceLock(), startRequestNames());
    switch (instance.acquireOrAsk(nameOf(options.request))) {
    case SingleInstance::Start::First:
        return runApplication(options, instance);
    case SingleInstance::Start::Asked:
        return 0;
    case SingleInstance::Start::Failed:
        printLine(stderr, u"quillon: %1"_s.arg(instance.errorString()));
        break;
    }
    return exitFailed;
}

} // namespace

int main(int argc, char** argv)
{
    QStringList words;
    for (int i = 1; i < argc; ++i)
        words.append(QString::fromLocal8Bit(argv[i]));
    QString error;
    const auto options = Options::parse(words, &error);
    if (!options) {
        printLine(stderr, u"quillon: %1"_s.arg(error));
        return exitUsage;
    }
    // Answered ahead of the application object, which needs a display.
    if (options->help || options->version) {
        printLine(stdout, options->help ? Options::helpText() : u"Quillon %1"_s.arg(bundleShortVersion()));
        return 0;
    }
    Calendar::followSystemTimeZone(); // while there are no threads
    QApplication application(argc, argv);
    std::setlocale(LC_NUMERIC, "C");
    QApplication::setApplicationName(identity::name);
    QApplication::setApplicationVersion(bundleShortVersion());
    QApplication::setDesktopFileName(identity::identifier);
    QApplication::setWindowIcon(QIcon(u":/icon/com.Orvane.Quillon.svg"_s));
    QApplication::setQuitOnLastWindowClosed(false);
    installStringTable();
    const QuitSignals quitSignals;
    return runAsOnlyInstance(*options);
}
