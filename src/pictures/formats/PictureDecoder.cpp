#include "pictures/formats/PictureDecoder.h"

#include <QSemaphore>

#include "pictures/formats/PictureFaults.h"
#include "pictures/formats/PictureFormats.h"
#include "support/MediaTypes.h"

namespace neb {
namespace {

struct FormatRow {
    bool (*LooksLike)(const ByteView&);
    DecodedPicture (*Decode)(const PictureSource&);
    const char* Name;
    bool Extra;
};

// The formats with the surest marks stand first, those with hardly any last.
constexpr FormatRow Formats[] = {
    {LooksLikeJpeg, DecodeJpeg, "jpeg", false},   {LooksLikePng, DecodeByQt, "png", false},
    {LooksLikeTiff, DecodeTiff, "TIFF", false},   {LooksLikePsd, DecodePsd, "PSD", false},
    {LooksLikeEmf, DecodeEmf, "emf", false},      {LooksLikeWmf, DecodeWmf, "wmf", false},
    {LooksLikePcd, DecodeByMagick, "PCD", false}, {LooksLikeGif, DecodeByQt, "gif", true},
    {LooksLikeWebp, DecodeByQt, "webp", true},    {LooksLikeHeic, DecodeHeif, "heif", true},
    {LooksLikeJp2, DecodeJp2, "jp2", true},       {LooksLikeBmp, DecodeBmp, "bmp", false},
    {LooksLikePcx, DecodePcx, "PCX", false},      {LooksLikeWbmp, DecodeByQt, "wbmp", false},
    {LooksLikeTga, DecodeTga, "TGA", false},
};

const FormatRow* FindFormat(const ByteView& Bytes) {
    for (const FormatRow& Row : Formats)
        if ((!Row.Extra || ExtraFormatsAreOn()) && Row.LooksLike(Bytes)) return &Row;
    return nullptr;
}

constexpr qint64 ShareBytes = 1 << 20;
constexpr int BudgetShares = 820;

QSemaphore& FreeShares() {
    static QSemaphore Shares(BudgetShares);
    return Shares;
}

}  // namespace

DecodeBudget::DecodeBudget(QSize Size, qint64 Bytes)
    : mShare(static_cast<int>(std::min<qint64>(Bytes / ShareBytes, BudgetShares) + 1)) {
    if (Size.width() > LongestSide || Size.height() > LongestSide || mShare > BudgetShares)
        ThrowTooLarge(Size);
    FreeShares().acquire(mShare);
}

DecodeBudget::~DecodeBudget() {
    FreeShares().release(mShare);
}

bool LooksLikePicture(const QByteArray& Head) {
    return FindFormat(Head) != nullptr;
}

DecodedPicture DecodePicture(const QByteArray& Bytes, const NeededSize& Needed) {
    if (Bytes.isEmpty()) ThrowEndsEarly();
    const FormatRow* Row = FindFormat(Bytes);
    if (!Row) ThrowUnknownPicture();
    return Row->Decode({Bytes, Row->Name, Needed});
}

}  // namespace neb
