#pragma once

#include "DBusMenu_linux.h"
#include "StatusItemFace_linux.h"
#include "StatusNotifierItem_linux.h"

#include <QDir>

namespace quillon {

/// What a host is told of the item, but for the pixels of its icon. A host that finds an icon by its name looks at no
/// pixels: one that shows a colour or a progress has none.
/// @param share where `icons/` lies that the program was installed with
NotifierContent notifierContent(const StatusItemContent& content, const QDir& share);

/// The item as StatusNotifier hosts show it, which tint the icon, draw the menu and may show the title beside it. Main
/// thread only.
class NotifierStatusItem final : public QObject, public StatusItemFace {
    Q_OBJECT

public:
    explicit NotifierStatusItem(const QDBusConnection& bus);
    ~NotifierStatusItem() override;

    void setContent(const StatusItemContent& content) override;
    void setMenu(QMenu* menu) override;
    /// Hosts do not tell where they show the item.
    PopoverAnchor anchor() const override { return {}; }

private:
    void openMenu();

    const QDir share_;
    QPointer<QMenu> menu_;
    DBusMenu exported_;
    StatusNotifierItem item_;
    std::optional<SymbolImage> image_;
    NotifierPixmaps pixmaps_; ///< of the image
};

} // namespace quillon
