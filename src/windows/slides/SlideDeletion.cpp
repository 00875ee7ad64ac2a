#include "windows/slides/SlideDeletion.h"

#include "controls/forms/PaintRate.h"
#include "controls/forms/ScreenPointer.h"
#include "controls/forms/frmProgress.h"
#include "settings/modNEBSlideShow.h"
#include "support/Services.h"

namespace neb {

SlideDeletion::SlideDeletion(const QWidget& Window, std::int32_t AlbumID,
                             std::vector<std::int32_t> SlideIDs, std::function<bool()> IsWanted)
    : mWindow(Window),
      mAlbumID(AlbumID),
      mSlideIDs(std::move(SlideIDs)),
      mIsWanted(std::move(IsWanted)),
      mProgress(NewForm<frmProgress>()) {}

SlideDeletion::~SlideDeletion() = default;

SlideTally SlideDeletion::Run() {
    mProgress->ShowProgressMeter(*this);
    return mTally;
}

// At each yield the window may go, or the album, or the user stops it: what is left then stays.
void SlideDeletion::StartOperation() {
    if (!mIsWanted()) return;
    const PointerScope Working(Pointer::Hourglass);
    mProgress->setWindowTitle(frmProgress::tr("Deleting Slides ..."));
    mProgress->SupportsStop(true);
    const int Count = static_cast<int>(mSlideIDs.size());
    int Done = 0;
    mProgress->ShowCount(Done, Count);
    PaintRate Rate;
    mTally = DeleteSlides(*DBEngine, &mWindow, mAlbumID, mSlideIDs, [&] {
        mProgress->ShowCount(++Done, Count);
        if (Rate.IsDue()) {
            mProgress->Refresh();
            DoEvents();
        }
        return !mProgress->IsStopped() && mIsWanted();
    });
}

}  // namespace neb
