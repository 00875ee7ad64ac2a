// JPEG 2000 by OpenJPEG: the file format and the bare stream of code. It can leave the finest
// details away while it decodes.
#include <openjpeg.h>

#include <memory>

#include "pictures/decoders/PictureColour.h"
#include "pictures/formats/PictureFaults.h"
#include "pictures/formats/PictureFormats.h"
#include "pictures/formats/PictureOrientation.h"
#include "pictures/formats/TiffTags.h"

namespace neb {
namespace {

// What the library reads from; it counts on its callbacks to know where they are.
struct Reading {
    QByteArrayView Bytes;
    qint64 At = 0;
};

OPJ_SIZE_T ReadOn(void* To, OPJ_SIZE_T Length, void* From) {
    auto& Source = *static_cast<Reading*>(From);
    const qint64 Count =
        std::min<qint64>(static_cast<qint64>(Length), Source.Bytes.size() - Source.At);
    if (Count <= 0) return static_cast<OPJ_SIZE_T>(-1);
    std::memcpy(To, Source.Bytes.data() + Source.At, static_cast<size_t>(Count));
    Source.At += Count;
    return static_cast<OPJ_SIZE_T>(Count);
}

OPJ_BOOL SeekTo(OPJ_OFF_T Place, void* From) {
    auto& Source = *static_cast<Reading*>(From);
    if (Place < 0 || Place > Source.Bytes.size()) return OPJ_FALSE;
    Source.At = Place;
    return OPJ_TRUE;
}

OPJ_OFF_T SkipOn(OPJ_OFF_T Length, void* From) {
    const qint64 At = static_cast<Reading*>(From)->At;
    return SeekTo(At + std::clamp<OPJ_OFF_T>(Length, -At, LargestPictureFile), From) ? Length : -1;
}

// A stream and a codec are both of one type, that of anything.
template <auto Destroy>
struct Destroyed {
    template <class Thing>
    void operator()(Thing* What) const {
        Destroy(What);
    }
};

class Jp2Reader {
  public:
    explicit Jp2Reader(const PictureSource& Source);
    DecodedPicture Decode();

  private:
    void ReadHeader();
    OPJ_UINT32 FinestToLeaveAway() const;
    void ReadPixels();

