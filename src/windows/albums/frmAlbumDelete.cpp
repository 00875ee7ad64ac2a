#include "windows/albums/frmAlbumDelete.h"

#include <QScopeGuard>
#include <QScopedValueRollback>

#include "albums/AlbumRemoval.h"
#include "controls/fields/ComboBoxList.h"
#include "controls/fields/Icons.h"
#include "controls/forms/PaintRate.h"
#include "controls/forms/ScreenPointer.h"
#include "controls/forms/Tell.h"
#include "db/Changes.h"
#include "db/clsDBEngine.h"
#include "settings/modNEBSlideShow.h"
#include "support/Services.h"
#include "ui_frmAlbumDelete.h"
#include "windows/albums/modAlbumNames.h"

namespace neb {

frmAlbumDelete::frmAlbumDelete() : mUi(std::make_unique<Ui::frmAlbumDelete>()) {
    mUi->setupUi(this);
    setWindowIcon(ThemeIcon(QStringLiteral("album-delete")));
    ChooseNotByWheel(*mUi->cboAlbum);
    SetControls({mUi->cboAlbum, mUi->lblHint, {mUi->lblAlbum, mUi->cboAlbum}, {mUi->cmdDelete}});
    On(mUi->cmdDelete, &QPushButton::clicked, &frmAlbumDelete::Delete);
    On(mUi->cmdClose, &QPushButton::clicked, &frmAlbumDelete::Close);
}

frmAlbumDelete::~frmAlbumDelete() = default;

void frmAlbumDelete::Delete() {
    const auto AlbumID = ChosenAlbum();
    if (!AlbumID) return;
    if (!IsAlbumToBeDeleted()) return;
    Changes Door(*DBEngine, this);
    Answer<Announcement> Deleted = Door.DeleteAlbum(*AlbumID);
    if (!Tell(Deleted)) return;
    NoteDone();
    if (DBEngine->IsSessionStored()) DeleteFiles(Door, *AlbumID);
    Deleted->Now();
    Unload();
}

// Thousands of files on a slow medium take their time; the window cannot be left meanwhile.
void frmAlbumDelete::DeleteFiles(Changes& Door, std::int32_t AlbumID) {
    const QScopedValueRollback<bool> Deleting(mDeleting, true);
    const PointerScope Working(Pointer::Hourglass);
    setEnabled(false);
    const auto Usable = qScopeGuard([this] { setEnabled(true); });
    PaintRate Rate;
    DeleteAlbumFiles(Door, DBEngine->DBPath(), AlbumID, [&Rate] {
        if (Rate.IsDue()) DoEvents();
    });
}

}  // namespace neb
