#include "sound/mixing/SoundMixer.h"

#include <algorithm>
#include <chrono>

namespace neb {

using Voices = std::vector<std::shared_ptr<SoundVoice>>;

struct SoundMixer::Core {
    std::mutex Mutex;  // guards what follows
    std::condition_variable Changed;
    Voices All;
    bool Woken = false;
    bool Ending = false;

    void Fill(float* Into, int Frames);
    Voices TakeOver();
    Voices HungriestFirst();
    bool FeedOne();
    bool WaitForWork();
    void Run();
};

// Nothing is freed and nothing allocated here: this is the device's thread.
void SoundMixer::Core::Fill(float* Into, int Frames) {
    const size_t Samples = 2 * static_cast<size_t>(Frames);
    std::fill_n(Into, Samples, 0.F);
    bool Any = false;
    {
        const std::lock_guard Lock(Mutex);
        for (const auto& Voice : All) Any |= Voice->Mix(Into, Frames);
    }
    if (!Any) return;
    for (size_t I = 0; I < Samples; ++I) Into[I] = std::clamp(Into[I], -1.F, 1.F);
}

Voices SoundMixer::Core::TakeOver() {
    const std::lock_guard Lock(Mutex);
    const auto First =
        std::stable_partition(All.begin(), All.end(), [](const auto& V) { return !V->IsOver(); });
    Voices Over(std::make_move_iterator(First), std::make_move_iterator(All.end()));
    All.erase(First, All.end());
    return Over;
}

Voices SoundMixer::Core::HungriestFirst() {
    std::vector<std::pair<int, std::shared_ptr<SoundVoice>>> Ordered;
    {
        const std::lock_guard Lock(Mutex);
        for (const auto& Voice : All) Ordered.emplace_back(Voice->Buffered(), Voice);
    }
    std::stable_sort(Ordered.begin(), Ordered.end(),
                     [](const auto& A, const auto& B) { return A.first < B.first; });
    Voices Sorted;
    for (auto& [Buffered, Voice] : Ordered) Sorted.push_back(std::move(Voice));
    return Sorted;
}

bool SoundMixer::Core::FeedOne() {
    const Voices Sorted = HungriestFirst();
    return std::any_of(Sorted.begin(), Sorted.end(), [](const auto& V) { return V->Feed(); });
}

// False when it is time to end. While there are voices a look now and then is enough: a second
// is decoded ahead.
bool SoundMixer::Core::WaitForWork() {
    std::unique_lock Lock(Mutex);
    const auto IsWoken = [this] { return Woken || Ending; };
    if (All.empty())
        Changed.wait(Lock, IsWoken);
    else
        Changed.wait_for(Lock, std::chrono::milliseconds(100), IsWoken);
    Woken = false;
    return !Ending;
}

void SoundMixer::Core::Run() {
    while (WaitForWork()) {
        TakeOver();
        while (FeedOne()) {
            const std::lock_guard Lock(Mutex);
            if (Ending) return;
        }
    }
}

SoundMixer::SoundMixer(Feeding Way) : mCore(std::make_shared<Core>()) {
    if (Way == Feeding::ByItself)
        mFeeder = std::make_unique<LeftThread>([Shared = mCore] { Shared->Run(); });
}

SoundMixer::~SoundMixer() {
    const std::lock_guard Lock(mCore->Mutex);
    mCore->Ending = true;
    mCore->Changed.notify_all();
}

void SoundMixer::Add(std::shared_ptr<SoundVoice> Voice) {
    {
        const std::lock_guard Lock(mCore->Mutex);
        mCore->All.push_back(std::move(Voice));
    }
    Wake();
}

void SoundMixer::Wake() {
    const std::lock_guard Lock(mCore->Mutex);
    mCore->Woken = true;
    mCore->Changed.notify_all();
}

void SoundMixer::Fill(float* Into, int Frames) {
    mCore->Fill(Into, Frames);
}

void SoundMixer::Feed() {
    mCore->TakeOver();
    while (mCore->FeedOne()) {
    }
}

}  // namespace neb
