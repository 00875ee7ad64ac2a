// The one door through which albums, slides and shows change: it does the change, notes it, and
// gives out its announcement. Windows, imports and nebctl hold one for as long as they need it;
// nothing else assigns the fields of records.
#pragma once

#include "db/ChangeKeeper.h"
#include "support/Answer.h"

namespace neb {

class clsDBEngine;

// A change that is done and noted, and not yet told to the other windows: the user may be told
// first. It is told by Now, at the latest at the end of its life, also when a fault passes by.
class [[nodiscard]] Announcement {
  public:
    Announcement(const ChangeListeners* Listeners, const QObject* Asker, Change What);
    Announcement(Announcement&& Other) noexcept;
    Announcement& operator=(Announcement&& Other) noexcept;
    ~Announcement();

    const Change& What() const { return mWhat; }
    void Now();
    // Nobody is told: another announcement stands for this one, or the change was taken back.
    void Never() { mListeners = nullptr; }

  private:
    void TellQuietly() noexcept;

    const ChangeListeners* mListeners;
    const QObject* mAsker;
    Change mWhat;
};

// The next free number of each kind.
struct IDCounters {
    std::int32_t AlbumID = 1;
    std::int32_t SlideID = 1;
    std::int32_t SlideShowID = 1;
    bool operator==(const IDCounters&) const = default;
};

// An album as a transfer leaves it, and the counters behind it.
struct AlbumToPut {
    clsNEBAlbum Album;
    IDCounters Next;
};

// The answers refuse with the engine's own texts. Routines that delete files throw nothing: what
// cannot be deleted stays. What goes through one door, and its copies, is undone as one step.
class Changes {
  public:
    // Asker: the window that asks; it is not told of its own changes.
    explicit Changes(clsDBEngine& theDB, const QObject* Asker = nullptr);
    // What goes through from here on is no step of the user's, and never undone.
    void ForGood() { mStep = 0; }
    // What the step is called where its changes do not say it, such as "Turn Slide".
    void Call(const QString& Verb);

    Answer<Announcement> MakeAlbum(const QString& AlbumName);  // What().AlbumID is the new one
    Answer<Announcement> RenameAlbum(std::int32_t AlbumID, const QString& AlbumName);
    // The records; the album's files are for the caller to remove, before or after.
    Answer<Announcement> DeleteAlbum(std::int32_t AlbumID);

    // The next number for a slide of the album: one for which no picture, thumbnail or sound lies
    // in its folder, whoever has put it there.
    std::int32_t FreeSlideID(std::int32_t AlbumID) const;
    // A new slide under its own number, which no slide has: FreeSlideID, or that of files that are
    // there. Refused where one has it.
    Answer<Announcement> EnterSlide(std::int32_t AlbumID, const clsNEBSlide& Slide);
    // All fields of one slide. SlideID 0, or one that the album does not have: a new slide, whose
    // number is in What() afterwards.
    Answer<Announcement> SaveSlide(std::int32_t AlbumID, const clsNEBSlide& Slide);
    Answer<Announcement> SaveCaption(std::int32_t AlbumID, std::int32_t SlideID,
                                     const QString& SlideText);
    // The same for a slide of the album that the caller has found: thousands are saved in a row.
    Announcement SaveCaption(std::int32_t AlbumID, clsNEBSlide& Slide, const QString& SlideText);
    // The record goes, then the slide's files; a slide that is not there has gone already.
    Answer<Announcement> DeleteSlide(std::int32_t AlbumID, std::int32_t SlideID);

    // The same for a show: one for which no sound lies in the album's folder of tracks.
    std::int32_t FreeSlideShowID(std::int32_t AlbumID) const;
    // Replaces a show by these contents in one go; SlideShowID 0, or one that the album does not
    // have: a new show, whose number is in What() afterwards; one that was free is kept.
    Answer<Announcement> SaveShow(std::int32_t AlbumID, clsNEBSlideShow Show);
    // The record goes, then the show's sounds.
    Answer<Announcement> DeleteShow(std::int32_t AlbumID, std::int32_t SlideShowID);

    // Puts an album with all that it holds in the place of the one of its number, or behind the
    // others, in one go. SlideShowID: a show of it that has come in or was replaced, and of which
    // the second announcement tells; 0 for none.
    std::vector<Announcement> PutAlbum(AlbumToPut What, std::int32_t SlideShowID);

    // Files of an album that its records name no more, on the disk too (IsSessionStored): kept
    // where that can be undone, else deleted. What cannot go stays.
    void DropFiles(const QStringList& Paths);
    // Takes away a file, a folder or a link, to come back with an undo. False: it is there still.
    bool KeepAway(const QString& Path);
    // As StoreAnew of AlbumSums.h; what was there is kept where that can be undone.
    void StoreFile(const QString& Path, const QByteArray& Bytes);
    // Path has a new file. Beside: where the one before lies, which is taken from there; empty:
    // there was none.
    void FileReplaced(const QString& Path, const QString& Beside);
    // What this door has done cannot be undone: it has made something, or lost a file.
    void Spoil();

    // For db/undo, which puts things back: notes what it has done. Files are back before.
    Announcement NotePutBack(const Change& What) { return Noted(What); }

    // One announcement for many changes of an album (SlidesImported, CaptionsSaved): those made
    // through this object from here on are noted one by one and told by this one alone.
    Announcement AsOne(Change::Kind What, std::int32_t AlbumID);

  private:
    enum class With { Files, Nothing };
    Announcement Noted(Change What, With Files = With::Files);
    ChangeKeeper* Keeper() const;
    void KeepSlide(std::int32_t AlbumID, ThingAt<clsNEBSlide> Before, const clsNEBSlide* Now);
    void KeepShow(std::int32_t AlbumID, ThingAt<clsNEBSlideShow> Before,
                  const clsNEBSlideShow* Now);

    clsDBEngine& mDB;
    const QObject* mAsker;
    StepID mStep;
    bool mTogether = false;
};

}  // namespace neb
