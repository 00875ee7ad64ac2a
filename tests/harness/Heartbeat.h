// How long a thread with an event loop stood still at a stretch: beats every 10 ms and keeps the
// longest time between two beats. Time in which this thread, or another of the program that it may
// be waiting for, would have run and got no processor is not counted, and of a wait for anything
// else (a disk that writes for others, the machine's own host) only what goes beyond Grace, so that
// a machine that is busy otherwise does not look like a frozen window. What the thread itself has
// worked always counts.
#pragma once

#include <QDir>
#include <QFile>
#include <QTimer>
#include <algorithm>
#include <chrono>
#include <ctime>
#include <functional>
#include <map>

#include "harness/ByTheClock.h"

namespace neb::harness {

class Heartbeat {
  public:
    explicit Heartbeat(std::function<void()> OnBeat = {}, double Grace = 400)  // milliseconds
        : mOnBeat(std::move(OnBeat)), mGrace(Grace) {
        GoByTheClock();
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
        const double Now = TimeWithProcessors(), Worked = WorkedTime();
        mLongest = std::max({mLongest, Now - std::exchange(mLast, Now) - mGrace,
                             Worked - std::exchange(mWorked, Worked)});
    }
    static double WorkedTime() {
        struct timespec Now = {};
        clock_gettime(CLOCK_THREAD_CPUTIME_ID, &Now);
        return static_cast<double>(Now.tv_sec) * 1e3 + static_cast<double>(Now.tv_nsec) / 1e6;
    }
    // The clock less what has been spent waiting for processors, both of one moment: in between
    // this thread may lose its own.
    double TimeWithProcessors() {
        for (double Before = Waited(QStringLiteral("thread-self"));;) {
            const Milliseconds Now = std::chrono::steady_clock::now().time_since_epoch();
            const double All = WaitedByAll();
            const double After = Waited(QStringLiteral("thread-self"));
            if (After == Before) return Now.count() - All;
            Before = After;
        }
    }
    // Threads come and go: what each has added since the last look is added up.
    double WaitedByAll() {
        for (const QString& Thread :
             QDir(QStringLiteral("/proc/self/task")).entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
            const double Now = Waited(QStringLiteral("self/task/") + Thread);
            double& Known = mWaits[Thread];
            mWaited += std::max(0.0, Now - std::exchange(Known, Now));
        }
        return mWaited;
    }
    // The second of the kernel's three figures: nanoseconds in the queue of a processor. Where the
    // kernel does not count them, 0: the test is then as strict as the clock.
    static double Waited(const QString& Thread) {
        QFile File(QStringLiteral("/proc/%1/schedstat").arg(Thread));
        if (!File.open(QIODevice::ReadOnly)) return 0;
        const QList<QByteArray> Figures = File.readAll().split(' ');
        return Figures.size() > 1 ? Figures[1].toDouble() / 1e6 : 0;
    }

    std::function<void()> mOnBeat;
    double mGrace;
    QTimer mTimer;
    int mBeats = 0;
    std::map<QString, double> mWaits;
    double mWaited = 0;
    double mLast = TimeWithProcessors();
    double mWorked = WorkedTime();
    double mLongest = 0;
};

}  // namespace neb::harness
