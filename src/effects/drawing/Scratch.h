// Room for lines of intermediate values, kept by each thread from frame to frame: no frame after a
// thread's first asks the system for memory. Used by the engines.
#pragma once

#include <cstddef>
#include <type_traits>

namespace neb::effects {

// Makes the room of this thread ready; rooms are parts of it.
void ReadyScratch();

class ScratchRoom {
  public:
    // At least so many bytes, what was in them before kept; nought at first.
    void* Of(std::size_t Bytes) { return Bytes <= mBytes ? mAt : Grow(Bytes); }

  private:
    void* Grow(std::size_t Bytes);

    void* mAt = nullptr;
    std::size_t mBytes = 0;
};

// User: a type of the caller's own, so that routines that call each other do not share their room.
template <typename T, typename User>
T* Scratch(int Count) {
    static_assert(std::is_trivially_copyable_v<T> && std::is_trivially_destructible_v<T>);
    thread_local ScratchRoom Room;
    return static_cast<T*>(Room.Of(static_cast<std::size_t>(Count) * sizeof(T)));
}

}  // namespace neb::effects
