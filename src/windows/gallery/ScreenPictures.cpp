#include "windows/gallery/ScreenPictures.h"

#include "pictures/PictureResize.h"
#include "support/ReasonOf.h"
#include "windows/lists/ScreenPicture.h"

namespace neb {
namespace {

constexpr int LookMs = 10;

// As many pixels as the view will paint, so that nothing is left to do there.
QImage FittedTo(const QImage& Picture, const ScreenPictures::Order& For) {
    const QSize Place = Picture.size().scaled(For.Room, Qt::KeepAspectRatio).expandedTo({1, 1});
    const QSize Pixels = (QSizeF(Place) * For.Scale).toSize();
    return Picture.size() == Pixels ? Picture : ResizePicture(Picture, Pixels, ResizeFilter::Sharp);
}

ScreenPictures::Picture ReadFor(const ScreenPictures::Order& Wanted) {
    try {
        const QSize Pixels = (QSizeF(Wanted.Room) * Wanted.Scale).toSize();
        return {FittedTo(ReadForScreen(Wanted.Path, Pixels), Wanted), {}};
    } catch (const std::exception& Problem) {
        return {{}, ReasonOf(Problem)};
    }
}

}  // namespace

ScreenPictures::ScreenPictures(QObject* Owner) : QObject(Owner) {
    mLook.setInterval(LookMs);
    connect(&mLook, &QTimer::timeout, this, &ScreenPictures::Look);
}

bool ScreenPictures::IsWanted(const Order& Of) const {
    return std::ranges::find(mWanted, Of) != mWanted.end();
}

const ScreenPictures::Picture* ScreenPictures::Of(const Order& Wanted) const {
    const auto Found = std::ranges::find(mReady, Wanted, &Ready::Of);
    return Found == mReady.end() ? nullptr : &Found->Read;
}

void ScreenPictures::Want(const std::vector<Order>& Orders) {
    mWanted = Orders;
    std::erase_if(mReady, [this](const Ready& Each) { return !IsWanted(Each.Of); });
    Begin();
    mLook.start();
}

// The one that is looked at comes before all others. Of those that somebody passes by in a hurry
// few are begun: the one at which he stops must not wait for them.
void ScreenPictures::Begin() {
    for (const Order& Each : mWanted) {
        const bool IsFirst = Each == mWanted.front();
        if (!Of(Each) && !mReadings.Has(Each)) {
            if (!mReadings.HasPlace(IsFirst)) return;
            mReadings.Begin(Each, [Each](JobState&) { return ReadFor(Each); });
        }
        if (IsFirst && !Of(Each)) return;
    }
}

void ScreenPictures::Look() {
    bool HasCome = false;
    mReadings.TakeEnded([&](const Order& Done, Picture Read) {
        if (!IsWanted(Done)) return;
        mReady.push_back({Done, std::move(Read)});
        HasCome = true;
    });
    Begin();
    const bool HasAll =
        std::ranges::all_of(mWanted, [this](const Order& Each) { return Of(Each); });
    if (HasAll) mLook.stop();
    if (HasCome) Q_EMIT Came();
}

}  // namespace neb
