#pragma once

#include <QString>

namespace quillon {

/// Starts a worker for that destination, in a session of its own and with nothing of this process open, and returns
/// once `status` shows the run; with `block` when the run has ended, with what is to be said about it. Throws Failure
/// when the worker did not begin or, with `block`, when the backup did not complete.
QString startWorker(const QString& destinationId, bool block);

/// Asks the running worker to end and returns once its state tells so. Does nothing where no backup runs or where it is
/// complete but for the good-bye. A verification is ended, too.
void stopWorker(const QString& stateFolder);

} // namespace quillon
