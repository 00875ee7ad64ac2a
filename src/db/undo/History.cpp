#include "db/undo/History.h"

#include <QScopedValueRollback>
#include <algorithm>

#include "db/AlbumSums.h"
#include "db/clsDBEngine.h"
#include "db/modAlbumFiles.h"
#include "db/undo/PutBack.h"
#include "support/Fault.h"
#include "support/Texts.h"
#include "support/files/modHostFiles.h"
#include "support/files/modHostFilesCopy.h"

namespace neb {
namespace {

QString LastName(const std::vector<UndoStep>& Steps) {
    const auto Its = std::find_if(Steps.rbegin(), Steps.rend(),
                                  [](const UndoStep& Each) { return Each.HasChanged; });
    return Its == Steps.rend() ? QString() : NameOfStep(*Its);
}

std::unique_ptr<clsNEBSlide> CopyOf(const clsNEBSlide* Slide) {
    return Slide ? std::make_unique<clsNEBSlide>(*Slide) : nullptr;
}

std::unique_ptr<clsNEBSlideShow> CopyOf(const clsNEBSlideShow* Show) {
    return Show ? Show->Copy() : nullptr;
}

// What stands in the records once these have been put back, in the order in which PutBack leaves
// them.
template <class Thing>
std::vector<std::unique_ptr<Thing>> Reversed(const std::vector<ThingAt<Thing>>& Parts) {
    std::vector<std::unique_ptr<Thing>> Now;
    for (auto Each = Parts.rbegin(); Each != Parts.rend(); ++Each)
        Now.push_back(CopyOf(Each->Was.get()));
    return Now;
}

bool HasFiles(const UndoStep& Step) {
    return std::ranges::any_of(Step.Files, [](const auto& Each) { return !Each.Kept.isEmpty(); });
}

bool HasParts(const UndoStep& Step) {
    return !Step.Were.Slides.empty() || !Step.Were.Shows.empty();
}

BoxRequest CannotUndo(const QString& Name, const QString& Why) {
    return Refuse(tr("\"%1\" cannot be taken back.\n%2").arg(Name, Why), tr("Undo"));
}

}  // namespace

History::History(clsDBEngine& theDB, qint64 Room)
    : mDB(theDB), mRoom(Room), mFiles(theDB.DBPath()) {}

History::~History() = default;

QString History::UndoName() const {
    return LastName(mDone);
}

QString History::RedoName() const {
    return LastName(mUndone);
}

// What goes on while another step came is the last again. Null: it cannot be undone.
UndoStep* History::Open(StepID Step, std::int32_t AlbumID) {
    if (mSpoiled.contains(Step)) return nullptr;
    const auto Its = std::ranges::find(mDone, Step, &UndoStep::ID);
    if (Its != mDone.end())
        std::rotate(Its, Its + 1, mDone.end());
    else
        mDone.push_back({.ID = Step});
    if (AlbumID != 0) mDone.back().Were.AlbumID = AlbumID;
    return &mDone.back();
}

void History::SlideChanged(StepID Step, std::int32_t AlbumID, ThingAt<clsNEBSlide> Before,
                           const clsNEBSlide* Now) {
    UndoStep* const Its = Open(Step, AlbumID);
    if (!Its) return;
    const bool IsNew = !Now || !IsSameSlide(*Before.Was, *Now);
    Its->HasChanged = Its->HasChanged || IsNew || !Its->Files.empty();
    const auto There = Its->SlidePlaces.constFind(Before.ID);
    if (There != Its->SlidePlaces.cend()) {
        Its->SlidesNow[*There] = CopyOf(Now);
        return;
    }
    Its->SlidePlaces.insert(Before.ID, Its->Were.Slides.size());
    Its->Were.Slides.push_back(std::move(Before));
    Its->SlidesNow.push_back(CopyOf(Now));
}

void History::ShowChanged(StepID Step, std::int32_t AlbumID, ThingAt<clsNEBSlideShow> Before,
                          const clsNEBSlideShow* Now) {
    UndoStep* const Its = Open(Step, AlbumID);
    if (!Its) return;
    const bool IsNew = !Now || !IsSameShow(*Before.Was, *Now);
    Its->HasChanged = Its->HasChanged || IsNew || !Its->Files.empty();
    const auto There = std::ranges::find(Its->Were.Shows, Before.ID, &ThingAt<clsNEBSlideShow>::ID);
    if (There != Its->Were.Shows.end()) {
        Its->ShowsNow[static_cast<size_t>(There - Its->Were.Shows.begin())] = CopyOf(Now);
        return;
    }
    Its->Were.Shows.push_back(std::move(Before));
    Its->ShowsNow.push_back(CopyOf(Now));
}

void History::AlbumDeleted(StepID Step, ThingAt<clsNEBAlbum> Before) {
    UndoStep* const Its = Open(Step, Before.ID);
    if (!Its) return;
    Its->HasChanged = true;
    Its->Were.Album = std::move(Before);
}

void History::AlbumRenamed(StepID Step, std::int32_t AlbumID, const QString& Before,
                           const QString& Now) {
    if (Before == Now) return;
    UndoStep* const Its = Open(Step, AlbumID);
    if (!Its) return;
    Its->HasChanged = true;
    if (!Its->Were.Name) Its->Were.Name = Before;
    Its->NameNow = Now;
}

// What a transfer has put in the place of an album knows nothing of what was done to that.
void History::Changed(const Change& What) {
    if (mIsMoving) return;
    Drop(mUndone, [](const auto&) { return true; });
    if (What.What == Change::Kind::AlbumReplaced)
        Drop(mDone, [&](const auto& Each) { return Each.Were.AlbumID == What.AlbumID; });
    HasRoom(0);
}

void History::DropAll() {
    for (Steps* Each : {&mDone, &mUndone}) Drop(*Each, [](const auto&) { return true; });
}

void History::Call(StepID Step, const QString& Verb) {
    if (UndoStep* Its = Open(Step, 0)) Its->Verb = Verb;
}

// Those before it that are about the same things cannot be undone past it.
void History::Spoil(StepID Step) {
    mSpoiled.insert(Step);
    const auto Its = std::ranges::find(mDone, Step, &UndoStep::ID);
    if (Its == mDone.end()) return;
    UndoStep Gone = std::move(*Its);
    mDone.erase(Its);
    DropWith(Gone);
    DropFilesOf(Gone);
}

void History::DropWith(const UndoStep& Step) {
    Drop(mDone, [&](const auto& Each) { return ShareAnything(Each, Step); });
}

void History::DropFilesOf(UndoStep& Step) {
    for (const auto& Each : Step.Files) mFiles.Drop(Each.Kept);
}

void History::Drop(Steps& From, const std::function<bool(const UndoStep&)>& Which) {
    std::erase_if(From, [&](UndoStep& Each) {
        const bool Goes = Which(Each);
        if (!Goes) return false;
        DropFilesOf(Each);
        mSpoiled.insert(Each.ID);  // no half of it comes back
        return true;
    });
}

// What was undone goes first, then the oldest, until there is room; But stays.
bool History::LetGoUntil(qint64 Wanted, StepID But) {
    const auto IsShort = [&] {
        const qint64 Free = FreeSpace(mDB.DBPath());
        return Free >= 0 && Free < Wanted;
    };
    if (!IsShort()) return true;
    Drop(mUndone, [](const auto&) { return true; });
    while (IsShort()) {
        const auto Oldest = std::ranges::find_if(
            mDone, [&](const auto& Each) { return Each.ID != But && HasFiles(Each); });
        if (Oldest == mDone.end()) return false;
        const StepID Goes = Oldest->ID;
        Drop(mDone, [Goes](const auto& Each) { return Each.ID == Goes; });
    }
    return true;
}

qint64 History::MakeRoom(qint64 Wanted) {
    const qint64 Before = FreeSpace(mDB.DBPath());
    LetGoUntil(Wanted, 0);
    return FreeSpace(mDB.DBPath()) - Before;
}

bool History::Take(StepID Step, const QString& Path) {
    const bool MayKeep = HasRoom(Step);
    UndoStep* const Its = Open(Step, 0);
    if (!Its) return false;
    if (!NameExists(Path)) {
        Replaced(Step, Path, {});
        return true;
    }
    const QString Kept = MayKeep ? mFiles.Take(Path) : QString();
    if (Kept.isEmpty())
        Spoil(Step);
    else
        Replaced(Step, Path, Kept);
    return !Kept.isEmpty();
}

QString History::Hold(const QString& Path) {
    return HasRoom(0) ? mFiles.Hold(Path) : QString();
}

// Of what came and went within a step, what was before counts.
void History::Replaced(StepID Step, const QString& Path, const QString& Held) {
    UndoStep* const Its = Open(Step, 0);
    if (!Its || Its->Paths.contains(Path)) return mFiles.Drop(Held);
    Its->Files.push_back({Path, Held});
    Its->Paths.insert(Path);
    Its->HasChanged = Its->HasChanged || HasParts(*Its);
}

void History::ReplacedBeside(StepID Step, const QString& Path, const QString& Beside) {
    const QString Kept = mFiles.Take(Beside);
    if (Kept.isEmpty())
        Spoil(Step);
    else
        Replaced(Step, Path, Kept);
}

Answer<Undone> History::Undo(const Yield& LetRun) {
    return Move(mDone, mUndone, LetRun);
}

Answer<Undone> History::Redo(const Yield& LetRun) {
    return Move(mUndone, mDone, LetRun);
}

Answer<Undone> History::Move(Steps& From, Steps& To, const Yield& LetRun) {
    Drop(From, [](const auto& Each) { return !Each.HasChanged; });
    if (mIsMoving || From.empty()) return Refuse(tr("There is nothing to take back."));
    const QScopedValueRollback Moving(mIsMoving, true);
    UndoStep Step = std::move(From.back());
    From.pop_back();
    const QString Name = NameOfStep(Step);
    if (const QString Why = WhyNot(Step, mDB); !Why.isEmpty()) {
        DropFilesOf(Step);
        return CannotUndo(Name, Why);
    }
    try {
        Undone Done{Name, PutBackWithFiles(Step, LetRun)};
        Step.Name = Name;
        if (Step.HasChanged)
            To.push_back(std::move(Step));
        else
            DropFilesOf(Step);
        return Done;
    } catch (const Fault& Problem) {
        From.push_back(std::move(Step));
        return CannotUndo(Name, Problem.Text());
    }
}

// In the order of every change: files that the records will name, the records, then files that they
// name no more. The step is its own opposite afterwards.
std::vector<Announcement> History::PutBackWithFiles(UndoStep& Step, const Yield& LetRun) {
    std::vector<UndoStep::File*> Come, Go, Swapped;
    for (auto& Each : Step.Files) (Each.Kept.isEmpty() ? Go : Come).push_back(&Each);
    try {
        for (UndoStep::File* Each : Come) {
            BringBack(*Each);
            Swapped.push_back(Each);
            if (LetRun) LetRun();
        }
        std::vector<Announcement> Told = PutBackRecords(Step);
        if (!Go.empty() && !(mDB.IsSessionStored() && TakeAllAway(Go)))
            Step.HasChanged = false;  // it has no opposite then
        // of an album that has gone again no empty folder stays
        if (Step.Were.Album) DeleteFolder(AlbumFolder(mDB.DBPath(), Step.Were.AlbumID));
        return Told;
    } catch (...) {
        for (UndoStep::File* Each : Swapped)
            if (!Each->Kept.isEmpty())
                BringBack(*Each);
            else if (!TakeAllAway({Each}))
                Step.HasChanged = false;
        throw;
    }
}

std::vector<Announcement> History::PutBackRecords(UndoStep& Step) {
    FitToNow(Step, mDB);
    auto Slides = Reversed(Step.Were.Slides);
    auto Shows = Reversed(Step.Were.Shows);
    const QString NameNow = Step.Were.Name.value_or(QString());
    std::vector<Announcement> Told = PutBack(mDB, Step.Were);
    Step.SlidesNow = std::move(Slides);
    Step.ShowsNow = std::move(Shows);
    Step.NameNow = NameNow;
    return Told;
}

// What lies there is kept in its turn.
void History::BringBack(UndoStep::File& File) {
    const bool IsReplaced = FileExists(File.Path);
    const QString Held = IsReplaced ? mFiles.Hold(File.Path) : QString();
    if (IsReplaced && Held.isEmpty())
        throw Fault(tr("There is no room to keep the file that is there now."), File.Path);
    try {
        mFiles.PutBack(File.Kept, File.Path);
    } catch (...) {
        mFiles.Drop(Held);
        throw;
    }
    File.Kept = Held;
}

// What lies on another disk is kept by a copy. False: some could not be kept and are gone.
bool History::TakeAllAway(const std::vector<UndoStep::File*>& Files) {
    QStringList Paths;
    bool AreKept = true;
    for (UndoStep::File* Each : Files) {
        if (!NameExists(Each->Path)) continue;
        Each->Kept = mFiles.Take(Each->Path);
        if (Each->Kept.isEmpty()) Each->Kept = mFiles.Hold(Each->Path);
        AreKept = AreKept && !Each->Kept.isEmpty();
        Paths << Each->Path;
    }
    DropStored(Paths);
    return AreKept;
}

void KeepHistory(clsDBEngine& theDB) {
    if (!HistoryOf(theDB)) theDB.Listeners.Keeper = std::make_shared<History>(theDB);
}

History* HistoryOf(const clsDBEngine& theDB) {
    return dynamic_cast<History*>(theDB.Listeners.Keeper.get());
}

}  // namespace neb
