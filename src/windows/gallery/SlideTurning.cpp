#include "windows/gallery/SlideTurning.h"

#include "albums/KeepingChoice.h"
#include "albums/SlideSave.h"
#include "controls/forms/ScreenPointer.h"
#include "controls/forms/frmProgress.h"
#include "controls/picture/PictureView.h"
#include "db/clsDBEngine.h"
#include "settings/modNEBSlideShow.h"
#include "support/Grouped.h"
#include "support/ReasonOf.h"
#include "support/work/WorkAside.h"

namespace neb {
namespace {

constexpr size_t FewTurns = 3;  // are done before a window would be up

}  // namespace

SlideTurning::SlideTurning(std::int32_t AlbumID, std::vector<std::int32_t> SlideIDs, int Quarters)
    : mAlbumID(AlbumID), mSlideIDs(std::move(SlideIDs)), mQuarters(Quarters) {}

SlideTurning::~SlideTurning() = default;

void SlideTurning::Run() {
    if (mSlideIDs.size() > FewTurns) {
        mProgress = NewForm<frmProgress>();
        mProgress->ShowProgressMeter(*this);
    } else {
        const PointerScope Working(Pointer::Hourglass);
        for (const std::int32_t SlideID : mSlideIDs) TryToTurn(SlideID);
    }
    if (mProblems.isEmpty()) return;
    const QString Told =
        mProblems.size() == 1
            ? mProblems.first()
            : frmProgress::tr("%1 slides could not be turned.").arg(Grouped(mProblems.size()));
    BoxRequest Box{
        .Text = Told, .Title = frmProgress::tr("Turning Slides"), .Icon = BoxIcon::Information};
    if (mProblems.size() > 1) Box.Details = mProblems.join(QStringLiteral("\n\n"));
    TheServices().Boxes->Show(Box);
}

void SlideTurning::StartOperation() {
    mProgress->setWindowTitle(frmProgress::tr("Turning Slides ..."));
    mProgress->SupportsStop(true);
    const int Count = static_cast<int>(mSlideIDs.size());
    for (int I = 0; I < Count && !mProgress->IsStopped() && DBEngine; ++I) {
        TryToTurn(mSlideIDs[static_cast<size_t>(I)]);
        mProgress->ShowCount(I + 1, Count);
        mProgress->Refresh();
        DoEvents();
    }
}

void SlideTurning::TryToTurn(std::int32_t SlideID) {
    try {
        Turn(SlideID);
    } catch (const std::exception& Problem) {
        mProblems << ReasonOf(Problem);
    }
}

// One that has gone meanwhile needs no word.
void SlideTurning::Turn(std::int32_t SlideID) {
    clsNEBAlbum* Album = DBEngine->GetAlbum(mAlbumID);
    const clsNEBSlide* Stored = Album ? Album->GetSlide(SlideID) : nullptr;
    if (!Stored) return;
    const PictureKeeping Keeping = ReadKeeping(OpenSettings(), PictureView::LargestScreen());
    auto Work = [DBPath = DBEngine->DBPath(), ID = mAlbumID, Slide = *Stored, Quarters = mQuarters,
                 Keeping] { return TurnSlide(DBPath, ID, Slide, Quarters, Keeping); };
    TurnedSlide Turned = FinishAside(std::move(Work)).get();
    if (!DBEngine) return;  // the program has been ended meanwhile
    Answer<Announcement> Saved =
        SaveSlide(*DBEngine, nullptr, Turned.InHand, [Jpeg = Turned.Jpeg] { return Jpeg; });
    if (Saved)
        Saved->Now();
    else
        mProblems << Saved.Refusal().Text;
}

}  // namespace neb
