// Counts the time that the calling thread itself has worked, for limits on what a hostile file may
// cost: a machine that is busy with other things does not make a good picture take too long.
#pragma once

#ifdef _WIN32
#include <QElapsedTimer>
#else
#include <ctime>
#endif

namespace neb {

#ifdef _WIN32
class WorkTimer {
  public:
    WorkTimer() { mTimer.start(); }
    double Milliseconds() const { return static_cast<double>(mTimer.elapsed()); }

  private:
    QElapsedTimer mTimer;
};
#else
// To be asked on the thread that made it.
class WorkTimer {
  public:
    double Milliseconds() const { return Now() - mStart; }

  private:
    static double Now() {
        timespec Worked{};
        ::clock_gettime(CLOCK_THREAD_CPUTIME_ID, &Worked);
        return static_cast<double>(Worked.tv_sec) * 1e3 + static_cast<double>(Worked.tv_nsec) / 1e6;
    }
    double mStart = Now();
};
#endif

}  // namespace neb
