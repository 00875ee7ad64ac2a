// Help, Copy Report: what somebody needs to know who is told of a problem, on the clipboard.
#pragma once

#include <QString>

namespace neb {

// All of it, as settings/ProblemReport writes it. Starts a reader of foreign files of each kind
// that has none yet, to hear how far it is locked; the windows go on painting.
QString ProblemReport();
// Puts it on the clipboard and says so in the status bar.
void CopyReport();

}  // namespace neb
