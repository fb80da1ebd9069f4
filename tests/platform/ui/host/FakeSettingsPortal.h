#pragma once

#include <QDBusConnection>
#include <QDBusContext>
#include <QDBusVariant>
#include <QObject>

namespace quillon {

/// The desktop's settings portal, knowing one setting.
class FakeSettingsPortal final : public QObject, protected QDBusContext {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.portal.Settings")

public:
    enum class Version { Old, Current };

    FakeSettingsPortal(const QDBusConnection& bus, uint colorScheme, Version version = Version::Current);
    ~FakeSettingsPortal() override;

    void setColorScheme(uint value);
    /// Announces a change of some setting without making it.
    void announce(const QString& group, const QString& key, uint value);

public Q_SLOTS:
    QDBusVariant ReadOne(const QString& group, const QString& key); // NOLINT: names of the portal
    QDBusVariant Read(const QString& group, const QString& key);

Q_SIGNALS:
    void SettingChanged(const QString& group, const QString& key, const QDBusVariant& value);

private:
    QDBusConnection bus_;
    uint colorScheme_;
    Version version_;
};

} // namespace quillon
