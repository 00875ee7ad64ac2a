// The end of a program at one step of what it does to the disk, for tests that look at what the
// next start makes of it: by a kill, in the midst of a write, or by a loss of power, with which
// goes what was not flushed, of contents and of names.
#pragma once

#include <QString>
#include <functional>
#include <memory>

namespace neb::harness {

enum class Kill { BeforeStep, InsideWrite, PowerLoss };

// Ends this process at step Number (1 and up) of what it does to the disk, on whichever thread that
// is. Inside writes these alone are counted; half of the last one is written. With the power goes,
// of the files below Dir, what was not flushed: all of it where Number is divisible by three, else
// a part, which is another for every Number but the same each time.
class DiskKiller {
  public:
    DiskKiller(int Number, Kill How, const QString& Dir);
    ~DiskKiller();
    DiskKiller(const DiskKiller&) = delete;
    DiskKiller& operator=(const DiskKiller&) = delete;
    [[noreturn]] void End();
    // Whether a write was cut that should have been the last thing to happen.
    bool HasStruck() const;
    // Step Number of before is a kill alone; what comes next meets the loss of power at this step.
    void ThenFail(int Number, const std::function<void()>& Next);

  private:
    struct State;
    std::unique_ptr<State> mState;
};

// Runs Work in a child that kills itself at step Number; true when it got to its end before. A
// Fault of Work means that the disk is full by the kill's own write: it ends at once.
bool RunsThrough(int Number, Kill How, const QString& Dir, const std::function<void()>& Work);

// Work ends by a kill at step First, and Next, in another process, by a loss of power at step
// Second, with which goes what neither has flushed; true when Work got to its end before. For work
// on one thread.
bool RunsThrough(int First, int Second, const QString& Dir, const std::function<void()>& Work,
                 const std::function<void()>& Next);

}  // namespace neb::harness
