// From frames and samples to the bytes of a film. The encoders of the system's libraries stand in a
// module of their own, which is loaded when the first film is made: they bring so many libraries
// along that every start of the program would be slower by them. What crosses its border is
// therefore the standard library's alone. Used by show/film/FilmWriter.
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>
#include <vector>

namespace neb {

enum class FilmFormat {
    Mp4,       // H.264 and AAC: every television and telephone
    WebM,      // VP9 and Opus
    Lossless,  // FFV1 and FLAC in Matroska: every frame to the bit, every sample to 24
};

// Times are seconds from the film's start, texts UTF-8.
struct FilmChapter {
    double At = 0, Until = 0;
    std::string Title;
};
struct FilmSubtitle {
    double At = 0, Until = 0;
    std::string Text;
};

// All that is known before the first frame.
struct FilmSetup {
    FilmFormat Format = FilmFormat::Mp4;
    int Width = 1920,
        Height = 1080;  // pixels, even, 2 to 7680 and 2 to 4320 or the other way round
    int Rate = 30;      // frames a second
    int Quality = 75;   // 1 to 100, the best; of no meaning to Lossless
    int Threads = 0;    // 0: as many as there are processors
    std::string Title;
    std::string Date;                     // "2026-11-22"; empty: none
    std::vector<std::uint8_t> Cover;      // a JPEG; empty: none. WebM has no place for one
    std::vector<FilmChapter> Chapters;    // in the order of time
    std::vector<FilmSubtitle> Subtitles;  // the same; empty: no subtitle track
};

// The samples that AddSound takes a second.
constexpr int FilmSoundRate = 44100;

// Where the bytes go. Each call comes on the thread of whoever calls the encoder.
struct FilmSink {
    std::function<bool(const std::uint8_t* Bytes, std::size_t Count)> Write;  // at the place
    // From the start; beyond the end, too, of a film that is moved up before its index goes in.
    std::function<bool(std::int64_t Place)> Seek;
    // What was written; bytes read, 0 at the end, below 0 where that fails.
    std::function<std::ptrdiff_t(std::int64_t Place, std::uint8_t* Into, std::size_t Count)> Read;
};

// Throws std::runtime_error, with a sentence, when it cannot go on; no other call may follow then.
// What was not finished is no film.
class FilmEncoder {
  public:
    virtual ~FilmEncoder() = default;
    // Blue, green, red and an unused byte a pixel, rows Stride bytes apart; shown for Count frames,
    // which cost little more than one. Sound may be up to a second ahead of the frames, or behind.
    virtual void AddFrame(const std::uint8_t* Pixels, std::ptrdiff_t Stride, int Count) = 0;
    // So many frames of two samples each, -1 to 1.
    virtual void AddSound(const float* Samples, std::size_t Frames) = 0;
    virtual void Finish() = 0;
};

// The module's one symbol. Throws std::runtime_error for a setup that no encoder takes.
extern "C" FilmEncoder* NebMakeFilmEncoder(const FilmSetup& Setup, FilmSink Sink);
using MakeFilmEncoderFunction = FilmEncoder* (*)(const FilmSetup& Setup, FilmSink Sink);

}  // namespace neb
