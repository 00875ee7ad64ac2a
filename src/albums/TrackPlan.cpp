#include "albums/TrackPlan.h"

#include <algorithm>

#include "albums/modImport.h"
#include "db/AlbumSums.h"
#include "db/Changes.h"
#include "db/modAlbumFiles.h"
#include "support/Fault.h"
#include "support/files/modHostFiles.h"
#include "support/modFUFL.h"

namespace neb {
namespace {

bool SameName(const QString& One, const QString& Other) {
    return One.toUpper() == Other.toUpper();
}

class Planner {
  public:
    Planner(const QString& Folder, std::int32_t SlideShowID, const std::vector<ShowTrack>& Tracks,
            const std::set<QString>& Named)
        : mStem(FileStem(SlideShowID)), mRows(Tracks), mNamed(Named) {
        mPlan.Folder = Folder;
    }

    TrackPlan Plan(const std::vector<QString>& Stored) {
        for (size_t Row = 0; Row < mRows.size(); ++Row) KeepPlayed(Row);
        for (size_t Row = 0; Row < mRows.size(); ++Row) TakeIn(Row);
        for (const QString& Name : Stored)
            if (IsUnused(Name)) mPlan.Deletions.push_back(mPlan.Folder + Name);
        for (const ShowTrack& Row : mRows) mPlan.Names.push_back(Row.SoundTrackLoc);
        return mPlan;
    }

  private:
    QString Numbered(size_t Number, const QString& Like) const {
        return mStem + u'_' + QString::number(Number) + GetFileExt(GetFileName(Like));
    }
    QString PlaceFor(size_t Row) const {
        return mPlan.Folder + Numbered(Row + 1, mRows[Row].SoundTrackLoc);
    }
    bool IsNamed(const QString& Path) const { return mNamed.contains(GetFileName(Path).toUpper()); }
    bool Plays(const ShowTrack& Track, const QString& Path) const {
        if (!Track.IsFilled()) return false;
        const QString& Loc = Track.SoundTrackLoc;
        return ResolvePath(HoldsSeparator(Loc) ? Loc : mPlan.Folder + Loc) == ResolvePath(Path);
    }

    void KeepPlayed(size_t Row) {
        if (!mRows[Row].IsNewFile()) return;
        const QString Place = PlaceFor(Row);
        if (!FileExists(Place) || IsNamed(Place)) return;
        QString Kept;
        for (size_t Other = 0; Other < mRows.size(); ++Other) {
            if (Other == Row || !Plays(mRows[Other], Place)) continue;
            if (Kept.isEmpty()) Kept = KeepBeside(Place);
            mRows[Other].SoundTrackLoc = Kept;
        }
    }
    QString KeepBeside(const QString& Place) {
        const QString Beside = PlaceBeside(Place);
        mPlan.Copies.push_back({Place, Beside});
        return GetFileName(Beside);
    }
    QString PlaceBeside(const QString& Like) const {
        size_t Number = 100;  // the rows are numbered up to 99
        while (IsTaken(mPlan.Folder + Numbered(Number, Like))) ++Number;
        return mPlan.Folder + Numbered(Number, Like);
    }
    bool IsTaken(const QString& Path) const {
        const auto& Copies = mPlan.Copies;
        return IsNamed(Path) || NameExists(Path) ||
               std::any_of(Copies.begin(), Copies.end(),
                           [&](const TrackPlan::Copy& Each) { return SameName(Each.To, Path); });
    }

    // A file that was chosen where it lies already is not copied onto itself.
    void TakeIn(size_t Row) {
        ShowTrack& Track = mRows[Row];
        if (!Track.IsNewFile()) return TellApart(Row);
        QString Place = PlaceFor(Row);
        if (IsNamed(Place)) Place = PlaceBeside(Place);
        if (ResolvePath(Track.SoundTrackLoc) != ResolvePath(Place))
            mPlan.Copies.push_back({Track.SoundTrackLoc, Place});
        Track.SoundTrackLoc = GetFileName(Place);
    }

