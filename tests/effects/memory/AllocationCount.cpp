#include "effects/memory/AllocationCount.h"

#include <cstdlib>

#if defined(__has_feature)
#if __has_feature(address_sanitizer)
#define NEB_OWN_ALLOCATOR
#endif
#endif

#if defined(__GLIBC__) && !defined(__SANITIZE_ADDRESS__) && !defined(NEB_OWN_ALLOCATOR)
#define NEB_COUNTS_ALLOCATIONS

namespace {
thread_local int Allocations = 0;
}  // namespace

// The C library's own, behind counters; operator new ends here as well.
extern "C" {
void* __libc_malloc(std::size_t Size);
void* __libc_calloc(std::size_t Count, std::size_t Size);
void* __libc_realloc(void* Room, std::size_t Size);
void* __libc_memalign(std::size_t Alignment, std::size_t Size);

void* malloc(std::size_t Size) {
    ++Allocations;
    return __libc_malloc(Size);
}
void* calloc(std::size_t Count, std::size_t Size) {
    ++Allocations;
    return __libc_calloc(Count, Size);
}
void* realloc(void* Room, std::size_t Size) {
    ++Allocations;
    return __libc_realloc(Room, Size);
}
void* aligned_alloc(std::size_t Alignment, std::size_t Size) {
    ++Allocations;
    return __libc_memalign(Alignment, Size);
}
int posix_memalign(void** Room, std::size_t Alignment, std::size_t Size) {
    ++Allocations;
    *Room = __libc_memalign(Alignment, Size);
    return *Room ? 0 : 12;
}
}
#endif

namespace neb::effectstest {

#ifdef NEB_COUNTS_ALLOCATIONS
bool CountsAllocations() {
    return true;
}
int AllocationsOfThisThread() {
    return Allocations;
}
#else
bool CountsAllocations() {
    return false;
}
int AllocationsOfThisThread() {
    return 0;
}
#endif

}  // namespace neb::effectstest
