#include "CoreFoundation_macos.h"
#include "HostSystem.h"

#include <QStandardPaths>
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

QString systemTmutilPath()
{
    return u"/usr/bin/tmutil"_s;
}

QString ledgerFile()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) + "/Quillon/ledger.sqlite"_L1;
}

bool systemWatchesOverBackups()
{
    return true;
}

QString startFailureReason(std::int32_t /*exitStatus*/)
{
    return {};
}

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
