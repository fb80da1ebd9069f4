#include "NotificationCenter.h"

#include <utility>

namespace quillon {

void NotificationCenter::addObserver(const QString& name, const QObject* observer, Handler handler)
{
    connect(this, &NotificationCenter::posted, observer,
            [name, handler = std::move(handler)](const QString& posted, const QVariantMap& userInfo) {
                if (posted == name)
                    handler(userInfo);
            });
}

void NotificationCenter::post(const QString& name, const QVariantMap& userInfo)
{
    Q_EMIT posted(name, userInfo);
}

} // namespace quillon
