// Decodes sounds for the program behind a locked door.
#include <sys/syscall.h>
#include <unistd.h>

#include <cerrno>

#include "sound/workers/ServeSounds.h"

namespace {

bool IsClosed = false;
constexpr int FromHere = -100;  // AT_FDCWD, whose header knows another open

}  // namespace

// Of what it does not know libsndfile looks for a second file beside it, with the rest of an old
// Macintosh's sound. It is told that there is none, in place of the system, which would end us.
extern "C" __attribute__((visibility("default"))) int open64(const char* Path, int Flags,
                                                             int Mode) {
    if (!IsClosed) return static_cast<int>(::syscall(SYS_openat, FromHere, Path, Flags, Mode));
    errno = ENOENT;
    return -1;
}
extern "C" __attribute__((visibility("default"))) int open(const char* Path, int Flags, int Mode) {
    return open64(Path, Flags, Mode);
}

int main() {
    neb::LockedRoom Room;
    Room.Prepare();
    Room.Close();
    IsClosed = true;
    const neb::SoundDecoders Decoders;
    neb::ServeSounds(Room, Decoders);
}
