// An encoder and its track of the film: what goes in as frames comes out in the file. Used by
// VideoTrack and SoundTrack.
#pragma once

#include <functional>

#include "films/FilmMuxer.h"

namespace neb {

class TrackCodec {
  public:
    // By the encoder's name; not open yet.
    TrackCodec(FilmMuxer& Muxer, const char* Name);
    AVCodecContext& Context() { return *mCodec; }
    // Filter: of its packets; null: none. Throws for what the encoder does not take.
    void Open(Av<AVDictionary> Options, const char* Filter);
    AVStream& Stream() { return *mStream; }

    // Times is how often the frames that come out of it stand in the film.
    void Send(const AVFrame& Frame);
    // No more will come.
    void Finish();
    // What becomes of a packet instead of going into the film.
    using Taker = std::function<void(Av<AVPacket>)>;
    void SendTo(const Taker& Take, const AVFrame* Frame);
    void Write(Av<AVPacket> Packet);

  private:
    void OpenFilter(const char* Filter);
    Av<AVPacket> Filtered(Av<AVPacket> Packet);

    FilmMuxer& mMuxer;
    Av<AVCodecContext> mCodec;
    Av<AVBSFContext> mFilter;
    AVStream* mStream = nullptr;  // the film's
};

}  // namespace neb
