// Keeps the screen from blanking as long as the object lives, faults included.
#pragma once

#include "support/Services.h"

namespace neb {

class BlankingHold {
  public:
    explicit BlankingHold(const QString& Reason) : mBlanking(TheServices().Blanking) {
        if (mBlanking) mBlanking->Inhibit(Reason);
    }
    ~BlankingHold() {
        if (mBlanking) mBlanking->Release();
    }
    BlankingHold(const BlankingHold&) = delete;
    BlankingHold& operator=(const BlankingHold&) = delete;

  private:
    ScreenBlanking* mBlanking;
};

}  // namespace neb
