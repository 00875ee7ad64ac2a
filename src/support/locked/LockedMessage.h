// What a locked process and the program say to each other: messages of one size, each whole or
// refused. Everything longer lies in the memory that both see. Used by both sides alone.
#pragma once

#include <array>
#include <cstdint>
#include <type_traits>

namespace neb {

struct LockedMessage {
    static constexpr std::uint32_t kMagic = 0x4E45424C;
    // Both sides are built together; one that is left of another version is refused.
    static constexpr std::uint32_t kVersion = 1;

    std::uint32_t Magic = kMagic;
    std::uint32_t Version = kVersion;
    std::uint32_t Kind = 0;   // of those that program and locked process have agreed upon
    std::uint32_t Check = 0;  // over all the rest
    std::array<std::int64_t, 6> Numbers = {};

    LockedMessage() = default;
    template <class Kinds>
    explicit LockedMessage(Kinds Its, std::array<std::int64_t, 6> All = {})
        : Kind(static_cast<std::uint32_t>(Its)), Numbers(All) {
        Check = CheckNow();
    }
    bool IsWhole() const { return Magic == kMagic && Version == kVersion && Check == CheckNow(); }
    template <class Kinds>
    bool Is(Kinds Which) const {
        return Kind == static_cast<std::uint32_t>(Which);
    }

  private:
    // FNV-1a, 32 bits (draft-eastlake-fnv).
    std::uint32_t CheckNow() const {
        std::uint32_t Sum = 2166136261U;
        const auto Take = [&Sum](std::uint64_t Number, int Bytes) {
            for (int I = 0; I < Bytes; ++I)
                Sum = (Sum ^ static_cast<std::uint8_t>(Number >> 8 * I)) * 16777619U;
        };
        for (const std::uint32_t Each : {Magic, Version, Kind}) Take(Each, 4);
        for (const std::int64_t Each : Numbers) Take(static_cast<std::uint64_t>(Each), 8);
        return Sum;
    }
};
static_assert(sizeof(LockedMessage) == 64 && std::is_trivially_copyable_v<LockedMessage>);

// Where a locked process finds what it is born with.
inline constexpr int LockedTalk = 3;  // messages, both ways
inline constexpr int LockedIn = 4;    // memory that the program writes and it reads
inline constexpr int LockedOut = 5;   // memory that it writes and the program reads

// The one kind that every locked process knows: it is locked and waits for work. Numbers: its
// LockReport, packed, and the bytes of address space that it takes by itself; 0: no limit.
inline constexpr std::uint32_t LockedReady = 1;
// Kinds of those who use it begin here.
inline constexpr std::uint32_t FirstOwnKind = 16;

}  // namespace neb
