// Work on eight or sixteen pixels at a time by hand, for the few loops in which no compiler finds
// the way by itself: asked for where the machine has such vectors, with plain loops of equal bits
// beside it. NEB_NARROW: as on a machine that has none, for the tests.
#pragma once

#if defined(__x86_64__) && defined(__GNUC__) && !defined(NEB_NARROW)
#define NEB_EIGHT_AT_A_TIME
#define NEB_AVX2 __attribute__((target("avx2")))
#define NEB_AVX512 __attribute__((target("avx512f,avx512bw")))
#include <immintrin.h>

namespace neb::effects {

inline bool HasWideVectors() {
    static const bool Has = __builtin_cpu_supports("avx2");
    return Has;
}

// Twice as wide: sixteen pixels at a time.
inline bool HasWidestVectors() {
    static const bool Has = __builtin_cpu_supports("avx512f") && __builtin_cpu_supports("avx512bw");
    return Has;
}

}  // namespace neb::effects
#endif
