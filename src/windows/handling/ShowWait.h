// Lets a show wait while something lies over it, and go on as it was. One for each such thing;
// they may lie over each other.
#pragma once

#include <utility>

#include "show/ShowRun.h"

namespace neb {

class ShowWait {
  public:
    explicit ShowWait(ShowRun& Run) : mRun(Run) {}

    void Begin() {
        if (mRun.State().PlayCommand != u"Pause") return;
        mRun.PlayPause();
        mHalted = true;
    }
    // One that has been set going, or stopped, in the meantime stays as it is.
    void End() {
        if (std::exchange(mHalted, false) && mRun.State().PlayCommand == u"Resume")
            mRun.PlayPause();
    }

    // What was halted stays so.
    void Forget() { mHalted = false; }

  private:
    ShowRun& mRun;
    bool mHalted = false;
};

}  // namespace neb
