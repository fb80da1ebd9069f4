#include "LocalizedString.h"
#include "SettingsFixture.h"

#include <QAbstractSpinBox>
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

    /// Texts that have less room than they need.
    QStringList clippedTexts() const
    {
        QStringList clipped;
        const auto widgets = panel_->findChildren<QWidget*>();
        for (const QWidget* widget : widgets) {
            const bool showsText =
                qobject_cast<const QLabel*>(widget) || qobject_cast<const QAbstractButton*>(widget) ||
                qobject_cast<const QComboBox*>(widget) || qobject_cast<const QAbstractSpinBox*>(widget);
            if (!showsText || !widget->isVisible())
                continue;
            const QSize needed = widget->minimumSizeHint();
            const bool wraps = widget->hasHeightForWidth();
            const int height = wraps ? widget->heightForWidth(widget->width()) : needed.height();
            if (widget->height() < height || (!wraps && widget->width() < needed.width()))
                clipped.append(widget->objectName());
        }
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

TEST_F(SettingsLooks, TabGoesThroughThePanelFromAboveAlsoWhenRowsCameLater)
{
    open();
    click("addCalendarIntervalButton");
    auto* first = &control("enableScheduleCheckmark");
    first->setFocus();
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
    EXPECT_EQ(QApplication::focusWidget(), first);
    EXPECT_EQ(places.size(), 13 + 2 * 3);
    for (qsizetype i = 1; i < places.size(); ++i) {
        constexpr int sameLine = 8;
        const bool below = places[i].y() > places[i - 1].y() + sameLine;
        const bool beside =
            std::abs(places[i].y() - places[i - 1].y()) <= sameLine && places[i].x() > places[i - 1].x();
        EXPECT_TRUE(below || beside) << i;
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
        EXPECT_EQ(clippedTexts(), QStringList()) << factor;
    }
    const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
    EXPECT_TRUE(screen.contains(QRect(panel_->mapToGlobal(QPoint()), panel_->size())));
}

TEST_F(SettingsLooks, NothingIsClippedInAnyLanguage)
{
    for (const auto& language :
         {u"en"_s, u"de"_s, u"fr"_s, u"es"_s, u"it"_s, u"nl"_s, u"pt_BR"_s, u"ja"_s, u"zh_CN"_s}) {
        installStringTable(language);
        open();
        EXPECT_EQ(clippedTexts(), QStringList()) << language.toStdString();
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

TEST_F(SettingsLooks, ThePanelFollowsTheThemeWhileItIsOpen)
{
    open();
    const auto groundOf = [](QWidget& widget, QPoint place) { return widget.grab().toImage().pixelColor(place); };
    auto& table = control<QScrollArea>("calendarIntervalTable");
    for (const auto& [ground, base, text] : {std::tuple{QColor(0x202022), QColor(0x101012), QColor(Qt::white)},
                                             {QColor(0xf0f0f2), QColor(0xfefefe), QColor(Qt::black)}}) {
        QPalette palette(ground);
        palette.setColor(QPalette::Window, ground);
        palette.setColor(QPalette::Base, base);
        palette.setColor(QPalette::WindowText, text);
        QApplication::setPalette(palette);
        ASSERT_TRUE(runUntil([&] { return panel_->palette().color(QPalette::Window) == ground; }, 5));
        EXPECT_EQ(control<QLabel>("nextBackupLabel").palette().color(QPalette::WindowText), text);
        EXPECT_EQ(groundOf(*popover_, panel_->geometry().topLeft() + QPoint(12, 12)), ground);
        const QColor rowGround = groundOf(table, table.rect().center() + QPoint(0, 40));
        EXPECT_EQ(rowGround.lightness() < 128, text == Qt::white);
        EXPECT_NE(rowGround, ground) << "rows stand out";
    }
}

TEST_F(SettingsLooks, MnemonicsPressTheirControls)
{
    open();
    const QString title = control("rotateBackupDisksCheckmark").text();
    const auto letter = title[title.indexOf(u'&') + 1].toUpper();
    ASSERT_TRUE(title.contains(u'&'));
    QTest::keyClick(popover_.get(), static_cast<Qt::Key>(letter.unicode()), Qt::AltModifier);
    EXPECT_TRUE(runUntil([&] { return stored(settingskeys::rotateBackupDisks) == QVariant(0LL); }, 5));
}

} // namespace quillon
