#include "DisksWindow.h"

#include "Accessibility.h"
#include "DisksPage.h"
#include "FolderPages.h"
#include "LocalizedString.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <QShortcut>
#include <QTabWidget>
#include <QVBoxLayout>

#include <chrono>

namespace quillon {

using namespace std::chrono_literals;

namespace {

// So that a disk that was plugged in shows soon; a call costs some milliseconds.
constexpr auto diskWatchInterval = 5s;

} // namespace

DisksWindow::DisksWindow(const Setup::Services& services, const QString& lsblk)
    : setup_(services)
    , disksPage_(new DisksPage(setup_, lsblk))
    , sourcesPage_(new SourcesPage(setup_))
    , exclusionsPage_(new ExclusionsPage(setup_))
    , troubleBar_(new QWidget)
    , troubleLabel_(new QLabel)
{
    setAccessibleRole(*this, QAccessible::Window);
    setWindowTitle(localizedString("disksWindowTitle"));

    auto* tabs = new QTabWidget;
    setAccessibleRole(*tabs, QAccessible::Grouping);
    tabs->setAccessibleName(windowTitle());
    tabs->addTab(disksPage_, localizedString("disksDisksTitle"));
    tabs->addTab(sourcesPage_, localizedString("disksSourcesTitle"));
    tabs->addTab(exclusionsPage_, localizedString("disksExclusionsTitle"));

    auto* column = new QVBoxLayout(this);
    column->addWidget(makeTroubleBar());
    column->addWidget(tabs, 1);
    fitToScreen();

    connect(new QShortcut(QKeySequence::Close, this), &QShortcut::activated, this, &QWidget::close);
    connect(&setup_, &Setup::readAll, this, &DisksWindow::showTrouble);
    connect(&setup_, &Setup::changed, this, &DisksWindow::reload);
    connect(&setup_, &Setup::changing, this, [this](bool begun) {
        for (ListPage* page : findChildren<ListPage*>())
            page->setChangeable(!begun);
    });
    diskWatch_ = services.runLoop.scheduleRepeating(diskWatchInterval, [this] { watchDisks(); });
    reload();
}

QWidget* DisksWindow::makeTroubleBar()
{
    auto* again = new QPushButton(localizedString("disksTryAgainTitle"));
    troubleLabel_->setTextFormat(Qt::PlainText);
    troubleLabel_->setWordWrap(true);
    troubleLabel_->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    auto* row = new QHBoxLayout(troubleBar_);
    row->setContentsMargins({});
    row->addWidget(troubleLabel_, 1);
    row->addWidget(again, 0, Qt::AlignTop);
    troubleBar_->hide();
    connect(again, &QPushButton::clicked, this, &DisksWindow::reload);
    return troubleBar_;
}

void DisksWindow::fitToScreen()
{
    constexpr int columns = 80;
    constexpr int lines = 28;
    const QFontMetrics metrics = fontMetrics();
    const QSize wanted = sizeHint().expandedTo({metrics.averageCharWidth() * columns, metrics.height() * lines});
    const QSize frame(metrics.height(), 3 * metrics.height()); // of the window manager's, which is not there yet
    resize(wanted.boundedTo(screen()->availableSize() - frame));
}

/// Something may have been changed by hand meanwhile.
void DisksWindow::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::ActivationChange && isActiveWindow() && !setup_.isBusy())
        reload();
}

void DisksWindow::reload()
{
    disksPage_->reload();
    sourcesPage_->reload();
    exclusionsPage_->reload();
}

void DisksWindow::watchDisks()
{
    if (isVisible() && !isMinimized() && !setup_.isBusy() && !troubleBar_->isVisible())
        disksPage_->reload();
}

void DisksWindow::showTrouble(const QString& line)
{
    troubleLabel_->setText(line.isEmpty() ? QString() : localizedString("disksReadFailed").arg(line));
    troubleBar_->setVisible(!line.isEmpty());
}

} // namespace quillon
