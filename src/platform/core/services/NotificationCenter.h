#pragma once

#include <QObject>
#include <QString>
#include <QVariantMap>

#include <functional>
#include <utility>

namespace quillon {

/// Broadcasts named notifications inside the program.
///
/// Delivery is direct: every observer has run, in the order of registration, when post() returns.
class NotificationCenter final : public QObject {
    Q_OBJECT

public:
    using Handler = std::function<void(const QVariantMap& userInfo)>;

    /// Calls `handler` for every notification of that name, as long as `observer` lives.
    void addObserver(const QString& name, const QObject* observer, Handler handler)
    {
        connect(this, &NotificationCenter::posted, observer,
                [name, handler = std::move(handler)](const QString& posted, const QVariantMap& userInfo) {
                    if (posted == name)
                        handler(userInfo);
                });
    }

    void post(const QString& name, const QVariantMap& userInfo = {}) { Q_EMIT posted(name, userInfo); }

Q_SIGNALS:
    void posted(const QString& name, const QVariantMap& userInfo);
};

} // namespace quillon
