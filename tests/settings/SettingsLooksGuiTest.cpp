#include "ClippedTexts.h"
#include "ColorScheme_linux.h"
#include "LocalizedString.h"
#include "SettingsFixture.h"
#include "SystemColor.h"

#include <QAccessible>

#include <functional>

namespace quillon {

/// What the panel is like for those who see it, and for those who do not.
class SettingsLooks : public SettingsFixture {
protected:
    void TearDown() override
    {
        QApplication::setFont(font_);
        QApplication::setPalette(palette_);
        SettingsFixture::TearDown();
    }

    static void walk(QAccessibleInterface* node, const std::function<void(QAccessibleInterface&)>& visit)
    {
        visit(*node);
        for (int i = 0; i < node->childCount(); ++i)
            walk(node->child(i), visit);
    }

    /// From the first control on, until the keyboard is there again.
    QList<QPoint> placesOnTheWayOfTheTabKey() const
    {
        control("enableScheduleCheckmark").setFocus();
        QList<QPoint> places;
        QSet<QWidget*> visited;
        while (!visited.contains(QApplication::focusWidget())) {
            QWidget* focused = QApplication::focusWidget();
            visited.insert(focused);
            places.append(focused->mapTo(panel_, focused->rect().center()));
            // Within a time picker Tab goes from hours to minutes first.
            while (QApplication::focusWidget() == focused && places.size() < 100)
                QTest::keyClick(focused, Qt::Key_Tab);
        }
        EXPECT_TRUE(control("enableScheduleCheckmark").hasFocus());
        return places;
    }

    /// On both pages, and in the alert with the longest text.
    std::string clippedAnywhere()
    {
        std::string clipped;
        auto& pages = control<QComboBox>("schedulePopup");
        for (const auto key : {Qt::Key_End, Qt::Key_Home}) {
            QTest::keyClick(&pages, key);
            QCoreApplication::processEvents();
            clipped += clippedTexts(*panel_);
        }
        clickSetupAdvice();
        const QString close = localizedString("AlertButtonClose");
        EXPECT_TRUE(runUntil([&] { return alertButton(close); }));
        clipped += clippedTexts(*alertButton(close)->window());
        answerAlert(close);
        return clipped;
    }

