#include "effects/XShowBands.h"

#include <QSemaphore>
#include <QThread>
#include <QThreadPool>
#include <algorithm>
#include <atomic>

namespace neb {
namespace {

constexpr int kWorthAThread = 100000;  // pixels; below that, waking a thread costs more
constexpr int kBandsAThread = 4;       // whoever is done with an easy part takes the next one

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

}  // namespace

void DrawInBands(const Transition& T, double Progress, QImage& Out) {
    if (Out.size() != T.Size()) Out = QImage(T.Size(), QImage::Format_RGB32);
    const int Threads = ThreadCount(T.Size());
    if (Threads == 1) return T.Draw(Progress, Out);
    Out.bits();  // no longer shared with any other picture before threads write to it
    const int Bands = Threads * kBandsAThread;
    const qint64 Height = T.Size().height();
    std::atomic<int> Next = 0;
    const auto DrawBands = [&] {
        for (int B = Next++; B < Bands; B = Next++)
            T.DrawRows(Progress, Out, static_cast<int>(Height * B / Bands),
                       static_cast<int>(Height * (B + 1) / Bands));
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
