#include "CoreFoundation_macos.h"
#include "Services.h"

#include <ServiceManagement/ServiceManagement.h>

namespace quillon {

namespace {

/// The companion bundle in Contents/Library/LoginItems of the application.
class CompanionLoginItem final : public LoginItem {
public:
    explicit CompanionLoginItem(const QString& identifier)
        : identifier_(identifier.toCFString())
    {
    }

    bool setEnabled(bool enabled) override
    {
        // Its successor since version 13, SMAppService, exists in Objective-C only.
#pragma clang diagnostic push
#pragma clang diagnostic ignored "-Wdeprecated-declarations"
        return SMLoginItemSetEnabled(identifier_.get(), enabled);
#pragma clang diagnostic pop
    }

private:
    const CFOwned<CFStringRef> identifier_;
};

} // namespace

std::unique_ptr<LoginItem> makeLoginItem(const LoginProgram& program)
{
    return std::make_unique<CompanionLoginItem>(program.companion);
}

} // namespace quillon
