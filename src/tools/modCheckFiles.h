// The part of nebctl check that compares the pictures and sounds on the disk with the records.
#pragma once

#include "db/clsDBEngine.h"
#include "tools/Findings.h"

namespace neb {

void CheckAlbumFiles(const clsDBEngine& Engine, Findings& Found, ProgressLine& Progress);

}  // namespace neb
