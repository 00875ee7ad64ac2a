#include "windows/printing/frmPrintAlbum.h"

#include <algorithm>

#include "db/clsDBEngine.h"
#include "settings/modNEBSlideShow.h"
#include "support/Texts.h"
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

void frmPrintAlbum::PrintSlides(std::int32_t AlbumID, const std::vector<std::int32_t>& SlideIDs) {
    mOnly = {SlideIDs.begin(), SlideIDs.end()};
    setWindowTitle(tr("Print Slides"));
    Controls().lblAlbum->hide();
    Controls().cboAlbum->hide();
    PrintAlbum(AlbumID);
}

Answer<SheetForm::SheetMatter> frmPrintAlbum::Matter() const {
    clsNEBAlbum* Album = DBEngine->GetAlbum(AlbumID());
    if (!Album) return Refuse(tr("Album not found."));
    return SheetMatter{SlidesOf(*Album, DBEngine->DBPath(), mOnly), Album->AlbumName};
}

int frmPrintAlbum::SlideCount() const {
    const clsNEBAlbum* Album = DBEngine->GetAlbum(AlbumID());
    if (!Album) return 0;
    return static_cast<int>(std::ranges::count_if(Album->Slides, [this](const auto& Each) {
        return mOnly.empty() || mOnly.count(Each->SlideID) > 0;
    }));
}

}  // namespace neb
