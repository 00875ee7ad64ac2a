#include "windows/import/frmImportFilter.h"

#include "controls/forms/ScreenPointer.h"
#include "controls/forms/Tell.h"
#include "db/clsDBEngine.h"
#include "settings/modNEBSlideShow.h"
#include "support/Fault.h"
#include "support/Services.h"
#include "support/modDEValidation.h"
#include "ui_ImportForm.h"
#include "windows/frame/Openers.h"
#include "windows/frame/modWindowState.h"

namespace neb {
namespace {

const WindowMemory Memory{QStringLiteral("frmImportFilter"), 7080};

QString ImportedText(int Count, int Discarded) {
    QString Text =
        QString::number(Count - Discarded) + QStringLiteral(" slides successfully imported.");
    if (Discarded > 0)
        Text += u'\n' + QString::number(Discarded) + QStringLiteral(" slides discarded.");
    return Text;
}

}  // namespace

frmImportFilter::frmImportFilter() : ImportForm(Memory) {
    setObjectName(QStringLiteral("frmImportFilter"));
    setWindowTitle(QStringLiteral("Picture Import Filter"));
    mUi->wdgName->hide();
    mUi->cmdImport->setText(tr("Sa&ve To Album"));
    mUi->cmdImport->setAccessibleName(tr("Save To Album"));
    mUi->cmdImport->setToolTip(tr("Bring the selected pictures into the album"));
}

void frmImportFilter::SetAlbumName(const QString& AlbumName) {
    if (Aborted()) return;
    mAlbumName = AlbumName;
    setWindowTitle(QStringLiteral("Picture Import Filter - ") + AlbumName);
    Load();
}

void frmImportFilter::Import() {
    if (HasSelection()) RunImport();
}

void frmImportFilter::StartOperation() {
    SetScreenPointer(Pointer::Hourglass);
    if (mAlbumID == 0 && !MakeAlbum()) {
        SetScreenPointer(Pointer::Default);
        MsgBox(QStringLiteral("Failed to create album."));
    } else {
        ImportIntoAlbum();
    }
    EndOperation();
}

bool frmImportFilter::MakeAlbum() {
    if (!Tell(NewAlbum(*DBEngine, mAlbumID, ConvertQuotes(mAlbumName)))) return false;
    BroadcastEvent(QStringLiteral("Album"), QStringLiteral("Insert"), this, {mAlbumID});
    return true;
}

void frmImportFilter::ImportIntoAlbum() {
    clsNEBAlbum* Album = DBEngine->GetAlbum(mAlbumID);
    if (!Album) throw Fault(QStringLiteral("The Album was not found."));
    int Count = 0;
    int Discarded = 0;
    const auto CountRow = [&](int, PictureImport::Outcome Outcome, std::int32_t) {
        ++Count;
        if (Outcome == PictureImport::Outcome::Discarded) ++Discarded;
    };
    if (!ImportRows(*Album, CountRow)) return;
    SetScreenPointer(Pointer::Default);
    MsgBox(ImportedText(Count, Discarded));
    BroadcastEvent(QStringLiteral("Album"), QStringLiteral("Add Slides"), this, {mAlbumID, 0});
    Unload();
    if (!mLoadSlideShowMgr || !TheOpeners().SlideShowMgr) return;
    try {
        TheOpeners().SlideShowMgr(mAlbumID, 0);
    } catch (const Fault&) {
        // the pictures are in; the manager can be opened from the menu
    }
}

void frmImportFilter::ReceiveEvent(const QString& ObjectType, const QString& EventType,
                                   const EventKeys& EventData) {
    if (mAlbumID == 0 || ObjectType != u"Album" || EventData.at(0) != mAlbumID) return;
    if (EventType == u"Delete") Unload();
    if (EventType == u"Update") FollowName();
}

void frmImportFilter::FollowName() {
    QString Name;
    std::int32_t AlbumID = mAlbumID;
    if (!DBEngine->LoadAlbum(AlbumID, Name) || Name == mAlbumName) return;
    mAlbumName = Name;
    setWindowTitle(QStringLiteral("Picture Import Filter - ") + Name);
}

}  // namespace neb
