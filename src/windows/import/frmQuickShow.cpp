#include "windows/import/frmQuickShow.h"

#include <algorithm>
#include <numeric>

#include "albums/library/ProposedName.h"
#include "controls/fields/KeyFilter.h"
#include "controls/forms/Tell.h"
#include "controls/forms/frmProgress.h"
#include "controls/grid/FlexGrid.h"
#include "db/clsDBEngine.h"
#include "settings/modNEBSlideShow.h"
#include "support/ReasonOf.h"
#include "support/Services.h"
#include "support/Texts.h"
#include "support/modDEValidation.h"
#include "support/modFUFL.h"
#include "ui_ImportForm.h"
#include "windows/albums/modAlbumNames.h"
#include "windows/frame/modWindowState.h"
#include "windows/show/modSlideShows.h"

namespace neb {
namespace {

const WindowMemory QuickMemory{QStringLiteral("frmQuickShow"), 6540};
constexpr std::int32_t Automatic = 0;  // ProgressionMethod

}  // namespace

frmQuickShow::frmQuickShow() : ImportForm(QuickMemory) {
    setObjectName(QStringLiteral("frmQuickShow"));
    setWindowTitle(tr("Quick Show"));
    mUi->cmdImport->setText(tr("Sa&ve"));  // Alt+S opens a menu of the main window
    mUi->cmdImport->setAccessibleName(tr("Save"));
    mUi->cmdImport->setToolTip(tr("Create an Album and Slide Show from the Selected Pictures"));
    KeepNameClean(*mUi->txtName);
    // Enter saves; on a button that was gone to by keys it presses that one
    for (auto* Each : findChildren<QPushButton*>()) Each->setAutoDefault(true);
}

void frmQuickShow::Open(const QStringList& Named, const QString& AtPicture) {
    mOpened.AtPicture = AtPicture;
    mOpened.Named = Named;
    if (!IsLoaded()) return SetNamed(Named);
    Command([this, Named] { ReadDropped(Named); });
}

bool frmQuickShow::IsWaitingEmpty() const {
    const bool Named = !mUi->txtName->text().isEmpty() && mUi->txtName->text() != mOpened.Name;
    return IsFree() && !Named && !IsMade() && mUi->flxSelected->Rows() == 0 &&
           mUi->flxNonSelected->Rows() == 0;
}

// The folder's own name is what most people would type. Whoever begins anew with another folder
// gets that one's name; a name that was typed stays.
void frmQuickShow::DirectoryChosen(const QString& Directory) {
    const bool Typed = !mUi->txtName->text().isEmpty() && mUi->txtName->text() != mOpened.Name;
    const bool Begun = mUi->flxSelected->Rows() > 0 || mUi->flxNonSelected->Rows() > 0;
    if (Typed || Begun || mUi->txtName->isReadOnly()) return;
    ProposeName(Directory);
}

void frmQuickShow::ProposeName(const QString& Directory) {
    mOpened.Directory = Directory;
    mOpened.Name = ProposedAlbumName(Directory, *DBEngine);
    mUi->txtName->setText(mOpened.Name);
}

// Whoever opens a folder wants to see all of it: one Enter from here it runs.
void frmQuickShow::PicturesOpened(int First) {
    if (ReadOnlyDB) return;
    const bool AsOpened = IsChosenAsOpened();
    std::vector<int> New(static_cast<size_t>(mUi->flxNonSelected->Rows() - First));
    std::iota(New.begin(), New.end(), First);
    mUi->flxNonSelected->GiveRows(New, *mUi->flxSelected);
    UpdateButtons();
    if (AsOpened) mOpened.Chosen = Rows().SelectedPaths();
    mUi->flxNonSelected->SetEmptyText(tr("Pictures moved here\nstay out of the slide show."));
    mUi->txtName->setFocus();
    mUi->txtName->selectAll();
    // its place in the list is known once the window stands
    QMetaObject::invokeMethod(this, &frmQuickShow::ShowInHand, Qt::QueuedConnection);
}

// -1 where none was opened by itself, or it has gone from the list.
int frmQuickShow::RowOfOpened() const {
    return static_cast<int>(Rows().SelectedPaths().indexOf(mOpened.AtPicture));
}

void frmQuickShow::ShowInHand() {
    const int Row = RowOfOpened();
    if (Row < 0) return;
    mUi->flxSelected->SetRow(Row);
    mUi->flxSelected->EnsureRowVisible(Row);
}

// An order that the user has made by hand stays.
void frmQuickShow::OrderChosen(PictureOrder Order) {
    ImportForm::OrderChosen(Order);
    if (!IsChosenAsOpened()) return;
    Rows().SortSelected(Order);
    mOpened.Chosen = Rows().SelectedPaths();
}

// What the window has chosen and named by itself nobody misses.
bool frmQuickShow::HoldsWork() const {
    const bool AsOpened =
        IsChosenAsOpened() && !Rows().HasTyped() && mUi->txtName->text() == mOpened.Name;
    return !AsOpened && ImportForm::HoldsWork();
}

// A name of the window's own that has been taken since gives way to the next; one that somebody has
// typed is his to change.
bool frmQuickShow::HasFreeName() {
    if (!DBEngine->FindAlbum(0, mUi->txtName->text())) return true;
    if (mUi->txtName->text() == mOpened.Name) {
        ProposeName(mOpened.Directory);
        return true;
    }
    MsgBox(tr("There is an album of this name already, and a quick show is kept in an album of its "
              "own name.\nPlease choose another name."),
           tr("Slide Show Name Already In Use"), BoxIcon::Critical);
    ReturnTo(*mUi->txtName);
    return false;
}

bool frmQuickShow::IsOpenedOn(const QStringList& Named) const {
    return mOpened.Named == Named && !IsMade();
}

// Whether what was made is still there, so that more can come to it.
bool frmQuickShow::IsMade() const {
    const clsNEBAlbum* Album = mMade.AlbumID != 0 ? DBEngine->GetAlbum(mMade.AlbumID) : nullptr;
    return Album && Album->GetSlideShow(mMade.SlideShowID);
}

// The show runs when both windows, this one and the one of the progress, have gone.
void frmQuickShow::Import() {
    if (!Run() || !MayPlay()) return;
    mUi->flxSelected->SetRows(0);
    if (!Unload()) return;
    MakeActiveWhereNoneIs(mMade.AlbumID, mMade.SlideShowID);
    RunSlideShow(mMade.AlbumID, mMade.Name, mMade.SlideShowID, mMade.BeginAt);
}

// Asked of a window that is to close: what was left out keeps it.
bool frmQuickShow::Keep() {
    if (!Run()) return false;
    if (!mLast.IsWhole()) mLast.Tell();
    return mLast.IsWhole();
}

// Whether there is a show with all pictures that could be read.
bool frmQuickShow::Run() {
    mLast = {};
    if (IsMade()) return mUi->flxSelected->Rows() == 0 || RunImport();
    mMade = {};
    mUi->txtName->setReadOnly(false);
    return MayMake() && RunImport();
}

bool frmQuickShow::MayMake() {
    if (mUi->txtName->text().isEmpty()) {
        MsgBox(tr("You must specify a name for the new slideshow."));
        return false;
    }
    mUi->txtName->setText(ConvertQuotes(mUi->txtName->text()));
    return HasSelection() && HasFreeName();
}

// Pictures that could not be read are nothing to wait for where nobody can mend them; those before
// which the user stopped can come into the show by a further Save.
bool frmQuickShow::MayPlay() const {
    if (mLast.IsWhole()) return true;
    QString Counts = tr("%1 of %2 pictures have come into the slide show.")
                         .arg(mLast.Entered.size())
                         .arg(mLast.Of);
    if (!mLast.LeftOut.isEmpty()) Counts += tr(" %1 could not be read.").arg(mLast.LeftOut.size());
    if (mLast.IsStopped()) Counts += tr(" You stopped before the others.");
    return ShowBox({.Text = Counts + tr("\nDo you want to play the slide show as it is?"),
                    .Title = windowTitle(),
                    .Icon = BoxIcon::Question,
                    .Buttons = BoxButtons::YesNo,
                    .Details = mLast.Details(),
                    .YesWords = tr("&Play"),
                    .NoWords = tr("&Stay Here")}) == BoxAnswer::Yes;
}

bool frmQuickShow::StartOperation(frmProgress& Bar) {
    return IsMade() ? AddToShow(Bar) : MakeShow(Bar);
}

// The one name is the album's and the show's. Nothing of a half-made show stays, and nobody hears
// of it.
bool frmQuickShow::MakeShow(frmProgress& Bar) {
    Changes Door(*DBEngine, this);
    Made What{.Name = mUi->txtName->text()};
    auto Album = MakeAlbum(Door, What.Name);
    if (!Tell(Album)) {
        MsgBox(tr("Failed to save album."));
        return false;
    }
    What.AlbumID = Album->What().AlbumID;
    if (!FillShow(Door, What, Bar)) {
        Album->Never();
        DropMade(What);
        return false;
    }
    mMade = What;
    mUi->txtName->setReadOnly(true);
    Album->Now();
    return true;
}

bool frmQuickShow::FillShow(Changes& Door, Made& What, frmProgress& Bar) {
    clsNEBSlideShow Show;
    const std::optional<ImportTally> Tally = FillAlbum(What, Show, Bar);
    if (!Tally || !HasPictures(*Tally) || !SaveShow(Door, What, std::move(Show))) return false;
    KeepLeftOut(*Tally);
    return true;
}

// The places are those of what has come in: a hole would make the show begin again there.
std::optional<ImportTally> frmQuickShow::FillAlbum(Made& Into, clsNEBSlideShow& Show,
                                                   frmProgress& Bar) {
    Changes Door(*DBEngine, this);
    Door.AsOne(Change::Kind::SlidesImported, Into.AlbumID).Never();
    auto Last = static_cast<std::int32_t>(Show.Details.size());
    for (const auto& Detail : Show.Details) Last = std::max(Last, Detail->SlideSeq);
    auto Place = Last;
    const int Row = RowOfOpened();
    const auto Tally = ImportRows(Door, Into.AlbumID, Bar, [&](std::int32_t SlideID) {
        Show.SaveDetail(SlideID, ++Place, {});
    });
    if (Tally && Tally->PlaceOf(Row) > 0) Into.BeginAt = Last + Tally->PlaceOf(Row);
    return Tally;
}

// A medium that fails, or pictures of which none can be read, make no show.
bool frmQuickShow::HasPictures(const ImportTally& Tally) const {
    if (!Tally.Problem.isEmpty())
        ShowBox(
            {.Text = tr("Failed to save slide #%1\n%2")
                         .arg(Tally.Entered.size() + static_cast<size_t>(Tally.LeftOut.size()) + 1)
                         .arg(Tally.Problem),
             .Details = Tally.Details()});
    else if (Tally.Entered.empty())
        Tally.Tell();
    return Tally.Problem.isEmpty() && !Tally.Entered.empty();
}

bool frmQuickShow::SaveShow(Changes& Door, Made& What, clsNEBSlideShow Show) try {
    Show.SlideShowName = ConvertQuotes(What.Name);
    Show.ProgressionMethod = Automatic;
    Answer<Announcement> Saved = Door.SaveShow(What.AlbumID, std::move(Show));
    if (!Saved) {
        MsgBox(tr("Failed to save slide show."));
        return false;
    }
    What.SlideShowID = Saved->What().SlideShowID;
    Saved->Never();
    return true;
} catch (const std::exception& Problem) {
    MsgBox(tr("Failed to save slide show.\n") + ReasonOf(Problem));
    return false;
}

// What comes in stays in, whatever ends it: the show is there already.
bool frmQuickShow::AddToShow(frmProgress& Bar) {
    Announcement Added =
        Changes(*DBEngine, this).AsOne(Change::Kind::SlidesImported, mMade.AlbumID);
    const auto Show = DBEngine->GetAlbum(mMade.AlbumID)->GetSlideShow(mMade.SlideShowID)->Copy();
    const std::optional<ImportTally> Tally = FillAlbum(mMade, *Show, Bar);
    if (!DBEngine || !IsMade()) return Added.Never(), false;
    if (Tally) KeepLeftOut(*Tally);
    Answer<Announcement> Saved = Changes(*DBEngine, this).SaveShow(mMade.AlbumID, std::move(*Show));
    Added.Now();
    if (!Tell(Saved) || !Tally) return false;
    if (!Tally->Problem.isEmpty()) Tally->Tell();
    return Tally->Problem.isEmpty();
}

void frmQuickShow::KeepLeftOut(const ImportTally& Tally) {
    mLast = Tally;
    DropEntered(Tally);
}

void frmQuickShow::DropMade(const Made& Half) {
    if (DBEngine) DropAlbum(*DBEngine, Half.AlbumID);  // at the end of the program it has gone
}

void frmQuickShow::Form_Load() {
    if (const QString Folder = FolderToRead(); !Folder.isEmpty()) DirectoryChosen(Folder);
    ImportForm::Form_Load();
}

}  // namespace neb
