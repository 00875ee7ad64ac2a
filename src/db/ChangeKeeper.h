// Who keeps what changes take away, so that they can be undone: what things were, and the files
// that would go. db/Changes tells it all where the database has one (db/undo/History.h is the one
// there is); without it files are deleted at once.
#pragma once

#include <memory>
#include <optional>

#include "db/Change.h"
#include "db/clsNEBAlbum.h"

namespace neb {

// What one door does: it is undone at once, as it was done. 0: nothing that can be undone.
using StepID = std::uint64_t;

// A thing as it is or was, at its place among its like; Was is null where it is not there.
template <class Thing>
struct ThingAt {
    std::int32_t ID = 0;
    size_t Place = 0;  // counts where it is put in
    std::unique_ptr<Thing> Was = {};
};

// Some of what an album holds, or the album as a whole.
struct AlbumParts {
    std::int32_t AlbumID = 0;
    std::vector<ThingAt<clsNEBSlide>> Slides = {};  // in the order in which they changed
    std::vector<ThingAt<clsNEBSlideShow>> Shows = {};
    std::optional<ThingAt<clsNEBAlbum>> Album = {};
    std::optional<QString> Name = {};
};

class ChangeKeeper {
  public:
    virtual ~ChangeKeeper() = default;
    virtual StepID NextStep() = 0;

    // After the change has been noted. Before: as it was; Now: as it is, null where it has gone.
    virtual void SlideChanged(StepID Step, std::int32_t AlbumID, ThingAt<clsNEBSlide> Before,
                              const clsNEBSlide* Now) = 0;
    virtual void ShowChanged(StepID Step, std::int32_t AlbumID, ThingAt<clsNEBSlideShow> Before,
                             const clsNEBSlideShow* Now) = 0;
    virtual void AlbumDeleted(StepID Step, ThingAt<clsNEBAlbum> Before) = 0;
    virtual void AlbumRenamed(StepID Step, std::int32_t AlbumID, const QString& Before,
                              const QString& Now) = 0;
    // Of every change, whether it can be undone or not.
    virtual void Changed(const Change& What) = 0;
    // All records are others now.
    virtual void DropAll() = 0;

    // The step is called so in the place of what its changes say, such as "Turn Slide".
    virtual void Call(StepID Step, const QString& Verb) = 0;
    // It has done what cannot be undone, and so the whole of it cannot.
    virtual void Spoil(StepID Step) = 0;

    // Takes a file, folder or link away from its place. False, and the step is spoiled, where it
    // cannot be kept: it is still there, for the caller to delete. What is not there is noted so.
    virtual bool Take(StepID Step, const QString& Path) = 0;
    // A second name of a file that is about to be replaced; empty where there is none to be had.
    virtual QString Hold(const QString& Path) = 0;
    virtual void LetGo(const QString& Held) = 0;
    // Path has been replaced. Held: by Hold; empty: nothing was there.
    virtual void Replaced(StepID Step, const QString& Path, const QString& Held) = 0;
    // The same for a file that lies beside it until now.
    virtual void ReplacedBeside(StepID Step, const QString& Path, const QString& Beside) = 0;
};

}  // namespace neb
