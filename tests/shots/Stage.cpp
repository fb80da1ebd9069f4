#include "Stage.h"

#include "Alert.h"
#include "EventLoop.h"
#include "LocalDates.h"

#include <QApplication>
#include <QPainter>
#include <QPushButton>
#include <QScreen>
#include <QTest>
#include <QWidget>

#include <utility>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

void settleWindows()
{
    // Popovers fade in.
    QDeadlineTimer deadline(400);
    while (!deadline.hasExpired())
        QCoreApplication::processEvents(QEventLoop::AllEvents, 20);
}

QWidgetList visibleWindows()
{
    QWidgetList windows;
    const auto all = QApplication::topLevelWidgets();
    for (QWidget* window : all) {
        if (window->isVisible())
            windows.append(window);
    }
    return windows;
}

} // namespace

Stage::Stage(QDir folder, QString suffix)
    : folder_(std::move(folder))
    , suffix_(std::move(suffix))
    , item_(makeStatusItem(StatusItemPlacement::Bar))
    , program_(local(2026, 11, 21, 10))
{
    program_.machine.destinations = {{u"A"_s, u"Studio Disk"_s}, {u"B"_s, u"Büro & Archiv 💾"_s}};
    program_.setRules({{0, 12 * 3600}, {2, 18 * 3600 + 1800}});
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

void Stage::showAlert()
{
    alerts_.present(program_.alerts.presented.back().first, {});
}

void Stage::take(const QString& name)
{
    settleWindows();
    QRect area;
    const auto windows = visibleWindows();
    for (const QWidget* window : windows)
        area |= window->frameGeometry();
    area = area.adjusted(-16, 0, 16, 24) & QGuiApplication::primaryScreen()->geometry();
    const qreal ratio = QGuiApplication::primaryScreen()->devicePixelRatio();
    QImage picture((QSizeF(area.size()) * ratio).toSize(), QImage::Format_RGB32);
    picture.setDevicePixelRatio(ratio);
    picture.fill(QGuiApplication::palette().color(QPalette::Window).lightness() > 127 ? 0xffb8c4d0 : 0xff303840);
    QPainter painter(&picture);
    for (QWidget* window : windows)
        painter.drawPixmap(window->pos() - area.topLeft(), window->grab());
    painter.end();
    picture.save(folder_.filePath(name + suffix_ + ".png"_L1));
    for (QWidget* window : windows) {
        if (auto* alert = window->findChild<Alert*>())
            alert->escapeButton()->click();
        else if (qobject_cast<QMenu*>(window))
            window->close();
    }
}

} // namespace quillon
