// A thread that whoever started it need not wait for: one that reads files may hang on a medium
// that has gone, and the program has to end all the same. The mixer and the keeper of the device
// run on such threads.
#pragma once

#include <condition_variable>
#include <functional>
#include <memory>
#include <mutex>
#include <thread>

namespace neb {

class LeftThread {
  public:
    // What the work uses it must own.
    explicit LeftThread(std::function<void()> Work);
    // The work has been told to end; waits a second for it, then leaves it to itself.
    ~LeftThread();
    LeftThread(const LeftThread&) = delete;
    LeftThread& operator=(const LeftThread&) = delete;

  private:
    struct End {
        std::mutex Mutex;
        std::condition_variable Changed;
        bool IsReached = false;
    };
    std::shared_ptr<End> mEnd;
    std::thread mThread;
};

}  // namespace neb
