// Pictures that are being read beside the window, each on a thread of its own: few at a time, and
// one that hangs takes nobody's place. Used by the thumbnails, by the full screen and by the home.
#pragma once

#include <QElapsedTimer>
#include <QThread>
#include <algorithm>
#include <functional>
#include <memory>
#include <vector>

#include "support/work/Job.h"

namespace neb {

template <class Key, class Result>
class Readings {
  public:
    bool IsEmpty() const { return mAll.empty(); }
    bool Has(const Key& Of) const {
        return std::ranges::any_of(mAll, [&](const Reading& Each) { return Each.Of == Of; });
    }
    std::vector<Key> Keys() const {
        std::vector<Key> All;
        for (const Reading& Each : mAll) All.push_back(Each.Of);
        return All;
    }
    // Whether another one may begin; Urgent: one that somebody waits for.
    bool HasPlace(bool Urgent = false) const {
        const auto AtWork = std::ranges::count_if(
            mAll, [](const Reading& Each) { return Each.Since.elapsed() < HangsAfterMs; });
        return AtWork < MostAtWork() + (Urgent ? 1 : 0) && mAll.size() < MostInAll;
    }
    // What Read uses it must own.
    void Begin(const Key& Of, std::function<Result(JobState&)> Read) {
        mAll.push_back({Of, std::make_unique<Job<Result>>(std::move(Read)), {}});
        mAll.back().Since.start();
    }
    // Gives what has ended to Take(Key, Result). Read does not throw.
    template <class Taker>
    void TakeEnded(Taker Take) {
        std::vector<Reading> Ended;
        for (auto Each = mAll.begin(); Each != mAll.end();) {
            const bool Has = Each->Work->Wait(0);
            if (Has) Ended.push_back(std::move(*Each));
            Each = Has ? mAll.erase(Each) : Each + 1;
        }
        for (Reading& Each : Ended) Take(Each.Of, Each.Work->Take());
    }

  private:
    static constexpr qint64 HangsAfterMs = 1500;
    static constexpr size_t MostInAll = 64;
    struct Reading {
        Key Of;
        std::unique_ptr<Job<Result>> Work;
        QElapsedTimer Since;
    };
    // One processor is left to the windows.
    static int MostAtWork() { return std::clamp(QThread::idealThreadCount() - 1, 1, 4); }

    std::vector<Reading> mAll;
};

}  // namespace neb
