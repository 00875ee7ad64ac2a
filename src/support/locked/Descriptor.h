// An open file of the system, closed when nobody has it any more. For the program's side of locked
// processes.
#pragma once

#include <unistd.h>

#include <utility>

namespace neb {

class Descriptor {
  public:
    explicit Descriptor(int Number = -1) : mNumber(Number) {}
    ~Descriptor() { Close(); }
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;
    int operator*() const { return mNumber; }
    void Close() {
        if (mNumber >= 0) ::close(std::exchange(mNumber, -1));
    }

  private:
    int mNumber;
};

}  // namespace neb
