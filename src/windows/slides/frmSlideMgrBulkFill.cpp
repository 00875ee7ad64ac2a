// How the grid of the bulk slide manager is filled, and how it follows the other windows.
#include <QProgressBar>
#include <QScopedValueRollback>

#include "controls/fields/ComboBoxList.h"
#include "controls/forms/ScreenPointer.h"
#include "controls/forms/frmLoading.h"
#include "controls/grid/FlexGrid.h"
#include "db/clsDBEngine.h"
#include "settings/modNEBSlideShow.h"
#include "support/Services.h"
#include "ui_frmSlideMgrBulk.h"
#include "windows/lists/SlideRows.h"
#include "windows/slides/frmSlideMgrBulk.h"

namespace neb {
// An album that changes while it is being shown is shown once more.
void frmSlideMgrBulk::Fill() {
    const auto Held = shared_from_this();
    if (mFilling) {
        mFillAgain = true;
        return;
    }
    do {
        mFillAgain = false;
        mUi->flxAlbum->SetRows(0);
        if (AlbumID() == 0) break;
        if (mLoadingForm) std::exchange(mLoadingForm, nullptr)->Unload();
        mLoadingForm = NewForm<frmLoading>();
        const auto Shown = mLoadingForm;
        Shown->ShowProgressMeter(*this);
    } while (mFillAgain && IsLoaded());
}

void frmSlideMgrBulk::DoActivity() {
    const auto Held = shared_from_this();
    const PointerScope Working(Pointer::Hourglass);
    const QScopedValueRollback<bool> Filling(mFilling, true);
    FillGrid();
}

void frmSlideMgrBulk::FillGrid() {
    mUi->flxAlbum->SetRows(0);
    DoEvents();
    if (!IsLoaded() || AlbumID() == 0) return;
    clsNEBAlbum* Album = ShownAlbum();
    if (!Album) {
        MsgBox(QStringLiteral("Album not found."));
        return;
    }
    Album->SortSlides();
    std::vector<std::int32_t> SlideIDs;
    for (const NameIndexEntry& Row : Album->SlideIndex) SlideIDs.push_back(Row.ID);
    FillRows(SlideIDs);
}

void frmSlideMgrBulk::FillRows(const std::vector<std::int32_t>& SlideIDs) {
    const auto Loading = mLoadingForm;
    const int Count = static_cast<int>(SlideIDs.size());
    SlideFinder Finder;
    Loading->pgbLoadingProgress()->setMaximum(100);
    MoveBar(*Loading, 0);
    mUi->flxAlbum->SetRedraw(false);
    for (int I = 0; I < Count && !Stopped(); ++I) {
        AddSlideRow(Finder, SlideIDs[static_cast<size_t>(I)]);
        MoveBar(*Loading, (I + 1) * 100 / Count);
    }
    mUi->flxAlbum->SetRedraw(true);
    Loading->ClearParent();
    Loading->Unload();
}

// At each yield the window may be closed, the album deleted or its slides changed.
bool frmSlideMgrBulk::Stopped() const {
    return !IsLoaded() || mFillAgain || !ShownAlbum();
}

void frmSlideMgrBulk::AddSlideRow(SlideFinder& Finder, std::int32_t SlideID) {
    const clsNEBSlide* Slide = Finder.Find(*ShownAlbum(), SlideID);
    if (Slide)
        ShowSlide(mUi->flxAlbum->AddItem(), *Slide, mLoadingForm);
    else
        MsgBox(QStringLiteral("Slide could not be found."));
}

// A caption that is being worked on stays.
void frmSlideMgrBulk::ShowSlide(int Row, const clsNEBSlide& Slide,
                                const std::shared_ptr<frmLoading>& Loading) {
    const auto Edited = mEdits.constFind(Slide.SlideID);
    const QString Caption = Edited != mEdits.constEnd() ? *Edited : Slide.SlideText;
    ShowSlideInRow(*mUi->flxAlbum, Row, AlbumID(), Slide, Loading);
    mUi->flxAlbum->SetTextMatrix(Row, clsImageBuffer::ColText, Caption);
}

// Fills the grid anew for a change that came from elsewhere: what was selected and what was typed
// stays.
void frmSlideMgrBulk::Reload() {
    const auto Held = shared_from_this();
    if (mFilling) return Fill();
    FlexGrid& Grid = *mUi->flxAlbum;
    Grid.FinishEdit();
    const std::vector<std::int32_t> Selected = SelectedIDs();
    const std::int32_t Current = Grid.Row() >= 0 ? SlideIn(Grid, Grid.Row()) : 0;
    Fill();
    SelectAgain(Selected, Current);
}

void frmSlideMgrBulk::SelectAgain(const std::vector<std::int32_t>& SlideIDs,
                                  std::int32_t CurrentID) {
    FlexGrid& Grid = *mUi->flxAlbum;
    Grid.SetRedraw(false);
    for (std::int32_t SlideID : SlideIDs)
        if (const int Row = RowOfSlide(*mUi->flxAlbum, SlideID); Row >= 0) Grid.SelectRow(Row);
    Grid.SetRedraw(true);
    MakeCurrent(RowOfSlide(*mUi->flxAlbum, CurrentID));
}

void frmSlideMgrBulk::ReceiveEvent(const QString& ObjectType, const QString& EventType,
                                   const EventKeys& EventData) {
    static const struct {
        const char* EventType;
        void (frmSlideMgrBulk::*React)(const EventKeys& Keys);
    } Reactions[] = {
        {"Delete", &frmSlideMgrBulk::AlbumDeleted},
        {"Insert", &frmSlideMgrBulk::AlbumsChanged},
        {"Update", &frmSlideMgrBulk::AlbumsChanged},
        {"Add Slides", &frmSlideMgrBulk::SlidesAdded},
        {"Delete Slides", &frmSlideMgrBulk::SlidesDeleted},
    };
    if (ObjectType != u"Album" || EventData.empty()) return;
    for (const auto& Each : Reactions)
        if (EventType == QLatin1String(Each.EventType)) (this->*Each.React)(EventData);
}

void frmSlideMgrBulk::AlbumDeleted(const EventKeys& Keys) {
    const bool Shown = Keys[0] == AlbumID();
    ComboBoxList Albums(*mUi->cboAlbum);
    ComboRemoveByData(Albums, Keys[0]);
    if (Shown)
        AlbumChosen();
    else
        FollowAlbum();
}

void frmSlideMgrBulk::AlbumsChanged(const EventKeys& Keys) {
    const std::int32_t Shown = AlbumID();
    ListAlbums(Shown == 0 ? -1 : Shown);
    if (AlbumID() != Shown) return AlbumChosen();
    FollowAlbum();
    if (Shown != 0 && Shown == Keys[0]) Reload();
}

void frmSlideMgrBulk::SlidesAdded(const EventKeys& Keys) {
    const std::int32_t SlideID = Keys.size() > 1 ? Keys[1] : 0;
    if (Keys[0] != AlbumID()) return;
    if (SlideID == 0 || mFilling) return Reload();
    clsNEBAlbum* Album = ShownAlbum();
    const clsNEBSlide* Slide = Album ? Album->GetSlide(SlideID) : nullptr;
    if (!Slide) return;
    mUi->flxAlbum->FinishEdit();
    const int Row = RowOfSlide(*mUi->flxAlbum, SlideID);
    ShowSlide(Row >= 0 ? Row : mUi->flxAlbum->AddItem(), *Slide, nullptr);
}

// An editor that is open on another row would not be known as one any more, and its text be lost.
void frmSlideMgrBulk::SlidesDeleted(const EventKeys& Keys) {
    if (Keys[0] != AlbumID() || Keys.size() < 2) return;
    mUi->flxAlbum->FinishEdit();
    mEdits.remove(Keys[1]);
    if (mFilling) return Fill();
    if (const int Row = RowOfSlide(*mUi->flxAlbum, Keys[1]); Row >= 0)
        mUi->flxAlbum->RemoveItem(Row);
}

}  // namespace neb
