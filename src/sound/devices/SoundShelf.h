// Sound files that are open and measured before they are asked for, so that a slide's sound starts
// at once. Used by the sound devices; any thread may call.
#pragma once

#include <functional>
#include <memory>

#include "sound/workers/SoundReading.h"
#include "support/work/LeftThread.h"

namespace neb {

class SoundShelf {
  public:
    // What opens a file; on any thread.
    using Opener = std::function<std::unique_ptr<SoundDecoder>(const QString& Path)>;

    explicit SoundShelf(Opener Open = OpenSound);
    // Drops what has not begun; waits a second for the file that is being opened, and leaves it
    // then.
    ~SoundShelf();
    SoundShelf(const SoundShelf&) = delete;
    SoundShelf& operator=(const SoundShelf&) = delete;

    // Opens a file on a thread of the shelf's own and returns at once. What cannot be opened is
    // passed over: Take tells.
    void Prepare(const QString& Path);
    // The sound at its start: the prepared one if the file has not changed since, else opened now.
    // Waits for a file that is just being opened. Throws Fault like OpenSound.
    std::unique_ptr<SoundDecoder> Take(const QString& Path);
    // Gives back what Take returned, for the next Take of that path. The shelf keeps four sounds;
    // the oldest goes. Anything else than a sound of Take's is dropped.
    void Put(const QString& Path, std::unique_ptr<SoundDecoder> Decoder);
    // Lets go of all files: one that is held open keeps its medium from being taken out.
    void Clear();

  private:
    struct State;
    std::shared_ptr<State> mState;
    LeftThread mThread;
};

}  // namespace neb
