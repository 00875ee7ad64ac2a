#include "pictures/ImgX.h"

#include <QPainter>
#include <QTransform>
#include <cmath>

#include "pictures/JpegWriter.h"
#include "pictures/PictureFile.h"
#include "pictures/PictureResize.h"
#include "pictures/formats/PictureFaults.h"
#include "pictures/workers/PictureReading.h"
#include "support/files/modHostFiles.h"

namespace neb {
namespace {

constexpr int ThumbnailSelector = 4;
constexpr qint64 MostPixels = 200'000'000;
constexpr qsizetype MostSourceBytes = 64 << 20;

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

}  // namespace

void ImgX::Take(const QByteArray& Bytes, const NeededSize& Needed) {
    DecodedPicture Decoded = DecodePicture(Bytes, Needed);
    mPicture = std::move(Decoded.Picture);
    mFull = Decoded.Full;
    mSource = Bytes.size() <= MostSourceBytes ? Bytes : QByteArray();
    mTurned.reset();
    mIsAsRead = true;
}

void ImgX::TakeAtLeast(const QByteArray& Bytes, QSize Least) {
    Take(Bytes, ToFitInto(Least));
}

void ImgX::Load(const QString& File) {
    FromPictureFile(File, [this](const QByteArray& Bytes) { Take(Bytes, {}); });
}

void ImgX::LoadAtLeast(const QString& File, QSize Least) {
    FromPictureFile(File, [&](const QByteArray& Bytes) { TakeAtLeast(Bytes, Least); });
}

void ImgX::SetPicture(const QImage& Picture) {
    mPicture = Picture.convertToFormat(QImage::Format_RGB32);
    mFull = mPicture.size();
    mSource.clear();
    mTurned.reset();
    mIsAsRead = false;
}

void ImgX::NoteTurn(PictureTurn Turn) {
    if (mIsAsRead) mTurned = mTurned.value_or(PictureTurn()).Then(Turn);
}

void ImgX::Resize(int W, int H, int Selector) {
    if (mPicture.isNull()) return;
    if (W < 1 || H < 1 || qint64(W) * H > MostPixels) ThrowTooLarge({W, H});
    const auto Filter = Selector == ThumbnailSelector ? ResizeFilter::Area : ResizeFilter::Sharp;
    mPicture = ResizePicture(mPicture, {W, H}, Filter);
    mFull = mPicture.size();
    mTurned.reset();
    mIsAsRead = false;
}

void ImgX::Rotate(int Degrees) {
    const int Angle = ((Degrees % 360) + 360) % 360;
    if (Angle == 0 || mPicture.isNull()) return;
    QImage Turned = mPicture.transformed(QTransform().rotate(Angle), Qt::SmoothTransformation);
    if (Angle % 90 == 0) {
        mPicture = Turned.convertToFormat(QImage::Format_RGB32);
        if (Angle != 180) mFull.transpose();
        return NoteTurn({false, Angle / 90});
    }
    mPicture = QImage(Turned.size(), QImage::Format_RGB32);
    mPicture.fill(Qt::white);
    QPainter(&mPicture).drawImage(0, 0, Turned);
    mFull = mPicture.size();
    mTurned.reset();
    mIsAsRead = false;
}

void ImgX::Flip(int Selector) {
    mPicture = mPicture.mirrored(Selector == 0, Selector == 1);
    if (Selector == 0 || Selector == 1) NoteTurn({true, Selector == 0 ? 0 : 2});
}

QByteArray ImgX::ToJpeg() const {
    return EncodeJpeg(mPicture, mJpgQuality);
}

void ImgX::SaveJpeg(const QString& File) const {
    ReplaceFile(File, ToJpeg());
}

QImage MakeThumbnail(const QString& File) {
    ImgX Picture;
    FromPictureFile(File, [&](const QByteArray& Bytes) { Picture.Take(Bytes, ToStretch); });
    return MakeThumbnail(Picture.Picture());
}

QImage MakeThumbnail(const QImage& Picture) {
    ImgX Small;
    Small.SetPicture(Picture);
    Small.Resize(ThumbnailSize.width(), ThumbnailSize.height(), ThumbnailSelector);
    return Small.Picture();
}

ListedPicture ReadForList(const QString& File, int Side) {
    const QSize Least(Side, Side);
    const bool Larger = Side > ThumbnailSize.width();
    ImgX Picture;
    const NeededSize Needed = [&](QSize Full) {
        return Larger ? ToStretch(Full).expandedTo(ToFitInto(Least)(Full)) : ToStretch(Full);
    };
    FromPictureFile(File, [&](const QByteArray& Bytes) { Picture.Take(Bytes, Needed); });
    ListedPicture Made{MakeThumbnail(Picture.Picture()), {}, Picture.FullSize()};
    if (!Larger) return Made;
    const QSize Fitted = FitSize(Made.Full, Least);
    Picture.Resize(Fitted.width(), Fitted.height(), ThumbnailSelector);
    Made.Shown = Picture.Picture();
    return Made;
}

}  // namespace neb
