// How often the progress windows are painted: not more often than a screen can show, however fast
// their work goes on.
#pragma once

#include <QElapsedTimer>

namespace neb {

class PaintRate {
  public:
    // Whether it is time to paint again; the time counts from the last true.
    bool IsDue() {
        if (mLast.isValid() && mLast.elapsed() < FrameMs) return false;
        mLast.start();
        return true;
    }

  private:
    static constexpr int FrameMs = 16;
    QElapsedTimer mLast;
};

}  // namespace neb
