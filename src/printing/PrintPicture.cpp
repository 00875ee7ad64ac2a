#include "printing/PrintPicture.h"

#include "pictures/ImgX.h"
#include "pictures/formats/ByteView.h"
#include "pictures/formats/PictureFaults.h"
#include "pictures/formats/TiffTags.h"
#include "pictures/notes/JpegMarks.h"
#include "pictures/notes/JpegParts.h"
#include "pictures/workers/PictureReading.h"
#include "support/files/modHostFiles.h"

namespace neb {
namespace {

using namespace jpeg;

// Profiles may come in several parts; one of sRGB never does.
bool IsScreenProfile(QByteArrayView Segment) {
    constexpr qsizetype Before = 14;  // the name, and which part it is of how many
    if (Segment.size() <= Before || Segment[Before - 1] != 1) return false;
    return ThePictureReader().IsScreenProfile(Segment.sliced(Before).toByteArray());
}

// Walks over the markers of a JPEG to its end, and gathers what is in its way into a PDF.
class JpegWalk {
  public:
    explicit JpegWalk(const QByteArray& Bytes) : mBytes(Bytes) {}

    std::optional<PlainJpeg> Run() {
        if (!mBytes.Is(0, QByteArrayView("\xFF\xD8", 2))) return std::nullopt;
        for (mAt = 2; mIsPlain && !mEnded;) Step();
        const bool Sound = mIsPlain && mScans > 0 && !mFound.Stored.isEmpty();
        return Sound ? std::optional(mFound) : std::nullopt;
    }

  private:
    void Step() {
        const auto Marker = NextMarker();
        if (!Marker || *Marker == EndOfImage) {
            mIsPlain &= Marker.has_value();
            mEnded = true;
            return;
        }
        const int Length = mBytes.U16(mAt, true);
        mIsPlain &= Length >= 2 && mBytes.Has(mAt, Length);
        if (!mIsPlain) return;
        TakeSegment(*Marker, mBytes.Part(mAt + 2, Length - 2));
        mAt += Length;
        if (*Marker == StartOfScan) PassScan();
    }
    // The marker at this place, which is then behind it; markers may be filled up before them.
    std::optional<int> NextMarker() {
        if (mBytes.U8(mAt) != 0xFF) return std::nullopt;
        while (mBytes.U8(mAt) == 0xFF) ++mAt;
        return mBytes.Has(mAt, 1) ? std::optional<int>(mBytes.U8(mAt++)) : std::nullopt;
    }
    void TakeSegment(int Marker, QByteArrayView Segment) {
        if (Marker == StartOfScan) ++mScans;
        if (Marker == Exif && Segment.startsWith(QByteArrayView("Exif\0\0", 6)) && !mHasExif)
            TakeExif(Segment.sliced(6));
        if (Marker == Profile && Segment.startsWith(QByteArrayView("ICC_PROFILE\0", 12)))
            mIsPlain &= IsScreenProfile(Segment);
        mTellsColours |= Marker == Jfif && Segment.startsWith("JFIF");
        mTellsColours |= Marker == Adobe && Segment.startsWith("Adobe");
        if (IsFrame(Marker)) TakeFrame(Marker, Segment);
    }
    void TakeExif(QByteArrayView Segment) {
        const TiffTags Tags(Segment);
        mHasExif = true;
        mFound.Orientation = Tags.Orientation();
        mIsPlain &= !Tags.IsAdobeRgb();
    }
    void TakeFrame(int Marker, const ByteView& Segment) {
        const int Colours = Segment.U8(5);
        mIsPlain &=
            Marker <= LastPlainFrame && Segment.U8(0) == 8 && (Colours == 1 || Colours == 3);
        // the names alone say that these are no brightness and two differences: not every reader
        // looks at them
        const bool ByName = Segment.U8(6) == 'R' && Segment.U8(9) == 'G' && Segment.U8(12) == 'B';
        mIsPlain &= !ByName || mTellsColours;
        mFound.Stored = QSize(Segment.U16(3, true), Segment.U16(1, true));
    }
    // The pixels themselves end at the next marker that is none of theirs.
    void PassScan() {
        for (; mBytes.Has(mAt, 2); ++mAt) {
            const QByteArrayView Rest = mBytes.Part(mAt, mBytes.Size());
            const qsizetype Next = Rest.indexOf('\xFF');
            if (Next < 0) break;
            mAt += Next;
            const int Marker = mBytes.U8(mAt + 1);
            const bool IsData = Marker == 0 || (Marker >= FirstRestart && Marker <= LastRestart);
            if (!IsData) return;
        }
        mIsPlain = false;
    }

    const ByteView mBytes;
    qint64 mAt = 0;
    int mScans = 0;
    bool mIsPlain = true, mEnded = false, mHasExif = false, mTellsColours = false;
    PlainJpeg mFound;
};

// Readers that leave pixels away do it more coarsely than the resizing that follows: so that gets
// half as many again as it has to make.
NeededSize ToCover(QSize Least) {
    return [Least](QSize Full) {
        return (Full.scaled(Least, Qt::KeepAspectRatioByExpanding) * 1.5).boundedTo(Full);
    };
}

DecodedPicture Decoded(const PrintPicture& Picture, const NeededSize& Needed) {
    const QByteArray Bytes = FileBytesOf(Picture);
    try {
        return DecodePicture(Bytes, Needed);
    } catch (const Fault& Reason) {
        throw Fault(Reason.What(), Picture.Path, Reason.Number());
    }
}

}  // namespace

// One that is turned by other words than a PDF knows is decoded.
std::optional<PlainJpeg> ReadPlainJpeg(const QByteArray& Bytes) {
    const auto Parts = PartsOf(Bytes);
    return Parts && !Parts->IsTurnedByXmp() ? JpegWalk(Bytes).Run() : std::nullopt;
}

QByteArray FileBytesOf(const PrintPicture& Picture) {
    if (Picture.Shelf) return Picture.Shelf->Read(Picture.At, Picture.Length);
    if (Picture.Path.isEmpty()) return Picture.Bytes;
    if (FileSize(Picture.Path) > LargestPictureFile) ThrowFileTooLarge();
    return ReadFile(Picture.Path);
}

QImage PixelsOf(const PrintPicture& Picture, QSize Most) {
    const QSize AtLeastOne = Most.expandedTo(QSize(1, 1));
    ImgX Into;
    Into.SetPicture(Decoded(Picture, ToCover(AtLeastOne)).Picture);
    const QSize Fewer = AtLeastOne.boundedTo({Into.Width(), Into.Height()});
    constexpr int Sharp = 3;
    if (Fewer != QSize(Into.Width(), Into.Height()))
        Into.Resize(Fewer.width(), Fewer.height(), Sharp);
    return Into.Picture();
}

QSize MeasurePicture(const PrintPicture& Picture) {
    if (const auto Plain = ReadPlainJpeg(FileBytesOf(Picture)))
        return UprightSize(Plain->Stored, Plain->Orientation);
    return Decoded(Picture, [](QSize) { return QSize(1, 1); }).Full;
}

}  // namespace neb
