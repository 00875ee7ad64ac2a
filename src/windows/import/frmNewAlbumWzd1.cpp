#include "windows/import/frmNewAlbumWzd1.h"

#include <QTreeView>

#include "db/clsDBEngine.h"
#include "settings/modNEBSlideShow.h"
#include "support/Fault.h"
#include "support/Services.h"
#include "support/modDEValidation.h"
#include "support/modFUFL.h"
#include "ui_frmNewAlbumWzd1.h"
#include "windows/albums/modAlbumNames.h"
#include "windows/import/frmImportFilter.h"

namespace neb {

frmNewAlbumWzd1::frmNewAlbumWzd1() : mUi(std::make_unique<Ui::frmNewAlbumWzd1>()) {
    mUi->setupUi(this);
    mUi->lblInitialDir->setBuddy(mUi->pnlDirectory->findChild<QTreeView*>());
    KeepQuotesClean(*mUi->txtAlbumName);
    On(mUi->cmdNext, &QPushButton::clicked, &frmNewAlbumWzd1::Next);
    connect(mUi->cmdCancel, &QPushButton::clicked, this, &frmNewAlbumWzd1::Unload);
}

frmNewAlbumWzd1::~frmNewAlbumWzd1() = default;

void frmNewAlbumWzd1::Form_Load() {
    mUi->pnlDirectory->Begin();
}

bool frmNewAlbumWzd1::Form_Unload() {
    mUi->pnlDirectory->End();
    return true;
}

void frmNewAlbumWzd1::Next() {
    if (!mUi->pnlDirectory->TakeChoice()) return;
    mInitialDir = mUi->pnlDirectory->Path();
    mRecurseDir = mUi->pnlDirectory->RecurseDir();
    if (!HasFreeName() || !HasFreeDirectory()) return;
    Import();
    Unload();
}

// The name is looked for once, here: no album stands under it before the import has begun.
bool frmNewAlbumWzd1::HasFreeName() {
    if (mUi->txtAlbumName->text().trimmed().isEmpty()) {
        MsgBox(QStringLiteral("You must enter a name for your new album."));
        mUi->txtAlbumName->setFocus();
        return false;
    }
    mUi->txtAlbumName->setText(ConvertQuotes(mUi->txtAlbumName->text()));
    if (!DBEngine->FindAlbum(0, mUi->txtAlbumName->text())) return true;
    MsgBox(QStringLiteral("Album Name is already in use."), QStringLiteral("Invalid Album Name"),
           BoxIcon::Critical);
    mUi->txtAlbumName->setFocus();
    return false;
}

bool frmNewAlbumWzd1::HasFreeDirectory() {
    if (mInitialDir.isEmpty()) return true;
    mInitialDir = WithSeparator(mInitialDir);
    if (!mInitialDir.startsWith(DBEngine->DBPath())) return true;
    MsgBox(QStringLiteral(
        "This directory is reserved for NEB Slide Show.  You cannot import from it."));
    return false;
}

// Setting the name reads the directory, which the user may have stopped by closing the window.
void frmNewAlbumWzd1::Import() {
    const auto Filter = NewForm<frmImportFilter>();
    Filter->SetLoadSlideShowMgr(true);
    Filter->SetImportDir(mInitialDir);
    Filter->SetRecurseDir(mRecurseDir);
    Filter->SetAlbumID(0);
    Filter->SetAlbumName(mUi->txtAlbumName->text());
    if (Filter->Aborted()) return;
    try {
        Filter->ShowModal();
    } catch (const Fault&) {
        // what the window could not do it has told; the wizard is over all the same
    }
}

}  // namespace neb