    QFont font_ = QApplication::font();
    QPalette palette_ = QApplication::palette();
};

TEST_F(SettingsLooks, AssistiveTechnologyHearsANameAndAnExplanationOfEveryControl)
{
    open({{1, 3600}, {8, 7200}});
    int controls = 0;
    QSet<QString> deleteButtons;
    walk(QAccessible::queryAccessibleInterface(panel_), [&](QAccessibleInterface& node) {
        const auto* widget = qobject_cast<QWidget*>(node.object());
        // The text field in a spin box belongs to it, and so does the list of a combo box, a window of its own.
        if (!widget || !(widget->focusPolicy() & Qt::TabFocus) || widget->focusProxy() ||
            widget->window() != popover_.get())
            return;
        ++controls;
        const auto name = widget->objectName().toStdString();
        EXPECT_FALSE(node.text(QAccessible::Name).isEmpty()) << name;
        EXPECT_FALSE(node.text(QAccessible::Name).contains(u'&')) << name;
        EXPECT_FALSE(node.text(QAccessible::Description).isEmpty()) << name;
        EXPECT_NE(node.text(QAccessible::Description), node.text(QAccessible::Name)) << name;
        if (name == "deleteButton")
            deleteButtons.insert(node.text(QAccessible::Description));
    });
    EXPECT_EQ(controls, 15 + 2 * 3) << "those of the panel, and of two rules";
    EXPECT_EQ(deleteButtons,
              (QSet<QString>{u"Back up every Sunday at 1:00 AM"_s, u"Back up Monday to Friday at 2:00 AM"_s}))
        << "each says which rule it deletes";
}

TEST_F(SettingsLooks, TabGoesThroughThePanelFromAboveOnEitherPageAlsoWhenRowsCameLater)
{
    open();
    click("addCalendarIntervalButton");
    control("enableScheduleCheckmark").setFocus();
    constexpr int ofTheScheduleAlone = 1; // the button that adds rules
    constexpr int ofARow = 3;
    constexpr int ofTheIntervalAlone = 2;
    constexpr int ofBoth = 12;
    for (const auto& [page, count] : {std::pair{Qt::Key_Home, ofBoth + ofTheScheduleAlone + 2 * ofARow},
                                      {Qt::Key_End, ofBoth + ofTheIntervalAlone}}) {
        QTest::keyClick(&control<QComboBox>("schedulePopup"), page);
        const auto places = placesOnTheWayOfTheTabKey();
        EXPECT_EQ(places.size(), count);
        for (qsizetype i = 1; i < places.size(); ++i) {
            constexpr int sameLine = 8;
            const bool below = places[i].y() > places[i - 1].y() + sameLine;
            const bool beside =
                std::abs(places[i].y() - places[i - 1].y()) <= sameLine && places[i].x() > places[i - 1].x();
            EXPECT_TRUE(below || beside) << i;
        }
    }
}

TEST_F(SettingsLooks, NothingIsClippedWhateverTheSizeOfTheSystemsFont)
{
    open({{}, {8, 7200}});
    for (const qreal factor : {1.25, 1.5, 2.0}) {
        const int before = panel_->width();
        QFont larger = font_;
        larger.setPointSizeF(font_.pointSizeF() * factor);
        QApplication::setFont(larger);
        ASSERT_TRUE(runUntil([&] { return panel_->width() > before; }, 5)) << "it grows while it is open";
        EXPECT_EQ(clippedTexts(*panel_), "") << factor;
    }
    const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
    EXPECT_TRUE(screen.contains(QRect(panel_->mapToGlobal(QPoint()), panel_->size())));
}

TEST_F(SettingsLooks, NothingIsClippedInAnyLanguage)
{
    for (const QString& language : tableLanguages()) {
        installStringTable(language);
        open({{}, {8, 7200}});
        EXPECT_EQ(clippedAnywhere(), "") << language.toStdString();
    }
    installStringTable(u"en"_s);
}

TEST_F(SettingsLooks, WhatTheScreenHasNoRoomForIsScrolledToByKeyboard)
{
    QFont huge = font_;
    huge.setPointSizeF(font_.pointSizeF() * 2.5);
    QApplication::setFont(huge);
    open();
    auto& last = control("enableAppAtSystemStartCheckmark");
    control("enableScheduleCheckmark").setFocus();
    EXPECT_TRUE(last.visibleRegion().isEmpty());
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Backtab);
    EXPECT_TRUE(last.hasFocus());
    EXPECT_FALSE(last.visibleRegion().isEmpty());
}

TEST_F(SettingsLooks, ThePanelFollowsTheColourSchemeWhileItIsOpen)
{
    using enum ColorSchemePreference;
    applyColorScheme(Light);
    open({{}, {}});
    const auto colorAt = [](QWidget& widget, QPoint place) { return widget.grab().toImage().pixelColor(place); };
    auto& table = control<QScrollArea>("calendarIntervalTable");
    auto& row = *rows().at(0);
    for (const auto wanted : {Dark, Light, Dark}) {
        applyColorScheme(wanted);
        ASSERT_TRUE(runUntil([&] { return isDark(panel_->palette()) == (wanted == Dark); }));
        const QColor ground = colorAt(*popover_, panel_->geometry().topLeft() + QPoint(12, 12));
        EXPECT_EQ(ground.lightness() < 128, wanted == Dark);
        const QColor text = control<QLabel>("nextBackupLabel").palette().color(QPalette::WindowText);
        EXPECT_GT(std::abs(text.lightness() - ground.lightness()), 150);
        const QColor rowGround = colorAt(table, row.geometry().bottomRight() - QPoint(row.width() / 4, 1));
        EXPECT_EQ(rowGround.lightness() < 128, wanted == Dark);
        EXPECT_NE(rowGround, ground) << "rows stand out";
    }
    applyColorScheme(None);
}

} // namespace quillon
