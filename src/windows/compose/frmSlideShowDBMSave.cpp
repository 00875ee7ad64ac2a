// What the user does with a whole show in the slide show manager.
#include <QScopedValueRollback>
#include <optional>

#include "albums/modSaveShow.h"
#include "controls/forms/ScreenPointer.h"
#include "controls/grid/FlexGrid.h"
#include "db/clsDBEngine.h"
#include "settings/modNEBSlideShow.h"
#include "support/Fault.h"
#include "support/Services.h"
#include "ui_frmSlideShowDBM.h"
#include "windows/compose/frmSlideShowDBM.h"
#include "windows/show/modSlideShows.h"

namespace neb {

void frmSlideShowDBM::New() {
    if (AlbumID() != 0) return SelectShowIndex(0);
    MsgBox(QStringLiteral("You must first select an album."));
}

void frmSlideShowDBM::Save() {
    ShowContent Show = Content();
    const bool IsNew = Show.SlideShowID == 0;
    const std::optional<BoxRequest> Refused = CheckShow(Show, *DBEngine);
    mUi->txtName->setText(Show.Name);
    if (Refused) {
        TheServices().Boxes->Show(*Refused);
        return;
    }
    const bool Written = Write(Show);
    FollowWaiting();
    if (!Written) return;
    MsgBox(QStringLiteral("Slide Show Saved Successfully."), QStringLiteral("Save Successful"),
           BoxIcon::Information);
    TellOthers(IsNew ? QStringLiteral("Insert") : QStringLiteral("Update"), Show);
    if (!IsLoaded() || AlbumID() != Show.AlbumID) return;
    LoadSlideShowsList();
    SelectShowIndex(mUi->cboSlideShows->findData(Show.SlideShowID));
}

// The tracks' names are those in the album from here on, after a fault as well: what has been
// copied need not be there a second time.
bool frmSlideShowDBM::Write(ShowContent& Show) {
    const bool IsNew = Show.SlideShowID == 0;
    try {
        const PointerScope Working(Pointer::Hourglass);
        const QScopedValueRollback<bool> Writing(mWriting, true);
        const bool Done = WriteShow(Show, *DBEngine, &DoEventsButInput);
        ShowTracks(Show.Tracks);
        return Done;
    } catch (const Fault&) {
        KeepOnAfterFault(Show, IsNew);
        throw;
    }
}

// What stands in the window stays, and a further save goes on with the show that was begun.
void frmSlideShowDBM::KeepOnAfterFault(const ShowContent& Show, bool IsNew) {
    ShowTracks(Show.Tracks);
    if (Show.SlideShowID == 0) return;
    {
        const QScopedValueRollback<bool> Quiet(mSuppressShowClick, true);
        LoadSlideShowsList();
        mUi->cboSlideShows->setCurrentIndex(mUi->cboSlideShows->findData(Show.SlideShowID));
    }
    TellOthers(IsNew ? QStringLiteral("Insert") : QStringLiteral("Update"), Show);
    FollowWaiting();
}

void frmSlideShowDBM::TellOthers(const QString& EventType, const ShowContent& Show) {
    BroadcastEvent(QStringLiteral("Slide Show"), EventType, this, {Show.AlbumID, Show.SlideShowID});
}

// The grids keep what they hold, and it is saved as no show that is there.
void frmSlideShowDBM::SaveAsNew() {
    {
        const QScopedValueRollback<bool> Quiet(mSuppressShowClick, true);
        mUi->cboSlideShows->setCurrentIndex(0);
    }
    Save();
}

void frmSlideShowDBM::Delete() {
    const std::int32_t From = AlbumID(), ShowID = SlideShowID();
    if (From == 0 || ShowID == 0) return New();
    if (!AskYesNo(QStringLiteral("Are you sure you want to delete the selected slide show?"),
                  QStringLiteral("Delete Confirmation")))
        return;
    clsNEBAlbum* Album = DBEngine->GetAlbum(From);
    if (!Album) {
        MsgBox(QStringLiteral("Album not found."));
        return;
    }
    if (!Album->DeleteSlideShow(ShowID, *DBEngine)) return;
    MsgBox(QStringLiteral("Slide Show Deleted Successfully."), QStringLiteral("Delete Successful"),
           BoxIcon::Information);
    TellOthers(QStringLiteral("Delete"), {.AlbumID = From, .SlideShowID = ShowID});
    if (!IsLoaded() || AlbumID() != From) return;
    LoadSlideShowsList();
    New();
}

void frmSlideShowDBM::View() {
    if (AlbumID() != 0 && SlideShowID() != 0)
        return RunSlideShow(AlbumID(), mUi->cboAlbum->currentText(), SlideShowID());
    MsgBox(QStringLiteral("You must first select a Slide Show to View."),
           QStringLiteral("Missing User Input"));
}

void frmSlideShowDBM::EditPreferences() {
    EditSlideShowPreferences();
}

}  // namespace neb
