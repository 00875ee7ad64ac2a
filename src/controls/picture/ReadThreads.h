// The threads on which a transition view has its pictures read. A file may lie on a medium that
// hangs: nobody waits for such a thread, and the next picture is read beside it. But however fast
// slides are changed, only few pictures are read, and held, at a time. Used by XShowLoader alone.
#pragma once

#include <QString>
#include <functional>
#include <memory>

namespace neb {

class ReadThreads {
  public:
    enum class Kind { Wanted, Ahead };  // Wanted goes first

    ReadThreads();
    ~ReadThreads();  // drops what has not begun, and leaves the rest to itself

    // Begins Work on a file as soon as a thread is free, and nothing hangs in the same file: a show
    // that comes round to it again and again must not use up its threads there. It takes the place
    // of one of its kind that has not begun. What Work uses it must own.
    void Put(Kind Of, const QString& File, std::function<void()> Work);
    // Drops what has not begun; whether there was such a work.
    bool Withdraw(Kind Of);
    // Begins what waits behind threads that have come to hang in the meantime.
    void GoOn();

    // Waits until no thread of any view works, so many milliseconds at most.
    static void AwaitAll(int Milliseconds);

  private:
    struct Room;
    std::shared_ptr<Room> mRoom;
};

}  // namespace neb
