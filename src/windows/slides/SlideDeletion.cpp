#include "windows/slides/SlideDeletion.h"

#include <QProgressBar>

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

// At each yield the window may go, or the album: what is left then stays.
void SlideDeletion::StartOperation() {
    if (!mIsWanted()) return;
    const PointerScope Working(Pointer::Hourglass);
    QProgressBar& Bar = *mProgress->pgbLoadingProgress();
    mProgress->setWindowTitle(frmProgress::tr("Deleting Slides ..."));
    Bar.setMaximum(static_cast<int>(mSlideIDs.size()));
    Bar.setValue(0);
    PaintRate Rate;
    mTally = DeleteSlides(*DBEngine, &mWindow, mAlbumID, mSlideIDs, [&] {
        Bar.setValue(Bar.value() + 1);
        if (Rate.IsDue()) DoEvents();
        return mIsWanted();
    });
}

}  // namespace neb
