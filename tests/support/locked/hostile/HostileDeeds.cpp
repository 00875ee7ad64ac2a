#include "support/locked/hostile/HostileDeeds.h"

#include <arpa/inet.h>
#include <fcntl.h>
#include <linux/futex.h>
#include <sys/mman.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/un.h>
#include <unistd.h>

#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <map>
#include <string>
#include <thread>

namespace neb {
namespace {

using Request = const LockedMessage&;

DeedDone Told(std::int64_t Result) {
    return {Result, Result < 0 ? errno : 0};
}

std::string TextIn(LockedRoom& Room) {
    return reinterpret_cast<const char*>(Room.In().data());
}

DeedDone CallSystem(LockedRoom& Room, Request Asked) {
    long Arguments[4];
    for (size_t I = 0; I < 4; ++I) {
        const std::int64_t Number = Asked.Numbers[I + 2];
        Arguments[I] = Number == AtText ? reinterpret_cast<long>(Room.In().data()) : Number;
    }
    return Told(::syscall(Asked.Numbers[1], Arguments[0], Arguments[1], Arguments[2], Arguments[3],
                          0L, 0L));
}

DeedDone OpenToSpoil(LockedRoom& Room, Request) {
    return Told(::open(TextIn(Room).c_str(), O_WRONLY | O_TRUNC | O_CLOEXEC));
}

DeedDone Reach(int Family, const void* Address, size_t Length) {
    const int Socket = ::socket(Family, SOCK_STREAM, 0);
    if (Socket < 0) return Told(Socket);
    return Told(
        ::connect(Socket, static_cast<const sockaddr*>(Address), static_cast<socklen_t>(Length)));
}

DeedDone ReachTcp(LockedRoom&, Request Asked) {
    sockaddr_in Address = {};
    Address.sin_family = AF_INET;
    Address.sin_port = htons(static_cast<std::uint16_t>(Asked.Numbers[1]));
    Address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    return Reach(AF_INET, &Address, sizeof(Address));
}

DeedDone ReachUnix(const std::string& Name, size_t At) {
    sockaddr_un Address = {};
    Address.sun_family = AF_UNIX;
    std::memcpy(Address.sun_path + At, Name.data(), Name.size());
    return Reach(AF_UNIX, &Address, offsetof(sockaddr_un, sun_path) + At + Name.size());
}

DeedDone ReachSocket(LockedRoom& Room, Request) {
    return ReachUnix(TextIn(Room), 0);
}

DeedDone ReachName(LockedRoom& Room, Request) {
    return ReachUnix(TextIn(Room), 1);
}

DeedDone Fork(LockedRoom&, Request) {
    const pid_t Child = ::fork();
    if (Child == 0) std::_Exit(0);
    return Told(Child);
}

DeedDone Thread(LockedRoom&, Request) {
    int Seen = 0;
    std::thread([&Seen] { Seen = 42; }).join();
    return Told(Seen);
}

DeedDone WriteAll(LockedRoom&, Request) {
    constexpr int Descriptors = 1024;
    std::int64_t Took = 0;
    for (int Each = 0; Each < Descriptors; ++Each)
        if (Each != LockedTalk && ::write(Each, "x", 1) == 1) ++Took;
    return Told(Took);
}

DeedDone Say(LockedRoom&, Request Asked) {
    const auto How = static_cast<Nonsense>(Asked.Numbers[1]);
    LockedMessage Message(HostileKind::Done, {1, 0});
    if (How == Nonsense::OtherVersion) Message.Version += 1;
    if (How == Nonsense::OtherCheck) Message.Numbers[5] = 1;
    char Bytes[2 * sizeof(Message)] = {};
    std::memcpy(Bytes, static_cast<const void*>(&Message), sizeof(Message));
    if (How == Nonsense::Garbage) std::memset(Bytes, 0xA5, sizeof(Bytes));
    const size_t Length = How == Nonsense::Short  ? sizeof(Message) - 1
                          : How == Nonsense::Long ? sizeof(Message) + 1
                                                  : sizeof(Message);
    (void)!::write(LockedTalk, Bytes, How == Nonsense::Empty ? 0 : Length);
    return Told(0);
}

DeedDone SayTwice(LockedRoom& Room, Request) {
    Room.Send(LockedMessage(HostileKind::Done, {1, 0}));
    return Told(2);
}

std::int64_t Tampered = 0;

DeedDone TellTampering(LockedRoom&, Request) {
    return Told(Tampered);
}

DeedDone UnlockIn(LockedRoom& Room, Request) {
    return Told(::mprotect(const_cast<std::byte*>(Room.In().data()), 4096, PROT_READ | PROT_WRITE));
}

DeedDone WriteIn(LockedRoom& Room, Request) {
    *const_cast<volatile std::byte*>(Room.In().data()) = std::byte{1};
    return Told(0);
}

DeedDone TakeMemory(LockedRoom&, Request) {
    constexpr size_t Piece = 1 << 20;
    constexpr std::int64_t Enough = 4LL << 30;
    std::int64_t Taken = 0;
    for (; Taken < Enough; Taken += Piece) {
        void* const At =
            ::mmap(nullptr, Piece, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
        if (At == MAP_FAILED) break;
        std::memset(At, 1, 4096);
    }
    return Told(Taken);
}

DeedDone TakeByNew(LockedRoom&, Request) {
    for (int I = 0; I < 4096; ++I) std::memset(new char[1 << 20], 1, 4096);
    return Told(0);
}

DeedDone Spin(LockedRoom&, Request) {
    volatile unsigned Turns = 0;
    for (;;) (void)Turns;
}

DeedDone Sleep(LockedRoom&, Request) {
    unsigned Never = 0;
    for (;;) ::syscall(SYS_futex, &Never, FUTEX_WAIT_PRIVATE, 0, nullptr, nullptr, 0);
}

DeedDone Leave(LockedRoom&, Request Asked) {
    std::exit(static_cast<int>(Asked.Numbers[1]));
}

DeedDone Abort(LockedRoom&, Request) {
    std::abort();
}

DeedDone Fault(LockedRoom&, Request Asked) {
    *reinterpret_cast<volatile int*>(Asked.Numbers[1]) = 1;
    return Told(0);
}

// getpid, by the number that it has there; the other entrance must be shut even for it.
DeedDone OldDoor(LockedRoom&, Request) {
    std::int64_t Result = -1;
#if defined(__x86_64__)
    asm volatile("int $0x80" : "=a"(Result) : "a"(20LL) : "memory", "r8", "r9", "r10", "r11");
#endif
    return Told(Result);
}

DeedDone Greet(LockedRoom&, Request) {
    return Told(1);
}

const std::map<Deed, DeedDone (*)(LockedRoom&, Request)> Deeds = {
    {Deed::Greet, Greet},
    {Deed::Call, CallSystem},
    {Deed::OpenToSpoil, OpenToSpoil},
    {Deed::ReachTcp, ReachTcp},
    {Deed::ReachSocket, ReachSocket},
    {Deed::ReachName, ReachName},
    {Deed::Fork, Fork},
    {Deed::Thread, Thread},
    {Deed::WriteAll, WriteAll},
    {Deed::Say, Say},
    {Deed::SayTwice, SayTwice},
    {Deed::Tampering, TellTampering},
    {Deed::UnlockIn, UnlockIn},
    {Deed::WriteIn, WriteIn},
    {Deed::TakeMemory, TakeMemory},
    {Deed::TakeByNew, TakeByNew},
    {Deed::Spin, Spin},
    {Deed::Sleep, Sleep},
    {Deed::Leave, Leave},
    {Deed::Abort, Abort},
    {Deed::Fault, Fault},
    {Deed::OldDoor, OldDoor},
};

bool CanMapToWrite(int File) {
    return ::mmap(nullptr, 4096, PROT_READ | PROT_WRITE, MAP_SHARED, File, 0) != MAP_FAILED;
}

}  // namespace

DeedDone Do(LockedRoom& Room, const LockedMessage& Asked) {
    return Deeds.at(static_cast<Deed>(Asked.Numbers[0]))(Room, Asked);
}

std::int64_t TamperWithBirthGifts() {
    struct stat Is = {};
    ::fstat(LockedIn, &Is);
    const off_t In = Is.st_size;
    ::fstat(LockedOut, &Is);
    const off_t Out = Is.st_size;
    const auto Bit = [](bool Went, Tamper What) { return Went ? std::int64_t(What) : 0; };
    Tampered = Bit(::ftruncate(LockedIn, In / 2) == 0, ShrinkIn) |
               Bit(::ftruncate(LockedIn, In * 2) == 0, GrowIn) |
               Bit(::fcntl(LockedIn, F_ADD_SEALS, F_SEAL_WRITE) == 0, UnsealIn) |
               Bit(::pwrite(LockedIn, "x", 1, 0) == 1, WriteInFile) |
               Bit(CanMapToWrite(LockedIn), MapInToWrite) |
               Bit(::ftruncate(LockedOut, Out / 2) == 0, ShrinkOut) |
               Bit(::ftruncate(LockedOut, Out * 2) == 0, GrowOut) |
               Bit(::fcntl(LockedOut, F_ADD_SEALS, F_SEAL_WRITE) == 0, UnsealOut);
    return Tampered;
}

}  // namespace neb
