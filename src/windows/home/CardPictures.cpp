#include "windows/home/CardPictures.h"

#include <QThread>
#include <algorithm>

#include "db/clsDBEngine.h"
#include "db/modAlbumFiles.h"
#include "pictures/ImgX.h"
#include "pictures/PictureResize.h"
#include "settings/modNEBSlideShow.h"

namespace neb {
namespace {

constexpr int LookMs = 15;            // who scrolls on at once passes by unread
constexpr int MostKept = 128 * 1024;  // kilobytes

// One processor is left to the windows.
size_t MostAtOnce() {
    return static_cast<size_t>(std::clamp(QThread::idealThreadCount() - 1, 1, 4));
}

int CostOf(const QImage& Cover) {
    return static_cast<int>(Cover.sizeInBytes() / 1024) + 1;
}

// A small picture is not made larger: it would only be blurred.
QImage FittedCover(const QString& Path, QSize Box, double Scale) {
    try {
        ImgX Picture;
        Picture.LoadAtLeast(Path, Box);
        QSize Size = Picture.FullSize().scaled(Box, Qt::KeepAspectRatio);
        if (Size.width() > Picture.FullSize().width()) Size = Picture.FullSize();
        QImage Cover =
            ResizePicture(Picture.Picture(), Size.expandedTo({1, 1}), ResizeFilter::Sharp);
        Cover.setDevicePixelRatio(Scale);
        return Cover;
    } catch (const std::exception&) {
        return {};  // the card goes without
    }
}

}  // namespace

size_t qHash(const LibraryHit& Of, size_t Seed) {
    return qHashMulti(Seed, Of.AlbumID, Of.SlideShowID, Of.SlideID);
}

CardPictures::CardPictures(CardsInView InView, QObject* Parent)
    : QObject(Parent), mInView(std::move(InView)), mKnown(MostKept) {
    mLook.setInterval(LookMs);
    connect(&mLook, &QTimer::timeout, this, &CardPictures::Look);
}

void CardPictures::SetBox(QSize Box, double Scale) {
    mScale = Scale;
    mBox = (QSizeF(Box) * Scale).toSize();
}

const CardPictures::Known* CardPictures::Of(const HomeCard& Card) {
    if (IsWanted(Card) && !mLook.isActive()) mLook.start();
    return mKnown.object(Card.Of);
}

void CardPictures::Renew(std::int32_t AlbumID, std::int32_t SlideID) {
    for (const LibraryHit& Each : mKnown.keys()) {
        Known& Now = *mKnown.object(Each);
        const bool IsOther = SlideID != 0 && Now.SlideID != 0 && Now.SlideID != SlideID;
        if (Each.AlbumID == AlbumID && !IsOther) Now.IsStale = true;
    }
    // what is being read was begun before it changed
    std::erase_if(mReading, [&](const Reading& Each) { return Each.Of.AlbumID == AlbumID; });
}

bool CardPictures::IsWanted(const HomeCard& Card) const {
    if (mBox.isEmpty()) return false;
    const Known* Now = mKnown.object(Card.Of);
    if (Now && Now->Box == mBox && !Now->IsStale) return false;
    return std::ranges::none_of(mReading, [&](const Reading& Each) { return Each.Of == Card.Of; });
}

void CardPictures::Look() {
    TakeRead();
    BeginReading();
    if (mReading.empty()) mLook.stop();
}

void CardPictures::TakeRead() {
    std::vector<LibraryHit> Came;
    for (Reading& Each : mReading) {
        if (!Each.Work->Wait(0)) continue;
        auto Made = std::make_unique<Known>(Each.Work->Take());
        Each.Work.reset();
        const int Cost = CostOf(Made->Cover);
        mKnown.insert(Each.Of, Made.release(), Cost);
        Came.push_back(Each.Of);
        ++mReadSoFar;
    }
    std::erase_if(mReading, [](const Reading& Each) { return !Each.Work; });
    for (const LibraryHit& Each : Came) Q_EMIT Read(Each);
}

void CardPictures::BeginReading() {
    for (const HomeCard& Each : mInView()) {
        if (mReading.size() >= MostAtOnce()) return;
        if (!DBEngine || !IsWanted(Each)) continue;
        auto Work = [What = OrderFor(Each)](JobState&) { return ReadAside(What); };
        mReading.push_back({Each.Of, std::make_unique<Job<Known>>(std::move(Work))});
    }
}

CardPictures::Order CardPictures::OrderFor(const HomeCard& Card) const {
    Order Made{.DBPath = DBEngine->DBPath(), .Box = mBox, .Scale = mScale};
    const std::int32_t AlbumID = Card.Of.AlbumID;
    if (Card.What == HomeCard::Kind::Album) Made.DatedAlbum = AlbumID;
    const clsNEBAlbum* Album = DBEngine->GetAlbum(AlbumID);
    if (!Album) return Made;
    const clsNEBSlide* Slide = Card.What == HomeCard::Kind::Slide
                                   ? SlideIn(*Album, Card.Of.SlideID)
                                   : CoverOf(*DBEngine, AlbumID, Card.Of.SlideShowID);
    if (!Slide) return Made;
    Made.SlideID = Slide->SlideID;
    Made.Path = SlidePath(Made.DBPath, AlbumID, Slide->SlideLoc);
    return Made;
}

CardPictures::Known CardPictures::ReadAside(const Order& What) {
    Known Made{.Cover = {}, .Changed = {}, .SlideID = What.SlideID, .Box = What.Box};
    if (!What.Path.isEmpty()) Made.Cover = FittedCover(What.Path, What.Box, What.Scale);
    if (What.DatedAlbum != 0) Made.Changed = LastChangeOf(What.DBPath, What.DatedAlbum);
    return Made;
}

}  // namespace neb
