#include "films/Interleaving.h"

#include <algorithm>

namespace neb {

namespace {

// A single frame may be as large as the first; the second is ten seconds of a film, or more.
constexpr std::size_t MostBytes = std::size_t{48} << 20, MostPackets = 600;

bool IsBefore(const AVPacket& One, const AVPacket& Other) {
    return av_compare_ts(One.dts, One.time_base, Other.dts, Other.time_base) < 0;
}

}  // namespace

int Interleaving::AddTrack() {
    mTracks.emplace_back();
    return static_cast<int>(mTracks.size()) - 1;
}

void Interleaving::Push(Av<AVPacket> Packet) {
    Track& Into = mTracks[static_cast<std::size_t>(Packet->stream_index)];
    Into.Bytes += static_cast<std::size_t>(Packet->size);
    Into.Packets.push_back(std::move(Packet));
}

void Interleaving::End(int Number) {
    mTracks[static_cast<std::size_t>(Number)].Ended = true;
}

bool Interleaving::Track::IsFull() const {
    return !Ended && (Bytes > MostBytes || Packets.size() > MostPackets);
}

bool Interleaving::MayGoOn() const {
    const auto IsReady = [](const Track& Each) { return Each.Ended || !Each.Packets.empty(); };
    const auto IsFull = [](const Track& Each) { return Each.IsFull(); };
    return std::ranges::all_of(mTracks, IsReady) || std::ranges::any_of(mTracks, IsFull);
}

Interleaving::Track* Interleaving::Earliest() {
    Track* Found = nullptr;
    for (Track& Each : mTracks)
        if (!Each.Packets.empty() &&
            (!Found || IsBefore(*Each.Packets.front(), *Found->Packets.front())))
            Found = &Each;
    return Found;
}

Av<AVPacket> Interleaving::Next() {
    Track* From = MayGoOn() ? Earliest() : nullptr;
    if (!From) return {};
    Av<AVPacket> Packet = std::move(From->Packets.front());
    From->Packets.pop_front();
    From->Bytes -= static_cast<std::size_t>(Packet->size);
    return Packet;
}

}  // namespace neb
