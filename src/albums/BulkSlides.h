// What the bulk slide manager does to an album that needs no window: it finds ten thousand slides
// one after the other in no time, keeps what is typed, saves captions, deletes slides, and counts
// what became of them.
#pragma once

#include <QHash>
#include <QString>
#include <cstdint>
#include <vector>

#include "db/Changes.h"
#include "support/KeepGoing.h"

namespace neb {

class clsNEBAlbum;

// The slides of one album by ID. What it remembers are places, each looked at before it is
// believed: slides may come and go between two calls.
class SlideFinder {
  public:
    // nullptr when the album has no such slide.
    clsNEBSlide* Find(clsNEBAlbum& Album, std::int32_t SlideID);

  private:
    void Learn(const clsNEBAlbum& Album);

    QHash<std::int32_t, size_t> mPlaces;  // in the list of slides, by ID
};

// How many of the slides went well, and how many did not.
struct SlideTally {
    int Done = 0;
    int Failed = 0;

    void Count(bool Success) { ++(Success ? Done : Failed); }
    // "3 slides successfully saved." and, after failures, a second line; DoneWord is
    // what was done ("saved"), DoWord what was tried ("save").
    QString Text(const QString& DoneWord, const QString& DoWord) const;
};

// Captions of one album that are typed and not yet saved.
class CaptionEdits {
  public:
    // Forgets all there are: from now on they are those of this album; 0: none.
    void Begin(std::int32_t AlbumID);
    std::int32_t AlbumID() const { return mAlbumID; }
    bool IsEmpty() const { return mTyped.isEmpty(); }
    const QHash<std::int32_t, QString>& All() const { return mTyped; }  // by SlideID
    // A caption typed back to the one that is stored is none. Stored: nullptr when the slide has
    // gone.
    void Note(std::int32_t SlideID, const QString& Caption, const clsNEBSlide* Stored);
    void Forget(std::int32_t SlideID) { mTyped.remove(SlideID); }
    void Clear() { mTyped.clear(); }
    QString ShownOf(const clsNEBSlide& Slide) const;  // what was typed for it, else its own

  private:
    std::int32_t mAlbumID = 0;
    QHash<std::int32_t, QString> mTyped;
};

// The saving of many captions of an album. The other windows hear of it once, when Tell is called,
// at the latest at the end; where no caption was another they hear of nothing.
class CaptionSave {
  public:
    // Asker: the window that knows of it already.
    CaptionSave(clsDBEngine& theDB, const QObject* Asker, std::int32_t AlbumID);
    ~CaptionSave();
    CaptionSave(const CaptionSave&) = delete;
    CaptionSave& operator=(const CaptionSave&) = delete;
    // False when there is no such slide, which counts as a failure. One that has this caption
    // already is left alone and not counted.
    bool Save(std::int32_t SlideID, const QString& Caption);
    const SlideTally& Tally() const { return mTally; }
    void Tell();

  private:
    clsDBEngine& mDB;
    std::int32_t mAlbumID;
    Changes mDoor;
    Announcement mSaved;
    SlideFinder mFinder;
    SlideTally mTally;
};

// Deletes slides of an album one by one, each with its files, and tells of each at once. GoesOn is
// asked after each; false ends the work, and what is left stays.
SlideTally DeleteSlides(clsDBEngine& theDB, const QObject* Asker, std::int32_t AlbumID,
                        const std::vector<std::int32_t>& SlideIDs, const KeepGoing& GoesOn);

}  // namespace neb
