// The part of nebctl check that compares all files of a folder with the list of check sums that
// went along with it.
#pragma once

#include "tools/Findings.h"

namespace neb {

// Dir with closing separator. That there is no list is a finding; one that cannot be understood is
// a Fault.
void CompareWithSums(const QString& Dir, Findings& Found, ToolIO& IO);

}  // namespace neb
