// Puts the packets of a film's tracks into the order of time, in which a player reads them: the
// tracks come at their own pace, as their encoders let go of them. Used by FilmMuxer.
#pragma once

#include <deque>

#include "films/Av.h"

namespace neb {

class Interleaving {
  public:
    // The number of a further track; 0 is the first.
    int AddTrack();
    // The packet's stream_index is its track, its time_base that of its times.
    void Push(Av<AVPacket> Packet);
    void End(int Number);
    // What is next, once no earlier one can come; nothing until then. When one track is so far
    // behind that it would cost too much to wait for it, it is not waited for.
    Av<AVPacket> Next();

  private:
    struct Track {
        std::deque<Av<AVPacket>> Packets;
        std::size_t Bytes = 0;  // of the packets
        bool Ended = false;
        bool IsFull() const;
    };
    bool MayGoOn() const;
    Track* Earliest();

    std::deque<Track> mTracks;
};

}  // namespace neb
