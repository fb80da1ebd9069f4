#include "ColorScheme_linux.h"

#include "SchemeStyle_linux.h"
#include "SystemColor.h"

#include <QApplication>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusVariant>
#include <QTimer>

#include <chrono>
#include <memory>
#include <utility>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

// Names of the portal: https://flatpak.github.io/xdg-desktop-portal/docs/doc-org.freedesktop.portal.Settings.html
constexpr auto portalService = "org.freedesktop.portal.Desktop"_L1;
constexpr auto portalPath = "/org/freedesktop/portal/desktop"_L1;
constexpr auto settingsInterface = "org.freedesktop.portal.Settings"_L1;
constexpr auto appearanceGroup = "org.freedesktop.appearance"_L1;
constexpr auto colorSchemeKey = "color-scheme"_L1;
constexpr auto readOne = "ReadOne"_L1;
constexpr auto read = "Read"_L1; // before version 2 of the interface

constexpr std::chrono::seconds patience{1};

constexpr QRgb selection = 0x2f6fde;

struct SchemeColors {
    QColor window, text, base, button, link;
};

void select(QPalette& palette)
{
    palette.setColor(QPalette::Highlight, selection);
    palette.setColor(QPalette::HighlightedText, Qt::white);
}

QPalette paletteOf(const SchemeColors& colors)
{
    QPalette palette(colors.button, colors.window);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::ToolTipText})
        palette.setColor(role, colors.text);
    palette.setColor(QPalette::Base, colors.base);
    palette.setColor(QPalette::AlternateBase, colors.window);
    palette.setColor(QPalette::ToolTipBase, colors.base);
    select(palette);
    palette.setColor(QPalette::Link, colors.link);
    QColor faint = colors.text;
    faint.setAlphaF(0.45F);
    palette.setColor(QPalette::PlaceholderText, faint);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        palette.setColor(QPalette::Disabled, role, faint);
    return palette;
}

QPalette darkPalette()
{
    return paletteOf({.window = 0x2b2b2d, .text = 0xf2f2f3, .base = 0x1f1f21, .button = 0x3a3a3d, .link = 0x6ea8ff});
}

QPalette lightPalette()
{
    return paletteOf({.window = 0xf4f4f5, .text = 0x1d1d1f, .base = 0xffffff, .button = 0xe9e9eb, .link = 0x1a5fd0});
}

} // namespace

ColorScheme::ColorScheme(const QDBusConnection& bus)
    : bus_(bus)
    , portal_(portalService, bus, QDBusServiceWatcher::WatchForRegistration)
{
    if (qEnvironmentVariable("XDG_CURRENT_DESKTOP").split(u':').contains("GNOME"_L1))
        readGnomeSetting();
    if (!bus_.isConnected())
        return;
    bus_.connect(portalService, portalPath, settingsInterface, u"SettingChanged"_s, this,
                 SLOT(settingChanged(QDBusMessage)));
    connect(&portal_, &QDBusServiceWatcher::serviceRegistered, this, [this] {
        told_ = false;
        ask(readOne);
    });
    ask(readOne);
}

void ColorScheme::ask(const QString& method)
{
    auto message = QDBusMessage::createMethodCall(portalService, portalPath, settingsInterface, method);
    message.setArguments({QString(appearanceGroup), QString(colorSchemeKey)});
    auto* answer = new QDBusPendingCallWatcher(bus_.asyncCall(message), this);
    connect(answer, &QDBusPendingCallWatcher::finished, this, [this, answer, method] {
        answer->deleteLater();
        const QDBusPendingReply<QDBusVariant> reply = *answer;
        if (told_)
            return;
        if (reply.isValid())
            take(QVariant::fromValue(reply.value()));
        else if (method == readOne && reply.error().type() == QDBusError::UnknownMethod)
            ask(read);
    });
}

void ColorScheme::settingChanged(const QDBusMessage& message)
{
    const QVariantList arguments = message.arguments(); // group, key, value
    if (arguments.value(0).toString() != appearanceGroup || arguments.value(1).toString() != colorSchemeKey)
        return;
    told_ = true;
    take(arguments.value(2));
}

void ColorScheme::take(const QVariant& value)
{
    // A variant inside a variant; the older method wraps it once more.
    QVariant number = value;
    while (number.metaType() == QMetaType::fromType<QDBusVariant>())
        number = number.value<QDBusVariant>().variant();
    // Unknown values count as no preference, as the portal's description asks.
    const auto preference = number.toUInt() == 1   ? ColorSchemePreference::Dark
                            : number.toUInt() == 2 ? ColorSchemePreference::Light
                                                   : ColorSchemePreference::None;
    answered_ = true;
    set(preference);
}

void ColorScheme::set(ColorSchemePreference preference)
{
    if (preference == preference_)
        return;
    preference_ = preference;
    Q_EMIT changed(preference_);
}

void ColorScheme::readGnomeSetting()
{
    gnomeSetting_ = new QProcess(this);
    connect(gnomeSetting_, &QProcess::finished, this, &ColorScheme::takeGnomeSetting);
    connect(gnomeSetting_, &QProcess::errorOccurred, this, [this](QProcess::ProcessError error) {
        if (error == QProcess::FailedToStart)
            takeGnomeSetting();
    });
    QTimer::singleShot(patience, gnomeSetting_, &QProcess::kill); // reading takes a few hundredths of a second
    gnomeSetting_->start(u"gsettings"_s, {u"get"_s, u"org.gnome.desktop.interface"_s, u"color-scheme"_s},
                         QIODevice::ReadOnly);
}

void ColorScheme::takeGnomeSetting()
{
    QProcess* process = std::exchange(gnomeSetting_, nullptr);
    process->deleteLater();
    const QByteArray value = process->readAllStandardOutput();
    if (!answered_)
        set(value.contains("prefer-dark")    ? ColorSchemePreference::Dark
            : value.contains("prefer-light") ? ColorSchemePreference::Light
                                             : ColorSchemePreference::None);
    Q_EMIT known();
}

void applyColorScheme(ColorSchemePreference preference)
{
    if (!qobject_cast<SchemeStyle*>(QApplication::style()))
        QApplication::setStyle(std::make_unique<SchemeStyle>().release()); // owned by the application
    QApplication::setPalette(QPalette());                                  // the desktop's own again
    const QPalette desktop = QGuiApplication::palette();
    const bool dark = preference == ColorSchemePreference::Dark;
    if (preference != ColorSchemePreference::None && isDark(desktop) != dark) {
        QApplication::setPalette(dark ? darkPalette() : lightPalette());
        return;
    }
    constexpr double readable = 4.5; // WCAG 2.1, 1.4.3
    if (contrast(desktop.color(QPalette::Highlight), desktop.color(QPalette::HighlightedText)) >= readable)
        return;
    QPalette readableSelection; // the rest still follows the desktop
    select(readableSelection);
    QApplication::setPalette(readableSelection);
}

} // namespace quillon
