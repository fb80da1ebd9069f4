#include "ColorScheme_linux.h"
#include "Scenes.h"
#include "Stage.h"
#include "SystemColor.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QHash>
#include <QLabel>
#include <QPushButton>
#include <QStyleOptionButton>
#include <QStyleOptionComboBox>
#include <QTextEdit>

#include <algorithm>
#include <gtest/gtest.h>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

// WCAG 2.1, 1.4.3 and 1.4.11.
constexpr double forTexts = 4.5;
constexpr double forLines = 3;

/// The colour that most of it has.
QColor groundOf(const QImage& picture)
{
    QHash<QRgb, int> counts;
    for (int y = 0; y < picture.height(); ++y)
        for (int x = 0; x < picture.width(); ++x)
            ++counts[picture.pixel(x, y)];
    const auto most = std::max_element(counts.cbegin(), counts.cend());
    return most == counts.cend() ? QColor() : QColor(most.key());
}

/// What stands out most from its ground.
double strongest(const QImage& picture)
{
    const QColor ground = groundOf(picture);
    double most = 1;
    for (int y = 0; y < picture.height(); ++y)
        for (int x = 0; x < picture.width(); ++x)
            most = std::max(most, contrast(picture.pixelColor(x, y), ground));
    return most;
}

/// Of the pixels that differ, the one that stands out most from the ground around it.
double strongestChange(const QImage& before, const QImage& after)
{
    const QColor ground = groundOf(before);
    double most = 1;
    for (int y = 0; y < before.height(); ++y)
        for (int x = 0; x < before.width(); ++x)
            if (before.pixel(x, y) != after.pixel(x, y))
                most = std::max(most, contrast(after.pixelColor(x, y), ground));
    return most;
}

/// Where a control's text lies, without its frame; nothing for what shows no text.
QRect textArea(const QWidget& widget)
{
    const QStyle& style = *widget.style();
    constexpr int frame = 4;
    if (const auto* box = qobject_cast<const QCheckBox*>(&widget)) {
        QStyleOptionButton option;
        option.initFrom(box);
        option.text = box->text();
        return style.subElementRect(QStyle::SE_CheckBoxContents, &option, box);
    }
    if (const auto* box = qobject_cast<const QComboBox*>(&widget)) {
        QStyleOptionComboBox option;
        option.initFrom(box);
        const QRect field = style.subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, box);
        return field.adjusted(frame, frame, -frame, -frame);
    }
    if (const auto* button = qobject_cast<const QPushButton*>(&widget); button && !button->text().isEmpty())
        return button->rect().adjusted(frame, frame, -frame, -frame);
    const auto* label = qobject_cast<const QLabel*>(&widget);
    if ((label && !label->text().isEmpty()) || qobject_cast<const QTextEdit*>(&widget))
        return widget.contentsRect();
    return {};
}

QImage picture(const QWidget& widget, const QRect& area)
{
    const QRect inWindow(widget.mapTo(widget.window(), area.topLeft()), area.size());
    return widget.window()->grab(inWindow & widget.window()->rect()).toImage();
}

std::string describe(const QObject& object, const QString& text, double measured)
{
    return (object.objectName() + u" \""_s + text + u"\" "_s + QString::number(measured) + u'\n').toStdString();
}

} // namespace

/// Each scene that the program can show, light and dark.
class ContrastOf : public testing::TestWithParam<Scene> {
protected:
    ContrastOf()
    {
        QFont large = font_;
        large.setPointSizeF(font_.pointSizeF() * 1.5); // what is smaller has no pixel that is all ink
        QApplication::setFont(large);
    }
    ~ContrastOf() override
    {
        QApplication::setFont(font_);
        applyColorScheme(ColorSchemePreference::None);
    }

    /// Plays the scene in both schemes; `measure` gives what is too faint, one a line.
    template<typename Measure>
    static void expectNothingFaint(Measure measure)
    {
        for (const auto preference : {ColorSchemePreference::Light, ColorSchemePreference::Dark}) {
            Stage stage;
            applyColorScheme(preference); // in place of the desktop's, which the stage's item takes
            stage.launch();
            GetParam().play(stage);
            const auto windows = Stage::windows();
            std::string faint;
            for (QWidget* window : windows) {
                auto parts = window->findChildren<QWidget*>();
                parts.removeIf([window](const QWidget* part) { // a dialog's come with the dialog
                    return part->window() != window || !part->isEnabled() || !part->isVisible() ||
                           part->visibleRegion().isEmpty();
                });
                window->setAttribute(Qt::WA_KeyboardFocusChange); // as with the first Tab key
                faint += measure(*window, parts);
            }
            EXPECT_EQ(faint, "") << (preference == ColorSchemePreference::Dark ? "dark" : "light");
            Stage::clear();
        }
    }

