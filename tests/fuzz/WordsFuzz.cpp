// The reader of the texts kept whole beside records under libFuzzer. Built with the sanitizers
// only. Start it with a Words.dat or two as its corpus.
#include <cstdlib>

#include "WordsFuzzEntry.h"

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* Data, size_t Size) {
    const QByteArray Bytes(reinterpret_cast<const char*>(Data), static_cast<qsizetype>(Size));
    if (!neb::fuzz::RunWords(Bytes)) std::abort();
    return 0;
}
