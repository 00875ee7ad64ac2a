// The sample music that lies under the show of the guided demonstration: two calm pieces and a
// chime, composed by rule. Used by neb-make-samples, the demonstration and its test.
#pragma once

#include <QByteArray>
#include <QString>
#include <span>

#include "Tone.h"

namespace neb::demo {

struct Tune {
    const char* FileName;
    double Seconds;
    int Rate;  // frames a second
    bool Mono;
    double Beat;     // seconds; the echo falls back at three quarters of it
    double Hall;     // share of the hall, 0 to 1
    double FadeOut;  // seconds
    std::vector<Note> (*Compose)();
};

// Two pieces, the chime last.
std::span<const Tune> AllTunes();
// The notes of a tune as it sounds, mastered.
Stereo Render(const Tune& Music);
QByteArray RenderWave(const Tune& Music);
// Writes all tunes, making the folder. Throws Fault.
void WriteMusic(const QString& Folder);

}  // namespace neb::demo
