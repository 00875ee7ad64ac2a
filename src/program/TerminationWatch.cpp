#include "program/TerminationWatch.h"

#include <QSocketNotifier>

#ifndef _WIN32
#include <sys/socket.h>
#include <unistd.h>

#include <csignal>
#endif

namespace neb {

#ifdef _WIN32

TerminationWatch::TerminationWatch(std::function<void()> Close) : mClose(std::move(Close)) {}
TerminationWatch::~TerminationWatch() = default;
void TerminationWatch::Read() {}

#else

namespace {

constexpr int Signals[] = {SIGTERM, SIGINT, SIGHUP};
int Sockets[2] = {-1, -1};  // a handler may do no more than write to the one

void Handle(int) {
    const char Byte = 1;
    [[maybe_unused]] const auto Written = ::write(Sockets[0], &Byte, 1);
}

void HandleAll(void (*Handler)(int)) {
    struct sigaction Action = {};
    Action.sa_handler = Handler;
    Action.sa_flags = SA_RESTART;
    for (const int Signal : Signals) sigaction(Signal, &Action, nullptr);
}

}  // namespace

TerminationWatch::TerminationWatch(std::function<void()> Close) : mClose(std::move(Close)) {
    if (::socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, Sockets) != 0) return;
    mNotifier = new QSocketNotifier(Sockets[1], QSocketNotifier::Read, this);
    connect(mNotifier, &QSocketNotifier::activated, this, &TerminationWatch::Read);
    HandleAll(&Handle);
}

TerminationWatch::~TerminationWatch() {
    if (!mNotifier) return;
    HandleAll(SIG_DFL);
    delete mNotifier;
    for (int& Socket : Sockets) ::close(std::exchange(Socket, -1));
}

void TerminationWatch::Read() {
    char Byte = 0;
    if (::read(Sockets[1], &Byte, 1) == 1) mClose();
}

#endif

}  // namespace neb
