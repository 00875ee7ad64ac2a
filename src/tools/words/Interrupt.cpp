#include "tools/words/Interrupt.h"

namespace neb {
namespace {

constexpr int Signals[] = {SIGINT, SIGTERM};
volatile std::sig_atomic_t gCame = 0;

void Note(int) {
    gCame = 1;
}

}  // namespace

Interrupt::Interrupt() {
    gCame = 0;
    for (int I = 0; I < 2; ++I) mBefore[I] = std::signal(Signals[I], Note);
}

Interrupt::~Interrupt() {
    for (int I = 0; I < 2; ++I) std::signal(Signals[I], mBefore[I]);
}

bool Interrupt::Came() {
    return gCame != 0;
}

}  // namespace neb
