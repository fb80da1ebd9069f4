#include "Stage.h"

#include "Accessibility.h"
#include "Alert.h"
#include "EventLoop.h"
#include "LocalDates.h"

#include <QApplication>
#include <QComboBox>
#include <QPainter>
#include <QPushButton>
#include <QScreen>
#include <QTabWidget>
#include <QTest>

#include <algorithm>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

constexpr int besideBar = 100;

QWidgetList visibleWindows()
{
    QWidgetList windows = QApplication::topLevelWidgets();
    windows.removeIf([](const QWidget* window) { return !window->isVisible(); });
    std::stable_partition(windows.begin(), windows.end(),
                          [](const QWidget* window) { return !window->isModal() && !window->findChild<Alert*>(); });
    return windows;
}

/// Popovers fade in.
void settleWindows()
{
    runUntil([] {
        QCoreApplication::processEvents();
        const auto windows = visibleWindows();
        return std::all_of(windows.begin(), windows.end(),
                           [](const QWidget* window) { return window->windowOpacity() == 1; });
    });
}

/// Where there is something beside the bar, with a margin. A modal alert is what counts while there is one.
QRect takenArea(const QWidgetList& windows)
{
    const QRect screen = QGuiApplication::primaryScreen()->geometry();
    QRect area;
    for (const QWidget* window : windows) {
        if (window->width() < screen.width())
            area |= window->frameGeometry();
    }
    if (const QWidget* alert = QApplication::activeModalWidget())
        area = alert->frameGeometry();
    constexpr int margin = 32; // shows the bar that something hangs from
    return area.adjusted(-margin, -margin, margin, margin) & screen;
}

template<typename Control>
Control* highest(const char* name)
{
    Control* found = nullptr;
    const auto windows = visibleWindows();
    for (QWidget* window : windows) {
        const auto controls = window->findChildren<Control*>(QLatin1StringView(name));
        for (Control* control : controls) {
            if (control->isVisible() &&
                (!found || control->mapToGlobal(QPoint()).y() < found->mapToGlobal(QPoint()).y()))
                found = control;
        }
    }
    Q_ASSERT(found);
    return found;
}

} // namespace

Stage::Stage()
    : item_(makeStatusItem(StatusItemPlacement::Bar))
    , program_(local(2026, 11, 21, 10))
{
    program_.machine.destinations = {{u"A"_s, u"Studio Disk"_s}, {u"B"_s, u"Büro & Archiv 💾"_s}};
    constexpr qlonglong hour = 3600;
    constexpr qlonglong minute = 60;
    program_.setRules({{0, 12 * hour},
                       {8, 8 * hour + 15 * minute},
                       {2, 18 * hour + 30 * minute},
                       {4, 21 * hour + 45 * minute},
                       {1, 0}});
}

void Stage::launch()
{
    program_.startShowing(*item_);
    program_.runLoop.advance(Seconds(1));
}

void Stage::openMenu(QAction* const StatusMenu::*submenuOf)
{
    QTest::keyClick(item_->anchor().view, Qt::Key_Space);
    program_.runLoop.advance(Seconds(1));
    if (submenuOf) {
        StatusMenu& menu = program_.controller->statusMenu();
        menu.setActiveAction(menu.*submenuOf);
    }
}

DisksWindow& Stage::openDisks(int page)
{
    disks_.emplace(program_.runLoop, alerts_);
    disks_->window().move(besideBar, besideBar);
    disks_->window().findChild<QTabWidget*>()->setCurrentIndex(page);
    return disks_->window();
}

BrowseWindow& Stage::openBackups(bool withBackups)
{
    backups_.emplace(program_.runLoop, alerts_, withBackups);
    backups_->window().move(besideBar, besideBar);
    return backups_->window();
}

void Stage::press(const char* button)
{
    settleWindows();
    highest<QAbstractButton>(button)->click();
}

void Stage::choose(const char* comboBox, int item)
{
    settleWindows();
    auto* box = highest<QComboBox>(comboBox);
    box->setCurrentIndex(item);
    Q_EMIT box->activated(item);
}

void Stage::showAlert()
{
    alerts_.present(program_.alerts.presented.back().first, {});
}

QWidgetList Stage::windows()
{
    settleWindows();
    return visibleWindows();
}

QImage Stage::picture()
{
    const auto shown = windows();
    const QRect area = takenArea(shown);
    const qreal ratio = QGuiApplication::primaryScreen()->devicePixelRatio();
    QImage picture((QSizeF(area.size()) * ratio).toSize(), QImage::Format_RGB32);
    picture.setDevicePixelRatio(ratio);
    picture.fill(isDark(QGuiApplication::palette()) ? 0xff303840 : 0xffb8c4d0);
    QPainter painter(&picture);
    for (QWidget* window : shown)
        painter.drawPixmap(window->pos() - area.topLeft(), window->grab());
    return picture;
}

void Stage::clear()
{
    const auto shown = visibleWindows();
    for (QWidget* window : shown) {
        if (auto* alert = window->findChild<Alert*>())
            alert->escapeButton()->click();
        else if (qobject_cast<QMenu*>(window))
            window->close();
    }
}

} // namespace quillon
