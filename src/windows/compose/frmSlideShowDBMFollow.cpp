// How the slide show manager takes up an album and a show, and how it follows what other windows
// do, and how the tracks follow the slides. What has been composed and not yet saved stays, as far
// as its slides and its album are still there.
#include <QScopedValueRollback>

#include "albums/BulkSlides.h"
#include "albums/modLoadShow.h"
#include "albums/modSaveShow.h"
#include "controls/forms/Tell.h"
#include "db/clsDBEngine.h"
#include "db/modAlbumFiles.h"
#include "settings/modNEBSlideShow.h"
#include "support/Services.h"
#include "support/Texts.h"
#include "support/modCharacters.h"
#include "ui_frmSlideShowDBM.h"
#include "windows/albums/modAlbumNames.h"
#include "windows/compose/TwoLists.h"
#include "windows/compose/frmSlideShowDBM.h"
#include "windows/compose/modFitAll.h"
#include "windows/frame/modNotice.h"
#include "windows/frame/modWindowState.h"

namespace neb {

ComboBoxList frmSlideShowDBM::Albums() const {
    return ComboBoxList(*mUi->cboAlbum);
}

ComboBoxList frmSlideShowDBM::Shows() const {
    return ComboBoxList(*mUi->cboSlideShows);
}

std::int32_t frmSlideShowDBM::AlbumID() const {
    return Albums().ItemData(mUi->cboAlbum->currentIndex());
}

bool frmSlideShowDBM::IsAbout(std::int32_t Album, std::int32_t Show) const {
    return AlbumID() == Album && SlideShowID() == Show && Show != 0;
}

void frmSlideShowDBM::GoToSlide(std::int32_t SlideID) {
    BringToFront(*this);
    Command([this, SlideID] { mLists->GoTo(SlideID); });
}

std::int32_t frmSlideShowDBM::SlideShowID() const {
    return Shows().ItemData(mUi->cboSlideShows->currentIndex());
}

clsNEBAlbum* frmSlideShowDBM::ShownAlbum() const {
    return DBEngine && AlbumID() != 0 ? DBEngine->GetAlbum(AlbumID()) : nullptr;
}

// Another album that is chosen while one is being read is read next, and shown by who began.
void frmSlideShowDBM::cboAlbum_Click() {
    const auto Held = shared_from_this();
    if (!MayTakeUpAlbum()) return;
    NoteAlbumInHand(AlbumID());
    FollowAlbum();
    if (AlbumID() != 0) LoadAlbumSlides();
}

// The box stands at the album whose show the question is about until that has been answered.
bool frmSlideShowDBM::MayTakeUpAlbum() {
    const std::int32_t Wanted = AlbumID();
    FinishEdits();
    ComboBoxList List = Albums();
    const auto Choose = [&](std::int32_t AlbumID) {
        const QSignalBlocker Quiet(mUi->cboAlbum);
        if (!ComboSelectByData(List, AlbumID, -2)) List.SetListIndex(-1);
        mUi->cboAlbum->update();
    };
    Choose(mDraft.Content().AlbumID);
    const bool Leaves = MayLeave();
    if (Leaves) Choose(Wanted);
    return Leaves;
}

void frmSlideShowDBM::LoadAlbumSlides() {
    SlideReading::Order Slides = AlbumSlides(false);
    Slides.Begin = [this] {
        ClearContent();
        return AlbumID() != 0;
    };
    Slides.MayStop = true;
    const SlideReading::End End = mReading.Read(Slides);
    if (End == SlideReading::End::Again) return;
    if (End == SlideReading::End::Stopped) LeaveAlbum();
    FollowReading();
    if (!IsLoaded() || AlbumID() == 0) return;
    LoadSlideShowsList();
    if (mUi->cboSlideShows->count() > 0) ChooseShow(0, Cause::User);
}

void frmSlideShowDBM::LeaveAlbum() {
    const QSignalBlocker Quiet(mUi->cboAlbum);
    Albums().SetListIndex(-1);
    mUi->cboAlbum->update();
    ClearContent();
    ShowNotice(tr("Stopped; the album is not shown."));
}

void frmSlideShowDBM::RefreshAlbumSlides() {
    mReading.Read(AlbumSlides(true));
    FollowReading();
}

void frmSlideShowDBM::FollowReading() {
    if (!IsLoaded()) return;
    mLists->Renumber();
    FollowAlbum();
    FollowWaiting();
}

// The title, and what the empty lists say.
void frmSlideShowDBM::FollowAlbum() {
    const bool Shown = AlbumID() != 0;
    const QString Name = mUi->cboAlbum->currentText();
    setWindowTitle(Shown ? tr("Slide Show Manager - ") + InOwnDirection(Name)
                         : tr("Slide Show Manager"));
    mLists->SayWhatToDo(mUi->cboAlbum->count() > 0, Shown);
}

void frmSlideShowDBM::ClearContent() {
    mLists->Clear();
    mUi->txtName->clear();
    mUi->flxSoundTracks->ShowTracks({});
    mUi->flxSoundTracks->SetFolder(DBEngine ? SoundTracksFolder(DBEngine->DBPath(), AlbumID())
                                            : QString());
    Shows().Clear();
    mUi->cboSlideShows->update();
    NoteAsStored();
}

// Before a show has been sorted in, all slides are read into the hidden list alone.
SlideReading::Order frmSlideShowDBM::AlbumSlides(bool ListsToo) {
    const auto Enter = ListsToo ? &TwoLists::RefreshSlide : &TwoLists::ReadSlide;
    const auto MakeRow = [this, Enter, Finder = SlideFinder()](std::int32_t SlideID, int) mutable {
        const clsNEBSlide* Slide = Finder.Find(*ShownAlbum(), SlideID);
        if (Slide) (mLists->*Enter)(AlbumID(), *Slide, mReading.Window());
    };
    return {.Keys = [this] { return SlideKeys(); },
            .MakeRow = MakeRow,
            .IsThere = [this] { return ShownAlbum() != nullptr; },
            .Grids = {mUi->flxNonSelected, mUi->flxSelected}};
}

std::optional<SlideReading::KeyList> frmSlideShowDBM::SlideKeys() const {
    const clsNEBAlbum* Album = ShownAlbum();
    if (!Album) {
        MsgBox(tr("Album not found."));
        return {};
    }
    SlideReading::KeyList Keys;
    for (const auto& Slide : Album->Slides) Keys.push_back(Slide->SlideID);
    return Keys;
}

// An empty list where the album is gone.
void frmSlideShowDBM::LoadSlideShowsList() {
    const QSignalBlocker Quiet(mUi->cboSlideShows);
    ComboBoxList List = Shows();
    List.Clear();
    clsNEBAlbum* Album = ShownAlbum();
    if (!Album) return void(MsgBox(tr("Album not found.")));
    Album->LoadSlideShowsCombo(List);
    List.InsertItem(0, tr("<NEW SLIDE SHOW>"), 0);
    OpenAsWideAsNames(*mUi->cboSlideShows);
    mUi->cboSlideShows->update();
}

// The user is shown the show also when its entry was chosen already: afresh.
void frmSlideShowDBM::ChooseShow(int Index, Cause Who) {
    {
        const QSignalBlocker Quiet(mUi->cboSlideShows);
        mUi->cboSlideShows->setCurrentIndex(Index);
    }
    mUi->cboSlideShows->update();
    if (Who == Cause::User)
        ReadShow();
    else
        mDraft.Compose(Content());
}

// The box stands at the show that the question is about until that has been answered.
void frmSlideShowDBM::cboSlideShows_Click() {
    const std::int32_t Wanted = SlideShowID();
    if (AlbumID() != 0)
        ChooseShow(mUi->cboSlideShows->findData(mDraft.Content().SlideShowID), Cause::Program);
    if (MayLeave()) ChooseShow(mUi->cboSlideShows->findData(Wanted), Cause::User);
}

void frmSlideShowDBM::ReadShow() {
    if (AlbumID() == 0) return void(MsgBox(tr("You must first select an album.")));
    if (IsBusy()) return;
    ShowChosenShow();
    if (!IsLoaded()) return;
    NoteAsStored();
    FollowWaiting();
}

void frmSlideShowDBM::NoteAsStored() {
    mDraft.Compose(Content());
    mDraft.SetAsStored();
}

// Nothing is while an album or a show is being taken up, nor where all can but be looked at.
bool frmSlideShowDBM::IsChanged() {
    if (ReadOnlyDB || AlbumID() == 0 || mStep != Step::None) return false;
    mDraft.Compose(Content());
    return mDraft.IsChanged();
}

// What the user does while the slides are sorted in waits until the show is there.
void frmSlideShowDBM::ShowChosenShow() {
    const std::int32_t ShowID = mUi->cboSlideShows->currentIndex() < 1 ? 0 : SlideShowID();
    Answer<ShowContent> Stored = LoadShow(*DBEngine, AlbumID(), ShowID);
    {
        const QScopedValueRollback<Step> Showing(mStep, Step::Showing);
        mLists->TakeShow(Stored ? Stored->Slides : std::vector<ShowSlide>(), [this] {
            DoEventsButInput();
            return IsLoaded();
        });
    }
    if (IsLoaded() && Tell(Stored)) ShowDetails(*Stored);
}

void frmSlideShowDBM::ShowDetails(const ShowContent& Show) {
    mUi->txtName->setText(Show.Name);
    mUi->cboProgressionMethod->setCurrentIndex(Show.ProgressionMethod);
    // what the album has no more is not in the lists
    mUi->flxSoundTracks->ShowTracks(
        TracksFollowing(Show.Tracks, OrderOf(Show.Slides), mLists->Order()));
}

void frmSlideShowDBM::FitAll() {
    TrackList& List = *mUi->flxSoundTracks;
    QStringList Paths;
    for (int Row = 0; Row < List.Rows(); ++Row) Paths << List.PathOf(Row);
    const ShowContent Show = Content();
    Answer<std::vector<ShowTrack>> Fitted = Answer<std::vector<ShowTrack>>(Show.Tracks);
    {
        const QScopedValueRollback<Step> Measuring(mStep, Step::Showing);
        Fitted = FitAllAside(*this, Show, Paths);
    }
    if (IsLoaded() && Tell(Fitted)) List.ShowTracks(*Fitted);
    FollowWaiting();
}

void frmSlideShowDBM::FollowOrder(const SlideOrder& Before, const SlideOrder& After,
                                  const std::set<std::int32_t>& Moved) {
    TrackList& List = *mUi->flxSoundTracks;
    List.ShowPlaces(TracksFollowing(List.Tracks(), Before, After, Moved));
}

ShowContent frmSlideShowDBM::Content() const {
    return {.AlbumID = AlbumID(),
            .SlideShowID = SlideShowID(),
            .Name = mUi->txtName->text(),
            .ProgressionMethod = mUi->cboProgressionMethod->currentIndex(),
            .Slides = mLists->Slides(),
            .Tracks = mUi->flxSoundTracks->Tracks()};
}

// Always false, as nothing is saved. A name that was refused waits to be typed anew.
bool frmSlideShowDBM::TellRefused(const ShowContent& Show, const Answer<>& Why) {
    Tell(Why);
    const clsNEBAlbum* Album = ShownAlbum();
    const auto OfName = Album ? CheckShowName(*Album, Show.SlideShowID, Show.Name) : Why;
    if (OfName.Refusal().Text == Why.Refusal().Text && Album) ReturnTo(*mUi->txtName);
    return false;
}

void frmSlideShowDBM::ReceiveEvent(const QString& ObjectType, const QString& EventType,
                                   const EventKeys& EventData) {
    if (EventData.empty()) return;
    const auto Held = shared_from_this();
    mReading.KeepForLater({ObjectType, EventType, EventData});
    FollowWaiting();
}

// What changes while an album or a show is read or written is followed behind that.
void frmSlideShowDBM::FollowWaiting() {
    while (!IsBusy() && IsLoaded()) {
        const std::optional<Heard> Next = mReading.NextWaiting();
        if (!Next) return;
        Follow(*Next);
    }
}

void frmSlideShowDBM::Follow(const Heard& Change) {
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
    DropSlides(mLists->GoneFrom(*ShownAlbum(), 0));
    ShowsChanged({Shown, 0});  // an album that was replaced has other shows, too
    SlidesAdded({Shown});
}

void frmSlideShowDBM::SlidesAdded(const EventKeys& Keys) {
    if (!ShownAlbum() || Keys[0] != AlbumID()) return;
    FinishEdits();
    const std::int32_t SlideID = Keys.size() > 1 ? Keys[1] : 0;
    if (SlideID <= 0) return RefreshAlbumSlides();
    const clsNEBSlide* Slide = ShownAlbum()->GetSlide(SlideID);
    if (!Slide) return;
    mLists->RefreshSlide(AlbumID(), *Slide, nullptr);
    mLists->Renumber();
    FollowAlbum();
}

void frmSlideShowDBM::SlidesDeleted(const EventKeys& Keys) {
    const clsNEBAlbum* Album = ShownAlbum();
    if (!Album || Keys[0] != AlbumID()) return;
    DropSlides(mLists->GoneFrom(*Album, Keys.size() > 1 ? Keys[1] : 0));
}

// Takes the slides out that the album has no more. A show from which they went so is not changed.
void frmSlideShowDBM::DropSlides(const std::vector<std::int32_t>& Gone) {
    FinishEdits();
    mLists->DropSlides(Gone);
    mDraft.DropSlides(Gone);
    FollowAlbum();
}

// What the show held stays in the window, from where it can be saved as a new one.
void frmSlideShowDBM::ShowDeleted(const EventKeys& Keys) {
    if (AlbumID() == 0 || Keys[0] != AlbumID()) return;
    if (Keys[1] != 0 && Keys[1] == SlideShowID()) ChooseShow(-1, Cause::Program);
    const QSignalBlocker Quiet(mUi->cboSlideShows);
    ComboBoxList List = Shows();
    ComboRemoveByData(List, Keys[1]);
    mUi->cboSlideShows->update();
}

// A show in which nothing has been changed here is shown as it is now.
void frmSlideShowDBM::ShowsChanged(const EventKeys& Keys) {
    if (!ShownAlbum() || Keys[0] != AlbumID()) return;
    FinishEdits();
    const int Index = mUi->cboSlideShows->currentIndex();
    const std::int32_t Shown = SlideShowID();
    mDraft.Compose(Content());
    const bool Untouched = Shown != 0 && Shown == Keys[1] && !mDraft.IsChanged();
    LoadSlideShowsList();
    const int Same = std::min(Index, mUi->cboSlideShows->count() - 1);
    ChooseShow(Shown == 0 ? Same : mUi->cboSlideShows->findData(Shown),
               Untouched ? Cause::User : Cause::Program);
}

}  // namespace neb
