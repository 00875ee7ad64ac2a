// What a further start of the program sends, under libFuzzer. Built with the sanitizers only.
#include <cstdlib>

#include "program/opening/HandOver.h"
#include "support/files/HostNames.h"

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* Data, size_t Size) {
    const QByteArray Bytes(reinterpret_cast<const char*>(Data), static_cast<qsizetype>(Size));
    const auto What = neb::UnpackHandOver(Bytes);
    if (!What) return 0;
    for (const QString& Path : What->Paths)
        if (!neb::IsWholePath(neb::HostBytes(Path))) std::abort();
    if (neb::UnpackHandOver(neb::PackHandOver(*What).value_or(Bytes)) != What) std::abort();
    return 0;
}
