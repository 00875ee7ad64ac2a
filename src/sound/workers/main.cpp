// Decodes sounds for the program behind a locked door.
#include "sound/workers/ServeSounds.h"

int main() {
    neb::LockedRoom Room;
    Room.Prepare();
    Room.Close();
    const neb::SoundDecoders Decoders;
    neb::ServeSounds(Room, Decoders);
}
