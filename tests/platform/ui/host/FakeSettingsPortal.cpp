#include "FakeSettingsPortal.h"

#include <QDBusError>

#include <stdexcept>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

constexpr auto service = "org.freedesktop.portal.Desktop"_L1;
constexpr auto path = "/org/freedesktop/portal/desktop"_L1;
constexpr auto appearance = "org.freedesktop.appearance"_L1;
constexpr auto colorSchemeKey = "color-scheme"_L1;

} // namespace

FakeSettingsPortal::FakeSettingsPortal(const QDBusConnection& bus, uint colorScheme, Version version)
    : bus_(bus)
    , colorScheme_(colorScheme)
    , version_(version)
{
    if (!bus_.registerObject(path, this, QDBusConnection::ExportAllContents) || !bus_.registerService(service))
        throw std::runtime_error("the bus takes no portal");
}

FakeSettingsPortal::~FakeSettingsPortal()
{
    bus_.unregisterService(service);
    bus_.unregisterObject(path);
}

void FakeSettingsPortal::setColorScheme(uint value)
{
    colorScheme_ = value;
    announce(appearance, colorSchemeKey, value);
}

void FakeSettingsPortal::announce(const QString& group, const QString& key, uint value)
{
    Q_EMIT SettingChanged(group, key, QDBusVariant(value));
}

QDBusVariant FakeSettingsPortal::ReadOne(const QString& group, const QString& key)
{
    if (version_ == Version::Old)
        sendErrorReply(QDBusError::UnknownMethod, u"no such method"_s);
    else if (group != appearance || key != colorSchemeKey)
        sendErrorReply(u"org.freedesktop.portal.Error.NotFound"_s, u"no such setting"_s);
    return QDBusVariant(colorScheme_);
}

QDBusVariant FakeSettingsPortal::Read(const QString& group, const QString& key)
{
    if (group != appearance || key != colorSchemeKey)
        sendErrorReply(u"org.freedesktop.portal.Error.NotFound"_s, u"no such setting"_s);
    return QDBusVariant(QVariant::fromValue(QDBusVariant(colorScheme_)));
}

} // namespace quillon
