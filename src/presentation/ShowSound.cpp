#include "presentation/ShowSound.h"

namespace neb {

bool SilentShowSound::SoundStep(const SlideSound&, ShowSoundFields& Fields) {
    Fields.Reposition = false;
    return false;
}

ShowSoundMaker& TheShowSoundMaker() {
    static ShowSoundMaker Maker = [] { return std::make_unique<SilentShowSound>(); };
    return Maker;
}

}  // namespace neb
