// All that the hostile program knows to do.
#pragma once

#include "support/locked/LockedRoom.h"
#include "support/locked/hostile/HostileTalk.h"

namespace neb {

struct DeedDone {
    std::int64_t Result, Error;
};
// Comes back where the system has let it.
DeedDone Do(LockedRoom& Room, const LockedMessage& Request);
// Bits of Tamper; before there is a room.
std::int64_t TamperWithBirthGifts();

}  // namespace neb
