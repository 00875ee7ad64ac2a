// A film whose frames and samples a test gets into its hands, in place of an encoded one.
#pragma once

#include <QImage>
#include <memory>
#include <vector>

#include "show/film/FilmCodec.h"

namespace neb::test {

// What an encoder was given.
struct CaughtFilm {
    FilmSetup Setup;
    std::vector<QImage> Frames;  // those that were given at once share their pixels
    std::vector<float> Sound;    // pairs
    double MostApart = 0;        // seconds between frames and sound
    size_t LongestSound = 0;     // pairs that were given at once
    bool IsFinished = false;

    qint64 Pairs() const { return static_cast<qint64>(Sound.size() / 2); }
};

class CatchingEncoder : public FilmEncoder {
  public:
    CatchingEncoder(const FilmSetup& Setup, std::shared_ptr<CaughtFilm> Into)
        : mInto(std::move(Into)) {
        mInto->Setup = Setup;
    }
    void AddFrame(const std::uint8_t* Pixels, std::ptrdiff_t Stride, int Count) override {
        const QImage Frame = QImage(Pixels, mInto->Setup.Width, mInto->Setup.Height,
                                    static_cast<qsizetype>(Stride), QImage::Format_RGB32)
                                 .copy();
        for (int I = 0; I < Count; ++I) mInto->Frames.push_back(Frame);
        Measure();
    }
    void AddSound(const float* Samples, std::size_t Pairs) override {
        mInto->Sound.insert(mInto->Sound.end(), Samples, Samples + 2 * Pairs);
        mInto->LongestSound = std::max(mInto->LongestSound, Pairs);
        Measure();
    }
    void Finish() override { mInto->IsFinished = true; }

  private:
    void Measure() {
        const double Seen = static_cast<double>(mInto->Frames.size()) / mInto->Setup.Rate;
        const double Heard = static_cast<double>(mInto->Pairs()) / FilmSoundRate;
        mInto->MostApart = std::max(mInto->MostApart, std::abs(Seen - Heard));
    }
    std::shared_ptr<CaughtFilm> mInto;
};

// Of the films that are made from now on; until SetFilmEncoderMaker({}).
inline std::shared_ptr<CaughtFilm> CatchFilms() {
    const auto Film = std::make_shared<CaughtFilm>();
    SetFilmEncoderMaker([Film](const FilmSetup& Setup, const FilmSink&) {
        return std::make_unique<CatchingEncoder>(Setup, Film);
    });
    return Film;
}

}  // namespace neb::test
