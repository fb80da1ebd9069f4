#include "Accessibility.h"
#include "ClippedTexts.h"
#include "Controls.h"
#include "LocalizedString.h"
#include "SettingsFixture.h"
#include "TimePicker.h"

#include <QAccessible>
#include <QFile>
#include <QScrollBar>

namespace quillon {

/// What the panel is like for those who see it, and for those who do not.
class SettingsLooks : public SettingsFixture {
protected:
    void TearDown() override
    {
        QApplication::setFont(font_);
        SettingsFixture::TearDown();
    }

    /// A line for every part that says something: what is read out of it, as what, and what it shows besides.
    QString whatIsReadOut() const
    {
        QString lines;
        const auto parts = panel_->findChildren<QWidget*>();
        for (QWidget* part : parts) {
            auto* seen = QAccessible::queryAccessibleInterface(part);
            const QString name = seen->text(QAccessible::Name);
            if (name.isEmpty() || part->objectName().isEmpty())
                continue;
            QStringList said{name, seen->text(QAccessible::Accelerator), seen->text(QAccessible::Description),
                             part->toolTip()};
            for (const auto& [label, relation] : seen->relations(QAccessible::Label))
                said.append(label->text(QAccessible::Name));
            said.removeAll(QString());
            lines += part->objectName() + (part->font().bold() ? u" (bold): "_s : u": "_s) + said.join(u" | "_s);
            if (const auto* menu = qobject_cast<QComboBox*>(part))
                for (int item = 0; item < menu->count(); ++item)
                    lines += u" / "_s + menu->itemText(item);
            lines += u'\n';
        }
        return lines;
    }

    /// The controls that the Tab key goes to from the first one on, until the keyboard is there again.
    QString wayOfTheTabKey(const char* first) const
    {
        QStringList way;
        control(first).setFocus();
        do {
            const QWidget* focused = QApplication::focusWidget();
            way.append(focused->objectName());
            // Within a time picker Tab goes from hours to minutes first.
            for (int parts = 0; parts < 4 && QApplication::focusWidget() == focused; ++parts)
                QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        } while (!control(first).hasFocus() && way.size() < 100);
        return way.join(u' ') + u'\n';
    }

    void enlargeFont(qreal factor) const
    {
        QFont larger = font_;
        larger.setPointSizeF(font_.pointSizeF() * factor);
        QApplication::setFont(larger);
    }

