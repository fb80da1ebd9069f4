#include "VirtualDisplay.h"

#include "EventLoop.h"

#include <QFile>

#include <stdexcept>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

constexpr auto panelConfiguration = "panel_items = S\npanel_position = bottom center horizontal\n"
                                    "panel_size = 100% 32\nsystray = 1\nsystray_icon_size = 22\n"_L1;

QString writePanelConfiguration(const QTemporaryDir& folder)
{
    QFile file(folder.filePath(u"panel"_s));
    if (!file.open(QIODevice::WriteOnly) || file.write(panelConfiguration.data()) < 0)
        throw std::runtime_error("cannot write the configuration of the panel");
    return file.fileName();
}

} // namespace

VirtualDisplay::VirtualDisplay()
    : server_(u"Xvfb"_s, {u"-displayfd"_s, u"1"_s, u"-screen"_s, u"0"_s, u"1280x800x24"_s, u"-nolisten"_s, u"tcp"_s,
                          u"-noreset"_s})
    , variable_(u"DISPLAY=:"_s + server_.readLine())
{
}

void VirtualDisplay::click(QPoint position) const
{
    ask(u"xdotool"_s,
        {u"mousemove"_s, QString::number(position.x()), QString::number(position.y()), u"click"_s, u"1"_s});
}

void VirtualDisplay::pressKey(const QString& name) const
{
    ask(u"xdotool"_s, {u"key"_s, name});
}

QString VirtualDisplay::ask(const QString& program, const QStringList& arguments) const
{
    return outputOf(program, arguments, {variable_});
}

XEmbedTray::XEmbedTray(const VirtualDisplay& display)
    : display_(display)
    , windowManager_(u"openbox"_s, {}, {display.variable()})
{
    // The panel takes the tray only where it finds a window manager.
    if (!runUntil([&display] {
            return display.ask(u"xprop"_s, {u"-root"_s, u"_NET_SUPPORTING_WM_CHECK"_s}).contains("window id"_L1);
        }))
        throw std::runtime_error("the window manager does not come up");
    panel_ = std::make_unique<ChildProgram>(u"tint2"_s, QStringList{u"-c"_s, writePanelConfiguration(folder_)},
                                            QStringList{display.variable()});
}

void XEmbedTray::takeDown()
{
    panel_.reset();
}

bool XEmbedTray::holds(const QString& windowName) const
{
    try {
        return display_.ask(u"xwininfo"_s, {u"-name"_s, u"tint2"_s, u"-tree"_s}).contains(windowName);
    } catch (const std::runtime_error&) {
        return false; // there is no panel, or one of its windows went away while they were listed
    }
}

} // namespace quillon
