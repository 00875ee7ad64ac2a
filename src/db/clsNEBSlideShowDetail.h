// One slide's place in a show. Plain data, owned by the show.
#pragma once

#include <QString>
#include <cstdint>

namespace neb {

class clsNEBSlideShowDetail {
  public:
    std::int32_t SlideID = 0;   // may name a slide that is no more: its users deal with that
    std::int32_t SlideSeq = 0;  // place in the show, from 1
    QString SlideText;
};

}  // namespace neb
