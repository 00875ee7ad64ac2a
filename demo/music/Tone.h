// The tones of the sample music: what a voice is made of, and one note of it laid into a sound.
// Reckoned by the four basic operations alone, so that each machine makes the same bytes.
#pragma once

#include <span>
#include <vector>

namespace neb::demo {

struct Stereo {
    Stereo(int SamplesPerSec, double Seconds);

    int Rate;  // frames a second
    std::vector<double> Left, Right;
};

// One of the sine waves that sound together in a voice.
struct Partial {
    double Ratio;  // to the pitch of the note
    double Level;
    double Fade;  // seconds until it has sunk to about a third; 0: it does not sink
};

struct Voice {
    std::span<const Partial> Partials;
    double Attack;   // seconds until it is there
    double Release;  // seconds from the note's end to silence
    double Level;
};

struct Note {
    const Voice* By;
    double At;      // seconds
    double Length;  // seconds, without the release
    int Pitch;      // half tones, 69 is 440 a second
    double Level;
    double Pan;  // -1 left to 1 right
};

// The sine of a share of the whole turn.
double SineOfTurn(double Turn);
double Frequency(int Pitch);
// Adds a note; what would sound after the end is left out.
void Play(const Note& One, Stereo& Into);

}  // namespace neb::demo
