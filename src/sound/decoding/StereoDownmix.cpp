#include "sound/decoding/StereoDownmix.h"

#include <algorithm>
#include <cmath>

namespace neb {
namespace {

constexpr int MostMixed = 8;

struct Share {
    float Left;
    float Right;
};
constexpr float Half = 0.70710678F;  // of the power
constexpr Share ToLeft{1, 0}, ToRight{0, 1}, Middle{Half, Half}, NearLeft{Half, 0},
    NearRight{0, Half}, BehindMiddle{0.5F, 0.5F}, Nowhere{0, 0};

// Front, back and side channels as WAV files order them, a row for each number of channels.
constexpr Share Shares[MostMixed][MostMixed] = {
    {{1, 1}},
    {ToLeft, ToRight},
    {ToLeft, ToRight, Middle},
    {ToLeft, ToRight, NearLeft, NearRight},
    {ToLeft, ToRight, Middle, NearLeft, NearRight},
    {ToLeft, ToRight, Middle, Nowhere, NearLeft, NearRight},
    {ToLeft, ToRight, Middle, Nowhere, BehindMiddle, NearLeft, NearRight},
    {ToLeft, ToRight, Middle, Nowhere, NearLeft, NearRight, NearLeft, NearRight},
};

// So that all channels at full level give full level.
float Scale(const Share* Row) {
    float Sum = 0;
    for (int I = 0; I < MostMixed; ++I) Sum += Row[I].Left;
    return 1 / Sum;
}

float Sane(float Sample) {
    return std::isfinite(Sample) ? Sample : 0;
}

}  // namespace

void MixToStereo(const float* From, int Channels, float* Into, int Frames) {
    const int Used = std::clamp(Channels, 1, MostMixed);
    const Share* const Row = Shares[Used - 1];
    const float Level = Scale(Row);
    for (; Frames > 0; --Frames, From += Channels, Into += 2) {
        float Left = 0, Right = 0;
        for (int I = 0; I < Used; ++I) {
            Left += Sane(From[I]) * Row[I].Left;
            Right += Sane(From[I]) * Row[I].Right;
        }
        Into[0] = Left * Level;
        Into[1] = Right * Level;
    }
}

}  // namespace neb
