// Carries out the plan of a transfer: looks for its files, copies them below the destination's
// Temp, brings records and files in together, and tells how far it is. For Transfer alone.
#pragma once

#include "albums/transfer/Transfer.h"
#include "albums/transfer/TransferPlan.h"

namespace neb {

// Leaves the destination as it was unless the result is Done. Throws Fault, as Transfer.h says.
TransferResult CarryOut(TransferPlan Plan, clsDBEngine& DstDB, const TransferDesk& Desk,
                        const QObject* Asker);

}  // namespace neb
