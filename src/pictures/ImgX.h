// A picture in memory: read from a file of any format that the program lists, fitted, turned,
// written as JPEG. Used by every window that shows, keeps or prints pictures. Safe to use on
// worker threads, one object a thread.
#pragma once

#include <QImage>
#include <QString>
#include <optional>

#include "pictures/FittedJpeg.h"
#include "pictures/formats/PictureDecoder.h"
#include "pictures/notes/PictureTurn.h"
#include "pictures/workers/OwnThumbnail.h"

namespace neb {

class ImgX {
  public:
    // All pixels of the file. Throws Fault with the file's name and one of the numbers of
    // PictureFaults.h (FaultCannotOpen when the file is missing or may not be read); the picture
    // held before stays.
    void Load(const QString& File);
    // The same for a caller who will fit the picture into Least: may leave pixels away that no one
    // would see, never so many that fitting would have to enlarge. FullSize tells the file's own.
    void LoadAtLeast(const QString& File, QSize Least);
    // The same of a file's bytes. Faults name no file.
    void TakeAtLeast(const QByteArray& Bytes, QSize Least);

    int Width() const { return mPicture.width(); }
    int Height() const { return mPicture.height(); }
    // Upright pixels of the picture in the file; turns and flips follow, a resize sets it.
    QSize FullSize() const { return mFull; }
    // Pixels, at least 1 by 1. Selector 4 (thumbnails): mean of the covered area; 3 (slides) and
    // all others: sharp. Throws FaultTooLarge.
    void Resize(int W, int H, int Selector);
    // Clockwise where positive. Other than quarter turns leave white corners.
    void Rotate(int Degrees);
    void Flip(int Selector);  // 0: left to right, 1: top to bottom

    int JpgQuality() const { return mJpgQuality; }
    void SetJpgQuality(int Quality) { mJpgQuality = Quality; }  // 1 to 100
    // Colours at full resolution. Both throw Fault: no picture, disk full.
    QByteArray ToJpeg() const;
    void SaveJpeg(const QString& File) const;

    const QImage& Picture() const { return mPicture; }  // Format_RGB32; null before a load
    void SetPicture(const QImage& Picture);             // any format, sRGB
    // The bytes of the file that it was read from, for what they say beside the pixels; empty
    // where there was none, or an enormous one.
    const QByteArray& Source() const { return mSource; }
    // How it has been turned and flipped since it was read. Nothing where it has not, or where
    // something else has been done to it, too.
    const std::optional<PictureTurn>& Turned() const { return mTurned; }

  private:
    void Take(const QByteArray& Bytes, const NeededSize& Needed);
    void NoteTurn(PictureTurn Turn);
    friend QImage MakeThumbnail(const QString& File);
    friend struct ListedPicture ReadForList(const QString& File, int Side);

    QImage mPicture;
    QSize mFull;
    QByteArray mSource;
    std::optional<PictureTurn> mTurned;
    bool mIsAsRead = false;  // but for turns
    int mJpgQuality = 100;
};

// The thumbnail of a picture file: stretched to exactly ThumbnailSize. Throws as ImgX::Load does.
QImage MakeThumbnail(const QString& File);
// The same from a picture in memory.
QImage MakeThumbnail(const QImage& Picture);
// A picture file as a list shows it before it comes into an album, and as the album will keep it.
struct ListedPicture {
    QImage Thumbnail;  // as MakeThumbnail gives it
    QImage Shown;      // in its true proportions; null where the thumbnail has pixels enough
    QSize Full;        // the file's own, upright
};
// Both from one reading of the file, Shown with so many pixels along its longer side, at most its
// own. Throws as ImgX::Load does.
ListedPicture ReadForList(const QString& File, int Side);

}  // namespace neb
