// The rules of taking pictures into an album: the folders of an album, the entry of one picture
// as a slide with its stored JPEG and thumbnail. The import windows and the command line share
// them.
#pragma once

#include <QImage>
#include <QString>
#include <cstdint>
#include <functional>

#include "platform/AheadQueue.h"

namespace neb {

class clsDBEngine;
class clsNEBAlbum;
class clsNEBSlide;

// Albums/<AlbumID>/ and its two folders under the engine's database directory.
QString AlbumFolder(const clsDBEngine& theDB, std::int32_t AlbumID);
QString SlidesFolder(const clsDBEngine& theDB, std::int32_t AlbumID);
QString SoundTracksFolder(const clsDBEngine& theDB, std::int32_t AlbumID);
// Makes the three; throws Fault.
void MakeAlbumFolders(const clsDBEngine& theDB, std::int32_t AlbumID);
// Makes an album with its folders; AlbumID is the new one. False after the engine's box. Throws
// Fault when a folder cannot be made: the album is then gone again, and AlbumID is 0.
bool NewAlbum(clsDBEngine& theDB, std::int32_t& AlbumID, const QString& AlbumName);
// Takes an album with all that it holds out of the engine and off the disk.
void DropAlbum(clsDBEngine& theDB, std::int32_t AlbumID);

// The stem of a slide's files: its number in eight digits.
QString SlideStem(std::int32_t SlideID);

// Writes a picture's file as a whole: where that cannot be done (Fault) no part of it stays.
void StoreFile(const QString& Path, const QByteArray& Bytes);
// Deletes a file; errors are ignored.
void DropFile(const QString& Path);

// A picture on its way into an album.
struct PictureToImport {
    QString Path;
    QString Caption;   // as typed; cleaned on entry
    QImage Thumbnail;  // 72 by 72; a null one writes no thumbnail
};

// Prepares the stored JPEGs of many pictures ahead on helper threads and enters them one by one,
// in order, on the caller's thread.
class PictureImport {
  public:
    // Idle is called while waiting for a picture, so that the caller's window stays alive.
    PictureImport(clsDBEngine& theDB, clsNEBAlbum& Album, QStringList Paths,
                  std::function<void()> Idle);
    ~PictureImport();
    PictureImport(const PictureImport&) = delete;
    PictureImport& operator=(const PictureImport&) = delete;

    enum class Outcome { Entered, Discarded };  // Discarded: there is no such file any more
    // Enters the next of the paths: the slide, then its JPEG, then its thumbnail. Throws Fault
    // when the picture cannot be read or written; the slide then stands without a picture.
    Outcome EnterNext(const PictureToImport& Picture);
    std::int32_t SlideID() const { return mSlideID; }  // of the slide last entered

  private:
    struct Prepared {
        bool Exists = false;
        QByteArray Jpeg;
    };
    static Prepared Prepare(const QString& Path);
    void PassOver();
    QByteArray TakeJpeg(const QString& Path);

    clsDBEngine& mDB;
    clsNEBAlbum& mAlbum;
    std::function<void()> mIdle;
    std::int32_t mSlideID = 0;
    AheadQueue<QString, Prepared> mAhead;
};

}  // namespace neb
