#include "ColorScheme_linux.h"

#include "Accessibility.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusVariant>
#include <QPainter>
#include <QStyleOptionMenuItem>
#include <QTimer>

#include <algorithm>
#include <chrono>
#include <cmath>
#include <memory>
#include <utility>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

QColor lineColor(const QStyleOption& option, float opacity)
{
    QColor line = option.palette.color(QPalette::WindowText);
    line.setAlphaF(opacity);
    return line;
}

/// Around what has the keyboard.
void drawRing(const QStyleOption& option, qreal inset, qreal cornerRadius, QPainter& painter)
{
    constexpr qreal half = 0.5; // of the line
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(systemBlueColor(option.palette));
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(QRectF(option.rect).adjusted(inset + half, half, -inset - half, -half), cornerRadius,
                            cornerRadius);
    painter.restore();
}

bool hasKeyboard(const QStyleOption& option)
{
    return option.state.testFlag(QStyle::State_HasFocus) && option.state.testFlag(QStyle::State_KeyboardFocusChange);
}

constexpr qreal controlCornerRadius = 2; // as Qt's own style rounds them

} // namespace

void SchemeStyle::drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                              const QWidget* widget) const
{
    const auto* item = element == CE_MenuItem ? qstyleoption_cast<const QStyleOptionMenuItem*>(option) : nullptr;
    const bool separator = item && item->menuItemType == QStyleOptionMenuItem::Separator;
    if (separator && isDark(option->palette)) {
        constexpr int indent = 5;
        painter->fillRect(item->rect.left() + indent, item->rect.center().y(), item->rect.width() - 2 * indent, 1,
                          lineColor(*option, 0.2F));
        return;
    }
    QProxyStyle::drawControl(element, option, painter, widget);
    // A list that is empty, or has no current row, shows nothing else.
    if (element == CE_ShapedFrame && qobject_cast<const QAbstractItemView*>(widget) && hasKeyboard(*option))
        drawRing(*option, 0, controlCornerRadius, *painter);
    // An item that can be chosen is filled instead.
    if (item && !separator && item->state.testFlag(State_Selected) && !item->state.testFlag(State_Enabled))
        drawRing(*item, 1, 2 * controlCornerRadius, *painter);
}

void SchemeStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
                                     const QWidget* widget) const
{
    QProxyStyle::drawComplexControl(control, option, painter, widget);
    if (control == CC_ComboBox && hasKeyboard(*option))
        drawRing(*option, 0, controlCornerRadius, *painter);
}

void SchemeStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                                const QWidget* widget) const
{
    QProxyStyle::drawPrimitive(element, option, painter, widget);
    if (element == PE_PanelButtonCommand && hasKeyboard(*option))
        drawRing(*option, 0, controlCornerRadius, *painter);
    if (element != PE_IndicatorCheckBox)
        return;
    // At least 3:1 against the window while it can be used (WCAG 2.1, 1.4.11).
    painter->save();
    painter->setPen(lineColor(*option, option->state.testFlag(State_Enabled) ? 0.55F : 0.25F));
    painter->setBrush(Qt::NoBrush);
    painter->drawRect(option->rect.adjusted(0, 0, -1, -1));
    painter->restore();
}

QSize SchemeStyle::sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& contents,
                                    const QWidget* widget) const
{
    QSize size = QProxyStyle::sizeFromContents(type, option, contents, widget);
    if (type == CT_PushButton) {
        constexpr double padding = 0.6; // of a line's height, on either side of the text
        const int wanted = contents.width() + qRound(2 * padding * option->fontMetrics.height());
        size.setWidth(std::max(size.width(), wanted));
    } else if (type == CT_MenuItem) {
        // The column for check marks is reserved as a constant, yet drawn as a share of the row's height: Qt 6.4,
        // qfusionstyle.cpp, CE_MenuItem.
        constexpr int reserved = 21;
        constexpr double share = 0.79;
        size.rwidth() += std::max(0, static_cast<int>(std::ceil(size.height() * share)) - reserved);
    }
    return size;
}

int SchemeStyle::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                           QStyleHintReturn* returned) const
{
    switch (hint) {
    case SH_EtchDisabledText:
        return 0;
    case SH_Menu_AllowActiveAndDisabled:
        return 1;
    default:
        return QProxyStyle::styleHint(hint, option, widget, returned);
    }
}

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