    QFont font_ = QApplication::font();
};

TEST_F(SettingsLooks, EverythingIsReadOutWithANameAndAnExplanationAndReachedFromAboveOnEveryPage)
{
    open({{1, 3600}});
    click("addCalendarIntervalButton");
    QString found = whatIsReadOut();
    for (const auto page : {Qt::Key_Home, Qt::Key_End}) {
        QTest::keyClick(&control<QComboBox>("schedulePopup"), page);
        found += wayOfTheTabKey("enableScheduleCheckmark");
    }
    click("moreButton");
    found += wayOfTheTabKey("userSettingsOnlyOnMainsPower");
    QFile recorded(QStringLiteral(READ_OUT));
    ASSERT_TRUE(recorded.open(QIODevice::ReadOnly));
    EXPECT_EQ(found.toStdString(), recorded.readAll().toStdString());
    EXPECT_EQ(QAccessible::queryAccessibleInterface(&control<QWidget>("calendarIntervalTable"))->role(),
              QAccessible::Grouping);
}

TEST_F(SettingsLooks, NothingIsClippedInAnyLanguageOrSizeOfTheSystemsFont)
{
    for (const QString& language : tableLanguages()) {
        installStringTable(language);
        open({{}, {8, 7200}});
        for (const auto page : {Qt::Key_End, Qt::Key_Home}) {
            QTest::keyClick(&control<QComboBox>("schedulePopup"), page);
            QCoreApplication::processEvents();
            EXPECT_EQ(clippedTexts(*panel_), "") << language.toStdString();
        }
        click("moreButton");
        QCoreApplication::processEvents();
        EXPECT_EQ(clippedTexts(*panel_), "") << language.toStdString();
    }
    installStringTable(u"en"_s);
    open({{}, {8, 7200}});
    const int before = panel_->width();
    const int field = control<QWidget>("scheduleIntervalValueTextField").maximumWidth();
    enlargeFont(1.75);
    ASSERT_TRUE(runUntil([&] { return panel_->width() > before; }, 5)) << "it grows while it is open";
    EXPECT_EQ(clippedTexts(*panel_), "");
    EXPECT_EQ(control<QScrollArea>("calendarIntervalTable").verticalScrollBar()->maximum(), 0);
    EXPECT_GT(control<QWidget>("scheduleIntervalValueTextField").maximumWidth(), field);
}

TEST_F(SettingsLooks, RulesLieOnAGroundOfTheirOwnWithRoundedCornersAndAFaintEdge)
{
    open({{}});
    auto& table = control<QScrollArea>("calendarIntervalTable");
    for (const auto& [window, base, ground] : {std::tuple(QColor(240, 240, 240), QColor(Qt::white), QColor(Qt::white)),
                                               {QColor(40, 40, 40), QColor(Qt::black), QColor(50, 50, 50)}}) {
        QPalette palette(window);
        palette.setColor(QPalette::Base, base);
        table.setPalette(palette);
        const QImage image = table.grab().toImage();
        EXPECT_EQ(image.pixelColor(image.width() / 2, image.height() - 10), ground);
        EXPECT_EQ(image.pixelColor(0, 0), window);
        const QColor edge = image.pixelColor(0, image.height() / 2);
        EXPECT_GT(contrast(edge, ground), 1.05);
        EXPECT_LT(contrast(edge, ground), 2);
    }
}

TEST_F(SettingsLooks, WhatTheScreenHasNoRoomForIsScrolledToByKeyboard)
{
    enlargeFont(2.5);
    open();
    auto& last = control<QPushButton>("moreButton");
    control("enableScheduleCheckmark").setFocus();
    EXPECT_TRUE(last.visibleRegion().isEmpty());
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Backtab);
    EXPECT_TRUE(last.hasFocus());
    EXPECT_FALSE(last.visibleRegion().isEmpty());
}

/// A window where the keyboard is elsewhere than in the control that is tested.
struct ControlsWindow : QWidget {
    QWidget elsewhere{this};

    void open()
    {
        elsewhere.setFocusPolicy(Qt::StrongFocus);
        elsewhere.raise(); // the pointer is over nothing else
        show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(this));
        elsewhere.setFocus();
    }
};

TEST(SettingsControls, AStepperIsTheArrowsOfASpinBoxAndShowsTheKeyboard)
{
    ControlsWindow window;
    QSpinBox whole(&window);
    whole.resize(whole.sizeHint());
    Stepper arrows(&window);
    arrows.resize(arrows.sizeHint());
    window.open();
    EXPECT_LT(arrows.width(), whole.width() / 2);
    const QImage idle = arrows.grab().toImage();
    const QPoint corner(whole.width() - arrows.width(), 0);
    EXPECT_EQ(idle, whole.grab(QRect(corner, arrows.size())).toImage());
    arrows.setFocus(Qt::TabFocusReason);
    EXPECT_NE(arrows.grab().toImage(), idle);
}

TEST(SettingsControls, ADeleteButtonIsAMinusOnARedDiscWithARingWhereTheKeyboardIs)
{
    ControlsWindow window;
    window.setPalette(Qt::white);
    DeleteButton button(&window);
    button.resize(40, 40);
    window.open();
    const auto letters = [&] { // from the middle upwards and to the right
        QString seen;
        const QImage image = window.grab(button.geometry()).toImage();
        for (const QPoint place : {QPoint(20, 20), {20, 16}, {28, 20}, {32, 20}, {20, 5}, {20, 1}, {1, 1}}) {
            const QColor color = image.pixelColor(place);
            const bool isGrey = color.saturation() < 16;
            seen += isGrey ? (color.lightness() > 250 ? u'w' : u'g') : color.red() > color.blue() ? u'r' : u'b';
        }
        return seen;
    };
    EXPECT_EQ(letters(), u"wrwrrww"_s);
    button.setFocus();
    EXPECT_EQ(letters(), u"wrwrrbw"_s);
    button.setEnabled(false);
    EXPECT_EQ(letters(), u"wgwggww"_s);
}

} // namespace quillon
