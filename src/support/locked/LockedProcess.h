// A process of the program that has nothing but two pieces of memory and a line to the program: it
// does what a foreign file could turn against the user, and can do nothing else. This is the
// program's side; LockedRoom.h is the other. Used on one thread at a time.
#pragma once

#include <QByteArray>
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
    qint64 AheadBytes = 0;  // of OutBytes, taken from the system while nobody waits
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
    Crashed,    // or was ended from outside
    Forbidden,  // it asked the system for what it may not
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
    // Takes from the system so much of what it writes, for who will wait for its first answer.
    void TakeMemoryAhead(qint64 OutBytes);
    // Gives back to the system what one large picture has taken of both.
    void LetGoOfMemory();

    // Counts until the next one.
    void Allow(const LockedAllowance& Allowance);
    void Send(const LockedMessage& Message);
    // Nothing where it has ended, or was ended because of its time or of what it said.
    std::optional<LockedMessage> Receive();
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
