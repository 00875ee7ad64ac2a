// The readers of the record files under libFuzzer. Built with the sanitizers only.
#include <cstdlib>

#include "RecordFuzzEntry.h"

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* Data, size_t Size) {
    if (!neb::fuzz::RunRecords(reinterpret_cast<const char*>(Data), Size)) std::abort();
    return 0;
}
