#include "films/FilmEncoder.h"

#include <algorithm>
#include <memory>
#include <stdexcept>

#include "films/SoundTrack.h"
#include "films/SubtitleTrack.h"
#include "films/VideoTrack.h"

namespace neb {

namespace {

bool IsEven(int Size) {
    return Size > 0 && Size % 2 == 0;
}

const FilmSetup& Checked(const FilmSetup& Setup) {
    if (!IsEven(Setup.Width) || !IsEven(Setup.Height))
        throw std::runtime_error("The width and height of a film are even.");
    if (std::max(Setup.Width, Setup.Height) > 7680 || std::min(Setup.Width, Setup.Height) > 4320)
        throw std::runtime_error("A film is no larger than 7680 by 4320.");
    if (Setup.Rate < 1 || Setup.Rate > 240)
        throw std::runtime_error("A film has 1 to 240 frames a second.");
    return Setup;
}

class LibraryEncoder : public FilmEncoder {
  public:
    LibraryEncoder(const FilmSetup& Setup, FilmSink Sink)
        : mMuxer(Checked(Setup), std::move(Sink)), mVideo(Setup, mMuxer), mSound(Setup, mMuxer) {
        AddSubtitleTrack(mMuxer, Setup);
        mMuxer.Begin(Setup);
    }

    void AddFrame(const std::uint8_t* Pixels, std::ptrdiff_t Stride, int Count) override {
        if (Count > 0) mVideo.Add(Pixels, Stride, Count);
    }

    void AddSound(const float* Samples, std::size_t Frames) override {
        mSound.Add(Samples, Frames);
    }

    void Finish() override {
        mVideo.Finish();
        mSound.Finish();
        mMuxer.Finish();
    }

  private:
    FilmMuxer mMuxer;
    VideoTrack mVideo;
    SoundTrack mSound;
};

}  // namespace

FilmEncoder* NebMakeFilmEncoder(const FilmSetup& Setup, FilmSink Sink) {
    av_log_set_level(
        AV_LOG_QUIET);  // faults are thrown; nobody reads a graphical program's console
    return std::make_unique<LibraryEncoder>(Setup, std::move(Sink)).release();
}

}  // namespace neb
