#include "windows/transfer/frmAlbumView.h"

#include "controls/grid/FlexGrid.h"
#include "support/Texts.h"
#include "ui_frmAlbumView.h"

namespace neb {

frmAlbumView::frmAlbumView()
    : ViewerForm(
          {QStringLiteral("frmAlbumView"), 6315},
          {tr("Album"), tr("This album has no slides.\nClose this window to choose another one."),
           tr("This album is no longer there.\nClose this window to choose another one.")}),
      mUi(std::make_unique<Ui::frmAlbumView>()) {
    mUi->setupUi(this);
    SetControls(*mUi->flxAlbum, *mUi->cmdClose);
}

frmAlbumView::~frmAlbumView() = default;

void frmAlbumView::ViewAlbum(clsDBEngine& objDB, std::int32_t AlbumID, const QString& AlbumTitle) {
    View(objDB, AlbumID, AlbumTitle);
}

QString frmAlbumView::NamesIn(const clsNEBAlbum& Album) const {
    return Album.AlbumName;
}

std::optional<std::vector<std::int32_t>> frmAlbumView::SortedKeys(clsNEBAlbum& Album) {
    Album.SortSlides();
    std::vector<std::int32_t> Keys;
    for (const NameIndexEntry& Row : Album.SlideIndex) Keys.push_back(Row.ID);
    return Keys;
}

Answer<ViewerForm::ViewedSlide> frmAlbumView::SlideOf(clsNEBAlbum& Album, std::int32_t Key, int) {
    const clsNEBSlide* Slide = FindSlide(Album, Key);
    if (!Slide) return Refuse({});  // has just gone: nobody need hear of it
    return ViewedSlide{Slide, Slide->SlideText};
}

QStringList frmAlbumView::CaptionsOf(clsNEBAlbum&, const clsNEBSlide& Slide) const {
    return {Slide.SlideText};
}

}  // namespace neb
