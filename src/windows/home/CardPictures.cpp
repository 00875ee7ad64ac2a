#include "windows/home/CardPictures.h"

#include <memory>

#include "db/clsDBEngine.h"
#include "db/modAlbumFiles.h"
#include "settings/modNEBSlideShow.h"
#include "windows/lists/ScreenPicture.h"

namespace neb {
namespace {

constexpr int LookMs = 15;            // who scrolls on at once passes by unread
constexpr int MostKept = 128 * 1024;  // kilobytes

int CostOf(const QImage& Cover) {
    return static_cast<int>(Cover.sizeInBytes() / 1024) + 1;
}

// A small picture is not made larger: it would only be blurred.
QImage FittedCover(const QString& Path, QSize Box, double Scale) {
    try {
        QImage Cover = ReadForScreen(Path, Box);
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
    const auto IsOf = [&](const LibraryHit& Of, std::int32_t Shown) {
        return Of.AlbumID == AlbumID && (SlideID == 0 || Shown == 0 || Shown == SlideID);
    };
    for (const LibraryHit& Each : mKnown.keys()) {
        Known& Now = *mKnown.object(Each);
        if (IsOf(Each, Now.SlideID)) Now.IsStale = true;
        if (Each.AlbumID == AlbumID && Now.Changed) Now.Changed = QDateTime::currentDateTime();
    }
    for (const Errand& Each : mReadings.Keys())
        if (IsOf(Each.Of, Each.SlideID)) mOutdated.insert(Each.Of);
}

bool CardPictures::IsWanted(const HomeCard& Card) const {
    if (mBox.isEmpty() || mReadings.Has({Card.Of})) return false;
    const Known* Now = mKnown.object(Card.Of);
    return !Now || Now->Box != mBox || Now->IsStale;
}

void CardPictures::Look() {
    TakeRead();
    BeginReading();
    if (mReadings.IsEmpty()) mLook.stop();
}

void CardPictures::TakeRead() {
    std::vector<LibraryHit> Came;
    mReadings.TakeEnded([&](const Errand& Done, Known Read) {
        Read.IsStale = mOutdated.remove(Done.Of);
        const int Cost = CostOf(Read.Cover);
        mKnown.insert(Done.Of, std::make_unique<Known>(std::move(Read)).release(), Cost);
        Came.push_back(Done.Of);
        ++mReadSoFar;
    });
    for (const LibraryHit& Each : Came) Q_EMIT Read(Each);
}

void CardPictures::BeginReading() {
    for (const HomeCard& Each : mInView()) {
        if (!mReadings.HasPlace()) return;
        if (!DBEngine || !IsWanted(Each)) continue;
        const Order What = OrderFor(Each);
        mReadings.Begin({Each.Of, What.SlideID}, [What](JobState&) { return ReadAside(What); });
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
