// One thing that the user has done, as it is kept to be undone: what was before, what it has
// become, and the files that went for it. For History; nothing here changes a database.
#pragma once

#include <QHash>
#include <QSet>

#include "db/ChangeKeeper.h"

namespace neb {

class clsDBEngine;

struct UndoStep {
    struct File {
        QString Path;
        QString Kept;  // what is to lie there again; empty: nothing
    };

    StepID ID = 0;
    QString Verb;     // where its changes do not say what it was
    QString Name;     // once it has been undone: as it was called before
    AlbumParts Were;  // each thing once, as it was
    // As the step has left them, in the order of Were; null where they have gone.
    std::vector<std::unique_ptr<clsNEBSlide>> SlidesNow = {};
    std::vector<std::unique_ptr<clsNEBSlideShow>> ShowsNow = {};
    QString NameNow;
    std::vector<File> Files = {};                  // each path once
    QSet<QString> Paths = {};                      // of Files
    QHash<std::int32_t, size_t> SlidePlaces = {};  // in Were.Slides, by SlideID
    bool HasChanged = false;                       // else it has nothing to undo
};

// The slides of an album by their numbers, of two with one number the first; as long as the album
// stays as it is.
class SlidesByID {
  public:
    explicit SlidesByID(const clsNEBAlbum& Album);
    clsNEBSlide* Find(std::int32_t SlideID) const { return mSlides.value(SlideID, nullptr); }

  private:
    QHash<std::int32_t, clsNEBSlide*> mSlides;
};

// What a menu calls it: Delete Slide "Garden".
QString NameOfStep(const UndoStep& Step);
// Whether both are about one thing, or one file.
bool ShareAnything(const UndoStep& One, const UndoStep& Other);
bool IsSameSlide(const clsNEBSlide& One, const clsNEBSlide& Other);
bool IsSameShow(const clsNEBSlideShow& One, const clsNEBSlideShow& Other);

// Why it cannot be undone as things are now: something else has changed them since. Empty: it can.
QString WhyNot(const UndoStep& Step, const clsDBEngine& Engine);
// Lets stand what others have changed of a slide since, and gives what comes back another name
// where its own is taken. Only where nothing speaks against it.
void FitToNow(UndoStep& Step, const clsDBEngine& Engine);

}  // namespace neb
