#include "windows/import/frmNewAlbumWzd1.h"

#include <QTreeView>

#include "albums/transfer/SuggestedName.h"
#include "controls/forms/Tell.h"
#include "db/clsDBEngine.h"
#include "settings/modNEBSlideShow.h"
#include "support/Fault.h"
#include "support/Services.h"
#include "support/Texts.h"
#include "support/modCharacters.h"
#include "support/modDEValidation.h"
#include "support/modFUFL.h"
#include "support/modText.h"
#include "ui_frmNewAlbumWzd1.h"
#include "windows/albums/modAlbumNames.h"
#include "windows/import/frmImportFilter.h"

namespace neb {

frmNewAlbumWzd1::frmNewAlbumWzd1() : mUi(std::make_unique<Ui::frmNewAlbumWzd1>()) {
    mUi->setupUi(this);
    mUi->lblInitialDir->setBuddy(mUi->pnlDirectory->findChild<QTreeView*>());
    KeepNameClean(*mUi->txtAlbumName);
    connect(mUi->pnlDirectory, &DirectoryPanel::DirectoryChosen, this,
            &frmNewAlbumWzd1::ProposeName);
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

// The folder's own name is what most people would type, and for one that is taken a name beside it.
void frmNewAlbumWzd1::ProposeName() {
    QLineEdit& Name = *mUi->txtAlbumName;
    if (!Name.text().isEmpty() && Name.text() != mProposedName) return;
    QStringList Taken;
    for (const auto& Album : DBEngine->Albums) Taken << Album->AlbumName;
    const QString Folder =
        ReadableText(GetFileName(WithSeparator(mUi->pnlDirectory->Path()).chopped(1)));
    const QString Start = FirstUnits(CleanName(Folder), MaxName);
    mProposedName = Start.isEmpty() ? Start : SuggestAlbumName(Start, Taken, false);
    Name.setText(mProposedName);
}

// A name that is proposed only now has not been seen yet.
void frmNewAlbumWzd1::Next() {
    const bool IsNamed = !mUi->txtAlbumName->text().trimmed().isEmpty();
    if (!mUi->pnlDirectory->TakeChoice()) return;
    mInitialDir = mUi->pnlDirectory->Path();
    mRecurseDir = mUi->pnlDirectory->RecurseDir();
    if (!IsNamed) MsgBox(tr("You must enter a name for your new album."));
    if (!IsNamed || !HasFreeName()) return ReturnTo(*mUi->txtAlbumName);
    if (!HasFreeDirectory()) return mUi->lblInitialDir->buddy()->setFocus();
    Import();
    Unload();
}

// The name is looked for once, here: no album stands under it before the import has begun.
bool frmNewAlbumWzd1::HasFreeName() {
    const QString Name = CleanName(mUi->txtAlbumName->text());
    mUi->txtAlbumName->setText(Name);
    if (!DBEngine->FindAlbum(0, Name)) return Tell(DBEngine->CheckAlbumName(0, Name));
    MsgBox(tr("Album Name is already in use."), tr("Invalid Album Name"), BoxIcon::Critical);
    return false;
}

bool frmNewAlbumWzd1::HasFreeDirectory() {
    if (mInitialDir.isEmpty()) return true;
    mInitialDir = WithSeparator(mInitialDir);
    if (!mInitialDir.startsWith(DBEngine->DBPath())) return true;
    MsgBox(tr("This directory is reserved for NEB Slide Show.  You cannot import from it."));
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
