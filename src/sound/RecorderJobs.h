// The recorder half of clsDirectSound for a window: a microphone may take seconds to open and to
// close, so each operation is done on a thread aside, one after the other, while the window asks
// whether it is over. The sound recorder holds one.
#pragma once

#include <chrono>
#include <functional>
#include <future>
#include <memory>

namespace neb {

class clsDirectSound;

class RecorderJobs {
  public:
    // Answers as the operations of clsDirectSound do; may throw Fault. What it uses besides it must
    // own.
    using Operation = std::function<bool(clsDirectSound& Recorder)>;

    RecorderJobs();
    // Returns at once. What is under way comes to its end by itself; then all that runs stops, and
    // the devices are let go of.
    ~RecorderJobs();
    RecorderJobs(const RecorderJobs&) = delete;
    RecorderJobs& operator=(const RecorderJobs&) = delete;

    // Not while one is under way. Waits for the twinkling of an eye: what is quickly done is over
    // when this returns.
    void Begin(Operation Do);
    // Waits so long at most.
    bool IsOver(std::chrono::milliseconds Most = {}) const;
    // What the operation has answered, once it is over; throws what it threw.
    bool Answer();
    // For what takes no time: errors, seconds, levels. Never while an operation is under way.
    clsDirectSound& Recorder() { return *mRecorder; }

    // Before the devices go: waits for what closed windows have left behind, so long at most. False
    // when that was not enough.
    static bool AwaitAll(std::chrono::milliseconds Most);

  private:
    std::shared_ptr<clsDirectSound> mRecorder;
    std::future<bool> mAnswer;  // of the operation under way; invalid: none
};

}  // namespace neb
