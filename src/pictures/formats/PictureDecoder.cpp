#include "pictures/formats/PictureDecoder.h"

#include <algorithm>

#include "pictures/formats/PictureFaults.h"
#include "pictures/formats/PictureFormats.h"
#include "pictures/formats/PictureSniff.h"

namespace neb {
namespace {

struct FormatRow {
    PictureFormat Format;
    DecodedPicture (*Decode)(const PictureSource&);
    const char* Name;
};

using enum PictureFormat;
constexpr FormatRow Formats[] = {
    {Jpeg, DecodeJpeg, "jpeg"}, {Png, DecodeByQt, "png"},     {Tiff, DecodeTiff, "TIFF"},
    {Psd, DecodePsd, "PSD"},    {Emf, DecodeEmf, "emf"},      {Wmf, DecodeWmf, "wmf"},
    {Gif, DecodeByQt, "gif"},   {Pcd, DecodeByMagick, "PCD"}, {Webp, DecodeByQt, "webp"},
    {Heif, DecodeHeif, "heif"}, {Jp2, DecodeJp2, "jp2"},      {Bmp, DecodeBmp, "bmp"},
    {Pcx, DecodePcx, "PCX"},    {Wbmp, DecodeByQt, "wbmp"},   {Tga, DecodeTga, "TGA"},
};

}  // namespace

DecodedPicture DecodeHere(const QByteArray& Bytes, const NeededSize& Needed) {
    if (Bytes.isEmpty()) ThrowEndsEarly();
    const auto Format = FormatOf(Bytes);
    if (!Format) ThrowUnknownPicture();
    const auto* const Row = std::ranges::find(Formats, *Format, &FormatRow::Format);
    return Row->Decode({Bytes, Row->Name, Needed});
}

}  // namespace neb
