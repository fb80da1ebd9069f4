#include "LoginItem.h"
#include "LoginItemFactory.h"

#include <CoreFoundation/CoreFoundation.h>
#include <ServiceManagement/ServiceManagement.h>

namespace quillon {

namespace {

/// The companion bundle in Contents/Library/LoginItems of the application.
class CompanionLoginItem final : public LoginItem {
public:
    bool setEnabled(bool enabled) override
    {
        // Its successor since version 13, SMAppService, exists in Objective-C only.
#pragma clang diagnostic push
#pragma clang diagnostic ignored "-Wdeprecated-declarations"
        return SMLoginItemSetEnabled(CFSTR("com.Orvane.QuillonHelper"), enabled);
#pragma clang diagnostic pop
    }
};

} // namespace

std::unique_ptr<LoginItem> makeLoginItem(const QString&)
{
    return std::make_unique<CompanionLoginItem>();
}

} // namespace quillon
