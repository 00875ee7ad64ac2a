#include "show/captions/ShowCaptions.h"

#include "db/clsDBEngine.h"
#include "show/captions/CaptionText.h"
#include "support/modFind.h"

namespace neb {
ShowCaptions::ShowCaptions(const clsDBEngine* Engine, std::int32_t AlbumID,
                           std::int32_t SlideShowID) {
    mAlbum = Engine ? Engine->GetAlbum(AlbumID) : nullptr;
    mSlideShow = mAlbum ? mAlbum->GetSlideShow(SlideShowID) : nullptr;
}

std::int32_t ShowCaptions::Count() const {
    return mSlideShow ? static_cast<std::int32_t>(mSlideShow->Details.size()) : 0;
}

QString ShowCaptions::Of(const clsNEBSlideShowDetail& Detail) const {
    QString Text = FixCaptionText(Detail.SlideText);
    const auto* Slide = Text.isEmpty() ? mAlbum->GetSlide(Detail.SlideID) : nullptr;
    if (Slide) Text = FixCaptionText(Slide->SlideText);
    return ShownCaptionText(Text);
}

QString ShowCaptions::At(std::int32_t SlideSeq) const {
    const auto* Detail = mSlideShow ? mSlideShow->GetDetail(SlideSeq) : nullptr;
    return Detail ? Of(*Detail) : QString();
}

// How many steps on from the present slide.
std::int32_t ShowCaptions::WayTo(std::int32_t SlideSeq, std::int32_t Present) const {
    const std::int32_t Way = (SlideSeq - Present) % Count();
    return Way > 0 ? Way : Way + Count();
}

std::int32_t ShowCaptions::Find(const QString& Wanted, std::int32_t Present) const {
    const std::int32_t Number = BareLetters(Wanted).toInt();
    if (Number >= 1 && Number <= Count()) return Number;
    if (Count() == 0) return 0;
    std::int32_t Found = 0;
    for (const auto& Detail : mSlideShow->Details) {
        const std::int32_t Seq = Detail->SlideSeq;
        const bool IsNearer = Found == 0 || WayTo(Seq, Present) < WayTo(Found, Present);
        if (IsNearer && FoundIn(Of(*Detail), Wanted)) Found = Seq;
    }
    return Found;
}

}  // namespace neb
