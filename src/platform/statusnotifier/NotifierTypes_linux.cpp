#include "NotifierTypes_linux.h"

#include <QDBusMetaType>
#include <QImage>
#include <QtEndian>

namespace quillon {

QDBusArgument& operator<<(QDBusArgument& argument, const NotifierPixmap& pixmap)
{
    argument.beginStructure();
    argument << pixmap.width << pixmap.height << pixmap.pixels;
    argument.endStructure();
    return argument;
}

const QDBusArgument& operator>>(const QDBusArgument& argument, NotifierPixmap& pixmap)
{
    argument.beginStructure();
    argument >> pixmap.width >> pixmap.height >> pixmap.pixels;
    argument.endStructure();
    return argument;
}

QDBusArgument& operator<<(QDBusArgument& argument, const NotifierToolTip& toolTip)
{
    argument.beginStructure();
    argument << QString() << NotifierPixmaps() << toolTip.title << toolTip.text;
    argument.endStructure();
    return argument;
}

const QDBusArgument& operator>>(const QDBusArgument& argument, NotifierToolTip& toolTip)
{
    QString iconName;
    NotifierPixmaps icon;
    argument.beginStructure();
    argument >> iconName >> icon >> toolTip.title >> toolTip.text;
    argument.endStructure();
    return argument;
}

void registerNotifierTypes()
{
    qDBusRegisterMetaType<NotifierPixmap>();
    qDBusRegisterMetaType<NotifierPixmaps>();
    qDBusRegisterMetaType<NotifierToolTip>();
    qRegisterMetaType<NotifierPixmaps>("quillon::NotifierPixmaps");
}

NotifierPixmaps notifierPixmaps(const QIcon& icon)
{
    NotifierPixmaps pixmaps;
    const auto sizes = icon.availableSizes();
    for (const QSize& size : sizes) {
        const QImage image = icon.pixmap(size, 1.0).toImage().convertToFormat(QImage::Format_ARGB32);
        QByteArray pixels(image.sizeInBytes(), Qt::Uninitialized);
        // Of pixels of four bytes no row has any filling.
        qToBigEndian<quint32>(image.constBits(), image.sizeInBytes() / static_cast<qsizetype>(sizeof(quint32)),
                              pixels.data());
        pixmaps.append({image.width(), image.height(), pixels});
    }
    return pixmaps;
}

} // namespace quillon
