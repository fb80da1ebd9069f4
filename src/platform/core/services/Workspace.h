#pragma once

#include <QMap>
#include <QObject>
#include <QString>
#include <QUrl>

#include <functional>
#include <memory>

namespace quillon {

/// The user's session: opens addresses and applications, tells of sleep and wake.
class Workspace : public QObject {
    Q_OBJECT

public:
    using Completion = std::function<void(bool opened)>;

    /// Opens the address with the program that is registered for it; the completion may be empty.
    virtual void openURL(const QUrl& url, Completion completion) = 0;

    /// Opens the application of that bundle identifier, without asking the user for anything; the completion may be
    /// empty. Only macOS knows such identifiers; elsewhere a program of our own may stand for one.
    virtual void openApplication(const QString& bundleIdentifier, Completion completion) = 0;

Q_SIGNALS:
    /// The system is about to sleep; it waits until the slots connected directly have returned.
    void willSleep();
    void didWake();
};

class RunLoop;

/// Programs, by their paths, that open addresses for which a desktop has none.
using OwnPrograms = QMap<QUrl, QString>;

/// Programs, by their paths, that stand for applications that a desktop does not have.
using OwnApplications = QMap<QString, QString>;

/// What a desktop on Linux has to be told; macOS has a program for every address and tells no user why sleep waits.
struct WorkspaceNeeds {
    OwnPrograms ownPrograms;
    OwnApplications ownApplications = {};
    QString sleepReason; ///< why sleep waits for the slots of willSleep(), for users who ask; already localised
};

/// The workspace of the session that the program runs in; the run loop must outlive it.
std::unique_ptr<Workspace> makeWorkspace(RunLoop& runLoop, const WorkspaceNeeds& needs);

} // namespace quillon
