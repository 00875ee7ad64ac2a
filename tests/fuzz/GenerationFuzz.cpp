// The reader of generation files under libFuzzer. Built with the sanitizers only. Start it with
// files of a Backups folder as its corpus, small ones.
#include <cstdlib>

#include "GenerationFuzzEntry.h"

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* Data, size_t Size) {
    const QByteArray Bytes(reinterpret_cast<const char*>(Data), static_cast<qsizetype>(Size));
    if (!neb::fuzz::RunGeneration(Bytes)) std::abort();
    return 0;
}
