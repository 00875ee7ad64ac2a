#include "effects/XShowBands.h"

#include <QSemaphore>
#include <QThread>
#include <QThreadPool>
#include <algorithm>
#include <atomic>

namespace neb {
namespace {

constexpr int kWorthAThread = 100000;  // pixels; below that, waking a thread costs more
constexpr int kBlock = 32;             // rows that engines work on together
constexpr int kLeastBand = 2 * kBlock;

// A pool of its own: steps never wait behind other work.
QThreadPool& Painters() {
    static QThreadPool Pool;
    return Pool;
}

int ThreadCount(QSize Size) {
    const qint64 Pixels = qint64{Size.width()} * Size.height();
    const auto Useful = static_cast<int>(Pixels / kWorthAThread);
    return std::clamp(Useful, 1, std::clamp(QThread::idealThreadCount(), 1, 8));
}

// Hands out the rows of a frame in bands, large ones first and ever smaller ones towards the end:
// few of them, for each costs an engine some preparation, and yet all threads are done together
// whichever part of the picture is the hard one.
class BandKeeper {
  public:
    BandKeeper(int Height, int Threads) : mHeight(Height), mParts(2 * Threads) {}
    // False when no rows are left.
    bool Take(int& First, int& Last) {
        First = mNext;
        do {
            if (First >= mHeight) return false;
            Last = EndOf(First);
        } while (!mNext.compare_exchange_weak(First, Last));
        return true;
    }

  private:
    int EndOf(int First) const {
        const int Rows = std::max(kLeastBand, (mHeight - First) / mParts);
        return std::min(mHeight, First + (Rows + kBlock - 1) / kBlock * kBlock);
    }

    int mHeight, mParts;
    std::atomic<int> mNext = 0;
};

}  // namespace

void DrawInBands(const Transition& T, double Progress, QImage& Out) {
    if (Out.size() != T.Size()) Out = QImage(T.Size(), QImage::Format_RGB32);
    const int Threads = ThreadCount(T.Size());
    if (Threads == 1) return T.Draw(Progress, Out);
    Out.bits();  // no longer shared with any other picture before threads write to it
    BandKeeper Bands(T.Size().height(), Threads);
    const auto DrawBands = [&] {
        for (int First, Last; Bands.Take(First, Last);) T.DrawRows(Progress, Out, First, Last);
    };
    QSemaphore Done;
    for (int I = 1; I < Threads; ++I)
        Painters().start([&] {
            DrawBands();
            Done.release();
        });
    DrawBands();
    Done.acquire(Threads - 1);
}

}  // namespace neb
