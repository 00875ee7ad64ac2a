// How far the writing of a folder for a disc is: several transfers one after the other, told as
// one, and then its check sums. Used by DiscFolder and by the windows that show it.
#pragma once

#include <functional>
#include <optional>
#include <vector>

#include "albums/transfer/TransferProgress.h"
#include "support/files/CheckSums.h"

namespace neb {

struct DiscProgress {
    TransferProgress Copied;             // of all that was chosen together
    std::optional<SumsProgress> Sums;    // once the check sums are made
    int Percent() const;                 // of the whole, 0 to 100
    QString Text(double Seconds) const;  // Seconds after the first byte
};
// "file 120 of 2,000, 1.2 GB of 9 GB".
QString SumsText(const SumsProgress& Now);
int SumsPercent(const SumsProgress& Now);

// Adds up what the transfers and the check sums tell, and tells it on. For DiscFolder alone.
class ProgressOfAll {
  public:
    using Listener = std::function<bool(const DiscProgress& Now)>;
    explicit ProgressOfAll(Listener Hears) : mHears(std::move(Hears)) {}

    // Before anything is copied: what the next transfer will be, by its pictures.
    void Expect(const TransferProgress& Transfer) { mAhead.push_back(Transfer); }
    TransferProgress Ahead() const;
    void Begin();  // the next one
    void Finish();
    // False once it was stopped, also where the stop comes while records are written.
    bool Looking() { return Tell({}); }
    bool Transferring(const TransferProgress& Now);
    bool Summing(const SumsProgress& Now);
    bool IsStopped() const { return mStopped; }
    const SumsProgress& Sums() const { return mSums; }

  private:
    bool Tell(const DiscProgress& Now);

    const Listener mHears;
    std::vector<TransferProgress> mAhead;
    TransferProgress mDone, mNow;
    SumsProgress mSums;
    bool mStopped = false;
};

}  // namespace neb
