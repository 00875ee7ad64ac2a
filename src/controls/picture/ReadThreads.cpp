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
constexpr auto HangsAfter =
    std::chrono::seconds(1);         // no picture of a disk takes so long to begin with
constexpr size_t MostThreads = 256;  // a whole show on a medium that has gone

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
    struct Task {
        QString File;
        std::function<void()> Work;
        Time Began;

        bool Hangs() const { return std::chrono::steady_clock::now() - Began >= HangsAfter; }
    };
    std::mutex Mutex;
    std::array<Task, 2> Waiting;  // by kind
    std::list<Task> UnderWay;     // without their works

    std::function<void()> TakeNext(Task& Place);
    bool HangsIn(const QString& File) const;
    bool HasPlace() const;
};

bool ReadThreads::Room::HangsIn(const QString& File) const {
    return std::any_of(UnderWay.begin(), UnderWay.end(),
                       [&](const Task& Each) { return Each.File == File && Each.Hangs(); });
}

// The caller has locked the room, as for the others. What is taken is under way at Place.
std::function<void()> ReadThreads::Room::TakeNext(Task& Place) {
    Place = {{}, {}, std::chrono::steady_clock::now()};
    for (Task& Each : Waiting) {
        if (!Each.Work || HangsIn(Each.File)) continue;
        Place.File = Each.File;
        return std::exchange(Each.Work, nullptr);
    }
    return {};
}

bool ReadThreads::Room::HasPlace() const {
    const auto AtWork = std::count_if(UnderWay.begin(), UnderWay.end(),
                                      [](const Task& Each) { return !Each.Hangs(); });
    return AtWork < MostAtWork && UnderWay.size() < MostThreads;
}

ReadThreads::ReadThreads() : mRoom(std::make_shared<Room>()) {}

ReadThreads::~ReadThreads() {
    Withdraw(Kind::Wanted);
    Withdraw(Kind::Ahead);
}

void ReadThreads::Put(Kind Of, const QString& File, std::function<void()> Work) {
    {
        const std::lock_guard Lock(mRoom->Mutex);
        mRoom->Waiting[static_cast<size_t>(Of)] = {File, std::move(Work), {}};
    }
    GoOn();
}

bool ReadThreads::Withdraw(Kind Of) {
    const std::lock_guard Lock(mRoom->Mutex);
    return std::exchange(mRoom->Waiting[static_cast<size_t>(Of)].Work, nullptr) != nullptr;
}

void ReadThreads::GoOn() {
    const std::lock_guard Lock(mRoom->Mutex);
    while (mRoom->HasPlace()) {
        const auto Mine = mRoom->UnderWay.emplace(mRoom->UnderWay.end());
        auto Work = mRoom->TakeNext(*Mine);
        if (!Work) {
            mRoom->UnderWay.erase(Mine);
            return;
        }
        Count(1);
        std::thread([Mine, Room = mRoom, Todo = std::move(Work)]() mutable {
            while (Todo) {
                Todo();
                Todo = nullptr;  // what it owned goes before anybody is told that it is done
                const std::lock_guard Inside(Room->Mutex);
                Todo = Room->TakeNext(*Mine);
                if (!Todo) Room->UnderWay.erase(Mine);
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
