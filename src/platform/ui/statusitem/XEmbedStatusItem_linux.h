#pragma once

#include "StatusItemFace_linux.h"

#include <QPointer>
#include <QSystemTrayIcon>

namespace quillon {

/// The item as an icon of an XEmbed tray, its tool tip being the program's name and what the item says.
///
/// Qt looks for a StatusNotifier host when the first tray icon of a process is made, and stays with XEmbed or with
/// StatusNotifier for good. So this is made only once an XEmbed tray is there and no host, and then kept: hidden while
/// the tray is away, shown again when one returns. Main thread only.
class XEmbedStatusItem final : public QObject, public StatusItemFace {
    Q_OBJECT

public:
    XEmbedStatusItem();
    ~XEmbedStatusItem() override;

    /// False, and nothing is shown, where a host has come so shortly ago that Qt has decided for it.
    bool show();
    void hide();
    void setContent(const StatusItemContent& content) override;
    void setMenu(QMenu* menu) override;
    PopoverAnchor anchor() const override;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void openMenu();
    QPoint besideIcon(const QRect& icon) const;

    QSystemTrayIcon icon_;
    std::optional<SymbolImage> image_;
    QPointer<QMenu> menu_;
};

} // namespace quillon
