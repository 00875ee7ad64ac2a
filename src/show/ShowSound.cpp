#include "show/ShowSound.h"

namespace neb {

bool SilentShowSound::SoundStep(const SlideSound&, ShowSoundFields& Fields) {
    Fields.Reposition = false;
    return false;
}

}  // namespace neb
