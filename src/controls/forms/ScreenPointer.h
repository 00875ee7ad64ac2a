// The mouse pointer of the whole program: the hourglass during work, else each control's own.
#pragma once

namespace neb {

enum class Pointer { Default, Hourglass };

Pointer ScreenPointer();
void SetScreenPointer(Pointer Shape);

// Sets a pointer and puts the one before it back at the end of the scope, faults included.
class PointerScope {
  public:
    explicit PointerScope(Pointer Shape) : mBefore(ScreenPointer()) { SetScreenPointer(Shape); }
    ~PointerScope() { SetScreenPointer(mBefore); }
    PointerScope(const PointerScope&) = delete;
    PointerScope& operator=(const PointerScope&) = delete;

  private:
    Pointer mBefore;
};

}  // namespace neb
