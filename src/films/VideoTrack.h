// The pictures of a film. Used by FilmEncoder.
#pragma once

#include "films/PictureConversion.h"
#include "films/TrackCodec.h"

namespace neb {

class VideoTrack {
  public:
    VideoTrack(const FilmSetup& Setup, FilmMuxer& Muxer);
    void Add(const std::uint8_t* Pixels, std::ptrdiff_t Stride, int Count);
    void Finish();

  private:
    void SendEach(int Count);
    void WriteRepeated(int Count);

    const bool mRepeatsPackets;
    TrackCodec mCodec;
    PictureConversion mConversion;
    Av<AVFrame> mFrame;        // as the encoder wants it
    std::int64_t mFrames = 0;  // so far
};

}  // namespace neb
