#include "support/work/ProcessEnd.h"

#include <atomic>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <thread>
#include <utility>

namespace neb {
namespace {

std::atomic<int> AtWork = 0;
std::atomic<void (*)()> Last = nullptr;

constexpr int MostLooks = 50;
constexpr std::chrono::milliseconds BetweenLooks(10);

}  // namespace

WorkOnThread::WorkOnThread() {
    ++AtWork;
}

WorkOnThread::~WorkOnThread() {
    if (mCounts) --AtWork;
}

WorkOnThread::WorkOnThread(WorkOnThread&& Other) noexcept
    : mCounts(std::exchange(Other.mCounts, false)) {}

void AtProcessEnd(void (*Do)()) {
    Last = Do;
}

int EndProcess(int ExitCode) {
    for (int Look = 0; AtWork > 0 && Look < MostLooks; ++Look)
        std::this_thread::sleep_for(BetweenLooks);
    if (const auto Do = Last.load()) Do();
    if (AtWork == 0) return ExitCode;
    std::fflush(nullptr);
    std::_Exit(ExitCode);
}

}  // namespace neb