    const PictureSource& mSource;
    Reading mReading;
    std::unique_ptr<opj_stream_t, Destroyed<opj_stream_destroy>> mStream;
    std::unique_ptr<opj_codec_t, Destroyed<opj_destroy_codec>> mCodec;
    std::unique_ptr<opj_image_t, Destroyed<opj_image_destroy>> mImage;
    QSize mFull;  // as stored
    int mOrientation;
};

Jp2Reader::Jp2Reader(const PictureSource& Source)
    : mSource(Source),
      mReading{Source.Bytes},
      mStream(opj_stream_default_create(OPJ_TRUE)),
      mCodec(opj_create_decompress(ByteView(Source.Bytes).U8(0) == 0xFF ? OPJ_CODEC_J2K
                                                                        : OPJ_CODEC_JP2)),
      mOrientation(OrientationOf(Source.Bytes)) {
    opj_stream_set_user_data(mStream.get(), &mReading, nullptr);
    opj_stream_set_user_data_length(mStream.get(), static_cast<OPJ_UINT64>(Source.Bytes.size()));
    opj_stream_set_read_function(mStream.get(), ReadOn);
    opj_stream_set_skip_function(mStream.get(), SkipOn);
    opj_stream_set_seek_function(mStream.get(), SeekTo);
}

void Jp2Reader::ReadHeader() {
    opj_dparameters_t Parameters;
    opj_set_default_decoder_parameters(&Parameters);
    opj_image_t* Image = nullptr;
    const bool Is = opj_setup_decoder(mCodec.get(), &Parameters) &&
                    opj_read_header(mStream.get(), mCodec.get(), &Image);
    mImage.reset(Image);
    if (!Is && mReading.At >= mSource.Bytes.size()) ThrowEndsEarly();
    if (!Is || !mImage || mImage->numcomps == 0) ThrowDamaged();
    const auto Side = [](OPJ_UINT32 From, OPJ_UINT32 To) {
        return To > From ? static_cast<int>(std::min<OPJ_UINT32>(To - From, 1U << 30)) : 0;
    };
    mFull = {Side(mImage->x0, mImage->x1), Side(mImage->y0, mImage->y1)};
    if (mFull.isEmpty()) ThrowDamaged();
}

// How often the picture may be halved until it would be smaller than needed.
OPJ_UINT32 Jp2Reader::FinestToLeaveAway() const {
    if (!mSource.Needed) return 0;
    const QSize Least = UprightSize(mSource.Needed(UprightSize(mFull, mOrientation)), mOrientation);
    opj_codestream_info_v2_t* Info = opj_get_cstr_info(mCodec.get());
    if (!Info) return 0;
    const OPJ_UINT32 Most = Info->m_default_tile_info.tccp_info
                                ? Info->m_default_tile_info.tccp_info[0].numresolutions
                                : 1;
    opj_destroy_cstr_info(&Info);
    OPJ_UINT32 Halvings = 0;
    while (Halvings + 1 < Most && mFull.width() >> (Halvings + 1) >= Least.width() &&
           mFull.height() >> (Halvings + 1) >= Least.height() && Halvings < 5)
        ++Halvings;
    return Halvings;
}

void Jp2Reader::ReadPixels() {
    if (!opj_decode(mCodec.get(), mStream.get(), mImage.get())) {
        if (mReading.At >= mSource.Bytes.size()) ThrowEndsEarly();
        ThrowDamaged();
    }
    for (OPJ_UINT32 I = 0; I < mImage->numcomps; ++I) {
        const opj_image_comp_t& Each = mImage->comps[I];
        if (!Each.data || !Each.w || !Each.h || !Each.prec || Each.prec > 31) ThrowDamaged();
    }
    // A colour space of its own that nobody uses for photographs, and that is no profile.
    if (mImage->icc_profile_buf && mImage->icc_profile_len == 0) ThrowUnknownPicture();
}

// The samples of one channel as bytes. Channels may have fewer samples than the picture has pixels.
class Channel {
  public:
    Channel(const opj_image_comp_t& Of, QSize Size)
        : mOf(Of),
          mSize(Size),
          mMost((1LL << Of.prec) - 1),
          mLift(Of.sgnd ? 1LL << (Of.prec - 1) : 0) {}
    int At(int X, int Y) const {
        const qint64 Column = qint64(X) * mOf.w / mSize.width(),
                     Row = qint64(Y) * mOf.h / mSize.height();
        const qint64 Value = std::clamp<qint64>(mOf.data[Row * mOf.w + Column] + mLift, 0, mMost);
        return static_cast<int>((Value * 255 + mMost / 2) / mMost);
    }

