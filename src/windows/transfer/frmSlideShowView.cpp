#include "windows/transfer/frmSlideShowView.h"

#include "controls/grid/FlexGrid.h"
#include "ui_frmSlideShowView.h"

namespace neb {

frmSlideShowView::frmSlideShowView()
    : ViewerForm(
          {QStringLiteral("frmSlideShowView"), 6315},
          {QStringLiteral("Slide Show"),
           tr("This slide show has no slides.\nClose this window to choose another one."),
           tr("This slide show is no longer there.\nClose this window to choose another one.")}),
      mUi(std::make_unique<Ui::frmSlideShowView>()) {
    mUi->setupUi(this);
    SetControls(*mUi->flxSlideShow, *mUi->cmdClose);
}

frmSlideShowView::~frmSlideShowView() = default;

void frmSlideShowView::ViewSlideShow(clsDBEngine& objDB, std::int32_t AlbumID,
                                     const QString& AlbumTitle, std::int32_t SlideShowID,
                                     const QString& SlideShowTitle) {
    mSlideShowID = SlideShowID;
    View(objDB, AlbumID, AlbumTitle + u':' + SlideShowTitle);
}

QString frmSlideShowView::NamesIn(const clsNEBAlbum& Album) const {
    return Album.AlbumName + u':' + Album.GetSlideShow(mSlideShowID)->SlideShowName;
}

bool frmSlideShowView::IsThere(clsNEBAlbum& Album) const {
    return Album.GetSlideShow(mSlideShowID) != nullptr;
}

// A show without details keeps the order that it had before they went.
std::optional<std::vector<std::int32_t>> frmSlideShowView::SortedKeys(clsNEBAlbum& Album) {
    clsNEBSlideShow* Show = Album.GetSlideShow(mSlideShowID);
    if (!Show) return std::nullopt;
    std::vector<std::int32_t> Keys;
    if (Show->Details.empty()) return Keys;
    Show->SortDetails();
    for (const SeqIndexEntry& Row : Show->DetailIndex) Keys.push_back(Row.Seq);
    return Keys;
}

Answer<ViewerForm::ViewedSlide> frmSlideShowView::SlideOf(clsNEBAlbum& Album, std::int32_t Key,
                                                          int Number) {
    const clsNEBSlideShowDetail* Detail = Album.GetSlideShow(mSlideShowID)->GetDetail(Key);
    if (!Detail) return Refuse(QStringLiteral("Could not find Slide Show Detail #%1").arg(Number));
    const clsNEBSlide* Slide = FindSlide(Album, Detail->SlideID);
    if (!Slide)
        return Refuse(
            QStringLiteral("Could not find the Slide for Slide Show Detail #%1").arg(Number));
    return ViewedSlide{Slide, Detail->SlideText};
}

}  // namespace neb
