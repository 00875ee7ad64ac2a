// HEIC and AVIF by libheif: it turns, mirrors and cuts as the file says, puts tiles together and
// knows the size before it decodes.
#include <libheif/heif.h>

#include <memory>

#include "pictures/decoders/CodedColours.h"
#include "pictures/decoders/PictureColour.h"
#include "pictures/formats/FileBlocks.h"
#include "pictures/formats/PictureFaults.h"
#include "pictures/formats/PictureFormats.h"

namespace neb {
namespace {

// The coder's planes of up to two bytes, the same turned, then three or four bytes, then ours.
constexpr qint64 BytesAPixel = 14;

template <auto Free>
struct Freed {
    template <class Thing>
    void operator()(Thing* What) const {
        Free(What);
    }
};
using Context = std::unique_ptr<heif_context, Freed<heif_context_free>>;
using Handle = std::unique_ptr<heif_image_handle, Freed<heif_image_handle_release>>;
using Pixels = std::unique_ptr<heif_image, Freed<heif_image_release>>;
using Options = std::unique_ptr<heif_decoding_options, Freed<heif_decoding_options_free>>;
using Nclx = std::unique_ptr<heif_color_profile_nclx, Freed<heif_nclx_color_profile_free>>;

void Check(const heif_error& Error) {
    if (Error.code == heif_error_Ok) return;
    const bool Large = Error.subcode == heif_suberror_Security_limit_exceeded ||
                       Error.code == heif_error_Memory_allocation_error;
    if (Large) ThrowTooLarge();
    if (Error.subcode == heif_suberror_End_of_data) ThrowEndsEarly();
    if (Error.code == heif_error_Unsupported_feature ||
        Error.code == heif_error_Unsupported_filetype)
        ThrowUnknownPicture();
    ThrowDamaged(QString::fromUtf8(Error.message));
}

Context Open(const QByteArray& Bytes) {
    Context File(heif_context_alloc());
    if (!File) ThrowTooLarge();
    heif_context_set_maximum_image_size_limit(File.get(), LongestSide);
    heif_context_set_max_decoding_threads(File.get(), 0);  // decoded side by side already
    Check(heif_context_read_from_memory_without_copy(File.get(), Bytes.constData(),
                                                     static_cast<size_t>(Bytes.size()), nullptr));
    return File;
}

Handle FirstPicture(const Context& File) {
    heif_image_handle* First = nullptr;
    Check(heif_context_get_primary_image_handle(File.get(), &First));
    return Handle(First);
}

QByteArray CodedProfile(const Handle& Picture) {
    heif_color_profile_nclx* Found = nullptr;
    const heif_error Error = heif_image_handle_get_nclx_color_profile(Picture.get(), &Found);
    const Nclx Codes(Found);
    if (Error.code != heif_error_Ok || !Codes) return {};
    const auto& C = *Codes;
    return ProfileOf({C.transfer_characteristics,
                      {C.color_primary_white_x, C.color_primary_white_y},
                      {C.color_primary_red_x, C.color_primary_red_y},
                      {C.color_primary_green_x, C.color_primary_green_y},
                      {C.color_primary_blue_x, C.color_primary_blue_y}});
}

QByteArray ProfileOf(const Handle& Picture) {
    const size_t Length = heif_image_handle_get_raw_color_profile_size(Picture.get());
    if (Length == 0) return CodedProfile(Picture);
    QByteArray Profile(static_cast<qsizetype>(Length), '\0');
    const auto Error = heif_image_handle_get_raw_color_profile(Picture.get(), Profile.data());
    return Error.code == heif_error_Ok ? Profile : QByteArray();
}

Pixels Decode(const Handle& Picture, bool Alpha) {
    const Options How(heif_decoding_options_alloc());
    How->convert_hdr_to_8bit = 1;
    heif_image* Decoded = nullptr;
    Check(heif_decode_image(Picture.get(), &Decoded, heif_colorspace_RGB,
                            Alpha ? heif_chroma_interleaved_RGBA : heif_chroma_interleaved_RGB,
                            How.get()));
    return Pixels(Decoded);
}

QImage Fetch(const Handle& Picture) {
    const bool Alpha = heif_image_handle_has_alpha_channel(Picture.get());
    const bool Mixed = Alpha && heif_image_handle_is_premultiplied_alpha(Picture.get());
    const Pixels Decoded = Decode(Picture, Alpha);
    int Stride = 0;
    const uchar* Plane =
        heif_image_get_plane_readonly(Decoded.get(), heif_channel_interleaved, &Stride);
    const QSize Size(heif_image_get_width(Decoded.get(), heif_channel_interleaved),
                     heif_image_get_height(Decoded.get(), heif_channel_interleaved));
    if (!Plane || Size.isEmpty()) ThrowDamaged();
    const auto Format = Mixed   ? QImage::Format_RGBA8888_Premultiplied
                        : Alpha ? QImage::Format_RGBA8888
                                : QImage::Format_RGB888;
    const QImage Borrowed(Plane, Size.width(), Size.height(), Stride, Format);
    return Borrowed.convertToFormat(Alpha ? QImage::Format_ARGB32 : QImage::Format_RGB32);
}

DecodedPicture DecodeFirst(const PictureSource& Source) {
    const Context File = Open(Source.Bytes);
    const Handle First = FirstPicture(File);
    const QSize Size(heif_image_handle_get_width(First.get()),
                     heif_image_handle_get_height(First.get()));
    if (Size.isEmpty()) ThrowDamaged();
    const DecodeBudget Budget(Size, PixelCount(Size) * BytesAPixel + Source.Bytes.size());
    QImage Picture = ToScreenColours(Fetch(First), ProfileOf(First));
    const QSize Full = Picture.size();
    return {std::move(Picture), Full};
}

}  // namespace

DecodedPicture DecodeHeif(const PictureSource& Source) try {
    return DecodeFirst(Source);
} catch (const Fault&) {
    if (!BoxesAreWhole(Source.Bytes)) ThrowEndsEarly();  // the library has other words for it
    throw;
}

}  // namespace neb
