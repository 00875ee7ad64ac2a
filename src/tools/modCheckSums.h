// The part of nebctl check that reads every file: compared with the list of check sums that went
// along with a folder, or with those that the albums of a database keep.
#pragma once

#include "db/clsDBEngine.h"
#include "tools/Findings.h"

namespace neb {

// Dir with closing separator. A list that is not there or cannot be understood is a Fault.
void CompareWithSums(const QString& Dir, Findings& Found, ToolIO& IO);

// The pictures and sounds of a database; what is missing, and what no record names, has been told
// by CheckAlbumFiles. Lists that are not right are put right where nobody else is at work.
void CheckStoredFiles(const clsDBEngine& Engine, Findings& Found, ToolIO& IO);

}  // namespace neb
