// How long a thread with an event loop stood still at a stretch: beats every 10 ms and keeps the
// longest time between two beats. Time in which the thread would have run and got no processor is
// not counted, so that a machine that is busy otherwise does not look like a frozen window.
#pragma once

#include <QFile>
#include <QTimer>
#include <algorithm>
#include <chrono>
#include <functional>

namespace neb::harness {

class Heartbeat {
  public:
    explicit Heartbeat(std::function<void()> OnBeat = {}) : mOnBeat(std::move(OnBeat)) {
        QObject::connect(&mTimer, &QTimer::timeout, &mTimer, [this] { Beat(); });
        mTimer.setTimerType(Qt::PreciseTimer);
        mTimer.start(10);
    }
    // Milliseconds; what has passed since the last beat counts, too.
    double LongestStandstill() {
        Note();
        return mLongest;
    }
    int Beats() const { return mBeats; }

  private:
    using Milliseconds = std::chrono::duration<double, std::milli>;

    void Beat() {
        Note();
        ++mBeats;
        if (mOnBeat) mOnBeat();
    }
    void Note() {
        const double Now = TimeWithAProcessor();
        mLongest = std::max(mLongest, Now - std::exchange(mLast, Now));
    }
    // The clock less what this thread has spent waiting for a processor, both of one moment:
    // between the two it may lose the processor.
    static double TimeWithAProcessor() {
        for (double Before = Waited();;) {
            const Milliseconds Now = std::chrono::steady_clock::now().time_since_epoch();
            const double After = Waited();
            if (After == Before) return Now.count() - After;
            Before = After;
        }
    }
    // The second of the kernel's three figures: nanoseconds in the queue of a processor. Where the
    // kernel does not count them, 0: the test is then as strict as the clock.
    static double Waited() {
        QFile File(QStringLiteral("/proc/thread-self/schedstat"));
        if (!File.open(QIODevice::ReadOnly)) return 0;
        const QList<QByteArray> Figures = File.readAll().split(' ');
        return Figures.size() > 1 ? Figures[1].toDouble() / 1e6 : 0;
    }

    std::function<void()> mOnBeat;
    QTimer mTimer;
    int mBeats = 0;
    double mLast = TimeWithAProcessor();
    double mLongest = 0;
};

}  // namespace neb::harness
