#include "windows/lists/ListPictures.h"

#include <QThread>
#include <set>

#include "controls/grid/FlexGrid.h"
#include "pictures/ImgX.h"
#include "pictures/PictureShape.h"
#include "windows/lists/clsImageBuffer.h"

namespace neb {
namespace {

constexpr int ColPicture = clsImageBuffer::ColPicture, ColPath = clsImageBuffer::ColPath;
constexpr int LookMs = 15;      // who pages on at once passes by unread
constexpr int PatienceMs = 25;  // so that pictures seldom change their shape before one's eyes

// One processor is left to the windows.
size_t MostAtOnce() {
    return static_cast<size_t>(std::clamp(QThread::idealThreadCount() - 1, 1, 4));
}

}  // namespace

ListPictures::ListPictures(FlexGrid& Grid) : QObject(&Grid), mGrid(Grid) {
    mLook.setInterval(LookMs);
    connect(&mLook, &QTimer::timeout, this, &ListPictures::Look);
    Grid.SetPictureSource(ColPicture, [this](int Row) { return Of(Row); });
}

ShapedPicture ListPictures::Of(int Row) {
    const QImage& Own = mGrid.CellPicture(Row, ColPicture);
    if (Own.isNull()) return {};
    if (!mKnown.count(KeyOf(Row))) LearnShapes(Row);
    if (IsWanted(Row) && !mLook.isActive()) mLook.start();
    const auto Found = mKnown.find(KeyOf(Row));
    if (Found == mKnown.end()) return {Own};
    const auto& [Shape, Sharp, ForScale] = Found->second;
    return {Sharp.isNull() || ForScale != Scale() ? Own : Sharp, Shape};
}

ListPictures::Key ListPictures::KeyOf(int Row) const {
    return {mGrid.TextMatrix(Row, ColPath), mGrid.CellPicture(Row, ColPicture).cacheKey()};
}

double ListPictures::Scale() const {
    return mGrid.devicePixelRatioF();
}

ListPictures::Range ListPictures::InView() const {
    const int Last = mGrid.rowAt(mGrid.viewport()->height() - 1);
    return {std::max(mGrid.rowAt(0), 0), Last < 0 ? mGrid.Rows() - 1 : Last};
}

ListPictures::Range ListPictures::Nearby() const {
    const auto [First, Last] = InView();
    const int Page = Last - First + 1;
    return {std::max(First - Page, 0), std::min(Last + Page, mGrid.Rows() - 1)};
}

// Of all rows in view together. On a medium that takes its time they come later.
void ListPictures::LearnShapes(int Row) {
    if (mLearning) return;
    DropDistant();
    std::vector<Key> Missing{KeyOf(Row)};
    const auto [First, Last] = InView();
    for (int Each = First; Each <= Last; ++Each)
        if (!mGrid.CellPicture(Each, ColPicture).isNull() && !mKnown.count(KeyOf(Each)))
            Missing.push_back(KeyOf(Each));
    mLearning = std::make_unique<Job<Shapes>>([Missing](JobState& State) {
        Shapes All;
        for (const Key& Each : Missing)
            if (!State.Stop && !All.count(Each)) All[Each] = PictureShape(Each.first);
        return All;
    });
    if (!TakeShapes(PatienceMs)) mLook.start();
}

bool ListPictures::TakeShapes(int Milliseconds) {
    if (!mLearning || !mLearning->Wait(Milliseconds)) return false;
    for (const auto& [Of, Shape] : mLearning->Take()) mKnown[Of].Shape = Shape;
    mLearning.reset();
    return true;
}

void ListPictures::Look() {
    if (!mGrid.Redraw()) return;
    if (TakeShapes(0)) {
        const auto [First, Last] = InView();
        for (int Row = First; Row <= Last; ++Row) mGrid.PictureChanged(Row, ColPicture);
    }
    TakeRead();
    BeginReading();
    if (!mLearning && mReading.empty()) mLook.stop();
}

void ListPictures::TakeRead() {
    for (Reading& Each : mReading) {
        if (!Each.Work->Wait(0)) continue;
        Known Read = Each.Work->Take();
        Each.Work.reset();
        if (Read.Shape.isEmpty()) Read.Shape = mKnown[Each.Of].Shape;
        mKnown[Each.Of] = std::move(Read);
        Tell(Each.Of);
    }
    std::erase_if(mReading, [](const Reading& Each) { return !Each.Work; });
}

void ListPictures::Tell(const Key& Of) {
    const auto [First, Last] = InView();
    for (int Row = First; Row <= Last; ++Row)
        if (KeyOf(Row) == Of) mGrid.PictureChanged(Row, ColPicture);
}

bool ListPictures::IsWanted(int Row) const {
    if (Scale() <= 1 || mGrid.CellPicture(Row, ColPicture).isNull()) return false;
    const Key Of = KeyOf(Row);
    const auto Found = mKnown.find(Of);
    if (Found != mKnown.end() && Found->second.Scale == Scale()) return false;
    return std::none_of(mReading.begin(), mReading.end(),
                        [&](const Reading& Each) { return Each.Of == Of; });
}

// What is seen comes first, then what follows it, then what went before.
int ListPictures::NextToRead() const {
    const auto [First, Last] = InView();
    const auto [Above, Below] = Nearby();
    for (int Row = First; Row <= Below; ++Row)
        if (IsWanted(Row)) return Row;
    for (int Row = First - 1; Row >= Above; --Row)
        if (IsWanted(Row)) return Row;
    return -1;
}

void ListPictures::BeginReading() {
    while (mReading.size() < MostAtOnce()) {
        const int Row = NextToRead();
        if (Row < 0) return;
        DropDistant();
        Begin(Row);
    }
}

void ListPictures::Begin(int Row) {
    const Key Of = KeyOf(Row);
    auto Read = [Path = Of.first, Scale = Scale()](JobState&) -> Known {
        const int Side = qCeil(PictureSide * Scale);
        try {
            ImgX Picture;
            Picture.LoadAtLeast(Path, {Side, Side});
            const QSize Full = Picture.FullSize();
            return {Full, FittedPicture({Picture.Picture(), Full}, Scale), Scale};
        } catch (const std::exception&) {
            return {{}, {}, Scale};  // the thumbnail is what there is to show
        }
    };
    mReading.push_back({Of, std::make_unique<Job<Known>>(std::move(Read))});
}

void ListPictures::DropDistant() {
    std::set<Key> Near;
    const auto [First, Last] = Nearby();
    for (int Row = First; Row <= Last; ++Row) Near.insert(KeyOf(Row));
    std::erase_if(mKnown, [&](const auto& Each) { return !Near.count(Each.first); });
}

}  // namespace neb
