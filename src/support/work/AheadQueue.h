// Works through a list on worker threads, a few items ahead of the caller, and hands the results
// out in the order of the list. Used where pictures are read one after another: the import, the
// printing of sheets. The caller keeps its window alive while it waits:
//   while (!Queue.AtEnd()) { while (!Queue.Wait(50)) DoEvents(); Use(Queue.Take()); }
#pragma once

#include <QMutex>
#include <QThread>
#include <QThreadPool>
#include <QWaitCondition>
#include <exception>
#include <functional>
#include <memory>
#include <optional>
#include <vector>

namespace neb {

// The threads of all queues. Not the toolkit's own: with those it paints large pictures, and a
// window would stand still until the work on them has ended. One more than there are processors:
// while one waits for a disk, or for another process, none stands idle. Never ended: they may be at
// work when all else is over.
inline QThreadPool& AheadThreads() {
    static auto* const Its = [] {
        auto* const Made = new QThreadPool;
        Made->setMaxThreadCount(QThread::idealThreadCount() + 1);
        return Made;
    }();
    return *Its;
}

template <class Item, class Result>
class AheadQueue {
  public:
    using WorkFunction = std::function<Result(const Item&)>;

    // Work runs on worker threads and may outlive the queue by the item it is busy with: it must
    // own what it uses. Window: results that are begun and not yet taken, at most; 0 for what
    // keeps all processors busy.
    AheadQueue(std::vector<Item> Items, WorkFunction Work, int Window = 0)
        : mShared(std::make_shared<Shared>()) {
        mShared->Items = std::move(Items);
        mShared->Work = std::move(Work);
        mShared->Slots.resize(mShared->Items.size());
        const int Ahead = Window > 0 ? Window : AheadThreads().maxThreadCount() + 1;
        for (int I = 0; I < Ahead; ++I) BeginNext();
    }
    // Leaves at once: what is not begun never will be, what runs ends unheard.
    ~AheadQueue() {
        const QMutexLocker Lock(&mShared->Mutex);
        mShared->Abandoned = true;
    }
    AheadQueue(const AheadQueue&) = delete;
    AheadQueue& operator=(const AheadQueue&) = delete;

    bool AtEnd() const { return mTaken == mShared->Items.size(); }
    // The item whose result comes next; not at the end.
    const Item& Next() const { return mShared->Items[mTaken]; }
    bool Ready() { return Wait(0); }
    // Whether the next result is there, after at most so many milliseconds. At the end: true.
    bool Wait(int Milliseconds) {
        QMutexLocker Lock(&mShared->Mutex);
        if (AtEnd() || mShared->Slots[mTaken].Done) return true;
        if (Milliseconds > 0) mShared->Changed.wait(&mShared->Mutex, Milliseconds);
        return mShared->Slots[mTaken].Done;
    }
    // The next result; waits for it. What the work threw is thrown here, and the following call
    // goes on with the item after it. Not at the end.
    Result Take() {
        Slot Taken = WaitForSlot();
        ++mTaken;
        BeginNext();
        if (Taken.Error) std::rethrow_exception(Taken.Error);
        return std::move(*Taken.Value);
    }

  private:
    struct Slot {
        bool Done = false;
        std::optional<Result> Value;
        std::exception_ptr Error;
    };
    // Lives as long as the queue or the last worker that still works for it.
    struct Shared {
        std::vector<Item> Items;
        WorkFunction Work;
        QMutex Mutex;
        QWaitCondition Changed;
        std::vector<Slot> Slots;
        bool Abandoned = false;

        bool IsAbandoned() {
            const QMutexLocker Lock(&Mutex);
            return Abandoned;
        }
        void Run(size_t Index) {
            if (IsAbandoned()) return;
            Slot Made;
            try {
                Made.Value.emplace(Work(Items[Index]));
            } catch (...) {
                Made.Error = std::current_exception();
            }
            Made.Done = true;
            const QMutexLocker Lock(&Mutex);
            Slots[Index] = std::move(Made);
            Changed.wakeAll();
        }
    };

    void BeginNext() {
        if (mBegun == mShared->Items.size()) return;
        AheadThreads().start([Mine = mShared, Index = mBegun] { Mine->Run(Index); });
        ++mBegun;
    }
    Slot WaitForSlot() {
        QMutexLocker Lock(&mShared->Mutex);
        Slot& Wanted = mShared->Slots[mTaken];
        while (!Wanted.Done) mShared->Changed.wait(&mShared->Mutex);
        return std::exchange(Wanted, Slot());
    }

    std::shared_ptr<Shared> mShared;
    size_t mTaken = 0;
    size_t mBegun = 0;
};

}  // namespace neb
