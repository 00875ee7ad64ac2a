// A process of the program that has nothing but two pieces of memory and a line to the program: it
// does what a foreign file could turn against the user, and can do nothing else. This is the
// program's side; LockedRoom.h is the other. Used on one thread at a time.
#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <QString>
#include <memory>
#include <optional>

#include "support/locked/LockReport.h"
#include "support/locked/LockedMessage.h"

namespace neb {

// Which program, and how much memory can be seen by both. Room is kept only for what is used.
struct LockedProgram {
    QString Path;
    QByteArray Role;  // its one argument
    qint64 InBytes = 0, OutBytes = 0;
};
// A program of ours that lies beside the modules, by its name.
QString LockedProgramPath(const QString& Name);

// What a piece of work may cost, from now on.
struct LockedAllowance {
    qint64 Memory = 0;            // bytes beyond what it had when it was ready
    double ProcessorSeconds = 0;  // of its own
    double Seconds = 0;           // on the wall
};

enum class LockedEnd {
    None,       // it lives
    Crashed,    // or left by itself
    Forbidden,  // it asked the system for what it may not
    Killed,     // from outside: by the system for want of memory, or by hand
    TooLong,    // its time was up
    Nonsense    // what it said was none of our messages
};

class LockedProcess {
  public:
    // Throws Fault when it cannot be started or does not become ready.
    explicit LockedProcess(const LockedProgram& Program);
    ~LockedProcess();  // it ends at once where it is at work, else by itself
    LockedProcess(const LockedProcess&) = delete;
    LockedProcess& operator=(const LockedProcess&) = delete;

    // The memory that it reads. Where bytes lay before, they are still there.
    uchar* In();
    qint64 InBytes() const;
    // The memory that it writes, at any time: each byte must be read once, then checked.
    const uchar* Out() const;
    qint64 OutBytes() const;
    // The same, where the machine may have no memory left for what is put or taken: throws
    // std::bad_alloc, where a plain look would end the program.
    void Put(qint64 At, QByteArrayView Bytes);
    void Take(qint64 At, void* To, qint64 Bytes) const;
    // What Take() would copy, where it lies; null where it has not written all of it.
    const uchar* Written(qint64 At, qint64 Bytes) const;
    // Takes memory for a first photograph, while nobody waits for it.
    void MakeRoom();
    // Gives back to the system what one large picture has taken of what it wrote. What was written
    // for it stays: its seal forbids that.
    void LetGoOfMemory();

    // Counts until the next one.
    void Allow(const LockedAllowance& Allowance);
    void Send(const LockedMessage& Message);
    // Nothing where it has ended, or was ended because of its time or of what it said.
    std::optional<LockedMessage> Receive();
    // Whether it lives and has said nothing that nobody asked for; if it has, it ends.
    bool StaysQuiet();
    // For who sees that a message makes no sense: it ends.
    void EndBecause(LockedEnd Why);

    LockedEnd End() const;
    const LockReport& Report() const;
    qint64 Pid() const;  // for tests

  private:
    struct State;
    std::unique_ptr<State> mState;
};

}  // namespace neb
