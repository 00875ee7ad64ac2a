#include "effects/drawing/Scratch.h"

#include <algorithm>
#include <bit>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <new>
#include <vector>

namespace neb::effects {
namespace {

constexpr std::size_t kLine = 64;  // rooms begin with a line of the cache
// Of address space; only what is written to becomes memory.
constexpr std::size_t kBlock = std::size_t{16} << 20;

struct Freed {
    void operator()(std::byte* Bytes) const { std::free(Bytes); }
};

class Arena {
  public:
    void Ready() {
        if (mBlocks.empty()) AddBlock(kBlock);
    }
    std::byte* Take(std::size_t Bytes) {
        if (Bytes > mLeft) AddBlock(std::max(kBlock, Bytes + kLine));
        std::byte* At = mNext;
        mNext += Bytes;
        mLeft -= Bytes;
        return At;
    }

  private:
    void AddBlock(std::size_t Bytes) {
        mBlocks.emplace_back(static_cast<std::byte*>(std::calloc(1, Bytes)));
        void* Next = mBlocks.back().get();
        if (!Next) throw std::bad_alloc();
        mLeft = Bytes;
        mNext = static_cast<std::byte*>(std::align(kLine, 1, Next, mLeft));
    }

    std::vector<std::unique_ptr<std::byte, Freed>> mBlocks;
    std::byte* mNext = nullptr;
    std::size_t mLeft = 0;
};

Arena& TheArena() {
    thread_local Arena Here;
    return Here;
}

}  // namespace

void ReadyScratch() {
    TheArena().Ready();
}

void* ScratchRoom::Grow(std::size_t Bytes) {
    // Twice as much at least, so that what is left behind never exceeds what is in use.
    const std::size_t Grown = std::bit_ceil(std::max(Bytes, kLine));
    void* At = TheArena().Take(Grown);
    if (mBytes) std::memcpy(At, mAt, mBytes);
    mAt = At;
    mBytes = Grown;
    return At;
}

}  // namespace neb::effects
