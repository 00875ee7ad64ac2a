// The measure of standstills that other tests rely on.
#include "harness/Heartbeat.h"

#include <gtest/gtest.h>

#include <sched.h>
#include <sys/resource.h>
#include <unistd.h>
#include <QCoreApplication>
#include <QEventLoop>
#include <atomic>
#include <ctime>
#include <thread>

namespace neb {
namespace {

using namespace std::chrono_literals;
using harness::Heartbeat;

using Clock = std::chrono::steady_clock;

// Until this thread has worked for so long, which takes longer on a machine that is busy otherwise.
void Work(std::chrono::milliseconds Time) {
    const auto Worked = [] {
        struct timespec Now = {};
        clock_gettime(CLOCK_THREAD_CPUTIME_ID, &Now);
        return std::chrono::seconds(Now.tv_sec) + std::chrono::nanoseconds(Now.tv_nsec);
    };
    for (const auto End = Worked() + Time; Worked() < End;) {
    }
}

// The loop of a program that lives.
void LiveFor(std::chrono::milliseconds Time) {
    for (const auto End = Clock::now() + Time; Clock::now() < End;)
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
}

TEST(Heartbeat, AThreadThatWorksWithoutAYieldStandsStill) {
    Heartbeat Heart;
    Work(150ms);
    QCoreApplication::processEvents();
    LiveFor(50ms);
    EXPECT_GT(Heart.LongestStandstill(), 100);
}

TEST(Heartbeat, AThreadThatWaitsWithoutAYieldStandsStillUpToTheEnd) {
    Heartbeat Heart;
    LiveFor(50ms);
    std::this_thread::sleep_for(550ms);
    EXPECT_GT(Heart.LongestStandstill(), 100);
}

TEST(Heartbeat, AThreadThatWaitsForADiskThatIsBusyOtherwiseLives) {
    Heartbeat Heart;
    LiveFor(50ms);
    std::this_thread::sleep_for(150ms);
    EXPECT_LT(Heart.LongestStandstill(), 100);
}

// Threads that keep one processor busy, and one that gets next to nothing of it.
void ShareOneProcessor() {
    cpu_set_t Allowed, One;
    sched_getaffinity(0, sizeof Allowed, &Allowed);
    CPU_ZERO(&One);
    for (int Number = 0; CPU_COUNT(&One) == 0; ++Number)
        if (CPU_ISSET(Number, &Allowed)) CPU_SET(Number, &One);
    ASSERT_EQ(0, sched_setaffinity(0, sizeof One, &One));
}

struct Crowd {
    Crowd() {
        for (int I = 0; I < 16; ++I)
            mOthers.emplace_back([this] {
                ShareOneProcessor();
                // behind all others, so that no test that runs beside this one is slowed down
                setpriority(PRIO_PROCESS, static_cast<id_t>(gettid()), 10);
                while (mGoes) {
                }
            });
    }
    ~Crowd() {
        mGoes = false;
        for (std::thread& Each : mOthers) Each.join();
    }

  private:
    std::atomic<bool> mGoes = true;
    std::vector<std::thread> mOthers;
};

TEST(Heartbeat, AThreadThatYieldsLivesHoweverBusyTheMachineIs) {
    double ByTheClock = 0, Longest = 0;
    const Crowd Others;
    std::thread([&] {
        ShareOneProcessor();
        ASSERT_EQ(0, setpriority(PRIO_PROCESS, static_cast<id_t>(gettid()), 19));
        QEventLoop Loop;
        auto Last = Clock::now();
        Heartbeat Heart(
            [&] {
                const auto Now = Clock::now();
                const std::chrono::duration<double, std::milli> Gap =
                    Now - std::exchange(Last, Now);
                ByTheClock = std::max(ByTheClock, Gap.count());
            },
            0);
        for (const auto End = Clock::now() + 30s; Clock::now() < End && ByTheClock < 45;)
            Loop.processEvents(QEventLoop::WaitForMoreEvents);
        Longest = Heart.LongestStandstill();
    }).join();
    EXPECT_GE(ByTheClock, 45) << "it did not have to wait";
    EXPECT_LT(Longest, ByTheClock - 15) << "what it waited for a processor is no standstill";
}

}  // namespace
}  // namespace neb
