// What the program and the process that reads pictures for it say to each other: a request, the
// questions of the reader, its answer. Bytes lie at the start of the memory that both see. Used by
// both sides alone.
#pragma once

#include <cstddef>

#include "support/locked/LockedMessage.h"

namespace neb {

enum class Talk : std::uint32_t {
    // Requests. The first number of each: the bytes of the file, in In.
    Decode = FirstOwnKind,  // whether extra formats count, whether a size is needed
    Turn,                   // whether mirrored, quarters
    Notes,                  // width, height, whether the place stays
    DropPlace,
    Convert,  // an enhanced metafile into SVG

    // Questions, and what is said to them.
    AskNeeded,  // full width, height
    Needed,     // the least width, height
    AskMemory,  // width, height, bytes: until Release or the answer, one at a time
    Granted,
    Refused,
    Release,
    AskSvg,  // bytes of an enhanced metafile, in Out
    Svg,     // where it begins in In, bytes

    // Answers.
    Picture,  // width, height, full width, full height; the pixels are in Out
    Bytes,    // how many, in Out
    Nothing,
    Problem,  // the fault's number, bytes of its sentence, in Out; also said to AskSvg, then in In
              // from the place that the third number names

    // A further request: whether a colour profile is the screen's. Bytes, none of them, or Nothing.
    Profile
};

// Where each message has the ticket of its request: what is left of an earlier one is no answer.
// Convert goes without, by zero.
inline constexpr std::size_t TicketAt = 5;
inline LockedMessage WithTicket(const LockedMessage& Message, std::int64_t Ticket) {
    auto Numbers = Message.Numbers;
    Numbers[TicketAt] = Ticket;
    return LockedMessage(Message.Kind, Numbers);
}

// The longest sentence; a library may have a long one of its own in it.
inline constexpr std::int64_t MostSentence = 4000;

}  // namespace neb
