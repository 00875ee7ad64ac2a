// What outlasts a show: the slide that was on the screen, and how long slides stay up. The shows on
// the screen share one; a rehearsal has its own.
#pragma once

#include <cstdint>

namespace neb {

struct ShowMemory {
    std::int32_t CurrentSlideSeq = 0;     // place of the slide on the screen; 0: none yet
    std::int32_t CurrentSlideShowID = 0;  // the show that CurrentSlideSeq belongs to
    double SlideTimeout = 20;             // seconds that a slide stays up by default

    bool operator==(const ShowMemory&) const = default;
};

// Of the shows on the screen, and its values by their names.
extern ShowMemory TheShowMemory;
inline std::int32_t& CurrentSlideSeq = TheShowMemory.CurrentSlideSeq;
inline std::int32_t& CurrentSlideShowID = TheShowMemory.CurrentSlideShowID;
inline double& SlideTimeout = TheShowMemory.SlideTimeout;

}  // namespace neb
