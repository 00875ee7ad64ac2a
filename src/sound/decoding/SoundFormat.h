// The one format in which all sounds are mixed and handed to the device, and what can be brought to
// it. Used by all that play.
#pragma once

namespace neb {

constexpr int kMixRate = 44100;      // frames a second, each a left and a right sample
constexpr int kLeastRate = 200;      // of a sound; fewer are beyond the converter
constexpr int kDeviceFrames = 1024;  // that the device asks for at a time
constexpr int kFadeFrames = 352;     // 8 ms, the length of the ramp at each jump

}  // namespace neb
