// WAV files that need a hand before a decoder gets them: wrappings of MP3, and recordings that were
// never closed. Used when a sound is opened.
#pragma once

namespace neb {

class SoundSource;

// Narrows a WAV file that is but a wrapping of MPEG frames to these, and says whether it was one.
// In any other WAV file a length of 0 becomes what is really there.
bool UnwrapRiff(SoundSource& Source);

}  // namespace neb