    // One copy serves all rows that play it.
    void TellApart(size_t Row) {
        const QString Shared = mRows[Row].SoundTrackLoc;
        if (!mRows[Row].IsFilled() || !IsNamed(Shared) || !CanReadFile(mPlan.Folder + Shared))
            return;
        const QString Place = PlaceFor(Row), Own = IsTaken(Place) ? PlaceBeside(Place) : Place;
        mPlan.Copies.push_back({mPlan.Folder + Shared, Own});
        for (ShowTrack& Each : mRows)
            if (Each.IsFilled() && SameName(Each.SoundTrackLoc, Shared))
                Each.SoundTrackLoc = GetFileName(Own);
    }

    bool IsUnused(const QString& Name) const {
        return !Name.isEmpty() && !HoldsSeparator(Name) && !IsNamed(Name) &&
               std::none_of(mRows.begin(), mRows.end(), [&](const ShowTrack& Row) {
                   return Row.IsFilled() && SameName(Row.SoundTrackLoc, Name);
               });
    }

    QString mStem;
    std::vector<ShowTrack> mRows;
    const std::set<QString>& mNamed;
    TrackPlan mPlan;
};

// Where there are no second names a copy serves. A full disk ends the save as ever.
bool CanBeHeld(const QString& File, const QString& Copy, const Yield& LetRun) {
    try {
        HostReader Readable(File);
    } catch (const Fault&) {
        return false;
    }
    CopyFile(File, Copy, LetRun);
    return true;
}

}  // namespace

TrackPlan PlanTracks(const QString& Folder, std::int32_t SlideShowID,
                     const std::vector<ShowTrack>& Tracks, const std::vector<QString>& Stored,
                     const std::set<QString>& Named) {
    return Planner(Folder, SlideShowID, Tracks, Named).Plan(Stored);
}

TrackCopies::~TrackCopies() {
    if (mKept) return;
    std::for_each(mSteps.rbegin(), mSteps.rend(), &TrackCopies::TakeBack);
}

void TrackCopies::TakeBack(const Step& What) {
    if (!What.Placed)
        DropFile(What.Made);
    else if (!What.Replaces)
        DropStored({What.To});
    if (What.Before.isEmpty()) return;
    if (!What.Placed) return DropFile(What.Before);
    try {
        PutStored(What.Before, What.To);
    } catch (const std::exception&) {
        return;  // the fault before is the one to tell; the file is still there under that name
    }
}

void TrackCopies::Make(const Yield& LetRun) {
    if (mPlan.Copies.empty()) return;
    MakeDirs(mPlan.Folder);
    for (const TrackPlan::Copy& Each : mPlan.Copies) MakeOne(Each, LetRun);
    HoldReplaced(LetRun);
    SyncDir(mPlan.Folder);
}

void TrackCopies::MakeOne(const TrackPlan::Copy& What, const Yield& LetRun) {
    mSteps.push_back({What.To, What.To + QStringLiteral(".new"), {}, NameExists(What.To)});
    const QString& Made = mSteps.back().Made;
    try {
        CopyFile(What.From, Made, LetRun);
    } catch (const Fault& Problem) {
        // the user knows the file by its own name
        if (Problem.File().startsWith(Made)) throw Fault(Problem.What(), What.To, Problem.Number());
        throw;
    }
}

// A file that is about to be replaced stays at hand under a second name. One that cannot be read is
// often just what the user wants to replace: it is not worth the save.
void TrackCopies::HoldReplaced(const Yield& LetRun) {
    for (Step& Each : mSteps) {
        if (!Each.Replaces) continue;
        const QString Before = Each.To + QStringLiteral(".old");
        if (LinkFile(Each.To, Before) || CanBeHeld(Each.To, Before, LetRun)) Each.Before = Before;
    }
}

void TrackCopies::PutInPlace() {
    for (Step& Each : mSteps) {
        try {
            PutStored(Each.Made, Each.To);
        } catch (...) {
            Each.Placed = !NameExists(Each.Made);
            throw;
        }
        Each.Placed = true;
    }
    if (!mSteps.empty()) SyncDir(mPlan.Folder);
}

void TrackCopies::Keep(Changes& Door) {
    mKept = true;
    for (const Step& Each : mSteps) {
        if (Each.Replaces && Each.Before.isEmpty())
            Door.Spoil();
        else
            Door.FileReplaced(Each.To, Each.Before);
        if (!Each.Before.isEmpty()) DropFile(Each.Before);
    }
}

void TrackCopies::DropUnused(Changes& Door) {
    Door.DropFiles({mPlan.Deletions.begin(), mPlan.Deletions.end()});
}

}  // namespace neb
