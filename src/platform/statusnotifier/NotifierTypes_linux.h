#pragma once

#include <QByteArray>
#include <QDBusArgument>
#include <QIcon>
#include <QList>
#include <QString>

namespace quillon {

// What org.kde.StatusNotifierItem says of pictures and tool tips, in the shapes in which it goes over the bus:
// https://www.freedesktop.org/wiki/Specifications/StatusNotifierItem/Icons/

/// "(iiay)": a picture's pixels, row by row, each as alpha, red, green and blue.
struct NotifierPixmap {
    int width = 0;
    int height = 0;
    QByteArray pixels;

    bool operator==(const NotifierPixmap&) const = default;
};

/// One picture in several sizes.
using NotifierPixmaps = QList<NotifierPixmap>;

/// "(sa(iiay)ss)", of which the icon stays empty.
struct NotifierToolTip {
    QString title;
    QString text; ///< HTML
};

QDBusArgument& operator<<(QDBusArgument& argument, const NotifierPixmap& pixmap);
const QDBusArgument& operator>>(const QDBusArgument& argument, NotifierPixmap& pixmap);
QDBusArgument& operator<<(QDBusArgument& argument, const NotifierToolTip& toolTip);
const QDBusArgument& operator>>(const QDBusArgument& argument, NotifierToolTip& toolTip);

/// Makes these shapes known to Qt's D-Bus module.
void registerNotifierTypes();

/// The icon in each of its sizes.
NotifierPixmaps notifierPixmaps(const QIcon& icon);

} // namespace quillon
