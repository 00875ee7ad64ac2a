// How the slide show manager takes up an album and a show.
#include <QProgressBar>
#include <QScopedValueRollback>

#include "albums/BulkSlides.h"
#include "albums/modLoadShow.h"
#include "controls/forms/ScreenPointer.h"
#include "controls/forms/frmLoading.h"
#include "controls/grid/FlexGrid.h"
#include "controls/grid/GridRows.h"
#include "db/clsDBEngine.h"
#include "settings/modNEBSlideShow.h"
#include "support/Services.h"
#include "ui_frmSlideShowDBM.h"
#include "windows/compose/frmSlideShowDBM.h"
#include "windows/lists/SlideGrids.h"
#include "windows/lists/SlideRows.h"
#include "windows/lists/clsImageBuffer.h"

namespace neb {
// Another album that is chosen while one is being read is read next.
void frmSlideShowDBM::cboAlbum_Click() {
    const auto Held = shared_from_this();
    FollowAlbum();
    mAlbumAgain = mReading;
    if (AlbumID() == 0 || mReading) return;
    do {
        mAlbumAgain = false;
        ClearContent();
        ReadUnderLoading(Read::Album);
    } while (mAlbumAgain && IsLoaded() && AlbumID() != 0);
    if (!IsLoaded() || AlbumID() == 0) return;
    LoadSlideShowsList();
    if (mUi->cboSlideShows->count() > 0) SelectShowIndex(0);
}

// The title, and what the empty lists say.
void frmSlideShowDBM::FollowAlbum() {
    const bool Shown = AlbumID() != 0;
    const QString Name = mUi->cboAlbum->currentText();
    setWindowTitle(Shown ? QStringLiteral("Slide Show Manager - ") + Name
                         : QStringLiteral("Slide Show Manager"));
    const bool NoAlbums = mUi->cboAlbum->count() == 0;
    mUi->flxNonSelected->SetEmptyText(
        NoAlbums ? tr("There is no album yet.\nMake one with New Album in the Album menu.")
        : !Shown ? tr("Choose an album above to see its slides here.")
        : mBuffer->Rows() == 0
            ? tr("This album has no slides.\nAdd some with Slide Manager in the Album menu.")
            : tr("Every slide of the album is in the show."));
    mUi->flxSelected->SetEmptyText(Shown
                                       ? tr("Move slides here:\nthe show plays them in this order.")
                                       : tr("The slides of a show stand here."));
}

void frmSlideShowDBM::ClearContent() {
    for (FlexGrid* Grid : {mUi->flxNonSelected, mUi->flxSelected, mBuffer}) Grid->SetRows(0);
    mUi->txtName->clear();
    ShowTracks({});
    RenumberSelected();
    Shows().Clear();
    mUi->cboSlideShows->update();
}

void frmSlideShowDBM::ReadUnderLoading(Read What) {
    const auto Held = shared_from_this();
    mRead = What;
    mLoadingForm = NewForm<frmLoading>();
    const auto Shown = mLoadingForm;
    try {
        Shown->ShowProgressMeter(*this);
    } catch (...) {
        mLoadingForm = nullptr;
        throw;
    }
    mLoadingForm = nullptr;
    if (!IsLoaded()) return;
    RenumberSelected();
    FollowAlbum();
    FollowWaiting();
}

void frmSlideShowDBM::DoActivity() {
    const auto Held = shared_from_this();
    const PointerScope Working(Pointer::Hourglass);
    const QScopedValueRollback<bool> Reading(mReading, true);
    LoadAlbumSlides();
}

void frmSlideShowDBM::LoadAlbumSlides() {
    DoEvents();
    if (!IsLoaded() || AlbumID() == 0) return;
    const clsNEBAlbum* Album = ShownAlbum();
    if (!Album) {
        MsgBox(QStringLiteral("Album not found."));
        return;
    }
    std::vector<std::int32_t> SlideIDs;
    for (const auto& Slide : Album->Slides) SlideIDs.push_back(Slide->SlideID);
    ReadSlides(SlideIDs);
}

void frmSlideShowDBM::ReadSlides(const std::vector<std::int32_t>& SlideIDs) {
    const auto Loading = mLoadingForm;
    const size_t Count = SlideIDs.size();
    SlideFinder Finder;
    Loading->pgbLoadingProgress()->setMaximum(100);
    MoveBar(*Loading, 0);
    const QuietGrids Quiet(*mUi->flxNonSelected, *mUi->flxSelected);
    for (size_t I = 0; I < Count && !Stopped(); ++I) {
        const clsNEBSlide* Slide = Finder.Find(*ShownAlbum(), SlideIDs[I]);
        if (Slide) RefreshSlideRows(*Slide);
        MoveBar(*Loading, static_cast<int>((I + 1) * 100 / Count));
    }
    Loading->ClearParent();
    Loading->Unload();
}

// At each yield the window may be closed, another album chosen, or this one deleted.
bool frmSlideShowDBM::Stopped() const {
    return !IsLoaded() || mAlbumAgain || !ShownAlbum();
}

// While an album is read for the first time its show is not chosen yet: the lists come with it.
void frmSlideShowDBM::RefreshSlideRows(const clsNEBSlide& Slide) {
    const std::int32_t SlideID = Slide.SlideID;
    const int Known = RowOfSlide(*mBuffer, SlideID);
    const int Row = Known >= 0 ? Known : mBuffer->AddItem();
    LoadSlideRow(*mBuffer, Row, AlbumID(), Slide, mLoadingForm);
    if (mReading && mRead == Read::Album) return;
    if (Known < 0)
        return CopySlideRow(*mBuffer, Row, *mUi->flxNonSelected, mUi->flxNonSelected->AddItem());
    for (FlexGrid* Grid : {mUi->flxNonSelected, mUi->flxSelected})
        RefreshSlideRow(*mBuffer, Row, *Grid);
}

// An empty list where the album is gone.
void frmSlideShowDBM::LoadSlideShowsList() {
    const QScopedValueRollback<bool> Quiet(mSuppressShowClick, true);
    ComboBoxList List = Shows();
    List.Clear();
    clsNEBAlbum* Album = ShownAlbum();
    if (!Album) {
        MsgBox(QStringLiteral("Album not found."));
        return;
    }
    Album->LoadSlideShowsCombo(List);
    List.InsertItem(0, QStringLiteral("<NEW SLIDE SHOW>"), 0);
    OpenAsWideAsNames(*mUi->cboSlideShows);
    mUi->cboSlideShows->update();
}

// A click comes even when the entry was chosen already: it shows the show afresh.
void frmSlideShowDBM::SelectShowIndex(int Index) {
    {
        const QScopedValueRollback<bool> Quiet(mSuppressShowClick, true);
        mUi->cboSlideShows->setCurrentIndex(Index);
    }
    cboSlideShows_Click();
}

void frmSlideShowDBM::cboSlideShows_Click() {
    if (mSuppressShowClick) return;
    const auto Held = shared_from_this();
    if (AlbumID() == 0) {
        MsgBox(QStringLiteral("You must first select an album."));
        return;
    }
    if (mReading) return;
    ShowChosenShow();
    if (!IsLoaded()) return;
    mAsLoaded = Content();
    FollowWaiting();
}

void frmSlideShowDBM::ShowChosenShow() {
    const bool IsNew = mUi->cboSlideShows->currentIndex() < 1;
    const clsNEBAlbum* Album = ShownAlbum();
    const clsNEBSlideShow* Show = Album && !IsNew ? Album->GetSlideShow(SlideShowID()) : nullptr;
    const ShowContent Stored = Show ? StoredShow(*Show) : ShowContent();
    {
        const QScopedValueRollback<bool> Reading(mReading, true);
        const QuietGrids Quiet(*mUi->flxNonSelected, *mUi->flxSelected);
        TakeSlides(Stored);
    }
    if (!IsLoaded()) return;
    if (IsNew || Show) {
        mUi->txtName->setText(Stored.Name);
        mUi->cboProgressionMethod->setCurrentIndex(Stored.ProgressionMethod);
        ShowTracks(Stored.Tracks);
    } else {
        MsgBox(Album ? QStringLiteral("Slide Show not found.")
                     : QStringLiteral("Album not found."));
    }
}

void frmSlideShowDBM::ResetSlideGrids() {
    FlexGrid& All = *mUi->flxNonSelected;
    mUi->flxSelected->SetRows(0);
    All.SetRows(0);
    All.SetRows(mBuffer->Rows());
    for (int Row = 0; Row < mBuffer->Rows(); ++Row) CopySlideRow(*mBuffer, Row, All, Row);
    RenumberSelected();
}

// A slide that is not in the album any more is dropped, and so is a second place of one. What the
// user does meanwhile waits until the show is there.
void frmSlideShowDBM::TakeSlides(const ShowContent& Stored) {
    FlexGrid &From = *mUi->flxNonSelected, &To = *mUi->flxSelected;
    ResetSlideGrids();
    std::vector<int> Taken;
    for (const ShowSlide& Slide : Stored.Slides) {
        DoEventsButInput();
        if (!IsLoaded()) return;
        const int Source = RowOfSlide(From, Slide.SlideID);
        if (Source < 0 || RowOfSlide(To, Slide.SlideID) >= 0) continue;
        const int Row = To.AddItem();
        CopySlideRow(From, Source, To, Row);
        if (!Slide.SlideText.isEmpty())
            To.SetTextMatrix(Row, clsImageBuffer::ColText, Slide.SlideText);
        Taken.push_back(Source);
    }
    std::sort(Taken.rbegin(), Taken.rend());
    if (static_cast<int>(Taken.size()) == From.Rows())
        From.SetRows(0);
    else
        for (int Row : Taken) From.RemoveItem(Row);
    RenumberSelected();
}

ShowContent frmSlideShowDBM::Content() const {
    const FlexGrid& Grid = *mUi->flxSelected;
    ShowContent Now{.AlbumID = AlbumID(),
                    .SlideShowID = SlideShowID(),
                    .Name = mUi->txtName->text(),
                    .ProgressionMethod = mUi->cboProgressionMethod->currentIndex(),
                    .Tracks = Tracks()};
    for (int Row = 0; Row < Grid.Rows(); ++Row)
        Now.Slides.push_back({SlideIn(Grid, Row), Grid.TextMatrix(Row, clsImageBuffer::ColText),
                              Grid.TextMatrix(Row, ColOwnText)});
    return Now;
}

}  // namespace neb
