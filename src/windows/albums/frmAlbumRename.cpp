#include "windows/albums/frmAlbumRename.h"

#include "controls/fields/Icons.h"
#include "controls/forms/Tell.h"
#include "db/clsDBEngine.h"
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
    connect(mUi->cmdSave, &QPushButton::clicked, this, &frmAlbumRename::Save);
    connect(mUi->cmdCancel, &QPushButton::clicked, this, &frmAlbumRename::Unload);
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

// A name that the engine refuses, which it says itself, ends the window as well.
void frmAlbumRename::Save() {
    const auto Chosen = ChosenAlbum();
    if (!Chosen || !IsNameGiven(mAdjective, mUi->txtAlbumName->text())) return;
    std::int32_t AlbumID = *Chosen;
    Tell(DBEngine->SaveAlbum(AlbumID, ConvertQuotes(mUi->txtAlbumName->text())));
    Broadcast(QStringLiteral("Update"), AlbumID);
    NoteDone();
    Unload();
}

}  // namespace neb
