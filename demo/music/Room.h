// The room in which the sample music sounds, and its last touches before it goes into a file.
#pragma once

#include <QByteArray>

#include "Tone.h"

namespace neb::demo {

// Adds a soft echo that falls back once a Beat of so many seconds, from side to side, and the
// hall of a small church. Share: of the hall, 0 to 1.
void AddRoom(Stereo& Sound, double Beat, double Share);
// Fades the last FadeOut seconds, ends in silence, and lifts the loudest sample to 3 dB below full.
void Master(Stereo& Sound, double FadeOut);
// Both sides become their middle.
void FoldToMono(Stereo& Sound);
// A WAV file of 16 bits a sample; mono is the left side alone.
QByteArray AsWave(const Stereo& Sound, bool Mono);

}  // namespace neb::demo
