#pragma once

#include "ExportedMenu_linux.h"
#include "StatusItemFace_linux.h"

#include <QPointer>
#include <QSystemTrayIcon>

namespace quillon {

/// The two ways in which a tray and its icons find each other.
enum class TrayProtocol { StatusNotifier, XEmbed };

/// The item as an icon of the desktop's tray, its tool tip being the program's name and the title.
///
/// Qt looks for a StatusNotifier host when the first tray icon of a process is made, and stays with XEmbed or with
/// StatusNotifier for good. So this is made only once a tray host of either kind is there, and then kept: hidden while
/// the tray is away, shown again when one of the same kind returns. Main thread only.
class TrayStatusItem final : public QObject, public StatusItemFace {
    Q_OBJECT

public:
    TrayStatusItem();
    ~TrayStatusItem() override;

    /// The kind of tray that Qt has decided for; nothing before the icon was shown.
    std::optional<TrayProtocol> protocol() const { return protocol_; }

    void setShown(bool shown);
    void setContent(const StatusItemContent& content) override;
    void setMenu(QMenu* menu) override;
    PopoverAnchor anchor() const override;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void updateIcon();
    void attachMenu();
    void openMenu();
    QPoint besideIcon(const QRect& icon) const;

    QSystemTrayIcon icon_;
    std::optional<TrayProtocol> protocol_;
    std::optional<SymbolImage> image_;
    QPointer<QMenu> menu_;
    std::unique_ptr<ExportedMenu> exported_;
};

} // namespace quillon
