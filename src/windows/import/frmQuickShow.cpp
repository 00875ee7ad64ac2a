#include "windows/import/frmQuickShow.h"

#include "controls/fields/KeyFilter.h"
#include "controls/forms/Tell.h"
#include "controls/forms/frmProgress.h"
#include "controls/grid/FlexGrid.h"
#include "db/clsDBEngine.h"
#include "settings/modNEBSlideShow.h"
#include "support/Fault.h"
#include "support/Services.h"
#include "support/modDEValidation.h"
#include "support/modFUFL.h"
#include "ui_ImportForm.h"
#include "windows/albums/modAlbumNames.h"
#include "windows/frame/modWindowState.h"
#include "windows/show/modSlideShows.h"

namespace neb {
namespace {

const WindowMemory Memory{QStringLiteral("frmQuickShow"), 6540};
constexpr std::int32_t Automatic = 0;  // ProgressionMethod

}  // namespace

frmQuickShow::frmQuickShow() : ImportForm(Memory) {
    setObjectName(QStringLiteral("frmQuickShow"));
    setWindowTitle(QStringLiteral("Quick Show"));
    mUi->cmdImport->setText(tr("Sa&ve"));  // Alt+S opens a menu of the main window
    mUi->cmdImport->setAccessibleName(tr("Save"));
    mUi->cmdImport->setToolTip(
        QStringLiteral("Create an Album and Slide Show from the Selected Pictures"));
    KeepQuotesClean(*mUi->txtName);
}

// The folder's own name is what most people would type. Whoever begins anew with another folder
// gets that one's name; a name that was typed stays.
void frmQuickShow::DirectoryChosen(const QString& Directory) {
    const bool Typed = !mUi->txtName->text().isEmpty() && mUi->txtName->text() != mProposedName;
    if (Typed || mUi->flxSelected->Rows() > 0 || mUi->flxNonSelected->Rows() > 0) return;
    mProposedName = ConvertQuotes(GetFileName(Directory.chopped(1)));
    mUi->txtName->setText(mProposedName);
}

bool frmQuickShow::HasFreeName() {
    if (!DBEngine->FindAlbum(0, mUi->txtName->text())) return true;
    MsgBox(QStringLiteral("Album Name is already in use."), QStringLiteral("Invalid Album Name"),
           BoxIcon::Critical);
    return false;
}

// The show runs when both windows, this one and the one of the progress, have gone.
void frmQuickShow::Import() {
    if (Keep()) RunSlideShow(mMade.AlbumID, mMade.Name, mMade.SlideShowID);
}

bool frmQuickShow::Keep() {
    if (mUi->txtName->text().isEmpty()) {
        MsgBox(QStringLiteral("You must specify a name for the new slideshow."));
        return false;
    }
    mUi->txtName->setText(ConvertQuotes(mUi->txtName->text()));
    return HasSelection() && HasFreeName() && RunImport();
}

// The one name is the album's and the show's. Nothing of a half-made show stays, and nobody hears
// of it.
bool frmQuickShow::StartOperation(frmProgress& Bar) {
    Changes Door(*DBEngine, this);
    Made What{.Name = mUi->txtName->text()};
    auto Album = MakeAlbum(Door, What.Name);
    if (!Tell(Album)) {
        MsgBox(QStringLiteral("Failed to save album."));
        return false;
    }
    What.AlbumID = Album->What().AlbumID;
    clsNEBSlideShow Show;
    if (!FillAlbum(Door, What, Show, Bar) || !SaveShow(Door, What, std::move(Show))) {
        Album->Never();
        return false;
    }
    mMade = What;
    Album->Now();
    Bar.Unload();
    Unload();
    return true;
}

// A picture that fails takes the album with it.
bool frmQuickShow::FillAlbum(Changes& Door, const Made& Into, clsNEBSlideShow& Show,
                             frmProgress& Bar) {
    Door.AsOne(Change::Kind::SlidesImported, Into.AlbumID).Never();
    QString Problem;
    int Number = 1;
    const auto Failed = [&] { return QStringLiteral("Failed to save slide #%1").arg(Number); };
    const auto AddDetail = [&](int Row, PictureImport::Outcome Outcome, std::int32_t SlideID) {
        if (Outcome == PictureImport::Outcome::Refused) Problem = Failed();
        if (Outcome == PictureImport::Outcome::Entered) Show.SaveDetail(SlideID, Row + 1, {});
        ++Number;
        return Problem.isEmpty();
    };
    try {
        if (ImportRows(Door, Into.AlbumID, Bar, AddDetail)) return true;
    } catch (const std::exception& Reason) {
        Problem = Failed() + u'\n' + QString::fromUtf8(Reason.what());
    }
    DropMade(Into);
    if (!Problem.isEmpty()) MsgBox(Problem);
    return false;
}

void frmQuickShow::DropMade(const Made& Half) {
    if (DBEngine) DropAlbum(*DBEngine, Half.AlbumID);  // at the end of the program it has gone
}

bool frmQuickShow::SaveShow(Changes& Door, Made& What, clsNEBSlideShow Show) {
    Show.SlideShowName = ConvertQuotes(What.Name);
    Show.ProgressionMethod = Automatic;
    Answer<Announcement> Saved = Door.SaveShow(What.AlbumID, std::move(Show));
    if (!Saved) {
        MsgBox(QStringLiteral("Failed to save slide show."));
        DropMade(What);
        return false;
    }
    What.SlideShowID = Saved->What().SlideShowID;
    return true;
}

void frmQuickShow::Form_Load() {
    if (!ImportDir().isEmpty()) DirectoryChosen(WithSeparator(ImportDir()));
    ImportForm::Form_Load();
}

}  // namespace neb
