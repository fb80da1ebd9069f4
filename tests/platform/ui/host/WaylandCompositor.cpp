#include "WaylandCompositor.h"

#include "Waiting.h"

#include <QFile>

#include <stdexcept>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

constexpr auto socketName = "wayland"_L1;

} // namespace

WaylandCompositor::WaylandCompositor()
    : program_(u"weston"_s,
               {u"--no-config"_s, u"--backend=headless-backend.so"_s, u"--idle-time=0"_s, u"--socket="_s + socketName,
                u"--log="_s + logFile(), u"--logger-scopes=log,proto"_s},
               {u"XDG_RUNTIME_DIR="_s + folder_.path()})
{
    if (!eventually([this] { return QFile::exists(folder_.filePath(socketName)); }))
        throw std::runtime_error("the compositor does not come up");
}

QStringList WaylandCompositor::variables() const
{
    return {u"QT_QPA_PLATFORM=wayland"_s, u"XDG_RUNTIME_DIR="_s + folder_.path(), u"WAYLAND_DISPLAY="_s + socketName,
            u"ASAN_OPTIONS=detect_leaks=0"_s}; // Qt's plugin for Wayland frees little at its end
}

QByteArray WaylandCompositor::messages() const
{
    QFile file(logFile());
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace quillon
