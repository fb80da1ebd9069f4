#include "CoreFoundation_macos.h"
#include "LocalizedString.h"

#include <QString>

namespace quillon {

namespace {

// The application's own setting wins over the global one of the same name.
bool isSwitchedOn(CFStringRef key)
{
    return CFPreferencesGetAppBooleanValue(key, kCFPreferencesCurrentApplication, nullptr);
}

} // namespace

std::string userLocale()
{
    const CFOwned<CFLocaleRef> locale(CFLocaleCopyCurrent());
    std::string identifier = QString::fromCFString(CFLocaleGetIdentifier(locale.get())).toStdString();
    const bool force24 = isSwitchedOn(CFSTR("AppleICUForce24HourTime"));
    if (!force24 && !isSwitchedOn(CFSTR("AppleICUForce12HourTime")))
        return identifier;
    identifier += identifier.find('@') == std::string::npos ? '@' : ';';
    return identifier + (force24 ? "hours=h23" : "hours=h12");
}

} // namespace quillon