    const QFont font_ = QApplication::font();
};

TEST(Contrast, IsMeasuredAsTheGuidelinesSay)
{
    EXPECT_NEAR(contrast(Qt::black, Qt::white), 21, 0.01);
    EXPECT_NEAR(contrast(Qt::white, QColor(0x77, 0x77, 0x77)), 4.48, 0.01);
}

TEST_P(ContrastOf, TextsIsEnoughWhereTheKeyboardIsToo)
{
    expectNothingFaint([](const QWidget& /*window*/, const QWidgetList& parts) {
        std::string faint;
        for (QWidget* part : parts) {
            const QRect area = textArea(*part);
            if (area.isEmpty())
                continue;
            const QString name = part->accessibleName();
            if (const double measured = strongest(picture(*part, area)); measured < forTexts)
                faint += describe(*part, name, measured);
            part->setFocus();
            if (const double measured = strongest(picture(*part, area)); part->hasFocus() && measured < forTexts)
                faint += describe(*part, name + u" focused"_s, measured);
        }
        return faint;
    });
}

TEST_P(ContrastOf, LinesAroundBoxesAndTheKeyboardIsEnough)
{
    expectNothingFaint([](const QWidget& /*window*/, const QWidgetList& parts) {
        std::string faint;
        for (QWidget* part : parts) {
            constexpr int around = 6; // tells the ground
            const QRect area = part->rect().adjusted(-around, -around, around, around);
            if (auto* box = qobject_cast<QCheckBox*>(part)) {
                QStyleOptionButton option;
                option.initFrom(box);
                const QRect indicator =
                    box->style()->subElementRect(QStyle::SE_CheckBoxIndicator, &option, box).adjusted(-around, 0, 0, 0);
                const QImage line = picture(*box, {indicator.left(), indicator.center().y(), 2 * around, 1});
                if (strongest(line) < forLines)
                    faint += describe(*box, u"box"_s, strongest(line));
            }
            // A default button looks the same all the time: Return presses it from everywhere but other buttons.
            const auto* button = qobject_cast<const QPushButton*>(part);
            if (!(part->focusPolicy() & Qt::TabFocus) || part->focusProxy() || (button && button->isDefault()))
                continue;
            if (QWidget* focused = QApplication::focusWidget())
                focused->clearFocus();
            const QImage before = picture(*part, area);
            part->setFocus(Qt::TabFocusReason);
            const double measured = strongestChange(before, picture(*part, area));
            if (part->hasFocus() && measured < forLines)
                faint += describe(*part, part->accessibleName() + u" focused"_s, measured);
        }
        return faint;
    });
}

TEST_P(ContrastOf, ItemsInMenusIsEnoughChosenAndNot)
{
    expectNothingFaint([](QWidget& window, const QWidgetList& /*parts*/) {
        std::string faint;
        auto* menu = qobject_cast<QMenu*>(&window);
        const auto items = menu ? menu->actions() : QList<QAction*>();
        for (QAction* item : items) {
            const QRect row = menu->actionGeometry(item);
            const bool information =
                item->objectName() == u"backupDiskMenuItem"_s || item->objectName() == u"remainingTimeMenuItem"_s;
            if (!item->isVisible() || item->isSeparator() || (!item->isEnabled() && !information))
                continue;
            for (const bool chosen : {false, true}) {
                menu->setActiveAction(chosen ? item : nullptr);
                const double measured = strongest(picture(*menu, row.adjusted(row.height(), 3, -row.height(), -3)));
                if (measured < forTexts)
                    faint += describe(*item, item->text() + (chosen ? u" chosen"_s : QString()), measured);
            }
        }
        return faint;
    });
}

INSTANTIATE_TEST_SUITE_P(Scenes, ContrastOf, testing::ValuesIn(allScenes().begin(), allScenes().end()),
                         [](const testing::TestParamInfo<Scene>& scene) {
                             return QString::fromLatin1(scene.param.name).remove(u'-').toStdString();
                         });

} // namespace quillon