  private:
    opj_image_comp_t mOf;
    QSize mSize;
    qint64 mMost, mLift;
};

QRgb OfLumaAndChroma(int Y, int Cb, int Cr) {
    const auto Byte = [](double Value) {
        return std::clamp(static_cast<int>(std::lround(Value)), 0, 255);
    };
    return qRgb(Byte(Y + 1.402 * (Cr - 128)),
                Byte(Y - 0.344136 * (Cb - 128) - 0.714136 * (Cr - 128)),
                Byte(Y + 1.772 * (Cb - 128)));
}

// What the channels are.
struct Meaning {
    std::vector<Channel> Colours;
    std::optional<Channel> Alpha;
    bool Mixed = false;  // the colours have alpha in them already
};

Meaning MeaningOf(const opj_image_t& Image, QSize Size) {
    Meaning Is;
    for (OPJ_UINT32 I = 0; I < Image.numcomps; ++I) {
        const opj_image_comp_t& Each = Image.comps[I];
        if (Each.alpha && !Is.Alpha) {
            Is.Alpha.emplace(Each, Size);
            Is.Mixed = Each.alpha == 2;
        } else if (!Each.alpha) {
            Is.Colours.emplace_back(Each, Size);
        }
    }
    // Streams without a word about their channels have them in this order.
    const bool Spare = Is.Colours.size() == 2 || Is.Colours.size() == 4;
    if (Spare && !Is.Alpha && Image.color_space != OPJ_CLRSPC_CMYK) {
        Is.Alpha = Is.Colours.back();
        Is.Colours.pop_back();
    }
    if (Is.Colours.empty()) ThrowDamaged();
    return Is;
}

bool IsLumaAndChroma(const opj_image_t& Image) {
    if (Image.color_space == OPJ_CLRSPC_SYCC || Image.color_space == OPJ_CLRSPC_EYCC) return true;
    return Image.numcomps >= 3 && Image.comps[0].dx == 1 && Image.comps[1].dx == 2;
}

QImage ColoursOf(const Meaning& Is, QSize Size, bool LumaAndChroma) {
    QImage Picture(Size, !Is.Alpha  ? QImage::Format_RGB32
                         : Is.Mixed ? QImage::Format_ARGB32_Premultiplied
                                    : QImage::Format_ARGB32);
    if (Picture.isNull()) ThrowTooLarge(Size);
    const size_t Second = Is.Colours.size() >= 3 ? 1 : 0, Third = Second * 2;
    for (int Y = 0; Y < Size.height(); ++Y) {
        auto* Line = reinterpret_cast<QRgb*>(Picture.scanLine(Y));
        for (int X = 0; X < Size.width(); ++X) {
            const int A = Is.Colours[0].At(X, Y), B = Is.Colours[Second].At(X, Y),
                      C = Is.Colours[Third].At(X, Y);
            const QRgb Colour = LumaAndChroma && Third ? OfLumaAndChroma(A, B, C) : qRgb(A, B, C);
            const auto Opacity = static_cast<QRgb>(Is.Alpha ? Is.Alpha->At(X, Y) : 255);
            Line[X] = (Colour & 0xFFFFFF) | Opacity << 24;
        }
    }
    return Picture;
}

QImage InksOf(const Meaning& Is, QSize Size, const QByteArray& Profile) {
    QImage Picture(Size, QImage::Format_RGB32);
    if (Picture.isNull()) ThrowTooLarge(Size);
    for (int Y = 0; Y < Size.height(); ++Y) {
        uchar* Byte = Picture.scanLine(Y);
        for (int X = 0; X < Size.width(); ++X)
            for (size_t Ink = 0; Ink < 4; ++Ink)
                *Byte++ = static_cast<uchar>(Is.Colours[Ink].At(X, Y));
    }
    InksToScreenColours(Picture, Profile);
    return Picture;
}

QImage PictureOf(const opj_image_t& Image) {
    const QSize Size(static_cast<int>(Image.comps[0].w), static_cast<int>(Image.comps[0].h));
    const QByteArray Profile(reinterpret_cast<const char*>(Image.icc_profile_buf),
                             static_cast<qsizetype>(Image.icc_profile_len));
    const Meaning Is = MeaningOf(Image, Size);
    if (Image.color_space == OPJ_CLRSPC_CMYK && Is.Colours.size() >= 4)
        return InksOf(Is, Size, Profile);
    return ToScreenColours(ColoursOf(Is, Size, IsLumaAndChroma(Image)), Profile);
}

DecodedPicture Jp2Reader::Decode() {
    ReadHeader();
    const OPJ_UINT32 Halvings = FinestToLeaveAway();
    if (Halvings) opj_set_decoded_resolution_factor(mCodec.get(), Halvings);
    // A number of four bytes a sample, then the picture, and once more when it is turned.
    const qint64 Decoded = (PixelCount(mFull) >> (2 * Halvings)) + 1;
    const qint64 APixel = qint64(mImage->numcomps) * 4 + (mOrientation == 1 ? 4 : 8);
    const DecodeBudget Budget(mFull, Decoded * APixel + mSource.Bytes.size() * 2);
    ReadPixels();
    const QImage Picture = PictureOf(*mImage);
    return {Upright(Picture, mOrientation), UprightSize(mFull, mOrientation)};
}

}  // namespace

DecodedPicture DecodeJp2(const PictureSource& Source) {
    return Jp2Reader(Source).Decode();
}

}  // namespace neb
