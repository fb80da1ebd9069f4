#include "WindowSystem.h"

#include <QWidget>

#include <objc/message.h>
#include <objc/runtime.h>

namespace quillon {

namespace {

template<typename Result, typename... Arguments>
Result send(id receiver, const char* message, Arguments... arguments)
{
    // objc_msgSend has to be called by the type of the method that it stands for: <objc/message.h>.
    using Method = Result (*)(id, SEL, Arguments...);
    return reinterpret_cast<Method>(objc_msgSend)(receiver, sel_registerName(message), arguments...);
}

} // namespace

bool windowsAreTranslucent()
{
    return true;
}

bool windowsFade()
{
    return true;
}

bool windowsCanBePlaced()
{
    return true;
}

void openAnew(QWidget& /*window*/)
{
}

void keepOutOfWindowLists(QWidget& /*window*/)
{
    // An accessory application's windows are in none.
}

void bringToFront(QWidget& window)
{
    window.setWindowState(window.windowState() & ~Qt::WindowMinimized);
    // NSWindowCollectionBehaviorCanJoinAllSpaces and NSWindowCollectionBehaviorFullScreenAuxiliary: shown beside a
    // full-screen window too.
    constexpr unsigned long canJoinAllSpaces = 1UL << 0;
    constexpr unsigned long fullScreenAuxiliary = 1UL << 8;
    const id view = reinterpret_cast<id>(window.winId());
    send<void>(send<id>(view, "window"), "setCollectionBehavior:", canJoinAllSpaces | fullScreenAuxiliary);
    // Qt's activateWindow() does not bring an accessory application to the front.
    const id application = send<id>(reinterpret_cast<id>(objc_getClass("NSApplication")), "sharedApplication");
    send<void>(application, "activateIgnoringOtherApps:", static_cast<BOOL>(true));
    window.raise();
    window.activateWindow();
}

} // namespace quillon
