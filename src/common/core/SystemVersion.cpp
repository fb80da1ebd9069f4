#include "SystemVersion.h"

#include "DataHelper.h"
#include "LocalizedString.h"
#include "ProcessInfo.h"
#include "TextComparison.h"

#include <compare>

namespace quillon {

QString systemVersion()
{
    return DataHelper::stringFromSystemVersion(operatingSystemVersion());
}

bool systemIsAtLeast(QStringView version)
{
    return std::is_gteq(compareNumerically(systemVersion(), version));
}

QString disableTimeMachineInstruction()
{
    return localizedString(systemIsAtLeast(u"13.0") ? "disableTmInstructionVentura" : "disableTmInstruction");
}

} // namespace quillon
