// What the program and the process that decodes sounds for it say to each other: a request, the
// decoder's questions for bytes of the file, its answer. Bytes and samples lie in the memory that
// both see. Used by both sides alone.
#pragma once

#include "support/locked/LockedMessage.h"

namespace neb {

enum class SoundTalk : std::uint32_t {
    // Requests.
    Open = FirstOwnKind,  // bytes of the file; in place of the sound that was open
    Read,                 // frame to go to first or -1, frames, in steps of so many
    Tags,                 // bytes of the file

    // A question, and what is said to it.
    AskBytes,  // place in the file, how many, where they shall lie in In
    Bytes,     // how many there are; 0: the end, or they cannot be read

    // Answers.
    Opened,    // rate, channels, frames
    Samples,   // frames, in Out; fewer than asked for at the end, or where the file is damaged
    TagTexts,  // bytes of the title and, behind it, of the artist, in Out
    Problem    // bytes of a sentence, in Out
};

// Asked for at a time: little, but for more of what is read on and on before it plays. Then a slow
// medium must not take longer for a piece than the sound that it holds.
inline constexpr long long LeastPiece = 64 << 10, MostPiece = 512 << 10;
// Pieces that lie in In beside each other: decoders go to and fro.
inline constexpr long long HeldPieces = 4;
inline constexpr long long SoundInBytes = HeldPieces * MostPiece;
inline constexpr long long SoundOutBytes = 1 << 20;
// Decoded at a time beyond the step that was asked for.
inline constexpr long long MostBlock = 16384;
inline constexpr long long MostSoundSentence = 600, MostTagText = 200 << 10;

}  // namespace neb
