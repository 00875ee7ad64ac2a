// Single frames of a transition against the clock, at moments spread evenly over its way. Used by
// the benchmarks of the transitions.
#pragma once

#include <QElapsedTimer>
#include <algorithm>
#include <array>
#include <numeric>

namespace neb {

constexpr std::size_t kMoments = 20;
using FrameTimes = std::array<double, kMoments>;  // ms

template <typename Work>
double Milliseconds(Work&& Do) {
    QElapsedTimer Timer;
    Timer.start();
    Do();
    return static_cast<double>(Timer.nsecsElapsed()) * 1e-6;
}

// Of each moment the least of some rounds, each of which goes the whole way: what else runs on the
// machine makes a frame late now and then, but never early. Draw(Progress) draws a frame.
template <typename Drawer>
FrameTimes LeastTimes(int Rounds, Drawer&& Draw) {
    FrameTimes Out;
    Out.fill(1e9);
    for (int Round = 0; Round < Rounds; ++Round)
        for (std::size_t I = 0; I < kMoments; ++I) {
            const double Progress = (static_cast<double>(I) + 0.5) / kMoments;
            Out[I] = std::min(Out[I], Milliseconds([&] { Draw(Progress); }));
        }
    return Out;
}

inline double WorstOf(const FrameTimes& Times) {
    return *std::max_element(Times.begin(), Times.end());
}
inline double SumOf(const FrameTimes& Times) {
    return std::accumulate(Times.begin(), Times.end(), 0.0);
}

}  // namespace neb
