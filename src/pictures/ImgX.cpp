#include "pictures/ImgX.h"

#include <QPainter>
#include <QTransform>
#include <cmath>

#include "pictures/JpegWriter.h"
#include "pictures/PictureResize.h"
#include "pictures/formats/PictureFaults.h"
#include "support/files/modHostFiles.h"

namespace neb {
namespace {

constexpr int SlideSelector = 3, ThumbnailSelector = 4;
constexpr qint64 MostPixels = 200'000'000;

QByteArray ReadPictureFile(const QString& File) {
    if (!FileExists(File) || !CanReadFile(File))
        throw Fault(QStringLiteral("The picture cannot be opened."), File, FaultCannotOpen);
    if (FileSize(File) > LargestPictureFile) ThrowFileTooLarge();
    try {
        return ReadFile(File);
    } catch (const Fault& Reason) {
        throw Fault(Reason.What(), File, FaultCannotOpen);
    }
}

QSize TimesHalf(QSize Size) {
    return Size + Size / 2;
}

// A reader that leaves pixels away does it more coarsely than the resizing that follows: so that
// gets half as many again as it has to make.
NeededSize ToFitInto(QSize Least) {
    return [Least](QSize Full) {
        const bool Fits = Full.boundedTo(Least) == Full;
        return Fits ? Full : TimesHalf(Full.scaled(Least, Qt::KeepAspectRatio)).boundedTo(Full);
    };
}

// Stretching needs pixels along both sides.
QSize ToStretch(QSize Full) {
    return (ThumbnailSize * 2).boundedTo(Full);
}

void Append(QByteArray& Bytes, quint32 Number, int Length) {
    for (int I = 0; I < Length; ++I) Bytes.append(static_cast<char>(Number >> 8 * I & 255));
}

QByteArray BmpHeaders(QSize Size, int Stride) {
    constexpr int Headers = 54, InfoHeader = 40, DotsAMetre = 3780;
    const auto Pixels = static_cast<quint32>(Stride * Size.height());
    QByteArray Bytes("BM");
    Append(Bytes, Headers + Pixels, 4);
    Append(Bytes, 0, 4);
    Append(Bytes, Headers, 4);
    Append(Bytes, InfoHeader, 4);
    Append(Bytes, static_cast<quint32>(Size.width()), 4);
    Append(Bytes, static_cast<quint32>(Size.height()), 4);
    Append(Bytes, 1, 2);
    Append(Bytes, 24, 2);
    Append(Bytes, 0, 4);
    Append(Bytes, Pixels, 4);
    Append(Bytes, DotsAMetre, 4);
    Append(Bytes, DotsAMetre, 4);
    Append(Bytes, 0, 4);
    Append(Bytes, 0, 4);
    return Bytes;
}

}  // namespace

void ImgX::LoadFor(const QString& File, const NeededSize& Needed) {
    try {
        DecodedPicture Decoded = DecodePicture(ReadPictureFile(File), Needed);
        mPicture = std::move(Decoded.Picture);
        mFull = Decoded.Full;
    } catch (const Fault& Reason) {
        throw Fault(Reason.What(), File, Reason.Number());
    } catch (const std::bad_alloc&) {
        throw Fault(QStringLiteral("There is not enough memory for the picture."), File,
                    FaultTooLarge);
    }
}

void ImgX::Load(const QString& File) {
    LoadFor(File, {});
}

void ImgX::LoadAtLeast(const QString& File, QSize Least) {
    LoadFor(File, ToFitInto(Least));
}

void ImgX::SetPicture(const QImage& Picture) {
    mPicture = Picture.convertToFormat(QImage::Format_RGB32);
    mFull = mPicture.size();
}

void ImgX::Resize(int W, int H, int Selector) {
    if (mPicture.isNull()) return;
    if (W < 1 || H < 1 || qint64(W) * H > MostPixels) ThrowTooLarge({W, H});
    const auto Filter = Selector == ThumbnailSelector ? ResizeFilter::Area : ResizeFilter::Sharp;
    mPicture = ResizePicture(mPicture, {W, H}, Filter);
    mFull = mPicture.size();
}

void ImgX::Rotate(int Degrees) {
    const int Angle = ((Degrees % 360) + 360) % 360;
    if (Angle == 0 || mPicture.isNull()) return;
    QImage Turned = mPicture.transformed(QTransform().rotate(Angle), Qt::SmoothTransformation);
    if (Angle % 90 == 0) {
        mPicture = Turned.convertToFormat(QImage::Format_RGB32);
        if (Angle != 180) mFull.transpose();
        return;
    }
    mPicture = QImage(Turned.size(), QImage::Format_RGB32);
    mPicture.fill(Qt::white);
    QPainter(&mPicture).drawImage(0, 0, Turned);
    mFull = mPicture.size();
}

void ImgX::Flip(int Selector) {
    mPicture = mPicture.mirrored(Selector == 0, Selector == 1);
}

QByteArray ImgX::ToJpeg() const {
    return EncodeJpeg(mPicture, mJpgQuality);
}

void ImgX::SaveJpeg(const QString& File) const {
    ReplaceFile(File, ToJpeg());
}

QByteArray FittedJpeg(const QString& File, const PictureKeeping& Keeping) {
    ImgX Picture;
    Picture.LoadAtLeast(File, Keeping.Limit);
    return FittedJpeg(std::move(Picture), Keeping);
}

QByteArray FittedJpeg(ImgX Picture, const PictureKeeping& Keeping) {
    const QSize Size = FitSize(Picture.FullSize(), Keeping.Limit);
    Picture.Resize(Size.width(), Size.height(), SlideSelector);
    Picture.SetJpgQuality(Keeping.Quality());
    return Picture.ToJpeg();
}

QImage MakeThumbnail(const QString& File) {
    ImgX Picture;
    Picture.LoadFor(File, ToStretch);
    return MakeThumbnail(Picture.Picture());
}

QImage MakeThumbnail(const QImage& Picture) {
    ImgX Small;
    Small.SetPicture(Picture);
    Small.Resize(ThumbnailSize.width(), ThumbnailSize.height(), ThumbnailSelector);
    return Small.Picture();
}

QByteArray ThumbnailBmp(const QImage& Picture) {
    const QImage Rows = Picture.convertToFormat(QImage::Format_BGR888);
    const int Stride = (Rows.width() * 3 + 3) / 4 * 4;
    QByteArray Bytes = BmpHeaders(Rows.size(), Stride);
    for (int Y = Rows.height() - 1; Y >= 0; --Y) {
        Bytes.append(reinterpret_cast<const char*>(Rows.constScanLine(Y)), Rows.width() * 3);
        Bytes.append(Stride - Rows.width() * 3, '\0');
    }
    return Bytes;
}

}  // namespace neb
