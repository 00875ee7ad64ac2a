#include "windows/import/frmImportFilter.h"

#include "controls/forms/Tell.h"
#include "controls/forms/frmProgress.h"
#include "db/clsDBEngine.h"
#include "settings/modNEBSlideShow.h"
#include "support/Fault.h"
#include "support/Services.h"
#include "support/Texts.h"
#include "support/modDEValidation.h"
#include "ui_ImportForm.h"
#include "windows/frame/AlbumInHand.h"
#include "windows/frame/Openers.h"
#include "windows/frame/modWindowState.h"

namespace neb {
namespace {

const WindowMemory Memory{QStringLiteral("frmImportFilter"), 7080};

}  // namespace

frmImportFilter::frmImportFilter() : ImportForm(Memory) {
    setObjectName(QStringLiteral("frmImportFilter"));
    setWindowTitle(tr("Picture Import Filter"));
    mUi->wdgName->hide();
    mUi->cmdImport->setText(tr("Sa&ve To Album"));
    mUi->cmdImport->setAccessibleName(tr("Save To Album"));
    mUi->cmdImport->setToolTip(tr("Bring the selected pictures into the album"));
}

void frmImportFilter::SetAlbumName(const QString& AlbumName) {
    if (Aborted()) return;
    ShowName(AlbumName);
    Load();
}

void frmImportFilter::ShowName(const QString& AlbumName) {
    mTarget.AlbumName = AlbumName;
    setWindowTitle(tr("Picture Import Filter - ") + AlbumName);
}

bool frmImportFilter::Keep() {
    return HasSelection() && RunImport();
}

bool frmImportFilter::StartOperation(frmProgress& Bar) {
    return (mTarget.AlbumID != 0 || MakeTarget()) && ImportIntoAlbum(Bar);
}

bool frmImportFilter::MakeTarget() {
    Changes Door(*DBEngine, this);
    if (auto Made = MakeAlbum(Door, mTarget.AlbumName); Tell(Made)) {
        mTarget.AlbumID = Made->What().AlbumID;
        Made->Now();
        return true;
    }
    MsgBox(tr("Failed to create album."));
    return false;
}

// What was left out stays selected, and the window with it. Who only wants the window closed is not
// led on to the next one. Closed meanwhile, nothing is said: the album may have gone.
bool frmImportFilter::ImportIntoAlbum(frmProgress& Bar) {
    if (!DBEngine->GetAlbum(mTarget.AlbumID)) throw Fault(tr("The Album was not found."));
    Changes Door(*DBEngine, this);
    Announcement Imported = Door.AsOne(Change::Kind::SlidesImported, mTarget.AlbumID);
    const std::optional<ImportTally> Tally =
        ImportRows(Door, mTarget.AlbumID, Bar, [](std::int32_t) {});
    if (!Tally) return Imported.Never(), false;
    DropEntered(*Tally);
    NoteAlbumInHand(mTarget.AlbumID);
    Tally->Tell();
    Imported.Now();
    if (!Tally->IsWhole()) return false;
    if (Unload()) OpenSlideShowMgr();
    return true;
}

void frmImportFilter::OpenSlideShowMgr() const {
    if (!mTarget.LoadSlideShowMgr || !TheOpeners().SlideShowMgr) return;
    try {
        TheOpeners().SlideShowMgr(mTarget.AlbumID, 0);
    } catch (const Fault&) {
        // the pictures are in; the manager can be opened from the menu
    }
}

void frmImportFilter::ReceiveEvent(const QString& ObjectType, const QString& EventType,
                                   const EventKeys& EventData) {
    const std::int32_t AlbumID = mTarget.AlbumID;
    if (AlbumID == 0 || ObjectType != u"Album" || EventData.at(0) != AlbumID) return;
    if (EventType == u"Delete") Unload();
    if (EventType == u"Update") FollowName();
}

void frmImportFilter::FollowName() {
    QString Name;
    std::int32_t AlbumID = mTarget.AlbumID;
    if (DBEngine->LoadAlbum(AlbumID, Name) && Name != mTarget.AlbumName) ShowName(Name);
}

}  // namespace neb
