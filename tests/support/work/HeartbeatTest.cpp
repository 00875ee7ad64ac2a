// The measure of standstills that other tests rely on.
#include "harness/Heartbeat.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
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
    std::this_thread::sleep_for(150ms);
    EXPECT_GT(Heart.LongestStandstill(), 100);
}

TEST(Heartbeat, AThreadThatYieldsLivesHoweverBusyTheMachineIs) {
    std::atomic<bool> Goes = true;
    std::vector<std::thread> Others;
    for (unsigned I = 0; I < 4 * std::thread::hardware_concurrency(); ++I)
        Others.emplace_back([&] {
            while (Goes) {
            }
        });
    Heartbeat Heart;
    LiveFor(500ms);
    const double Longest = Heart.LongestStandstill();
    Goes = false;
    for (std::thread& Each : Others) Each.join();
    EXPECT_LT(Longest, 100);
    EXPECT_GT(Heart.Beats(), 3);
}

}  // namespace
}  // namespace neb
