// How the grid of the bulk slide manager is filled, and how it follows the other windows.
#include "controls/fields/ComboBoxList.h"
#include "controls/grid/FlexGrid.h"
#include "db/clsDBEngine.h"
#include "settings/modNEBSlideShow.h"
#include "support/Services.h"
#include "ui_frmSlideMgrBulk.h"
#include "windows/lists/SlideRows.h"
#include "windows/lists/clsImageBuffer.h"
#include "windows/slides/frmSlideMgrBulk.h"

namespace neb {

// An album that changes while it is being shown is shown once more.
void frmSlideMgrBulk::Fill() {
    const auto Finder = std::make_shared<SlideFinder>();
    mReading.Read({
        .Begin =
            [this] {
                mUi->flxAlbum->SetRows(0);
                return AlbumID() != 0;
            },
        .Keys = [this] { return SlidesToList(); },
        .MakeRow = [this, Finder](std::int32_t SlideID, int) { AddSlideRow(*Finder, SlideID); },
        .IsThere = [this] { return ShownAlbum() != nullptr; },
        .Grids = {mUi->flxAlbum},
    });
}

std::optional<SlideReading::KeyList> frmSlideMgrBulk::SlidesToList() {
    clsNEBAlbum* Album = ShownAlbum();
    if (!Album) {
        MsgBox(QStringLiteral("Album not found."));
        return {};
    }
    Album->SortSlides();
    SlideReading::KeyList SlideIDs;
    for (const NameIndexEntry& Row : Album->SlideIndex) SlideIDs.push_back(Row.ID);
    return SlideIDs;
}

void frmSlideMgrBulk::AddSlideRow(SlideFinder& Finder, std::int32_t SlideID) {
    if (const clsNEBSlide* Slide = Finder.Find(*ShownAlbum(), SlideID))
        ShowSlide(mUi->flxAlbum->AddItem(), *Slide);
    else
        MsgBox(QStringLiteral("Slide could not be found."));
}

// A caption that is being worked on stays.
void frmSlideMgrBulk::ShowSlide(int Row, const clsNEBSlide& Slide) {
    const QString Caption = mEdits.ShownOf(Slide);
    ShowSlideInRow(*mUi->flxAlbum, Row, AlbumID(), Slide, mReading.Window());
    mUi->flxAlbum->SetTextMatrix(Row, clsImageBuffer::ColText, Caption);
}

// Fills the grid anew for a change that came from elsewhere: what was selected and what was typed
// stays.
void frmSlideMgrBulk::Reload() {
    if (mReading.IsReading()) return Fill();
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
        ShowAlbum();
    else
        FollowAlbum();
}

void frmSlideMgrBulk::AlbumsChanged(const EventKeys& Keys) {
    const std::int32_t Shown = AlbumID();
    ListAlbums(Shown == 0 ? -1 : Shown);
    if (AlbumID() != Shown) return ShowAlbum();
    FollowAlbum();
    if (Shown != 0 && Shown == Keys[0]) Reload();
}

void frmSlideMgrBulk::SlidesAdded(const EventKeys& Keys) {
    const std::int32_t SlideID = Keys.size() > 1 ? Keys[1] : 0;
    if (Keys[0] != AlbumID()) return;
    if (SlideID == 0 || mReading.IsReading()) return Reload();
    clsNEBAlbum* Album = ShownAlbum();
    const clsNEBSlide* Slide = Album ? Album->GetSlide(SlideID) : nullptr;
    if (!Slide) return;
    mUi->flxAlbum->FinishEdit();
    const int Row = RowOfSlide(*mUi->flxAlbum, SlideID);
    ShowSlide(Row >= 0 ? Row : mUi->flxAlbum->AddItem(), *Slide);
}

// An editor that is open on another row would not be known as one any more, and its text be lost.
void frmSlideMgrBulk::SlidesDeleted(const EventKeys& Keys) {
    if (Keys[0] != AlbumID() || Keys.size() < 2) return;
    mUi->flxAlbum->FinishEdit();
    mEdits.Forget(Keys[1]);
    if (mReading.IsReading()) return Fill();
    if (const int Row = RowOfSlide(*mUi->flxAlbum, Keys[1]); Row >= 0)
        mUi->flxAlbum->RemoveItem(Row);
}

}  // namespace neb
