// The reader of ".ppd" files under libFuzzer. Built with the sanitizers only. Start it with files
// that the program has saved as its corpus, small ones.
#include <cstdlib>

#include "PpdFuzzEntry.h"

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* Data, size_t Size) {
    static const neb::ScratchDir Folder;
    const QByteArray File(reinterpret_cast<const char*>(Data), static_cast<qsizetype>(Size));
    if (!neb::fuzz::RunPpd(File, Folder.Path())) std::abort();
    return 0;
}
