#pragma once

#include "ShownStatusItem_linux.h"

#include <QPointer>
#include <QWidget>

class QScreen;

namespace quillon {

/// Makes a window that has not been shown yet a panel of the desktop, for the X11 window manager: it is on every
/// desktop, stays when the desktop is shown, and is no window among others. Does nothing on other platforms.
void makeDock(WId window);

/// Asks the X11 window manager to keep other windows off the part of the screen above the lower edge of `bar`, for as
/// long as the window lives. Does nothing on other platforms, and where another monitor lies above.
/// @param bar geometry of the window in logical pixels, at the top of the screen
void reserveTopStrip(WId window, const QScreen& screen, const QRect& bar);

class MenuBarButton;

/// The item in a slim bar of our own at the top of the primary screen, for desktops without a tray. Where clients
/// cannot place windows (Wayland) it is a normal small window with a title.
class MenuBarWindow final : public QWidget, public ShownStatusItem {
    Q_OBJECT

public:
    MenuBarWindow();

    void setContent(const StatusItemContent& content) override;
    void setMenu(QMenu* menu) override;
    PopoverAnchor anchor() const override;

protected:
    bool event(QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void followPrimaryScreen();
    void place();

    bool isBar_;
    MenuBarButton* button_;
    QPointer<QScreen> screen_; ///< the one that the bar lies on
    QRect strip_;              ///< where it lies
};

} // namespace quillon
