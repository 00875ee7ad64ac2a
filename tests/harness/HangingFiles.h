// Files on a medium that hangs: a reader that passes by here waits until the test lets it go on.
// May outlive the test in the hands of a reader.
#pragma once

#include <QSet>
#include <QString>
#include <condition_variable>
#include <memory>
#include <mutex>

namespace neb::harness {

class HangingFiles {
  public:
    void Hang(const QString& File) {
        const std::lock_guard Lock(mMutex);
        mHanging.insert(File);
    }
    void GoOn(const QString& File) {
        const std::lock_guard Lock(mMutex);
        mHanging.remove(File);
        mChanged.notify_all();
    }
    void GoOnAll() {
        const std::lock_guard Lock(mMutex);
        mHanging.clear();
        mChanged.notify_all();
    }
    // By the reader.
    void Pass(const QString& File) {
        std::unique_lock Lock(mMutex);
        ++mInside;
        mMost = std::max(mMost, mInside);
        mChanged.wait(Lock, [&] { return !mHanging.contains(File); });
        --mInside;
    }
    // How many were waiting at a time.
    int Most() {
        const std::lock_guard Lock(mMutex);
        return mMost;
    }

  private:
    std::mutex mMutex;
    std::condition_variable mChanged;
    QSet<QString> mHanging;
    int mInside = 0, mMost = 0;
};

}  // namespace neb::harness
