#pragma once

#include "StatusItemFace_linux.h"

#include <QPointer>
#include <QWidget>

class QScreen;

namespace quillon {

class MenuBarButton;

/// The item in a slim bar of our own at the top of the primary screen, for desktops without a tray. Where clients
/// cannot place windows (Wayland) it is a normal small window with a title. Main thread only.
class MenuBarWindow final : public QWidget, public StatusItemFace {
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
