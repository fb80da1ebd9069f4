#include "MountTable.h"

#include "Paths.h"

#include <QFile>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

/// Blanks, tabs, line breaks and backslashes are written as three octal digits.
QString unescaped(const QByteArray& field)
{
    QByteArray path;
    for (qsizetype at = 0; at < field.size(); ++at) {
        if (field[at] == '\\' && at + 3 < field.size()) {
            path += static_cast<char>(field.mid(at + 1, 3).toInt(nullptr, 8));
            at += 3;
        } else {
            path += field[at];
        }
    }
    return QFile::decodeName(path);
}

} // namespace

MountTable::MountTable(const QByteArray& mountinfo)
{
    constexpr qsizetype device = 2;
    constexpr qsizetype point = 4;
    for (const QByteArray& line : mountinfo.split('\n')) {
        if (const QByteArrayList fields = line.split(' '); fields.size() > point)
            mounts_.push_back({unescaped(fields[point]), fields[device]});
    }
}

MountTable MountTable::current()
{
    QFile table(u"/proc/self/mountinfo"_s);
    return MountTable(table.open(QIODevice::ReadOnly) ? table.readAll() : QByteArray());
}

const MountTable::Mount* MountTable::around(const QString& path) const
{
    const Mount* around = nullptr; // the last one counts where one lies over another
    for (const Mount& mount : mounts_) {
        if (covers(mount.point, path) && (around == nullptr || around->point.size() <= mount.point.size()))
            around = &mount;
    }
    return around;
}

bool MountTable::haveOneFileSystem(const QString& one, const QString& other) const
{
    const Mount* const first = around(one);
    const Mount* const second = around(other);
    return first != nullptr && second != nullptr && first->device == second->device;
}

QStringList MountTable::foreignMountPointsIn(const QString& folder) const
{
    const Mount* const around = this->around(folder);
    QStringList points;
    for (const Mount& mount : mounts_) {
        if (mount.point != folder && covers(folder, mount.point) && around != nullptr && mount.device != around->device)
            points.append(mount.point);
    }
    points.removeDuplicates();
    return points;
}

} // namespace quillon
