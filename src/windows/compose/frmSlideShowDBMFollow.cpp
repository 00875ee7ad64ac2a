// How the slide show manager follows what other windows do. What has been composed and not yet
// saved stays, as far as its slides and its album are still there.
#include <QScopedValueRollback>
#include <algorithm>
#include <unordered_set>

#include "albums/modLoadShow.h"
#include "controls/grid/FlexGrid.h"
#include "controls/grid/GridRows.h"
#include "db/clsDBEngine.h"
#include "settings/modNEBSlideShow.h"
#include "ui_frmSlideShowDBM.h"
#include "windows/compose/frmSlideShowDBM.h"
#include "windows/lists/SlideGrids.h"
#include "windows/lists/SlideRows.h"

namespace neb {
namespace {

// Those that are listed and not in the album any more.
std::vector<std::int32_t> GoneSlides(const FlexGrid& Listed, const clsNEBAlbum& Album) {
    std::unordered_set<std::int32_t> There;
    for (const auto& Slide : Album.Slides) There.insert(Slide->SlideID);
    std::vector<std::int32_t> Gone;
    for (int Row = 0; Row < Listed.Rows(); ++Row)
        if (const std::int32_t SlideID = SlideIn(Listed, Row); !There.contains(SlideID))
            Gone.push_back(SlideID);
    return Gone;
}

}  // namespace

void frmSlideShowDBM::ReceiveEvent(const QString& ObjectType, const QString& EventType,
                                   const EventKeys& EventData) {
    if (EventData.empty()) return;
    const auto Held = shared_from_this();
    mWaiting.push_back({ObjectType, EventType, EventData});
    FollowWaiting();
}

// What changes while an album or a show is read or written is followed behind that.
void frmSlideShowDBM::FollowWaiting() {
    while (!IsBusy() && IsLoaded() && !mWaiting.empty()) {
        const ChangeEvent Next = mWaiting.front();
        mWaiting.erase(mWaiting.begin());
        Follow(Next);
    }
}

void frmSlideShowDBM::Follow(const ChangeEvent& Change) {
    static const struct {
        const char *ObjectType, *EventType;
        size_t LeastKeys;
        void (frmSlideShowDBM::*React)(const EventKeys& Keys);
    } Reactions[] = {
        {"Album", "Delete", 1, &frmSlideShowDBM::AlbumDeleted},
        {"Album", "Insert", 1, &frmSlideShowDBM::AlbumsChanged},
        {"Album", "Update", 1, &frmSlideShowDBM::AlbumsChanged},
        {"Album", "Add Slides", 1, &frmSlideShowDBM::SlidesAdded},
        {"Album", "Delete Slides", 1, &frmSlideShowDBM::SlidesDeleted},
        {"Slide Show", "Delete", 2, &frmSlideShowDBM::ShowDeleted},
        {"Slide Show", "Insert", 2, &frmSlideShowDBM::ShowsChanged},
        {"Slide Show", "Update", 2, &frmSlideShowDBM::ShowsChanged},
    };
    for (const auto& Each : Reactions)
        if (Change.ObjectType == QLatin1String(Each.ObjectType) &&
            Change.EventType == QLatin1String(Each.EventType) &&
            Change.Keys.size() >= Each.LeastKeys)
            (this->*Each.React)(Change.Keys);
}

// The slides of a deleted album are gone: there is nothing left to compose.
void frmSlideShowDBM::AlbumDeleted(const EventKeys& Keys) {
    const bool Shown = Keys[0] == AlbumID();
    ComboBoxList List = Albums();
    const QSignalBlocker Quiet(mUi->cboAlbum);
    if (Shown) List.SetListIndex(-1);
    ComboRemoveByData(List, Keys[0]);
    if (Shown) {
        FinishEdits();
        ClearContent();
    }
    FollowAlbum();
    mUi->cboAlbum->update();
}

void frmSlideShowDBM::AlbumsChanged(const EventKeys& Keys) {
    const std::int32_t Shown = AlbumID();
    {
        const QSignalBlocker Quiet(mUi->cboAlbum);
        ComboBoxList List = Albums();
        DBEngine->LoadAlbumsCombo(List, false);
        if (Shown != 0) ComboSelectByData(List, Shown, -2);
        OpenAsWideAsNames(*mUi->cboAlbum);
        mUi->cboAlbum->update();
    }
    if (AlbumID() != Shown) ClearContent();
    FollowAlbum();
    if (!ShownAlbum() || AlbumID() != Keys[0]) return;
    DropSlides(GoneSlides(*mBuffer, *ShownAlbum()));
    ShowsChanged({Shown, 0});  // an album that was replaced has other shows, too
    SlidesAdded({Shown});
}

void frmSlideShowDBM::SlidesAdded(const EventKeys& Keys) {
    if (!ShownAlbum() || Keys[0] != AlbumID()) return;
    FinishEdits();
    const std::int32_t SlideID = Keys.size() > 1 ? Keys[1] : 0;
    if (SlideID <= 0) return ReadUnderLoading(Read::Changes);
    const clsNEBSlide* Slide = ShownAlbum()->GetSlide(SlideID);
    if (!Slide) return;
    RefreshSlideRows(*Slide);
    RenumberSelected();
    FollowAlbum();
}

// Of thousands that are deleted one by one, each is looked for by itself.
void frmSlideShowDBM::SlidesDeleted(const EventKeys& Keys) {
    clsNEBAlbum* Album = ShownAlbum();
    if (!Album || Keys[0] != AlbumID()) return;
    const std::int32_t SlideID = Keys.size() > 1 ? Keys[1] : 0;
    const bool IsTheOnlyOne = !Album->GetSlide(SlideID) && RowOfSlide(*mBuffer, SlideID) >= 0 &&
                              mBuffer->Rows() == static_cast<int>(Album->Slides.size()) + 1;
    DropSlides(IsTheOnlyOne ? std::vector{SlideID} : GoneSlides(*mBuffer, *Album));
}

// Takes the slides out that the album has no more. A show from which they went so is not changed.
void frmSlideShowDBM::DropSlides(const std::vector<std::int32_t>& Gone) {
    FinishEdits();
    for (std::int32_t SlideID : Gone)
        for (FlexGrid* Grid : {mUi->flxNonSelected, mUi->flxSelected, mBuffer})
            if (const int Row = RowOfSlide(*Grid, SlideID); Row >= 0) Grid->RemoveItem(Row);
    std::erase_if(mAsLoaded.Slides, [&Gone](const ShowSlide& Slide) {
        return std::find(Gone.begin(), Gone.end(), Slide.SlideID) != Gone.end();
    });
    RenumberSelected();
    FollowAlbum();
}

// What the show held stays in the window, from where it can be saved as a new one.
void frmSlideShowDBM::ShowDeleted(const EventKeys& Keys) {
    if (AlbumID() == 0 || Keys[0] != AlbumID()) return;
    const QScopedValueRollback<bool> Quiet(mSuppressShowClick, true);
    ComboBoxList List = Shows();
    if (Keys[1] != 0 && Keys[1] == SlideShowID()) List.SetListIndex(-1);
    ComboRemoveByData(List, Keys[1]);
    mUi->cboSlideShows->update();
}

// A show in which nothing has been changed here is shown as it is now.
void frmSlideShowDBM::ShowsChanged(const EventKeys& Keys) {
    if (!ShownAlbum() || Keys[0] != AlbumID()) return;
    FinishEdits();
    const int Index = mUi->cboSlideShows->currentIndex();
    const std::int32_t Shown = SlideShowID();
    const bool Untouched = Shown != 0 && Shown == Keys[1] && SameContent(Content(), mAsLoaded);
    {
        const QScopedValueRollback<bool> Quiet(mSuppressShowClick, true);
        LoadSlideShowsList();
        ComboBoxList List = Shows();
        if (Shown == 0)
            List.SetListIndex(std::min(Index, List.ListCount() - 1));
        else
            ComboSelectByData(List, Shown, -2);
    }
    if (Untouched) cboSlideShows_Click();
}

}  // namespace neb
