// How a film waits for a file: on the way it hears whether anybody still wants it. Used by the
// parts of FilmMaker.
#pragma once

#include <functional>

#include "support/work/Job.h"

namespace neb {

// Called all the while; throws what ends the waiting, which leaves the work to itself.
using FilmMeanwhile = std::function<void()>;

template <class Result>
Result AwaitForFilm(Job<Result>& Work, const FilmMeanwhile& Meanwhile) {
    constexpr int LookMs = 20;
    while (!Work.Wait(LookMs)) Meanwhile();
    return Work.Take();
}

}  // namespace neb
