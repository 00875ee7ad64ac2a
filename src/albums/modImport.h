// The rules of taking pictures into an album: the folders of an album, the entry of one picture
// as a slide with its stored JPEG and thumbnail. The import windows and the command line share
// them.
#pragma once

#include <QImage>
#include <QString>
#include <cstdint>
#include <functional>

#include "support/Answer.h"
#include "support/KeepGoing.h"
#include "support/work/AheadQueue.h"

namespace neb {

class clsDBEngine;
class clsNEBAlbum;
class clsNEBSlide;

// Makes the folder of an album with its two folders; throws Fault.
void MakeAlbumFolders(const clsDBEngine& theDB, std::int32_t AlbumID);
// Makes an album with its folders; AlbumID is the new one. Refused as the engine refuses it. Throws
// Fault when a folder cannot be made: the album is then gone again, and AlbumID is 0.
Answer<> NewAlbum(clsDBEngine& theDB, std::int32_t& AlbumID, const QString& AlbumName);
// Takes an album with all that it holds out of the engine and off the disk.
void DropAlbum(clsDBEngine& theDB, std::int32_t AlbumID);

// Enters a picture in an album: the slide, then its JPEG, then its thumbnail (a null one writes
// none). Jpeg is asked for the stored bytes once the slide is there; when it throws, the slide
// stands without a picture. Returns the slide's number. Throws Fault.
std::int32_t EnterPicture(clsDBEngine& theDB, clsNEBAlbum& Album, const QString& Caption,
                          const std::function<QByteArray()>& Jpeg, const QImage& Thumbnail);
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

// Prepares the stored JPEGs of many pictures ahead on worker threads and enters them one by one,
// in order, on the caller's thread.
class PictureImport {
  public:
    // GoOn is asked while a picture is waited for, so that the caller's window stays alive.
    PictureImport(clsDBEngine& theDB, clsNEBAlbum& Album, QStringList Paths, KeepGoing GoOn);
    ~PictureImport();
    PictureImport(const PictureImport&) = delete;
    PictureImport& operator=(const PictureImport&) = delete;

    enum class Outcome {
        Entered,
        Discarded,  // there is no such file any more
        Ended       // GoOn has said so, and the album may be gone; nothing was entered
    };
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
    KeepGoing mGoOn;
    std::int32_t mSlideID = 0;
    AheadQueue<QString, Prepared> mAhead;
};

}  // namespace neb
