#include "windows/printing/PageImages.h"

#include <QPainter>
#include <QThread>
#include <algorithm>

#include "printing/PrintDocument.h"
#include "support/Fault.h"

namespace neb {
namespace {

constexpr int LookEvery = 4;  // milliseconds

// One more than there are processors: a page that has just come into sight does not wait for
// those that have gone out of it.
std::size_t MostAtOnce() {
    return static_cast<std::size_t>(std::clamp(QThread::idealThreadCount() + 1, 2, 4));
}

PageImage Painted(const PageImages::PaintFunction& Paint, const PageRequest& What) {
    try {
        return {Paint(What), {}};
    } catch (const Fault& Problem) {
        return {{}, Problem.Text()};
    } catch (const std::exception&) {
        return {{}, PageImages::tr("This page cannot be painted.")};
    }
}

// Those of which all before them have room, too.
void CutToRoom(std::vector<PageRequest>& Ahead, qint64 Room) {
    const auto Beyond = std::find_if(Ahead.begin(), Ahead.end(), [&](const PageRequest& Each) {
        return (Room -= Each.Bytes()) < 0;
    });
    Ahead.erase(Beyond, Ahead.end());
}

qint64 BytesOf(const std::vector<PageRequest>& All) {
    qint64 Bytes = 0;
    for (const PageRequest& Each : All) Bytes += Each.Bytes();
    return Bytes;
}

}  // namespace

PageImages::PageImages(PaintFunction Paint, qint64 Budget)
    : mPaint(std::move(Paint)), mBudget(Budget) {
    connect(&mLook, &QTimer::timeout, this, &PageImages::Collect);
}

PageImages::PaintFunction PageImages::PainterOf(std::shared_ptr<const PrintDocument> Document) {
    return [Document = std::move(Document)](const PageRequest& Wanted) {
        QImage Paper(Wanted.Pixels, QImage::Format_RGB32);
        if (Paper.isNull()) throw Fault(tr("There is not enough memory to show this page."));
        Paper.fill(Qt::white);
        QPainter Painter(&Paper);
        Document->PaintPage(Painter, Wanted.Page, Wanted.Dots);
        return Paper;
    };
}

PageImages::Key PageImages::KeyOf(const PageRequest& Of) {
    return {Of.Page, Of.Pixels.width(), Of.Pixels.height()};
}

void PageImages::Want(std::vector<PageRequest> InSight, std::vector<PageRequest> Ahead) {
    mInSight = std::move(InSight);
    mAhead = std::move(Ahead);
    CutToRoom(mAhead, mBudget - BytesOf(mInSight));
    ++mNow;
    Touch(mAhead);
    ++mNow;
    Touch(mInSight);
    BeginNext();
}

void PageImages::Touch(const std::vector<PageRequest>& All) {
    for (const PageRequest& Each : All)
        if (const auto Found = mKept.find(KeyOf(Each)); Found != mKept.end())
            Found->second.Used = mNow;
}

// What comes too late to be looked at is the first to go.
qint64 PageImages::UseOf(const PageRequest& Of) const {
    const auto IsIt = [&](const PageRequest& Each) { return KeyOf(Each) == KeyOf(Of); };
    if (std::ranges::any_of(mInSight, IsIt)) return mNow;
    return std::ranges::any_of(mAhead, IsIt) ? mNow - 1 : mNow - 2;
}

const PageImage* PageImages::Find(const PageRequest& Wanted) const {
    const auto Found = mKept.find(KeyOf(Wanted));
    return Found == mKept.end() ? nullptr : &Found->second.Image;
}

QImage PageImages::StandIn(int Page) const {
    QImage Largest;
    for (auto Each = mKept.lower_bound({Page, 0, 0});
         Each != mKept.end() && Each->first.Page == Page; ++Each)
        if (!Each->second.Image.Pixels.isNull()) Largest = Each->second.Image.Pixels;
    return Largest;
}

bool PageImages::IsMissing(const PageRequest& Wanted) const {
    const auto IsIt = [&](const Running& Each) { return KeyOf(Each.What) == KeyOf(Wanted); };
    return !mKept.contains(KeyOf(Wanted)) && std::ranges::none_of(mRunning, IsIt);
}

// Reading ahead is done one page at a time, when nothing else is to be done.
void PageImages::BeginNext() {
    for (const PageRequest& Each : mInSight)
        if (mRunning.size() < MostAtOnce() && IsMissing(Each)) Begin(Each);
    for (const PageRequest& Each : mAhead)
        if (mRunning.empty() && IsMissing(Each)) Begin(Each);
    if (mRunning.empty())
        mLook.stop();
    else if (!mLook.isActive())
        mLook.start(LookEvery);
}

void PageImages::Begin(const PageRequest& Next) {
    MakeRoom(Next.Bytes());
    auto Work = [Paint = mPaint, Next](JobState&) { return neb::Painted(Paint, Next); };
    mRunning.push_back({Next, std::make_unique<Job<PageImage>>(std::move(Work))});
}

void PageImages::MakeRoom(qint64 Bytes) {
    for (const Running& Each : mRunning) Bytes += Each.What.Bytes();
    while (mBytes + Bytes > mBudget && DropOldest()) continue;
}

// Never one that is looked at.
bool PageImages::DropOldest() {
    const auto Oldest =
        std::ranges::min_element(mKept, {}, [](const auto& Each) { return Each.second.Used; });
    if (Oldest == mKept.end() || Oldest->second.Used == mNow) return false;
    mBytes -= Oldest->second.Image.Pixels.sizeInBytes();
    mKept.erase(Oldest);
    return true;
}

void PageImages::Collect() {
    const auto HasEnded = [](const Running& Each) { return Each.Work->Wait(0); };
    const auto Ended =
        std::stable_partition(mRunning.begin(), mRunning.end(), std::not_fn(HasEnded));
    if (Ended == mRunning.end()) return;
    std::vector<Running> Done(std::make_move_iterator(Ended),
                              std::make_move_iterator(mRunning.end()));
    mRunning.erase(Ended, mRunning.end());
    for (const Running& Each : Done) Keep(Each.What, Each.Work->Take());
    BeginNext();
    Q_EMIT Painted();
}

void PageImages::Keep(const PageRequest& What, PageImage Image) {
    mBytes += Image.Pixels.sizeInBytes();
    mKept[KeyOf(What)] = {std::move(Image), UseOf(What)};
    MakeRoom(0);
}

}  // namespace neb
