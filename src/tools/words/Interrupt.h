// Ctrl+C, a terminal that is closed and a polite end from elsewhere, for commands that leave
// nothing half done behind: while one of these lives they are noted instead of ending the process
// there and then.
#pragma once

#include <csignal>
#include <vector>

namespace neb {

class Interrupt {
  public:
    Interrupt();
    ~Interrupt();
    Interrupt(const Interrupt&) = delete;
    Interrupt& operator=(const Interrupt&) = delete;

    static bool Came();

  private:
    using Handler = void (*)(int);
    std::vector<Handler> mBefore;
};

}  // namespace neb
