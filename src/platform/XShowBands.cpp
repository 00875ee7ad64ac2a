#include "platform/XShowBands.h"

#include <QSemaphore>
#include <QThread>
#include <QThreadPool>
#include <algorithm>

namespace neb {
namespace {

constexpr int kWorthAThread = 100000;  // pixels; below that, waking a thread costs more

// A pool of its own: steps never wait behind other work.
QThreadPool& Painters() {
    static QThreadPool Pool;
    return Pool;
}

int BandCount(QSize Size) {
    const qint64 Pixels = qint64{Size.width()} * Size.height();
    const auto Useful = static_cast<int>(Pixels / kWorthAThread);
    return std::clamp(Useful, 1, std::clamp(QThread::idealThreadCount(), 1, 8));
}

}  // namespace

void DrawInBands(const Transition& T, double Progress, QImage& Out) {
    const int Bands = BandCount(T.Size()), Height = T.Size().height();
    if (Bands == 1 || Out.size() != T.Size()) return T.Draw(Progress, Out);
    Out.bits();  // no longer shared with any other picture before threads write to it
    const auto EdgeOf = [=](int Band) { return static_cast<int>(qint64{Height} * Band / Bands); };
    QSemaphore Done;
    for (int B = 1; B < Bands; ++B)
        Painters().start([&, B] {
            T.DrawRows(Progress, Out, EdgeOf(B), EdgeOf(B + 1));
            Done.release();
        });
    T.DrawRows(Progress, Out, 0, EdgeOf(1));
    Done.acquire(Bands - 1);
}

}  // namespace neb
