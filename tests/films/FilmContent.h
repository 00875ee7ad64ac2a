// What goes into the films of these tests, and a film of it made at once.
#pragma once

#include <QImage>

#include "films/FilmModule.h"

namespace neb::filmtest {

// Moves on with Number; the fourth byte of each pixel is rubbish. RGB32.
QImage MovingFrame(QSize Size, int Number);
// Two tones, the left and the right one's own; pairs of samples from the film's First.
std::vector<float> Tones(std::int64_t First, std::size_t Frames);

// Setup of a small film, without notes.
FilmSetup SmallFilm(FilmFormat Format);
// The same with chapters, subtitles, title, date and cover, for 2 seconds.
FilmSetup FullFilm(FilmFormat Format);

// How a film is fed: each picture for so many frames; sound is so many seconds before the pictures
// (behind them: below 0), and comes in pieces.
struct Feeding {
    double Seconds = 2;
    int Count = 1;
    double SoundAhead = 0;
};
void Feed(FilmEncoder& Encoder, const FilmSetup& Setup, const Feeding& How);
// The bytes of a whole film.
std::vector<std::uint8_t> MakeFilm(const FilmSetup& Setup, const Feeding& How = {});

}  // namespace neb::filmtest
