// What tests ask of the program that stands for a decoder taken over by a picture.
#pragma once

#include "support/locked/LockedMessage.h"

namespace neb {

enum class HostileKind : std::uint32_t { Do = FirstOwnKind, Done };

// The first number of Do; those behind it are its arguments, text lies at the start of In. Numbers
// of Done: the result, the error.
enum class Deed : std::int64_t {
    Greet,
    Call,         // a system call: its number, four arguments
    OpenToSpoil,  // the file named
    ReachTcp,     // of this machine: the port
    ReachSocket,  // the one named by its file
    ReachName,    // the one of that name without a file
    Fork,
    Thread,
    WriteAll,  // to each descriptor but the line; result: how many took it
    Say,       // what is no message: which of Nonsense
    SayTwice,
    Tampering,  // bits of Tamper that went well before the door was shut
    UnlockIn,   // make the memory that it reads writable
    WriteIn,
    TakeMemory,  // until there is no more; result: bytes
    TakeByNew,
    Spin,
    Sleep,
    Leave,  // exit code
    Abort,
    Fault,
    OldDoor,  // the entrance for programs of 32 bits
};
// An argument of Call that stands for where the text lies.
inline constexpr std::int64_t AtText = -424242;

enum class Nonsense : std::int64_t { Short, Long, Garbage, OtherVersion, OtherCheck, Empty };

// With the descriptors that it is born with.
enum Tamper : std::int64_t {
    ShrinkIn = 1,
    GrowIn = 2,
    UnsealIn = 4,
    WriteInFile = 8,
    MapInToWrite = 16,
    ShrinkOut = 32,
    GrowOut = 64,
    UnsealOut = 128
};

// By which the tests tell it how to be locked: of the hostile program alone.
inline constexpr const char* OnlyThis = "NEB_HOSTILE_ONLY";       // namespaces landlock filter none
inline constexpr const char* RefuseThis = "NEB_HOSTILE_REFUSED";  // namespaces landlock filter
inline constexpr const char* BeLike = "NEB_HOSTILE_LIKE";         // tampering threads busy

}  // namespace neb
