// A sound file on its way to its player: it is looked for, opened and measured on a thread of its
// own, since it may lie in a folder that does not answer. The show asks for it and goes on. Players
// that cannot be made ready elsewhere (a rehearsal's) are ready at once.
#pragma once

#include "sound/devices/SoundDevices.h"
#include "support/work/Job.h"

namespace neb {

struct OpenedSound {
    bool Exists = false;                // there is such a file
    std::unique_ptr<SoundGraph> Graph;  // null: it cannot be played
};

class SoundOpening {
  public:
    // Begins. Devices may be null: a machine without sound. They outlive it. Whoever has no more
    // use for it lets go, and waits for nothing.
    SoundOpening(SoundDevices* Devices, const QString& Path);
    SoundOpening(const SoundOpening&) = delete;
    SoundOpening& operator=(const SoundOpening&) = delete;

    // Whether it has come, after at most so many milliseconds. While as many as Most are stuck in
    // folders that do not answer, or MostOfOne in this very file, no other is begun, and this one
    // waits for its turn: a show that comes round to a song that has gone must not lose the others.
    bool Wait(int Milliseconds);
    OpenedSound Take();  // once; waits for it

    static constexpr int Most = 32, MostOfOne = 2;

  private:
    bool IsAside() const;
    void Begin();

    SoundDevices* mDevices;
    const QString mPath;
    std::unique_ptr<Job<OpenedSound>> mJob;  // none before its turn
};

}  // namespace neb
