#pragma once

#include <QDBusConnection>
#include <QDBusContext>
#include <QDBusError>
#include <QDBusVariant>
#include <QObject>

#include <gtest/gtest.h>

namespace quillon {

/// The desktop's settings portal, knowing one setting.
class FakeSettingsPortal final : public QObject, protected QDBusContext {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.portal.Settings")

public:
    static constexpr uint dark = 1;
    static constexpr uint light = 2;

    FakeSettingsPortal(const QDBusConnection& bus, uint colorScheme, bool isOld = false)
        : bus_(bus)
        , colorScheme_(colorScheme)
        , isOld_(isOld)
    {
        EXPECT_TRUE(bus_.registerObject(path_, this, QDBusConnection::ExportAllContents) &&
                    bus_.registerService(service_));
    }
    ~FakeSettingsPortal() override
    {
        bus_.unregisterService(service_);
        bus_.unregisterObject(path_);
    }

    void announce(const char* key, uint value)
    {
        Q_EMIT SettingChanged(QStringLiteral("org.freedesktop.appearance"), QString::fromLatin1(key),
                              QDBusVariant(value));
    }

public Q_SLOTS:
    QDBusVariant ReadOne(const QString& group, const QString& key) // NOLINT: names of the portal
    {
        if (isOld_)
            sendErrorReply(QDBusError::UnknownMethod, QStringLiteral("no such method"));
        return Read(group, key).variant().value<QDBusVariant>();
    }
    QDBusVariant Read(const QString& group, const QString& key)
    {
        const bool isKnown = group + u' ' + key == u"org.freedesktop.appearance color-scheme";
        return QDBusVariant(QVariant::fromValue(QDBusVariant(isKnown ? colorScheme_ : 0)));
    }

Q_SIGNALS:
    void SettingChanged(const QString& group, const QString& key, const QDBusVariant& value);

private:
    const QString service_ = QStringLiteral("org.freedesktop.portal.Desktop");
    const QString path_ = QStringLiteral("/org/freedesktop/portal/desktop");
    QDBusConnection bus_;
    uint colorScheme_;
    bool isOld_;
};

} // namespace quillon
