#include "pictures/FittedJpeg.h"

#include "pictures/ImgX.h"
#include "pictures/PictureFile.h"
#include "pictures/formats/PictureFormats.h"
#include "pictures/formats/TiffTags.h"
#include "pictures/notes/JpegParts.h"
#include "pictures/notes/SaidUpright.h"
#include "pictures/workers/PictureReading.h"

namespace neb {
namespace {

constexpr int SlideSelector = 3;
// What can be shown: the decoders take no more memory than for this.
constexpr qint64 MostKeptPixels = 180'000'000;
// The coefficients stay in memory twice while they change places.
constexpr qint64 MostTurnedPixels = 60'000'000;

bool Fits(QSize Size, const PictureKeeping& Keeping) {
    return FitSize(Size, Keeping.Limit) == Size && PixelCount(Size) <= MostKeptPixels;
}

// Behind the picture there may be another one, or the film of the moment.
QByteArray PictureAlone(const QByteArray& Jpeg, const JpegParts& Parts,
                        const PictureKeeping& Keeping) {
    const QByteArrayView Behind = QByteArrayView(Jpeg).sliced(Parts.End);
    const bool HasMore =
        Behind.contains(QByteArrayView("\xFF\xD8\xFF")) || Behind.contains(QByteArrayView("ftyp"));
    const QByteArray Own = HasMore || !Keeping.KeepsPlace ? Jpeg.left(Parts.End) : Jpeg;
    return Keeping.KeepsPlace ? Own : ThePictureReader().WithoutPlace(Own);
}

// Damage that a reader would meet is met here.
bool IsWhole(const QByteArray& Jpeg, QSize Size) {
    return DecodePicture(Jpeg, [](QSize) { return QSize(1, 1); }).Full == Size;
}

// Nothing where the picture cannot be had so without loss, or is too large for its keeping. Throws
// when the file is damaged.
std::optional<QByteArray> Unharmed(const QByteArray& Jpeg, PictureTurn Turned,
                                   const PictureKeeping& Keeping) {
    const auto Parts = PartsOf(Jpeg);
    if (!Parts || Parts->IsTurnedByXmp()) return std::nullopt;
    const int Orientation = Parts->Orientation();
    const PictureTurn Turn = PictureTurn::ToUpright(Orientation).Then(Turned);
    const QSize Upright = UprightSize(Parts->Stored, Orientation);
    if (!Fits(Turned.Quarters % 2 ? Upright.transposed() : Upright, Keeping)) return std::nullopt;
    if (!IsWhole(Jpeg, Upright)) return std::nullopt;
    const QByteArray Alone = PictureAlone(Jpeg, *Parts, Keeping);
    if (Turn.IsNone()) return Orientation == 1 ? Alone : SaidUpright(Alone);
    if (PixelCount(Upright) > MostTurnedPixels) return std::nullopt;
    const auto Lying = ThePictureReader().Turned(Alone, Turn);
    return Lying ? std::optional(SaidUpright(*Lying)) : std::nullopt;
}

// What the file says beside the pixels.
QByteArray NotesOf(const QByteArray& Source, QSize Pixels, const PictureKeeping& Keeping) {
    const QByteArray Notes = ThePictureReader().NotesFor(Pixels, Source, Keeping.KeepsPlace);
    return AreNotes(Notes) ? Notes : QByteArray();
}

// Source: the file that the picture was read from.
QByteArray WrittenAnew(ImgX Picture, const QByteArray& Source, const PictureKeeping& Keeping) {
    const QSize Size = FitSize(Picture.FullSize(), Keeping.Limit);
    Picture.Resize(Size.width(), Size.height(), SlideSelector);
    Picture.SetJpgQuality(Keeping.Quality());
    const QByteArray Jpeg = WithMore(Picture.ToJpeg(), NotesOf(Source, Size, Keeping));
    NoteOwnJpeg(Jpeg);
    return Jpeg;
}

}  // namespace

QByteArray FittedJpeg(const QString& File, const PictureKeeping& Keeping) {
    return FromPictureFile(File, [&](const QByteArray& Bytes) {
        const bool MayBeKept = Keeping.Limit != SlideLimit;
        if (const auto Kept = MayBeKept ? Unharmed(Bytes, {}, Keeping) : std::nullopt) return *Kept;
        ImgX Picture;
        Picture.TakeAtLeast(Bytes, Keeping.Limit);
        return WrittenAnew(std::move(Picture), Bytes, Keeping);
    });
}

QByteArray FittedJpeg(ImgX Picture, const PictureKeeping& Keeping) {
    const auto Turned = Picture.Turned();
    const auto Kept = Turned ? Unharmed(Picture.Source(), *Turned, Keeping) : std::nullopt;
    if (Kept) return *Kept;
    const QByteArray Source = Picture.Source();
    return WrittenAnew(std::move(Picture), Source, Keeping);
}

}  // namespace neb
