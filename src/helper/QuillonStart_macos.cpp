#include "CoreFoundation_macos.h"
#include "QuillonStart.h"

#include <QString>

#include <CoreServices/CoreServices.h>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

/// The application around this program's bundle, which lies in its Contents/Library/LoginItems.
CFOwned<CFURLRef> enclosingApplication()
{
    constexpr int levelsUp = 4;
    CFOwned<CFURLRef> place(CFBundleCopyBundleURL(CFBundleGetMainBundle()));
    for (int level = 0; place && level < levelsUp; ++level)
        place.reset(CFURLCreateCopyDeletingLastPathComponent(nullptr, place.get()));
    return place;
}

} // namespace

bool startQuillon(QString* error)
{
    const CFOwned<CFURLRef> application = enclosingApplication();
    const OSStatus status = application ? LSOpenCFURLRef(application.get(), nullptr) : kLSApplicationNotFoundErr;
    if (status == noErr)
        return true;
    *error = u"cannot start Quillon: error %1 of Launch Services"_s.arg(status);
    return false;
}

} // namespace quillon
