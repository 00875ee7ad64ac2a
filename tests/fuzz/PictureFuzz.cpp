// The decoders of pictures under libFuzzer, as the program calls them; enhanced metafiles, for
// which another program is started, are left out. Built with the sanitizers only. Start it with
// tests/data/today or tests/data/pictures as its corpus, and with -detect_leaks=0: the library of
// fonts keeps what it has.
#include <QGuiApplication>
#include <cstdlib>

#include "pictures/formats/PictureDecoder.h"
#include "pictures/formats/PictureFormats.h"
#include "support/Fault.h"

namespace {

bool StartsAnotherProgram(const QByteArray& File) {
    return neb::LooksLikeEmf(File) || (neb::LooksLikeWmf(File) && File.contains("WMFC"));
}

}  // namespace

// Letters in metafiles want fonts.
extern "C" int LLVMFuzzerInitialize(int* Count, char*** Words) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    static QGuiApplication App(*Count, *Words);
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* Data, size_t Size) {
    const QByteArray File(reinterpret_cast<const char*>(Data), static_cast<qsizetype>(Size));
    if (StartsAnotherProgram(File)) return 0;
    try {
        const auto Half = [](QSize Full) { return Full / 2; };
        const neb::DecodedPicture Decoded = neb::DecodeHere(File, Half);
        if (Decoded.Picture.isNull() || Decoded.Full.isEmpty() ||
            Decoded.Picture.format() != QImage::Format_RGB32)
            std::abort();
    } catch (const neb::Fault&) {
        return 0;  // what is no picture is refused
    }
    return 0;
}
