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
    enum class Version { Old, Current };

    FakeSettingsPortal(const QDBusConnection& bus, uint colorScheme, Version version = Version::Current)
        : bus_(bus)
        , colorScheme_(colorScheme)
        , version_(version)
    {
        EXPECT_TRUE(bus_.registerObject(path_, this, QDBusConnection::ExportAllContents) &&
                    bus_.registerService(service_));
    }
    ~FakeSettingsPortal() override
    {
        bus_.unregisterService(service_);
        bus_.unregisterObject(path_);
    }

    void setColorScheme(uint value)
    {
        colorScheme_ = value;
        announce(group_, key_, value);
    }
    /// Announces a change of some setting without making it.
    void announce(const QString& group, const QString& key, uint value)
    {
        Q_EMIT SettingChanged(group, key, QDBusVariant(value));
    }

public Q_SLOTS:
    QDBusVariant ReadOne(const QString& group, const QString& key) // NOLINT: names of the portal
    {
        if (version_ == Version::Old)
            sendErrorReply(QDBusError::UnknownMethod, QStringLiteral("no such method"));
        return Read(group, key).variant().value<QDBusVariant>();
    }
    QDBusVariant Read(const QString& group, const QString& key)
    {
        if (group != group_ || key != key_)
            sendErrorReply(QStringLiteral("org.freedesktop.portal.Error.NotFound"), QStringLiteral("no such setting"));
        return QDBusVariant(QVariant::fromValue(QDBusVariant(colorScheme_)));
    }

Q_SIGNALS:
    void SettingChanged(const QString& group, const QString& key, const QDBusVariant& value);

private:
    const QString service_ = QStringLiteral("org.freedesktop.portal.Desktop");
    const QString path_ = QStringLiteral("/org/freedesktop/portal/desktop");
    const QString group_ = QStringLiteral("org.freedesktop.appearance");
    const QString key_ = QStringLiteral("color-scheme");
    QDBusConnection bus_;
    uint colorScheme_;
    Version version_;
};

} // namespace quillon
