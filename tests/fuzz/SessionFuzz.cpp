// The reader of a session's journal, and the carrying out of its entries, under libFuzzer. Built
// with the sanitizers only.
#include <cstdlib>

#include "JournalFuzzEntry.h"

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* Data, size_t Size) {
    const QByteArray Bytes(reinterpret_cast<const char*>(Data), static_cast<qsizetype>(Size));
    if (!neb::fuzz::RunSession(Bytes)) std::abort();
    return 0;
}
