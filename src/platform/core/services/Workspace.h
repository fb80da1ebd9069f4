#pragma once

#include <QObject>
#include <QString>
#include <QUrl>

#include <functional>

namespace quillon {

/// The user's session: opens addresses and applications, tells of sleep and wake. Main thread only.
class Workspace : public QObject {
    Q_OBJECT

public:
    using Completion = std::function<void(bool opened)>;

    /// Opens the address with the program that is registered for it; the completion may be empty.
    virtual void openURL(const QUrl& url, Completion completion) = 0;

    /// Opens the application of that bundle identifier, without asking the user for anything; the completion may be
    /// empty. Only macOS knows such identifiers; elsewhere nothing is opened.
    virtual void openApplication(const QString& bundleIdentifier, Completion completion) = 0;

Q_SIGNALS:
    /// The system is about to sleep; it waits until the slots connected directly have returned.
    void willSleep();
    void didWake();
};

} // namespace quillon
