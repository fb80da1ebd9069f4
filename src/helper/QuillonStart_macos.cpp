#include "QuillonStart.h"

#include <QString>

#include <CoreFoundation/CoreFoundation.h>
#include <CoreServices/CoreServices.h>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

/// The application around this program's bundle, which lies in its Contents/Library/LoginItems. The caller releases it.
CFURLRef copyEnclosingApplication()
{
    constexpr int levelsUp = 4;
    CFURLRef place = CFBundleCopyBundleURL(CFBundleGetMainBundle());
    for (int level = 0; place && level < levelsUp; ++level) {
        CFURLRef parent = CFURLCreateCopyDeletingLastPathComponent(kCFAllocatorDefault, place);
        CFRelease(place);
        place = parent;
    }
    return place;
}

} // namespace

bool startQuillon(QString* error)
{
    CFURLRef application = copyEnclosingApplication();
    const OSStatus status = application ? LSOpenCFURLRef(application, nullptr) : kLSApplicationNotFoundErr;
    if (application)
        CFRelease(application);
    if (status == noErr)
        return true;
    *error = u"cannot start Quillon: error %1 of Launch Services"_s.arg(status);
    return false;
}

} // namespace quillon
