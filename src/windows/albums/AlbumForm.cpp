#include "windows/albums/AlbumForm.h"

#include <QAbstractItemView>
#include <QLabel>
#include <QLayout>

#include "controls/fields/ComboBoxList.h"
#include "db/clsDBEngine.h"
#include "settings/modNEBSlideShow.h"
#include "support/Services.h"
#include "support/Texts.h"

namespace neb {
namespace {

std::int32_t SelectedID(QComboBox& Box) {
    const ComboBoxList Combo(Box);
    return Combo.ItemData(Combo.ListIndex());
}

}  // namespace

void AlbumForm::SetControls(Controls Given) {
    mControls = std::move(Given);
    QComboBox& Box = *mControls.cboAlbum;
    Box.view()->setAccessibleName(Box.accessibleName());
}

bool AlbumForm::ShowFor(std::int32_t AlbumID) {
    mAlbumID = AlbumID;
    mDone = false;
    ShowModal();
    return mDone;
}

// As wide as the longest name wants, where the screen has room for it.
void AlbumForm::Form_Load() {
    const int Designed = width();
    LoadAlbums(mAlbumID);
    layout()->activate();
    adjustSize();
    resize(std::max(width(), Designed), height());
}

void AlbumForm::LoadAlbums(std::int32_t AlbumID) {
    ComboBoxList Combo(*mControls.cboAlbum);
    DBEngine->LoadAlbumsCombo(Combo, false);
    ComboSelectByData(Combo, AlbumID, -2);
    OpenAsWideAsNames(*mControls.cboAlbum);
    UpdateControls();
}

void AlbumForm::UpdateControls() {
    const bool None = mControls.cboAlbum->count() == 0;
    for (QWidget* Each : mControls.OffWhenNone) Each->setEnabled(!None);
    for (QWidget* Each : mControls.OffWhenFixed) Each->setEnabled(!None && !ReadOnlyDB);
    mControls.lblHint->setVisible(None || ReadOnlyDB);
    mControls.lblHint->setText(
        ReadOnlyDB ? tr("The database is read-only:\nits albums cannot be changed.")
                   : tr("There are no albums yet.\nNew Album in the menu Album makes one."));
}

std::optional<std::int32_t> AlbumForm::ChosenAlbum() const {
    if (mControls.cboAlbum->currentIndex() >= 0) return SelectedID(*mControls.cboAlbum);
    MsgBox(tr("You must first select an Album."), tr("Missing User Input"), BoxIcon::Information);
    return std::nullopt;
}

void AlbumForm::ReceiveEvent(const QString& ObjectType, const QString& EventType,
                             const EventKeys& EventData) {
    if (ObjectType != u"Album") return;
    ComboBoxList Combo(*mControls.cboAlbum);
    if (EventType == u"Delete") {
        ComboRemoveByData(Combo, EventData.at(0));
        UpdateControls();
    }
    if (EventType == u"Insert" || EventType == u"Update")
        LoadAlbums(SelectedID(*mControls.cboAlbum));
}

}  // namespace neb
