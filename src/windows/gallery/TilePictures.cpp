#include "windows/gallery/TilePictures.h"

#include <QListView>
#include <optional>
#include <set>
#include <utility>

#include "controls/grid/ShapedPicture.h"
#include "pictures/ImgX.h"
#include "pictures/PictureResize.h"
#include "pictures/PictureShape.h"
#include "support/modFUFL.h"
#include "windows/gallery/SlideModel.h"
#include "windows/lists/ScreenPicture.h"

namespace neb {
namespace {

constexpr int TileLookMs = 15;  // who pages on at once passes by unread
constexpr int Thumbnail = 0;

QSize Square(int Side) {
    return {Side, Side};
}

// The small file beside the picture, in the shape of the picture.
TilePicture ReadSmall(const QString& Path, int Side) {
    try {
        ImgX Small;
        Small.Load(GetFilePath(Path) + GetFileBaseName(Path) + QStringLiteral("Small.bmp"));
        const QSize Shape = PictureShape(Path);
        if (Shape.isEmpty()) return {};
        const int Pixels = std::min(Side, ThumbnailSize.width());
        const QSize Size = Shape.scaled(Square(Pixels), Qt::KeepAspectRatio).expandedTo({1, 1});
        return {ResizePicture(Small.Picture(), Size, ResizeFilter::Sharp),
                Side <= ThumbnailSize.width() ? Side : 0, false};
    } catch (const std::exception&) {
        return {};  // the picture itself tells whether there is something to show
    }
}

TilePicture ReadSharp(const QString& Path, int Side) {
    try {
        return {ReadForScreen(Path, Square(Side)), Side, false};
    } catch (const std::exception&) {
        return {{}, Side, true};
    }
}

}  // namespace

TilePictures::TilePictures(QListView& View, const SlideModel& Model, int Side)
    : QObject(&View), mView(View), mModel(Model), mSide(Side) {
    mLook.setInterval(TileLookMs);
    connect(&mLook, &QTimer::timeout, this, &TilePictures::Look);
}

void TilePictures::SetSide(int Logical) {
    mSide = Logical;
}

int TilePictures::SideInPixels() const {
    return qRound(mSide * mView.devicePixelRatioF());
}

TilePictures::Key TilePictures::KeyOf(int Row) const {
    return {mModel.SlideID(Row), mModel.Edition(Row)};
}

const TilePicture* TilePictures::Known(int Row) const {
    const auto Found = mKnown.find(mModel.SlideID(Row));
    const bool IsThis = Found != mKnown.end() && Found->second.Edition == mModel.Edition(Row);
    return IsThis ? &Found->second.Picture : nullptr;
}

TilePicture TilePictures::Of(int Row) {
    if (MissingOf(Row) && !mLook.isActive()) mLook.start();
    const auto Found = mKnown.find(mModel.SlideID(Row));
    return Found == mKnown.end() ? TilePicture() : Found->second.Picture;
}

bool TilePictures::IsUnreadable(int Row) const {
    const TilePicture* Now = Known(Row);
    return Now && Now->IsUnreadable;
}

bool TilePictures::IsSharp(int Row) const {
    const TilePicture* Now = Known(Row);
    return Now && Now->Side == SideInPixels();
}

std::optional<TilePictures::Order> TilePictures::MissingOf(int Row) const {
    const TilePicture* Now = Known(Row);
    if (!Now) return Order{KeyOf(Row), Thumbnail};
    const int Side = SideInPixels();
    if (Now->IsUnreadable || Now->Side == Side) return {};
    return Order{KeyOf(Row), Side};
}

// The rows lie one behind the other, in lines from the top down.
TilePictures::Range TilePictures::InView() const {
    const auto Bottom = [&](int Row) { return mView.visualRect(mModel.index(Row)).bottom(); };
    const auto Top = [&](int Row) { return mView.visualRect(mModel.index(Row)).top(); };
    const auto FirstWhere = [&](auto IsSo) {
        int Low = 0, High = mModel.Count();
        while (Low < High) {
            const int Middle = (Low + High) / 2;
            if (IsSo(Middle))
                High = Middle;
            else
                Low = Middle + 1;
        }
        return Low;
    };
    const int Height = mView.viewport()->height();
    return {FirstWhere([&](int Row) { return Bottom(Row) >= 0; }),
            FirstWhere([&](int Row) { return Top(Row) >= Height; }) - 1};
}

TilePictures::Range TilePictures::Nearby() const {
    const auto [First, Last] = InView();
    const int Page = Last - First + 1;
    return {std::max(First - Page, 0), std::min(Last + Page, mModel.Count() - 1)};
}

void TilePictures::Look() {
    mReadings.TakeEnded([this](const Order& Done, const TilePicture& Read) { Take(Done, Read); });
    BeginReading();
    if (mReadings.IsEmpty()) mLook.stop();
}

// A picture that was renewed meanwhile is read again; one of another size than is wanted by now, or
// of what was there before, is shown until the right one comes.
void TilePictures::Take(const Order& Done, const TilePicture& Read) {
    const int Row = mModel.RowOf(Done.Of.SlideID);
    if (Row < 0 || KeyOf(Row) != Done.Of) return;
    auto& [Edition, Now] = mKnown[Done.Of.SlideID];
    const bool IsNew = std::exchange(Edition, Done.Of.Edition) != Done.Of.Edition;
    const bool Stays = IsNew ? Read.Picture.isNull() : !Now.Picture.isNull();
    if (Done.Side != Thumbnail || !Stays)
        Now = Read;
    else if (IsNew)
        Now = {Now.Picture, Thumbnail, false};
    mView.update(mModel.index(Row));
}

// All thumbnails in view come first, then the pictures in view, then what lies around.
std::optional<TilePictures::Order> TilePictures::NextMissing(int& Row) const {
    const auto [First, Last] = InView();
    const auto [Above, Below] = Nearby();
    const auto Find = [&](int From, int To, bool Small) -> std::optional<Order> {
        for (Row = From; Row <= To; ++Row) {
            const auto Missing = MissingOf(Row);
            if (Missing && (!Small || Missing->Side == Thumbnail) && !mReadings.Has(*Missing))
                return Missing;
        }
        return {};
    };
    if (const auto Found = Find(First, Last, true)) return Found;
    if (const auto Found = Find(First, Last, false)) return Found;
    if (const auto Found = Find(Last + 1, Below, false)) return Found;
    return Find(Above, First - 1, false);
}

void TilePictures::BeginReading() {
    while (mReadings.HasPlace()) {
        int Row = 0;
        const auto Next = NextMissing(Row);
        if (!Next) return;
        DropDistant();
        const int Side = SideInPixels();
        mReadings.Begin(
            *Next, [Path = mModel.Path(Row), Side, Small = Next->Side == Thumbnail](JobState&) {
                return Small ? ReadSmall(Path, Side) : ReadSharp(Path, Side);
            });
    }
}

void TilePictures::DropDistant() {
    std::set<std::int32_t> Near;
    const auto [First, Last] = Nearby();
    for (int Row = First; Row <= Last; ++Row) Near.insert(mModel.SlideID(Row));
    std::erase_if(mKnown, [&](const auto& Each) { return !Near.count(Each.first); });
}

}  // namespace neb
