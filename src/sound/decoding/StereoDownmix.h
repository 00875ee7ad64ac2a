// One to eight channels, in the order of WAV files, as two for a pair of loudspeakers. Used where a
// decoder is read.
#pragma once

namespace neb {

// From and Into do not overlap. What is no number is silence. The deep-bass channel is left out: a
// pair of loudspeakers gets enough of it from the others. Nothing grows beyond full level.
void MixToStereo(const float* From, int Channels, float* Into, int Frames);

}  // namespace neb
