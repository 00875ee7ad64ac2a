#include "windows/albums/frmAlbumRename.h"

#include "controls/fields/Icons.h"
#include "controls/forms/Tell.h"
#include "db/Changes.h"
#include "settings/modNEBSlideShow.h"
#include "support/modDEValidation.h"
#include "ui_frmAlbumRename.h"
#include "windows/albums/modAlbumNames.h"

namespace neb {

frmAlbumRename::frmAlbumRename() : mUi(std::make_unique<Ui::frmAlbumRename>()) {
    mUi->setupUi(this);
    setWindowIcon(ThemeIcon(QStringLiteral("album-rename")));
    SetControls({mUi->cboAlbum,
                 mUi->lblHint,
                 {mUi->lblAlbum, mUi->cboAlbum, mUi->Label1},
                 {mUi->txtAlbumName, mUi->cmdSave}});
    SetAdjective(QStringLiteral("Album"));
    KeepQuotesClean(*mUi->txtAlbumName);
    On(mUi->cmdSave, &QPushButton::clicked, &frmAlbumRename::Save);
    On(mUi->cmdCancel, &QPushButton::clicked, &frmAlbumRename::Close);
}

frmAlbumRename::~frmAlbumRename() = default;

void frmAlbumRename::SetAdjective(const QString& Noun) {
    mAdjective = Noun;
    setWindowTitle(QStringLiteral("Rename ") + Noun);
    mUi->Label1->setText(QStringLiteral("New ") + Noun + QStringLiteral(" Name"));
    mUi->txtAlbumName->setAccessibleName(mUi->Label1->text());
}

void frmAlbumRename::Form_Load() {
    AlbumForm::Form_Load();
    if (mUi->cboAlbum->currentIndex() >= 0) mUi->txtAlbumName->setFocus();
}

// A name that the engine refuses ends the window as well, and the others are told of it all the
// same: they show what is so.
void frmAlbumRename::Save() {
    const auto AlbumID = ChosenAlbum();
    if (!AlbumID || !Tell(CheckName(mAdjective, mUi->txtAlbumName->text()))) return;
    Changes Door(*DBEngine, this);
    Announcement Renamed = Door.AsOne(Change::Kind::AlbumRenamed, *AlbumID);
    Tell(Door.RenameAlbum(*AlbumID, ConvertQuotes(mUi->txtAlbumName->text())));
    Renamed.Now();
    NoteDone();
    Unload();
}

}  // namespace neb
