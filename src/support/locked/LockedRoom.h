// The side of the locked process: what it is born with, the door that falls shut behind it, and the
// messages. The standard library alone, for programs that bring as little along as they can.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>

#include "support/locked/LockedMessage.h"

namespace neb {

// What the work behind the door cannot do without.
struct LockNeeds {
    bool Threads = false;  // a library that takes threads for its work
};

class LockedRoom {
  public:
    // Takes over what lies at the places of LockedMessage.h and closes all else. Ends the process
    // with a word to whoever started it where there is none of it: started by hand.
    LockedRoom();

    // To be called before anything is loaded that may start threads, and before Close: the steps
    // that need a process of one thread.
    void Prepare();
    // From here on there is no way out: files, network, processes, rights. All libraries are
    // loaded, all that they read at first use is read. Tells the program that work may come.
    void Close(const LockNeeds& Needs = {});

    std::span<const std::byte> In() const { return mIn; }
    std::span<std::byte> Out() const { return mOut; }

    void Send(const LockedMessage& Message);
    // The process ends where the program is gone, or talks nonsense.
    LockedMessage Receive();

  private:
    std::span<const std::byte> mIn;
    std::span<std::byte> mOut;
    bool mHasOwnRoot = false, mHasOwnNetwork = false;
};

}  // namespace neb
