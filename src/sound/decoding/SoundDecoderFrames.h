// Where the MPEG sound of a file begins and ends, and what its frames say about themselves. Used
// when a file is opened, so that the library that decodes it never sees what is no music.
#pragma once

#include <QtGlobal>
#include <optional>
#include <vector>

#include "sound/decoding/SoundDecoderSource.h"

namespace neb {

struct MpegFrame {
    int Rate = 0;      // samples a second
    int Channels = 0;  // 1 or 2
    int Bytes = 0;     // with its header
    quint32 Kind = 0;  // the bits that are the same in all frames of a sound
};
// What the four bytes of a frame's header say; nothing when they are no header. Frames of "free"
// bit rate, which do not tell their length, are not taken.
std::optional<MpegFrame> ReadMpegHeader(const unsigned char* Header);

// Bytes of the tags (titles, cover pictures) before the sound; 0 when there are none.
qint64 LeadingTags(SoundSource& Source);

// Frames of one kind that belong together, with what lies between them left out.
struct MpegPart {
    std::vector<SoundPiece> Pieces;
    MpegFrame First;
};
// All frames of a file in their order: one part for an ordinary file, more where files were joined
// (each with a header of its own) or where rate or channels change. Empty when no row of frames
// is found near the start.
std::vector<MpegPart> FindMpegParts(SoundSource& Source);

}  // namespace neb
