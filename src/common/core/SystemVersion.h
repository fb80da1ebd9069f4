#pragma once

#include <QString>
#include <QStringView>

namespace quillon {

/// Version of the system that runs this program, such as "14.2.1".
QString systemVersion();

/// Whether the system that runs this program has this version or a later one, compared number by number: "13.10" is
/// later than "13.9".
bool systemIsAtLeast(QStringView version);

/// How to switch Time Machine's own automatic backups off, in the words of this system's settings.
QString disableTimeMachineInstruction();

} // namespace quillon
