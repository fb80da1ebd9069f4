#include "FileUserDefaults.h"
#include "UserDefaultsStore.h"

#include <QStandardPaths>

namespace quillon {

using namespace Qt::StringLiterals;

std::unique_ptr<UserDefaults> openUserDefaults(DefaultsAccess access, RunLoop& runLoop)
{
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation);
    return std::make_unique<FileUserDefaults>(folder + "/com.Orvane.Quillon.plist"_L1, access, runLoop);
}

} // namespace quillon
