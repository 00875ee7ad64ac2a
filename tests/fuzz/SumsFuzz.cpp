// The reader of the albums' lists of check sums under libFuzzer. Built with the sanitizers only.
// Start it with a Sums.sha256 of an album as its corpus.
#include <cstdlib>

#include "SumsFuzzEntry.h"

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* Data, size_t Size) {
    const QByteArray Bytes(reinterpret_cast<const char*>(Data), static_cast<qsizetype>(Size));
    if (!neb::fuzz::RunSums(Bytes)) std::abort();
    return 0;
}
