// The notes of the sample music: chords are given, the melodies find their own way over them by
// a few rules and a fixed seed.
#pragma once

#include <vector>

#include "Tone.h"

namespace neb::demo {

constexpr double MorningBeat = 0.68;  // seconds
constexpr double EveningBeat = 0.78;

// Harp and celesta over soft strings, four beats to the bar, in D major.
std::vector<Note> ComposeMorning();
// A slow waltz in A minor: a music box first, then a flute.
std::vector<Note> ComposeEvening();
// Three bells upwards.
std::vector<Note> ComposeChime();

}  // namespace neb::demo
