// What long work is given by its caller, so that the windows live on and the work can be ended.
// Every routine that walks, copies or waits takes one of the two.
#pragma once

#include <functional>

namespace neb {

// Lets waiting events run.
using Yield = std::function<void()>;
// Lets waiting events run, where it likes to, and answers false when the work is to end.
using KeepGoing = std::function<bool()>;

}  // namespace neb
