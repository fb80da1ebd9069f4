#include "ColorScheme_linux.h"
#include "EntryDelegate.h"
#include "ListPage.h"

#include <QApplication>
#include <QListWidget>
#include <QPainter>
#include <QPushButton>
#include <QTest>

#include <cmath>
#include <gtest/gtest.h>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

double luminance(QRgb color)
{
    const auto linear = [](int part) {
        const double share = part / 255.0;
        return share <= 0.04045 ? share / 12.92 : std::pow((share + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(qRed(color)) + 0.7152 * linear(qGreen(color)) + 0.0722 * linear(qBlue(color));
}

/// Of the text in a part of a picture to its ground, which the left upper corner shows.
double contrastIn(const QImage& picture, const QRect& part)
{
    const double ground = luminance(picture.pixel(part.topLeft()));
    double best = 1;
    for (int y = part.top(); y <= part.bottom(); ++y) {
        for (int x = part.left(); x <= part.right(); ++x) {
            const double here = luminance(picture.pixel(x, y));
            best = std::max(best, (std::max(here, ground) + 0.05) / (std::min(here, ground) + 0.05));
        }
    }
    return best;
}

ListEntry entryOf(const QString& id)
{
    return {.id = id, .title = u"██ "_s + id, .details = {u"██ details"_s}, .remarks = {}, .symbol = {}};
}

} // namespace

TEST(ListPage, TheKeyboardSelectsWhatIsThereBeItASingleEntry)
{
    for (const size_t count : {1U, 3U}) {
        ListPage page(u"List"_s, u"Explanation"_s);
        QPushButton* add = page.addButton(u"Add"_s);
        std::vector<ListEntry> entries;
        while (entries.size() < count)
            entries.push_back(entryOf(QString::number(entries.size())));
        page.setEntries(entries, {});
        page.show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&page));
        auto* list = page.findChild<QListWidget*>();
        const auto* remove = page.findChild<QPushButton*>(u"remove"_s);
        const auto selected = [list] { return list->selectedItems().size() == 1 ? list->currentRow() : -1; };

        add->setFocus();
        EXPECT_EQ(selected(), -1);
        QTest::keyClick(add, Qt::Key_Backtab);
        ASSERT_TRUE(list->hasFocus());
        EXPECT_EQ(selected(), 0) << "reached by Tab";
        EXPECT_TRUE(remove->isEnabled());

        list->clearSelection();
        list->setCurrentItem(nullptr);
        QTest::keyClick(list, Qt::Key_Down);
        EXPECT_EQ(selected(), 0) << "by an arrow";
        QTest::keyClick(list, Qt::Key_Down);
        EXPECT_EQ(selected(), count > 1 ? 1 : 0);
    }
}

TEST(ListPage, EveryTextHasEnoughContrastSelectedOrNot)
{
    for (const auto scheme : {ColorSchemePreference::Light, ColorSchemePreference::Dark}) {
        applyColorScheme(scheme);
        QListWidget list;
        EntryDelegate delegate;
        list.setItemDelegate(&delegate);
        auto* item = new QListWidgetItem(u"██ title"_s, &list);
        item->setData(EntryDelegate::detailsRole, QStringList(u"██ details"_s));
        item->setData(EntryDelegate::remarksRole, QStringList(u"██ remark"_s));
        for (const bool dimmed : {false, true}) {
            item->setData(EntryDelegate::dimmedRole, dimmed);
            for (const auto state : {QStyle::State_None, QStyle::State_Selected}) {
                QStyleOptionViewItem option;
                option.initFrom(&list);
                option.widget = &list;
                option.showDecorationSelected = true;
                option.state = QStyle::State_Enabled | QStyle::State_Active | state;
                const QSize size(300, delegate.sizeHint(option, list.model()->index(0, 0)).height());
                option.rect = QRect({}, size);
                QImage picture(size, QImage::Format_RGB32);
                picture.fill(list.palette().color(QPalette::Base));
                QPainter painter(&picture);
                delegate.paint(&painter, option, list.model()->index(0, 0));
                painter.end();
                const int third = size.height() / 3;
                for (int row = 0; row < 3; ++row)
                    EXPECT_GE(contrastIn(picture, {size.width() / 8, row * third, size.width() * 7 / 8, third}), 4.5)
                        << "row " << row << (dimmed ? ", dimmed" : "") << (state ? ", selected" : "");
            }
        }
    }
    applyColorScheme(ColorSchemePreference::None);
}

} // namespace quillon
