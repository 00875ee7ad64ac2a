// The rules of taking pictures into an album: the folders of an album, the entry of one picture
// as a slide with its stored JPEG and thumbnail. The import windows and the command line share
// them.
#pragma once

#include <QImage>
#include <QString>
#include <cstdint>
#include <functional>

#include "db/Changes.h"
#include "pictures/PictureKeeping.h"
#include "support/KeepGoing.h"
#include "support/work/AheadQueue.h"

namespace neb {

class clsDBEngine;

// Makes the folder of an album with its two folders, and for a new one the list of its check sums;
// throws Fault.
void MakeAlbumFolders(const clsDBEngine& theDB, std::int32_t AlbumID);
// Makes an album of theDB, for which Door is, with its folders. Refused as the engine refuses it.
// Throws Fault when a folder cannot be made: the album is then gone again and nobody is told.
Answer<Announcement> NewAlbum(Changes& Door, clsDBEngine& theDB, const QString& AlbumName);
// Takes an album with all that it holds out of the engine and off the disk; nobody is told.
void DropAlbum(clsDBEngine& theDB, std::int32_t AlbumID);

// A picture as it comes into an album of theDB.
struct PictureToEnter {
    QString Caption;                   // as typed; cleaned on entry
    std::function<QByteArray()> Jpeg;  // gives the stored bytes when they are wanted
    QImage Thumbnail;                  // 72 by 72; a null one writes no thumbnail
};
// Enters a picture as one change: its JPEG and its thumbnail, then the slide, under a number for
// which no file is there. When one of them cannot be had or written, nothing has been entered.
// Gives the slide's number; refused when there is no such album. Throws Fault.
Answer<std::int32_t> EnterPicture(Changes& Door, const clsDBEngine& theDB, std::int32_t AlbumID,
                                  const PictureToEnter& Picture);
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
    PictureImport(Changes& Door, const clsDBEngine& theDB, std::int32_t AlbumID, QStringList Paths,
                  const PictureKeeping& Keeping, KeepGoing GoOn);
    ~PictureImport();
    PictureImport(const PictureImport&) = delete;
    PictureImport& operator=(const PictureImport&) = delete;

    enum class Outcome {
        Entered,
        LeftOut,  // it cannot be read, or is not there any more; Reason says which
        Ended     // GoOn has said so, and the album may be gone; nothing was entered
    };
    // Enters the next of the paths. Throws Fault when the album cannot be written; nothing of this
    // picture has been entered then.
    Outcome EnterNext(const PictureToImport& Picture);
    std::int32_t SlideID() const { return mSlideID; }  // of the slide last entered
    const QString& Reason() const { return mReason; }  // a sentence, of the one last left out

  private:
    struct Prepared {
        bool Exists = false;
        QByteArray Jpeg;
    };
    static Prepared Prepare(const QString& Path, const PictureKeeping& Keeping);
    std::optional<QByteArray> TakeJpeg(const QString& Path);

    Changes& mDoor;
    const clsDBEngine& mDB;
    const std::int32_t mAlbumID;
    const PictureKeeping mKeeping;
    KeepGoing mGoOn;
    std::int32_t mSlideID = 0;
    QString mReason;
    AheadQueue<QString, Prepared> mAhead;
};

}  // namespace neb
