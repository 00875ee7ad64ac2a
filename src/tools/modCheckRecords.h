// The part of nebctl check that looks at the record files alone: tails, keys, owners, counters.
#pragma once

#include "db/records/RecordSource.h"
#include "tools/Findings.h"

namespace neb {

void CheckRecords(const RecordSource& Source, Findings& Found);

}  // namespace neb
