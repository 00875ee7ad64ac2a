// The picture files under libFuzzer, read to the last pixel. Built with the sanitizers only. Start
// it with tests/data/pictures as its corpus.
#include <cstdlib>

#include "pictures/formats/PictureDecoder.h"
#include "support/Fault.h"

namespace {

// Every pixel is touched, so that one which nobody wrote is seen by the sanitizers that look for
// it.
bool IsWhole(const neb::DecodedPicture& Result) {
    quint32 Together = 0xFF;
    for (int Y = 0; Y < Result.Picture.height(); ++Y) {
        const auto* Line = reinterpret_cast<const QRgb*>(Result.Picture.constScanLine(Y));
        for (int X = 0; X < Result.Picture.width(); ++X) Together &= Line[X] >> 24;
    }
    return Together == 0xFF && Result.Picture.format() == QImage::Format_RGB32 &&
           !Result.Full.isEmpty();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* Data, size_t Size) {
    try {
        const QByteArray Bytes(reinterpret_cast<const char*>(Data), static_cast<qsizetype>(Size));
        if (!IsWhole(neb::DecodePicture(Bytes))) std::abort();
    } catch (const neb::Fault&) {
        return 0;  // what is no picture is refused
    }
    return 0;
}
