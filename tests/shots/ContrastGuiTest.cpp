#include "Accessibility.h"
#include "ColorScheme_linux.h"
#include "Scenes.h"
#include "Stage.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QHash>
#include <QLabel>
#include <QListWidget>
#include <QMenu>
#include <QPushButton>
#include <QTextEdit>

#include <algorithm>
#include <gtest/gtest.h>
#include <utility>

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

/// What stands out most from its ground; of what differs from the picture before, where there is one.
double strongest(const QImage& picture, const QImage& before = {})
{
    const QColor ground = groundOf(before.isNull() ? picture : before);
    double most = 1;
    for (int y = 0; y < picture.height(); ++y)
        for (int x = 0; x < picture.width(); ++x)
            if (before.isNull() || before.pixel(x, y) != picture.pixel(x, y))
                most = std::max(most, contrast(picture.pixelColor(x, y), ground));
    return most;
}

/// Where a control's text lies, without its frame; nothing for what shows no text.
QRect textArea(const QWidget& widget)
{
    constexpr int frame = 4;
    if (qobject_cast<const QCheckBox*>(&widget)) // without its box
        return widget.rect().adjusted(widget.height(), 0, 0, 0);
    if (qobject_cast<const QComboBox*>(&widget)) // without its arrow
        return widget.rect().adjusted(frame, frame, -widget.height(), -frame);
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

/// The items of a menu that can be chosen or that tell something.
QList<QAction*> itemsToRead(const QMenu& menu)
{
    QList<QAction*> items = menu.actions();
    items.removeIf([](const QAction* item) {
        const bool tells =
            item->objectName() == u"backupDiskMenuItem"_s || item->objectName() == u"remainingTimeMenuItem"_s;
        return !item->isVisible() || item->isSeparator() || (!item->isEnabled() && !tells);
    });
    return items;
}

} // namespace

/// Each scene that the program can show.
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

    void note(const QObject& part, const QString& text, double measured, double least)
    {
        if (measured < least)
            faint_ +=
                (part.objectName() + u" \""_s + text + u"\" "_s + QString::number(measured) + u'\n').toStdString();
    }
    void look(QWidget& part)
    {
        const QRect text = textArea(part);
        const QString name = part.accessibleName();
        if (!text.isEmpty())
            note(part, name, strongest(picture(part, text)), forTexts);
        // A default button looks the same all the time: Return presses it from everywhere but other buttons.
        const auto* button = qobject_cast<const QPushButton*>(&part);
        if (!(part.focusPolicy() & Qt::TabFocus) || part.focusProxy() || (button && button->isDefault()))
            return;
        if (QWidget* focused = QApplication::focusWidget())
            focused->clearFocus();
        constexpr int around = 6; // tells the ground
        const QRect area = part.rect().adjusted(-around, -around, around, around);
        const QImage before = picture(part, area);
        part.setFocus(Qt::TabFocusReason);
        if (!part.hasFocus())
            return;
        note(part, name + u" focused"_s, strongest(picture(part, area), before), forLines);
        if (!text.isEmpty())
            note(part, name + u" focused"_s, strongest(picture(part, text)), forTexts);
    }
    void look(QListWidget& list)
    {
        const QRect row = list.visualItemRect(list.item(0));
        for (const int selected : {-1, 0}) {
            list.setCurrentRow(selected);
            // Beside the symbol, below the title.
            const double measured =
                strongest(picture(*list.viewport(), row.adjusted(row.height(), row.height() / 2, 0, 0)));
            note(list, list.item(0)->text(), measured, forTexts);
        }
    }
    void look(QMenu& menu)
    {
        for (QAction* item : itemsToRead(menu)) {
            const QRect row = menu.actionGeometry(item);
            for (QAction* chosen : {item, static_cast<QAction*>(nullptr)}) {
                menu.setActiveAction(chosen);
                const double measured = strongest(picture(menu, row.adjusted(row.height(), 3, -row.height(), -3)));
                note(*item, item->text() + (chosen ? u" chosen"_s : QString()), measured, forTexts);
            }
        }
    }

    const QFont font_ = QApplication::font();
    std::string faint_; ///< a line each
};

TEST(Contrast, IsMeasuredAsTheGuidelinesSay)
{
    EXPECT_NEAR(contrast(Qt::black, Qt::white), 21, 0.01);
    EXPECT_NEAR(contrast(Qt::white, QColor(0x77, 0x77, 0x77)), 4.48, 0.01);
}

TEST_P(ContrastOf, TextsItemsInMenusAndTheKeyboardIsEnough)
{
    for (const auto preference : {ColorSchemePreference::Light, ColorSchemePreference::Dark}) {
        Stage stage;
        applyColorScheme(preference); // in place of the desktop's, which the stage's item takes
        stage.launch();
        GetParam().play(stage);
        const auto windows = Stage::windows();
        for (QWidget* window : windows) {
            window->setAttribute(Qt::WA_KeyboardFocusChange); // as with the first Tab key
            const auto parts = window->findChildren<QWidget*>();
            for (QWidget* part : parts) {
                if (part->window() == window && part->isEnabled() && !part->visibleRegion().isEmpty())
                    look(*part); // a dialog's come with the dialog
                if (auto* list = qobject_cast<QListWidget*>(part); list && list->isVisible() && list->count() > 0)
                    look(*list);
            }
            if (auto* menu = qobject_cast<QMenu*>(window))
                look(*menu);
        }
        EXPECT_EQ(std::exchange(faint_, {}), "") << (preference == ColorSchemePreference::Dark ? "dark" : "light");
        Stage::clear();
    }
}

INSTANTIATE_TEST_SUITE_P(Scenes, ContrastOf, testing::ValuesIn(allScenes().begin(), allScenes().end()),
                         [](const testing::TestParamInfo<Scene>& scene) {
                             return QString::fromLatin1(scene.param.name).remove(u'-').toStdString();
                         });

} // namespace quillon
