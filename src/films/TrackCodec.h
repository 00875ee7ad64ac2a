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

    // What comes out of it goes into the film.
    void Send(const AVFrame& Frame);
    // No more will come.
    void Finish();
    // The same for who does something else with the packets; null: no frame will come.
    using Taker = std::function<void(Av<AVPacket>)>;
    void SendTo(const Taker& Take, const AVFrame* Frame);
    // Into the film; its times are in the encoder's own unit.
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
