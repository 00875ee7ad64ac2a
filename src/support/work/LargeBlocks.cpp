#include "support/work/LargeBlocks.h"

#if defined(__GLIBC__) || defined(__linux__)
#include <malloc.h>
#endif

namespace neb {

void GiveLargeBlocksBack() {
#ifdef M_MMAP_THRESHOLD
    constexpr int Large = 1 << 20;  // bytes
    ::mallopt(M_MMAP_THRESHOLD, Large);
#endif
}

}  // namespace neb
