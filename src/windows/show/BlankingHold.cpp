#include "windows/show/BlankingHold.h"

namespace neb {
namespace {

constexpr double MostPauseMs = 10 * 60 * 1000;
constexpr int LookMs = 1000;

}  // namespace

BlankingHold::BlankingHold(const QString& Reason)
    : mReason(Reason), mBlanking(TheServices().Blanking) {
    mLook.setInterval(LookMs);
    connect(&mLook, &QTimer::timeout, this, &BlankingHold::Look);
    Hold(true);
}

BlankingHold::~BlankingHold() {
    Hold(false);
}

void BlankingHold::Hold(bool Held) {
    if (!mBlanking || std::exchange(mHeld, Held) == Held) return;
    Held ? mBlanking->Inhibit(mReason) : mBlanking->Release();
}

void BlankingHold::Follow(bool Running) {
    if (Running) {
        mLook.stop();
        return Hold(true);
    }
    if (mLook.isActive()) return;
    mStandsSince = TheServices().Time->Ticks();
    mLook.start();
}

void BlankingHold::Look() {
    if (TheServices().Time->Ticks() - mStandsSince < MostPauseMs) return;
    mLook.stop();
    Hold(false);
}

}  // namespace neb
