#include "albums/transfer/DiscProgress.h"

#include <algorithm>

#include "support/Grouped.h"
#include "support/Texts.h"

namespace neb {
namespace {

constexpr int CopyingShare = 80;  // percent: the check sums only read what has just been written

void Add(TransferProgress& To, const TransferProgress& More) {
    To.Pictures += More.Pictures;
    To.OfPictures += More.OfPictures;
    To.Bytes += More.Bytes;
    To.OfBytes += More.OfBytes;
}

}  // namespace

int SumsPercent(const SumsProgress& Now) {
    // a file may grow while it is read
    return Now.OfBytes > 0 ? static_cast<int>(std::min(Now.Bytes, Now.OfBytes) * 100 / Now.OfBytes)
                           : 0;
}

QString SumsText(const SumsProgress& Now) {
    return tr("file %1 of %2, %3 of %4")
        .arg(Grouped(std::min(Now.Files, Now.OfFiles)), Grouped(Now.OfFiles),
             ShortSize(std::min(Now.Bytes, Now.OfBytes)), ShortSize(Now.OfBytes));
}

int DiscProgress::Percent() const {
    if (Sums) return CopyingShare + SumsPercent(*Sums) * (100 - CopyingShare) / 100;
    return Copied.OfBytes > 0 ? static_cast<int>(std::min(Copied.Bytes, Copied.OfBytes) *
                                                 CopyingShare / Copied.OfBytes)
                              : 0;
}

QString DiscProgress::Text(double Seconds) const {
    return Sums ? tr("check sums: ") + SumsText(*Sums) : ProgressText(Copied, Seconds);
}

TransferProgress ProgressOfAll::Ahead() const {
    TransferProgress All;
    for (const TransferProgress& Each : mAhead) Add(All, Each);
    return All;
}

void ProgressOfAll::Begin() {
    if (mAhead.empty()) return;
    mNow = mAhead.front();
    mAhead.erase(mAhead.begin());
}

void ProgressOfAll::Finish() {
    mNow.Pictures = mNow.OfPictures;
    mNow.Bytes = mNow.OfBytes;
    Add(mDone, mNow);
    mNow = {};
}

bool ProgressOfAll::Transferring(const TransferProgress& Now) {
    if (Now.At == TransferProgress::Stage::Copying) mNow = Now;
    DiscProgress All;
    All.Copied = Ahead();
    Add(All.Copied, mDone);
    Add(All.Copied, mNow);
    All.Copied.At = TransferProgress::Stage::Copying;
    return Tell(All);
}

bool ProgressOfAll::Summing(const SumsProgress& Now) {
    mSums = Now;
    return Tell({mDone, Now});
}

bool ProgressOfAll::Tell(const DiscProgress& Now) {
    if (mHears && !mHears(Now)) mStopped = true;
    return !mStopped;
}

}  // namespace neb
