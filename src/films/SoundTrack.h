// The sound of a film. Used by FilmEncoder.
#pragma once

#include "films/TrackCodec.h"

namespace neb {

class SoundTrack {
  public:
    SoundTrack(const FilmSetup& Setup, FilmMuxer& Muxer);
    void Add(const float* Samples, std::size_t Frames);
    void Finish();

  private:
    void Convert(const float* Samples, int Frames);
    void SendWhole();
    void Send(int Samples);

    TrackCodec mCodec;
    Av<SwrContext> mConversion;
    Av<AVAudioFifo> mWaiting;   // converted, not a whole frame of the encoder's yet
    std::int64_t mSamples = 0;  // the time of what is sent next
};

}  // namespace neb
