#include "windows/transfer/frmSlideShowView.h"

#include <map>

#include "controls/grid/FlexGrid.h"
#include "support/Texts.h"
#include "ui_frmSlideShowView.h"

namespace neb {
namespace {

// As the show itself does: a slide without a caption in the show comes up with its own.
const QString& CaptionIn(const clsNEBSlideShowDetail& Detail, const clsNEBSlide& Slide) {
    return Detail.SlideText.isEmpty() ? Slide.SlideText : Detail.SlideText;
}

}  // namespace

frmSlideShowView::frmSlideShowView()
    : ViewerForm(
          {QStringLiteral("frmSlideShowView"), 6315},
          {tr("Slide Show"),
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
    if (!Detail) return Refuse(tr("Could not find Slide Show Detail #%1").arg(Number));
    const clsNEBSlide* Slide = FindSlide(Album, Detail->SlideID);
    if (!Slide) return Refuse(tr("Could not find the Slide for Slide Show Detail #%1").arg(Number));
    return ViewedSlide{Slide, CaptionIn(*Detail, *Slide)};
}

QStringList frmSlideShowView::CaptionsOf(clsNEBAlbum& Album, const clsNEBSlide& Slide) const {
    std::multimap<std::int32_t, QString> InOrder;
    for (const auto& Detail : Album.GetSlideShow(mSlideShowID)->Details)
        if (Detail->SlideID == Slide.SlideID)
            InOrder.emplace(Detail->SlideSeq, CaptionIn(*Detail, Slide));
    QStringList Captions;
    for (const auto& [Seq, Caption] : InOrder) Captions << Caption;
    return Captions;
}

}  // namespace neb
