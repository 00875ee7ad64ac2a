#include "controls/picture/ReadThreads.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <condition_variable>
#include <list>
#include <mutex>
#include <thread>
#include <utility>

namespace neb {
namespace {

using Time = std::chrono::steady_clock::time_point;

constexpr int MostAtWork = 3;
constexpr auto Hangs = std::chrono::seconds(1);  // no picture of a disk takes so long to begin with
constexpr size_t MostThreads = 64;               // a whole show on a medium that has gone

// All threads of the program.
struct Census {
    std::mutex Mutex;
    std::condition_variable Changed;
    int Working = 0;
};

// Never goes: a thread that hangs may come back while the program ends.
Census& All() {
    static auto& Instance = *new Census;
    return Instance;
}

void Count(int Change) {
    const std::lock_guard Lock(All().Mutex);
    All().Working += Change;
    All().Changed.notify_all();
}

}  // namespace

struct ReadThreads::Room {
    std::mutex Mutex;
    std::array<std::function<void()>, 2> Waiting;  // by kind
    std::list<Time> Began;                         // of what is under way

    std::function<void()> TakeNext();
    bool HasPlace() const;
};

// The caller has locked the room, as for HasPlace.
std::function<void()> ReadThreads::Room::TakeNext() {
    for (auto& Work : Waiting)
        if (Work) return std::exchange(Work, nullptr);
    return {};
}

bool ReadThreads::Room::HasPlace() const {
    const Time Since = std::chrono::steady_clock::now() - Hangs;
    const auto AtWork =
        std::count_if(Began.begin(), Began.end(), [&](Time T) { return T > Since; });
    return AtWork < MostAtWork && Began.size() < MostThreads;
}

ReadThreads::ReadThreads() : mRoom(std::make_shared<Room>()) {}

ReadThreads::~ReadThreads() {
    Withdraw(Kind::Wanted);
    Withdraw(Kind::Ahead);
}

void ReadThreads::Put(Kind Of, std::function<void()> Work) {
    {
        const std::lock_guard Lock(mRoom->Mutex);
        mRoom->Waiting[static_cast<size_t>(Of)] = std::move(Work);
    }
    GoOn();
}

bool ReadThreads::Withdraw(Kind Of) {
    const std::lock_guard Lock(mRoom->Mutex);
    return std::exchange(mRoom->Waiting[static_cast<size_t>(Of)], nullptr) != nullptr;
}

void ReadThreads::GoOn() {
    const std::lock_guard Lock(mRoom->Mutex);
    while (mRoom->HasPlace()) {
        auto Work = mRoom->TakeNext();
        if (!Work) return;
        const auto Mine = mRoom->Began.insert(mRoom->Began.end(), std::chrono::steady_clock::now());
        Count(1);
        std::thread([Mine, Room = mRoom, Todo = std::move(Work)]() mutable {
            while (Todo) {
                Todo();
                Todo = nullptr;  // what it owned goes before anybody is told that it is done
                const std::lock_guard Inside(Room->Mutex);
                *Mine = std::chrono::steady_clock::now();
                Todo = Room->TakeNext();
                if (!Todo) Room->Began.erase(Mine);
            }
            Count(-1);
        }).detach();
    }
}

void ReadThreads::AwaitAll(int Milliseconds) {
    std::unique_lock Lock(All().Mutex);
    All().Changed.wait_for(Lock, std::chrono::milliseconds(Milliseconds),
                           [] { return All().Working == 0; });
}

}  // namespace neb
