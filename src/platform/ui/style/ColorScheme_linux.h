#pragma once

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusServiceWatcher>
#include <QObject>
#include <QProcess>
#include <QProxyStyle>

namespace quillon {

/// The desktop's style where Qt's own one falls short: with separators in menus on dark grounds, where that draws black
/// on black; with outlines of check boxes and rings around buttons and lists that can be seen, and without the shadow
/// that doubles disabled text; with room for all of a menu's text in large fonts, and with room on either side of a
/// button's text. Arrow keys reach what stands in a menu to be read.
class SchemeStyle final : public QProxyStyle {
    Q_OBJECT

public:
    using QProxyStyle::QProxyStyle;

    void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override;
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
                            const QWidget* widget) const override;
    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override;
    QSize sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& contents,
                           const QWidget* widget) const override;
    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* returned) const override;
};

/// Raw values of the portal's setting.
enum class ColorSchemePreference { None = 0, Dark = 1, Light = 2 };

/// The colour scheme that the user has asked the desktop for, as the settings portal tells it; none without a portal.
/// A portal that comes later, or again, is asked then. GNOME's portal takes seconds to come up at log-in, so its
/// setting is read as well, and holds until the portal says anything. It asks and listens, never waits.
class ColorScheme final : public QObject {
    Q_OBJECT

public:
    explicit ColorScheme(const QDBusConnection& bus);

    ColorSchemePreference preference() const { return preference_; }
    /// False for the moment in which GNOME's setting is read. The frame of a window that comes up keeps its colours.
    bool isKnown() const { return !gnomeSetting_; }

Q_SIGNALS:
    /// isKnown() has become true; after changed(), if that is due.
    void known();
    void changed(quillon::ColorSchemePreference preference);

private Q_SLOTS:
    void settingChanged(const QDBusMessage& message);

private:
    void ask(const QString& method);
    void readGnomeSetting();
    void takeGnomeSetting();
    void set(ColorSchemePreference preference);
    void take(const QVariant& value);

    QDBusConnection bus_;
    QDBusServiceWatcher portal_;
    ColorSchemePreference preference_ = ColorSchemePreference::None;
    QProcess* gnomeSetting_ = nullptr; ///< reads it
    bool answered_ = false;            ///< by a portal
    bool told_ = false;                ///< a change was announced; an answer that is still under way is older
};

/// Gives the application's palette the preferred scheme where the desktop's own palette does not have it already. A
/// program calls it once at its start, for the style that comes with it.
void applyColorScheme(ColorSchemePreference preference);

} // namespace quillon
