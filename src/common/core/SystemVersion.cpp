#include "SystemVersion.h"

#include "DataHelper.h"
#include "LocalizedString.h"
#include "ProcessInfo.h"
#include "TextComparison.h"

#include <compare>

namespace quillon {

bool systemIsAtLeast(QStringView version)
{
    return std::is_gteq(compareNumerically(DataHelper::stringFromSystemVersion(operatingSystemVersion()), version));
}

QString disableTimeMachineInstruction()
{
    return localizedString(systemIsAtLeast(u"13.0") ? "disableTmInstructionVentura" : "disableTmInstruction");
}

} // namespace quillon
