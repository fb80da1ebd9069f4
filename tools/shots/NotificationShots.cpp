#include "NotificationShots.h"

#include "ApplicationIdentity.h"
#include "EventLoop.h"
#include "LocalDates.h"
#include "PlayedProgram.h"
#include "ScopedEnvironment.h"
#include "StartWord.h"

#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QDir>
#include <QGuiApplication>
#include <QImage>
#include <QPixmap>
#include <QScreen>
#include <QTest>

#include <utility>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

/// What the program tells on a day without a recent backup, a minute ahead of one.
QList<UserNotification> toldByProgram()
{
    const ScopedEnvironment zone("TZ", "Europe/Berlin");
    PlayedProgram program(local(2026, 11, 21, 11, 59));
    program.defaults.setDate(settingskeys::lastBackupDate, local(2026, 11, 3, 12));
    program.defaults.setObject(settingskeys::daysWithoutBackup, 10LL);
    program.defaults.setObject(settingskeys::tellBeforeStart, 1LL);
    program.launch();
    const StartWord word(
        {program.runLoop, program.defaults, *program.manager, program.userNotifications, *program.controller});
    program.runLoop.advance(Seconds(20));
    return program.userNotifications.posted;
}

QImage screenPicture()
{
    return QGuiApplication::primaryScreen()->grabWindow().toImage().convertToFormat(QImage::Format_RGB32);
}

/// Where a picture is not of the colour of its last pixel.
QRect drawnArea(const QImage& picture)
{
    const QRgb ground = picture.pixel(picture.width() - 1, picture.height() - 1);
    QRect area;
    for (int y = 0; y < picture.height(); ++y)
        for (int x = 0; x < picture.width(); ++x)
            if (picture.pixel(x, y) != ground)
                area |= QRect(x, y, 1, 1);
    return area;
}

/// The screen once something is drawn on it and stays as it is for a moment.
std::optional<QImage> settledPicture()
{
    constexpr int moment = 300; // milliseconds
    QImage seen;
    const bool settled = runUntil([&] {
        QTest::qWait(moment);
        const QImage before = std::exchange(seen, screenPicture());
        return seen == before && !drawnArea(seen).isEmpty();
    });
    return settled ? std::optional(seen) : std::nullopt;
}

} // namespace

QString pictureNotifications(const QString& folder, const QString& scheme)
{
    const auto desktop = makeUserNotifications({.name = identity::name, .desktopEntry = identity::identifier});
    if (!runUntil([] {
            return QDBusConnection::sessionBus().interface()->isServiceRegistered(u"org.freedesktop.Notifications"_s);
        }))
        return u"nobody shows notifications"_s;
    for (const UserNotification& notification : toldByProgram()) {
        desktop->post(notification);
        const auto picture = settledPicture();
        if (!picture)
            return u"%1 is not shown"_s.arg(notification.identifier);
        constexpr int margin = 16;
        const QRect area = drawnArea(*picture).adjusted(-margin, -margin, margin, margin).intersected(picture->rect());
        const QString file = QDir(folder).filePath(u"%1-notification-%2.png"_s.arg(scheme, notification.identifier));
        if (!picture->copy(area).save(file))
            return u"cannot write %1"_s.arg(file);
        desktop->withdraw(notification.identifier);
        if (!runUntil([] { return drawnArea(screenPicture()).isEmpty(); }))
            return u"%1 is not withdrawn"_s.arg(notification.identifier);
    }
    return {};
}

} // namespace quillon
