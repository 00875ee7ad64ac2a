// Whether the user has asked the whole desktop to stand still, to whom things that move make it
// hard to look. Shows then fade, and controls change at once. The program's start says where it is
// asked; a test stands in for it.
#pragma once

namespace neb {

class MotionWish {
  public:
    virtual ~MotionWish() = default;
    virtual bool IsStill() const = 0;
};

// Where it is asked; null: things move.
inline MotionWish*& TheMotionWish() {
    static MotionWish* Wish = nullptr;
    return Wish;
}

inline bool IsStillWanted() {
    return TheMotionWish() && TheMotionWish()->IsStill();
}

}  // namespace neb
