// What the user has done in this session, step by step, and taking it back: the last first.
// Whatever passes db/Changes is kept here; what is undone can be done again until something else is
// done. The program's own database has one, which begins behind InitializeDB; the main window
// undoes by it.
//
// Files that would have gone lie below Temp until the end. Where the disk has little room the
// oldest of them go first, and with them what they would be needed for.
#pragma once

#include <functional>
#include <set>

#include "db/Changes.h"
#include "db/undo/UndoFiles.h"
#include "db/undo/UndoStep.h"
#include "support/KeepGoing.h"

namespace neb {

// What was taken back, as a menu calls it, and what tells the windows of it.
struct Undone {
    QString Name;
    std::vector<Announcement> Told;
};

class History : public ChangeKeeper {
  public:
    static constexpr qint64 LeastRoom = 256 << 20;  // bytes that are left free of kept files

    // The engine has its directory, stays where it is, and outlives it.
    explicit History(clsDBEngine& theDB, qint64 Room = LeastRoom);
    ~History() override;

    // What the next call would take back, or do again: empty where there is nothing.
    QString UndoName() const;
    QString RedoName() const;
    // Refused, with what is to be said, where something else has changed since what the step left,
    // which then cannot be undone any more, or where a file cannot be moved. Nothing has changed
    // then. LetRun is called while many files are moved.
    Answer<Undone> Undo(const Yield& LetRun = {});
    Answer<Undone> Redo(const Yield& LetRun = {});
    // Files are on their way: the database must not go away under it.
    bool IsMoving() const { return mIsMoving; }
    // Lets go of files, the oldest first, until so many bytes are free, or none are kept; how many
    // more are free then.
    qint64 MakeRoom(qint64 Wanted);

    StepID NextStep() override { return ++mNext; }
    void SlideChanged(StepID Step, std::int32_t AlbumID, ThingAt<clsNEBSlide> Before,
                      const clsNEBSlide* Now) override;
    void ShowChanged(StepID Step, std::int32_t AlbumID, ThingAt<clsNEBSlideShow> Before,
                     const clsNEBSlideShow* Now) override;
    void AlbumDeleted(StepID Step, ThingAt<clsNEBAlbum> Before) override;
    void AlbumRenamed(StepID Step, std::int32_t AlbumID, const QString& Before,
                      const QString& Now) override;
    void Changed(const Change& What) override;
    void DropAll() override;
    void Call(StepID Step, const QString& Verb) override;
    void Spoil(StepID Step) override;
    bool Take(StepID Step, const QString& Path) override;
    QString Hold(const QString& Path) override;
    void LetGo(const QString& Held) override { mFiles.Drop(Held); }
    void Replaced(StepID Step, const QString& Path, const QString& Held) override;
    void ReplacedBeside(StepID Step, const QString& Path, const QString& Beside) override;

  private:
    using Steps = std::vector<UndoStep>;

    UndoStep* Open(StepID Step, std::int32_t AlbumID);
    bool HasRoom(StepID But) { return LetGoUntil(mRoom, But); }
    bool LetGoUntil(qint64 Free, StepID But);
    void DropFilesOf(UndoStep& Step);
    void DropWith(const UndoStep& Step);
    void Drop(Steps& From, const std::function<bool(const UndoStep&)>& Which);

    Answer<Undone> Move(Steps& From, Steps& To, const Yield& LetRun);
    std::vector<Announcement> PutBackWithFiles(UndoStep& Step, const Yield& LetRun);
    std::vector<Announcement> PutBackRecords(UndoStep& Step);
    void BringBack(UndoStep::File& File);
    bool TakeAllAway(const std::vector<UndoStep::File*>& Files);

    clsDBEngine& mDB;
    const qint64 mRoom;
    UndoFiles mFiles;
    Steps mDone, mUndone;  // the last is the next to be taken back
    std::set<StepID> mSpoiled;
    StepID mNext = 0;
    bool mIsMoving = false;  // what changes now is an undo
};

// Begins one for this database, if it has none; from here on what is done can be undone.
void KeepHistory(clsDBEngine& theDB);
// Null where there is none, as in a read-only database.
History* HistoryOf(const clsDBEngine& theDB);

}  // namespace neb
