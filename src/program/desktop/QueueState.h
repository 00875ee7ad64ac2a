// How the print service says that a printer is: what the toolkit does not tell of it. Used by
// DesktopPrinters.
#pragma once

#include <QString>

namespace neb {

struct QueueState {
    bool IsThere = false;    // the service knows it, and answers
    bool TakesJobs = false;  // it accepts them, and is not stopped
    bool PaperOut = false;
};

// Asks the service, which may take a moment; on any thread.
QueueState StateOfQueue(const QString& Device);

// What became of a job that this thread has just handed over: whether the service has taken it.
bool JobWasTaken();
// Jobs of this thread reach no service from now on. For a job that was stopped half way: the
// toolkit hands over whatever has been painted when its painter ends.
void KeepJobsBack();

}  // namespace neb
