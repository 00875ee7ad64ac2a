#include "tools/words/Interrupt.h"

namespace neb {
namespace {

#ifdef SIGHUP
constexpr int Signals[] = {SIGINT, SIGTERM, SIGHUP};
#else
constexpr int Signals[] = {SIGINT, SIGTERM};
#endif
volatile std::sig_atomic_t gCame = 0;

void Note(int) {
    gCame = 1;
}

}  // namespace

Interrupt::Interrupt() {
    gCame = 0;
    for (const int Each : Signals) mBefore.push_back(std::signal(Each, Note));
}

Interrupt::~Interrupt() {
    for (size_t I = 0; I < mBefore.size(); ++I) std::signal(Signals[I], mBefore[I]);
}

bool Interrupt::Came() {
    return gCame != 0;
}

}  // namespace neb
