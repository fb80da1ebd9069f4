#include "Diagnosis.h"

#include <algorithm>

namespace quillon {

using namespace Qt::StringLiterals;

QStringList problems(const Diagnosis& diagnosis)
{
    QStringList found;
    const auto note = [&found](bool isWrong, const QString& sentence) {
        if (isWrong)
            found.append(sentence);
    };
    const QString& status = diagnosis.status.trouble;
    const QString& destinations = diagnosis.destinations.trouble;
    note(!status.isEmpty(), u"What Time Machine does cannot be told: %1."_s.arg(status));
    note(!destinations.isEmpty(), u"The backup disks cannot be told: %1."_s.arg(destinations));
    const bool hasDisk = std::any_of(diagnosis.disks.begin(), diagnosis.disks.end(),
                                     [](const auto& disk) { return disk.isSetUp == true; });
    note(destinations.isEmpty() && !hasDisk, u"No backup disk is set up."_s);
    note(diagnosis.scheduleIsOn && diagnosis.rules.isEmpty(), u"The schedule is on but has no rules."_s);
    note(diagnosis.lastRunFailed, u"The last backup failed."_s);
    note(diagnosis.lastFailure.has_value(), u"Time Machine remembers a backup that went wrong."_s);
    return found;
}

} // namespace quillon
