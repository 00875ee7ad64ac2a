// The kinds of pictures as they were before HEIC, AVIF, WebP, GIF and JPEG 2000 counted, while it
// lives. For tests of the lists to the letter.
#pragma once

#include "support/MediaTypes.h"

namespace neb::harness {

class WithoutExtraFormats {
  public:
    WithoutExtraFormats() { SetExtraFormats(false); }
    ~WithoutExtraFormats() { SetExtraFormats(true); }
    WithoutExtraFormats(const WithoutExtraFormats&) = delete;
    WithoutExtraFormats& operator=(const WithoutExtraFormats&) = delete;
};

}  // namespace neb::harness
