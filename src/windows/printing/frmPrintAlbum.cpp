#include "windows/printing/frmPrintAlbum.h"

#include "db/clsDBEngine.h"
#include "settings/modNEBSlideShow.h"
#include "ui_SheetForm.h"

namespace neb {

frmPrintAlbum::frmPrintAlbum() {
    setObjectName(QStringLiteral("frmPrintAlbum"));
    setWindowTitle(tr("Print Album"));
    Controls().lblSlideShow->hide();
    Controls().cboSlideShow->hide();
}

void frmPrintAlbum::PrintAlbum(std::int32_t AlbumID) {
    SetAlbumID(AlbumID);
    ShowModal();
}

Answer<SheetForm::SheetMatter> frmPrintAlbum::Matter() const {
    clsNEBAlbum* Album = DBEngine->GetAlbum(AlbumID());
    if (!Album) return Refuse(QStringLiteral("Album not found."));
    return SheetMatter{SlidesOf(*Album, DBEngine->DBPath()), Album->AlbumName};
}

int frmPrintAlbum::SlideCount() const {
    const clsNEBAlbum* Album = DBEngine->GetAlbum(AlbumID());
    return Album ? static_cast<int>(Album->Slides.size()) : 0;
}

}  // namespace neb
