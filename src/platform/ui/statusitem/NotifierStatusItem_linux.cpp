#include "NotifierStatusItem_linux.h"

#include "ModalWindow.h"
#include "Symbol_linux.h"

#include <QCursor>
#include <QFile>
#include <QGuiApplication>
#include <QMenu>
#include <QScreen>
#include <QStandardPaths>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

/// In the prefix that the program runs from.
QDir shareFolder()
{
    return QDir(QDir::cleanPath(QCoreApplication::applicationDirPath() + "/../share"_L1));
}

/// Where hosts look for themes they need not be told of.
QString iconThemePath(const QDir& share)
{
    const bool isKnown = QStandardPaths::standardLocations(QStandardPaths::GenericDataLocation).contains(share.path());
    return isKnown ? QString() : share.filePath(u"icons"_s);
}

/// A label stands in one line: "Next: 5h 12m", "45.3% – 2m".
QString singleLine(const QString& title)
{
    QString line = title;
    line.replace(u":\n"_s, u": "_s);
    return line.replace(u"\n"_s, u" – "_s);
}

QString iconName(const SymbolImage& image, const QDir& share)
{
    const QString name = u"%1.%2-symbolic"_s.arg(QGuiApplication::desktopFileName(), image.name);
    const bool isInstalled = share.exists(u"icons/hicolor/symbolic/apps/%1.svg"_s.arg(name));
    return isInstalled && !image.paletteColor && !image.percent ? name : QString();
}

} // namespace

NotifierContent notifierContent(const StatusItemContent& content, const QDir& share)
{
    NotifierContent shown;
    shown.name = QGuiApplication::applicationDisplayName();
    shown.toolTip = content.text();
    shown.label = singleLine(content.title.text);
    if (content.image)
        shown.iconName = iconName(*content.image, share);
    shown.iconDescription = content.description();
    shown.needsAttention = content.image && content.image->needsAttention;
    return shown;
}

NotifierStatusItem::NotifierStatusItem(const QDBusConnection& bus)
    : share_(shareFolder())
    , exported_(bus, u"/MenuBar"_s, bringModalWindowToFront)
    , item_(bus, exported_.path(), iconThemePath(share_))
    , pixmaps_(notifierPixmaps(trayIcon(image_)))
{
    connect(&item_, &StatusNotifierItem::menuRequested, this, &NotifierStatusItem::openMenu);
}

NotifierStatusItem::~NotifierStatusItem() = default;

void NotifierStatusItem::setContent(const StatusItemContent& content)
{
    if (image_ != content.image) {
        image_ = content.image;
        pixmaps_ = notifierPixmaps(trayIcon(image_));
    }
    NotifierContent shown = notifierContent(content, share_);
    shown.pixmaps = pixmaps_;
    item_.setContent(shown);
}

void NotifierStatusItem::setMenu(QMenu* menu)
{
    menu_ = menu;
    exported_.setMenu(menu);
}

void NotifierStatusItem::openMenu()
{
    if (bringModalWindowToFront() || !menu_)
        return;
    // Wayland does not tell where the pointer is.
    const bool pointerKnown = !QGuiApplication::platformName().startsWith("wayland"_L1);
    menu_->popup(pointerKnown ? QCursor::pos() : QGuiApplication::primaryScreen()->availableGeometry().topRight());
}

} // namespace quillon
