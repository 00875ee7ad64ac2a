#include "albums/SlideInHand.h"

#include <algorithm>

#include "support/modFUFL.h"

namespace neb {
namespace {

// A picture that an album has stays as large as it is, whatever is chosen for those to come; but
// for one of the least size, which has always been fitted anew when it was turned.
PictureKeeping ForStored(PictureKeeping Chosen, QSize Size) {
    const QSize Lying(std::max(Size.width(), Size.height()), std::min(Size.width(), Size.height()));
    const bool WasLeast = Lying.boundedTo(SlideLimit) == Lying;
    if (Chosen.Limit != SlideLimit || !WasLeast) Chosen.Limit = OwnSize;
    return Chosen;
}

}  // namespace

void SlideInHand::Renew(std::int32_t AlbumID, const clsNEBSlide& Now) {
    mAlbumID = AlbumID;
    mNow = Now;
    SetSound(Sound::AsStored, {}, {});
    mTurned = mMoved = mChanged = false;
    mGoneID = 0;
}

// How a sound is played is of no concern where there is none.
void SlideInHand::Take(std::int32_t AlbumID, const clsNEBSlide& Stored) {
    Renew(AlbumID, Stored);
    mNameBefore = Stored.SlideLoc;
    if (!HasSound()) mNow.Override = mNow.Repeat = false;
}

void SlideInHand::TakeNew(std::int32_t AlbumID) {
    Renew(AlbumID, {});
}

void SlideInHand::MoveTo(std::int32_t AlbumID, std::int32_t SlideID) {
    mMoved = mMoved || SlideID != mNow.SlideID;
    if (SlideID != 0 || !IsNew()) mGoneID = SlideID == 0 ? mNow.SlideID : 0;
    mAlbumID = AlbumID;
    mNow.SlideID = SlideID;
}

std::optional<ImgX> SlideInHand::SetPicture(std::optional<ImgX> Read) {
    mTurned = false;
    return std::exchange(mPicture, std::move(Read));
}

void SlideInHand::SetCaption(const QString& Caption) {
    mNow.SlideText = Caption;
    mChanged = true;
}

void SlideInHand::SetPlaying(bool Override, bool Repeat) {
    mNow.Override = Override;
    mNow.Repeat = Repeat;
    mChanged = true;
}

void SlideInHand::ChoosePicture(const QString& Path) {
    mNow.SlideLoc = Path;
    mTurned = false;
    mChanged = true;
}

std::optional<ImgX> SlideInHand::Turn(ImgX Turned) {
    auto Before = SetPicture(std::move(Turned));
    mTurned = mChanged = true;
    return Before;
}

void SlideInHand::SetSound(Sound Now, const QByteArray& File, const QString& Ending) {
    mSound = Now;
    mNewSound = File;
    mNewEnding = Ending;
    mChanged = true;
}

void SlideInHand::Record(const QByteArray& Wave) {
    SetSound(Sound::Recorded, Wave, QStringLiteral(".wav"));
}

void SlideInHand::ChooseSound(const QByteArray& File, const QString& Ending) {
    SetSound(Sound::Chosen, File, Ending);
}

void SlideInHand::ClearSound() {
    SetSound(Sound::Cleared, {}, {});
}

const QString& SlideInHand::PictureName() const {
    return mNow.SlideLoc.isEmpty() && (IsNew() || mMoved) ? mNameBefore : mNow.SlideLoc;
}

bool SlideInHand::IsPictureLoose() const {
    return mMoved && mTurned && !HoldsSeparator(mNow.SlideLoc);
}

SlideInHand::JpegMaker SlideInHand::Jpeg(const PictureKeeping& Chosen) const {
    const bool IsStored = !HoldsSeparator(mNow.SlideLoc);
    const PictureKeeping Keeping =
        mTurned && IsStored ? ForStored(Chosen, mPicture->FullSize()) : Chosen;
    if (mTurned) return [Turned = *mPicture, Keeping] { return FittedJpeg(Turned, Keeping); };
    if (!IsStored) return [File = mNow.SlideLoc, Keeping] { return FittedJpeg(File, Keeping); };
    return {};
}

}  // namespace neb
