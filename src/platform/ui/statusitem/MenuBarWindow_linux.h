#pragma once

#include "ShownStatusItem_linux.h"

#include <QPointer>
#include <QPushButton>
#include <QWidget>

class QScreen;

namespace quillon {

/// The item inside the bar: a title of one or two lines, an image to the right of it; opens its menu on a press of the
/// mouse, the space bar, Return or Down, or brings the window to the front that has to be answered first.
class MenuBarButton final : public QPushButton {
    Q_OBJECT

public:
    explicit MenuBarButton(QWidget* parent);

    void setContent(const StatusItemContent& content);
    void setPopupMenu(QMenu* menu);
    void openMenu();

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QFont titleFont() const;
    QStringList lines() const;
    qreal linePitch() const;
    qreal blockHeight() const;
    int titleWidth() const;
    int imageSide() const;
    void paintGround(QPainter& painter) const;
    void paintTitle(QPainter& painter, const QRect& area) const;

    StatusItemContent content_;
    QPointer<QMenu> menu_;
};

/// Makes a window that has not been shown yet a panel of the desktop, for the X11 window manager: it is on every
/// desktop, stays when the desktop is shown, and is no window among others. Does nothing on other platforms.
void makeDock(WId window);

/// Asks the X11 window manager to keep other windows off the part of the screen above the lower edge of `bar`, for as
/// long as the window lives. Does nothing on other platforms, and where another monitor lies above.
/// @param bar geometry of the window in logical pixels, at the top of the screen
void reserveTopStrip(WId window, const QScreen& screen, const QRect& bar);

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
