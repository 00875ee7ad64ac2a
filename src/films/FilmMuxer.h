// The file of a film: its tracks, what it says of itself, and its packets in the order of time.
// Used by the tracks and by FilmEncoder.
#pragma once

#include "films/FilmOutput.h"
#include "films/Interleaving.h"

namespace neb {

class FilmMuxer {
  public:
    FilmMuxer(const FilmSetup& Setup, FilmSink Sink);

    // A further track, before Begin; its index is the stream_index of its packets. What is not said
    // of it yet is for the caller to say.
    AVStream& AddStream();
    // Whether a track's head stands in the film's alone, and is not repeated in its packets.
    bool KeepsHeadsApart() const;
    // With the last track; then the film's head is written.
    void Begin(const FilmSetup& Setup);

    // The packet's times are in its time_base; those of a track that is known whole may come before
    // Begin.
    void Push(Av<AVPacket> Packet);
    // No further packet of this track will come.
    void End(int Stream);
    // All tracks have ended. Nothing may follow.
    void Finish();

  private:
    void WriteReady();
    void Write(AVPacket& Packet);

    FilmOutput mOutput;  // outlives mFilm, which writes to it
    Av<AVFormatContext> mFilm;
    Interleaving mPackets;
    bool mBegun = false;
    void (*mMend)(FilmOutput& Output) = nullptr;  // when all has been written
};

}  // namespace neb
