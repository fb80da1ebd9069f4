#pragma once

#include <QString>
#include <QStringList>

namespace quillon {

struct Folders;

/// `listexclusions`: for people the paths that the user has named; for programs, as XML, the names and the size as
/// well.
void listExclusions(const Folders& folders, bool xml);

/// `listexclusions -a`: also what nobody has named.
void listAllExclusions(const Folders& folders);

/// `isexcluded`. Throws Failure, as all of these do.
void isExcluded(const Folders& folders, const QStringList& paths);

/// `excludename` and `excludelarger`; a trial only says what of the present sources that would leave out.
void excludeNames(const Folders& folders, const QStringList& patterns, bool trial, bool xml);
void excludeLarger(const Folders& folders, const QString& megabytes, bool trial, bool xml);

} // namespace quillon
