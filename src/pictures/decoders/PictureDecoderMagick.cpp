// PCD, the finer kinds of TIFF and most PSD by Magick++. No picture may go to the TIFF reader of
// Qt: the complaints of the one TIFF library that both use go to whoever asked for them last, and
// end in a crash.
#include <Magick++.h>

#include "pictures/decoders/PictureColour.h"
#include "pictures/formats/PictureFaults.h"
#include "pictures/formats/PictureFormats.h"
#include "pictures/formats/PictureOrientation.h"
#include "pictures/formats/TiffTags.h"

namespace neb {
namespace {

// The library keeps a pixel in up to ten bytes, and the screen's picture comes on top.
constexpr qint64 BytesAPixel = 14;

void StartLibrary() {
    static const bool Done = [] {
        Magick::InitializeMagick(nullptr);
        using Limits = Magick::ResourceLimits;
        Limits::thread(1);  // pictures are decoded side by side already
        Limits::memory(700U << 20);
        Limits::map(700U << 20);
        Limits::disk(1U << 30);
        return true;
    }();
    Q_UNUSED(Done);
}

// A Photo CD has one picture in several sizes, and a number would pick a small one; elsewhere
// the first of several pictures counts.
void ChooseFirst(Magick::Image& Image, const PictureSource& Source) {
    Image.magick(Source.Format);
    if (qstrcmp(Source.Format, "PCD") == 0) return;
    Image.subImage(0);
    Image.subRange(1);
}

[[noreturn]] void ThrowReason(const Magick::Exception& Reason) {
    if (dynamic_cast<const Magick::ErrorResourceLimit*>(&Reason)) ThrowTooLarge();
    const QString Text = QString::fromLocal8Bit(Reason.what());
    if (Text.contains(QLatin1String("exceeds limit"))) ThrowTooLarge();
    for (const char* Sign : {"EndOfFile", "end-of-file", "UnableToReadImageData", "not enough"})
        if (Text.contains(QLatin1String(Sign), Qt::CaseInsensitive)) ThrowEndsEarly();
    ThrowDamaged();
}

// Warnings are about odd tags and the like, which no one sees, except those that tell of lost
// pixels.
void RethrowIfPixelsAreLost(const Magick::Warning& Warning) {
    if (dynamic_cast<const Magick::WarningCorruptImage*>(&Warning)) ThrowReason(Warning);
}

void ReadImage(Magick::Image& Image, const PictureSource& Source, bool HeaderOnly) {
    ChooseFirst(Image, Source);
    const Magick::Blob Blob(Source.Bytes.constData(), static_cast<size_t>(Source.Bytes.size()));
    try {
        HeaderOnly ? Image.ping(Blob) : Image.read(Blob);
    } catch (const Magick::Warning& Warning) {
        RethrowIfPixelsAreLost(Warning);
    }
}

QSize SizeOf(const Magick::Image& Image) {
    const auto Side = [](size_t Length) {
        return static_cast<int>(std::min<size_t>(Length, 1 << 30));
    };
    return {Side(Image.columns()), Side(Image.rows())};
}

QByteArray ProfileOf(Magick::Image& Image) {
    const Magick::Blob Blob = Image.iccColorProfile();
    return {static_cast<const char*>(Blob.data()), static_cast<qsizetype>(Blob.length())};
}

QImage Fetch(Magick::Image& Image, QImage::Format Format, const char* Order) {
    QImage Picture(SizeOf(Image), Format);
    if (Picture.isNull()) ThrowTooLarge(SizeOf(Image));
    Image.write(0, 0, Image.columns(), Image.rows(), Order, Magick::CharPixel, Picture.bits());
    return Picture;
}

QImage Convert(Magick::Image& Image) {
    const QByteArray Profile = ProfileOf(Image);
    if (Image.colorSpace() == Magick::CMYKColorspace && !Image.matte()) {
        QImage Picture = Fetch(Image, QImage::Format_RGB32, "CMYK");
        InksToScreenColours(Picture, Profile);
        return Picture;
    }
    const auto Space = Image.colorSpace();
    const bool IsRgb = Space == Magick::sRGBColorspace || Space == Magick::RGBColorspace ||
                       Space == Magick::GRAYColorspace;
    if (!IsRgb || Space == Magick::RGBColorspace) Image.colorSpace(Magick::sRGBColorspace);
    const bool Little = Q_BYTE_ORDER == Q_LITTLE_ENDIAN;
    QImage Picture = Fetch(Image, QImage::Format_ARGB32, Little ? "BGRA" : "ARGB");
    if (!Image.matte()) {
        Picture.reinterpretAsFormat(QImage::Format_RGB32);
        MakeOpaque(Picture);  // the library leaves there what it likes
    }
    return ToScreenColours(std::move(Picture), IsRgb ? Profile : QByteArray());
}

int TurnOf(const Magick::Image& Image, const PictureSource& Source) {
    const int Number = Image.orientation();
    return Number > 1 && Number <= 8 ? Number : OrientationOf(Source.Bytes);
}

QSize ReadSize(const PictureSource& Source) {
    Magick::Image Header;
    try {
        ReadImage(Header, Source, true);
    } catch (const Magick::Exception&) {
        CheckIsWhole(Source);  // says more precisely what is wrong
        throw;
    }
    if (SizeOf(Header).isEmpty()) ThrowDamaged();
    return SizeOf(Header);
}

DecodedPicture Decode(const PictureSource& Source) {
    const QSize Size = ReadSize(Source);
    const DecodeBudget Budget(Size, PixelCount(Size) * BytesAPixel + Source.Bytes.size());
    CheckIsWhole(Source);
    auto Image = std::make_unique<Magick::Image>();
    ReadImage(*Image, Source, false);
    if (SizeOf(*Image).isEmpty()) ThrowDamaged();
    const int Orientation = TurnOf(*Image, Source);
    QImage Picture = Convert(*Image);
    Image.reset();
    Picture = Upright(Picture, Orientation);
    const QSize Full = Picture.size();
    return {std::move(Picture), Full};
}

}  // namespace

DecodedPicture DecodeByMagick(const PictureSource& Source) {
    StartLibrary();
    try {
        return Decode(Source);
    } catch (const Magick::Exception& Reason) {
        ThrowReason(Reason);
    }
}

}  // namespace neb
