// What becomes of a show's sound files when it is saved: found out first, without touching any,
// then carried out so that a fault on the way leaves everything as it was. For modSaveShow.
#pragma once

#include <set>
#include <vector>

#include "albums/ShowContent.h"
#include "support/KeepGoing.h"

namespace neb {

class Changes;

struct TrackPlan {
    struct Copy {
        QString From, To;  // full paths; To may be there already
        bool operator==(const Copy&) const = default;
    };
    QString Folder;  // the album's folder of tracks, with closing separator
    std::vector<Copy> Copies;
    std::vector<QString> Names;      // what each row's SoundTrackLoc is then
    std::vector<QString> Deletions;  // full paths: what the show played and plays no longer
};

// The plan for these rows of the show, of which Stored are the files that it has now. A new file
// takes the show's number and its row's as its name. Where another row still plays the file that
// has this name, that one is kept under a number from 100 up, which no row has.
// Named are the files, in upper case, that other shows or slides name: none of them is replaced or
// deleted, and of one that this show plays as well it gets a copy of its own. One that cannot be
// read stays what the row names.
TrackPlan PlanTracks(const QString& Folder, std::int32_t SlideShowID,
                     const std::vector<ShowTrack>& Tracks, const std::vector<QString>& Stored,
                     const std::set<QString>& Named = {});

// The copies of a plan while they are made. Unless they are kept, the end of its life takes all
// of them back: the folder is then as it was.
class TrackCopies {
  public:
    explicit TrackCopies(TrackPlan Plan) : mPlan(std::move(Plan)) {}
    ~TrackCopies();
    TrackCopies(const TrackCopies&) = delete;
    TrackCopies& operator=(const TrackCopies&) = delete;

    const TrackPlan& Plan() const { return mPlan; }
    // Makes all copies, flushed, under names of their own, and lets go of none of the files that
    // are there. LetRun is called all the while. Throws Fault.
    void Make(const Yield& LetRun);
    void PutInPlace();  // by renaming, flushed, with their lines in the album's sums. Throws Fault
    // From here on nothing is taken back; what was replaced is handed to the door of the change.
    void Keep(Changes& Door);
    void DropUnused(Changes& Door);  // what cannot be deleted stays

  private:
    struct Step {
        QString To;
        QString Made;    // where the copy is until then
        QString Before;  // where the file lies meanwhile that this one takes the place of
        bool Replaces = false, Placed = false;
    };
    void MakeOne(const TrackPlan::Copy& What, const Yield& LetRun);
    void HoldReplaced(const Yield& LetRun);
    static void TakeBack(const Step& What);

    TrackPlan mPlan;
    std::vector<Step> mSteps;
    bool mKept = false;
};

}  // namespace neb
