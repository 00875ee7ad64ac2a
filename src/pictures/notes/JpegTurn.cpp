#include "pictures/notes/JpegTurn.h"

#include <turbojpeg.h>

#include <memory>

namespace neb {
namespace {

constexpr TJXOP Turns[] = {TJXOP_NONE, TJXOP_ROT90, TJXOP_ROT180, TJXOP_ROT270};
constexpr TJXOP MirroredTurns[] = {TJXOP_HFLIP, TJXOP_TRANSVERSE, TJXOP_VFLIP, TJXOP_TRANSPOSE};

struct Closed {
    void operator()(void* Handle) const { tjDestroy(Handle); }
};
struct Freed {
    void operator()(uchar* Bytes) const { tjFree(Bytes); }
};

}  // namespace

std::optional<QByteArray> TurnedJpeg(const QByteArray& Jpeg, PictureTurn Turn) {
    const std::unique_ptr<void, Closed> Library(tjInitTransform());
    if (!Library) return std::nullopt;
    tjtransform How = {};
    How.op = Turn.Mirrored ? MirroredTurns[Turn.Quarters] : Turns[Turn.Quarters];
    How.options = TJXOPT_PERFECT;
    uchar* Bytes = nullptr;
    unsigned long Length = 0;
    const int Result =
        tjTransform(Library.get(), reinterpret_cast<const uchar*>(Jpeg.constData()),
                    static_cast<unsigned long>(Jpeg.size()), 1, &Bytes, &Length, &How, 0);
    const std::unique_ptr<uchar, Freed> Held(Bytes);
    if (Result != 0 || !Bytes) return std::nullopt;
    return QByteArray(reinterpret_cast<const char*>(Bytes), static_cast<qsizetype>(Length));
}

}  // namespace neb
