#include "pictures/notes/JpegTurn.h"

#include <turbojpeg.h>

#include <algorithm>
#include <memory>

#include "pictures/formats/PictureFormats.h"
#include "support/Fault.h"

namespace neb {
namespace {

constexpr TJXOP Turns[] = {TJXOP_NONE, TJXOP_ROT90, TJXOP_ROT180, TJXOP_ROT270};
constexpr TJXOP MirroredTurns[] = {TJXOP_HFLIP, TJXOP_TRANSVERSE, TJXOP_VFLIP, TJXOP_TRANSPOSE};

struct Closed {
    void operator()(void* Handle) const { tjDestroy(Handle); }
};
struct FreedJpeg {
    void operator()(uchar* Bytes) const { tjFree(Bytes); }
};

using Handle = std::unique_ptr<void, Closed>;

// The coefficients of the whole picture, before and after, in two bytes each, and a third more for
// a fourth ink; never so much that a picture which can be seen cannot be turned.
std::unique_ptr<DecodeBudget> BudgetFor(const Handle& Library, const QByteArray& Jpeg) {
    constexpr qint64 ACoefficient = 6, Most = 800LL << 20;
    int Width = 0, Height = 0, Colours = 0, Space = 0;
    tjDecompressHeader3(Library.get(), reinterpret_cast<const uchar*>(Jpeg.constData()),
                        static_cast<unsigned long>(Jpeg.size()), &Width, &Height, &Colours, &Space);
    if (Width <= 0 || Height <= 0 || Colours < 0) return nullptr;
    const auto Coefficients = static_cast<qint64>(tjBufSizeYUV2(Width, 4, Height, Colours));
    return std::make_unique<DecodeBudget>(QSize(Width, Height),
                                          std::min(Coefficients * ACoefficient, Most));
}

std::optional<QByteArray> TurnedBy(const Handle& Library, const QByteArray& Jpeg,
                                   PictureTurn Turn) {
    tjtransform How = {};
    How.op = Turn.Mirrored ? MirroredTurns[Turn.Quarters] : Turns[Turn.Quarters];
    How.options = TJXOPT_PERFECT;
    uchar* Bytes = nullptr;
    unsigned long Length = 0;
    const int Result =
        tjTransform(Library.get(), reinterpret_cast<const uchar*>(Jpeg.constData()),
                    static_cast<unsigned long>(Jpeg.size()), 1, &Bytes, &Length, &How, 0);
    const std::unique_ptr<uchar, FreedJpeg> Held(Bytes);
    if (Result != 0 || !Bytes) return std::nullopt;
    return QByteArray(reinterpret_cast<const char*>(Bytes), static_cast<qsizetype>(Length));
}

}  // namespace

std::optional<QByteArray> TurnedJpeg(const QByteArray& Jpeg, PictureTurn Turn) try {
    const Handle Library(tjInitTransform());
    if (!Library) return std::nullopt;
    const auto Budget = BudgetFor(Library, Jpeg);
    return TurnedBy(Library, Jpeg, Turn);
} catch (const Fault&) {
    return std::nullopt;  // there are other ways to turn it
}

}  // namespace neb
