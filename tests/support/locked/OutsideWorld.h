// What a hostile program would reach for, and whether it has been reached.
#pragma once

#include <arpa/inet.h>
#include <gtest/gtest.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

#include <QFile>
#include <csignal>
#include <cstddef>
#include <cstring>

#include "harness/TempFolder.h"

namespace neb {

// An ear that must not hear anything.
class Listener {
  public:
    Listener(int Family, const void* Address, size_t Length)
        : mSocket(::socket(Family, SOCK_STREAM | SOCK_NONBLOCK | SOCK_CLOEXEC, 0)) {
        EXPECT_EQ(0, ::bind(mSocket, static_cast<const sockaddr*>(Address),
                            static_cast<socklen_t>(Length)));
        EXPECT_EQ(0, ::listen(mSocket, 8));
    }
    ~Listener() { ::close(mSocket); }
    Listener(const Listener&) = delete;
    Listener& operator=(const Listener&) = delete;
    bool Heard() {
        const int Caller = ::accept(mSocket, nullptr, nullptr);
        if (Caller >= 0) ::close(Caller);
        return Caller >= 0;
    }
    int Port() const {
        sockaddr_in Address = {};
        socklen_t Length = sizeof(Address);
        ::getsockname(mSocket, reinterpret_cast<sockaddr*>(&Address), &Length);
        return ntohs(Address.sin_port);
    }

  private:
    int mSocket;
};

inline Listener TcpListener() {
    sockaddr_in Address = {};
    Address.sin_family = AF_INET;
    Address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    return {AF_INET, &Address, sizeof(Address)};
}

// At: 0 for a file, 1 for a name without one.
inline Listener UnixListener(const QByteArray& Name, size_t At) {
    sockaddr_un Address = {};
    Address.sun_family = AF_UNIX;
    std::memcpy(Address.sun_path + At, Name.constData(), static_cast<size_t>(Name.size()));
    const size_t Length = static_cast<size_t>(Name.size());
    return {AF_UNIX, &Address, offsetof(sockaddr_un, sun_path) + At + Length};
}

// A file that everybody may write, three ears and this process.
class OutsideWorld {
  public:
    OutsideWorld() {
        QFile Witness(mDir / "witness");
        EXPECT_TRUE(Witness.open(QIODevice::WriteOnly) && Witness.write("untouched") == 9);
        Witness.close();
        ::chmod(mDir.Path().toUtf8().constData(), 0777);
        ::chmod(WitnessPath().constData(), 0666);
        Signals = 0;
        std::signal(SIGUSR1, [](int) { Signals = Signals + 1; });
    }
    ~OutsideWorld() { std::signal(SIGUSR1, SIG_DFL); }
    OutsideWorld(const OutsideWorld&) = delete;
    OutsideWorld& operator=(const OutsideWorld&) = delete;

    QByteArray WitnessPath() const { return (mDir / "witness").toUtf8(); }
    QByteArray SocketPath() const { return (mDir / "socket").toUtf8(); }
    QByteArray Name() const {
        return QByteArray("neb-hostile-test-") + QByteArray::number(getpid());
    }
    int Port() const { return mTcp.Port(); }

    bool IsUntouched() {
        QFile Witness(mDir / "witness");
        return Witness.open(QIODevice::ReadOnly) && Witness.readAll() == "untouched" &&
               !mTcp.Heard() && !mUnix.Heard() && !mAbstract.Heard() && Signals == 0;
    }

  private:
    inline static volatile std::sig_atomic_t Signals = 0;
    harness::TempFolder mDir;
    Listener mTcp = TcpListener(), mUnix = UnixListener(SocketPath(), 0),
             mAbstract = UnixListener(Name(), 1);
};

}  // namespace neb
