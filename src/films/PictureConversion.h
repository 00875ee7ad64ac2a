// A frame as it was drawn made into one as the encoder wants it: the same, or BT.709 in the limited
// range with a quarter of the colours, which lie at the left. Used by VideoTrack.
#pragma once

#include "films/Av.h"

extern "C" {
#include <libswscale/swscale.h>
}

namespace neb {

class PictureConversion {
  public:
    // Pixels: blue, green, red and an unused byte each, rows Stride bytes apart, of Into's size.
    void Convert(const std::uint8_t* Pixels, std::ptrdiff_t Stride, AVFrame& Into);

  private:
    void OpenFor(const AVFrame& Into);

    struct Freed {
        void operator()(SwsContext* Scaler) const { sws_freeContext(Scaler); }
    };
    std::unique_ptr<SwsContext, Freed> mScaler;
};

}  // namespace neb
