#pragma once

#include <QMap>
#include <QString>
#include <QUrl>

#include <memory>

namespace quillon {

class RunLoop;
class Workspace;

/// Programs, by their paths, that open addresses for which a desktop has none.
using OwnPrograms = QMap<QUrl, QString>;

/// The workspace of the session that the program runs in; the run loop must outlive it. macOS has a program for every
/// address and needs none of ours.
std::unique_ptr<Workspace> makeWorkspace(RunLoop& runLoop, const OwnPrograms& ownPrograms);

} // namespace quillon
