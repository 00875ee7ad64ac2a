// Who writes into a directory says so by a lock file there, so that two programs do not overwrite
// each other's work. Among the programs of one machine the host decides, which lets go of the lock
// of a program that has ended, however it did; what the file says is for other machines, whose
// locks the host may not see on a shared disk.
#pragma once

#include <QString>
#include <memory>

namespace neb {

// True when it was taken.
struct LockAnswer {
    enum class State {
        Taken,
        HeldHere,       // by another program of this machine
        HeldElsewhere,  // by one of another machine, or it was left there: that cannot be told
        CannotLock      // no lock can be written here, and so nothing else either
    };
    State Is = State::Taken;
    QString Machine = {};  // of HeldElsewhere, as it calls itself
    QString Reason = {};   // of CannotLock; the host's words
    explicit operator bool() const { return Is == State::Taken; }
};

// What becomes of the lock of another machine.
enum class FromElsewhere { Counts, IsTakenOver };

class InstanceLock {
  public:
    explicit InstanceLock(const QString& Path);  // of the lock file
    ~InstanceLock();                             // lets go of it
    InstanceLock(const InstanceLock&) = delete;
    InstanceLock& operator=(const InstanceLock&) = delete;
    // Taken as well where this object holds it already. Nothing is changed where it is not taken.
    LockAnswer TryLock(FromElsewhere Other = FromElsewhere::Counts);

  private:
    struct State;
    std::unique_ptr<State> mState;
};

}  // namespace neb
