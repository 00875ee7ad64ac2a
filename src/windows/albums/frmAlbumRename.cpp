#include "windows/albums/frmAlbumRename.h"

#include "controls/fields/Icons.h"
#include "controls/forms/Tell.h"
#include "db/Changes.h"
#include "settings/modNEBSlideShow.h"
#include "support/Texts.h"
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
    SetAdjective(tr("Album"));
    KeepNameClean(*mUi->txtAlbumName);
    On(mUi->cboAlbum, &QComboBox::currentIndexChanged, &frmAlbumRename::ShowOldName);
    On(mUi->cmdSave, &QPushButton::clicked, &frmAlbumRename::Save);
    On(mUi->cmdCancel, &QPushButton::clicked, &frmAlbumRename::Close);
}

frmAlbumRename::~frmAlbumRename() = default;

void frmAlbumRename::SetAdjective(const QString& Noun) {
    mAdjective = Noun;
    setWindowTitle(tr("Rename %1").arg(Noun));
    mUi->Label1->setText(tr("New %1 Name").arg(Noun));
    mUi->txtAlbumName->setAccessibleName(mUi->Label1->text());
}

void frmAlbumRename::Form_Load() {
    AlbumForm::Form_Load();
    ShowOldName();
    if (mUi->cboAlbum->currentIndex() >= 0) ReturnTo(*mUi->txtAlbumName);
}

void frmAlbumRename::ReceiveEvent(const QString& ObjectType, const QString& EventType,
                                  const EventKeys& EventData) {
    AlbumForm::ReceiveEvent(ObjectType, EventType, EventData);
    ShowOldName();
}

// Most new names are the old one with something mended.
void frmAlbumRename::ShowOldName() {
    if (mUi->txtAlbumName->isModified()) return;
    mUi->txtAlbumName->setText(mUi->cboAlbum->currentText());
    mUi->txtAlbumName->selectAll();
}

// Whoever was refused has the name before him, to mend it.
void frmAlbumRename::Save() {
    const auto AlbumID = ChosenAlbum();
    if (!AlbumID) return mUi->cboAlbum->setFocus();
    QLineEdit& Name = *mUi->txtAlbumName;
    if (!Tell(CheckName(mAdjective, Name.text()))) return ReturnTo(Name);
    Answer<Announcement> Renamed =
        Changes(*DBEngine, this).RenameAlbum(*AlbumID, CleanName(Name.text()));
    if (!Tell(Renamed)) return ReturnTo(Name);
    Renamed->Now();
    NoteDone();
    Unload();
}

}  // namespace neb
